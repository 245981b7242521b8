// Mouse and keyboard input as widgets get it from a user.
#pragma once

#include <QPoint>
#include <QString>
#include <Qt>

class QWidget;

namespace quorvel::scenario {

// At a place within the widget; without another one named the left button.
void PressMouse(QWidget& widget, QPoint at, Qt::KeyboardModifiers modifiers = {});
void DragMouse(QWidget& widget, QPoint to);
void ReleaseMouse(QWidget& widget, QPoint at, Qt::KeyboardModifiers modifiers = {});
void ClickMouse(QWidget& widget, QPoint at, Qt::KeyboardModifiers modifiers = {},
                Qt::MouseButton button = Qt::LeftButton);

void DoubleClickMouse(QWidget& widget, QPoint at);

// Shortcuts come first, as they do for a user.
void PressKey(QWidget& widget, Qt::Key key, Qt::KeyboardModifiers modifiers = {});
// Character by character.
void TypeText(QWidget& widget, const QString& text);

}  // namespace quorvel::scenario
