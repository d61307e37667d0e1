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
using testing::FakeControl;
using testing::FakeForm;
using testing::WriteLanguageFile;

ToolbarButton Button(std::string key, int style = kButtonStyleDefault, std::vector<std::string> entries = {}) {
  return ToolbarButton{std::move(key), style, std::move(entries)};
}

class ToolbarTexts : public ::testing::Test {
 protected:
  ToolbarTexts() : form_("frmMain") {}

  FakeControl& Toolbar(std::vector<ToolbarButton> buttons) {
    auto& bar = form_.Add(ControlKind::Toolbar, "BtnBarMain");
    bar.buttons = std::move(buttons);
    return bar;
  }
  void Localise(std::initializer_list<std::string> lines) {
    LocaliseForm(form_, {}, MessageCatalog(nomra::testing::RealFiles(), WriteLanguageFile(temp_, "de.lng", lines)),
                 CaptionSources{});
  }

 private:
  TempFolder temp_;
  FakeForm form_;
};

// Each lookup of the chain is removed in turn: the tip falls to the next one.
TEST_F(ToolbarTexts, ToolTipIsTheButtonsKeyInTheDialogsSectionFirst) {
  auto& bar = Toolbar({Button("Undo")});
  Localise({"[frmMain]", "Undo=1 &Schlüssel", "BtnBarMainUndo=2", "mnuUndo=3", "[Buttons]", "Undo=4"});
  EXPECT_EQ(bar.buttonTips, (std::map<int, std::string>{{0, "1 Schlüssel"}}));
}

TEST_F(ToolbarTexts, ToolTipIsTheToolbarsNameWithTheKeySecond) {
  auto& bar = Toolbar({Button("Undo")});
  Localise({"[frmMain]", "BtnBarMainUndo=2 &Leiste", "mnuUndo=3", "[Buttons]", "Undo=4"});
  EXPECT_EQ(bar.buttonTips, (std::map<int, std::string>{{0, "2 Leiste"}}));
}

TEST_F(ToolbarTexts, ToolTipIsTheMenuEntryThird) {
  auto& bar = Toolbar({Button("Undo")});
  Localise({"[frmMain]", "mnuUndo=3 &Menü", "[Buttons]", "Undo=4"});
  EXPECT_EQ(bar.buttonTips, (std::map<int, std::string>{{0, "3 Menü"}}));
}

TEST_F(ToolbarTexts, ToolTipIsTheSharedButtonTextLast) {
  auto& bar = Toolbar({Button("Undo")});
  Localise({"[Menus]", "mnuUndo=nicht hier", "[Buttons]", "Undo=4 &Knopf"});
  EXPECT_EQ(bar.buttonTips, (std::map<int, std::string>{{0, "4 Knopf"}}));
}

TEST_F(ToolbarTexts, ButtonWithoutAnyTextKeepsItsToolTip) {
  auto& bar = Toolbar({Button("Undo")});
  Localise({"[frmMain]", "Redo=nicht dieser"});
  EXPECT_TRUE(bar.buttonTips.empty());
}

TEST_F(ToolbarTexts, OnlyDefaultCheckAndDropDownButtonsGetToolTips) {
  auto& bar = Toolbar({Button("Undo", kButtonStyleDefault), Button("Gap", kButtonStyleSeparator),
                       Button("Options", kButtonStyleCheck), Button("Room", kButtonStylePlaceholder),
                       Button("OpenFile", kButtonStyleDropDown), Button("Group", 2)});
  Localise({"[frmMain]", "Undo=Rückgängig", "Gap=Lücke", "Options=Optionen", "Room=Platz", "OpenFile=Öffnen",
            "Group=Gruppe"});
  EXPECT_EQ(bar.buttonTips, (std::map<int, std::string>{{0, "Rückgängig"}, {2, "Optionen"}, {4, "Öffnen"}}));
}

TEST_F(ToolbarTexts, DropDownEntriesTakeTheToolbarsNameWithTheKeyFirstThenTheMenuEntry) {
  auto& bar = Toolbar(
      {Button("Undo"), Button("TakeChanges", kButtonStyleDropDown, {"TakeChanges1", "TakeChanges2", "TakeChanges9"})});
  Localise({"[frmMain]", "BtnBarMainTakeChanges1=&Alle umbenennen", "mnuTakeChanges1=falsch",
            "mnuTakeChanges2=&Markierte", "TakeChanges9=nicht der Schlüssel allein", "[Menus]",
            "mnuTakeChanges9=nicht in Menus"});
  using Entry = std::pair<int, int>;
  EXPECT_EQ(bar.entryTexts, (std::map<Entry, std::string>{{{1, 0}, "&Alle umbenennen"}, {{1, 1}, "&Markierte"}}));
}

TEST_F(ToolbarTexts, EntriesOfAButtonThatIsNoDropDownStayAsTheyAre) {
  auto& bar = Toolbar({Button("DelList", kButtonStyleCheck, {"DelList1"})});
  Localise({"[frmMain]", "BtnBarMainDelList1=Eintrag"});
  EXPECT_TRUE(bar.entryTexts.empty());
}

}  // namespace
}  // namespace nomra::lang
