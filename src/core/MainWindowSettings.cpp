#include "core/MainWindowSettings.h"

#include "base/Fault.h"
#include "base/Helpers.h"
#include "settings/IniFile.h"
#include "settings/SettingsKeys.h"

namespace nomra {

namespace {

using namespace settings;

std::string ColumnWidthKey(int head) { return kColumnWidthKeyPrefix + std::to_string(head); }

// Reads numbers for the load; a damaged value reads as missing, so the
// caller's default stands.
class SettingsReader {
 public:
  SettingsReader(const std::string& file, FrontEnd& frontEnd) : file_(file), frontEnd_(frontEnd) {}

  long Number(const char* section, const std::string& key) {
    try {
      return ReadIniInt(section, key, file_);
    } catch (const RuntimeFault& fault) {
      frontEnd_.ShowFault(fault.what());
      return -1;
    }
  }

  long NumberOrSilence(const char* section, const char* key) {
    try {
      return ReadIniInt(section, key, file_);
    } catch (const RuntimeFault&) {
      return -1;
    }
  }

  bool Flag(const char* section, const char* key, bool fallback) { return ToBoolean(Number(section, key), fallback); }

  long NumberOr(const char* section, const char* key, long fallback) {
    const long value = Number(section, key);
    return value == -1 ? fallback : value;
  }

  std::string Text(const char* section, const char* key) { return ReadIniString(section, key, file_); }

 private:
  const std::string& file_;
  FrontEnd& frontEnd_;
};

// The last character of a button key, the style number the settings keep.
std::string LastCharacter(const std::string& tag) {
  std::size_t start = tag.size();
  while (start > 0) {
    --start;
    // UTF-8 continuation bytes belong to the character that starts before.
    if ((static_cast<unsigned char>(tag[start]) & 0xC0) != 0x80) break;
  }
  return tag.substr(start);
}

}  // namespace

MainWindowSettings ReadMainWindowSettings(const std::string& settingsFile, FrontEnd& frontEnd) {
  SettingsReader read(settingsFile, frontEnd);
  MainWindowSettings s;
  // In the order the window's load takes them, so faults come in that order.
  s.btnbarMain = read.Number(kSettingsSection, kButtonBarMainKey);
  s.btnbarScript = read.Number(kSettingsSection, kButtonBarScriptKey);
  for (int head = 1; head <= kColumnHeadCount; ++head) {
    s.columnWidths[static_cast<std::size_t>(head - 1)] = read.Number(kMainSection, ColumnWidthKey(head));
  }
  s.previewSortKey = read.NumberOrSilence(kSettingsSection, kPreviewSortKeyKey);
  s.previewSortOrder = read.NumberOrSilence(kSettingsSection, kPreviewSortOrderKey);
  s.previewStyle = read.Text(kSettingsSection, kPreviewStyleKey);
  s.previewGridLines = read.Flag(kSettingsSection, kPreviewGridLinesKey, false);
  s.previewImageSize = read.Number(kSettingsSection, kPreviewImageSizeKey);
  s.ws = read.Number(kMainSection, kWindowStateKey);
  s.w = read.Number(kMainSection, kWindowWidthKey);
  s.h = read.Number(kMainSection, kWindowHeightKey);
  s.x = read.Number(kMainSection, kWindowLeftKey);
  s.y = read.Number(kMainSection, kWindowTopKey);
  s.savset = read.Flag(kSettingsSection, kSaveDialogSettingsKey, false);
  s.backColor = read.NumberOr(kDialogsSection, kBackColorKey, kDefaultDialogBackColor);
  s.foreColor = read.NumberOr(kDialogsSection, kForeColorKey, kDefaultDialogForeColor);
  s.chkAll = read.Number(kFrmOpenSection, kCheckAllKey);
  s.chkSub = read.Number(kFrmOpenSection, kCheckSubKey);
  s.showHiddenFiles = read.Flag(kFrmOpenSection, kShowHiddenFilesKey, false);
  s.dialogueStyle = read.Number(kFrmOpenSection, kDialogueStyleKey);
  s.renameStyle = read.Number(kSettingsSection, kRenameStyleKey);
  s.openFileTag = OpenFileTagFromStyle(s.dialogueStyle);
  s.takeChangesTag = TakeChangesTagFromStyle(s.renameStyle);
  s.splash = read.Number(kSettingsSection, kSplashKey);
  s.assistantVisible = read.Flag(kAssistantSection, kAssistantVisibleKey, true);
  return s;
}

void WriteLayoutOnClose(const MainWindowSettings& s, const std::string& file) {
  for (int head = 1; head <= kColumnHeadCount; ++head) {
    WriteIni(kMainSection, ColumnWidthKey(head), s.columnWidths[static_cast<std::size_t>(head - 1)], file);
  }
  WriteIni(kSettingsSection, kPreviewStyleKey, s.previewStyle, file);
  WriteIni(kSettingsSection, kPreviewGridLinesKey, FromBoolean(s.previewGridLines), file);
  WriteIni(kMainSection, kWindowStateKey, s.ws, file);
  // A maximised or minimised window's size isn't the one to come back to.
  if (s.ws != 0) return;
  WriteIni(kMainSection, kWindowLeftKey, s.x, file);
  WriteIni(kMainSection, kWindowTopKey, s.y, file);
  WriteIni(kMainSection, kWindowWidthKey, s.w, file);
  WriteIni(kMainSection, kWindowHeightKey, s.h, file);
}

void WriteSettingsOnClose(const MainWindowSettings& s, const MainModel& model, const std::string& file) {
  WriteIni(kSettingsSection, kSplashKey, s.splash, file);
  WriteIni(kSettingsSection, kButtonBarMainKey, s.btnbarMain, file);
  WriteIni(kSettingsSection, kButtonBarScriptKey, s.btnbarScript, file);
  WriteIni(kSettingsSection, kPreviewSortKeyKey, s.previewSortKey, file);
  WriteIni(kSettingsSection, kPreviewSortOrderKey, s.previewSortOrder, file);
  WriteIni(kAssistantSection, kAssistantVisibleKey, FromBoolean(s.assistantVisible), file);
  WriteIni(kDialogsSection, kBackColorKey, s.backColor, file);
  WriteIni(kDialogsSection, kForeColorKey, s.foreColor, file);
  WriteIni(kFrmOpenSection, kCheckAllKey, s.chkAll, file);
  WriteIni(kFrmOpenSection, kCheckSubKey, s.chkSub, file);
  WriteIni(kFrmOpenSection, kDialogueStyleKey, LastCharacter(s.openFileTag), file);
  WriteIni(kSettingsSection, kRenameStyleKey, LastCharacter(s.takeChangesTag), file);
  WriteIni(kSettingsSection, kExpertModeKey, FromBoolean(model.expertMode), file);
  WriteIni(kSettingsSection, kLoadExifDatesKey, FromBoolean(model.loadExifDates), file);
  WriteIni(kSettingsSection, kCheckExistenceKey, FromBoolean(model.checkExistence), file);
  WriteIni(kFrmOpenSection, kShowHiddenFilesKey, FromBoolean(s.showHiddenFiles), file);
}

int DefaultColumnWidth(int head) {
  if (head >= 1 && head <= 3) return 3000;
  if (head >= 4 && head <= 6) return 1800;
  if (head == 7) return 1400;
  return -1;
}

long ColumnWidthToApply(int head, long storedWidth) {
  return storedWidth == -1 ? DefaultColumnWidth(head) : storedWidth;
}

std::array<bool, 7> ColumnMenuChecks(const std::array<long, kColumnHeadCount>& widths) {
  std::array<bool, 7> checks;
  checks.fill(true);
  for (std::size_t head = 4; head <= checks.size(); ++head) {
    if (widths[head - 1] == 0) checks[head - 1] = false;
  }
  return checks;
}

std::string OpenFileTagFromStyle(long dialogueStyle) { return dialogueStyle == 2 ? "OpenFile2" : "OpenFile1"; }

std::string TakeChangesTagFromStyle(long renameStyle) {
  return renameStyle == 2 ? "TakeChanges2" : "TakeChanges1";
}

}  // namespace nomra
