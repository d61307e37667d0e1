#include <gtest/gtest.h>

#include "shell/WindowPlacement.h"

namespace nomra::shell {
namespace {

// A window of 9000 by 6000 twips on a screen of 1920 by 1080 pixels at 96 dpi.
constexpr TwipsSize kWindow{9000, 6000};
constexpr TwipsSize kScreen{28800, 16200};

TEST(WindowPlacementTest, NormalWindowTakesItsStoredSizeAndPlace) {
  const WindowPlacement p = PlaceWindow(0, 500, 400, 12000, 8000, kWindow, kScreen);
  EXPECT_TRUE(p.applyState);
  EXPECT_EQ(p.state, 0);
  EXPECT_TRUE(p.applyWidth);
  EXPECT_TRUE(p.applyHeight);
  EXPECT_EQ(p.width, 12000);
  EXPECT_EQ(p.height, 8000);
  EXPECT_EQ(p.left, 500);
  EXPECT_EQ(p.top, 400);
}

TEST(WindowPlacementTest, StoredSizeTooSmallIsNotApplied) {
  const WindowPlacement p = PlaceWindow(0, 500, 400, 10000, 7000, kWindow, kScreen);
  EXPECT_FALSE(p.applyWidth);
  EXPECT_FALSE(p.applyHeight);
  EXPECT_EQ(p.width, 9000) << "the window keeps its own size";
  EXPECT_EQ(p.height, 6000);
  const WindowPlacement q = PlaceWindow(0, 500, 400, 10001, 7001, kWindow, kScreen);
  EXPECT_TRUE(q.applyWidth);
  EXPECT_TRUE(q.applyHeight);
  EXPECT_EQ(q.width, 10001);
  EXPECT_EQ(q.height, 7001);
}

TEST(WindowPlacementTest, MinimisedStateIsNotApplied) {
  const WindowPlacement p = PlaceWindow(1, 500, 400, 12000, 8000, kWindow, kScreen);
  EXPECT_FALSE(p.applyState);
  EXPECT_FALSE(p.applyWidth);
  EXPECT_FALSE(p.applyHeight);
  EXPECT_EQ(p.left, 500) << "the place is still taken";
}

TEST(WindowPlacementTest, MaximisedStateIsAppliedWithoutTheStoredSize) {
  const WindowPlacement p = PlaceWindow(2, 500, 400, 12000, 8000, kWindow, kScreen);
  EXPECT_TRUE(p.applyState);
  EXPECT_EQ(p.state, 2);
  EXPECT_FALSE(p.applyWidth);
  EXPECT_FALSE(p.applyHeight);
  EXPECT_EQ(p.left, 500);
  EXPECT_EQ(p.top, 400);
}

TEST(WindowPlacementTest, MissingStateAndPlacePutTheWindowAtTheCorner) {
  const WindowPlacement p = PlaceWindow(-1, -1, -1, -1, -1, kWindow, kScreen);
  EXPECT_FALSE(p.applyState);
  EXPECT_FALSE(p.applyWidth);
  EXPECT_FALSE(p.applyHeight);
  EXPECT_EQ(p.left, 0);
  EXPECT_EQ(p.top, 0);
}

TEST(WindowPlacementTest, WindowOffScreenToTheLeftMovesToEdge) {
  // At least 1000 twips of the window stay on the screen.
  EXPECT_EQ(PlaceWindow(0, 1000 - 9000, 400, -1, -1, kWindow, kScreen).left, 0);
  EXPECT_EQ(PlaceWindow(0, 1001 - 9000, 400, -1, -1, kWindow, kScreen).left, -7999);
  EXPECT_EQ(PlaceWindow(0, -50000, 400, -1, -1, kWindow, kScreen).left, 0);
}

TEST(WindowPlacementTest, WindowOffScreenToTheRightMovesToEdge) {
  EXPECT_EQ(PlaceWindow(0, 28800 - 500, 400, -1, -1, kWindow, kScreen).left, 0);
  EXPECT_EQ(PlaceWindow(0, 28800 - 501, 400, -1, -1, kWindow, kScreen).left, 28299);
}

TEST(WindowPlacementTest, WindowOffScreenAboveOrBelowMovesToTheTop) {
  EXPECT_EQ(PlaceWindow(0, 500, 1000 - 6000, -1, -1, kWindow, kScreen).top, 0);
  EXPECT_EQ(PlaceWindow(0, 500, 1001 - 6000, -1, -1, kWindow, kScreen).top, -4999);
  EXPECT_EQ(PlaceWindow(0, 500, 16200 - 500, -1, -1, kWindow, kScreen).top, 0);
  EXPECT_EQ(PlaceWindow(0, 500, 16200 - 501, -1, -1, kWindow, kScreen).top, 15699);
}

TEST(WindowPlacementTest, StoredWidthDecidesHowFarLeftTheWindowMayStand) {
  // With its own 9000 twips the window would be off screen; with the stored
  // 20000 enough of it stays.
  EXPECT_EQ(PlaceWindow(0, -15000, 400, 20000, -1, kWindow, kScreen).left, -15000);
  EXPECT_EQ(PlaceWindow(2, -15000, 400, 20000, -1, kWindow, kScreen).left, 0);
}

TEST(WindowPlacementTest, PlacementFromTheSettingsUsesTheirValues) {
  MainWindowSettings settings;
  settings.ws = 0;
  settings.x = 700;
  settings.y = 800;
  settings.w = 11000;
  settings.h = 6500;
  const WindowPlacement p = PlaceWindow(settings, kWindow, kScreen);
  EXPECT_EQ(p.left, 700);
  EXPECT_EQ(p.top, 800);
  EXPECT_TRUE(p.applyWidth);
  EXPECT_EQ(p.width, 11000);
  EXPECT_FALSE(p.applyHeight);
}

TEST(WindowPlacementTest, TwipsBecomePixelsRoundedToTheNearest) {
  EXPECT_EQ(TwipsToPixels(1440, 96), 96);
  EXPECT_EQ(TwipsToPixels(28800, 96), 1920);
  EXPECT_EQ(TwipsToPixels(1440, 144), 144);
  EXPECT_EQ(TwipsToPixels(7, 96), 0);
  EXPECT_EQ(TwipsToPixels(8, 96), 1);
  EXPECT_EQ(TwipsToPixels(-1440, 96), -96);
}

TEST(WindowPlacementTest, PixelsBecomeTwipsRoundedToTheNearest) {
  EXPECT_EQ(PixelsToTwips(96, 96), 1440);
  EXPECT_EQ(PixelsToTwips(1, 96), 15);
  EXPECT_EQ(PixelsToTwips(1, 120), 12);
  EXPECT_EQ(PixelsToTwips(1, 100), 14);
  EXPECT_EQ(PixelsToTwips(1, 97), 15);
}

TEST(WindowPlacementTest, ScreenWithoutResolutionCountsAsNinetySixDots) {
  EXPECT_EQ(TwipsToPixels(1440, 0), 96);
  EXPECT_EQ(PixelsToTwips(96, -1), 1440);
}

}  // namespace
}  // namespace nomra::shell
