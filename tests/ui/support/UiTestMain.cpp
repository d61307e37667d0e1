// The window tests run on Qt's offscreen platform, so they need no display;
// the platform is chosen before the application object reads it.
#include <QApplication>
#include <gtest/gtest.h>

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication app(argc, argv);
  ::testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
