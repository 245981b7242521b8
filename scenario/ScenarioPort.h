// What a scenario needs of a front end: gestures on a viewer, and reading back what a user sees of it.
#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "control/ucProcessLog.h"
#include "datasource/RecordSource.h"
#include "platform/Platform.h"
#include "scenario/DataComponent.h"
#include "scenario/Keys.h"
#include "widgets/Control.h"
#include "widgets/Menu.h"

namespace quorvel::scenario {

// Any control.
struct SeenControl {
  bool visible = false;  // it and all that it lies in
  bool enabled = false;
  widgets::Rect bounds;              // within what it lies in
  std::string text;                  // caption; "" for controls without one
  std::optional<std::string> value;  // what it is set to, as a script sets it; nothing for labels and the like
  std::vector<std::string> items;    // rows of a combo or list box
};

struct SeenTab {
  std::string caption;
  bool enabled = false;
  bool current = false;
};

struct SeenNode {
  widgets::NodeId node = widgets::NodeId::kNone;
  std::size_t depth = 0;  // 0 = a root
  std::string text;
  widgets::SystemColour colour = widgets::SystemColour::kWindowText;
  bool bold = false;
  bool expandable = false;
  bool open = false;
  bool selected = false;
};

struct SeenHeader {
  std::string caption;
  widgets::Twips width = 0;
  widgets::Alignment alignment = widgets::Alignment::kLeft;
};

struct SeenRow {
  std::vector<std::string> cells;
  bool bold = false;
  bool selected = false;
};

struct SeenMenuEntry {
  std::string name;
  std::string caption;  // "-" for a separator
  bool visible = false;
  bool enabled = false;
};

// A popup menu; its entries can be read while it is not open, too.
struct SeenMenu {
  bool open = false;
  std::vector<SeenMenuEntry> entries;
};

// The key that is held while a mouse button is pressed.
enum class Held { kNothing, kCtrl, kShift };

// One viewer on a form.
//
// Gestures are made as a user makes them, and return when all that follows from them was done. The runner has made sure
// that the user can see and use what they are made on. Reading gives what is shown, from the widgets where there are
// widgets; keys and icon names alone, which no widget shows, come from the models.
class ViewerPort {
 public:
  virtual ~ViewerPort() = default;

  // The viewer itself, for what a host programmer does with it.
  virtual ucProcessLog& viewer() = 0;

  virtual SeenControl Look(const widgets::Control& control) const = 0;
  // Tabs that are hidden are left out.
  virtual std::vector<SeenTab> Tabs() const = 0;
  // All nodes from top to bottom, those below closed ones too.
  virtual std::vector<SeenNode> Nodes() const = 0;
  virtual bool IsOpen(widgets::NodeId node) const = 0;
  virtual std::vector<SeenHeader> Headers() const = 0;
  virtual std::vector<SeenRow> Rows() const = 0;
  // The first node and the first row in sight; none while there is none.
  virtual widgets::NodeId TopNode() const = 0;
  virtual std::optional<std::size_t> TopRow() const = 0;
  virtual bool HasFocus(const widgets::Control& control) const = 0;
  virtual SeenMenu Look(const widgets::Menu& menu) const = 0;

  // In pixels at 96 dots per inch.
  virtual void Resize(int width, int height) = 0;
  virtual void ClickTab(std::string_view caption) = 0;
  virtual void Choose(widgets::ComboBox& combo, std::size_t row) = 0;
  virtual void ChooseItem(widgets::ListBox& list, std::size_t row) = 0;
  virtual void Type(widgets::TextBox& box, std::string_view text) = 0;
  virtual void Pick(widgets::DateTimePicker& picker, DateValue value) = 0;
  virtual void Check(widgets::CheckBox& box, bool checked) = 0;
  virtual void Press(widgets::Button& button) = 0;
  virtual void Spin(widgets::UpDown& upDown, bool up) = 0;
  virtual void SetOpen(widgets::NodeId node, bool open) = 0;
  virtual void ClickNode(widgets::NodeId node) = 0;
  // In place of the selection.
  virtual void SelectRows(std::span<const std::size_t> rows) = 0;
  virtual void DoubleClickRow(std::size_t row) = 0;
  // On a row or, without one, on the space below the rows.
  virtual void PressRow(std::optional<std::size_t> row, MouseButton button, Held held) = 0;
  // On a node or, for kNone, on the space below the nodes.
  virtual void RightClickNode(widgets::NodeId node) = 0;
  // An entry of an open menu.
  virtual void PickEntry(widgets::Menu& menu, std::size_t entry) = 0;
  // A column header, counted from 0: clicked; its right edge dragged until it is so wide.
  virtual void ClickHeader(std::size_t column) = 0;
  virtual void WidenColumn(std::size_t column, widgets::Twips width) = 0;
  // The splitter: press on the grip, move by whole pixels from where it was pressed, let go.
  virtual void PressGrip() = 0;
  virtual void MoveGrip(int pixels) = 0;
  virtual void ReleaseGrip() = 0;
  virtual void Scroll(widgets::ScrollBar& bar, std::int32_t value) = 0;
  // Until this node, or this row, stands first, or as far as it goes.
  virtual void ScrollTree(widgets::NodeId top) = 0;
  virtual void ScrollList(std::size_t top) = 0;
  // By the keyboard; nullptr: to what lies outside the viewer.
  virtual void MoveFocus(const widgets::Control* control) = 0;
  // Where the keys go: an open menu, a dialog, the pane that has the focus.
  virtual void Press(const Key& key) = 0;
  // The detail dialog: its caption while it is open; its size, in pixels at 96 dots per inch.
  virtual std::optional<std::string> DialogCaption() const = 0;
  virtual void ResizeDialog(int width, int height) = 0;
  // Letters, in one go, after a pause; in the pane that has the focus.
  virtual void TypeAhead(std::string_view text) = 0;
};

// A host: its data, its form, and its status bar.
class ScenarioPort {
 public:
  virtual ~ScenarioPort() = default;
  // The component that the host's viewers read from, asked for once. The hub in this program, unless a port has
  // another.
  virtual std::unique_ptr<DataComponent> MakeDataComponent();

  // Puts a new viewer on the form. It uses this platform and these record sources, which outlive it.
  virtual std::unique_ptr<ViewerPort> PlaceViewer(Platform& platform, datasource::RecordSourceFactory& factory) = 0;

  // The first panel of stStatusBar.
  virtual void SetStatusText(std::string_view text) = 0;
  virtual std::string StatusText() const = 0;
};

}  // namespace quorvel::scenario
