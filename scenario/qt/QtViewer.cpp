#include "scenario_qt/QtViewer.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QDeadlineTimer>
#include <QDialog>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QStyleOption>
#include <QTabBar>
#include <QTextDocument>
#include <QToolButton>
#include <algorithm>
#include <chrono>
#include <iterator>
#include <limits>

#include "qt/Convert.h"
#include "qt/ListPane.h"
#include "qt/TreePane.h"
#include "scenario/Script.h"
#include "scenario_qt/Input.h"

namespace quorvel::scenario {
namespace {

using qt::FromQt;
using widgets::NodeId;

constexpr int kIntoText = 3;  // pixels from the edge of an item
constexpr std::chrono::seconds kResizeLimit{5};

// Everything that follows from a gesture is done before the next command.
void Settle() {
  QCoreApplication::sendPostedEvents();
  QCoreApplication::processEvents();
}

// Window systems take their time.
void AwaitSize(const QWidget& widget, QSize size) {
  const QDeadlineTimer limit(kResizeLimit);
  do {
    Settle();
  } while (widget.size() != size && !limit.hasExpired());
}

// A widget lies on whole pixels. Where it lies on those that the twips of its control round to, it lies there.
widgets::Rect BoundsOf(const QWidget& widget, const widgets::Control& control) {
  const QRect place = widget.geometry();
  if (place == qt::ToPixels(control.bounds())) return control.bounds();
  return {qt::ToTwips(place.x()), qt::ToTwips(place.y()), qt::ToTwips(place.width()), qt::ToTwips(place.height())};
}

std::string CaptionOf(const QWidget& widget) {
  if (const auto* label = qobject_cast<const QLabel*>(&widget)) return FromQt(label->text());
  if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) return FromQt(button->text());
  return {};
}

// Its lines, ended as the model ends them; Qt's own plain text would lose what some blanks are.
std::string TextOf(const QPlainTextEdit& box) {
  return FromQt(box.document()->toRawText().replace(QChar::ParagraphSeparator, QStringLiteral("\r\n")));
}

std::optional<std::string> ValueOf(const QWidget& widget) {
  if (const auto* text = qobject_cast<const QPlainTextEdit*>(&widget)) return TextOf(*text);
  if (const auto* combo = qobject_cast<const QComboBox*>(&widget)) return FromQt(combo->currentText());
  if (const auto* box = qobject_cast<const QLineEdit*>(&widget)) return FromQt(box->text());
  if (const auto* check = qobject_cast<const QCheckBox*>(&widget)) return check->isChecked() ? "1" : "0";
  if (const auto* picker = qobject_cast<const QDateTimeEdit*>(&widget)) return FromQt(picker->text());
  if (const auto* bar = qobject_cast<const QScrollBar*>(&widget)) return std::to_string(bar->value());
  if (const auto* list = qobject_cast<const QListWidget*>(&widget)) {
    return list->currentItem() == nullptr ? std::string() : FromQt(list->currentItem()->text());
  }
  return std::nullopt;
}

std::vector<std::string> ItemsOf(const QWidget& widget) {
  std::vector<std::string> items;
  if (const auto* combo = qobject_cast<const QComboBox*>(&widget)) {
    for (int row = 0; row < combo->count(); ++row) items.push_back(FromQt(combo->itemText(row)));
  } else if (const auto* list = qobject_cast<const QListWidget*>(&widget)) {
    for (int row = 0; row < list->count(); ++row) items.push_back(FromQt(list->item(row)->text()));
  }
  return items;
}

bool IsBold(const QModelIndex& index) {
  return index.data(Qt::FontRole).value<QFont>().bold();
}

widgets::SystemColour ColourOf(const QModelIndex& index) {
  return index.data(Qt::ForegroundRole).isValid() ? widgets::SystemColour::kGrayText
                                                  : widgets::SystemColour::kWindowText;
}

Qt::KeyboardModifiers ModifiersOf(Held held) {
  switch (held) {
    case Held::kCtrl:
      return Qt::ControlModifier;
    case Held::kShift:
      return Qt::ShiftModifier;
    case Held::kNothing:
      break;
  }
  return Qt::NoModifier;
}

// In the order of KeyCode.
constexpr Qt::Key kQtKeys[] = {Qt::Key_Return,   Qt::Key_Escape, Qt::Key_Tab,   Qt::Key_PageUp,
                               Qt::Key_PageDown, Qt::Key_Home,   Qt::Key_End,   Qt::Key_Up,
                               Qt::Key_Down,     Qt::Key_Left,   Qt::Key_Right, Qt::Key_Menu,
                               Qt::Key_F5,       Qt::Key_F10,    Qt::Key_A,     Qt::Key_C};
static_assert(std::size(kQtKeys) == static_cast<std::size_t>(KeyCode::kC) + 1);

Qt::Key QtKeyOf(const Key& key) {
  if (key.code == KeyCode::kTab && key.shift) return Qt::Key_Backtab;
  return kQtKeys[static_cast<std::size_t>(key.code)];
}

widgets::Alignment AlignmentOf(int alignment) {
  if ((alignment & Qt::AlignRight) != 0) return widgets::Alignment::kRight;
  if ((alignment & Qt::AlignHCenter) != 0) return widgets::Alignment::kCentre;
  return widgets::Alignment::kLeft;
}

}  // namespace

// A window system gives a new form the focus, or does not; a script begins without it.
QtViewer::QtViewer(qt::ProcessLogWidget& widget) : widget_(&widget) {
  Settle();
  MoveFocus(nullptr);
}

template <class Widget>
Widget& QtViewer::Of(const widgets::Control& control) const {
  auto* const found = widget_->findChild<Widget*>(qt::ToQt(control.name()));
  if (found == nullptr) throw ScriptError("No widget draws " + control.name());
  return *found;
}

SeenControl QtViewer::Look(const widgets::Control& control) const {
  const auto* const found = widget_->findChild<QWidget*>(qt::ToQt(control.name()));
  if (found == nullptr) return {};  // what nobody draws is not to be seen
  const QWidget& widget = *found;
  SeenControl seen{widget.isVisible(), widget.isEnabled(), BoundsOf(widget, control),
                   CaptionOf(widget),  ValueOf(widget),    ItemsOf(widget)};
  // The caption of this frame is painted; a screen reader says the same.
  if (&control == &widget_->control().controls().fraList) seen.text = FromQt(widget.accessibleName());
  return seen;
}

std::vector<SeenTab> QtViewer::Tabs() const {
  const auto& tabs = Of<QTabBar>(widget_->control().controls().sstProcessLog);
  std::vector<SeenTab> seen;
  for (int tab = 0; tab < tabs.count(); ++tab) {
    if (!tabs.isTabVisible(tab)) continue;
    seen.push_back({FromQt(tabs.tabText(tab)), tabs.isTabEnabled(tab), tab == tabs.currentIndex()});
  }
  return seen;
}

std::vector<SeenNode> QtViewer::Nodes() const {
  std::vector<SeenNode> seen;
  AppendChildren({}, 0, seen);
  return seen;
}

void QtViewer::AppendChildren(const QModelIndex& parent, std::size_t depth, std::vector<SeenNode>& seen) const {
  const qt::TreePane& tree = widget_->tree();
  const QAbstractItemModel& model = *tree.model();
  for (int row = 0; row < model.rowCount(parent); ++row) {
    const QModelIndex index = model.index(row, 0, parent);
    seen.push_back({tree.nodes().NodeOf(index), depth, FromQt(index.data().toString()), ColourOf(index), IsBold(index),
                    model.hasChildren(index), tree.isExpanded(index), tree.selectionModel()->isSelected(index)});
    AppendChildren(index, depth + 1, seen);
  }
}

bool QtViewer::IsOpen(NodeId node) const {
  return widget_->tree().isExpanded(widget_->tree().nodes().IndexOf(node));
}

std::vector<SeenHeader> QtViewer::Headers() const {
  const qt::ListPane& list = widget_->list();
  const auto& headers = widget_->control().controls().lvMotherList.headers();
  std::vector<SeenHeader> seen;
  for (int column = 0; column < list.model()->columnCount(); ++column) {
    const auto header = [&](int role) { return list.model()->headerData(column, Qt::Horizontal, role); };
    const int width = list.horizontalHeader()->sectionSize(column);
    const widgets::Twips wanted = headers.at(static_cast<std::size_t>(column)).width;
    seen.push_back({FromQt(header(Qt::DisplayRole).toString()),
                    width == qt::ToPixels(wanted) ? wanted : qt::ToTwips(width),
                    AlignmentOf(header(Qt::TextAlignmentRole).toInt())});
  }
  return seen;
}

std::vector<SeenRow> QtViewer::Rows() const {
  const qt::ListPane& list = widget_->list();
  const QAbstractItemModel& model = *list.model();
  std::vector<SeenRow> seen(static_cast<std::size_t>(model.rowCount()));
  for (int row = 0; row < model.rowCount(); ++row) {
    SeenRow& each = seen[static_cast<std::size_t>(row)];
    for (int column = 0; column < model.columnCount(); ++column) {
      each.cells.push_back(FromQt(model.index(row, column).data().toString()));
    }
    each.bold = IsBold(model.index(row, 0));
    each.selected = list.selectionModel()->isRowSelected(row);
  }
  return seen;
}

NodeId QtViewer::TopNode() const {
  const qt::TreePane& tree = widget_->tree();
  return tree.nodes().NodeOf(tree.indexAt({0, 0}));
}

std::optional<std::size_t> QtViewer::TopRow() const {
  const int row = widget_->list().rowAt(0);
  return row < 0 ? std::nullopt : std::optional(static_cast<std::size_t>(row));
}

bool QtViewer::HasFocus(const widgets::Control& control) const {
  return Of(control).hasFocus();
}

SeenMenu QtViewer::Look(const widgets::Menu& menu) const {
  const auto& popup = Of<QMenu>(menu);
  SeenMenu seen{popup.isVisible(), {}};
  for (const QAction* const action : popup.actions()) {
    const std::string caption = action->isSeparator() ? "-" : FromQt(action->text());
    seen.entries.push_back({FromQt(action->objectName()), caption, action->isVisible(), action->isEnabled()});
  }
  return seen;
}

void QtViewer::Resize(int width, int height) {
  const QSize wanted(width, height);
  // A form that lays its viewer out gives it the size through its own.
  QWidget* const form = widget_->parentWidget();
  if (form != nullptr && form->layout() != nullptr) {
    QWidget& window = *widget_->window();
    window.resize(window.size() + wanted - widget_->size());
  } else {
    widget_->resize(wanted);
  }
  AwaitSize(*widget_, wanted);
}

std::optional<std::string> QtViewer::DialogCaption() const {
  const auto& dialog = Of<QDialog>(widget_->control().detail().controls().form);
  return dialog.isVisible() ? std::optional(FromQt(dialog.windowTitle())) : std::nullopt;
}

void QtViewer::ResizeDialog(int width, int height) {
  auto& dialog = Of<QDialog>(widget_->control().detail().controls().form);
  const QSize wanted = QSize(width, height).expandedTo(dialog.minimumSize());
  dialog.resize(wanted);
  AwaitSize(dialog, wanted);
}

void QtViewer::ClickTab(std::string_view caption) {
  auto& tabs = Of<QTabBar>(widget_->control().controls().sstProcessLog);
  for (int tab = 0; tab < tabs.count(); ++tab) {
    if (!tabs.isTabVisible(tab) || FromQt(tabs.tabText(tab)) != caption) continue;
    ClickMouse(tabs, tabs.tabRect(tab).center());
    break;
  }
  Settle();
}

void QtViewer::Choose(widgets::ComboBox& combo, std::size_t row) {
  auto& box = Of<QComboBox>(combo);
  PressKey(box, Qt::Key_F4);  // opens the list
  Settle();
  QAbstractItemView& list = *box.view();
  PressKey(list, Qt::Key_Home);
  for (std::size_t step = 0; step < row; ++step) PressKey(list, Qt::Key_Down);
  PressKey(list, Qt::Key_Return);
  Settle();
}

void QtViewer::ChooseItem(widgets::ListBox& list, std::size_t row) {
  auto& widget = Of<QListWidget>(list);
  QListWidgetItem* const item = widget.item(static_cast<int>(row));
  widget.scrollToItem(item);
  ClickMouse(*widget.viewport(), widget.visualItemRect(item).center());
  Settle();
}

void QtViewer::Type(widgets::TextBox& box, std::string_view text) {
  auto& edit = Of<QLineEdit>(box);
  PressKey(edit, Qt::Key_A, Qt::ControlModifier);
  PressKey(edit, Qt::Key_Delete);
  TypeText(edit, qt::ToQt(text));
  Settle();
}

void QtViewer::Pick(widgets::DateTimePicker& picker, DateValue value) {
  auto& edit = Of<QDateTimeEdit>(picker);
  const qt::QtDate date = qt::ToQt(value);
  const QString digits = QDateTime(date.day, date.time, Qt::UTC).toString(edit.displayFormat());
  int place = 0;
  for (int section = 0; section < edit.sectionCount(); ++section) {
    edit.setCurrentSectionIndex(section);
    const QString width = edit.sectionText(edit.currentSection());
    edit.setSelectedSection(edit.currentSection());
    TypeText(edit, digits.mid(place, width.size()));
    place += static_cast<int>(width.size()) + 1;
  }
  Settle();
}

void QtViewer::Check(widgets::CheckBox& box, bool checked) {
  auto& check = Of<QCheckBox>(box);
  if (check.isChecked() == checked) return;
  QStyleOptionButton option;
  option.initFrom(&check);
  ClickMouse(check, check.style()->subElementRect(QStyle::SE_CheckBoxIndicator, &option, &check).center());
  Settle();
}

void QtViewer::Press(widgets::Button& button) {
  auto& widget = Of<QAbstractButton>(button);
  ClickMouse(widget, widget.rect().center());
  Settle();
}

void QtViewer::Spin(widgets::UpDown& upDown, bool up) {
  for (QToolButton* button : Of(upDown).findChildren<QToolButton*>()) {
    if (button->arrowType() == (up ? Qt::UpArrow : Qt::DownArrow)) ClickMouse(*button, button->rect().center());
  }
  Settle();
}

QPoint QtViewer::PointOn(QAbstractItemView& view, const QModelIndex& index) const {
  view.scrollTo(index);
  Settle();
  return view.visualRect(index).intersected(view.viewport()->rect()).topLeft() + QPoint(kIntoText, kIntoText);
}

void QtViewer::SetOpen(NodeId node, bool /*open*/) {
  // The expander toggles, and stands in the indentation before the item.
  qt::TreePane& tree = widget_->tree();
  const QModelIndex index = tree.nodes().IndexOf(node);
  tree.scrollTo(index);
  Settle();
  const QRect item = tree.visualRect(index);
  ClickMouse(*tree.viewport(), {item.left() - tree.indentation() / 2, item.center().y()});
  Settle();
}

void QtViewer::ClickNode(NodeId node) {
  qt::TreePane& tree = widget_->tree();
  ClickMouse(*tree.viewport(), PointOn(tree, tree.nodes().IndexOf(node)));
  Settle();
}

void QtViewer::SelectRows(std::span<const std::size_t> rows) {
  qt::ListPane& list = widget_->list();
  Qt::KeyboardModifiers modifiers;
  for (const std::size_t row : rows) {
    ClickMouse(*list.viewport(), PointOn(list, list.model()->index(static_cast<int>(row), 0)), modifiers);
    modifiers = Qt::ControlModifier;
  }
  Settle();
}

void QtViewer::DoubleClickRow(std::size_t row) {
  qt::ListPane& list = widget_->list();
  DoubleClickMouse(*list.viewport(), PointOn(list, list.model()->index(static_cast<int>(row), 0)));
  Settle();
}

QPoint QtViewer::EmptyPoint(QAbstractItemView& view) const {
  const QPoint point(kIntoText, view.viewport()->height() - 1);
  if (view.indexAt(point).isValid()) throw ScriptError("There is no empty space in " + FromQt(view.objectName()));
  return point;
}

void QtViewer::PressRow(std::optional<std::size_t> row, MouseButton button, Held held) {
  qt::ListPane& list = widget_->list();
  const QPoint point = row ? PointOn(list, list.model()->index(static_cast<int>(*row), 0)) : EmptyPoint(list);
  ClickMouse(*list.viewport(), point, ModifiersOf(held),
             button == MouseButton::kLeft ? Qt::LeftButton : Qt::RightButton);
  Settle();
}

void QtViewer::RightClickNode(NodeId node) {
  qt::TreePane& tree = widget_->tree();
  const QPoint point = node == NodeId::kNone ? EmptyPoint(tree) : PointOn(tree, tree.nodes().IndexOf(node));
  ClickMouse(*tree.viewport(), point, {}, Qt::RightButton);
  Settle();
}

void QtViewer::PickEntry(widgets::Menu& menu, std::size_t entry) {
  auto& popup = Of<QMenu>(menu);
  ClickMouse(popup, popup.actionGeometry(popup.actions().at(static_cast<qsizetype>(entry))).center());
  Settle();
}

void QtViewer::ClickHeader(std::size_t column) {
  QHeaderView& header = *widget_->list().horizontalHeader();
  const int section = static_cast<int>(column);
  // Sideways alone, to the column.
  const int top = std::max(widget_->list().rowAt(0), 0);
  widget_->list().scrollTo(widget_->list().model()->index(top, section));
  Settle();
  // Near its beginning: the end of a wide column may lie outside the window.
  ClickMouse(*header.viewport(), {header.sectionViewportPosition(section) + 2 * kIntoText, header.height() / 2});
  Settle();
}

void QtViewer::WidenColumn(std::size_t column, widgets::Twips width) {
  // As a drag of the header's edge ends.
  widget_->list().horizontalHeader()->resizeSection(static_cast<int>(column), qt::ToPixels(width));
  Settle();
}

void QtViewer::PressGrip() {
  PressMouse(Of(widget_->control().controls().imgSplitter), {0, 0});
}

void QtViewer::MoveGrip(int pixels) {
  DragMouse(Of(widget_->control().controls().imgSplitter), {pixels, 0});
  Settle();
}

void QtViewer::ReleaseGrip() {
  ReleaseMouse(Of(widget_->control().controls().imgSplitter), {0, 0});
  Settle();
}

void QtViewer::Scroll(widgets::ScrollBar& bar, std::int32_t value) {
  // As a drag of the thumb, which reaches no more values than the bar has pixels.
  auto& widget = Of<QScrollBar>(bar);
  widget.setSliderDown(true);
  widget.setSliderPosition(value);
  widget.setSliderDown(false);
  Settle();
}

void QtViewer::ScrollTree(NodeId top) {
  widget_->tree().scrollTo(widget_->tree().nodes().IndexOf(top), QAbstractItemView::PositionAtTop);
  Settle();
}

void QtViewer::ScrollList(std::size_t top) {
  widget_->list().scrollTo(widget_->list().model()->index(static_cast<int>(top), 0), QAbstractItemView::PositionAtTop);
  Settle();
}

void QtViewer::MoveFocus(const widgets::Control* control) {
  if (control != nullptr) {
    Of(*control).setFocus(Qt::TabFocusReason);
  } else if (QWidget* const before = QApplication::focusWidget()) {
    before->clearFocus();
  }
  Settle();
}

QWidget& QtViewer::WidgetWithKeys() const {
  if (QWidget* const popup = QApplication::activePopupWidget()) return *popup;
  if (QWidget* const focused = QApplication::focusWidget()) return *focused;
  throw ScriptError("Nothing has the focus");
}

void QtViewer::Press(const Key& key) {
  Qt::KeyboardModifiers modifiers;
  modifiers.setFlag(Qt::ControlModifier, key.ctrl);
  modifiers.setFlag(Qt::ShiftModifier, key.shift);
  PressKey(WidgetWithKeys(), QtKeyOf(key), modifiers);
  Settle();
}

void QtViewer::TypeAhead(std::string_view text) {
  // However slow the machine is, the first letter comes after a pause and the others do not.
  const int pause = QApplication::keyboardInputInterval();
  QApplication::setKeyboardInputInterval(0);
  for (const QChar letter : qt::ToQt(text)) {
    TypeText(WidgetWithKeys(), letter);
    QApplication::setKeyboardInputInterval(std::numeric_limits<int>::max());
  }
  QApplication::setKeyboardInputInterval(pause);
  Settle();
}

}  // namespace quorvel::scenario
