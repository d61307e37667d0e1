#include <gtest/gtest.h>

#include "shell/MainWindowSettings.h"
#include "support/ListFixture.h"
#include "support/RealFiles.h"

using nomra::testing::Ini;

namespace nomra::shell {
namespace {

class MainWindowSettingsTest : public testing::ListTest {
 protected:
  std::string SettingsWith(const std::string& text) { return temp.WriteFile("settings.nrp", text); }
  std::string EmptySettingsPath() const { return temp.Path() + "settings.nrp"; }
};

TEST_F(MainWindowSettingsTest, MissingSettingsGiveTheDefaults) {
  const MainWindowSettings s = ReadMainWindowSettings(Ini(EmptySettingsPath()), frontEnd);
  for (long width : s.columnWidths) EXPECT_EQ(width, -1);
  EXPECT_EQ(s.ws, -1);
  EXPECT_EQ(s.x, -1);
  EXPECT_EQ(s.w, -1);
  EXPECT_EQ(s.previewSortKey, -1);
  EXPECT_EQ(s.previewSortOrder, -1);
  EXPECT_EQ(s.previewStyle, "");
  EXPECT_FALSE(s.previewGridLines);
  EXPECT_EQ(s.previewImageSize, -1);
  EXPECT_EQ(s.splash, -1);
  EXPECT_EQ(s.btnbarMain, -1);
  EXPECT_EQ(s.btnbarScript, -1);
  EXPECT_FALSE(s.savset);
  EXPECT_EQ(s.backColor, 0x80C0FF);
  EXPECT_EQ(s.foreColor, 0);
  EXPECT_EQ(s.chkAll, -1);
  EXPECT_EQ(s.chkSub, -1);
  EXPECT_FALSE(s.showHiddenFiles);
  EXPECT_TRUE(s.assistantVisible);
  EXPECT_EQ(s.openFileTag, "OpenFile1");
  EXPECT_EQ(s.takeChangesTag, "TakeChanges1");
  EXPECT_TRUE(frontEnd.faults.empty());
}

TEST_F(MainWindowSettingsTest, ValuesAreReadFromTheirSections) {
  const std::string file = SettingsWith(
      "[Settings]\r\nsplash=0\r\nbtnbarMain=1\r\nbtnbarScript=0\r\nPreviewStyle=DetailsIcons\r\n"
      "PreviewGridLines=1\r\nPreviewSortKey=3\r\nPreviewSortOrder=1\r\nPreviewImageSize=2\r\nsavset=1\r\n"
      "RenameStyle=2\r\n\r\n"
      "[Main]\r\nws=2\r\nx=120\r\ny=240\r\nw=12000\r\nh=9000\r\nCol1=2500\r\nCol4=0\r\nCol8=700\r\n\r\n"
      "[Dialogs]\r\nBackColor=255\r\nForeColor=65280\r\n\r\n"
      "[FrmOpen]\r\nchkAll=1\r\nchkSub=0\r\nDialogueStyle=2\r\nShowHiddenFiles=1\r\n\r\n"
      "[Assistant]\r\nVisible=0\r\n");
  const MainWindowSettings s = ReadMainWindowSettings(Ini(file), frontEnd);
  EXPECT_EQ(s.splash, 0);
  EXPECT_EQ(s.btnbarMain, 1);
  EXPECT_EQ(s.btnbarScript, 0);
  EXPECT_EQ(s.previewStyle, "DetailsIcons");
  EXPECT_TRUE(s.previewGridLines);
  EXPECT_EQ(s.previewSortKey, 3);
  EXPECT_EQ(s.previewSortOrder, 1);
  EXPECT_EQ(s.previewImageSize, 2);
  EXPECT_TRUE(s.savset);
  EXPECT_EQ(s.renameStyle, 2);
  EXPECT_EQ(s.ws, 2);
  EXPECT_EQ(s.x, 120);
  EXPECT_EQ(s.y, 240);
  EXPECT_EQ(s.w, 12000);
  EXPECT_EQ(s.h, 9000);
  EXPECT_EQ(s.columnWidths, (std::array<long, 8>{2500, -1, -1, 0, -1, -1, -1, 700}));
  EXPECT_EQ(s.backColor, 255);
  EXPECT_EQ(s.foreColor, 65280);
  EXPECT_EQ(s.chkAll, 1);
  EXPECT_EQ(s.chkSub, 0);
  EXPECT_EQ(s.dialogueStyle, 2);
  EXPECT_TRUE(s.showHiddenFiles);
  EXPECT_FALSE(s.assistantVisible);
  EXPECT_EQ(s.openFileTag, "OpenFile2");
  EXPECT_EQ(s.takeChangesTag, "TakeChanges2");
  EXPECT_TRUE(frontEnd.faults.empty());
}

TEST_F(MainWindowSettingsTest, ValueInAnotherSectionIsNotRead) {
  const std::string file = SettingsWith("[Settings]\r\nws=2\r\nBackColor=255\r\nShowHiddenFiles=1\r\nVisible=0\r\n");
  const MainWindowSettings s = ReadMainWindowSettings(Ini(file), frontEnd);
  EXPECT_EQ(s.ws, -1);
  EXPECT_EQ(s.backColor, 0x80C0FF);
  EXPECT_FALSE(s.showHiddenFiles);
  EXPECT_TRUE(s.assistantVisible);
}

TEST_F(MainWindowSettingsTest, CorruptNumberInSettingsKeepsTheDefault) {
  const std::string file = SettingsWith(
      "[Main]\r\nCol2=wide\r\nCol3=2000\r\nws=max\r\n\r\n[Dialogs]\r\nBackColor=red\r\nForeColor=255\r\n\r\n"
      "[Assistant]\r\nVisible=perhaps\r\n");
  const MainWindowSettings s = ReadMainWindowSettings(Ini(file), frontEnd);
  EXPECT_EQ(s.columnWidths[1], -1);
  EXPECT_EQ(s.columnWidths[2], 2000) << "the keys after a damaged one are still read";
  EXPECT_EQ(s.ws, -1);
  EXPECT_EQ(s.backColor, 0x80C0FF);
  EXPECT_EQ(s.foreColor, 255);
  EXPECT_TRUE(s.assistantVisible);
  ASSERT_EQ(frontEnd.faults.size(), 4u);
  EXPECT_NE(frontEnd.faults[0].find("Col2"), std::string::npos);
  EXPECT_NE(frontEnd.faults[1].find("ws"), std::string::npos);
  EXPECT_NE(frontEnd.faults[2].find("BackColor"), std::string::npos);
  EXPECT_NE(frontEnd.faults[3].find("Visible"), std::string::npos);
}

TEST_F(MainWindowSettingsTest, DamagedSortKeyIsPassedOverInSilence) {
  const std::string file = SettingsWith("[Settings]\r\nPreviewSortKey=name\r\nPreviewSortOrder=up\r\nsplash=0\r\n");
  const MainWindowSettings s = ReadMainWindowSettings(Ini(file), frontEnd);
  EXPECT_EQ(s.previewSortKey, -1);
  EXPECT_EQ(s.previewSortOrder, -1);
  EXPECT_EQ(s.splash, 0);
  EXPECT_TRUE(frontEnd.faults.empty());
}

TEST_F(MainWindowSettingsTest, ColoursAreReadAsDecimalOrHexadecimal) {
  const std::string file = SettingsWith("[Dialogs]\r\nBackColor=8438015\r\nForeColor=&HFF\r\n");
  const MainWindowSettings s = ReadMainWindowSettings(Ini(file), frontEnd);
  EXPECT_EQ(s.backColor, 0x80C0FF);
  EXPECT_EQ(s.foreColor, 0xFF);
}

TEST_F(MainWindowSettingsTest, ColoursAreWrittenAsDecimalNumbers) {
  MainWindowSettings s;
  s.backColor = 0x00FFEE;
  s.foreColor = 0x123456;
  const std::string file = EmptySettingsPath();
  WriteSettingsOnClose(s, options, Ini(file));
  EXPECT_EQ(Ini(file).ReadString("Dialogs", "BackColor"), "65518");
  EXPECT_EQ(Ini(file).ReadString("Dialogs", "ForeColor"), "1193046");
}

TEST_F(MainWindowSettingsTest, OnlyStyleTwoPicksTheSecondButtonVariant) {
  EXPECT_EQ(OpenFileTagFromStyle(2), "OpenFile2");
  EXPECT_EQ(OpenFileTagFromStyle(1), "OpenFile1");
  EXPECT_EQ(OpenFileTagFromStyle(-1), "OpenFile1");
  EXPECT_EQ(OpenFileTagFromStyle(3), "OpenFile1");
  EXPECT_EQ(TakeChangesTagFromStyle(2), "TakeChanges2");
  EXPECT_EQ(TakeChangesTagFromStyle(0), "TakeChanges1");
  EXPECT_EQ(TakeChangesTagFromStyle(-1), "TakeChanges1");
}

TEST_F(MainWindowSettingsTest, LayoutOfANormalWindowIsWrittenInOrderWithItsPlace) {
  MainWindowSettings s;
  s.columnWidths = {3100, 3200, 3300, 0, 1800, 1700, 1400, 900};
  s.previewStyle = "Icons";
  s.previewGridLines = true;
  s.ws = 0;
  s.x = 150;
  s.y = 250;
  s.w = 12500;
  s.h = 8500;
  const std::string file = EmptySettingsPath();
  WriteLayoutOnClose(s, Ini(file));
  EXPECT_EQ(testing::ReadWholeFile(file),
            "[Main]\r\nCol1=3100\r\nCol2=3200\r\nCol3=3300\r\nCol4=0\r\nCol5=1800\r\nCol6=1700\r\nCol7=1400\r\n"
            "Col8=900\r\nws=0\r\nx=150\r\ny=250\r\nw=12500\r\nh=8500\r\n\r\n"
            "[Settings]\r\nPreviewStyle=Icons\r\nPreviewGridLines=1\r\n");
}

TEST_F(MainWindowSettingsTest, MaximisedWindowKeepsItsStoredPlace) {
  const std::string file = SettingsWith("[Main]\r\nws=0\r\nx=100\r\ny=200\r\nw=11000\r\nh=8000\r\n");
  MainWindowSettings s;
  s.ws = 2;
  s.x = 0;
  s.y = 0;
  s.w = 30000;
  s.h = 20000;
  WriteLayoutOnClose(s, Ini(file));
  EXPECT_EQ(Ini(file).ReadInt("Main", "ws"), 2);
  EXPECT_EQ(Ini(file).ReadInt("Main", "x"), 100);
  EXPECT_EQ(Ini(file).ReadInt("Main", "y"), 200);
  EXPECT_EQ(Ini(file).ReadInt("Main", "w"), 11000);
  EXPECT_EQ(Ini(file).ReadInt("Main", "h"), 8000);
}

TEST_F(MainWindowSettingsTest, SettingsAreWrittenOnCloseInOrder) {
  MainWindowSettings s;
  s.splash = 1;
  s.btnbarMain = 1;
  s.btnbarScript = 0;
  s.previewSortKey = 2;
  s.previewSortOrder = 1;
  s.assistantVisible = false;
  s.backColor = 255;
  s.foreColor = 0;
  s.chkAll = 1;
  s.chkSub = 0;
  s.openFileTag = "OpenFile2";
  s.takeChangesTag = "TakeChanges1";
  s.showHiddenFiles = true;
  options.expertMode = true;
  options.loadExifDates = false;
  options.checkExistence = true;
  const std::string file = EmptySettingsPath();
  WriteSettingsOnClose(s, options, Ini(file));
  EXPECT_EQ(testing::ReadWholeFile(file),
            "[Settings]\r\nsplash=1\r\nbtnbarMain=1\r\nbtnbarScript=0\r\nPreviewSortKey=2\r\nPreviewSortOrder=1\r\n"
            "RenameStyle=1\r\nExpertMode=1\r\nLoadEXIFDates=0\r\nCheckExistence=1\r\n\r\n"
            "[Assistant]\r\nVisible=0\r\n\r\n"
            "[Dialogs]\r\nBackColor=255\r\nForeColor=0\r\n\r\n"
            "[FrmOpen]\r\nchkAll=1\r\nchkSub=0\r\nDialogueStyle=2\r\nShowHiddenFiles=1\r\n");
}

TEST_F(MainWindowSettingsTest, StylesAreTheLastCharacterOfTheButtonKeys) {
  MainWindowSettings s;
  s.openFileTag = "OpenFile1";
  s.takeChangesTag = "TakeChanges2";
  const std::string file = EmptySettingsPath();
  WriteSettingsOnClose(s, options, Ini(file));
  EXPECT_EQ(Ini(file).ReadString("FrmOpen", "DialogueStyle"), "1");
  EXPECT_EQ(Ini(file).ReadString("Settings", "RenameStyle"), "2");
}

TEST_F(MainWindowSettingsTest, WhatTheCloseWritesComesBackAtTheNextLoad) {
  MainWindowSettings closed;
  closed.columnWidths = {2900, 2800, 2700, 1600, 0, 1500, 1300, 600};
  closed.previewStyle = "DetailsIcons";
  closed.previewGridLines = true;
  closed.ws = 0;
  closed.x = 300;
  closed.y = 400;
  closed.w = 15000;
  closed.h = 9500;
  closed.splash = 0;
  closed.btnbarMain = 0;
  closed.btnbarScript = 1;
  closed.previewSortKey = 4;
  closed.previewSortOrder = 0;
  closed.assistantVisible = false;
  closed.backColor = 0xC0FFC0;
  closed.foreColor = 0x800000;
  closed.chkAll = 0;
  closed.chkSub = 1;
  closed.openFileTag = "OpenFile2";
  closed.takeChangesTag = "TakeChanges2";
  closed.showHiddenFiles = true;
  const std::string file = EmptySettingsPath();
  WriteLayoutOnClose(closed, Ini(file));
  WriteSettingsOnClose(closed, options, Ini(file));

  const MainWindowSettings loaded = ReadMainWindowSettings(Ini(file), frontEnd);
  EXPECT_EQ(loaded.columnWidths, closed.columnWidths);
  EXPECT_EQ(loaded.previewStyle, closed.previewStyle);
  EXPECT_EQ(loaded.previewGridLines, closed.previewGridLines);
  EXPECT_EQ(loaded.ws, closed.ws);
  EXPECT_EQ(loaded.x, closed.x);
  EXPECT_EQ(loaded.y, closed.y);
  EXPECT_EQ(loaded.w, closed.w);
  EXPECT_EQ(loaded.h, closed.h);
  EXPECT_EQ(loaded.splash, closed.splash);
  EXPECT_EQ(loaded.btnbarMain, closed.btnbarMain);
  EXPECT_EQ(loaded.btnbarScript, closed.btnbarScript);
  EXPECT_EQ(loaded.previewSortKey, closed.previewSortKey);
  EXPECT_EQ(loaded.previewSortOrder, closed.previewSortOrder);
  EXPECT_EQ(loaded.assistantVisible, closed.assistantVisible);
  EXPECT_EQ(loaded.backColor, closed.backColor);
  EXPECT_EQ(loaded.foreColor, closed.foreColor);
  EXPECT_EQ(loaded.chkAll, closed.chkAll);
  EXPECT_EQ(loaded.chkSub, closed.chkSub);
  EXPECT_EQ(loaded.openFileTag, closed.openFileTag);
  EXPECT_EQ(loaded.takeChangesTag, closed.takeChangesTag);
  EXPECT_EQ(loaded.showHiddenFiles, closed.showHiddenFiles);
  EXPECT_TRUE(frontEnd.faults.empty());
}

TEST_F(MainWindowSettingsTest, MissingColumnWidthsHaveTheirDefaults) {
  EXPECT_EQ(DefaultColumnWidth(1), 3000);
  EXPECT_EQ(DefaultColumnWidth(3), 3000);
  EXPECT_EQ(DefaultColumnWidth(4), 1800);
  EXPECT_EQ(DefaultColumnWidth(6), 1800);
  EXPECT_EQ(DefaultColumnWidth(7), 1400);
  EXPECT_EQ(DefaultColumnWidth(8), -1) << "head 8 keeps the width it was made with";
}

TEST_F(MainWindowSettingsTest, StoredColumnWidthWinsOverTheDefault) {
  EXPECT_EQ(ColumnWidthToApply(2, -1), 3000);
  EXPECT_EQ(ColumnWidthToApply(5, 2222), 2222);
  EXPECT_EQ(ColumnWidthToApply(5, 0), 0);
  EXPECT_EQ(ColumnWidthToApply(8, -1), -1);
}

TEST_F(MainWindowSettingsTest, HiddenColumnClearsTheMenuEntryOfTheSameNumber) {
  const std::array<bool, 7> checks = ColumnMenuChecks({3000, 3000, 3000, 0, 1800, 1800, 0, 1000});
  EXPECT_EQ(checks, (std::array<bool, 7>{true, true, true, false, true, true, false}));
}

TEST_F(MainWindowSettingsTest, HiddenColumnBeforeHeadFourOrMissingWidthsChangeNoCheck) {
  EXPECT_EQ(ColumnMenuChecks({0, 0, 0, -1, -1, -1, -1, -1}),
            (std::array<bool, 7>{true, true, true, true, true, true, true}));
}

TEST_F(MainWindowSettingsTest, HiddenHeadEightChangesNoCheck) {
  EXPECT_EQ(ColumnMenuChecks({3000, 3000, 3000, 1800, 1800, 1800, 1400, 0}),
            (std::array<bool, 7>{true, true, true, true, true, true, true}));
}

}  // namespace
}  // namespace nomra::shell
