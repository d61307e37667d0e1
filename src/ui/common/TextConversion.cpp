#include "ui/common/TextConversion.h"

#include <QByteArray>
#include <QUrl>

#include "base/AsciiSearch.h"
#include "base/Utf8.h"

namespace nomra::ui {

namespace {

constexpr char32_t kReplacementCharacter = 0xFFFD;

}  // namespace

QString ToQString(std::string_view engineText) {
  // Most names are plain ASCII, which every encoding reads alike.
  if (base::IsAscii(engineText)) {
    return QString::fromLatin1(engineText.data(), static_cast<qsizetype>(engineText.size()));
  }
  QString out;
  out.reserve(static_cast<qsizetype>(engineText.size()));
  base::ForEachChar(engineText, [&](char32_t character, std::size_t, std::size_t) {
    if (QChar::requiresSurrogates(character)) {
      out.append(QChar(QChar::highSurrogate(character)));
      out.append(QChar(QChar::lowSurrogate(character)));
    } else {
      // A stray byte is already its lone surrogate here.
      out.append(QChar(static_cast<char16_t>(character)));
    }
  });
  return out;
}

std::string ToEngineText(const QString& text) {
  std::string out;
  out.reserve(static_cast<std::size_t>(text.size()));
  const qsizetype size = text.size();
  for (qsizetype i = 0; i < size; ++i) {
    const char16_t unit = text.at(i).unicode();
    char32_t character = unit;
    if (QChar::isHighSurrogate(unit) && i + 1 < size && QChar::isLowSurrogate(text.at(i + 1).unicode())) {
      character = QChar::surrogateToUcs4(unit, text.at(++i).unicode());
    } else if (QChar::isSurrogate(unit) && !base::IsRawByte(unit)) {
      character = kReplacementCharacter;
    }
    base::AppendChar(out, character);
  }
  return out;
}

int Utf16Position(const QString& text, int characters) {
  int position = 0;
  for (int n = 0; n < characters && position < text.size(); ++n) {
    position += text.at(position).isHighSurrogate() && position + 1 < text.size() ? 2 : 1;
  }
  return position;
}

QString LocalFilePath(const QUrl& url) {
  // A file on another host keeps Qt's own form, "//host/path".
  if (!url.host().isEmpty()) return url.toLocalFile();
  const QByteArray bytes = QByteArray::fromPercentEncoding(url.path(QUrl::FullyEncoded).toLatin1());
  return ToQString(std::string_view(bytes.constData(), static_cast<std::size_t>(bytes.size())));
}

}  // namespace nomra::ui
