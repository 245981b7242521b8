// Colour and weight of items, as the models of tree and list answer them to Qt.
#pragma once

#include <QFont>
#include <QGuiApplication>
#include <QPalette>
#include <QVariant>

#include "widgets/TreeView.h"

namespace quorvel::qt {

// The colour of an item's text, invalid = the view's own.
inline QVariant ForegroundOf(widgets::SystemColour colour) {
  if (colour != widgets::SystemColour::kGrayText) return {};
  return QGuiApplication::palette().brush(QPalette::Disabled, QPalette::Text);
}

// A font that differs from the view's only in its weight, invalid = the view's own.
inline QVariant FontOf(bool bold) {
  if (!bold) return {};
  QFont font;
  font.setBold(true);
  return font;
}

}  // namespace quorvel::qt
