// The detail dialog as a window of Qt.
#pragma once

#include <QDialog>
#include <memory>
#include <vector>

#include "dialogs/dlgLVDetail.h"
#include "qt/Binding.h"
#include "qt/GlyphIcon.h"

class QPlainTextEdit;
class QPushButton;

namespace quorvel::qt {

// Opens and closes when its form does. While it is open the window behind takes no input, but nobody waits for it.
// Every widget inside carries the name of the control that it draws as its object name.
class DetailDialog final : public QDialog, public widgets::ControlObserver {
 public:
  // `parent`: the viewer, whose upper left corner the form's place is counted from. `detail` must outlive the dialog.
  DetailDialog(dlgLVDetail& detail, QWidget* parent);
  ~DetailDialog() override;
  DetailDialog(const DetailDialog&) = delete;
  DetailDialog& operator=(const DetailDialog&) = delete;

  // The form changed.
  void ControlChanged(widgets::Control& control) override;
  // What closes the window from outside closes the form.
  void reject() override;

 protected:
  // The form hears of keys before its controls.
  bool eventFilter(QObject* child, QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void MakeLabels();
  void MakeText();
  QPushButton* MakeButton(widgets::Button& model, void (dlgLVDetail::*click)());
  void FollowForm();
  // At the form's place, as far as the screen holds it.
  void Place();
  bool TakeKey(const QKeyEvent& key);

  void Bind(widgets::Control& model, QWidget& widget, std::function<void()> content);

  dlgLVDetail& detail_;
  dlgLVDetailControls& c_;
  GlyphIcons icons_;
  QPlainTextEdit* text_;
  std::vector<std::unique_ptr<Binding>> bindings_;
};

}  // namespace quorvel::qt
