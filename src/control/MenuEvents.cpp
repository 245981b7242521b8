// When the menus are computed anew, and when they come up.
#include <optional>
#include <string>

#include "control/Entry.h"
#include "control/Menus.h"
#include "list/Classification.h"
#include "list/RowFacts.h"
#include "util/PublicFunctions.h"

namespace quorvel {

using datasource::Reporting;
using widgets::NodeId;

void ucProcessLog::MajMenu() {
  menuState_ = ApplyMenuRules(FactsForMenus(), controls_.mnu_Popup, controls_.mnu_PopupTV);
}

// Looks at the selected item and at numbers alone: a million selected rows are no more work than one.
MenuFacts ucProcessLog::FactsForMenus() const {
  const widgets::ListView& list = controls_.lvMotherList;
  const widgets::TreeView& tree = controls_.tvMotherList;
  MenuFacts facts{.tab = controls_.sstProcessLog.currentCaption(),
                  .nodes = tree.Count(),
                  .rows = list.Count(),
                  .selectedRows = list.Selection().Count(),
                  .mayChangeAlarms = MayChangeAlarms(),
                  .serverMode = serverMode_};
  if (tree.Selected() != NodeId::kNone) facts.nodeKind = util::Identifiant(tree.Key(tree.Selected()), 1);
  if (const auto row = list.SelectedItem()) {
    const std::string key = list.Key(*row);
    facts.currentProcess = list::IsCurrentProcessName(key);
    facts.attachment = !list::AttachmentOf(list, *row).empty();
    facts.alarm = list::AlarmMarkOf(list, *row);
    facts.processReference = facts.alarm != list::AlarmMark::kNone && !list::RunKeyIn(key).empty();
  }
  return facts;
}

void ucProcessLog::TellHost(std::string_view label) {
  if (f_blnClickNode) return;
  if (std::exchange(selectionMoved_, false)) {
    Reporting(errors_, label, [&] {
      MajMenu();
      Raise(&HostEvents::MajMenu);
    });
  }
  // A host that fails at one thing still hears of the others.
  for (const auto& tell : std::exchange(toTell_, {})) Reporting(errors_, label, tell);
}

void ucProcessLog::AfterWork(std::function<void()> body) {
  toTell_.emplace_back(std::move(body));
  TellHost("Quorvel: ucProcessLog.AfterWork");
}

void ucProcessLog::lvMotherList_SelectionChanged() {
  selectionMoved_ = true;
  TellHost("Quorvel: ucProcessLog.lvMotherList_SelectionChanged");
}

void ucProcessLog::lvMotherList_MouseDown(MouseButton button, std::optional<std::size_t> row) {
  constexpr std::string_view kLabel = "Quorvel: ucProcessLog.lvMotherList_MouseDown";
  if (f_blnClickNode) return;
  Reporting(errors_, kLabel, [&] {
    widgets::ListView& list = controls_.lvMotherList;
    if (button == MouseButton::kRight && !(row && list.Selection().Contains(*row))) {
      list.SetSelection(row ? widgets::RowRanges(widgets::RowRange{*row, *row + 1}) : widgets::RowRanges());
      selectionMoved_ = true;
    }
    MajMenu();
  });
  TellHost(kLabel);
  if (button == MouseButton::kRight) controls_.mnu_Popup.Open();
}

void ucProcessLog::tvMotherList_MouseUp(MouseButton button, NodeId node) {
  if (button != MouseButton::kRight || f_blnClickNode) return;
  if (node != NodeId::kNone) {
    Handle("Quorvel: ucProcessLog.tvMotherList_MouseUp", [&] { GoTo(node); });
  }
  if (controls_.tvMotherList.Count() > 0) controls_.mnu_PopupTV.Open();
}

}  // namespace quorvel
