// The history viewer as a user of Windows has it: the real control, hub and front end on a history.
#pragma once

#include <windows.h>

#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>

#include "BenchPlatform.h"
#include "control/ucProcessLog.h"
#include "hub/RecordHub.h"
#include "windows/Ear.h"
#include "windows/Handles.h"
#include "windows/ProcessLogWindow.h"

namespace quorvel::bench {

// What a pane was sent since the last look.
struct SentMessages {
  int paints = 0;
  int insertions = 0;       // of items, into the native control
  int shownInsertions = 0;  // the ones of them after which the control was to draw at once
  int erasures = 0;         // of its background outside a painting
};

// Hears what a native list or tree is sent.
class MessageRecorder {
 public:
  explicit MessageRecorder(HWND window);
  const SentMessages& sent() const { return sent_; }
  void Forget() { sent_ = {}; }

 private:
  std::optional<LRESULT> Hear(UINT message, WPARAM wParam);

  HWND window_;
  SentMessages sent_;
  bool redraws_ = true;
  windows::Ear ear_;
};

// What is timed begins with the request or the gesture and ends when the pane that it fills has painted.
class NativeViewer {
 public:
  // Shows the last executions; the options ask for everything since 2025-11-01.
  explicit NativeViewer(const std::filesystem::path& history);

  // Builds the tree of all runs by process.
  double ShowProcesses();
  // Goes to a node, as a click does, and so fills the list.
  double Click(widgets::NodeId node);

  ucProcessLog& control() { return control_; }
  MessageRecorder& tree() { return *tree_; }
  MessageRecorder& list() { return *list_; }
  DateValue from() { return ReadOptions(control_.controls(), StateFilter::kAll).start; }
  DateValue to() { return ReadOptions(control_.controls(), StateFilter::kAll).end; }

 private:
  double UntilPainted(MessageRecorder& pane, const std::function<void()>& gesture);

  BenchPlatform platform_;
  hub::RecordHub hub_;
  ucProcessLog control_;
  windows::UniqueWindow form_;
  std::optional<windows::ProcessLogWindow> viewer_;
  std::optional<MessageRecorder> tree_;
  std::optional<MessageRecorder> list_;
};

}  // namespace quorvel::bench
