#include "windows/ProcessLogWindow.h"

#include <algorithm>
#include <cstdlib>
#include <utility>
#include <vector>

#include "windows/Contents.h"
#include "windows/DetailWindow.h"
#include "windows/Ear.h"
#include "windows/Guard.h"
#include "windows/Icons.h"
#include "windows/Input.h"
#include "windows/ListPane.h"
#include "windows/OptionFields.h"
#include "windows/Parts.h"
#include "windows/PopupMenu.h"
#include "windows/Surface.h"
#include "windows/TabBar.h"
#include "windows/TabOrder.h"
#include "windows/TimerBinding.h"
#include "windows/TreePane.h"
#include "windows/Window.h"
#include "windows/WindowsPlatform.h"

namespace quorvel::windows {
namespace {

constexpr UINT kTrackMenu = WM_APP + 1;
constexpr UINT_PTR kScrollTimer = 1;

// Systems before Windows 8.1 know of one resolution alone.
constexpr UINT kDpiChanged = 0x02E0;
constexpr UINT kDpiChangedAfterParent = 0x02E3;

}  // namespace

class ProcessLogWindow::Body final : public Window {
 public:
  Body(ucProcessLog& control, HWND parent);
  ~Body() override;
  Body(const Body&) = delete;
  Body& operator=(const Body&) = delete;

  ucProcessLog& control() { return control_; }
  TreePane& tree() { return *tree_; }
  ListPane& list() { return *list_; }
  DetailWindow& detail() { return *detail_; }
  PopupMenu& listMenu() { return *listMenu_; }
  PopupMenu& treeMenu() { return *treeMenu_; }
  HWND WindowOf(const widgets::Control& model) const {
    return window() == nullptr ? nullptr : surface_.WindowOf(model);
  }
  bool TakeKey(const MSG& message);
  void FocusFirst(bool backwards);

 protected:
  std::optional<LRESULT> Handle(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  void MakePanes();
  void MakeSplitter();
  void MakeScrollBars();
  void MakeMenus();
  void OrderTabKey();
  // Draws and hears nothing any more.
  void Leave();

  // What happens to the window.
  void Resized();
  void Redraw(UINT dotsPerInch);
  std::optional<LRESULT> Turn(UINT message, int delta);
  void ScrollBy(widgets::ScrollBar& bar, std::int32_t by);
  void Scrolled(widgets::ScrollBar& model, HWND bar, UINT code, void (ucProcessLog::*change)());

  // The focus came to one of the viewer's fields, or went to a window of the host.
  void FocusCame(HWND field);
  void ListenToFocus(HWND field);

  // Keys.
  bool TakeKeyDown(WPARAM key);
  bool TakeTab(bool backwards);
  bool TakeAccessKey(wchar_t letter);
  void ToggleGrip();
  void Arrive(HWND field);

  void ChooseTab(std::size_t tab);
  // Makes a gesture at once or, where a component lets input through while it works, when the control has done what it
  // is at. Of several that come meanwhile the last one is made.
  void Gesture(std::function<void()> make);
  // The same for a gesture on a node, if the tree still has it then.
  void GestureOn(widgets::NodeId node, void (ucProcessLog::*handler)(widgets::NodeId));
  // Scrolls the viewer, where it is smaller than its content, until this field is seen.
  void BringIntoSight(HWND field);

  ucProcessLog& control_;
  ProcessLogControls& c_;
  Surface surface_;
  Icons icons_;
  Frame outer_;
  TabBar tabs_;
  Frame options_;
  OptionFields fields_;
  SectionFrame section_;
  std::unique_ptr<TreePane> tree_;
  std::unique_ptr<SplitterGrip> grip_;
  std::unique_ptr<ListPane> list_;
  std::unique_ptr<Plain> bar_;
  std::unique_ptr<Plain> corner_;
  std::unique_ptr<PopupMenu> listMenu_;
  std::unique_ptr<PopupMenu> treeMenu_;
  std::unique_ptr<TimerBinding> scrollDown_;
  std::unique_ptr<DetailWindow> detail_;
  TabOrder order_;
  std::vector<std::unique_ptr<Ear>> ears_;
  HWND lastField_ = nullptr;
  HWND paneWithFocus_ = nullptr;  // of this window, whichever window is used now
  int turned_ = 0;
  // The gesture to make when the control is done, which may be after this window has ended.
  std::shared_ptr<std::function<void()>> waiting_ = std::make_shared<std::function<void()>>();
};

ProcessLogWindow::Body::Body(ucProcessLog& control, HWND parent)
    : Window({.style = WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN | WS_CLIPSIBLINGS, .extended = WS_EX_CONTROLPARENT},
             parent),
      control_(control),
      c_(control.controls()),
      surface_(window()),
      icons_(surface_.scale(), Icons::Place::kBesideText),
      outer_(surface_, window(), L""),
      tabs_(c_.sstProcessLog, surface_, outer_.window(), [this](std::size_t tab) { ChooseTab(tab); }),
      options_(surface_, outer_.window(), L"Options"),
      fields_(control_, surface_, options_.window(), [this](std::function<void()> make) { Gesture(std::move(make)); }),
      section_(surface_, outer_.window(), L"") {
  surface_.Bind(c_.fraProcessLog, outer_.window());
  surface_.Bind(c_.fraOption, options_.window());
  surface_.Bind(c_.fraList, section_.window(), [this] {
    section_.SetCaption(ToWide(c_.fraList.text()), surface_.scale().ToPixels(c_.tvMotherList.bounds().top));
  });
  MakePanes();
  MakeScrollBars();
  MakeMenus();
  OrderTabKey();
  scrollDown_ = std::make_unique<TimerBinding>(c_.Timer_ScrollDown_TV, window(), kScrollTimer,
                                               [this] { control_.Timer_ScrollDown_TV_Timer(); });
  detail_ = std::make_unique<DetailWindow>(control_.detail(), window());
  surface_.OnFocusLost([this](HWND field) {
    const HWND next = order_.NextInCircle(field, false);
    SetFocus(next == nullptr ? GetParent(window()) : next);
  });
}

ProcessLogWindow::Body::~Body() {
  Leave();
  End();
}

void ProcessLogWindow::Body::Leave() {
  waiting_.reset();
  ears_.clear();
  if (detail_) FocusCame(nullptr);
  detail_.reset();
  scrollDown_.reset();
  listMenu_.reset();
  treeMenu_.reset();
  surface_.Clear();
}

void ProcessLogWindow::Body::MakePanes() {
  NameNext(section_.window(), L"History");
  tree_ = std::make_unique<TreePane>(
      c_.tvMotherList,
      TreeGestures{
          .expand = [this](widgets::NodeId node) { GestureOn(node, &ucProcessLog::tvMotherList_Expand); },
          .collapse = [this](widgets::NodeId node) { control_.tvMotherList_Collapse(node); },
          .click = [this](widgets::NodeId node) { GestureOn(node, &ucProcessLog::tvMotherList_NodeClick); },
          .mouseUp = [this](MouseButton button, widgets::NodeId node) { control_.tvMotherList_MouseUp(button, node); }},
      section_.window(), icons_);
  surface_.Bind(c_.tvMotherList, tree_->window());
  surface_.notices().Listen(tree_->window(), {.notify = [this](NMHDR& header) { return tree_->Notify(header); }});
  MakeSplitter();
  NameNext(section_.window(), L"Entries");
  list_ = std::make_unique<ListPane>(
      c_.lvMotherList,
      ListGestures{.columnClick = [this](std::size_t column) { control_.lvMotherList_ColumnClick(column); },
                   .doubleClick = [this] { control_.lvMotherList_DblClick(); },
                   .keyDown = [this](std::int32_t keyCode) { control_.lvMotherList_KeyDown(keyCode); },
                   .selectionChanged = [this] { control_.lvMotherList_SelectionChanged(); },
                   .mouseDown = [this](MouseButton button, auto row) { control_.lvMotherList_MouseDown(button, row); },
                   .copy = [this] { control_.mnu_copy_Click(); },
                   .selectAll = [this] { control_.mnu_select_all_Click(); }},
      section_.window(), icons_);
  surface_.Bind(c_.lvMotherList, list_->window());
  surface_.notices().Listen(list_->window(), {.notify = [this](NMHDR& header) { return list_->Notify(header); }});
}

void ProcessLogWindow::Body::MakeSplitter() {
  const auto leave = [this] { SetFocus(tree_->window()); };
  grip_ = std::make_unique<SplitterGrip>(
      SplitterGrip::Gestures{.begin = [this] { control_.imgSplitter_MouseDown(); },
                             .move = [this](int x) { control_.imgSplitter_MouseMove(surface_.scale().ToTwips(x)); },
                             .end =
                                 [this] {
                                   const Surface::Batch together(surface_);
                                   control_.imgSplitter_MouseUp();
                                 },
                             .leave = leave},
      surface_, section_.window());
  surface_.Bind(c_.imgSplitter, grip_->window());
  bar_ = std::make_unique<Plain>(section_.window(), COLOR_HIGHLIGHT);
  surface_.Bind(c_.picSplitter, bar_->window(), [this] {
    SetWindowPos(bar_->window(), HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
  });
}

void ProcessLogWindow::Body::MakeScrollBars() {
  const auto make = [this](widgets::ScrollBar& model, DWORD style, void (ucProcessLog::*change)()) {
    const HWND bar =
        surface_.Make(model, WC_SCROLLBARW, style, window(), [&model](HWND made) { DrawContent(model, made); });
    surface_.notices().Listen(
        bar, {.scroll = [this, &model, bar, change](UINT code) { Scrolled(model, bar, code, change); }});
  };
  make(c_.HScroll, SBS_HORZ, &ucProcessLog::HScroll_Change);
  make(c_.VScroll, SBS_VERT, &ucProcessLog::VScroll_Change);
  corner_ = std::make_unique<Plain>(window(), COLOR_BTNFACE);
  surface_.Bind(c_.fraCorner, corner_->window());
  // What slides lies below what makes it slide.
  SetWindowPos(outer_.window(), HWND_BOTTOM, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
}

void ProcessLogWindow::Body::MakeMenus() {
  const auto pick = [this](std::int32_t command) { control_.m_MenuCall(command); };
  listMenu_ = std::make_unique<PopupMenu>(
      c_.mnu_Popup, window(), kTrackMenu, [this] { return list_->menuPlace(); }, pick);
  treeMenu_ = std::make_unique<PopupMenu>(
      c_.mnu_PopupTV, window(), kTrackMenu, [this] { return tree_->menuPlace(); }, pick);
}

void ProcessLogWindow::Body::OrderTabKey() {
  order_.Add(tabs_.window());
  fields_.AddTo(order_);
  order_.Add(tree_->window());
  order_.Add(list_->window());
  order_.Add(list_->header());
  for (const HWND field : order_.fields()) ListenToFocus(field);
  ListenToFocus(grip_->window());
}

std::optional<LRESULT> ProcessLogWindow::Body::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_SIZE:
      Resized();
      return 0;
    case WM_SETFOCUS:
      SetFocus(lastField_ != nullptr && CanTakeFocus(lastField_) ? lastField_ : tree_->window());
      return 0;
    case WM_TIMER:
      if (scrollDown_ && wParam == kScrollTimer) scrollDown_->Tick();
      return 0;
    case WM_MOUSEWHEEL:
    case WM_MOUSEHWHEEL:
      return Turn(message, GET_WHEEL_DELTA_WPARAM(wParam));
    case WM_SETCURSOR:
      return KeepHourglass() ? std::optional<LRESULT>(TRUE) : std::nullopt;
    case kDpiChanged:  // a host may pass on what its own window was told
      Redraw(LOWORD(wParam));
      return 0;
    case kDpiChangedAfterParent:
      Redraw(ScaleOf(window()).dotsPerInch());
      return 0;
    case WM_SYSCOLORCHANGE:
    case WM_SETTINGCHANGE:
    case WM_THEMECHANGED:
      for (HWND each : {tabs_.window(), tree_->window(), list_->window()}) SendMessageW(each, message, wParam, lParam);
      Redraw(surface_.scale().dotsPerInch());
      return std::nullopt;
    case WM_ERASEBKGND: {
      RECT all{};
      GetClientRect(window(), &all);
      FillRect(reinterpret_cast<HDC>(wParam), &all, GetSysColorBrush(COLOR_BTNFACE));
      return TRUE;
    }
    case kTrackMenu:
      for (PopupMenu* const menu : {listMenu_.get(), treeMenu_.get()}) {
        if (menu == reinterpret_cast<PopupMenu*>(lParam)) return menu->Track(), 0;
      }
      return 0;
    case WM_DESTROY:
      Leave();
      return std::nullopt;
    default:
      return surface_.notices().Tell(message, wParam, lParam);
  }
}

void ProcessLogWindow::Body::Resized() {
  RECT inner{};
  GetClientRect(window(), &inner);
  const Surface::Batch together(surface_);
  control_.UserControl_Resize(surface_.scale().ToTwips(inner.right), surface_.scale().ToTwips(inner.bottom));
}

void ProcessLogWindow::Body::Redraw(UINT dotsPerInch) {
  const Scale scale(dotsPerInch);
  icons_.Redraw(scale);
  surface_.SetScale(scale);
  tree_->DpiChanged();
  list_->DpiChanged();
  Resized();
  RedrawWindow(window(), nullptr, nullptr, RDW_ERASE | RDW_INVALIDATE | RDW_ALLCHILDREN);
}

// What nobody below had a use for moves the viewer, where it is smaller than its content.
std::optional<LRESULT> ProcessLogWindow::Body::Turn(UINT message, int delta) {
  constexpr std::int32_t kLines = 3;
  const bool sideways = message == WM_MOUSEHWHEEL;
  widgets::ScrollBar& bar = sideways ? c_.HScroll : c_.VScroll;
  if (!bar.visible()) return std::nullopt;
  turned_ += sideways ? delta : -delta;
  const int notches = turned_ / WHEEL_DELTA;
  turned_ %= WHEEL_DELTA;
  ScrollBy(bar, notches * kLines * (bar.page() / 5));
  return 0;
}

void ProcessLogWindow::Body::ScrollBy(widgets::ScrollBar& bar, std::int32_t by) {
  const Surface::Batch together(surface_);
  bar.SetValue(bar.value() + by);
  &bar == &c_.HScroll ? control_.HScroll_Change() : control_.VScroll_Change();
}

void ProcessLogWindow::Body::Scrolled(widgets::ScrollBar& model, HWND bar, UINT code, void (ucProcessLog::*change)()) {
  SCROLLINFO info{};
  info.cbSize = sizeof(info);
  info.fMask = SIF_TRACKPOS;
  GetScrollInfo(bar, SB_CTL, &info);
  const auto to = [&]() -> std::int32_t {
    switch (code) {
      case SB_LINELEFT:
        return model.value() - model.page() / 5;
      case SB_LINERIGHT:
        return model.value() + model.page() / 5;
      case SB_PAGELEFT:
        return model.value() - model.page();
      case SB_PAGERIGHT:
        return model.value() + model.page();
      case SB_THUMBTRACK:
      case SB_THUMBPOSITION:
        return info.nTrackPos;
      case SB_LEFT:
        return model.minimum();
      case SB_RIGHT:
        return model.maximum();
      default:
        return model.value();
    }
  };
  const Surface::Batch together(surface_);
  model.SetValue(to());
  (control_.*change)();
}

void ProcessLogWindow::Body::ListenToFocus(HWND field) {
  ears_.push_back(std::make_unique<Ear>(field, [this, field](UINT message, WPARAM wParam, LPARAM) {
    if (message == WM_SETFOCUS) FocusCame(field);
    // Popups take the focus from no pane, nor does another window: the pane has it when this one is used again.
    const auto now = reinterpret_cast<HWND>(wParam);
    if (message == WM_KILLFOCUS && now != nullptr && GetAncestor(now, GA_ROOT) == GetAncestor(field, GA_ROOT) &&
        IsChild(window(), now) == FALSE) {
      FocusCame(nullptr);
    }
    return std::optional<LRESULT>();
  }));
}

void ProcessLogWindow::Body::FocusCame(HWND field) {
  if (field != nullptr) lastField_ = field;
  const HWND tree = tree_->window();
  const HWND list = list_->window();
  const HWND pane = field == tree || field == list ? field : nullptr;
  if (pane == paneWithFocus_) return;
  const HWND left = std::exchange(paneWithFocus_, pane);
  if (left != nullptr) left == tree ? control_.tvMotherList_LostFocus() : control_.lvMotherList_LostFocus();
  if (pane != nullptr) pane == tree ? control_.tvMotherList_GotFocus() : control_.lvMotherList_GotFocus();
}

bool ProcessLogWindow::Body::TakeKey(const MSG& message) {
  if (window() == nullptr || !detail_) return false;
  if (detail_->TakeKey(message)) return true;
  if (message.hwnd != window() && IsChild(window(), message.hwnd) == FALSE) return false;
  switch (message.message) {
    case WM_KEYDOWN:
      return TakeKeyDown(message.wParam);
    case WM_SYSKEYDOWN:
      if (message.wParam == VK_MENU) ShowKeyMarks(window());
      return false;
    case WM_SYSCHAR:
      return TakeAccessKey(static_cast<wchar_t>(message.wParam));
    default:
      return false;
  }
}

bool ProcessLogWindow::Body::TakeKeyDown(WPARAM key) {
  const bool control = IsDown(VK_CONTROL);
  const bool shift = IsDown(VK_SHIFT);
  switch (key) {
    case VK_TAB:
      if (!control) return TakeTab(shift);
      tabs_.ChooseNeighbour(shift ? -1 : +1, true);
      return true;
    case VK_NEXT:
    case VK_PRIOR:
      if (!control || shift) return false;
      tabs_.ChooseNeighbour(key == VK_NEXT ? +1 : -1, true);
      return true;
    case VK_F5:
      if (control || shift) return false;
      if (c_.cmdRefresh.enabled()) Gesture([this] { control_.cmdRefresh_Click(); });
      return true;
    case VK_F8:
      if (control || shift) return false;
      ToggleGrip();
      return true;
    default:
      return false;
  }
}

bool ProcessLogWindow::Body::TakeTab(bool backwards) {
  // The grip stands where the tree does, to which it leads back.
  const HWND focus = GetFocus();
  const HWND next = order_.Next(focus == grip_->window() ? tree_->window() : focus, backwards);
  if (next == nullptr) return false;
  Arrive(next);
  return true;
}

bool ProcessLogWindow::Body::TakeAccessKey(wchar_t letter) {
  const HWND field = order_.OfAccessKey(letter);
  if (field == nullptr) return false;
  BringIntoSight(field);
  PressByKey(field);
  return true;
}

void ProcessLogWindow::Body::ToggleGrip() {
  const HWND grip = grip_->window();
  if (GetFocus() != grip && !CanTakeFocus(grip)) return;
  SetFocus(GetFocus() == grip ? tree_->window() : grip);
}

void ProcessLogWindow::Body::FocusFirst(bool backwards) {
  if (const HWND first = order_.Next(nullptr, backwards)) Arrive(first);
}

void ProcessLogWindow::Body::Arrive(HWND field) {
  FocusByKey(field);
  BringIntoSight(field);
}

void ProcessLogWindow::Body::ChooseTab(std::size_t tab) {
  Gesture([this, tab] {
    c_.sstProcessLog.SetCurrent(tab);
    control_.sstProcessLog_Click();
  });
}

void ProcessLogWindow::Body::Gesture(std::function<void()> make) {
  if (!control_.AtWork()) return make();
  *waiting_ = std::move(make);
  control_.AfterWork([waiting = std::weak_ptr(waiting_)] {
    const auto held = waiting.lock();
    if (!held) return;
    if (const auto last = std::exchange(*held, nullptr)) last();
  });
}

void ProcessLogWindow::Body::GestureOn(widgets::NodeId node, void (ucProcessLog::*handler)(widgets::NodeId)) {
  if (!control_.AtWork()) return (control_.*handler)(node);
  Gesture([this, handler, key = c_.tvMotherList.Key(node)] {
    const widgets::NodeId now = c_.tvMotherList.Find(key);
    if (now != widgets::NodeId::kNone) (control_.*handler)(now);
  });
}

void ProcessLogWindow::Body::BringIntoSight(HWND field) {
  if (GetParent(field) != options_.window()) return;
  RECT place{};
  GetWindowRect(field, &place);
  MapWindowPoints(nullptr, window(), reinterpret_cast<POINT*>(&place), 2);
  RECT room{};
  GetClientRect(window(), &room);
  const Scale& scale = surface_.scale();
  if (c_.VScroll.visible()) room.right = scale.ToPixels(c_.VScroll.bounds().left);
  if (c_.HScroll.visible()) room.bottom = scale.ToPixels(c_.HScroll.bounds().top);
  const auto scroll = [&](widgets::ScrollBar& bar, LONG first, LONG last, LONG end) {
    const LONG by = first < 0 ? first : std::max(last - end, 0L);
    if (bar.visible() && by != 0) ScrollBy(bar, scale.ToTwips(static_cast<int>(by)));
  };
  scroll(c_.HScroll, place.left, place.right, room.right);
  scroll(c_.VScroll, place.top, place.bottom, room.bottom);
}

ProcessLogWindow::ProcessLogWindow(ucProcessLog& control, HWND parent)
    : body_(std::make_unique<Body>(control, parent)) {}

ProcessLogWindow::~ProcessLogWindow() = default;

ucProcessLog& ProcessLogWindow::control() {
  return body_->control();
}

HWND ProcessLogWindow::window() const {
  return body_->window();
}

TreePane& ProcessLogWindow::tree() {
  return body_->tree();
}

ListPane& ProcessLogWindow::list() {
  return body_->list();
}

DetailWindow& ProcessLogWindow::detail() {
  return body_->detail();
}

PopupMenu& ProcessLogWindow::listMenu() {
  return body_->listMenu();
}

PopupMenu& ProcessLogWindow::treeMenu() {
  return body_->treeMenu();
}

HWND ProcessLogWindow::WindowOf(const widgets::Control& control) const {
  return body_->WindowOf(control);
}

bool ProcessLogWindow::TakeKey(const MSG& message) {
  return GuardedOr(false, [&] { return body_->TakeKey(message); });
}

void ProcessLogWindow::FocusFirst(bool backwards) {
  Guarded([&] { body_->FocusFirst(backwards); });
}

}  // namespace quorvel::windows
