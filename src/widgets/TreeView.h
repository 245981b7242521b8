// The model of a tree view: nodes with key, text and images, loaded when they are asked for.
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <utility>
#include <vector>

#include "widgets/Control.h"
#include "widgets/TextArena.h"

namespace quorvel::widgets {

// A node, as long as it is in the tree. Numbers of removed nodes are used again.
enum class NodeId : std::uint32_t { kNone = 0xFFFFFFFF };

// Text colours that follow the desktop's theme, with the values that cross the boundary.
enum class SystemColour : std::uint32_t { kWindowText = 0x80000008, kGrayText = 0x80000011 };

// Draws a tree. Hears of a batch of changes once, after all of them were made; NodeId::kNone as parent is the root.
// Must not change the tree from a call.
class TreeObserver {
 public:
  virtual ~TreeObserver() = default;
  // Everything is new, selection and open nodes included.
  virtual void TreeReset() = 0;
  // `count` nodes stand under `parent` from row `first` on, with all their children.
  virtual void NodesInserted(NodeId parent, std::size_t first, std::size_t count) = 0;
  // `parent` had these children and has none now. During this call they, and what stood under them, still answer
  // Parent, RowOf and Children; their texts are gone.
  virtual void ChildrenRemoved(NodeId parent, std::span<const NodeId> children) = 0;
  // Text, images, colour or expander of these nodes changed.
  virtual void NodesChanged(std::span<const NodeId> nodes) = 0;
  virtual void NodeExpansionChanged(NodeId node) = 0;
  virtual void TreeSelectionChanged() = 0;
  // The tree is to be scrolled until this node, which is in the tree, stands first; kNone = to its beginning.
  virtual void TreeScrolled(NodeId top) = 0;
  // The first node in sight; kNone while the tree is not scrolled.
  virtual NodeId TopNode() const = 0;
  // Whether a node's line is seen; one that draws nothing hides nothing.
  virtual bool SeesNode(NodeId /*node*/) { return true; }
};

// Children, parents, rows and keys are found in constant time. Keys need not be unique: every node stays, and a look-up
// finds the newest. A placeholder makes a node expandable and is no node to anyone: never counted, found or listed.
//
// Texts and keys are returned as views that are valid until the tree changes. A node that is not in the tree must not
// be passed; where NodeId::kNone stands for the root, it says so.
class TreeView : public Control {
 public:
  explicit TreeView(std::string_view name);

  void ObserveTree(TreeObserver* observer) { observer_ = observer; }

  // Runs `body`, whose changes are told once when the outermost batch ends, by an exception too.
  template <class Body>
  void InBatch(Body&& body) {
    ++batchDepth_;
    try {
      std::forward<Body>(body)();
    } catch (...) {
      --batchDepth_;
      Settle();
      throw;
    }
    --batchDepth_;
    Settle();
  }

  // Appends a node as the last child of `parent` (kNone = a root); `image` serves selected and open too.
  NodeId Add(NodeId parent, std::string_view key, std::string_view text, std::string_view image);
  // Makes a node without children expandable, or no longer so.
  void SetPlaceholder(NodeId node, bool placeholder);
  // Removes what stands under `node` (kNone = everything, as Clear does) and closes it. Its placeholder is not touched.
  void RemoveChildren(NodeId node);
  void Clear();

  // Nodes in the tree, roots among them.
  std::size_t Count() const { return nodes_.size() - free_.size() - limbo_.size(); }
  // kNone = of the root.
  std::size_t ChildCount(NodeId parent) const { return Children(parent).size(); }
  NodeId Child(NodeId parent, std::size_t row) const { return Children(parent)[row]; }
  std::span<const NodeId> Children(NodeId parent) const {
    const ChildList& list = parent == NodeId::kNone ? roots_ : At(parent).children;
    return std::span(childSlots_).subspan(list.start, list.count);
  }
  // kNone for a root.
  NodeId Parent(NodeId node) const { return At(node).parent; }
  std::size_t RowOf(NodeId node) const { return At(node).row; }
  bool HasPlaceholder(NodeId node) const { return At(node).placeholder; }
  // Whether the node can be opened: it has children, or a placeholder for children that are not loaded yet.
  bool IsExpandable(NodeId node) const { return At(node).placeholder || At(node).children.count > 0; }

  // The newest node of that key, kNone when there is none.
  NodeId Find(std::string_view key) const;

  std::string_view Key(NodeId node) const { return texts_.View(At(node).key); }
  std::string_view Text(NodeId node) const { return texts_.View(At(node).text); }
  void SetNodeText(NodeId node, std::string_view text);

  // Keys into the image list; "" = none.
  const std::string& Image(NodeId node) const { return imageNames_[At(node).image]; }
  const std::string& ExpandedImage(NodeId node) const { return imageNames_[At(node).expandedImage]; }
  const std::string& SelectedImage(NodeId node) const { return imageNames_[At(node).selectedImage]; }
  void SetImages(NodeId node, std::string_view image, std::string_view expandedImage, std::string_view selectedImage);

  SystemColour ForeColour(NodeId node) const { return At(node).colour; }
  bool IsBold(NodeId node) const { return At(node).bold; }
  void SetLook(NodeId node, SystemColour colour, bool bold);

  bool IsExpanded(NodeId node) const { return At(node).expanded; }
  // A node that cannot be opened stays closed.
  void SetExpanded(NodeId node, bool expanded);

  // kNone when nothing is selected, which can also be asked for.
  NodeId Selected() const { return selected_; }
  void Select(NodeId node);

  // The first node in sight, which the observer knows; kNone while the tree is not scrolled.
  NodeId Top() const { return observer_ == nullptr ? top_ : observer_->TopNode(); }
  void ScrollTo(NodeId top);
  // Whether the node's line is in sight.
  bool IsInSight(NodeId node) const { return observer_ == nullptr || observer_->SeesNode(node); }
  // The node below this one as the tree is open; kNone after the last.
  NodeId NextLine(NodeId node) const;

 private:
  // The children of a node: a stretch of childSlots_, which moves to the end when it outgrows its place. A list for
  // each node of its own would cost an allocation for each.
  struct ChildList {
    std::uint32_t start = 0;
    std::uint32_t count = 0;
    std::uint32_t capacity = 0;
  };

  struct Node {
    ChildList children;
    TextArena::Ref key;
    TextArena::Ref text;
    NodeId parent = NodeId::kNone;
    std::uint32_t row = 0;
    std::uint16_t image = 0;
    std::uint16_t expandedImage = 0;
    std::uint16_t selectedImage = 0;
    SystemColour colour = SystemColour::kWindowText;
    bool bold = false;
    bool expanded = false;
    bool placeholder = false;
    bool removed = false;
  };

  // What the observer has not heard yet. One change of structure is told as itself, several as "everything new".
  struct Pending {
    enum class Structure { kNone, kInserted, kRemoved, kReset };
    Structure structure = Structure::kNone;
    NodeId parent = NodeId::kNone;
    std::size_t first = 0;
    std::size_t count = 0;
    std::vector<NodeId> removed;
    std::vector<NodeId> changed;
    std::vector<NodeId> expansion;
    bool selection = false;
    bool scrolled = false;
  };

  struct TextHash {
    using is_transparent = void;
    std::size_t operator()(std::string_view text) const { return std::hash<std::string_view>{}(text); }
  };
  struct KeyHash {
    using is_transparent = void;
    const TreeView* tree;
    std::size_t operator()(std::string_view key) const { return std::hash<std::string_view>{}(key); }
    std::size_t operator()(NodeId node) const { return (*this)(tree->Key(node)); }
  };
  struct KeyEqual {
    using is_transparent = void;
    const TreeView* tree;
    std::string_view View(NodeId node) const { return tree->Key(node); }
    static std::string_view View(std::string_view key) { return key; }
    template <class A, class B>
    bool operator()(A a, B b) const {
      return View(a) == View(b);
    }
  };
  using KeyIndex = std::unordered_set<NodeId, KeyHash, KeyEqual>;

  const Node& At(NodeId node) const { return nodes_[static_cast<std::size_t>(node)]; }
  Node& At(NodeId node) { return nodes_[static_cast<std::size_t>(node)]; }

  NodeId NewNode();
  void AppendChild(ChildList& list, NodeId child);
  std::uint16_t ImageNumber(std::string_view image);
  void IndexKeys() const;
  void IndexKey(NodeId node) const;
  void UnindexKey(NodeId node);
  void Remove(NodeId node);
  void MoveTextsWhenWorth();
  bool IsInPendingInsertion(NodeId parent) const;
  void NoteInserted(NodeId parent, std::size_t row);
  void NoteRemoved(NodeId parent, std::vector<NodeId> children);
  void NoteChanged(NodeId node);
  // Outside batches: tells what is pending and gives removed slots back.
  void Settle();
  void Tell();

  std::deque<Node> nodes_;  // grows without moving what is there
  ChildList roots_;
  std::vector<NodeId> childSlots_;
  std::vector<NodeId> free_;   // slots to use again
  std::vector<NodeId> limbo_;  // removed nodes that the observer has not heard of yet
  TextArena texts_;
  std::vector<std::string> imageNames_{""};
  std::unordered_map<std::string, std::uint16_t, TextHash, std::equal_to<>> imageNumbers_{{"", std::uint16_t{0}}};
  NodeId selected_ = NodeId::kNone;
  NodeId top_ = NodeId::kNone;  // where it was scrolled to last

  // The newest node of each key, and for a node whose key repeats the next older one. Made at the first look-up:
  // filling a tree that nobody searches costs no hashing.
  mutable KeyIndex byKey_;
  mutable std::unordered_map<NodeId, NodeId> olderSameKey_;
  mutable bool keysIndexed_ = false;

  TreeObserver* observer_ = nullptr;
  int batchDepth_ = 0;
  bool telling_ = false;
  Pending pending_;
};

}  // namespace quorvel::widgets
