// The header of a list, for the keyboard as well: one goes along its captions, sorts by them, and widens columns.
#pragma once

#include <QHeaderView>

namespace quorvel::qt {

// With the focus: Left, Right, Home and End choose a column, Space and Enter click it, Ctrl+Left and Ctrl+Right make it
// narrower and wider, Down goes to the rows.
class ListHeader final : public QHeaderView {
 public:
  // The table that it becomes the header of.
  explicit ListHeader(QWidget* table);

  // The chosen column, in range while there is one.
  int column() const;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void paintSection(QPainter* painter, const QRect& rect, int logicalIndex) const override;

 private:
  // Whether the key has a meaning here.
  bool Handle(const QKeyEvent& event);
  bool Widen(int key);
  void Choose(int column);

  int column_ = 0;
};

}  // namespace quorvel::qt
