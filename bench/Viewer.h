// The history viewer as a user has it, off-screen: the real control, hub and Qt front end on a history.
#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <string_view>

#include "BenchPlatform.h"
#include "Painting.h"
#include "control/ucProcessLog.h"
#include "hub/RecordHub.h"
#include "qt/ProcessLogWidget.h"

namespace quorvel::bench {

// What is timed begins with the gesture and ends when the pane that it fills has painted.
class Viewer {
 public:
  // Shows the last executions; the options ask for everything since 2025-11-01.
  explicit Viewer(const std::filesystem::path& history);

  // Build the tree of all runs, by process or by station.
  double ShowProcesses();
  double ShowUsers();
  // Build the other views, each with the list of what it selects first.
  double ShowConnections(bool byDay);
  double ShowAlarms();
  double ShowBackups();
  double ShowImport(std::int32_t import);
  // Fills the list alone.
  double ShowSystemLog();

  // By the gestures of the keyboard: opening a node by its expander, going to a node.
  double Open(widgets::NodeId node);
  double Click(widgets::NodeId node);

  // Opens all roots.
  void OpenRoots();

  // Sorts the list by a column, counted from 1.
  double SortBy(std::size_t column);

  ucProcessLog& control() { return widget_.control(); }
  const widgets::TreeView& tree() { return control().controls().tvMotherList; }
  // The node at these rows, from the roots down.
  widgets::NodeId NodeAt(std::initializer_list<std::size_t> rows);
  DateValue from() { return ReadOptions(control().controls(), StateFilter::kAll).start; }
  DateValue to() { return ReadOptions(control().controls(), StateFilter::kAll).end; }

 private:
  double UntilPainted(PaintCounter& paints, const std::function<void()>& gesture);

  BenchPlatform platform_;
  hub::RecordHub hub_;
  qt::ProcessLogWidget widget_;
  PaintCounter treePaints_;
  PaintCounter listPaints_;
};

}  // namespace quorvel::bench
