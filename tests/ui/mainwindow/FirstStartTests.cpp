// The first start on an empty data folder, with the settings and name
// structures Nomra ships in its program folder.
#include <QAction>
#include <QToolBar>

#include <fstream>
#include <sstream>

#include "core/FileEntry.h"
#include "settings/DataFolder.h"
#include "ui/support/WindowFixture.h"

namespace nomra::ui::testing {
namespace {

std::string ShippedFile(const std::string& name) {
  std::ifstream in(std::string(NOMRA_DEFAULTS_DIR) + "/" + name, std::ios::binary);
  std::ostringstream text;
  text << in.rdbuf();
  return text.str();
}

class FirstStartTest : public WindowTest {
 protected:
  // What the program's start does before the window: the first-run copies
  // from the program folder into the empty data folder.
  void StartOnAnEmptyDataFolder() {
    for (const char* name : {"settings.nrp", "structures.nrp"}) {
      const std::string text = ShippedFile(name);
      ASSERT_FALSE(text.empty()) << name;
      app.WriteFile(name, text);
    }
    ASSERT_TRUE(settings::PrepareDataFolder(system->Files(), app.Path(), data.Path()));
    Open();
  }

  bool BarShown(const char* name) const {
    const auto* bar = window->findChild<QToolBar*>(name);
    return bar != nullptr && bar->isVisible();
  }
};

TEST_F(FirstStartTest, BothToolbarsAreShown) {
  StartOnAnEmptyDataFolder();
  EXPECT_TRUE(BarShown("BtnBarMain"));
  EXPECT_TRUE(BarShown("btnbarScript"));
  EXPECT_TRUE(Menu("mnuShowBtnBarMain")->isChecked());
  EXPECT_TRUE(Menu("mnuShowBtnBarScript")->isChecked());
}

TEST_F(FirstStartTest, WithoutTheShippedSettingsNoToolbarIsShown) {
  ASSERT_TRUE(settings::PrepareDataFolder(system->Files(), app.Path(), data.Path()));
  Open();
  EXPECT_FALSE(BarShown("BtnBarMain"));
  EXPECT_FALSE(BarShown("btnbarScript"));
}

TEST_F(FirstStartTest, TheListIsSortedByOldNameWithNumbersByTheirValue) {
  StartOnAnEmptyDataFolder();
  AddFiles({"track10.mp3", "track2.mp3", "track1.mp3", "b.txt"});
  ASSERT_EQ(ShownRows(), 4);
  EXPECT_EQ(Shown(1, core::kColOldName).toString(), "b.txt");
  EXPECT_EQ(Shown(2, core::kColOldName).toString(), "track1.mp3");
  EXPECT_EQ(Shown(3, core::kColOldName).toString(), "track2.mp3");
  EXPECT_EQ(Shown(4, core::kColOldName).toString(), "track10.mp3");
}

TEST_F(FirstStartTest, TheNameStructuresAreCopiedIntoTheDataFolder) {
  StartOnAnEmptyDataFolder();
  std::ifstream in(data.Path() + "structures.nrp", std::ios::binary);
  std::ostringstream text;
  text << in.rdbuf();
  EXPECT_NE(text.str().find("<ID3_Artist> - <ID3_SongTitle><.EXT>"), std::string::npos) << text.str();
  EXPECT_NE(text.str().find("<DT(E,\"yyyy-mm-dd hh.nn.ss\")>_<EXIF_Model><.EXT>"), std::string::npos);
}

}  // namespace
}  // namespace nomra::ui::testing
