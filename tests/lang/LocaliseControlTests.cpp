#include <gtest/gtest.h>

#include <string>

#include "FakeForm.h"
#include "LanguageFile.h"
#include "lang/LocaliseForm.h"
#include "support/RealFiles.h"
#include "support/TempFolder.h"

namespace nomra::lang {
namespace {

using nomra::testing::TempFolder;
using testing::FakeForm;
using testing::WriteLanguageFile;

class LocaliseControls : public ::testing::Test {
 protected:
  MessageCatalog Catalog(std::initializer_list<std::string> lines) {
    return MessageCatalog(nomra::testing::RealFiles(), WriteLanguageFile(temp_, "de.lng", lines));
  }
  void Localise(FakeForm& form, const MessageCatalog& catalog, std::string_view section = {}) {
    LocaliseForm(form, section, catalog, CaptionSources{});
  }

 private:
  TempFolder temp_;
};

TEST_F(LocaliseControls, EmptyTagTakesTheNameInTheDialogsSection) {
  FakeForm form("frmMove");
  auto& label = form.Add(ControlKind::Other, "lblChr");
  Localise(form, Catalog({"[frmMove]", "lblChr=Zeichen:", "[Buttons]", "lblChr=falsch"}));
  EXPECT_EQ(label.caption, "Zeichen:");
}

TEST_F(LocaliseControls, CommandButtonWithEmptyTagTakesItsTextFromButtons) {
  FakeForm form("frmMove");
  auto& button = form.Add(ControlKind::CommandButton, "cmdOK");
  Localise(form, Catalog({"[frmMove]", "cmdOK=falsch", "[Buttons]", "cmdOK=&OK"}));
  EXPECT_EQ(button.caption, "&OK");
}

TEST_F(LocaliseControls, TagWithBarNamesKeyAndSection) {
  FakeForm form("frmFileList");
  auto& combo = form.Add(ControlKind::Other, "lblSeparator", "Separator|Shared");
  auto& button = form.Add(ControlKind::CommandButton, "cmdGo", "cmdStart|frmFileList");
  Localise(form, Catalog({"[frmFileList]", "lblSeparator=falsch", "cmdStart=Los", "[Shared]", "Separator=Trenner"}));
  EXPECT_EQ(combo.caption, "Trenner");
  EXPECT_EQ(button.caption, "Los");
}

TEST_F(LocaliseControls, TagStartingWithFrmInAnyCaseNamesTheSection) {
  FakeForm form("frmFileList");
  auto& lower = form.Add(ControlKind::Other, "frameOutput", "frmMP3List");
  auto& upper = form.Add(ControlKind::Other, "lblSeparator", "FRMEXIFList");
  Localise(form, Catalog({"[frmFileList]", "frameOutput=falsch", "lblSeparator=falsch", "[frmMP3List]",
                          "frameOutput=Ausgabe MP3", "[frmEXIFList]", "lblSeparator=Trenner EXIF"}));
  EXPECT_EQ(lower.caption, "Ausgabe MP3");
  EXPECT_EQ(upper.caption, "Trenner EXIF");
}

TEST_F(LocaliseControls, OtherTagIsTheKeyInTheDialogsSection) {
  FakeForm form("frmInsert");
  auto& option = form.Add(ControlKind::Other, "opt1", "optBefore");
  auto& button = form.Add(ControlKind::CommandButton, "cmdPick", "cmdSelFile");
  Localise(form, Catalog({"[frmInsert]", "opt1=falsch", "optBefore=Davor", "cmdSelFile=Datei", "[Buttons]",
                          "cmdSelFile=falsch"}));
  EXPECT_EQ(option.caption, "Davor");
  EXPECT_EQ(button.caption, "Datei");
}

TEST_F(LocaliseControls, GivenSectionStandsForTheDialogsName) {
  FakeForm form("frmFileList");
  auto& frame = form.Add(ControlKind::Other, "frameOutput");
  Localise(form, Catalog({"[frmFileList]", "frameOutput=Liste", "[frmMP3List]", "frameOutput=MP3-Liste"}),
           "frmMP3List");
  EXPECT_EQ(frame.caption, "MP3-Liste");
}

TEST_F(LocaliseControls, MissingKeyKeepsTheDesignCaption) {
  FakeForm form("frmMove");
  auto& label = form.Add(ControlKind::Other, "lblPre");
  auto& empty = form.Add(ControlKind::Other, "lblChr");
  Localise(form, Catalog({"[frmMove]", "lblChr=", "lblMoveTo=Nach"}));
  EXPECT_FALSE(label.caption.has_value());
  EXPECT_FALSE(empty.caption.has_value());
}

TEST_F(LocaliseControls, MenuEntryFallsBackToMenus) {
  FakeForm form("frmID3Data");
  auto& own = form.Add(ControlKind::Menu, "mnuKeep");
  auto& shared = form.Add(ControlKind::Menu, "mnuDelete");
  Localise(form, Catalog({"[frmID3Data]", "mnuKeep=&Behalten", "[Menus]", "mnuKeep=falsch", "mnuDelete=&Löschen"}));
  EXPECT_EQ(own.caption, "&Behalten");
  EXPECT_EQ(shared.caption, "&Löschen");
}

TEST_F(LocaliseControls, OnlyMenuEntriesFallBackToMenus) {
  FakeForm form("frmID3Data");
  auto& label = form.Add(ControlKind::Other, "mnuDelete");
  Localise(form, Catalog({"[Menus]", "mnuDelete=&Löschen"}));
  EXPECT_FALSE(label.caption.has_value());
}

TEST_F(LocaliseControls, AmpersandStaysInCaptions) {
  FakeForm form("frmOptions");
  auto& check = form.Add(ControlKind::Other, "chkExperts");
  Localise(form, Catalog({"[frmOptions]", "chkExperts=&Experten-Modus"}));
  EXPECT_EQ(check.caption, "&Experten-Modus");
}

TEST_F(LocaliseControls, PictureButtonWithoutCaptionTakesTheTextAsToolTipWithoutAmpersands) {
  FakeForm form("frmCalendar");
  auto& picture = form.Add(ControlKind::CommandButton, "cmdNextMonth");
  picture.graphical = true;
  auto& plain = form.Add(ControlKind::CommandButton, "cmdCalOK");
  Localise(form, Catalog({"[Buttons]", "cmdNextMonth=&Nächster Monat", "cmdCalOK=&OK"}));
  EXPECT_EQ(picture.toolTip, "Nächster Monat");
  EXPECT_FALSE(picture.caption.has_value());
  EXPECT_EQ(plain.caption, "&OK");
  EXPECT_FALSE(plain.toolTip.has_value());
}

TEST_F(LocaliseControls, ComboBoxWithoutRowKeyKeepsItsRows) {
  FakeForm form("frmNumber");
  auto& combo = form.Add(ControlKind::ComboBox, "cmbAlign");
  combo.rows = {"left", "right"};
  Localise(form, Catalog({"[frmNumber]", "cmbAlign=Ausrichtung", "cmbAlign-2=nicht ohne -1"}));
  EXPECT_EQ(combo.rows, (std::vector<std::string>{"left", "right"}));
  EXPECT_EQ(combo.selectedRow, -1);
}

TEST_F(LocaliseControls, ComboBoxWithRowKeyGetsItsRowsAndTheFirstSelected) {
  FakeForm form("frmNumber");
  auto& combo = form.Add(ControlKind::ComboBox, "cmbAlign");
  combo.rows = {"left", "right", "centre", "spare"};
  combo.selectedRow = 2;
  Localise(form, Catalog({"[frmNumber]", "cmbAlign-1=links", "cmbAlign-2=rechts", "cmbAlign-3=mittig",
                          "cmbAlign-4=", "cmbAlign-5=nach der Lücke"}));
  EXPECT_EQ(combo.rows, (std::vector<std::string>{"links", "rechts", "mittig"}));
  EXPECT_EQ(combo.selectedRow, 0);
}

TEST_F(LocaliseControls, ListBoxRowsComeFromTheSectionItsTagNames) {
  FakeForm form("frmFileList");
  auto& list = form.Add(ControlKind::ListBox, "lstElements", "cmbPath|ComboBoxes");
  Localise(form, Catalog({"[frmFileList]", "lstElements-1=falsch", "[ComboBoxes]", "cmbPath-1=Pfad|Path",
                          "cmbPath-2=Name|Name"}));
  EXPECT_EQ(list.rows, (std::vector<std::string>{"Pfad|Path", "Name|Name"}));
  EXPECT_EQ(list.selectedRow, 0);
}

TEST_F(LocaliseControls, ListViewHeadersTakeKeyAndSectionFromTheirTags) {
  FakeForm form("frmSynchronize");
  auto& view = form.Add(ControlKind::ListView, "lstResult");
  view.headerTags = {"lstColHead01", "", "lstColHead02|frmFindDuplications", "lstColHead09"};
  Localise(form, Catalog({"[frmSynchronize]", "lstColHead01=Datei", "lstColHead02=falsch", "[frmFindDuplications]",
                          "lstColHead02=Größe"}));
  EXPECT_EQ(view.headerTexts, (std::map<int, std::string>{{0, "Datei"}, {2, "Größe"}}));
}

TEST_F(LocaliseControls, TabStripTabsTakeTheirKeysInTheDialogsSection) {
  FakeForm form("frmOptions");
  auto& tabs = form.Add(ControlKind::TabStrip, "TabStrip1");
  tabs.tabKeys = {"tabGeneral", "tabColours", "tabFilters"};
  Localise(form,
           Catalog({"[frmOptions]", "tabGeneral=&Allgemein", "tabFilters=Filter", "[Buttons]", "tabColours=falsch"}));
  EXPECT_EQ(tabs.tabCaptions, (std::map<int, std::string>{{0, "&Allgemein"}, {2, "Filter"}}));
}

TEST_F(LocaliseControls, WithoutAmpersandsRemovesEveryAmpersand) {
  EXPECT_EQ(WithoutAmpersands("&Datei && &Ordner"), "Datei  Ordner");
  EXPECT_EQ(WithoutAmpersands("ohne"), "ohne");
}

}  // namespace
}  // namespace nomra::lang
