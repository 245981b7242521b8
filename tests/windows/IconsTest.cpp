// Icons in the image list of Windows, and how their pixels are.
#include "windows/Icons.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <string_view>
#include <vector>

namespace quorvel::windows {
namespace {

std::vector<std::uint32_t> PixelsOf(std::string_view key, const IconForm& form, const IconInk& ink = {}) {
  const UniqueBitmap bitmap = DrawIcon(*widgets::FindIcon(key), form, ink);
  DIBSECTION section{};
  GetObjectW(bitmap.get(), sizeof(section), &section);
  GdiFlush();
  const auto* const bits = static_cast<const std::uint32_t*>(section.dsBm.bmBits);
  return {bits, bits + section.dsBm.bmWidth * section.dsBm.bmHeight};
}

TEST(WindowsIcons, KeepTheirNumbersWhenTheyAreDrawnAnew) {
  Icons icons(Scale(96), Icons::Place::kBesideText);
  const HIMAGELIST list = icons.list();
  const int process = icons.IndexOf("ProcessOk");
  const int station = icons.IndexOf("User_Ok");
  EXPECT_NE(process, station);
  EXPECT_NE(icons.OnHighlight("ProcessOk"), process) << "drawn in other colours";
  EXPECT_EQ(icons.IndexOf("no such key"), I_IMAGENONE);
  icons.Redraw(Scale(192));
  EXPECT_EQ(icons.list(), list);
  EXPECT_EQ(icons.IndexOf("ProcessOk"), process);
  EXPECT_EQ(icons.IndexOf("User_Ok"), station);
  EXPECT_EQ(ImageList_GetImageCount(list), 3);
  int width = 0;
  int height = 0;
  ImageList_GetIconSize(list, &width, &height);
  EXPECT_EQ(height, 32);
  EXPECT_EQ(icons.pixels(), 32);
  EXPECT_GT(width, 32);
}

TEST(WindowsIcons, AreTransparentAroundThePictureAndWhereABadgeCutsIt) {
  const auto pixels = PixelsOf("User_NoOk", {.pixels = 64});
  const auto at = [&](std::size_t x, std::size_t y) { return pixels[y * 64 + x]; };
  EXPECT_EQ(at(0, 63), 0U);
  EXPECT_NE(at(46, 20), 0U);
  EXPECT_EQ(at(46, 26), 0U) << "between the screen and the badge in its corner";
  EXPECT_EQ(at(46, 32), 0xFF000000U | widgets::IconRgb(widgets::IconColour::kError, false));
  for (const std::uint32_t pixel : pixels) {
    ASSERT_LE(pixel & 0xFF, pixel >> 24) << "colours are multiplied by their opacity";
  }
}

TEST(WindowsIcons, AreDrawnForTheirBackground) {
  const auto brightest = [](const std::vector<std::uint32_t>& pixels) {
    std::uint32_t most = 0;
    for (const std::uint32_t pixel : pixels) most = std::max(most, pixel & 0xFF);
    return most;
  };
  const IconForm form{.pixels = 16, .airAtRight = 4, .colours = BitmapColours::kStraight};
  const auto onLight = PixelsOf("Process", form);
  EXPECT_EQ(onLight.size(), 20U * 16U);
  EXPECT_LT(brightest(onLight), brightest(PixelsOf("Process", form, {.dark = true})));
  const auto white = PixelsOf("Process", form, {.dark = false, .base = 0xFFFFFF});
  for (const std::uint32_t pixel : white) ASSERT_TRUE(pixel == 0 || (pixel & 0xFFFFFF) == 0xFFFFFF) << pixel;
}

}  // namespace
}  // namespace quorvel::windows
