// The commands of a viewer as entries of the window's own menus.
#pragma once

#include <windows.h>

#include <cstdint>
#include <vector>

#include "control/HostEvents.h"
#include "control/ucProcessLog.h"
#include "widgets/Menu.h"

namespace quorvel::console {

// The entries are those of the viewer's popup menus, as these show and enable them: whenever the viewer says that they
// may have changed, and when a menu comes up.
class ViewerMenus final : public HostEvents {
 public:
  // The entries of the list's popup make up `ofList`; those of the tree's follow what `ofTree` holds already. All must
  // outlive this object.
  ViewerMenus(ucProcessLog& control, HMENU ofList, HMENU ofTree);
  ~ViewerMenus() override;
  ViewerMenus(const ViewerMenus&) = delete;
  ViewerMenus& operator=(const ViewerMenus&) = delete;

  void MajMenu() override;
  void Follow();

  // Runs the command behind the number of an entry; false for the number of another menu's entry.
  bool Run(UINT id);

 private:
  struct Part {
    const widgets::Menu* model;
    HMENU menu;
    int first;  // position of its first entry
    std::vector<widgets::MenuEntry> shown = {};
  };

  static void Follow(Part& part);

  ucProcessLog& control_;
  std::vector<Part> parts_;
};

}  // namespace quorvel::console
