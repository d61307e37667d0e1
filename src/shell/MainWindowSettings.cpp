#include "shell/MainWindowSettings.h"

#include "base/Fault.h"
#include "base/Flags.h"
#include "formats/IniFile.h"
#include "settings/SettingsKeys.h"

namespace nomra::shell {

namespace {

using namespace settings;

std::string ColumnWidthKey(int head) { return kColumnWidthKeyPrefix + std::to_string(head); }

// Reads numbers for the load; a damaged value reads as missing, so the
// caller's default stands.
class SettingsReader {
 public:
  SettingsReader(const formats::IniFile& file, core::FrontEnd& frontEnd) : file_(file), frontEnd_(frontEnd) {}

  long Number(const char* section, const std::string& key) {
    try {
      return file_.ReadInt(section, key);
    } catch (const base::RuntimeFault& fault) {
      frontEnd_.ShowFault(fault.what());
      return -1;
    }
  }

  long NumberOrSilence(const char* section, const char* key) {
    try {
      return file_.ReadInt(section, key);
    } catch (const base::RuntimeFault&) {
      return -1;
    }
  }

  bool Flag(const char* section, const char* key, bool fallback) {
    return base::ToBoolean(Number(section, key), fallback);
  }

  long NumberOr(const char* section, const char* key, long fallback) {
    const long value = Number(section, key);
    return value == -1 ? fallback : value;
  }

  std::string Text(const char* section, const char* key) { return file_.ReadString(section, key); }

 private:
  const formats::IniFile& file_;
  core::FrontEnd& frontEnd_;
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

MainWindowSettings ReadMainWindowSettings(const formats::IniFile& settingsFile, core::FrontEnd& frontEnd) {
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

void WriteLayoutOnClose(const MainWindowSettings& s, const formats::IniFile& file) {
  for (int head = 1; head <= kColumnHeadCount; ++head) {
    file.Write(kMainSection, ColumnWidthKey(head), s.columnWidths[static_cast<std::size_t>(head - 1)]);
  }
  file.Write(kSettingsSection, kPreviewStyleKey, s.previewStyle);
  file.Write(kSettingsSection, kPreviewGridLinesKey, base::FromBoolean(s.previewGridLines));
  file.Write(kMainSection, kWindowStateKey, s.ws);
  // A maximised or minimised window's size isn't the one to come back to.
  if (s.ws != 0) return;
  file.Write(kMainSection, kWindowLeftKey, s.x);
  file.Write(kMainSection, kWindowTopKey, s.y);
  file.Write(kMainSection, kWindowWidthKey, s.w);
  file.Write(kMainSection, kWindowHeightKey, s.h);
}

void WriteSettingsOnClose(const MainWindowSettings& s, const core::ListOptions& options, const formats::IniFile& file) {
  file.Write(kSettingsSection, kSplashKey, s.splash);
  file.Write(kSettingsSection, kButtonBarMainKey, s.btnbarMain);
  file.Write(kSettingsSection, kButtonBarScriptKey, s.btnbarScript);
  file.Write(kSettingsSection, kPreviewSortKeyKey, s.previewSortKey);
  file.Write(kSettingsSection, kPreviewSortOrderKey, s.previewSortOrder);
  file.Write(kAssistantSection, kAssistantVisibleKey, base::FromBoolean(s.assistantVisible));
  file.Write(kDialogsSection, kBackColorKey, s.backColor);
  file.Write(kDialogsSection, kForeColorKey, s.foreColor);
  file.Write(kFrmOpenSection, kCheckAllKey, s.chkAll);
  file.Write(kFrmOpenSection, kCheckSubKey, s.chkSub);
  file.Write(kFrmOpenSection, kDialogueStyleKey, LastCharacter(s.openFileTag));
  file.Write(kSettingsSection, kRenameStyleKey, LastCharacter(s.takeChangesTag));
  file.Write(kSettingsSection, kExpertModeKey, base::FromBoolean(options.expertMode));
  file.Write(kSettingsSection, kLoadExifDatesKey, base::FromBoolean(options.loadExifDates));
  file.Write(kSettingsSection, kCheckExistenceKey, base::FromBoolean(options.checkExistence));
  file.Write(kFrmOpenSection, kShowHiddenFilesKey, base::FromBoolean(s.showHiddenFiles));
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

std::string TakeChangesTagFromStyle(long renameStyle) { return renameStyle == 2 ? "TakeChanges2" : "TakeChanges1"; }

}  // namespace nomra::shell
