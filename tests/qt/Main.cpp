// Runs the tests of the Qt front end without a display.
#include <gtest/gtest.h>

#include <QApplication>

#include "console/Appearance.h"
#include "support/TemporaryFolder.h"

int main(int argc, char** argv) {
  // The error log goes into the folder for temporary files.
  const quorvel::test::TemporaryFolder temporary;
  qputenv("TMPDIR", temporary.path().c_str());
  qputenv("QT_QPA_PLATFORM", "offscreen");
  testing::InitGoogleTest(&argc, argv);
  const QApplication application(argc, argv);
  quorvel::console::SetAppearance(false);
  return RUN_ALL_TESTS();
}
