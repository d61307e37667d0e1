#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "FakeForm.h"
#include "LanguageFile.h"
#include "base/CaseMap.h"
#include "lang/LocaliseForm.h"
#include "support/RealFiles.h"
#include "support/TempFolder.h"

namespace nomra::lang {
namespace {

using nomra::testing::TempFolder;
using testing::FakeForm;
using testing::WriteLanguageFile;

// The main menu as the main window shows it: a shortcut mark in each entry.
CaptionSources MainMenu() {
  CaptionSources sources;
  sources.menuCaption = [](std::string_view menu) { return "&" + std::string(menu) + " Menü"; };
  sources.applyScopeText = "Alle Dateien";
  sources.appTitle = "Nomra";
  return sources;
}

class DialogCaption : public ::testing::Test {
 protected:
  MessageCatalog Catalog(std::initializer_list<std::string> lines) {
    return MessageCatalog(nomra::testing::RealFiles(), WriteLanguageFile(temp_, "de.lng", lines));
  }

 private:
  TempFolder temp_;
};

TEST_F(DialogCaption, OwnCaptionKeyIsTheTitle) {
  FakeForm form("frmNumber");
  LocaliseForm(form, {}, Catalog({"[frmNumber]", "Caption=Nummerieren"}), MainMenu());
  EXPECT_EQ(form.caption, "Nummerieren");
}

TEST_F(DialogCaption, DialogWithoutCaptionTextOrTableRowKeepsItsDesignCaption) {
  FakeForm form("frmCalendar");
  LocaliseForm(form, {}, Catalog({"[frmCalendar]", "lbl1=Datum"}), MainMenu());
  EXPECT_FALSE(form.caption.has_value());
}

TEST_F(DialogCaption, ScopedDialogsShowTheirMenuCaptionAndTheApplyScope) {
  const std::vector<std::pair<std::string, std::string>> rows = {
      {"frmCopyFiles", "mnuCopyFiles"},
      {"frmDateTime", "mnuRename09"},
      {"frmEXIFList", "mnuEXIFList"},
      {"frmFileAttributes", "mnuFileAttributes"},
      {"frmFileList", "mnuFileList"},
      {"frmFileExtension", "mnuRename03"},
      {"frmFindDuplications", "mnuFindDuplications"},
      {"frmInsert", "mnuRename07"},
      {"frmMoveFiles", "mnuMoveFiles"},
      {"frmMP3List", "mnuMP3List"},
      {"frmNameStructure", "mnuRenameStructure"},
      {"frmNumber", "mnuRename01"},
      {"frmPrefixSuffix", "mnuRename05"},
      {"frmReplace", "mnuRename06"},
      {"frmTrim", "mnuRename10"},
      {"frmULCase", "mnuRename04"},
  };
  const auto catalog = Catalog({"[Main]", "lngname=Deutsch"});
  for (const auto& [dialog, menu] : rows) {
    FakeForm form(base::ToUpper(dialog));  // dialog names compare without case
    LocaliseForm(form, {}, catalog, MainMenu());
    EXPECT_EQ(form.caption, menu + " Menü (Alle Dateien)") << dialog;
  }
}

TEST_F(DialogCaption, PlainMenuDialogsShowTheirMenuCaptionWithoutAmpersand) {
  const std::vector<std::pair<std::string, std::string>> rows = {
      {"frmInfo", "mnuInfo"},
      {"frmMove", "mnuRename08"},
      {"frmNewNamesFromFile", "mnuNewNamesFromFile"},
      {"frmOpen", "mnuOpenFile"},
      {"frmRenumber", "mnuRename02"},
      {"frmScript", "mnuStartRunScript"},
      {"frmSynchronize", "mnuSyncFolders"},
  };
  const auto catalog = Catalog({"[Main]", "lngname=Deutsch"});
  for (const auto& [dialog, menu] : rows) {
    FakeForm form(base::ToLower(dialog));
    LocaliseForm(form, {}, catalog, MainMenu());
    EXPECT_EQ(form.caption, menu + " Menü") << dialog;
  }
}

TEST_F(DialogCaption, UseOfASharedDialogIsLookedUpByItsSection) {
  FakeForm form("frmFileList");
  LocaliseForm(form, "frmMP3List", Catalog({"[frmFileList]", "Caption=falsch"}), MainMenu());
  EXPECT_EQ(form.caption, "mnuMP3List Menü (Alle Dateien)");
}

TEST_F(DialogCaption, EmptyMenuCaptionKeepsTheDesignCaption) {
  FakeForm form("frmNumber");
  CaptionSources sources = MainMenu();
  sources.menuCaption = [](std::string_view) { return std::string("&"); };
  LocaliseForm(form, {}, Catalog({"[Main]", "lngname=Deutsch"}), sources);
  EXPECT_FALSE(form.caption.has_value());
}

TEST_F(DialogCaption, EditManOptionsAndPosBorrowAnotherSectionsTextWithoutAmpersand) {
  const auto catalog = Catalog({"[frmMain]", "BtnBarLeftEditMan=&Bearbeiten", "MnuOptions=&Optionen", "[frmInsert]",
                                "frmPosCap=&Position wählen"});
  FakeForm editMan("frmEditMan");
  FakeForm options("FRMOPTIONS");
  FakeForm pos("frmPos");
  for (FakeForm* form : {&editMan, &options, &pos}) LocaliseForm(*form, {}, catalog, MainMenu());
  EXPECT_EQ(editMan.caption, "Bearbeiten");
  EXPECT_EQ(options.caption, "Optionen");
  EXPECT_EQ(pos.caption, "Position wählen");
}

TEST_F(DialogCaption, OffsetTakesTheOffsetCheckBoxWithoutColon) {
  FakeForm form("frmOffset");
  LocaliseForm(form, {}, Catalog({"[frmFileAttributes]", "chkOffset=Zeit verschieben: um:"}), MainMenu());
  EXPECT_EQ(form.caption, "Zeit verschieben um");
}

TEST_F(DialogCaption, NotRenamedLabelsItsChoiceWithTheCopyDialogsCaption) {
  FakeForm form("frmNotRenamed");
  auto& label = form.Add(ControlKind::Other, "lblSelAction");
  auto& other = form.Add(ControlKind::Other, "lblOther");
  LocaliseForm(
      form, {},
      Catalog({"[frmNotRenamed]", "lblSelAction=falsch", "lblOther=Anderes", "[frmSelAction]", "Caption=Was tun"}),
      MainMenu());
  EXPECT_EQ(label.caption, "Was tun:");
  EXPECT_EQ(other.caption, "Anderes");
  EXPECT_FALSE(form.caption.has_value());
}

TEST_F(DialogCaption, NotRenamedKeepsItsOwnLabelTextWithoutCopyDialogCaption) {
  FakeForm form("frmNotRenamed");
  auto& label = form.Add(ControlKind::Other, "lblSelAction");
  LocaliseForm(form, {}, Catalog({"[frmNotRenamed]", "lblSelAction=Eigener Text"}), MainMenu());
  EXPECT_EQ(label.caption, "Eigener Text");
}

TEST_F(DialogCaption, HistoryTitleJoinsItsCaptionTheMenuAndTheApplication) {
  FakeForm form("FrmHistory");
  LocaliseForm(form, {}, Catalog({"[frmHistory]", "Caption=Protokoll"}), MainMenu());
  EXPECT_EQ(form.caption, "Protokoll - mnuHistory Menü -> Nomra");
}

TEST_F(DialogCaption, ID3EditorCopyButtonsGetTheToolTipWithTheTagVersions) {
  FakeForm form("frmID3Data");
  auto& first = form.Add(ControlKind::CommandButton, "cmdCopyData");
  auto& second = form.Add(ControlKind::CommandButton, "cmdCopyData");
  auto& other = form.Add(ControlKind::CommandButton, "cmdOK");
  LocaliseForm(form, {}, Catalog({"[Buttons]", "cmdCopyID3Data=&Kopiere %1 nach %2"}), MainMenu());
  EXPECT_EQ(first.toolTip, "Kopiere ID3v1 nach ID3v2");
  EXPECT_EQ(second.toolTip, "Kopiere ID3v1 nach ID3v2");
  EXPECT_FALSE(other.toolTip.has_value());
}

TEST_F(DialogCaption, AmpersandIsRemovedFromWindowTitlesButKeptInControlCaptions) {
  FakeForm form("frmRenumber");
  auto& option = form.Add(ControlKind::Other, "optPrefix");
  CaptionSources sources = MainMenu();
  sources.menuCaption = [](std::string_view) { return std::string("&Neu n&ummerieren"); };
  LocaliseForm(form, {}, Catalog({"[frmRenumber]", "optPrefix=&Vorne"}), sources);
  EXPECT_EQ(form.caption, "Neu nummerieren");
  EXPECT_EQ(option.caption, "&Vorne");
}

}  // namespace
}  // namespace nomra::lang
