// Every icon key has a picture that can be told from the others without its colour.
#include <gtest/gtest.h>

#include <QPainter>
#include <cmath>
#include <string>

#include "qt/GlyphIcon.h"

namespace quorvel::qt {
namespace {

// The picture in grey on white, at the size of a list.
QImage GreyOf(std::string_view key) {
  QImage picture(16, 16, QImage::Format_RGB32);
  picture.fill(Qt::white);
  QPainter(&picture).drawImage(0, 0, DrawIcon(*widgets::FindIcon(key), 16, {}));
  return picture.convertToFormat(QImage::Format_Grayscale8);
}

// Pixels that differ so much that an eye sees it.
int DifferingPixels(const QImage& a, const QImage& b) {
  int count = 0;
  for (int y = 0; y < a.height(); ++y) {
    for (int x = 0; x < a.width(); ++x) count += std::abs(qGray(a.pixel(x, y)) - qGray(b.pixel(x, y))) > 40 ? 1 : 0;
  }
  return count;
}

TEST(Icon, EveryKeyInUseHasAPicture) {
  for (const char* process :
       {"Process", "ProcessStation", "ProcessOk", "ProcessNONOK", "ProcessUndefined", "ProcessStart",
        "ProcessWaitingCom", "ProcessWaitingStation", "ProcessWaitingExecution", "ProcessWaitingPrerequisite"}) {
    EXPECT_TRUE(widgets::FindIcon(process)) << process;
  }
  for (const char* user :
       {"User", "User_Ok", "User_NoOk", "User_Undefined", "User_NoExecute", "User_Inprogress", "User_WaitingCom",
        "User_WaitingStation", "User_WaitingExecution", "User_WaitingPrerequisite"}) {
    EXPECT_TRUE(widgets::FindIcon(user)) << user;
  }
  for (const char* header : {"ascending", "descending", "ascendingD", "descendingD"}) {
    EXPECT_TRUE(widgets::FindIcon(header)) << header;
  }
  EXPECT_FALSE(widgets::FindIcon(""));
  EXPECT_FALSE(widgets::FindIcon("process"));
}

TEST(Icon, NoTwoLookAlikeInGrey) {
  const auto keys = widgets::IconKeys();
  for (std::size_t i = 0; i < keys.size(); ++i) {
    for (std::size_t j = i + 1; j < keys.size(); ++j) {
      EXPECT_GE(DifferingPixels(GreyOf(keys[i]), GreyOf(keys[j])), 4) << keys[i] << " and " << keys[j];
    }
  }
}

TEST(Icon, StaysReadableOnDarkAndOnASelectedRow) {
  GlyphIcons icons;
  const QIcon icon = icons.Of("ProcessOk");
  const QImage plain = icon.pixmap(QSize(16, 16), 1.0).toImage();
  const QImage selected = icon.pixmap(QSize(16, 16), 1.0, QIcon::Selected).toImage();
  EXPECT_GT(selected.pixelColor(8, 2).lightness(), plain.pixelColor(8, 2).lightness() + 60);
  EXPECT_GT(DrawIcon(*widgets::FindIcon("Process"), 16, {.dark = true, .base = {}}).pixelColor(8, 2).lightness(),
            plain.pixelColor(8, 2).lightness() + 40);
  EXPECT_EQ(icon.pixmap(QSize(16, 16), 2.0).toImage().size(), QSize(32, 32)) << "sharp at 200 %";
  EXPECT_TRUE(icons.Of("no such key").isNull());
}

}  // namespace
}  // namespace quorvel::qt
