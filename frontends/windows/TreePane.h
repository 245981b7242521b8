// Draws a tree view as the native one and turns gestures on it into the three things that its owner handles.
#pragma once

#include <windows.h>

#include <commctrl.h>

#include <cstddef>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "control/Gestures.h"
#include "widgets/TreeView.h"
#include "windows/Ear.h"
#include "windows/Handles.h"
#include "windows/Icons.h"
#include "windows/TypedLetters.h"

namespace quorvel::windows {

// Which nodes are open and which is selected is the tree's to say; what is seen follows it. The native tree knows the
// children of nodes that are or were open, each by its NodeId alone: texts and icons are asked for when they are drawn.
// A tree that is new as a whole is taken over when somebody looks: a request may empty and fill it several times.
//
// Its parent passes WM_NOTIFY of it on to `Notify`, and gives it its place, visibility and font as to any control.
class TreePane final : public widgets::TreeObserver {
 public:
  // `tree` and `icons` must outlive the pane.
  TreePane(widgets::TreeView& tree, TreeGestures gestures, HWND parent, Icons& icons);
  ~TreePane() override;
  TreePane(const TreePane&) = delete;
  TreePane& operator=(const TreePane&) = delete;

  // The native tree view.
  HWND window() const { return window_.get(); }
  LRESULT Notify(NMHDR& header);
  // Where on the screen the menu belongs that was asked for last.
  POINT menuPlace() const { return menuPlace_; }
  // After the icons were redrawn for another scale, or the font or the colours of the system changed.
  void DpiChanged();

  // The native item of a node, null while no item stands for it.
  HTREEITEM ItemOf(widgets::NodeId node);
  // kNone for null.
  widgets::NodeId NodeOf(HTREEITEM item) const;

  void TreeReset() override;
  void NodesInserted(widgets::NodeId parent, std::size_t first, std::size_t count) override;
  void ChildrenRemoved(widgets::NodeId parent, std::span<const widgets::NodeId> children) override;
  void NodesChanged(std::span<const widgets::NodeId> nodes) override;
  void NodeExpansionChanged(widgets::NodeId node) override;
  void TreeSelectionChanged() override;
  void TreeScrolled(widgets::NodeId top) override;
  widgets::NodeId TopNode() const override;
  bool SeesNode(widgets::NodeId node) override;

 private:
  // Posted to the native tree itself, for what a program has done to it, such as a screen reader: nodes must not come
  // and go under the hands of the control that is just telling of one.
  static constexpr UINT kClickNode = WM_APP + 1;
  static constexpr UINT kOpenNode = WM_APP + 2;

  // The window ends: the tree is not heard any more.
  void Leave();

  // What the tree says.
  void CatchUp();
  HTREEITEM Known(widgets::NodeId node) const;
  void InsertChildren(widgets::NodeId parent, std::size_t first, std::size_t count);
  HTREEITEM InsertItem(HTREEITEM parent, HTREEITEM before, widgets::NodeId node);
  void ChangeItem(widgets::NodeId node);
  void Forget(HTREEITEM parent);
  void FollowExpansion(widgets::NodeId node);
  void FollowOpen(std::span<const widgets::NodeId> nodes);
  void FollowSelection();
  bool IsShown(widgets::NodeId node) const;
  bool IsBelow(widgets::NodeId node, widgets::NodeId above) const;

  // What the native tree asks and tells.
  bool IsGone(widgets::NodeId node) const;
  void Describe(TVITEMW& item);
  int ImageOf(std::string_view key, std::string_view otherwise);
  LRESULT Draw(NMTVCUSTOMDRAW& draw);
  bool RefuseExpansion(const NMTREEVIEWW& change);
  void SelectedFromOutside(const NMTREEVIEWW& change);

  // What the user did.
  std::optional<LRESULT> Hear(UINT message, WPARAM wParam, LPARAM lParam);
  LRESULT TakeFocus(WPARAM from);
  widgets::NodeId NodeAt(POINT place, UINT* part = nullptr) const;
  void PressLeft(POINT place, bool twice);
  void ReleaseRight(POINT place);
  void OpenMenuByKey();
  bool PressKey(WPARAM key, LPARAM lParam);
  void CloseOrGoUp(widgets::NodeId node);
  void OpenOrGoDown(widgets::NodeId node);
  void MoveByKey(WPARAM key, LPARAM lParam);
  void TypeLetter(wchar_t unit);
  void Click(widgets::NodeId node);
  void Open(widgets::NodeId node, bool open);
  void OpenLoaded(widgets::NodeId top);

  widgets::TreeView& tree_;
  TreeGestures gestures_;
  Icons& icons_;
  UniqueWindow window_;
  std::vector<HTREEITEM> items_;  // by NodeId
  bool left_ = false;
  bool behind_ = false;      // the tree is another one
  bool filling_ = false;     // it is erased once, afterwards
  bool following_ = false;   // what happens now comes from the tree, not from the user
  bool forgetting_ = false;  // items go whose nodes are gone
  bool inGesture_ = false;   // the end of a gesture says which node was clicked
  bool painting_ = false;
  bool focused_ = false;  // while it paints
  POINT menuPlace_{};
  TypedLetters typed_;
  std::optional<Ear> ear_;
};

}  // namespace quorvel::windows
