// Runs the tests of the Qt front end without a display.
#include <gtest/gtest.h>

#include <QApplication>

#include "console/Appearance.h"

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  testing::InitGoogleTest(&argc, argv);
  const QApplication application(argc, argv);
  quorvel::console::SetAppearance(false);
  return RUN_ALL_TESTS();
}
