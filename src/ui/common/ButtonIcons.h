#pragma once
#include <QIcon>
#include <QString>

namespace nomra::ui {

// The picture of a tool button by its key: the desktop theme's icon of the
// matching freedesktop.org name, else Nomra's own drawing, so the window
// looks right on a bare system too.
QIcon ButtonIcon(const QString& key);

// Makes Nomra's own pictures known; they live in a static library, whose
// resources Qt doesn't find on its own. Safe to call more than once.
void RegisterOwnPictures();

// The freedesktop.org icon name used for a key; "" where the theme has none
// that fits and Nomra's own picture is always used.
QString ThemeIconName(const QString& key);

}  // namespace nomra::ui
