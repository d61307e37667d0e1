#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <fstream>
#include <iterator>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/Utf8.h"
#include "support/TempFolder.h"

#ifndef NOMRA_LANG_DIR
#error "NOMRA_LANG_DIR must name the folder of the language files"
#endif

// The language files that ship with Nomra, checked as the program reads them:
// INI text whose section and key names ignore case. A key missing in one
// language leaves a control with its design caption, so both files must
// name the same keys.
namespace nomra::lang {
namespace {

// "%10" and up: a marker with two digits, which the message formatting reads
// as marker one followed by a digit.
bool TwoDigitMarkerAt(const std::string& value, std::size_t i) {
  return value[i] == '%' && std::isdigit(static_cast<unsigned char>(value[i + 1])) &&
         std::isdigit(static_cast<unsigned char>(value[i + 2]));
}

using nomra::testing::TempFolder;

const std::string kLanguageFolder = NOMRA_LANG_DIR;
const std::vector<std::string> kLanguageFiles = {"English.lng", "Deutsch.lng"};

// Longer values would lose their end when read.
constexpr std::size_t kLongestValue = 999;

std::string Lower(std::string_view text) {
  std::string out(text);
  std::transform(out.begin(), out.end(), out.begin(),
                 [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  return out;
}

std::string_view Trim(std::string_view text) {
  const auto first = text.find_first_not_of(" \t");
  if (first == std::string_view::npos) return {};
  const auto last = text.find_last_not_of(" \t");
  return text.substr(first, last - first + 1);
}

std::string ReadBytes(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

struct Entry {
  std::string key;
  std::string value;
};

struct Section {
  std::string name;
  std::vector<Entry> entries;
};

// Everything a language file says, and everything that would go wrong when
// the program reads it.
struct ParsedLanguageFile {
  std::string name;
  std::string bytes;
  std::vector<Section> sections;
  std::vector<std::string> faults;

  const Section* Find(std::string_view section) const {
    for (const auto& s : sections)
      if (Lower(s.name) == Lower(section)) return &s;
    return nullptr;
  }

  // As the program reads it: the first match wins, a missing key is "".
  std::string Text(std::string_view section, std::string_view key) const {
    const Section* s = Find(section);
    if (s == nullptr) return {};
    for (const auto& e : s->entries)
      if (Lower(e.key) == Lower(key)) return e.value;
    return {};
  }

  bool Has(std::string_view section, std::string_view key) const {
    const Section* s = Find(section);
    if (s == nullptr) return false;
    return std::any_of(s->entries.begin(), s->entries.end(),
                       [&](const Entry& e) { return Lower(e.key) == Lower(key); });
  }
};

ParsedLanguageFile Parse(const std::string& name, std::string bytes) {
  ParsedLanguageFile file{name, std::move(bytes), {}, {}};
  std::size_t start = 0;
  int lineNumber = 0;
  while (start < file.bytes.size()) {
    ++lineNumber;
    auto end = file.bytes.find('\n', start);
    if (end == std::string::npos) end = file.bytes.size();
    std::string_view line(file.bytes.data() + start, end - start);
    if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
    start = end + 1;
    const std::string where = name + " line " + std::to_string(lineNumber);
    const std::string_view trimmed = Trim(line);
    if (trimmed.empty()) continue;
    if (trimmed.front() == '[') {
      if (trimmed.back() != ']') file.faults.push_back(where + ": section header without ']'");
      file.sections.push_back({std::string(Trim(trimmed.substr(1, trimmed.size() - 2))), {}});
      continue;
    }
    const auto equals = trimmed.find('=');
    if (equals == std::string_view::npos || file.sections.empty()) {
      file.faults.push_back(where + ": neither a section nor an entry of one");
      continue;
    }
    file.sections.back().entries.push_back(
        {std::string(Trim(trimmed.substr(0, equals))), std::string(Trim(trimmed.substr(equals + 1)))});
  }
  return file;
}

ParsedLanguageFile Load(const std::string& name) { return Parse(name, ReadBytes(kLanguageFolder + "/" + name)); }

std::vector<ParsedLanguageFile> LoadAll() {
  std::vector<ParsedLanguageFile> files;
  for (const auto& name : kLanguageFiles) files.push_back(Load(name));
  return files;
}

// "section/key" of every entry, in lower case, as the program compares them.
std::set<std::string> KeysOf(const ParsedLanguageFile& file) {
  std::set<std::string> keys;
  for (const auto& s : file.sections)
    for (const auto& e : s.entries) keys.insert(Lower(s.name) + "/" + Lower(e.key));
  return keys;
}

std::vector<std::string> LineEndFaults(const std::string& bytes) {
  std::vector<std::string> faults;
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    if (bytes[i] == '\n' && (i == 0 || bytes[i - 1] != '\r')) faults.push_back("bare LF at byte " + std::to_string(i));
    if (bytes[i] == '\r' && (i + 1 == bytes.size() || bytes[i + 1] != '\n'))
      faults.push_back("bare CR at byte " + std::to_string(i));
  }
  if (!bytes.empty() && bytes.back() != '\n') faults.push_back("last line has no line end");
  return faults;
}

std::vector<std::string> DuplicateFaults(const ParsedLanguageFile& file) {
  std::vector<std::string> faults;
  std::set<std::string> sections;
  for (const auto& s : file.sections) {
    if (!sections.insert(Lower(s.name)).second) faults.push_back("section [" + s.name + "] opens twice");
    std::set<std::string> keys;
    for (const auto& e : s.entries)
      if (!keys.insert(Lower(e.key)).second) faults.push_back("[" + s.name + "] " + e.key + " is there twice");
  }
  return faults;
}

// "%1" to "%9": the numbers a text may use, as "%10" would be hit by "%1".
std::set<std::string> PlaceholdersOf(std::string_view text) {
  std::set<std::string> found;
  for (std::size_t i = 0; i + 1 < text.size(); ++i)
    if (text[i] == '%' && text[i + 1] >= '1' && text[i + 1] <= '9') found.insert(std::string(text.substr(i, 2)));
  return found;
}

std::string WithoutAmpersands(std::string text) {
  text.erase(std::remove(text.begin(), text.end(), '&'), text.end());
  return text;
}

// A tool button's tip: its key, the bar's name and key, "mnu" and key in the
// window's section, then the key among the buttons.
std::string ToolTip(const ParsedLanguageFile& file, const std::string& bar, const std::string& key) {
  for (const auto& candidate : {key, bar + key, "mnu" + key}) {
    const std::string text = file.Text("frmMain", candidate);
    if (!text.empty()) return WithoutAmpersands(text);
  }
  return WithoutAmpersands(file.Text("Buttons", key));
}

// A drop-down entry's text: the bar's name and entry key, or "mnu" and key.
std::string EntryText(const ParsedLanguageFile& file, const std::string& bar, const std::string& entry) {
  const std::string text = file.Text("frmMain", bar + entry);
  return text.empty() ? file.Text("frmMain", "mnu" + entry) : text;
}

struct ToolBar {
  std::string name;
  std::vector<std::string> buttons;
};

const std::vector<ToolBar> kToolBars = {
    {"BtnBarMain",
     {"OpenFile", "DelList", "TakeChanges", "RejectChanges", "Undo", "Rename01", "Rename02", "Rename03", "Rename04",
      "Rename05", "Rename06", "Rename07", "Rename08", "Rename09", "Rename10", "Rename99", "ImgPreview", "Options"}},
    {"btnBarLeft", {"EditMan", "DelList", "Properties", "CancelAction"}},
    {"btnbarScript", {"StartRecordScript", "StopRecordScript", "StartRunScript", "RunSelectedScript"}},
};

const std::vector<std::string> kMainDropDownEntries = {"OpenFile1", "OpenFile2",    "DelList1",
                                                       "DelList2",  "DelList3",     "DelList4",
                                                       "DelList5",  "TakeChanges1", "TakeChanges2"};

// The main window's texts that the program reads by name.
const std::vector<std::string> kMainWindowKeys = {"btnBarLeft",
                                                  "btnBarLeftDel1File",
                                                  "btnBarLeftEditMan",
                                                  "btnBarLeftProperties",
                                                  "BtnBarMain",
                                                  "btnbarScript",
                                                  "frameSelectedScript",
                                                  "lbl1",
                                                  "mnuCopyFiles",
                                                  "mnuCopyLink",
                                                  "mnuCopyName1",
                                                  "mnuCopyName2",
                                                  "mnuDeleteFiles1",
                                                  "mnuDeleteFiles2",
                                                  "mnuDelList",
                                                  "mnuDelList1",
                                                  "mnuDelList2",
                                                  "mnuDelList3",
                                                  "mnuDelList4",
                                                  "mnuDelList5",
                                                  "mnuEdit",
                                                  "mnuEditMan",
                                                  "mnuEnd",
                                                  "mnuEXIFList",
                                                  "mnuExperts",
                                                  "mnuFile",
                                                  "mnuFileAttributes",
                                                  "mnuFileList",
                                                  "mnuFindDuplications",
                                                  "mnuGridLines",
                                                  "mnuHelp",
                                                  "mnuHelpContent",
                                                  "mnuHistory",
                                                  "mnuID3Data",
                                                  "mnuID3Data1",
                                                  "mnuID3Data2",
                                                  "mnuImgPreview",
                                                  "mnuInfo",
                                                  "mnuMoveFiles",
                                                  "mnuMP3List",
                                                  "mnuNewNamesFromFile",
                                                  "mnuOpenFile",
                                                  "mnuOpenFromList",
                                                  "mnuOptions",
                                                  "mnuRejectChanges",
                                                  "mnuRename",
                                                  "mnuRename01",
                                                  "mnuRename02",
                                                  "mnuRename03",
                                                  "mnuRename04",
                                                  "mnuRename05",
                                                  "mnuRename06",
                                                  "mnuRename07",
                                                  "mnuRename08",
                                                  "mnuRename09",
                                                  "mnuRename10",
                                                  "mnuRenameStructure",
                                                  "mnuRunSelectedScript",
                                                  "mnuScript",
                                                  "mnuShowAssistant",
                                                  "mnuShowBtnBarMain",
                                                  "mnuShowBtnBars",
                                                  "mnuShowBtnBarScript",
                                                  "mnuShowSplash",
                                                  "mnuSpecial",
                                                  "mnuStartRecordScript",
                                                  "mnuStartRunScript",
                                                  "mnuStopRecordScript",
                                                  "mnuSyncFolders",
                                                  "mnuTakeChanges",
                                                  "mnuTakeChanges1",
                                                  "mnuTakeChanges2",
                                                  "mnuTools",
                                                  "mnuUndo",
                                                  "mnuUpdate",
                                                  "mnuView",
                                                  "mnuViewDetails",
                                                  "mnuViewDetailsIcons",
                                                  "mnuViewIcons",
                                                  "mnuViewIconSize",
                                                  "mnuViewIconSizeMain",
                                                  "mnuViewPre",
                                                  "mnuViewPreview",
                                                  "mnuViewSorting",
                                                  "mnuViewSortingSorted",
                                                  "mnuViewSortingUnsorted",
                                                  "lstColHead00",
                                                  "lstColHead01",
                                                  "lstColHead02",
                                                  "lstColHead03",
                                                  "lstColHead04",
                                                  "lstColHead05",
                                                  "lstColHead06",
                                                  "lstColHead07",
                                                  "RefreshPreview",
                                                  "mnuViewSortingAsc",
                                                  "mnuViewSortingDesc",
                                                  "mnuViewIconSize1",
                                                  "mnuViewIconSize2",
                                                  "mnuViewIconSize3",
                                                  "mnuViewIconSize4",
                                                  "mnuViewIconSize5",
                                                  "BtnBarMainOpenFile1",
                                                  "BtnBarMainOpenFile2"};

// Filled at run time or taken from the program's name: a text here would
// show until the program replaces it, or not be replaced at all.
const std::vector<std::string> kMainWindowKeysLeftOut = {"Caption", "lbl2", "lblSelectedScript", "lstApplyTo"};

const std::vector<std::string> kMessageKeys = {"MsgCap03",
                                               "MsgCap04",
                                               "MsgCap05",
                                               "MsgCap07",
                                               "MsgCap10",
                                               "MsgCap11",
                                               "MsgCap12",
                                               "MsgCap14",
                                               "MsgText03",
                                               "MsgText04",
                                               "MsgText05",
                                               "MsgText06",
                                               "MsgText07",
                                               "MsgText08",
                                               "MsgText09",
                                               "MsgText10",
                                               "MsgText11",
                                               "MsgText14",
                                               "MsgText15",
                                               "MsgText16",
                                               "MsgText18",
                                               "MsgText19",
                                               "MsgText21",
                                               "MsgText22",
                                               "MsgText26",
                                               "MsgText27",
                                               "MsgText29",
                                               "MsgText30",
                                               "MsgText31",
                                               "MsgText32",
                                               "MsgText33",
                                               "MsgText34",
                                               "MsgText35",
                                               "msgCapAttention",
                                               "msgCapErrorStructure",
                                               "msgCapRemoveStructure",
                                               "msgCapSearchFinished",
                                               "msgCheckInput",
                                               "msgCorrectSyntax",
                                               "msgDeleteScript",
                                               "msgDownloadUpdate",
                                               "msgErrorStructure1",
                                               "msgErrorStructure2",
                                               "msgErrorStructure3",
                                               "msgErrorStructure4",
                                               "msgID3DataChanged",
                                               "msgNoConnection",
                                               "msgNoDuplictions",
                                               "msgNoElementSelected",
                                               "msgNoFileSelected",
                                               "msgNoUpdates",
                                               "msgRemoveStructure",
                                               "MsgStat00",
                                               "MsgStat01",
                                               "MsgStat02",
                                               "MsgStat03",
                                               "MsgStat04",
                                               "MsgStat05",
                                               "MsgStat06",
                                               "MsgStat07",
                                               "MsgStat08",
                                               "MsgStat09",
                                               "MsgStat10"};

TEST(LanguageFiles, AreValidUtf8WithoutByteOrderMark) {
  for (const auto& file : LoadAll()) {
    SCOPED_TRACE(file.name);
    ASSERT_FALSE(file.bytes.empty()) << "missing or empty in " << kLanguageFolder;
    EXPECT_NE(file.bytes.rfind("\xEF\xBB\xBF", 0), 0u) << "starts with a byte order mark";
    EXPECT_TRUE(nomra::base::IsValidUtf8(file.bytes));
  }
}

TEST(LanguageFiles, EndEveryLineWithCrLf) {
  for (const auto& file : LoadAll()) {
    SCOPED_TRACE(file.name);
    ASSERT_FALSE(file.bytes.empty());
    const auto faults = LineEndFaults(file.bytes);
    EXPECT_TRUE(faults.empty()) << faults.size() << " faults, first: " << faults.front();
  }
}

TEST(LanguageFiles, HoldOnlySectionsEntriesAndBlankLines) {
  for (const auto& file : LoadAll()) {
    SCOPED_TRACE(file.name);
    ASSERT_FALSE(file.sections.empty());
    for (const auto& fault : file.faults) ADD_FAILURE() << fault;
  }
}

TEST(LanguageFiles, NameNoSectionAndNoKeyOfASectionTwice) {
  for (const auto& file : LoadAll()) {
    SCOPED_TRACE(file.name);
    ASSERT_FALSE(file.sections.empty());
    for (const auto& fault : DuplicateFaults(file)) ADD_FAILURE() << fault;
  }
}

TEST(LanguageFiles, HaveTheSameSectionsAndKeys) {
  const auto files = LoadAll();
  const auto first = KeysOf(files[0]);
  ASSERT_FALSE(first.empty());
  for (std::size_t i = 1; i < files.size(); ++i) {
    const auto other = KeysOf(files[i]);
    for (const auto& key : first)
      if (other.count(key) == 0) ADD_FAILURE() << key << " is in " << files[0].name << " only";
    for (const auto& key : other)
      if (first.count(key) == 0) ADD_FAILURE() << key << " is in " << files[i].name << " only";
  }
}

TEST(LanguageFiles, GiveEveryKeyATextThatIsReadWhole) {
  for (const auto& file : LoadAll()) {
    SCOPED_TRACE(file.name);
    ASSERT_FALSE(file.sections.empty());
    for (const auto& s : file.sections) {
      for (const auto& e : s.entries) {
        EXPECT_FALSE(e.value.empty()) << "[" << s.name << "] " << e.key << " is empty";
        EXPECT_LE(e.value.size(), kLongestValue) << "[" << s.name << "] " << e.key << " would be cut";
      }
    }
  }
}

TEST(LanguageFiles, FillTheSamePlaceholdersInEveryLanguage) {
  const auto files = LoadAll();
  ASSERT_FALSE(files[0].sections.empty());
  for (const auto& s : files[0].sections) {
    for (const auto& e : s.entries) {
      const auto expected = PlaceholdersOf(e.value);
      for (std::size_t i = 1; i < files.size(); ++i)
        EXPECT_EQ(PlaceholdersOf(files[i].Text(s.name, e.key)), expected)
            << "[" << s.name << "] " << e.key << " in " << files[i].name;
    }
  }
}

TEST(LanguageFiles, NeverNumberAPlaceholderFrom10On) {
  for (const auto& file : LoadAll()) {
    SCOPED_TRACE(file.name);
    ASSERT_FALSE(file.sections.empty());
    for (const auto& s : file.sections)
      for (const auto& e : s.entries)
        for (std::size_t i = 0; i + 2 < e.value.size(); ++i)
          EXPECT_FALSE(TwoDigitMarkerAt(e.value, i)) << "[" << s.name << "] " << e.key << " at " << i;
  }
}

TEST(LanguageFiles, NameTheirLanguageAndHelpFile) {
  const std::map<std::string, std::string> expectedNames = {{"English.lng", "English"}, {"Deutsch.lng", "Deutsch"}};
  std::set<std::string> icons;
  for (const auto& file : LoadAll()) {
    SCOPED_TRACE(file.name);
    EXPECT_EQ(file.Text("Main", "lngname"), expectedNames.at(file.name));
    EXPECT_EQ(file.Text("Main", "charset"), "0");
    EXPECT_FALSE(file.Text("Main", "hlpfile").empty());
    const std::string icon = file.Text("Main", "lngicon");
    EXPECT_FALSE(icon.empty());
    EXPECT_TRUE(std::all_of(icon.begin(), icon.end(), [](unsigned char c) { return std::isdigit(c); })) << icon;
    icons.insert(icon);
  }
  EXPECT_EQ(icons.size(), kLanguageFiles.size()) << "each language shows its own flag";
}

TEST(LanguageFiles, HoldEveryMessageAndStatusText) {
  for (const auto& file : LoadAll()) {
    SCOPED_TRACE(file.name);
    for (const auto& key : kMessageKeys) EXPECT_TRUE(file.Has("Messages", key)) << key;
  }
}

TEST(LanguageFiles, LetStatusTextOneShowRowsFoldersAndChanges) {
  for (const auto& file : LoadAll()) {
    SCOPED_TRACE(file.name);
    EXPECT_EQ(PlaceholdersOf(file.Text("Messages", "MsgStat01")), (std::set<std::string>{"%1", "%2", "%3"}));
  }
}

TEST(MainWindowTexts, HoldEveryKeyTheWindowReadsByName) {
  for (const auto& file : LoadAll()) {
    SCOPED_TRACE(file.name);
    for (const auto& key : kMainWindowKeys) EXPECT_TRUE(file.Has("frmMain", key)) << key;
  }
}

TEST(MainWindowTexts, LeaveTitleAndRunTimeFieldsToTheProgram) {
  for (const auto& file : LoadAll()) {
    SCOPED_TRACE(file.name);
    ASSERT_NE(file.Find("frmMain"), nullptr);
    for (const auto& key : kMainWindowKeysLeftOut) EXPECT_FALSE(file.Has("frmMain", key)) << key;
    EXPECT_FALSE(file.Has("frmInfo", "Caption")) << "the about box takes its title from its menu entry";
  }
}

TEST(MainWindowTexts, GiveEveryToolButtonATip) {
  for (const auto& file : LoadAll()) {
    SCOPED_TRACE(file.name);
    for (const auto& bar : kToolBars)
      for (const auto& key : bar.buttons) EXPECT_FALSE(ToolTip(file, bar.name, key).empty()) << bar.name << " " << key;
  }
}

TEST(MainWindowTexts, GiveAKeySharedByTwoToolBarsEachBarsOwnTip) {
  for (const auto& file : LoadAll()) {
    SCOPED_TRACE(file.name);
    const std::string mainTip = ToolTip(file, "BtnBarMain", "DelList");
    ASSERT_FALSE(mainTip.empty());
    EXPECT_NE(mainTip, ToolTip(file, "btnBarLeft", "DelList"));
  }
}

TEST(MainWindowTexts, GiveEveryDropDownEntryAText) {
  for (const auto& file : LoadAll()) {
    SCOPED_TRACE(file.name);
    for (const auto& entry : kMainDropDownEntries) EXPECT_FALSE(EntryText(file, "BtnBarMain", entry).empty()) << entry;
  }
}

TEST(MainWindowTexts, NameEachThumbnailSizeByItsPixelsAlone) {
  for (const auto& file : LoadAll()) {
    SCOPED_TRACE(file.name);
    for (int i = 1; i <= 5; ++i) {
      const std::string text = file.Text("frmMain", "mnuViewIconSize" + std::to_string(i));
      EXPECT_FALSE(text.empty()) << i;
      EXPECT_TRUE(std::all_of(text.begin(), text.end(), [](unsigned char c) { return std::isdigit(c); })) << text;
    }
  }
}

// The checks above must catch what they look for; a defective file shows it.
TEST(LanguageFileChecks, FindABareLineFeedAndARepeatedKey) {
  TempFolder temp;
  const auto path = temp.WriteFile("Broken.lng", "[Main]\r\nlngname=X\nLNGNAME=Y\r\n[main]\r\n");
  const ParsedLanguageFile file = Parse("Broken.lng", ReadBytes(path));
  EXPECT_EQ(LineEndFaults(file.bytes).size(), 1u);
  EXPECT_EQ(DuplicateFaults(file).size(), 2u);
  EXPECT_EQ(file.Text("MAIN", "LngName"), "X");
}

TEST(LanguageFileChecks, FollowTheToolBarChainInOrder) {
  TempFolder temp;
  const auto path = temp.WriteFile("Chain.lng",
                                   "[frmMain]\r\nmnuUndo=&Undo\r\nbtnBarLeftUndo=Left &tip\r\n"
                                   "[Buttons]\r\nRedo=&Redo\r\n");
  const ParsedLanguageFile file = Parse("Chain.lng", ReadBytes(path));
  EXPECT_EQ(ToolTip(file, "btnBarLeft", "Undo"), "Left tip");
  EXPECT_EQ(ToolTip(file, "BtnBarMain", "Undo"), "Undo");
  EXPECT_EQ(ToolTip(file, "BtnBarMain", "Redo"), "Redo");
  EXPECT_EQ(ToolTip(file, "BtnBarMain", "Gone"), "");
}

}  // namespace
}  // namespace nomra::lang
