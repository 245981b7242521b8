#include "console/Appearance.h"

#include <QApplication>
#include <QPalette>
#include <QStyle>
#include <QStyleFactory>

namespace quorvel::console {
namespace {

struct RoleColour {
  QPalette::ColorRole role;
  QRgb colour;
};

constexpr RoleColour kDark[] = {
    {QPalette::Window, 0x33363B},      {QPalette::WindowText, 0xE6E8EB},
    {QPalette::Base, 0x1B1C1F},        {QPalette::AlternateBase, 0x232529},
    {QPalette::ToolTipBase, 0x3A3D43}, {QPalette::ToolTipText, 0xE6E8EB},
    {QPalette::Text, 0xE6E8EB},        {QPalette::Button, 0x43474E},
    {QPalette::ButtonText, 0xE6E8EB},  {QPalette::BrightText, 0xFFFFFF},
    {QPalette::Highlight, 0x2F6FB5},   {QPalette::HighlightedText, 0xFFFFFF},
    {QPalette::Link, 0x6FB1F5},        {QPalette::PlaceholderText, 0x8B9199},
    {QPalette::Light, 0x4A4E55},       {QPalette::Midlight, 0x41454B},
    {QPalette::Mid, 0x26282B},         {QPalette::Dark, 0x1A1B1E},
    {QPalette::Shadow, 0x0E0F10},
};
constexpr RoleColour kDarkDisabled[] = {
    {QPalette::WindowText, 0x7B8089},      {QPalette::Text, 0x7B8089},
    {QPalette::ButtonText, 0x7B8089},      {QPalette::Highlight, 0x44474D},
    {QPalette::HighlightedText, 0xA0A4AA},
};

QPalette DarkPalette() {
  QPalette palette;
  for (const RoleColour& each : kDark) palette.setColor(each.role, QColor::fromRgb(each.colour));
  for (const RoleColour& each : kDarkDisabled) {
    palette.setColor(QPalette::Disabled, each.role, QColor::fromRgb(each.colour));
  }
  return palette;
}

}  // namespace

void SetAppearance(bool dark) {
  QApplication::setStyle(QStyleFactory::create("Fusion"));
  QApplication::setPalette(dark ? DarkPalette() : QApplication::style()->standardPalette());
}

}  // namespace quorvel::console
