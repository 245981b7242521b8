// What the control offers to hosts without a data-access component, and to scripts, which have no mouse.
#include <algorithm>
#include <string>
#include <vector>

#include "com/Answer.h"
#include "com/ControlMembers.h"
#include "com/ListRows.h"
#include "datasource/ErrorsProcess.h"
#include "platform/windows/ComValues.h"

namespace quorvel::windows {
namespace {

using datasource::Propagating;
using widgets::NodeId;

// Scripts read arrays of variants alone.
Variant ArrayOf(const std::vector<std::string>& texts) {
  Variant array;
  array.raw().parray = SafeArrayCreateVector(VT_VARIANT, 0, static_cast<ULONG>(texts.size()));
  if (array.raw().parray == nullptr) throw std::bad_alloc();
  array.raw().vt = VT_ARRAY | VT_VARIANT;
  for (LONG i = 0; i < static_cast<LONG>(texts.size()); ++i) {
    Variant text{std::string_view(texts[static_cast<std::size_t>(i)])};
    Check(SafeArrayPutElement(array.raw().parray, &i, &text.raw()), "A list of texts cannot be made");
  }
  return array;
}

}  // namespace

NodeId ControlMembers::NodeOf(BSTR key) {
  const NodeId node = control().controls().tvMotherList.Find(TextOf(key));
  if (node == NodeId::kNone) {
    throw Error(SystemError::kElementNotFound, "The tree has no node of the key " + TextOf(key));
  }
  return node;
}

void ControlMembers::RequireIdle() {
  if (control().AtWork()) throw Error(SystemError::kInvalidCall, "The viewer is at work on an earlier request");
}

HRESULT ControlMembers::OpenHistory(BSTR url, LONG* connect) noexcept {
  return Answer([&] {
    Propagating("Quorvel: ucProcessLog.OpenHistory",
                [&] { *Given(connect) = viewer_->factory->OpenHistory(TextOf(url)); });
  });
}

HRESULT ControlMembers::CloseHistory(LONG connect) noexcept {
  return Answer(
      [&] { Propagating("Quorvel: ucProcessLog.CloseHistory", [&] { viewer_->factory->CloseHistory(connect); }); });
}

HRESULT ControlMembers::RefreshView() noexcept {
  return Answer([&] {
    Propagating("Quorvel: ucProcessLog.RefreshView", [&] {
      RequireIdle();
      control().cmdRefresh_Click();
    });
  });
}

HRESULT ControlMembers::SelectTab(BSTR caption) noexcept {
  return Answer([&] {
    Propagating("Quorvel: ucProcessLog.SelectTab", [&] {
      RequireIdle();
      widgets::TabStrip& strip = control().controls().sstProcessLog;
      const std::string wanted = TextOf(caption);
      const auto tab = std::ranges::find_if(
          strip.tabs(), [&](const widgets::Tab& shown) { return shown.visible && shown.caption == wanted; });
      if (tab == strip.tabs().end()) throw Error(SystemError::kElementNotFound, "There is no tab \"" + wanted + "\"");
      const auto number = static_cast<std::size_t>(tab - strip.tabs().begin());
      if (number == strip.current()) return;
      strip.SetCurrent(number);
      control().sstProcessLog_Click();
    });
  });
}

HRESULT ControlMembers::NodeKeys(VARIANT parent, VARIANT* keys) noexcept {
  return Answer([&] {
    Propagating("Quorvel: ucProcessLog.NodeKeys", [&] {
      VariantInit(Given(keys));
      Variant key;
      Check(VariantCopyInd(&key.raw(), &parent), "A node cannot be named so");
      const bool ofRoot = key.type() == VT_ERROR || key.type() == VT_EMPTY || key.ToText().empty();
      const widgets::TreeView& tree = control().controls().tvMotherList;
      const NodeId node = ofRoot ? NodeId::kNone : NodeOf(Bstr(key.ToText()).get());
      std::vector<std::string> found;
      for (const NodeId child : tree.Children(node)) found.emplace_back(tree.Key(child));
      *keys = std::exchange(ArrayOf(found).raw(), VARIANT{});
    });
  });
}

HRESULT ControlMembers::NodeText(BSTR key, BSTR* text) noexcept {
  return Answer([&] {
    Propagating("Quorvel: ucProcessLog.NodeText", [&] {
      *Given(text) = nullptr;
      *text = Bstr(control().controls().tvMotherList.Text(NodeOf(key))).Detach();
    });
  });
}

HRESULT ControlMembers::AtNode(std::string_view label, BSTR key, void (ucProcessLog::*gesture)(NodeId)) noexcept {
  return Answer([&] {
    Propagating(label, [&] {
      RequireIdle();
      (control().*gesture)(NodeOf(key));
    });
  });
}

HRESULT ControlMembers::ExpandNode(BSTR key) noexcept {
  return AtNode("Quorvel: ucProcessLog.ExpandNode", key, &ucProcessLog::tvMotherList_Expand);
}

HRESULT ControlMembers::CollapseNode(BSTR key) noexcept {
  return AtNode("Quorvel: ucProcessLog.CollapseNode", key, &ucProcessLog::tvMotherList_Collapse);
}

HRESULT ControlMembers::ClickNode(BSTR key) noexcept {
  return AtNode("Quorvel: ucProcessLog.ClickNode", key, &ucProcessLog::tvMotherList_NodeClick);
}

HRESULT ControlMembers::SelectRow(VARIANT indexOrKey) noexcept {
  return Answer([&] {
    Propagating("Quorvel: ucProcessLog.SelectRow", [&] {
      RequireIdle();
      widgets::ListView& list = control().controls().lvMotherList;
      const std::size_t row = RowNamed(list, indexOrKey);
      list.SetSelection(widgets::RowRanges(widgets::RowRange{row, row + 1}), row);
      control().lvMotherList_SelectionChanged();
    });
  });
}

HRESULT ControlMembers::ColumnCaption(LONG column, BSTR* caption) noexcept {
  return Answer([&] {
    Propagating("Quorvel: ucProcessLog.ColumnCaption", [&] {
      *Given(caption) = nullptr;
      const auto& headers = control().controls().lvMotherList.headers();
      if (column < 1) throw Error(SystemError::kIndexOutOfRange, "Columns are counted from 1");
      const auto place = static_cast<std::size_t>(column - 1);
      *caption = Bstr(place < headers.size() ? headers[place].caption : std::string()).Detach();
    });
  });
}

}  // namespace quorvel::windows
