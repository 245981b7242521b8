#include "qt/Binding.h"

#include <QSignalBlocker>

#include "qt/Convert.h"
#include "qt/Guard.h"

namespace quorvel::qt {

Binding::Binding(widgets::Control& control, QWidget& widget, std::function<void()> content)
    : control_(control), widget_(widget), content_(std::move(content)) {
  widget_.setObjectName(ToQt(control_.name()));
  control_.Observe(this);
  Draw();
}

void Binding::ControlChanged(widgets::Control& /*control*/) {
  Guarded([&] { Draw(); });
}

void Binding::Draw() {
  const QSignalBlocker blocker(widget_);
  const QRect place = ToPixels(control_.bounds());
  widget_.setGeometry(place);
  widget_.setEnabled(control_.enabled());
  widget_.setToolTip(ToQt(control_.toolTip()));
  if (content_) content_();
  // What has no place yet is not to be seen, whatever size the widget came up with.
  widget_.setVisible(control_.visible() && !place.isEmpty());
}

}  // namespace quorvel::qt
