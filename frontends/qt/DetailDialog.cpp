#include "qt/DetailDialog.h"

#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QStyle>
#include <algorithm>
#include <utility>

#include "qt/Accessibility.h"
#include "qt/Contents.h"
#include "qt/Convert.h"
#include "qt/Guard.h"

namespace quorvel::qt {
namespace {

constexpr SpokenName kSpokenNames[] = {
    {"rtbDetail", "Description"},
    {"cmdPrevious", "Previous entry"},
    {"cmdNext", "Next entry"},
    {"cmdCopytoClipboard", "Copy to clipboard"},
};

// The keys that a form may have a use for, as it knows them.
struct FormKey {
  int key;
  std::int32_t code;
};
constexpr FormKey kFormKeys[] = {{Qt::Key_Escape, 27}, {Qt::Key_PageUp, 33}, {Qt::Key_PageDown, 34}};

// One line of data, cut where it finds no room; the whole of it is its tool tip then.
class DataLabel final : public QLabel {
 public:
  explicit DataLabel(QWidget* parent) : QLabel(parent) { setTextFormat(Qt::PlainText); }

  void Draw(const widgets::Label& label) {
    DrawContent(label, *this);
    // As rich text that wraps; the data itself is none.
    setToolTip(Shown() == Line() ? QString() : Qt::convertFromPlainText(text()));
  }

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    Guarded([&] {
      QPainter painter(this);
      style()->drawItemText(&painter, rect(), Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, palette(),
                            isEnabled(), Shown(), foregroundRole());
    });
  }

 private:
  QString Line() const { return text().simplified(); }
  QString Shown() const { return fontMetrics().elidedText(Line(), Qt::ElideRight, width()); }
};

}  // namespace

DetailDialog::DetailDialog(dlgLVDetail& detail, QWidget* parent)
    : QDialog(parent), detail_(detail), c_(detail.controls()), text_(new QPlainTextEdit(this)) {
  setObjectName(ToQt(c_.form.name()));
  setMinimumSize(ToPixels(c_.form.leastWidth()), ToPixels(c_.form.leastHeight()));
  MakeLabels();
  MakeText();
  MakeButton(c_.cmdPrevious, &dlgLVDetail::cmdPrevious_Click);
  MakeButton(c_.cmdNext, &dlgLVDetail::cmdNext_Click);
  MakeButton(c_.cmdCopytoClipboard, &dlgLVDetail::cmdCopytoClipboard_Click);
  MakeButton(c_.cmdClose, &dlgLVDetail::cmdClose_Click)->setDefault(true);
  NameWidgets(*this, kSpokenNames);
  c_.form.Observe(this);
  DetailDialog::ControlChanged(c_.form);
}

DetailDialog::~DetailDialog() {
  c_.form.Observe(nullptr);
}

void DetailDialog::Bind(widgets::Control& model, QWidget& widget, std::function<void()> content) {
  bindings_.push_back(std::make_unique<Binding>(model, widget, std::move(content)));
  widget.installEventFilter(this);
}

void DetailDialog::MakeLabels() {
  for (widgets::Label* const label :
       {&c_.lblTitle, &c_.lblDateStart, &c_.lblDateStartValue, &c_.lblDateEnd, &c_.lblDateEndValue}) {
    auto* const widget = new DataLabel(this);
    Bind(*label, *widget, [label, widget] { widget->Draw(*label); });
  }
}

void DetailDialog::MakeText() {
  text_->setReadOnly(true);
  text_->setTabChangesFocus(true);
  // A place that changes is no reason to lay out a long text again.
  Bind(c_.rtbDetail, *text_, [this, drawn = std::string()]() mutable {
    if (drawn == c_.rtbDetail.text()) return;
    drawn = c_.rtbDetail.text();
    DrawContent(c_.rtbDetail, *text_);
  });
}

QPushButton* DetailDialog::MakeButton(widgets::Button& model, void (dlgLVDetail::*click)()) {
  auto* const button = new QPushButton(this);
  // A click leaves the keys with the text, and Enter with the button that closes.
  button->setFocusPolicy(Qt::TabFocus);
  Bind(model, *button, [this, &model, button] {
    DrawContent(model, *button);
    button->setIcon(icons_.Of(model.picture()));
  });
  On(button, &QPushButton::clicked, this, [this, click](auto&&...) { (detail_.*click)(); });
  return button;
}

void DetailDialog::ControlChanged(widgets::Control& /*control*/) {
  Guarded([&] { FollowForm(); });
}

void DetailDialog::FollowForm() {
  setWindowTitle(ToQt(c_.form.text()));
  const bool open = c_.form.shown();
  if (open && !isVisible()) {
    Place();
    text_->setFocus();
    QDialog::open();
  } else if (open) {
    resize(ToPixels(c_.form.bounds()).size());
  } else if (isVisible()) {
    const bool used = isActiveWindow();
    done(Rejected);
    // Not every desktop goes back by itself.
    if (used && parentWidget() != nullptr) parentWidget()->activateWindow();
  }
}

void DetailDialog::Place() {
  const QRect wanted = ToPixels(c_.form.bounds());
  const QRect available = screen()->availableGeometry();
  resize(wanted.size().boundedTo(available.size()));
  const QPoint corner = parentWidget() == nullptr ? wanted.topLeft() : parentWidget()->mapToGlobal(wanted.topLeft());
  const auto within = [](int at, int size, int first, int room) {
    return std::clamp(at, first, std::max(first, first + room - size));
  };
  move(within(corner.x(), width(), available.x(), available.width()),
       within(corner.y(), height(), available.y(), available.height()));
}

void DetailDialog::reject() {
  Guarded([&] { detail_.cmdClose_Click(); });
}

bool DetailDialog::TakeKey(const QKeyEvent& key) {
  // The Enter that opened the dialog may be held down still.
  const bool enter = key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
  if (enter && key.isAutoRepeat()) return true;
  if ((key.modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier) return false;
  const auto* const found = std::ranges::find(kFormKeys, key.key(), &FormKey::key);
  return found != std::end(kFormKeys) && detail_.Form_KeyDown(found->code);
}

bool DetailDialog::eventFilter(QObject* /*child*/, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return false;
  return GuardedOr(false, [&] { return TakeKey(static_cast<const QKeyEvent&>(*event)); });
}

void DetailDialog::keyPressEvent(QKeyEvent* event) {
  Guarded([&] {
    if (!TakeKey(*event)) QDialog::keyPressEvent(event);
  });
}

void DetailDialog::resizeEvent(QResizeEvent* /*event*/) {
  Guarded([&] { detail_.Form_Resize(ToTwips(width()), ToTwips(height())); });
}

}  // namespace quorvel::qt
