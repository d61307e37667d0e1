#pragma once
#include <array>
#include <string>

#include "core/FrontEnd.h"
#include "core/ListOptions.h"
#include "formats/IniFile.h"

namespace nomra::shell {

inline constexpr int kColumnHeadCount = 8;
inline constexpr long kDefaultDialogBackColor = 0x80C0FF;
inline constexpr long kDefaultDialogForeColor = 0;

// What the main window reads from the settings when it loads and writes back
// when it closes, in the form the settings file keeps it. -1 stands for a
// missing key wherever a missing key means "leave the control as it is".
// The flags that the list itself needs (ExpertMode, LoadEXIFDates,
// CheckExistence, protren, secquest1 to secquest3) are the ListOptions.
struct MainWindowSettings {
  // Section "Main". Widths and places are in twips; index 0 is head 1.
  std::array<long, kColumnHeadCount> columnWidths{-1, -1, -1, -1, -1, -1, -1, -1};
  long ws = -1;  // 0 normal, 1 minimised, 2 maximised
  long x = -1;
  long y = -1;
  long w = -1;
  long h = -1;

  // Section "Settings".
  long previewSortKey = -1;
  long previewSortOrder = -1;  // 0 ascending, 1 descending
  std::string previewStyle;    // "Details", "DetailsIcons", "Icons"; empty is "Details"
  bool previewGridLines = false;
  long previewImageSize = -1;  // entry of the icon size menu; missing takes the first
  long splash = -1;            // 0 hides the start window, anything else shows it
  long btnbarMain = -1;        // 1 shows the tool bar
  long btnbarScript = -1;
  long renameStyle = -1;  // 2 picks the second variant of the take-changes button
  bool savset = false;    // action dialogs keep their inputs

  // Section "Dialogs": 32-bit colour values.
  long backColor = kDefaultDialogBackColor;
  long foreColor = kDefaultDialogForeColor;

  // Section "FrmOpen".
  long chkAll = -1;  // values of the open dialog's check boxes
  long chkSub = -1;
  long dialogueStyle = -1;  // 2 picks the second variant of the open button
  bool showHiddenFiles = false;

  // Section "Assistant".
  bool assistantVisible = true;

  // The keys of the variants last chosen on the open and take-changes
  // buttons; the close stores their last characters as the two styles.
  std::string openFileTag = "OpenFile1";
  std::string takeChangesTag = "TakeChanges1";
};

// Reads every value the window needs at load. A value that is not a number
// is shown as a fault and its default stands, so a damaged settings file
// never keeps the window from opening. Colours are read as any number is:
// decimal text of the signed 32-bit value, which is how they are written
// back, or "&H" and hexadecimal digits, as a hand-edited file may hold them.
// The sort key and sort order are read with failures ignored: a damaged one
// is passed over in silence.
MainWindowSettings ReadMainWindowSettings(const formats::IniFile& settingsFile, core::FrontEnd& frontEnd);

// The layout part of the close, written before any question is asked: Col1 to
// Col8, PreviewStyle, PreviewGridLines and ws, then x, y, w and h only for a
// normal window, so a maximised window keeps the place it had before.
void WriteLayoutOnClose(const MainWindowSettings& settings, const formats::IniFile& settingsFile);

// The rest of the close: splash, btnbarMain, btnbarScript, PreviewSortKey,
// PreviewSortOrder, the assistant's Visible, BackColor, ForeColor, chkAll,
// chkSub, DialogueStyle, RenameStyle, ExpertMode, LoadEXIFDates,
// CheckExistence and ShowHiddenFiles, in this order.
void WriteSettingsOnClose(const MainWindowSettings& settings, const core::ListOptions& options,
                          const formats::IniFile& settingsFile);

// The width of a column head (1 to 8) whose width is missing: 3000 for the
// names and the folder, 1800 for the three before the size, 1400 for the
// size; -1 for head 8, which keeps the width it was made with.
int DefaultColumnWidth(int head);

// The width a head gets at load: the stored one when there is one, else its
// default (-1: keep the width it was made with).
long ColumnWidthToApply(int head, long storedWidth);

// The checks of the seven entries of the column menu (index 0 is entry 1).
// Each starts checked; a stored width of 0 on head 4 or later clears the
// entry of the same number. A click on an entry acts on the head after it,
// so this is one off from the clicks; the mismatch is kept on purpose, so a
// stored layout brings the menu back as it always has. Head 8 has no entry
// of its own number and changes no check.
std::array<bool, 7> ColumnMenuChecks(const std::array<long, kColumnHeadCount>& widths);

// The button keys of the stored styles: 2 picks the second variant, any
// other value (a missing one too) the first.
std::string OpenFileTagFromStyle(long dialogueStyle);
std::string TakeChangesTagFromStyle(long renameStyle);

}  // namespace nomra::shell
