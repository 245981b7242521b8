#include "windows/DetailWindow.h"

#include <richedit.h>

#include <algorithm>
#include <functional>
#include <iterator>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "windows/Contents.h"
#include "windows/Ear.h"
#include "windows/GlyphBitmap.h"
#include "windows/Guard.h"
#include "windows/PictureButton.h"
#include "windows/Surface.h"
#include "windows/TabOrder.h"
#include "windows/Window.h"
#include "windows/WindowsPlatform.h"

namespace quorvel::windows {
namespace {

// The keys that a form may have a use for, as it knows them: Windows has the same numbers for them.
constexpr WPARAM kFormKeys[] = {VK_ESCAPE, VK_PRIOR, VK_NEXT};

constexpr LPARAM kRepeated = 1 << 30;  // in what a key message tells of the key
constexpr UINT kDpiChanged = 0x02E0;   // Windows 8.1

struct RichEdit {
  const wchar_t* library;
  const wchar_t* windowClass;
};
// The newest one first.
constexpr RichEdit kRichEdits[] = {{L"msftedit.dll", L"RICHEDIT50W"}, {L"riched20.dll", L"RichEdit20W"}};

// The library stays: the window class is its own.
const wchar_t* RichEditClass() {
  static const wchar_t* const found = [] {
    const auto* const loaded =
        std::ranges::find_if(kRichEdits, [](const RichEdit& each) { return LoadLibraryW(each.library) != nullptr; });
    return loaded == std::end(kRichEdits) ? WC_EDITW : loaded->windowClass;
  }();
  return found;
}

// Line ends and tabs of data are blanks where there is one line.
std::wstring OneLine(std::string_view text) {
  std::wstring line = ToWide(text);
  std::ranges::replace_if(
      line, [](wchar_t unit) { return unit < L' '; }, L' ');
  return line;
}

// Whether the text goes on and on without a place to break a line at. Some rich edits look for one from each line's
// beginning to the end, so that a megabyte of code letters would take them hours.
bool NeverBreaks(std::wstring_view text) {
  constexpr std::size_t kLongest = 2'000;
  std::size_t begin = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] <= L' ' || text[i] == L'-') begin = i + 1;
    if (i - begin + 1 > kLongest) return true;
  }
  return false;
}

void ShowBeginning(HWND text) {
  SendMessageW(text, EM_SETSEL, 0, 0);
  SendMessageW(text, WM_VSCROLL, SB_TOP, 0);
}

int WidthOf(HWND window, HFONT font, const std::wstring& text) {
  const HDC dc = GetDC(window);
  SIZE size{};
  {
    const FontOn drawing(dc, font);
    GetTextExtentPoint32W(dc, text.c_str(), static_cast<int>(text.size()), &size);
  }
  ReleaseDC(window, dc);
  return static_cast<int>(size.cx);
}

}  // namespace

class DetailWindow::Body final : public Window {
 public:
  Body(dlgLVDetail& detail, HWND viewer);
  ~Body() override;
  Body(const Body&) = delete;
  Body& operator=(const Body&) = delete;

  HWND WindowOf(const widgets::Control& control) const { return surface_.WindowOf(control); }
  bool TakeKey(UINT message, WPARAM wParam, LPARAM lParam);
  // The form has another caption or size.
  void Follow();

 protected:
  std::optional<LRESULT> Handle(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  void MakeLabels();
  void MakeText();
  void MakePicture(widgets::Button& model, void (dlgLVDetail::*click)(), const wchar_t* name);
  void MakeClose();
  // Leads what a button tells to the dialog.
  void Lead(HWND button, void (dlgLVDetail::*click)(), std::function<void(const DRAWITEMSTRUCT&)> draw);
  void DrawData(const widgets::Label& label, HWND window);
  void DrawDetail(HWND window);
  void ListenToKeys(HWND control);

  // At the form's place, as far as the screen holds it.
  void Place();
  // The size of the window around an area of this size in twips.
  SIZE Around(widgets::Twips width, widgets::Twips height) const;
  void Redraw(UINT dotsPerInch);
  bool TakeKeyDown(WPARAM key, LPARAM lParam);
  bool TakeEnter(LPARAM lParam);

  dlgLVDetail& detail_;
  dlgLVDetailControls& c_;
  HWND viewer_;
  HWND behind_;
  bool behindWasEnabled_;
  Surface surface_;
  GdiPlus drawing_;
  std::vector<std::unique_ptr<PictureButton>> pictures_;
  std::string drawnDetail_;
  HWND text_ = nullptr;
  HWND close_ = nullptr;
  TabOrder order_;
  std::vector<std::unique_ptr<Ear>> ears_;
  HWND lastField_ = nullptr;
  bool pressedByMouse_ = false;
  bool following_ = false;
};

DetailWindow::Body::Body(dlgLVDetail& detail, HWND viewer)
    : Window({.style = WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_THICKFRAME | WS_CLIPCHILDREN,
              .extended = WS_EX_DLGMODALFRAME | WS_EX_CONTROLPARENT},
             GetAncestor(viewer, GA_ROOT)),
      detail_(detail),
      c_(detail.controls()),
      viewer_(viewer),
      behind_(GetAncestor(viewer, GA_ROOT)),
      behindWasEnabled_(IsWindowEnabled(behind_) != FALSE),
      surface_(viewer) {
  MakeLabels();
  MakeText();
  MakePicture(c_.cmdPrevious, &dlgLVDetail::cmdPrevious_Click, L"Previous entry");
  MakePicture(c_.cmdNext, &dlgLVDetail::cmdNext_Click, L"Next entry");
  MakePicture(c_.cmdCopytoClipboard, &dlgLVDetail::cmdCopytoClipboard_Click, L"Copy to clipboard");
  MakeClose();
  surface_.OnFocusLost([this](HWND) { SetFocus(text_); });
  lastField_ = text_;
  Follow();
  Place();
  // It was drawn where nothing of it was seen.
  ShowBeginning(text_);
  EnableWindow(behind_, FALSE);
  ShowWindow(window(), SW_SHOW);
  SetFocus(text_);
}

DetailWindow::Body::~Body() {
  const bool used = GetActiveWindow() == window();
  // Before this window goes: else another program's would come to the front.
  if (behindWasEnabled_) EnableWindow(behind_, TRUE);
  if (used) SetActiveWindow(behind_);
  surface_.Clear();
  End();
}

void DetailWindow::Body::MakeLabels() {
  for (widgets::Label* const label :
       {&c_.lblTitle, &c_.lblDateStart, &c_.lblDateStartValue, &c_.lblDateEnd, &c_.lblDateEndValue}) {
    surface_.Make(*label, WC_STATICW, SS_LEFT | SS_NOPREFIX | SS_CENTERIMAGE | SS_ENDELLIPSIS | SS_NOTIFY, window(),
                  [this, label](HWND made) { DrawData(*label, made); });
  }
}

// One line of data, cut where it finds no room; the whole of it is its tool tip then.
void DetailWindow::Body::DrawData(const widgets::Label& label, HWND window) {
  const std::wstring line = OneLine(label.text());
  if (TextOf(window) != line) SetWindowTextW(window, line.c_str());
  const HFONT font = label.bold() ? surface_.fonts().bold() : surface_.fonts().regular();
  SendMessageW(window, WM_SETFONT, reinterpret_cast<WPARAM>(font), TRUE);
  const bool cut = WidthOf(window, font, line) > surface_.scale().ToPixels(label.bounds().width);
  surface_.toolTips().Set(window, cut ? ToWide(label.text()) : std::wstring());
}

void DetailWindow::Body::MakeText() {
  NameNext(window(), L"Description");
  text_ = surface_.Make(
      c_.rtbDetail, RichEditClass(),
      WS_TABSTOP | WS_VSCROLL | WS_HSCROLL | ES_MULTILINE | ES_SELECTIONBAR | ES_READONLY | ES_AUTOVSCROLL, window(),
      [this](HWND made) { DrawDetail(made); }, Fit::kFill, WS_EX_CLIENTEDGE);
  order_.Add(text_);
  ListenToKeys(text_);
}

// A place that changes is no reason to lay out a long text again.
void DetailWindow::Body::DrawDetail(HWND window) {
  if (drawnDetail_ == c_.rtbDetail.text()) return;
  drawnDetail_ = c_.rtbDetail.text();
  SendMessageW(window, EM_SETTEXTMODE, TM_PLAINTEXT | TM_SINGLELEVELUNDO, 0);
  SendMessageW(window, EM_EXLIMITTEXT, 0, static_cast<LPARAM>(drawnDetail_.size()) + 1);
  const std::wstring text = ToWide(drawnDetail_);
  // As wide as the window, or as the text.
  SendMessageW(window, EM_SETTARGETDEVICE, 0, NeverBreaks(text) ? 1 : 0);
  SetWindowTextW(window, text.c_str());
  ShowBeginning(window);
}

void DetailWindow::Body::MakePicture(widgets::Button& model, void (dlgLVDetail::*click)(), const wchar_t* name) {
  pictures_.push_back(std::make_unique<PictureButton>(model, surface_, window(), name));
  const PictureButton& picture = *pictures_.back();
  Lead(picture.window(), click, [&picture](const DRAWITEMSTRUCT& item) { picture.Paint(item); });
}

void DetailWindow::Body::MakeClose() {
  close_ = surface_.Make(c_.cmdClose, WC_BUTTONW, WS_TABSTOP | BS_DEFPUSHBUTTON, window(),
                         [this](HWND made) { ShowText(c_.cmdClose.text(), made); });
  order_.AddAccessKey(c_.cmdClose, close_);
  Lead(close_, &dlgLVDetail::cmdClose_Click, {});
}

void DetailWindow::Body::Lead(HWND button, void (dlgLVDetail::*click)(),
                              std::function<void(const DRAWITEMSTRUCT&)> draw) {
  surface_.notices().Listen(button, {.command =
                                         [this, click](UINT code) {
                                           if (code != BN_CLICKED) return;
                                           // The mouse leaves the keys with the text, and Enter with the button that
                                           // closes.
                                           if (std::exchange(pressedByMouse_, false)) SetFocus(text_);
                                           (detail_.*click)();
                                         },
                                     .draw = std::move(draw)});
  order_.Add(button);
  ListenToKeys(button);
}

// Before the control itself gets them, and whoever reads them from the queue.
void DetailWindow::Body::ListenToKeys(HWND control) {
  ears_.push_back(std::make_unique<Ear>(
      control, [this, control](UINT message, WPARAM wParam, LPARAM lParam) -> std::optional<LRESULT> {
        if (message == WM_SETFOCUS) lastField_ = control;
        if (message == WM_LBUTTONDOWN || message == WM_KEYDOWN) pressedByMouse_ = message == WM_LBUTTONDOWN;
        if (TakeKey(message, wParam, lParam)) return 0;
        // What is left of keys that were taken.
        const bool rest = message == WM_CHAR && (wParam == VK_RETURN || wParam == VK_ESCAPE || wParam == VK_TAB);
        return rest ? std::optional<LRESULT>(0) : std::nullopt;
      }));
}

bool DetailWindow::Body::TakeKey(UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_KEYDOWN) return TakeKeyDown(wParam, lParam);
  if (message == WM_SYSKEYDOWN && wParam == VK_MENU) ShowKeyMarks(window());
  if (message != WM_SYSCHAR) return false;
  const HWND field = order_.OfAccessKey(static_cast<wchar_t>(wParam));
  if (field != nullptr) PressByKey(field);
  return field != nullptr;
}

bool DetailWindow::Body::TakeKeyDown(WPARAM key, LPARAM lParam) {
  if (key == VK_RETURN) return TakeEnter(lParam);
  if (GetKeyState(VK_CONTROL) < 0) return false;
  const bool shift = GetKeyState(VK_SHIFT) < 0;
  if (key == VK_TAB) {
    if (const HWND next = order_.NextInCircle(GetFocus(), shift)) FocusByKey(next);
    return true;
  }
  return !shift && std::ranges::find(kFormKeys, key) != std::end(kFormKeys) &&
         detail_.Form_KeyDown(static_cast<std::int32_t>(key));
}

// Presses the button that has the focus, else the one that closes. The Enter that opened the dialog may be held down
// still.
bool DetailWindow::Body::TakeEnter(LPARAM lParam) {
  if ((lParam & kRepeated) != 0) return true;
  const HWND focus = GetFocus();
  SendMessageW(focus == text_ || focus == window() ? close_ : focus, BM_CLICK, 0, 0);
  return true;
}

std::optional<LRESULT> DetailWindow::Body::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_SIZE: {
      if (following_ || wParam == SIZE_MINIMIZED) return 0;
      const Surface::Batch together(surface_);
      detail_.Form_Resize(surface_.scale().ToTwips(LOWORD(lParam)), surface_.scale().ToTwips(HIWORD(lParam)));
      return 0;
    }
    case WM_GETMINMAXINFO: {
      const SIZE least = Around(c_.form.leastWidth(), c_.form.leastHeight());
      reinterpret_cast<MINMAXINFO*>(lParam)->ptMinTrackSize = {least.cx, least.cy};
      return 0;
    }
    case WM_CLOSE:
      detail_.cmdClose_Click();
      return 0;
    case WM_DESTROY:
      surface_.Clear();
      return std::nullopt;
    case WM_SETFOCUS:
      SetFocus(lastField_);
      return 0;
    case WM_KEYDOWN:
    case WM_SYSCHAR:
      return TakeKey(message, wParam, lParam) ? std::optional<LRESULT>(0) : std::nullopt;
    case WM_ERASEBKGND: {
      RECT all{};
      GetClientRect(window(), &all);
      FillRect(reinterpret_cast<HDC>(wParam), &all, GetSysColorBrush(COLOR_BTNFACE));
      return TRUE;
    }
    case WM_SETCURSOR:
      return KeepHourglass() ? std::optional<LRESULT>(TRUE) : std::nullopt;
    case WM_SYSCOLORCHANGE:
    case WM_SETTINGCHANGE:
    case WM_THEMECHANGED:
      Redraw(surface_.scale().dotsPerInch());
      return std::nullopt;
    case kDpiChanged: {
      Redraw(LOWORD(wParam));
      const RECT& to = *reinterpret_cast<const RECT*>(lParam);
      SetWindowPos(window(), nullptr, to.left, to.top, to.right - to.left, to.bottom - to.top,
                   SWP_NOZORDER | SWP_NOACTIVATE);
      return 0;
    }
    default:
      return surface_.notices().Tell(message, wParam, lParam);
  }
}

void DetailWindow::Body::Redraw(UINT dotsPerInch) {
  surface_.SetScale(Scale(dotsPerInch));
  InvalidateRect(window(), nullptr, TRUE);
}

SIZE DetailWindow::Body::Around(widgets::Twips width, widgets::Twips height) const {
  // The window itself knows what its frame takes at its resolution.
  constexpr LONG kAnySize = 1000;
  RECT inner{0, 0, kAnySize, kAnySize};
  SendMessageW(window(), WM_NCCALCSIZE, FALSE, reinterpret_cast<LPARAM>(&inner));
  return {surface_.scale().ToPixels(width) + kAnySize - (inner.right - inner.left),
          surface_.scale().ToPixels(height) + kAnySize - (inner.bottom - inner.top)};
}

void DetailWindow::Body::Follow() {
  const std::wstring caption = ToWide(c_.form.text());
  if (TextOf(window()) != caption) SetWindowTextW(window(), caption.c_str());
  RECT inner{};
  GetClientRect(window(), &inner);
  const Scale& scale = surface_.scale();
  if (inner.right == scale.ToPixels(c_.form.bounds().width) &&
      inner.bottom == scale.ToPixels(c_.form.bounds().height)) {
    return;
  }
  const SIZE size = Around(c_.form.bounds().width, c_.form.bounds().height);
  following_ = true;
  SetWindowPos(window(), nullptr, 0, 0, size.cx, size.cy, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
  following_ = false;
}

void DetailWindow::Body::Place() {
  POINT corner{surface_.scale().ToPixels(c_.form.bounds().left), surface_.scale().ToPixels(c_.form.bounds().top)};
  ClientToScreen(viewer_, &corner);
  MONITORINFO monitor{};
  monitor.cbSize = sizeof(monitor);
  GetMonitorInfoW(MonitorFromWindow(viewer_, MONITOR_DEFAULTTONEAREST), &monitor);
  const RECT& work = monitor.rcWork;
  const SIZE wanted = Around(c_.form.bounds().width, c_.form.bounds().height);
  const LONG width = std::min(wanted.cx, work.right - work.left);
  const LONG height = std::min(wanted.cy, work.bottom - work.top);
  SetWindowPos(window(), nullptr, std::clamp(corner.x, work.left, work.right - width),
               std::clamp(corner.y, work.top, work.bottom - height), width, height, SWP_NOZORDER | SWP_NOACTIVATE);
}

DetailWindow::DetailWindow(dlgLVDetail& detail, HWND viewer) : detail_(detail), viewer_(viewer) {
  detail_.controls().form.Observe(this);
  FollowForm();
}

DetailWindow::~DetailWindow() {
  detail_.controls().form.Observe(nullptr);
}

void DetailWindow::ControlChanged(widgets::Control& /*control*/) {
  Guarded([&] { FollowForm(); });
}

void DetailWindow::FollowForm() {
  if (!detail_.controls().form.shown()) {
    body_.reset();
  } else if (window() != nullptr) {
    body_->Follow();
  } else {
    body_ = std::make_unique<Body>(detail_, viewer_);
  }
}

HWND DetailWindow::window() const {
  return body_ ? body_->window() : nullptr;
}

HWND DetailWindow::WindowOf(const widgets::Control& control) const {
  return window() == nullptr ? nullptr : body_->WindowOf(control);
}

bool DetailWindow::TakeKey(const MSG& message) {
  const HWND dialog = window();
  if (dialog == nullptr || (message.hwnd != dialog && IsChild(dialog, message.hwnd) == FALSE)) return false;
  return body_->TakeKey(message.message, message.wParam, message.lParam);
}

}  // namespace quorvel::windows
