// Each new action recorded as the window applies it, stored as a script,
// and played without a window on a fresh list: the same pending names.
#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "actions/FrmMove.h"
#include "actions/FrmNumber.h"
#include "actions/FrmRenumber.h"
#include "actions/FrmReplace.h"
#include "actions/FrmTrim.h"
#include "rename/ActionFrame.h"
#include "script/ScriptFixture.h"
#include "script/ScriptPlayback.h"
#include "script/ScriptRecording.h"
#include "support/RealFiles.h"

namespace nomra::script {
namespace {

using Names = std::vector<std::string>;
using Fill = std::function<void(dialog::DialogModel&)>;

const Names kFiles = {"01 - Intro_take.mp3", "02 - Main theme.mp3", "03 - Outro 7.mp3", "cover.jpg"};

class ActionRoundTripTest : public testing::ScriptTest {
 protected:
  // Records one step of `dialog`, filled by `fill`, and returns the names it gave.
  Names Record(rename::ActionDialog& dialog, const Fill& fill) {
    AddFiles(kFiles);
    ResetScriptTemp(script, nomra::testing::RealFiles());
    BeginScriptRecording(script, nomra::testing::RealFiles());
    rename::LoadActionDialog(dialog, Actions());
    fill(dialog.Model());
    EXPECT_TRUE(rename::ApplyActionDialog(dialog, Actions()));
    frontEnd.inputs.push_back("round trip");
    EXPECT_TRUE(EndScriptRecording(script, fileSystem, frontEnd, clock));
    return PendingNames();
  }

  // Starts again from the names on disk and plays the stored script.
  Names Replay() {
    state.list.ForEach([](core::FileEntry& row) { row[core::kColNewName] = row[core::kColOldName]; });
    const Names stored = ScriptFilesOnDisk();
    EXPECT_EQ(stored.size(), 1u);
    script.runPath = ScriptFolderPath() + stored.at(0);
    script.runMode = 1;
    PlayScript(script, nomra::testing::RealFiles(), HeadlessOpener());
    return PendingNames();
  }

  void ExpectRoundTrip(rename::ActionDialog& dialog, const Fill& fill) {
    const Names recorded = Record(dialog, fill);
    EXPECT_NE(recorded, kFiles) << "the step changed something";
    EXPECT_EQ(Replay(), recorded);
    EXPECT_EQ(openedTypes, std::vector<int>{dialog.Traits().stepType});
  }
};

TEST_F(ActionRoundTripTest, ReplaceWithARegularExpression) {
  actions::FrmReplace dialog;
  ExpectRoundTrip(dialog, [](dialog::DialogModel& model) {
    model.SetText("txtToRep", "^(\\d+) - (.*)$");
    model.SetText("txtRepBy", "$2 [$1]");
    model.SetNumber("chkRegExp", 1);
  });
}

TEST_F(ActionRoundTripTest, RemoveSpecialCharactersWithExceptions) {
  actions::FrmReplace dialog;
  ExpectRoundTrip(dialog, [](dialog::DialogModel& model) {
    model.SetOption("optFollowingChr", true);
    model.SetNumber("cmbRemove", 2);
    model.SetNumber("chkExceptions", 1);
    model.SetText("txtExceptions", "_");
    model.SetOption("optRemove", true);
  });
}

TEST_F(ActionRoundTripTest, NumberingAtAPositionFromTheRight) {
  actions::FrmNumber dialog;
  ExpectRoundTrip(dialog, [](dialog::DialogModel& model) {
    model.SetOption("optInsertAt", true);
    model.SetText("txtPos", "2");
    model.SetNumber("cmbAlign", 1);
    model.SetText("txtInit", "27");
    model.SetNumber("cmbNumberWith", 2);
    model.SetNumber("chkIntChr", 1);
    model.SetNumber("cmbIChr", 4);
  });
}

TEST_F(ActionRoundTripTest, RenumberingThePrefixes) {
  actions::FrmRenumber dialog;
  ExpectRoundTrip(dialog, [](dialog::DialogModel& model) {
    model.SetText("txtInit", "10");
    model.SetText("txtInc", "10");
    model.SetNumber("cmbAnzahl", 3);
  });
}

TEST_F(ActionRoundTripTest, TrimToTheFirstCharacters) {
  actions::FrmTrim dialog;
  ExpectRoundTrip(dialog, [](dialog::DialogModel& model) {
    model.SetOption("opt1(1)", true);
    model.SetText("txtPos(0)", "4");
  });
}

TEST_F(ActionRoundTripTest, MoveASliceInEveryRow) {
  actions::FrmMove dialog;
  ExpectRoundTrip(dialog, [](dialog::DialogModel& model) {
    model.SetText("txtFrom", "1");
    model.SetText("txtTo", "2");
    model.SetText("txtPos", "4");
  });
}

}  // namespace
}  // namespace nomra::script
