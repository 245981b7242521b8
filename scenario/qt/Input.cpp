#include "scenario_qt/Input.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWidget>

// Looks for a shortcut of this key, and triggers it. What the test library of Qt calls for its key clicks too.
QT_BEGIN_NAMESPACE
extern Q_GUI_EXPORT bool qt_sendShortcutOverrideEvent(QObject* target, ulong timestamp, int key,
                                                      Qt::KeyboardModifiers modifiers, const QString& text,
                                                      bool repeats, ushort count);
QT_END_NAMESPACE

namespace quorvel::scenario {
namespace {

void SendMouse(QWidget& widget, QEvent::Type type, QPoint at, Qt::MouseButton button, Qt::MouseButtons held,
               Qt::KeyboardModifiers modifiers) {
  QMouseEvent event(type, at, widget.mapToGlobal(at), button, held, modifiers);
  QApplication::sendEvent(&widget, &event);
}

void SendKey(QWidget& widget, int key, Qt::KeyboardModifiers modifiers, const QString& text) {
  if (qt_sendShortcutOverrideEvent(&widget, 0, key, modifiers, text, false, 1)) return;
  QKeyEvent press(QEvent::KeyPress, key, modifiers, text);
  QApplication::sendEvent(&widget, &press);
  QKeyEvent release(QEvent::KeyRelease, key, modifiers, text);
  QApplication::sendEvent(&widget, &release);
}

}  // namespace

void PressMouse(QWidget& widget, QPoint at, Qt::KeyboardModifiers modifiers) {
  SendMouse(widget, QEvent::MouseButtonPress, at, Qt::LeftButton, Qt::LeftButton, modifiers);
}

void DragMouse(QWidget& widget, QPoint to) {
  SendMouse(widget, QEvent::MouseMove, to, Qt::NoButton, Qt::LeftButton, {});
}

void ReleaseMouse(QWidget& widget, QPoint at, Qt::KeyboardModifiers modifiers) {
  SendMouse(widget, QEvent::MouseButtonRelease, at, Qt::LeftButton, Qt::NoButton, modifiers);
}

void ClickMouse(QWidget& widget, QPoint at, Qt::KeyboardModifiers modifiers, Qt::MouseButton button) {
  SendMouse(widget, QEvent::MouseButtonPress, at, button, button, modifiers);
  SendMouse(widget, QEvent::MouseButtonRelease, at, button, Qt::NoButton, modifiers);
}

void DoubleClickMouse(QWidget& widget, QPoint at) {
  ClickMouse(widget, at);
  SendMouse(widget, QEvent::MouseButtonDblClick, at, Qt::LeftButton, Qt::LeftButton, {});
  ReleaseMouse(widget, at);
}

void PressKey(QWidget& widget, Qt::Key key, Qt::KeyboardModifiers modifiers) {
  SendKey(widget, key, modifiers, {});
}

void TypeText(QWidget& widget, const QString& text) {
  for (const QChar c : text) SendKey(widget, c.toUpper().unicode(), {}, c);
}

}  // namespace quorvel::scenario
