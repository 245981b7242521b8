#include "windows/Binding.h"

#include <utility>

#include "windows/Guard.h"
#include "windows/Surface.h"

namespace quorvel::windows {
namespace {

constexpr int kListRows = 12;

// Holds the notifications of a window back, inside another one's too.
class Drawing {
 public:
  Drawing(Notices& notices, HWND window) : notices_(notices), before_(notices.drawn()) { notices_.SetDrawn(window); }
  ~Drawing() { notices_.SetDrawn(before_); }
  Drawing(const Drawing&) = delete;
  Drawing& operator=(const Drawing&) = delete;

 private:
  Notices& notices_;
  HWND before_;
};

}  // namespace

Binding::Binding(widgets::Control& control, HWND window, Surface& surface, std::function<void()> content, Fit fit)
    : control_(control), window_(window), surface_(surface), content_(std::move(content)), fit_(fit) {
  control_.Observe(this);
  SetFont();
}

void Binding::ControlChanged(widgets::Control& /*control*/) {
  Guarded([&] { Draw(); });
}

void Binding::SetFont() {
  SendMessageW(window_, WM_SETFONT, reinterpret_cast<WPARAM>(surface_.fonts().regular()), TRUE);
  Draw();
}

RECT Binding::PlaceOfWindow() const {
  RECT place = surface_.scale().ToPixels(control_.bounds());
  if (fit_ == Fit::kFill) return place;
  const int height = FieldHeight(surface_.fonts());
  place.top += (place.bottom - place.top - height) / 2;
  place.bottom = place.top + height;
  return place;
}

void Binding::Draw() {
  const Drawing quiet(surface_.notices(), window_);
  const RECT place = PlaceOfWindow();
  // What has no place yet is not to be seen.
  const bool visible = control_.visible() && IsRectEmpty(&place) == FALSE;
  if (!visible || !control_.enabled()) surface_.LeaveFocus(window_);
  if ((IsWindowEnabled(window_) != FALSE) != control_.enabled()) EnableWindow(window_, control_.enabled());
  surface_.toolTips().Set(window_, ToWide(control_.toolTip()));
  if (content_) content_();
  if (EqualRect(&place, &place_) != FALSE && visible == visible_) return;
  place_ = place;
  visible_ = visible;
  RECT outer = place;
  if (fit_ == Fit::kDropField) outer.bottom += kListRows * (surface_.fonts().lineHeight() + surface_.scale().Of96(2));
  surface_.Place(window_, outer, visible);
}

}  // namespace quorvel::windows
