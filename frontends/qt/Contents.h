// What controls hold beside their place: the model's side drawn on the widget of Qt that stands for it.
#pragma once

#include "widgets/Control.h"
#include "widgets/ItemList.h"
#include "widgets/Ranges.h"
#include "widgets/TabStrip.h"

class QCheckBox;
class QComboBox;
class QDateTimeEdit;
class QLabel;
class QLineEdit;
class QListWidget;
class QPlainTextEdit;
class QPushButton;
class QScrollBar;
class QTabBar;

namespace quorvel::qt {

void DrawContent(const widgets::Label& label, QLabel& widget);
void DrawContent(const widgets::TextBox& box, QLineEdit& widget);
// Not cheap: only for a text that is not drawn already.
void DrawContent(const widgets::RichTextBox& box, QPlainTextEdit& widget);
void DrawContent(const widgets::CheckBox& box, QCheckBox& widget);
void DrawContent(const widgets::Button& button, QPushButton& widget);
void DrawContent(const widgets::ComboBox& combo, QComboBox& widget);
void DrawContent(const widgets::ListBox& list, QListWidget& widget);
void DrawContent(const widgets::DateTimePicker& picker, QDateTimeEdit& widget);
void DrawContent(const widgets::ScrollBar& bar, QScrollBar& widget);
void DrawContent(const widgets::TabStrip& tabs, QTabBar& widget);

}  // namespace quorvel::qt
