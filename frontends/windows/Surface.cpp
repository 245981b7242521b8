#include "windows/Surface.h"

#include <algorithm>
#include <utility>

#include "platform/Error.h"
#include "windows/Window.h"

namespace quorvel::windows {
namespace {

constexpr int kTipWidth = 480;  // at 96 dots per inch

// Above and below the line of text in a field, at any resolution: native fields draw it near their upper edge.
constexpr int kFieldMargin = 4;

UINT MoveFlags(bool visible) {
  return SWP_NOZORDER | SWP_NOACTIVATE | static_cast<UINT>(visible ? SWP_SHOWWINDOW : SWP_HIDEWINDOW);
}

}  // namespace

int FieldHeight(const Fonts& fonts) {
  return fonts.lineHeight() + 2 * kFieldMargin;
}

Surface::Surface(HWND window) : scale_(ScaleOf(window)), fonts_(scale_.dotsPerInch()), toolTips_(window) {
  toolTips_.SetFont(fonts_.regular());
  toolTips_.SetWidth(scale_.Of96(kTipWidth));
}

void Surface::SetScale(Scale scale) {
  const Batch together(*this);
  scale_ = scale;
  const Fonts before = std::exchange(fonts_, Fonts(scale.dotsPerInch()));
  toolTips_.SetFont(fonts_.regular());
  toolTips_.SetWidth(scale_.Of96(kTipWidth));
  for (const auto& binding : bindings_) binding->SetFont();
}

HWND Surface::Make(widgets::Control& model, const wchar_t* nativeClass, DWORD styles, HWND parent,
                   std::function<void(HWND)> content, Fit fit, DWORD extended) {
  const HWND made = CreateWindowExW(extended, nativeClass, L"", styles | WS_CHILD | WS_CLIPSIBLINGS, 0, 0, 0, 0, parent,
                                    nullptr, Module(), nullptr);
  if (made == nullptr) throw Error(SystemError::kOutOfMemory, "No window for " + model.name());
  auto draw = [content = std::move(content), made] {
    if (content) content(made);
  };
  Bind(model, made, std::move(draw), fit);
  return made;
}

void Surface::Bind(widgets::Control& model, HWND window, std::function<void()> content, Fit fit) {
  bindings_.push_back(std::make_unique<Binding>(model, window, *this, std::move(content), fit));
}

HWND Surface::WindowOf(const widgets::Control& control) const {
  const auto found =
      std::ranges::find_if(bindings_, [&](const auto& binding) { return &binding->control() == &control; });
  return found == bindings_.end() ? nullptr : (*found)->window();
}

void Surface::LeaveFocus(HWND window) const {
  const HWND focus = GetFocus();
  if (leave_ && focus != nullptr && (focus == window || IsChild(window, focus) != FALSE)) leave_(window);
}

void Surface::Place(HWND window, const RECT& place, bool visible) {
  if (batches_ == 0) {
    SetWindowPos(window, nullptr, place.left, place.top, place.right - place.left, place.bottom - place.top,
                 MoveFlags(visible));
    return;
  }
  const auto known = std::ranges::find(moves_, window, &Move::window);
  const Move move{window, GetParent(window), place, visible};
  if (known == moves_.end()) {
    moves_.push_back(move);
  } else {
    *known = move;
  }
}

// Windows of one parent move together, in the order in which the parents were first heard of.
bool Surface::MovedTogether(std::span<const Move> moves) noexcept {
  HDWP together = BeginDeferWindowPos(static_cast<int>(moves.size()));
  for (const Move& move : moves) {
    if (together == nullptr) return false;
    const RECT& place = move.place;
    together = DeferWindowPos(together, move.window, nullptr, place.left, place.top, place.right - place.left,
                              place.bottom - place.top, MoveFlags(move.visible));
  }
  return together != nullptr && EndDeferWindowPos(together) != FALSE;
}

void Surface::MoveOneByOne(std::span<const Move> moves) noexcept {
  for (const Move& move : moves) {
    const RECT& place = move.place;
    SetWindowPos(move.window, nullptr, place.left, place.top, place.right - place.left, place.bottom - place.top,
                 MoveFlags(move.visible));
  }
}

void Surface::MoveAll() noexcept {
  auto moves = std::exchange(moves_, {});
  while (!moves.empty()) {
    const HWND parent = moves.front().parent;
    const auto others =
        std::stable_partition(moves.begin(), moves.end(), [&](const Move& move) { return move.parent == parent; });
    const std::span together(moves.begin(), others);
    if (!MovedTogether(together)) MoveOneByOne(together);
    moves.erase(moves.begin(), others);
  }
}

}  // namespace quorvel::windows
