#include "qt/Parts.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOptionSpinBox>
#include <QToolButton>
#include <algorithm>
#include <utility>

#include "qt/Guard.h"
#include "qt/ItemDelegate.h"

namespace quorvel::qt {
namespace {

// Looks like the button of a spin box, which styles draw only as a whole: so each button draws the one whose buttons
// lie where the up-down is, and shows its own half.
class StepButton final : public QToolButton {
 public:
  StepButton(Qt::ArrowType arrow, const QString& name, QWidget* upDown) : QToolButton(upDown) {
    setArrowType(arrow);
    setAutoRepeat(true);
    setFocusPolicy(Qt::NoFocus);
    setAccessibleName(name);
  }

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    Guarded([&] {
      QStyleOptionSpinBox box;
      box.initFrom(this);
      box.rect = parentWidget()->rect().translated(-pos());
      box.subControls = QStyle::SC_SpinBoxFrame | QStyle::SC_SpinBoxUp | QStyle::SC_SpinBoxDown;
      box.stepEnabled = QAbstractSpinBox::StepUpEnabled | QAbstractSpinBox::StepDownEnabled;
      box.frame = true;
      // The field that belongs to the buttons lies beside them, out of sight.
      box.rect.setLeft(box.rect.left() - kHiddenField);
      if (underMouse() || isDown()) {
        box.activeSubControls = arrowType() == Qt::UpArrow ? QStyle::SC_SpinBoxUp : QStyle::SC_SpinBoxDown;
      }
      box.state.setFlag(QStyle::State_Sunken, isDown());
      QPainter painter(this);
      style()->drawComplexControl(QStyle::CC_SpinBox, &box, &painter, this);
    });
  }

 private:
  static constexpr int kHiddenField = 40;
};

}  // namespace

UpDownButtons::UpDownButtons(std::function<void(int)> step, const StepNames& names, QWidget* parent)
    : Group(parent),
      up_(new StepButton(Qt::UpArrow, names.up, this)),
      down_(new StepButton(Qt::DownArrow, names.down, this)) {
  connect(up_, &QToolButton::clicked, this, [step] { Guarded([&] { step(+1); }); });
  connect(down_, &QToolButton::clicked, this, [step = std::move(step)] { Guarded([&] { step(-1); }); });
}

void UpDownButtons::resizeEvent(QResizeEvent* /*event*/) {
  up_->setGeometry(0, 0, width(), height() / 2);
  down_->setGeometry(0, height() / 2, width(), height() - height() / 2);
}

void OrderList::initViewItemOption(QStyleOptionViewItem* option) const {
  Guarded([&] {
    QListWidget::initViewItemOption(option);
    ItemDelegate::QuietenUnlessFocused(*option, *this);
  });
}

void SectionFrame::SetCaption(const QString& caption, int height) {
  caption_ = caption;
  captionHeight_ = height;
  setAccessibleName(caption);
  update();
}

void SectionFrame::paintEvent(QPaintEvent* /*event*/) {
  Guarded([&] {
    if (caption_.isEmpty()) return;
    QPainter painter(this);
    QFont head = font();
    head.setWeight(QFont::DemiBold);
    painter.setFont(head);
    const QRect place(0, 0, width(), captionHeight_);
    const QString shown = painter.fontMetrics().elidedText(caption_, Qt::ElideRight, place.width());
    painter.drawText(place, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, shown);
  });
}

SplitterGrip::SplitterGrip(Gestures gestures, QWidget* parent) : QWidget(parent), gestures_(std::move(gestures)) {
  setCursor(Qt::SplitHCursor);
}

void SplitterGrip::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) Guarded([&] { gestures_.begin(); });
}

void SplitterGrip::mouseMoveEvent(QMouseEvent* event) {
  if (event->buttons().testFlag(Qt::LeftButton)) Guarded([&] { gestures_.move(event->position().toPoint().x()); });
}

void SplitterGrip::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) Guarded([&] { gestures_.end(); });
}

void SplitterGrip::keyPressEvent(QKeyEvent* event) {
  constexpr int kStep = 16;
  Guarded([&] {
    event->accept();
    switch (event->key()) {
      case Qt::Key_Left:
        return MoveBy(-kStep);
      case Qt::Key_Right:
        return MoveBy(kStep);
      case Qt::Key_Return:
      case Qt::Key_Enter:
      case Qt::Key_Escape:
        return gestures_.leave();
      default:
        event->ignore();
    }
  });
}

void SplitterGrip::MoveBy(int pixels) {
  gestures_.begin();
  gestures_.move(pixels);
  gestures_.end();
}

void SplitterGrip::focusInEvent(QFocusEvent* /*event*/) {
  update();
}

void SplitterGrip::focusOutEvent(QFocusEvent* /*event*/) {
  update();
}

void SplitterGrip::paintEvent(QPaintEvent* /*event*/) {
  Guarded([&] {
    // Three dots: enough to be found, too little to be looked at.
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    if (hasFocus()) painter.fillRect(rect(), palette().color(QPalette::Highlight));
    painter.setBrush(hasFocus() ? palette().color(QPalette::HighlightedText)
                                : palette().color(QPalette::Disabled, QPalette::Text));
    const QPointF centre = QRectF(rect()).center();
    for (const int dy : {-5, 0, 5}) painter.drawEllipse(centre + QPointF(0, dy), 1.1, 1.1);
  });
}

}  // namespace quorvel::qt
