// Colour and weight of items and what is said of them, as the models of tree and list answer them to Qt.
#pragma once

#include <QFont>
#include <QGuiApplication>
#include <QPalette>
#include <QVariant>
#include <string_view>

#include "qt/Convert.h"
#include "qt/ItemDelegate.h"
#include "widgets/IconWords.h"
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

// What a screen reader says of an item: its text, as much of it as is ever painted, and what its icon shows.
inline QString SpokenText(std::string_view text, std::string_view icon) {
  const QString spoken = ToQt(text.substr(0, kPaintedBytes));
  const QString words = ToQt(widgets::IconWords(icon));
  return spoken.isEmpty() || words.isEmpty() ? spoken + words : spoken + QStringLiteral(", ") + words;
}

}  // namespace quorvel::qt
