#pragma once
#include <QString>

#include "lang/LocaliseForm.h"

class QWidget;

namespace nomra::ui {

// Localises a dialog of the main window by the engine's rules, with the
// main window's menu captions at hand for titles that borrow them.
void LocaliseDialog(QWidget& dialog, const lang::MessageCatalog& catalog, const QWidget* mainWindow,
                    const QString& appTitle);

// The title of a dialog that a menu entry opens: the entry's caption without
// its shortcut mark and its "...".
QString DialogTitleOf(const QString& menuCaption);

}  // namespace nomra::ui
