// The native tree against the tree's own state, and what gestures on it ask for.
#include "windows/TreePane.h"

#include <gtest/gtest.h>

#include <functional>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "PaneHost.h"

namespace quorvel::windows {
namespace {

using test::LeftClick;
using test::PressKey;
using widgets::NodeId;

class WindowsTreePaneTest : public testing::Test {
 protected:
  WindowsTreePaneTest() {
    host.notify = [this](NMHDR& header) { return pane.Notify(header); };
    MoveWindow(pane.window(), 0, 0, host.scale.Of96(300), host.scale.Of96(400), TRUE);
    test::PumpMessages();
  }
  ~WindowsTreePaneTest() override { host.notify = nullptr; }

  // The owner: opens what it is asked to, after it loaded two nodes for a placeholder, and notes what it heard.
  TreeGestures Gestures() {
    return {.expand =
                [this](NodeId node) {
                  heard += "open " + std::string(tree.Key(node)) + " ";
                  if (refuses) return;
                  tree.InBatch([&] {
                    Load(node);
                    tree.SetExpanded(node, true);
                  });
                },
            .collapse =
                [this](NodeId node) {
                  heard += "close " + std::string(tree.Key(node)) + " ";
                  tree.SetExpanded(node, false);
                },
            .click =
                [this](NodeId node) {
                  heard += "click " + std::string(tree.Key(node)) + " ";
                  tree.Select(node);
                  if (onClick) onClick();
                },
            .mouseUp =
                [this](MouseButton /*button*/, NodeId node) {
                  heard += "right " + (node == NodeId::kNone ? "nowhere " : std::string(tree.Key(node)) + " ");
                }};
  }
  void Load(NodeId node) {
    if (!tree.HasPlaceholder(node)) return;
    for (const char* name : {".1", ".2"}) {
      const std::string key = std::string(tree.Key(node)) + name;
      tree.SetPlaceholder(tree.Add(node, key, key, "Process"), true);
    }
    tree.SetPlaceholder(node, false);
  }

  // A native item and those in sight below it: two blanks a level, "-" open, "+" closed, "*" the selected one.
  std::string Line(HTREEITEM item, const std::string& blanks) {
    wchar_t text[100]{};
    TVITEMW asked{};
    asked.mask = TVIF_TEXT | TVIF_STATE | TVIF_CHILDREN;
    asked.hItem = item;
    asked.stateMask = TVIS_EXPANDED | TVIS_SELECTED;
    asked.pszText = text;
    asked.cchTextMax = 100;
    SendMessageW(pane.window(), TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&asked));
    const bool open = (asked.state & TVIS_EXPANDED) != 0 && TreeView_GetChild(pane.window(), item) != nullptr;
    const std::string mark = asked.cChildren == 0 ? " " : open ? "-" : "+";
    const std::string line = blanks + mark + FromWide(text) + ((asked.state & TVIS_SELECTED) != 0 ? "*\n" : "\n");
    return open ? line + Seen(item, blanks + "  ") : line;
  }
  std::string Seen(HTREEITEM parent = TVI_ROOT, const std::string& blanks = "") {
    std::string text;
    HTREEITEM item = parent == TVI_ROOT ? TreeView_GetRoot(pane.window()) : TreeView_GetChild(pane.window(), parent);
    for (; item != nullptr; item = TreeView_GetNextSibling(pane.window(), item)) text += Line(item, blanks);
    return text;
  }
  std::string Meant(NodeId parent = NodeId::kNone, const std::string& blanks = "") {
    std::string text;
    for (const NodeId node : tree.Children(parent)) {
      const bool open = tree.IsExpanded(node) && tree.ChildCount(node) > 0;
      text += blanks +
              (!tree.IsExpandable(node) ? " "
               : open                   ? "-"
                                        : "+") +
              std::string(tree.Text(node)) + (tree.Selected() == node ? "*\n" : "\n");
      if (open) text += Meant(node, blanks + "  ");
    }
    return text;
  }
  unsigned NativeItems() { return TreeView_GetCount(pane.window()); }
  void AddRoots() {
    for (const char* key : {"a", "b", "c"}) tree.SetPlaceholder(tree.Add(NodeId::kNone, key, key, "Process"), true);
  }
  POINT PlaceOf(const char* key, int fromTextLeft = 3) {
    RECT text{};
    TreeView_GetItemRect(pane.window(), pane.ItemOf(tree.Find(key)), &text, TRUE);
    return {text.left + fromTextLeft, (text.top + text.bottom) / 2};
  }
  POINT ExpanderOf(const char* key) {
    POINT place = PlaceOf(key);
    for (UINT part = 0; place.x > 0; --place.x) {
      TVHITTESTINFO hit{};
      hit.pt = place;
      TreeView_HitTest(pane.window(), &hit);
      part = hit.flags;
      if ((part & TVHT_ONITEMBUTTON) != 0) break;
    }
    return {place.x - 3, place.y};
  }
  std::string TakeHeard() { return std::exchange(heard, ""); }

  test::PaneHost host;
  widgets::TreeView tree{"tree"};
  std::string heard;
  bool refuses = false;
  std::function<void()> onClick;
  TreePane pane{tree, Gestures(), host.window(), host.icons};
};

TEST_F(WindowsTreePaneTest, ShowsWhatTheTreeHoldsWhateverHappensToIt) {
  std::mt19937 random(1);
  const auto upTo = [&](std::size_t n) { return static_cast<std::size_t>(random() % n); };
  std::vector<NodeId> nodes;
  const auto collect = [&](auto&& self, NodeId parent) -> void {
    for (const NodeId node : tree.Children(parent)) {
      nodes.push_back(node);
      self(self, node);
    }
  };
  const auto change = [&] {
    nodes.assign(1, NodeId::kNone);
    collect(collect, NodeId::kNone);
    const NodeId node = nodes[upTo(nodes.size())];
    const std::size_t kind = upTo(100);
    if (node == NodeId::kNone || kind < 45) {
      tree.Add(node, "k", "node " + std::to_string(random() % 1000), "Process");
    } else if (kind < 65) {
      tree.SetExpanded(node, !tree.IsExpanded(node));
    } else if (kind < 75) {
      tree.Select(upTo(4) == 0 ? NodeId::kNone : node);
    } else if (kind < 82) {
      tree.SetPlaceholder(node, !tree.HasPlaceholder(node));
    } else if (kind < 90) {
      tree.SetNodeText(node, "text " + std::to_string(random() % 1000));
    } else {
      kind < 99 ? tree.RemoveChildren(node) : tree.Clear();
    }
  };
  for (int step = 0; step < 1000; ++step) {
    tree.InBatch([&] {
      for (std::size_t i = 1 + (upTo(3) == 0 ? upTo(5) : 0); i > 0; --i) change();
    });
    if (upTo(4) == 0) test::PumpMessages();
    ASSERT_EQ(Seen(), Meant()) << "after step " << step;
  }
  EXPECT_EQ(heard, "") << "changes of the tree are no gestures";
}

TEST_F(WindowsTreePaneTest, HoldsItemsForOpenNodesAlone) {
  tree.InBatch([&] {
    for (int i = 0; i < 1000; ++i) {
      const NodeId node = tree.Add(NodeId::kNone, std::to_string(i), "node", "Process");
      for (int j = 0; j < 20; ++j) tree.Add(node, "child", "child", "ProcessOk");
    }
  });
  EXPECT_EQ(NativeItems(), 1000U);
  tree.SetExpanded(tree.Find("7"), true);
  EXPECT_EQ(NativeItems(), 1020U);
  // A selection below closed nodes opens nothing: that is for the owner to say.
  tree.Select(tree.Child(tree.Find("8"), 0));
  EXPECT_EQ(NativeItems(), 1020U);
  tree.ScrollTo(tree.Find("500"));
  EXPECT_EQ(tree.Top(), tree.Find("500"));
  EXPECT_TRUE(tree.IsInSight(tree.Find("503")));
  EXPECT_FALSE(tree.IsInSight(tree.Find("499")));
  tree.ScrollTo(NodeId::kNone);
  EXPECT_EQ(tree.Top(), NodeId::kNone);
}

TEST_F(WindowsTreePaneTest, TakesANewTreeOverOnceWhenSomebodyLooks) {
  AddRoots();
  int inserted = 0;
  bool erased = false;
  const Ear counter(pane.window(), [&](UINT message, WPARAM, LPARAM) {
    if (message == TVM_INSERTITEMW) {
      ++inserted;
      erased |= test::Erases(pane.window());
    }
    return std::optional<LRESULT>();
  });
  for (int times = 0; times < 3; ++times) {
    tree.Clear();
    tree.InBatch([&] { AddRoots(); });
  }
  tree.Select(tree.Find("b"));
  EXPECT_EQ(inserted, 0);
  test::PumpMessages();
  EXPECT_EQ(Seen(), "+a\n+b*\n+c\n");
  EXPECT_EQ(inserted, 3);
  EXPECT_FALSE(erased) << "while it was filled";
  EXPECT_TRUE(test::Erases(pane.window()));
  // A click that makes the tree anew: what was clicked is another item then.
  onClick = [this] {
    tree.Clear();
    tree.InBatch([&] {
      tree.Add(NodeId::kNone, "z", "z", "Process");
      AddRoots();
    });
    tree.Select(tree.Find("c"));
  };
  LeftClick(pane.window(), PlaceOf("a"));
  EXPECT_EQ(Seen(), " z\n+a\n+b\n+c*\n");
}

TEST_F(WindowsTreePaneTest, LoadsWhatIsOpenedByKeyExpanderAndDoubleClick) {
  AddRoots();
  tree.Select(tree.Find("a"));
  PressKey(pane.window(), VK_RIGHT);
  EXPECT_EQ(TakeHeard(), "open a ");
  EXPECT_EQ(Seen(), "-a*\n  +a.1\n  +a.2\n+b\n+c\n");
  PressKey(pane.window(), VK_RIGHT);  // into the children
  PressKey(pane.window(), VK_DOWN);
  EXPECT_EQ(TakeHeard(), "click a.1 click a.2 ");
  LeftClick(pane.window(), ExpanderOf("b"));  // which selects nothing
  EXPECT_EQ(TakeHeard(), "open b ");
  test::DoubleClick(pane.window(), PlaceOf("c"));
  EXPECT_EQ(TakeHeard(), "click c open c ");
  tree.Select(tree.Find("a"));
  test::TypeText(pane.window(), L"-*");  // opens what is loaded, and loads no deeper
  EXPECT_EQ(TakeHeard(), "close a open a ");
  EXPECT_EQ(Seen(), Meant());
  PressKey(pane.window(), VK_LEFT);
  refuses = true;
  test::TypeText(pane.window(), L"+");
  EXPECT_EQ(TakeHeard(), "close a open a ");
  EXPECT_EQ(Seen(), Meant()) << "the owner refused";
}

TEST_F(WindowsTreePaneTest, ClicksOnceAGesture) {
  AddRoots();
  LeftClick(pane.window(), PlaceOf("b"));
  LeftClick(pane.window(), PlaceOf("b"));
  EXPECT_EQ(TakeHeard(), "click b click b ");
  PressKey(pane.window(), VK_DOWN);
  PressKey(pane.window(), VK_DOWN);  // there is nothing below
  EXPECT_EQ(TakeHeard(), "click c ");
  LeftClick(pane.window(), {100, host.scale.Of96(350)}, MK_CONTROL);  // empty space
  EXPECT_EQ(TakeHeard(), "");
  EXPECT_EQ(Seen(), "+a\n+b\n+c*\n");
  test::TypeText(pane.window(), L"A");
  EXPECT_EQ(TakeHeard(), "click a ");
}

TEST_F(WindowsTreePaneTest, LeavesTheRightButtonAndTheKeysForAMenuToTheOwner) {
  AddRoots();
  LeftClick(pane.window(), PlaceOf("a"));
  TakeHeard();
  test::RightClick(pane.window(), PlaceOf("b"));
  test::RightClick(pane.window(), {5, host.scale.Of96(350)});
  EXPECT_EQ(TakeHeard(), "right b right nowhere ");
  EXPECT_EQ(tree.Selected(), tree.Find("a"));
  SendMessageW(pane.window(), WM_KEYUP, VK_APPS, 1);
  EXPECT_EQ(TakeHeard(), "right nowhere ") << "the node that is selected was clicked already";
}

TEST_F(WindowsTreePaneTest, WhatAScreenReaderDoesIsAGesture) {
  AddRoots();
  LeftClick(pane.window(), PlaceOf("a"));
  TakeHeard();
  TreeView_SelectItem(pane.window(), pane.ItemOf(tree.Find("b")));
  test::PumpMessages();
  TreeView_Expand(pane.window(), pane.ItemOf(tree.Find("c")), TVE_EXPAND);
  test::PumpMessages();
  EXPECT_EQ(TakeHeard(), "click b open c ");
  EXPECT_EQ(Seen(), Meant());
}

}  // namespace
}  // namespace quorvel::windows
