#include "qt/Contents.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTabBar>
#include <algorithm>

#include "qt/Convert.h"

namespace quorvel::qt {
namespace {

int RowOf(const widgets::ItemList& list) {
  return list.selected() ? static_cast<int>(*list.selected()) : -1;
}

QStringList TextsOf(const widgets::ItemList& list) {
  QStringList texts;
  for (const widgets::Item& item : list.items()) texts.append(ToQt(item.text));
  return texts;
}

// Whether the text goes on and on without a place to break a line at. Qt looks for one from each line's beginning to
// the end, so that a megabyte of code letters would take it minutes.
bool NeverBreaks(const QString& text) {
  constexpr qsizetype kLongest = 20'000;
  qsizetype begin = 0;
  for (qsizetype i = 0; i < text.size(); ++i) {
    if (text[i].isSpace() && text[i] != QChar::Nbsp) begin = i + 1;
    if (i - begin >= kLongest) return true;
  }
  return false;
}

}  // namespace

void DrawContent(const widgets::Label& label, QLabel& widget) {
  widget.setText(ToQt(label.text()));
  if (widget.font().bold() == label.bold()) return;
  QFont font = widget.font();
  font.setBold(label.bold());
  widget.setFont(font);
}

void DrawContent(const widgets::RichTextBox& box, QPlainTextEdit& widget) {
  const QString text = ToQt(box.text());
  widget.setWordWrapMode(NeverBreaks(text) ? QTextOption::WrapAnywhere : QTextOption::WrapAtWordBoundaryOrAnywhere);
  widget.setPlainText(text);
}

void DrawContent(const widgets::TextBox& box, QLineEdit& widget) {
  const QString text = ToQt(box.text());
  // The same text set again would move the cursor of someone who types.
  if (widget.text() != text) widget.setText(text);
}

void DrawContent(const widgets::CheckBox& box, QCheckBox& widget) {
  widget.setText(ToQt(box.text()));
  widget.setChecked(box.checked());
}

void DrawContent(const widgets::Button& button, QPushButton& widget) {
  widget.setText(ToQt(button.text()));
}

void DrawContent(const widgets::ComboBox& combo, QComboBox& widget) {
  const QStringList texts = TextsOf(combo);
  QStringList shown;
  for (int row = 0; row < widget.count(); ++row) shown.append(widget.itemText(row));
  if (shown != texts) {
    widget.clear();
    widget.addItems(texts);
  }
  widget.setCurrentIndex(RowOf(combo));
}

void DrawContent(const widgets::ListBox& list, QListWidget& widget) {
  widget.clear();
  widget.addItems(TextsOf(list));
  // The rows share the height, unless that would cut them.
  const int room = widget.height() - 2 * widget.frameWidth();
  for (int row = 0; row < widget.count(); ++row) {
    widget.item(row)->setSizeHint({0, std::max(room / widget.count(), widget.fontMetrics().height())});
  }
  widget.setCurrentRow(RowOf(list));
}

void DrawContent(const widgets::DateTimePicker& picker, QDateTimeEdit& widget) {
  const QtDate date = ToQt(picker.value());
  if (widget.displayedSections().testFlag(QDateTimeEdit::DaySection)) {
    widget.setDate(date.day);
  } else {
    widget.setTime(date.time);
  }
}

void DrawContent(const widgets::ScrollBar& bar, QScrollBar& widget) {
  widget.setRange(bar.minimum(), bar.maximum());
  widget.setPageStep(bar.page());
  widget.setSingleStep(bar.page() / 5);
  widget.setValue(bar.value());
}

void DrawContent(const widgets::TabStrip& tabs, QTabBar& widget) {
  const int count = static_cast<int>(tabs.tabs().size());
  while (widget.count() > count) widget.removeTab(widget.count() - 1);
  while (widget.count() < count) widget.addTab({});
  for (int i = 0; i < count; ++i) {
    const widgets::Tab& tab = tabs.tabs()[static_cast<std::size_t>(i)];
    widget.setTabText(i, ToQt(tab.caption));
    widget.setTabVisible(i, tab.visible);
    widget.setTabEnabled(i, tab.enabled);
  }
  widget.setCurrentIndex(static_cast<int>(tabs.current()));
}

}  // namespace quorvel::qt
