#include "windows/OptionFields.h"

#include <commctrl.h>

#include <cstdlib>
#include <utility>

#include "windows/Contents.h"
#include "windows/ItemLook.h"
#include "windows/Window.h"

namespace quorvel::windows {

OptionFields::OptionFields(ucProcessLog& control, Surface& surface, HWND panel, Gesture gesture)
    : control_(control), c_(control.controls()), surface_(surface), panel_(panel), gesture_(std::move(gesture)) {
  // In the order of the Tab key: a screen reader takes the caption before a field for its name.
  MakeLabel(c_.lblState);
  MakeCombo(c_.cboState, &ucProcessLog::cboState_Click);
  MakePeriod();
  MakeCheckBox(c_.chkCommunicationsFilter, &ucProcessLog::chkCommunicationsFilter_Click);
  MakeCheckBox(c_.chkGroupByDay, &ucProcessLog::chkGroupByDay_Click);
  MakeCheckBox(c_.chkAlarmFilter, &ucProcessLog::chkAlarmFilter_Click);
  MakeGroupOrder();
  MakeRefresh();
}

void OptionFields::AddTo(TabOrder& order) const {
  struct Field {
    const widgets::Control& field;
    const widgets::Control* caption;
  };
  for (const Field& each : {Field{c_.cboState, &c_.lblState},
                            {c_.dtpDate, &c_.lblDate},
                            {c_.dtpHour, nullptr},
                            {c_.txtDuring, &c_.lblDuring},
                            {c_.cboDuringUnit, nullptr},
                            {c_.chkCommunicationsFilter, &c_.chkCommunicationsFilter},
                            {c_.chkGroupByDay, &c_.chkGroupByDay},
                            {c_.chkAlarmFilter, &c_.chkAlarmFilter},
                            {c_.lstGroupBy, &c_.lblGroupBy},
                            {c_.cmdRefresh, &c_.cmdRefresh}}) {
    const HWND field = surface_.WindowOf(each.field);
    order.Add(field);
    if (each.caption != nullptr) order.AddAccessKey(*each.caption, field);
  }
}

void OptionFields::MakePeriod() {
  MakeLabel(c_.lblDate);
  MakePicker(c_.dtpDate, DTS_SHORTDATEFORMAT, L"yyyy'-'MM'-'dd", &ucProcessLog::dtpDate_Change);
  NameNext(panel_, L"Start, time of day");
  MakePicker(c_.dtpHour, DTS_TIMEFORMAT | DTS_UPDOWN, L"HH':'mm':'ss", &ucProcessLog::dtpHour_Change);

  MakeLabel(c_.lblDuring);
  const auto step = [this](int by) { by > 0 ? control_.updDuring_UpClick() : control_.updDuring_DownClick(); };
  StepByKeys(MakeLength(), false, step);
  NameNext(panel_, L"Length of the period");
  MakeUpDown(c_.updDuring, Fit::kField, step);
  NameNext(panel_, L"Unit of time");
  MakeCombo(c_.cboDuringUnit, &ucProcessLog::cboDuringUnit_Click);
  MakeLabel(c_.lblPeriodEnd);
}

HWND OptionFields::MakeLength() {
  const HWND length = surface_.Make(
      c_.txtDuring, WC_EDITW, WS_TABSTOP | ES_RIGHT | ES_AUTOHSCROLL, panel_,
      [this](HWND window) { ShowText(c_.txtDuring.text(), window); }, Fit::kField, WS_EX_CLIENTEDGE);
  surface_.notices().Listen(length, {.command = [this, length](UINT code) {
                              if (code != EN_CHANGE) return;
                              c_.txtDuring.SetText(FromWide(TextOf(length)));
                              control_.txtDuring_Change();
                            }});
  // A field of one line answers keys that it has no use for with a sound.
  ears_.push_back(std::make_unique<Ear>(length, [](UINT message, WPARAM wParam, LPARAM) {
    const bool unused = message == WM_CHAR && (wParam == VK_RETURN || wParam == VK_ESCAPE || wParam == VK_TAB);
    return unused ? std::optional<LRESULT>(0) : std::nullopt;
  }));
  return length;
}

void OptionFields::MakeGroupOrder() {
  MakeLabel(c_.lblGroupBy);
  const HWND list = surface_.Make(
      c_.lstGroupBy, WC_LISTBOXW,
      WS_TABSTOP | WS_VSCROLL | LBS_NOTIFY | LBS_NOINTEGRALHEIGHT | LBS_OWNERDRAWFIXED | LBS_HASSTRINGS, panel_,
      [this](HWND window) {
        const int height = surface_.scale().ToPixels(c_.lstGroupBy.bounds().height);
        DrawContent(c_.lstGroupBy, window, height, surface_.fonts());
      },
      Fit::kFill, WS_EX_CLIENTEDGE);
  surface_.notices().Listen(list, {.command =
                                       [this, list](UINT code) {
                                         if (code == LBN_SETFOCUS || code == LBN_KILLFOCUS) {
                                           InvalidateRect(list, nullptr, FALSE);
                                         }
                                         if (code != LBN_SELCHANGE) return;
                                         const LRESULT row = SendMessageW(list, LB_GETCURSEL, 0, 0);
                                         if (row >= 0) c_.lstGroupBy.Select(static_cast<std::size_t>(row));
                                       },
                                   .draw = [this](const DRAWITEMSTRUCT& item) { DrawRow(item); }});
  const auto step = [this](int by) { by > 0 ? control_.updGroupBy_UpClick() : control_.updGroupBy_DownClick(); };
  NameNext(panel_, L"Move in the group order");
  MakeUpDown(c_.updGroupBy, Fit::kFill, step);
  // The plain keys go from row to row.
  StepByKeys(list, true, step);
}

// Like the panes the list shows its selection quietly without the focus.
void OptionFields::DrawRow(const DRAWITEMSTRUCT& item) const {
  const bool selected = (item.itemState & ODS_SELECTED) != 0;
  const bool focused = GetFocus() == item.hwndItem;
  const ItemColours colours = ColoursOf(widgets::SystemColour::kWindowText, selected, focused);
  SetDCBrushColor(item.hDC, colours.background);
  FillRect(item.hDC, &item.rcItem, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
  if (item.itemID >= c_.lstGroupBy.items().size()) return;
  RECT place = item.rcItem;
  place.left += surface_.scale().Of96(3);
  SetBkMode(item.hDC, TRANSPARENT);
  SetTextColor(item.hDC, colours.text);
  DrawTextW(item.hDC, ToWide(c_.lstGroupBy.items()[item.itemID].text).c_str(), -1, &place,
            DT_LEFT | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX | DT_END_ELLIPSIS);
  if (focused && (item.itemState & ODS_FOCUS) != 0 && (item.itemState & ODS_NOFOCUSRECT) == 0) {
    DrawFocusRect(item.hDC, &item.rcItem);
  }
}

HWND OptionFields::MakeLabel(widgets::Label& model) {
  return surface_.Make(model, WC_STATICW, SS_LEFT | SS_CENTERIMAGE, panel_,
                       [this, &model](HWND window) { DrawContent(model, window, surface_.fonts()); });
}

HWND OptionFields::MakeCombo(widgets::ComboBox& model, Handler click) {
  const auto draw = [this, &model](HWND window) { DrawContent(model, window, FieldHeight(surface_.fonts())); };
  const HWND combo =
      surface_.Make(model, WC_COMBOBOXW, WS_TABSTOP | WS_VSCROLL | CBS_DROPDOWNLIST, panel_, draw, Fit::kDropField);
  const auto chosen = [this, &model, click](std::size_t row) {
    model.Select(row);
    gesture_([this, click] { (control_.*click)(); });
  };
  combos_.push_back(std::make_unique<DropList>(combo, chosen, [draw, combo] { draw(combo); }));
  DropList& list = *combos_.back();
  surface_.notices().Listen(combo, {.command = [&list](UINT code) { list.Told(code); }});
  WheelNeedsFocus(combo);
  return combo;
}

HWND OptionFields::MakePicker(widgets::DateTimePicker& model, DWORD style, const wchar_t* format, Handler change) {
  const HWND picker = surface_.Make(
      model, DATETIMEPICK_CLASSW, WS_TABSTOP | style, panel_, [&model](HWND window) { DrawContent(model, window); },
      Fit::kField);
  SendMessageW(picker, DTM_SETFORMATW, 0, reinterpret_cast<LPARAM>(format));
  surface_.notices().Listen(picker, {.notify = [this, &model, change, picker](const NMHDR& header) -> LRESULT {
                              if (header.code != DTN_DATETIMECHANGE) return 0;
                              // With a calendar open each choice is told twice.
                              const DateValue value = ValueOf(picker);
                              if (value == model.value()) return 0;
                              model.SetValue(value);
                              (control_.*change)();
                              return 0;
                            }});
  WheelNeedsFocus(picker);
  return picker;
}

void OptionFields::MakeUpDown(widgets::UpDown& model, Fit fit, std::function<void(int)> step) {
  const HWND upDown = surface_.Make(model, UPDOWN_CLASSW, 0, panel_, {}, fit);
  // It never gets anywhere: what a step means is the control's to say.
  SendMessageW(upDown, UDM_SETRANGE32, static_cast<WPARAM>(-1), 1);
  surface_.notices().Listen(upDown, {.notify = [step = std::move(step)](const NMHDR& header) -> LRESULT {
                              if (header.code != UDN_DELTAPOS) return 0;
                              step(reinterpret_cast<const NMUPDOWN&>(header).iDelta > 0 ? +1 : -1);
                              return TRUE;
                            }});
}

HWND OptionFields::MakeCheckBox(widgets::CheckBox& model, Handler click) {
  const HWND box = surface_.Make(model, WC_BUTTONW, WS_TABSTOP | BS_AUTOCHECKBOX, panel_,
                                 [&model](HWND window) { DrawContent(model, window); });
  surface_.notices().Listen(box, {.command = [this, &model, click, box](UINT code) {
                              if (code != BN_CLICKED) return;
                              model.SetChecked(SendMessageW(box, BM_GETCHECK, 0, 0) == BST_CHECKED);
                              gesture_([this, click] { (control_.*click)(); });
                            }});
  return box;
}

HWND OptionFields::MakeRefresh() {
  const HWND refresh = surface_.Make(c_.cmdRefresh, WC_BUTTONW, WS_TABSTOP | BS_PUSHBUTTON, panel_,
                                     [this](HWND window) { ShowText(c_.cmdRefresh.text(), window); });
  surface_.notices().Listen(refresh, {.command = [this](UINT code) {
                              if (code == BN_CLICKED) gesture_([this] { control_.cmdRefresh_Click(); });
                            }});
  return refresh;
}

// The wheel over a field that does not have the focus means the page, not the field.
void OptionFields::WheelNeedsFocus(HWND field) {
  ears_.push_back(std::make_unique<Ear>(field, [field](UINT message, WPARAM wParam, LPARAM lParam) {
    if (message != WM_MOUSEWHEEL || GetFocus() == field) return std::optional<LRESULT>();
    return std::optional<LRESULT>(SendMessageW(GetParent(field), message, wParam, lParam));
  }));
}

void OptionFields::StepByKeys(HWND field, bool alt, std::function<void(int)> step) {
  auto hear = [field, alt, step = std::move(step), turned = 0](UINT message, WPARAM wParam,
                                                               LPARAM) mutable -> std::optional<LRESULT> {
    if (message == static_cast<UINT>(alt ? WM_SYSKEYDOWN : WM_KEYDOWN) && (wParam == VK_UP || wParam == VK_DOWN)) {
      step(wParam == VK_UP ? +1 : -1);
      return 0;
    }
    // The wheel means a list's rows, and no field that does not have the focus.
    if (message != WM_MOUSEWHEEL || alt || GetFocus() != field) return std::nullopt;
    // Touch pads tell of parts of a notch.
    turned += GET_WHEEL_DELTA_WPARAM(wParam);
    for (; std::abs(turned) >= WHEEL_DELTA; turned -= turned > 0 ? WHEEL_DELTA : -WHEEL_DELTA) {
      step(turned > 0 ? +1 : -1);
    }
    return 0;
  };
  ears_.push_back(std::make_unique<Ear>(field, std::move(hear)));
}

}  // namespace quorvel::windows
