#include "widgets/TreeView.h"

#include <algorithm>
#include <cassert>
#include <limits>
#include <stdexcept>
#include <utility>

namespace quorvel::widgets {

TreeView::TreeView(std::string_view name) : Control(name), byKey_(0, KeyHash{this}, KeyEqual{this}) {}

NodeId TreeView::Add(NodeId parent, std::string_view key, std::string_view text, std::string_view image) {
  const std::uint16_t number = ImageNumber(image);
  const TextArena::Ref keyRef = texts_.Append(key);
  const TextArena::Ref textRef = texts_.Append(text);
  const NodeId id = NewNode();
  ChildList& siblings = parent == NodeId::kNone ? roots_ : At(parent).children;
  Node& node = At(id);
  node.key = keyRef;
  node.text = textRef;
  node.parent = parent;
  node.row = siblings.count;
  node.image = node.expandedImage = node.selectedImage = number;
  AppendChild(siblings, id);
  if (keysIndexed_) IndexKey(id);
  NoteInserted(parent, node.row);
  Settle();
  return id;
}

NodeId TreeView::NewNode() {
  if (!free_.empty()) {
    const NodeId id = free_.back();
    free_.pop_back();
    const ChildList emptied{At(id).children.start, 0, At(id).children.capacity};
    At(id) = Node{};
    At(id).children = emptied;
    return id;
  }
  if (nodes_.size() >= static_cast<std::size_t>(NodeId::kNone)) throw std::length_error("Too many nodes");
  nodes_.emplace_back();
  return static_cast<NodeId>(nodes_.size() - 1);
}

void TreeView::AppendChild(ChildList& list, NodeId child) {
  if (list.count == list.capacity) {
    constexpr std::uint32_t kFirstCapacity = 4;
    const std::uint32_t capacity = std::max(kFirstCapacity, 2 * list.capacity);
    const std::size_t end = childSlots_.size();
    if (capacity <= list.capacity || end + capacity > std::numeric_limits<std::uint32_t>::max()) {
      throw std::length_error("Too many nodes");
    }
    const bool isLast = list.start + list.capacity == end;
    childSlots_.resize(isLast ? end - list.capacity + capacity : end + capacity, NodeId::kNone);
    if (!isLast) {
      std::copy_n(childSlots_.begin() + list.start, list.count, childSlots_.begin() + static_cast<std::ptrdiff_t>(end));
      list.start = static_cast<std::uint32_t>(end);
    }
    list.capacity = capacity;
  }
  childSlots_[list.start + list.count++] = child;
}

std::uint16_t TreeView::ImageNumber(std::string_view image) {
  // Neighbours mostly share their image: the name used last is tried before it is looked up.
  if (!nodes_.empty() && imageNames_[nodes_.back().image] == image) return nodes_.back().image;
  const auto found = imageNumbers_.find(image);
  if (found != imageNumbers_.end()) return found->second;
  if (imageNames_.size() > std::numeric_limits<std::uint16_t>::max()) throw std::length_error("Too many images");
  const auto number = static_cast<std::uint16_t>(imageNames_.size());
  imageNames_.emplace_back(image);
  imageNumbers_.emplace(image, number);
  return number;
}

void TreeView::SetPlaceholder(NodeId node, bool placeholder) {
  if (At(node).placeholder == placeholder) return;
  At(node).placeholder = placeholder;
  NoteChanged(node);
  Settle();
}

void TreeView::RemoveChildren(NodeId node) {
  if (node == NodeId::kNone) return Clear();
  if (At(node).children.count == 0) return;
  // From here on slots are used again, and their order no longer tells which of two nodes is the newer.
  IndexKeys();
  InBatch([&] {
    SetExpanded(node, false);
    std::vector<NodeId> children(Children(node).begin(), Children(node).end());
    At(node).children.count = 0;
    // Newest first: of nodes that share a key, the newest is found at once.
    std::for_each(children.rbegin(), children.rend(), [this](NodeId child) { Remove(child); });
    NoteRemoved(node, std::move(children));
    MoveTextsWhenWorth();
  });
}

void TreeView::Remove(NodeId top) {
  std::vector<NodeId> open{top};
  while (!open.empty()) {
    const NodeId node = open.back();
    open.pop_back();
    open.insert(open.end(), Children(node).begin(), Children(node).end());
    UnindexKey(node);
    At(node).removed = true;
    texts_.Release(At(node).key);
    texts_.Release(At(node).text);
    if (selected_ == node) Select(NodeId::kNone);
    if (top_ == node) top_ = NodeId::kNone;
    limbo_.push_back(node);
  }
}

void TreeView::Clear() {
  nodes_.clear();
  roots_ = {};
  childSlots_.clear();
  free_.clear();
  limbo_.clear();
  texts_.Clear();
  byKey_.clear();
  olderSameKey_.clear();
  keysIndexed_ = false;
  selected_ = NodeId::kNone;
  top_ = NodeId::kNone;
  pending_ = {};
  pending_.structure = Pending::Structure::kReset;
  Settle();
}

NodeId TreeView::Find(std::string_view key) const {
  IndexKeys();
  const auto found = byKey_.find(key);
  return found == byKey_.end() ? NodeId::kNone : *found;
}

void TreeView::IndexKeys() const {
  if (keysIndexed_) return;
  byKey_.reserve(nodes_.size());
  for (std::size_t i = 0; i < nodes_.size(); ++i) IndexKey(static_cast<NodeId>(i));
  keysIndexed_ = true;
}

void TreeView::IndexKey(NodeId node) const {
  const auto [position, isNew] = byKey_.insert(node);
  if (isNew) return;
  const NodeId older = *position;
  byKey_.erase(position);
  olderSameKey_[node] = older;
  byKey_.insert(node);
}

void TreeView::UnindexKey(NodeId node) {
  const auto link = olderSameKey_.extract(node);
  const NodeId older = link.empty() ? NodeId::kNone : link.mapped();
  const auto position = byKey_.find(Key(node));
  if (*position == node) {
    byKey_.erase(position);
    if (older != NodeId::kNone) byKey_.insert(older);
    return;
  }
  NodeId newer = *position;
  while (olderSameKey_.at(newer) != node) newer = olderSameKey_.at(newer);
  if (older == NodeId::kNone) {
    olderSameKey_.erase(newer);
  } else {
    olderSameKey_[newer] = older;
  }
}

void TreeView::SetNodeText(NodeId node, std::string_view text) {
  if (Text(node) == text) return;
  texts_.Release(At(node).text);
  At(node).text = texts_.Append(text);
  NoteChanged(node);
  MoveTextsWhenWorth();
  Settle();
}

void TreeView::MoveTextsWhenWorth() {
  if (!texts_.IsMostlyReleased()) return;
  TextArena kept;
  std::vector<std::pair<TextArena::Ref, TextArena::Ref>> moved(nodes_.size());
  for (std::size_t i = 0; i < nodes_.size(); ++i) {
    if (nodes_[i].removed) continue;
    moved[i] = {kept.Append(texts_.View(nodes_[i].key)), kept.Append(texts_.View(nodes_[i].text))};
  }
  // Nothing below can fail: either all nodes have moved or none has.
  for (std::size_t i = 0; i < nodes_.size(); ++i) {
    nodes_[i].key = moved[i].first;
    nodes_[i].text = moved[i].second;
  }
  texts_ = std::move(kept);
}

void TreeView::SetImages(NodeId node, std::string_view image, std::string_view expandedImage,
                         std::string_view selectedImage) {
  if (Image(node) == image && ExpandedImage(node) == expandedImage && SelectedImage(node) == selectedImage) return;
  At(node).image = ImageNumber(image);
  At(node).expandedImage = ImageNumber(expandedImage);
  At(node).selectedImage = ImageNumber(selectedImage);
  NoteChanged(node);
  Settle();
}

void TreeView::SetLook(NodeId node, SystemColour colour, bool bold) {
  if (At(node).colour == colour && At(node).bold == bold) return;
  At(node).colour = colour;
  At(node).bold = bold;
  NoteChanged(node);
  Settle();
}

void TreeView::SetExpanded(NodeId node, bool expanded) {
  const bool open = expanded && IsExpandable(node);
  if (At(node).expanded == open) return;
  At(node).expanded = open;
  if (pending_.structure != Pending::Structure::kReset) pending_.expansion.push_back(node);
  Settle();
}

void TreeView::Select(NodeId node) {
  if (selected_ == node) return;
  selected_ = node;
  pending_.selection = true;
  Settle();
}

void TreeView::ScrollTo(NodeId top) {
  top_ = top;
  pending_.scrolled = true;
  Settle();
}

NodeId TreeView::NextLine(NodeId node) const {
  if (IsExpanded(node) && ChildCount(node) > 0) return Child(node, 0);
  for (; node != NodeId::kNone; node = Parent(node)) {
    const auto siblings = Children(Parent(node));
    if (RowOf(node) + 1 < siblings.size()) return siblings[RowOf(node) + 1];
  }
  return NodeId::kNone;
}

bool TreeView::IsInPendingInsertion(NodeId parent) const {
  if (pending_.structure != Pending::Structure::kInserted) return false;
  for (NodeId node = parent; node != NodeId::kNone; node = Parent(node)) {
    if (Parent(node) != pending_.parent) continue;
    if (RowOf(node) >= pending_.first && RowOf(node) < pending_.first + pending_.count) return true;
  }
  return false;
}

void TreeView::NoteInserted(NodeId parent, std::size_t row) {
  using Structure = Pending::Structure;
  if (pending_.structure == Structure::kReset || IsInPendingInsertion(parent)) return;
  if (pending_.structure == Structure::kNone) {
    pending_.structure = Structure::kInserted;
    pending_.parent = parent;
    pending_.first = row;
    pending_.count = 1;
  } else if (pending_.structure == Structure::kInserted && pending_.parent == parent) {
    ++pending_.count;
  } else {
    pending_.structure = Structure::kReset;
  }
}

void TreeView::NoteRemoved(NodeId parent, std::vector<NodeId> children) {
  using Structure = Pending::Structure;
  if (pending_.structure != Structure::kNone) {
    pending_.structure = Structure::kReset;
    return;
  }
  pending_.structure = Structure::kRemoved;
  pending_.parent = parent;
  pending_.removed = std::move(children);
}

void TreeView::NoteChanged(NodeId node) {
  // A new node is told as it stands when the batch ends.
  if (pending_.structure == Pending::Structure::kReset || IsInPendingInsertion(node)) return;
  if (pending_.changed.empty() || pending_.changed.back() != node) pending_.changed.push_back(node);
}

void TreeView::Settle() {
  if (batchDepth_ > 0) return;
  assert(!telling_);  // an observer changed the tree from a call
  telling_ = true;
  Tell();
  telling_ = false;
  free_.insert(free_.end(), limbo_.begin(), limbo_.end());
  limbo_.clear();
}

void TreeView::Tell() {
  if (observer_ == nullptr) {
    pending_ = {};
    return;
  }
  Pending told = std::exchange(pending_, {});
  if (told.structure == Pending::Structure::kReset) {
    observer_->TreeReset();
    if (told.scrolled) observer_->TreeScrolled(top_);
    return;
  }
  const auto isGone = [this](NodeId node) { return At(node).removed; };
  std::erase_if(told.changed, isGone);
  std::erase_if(told.expansion, isGone);
  if (told.structure == Pending::Structure::kInserted) observer_->NodesInserted(told.parent, told.first, told.count);
  if (told.structure == Pending::Structure::kRemoved) observer_->ChildrenRemoved(told.parent, told.removed);
  if (!told.changed.empty()) observer_->NodesChanged(told.changed);
  for (const NodeId node : told.expansion) observer_->NodeExpansionChanged(node);
  if (told.selection) observer_->TreeSelectionChanged();
  if (told.scrolled) observer_->TreeScrolled(top_);
}

}  // namespace quorvel::widgets
