#include "windows/TreePane.h"

#include <algorithm>
#include <span>
#include <utility>

#include "windows/Guard.h"
#include "windows/ItemLook.h"
#include "windows/TemporaryValue.h"
#include "windows/Window.h"

namespace quorvel::windows {

using widgets::NodeId;

namespace {

constexpr DWORD kStyle = WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS | WS_TABSTOP | TVS_HASBUTTONS | TVS_LINESATROOT |
                         TVS_SHOWSELALWAYS | TVS_DISABLEDRAGDROP | TVS_NONEVENHEIGHT;

}  // namespace

TreePane::TreePane(widgets::TreeView& tree, TreeGestures gestures, HWND parent, Icons& icons)
    : tree_(tree), gestures_(std::move(gestures)), icons_(icons) {
  window_.reset(
      CreateWindowExW(WS_EX_CLIENTEDGE, WC_TREEVIEWW, L"", kStyle, 0, 0, 0, 0, parent, nullptr, Module(), nullptr));
  if (!window_) throw Error(SystemError::kOutOfMemory, "No window for the tree");
  TreeView_SetUnicodeFormat(window(), TRUE);
  TreeView_SetExtendedStyle(window(), TVS_EX_DOUBLEBUFFER, TVS_EX_DOUBLEBUFFER);
  SendMessageW(window(), WM_SETFONT, reinterpret_cast<WPARAM>(FontOf(parent)), FALSE);
  DpiChanged();
  ear_.emplace(window(), [this](UINT message, WPARAM wParam, LPARAM lParam) { return Hear(message, wParam, lParam); });
  tree_.ObserveTree(this);
  TreePane::TreeReset();
}

TreePane::~TreePane() {
  Leave();
}

// Once: another pane may show the tree already when this one goes.
void TreePane::Leave() {
  if (std::exchange(left_, true)) return;
  tree_.ObserveTree(nullptr);
}

void TreePane::DpiChanged() {
  constexpr int kIndent = 18;
  const Scale scale = ScaleOf(window());
  TreeView_SetImageList(window(), icons_.list(), TVSIL_NORMAL);
  TreeView_SetIndent(window(), scale.Of96(kIndent));
  TreeView_SetItemHeight(window(), ItemHeight(FontOf(window()), icons_.pixels(), scale));
  InvalidateRect(window(), nullptr, TRUE);
}

HTREEITEM TreePane::ItemOf(NodeId node) {
  CatchUp();
  return Known(node);
}

HTREEITEM TreePane::Known(NodeId node) const {
  const auto number = static_cast<std::size_t>(node);
  return number < items_.size() ? items_[number] : nullptr;
}

NodeId TreePane::NodeOf(HTREEITEM item) const {
  if (item == nullptr) return NodeId::kNone;
  TVITEMW asked{};
  asked.mask = TVIF_PARAM;
  asked.hItem = item;
  if (SendMessageW(window(), TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&asked)) == FALSE) return NodeId::kNone;
  return static_cast<NodeId>(asked.lParam);
}

// --- What the tree says

void TreePane::TreeReset() {
  if (std::exchange(behind_, true)) return;
  InvalidateRect(window(), nullptr, FALSE);
}

void TreePane::CatchUp() {
  if (!std::exchange(behind_, false)) return;
  Guarded([&] {
    {
      const TemporaryValue following(following_, true);
      const TemporaryValue filling(filling_, true);
      const DrawnAfterwards quietly(window());
      Forget(TVI_ROOT);
      InsertChildren(NodeId::kNone, 0, tree_.ChildCount(NodeId::kNone));
      FollowOpen(tree_.Children(NodeId::kNone));
    }
    InvalidateRect(window(), nullptr, TRUE);
    FollowSelection();
  });
}

void TreePane::NodesInserted(NodeId parent, std::size_t first, std::size_t count) {
  if (behind_) return;
  Guarded([&] {
    // The children of what was never open are not wanted yet.
    const HTREEITEM item = Known(parent);
    if (parent != NodeId::kNone && item == nullptr) return;
    {
      const TemporaryValue following(following_, true);
      const DrawnAfterwards quietly(window());
      if (parent == NodeId::kNone || TreeView_GetChild(window(), item) != nullptr) InsertChildren(parent, first, count);
      if (parent != NodeId::kNone) {
        ChangeItem(parent);
        FollowExpansion(parent);
      }
      FollowOpen(tree_.Children(parent).subspan(first, count));
    }
    FollowSelection();
  });
}

void TreePane::ChildrenRemoved(NodeId parent, std::span<const NodeId> /*children*/) {
  if (behind_) return;
  Guarded([&] {
    const HTREEITEM item = parent == NodeId::kNone ? TVI_ROOT : Known(parent);
    if (item == nullptr) return;
    {
      const TemporaryValue following(following_, true);
      const DrawnAfterwards quietly(window());
      Forget(item);
      if (parent != NodeId::kNone) ChangeItem(parent);
    }
    FollowSelection();
  });
}

void TreePane::NodesChanged(std::span<const NodeId> nodes) {
  constexpr std::size_t kFew = 4;
  if (behind_) return;
  Guarded([&] {
    std::optional<DrawnAfterwards> quietly;
    if (nodes.size() > kFew) quietly.emplace(window());
    for (const NodeId node : nodes) ChangeItem(node);
  });
}

void TreePane::NodeExpansionChanged(NodeId node) {
  if (behind_) return;
  Guarded([&] {
    {
      const DrawnAfterwards quietly(window());
      FollowExpansion(node);
    }
    FollowSelection();
  });
}

void TreePane::TreeSelectionChanged() {
  if (behind_) return;
  Guarded([&] { FollowSelection(); });
}

void TreePane::TreeScrolled(NodeId top) {
  CatchUp();
  Guarded([&] {
    if (top != NodeId::kNone && !IsShown(top)) return;
    const HTREEITEM item = top == NodeId::kNone ? TreeView_GetRoot(window()) : Known(top);
    if (item != nullptr) TreeView_SelectSetFirstVisible(window(), item);
  });
}

// A new tree is seen from its beginning.
NodeId TreePane::TopNode() const {
  if (behind_) return NodeId::kNone;
  const auto top = TreeView_GetFirstVisible(window());
  return top == TreeView_GetRoot(window()) ? NodeId::kNone : NodeOf(top);
}

bool TreePane::SeesNode(NodeId node) {
  CatchUp();
  const HTREEITEM item = Known(node);
  RECT line{};
  if (item == nullptr || !IsShown(node) || TreeView_GetItemRect(window(), item, &line, FALSE) == FALSE) return false;
  RECT seen{};
  GetClientRect(window(), &seen);
  return line.top >= 0 && line.bottom <= seen.bottom;
}

void TreePane::InsertChildren(NodeId parent, std::size_t first, std::size_t count) {
  const HTREEITEM above = parent == NodeId::kNone ? TVI_ROOT : Known(parent);
  const auto children = tree_.Children(parent);
  // Behind the one before: the native tree would look for the last one each time.
  HTREEITEM before = first == 0 ? TVI_FIRST : Known(children[first - 1]);
  for (const NodeId child : children.subspan(first, count)) before = InsertItem(above, before, child);
}

HTREEITEM TreePane::InsertItem(HTREEITEM parent, HTREEITEM before, NodeId node) {
  TVINSERTSTRUCTW made{};
  made.hParent = parent;
  made.hInsertAfter = before;
  made.item.mask = TVIF_TEXT | TVIF_IMAGE | TVIF_SELECTEDIMAGE | TVIF_CHILDREN | TVIF_PARAM | TVIF_STATE;
  made.item.pszText = LPSTR_TEXTCALLBACKW;
  made.item.iImage = I_IMAGECALLBACK;
  made.item.iSelectedImage = I_IMAGECALLBACK;
  made.item.cChildren = tree_.IsExpandable(node) ? 1 : 0;
  made.item.lParam = static_cast<LPARAM>(node);
  made.item.stateMask = TVIS_BOLD;
  made.item.state = tree_.IsBold(node) ? TVIS_BOLD : 0;
  const auto number = static_cast<std::size_t>(node);
  if (number >= items_.size()) items_.resize(number + 1);
  items_[number] =
      reinterpret_cast<HTREEITEM>(SendMessageW(window(), TVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&made)));
  if (items_[number] == nullptr) throw Error(SystemError::kOutOfMemory, "No memory for a node");
  return items_[number];
}

void TreePane::ChangeItem(NodeId node) {
  if (Known(node) == nullptr) return;
  TVITEMW changed{};
  changed.mask = TVIF_HANDLE | TVIF_TEXT | TVIF_CHILDREN | TVIF_STATE;
  changed.hItem = Known(node);
  changed.pszText = LPSTR_TEXTCALLBACKW;
  changed.cChildren = tree_.IsExpandable(node) ? 1 : 0;
  changed.stateMask = TVIS_BOLD;
  changed.state = tree_.IsBold(node) ? TVIS_BOLD : 0;
  SendMessageW(window(), TVM_SETITEMW, 0, reinterpret_cast<LPARAM>(&changed));
}

// What stands under the item goes at once: one by one each would move all that stand behind it.
void TreePane::Forget(HTREEITEM parent) {
  const TemporaryValue forgetting(forgetting_, true);
  // The selection would go from each to the next one.
  if (const auto selected = TreeView_GetSelection(window()); selected != nullptr && selected != parent) {
    TreeView_SelectItem(window(), nullptr);
  }
  if (parent == TVI_ROOT) {
    TreeView_DeleteAllItems(window());
    items_.clear();
  } else {
    TreeView_Expand(window(), parent, TVE_COLLAPSE | TVE_COLLAPSERESET);
  }
}

// The native tree opens nothing that has no children; it will when they come.
void TreePane::FollowExpansion(NodeId node) {
  const TemporaryValue following(following_, true);
  const HTREEITEM item = Known(node);
  if (item == nullptr) return;
  if (!tree_.IsExpanded(node)) {
    // The native tree would select the node in place of one that it hides.
    if (IsBelow(tree_.Selected(), node)) TreeView_SelectItem(window(), nullptr);
    TreeView_Expand(window(), item, TVE_COLLAPSE);
    return;
  }
  if (TreeView_GetChild(window(), item) == nullptr) {
    InsertChildren(node, 0, tree_.ChildCount(node));
    FollowOpen(tree_.Children(node));
  }
  TreeView_Expand(window(), item, TVE_EXPAND);
}

void TreePane::FollowOpen(std::span<const NodeId> nodes) {
  for (const NodeId node : nodes) {
    if (tree_.IsExpanded(node)) FollowExpansion(node);
  }
}

// A node that a closed one hides is shown nowhere: to select it natively would open what stands above it, and whether
// that is open is not for the view to say.
void TreePane::FollowSelection() {
  CatchUp();  // items of a tree that is gone must not be selected
  const TemporaryValue following(following_, true);
  const NodeId node = tree_.Selected();
  const HTREEITEM item = node != NodeId::kNone && IsShown(node) ? Known(node) : nullptr;
  if (item != TreeView_GetSelection(window())) TreeView_SelectItem(window(), item);
}

bool TreePane::IsShown(NodeId node) const {
  for (node = tree_.Parent(node); node != NodeId::kNone; node = tree_.Parent(node)) {
    if (!tree_.IsExpanded(node)) return false;
  }
  return true;
}

bool TreePane::IsBelow(NodeId node, NodeId above) const {
  while (node != NodeId::kNone && node != above) node = tree_.Parent(node);
  return node == above;
}

// --- What the native tree asks and tells

LRESULT TreePane::Notify(NMHDR& header) {
  return GuardedOr(LRESULT{0}, [&]() -> LRESULT {
    switch (header.code) {
      case TVN_GETDISPINFOW:
        Describe(reinterpret_cast<NMTVDISPINFOW&>(header).item);
        return 0;
      case NM_CUSTOMDRAW:
        return Draw(reinterpret_cast<NMTVCUSTOMDRAW&>(header));
      case TVN_ITEMEXPANDINGW:
        return RefuseExpansion(reinterpret_cast<const NMTREEVIEWW&>(header)) ? TRUE : FALSE;
      case TVN_SELCHANGEDW:
        SelectedFromOutside(reinterpret_cast<const NMTREEVIEWW&>(header));
        return 0;
      case TVN_DELETEITEMW: {
        const auto node = static_cast<std::size_t>(reinterpret_cast<const NMTREEVIEWW&>(header).itemOld.lParam);
        if (node < items_.size()) items_[node] = nullptr;
        return 0;
      }
      default:
        return 0;
    }
  });
}

// The native tree may ask for a node while its items go, or when it is resized before it was followed.
bool TreePane::IsGone(NodeId node) const {
  return forgetting_ || behind_ || Known(node) == nullptr;
}

void TreePane::Describe(TVITEMW& item) {
  const auto node = static_cast<NodeId>(item.lParam);
  if (IsGone(node)) {
    if ((item.mask & TVIF_TEXT) != 0) CopyText({}, item.pszText, item.cchTextMax);
    return;
  }
  if ((item.mask & TVIF_TEXT) != 0) {
    const std::wstring text = ToWide(tree_.Text(node));
    CopyText(painting_ ? LineOf(text) : text, item.pszText, item.cchTextMax);
  }
  const std::string& usual = tree_.Image(node);
  if ((item.mask & TVIF_IMAGE) != 0) {
    item.iImage = ImageOf(tree_.IsExpanded(node) ? tree_.ExpandedImage(node) : usual, usual);
  }
  if ((item.mask & TVIF_SELECTEDIMAGE) != 0) item.iSelectedImage = ImageOf(tree_.SelectedImage(node), usual);
}

int TreePane::ImageOf(std::string_view key, std::string_view otherwise) {
  const int image = icons_.IndexOf(key);
  return image == I_IMAGENONE ? icons_.IndexOf(otherwise) : image;
}

LRESULT TreePane::Draw(NMTVCUSTOMDRAW& draw) {
  switch (draw.nmcd.dwDrawStage) {
    case CDDS_PREPAINT:
      painting_ = true;
      focused_ = GetFocus() == window();
      return CDRF_NOTIFYITEMDRAW | CDRF_NOTIFYPOSTPAINT;
    case CDDS_ITEMPREPAINT: {
      const auto node = static_cast<NodeId>(draw.nmcd.lItemlParam);
      if (IsGone(node)) return CDRF_DODEFAULT;
      const bool selected = (draw.nmcd.uItemState & CDIS_SELECTED) != 0;
      const ItemColours colours = ColoursOf(tree_.ForeColour(node), selected, focused_);
      draw.clrText = colours.text;
      draw.clrTextBk = colours.background;
      return CDRF_DODEFAULT;
    }
    case CDDS_POSTPAINT:
      painting_ = false;
      return CDRF_DODEFAULT;
    default:
      return CDRF_DODEFAULT;
  }
}

bool TreePane::RefuseExpansion(const NMTREEVIEWW& change) {
  if (following_) return false;
  const bool open = change.action == TVE_EXPAND;
  PostMessageW(window(), kOpenNode, static_cast<WPARAM>(change.itemNew.lParam), open ? TRUE : FALSE);
  return true;
}

void TreePane::SelectedFromOutside(const NMTREEVIEWW& change) {
  if (following_ || inGesture_ || change.itemNew.hItem == nullptr) return;
  PostMessageW(window(), kClickNode, static_cast<WPARAM>(change.itemNew.lParam), 0);
}

}  // namespace quorvel::windows
