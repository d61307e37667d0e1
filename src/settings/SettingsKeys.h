#pragma once
#include <string_view>

namespace nomra::settings {

// Written as a value instead of removing an entry; the compaction then drops
// every line whose trimmed text ends in it.
inline constexpr std::string_view kDeleteMarker = "<<DELETE>>";

// Files in the data folder and the application folder.
inline constexpr char kSettingsFileName[] = "settings.nrp";
inline constexpr char kStructuresFileName[] = "structures.nrp";
inline constexpr char kUpdateFileName[] = "update.nrp";
inline constexpr char kCompactionTempName[] = "format.tmp";
inline constexpr std::string_view kLanguageFileEnding = ".lng";

// The update instructions: a version in [Main], then numbered keys A1, A2, ...
// in [Add], C1, C2, ... in [Copy] and D1, D2, ... in [Del].
inline constexpr char kMainSection[] = "Main";
inline constexpr char kVersionKey[] = "Version";
inline constexpr char kAddSection[] = "Add";
inline constexpr char kAddKeyPrefix[] = "A";
inline constexpr char kCopySection[] = "Copy";
inline constexpr char kCopyKeyPrefix[] = "C";
inline constexpr char kDelSection[] = "Del";
inline constexpr char kDelKeyPrefix[] = "D";
inline constexpr char kInstructionSeparator = '|';

// The rename protocol in the data folder.
inline constexpr char kProtocolFileName[] = "renamed.nrp";
// Where the protocol is written whole before it replaces "renamed.nrp"; it
// exists only while the protocol is rewritten.
inline constexpr char kProtocolTempFileName[] = "renamed.tmp";

// The work file of a script recording in the data folder; one left by a
// recording that never ended is removed at start.
inline constexpr char kScriptTempFileName[] = "script.tmp";

// Section "Settings" of the settings file.
inline constexpr char kSettingsSection[] = "Settings";
inline constexpr char kLettersKey[] = "letters";
inline constexpr char kSecurityQuestion1Key[] = "secquest1";
inline constexpr char kSecurityQuestion2Key[] = "secquest2";
inline constexpr char kSecurityQuestion3Key[] = "secquest3";
inline constexpr char kExpertModeKey[] = "ExpertMode";
inline constexpr char kCheckExistenceKey[] = "CheckExistence";
inline constexpr char kLoadExifDatesKey[] = "LoadEXIFDates";
inline constexpr char kProtocolRenamesKey[] = "protren";
inline constexpr char kSaveDialogSettingsKey[] = "savset";
inline constexpr char kRenameStyleKey[] = "RenameStyle";
inline constexpr char kSplashKey[] = "splash";
inline constexpr char kButtonBarMainKey[] = "btnbarMain";
inline constexpr char kButtonBarScriptKey[] = "btnbarScript";
inline constexpr char kPreviewStyleKey[] = "PreviewStyle";
inline constexpr char kPreviewGridLinesKey[] = "PreviewGridLines";
inline constexpr char kPreviewSortKeyKey[] = "PreviewSortKey";
inline constexpr char kPreviewSortOrderKey[] = "PreviewSortOrder";
inline constexpr char kPreviewImageSizeKey[] = "PreviewImageSize";
// Where the open dialogs start next, and the filter row last chosen in the
// system open dialog (1-based).
inline constexpr char kLastPathKey[] = "lastpath";
inline constexpr char kLastFilterKey[] = "lastfilter";

// The main window's place and column widths, in section "Main"; the widths
// are "Col1" to "Col8".
inline constexpr char kWindowStateKey[] = "ws";
inline constexpr char kWindowLeftKey[] = "x";
inline constexpr char kWindowTopKey[] = "y";
inline constexpr char kWindowWidthKey[] = "w";
inline constexpr char kWindowHeightKey[] = "h";
inline constexpr char kColumnWidthKeyPrefix[] = "Col";

// The colours of the marked fields in dialogs.
inline constexpr char kDialogsSection[] = "Dialogs";
inline constexpr char kBackColorKey[] = "BackColor";
inline constexpr char kForeColorKey[] = "ForeColor";

// The open dialog.
inline constexpr char kFrmOpenSection[] = "FrmOpen";
inline constexpr char kCheckAllKey[] = "chkAll";
inline constexpr char kCheckSubKey[] = "chkSub";
inline constexpr char kDialogueStyleKey[] = "DialogueStyle";
inline constexpr char kShowHiddenFilesKey[] = "ShowHiddenFiles";

// The filters of the open dialogs: keys f1, f2, ... in section "Filter"
// ("Name|pattern") for the system dialog, in section "PowerFilter" (a digit
// "1" or "0" for the check, then the pattern) for Nomra's own dialog.
inline constexpr char kFilterSection[] = "Filter";
inline constexpr char kPowerFilterSection[] = "PowerFilter";
inline constexpr char kFilterKeyPrefix[] = "f";

// The assistant window.
inline constexpr char kAssistantSection[] = "Assistant";
inline constexpr char kAssistantVisibleKey[] = "Visible";

// The language name (Main/lngname of a language file) chosen by the user.
inline constexpr char kLanguageKey[] = "lng";

}  // namespace nomra::settings
