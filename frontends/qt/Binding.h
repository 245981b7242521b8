// Keeps a widget of Qt like the control that it draws.
#pragma once

#include <QWidget>
#include <functional>
#include <utility>

#include "widgets/Control.h"

namespace quorvel::qt {

// Place, visibility, enabledness and tool tip are drawn for every control, `content` draws the rest. Signals of the
// widget are held back meanwhile: what the control says is no gesture.
class Binding final : public widgets::ControlObserver {
 public:
  // Draws at once. Both must outlive the binding.
  Binding(widgets::Control& control, QWidget& widget, std::function<void()> content = {});
  ~Binding() override { control_.Observe(nullptr); }
  Binding(const Binding&) = delete;
  Binding& operator=(const Binding&) = delete;

  void ControlChanged(widgets::Control& control) override;

 private:
  void Draw();

  widgets::Control& control_;
  QWidget& widget_;
  std::function<void()> content_;
};

}  // namespace quorvel::qt
