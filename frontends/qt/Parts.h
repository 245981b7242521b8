// Small widgets of the viewer that Qt does not have as such.
#pragma once

#include <QListWidget>
#include <QString>
#include <QWidget>
#include <functional>

class QToolButton;

namespace quorvel::qt {

// A frame that belongs together for a screen reader too; its accessible name says as what.
class Group : public QWidget {
 public:
  using QWidget::QWidget;
};

// What a screen reader says of the buttons of an up-down.
struct StepNames {
  QString up;
  QString down;
};

// The two buttons of an up-down; they repeat while they are held.
class UpDownButtons final : public Group {
 public:
  // `step` is called with +1 and -1.
  UpDownButtons(std::function<void(int)> step, const StepNames& names, QWidget* parent);

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  QToolButton* up_;
  QToolButton* down_;
};

// A list of a few rows that shows its selection like the panes do: quietly without the focus.
class OrderList final : public QListWidget {
 public:
  using QListWidget::QListWidget;

 protected:
  void initViewItemOption(QStyleOptionViewItem* option) const override;
};

// A frame whose caption stands along its top edge as the head of a section.
class SectionFrame final : public Group {
 public:
  using Group::Group;
  // `height`: how much of the frame the caption has for itself.
  void SetCaption(const QString& caption, int height);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QString caption_;
  int captionHeight_ = 0;
};

// The grip between two panes. Pixels are counted from its left edge. With the focus, which it gets from its owner
// alone, Left and Right move it; Enter and Escape are the end of that.
class SplitterGrip final : public QWidget {
 public:
  struct Gestures {
    std::function<void()> begin;
    std::function<void(int)> move;
    std::function<void()> end;
    std::function<void()> leave;
  };
  SplitterGrip(Gestures gestures, QWidget* parent);

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void MoveBy(int pixels);

  Gestures gestures_;
};

}  // namespace quorvel::qt
