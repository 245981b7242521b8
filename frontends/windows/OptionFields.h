// The fields of the options panel, with the gestures on them.
#pragma once

#include <windows.h>

#include <functional>
#include <memory>
#include <vector>

#include "control/ucProcessLog.h"
#include "windows/DropList.h"
#include "windows/Ear.h"
#include "windows/Surface.h"
#include "windows/TabOrder.h"

namespace quorvel::windows {

class OptionFields {
 public:
  // Makes a gesture, which must mean the same whatever is shown then: at once, or when the control has done what it is
  // at.
  using Gesture = std::function<void(std::function<void()>)>;

  // In the window `panel`. All must outlive the fields.
  OptionFields(ucProcessLog& control, Surface& surface, HWND panel, Gesture gesture);
  ~OptionFields() = default;
  OptionFields(const OptionFields&) = delete;
  OptionFields& operator=(const OptionFields&) = delete;

  // Adds the fields and the keys of their captions.
  void AddTo(TabOrder& order) const;

 private:
  using Handler = void (ucProcessLog::*)();

  void MakePeriod();
  void MakeGroupOrder();
  HWND MakeLabel(widgets::Label& model);
  HWND MakeCombo(widgets::ComboBox& model, Handler click);
  HWND MakePicker(widgets::DateTimePicker& model, DWORD style, const wchar_t* format, Handler change);
  HWND MakeLength();
  void MakeUpDown(widgets::UpDown& model, Fit fit, std::function<void(int)> step);
  HWND MakeCheckBox(widgets::CheckBox& model, Handler click);
  HWND MakeRefresh();
  void DrawRow(const DRAWITEMSTRUCT& item) const;

  void WheelNeedsFocus(HWND field);
  // Up and down, with Alt or without, and the wheel are for a field what the buttons of its up-down are.
  void StepByKeys(HWND field, bool alt, std::function<void(int)> step);

  ucProcessLog& control_;
  ProcessLogControls& c_;
  Surface& surface_;
  HWND panel_;
  Gesture gesture_;
  std::vector<std::unique_ptr<DropList>> combos_;
  std::vector<std::unique_ptr<Ear>> ears_;
};

}  // namespace quorvel::windows
