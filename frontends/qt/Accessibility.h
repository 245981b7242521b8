// What screen readers learn that the widgets do not say themselves.
#pragma once

#include <QWidget>
#include <span>

namespace quorvel::qt {

// Makes the roles known that Qt has no widgets for; any number of times.
void OfferAccessibleRoles();

// The name of a widget that has no label before it and no caption of its own.
struct SpokenName {
  const char* widget;
  const char* name;
};

// Gives these widgets inside `parent`, which must be there, their names.
void NameWidgets(const QWidget& parent, std::span<const SpokenName> names);

}  // namespace quorvel::qt
