// What the user does on the tree.
#include <algorithm>
#include <iterator>
#include <vector>

#include "windows/Input.h"
#include "windows/ItemLook.h"
#include "windows/TemporaryValue.h"
#include "windows/TreePane.h"

namespace quorvel::windows {

using widgets::NodeId;

namespace {

// Keys that go to another node, which the native tree knows best.
bool IsMove(WPARAM key) {
  constexpr WPARAM kMoves[] = {VK_UP, VK_DOWN, VK_PRIOR, VK_NEXT, VK_HOME, VK_END, VK_BACK};
  return std::ranges::find(kMoves, key) != std::end(kMoves);
}

}  // namespace

std::optional<LRESULT> TreePane::Hear(UINT message, WPARAM wParam, LPARAM lParam) {
  if (ConcernsContent(message)) CatchUp();
  switch (message) {
    case WM_DESTROY:
      Leave();
      return std::nullopt;
    case WM_LBUTTONDOWN:
      PressLeft(PointOf(lParam), false);
      return 0;
    case WM_LBUTTONDBLCLK:
      PressLeft(PointOf(lParam), true);
      return 0;
    case WM_RBUTTONDOWN:
    case WM_RBUTTONDBLCLK:
      // The owner selects what the button comes up over.
      SetFocus(window());
      return 0;
    case WM_RBUTTONUP:
      ReleaseRight(PointOf(lParam));
      return 0;
    case WM_CONTEXTMENU:
      if (lParam == -1) OpenMenuByKey();
      return 0;
    case WM_KEYDOWN:
      if (PressKey(wParam, lParam)) return 0;
      return std::nullopt;
    case WM_SYSKEYDOWN:
      // Not every version of the native tree leaves this key to the system, which would ask for the menu.
      if (wParam != VK_F10 || !IsDown(VK_SHIFT)) return std::nullopt;
      OpenMenuByKey();
      return 0;
    case WM_KEYUP:
      if (wParam != VK_APPS) return std::nullopt;
      OpenMenuByKey();
      return 0;
    case WM_CHAR:
      TypeLetter(static_cast<wchar_t>(wParam));
      return 0;
    case WM_SETFOCUS:
      return TakeFocus(wParam);
    case WM_ERASEBKGND:
      // Scroll bars that come and go would have the tree erased each time.
      return filling_ ? std::optional<LRESULT>(TRUE) : std::nullopt;
    case WM_SETFONT: {
      const LRESULT answer = ear_->Pass(message, wParam, lParam);
      DpiChanged();
      return answer;
    }
    case kClickNode:
      if (const auto node = static_cast<NodeId>(wParam); Known(node) != nullptr) Click(node);
      return 0;
    case kOpenNode:
      if (const auto node = static_cast<NodeId>(wParam); Known(node) != nullptr) Open(node, lParam != FALSE);
      return 0;
    default:
      return std::nullopt;
  }
}

// The native tree selects the first node when it gets the focus without having one selected, which nobody asked for.
LRESULT TreePane::TakeFocus(WPARAM from) {
  const TemporaryValue following(following_, true);
  const LRESULT answer = ear_->Pass(WM_SETFOCUS, from, 0);
  FollowSelection();
  return answer;
}

NodeId TreePane::NodeAt(POINT place, UINT* part) const {
  TVHITTESTINFO hit{};
  hit.pt = place;
  const auto item = TreeView_HitTest(window(), &hit);
  if (part != nullptr) *part = hit.flags;
  return NodeOf(item);
}

// Handled here alone: the native tree waits for the button to come up, in a loop of its own.
void TreePane::PressLeft(POINT place, bool twice) {
  SetFocus(window());
  UINT part = 0;
  const NodeId node = NodeAt(place, &part);
  if (node == NodeId::kNone) return;
  const bool button = (part & TVHT_ONITEMBUTTON) != 0;
  if (button || twice) return Open(node, !tree_.IsExpanded(node));
  Click(node);
}

void TreePane::ReleaseRight(POINT place) {
  const NodeId node = NodeAt(place);
  menuPlace_ = place;
  ClientToScreen(window(), &menuPlace_);
  if (gestures_.mouseUp) gestures_.mouseUp(MouseButton::kRight, node);
}

// On the node that is selected, which was clicked when it became so.
void TreePane::OpenMenuByKey() {
  menuPlace_ = {};
  if (const auto selected = TreeView_GetSelection(window()); selected != nullptr) {
    TreeView_EnsureVisible(window(), selected);
    RECT text{};
    RECT seen{};
    GetClientRect(window(), &seen);
    if (TreeView_GetItemRect(window(), selected, &text, TRUE) != FALSE) {
      menuPlace_ = {std::clamp(text.left, seen.left, seen.right), std::clamp(text.bottom, seen.top, seen.bottom)};
    }
  }
  ClientToScreen(window(), &menuPlace_);
  if (gestures_.mouseUp) gestures_.mouseUp(MouseButton::kRight, NodeId::kNone);
}

bool TreePane::PressKey(WPARAM key, LPARAM lParam) {
  if (IsDown(VK_CONTROL) || IsDown(VK_MENU)) return false;
  const NodeId node = tree_.Selected();
  switch (key) {
    case VK_LEFT:
      if (node != NodeId::kNone) CloseOrGoUp(node);
      return true;
    case VK_RIGHT:
      if (node != NodeId::kNone) OpenOrGoDown(node);
      return true;
    case VK_ADD:
    case VK_SUBTRACT:
    case VK_MULTIPLY:
      return true;  // they come as letters too
    default:
      if (!IsMove(key)) return false;
      MoveByKey(key, lParam);
      return true;
  }
}

void TreePane::CloseOrGoUp(NodeId node) {
  if (tree_.IsExpanded(node)) return Open(node, false);
  if (tree_.Parent(node) != NodeId::kNone) Click(tree_.Parent(node));
}

void TreePane::OpenOrGoDown(NodeId node) {
  if (!tree_.IsExpanded(node)) return Open(node, true);
  if (tree_.ChildCount(node) > 0) Click(tree_.Child(node, 0));
}

void TreePane::MoveByKey(WPARAM key, LPARAM lParam) {
  const auto before = TreeView_GetSelection(window());
  if (before == nullptr) {
    if (tree_.ChildCount(NodeId::kNone) > 0) Click(tree_.Child(NodeId::kNone, 0));
    return;
  }
  {
    const TemporaryValue gesture(inGesture_, true);
    ear_->Pass(WM_KEYDOWN, key, lParam);
  }
  const auto now = TreeView_GetSelection(window());
  if (now != before) Click(NodeOf(now));
}

void TreePane::TypeLetter(wchar_t unit) {
  const NodeId selected = tree_.Selected();
  if (selected != NodeId::kNone) {
    // Opens what there is: to load a whole history level by level is nothing that one key should start.
    if (unit == L'*') return OpenLoaded(selected);
    if (unit == L'+' || unit == L'-') return Open(selected, unit == L'+');
  }
  if (!typed_.Type(unit)) return;
  const NodeId node = typed_.typed().FindNode(tree_, selected);
  if (node != NodeId::kNone && node != selected) Click(node);
}

void TreePane::Click(NodeId node) {
  if (node == NodeId::kNone) return;
  gestures_.click(node);
  FollowSelection();
}

// The owner may refuse, or rebuild the tree.
void TreePane::Open(NodeId node, bool open) {
  if (open == tree_.IsExpanded(node) || (open && !tree_.IsExpandable(node))) return;
  (open ? gestures_.expand : gestures_.collapse)(node);
}

void TreePane::OpenLoaded(NodeId top) {
  std::vector<NodeId> toOpen{top};
  while (!toOpen.empty()) {
    const NodeId node = toOpen.back();
    toOpen.pop_back();
    if (ItemOf(node) != nullptr) Open(node, true);
    if (ItemOf(node) == nullptr || !tree_.IsExpanded(node)) continue;
    for (const NodeId child : tree_.Children(node)) {
      if (tree_.ChildCount(child) > 0) toOpen.push_back(child);
    }
  }
}

}  // namespace quorvel::windows
