#include "qt/Parts.h"

#include <QMouseEvent>
#include <QPainter>
#include <QToolButton>
#include <algorithm>
#include <utility>

#include "qt/Guard.h"

namespace quorvel::qt {
namespace {

QToolButton* MakeStepButton(QWidget* parent, Qt::ArrowType arrow, const QString& name) {
  auto* const button = new QToolButton(parent);
  button->setArrowType(arrow);
  button->setAutoRepeat(true);
  button->setFocusPolicy(Qt::NoFocus);
  button->setAccessibleName(name);
  return button;
}

}  // namespace

UpDownButtons::UpDownButtons(std::function<void(int)> step, QWidget* parent)
    : QWidget(parent),
      up_(MakeStepButton(this, Qt::UpArrow, QStringLiteral("More"))),
      down_(MakeStepButton(this, Qt::DownArrow, QStringLiteral("Less"))) {
  connect(up_, &QToolButton::clicked, this, [step] { Guarded([&] { step(+1); }); });
  connect(down_, &QToolButton::clicked, this, [step = std::move(step)] { Guarded([&] { step(-1); }); });
}

void UpDownButtons::resizeEvent(QResizeEvent* /*event*/) {
  up_->setGeometry(0, 0, width(), height() / 2);
  down_->setGeometry(0, height() / 2, width(), height() - height() / 2);
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

void SplitterGrip::paintEvent(QPaintEvent* /*event*/) {
  Guarded([&] {
    // Three dots: enough to be found, too little to be looked at.
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette().color(QPalette::Disabled, QPalette::Text));
    const QPointF centre = QRectF(rect()).center();
    for (const int dy : {-5, 0, 5}) painter.drawEllipse(centre + QPointF(0, dy), 1.1, 1.1);
  });
}

}  // namespace quorvel::qt
