#pragma once
#include <QString>

#include "ui/common/QtLocalisation.h"

namespace nomra::ui {

// The names of the main window's bars, buttons and menu entries that more
// than one place of the window uses. They are object names, keys of the
// language file and of the dispatch tables, and some are stored in the
// settings, so they are written once, here.

// The form, and its section of the language file.
inline constexpr char kMainWindowName[] = "frmMain";

// The tool bars.
inline constexpr char kMainBar[] = "BtnBarMain";
inline constexpr char kLeftBar[] = "btnBarLeft";
inline constexpr char kScriptBar[] = "btnbarScript";

// Tool buttons by key. The entries of a drop-down button are its key with a
// number: "OpenFile1", "DelList5".
inline constexpr char kOpenFileKey[] = "OpenFile";
inline constexpr char kDelListKey[] = "DelList";
inline constexpr char kTakeChangesKey[] = "TakeChanges";
inline constexpr char kRejectChangesKey[] = "RejectChanges";
inline constexpr char kUndoKey[] = "Undo";
inline constexpr char kOptionsKey[] = "Options";
inline constexpr char kImgPreviewKey[] = "ImgPreview";
inline constexpr char kNameStructureKey[] = "Rename99";
inline constexpr char kEditManKey[] = "EditMan";
inline constexpr char kPropertiesKey[] = "Properties";
inline constexpr char kCancelActionKey[] = "CancelAction";
inline constexpr char kStartRecordKey[] = "StartRecordScript";
inline constexpr char kStopRecordKey[] = "StopRecordScript";
inline constexpr char kStartRunKey[] = "StartRunScript";
inline constexpr char kRunSelectedKey[] = "RunSelectedScript";

// How many entries the drop-downs have.
inline constexpr int kOpenFileEntries = 2;
inline constexpr int kDelListEntries = 5;
inline constexpr int kTakeChangesEntries = 2;

// Menus and menu entries. The entries of the submenus mnuDelList and
// mnuTakeChanges are the drop-down entries of their buttons with "mnu" in
// front ("mnuDelList3"); "mnuRename01" to "mnuRename10" open the actions of
// those step types.
inline constexpr char kOpenFileEntry[] = "mnuOpenFile";
inline constexpr char kOpenFromListEntry[] = "mnuOpenFromList";
inline constexpr char kTakeChangesMenu[] = "mnuTakeChanges";
inline constexpr char kRejectChangesEntry[] = "mnuRejectChanges";
inline constexpr char kHistoryEntry[] = "mnuHistory";
inline constexpr char kEndEntry[] = "mnuEnd";
inline constexpr char kEditMenu[] = "mnuEdit";
inline constexpr char kUndoEntry[] = "mnuUndo";
inline constexpr char kEditManEntry[] = "mnuEditMan";
inline constexpr char kCopyOldNameEntry[] = "mnuCopyName1";
inline constexpr char kCopyNewNameEntry[] = "mnuCopyName2";
inline constexpr char kCopyPathEntry[] = "mnuCopyLink";
inline constexpr char kDelListMenu[] = "mnuDelList";
inline constexpr char kCopyFilesEntry[] = "mnuCopyFiles";
inline constexpr char kMoveFilesEntry[] = "mnuMoveFiles";
inline constexpr char kDeleteToTrashEntry[] = "mnuDeleteFiles1";
inline constexpr char kDeleteEntry[] = "mnuDeleteFiles2";
inline constexpr char kRenameMenu[] = "mnuRename";
inline constexpr char kNameStructureEntry[] = "mnuRenameStructure";
inline constexpr char kNewNamesFromFileEntry[] = "mnuNewNamesFromFile";
inline constexpr char kScriptMenu[] = "mnuScript";
inline constexpr char kStartRecordEntry[] = "mnuStartRecordScript";
inline constexpr char kStopRecordEntry[] = "mnuStopRecordScript";
inline constexpr char kStartRunEntry[] = "mnuStartRunScript";
inline constexpr char kRunSelectedEntry[] = "mnuRunSelectedScript";
inline constexpr char kSpecialMenu[] = "mnuSpecial";
inline constexpr char kFileListEntry[] = "mnuFileList";
inline constexpr char kMp3ListEntry[] = "mnuMP3List";
inline constexpr char kExifListEntry[] = "mnuEXIFList";
inline constexpr char kId3Entry[] = "mnuID3Data";
inline constexpr char kId3PopupEntry[] = "mnuID3Data1";
inline constexpr char kId3AllPopupEntry[] = "mnuID3Data2";
inline constexpr char kFileAttributesEntry[] = "mnuFileAttributes";
inline constexpr char kFindDuplicatesEntry[] = "mnuFindDuplications";
inline constexpr char kSyncFoldersEntry[] = "mnuSyncFolders";
inline constexpr char kOptionsEntry[] = "mnuOptions";
inline constexpr char kExpertsEntry[] = "mnuExperts";
inline constexpr char kUpdateEntry[] = "mnuUpdate";
inline constexpr char kHelpContentEntry[] = "mnuHelpContent";
inline constexpr char kInfoEntry[] = "mnuInfo";
inline constexpr char kViewDetailsEntry[] = "mnuViewDetails";
inline constexpr char kViewDetailsIconsEntry[] = "mnuViewDetailsIcons";
inline constexpr char kViewIconsEntry[] = "mnuViewIcons";
inline constexpr char kUnsortedEntry[] = "mnuViewSortingUnsorted";
inline constexpr char kGridLinesEntry[] = "mnuGridLines";
inline constexpr char kImgPreviewEntry[] = "mnuImgPreview";
inline constexpr char kShowMainBarEntry[] = "mnuShowBtnBarMain";
inline constexpr char kShowScriptBarEntry[] = "mnuShowBtnBarScript";
inline constexpr char kShowSplashEntry[] = "mnuShowSplash";
inline constexpr char kShowAssistantEntry[] = "mnuShowAssistant";

// Families of numbered entries, control arrays whose members are named
// "mnuViewPre(3)", and how many each has: a
// column entry for each head after the first, an ascending and a
// descending sort entry for each of those heads.
inline constexpr char kColumnFamily[] = "mnuViewPre";
inline constexpr char kSortFamily[] = "mnuViewSortingSorted";
inline constexpr char kIconSizeFamily[] = "mnuViewIconSize";
inline constexpr int kColumnEntries = 7;
inline constexpr int kSortEntries = 2 * kColumnEntries;

// The values of the setting PreviewStyle, one for each layout of the list.
inline constexpr char kDetailsStyle[] = "Details";
inline constexpr char kDetailsIconsStyle[] = "DetailsIcons";
inline constexpr char kIconsStyle[] = "Icons";

// The detail fields of the selected row: path, old name, new name.
inline constexpr int kDetailFields = 3;

// A drop-down entry's key: the button's key and the entry's number.
inline QString EntryKey(const char* buttonKey, int number) {
  return QLatin1String(buttonKey) + QString::number(number);
}

// The menu entry of a drop-down entry: "mnuDelList3" for "DelList3".
inline QString MenuEntryOf(const QString& entryKey) { return QLatin1String(kMenuEntryPrefix) + entryKey; }

// The number of an action in its button's key and menu entry: "01" to "10".
inline QString StepNumber(int stepType) { return QStringLiteral("%1").arg(stepType, 2, 10, QLatin1Char('0')); }
inline QString RenameToolKey(int stepType) { return QStringLiteral("Rename") + StepNumber(stepType); }
inline QString RenameMenuEntry(int stepType) { return QLatin1String(kRenameMenu) + StepNumber(stepType); }

// A tool button, or an entry of its drop-down, by bar and key: "BtnBarMain/Undo".
inline QString ToolName(const QString& bar, const QString& key) { return bar + QLatin1Char('/') + key; }

}  // namespace nomra::ui
