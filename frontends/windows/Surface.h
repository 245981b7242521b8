// What the controls of one window share: resolution, fonts, tool tips, and the way in which they are placed.
#pragma once

#include <windows.h>

#include <functional>
#include <memory>
#include <span>
#include <string_view>
#include <vector>

#include "widgets/Control.h"
#include "windows/Binding.h"
#include "windows/Convert.h"
#include "windows/Fonts.h"
#include "windows/Notices.h"
#include "windows/ToolTips.h"

namespace quorvel::windows {

// As high as fields are on this desktop, in pixels.
int FieldHeight(const Fonts& fonts);

class Surface {
 public:
  // For the controls inside `window`.
  explicit Surface(HWND window);
  ~Surface() = default;
  Surface(const Surface&) = delete;
  Surface& operator=(const Surface&) = delete;

  const Scale& scale() const { return scale_; }
  const Fonts& fonts() const { return fonts_; }
  ToolTips& toolTips() { return toolTips_; }
  Notices& notices() { return notices_; }

  // Draws everything for another resolution, or for other settings of the desktop.
  void SetScale(Scale scale);
  // Draws nothing any more: the window ends.
  void Clear() { bindings_.clear(); }

  // A native control that is kept like its model. `styles` beside WS_CHILD and WS_CLIPSIBLINGS, which all get.
  HWND Make(widgets::Control& model, const wchar_t* nativeClass, DWORD styles, HWND parent,
            std::function<void(HWND)> content = {}, Fit fit = Fit::kFill, DWORD extended = 0);
  // The same for a window that is there already.
  void Bind(widgets::Control& model, HWND window, std::function<void()> content = {}, Fit fit = Fit::kFill);
  // Null where no window draws the control.
  HWND WindowOf(const widgets::Control& control) const;

  // Called with a window that is about to be hidden or disabled while it has the focus.
  void OnFocusLost(std::function<void(HWND)> leave) { leave_ = std::move(leave); }
  void LeaveFocus(HWND window) const;

  // Places a window within its parent, shown or hidden; at the end of a batch where there is one.
  void Place(HWND window, const RECT& place, bool visible);
  // As long as it lives, places are collected; then all windows move together.
  class Batch {
   public:
    explicit Batch(Surface& surface) : surface_(surface) { ++surface_.batches_; }
    ~Batch() {
      if (--surface_.batches_ == 0) surface_.MoveAll();
    }
    Batch(const Batch&) = delete;
    Batch& operator=(const Batch&) = delete;

   private:
    Surface& surface_;
  };

 private:
  struct Move {
    HWND window;
    HWND parent;
    RECT place;
    bool visible;
  };
  void MoveAll() noexcept;
  // False where one of them cannot move, and so none did.
  static bool MovedTogether(std::span<const Move> moves) noexcept;
  static void MoveOneByOne(std::span<const Move> moves) noexcept;

  Scale scale_;
  Fonts fonts_;
  ToolTips toolTips_;
  Notices notices_;
  std::function<void(HWND)> leave_;
  std::vector<std::unique_ptr<Binding>> bindings_;
  int batches_ = 0;
  std::vector<Move> moves_;
};

}  // namespace quorvel::windows
