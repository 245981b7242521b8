#include "scenario_windows/WindowsViewer.h"

#include <algorithm>
#include <utility>

#include "scenario/Script.h"
#include "scenario/Values.h"
#include "scenario_windows/NativeControls.h"
#include "windows/DetailWindow.h"
#include "windows/ListPane.h"
#include "windows/PopupMenu.h"
#include "windows/TreePane.h"

namespace quorvel::scenario {
namespace {

using widgets::NodeId;
using windows::Scale;

constexpr int kIntoText = 3;  // pixels from the edge of an item

void ResizeWindow(HWND window, int width, int height) {
  SetWindowPos(window, HWND_TOP, 0, 0, width, height, SWP_NOMOVE | SWP_NOACTIVATE);
}

// Fields are as high as fields are on this desktop, and stand in the middle of their places.
bool IsField(const widgets::Control& control) {
  return dynamic_cast<const widgets::ComboBox*>(&control) != nullptr ||
         dynamic_cast<const widgets::TextBox*>(&control) != nullptr ||
         dynamic_cast<const widgets::DateTimePicker*>(&control) != nullptr ||
         dynamic_cast<const widgets::UpDown*>(&control) != nullptr;
}

// The first letter typed comes after a pause and the others do not, however slow the machine is.
class TypingPause {
 public:
  TypingPause() { SetDoubleClickTime(kNone); }
  ~TypingPause() { SetDoubleClickTime(before_); }
  TypingPause(const TypingPause&) = delete;
  TypingPause& operator=(const TypingPause&) = delete;
  static void NoMore() { SetDoubleClickTime(kLong); }

 private:
  static constexpr UINT kNone = 1;  // milliseconds
  static constexpr UINT kLong = 5000;
  const UINT before_ = GetDoubleClickTime();
};

}  // namespace

// A window system gives a new form the focus, or does not; a script begins without it.
WindowsViewer::WindowsViewer(HWND form, Platform& platform, datasource::RecordSourceFactory& factory, MessagePump& pump,
                             FormLayout layout)
    : form_(form),
      pump_(pump),
      layout_(std::move(layout)),
      input_(pump),
      control_(platform, factory),
      window_(control_, form) {
  pump_.Serve(window_);
  if (layout_.placed) layout_.placed(window_);
  MoveFocus(nullptr);
}

// A menu that a script leaves open waits in a loop, on the stack of the pump, that uses the window.
WindowsViewer::~WindowsViewer() {
  if (window_.listMenu().menu() != nullptr || window_.treeMenu().menu() != nullptr) input_.PressKey(form_, VK_ESCAPE);
  pump_.Leave(window_);
  if (layout_.leaving) layout_.leaving();
}

HWND WindowsViewer::WindowOf(const widgets::Control& control) const {
  const HWND window = window_.WindowOf(control);
  return window != nullptr ? window : window_.detail().WindowOf(control);
}

HWND WindowsViewer::Of(const widgets::Control& control) const {
  const HWND window = WindowOf(control);
  if (window == nullptr) throw ScriptError("No window draws " + control.name());
  return window;
}

HWND WindowsViewer::TreeWindow() const {
  return window_.tree().window();
}
HWND WindowsViewer::ListWindow() const {
  return window_.list().window();
}
HWND WindowsViewer::HeaderWindow() const {
  return window_.list().header();
}

// A window lies on whole pixels. Where it lies on those that the twips of its control round to, it lies there.
widgets::Rect WindowsViewer::BoundsOf(HWND window, const widgets::Control& control) const {
  const Scale scale = windows::ScaleOf(window_.window());
  const RECT wanted = scale.ToPixels(control.bounds());
  const RECT place = PlaceIn(GetParent(window), window);
  const bool amidst = IsField(control) && CentreOf(place).y == CentreOf(wanted).y;
  const bool upright = amidst || (place.top == wanted.top && place.bottom == wanted.bottom);
  if (upright && place.left == wanted.left && place.right == wanted.right) return control.bounds();
  return {scale.ToTwips(place.left), scale.ToTwips(place.top), scale.ToTwips(place.right - place.left),
          scale.ToTwips(place.bottom - place.top)};
}

SeenControl WindowsViewer::Look(const widgets::Control& control) const {
  const HWND window = WindowOf(control);
  if (window == nullptr) return {};  // what nobody draws is not to be seen
  SeenControl seen = SeeControl(control, window);
  seen.bounds = BoundsOf(window, control);
  return seen;
}

std::vector<SeenTab> WindowsViewer::Tabs() const {
  const HWND tabs = Of(c_.sstProcessLog);
  const LRESULT current = Send(tabs, TCM_GETCURSEL);
  const auto count = static_cast<int>(Send(tabs, TCM_GETITEMCOUNT));
  std::vector<SeenTab> seen;
  seen.reserve(static_cast<std::size_t>(count));
  for (int tab = 0; tab < count; ++tab) {
    seen.push_back({TabCaption(tabs, tab), !IsTabGray(tabs, tab), tab == current});
  }
  return seen;
}

std::vector<SeenNode> WindowsViewer::Nodes() const {
  std::vector<SeenNode> seen;
  AppendChildren(NodeId::kNone, 0, seen);
  return seen;
}

void WindowsViewer::AppendChildren(NodeId parent, std::size_t depth, std::vector<SeenNode>& seen) const {
  windows::TreePane& pane = window_.tree();
  const HWND tree = pane.window();
  HTREEITEM item =
      parent == NodeId::kNone ? NextItem(tree, TVGN_ROOT) : NextItem(tree, TVGN_CHILD, pane.ItemOf(parent));
  if (item == nullptr) return AppendUnopened(parent, depth, seen);
  for (; item != nullptr; item = NextItem(tree, TVGN_NEXT, item)) {
    SeenNode node = SeeItem(tree, item);
    node.node = pane.NodeOf(item);
    node.depth = depth;
    const NodeId id = node.node;
    seen.push_back(std::move(node));
    AppendChildren(id, depth + 1, seen);
  }
}

// The native tree holds the children of a node from when it is opened first.
void WindowsViewer::AppendUnopened(NodeId parent, std::size_t depth, std::vector<SeenNode>& seen) const {
  const widgets::TreeView& tree = c_.tvMotherList;
  for (const NodeId node : tree.Children(parent)) {
    seen.push_back({node, depth, std::string(tree.Text(node)), tree.ForeColour(node), tree.IsBold(node),
                    tree.IsExpandable(node), tree.IsExpanded(node), false});
    AppendUnopened(node, depth + 1, seen);
  }
}

bool WindowsViewer::IsOpen(NodeId node) const {
  const HTREEITEM item = window_.tree().ItemOf(node);
  return item != nullptr && IsItemOpen(TreeWindow(), item);
}

// As for windows: a width that the twips round to is theirs; so is that of a single column that fills the list, from
// which the frame of the list takes some.
std::vector<SeenHeader> WindowsViewer::Headers() const {
  const Scale scale = windows::ScaleOf(window_.window());
  const auto& headers = c_.lvMotherList.headers();
  const bool single = headers.size() == 1 && headers[0].width == c_.lvMotherList.bounds().width;
  std::vector<SeenHeader> seen;
  for (NativeHeader& native : HeadersOf(HeaderWindow())) {
    const widgets::Twips wanted = headers.at(seen.size()).width;
    const bool fills = single && native.width == ClientOf(ListWindow()).right;
    const bool there = fills || native.width == scale.ToPixels(wanted);
    seen.push_back({std::move(native.caption), there ? wanted : scale.ToTwips(native.width), native.alignment});
  }
  return seen;
}

std::vector<SeenRow> WindowsViewer::Rows() const {
  const HWND list = ListWindow();
  const std::size_t columns = HeadersOf(HeaderWindow()).size();
  std::vector<SeenRow> seen(static_cast<std::size_t>(Send(list, LVM_GETITEMCOUNT)));
  for (std::size_t row = 0; row < seen.size(); ++row) seen[row] = SeeRow(list, row, columns);
  return seen;
}

NodeId WindowsViewer::TopNode() const {
  return window_.tree().NodeOf(NextItem(TreeWindow(), TVGN_FIRSTVISIBLE));
}

std::optional<std::size_t> WindowsViewer::TopRow() const {
  if (Send(ListWindow(), LVM_GETITEMCOUNT) == 0) return std::nullopt;
  return static_cast<std::size_t>(Send(ListWindow(), LVM_GETTOPINDEX));
}

bool WindowsViewer::HasFocus(const widgets::Control& control) const {
  return GetFocus() == Of(control);
}

windows::PopupMenu& WindowsViewer::PopupOf(const widgets::Menu& menu) const {
  return &menu == &c_.mnu_Popup ? window_.listMenu() : window_.treeMenu();
}

// The native menu is made when it comes up, of the entries that it shows then; names are no part of it.
SeenMenu WindowsViewer::Look(const widgets::Menu& menu) const {
  const HMENU native = PopupOf(menu).menu();
  SeenMenu seen{native != nullptr, {}};
  for (std::size_t i = 0; i < menu.entries().size(); ++i) {
    const widgets::MenuEntry& entry = menu.entries()[i];
    SeenMenuEntry each{entry.name, entry.caption, entry.visible, entry.enabled};
    if (native != nullptr) SeeEntry(native, windows::PopupMenu::IdOf(i), each);
    seen.entries.push_back(std::move(each));
  }
  return seen;
}

void WindowsViewer::Resize(int width, int height) {
  const Scale scale = windows::ScaleOf(form_);
  const int wantedWidth = scale.Of96(width);
  const int wantedHeight = scale.Of96(height);
  if (layout_.placed) {
    const RECT outer = PlaceIn(nullptr, form_);
    const RECT inner = ClientOf(window_.window());
    ResizeWindow(form_, outer.right - outer.left + wantedWidth - inner.right,
                 outer.bottom - outer.top + wantedHeight - inner.bottom);
  } else {
    ResizeWindow(window_.window(), wantedWidth, wantedHeight);
  }
  pump_.Settle();
}

std::optional<std::string> WindowsViewer::DialogCaption() const {
  const HWND dialog = window_.detail().window();
  return dialog != nullptr && IsWindowVisible(dialog) != FALSE ? std::optional(TextOf(dialog)) : std::nullopt;
}

void WindowsViewer::ResizeDialog(int width, int height) {
  const HWND dialog = window_.detail().window();
  const Scale scale = windows::ScaleOf(dialog);
  const RECT inner = ClientOf(dialog);
  const RECT outer = PlaceIn(nullptr, dialog);
  ResizeWindow(dialog, scale.Of96(width) + (outer.right - outer.left) - inner.right,
               scale.Of96(height) + (outer.bottom - outer.top) - inner.bottom);
  pump_.Settle();
}

void WindowsViewer::ClickTab(std::string_view caption) {
  const HWND tabs = Of(c_.sstProcessLog);
  int tab = 0;
  while (TabCaption(tabs, tab) != caption) ++tab;
  RECT head{};
  Send(tabs, TCM_GETITEMRECT, static_cast<WPARAM>(tab), &head);
  input_.Click(tabs, CentreOf(head));
}

void WindowsViewer::Choose(widgets::ComboBox& combo, std::size_t row) {
  const HWND box = Of(combo);
  input_.PostKey(box, VK_F4);  // opens the list
  input_.PostKey(box, VK_HOME);
  for (std::size_t step = 0; step < row; ++step) input_.PostKey(box, VK_DOWN);
  input_.PostKey(box, VK_RETURN);
  pump_.Settle();
}

void WindowsViewer::ChooseItem(widgets::ListBox& list, std::size_t row) {
  const HWND box = Of(list);
  RECT item{};
  Send(box, LB_GETITEMRECT, row, &item);
  input_.Click(box, CentreOf(item));
}

void WindowsViewer::Type(widgets::TextBox& box, std::string_view text) {
  const HWND edit = Of(box);
  Send(edit, EM_SETSEL, 0, -1);
  input_.PressKey(edit, VK_DELETE);
  input_.Type(edit, windows::ToWide(text));
}

void WindowsViewer::Pick(widgets::DateTimePicker& picker, DateValue value) {
  const HWND edit = Of(picker);
  const bool time = picker.name() == "dtpHour";
  const std::string wanted = time ? TimeText(value) : FormatFixedDate(value);
  // The day of the date before may not exist in the month that was typed, which then is refused or cut.
  for (int pass = 0; pass < 2 && TextOf(edit) != wanted; ++pass) TypeParts(edit, wanted, time ? ':' : '-');
  if (TextOf(edit) != wanted) throw ScriptError("Nobody can type " + wanted + " into " + picker.name());
}

// Year, month and day, or hour, minute and second, from left to right. A picker takes keys with the focus alone, which
// then goes back to where the script has put it.
void WindowsViewer::TypeParts(HWND edit, std::string_view text, char separator) {
  const HWND before = SetFocus(edit);
  input_.Click(edit, {2 * kIntoText, ClientOf(edit).bottom / 2});
  for (std::size_t begin = 0; begin < text.size();) {
    const std::size_t end = std::min(text.find(separator, begin), text.size());
    input_.PostText(edit, windows::ToWide(text.substr(begin, end - begin)));
    input_.PostKey(edit, VK_RIGHT);
    begin = end + 1;
  }
  pump_.Settle();
  SetFocus(before);
}

void WindowsViewer::Check(widgets::CheckBox& box, bool checked) {
  const HWND check = Of(box);
  if ((Send(check, BM_GETCHECK) == BST_CHECKED) == checked) return;
  input_.Click(check, {2 * kIntoText, ClientOf(check).bottom / 2});
}

void WindowsViewer::Press(widgets::Button& button) {
  input_.Click(Of(button), CentreOf(ClientOf(Of(button))));
}

void WindowsViewer::Spin(widgets::UpDown& upDown, bool up) {
  const RECT buttons = ClientOf(Of(upDown));
  input_.Click(Of(upDown), {buttons.right / 2, up ? buttons.bottom / 4 : buttons.bottom - buttons.bottom / 4});
}

RECT WindowsViewer::NodePlace(NodeId node) {
  const HTREEITEM item = window_.tree().ItemOf(node);
  if (item == nullptr) throw ScriptError("No item stands for " + std::string(c_.tvMotherList.Key(node)));
  Send(TreeWindow(), TVM_ENSUREVISIBLE, 0, item);
  pump_.Settle();
  return ItemPlace(TreeWindow(), item);
}

// The expander toggles. It stands somewhere before the text.
void WindowsViewer::SetOpen(NodeId node, bool /*open*/) {
  const RECT text = NodePlace(node);
  TVHITTESTINFO hit{{text.left, CentreOf(text).y}, 0, nullptr};
  do {
    --hit.pt.x;
    Send(TreeWindow(), TVM_HITTEST, 0, &hit);
  } while (hit.pt.x > 0 && (hit.flags & TVHT_ONITEMBUTTON) == 0);
  input_.Click(TreeWindow(), {hit.pt.x - kIntoText, hit.pt.y});
}

void WindowsViewer::ClickNode(NodeId node) {
  const RECT text = NodePlace(node);
  input_.Click(TreeWindow(), {text.left + kIntoText, text.top + kIntoText});
}

POINT WindowsViewer::PointOnRow(std::size_t row) {
  Send(ListWindow(), LVM_ENSUREVISIBLE, row, FALSE);
  pump_.Settle();
  const RECT place = RowPlace(ListWindow(), row);
  return {std::max<LONG>(place.left, 0) + kIntoText, place.top + kIntoText};
}

void WindowsViewer::SelectRows(std::span<const std::size_t> rows) {
  Held held = Held::kNothing;
  for (const std::size_t row : rows) {
    input_.Click(ListWindow(), PointOnRow(row), MouseButton::kLeft, held);
    held = Held::kCtrl;
  }
}

void WindowsViewer::DoubleClickRow(std::size_t row) {
  input_.DoubleClick(ListWindow(), PointOnRow(row));
}

POINT WindowsViewer::EmptyPointOfList() const {
  LVHITTESTINFO hit{};
  hit.pt = {kIntoText, ClientOf(ListWindow()).bottom - 1};
  if (Send(ListWindow(), LVM_HITTEST, 0, &hit) != -1) throw ScriptError("There is no empty space in the list");
  return hit.pt;
}

POINT WindowsViewer::EmptyPointOfTree() const {
  TVHITTESTINFO hit{};
  hit.pt = {kIntoText, ClientOf(TreeWindow()).bottom - 1};
  if (Send(TreeWindow(), TVM_HITTEST, 0, &hit) != 0) throw ScriptError("There is no empty space in the tree");
  return hit.pt;
}

void WindowsViewer::PressRow(std::optional<std::size_t> row, MouseButton button, Held held) {
  input_.Click(ListWindow(), row ? PointOnRow(*row) : EmptyPointOfList(), button, held);
}

void WindowsViewer::RightClickNode(NodeId node) {
  POINT point{};
  if (node == NodeId::kNone) {
    point = EmptyPointOfTree();
  } else {
    const RECT text = NodePlace(node);
    point = {text.left + kIntoText, text.top + kIntoText};
  }
  input_.Click(TreeWindow(), point, MouseButton::kRight);
}

// By the keyboard, down to the entry, past those that are disabled.
void WindowsViewer::PickEntry(widgets::Menu& menu, std::size_t entry) {
  const HMENU native = PopupOf(menu).menu();
  const UINT id = windows::PopupMenu::IdOf(entry);
  for (int step = GetMenuItemCount(native); step > 0 && !IsHighlighted(native, id); --step) {
    input_.PressKey(form_, VK_DOWN);
  }
  if (!IsHighlighted(native, id)) throw ScriptError("No key leads to " + menu.entries().at(entry).name);
  input_.PressKey(form_, VK_RETURN);
}

RECT WindowsViewer::HeaderPlace(std::size_t column) {
  const auto place = [&] {
    RECT head{};
    Send(HeaderWindow(), HDM_GETITEMRECT, column, &head);
    MapWindowPoints(HeaderWindow(), ListWindow(), reinterpret_cast<POINT*>(&head), 2);
    return head;
  };
  // The end of a wide column may lie outside the window; its beginning need not.
  const RECT before = place();
  const LONG width = ClientOf(ListWindow()).right;
  if (before.left < 0 || before.right > width) {
    Send(ListWindow(), LVM_SCROLL, static_cast<WPARAM>(std::min(before.right - width, before.left)), 0);
    pump_.Settle();
  }
  RECT head = place();
  MapWindowPoints(ListWindow(), HeaderWindow(), reinterpret_cast<POINT*>(&head), 2);
  return head;
}

void WindowsViewer::ClickHeader(std::size_t column) {
  const RECT head = HeaderPlace(column);
  input_.Click(HeaderWindow(), {head.left + 4 * kIntoText, CentreOf(head).y});
}

void WindowsViewer::WidenColumn(std::size_t column, widgets::Twips width) {
  const RECT head = HeaderPlace(column);
  const LONG wanted = windows::ScaleOf(form_).ToPixels(width);
  const POINT edge{head.right - 1, CentreOf(head).y};
  const POINT end{edge.x + wanted - (head.right - head.left), edge.y};
  input_.Press(HeaderWindow(), edge);
  input_.Drag(HeaderWindow(), end);
  input_.Release(HeaderWindow(), end);
}

void WindowsViewer::PressGrip() {
  input_.Press(Of(c_.imgSplitter), {0, 0});
}

void WindowsViewer::MoveGrip(int pixels) {
  gripAt_ = {windows::ScaleOf(form_).Of96(pixels), 0};
  input_.Drag(Of(c_.imgSplitter), gripAt_);
}

void WindowsViewer::ReleaseGrip() {
  input_.Release(Of(c_.imgSplitter), gripAt_);
}

// As a drag of the thumb ends.
void WindowsViewer::Scroll(widgets::ScrollBar& bar, std::int32_t value) {
  const HWND window = Of(bar);
  SetScrollPos(window, SB_CTL, value, TRUE);
  const bool upright = (GetWindowLongPtrW(window, GWL_STYLE) & SBS_VERT) != 0;
  for (const int step : {SB_THUMBPOSITION, SB_ENDSCROLL}) {
    Send(GetParent(window), upright ? WM_VSCROLL : WM_HSCROLL, MAKEWPARAM(step, value),
         reinterpret_cast<LPARAM>(window));
  }
  pump_.Settle();
}

void WindowsViewer::ScrollTree(NodeId top) {
  Send(TreeWindow(), TVM_SELECTITEM, TVGN_FIRSTVISIBLE, window_.tree().ItemOf(top));
  pump_.Settle();
}

void WindowsViewer::ScrollList(std::size_t top) {
  const RECT row = RowPlace(ListWindow(), top);
  const LPARAM rows = static_cast<LPARAM>(top) - static_cast<LPARAM>(Send(ListWindow(), LVM_GETTOPINDEX));
  Send(ListWindow(), LVM_SCROLL, 0, rows * (row.bottom - row.top));
  pump_.Settle();
}

void WindowsViewer::MoveFocus(const widgets::Control* control) {
  SetFocus(control != nullptr ? Of(*control) : form_);
  pump_.Settle();
}

HWND WindowsViewer::WindowWithKeys() const {
  const HWND focused = GetFocus();
  if (focused == nullptr) throw ScriptError("Nothing has the focus");
  return focused;
}

void WindowsViewer::Press(const Key& key) {
  input_.PressKey(WindowWithKeys(), key);
}

void WindowsViewer::TypeAhead(std::string_view text) {
  const TypingPause pause;
  for (const wchar_t unit : windows::ToWide(text)) {
    input_.Type(WindowWithKeys(), std::wstring_view(&unit, 1));
    TypingPause::NoMore();
  }
}

}  // namespace quorvel::scenario
