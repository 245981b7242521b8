#include "qt/EscapeWatch.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QScopeGuard>
#include <QTimer>

#include "qt/Guard.h"

namespace quorvel::qt {

bool EscapeWatch::IsPressed() {
  constexpr qint64 kMilliseconds = 100;
  if (lastLook_.isValid() && lastLook_.elapsed() < kMilliseconds) return false;
  lastLook_.start();
  {
    QCoreApplication::instance()->installEventFilter(this);
    const auto atEnd = qScopeGuard([this] { QCoreApplication::instance()->removeEventFilter(this); });
    QCoreApplication::processEvents();
  }
  LetGo();
  return std::exchange(pressed_, false);
}

// Input reaches the window first and then a widget in it: only what reaches a widget counts, so that it waits once.
bool EscapeWatch::eventFilter(QObject* target, QEvent* event) {
  if (!target->isWidgetType()) return false;
  return GuardedOr(true, [&] { return Keep(static_cast<QWidget&>(*target), *event); });
}

bool EscapeWatch::Keep(QWidget& target, QEvent& event) {
  switch (event.type()) {
    case QEvent::KeyPress:
      pressed_ |= static_cast<QKeyEvent&>(event).key() == Qt::Key_Escape;
      return true;
    case QEvent::ShortcutOverride:
      event.accept();  // else it is looked for among the shortcuts, past this filter
      return true;
    case QEvent::KeyRelease:
      return true;
    case QEvent::Close:
      event.ignore();  // an accepted one closes the window at once
      [[fallthrough]];
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::ContextMenu:
    case QEvent::Wheel:
      waiting_.emplace_back(&target, event.clone());
      return true;
    default:
      return false;
  }
}

void EscapeWatch::LetGo() {
  for (auto& [target, event] : std::exchange(waiting_, {})) {
    if (!target) continue;
    if (event->type() == QEvent::Close) {
      QTimer::singleShot(0, target, SLOT(close()));
    } else {
      QCoreApplication::postEvent(target, event.release());
    }
  }
}

}  // namespace quorvel::qt
