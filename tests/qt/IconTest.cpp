// Every icon key has a picture that can be told from the others without its colour.
#include <gtest/gtest.h>

#include <QPainter>
#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

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

TEST(Icon, NoTwoLookAlikeInGrey) {
  const auto keys = widgets::IconKeys();
  std::vector<QImage> pictures;
  for (const std::string& key : keys) pictures.push_back(GreyOf(key));
  for (std::size_t i = 0; i < keys.size(); ++i) {
    for (std::size_t j = i + 1; j < keys.size(); ++j) {
      EXPECT_GE(DifferingPixels(pictures[i], pictures[j]), 8) << keys[i] << " and " << keys[j];
    }
  }
}

int Darkest(const QImage& grey) {
  int darkest = 255;
  for (int y = 0; y < grey.height(); ++y) {
    for (int x = 0; x < grey.width(); ++x) darkest = std::min(darkest, qGray(grey.pixel(x, y)));
  }
  return darkest;
}

TEST(Icon, OfATaskThatWasNotExecutedIsQuieterThanOfOneThatWas) {
  constexpr std::string_view kSuffix = "NotExec";
  int checked = 0;
  for (const std::string& key : widgets::IconKeys()) {
    const std::size_t suffix = key.find(kSuffix);
    if (suffix == std::string::npos) continue;
    const std::string executed = std::string(key).erase(suffix, kSuffix.size());
    EXPECT_GT(Darkest(GreyOf(key)), Darkest(GreyOf(executed)) + 30) << key;
    ++checked;
  }
  EXPECT_EQ(checked, 54);
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

TEST(Icon, OnASelectedRowKeepsBadgesInColoursOfTheirOwnOnAPlate) {
  const auto drawn = [](std::string_view key) {
    return DrawIcon(*widgets::FindIcon(key), 32, {.dark = false, .base = QColor(Qt::white)});
  };
  EXPECT_EQ(drawn("ProcessOk").pixelColor(16, 23).rgb(),
            0xFF000000 | widgets::IconRgb(widgets::IconColour::kOk, false));
  EXPECT_EQ(drawn("TelecolNotExec").pixelColor(2, 25).rgb(),
            0xFF000000 | widgets::IconRgb(widgets::IconColour::kNone, false));
  EXPECT_EQ(drawn("ProcessStation").pixelColor(22, 31).rgb(), QColor(Qt::white).rgb()) << "a mark in the base's colour";
}

}  // namespace
}  // namespace quorvel::qt
