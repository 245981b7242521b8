#include "qt/PopupMenu.h"

#include <QAction>
#include <QMenu>
#include <utility>

#include "qt/Convert.h"
#include "qt/Guard.h"

namespace quorvel::qt {

PopupMenu::PopupMenu(widgets::Menu& model, QWidget& parent, std::function<QPoint()> place,
                     std::function<void(std::int32_t)> picked)
    : model_(model), menu_(new QMenu(&parent)), place_(std::move(place)), picked_(std::move(picked)) {
  menu_->setObjectName(ToQt(model.name()));
  menu_->setAccessibleName(parent.accessibleName());
  for (const widgets::MenuEntry& entry : model.entries()) {
    const bool separator = entry.command == 0;
    QAction* const action = separator ? menu_->addSeparator() : menu_->addAction(ToQt(entry.caption));
    action->setObjectName(ToQt(entry.name));
    action->setData(entry.command);
  }
  QObject::connect(menu_, &QMenu::aboutToHide, menu_, [this] {
    up_ = false;
    Guarded([&] { model_.Close(); });
  });
  QObject::connect(menu_, &QMenu::triggered, menu_,
                   [this](QAction* action) { Guarded([&] { picked_(action->data().toInt()); }); });
  DrawEntries();
  model_.Observe(this);
}

void PopupMenu::ControlChanged(widgets::Control& /*control*/) {
  Guarded([&] {
    DrawEntries();
    FollowOpen();
  });
}

void PopupMenu::DrawEntries() {
  const QList<QAction*> actions = menu_->actions();
  for (std::size_t i = 0; i < model_.entries().size(); ++i) {
    const widgets::MenuEntry& entry = model_.entries()[i];
    QAction& action = *actions.at(static_cast<qsizetype>(i));
    action.setVisible(entry.visible);
    action.setEnabled(entry.enabled);
  }
}

void PopupMenu::FollowOpen() {
  if (model_.open() == up_) return;
  up_ = model_.open();
  if (up_) {
    menu_->popup(place_());
  } else {
    menu_->hide();
  }
}

}  // namespace quorvel::qt
