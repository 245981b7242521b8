// Somebody who clicks about in a viewer at random, while others change the history.
#pragma once

#include <cstdint>
#include <deque>
#include <random>
#include <set>
#include <sstream>
#include <string>
#include <string_view>

#include "scenario/Scenario.h"
#include "scenario/ScenarioHeadless.h"
#include "support/SmallHistory.h"

namespace quorvel::test {

class Walker {
 public:
  // The same seed makes the same walk.
  explicit Walker(std::uint64_t seed);

  // Makes one gesture. Gives what is wrong then, "" = nothing.
  std::string Step();

  // Compares what is shown, after a refresh, with a new viewer that was led to the same place. Gives where they differ.
  std::string CompareWithNew();

  // What was to be seen after each step, added up: a walk in the dark would prove nothing.
  struct Seen {
    std::size_t nodes = 0;
    std::size_t rows = 0;
    std::set<std::string> views;  // by the name of each
  };
  const Seen& seen() const { return seen_; }

  // The last gestures, one a line.
  std::string Trail() const;

 private:
  static constexpr std::int32_t kWalked = 1;
  static constexpr std::int32_t kNew = 2;

  scenario::ViewerPort& port() { return session().viewer(); }
  ucProcessLog& viewer() { return port().viewer(); }
  ProcessLogControls& controls() { return viewer().controls(); }
  scenario::Session& session() { return scenario_.session(); }
  std::string Print(std::string_view what);

  // Below `count`.
  std::size_t Any(std::size_t count);
  bool Once(std::size_t in) { return Any(in) == 0; }
  template <class Table>
  const auto& OneOf(const Table& table) {
    return table[Any(std::size(table))];
  }
  void Note(std::string gesture);

  // Gestures; a node that is in sight, kNone while there is none.
  widgets::NodeId AnyNode();
  void InTree();
  void InList();
  void InOptions();
  void OnTabs();
  void OnForm();
  void ByMenu();
  void InDialog();
  void AsHost();
  void InHistory();

  std::string WhatIsWrong();

  // The new viewer: asked for the same, opened and sorted in the same way.
  void BuildAsWalked(ucProcessLog& walked);
  void Refresh();
  void ArrangeGroups(const widgets::ListBox& wanted);
  void OpenAs(const widgets::TreeView& walked, widgets::NodeId walkedParent, widgets::NodeId parent);
  void SelectAs(const widgets::TreeView& walked);
  void SortAs(const widgets::ListView& walked);

  SmallHistory history_;
  scenario::ScenarioHeadless port_;
  scenario::Scenario scenario_{port_};
  std::mt19937_64 random_;
  std::deque<std::string> trail_;
  Seen seen_;
  bool periodWrong_ = false;
};

}  // namespace quorvel::test
