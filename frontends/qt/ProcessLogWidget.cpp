#include "qt/ProcessLogWidget.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QResizeEvent>
#include <QScrollBar>
#include <QTabBar>
#include <algorithm>
#include <type_traits>
#include <utility>

#include "qt/Contents.h"
#include "qt/Convert.h"
#include "qt/Guard.h"
#include "qt/ListPane.h"
#include "qt/Parts.h"
#include "qt/TreePane.h"

namespace quorvel::qt {
namespace {

// What a screen reader says of widgets that have no label before them and no caption of their own.
struct SpokenName {
  const char* widget;
  const char* name;
};
constexpr SpokenName kSpokenNames[] = {
    {"sstProcessLog", "Views"},        {"dtpHour", "Start, time of day"}, {"updDuring", "Length of the period"},
    {"cboDuringUnit", "Unit of time"}, {"lstGroupBy", "Group order"},     {"tvMotherList", "History"},
    {"lvMotherList", "Entries"},       {"HScroll", "Scroll sideways"},    {"VScroll", "Scroll up and down"},
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

// A slot that calls `body` with what the signal carries.
template <class Sender, class Signal, class Body>
void On(Sender* sender, Signal signal, QObject* context, Body body) {
  QObject::connect(sender, signal, context,
                   [body = std::move(body)](auto&&... values) { Guarded([&] { body(values...); }); });
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
      options_(new QWidget(outer_)),
      section_(new SectionFrame(outer_)),
      refresh_(new QAction(this)) {
  Bind(c_.fraProcessLog, *outer_);
  Bind(c_.fraOption, *options_);
  MakeTabs();
  MakeOptions();
  MakePanes();
  MakeSplitter();
  MakeScrollBars();
  MakeRefresh();
  OrderTabKey();
  for (const SpokenName& each : kSpokenNames) {
    findChild<QWidget*>(QLatin1String(each.widget))->setAccessibleName(QLatin1String(each.name));
  }
}

ProcessLogWidget::~ProcessLogWidget() {
  // The widgets draw controls that are members, so they go first.
  bindings_.clear();
  qDeleteAll(findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly));
}

QSize ProcessLogWidget::sizeHint() const {
  return {1100, 700};
}

void ProcessLogWidget::resizeEvent(QResizeEvent* event) {
  Guarded([&] { control_.UserControl_Resize(ToTwips(event->size().width()), ToTwips(event->size().height())); });
}

void ProcessLogWidget::Bind(widgets::Control& model, QWidget& widget, std::function<void()> content) {
  bindings_.push_back(std::make_unique<Binding>(model, widget, std::move(content)));
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
  On(tabs, &QTabBar::currentChanged, this, [this](int tab) {
    if (tab < 0) return;
    c_.sstProcessLog.SetCurrent(static_cast<std::size_t>(tab));
    control_.sstProcessLog_Click();
  });
}

void ProcessLogWidget::MakeOptions() {
  auto* const state = Make<QLabel>(c_.lblState, options_);
  state->setBuddy(MakeCombo(c_.cboState, &ucProcessLog::cboState_Click));
  MakePeriodOptions();
  for (widgets::CheckBox* box : {&c_.chkCommunicationsFilter, &c_.chkGroupByDay, &c_.chkAlarmFilter}) {
    On(Make<QCheckBox>(*box, options_), &QCheckBox::clicked, this, [box](bool checked) { box->SetChecked(checked); });
  }
  On(Make<QListWidget>(c_.lstGroupBy, options_), &QListWidget::currentRowChanged, this, [this](int row) {
    if (row >= 0) c_.lstGroupBy.Select(static_cast<std::size_t>(row));
  });
  auto* const refresh = Make<QPushButton>(c_.cmdRefresh, options_);
  On(refresh, &QPushButton::clicked, this, [this](bool) { control_.cmdRefresh_Click(); });
}

void ProcessLogWidget::MakePeriodOptions() {
  auto* const date = Make<QLabel>(c_.lblDate, options_);
  date->setBuddy(MakePicker(c_.dtpDate, QStringLiteral("yyyy-MM-dd")));
  MakePicker(c_.dtpHour, QStringLiteral("HH:mm:ss"));

  auto* const during = Make<QLabel>(c_.lblDuring, options_);
  auto* const length = Make<QLineEdit>(c_.txtDuring, options_);
  length->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  during->setBuddy(length);
  On(length, &QLineEdit::textEdited, this, [this](const QString& text) { c_.txtDuring.SetText(FromQt(text)); });
  auto* const step = new UpDownButtons(
      [this](int by) { by > 0 ? control_.updDuring_UpClick() : control_.updDuring_DownClick(); }, options_);
  Bind(c_.updDuring, *step);
  MakeCombo(c_.cboDuringUnit, &ucProcessLog::cboDuringUnit_Click);
}

QComboBox* ProcessLogWidget::MakeCombo(widgets::ComboBox& model, void (ucProcessLog::*click)()) {
  auto* const combo = Make<QComboBox>(model, options_);
  new WheelNeedsFocus(*combo);
  On(combo, &QComboBox::activated, this, [this, &model, click](int row) {
    model.Select(static_cast<std::size_t>(row));
    (control_.*click)();
  });
  return combo;
}

QDateTimeEdit* ProcessLogWidget::MakePicker(widgets::DateTimePicker& model, const QString& format) {
  auto* const picker = new QDateTimeEdit(options_);
  picker->setDisplayFormat(format);
  // Wall clock times as they stand: none is missing or double where summer time begins or ends.
  picker->setTimeSpec(Qt::UTC);
  picker->setDateRange(QDate(100, 1, 1), QDate(9999, 12, 31));
  picker->setCalendarPopup(picker->displayedSections().testFlag(QDateTimeEdit::DaySection));
  new WheelNeedsFocus(*picker);
  Bind(model, *picker, [&model, picker] { DrawContent(model, *picker); });
  On(picker, &QDateTimeEdit::dateChanged, this, [&model, picker](QDate day) {
    if (picker->calendarPopup()) model.SetValue(FromQt(day));
  });
  On(picker, &QDateTimeEdit::timeChanged, this, [&model, picker](QTime time) {
    if (!picker->calendarPopup()) model.SetValue(FromQt(time));
  });
  return picker;
}

void ProcessLogWidget::MakePanes() {
  Bind(c_.fraList, *section_,
       [this] { section_->SetCaption(ToQt(c_.fraList.text()), ToPixels(c_.tvMotherList.bounds().top)); });
  tree_ = new TreePane(c_.tvMotherList,
                       {.expand = [this](widgets::NodeId node) { control_.tvMotherList_Expand(node); },
                        .collapse = [this](widgets::NodeId node) { control_.tvMotherList_Collapse(node); },
                        .click = [this](widgets::NodeId node) { control_.tvMotherList_NodeClick(node); }},
                       section_);
  Bind(c_.tvMotherList, *tree_);
  list_ = new ListPane(c_.lvMotherList,
                       {.columnClick = [this](std::size_t column) { control_.lvMotherList_ColumnClick(column); },
                        .doubleClick = [this] { control_.lvMotherList_DblClick(); },
                        .keyDown = [this](std::int32_t keyCode) { control_.lvMotherList_KeyDown(keyCode); }},
                       section_);
  Bind(c_.lvMotherList, *list_);
  setFocusProxy(tree_);
}

void ProcessLogWidget::MakeSplitter() {
  auto* const grip = new SplitterGrip({.begin = [this] { control_.imgSplitter_MouseDown(); },
                                       .move = [this](int x) { control_.imgSplitter_MouseMove(ToTwips(x)); },
                                       .end = [this] { control_.imgSplitter_MouseUp(); }},
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
  };
  make(c_.HScroll, Qt::Horizontal, &ucProcessLog::HScroll_Change);
  make(c_.VScroll, Qt::Vertical, &ucProcessLog::VScroll_Change);
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
    if (c_.cmdRefresh.enabled()) control_.cmdRefresh_Click();
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
}

}  // namespace quorvel::qt
