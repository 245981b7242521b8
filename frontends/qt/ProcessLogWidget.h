// The history viewer as a widget of Qt that a form can hold.
#pragma once

#include <QWidget>
#include <functional>
#include <memory>
#include <vector>

#include "control/ucProcessLog.h"
#include "qt/Binding.h"
#include "qt/QtPlatform.h"
#include "qt/TimerBinding.h"

class QAction;
class QComboBox;
class QDateTimeEdit;
class QLineEdit;
class QScrollBar;

namespace quorvel::qt {

class Group;
class ListPane;
class PopupMenu;
class SectionFrame;
class TreePane;

// Start here: place it on a form, set the properties of `control()`, call one of its m_GetLog methods. Every widget
// inside carries the name of the control that it draws as its object name.
class ProcessLogWidget final : public QWidget {
 public:
  // With a platform of its own, see QtPlatform. `factory` must outlive the widget.
  explicit ProcessLogWidget(datasource::RecordSourceFactory& factory, QWidget* parent = nullptr);
  // With another platform, which must outlive the widget too.
  ProcessLogWidget(datasource::RecordSourceFactory& factory, Platform& platform, QWidget* parent = nullptr);
  ~ProcessLogWidget() override;
  ProcessLogWidget(const ProcessLogWidget&) = delete;
  ProcessLogWidget& operator=(const ProcessLogWidget&) = delete;

  ucProcessLog& control() { return control_; }
  TreePane& tree() { return *tree_; }
  ListPane& list() { return *list_; }

  // Reads the history again; F5 while the focus is in the widget. For the host's menu.
  QAction& refreshAction() { return *refresh_; }

  QSize sizeHint() const override;

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  void MakeOptions();
  void MakePeriodOptions();
  void MakeGroupOrder();
  void MakeTabs();
  void MakePanes();
  void WatchFocus();
  void MakeTree();
  void MakeList();
  void MakeMenus();
  void MakeSplitter();
  void MakeScrollBars();
  void MakeRefresh();
  void MakeTabKeys();
  void MakeSplitterKey();
  void OrderTabKey();
  // Makes a gesture, which must mean the same whatever is shown then: at once or, where a component lets input through
  // while it works, when the control has done what it is at. Of several that come meanwhile the last one is made.
  void Gesture(std::function<void()> make);
  // The same for a gesture on a node, if the tree still has it then.
  void GestureOn(widgets::NodeId node, void (ucProcessLog::*handler)(widgets::NodeId));
  // Scrolls the viewer, where it is smaller than its content, until this field is seen.
  void BringIntoSight(const QWidget& field);

  // A widget inside `parent` that is kept like its control.
  template <class Widget, class Model>
  Widget* Make(Model& model, QWidget* parent);
  QComboBox* MakeCombo(widgets::ComboBox& model, void (ucProcessLog::*click)());
  QDateTimeEdit* MakePicker(widgets::DateTimePicker& model, const QString& format, void (ucProcessLog::*change)());
  void MakeCheckBox(widgets::CheckBox& model, void (ucProcessLog::*click)());
  void Bind(widgets::Control& model, QWidget& widget, std::function<void()> content = {});

  QtPlatform ownPlatform_;
  ucProcessLog control_;
  ProcessLogControls& c_;
  QWidget* outer_;
  Group* options_;
  SectionFrame* section_;
  TreePane* tree_ = nullptr;
  ListPane* list_ = nullptr;
  const QWidget* paneWithFocus_ = nullptr;  // of this window, whichever window is used now
  QScrollBar* sideways_ = nullptr;
  QScrollBar* upAndDown_ = nullptr;
  QAction* refresh_;
  std::vector<std::unique_ptr<Binding>> bindings_;
  TimerBinding scrollDown_;
  std::function<void()> waiting_;  // the gesture to make when the control is done
  std::vector<std::unique_ptr<PopupMenu>> menus_;
};

}  // namespace quorvel::qt
