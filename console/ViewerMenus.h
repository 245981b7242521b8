// The commands of a viewer as entries of the window's own menus.
#pragma once

#include <cstddef>
#include <vector>

#include "console/Subscription.h"
#include "control/HostEvents.h"
#include "qt/ProcessLogWidget.h"
#include "widgets/Menu.h"

class QAction;
class QMenu;

namespace quorvel::console {

// The entries are shown and enabled as those of the viewer's popup menus: whenever the viewer says that they may have
// changed, and when a menu comes up.
class ViewerMenus final : public HostEvents {
 public:
  // Appends the entries of the list's popup to `ofList`, those of the tree's to `ofTree`. The viewer may go before
  // this object; while it and the menus are there, this object must be there too.
  ViewerMenus(qt::ProcessLogWidget& viewer, QMenu& ofList, QMenu& ofTree);

  void MajMenu() override { Follow(); }

 private:
  struct Entry {
    const widgets::Menu* model;
    std::size_t index;
    QAction* action;
  };

  void Append(const widgets::Menu& model, QMenu& menu);
  void Follow();
  void Run(std::int32_t command);

  qt::ProcessLogWidget& viewer_;
  std::vector<Entry> entries_;
  Subscription subscription_;
};

}  // namespace quorvel::console
