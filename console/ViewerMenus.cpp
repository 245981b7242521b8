#include "console/ViewerMenus.h"

#include <QAction>
#include <QKeySequence>
#include <QMenu>

#include "control/Menus.h"
#include "qt/Convert.h"
#include "qt/Guard.h"

namespace quorvel::console {
namespace {

// Keys that the list itself understands. The menu only says so: text fields keep theirs.
QKeySequence KeyOf(std::int32_t command) {
  switch (MenuCommand{command}) {
    case MenuCommand::kCopy:
      return QKeySequence::Copy;
    case MenuCommand::kSelectAll:
      return QKeySequence::SelectAll;
    default:
      return {};
  }
}

}  // namespace

ViewerMenus::ViewerMenus(qt::ProcessLogWidget& viewer, QMenu& ofList, QMenu& ofTree)
    : viewer_(viewer), subscription_(viewer, *this) {
  const ProcessLogControls& controls = viewer.control().controls();
  Append(controls.mnu_Popup, ofList);
  Append(controls.mnu_PopupTV, ofTree);
  Follow();
}

void ViewerMenus::Append(const widgets::Menu& model, QMenu& menu) {
  for (std::size_t index = 0; index < model.entries().size(); ++index) {
    const widgets::MenuEntry& entry = model.entries()[index];
    const bool separator = entry.caption == "-";
    QAction* const action = separator ? menu.addSeparator() : menu.addAction(qt::ToQt(entry.caption));
    action->setObjectName(qt::ToQt(entry.name));
    action->setShortcut(KeyOf(entry.command));
    action->setShortcutContext(Qt::WidgetShortcut);
    QObject::connect(action, &QAction::triggered, &viewer_, [this, command = entry.command](bool) { Run(command); });
    entries_.push_back({&model, index, action});
  }
  // Where entries are hidden, separators meet; Qt draws one of them, and none at the ends.
  menu.setSeparatorsCollapsible(true);
  QObject::connect(&menu, &QMenu::aboutToShow, &viewer_, [this] { Follow(); });
}

void ViewerMenus::Follow() {
  for (const Entry& each : entries_) {
    const widgets::MenuEntry& entry = each.model->entries()[each.index];
    each.action->setVisible(entry.visible);
    each.action->setEnabled(entry.enabled);
  }
}

void ViewerMenus::Run(std::int32_t command) {
  qt::Guarded([&] { viewer_.control().m_MenuCall(command); });
}

}  // namespace quorvel::console
