#include "qt/Accessibility.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <optional>

#include "qt/Parts.h"

namespace quorvel::qt {
namespace {

std::optional<QAccessible::Role> RoleOf(const QObject& object) {
  if (dynamic_cast<const Group*>(&object) != nullptr) return QAccessible::Grouping;
  if (dynamic_cast<const SplitterGrip*>(&object) != nullptr) return QAccessible::Splitter;
  return std::nullopt;
}

// Qt asks for every class that an object is of, and keeps what it is given.
QAccessibleInterface* MakeInterface(const QString& /*className*/, QObject* object) {
  const auto role = object == nullptr ? std::nullopt : RoleOf(*object);
  return role ? new QAccessibleWidget(static_cast<QWidget*>(object), *role) : nullptr;
}

}  // namespace

void OfferAccessibleRoles() {
  QAccessible::installFactory(MakeInterface);
}

void NameWidgets(const QWidget& parent, std::span<const SpokenName> names) {
  for (const SpokenName& each : names) {
    parent.findChild<QWidget*>(QLatin1String(each.widget))->setAccessibleName(QLatin1String(each.name));
  }
}

}  // namespace quorvel::qt
