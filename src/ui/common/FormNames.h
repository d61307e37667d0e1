#pragma once

namespace nomra::ui {

// Names that windows of different sub-folders share: a form's object name is
// also its section of the language file (section names go without case), and
// some dialogs look a control of the main window up by its name.

// Nomra's own open dialog; its section holds the texts of the system open
// dialog's panel and filter list as well.
inline constexpr char kOpenDialogName[] = "FrmOpen";

// The script dialog; its section holds the caption prefix of a dialog a
// script plays.
inline constexpr char kScriptDialogName[] = "frmScript";

// The main window's list of the scope the actions apply to, whose text some
// dialog captions borrow.
inline constexpr char kApplyScopeListName[] = "lstApplyTo";

}  // namespace nomra::ui
