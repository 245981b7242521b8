// Keeps a window of Windows like the control that it draws.
#pragma once

#include <windows.h>

#include <functional>

#include "widgets/Control.h"

namespace quorvel::windows {

class Surface;

// How a window fills the place of its control.
enum class Fit {
  kFill,
  kField,      // as high as fields are on this desktop, in the middle of the place
  kDropField,  // the same, with room below for the list that drops down
};

// Place, visibility, enabledness and tool tip are drawn for every control, `content` draws the rest. Notifications of
// the window are held back meanwhile: what the control says is no gesture.
class Binding final : public widgets::ControlObserver {
 public:
  // Draws at once. All must outlive the binding.
  Binding(widgets::Control& control, HWND window, Surface& surface, std::function<void()> content, Fit fit);
  ~Binding() override { control_.Observe(nullptr); }
  Binding(const Binding&) = delete;
  Binding& operator=(const Binding&) = delete;

  const widgets::Control& control() const { return control_; }
  HWND window() const { return window_; }

  void ControlChanged(widgets::Control& control) override;
  // The surface has another resolution.
  void SetFont();

 private:
  void Draw();
  RECT PlaceOfWindow() const;

  widgets::Control& control_;
  HWND window_;
  Surface& surface_;
  std::function<void()> content_;
  Fit fit_;
  RECT place_{};
  bool visible_ = false;
};

}  // namespace quorvel::windows
