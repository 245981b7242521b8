#include "qt/ProcessLogWidget.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QDateTimeEdit>
#include <QFocusEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QResizeEvent>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QTabBar>
#include <QWheelEvent>
#include <algorithm>
#include <cstdlib>
#include <type_traits>
#include <utility>

#include "qt/Accessibility.h"
#include "qt/Contents.h"
#include "qt/Convert.h"
#include "qt/DetailDialog.h"
#include "qt/Guard.h"
#include "qt/ListPane.h"
#include "qt/Parts.h"
#include "qt/PopupMenu.h"
#include "qt/TreePane.h"

namespace quorvel::qt {
namespace {

constexpr SpokenName kSpokenNames[] = {
    {"fraOption", "Options"},
    {"sstProcessLog", "Views"},
    {"dtpHour", "Start, time of day"},
    {"updDuring", "Length of the period"},
    {"cboDuringUnit", "Unit of time"},
    {"lstGroupBy", "Order"},
    {"updGroupBy", "Move in the group order"},
    {"imgSplitter", "Width of the tree"},
    {"tvMotherList", "History"},
    {"lvMotherList", "Entries"},
    {"HScroll", "Scroll sideways"},
    {"VScroll", "Scroll up and down"},
};

// The wheel over a field that does not have the focus means the page, not the field.
class WheelNeedsFocus final : public QObject {
 public:
  explicit WheelNeedsFocus(QWidget& field) : QObject(&field) {
    field.setFocusPolicy(Qt::StrongFocus);
    field.installEventFilter(this);
  }

 protected:
  bool eventFilter(QObject* field, QEvent* event) override {
    if (event->type() != QEvent::Wheel || static_cast<QWidget*>(field)->hasFocus()) return false;
    event->ignore();
    return true;
  }
};

// Up and down, with these modifiers, and the wheel are for a field what the buttons of its up-down are.
class StepKeys final : public QObject {
 public:
  StepKeys(QWidget& field, Qt::KeyboardModifiers modifiers, std::function<void(int)> step)
      : QObject(&field), modifiers_(modifiers), step_(std::move(step)) {
    field.installEventFilter(this);
  }

 protected:
  bool eventFilter(QObject* field, QEvent* event) override {
    const int by = event->type() == QEvent::Wheel ? WheelStepsOf(*field, *event) : StepOf(*event);
    for (int done = 0; done < std::abs(by); ++done) Guarded([&] { step_(by > 0 ? 1 : -1); });
    return by != 0;
  }

 private:
  int StepOf(const QEvent& event) const {
    if (event.type() != QEvent::KeyPress) return 0;
    const auto& key = static_cast<const QKeyEvent&>(event);
    if ((key.modifiers() & ~Qt::KeypadModifier) != modifiers_) return 0;
    return key.key() == Qt::Key_Up ? 1 : key.key() == Qt::Key_Down ? -1 : 0;
  }

  // The wheel means a list's rows, and no field that does not have the focus.
  int WheelStepsOf(QObject& field, const QEvent& event) {
    if (modifiers_ != Qt::NoModifier || !static_cast<QWidget&>(field).hasFocus()) return 0;
    // Touch pads tell of parts of a notch.
    turned_ += static_cast<const QWheelEvent&>(event).angleDelta().y();
    const int steps = turned_ / QWheelEvent::DefaultDeltasPerStep;
    turned_ %= QWheelEvent::DefaultDeltasPerStep;
    return steps;
  }

  int turned_ = 0;
  Qt::KeyboardModifiers modifiers_;
  std::function<void(int)> step_;
};

// Tells when a field gets the focus by the keyboard.
class KeyboardFocusWatch final : public QObject {
 public:
  KeyboardFocusWatch(QWidget& field, std::function<void()> got) : QObject(&field), got_(std::move(got)) {
    field.installEventFilter(this);
  }

 protected:
  bool eventFilter(QObject* /*field*/, QEvent* event) override {
    if (event->type() != QEvent::FocusIn) return false;
    const Qt::FocusReason reason = static_cast<const QFocusEvent*>(event)->reason();
    if (reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason || reason == Qt::ShortcutFocusReason) {
      Guarded(got_);
    }
    return false;
  }

 private:
  std::function<void()> got_;
};

// The tab that is shown next, or before, in the circle of those that can be chosen.
int NeighbourOf(const QTabBar& tabs, int by) {
  int tab = tabs.currentIndex();
  do {
    tab = (tab + by + tabs.count()) % tabs.count();
  } while (tab != tabs.currentIndex() && !(tabs.isTabVisible(tab) && tabs.isTabEnabled(tab)));
  return tab;
}

}  // namespace

ProcessLogWidget::ProcessLogWidget(datasource::RecordSourceFactory& factory, QWidget* parent)
    : ProcessLogWidget(factory, ownPlatform_, parent) {}

ProcessLogWidget::ProcessLogWidget(datasource::RecordSourceFactory& factory, Platform& platform, QWidget* parent)
    : QWidget(parent),
      ownPlatform_(*this),
      control_(platform, factory),
      c_(control_.controls()),
      outer_(new QWidget(this)),
      options_(new Group(outer_)),
      section_(new SectionFrame(outer_)),
      refresh_(new QAction(this)),
      scrollDown_(c_.Timer_ScrollDown_TV, [this] { control_.Timer_ScrollDown_TV_Timer(); }) {
  OfferAccessibleRoles();
  Bind(c_.fraProcessLog, *outer_);
  Bind(c_.fraOption, *options_);
  MakeTabs();
  MakeOptions();
  MakePanes();
  MakeSplitter();
  MakeScrollBars();
  MakeRefresh();
  MakeTabKeys();
  MakeSplitterKey();
  OrderTabKey();
  NameWidgets(*this, kSpokenNames);
  MakeMenus();
  new DetailDialog(control_.detail(), this);
}

ProcessLogWidget::~ProcessLogWidget() {
  // The widgets draw controls that are members, so they go first.
  bindings_.clear();
  menus_.clear();
  qDeleteAll(findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly));
}

QSize ProcessLogWidget::sizeHint() const {
  return {1100, 700};
}

void ProcessLogWidget::resizeEvent(QResizeEvent* event) {
  Guarded([&] { control_.UserControl_Resize(ToTwips(event->size().width()), ToTwips(event->size().height())); });
}

// What nobody below had a use for moves the viewer, where it is smaller than its content.
void ProcessLogWidget::wheelEvent(QWheelEvent* event) {
  Guarded([&] {
    const QPoint angle = event->angleDelta();
    QScrollBar* const bar = std::abs(angle.x()) > std::abs(angle.y()) ? sideways_ : upAndDown_;
    event->ignore();
    if (bar->isVisible()) QCoreApplication::sendEvent(bar, event);
  });
}

void ProcessLogWidget::BringIntoSight(const QWidget& field) {
  const auto scroll = [](QScrollBar& bar, int first, int last, int room) {
    if (!bar.isVisible()) return;
    const int by = first < 0 ? first : std::max(last - room, 0);
    bar.setValue(bar.value() + ToTwips(by));
  };
  const QRect place(field.mapTo(this, QPoint()), field.size());
  scroll(*sideways_, place.left(), place.right(), upAndDown_->isVisible() ? upAndDown_->x() : width());
  scroll(*upAndDown_, place.top(), place.bottom(), sideways_->isVisible() ? sideways_->y() : height());
}

void ProcessLogWidget::Bind(widgets::Control& model, QWidget& widget, std::function<void()> content) {
  bindings_.push_back(std::make_unique<Binding>(model, widget, std::move(content)));
}

void ProcessLogWidget::Gesture(std::function<void()> make) {
  if (!control_.AtWork()) return make();
  waiting_ = std::move(make);
  control_.AfterWork([this] {
    if (const auto last = std::exchange(waiting_, nullptr)) last();
  });
}

void ProcessLogWidget::GestureOn(widgets::NodeId node, void (ucProcessLog::*handler)(widgets::NodeId)) {
  if (!control_.AtWork()) return (control_.*handler)(node);
  Gesture([this, handler, key = c_.tvMotherList.Key(node)] {
    const widgets::NodeId now = c_.tvMotherList.Find(key);
    if (now != widgets::NodeId::kNone) (control_.*handler)(now);
  });
}

template <class Widget, class Model>
Widget* ProcessLogWidget::Make(Model& model, QWidget* parent) {
  auto* const widget = new Widget(parent);
  Bind(model, *widget, [&model, widget] { DrawContent(model, *widget); });
  return widget;
}

void ProcessLogWidget::MakeTabs() {
  auto* const tabs = Make<QTabBar>(c_.sstProcessLog, outer_);
  tabs->setExpanding(false);
  tabs->setUsesScrollButtons(true);
  tabs->setElideMode(Qt::ElideNone);
  On(tabs, &QTabBar::currentChanged, this, [this, tabs](int tab) {
    if (tab < 0) return;
    if (control_.AtWork()) {
      const QSignalBlocker quiet(tabs);
      tabs->setCurrentIndex(static_cast<int>(c_.sstProcessLog.current()));
      return Gesture([tabs, tab] { tabs->setCurrentIndex(tab); });
    }
    c_.sstProcessLog.SetCurrent(static_cast<std::size_t>(tab));
    control_.sstProcessLog_Click();
  });
}

void ProcessLogWidget::MakeOptions() {
  auto* const state = Make<QLabel>(c_.lblState, options_);
  state->setBuddy(MakeCombo(c_.cboState, &ucProcessLog::cboState_Click));
  MakePeriodOptions();
  MakeCheckBox(c_.chkCommunicationsFilter, &ucProcessLog::chkCommunicationsFilter_Click);
  MakeCheckBox(c_.chkGroupByDay, &ucProcessLog::chkGroupByDay_Click);
  MakeCheckBox(c_.chkAlarmFilter, &ucProcessLog::chkAlarmFilter_Click);
  MakeGroupOrder();
  auto* const refresh = Make<QPushButton>(c_.cmdRefresh, options_);
  On(refresh, &QPushButton::clicked, this, [this](bool) { Gesture([this] { control_.cmdRefresh_Click(); }); });
}

void ProcessLogWidget::MakePeriodOptions() {
  auto* const date = Make<QLabel>(c_.lblDate, options_);
  date->setBuddy(MakePicker(c_.dtpDate, QStringLiteral("yyyy-MM-dd"), &ucProcessLog::dtpDate_Change));
  MakePicker(c_.dtpHour, QStringLiteral("HH:mm:ss"), &ucProcessLog::dtpHour_Change);

  auto* const during = Make<QLabel>(c_.lblDuring, options_);
  auto* const length = Make<QLineEdit>(c_.txtDuring, options_);
  length->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  during->setBuddy(length);
  On(length, &QLineEdit::textEdited, this, [this](const QString& text) {
    c_.txtDuring.SetText(FromQt(text));
    control_.txtDuring_Change();
  });
  const auto step = [this](int by) { by > 0 ? control_.updDuring_UpClick() : control_.updDuring_DownClick(); };
  Bind(c_.updDuring, *new UpDownButtons(step, {QStringLiteral("Longer"), QStringLiteral("Shorter")}, options_));
  new StepKeys(*length, Qt::NoModifier, step);
  MakeCombo(c_.cboDuringUnit, &ucProcessLog::cboDuringUnit_Click);
  Make<QLabel>(c_.lblPeriodEnd, options_);
}

void ProcessLogWidget::MakeGroupOrder() {
  auto* const label = Make<QLabel>(c_.lblGroupBy, options_);
  auto* const list = Make<OrderList>(c_.lstGroupBy, options_);
  label->setBuddy(list);
  On(list, &QListWidget::currentRowChanged, this, [this](int row) {
    if (row >= 0) c_.lstGroupBy.Select(static_cast<std::size_t>(row));
  });
  const auto step = [this](int by) { by > 0 ? control_.updGroupBy_UpClick() : control_.updGroupBy_DownClick(); };
  Bind(c_.updGroupBy, *new UpDownButtons(step, {QStringLiteral("Up"), QStringLiteral("Down")}, options_));
  // The plain keys go from row to row.
  new StepKeys(*list, Qt::AltModifier, step);
}

void ProcessLogWidget::MakeCheckBox(widgets::CheckBox& model, void (ucProcessLog::*click)()) {
  On(Make<QCheckBox>(model, options_), &QCheckBox::clicked, this, [this, &model, click](bool checked) {
    model.SetChecked(checked);
    Gesture([this, click] { (control_.*click)(); });
  });
}

QComboBox* ProcessLogWidget::MakeCombo(widgets::ComboBox& model, void (ucProcessLog::*click)()) {
  auto* const combo = Make<QComboBox>(model, options_);
  new WheelNeedsFocus(*combo);
  On(combo, &QComboBox::activated, this, [this, &model, click](int row) {
    model.Select(static_cast<std::size_t>(row));
    Gesture([this, click] { (control_.*click)(); });
  });
  return combo;
}

QDateTimeEdit* ProcessLogWidget::MakePicker(widgets::DateTimePicker& model, const QString& format,
                                            void (ucProcessLog::*change)()) {
  auto* const picker = new QDateTimeEdit(options_);
  picker->setDisplayFormat(format);
  // Wall clock times as they stand: none is missing or double where summer time begins or ends.
  picker->setTimeSpec(Qt::UTC);
  picker->setDateRange(QDate(100, 1, 1), QDate(9999, 12, 31));
  picker->setCalendarPopup(picker->displayedSections().testFlag(QDateTimeEdit::DaySection));
  picker->setWrapping(!picker->calendarPopup());  // a day's hours begin anew, years do not
  new WheelNeedsFocus(*picker);
  Bind(model, *picker, [&model, picker] { DrawContent(model, *picker); });
  if (picker->calendarPopup()) {
    On(picker, &QDateTimeEdit::dateChanged, this, [this, &model, change](QDate day) {
      model.SetValue(FromQt(day));
      (control_.*change)();
    });
  } else {
    On(picker, &QDateTimeEdit::timeChanged, this, [this, &model, change](QTime time) {
      model.SetValue(FromQt(time));
      (control_.*change)();
    });
  }
  return picker;
}

void ProcessLogWidget::MakePanes() {
  Bind(c_.fraList, *section_,
       [this] { section_->SetCaption(ToQt(c_.fraList.text()), ToPixels(c_.tvMotherList.bounds().top)); });
  MakeTree();
  MakeList();
  WatchFocus();
  setFocusProxy(tree_);
}

// A popup takes the focus from no pane, nor does another window: the pane has it when this one is used again.
void ProcessLogWidget::WatchFocus() {
  On(qApp, &QApplication::focusChanged, this, [this](QWidget* /*before*/, QWidget* now) {
    const bool elsewhere = now == nullptr ? !isActiveWindow() : now->window() != window();
    const QWidget* const pane = now == tree_ || now == list_ ? now : nullptr;
    if (elsewhere || pane == paneWithFocus_) return;
    const QWidget* const left = std::exchange(paneWithFocus_, pane);
    if (left == tree_) control_.tvMotherList_LostFocus();
    if (left == list_) control_.lvMotherList_LostFocus();
    if (pane == tree_) control_.tvMotherList_GotFocus();
    if (pane == list_) control_.lvMotherList_GotFocus();
  });
}

void ProcessLogWidget::MakeTree() {
  tree_ = new TreePane(
      c_.tvMotherList,
      {.expand = [this](widgets::NodeId node) { GestureOn(node, &ucProcessLog::tvMotherList_Expand); },
       .collapse = [this](widgets::NodeId node) { control_.tvMotherList_Collapse(node); },
       .click = [this](widgets::NodeId node) { GestureOn(node, &ucProcessLog::tvMotherList_NodeClick); },
       .mouseUp = [this](MouseButton button, widgets::NodeId node) { control_.tvMotherList_MouseUp(button, node); }},
      section_);
  Bind(c_.tvMotherList, *tree_);
}

void ProcessLogWidget::MakeList() {
  list_ =
      new ListPane(c_.lvMotherList,
                   {.columnClick = [this](std::size_t column) { control_.lvMotherList_ColumnClick(column); },
                    .doubleClick = [this] { control_.lvMotherList_DblClick(); },
                    .keyDown = [this](std::int32_t keyCode) { control_.lvMotherList_KeyDown(keyCode); },
                    .selectionChanged = [this] { control_.lvMotherList_SelectionChanged(); },
                    .mouseDown = [this](MouseButton button, auto row) { control_.lvMotherList_MouseDown(button, row); },
                    .copy = [this] { control_.mnu_copy_Click(); },
                    .selectAll = [this] { control_.mnu_select_all_Click(); }},
                   section_);
  Bind(c_.lvMotherList, *list_);
}

void ProcessLogWidget::MakeMenus() {
  const auto pick = [this](std::int32_t command) { control_.m_MenuCall(command); };
  menus_.push_back(std::make_unique<PopupMenu>(
      c_.mnu_Popup, *list_, [this] { return list_->menuPlace(); }, pick));
  menus_.push_back(std::make_unique<PopupMenu>(
      c_.mnu_PopupTV, *tree_, [this] { return tree_->menuPlace(); }, pick));
}

void ProcessLogWidget::MakeSplitter() {
  auto* const grip = new SplitterGrip({.begin = [this] { control_.imgSplitter_MouseDown(); },
                                       .move = [this](int x) { control_.imgSplitter_MouseMove(ToTwips(x)); },
                                       .end = [this] { control_.imgSplitter_MouseUp(); },
                                       .leave = [this] { tree_->setFocus(Qt::OtherFocusReason); }},
                                      section_);
  Bind(c_.imgSplitter, *grip);
  auto* const bar = new QWidget(section_);
  bar->setAutoFillBackground(true);
  bar->setBackgroundRole(QPalette::Highlight);
  Bind(c_.picSplitter, *bar, [bar] { bar->raise(); });
}

void ProcessLogWidget::MakeScrollBars() {
  const auto make = [this](widgets::ScrollBar& model, Qt::Orientation orientation, void (ucProcessLog::*change)()) {
    auto* const bar = Make<QScrollBar>(model, this);
    bar->setOrientation(orientation);
    On(bar, &QScrollBar::valueChanged, this, [this, &model, change](int value) {
      model.SetValue(value);
      (control_.*change)();
    });
    return bar;
  };
  sideways_ = make(c_.HScroll, Qt::Horizontal, &ucProcessLog::HScroll_Change);
  upAndDown_ = make(c_.VScroll, Qt::Vertical, &ucProcessLog::VScroll_Change);
  for (QWidget* const field : options_->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
    new KeyboardFocusWatch(*field, [this, field] { BringIntoSight(*field); });
  }
  auto* const corner = new QWidget(this);
  corner->setAutoFillBackground(true);
  Bind(c_.fraCorner, *corner);
}

void ProcessLogWidget::MakeRefresh() {
  refresh_->setText(ToQt(c_.cmdRefresh.text()));
  refresh_->setShortcut(QKeySequence(Qt::Key_F5));
  refresh_->setShortcutContext(Qt::WidgetWithChildrenShortcut);
  addAction(refresh_);
  On(refresh_, &QAction::triggered, this, [this](bool) {
    if (c_.cmdRefresh.enabled()) Gesture([this] { control_.cmdRefresh_Click(); });
  });
}

void ProcessLogWidget::MakeTabKeys() {
  const auto make = [this](const QList<QKeySequence>& keys, int by) {
    auto* const action = new QAction(this);
    action->setShortcuts(keys);
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    addAction(action);
    On(action, &QAction::triggered, this, [this, by](bool) {
      auto& tabs = *findChild<QTabBar*>(ToQt(c_.sstProcessLog.name()));
      tabs.setCurrentIndex(NeighbourOf(tabs, by));
    });
  };
  make({Qt::CTRL | Qt::Key_Tab, Qt::CTRL | Qt::Key_PageDown}, +1);
  make({Qt::CTRL | Qt::SHIFT | Qt::Key_Tab, Qt::CTRL | Qt::SHIFT | Qt::Key_Backtab, Qt::CTRL | Qt::Key_PageUp}, -1);
}

void ProcessLogWidget::MakeSplitterKey() {
  auto* const action = new QAction(this);
  action->setShortcut(QKeySequence(Qt::Key_F8));
  action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
  addAction(action);
  findChild<QWidget*>(ToQt(c_.imgSplitter.name()))->setAccessibleDescription("F8, then Left and Right");
  On(action, &QAction::triggered, this, [this](bool) {
    auto& grip = *findChild<QWidget*>(ToQt(c_.imgSplitter.name()));
    grip.hasFocus() ? tree_->setFocus(Qt::ShortcutFocusReason) : grip.setFocus(Qt::ShortcutFocusReason);
  });
}

void ProcessLogWidget::OrderTabKey() {
  const char* const order[] = {"sstProcessLog",
                               "cboState",
                               "dtpDate",
                               "dtpHour",
                               "txtDuring",
                               "cboDuringUnit",
                               "chkCommunicationsFilter",
                               "chkGroupByDay",
                               "chkAlarmFilter",
                               "lstGroupBy",
                               "cmdRefresh",
                               "tvMotherList",
                               "lvMotherList"};
  QWidget* before = nullptr;
  for (const char* name : order) {
    auto* const next = findChild<QWidget*>(QLatin1String(name));
    if (before != nullptr) setTabOrder(before, next);
    before = next;
  }
  setTabOrder(list_, list_->horizontalHeader());
}

}  // namespace quorvel::qt
