// Puts a popup menu of the viewer up as a menu of Qt.
#pragma once

#include <QPoint>
#include <cstdint>
#include <functional>

#include "widgets/Menu.h"

class QMenu;
class QWidget;

namespace quorvel::qt {

// The menu of Qt carries the name of the model's, its actions those of the entries. It is up while the model is open,
// and lets everything else go on meanwhile.
class PopupMenu final : public widgets::ControlObserver {
 public:
  // `place`: where on the screen to put it up now. `picked`: the command of the entry that was chosen, after the menu
  // went away. The model must outlive the popup; `parent` owns the menu of Qt.
  PopupMenu(widgets::Menu& model, QWidget& parent, std::function<QPoint()> place,
            std::function<void(std::int32_t)> picked);
  ~PopupMenu() override { model_.Observe(nullptr); }
  PopupMenu(const PopupMenu&) = delete;
  PopupMenu& operator=(const PopupMenu&) = delete;

  void ControlChanged(widgets::Control& control) override;

 private:
  void DrawEntries();
  void FollowOpen();

  widgets::Menu& model_;
  QMenu* menu_;
  std::function<QPoint()> place_;
  std::function<void(std::int32_t)> picked_;
  bool up_ = false;
};

}  // namespace quorvel::qt
