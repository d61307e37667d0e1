#pragma once
#include <QString>

#include <string>
#include <string_view>

class QUrl;

namespace nomra::ui {

// The one place where engine text and Qt's text meet. Engine text is UTF-8
// in a std::string and may hold bytes that are not UTF-8 at all, since file
// names on this system are bytes. Valid UTF-8 decodes as usual; each byte
// that is not part of a valid sequence becomes the lone low surrogate
// U+DC00 + byte (U+DC80..U+DCFF), which no valid text holds, and comes back
// as that same byte. So a file whose name is not UTF-8 is shown, edited and
// renamed without losing a byte: the engine's own characters (base/Utf8.h)
// carry stray bytes the same way.
QString ToQString(std::string_view engineText);

// The way back. A surrogate pair is its character; a lone surrogate from
// U+DC80 to U+DCFF is its byte; any other lone surrogate, which no engine
// text gives, becomes U+FFFD.
std::string ToEngineText(const QString& text);

// The UTF-16 position in `text` of the character with that number from 0:
// the engine counts characters (a stray byte as one), Qt counts UTF-16 units.
int Utf16Position(const QString& text, int characters);

// The path of a local file's URL, as engine text in a QString: the URL's
// percent-encoded bytes are the path's bytes, whether UTF-8 or not, where
// Qt's own reading of them would lose those that are not.
QString LocalFilePath(const QUrl& url);

}  // namespace nomra::ui
