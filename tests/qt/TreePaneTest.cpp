// The drawn tree against the tree's own state, and what gestures on it ask for.
#include "qt/TreePane.h"

#include <gtest/gtest.h>

#include <QAbstractItemModelTester>
#include <QAccessible>
#include <QTest>
#include <random>
#include <string>
#include <vector>

#include "PaintCount.h"

namespace quorvel::qt {
namespace {

using widgets::NodeId;

class TreePaneTest : public testing::Test {
 protected:
  TreePaneTest() {
    pane.resize(300, 400);
    pane.show();
    QCoreApplication::processEvents();
  }

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

  // Lines as a user sees them: two blanks a level, "-" open, "+" closed, "*" the highlighted one.
  std::string Seen() {
    std::string text;
    for (QModelIndex at = pane.model()->index(0, 0); at.isValid(); at = pane.indexBelow(at)) {
      for (QModelIndex up = at.parent(); up.isValid(); up = up.parent()) text += "  ";
      const bool expandable = pane.model()->hasChildren(at);
      text += std::string(!expandable           ? " "
                          : pane.isExpanded(at) ? "-"
                                                : "+") +
              at.data().toString().toStdString() + (pane.selectionModel()->isSelected(at) ? "*\n" : "\n");
    }
    return text;
  }
  std::string Meant(NodeId parent = NodeId::kNone, const std::string& blanks = "") {
    std::string text;
    for (const NodeId node : tree.Children(parent)) {
      text += blanks +
              (!tree.IsExpandable(node) ? " "
               : tree.IsExpanded(node)  ? "-"
                                        : "+") +
              std::string(tree.Text(node)) + (tree.Selected() == node ? "*\n" : "\n");
      if (tree.IsExpanded(node)) text += Meant(node, blanks + "  ");
    }
    return text;
  }

  void Key(Qt::Key key) { QTest::keyClick(&pane, key); }
  void PressOn(const char* key, int fromTextLeft = 20) {
    const QRect place = pane.visualRect(pane.nodes().IndexOf(tree.Find(key)));
    QTest::mouseClick(pane.viewport(), Qt::LeftButton, {}, {place.left() + fromTextLeft, place.center().y()});
  }
  std::string TakeHeard() { return std::exchange(heard, ""); }

  widgets::TreeView tree{"tree"};
  std::string heard;
  bool refuses = false;
  TreePane pane{tree, Gestures()};
};

TEST_F(TreePaneTest, ShowsWhatTheTreeHoldsWhateverHappensToIt) {
  const QAbstractItemModelTester tester(pane.model(), QAbstractItemModelTester::FailureReportingMode::Fatal);
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
    } else if (kind < 99) {
      tree.RemoveChildren(node);
    } else {
      tree.Clear();
    }
  };
  for (int step = 0; step < 1500; ++step) {
    if (upTo(3) == 0) {
      tree.InBatch([&] {
        for (std::size_t i = upTo(5); i > 0; --i) change();
      });
    } else {
      change();
    }
    if (upTo(4) == 0) QCoreApplication::processEvents();
    ASSERT_EQ(Seen(), Meant()) << "after step " << step;
  }
  EXPECT_EQ(heard, "") << "changes of the tree are no gestures";
}

TEST_F(TreePaneTest, LoadsWhatIsOpenedByKeyExpanderAndDoubleClick) {
  for (const char* key : {"a", "b", "c"}) tree.SetPlaceholder(tree.Add(NodeId::kNone, key, key, "Process"), true);
  pane.setFocus();
  tree.Select(tree.Find("a"));
  Key(Qt::Key_Right);
  EXPECT_EQ(TakeHeard(), "open a ");
  EXPECT_EQ(Seen(), "-a*\n  +a.1\n  +a.2\n+b\n+c\n");
  Key(Qt::Key_Right);  // into the children
  Key(Qt::Key_Down);
  EXPECT_EQ(TakeHeard(), "click a.1 click a.2 ");
  PressOn("b", -10);  // the expander selects nothing
  EXPECT_EQ(TakeHeard(), "open b ");
  const QPoint inC = pane.visualRect(pane.nodes().IndexOf(tree.Find("c"))).center();
  QTest::mouseClick(pane.viewport(), Qt::LeftButton, {}, inC);
  QTest::mouseDClick(pane.viewport(), Qt::LeftButton, {}, inC);
  EXPECT_EQ(TakeHeard(), "click c open c ");
  tree.Select(tree.Find("a"));
  Key(Qt::Key_Minus);
  // Opens what is loaded, and loads no deeper.
  Key(Qt::Key_Asterisk);
  EXPECT_EQ(TakeHeard(), "close a open a ");
  EXPECT_EQ(Seen(), Meant());
  Key(Qt::Key_Left);
  refuses = true;
  Key(Qt::Key_Plus);
  EXPECT_EQ(TakeHeard(), "close a open a ");
  EXPECT_FALSE(pane.isExpanded(pane.nodes().IndexOf(tree.Find("a")))) << "the owner refused";
}

TEST_F(TreePaneTest, ClicksOnceAGesture) {
  for (const char* key : {"a", "b", "c"}) tree.Add(NodeId::kNone, key, key, "Process");
  PressOn("b");
  PressOn("b");
  EXPECT_EQ(TakeHeard(), "click b click b ");
  Key(Qt::Key_Down);
  Key(Qt::Key_Down);  // there is nothing below
  EXPECT_EQ(TakeHeard(), "click c ");
  QTest::mouseClick(pane.viewport(), Qt::LeftButton, Qt::ControlModifier, {100, 350});  // empty space
  EXPECT_EQ(TakeHeard(), "");
  EXPECT_EQ(Seen(), " a\n b\n c*\n");
}

TEST_F(TreePaneTest, PaintsABatchOnceAndKeepsItsPlace) {
  const auto fill = [&](int count) {
    tree.InBatch([&] {
      tree.Clear();
      for (int i = 0; i < count; ++i) {
        const NodeId node = tree.Add(NodeId::kNone, std::to_string(i), "node", "Process");
        tree.Add(node, "child", "child", "ProcessOk");
        tree.SetExpanded(node, i % 2 == 0);
      }
      tree.Select(tree.Find("150"));
    });
  };
  fill(1000);
  test::PaintCount paints(*pane.viewport());
  paints.Take();
  const auto rowOfSelected = [&] { return pane.visualRect(pane.currentIndex()).top(); };
  const int before = rowOfSelected();
  fill(1001);
  EXPECT_EQ(paints.Take(), 1);
  EXPECT_EQ(rowOfSelected(), before) << "the same node at the same place after it was built again";
  tree.InBatch([&] {
    for (int i = 0; i < 100; ++i) tree.SetNodeText(tree.Child(NodeId::kNone, static_cast<std::size_t>(i)), "other");
  });
  EXPECT_LE(paints.Take(), 1);
  // A selection below closed nodes opens nothing: that is for the owner to say.
  tree.InBatch([&] { tree.Select(tree.Child(tree.Find("151"), 0)); });
  EXPECT_FALSE(pane.isExpanded(pane.nodes().IndexOf(tree.Find("151"))));
}

TEST_F(TreePaneTest, LeavesTheRightButtonAndTheKeysForAMenuToTheOwner) {
  for (const char* key : {"a", "b"}) tree.Add(NodeId::kNone, key, key, "Process");
  PressOn("a");
  TakeHeard();
  const QPoint onB = pane.visualRect(pane.nodes().IndexOf(tree.Find("b"))).center();
  QTest::mousePress(pane.viewport(), Qt::RightButton, {}, onB);
  EXPECT_EQ(TakeHeard(), "");
  QTest::mouseRelease(pane.viewport(), Qt::RightButton, {}, onB);
  QTest::mouseClick(pane.viewport(), Qt::RightButton, {}, {5, pane.viewport()->height() - 2});
  EXPECT_EQ(TakeHeard(), "right b right nowhere ");
  EXPECT_EQ(tree.Selected(), tree.Find("a"));
  Key(Qt::Key_Menu);
  EXPECT_EQ(TakeHeard(), "right nowhere ") << "the node that is selected was clicked already";
}

TEST_F(TreePaneTest, ANodeThatAScreenReaderSelectsIsClicked) {
  for (const char* key : {"a", "b"}) tree.Add(NodeId::kNone, key, key, "ProcessNONOK");
  PressOn("a");
  TakeHeard();
  QAccessibleInterface& seen = *QAccessible::queryAccessibleInterface(&pane);
  QAccessibleInterface& node = *seen.tableInterface()->cellAt(1, 0);
  EXPECT_EQ(node.text(QAccessible::Name), "b, Not OK");
  node.actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
  EXPECT_EQ(TakeHeard(), "click b ");
  EXPECT_EQ(Seen(), " a\n b*\n");
}

}  // namespace
}  // namespace quorvel::qt
