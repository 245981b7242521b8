// A strip of tabs, one of them current. Whoever asks what a tab means asks for its caption.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "widgets/Control.h"

namespace quorvel::widgets {

struct Tab {
  std::string caption;
  bool visible = true;
  bool enabled = true;
  friend bool operator==(const Tab&, const Tab&) = default;
};

// Tabs are counted from 0; a tab that does not exist is error 9.
class TabStrip : public Control {
 public:
  using Control::Control;

  const std::vector<Tab>& tabs() const { return tabs_; }
  // Replaces all tabs; the first becomes current.
  void SetTabs(std::vector<Tab> tabs);

  std::size_t current() const { return current_; }
  void SetCurrent(std::size_t tab);
  // "" while there are no tabs.
  std::string_view currentCaption() const;

  void SetCaption(std::size_t tab, std::string_view caption);
  void SetTabVisible(std::size_t tab, bool visible);
  void SetTabEnabled(std::size_t tab, bool enabled);

 private:
  Tab& At(std::size_t tab);

  std::vector<Tab> tabs_;
  std::size_t current_ = 0;
};

}  // namespace quorvel::widgets
