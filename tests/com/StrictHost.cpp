#include "com/StrictHost.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>

#include "console_windows/NamedMembers.h"
#include "platform/windows/WideText.h"

namespace quorvel::test {
namespace {

using console::NamedMembers;

// An object with one member.
ComPtr<IDispatch> Holder(const wchar_t* name, std::function<Variant()> get,
                         std::function<void(const Variant&)> put = {}) {
  return NamedMembers::Make({{name, [get](std::int32_t) { return get(); }, std::move(put)}});
}

ComPtr<IDispatch> Holder(const wchar_t* name, ComPtr<IDispatch> held) {
  return Holder(name, [held] { return Variant(held); });
}

}  // namespace

ComPtr<StrictHost> StrictHost::Make() {
  return ComPtr<StrictHost>::Adopt(new StrictHost());
}

StrictHost::StrictHost()
    : window_(CreateWindowExW(0, L"STATIC", L"Host", WS_OVERLAPPEDWINDOW | WS_VISIBLE | WS_CLIPCHILDREN, 50, 50, 1100,
                              800, nullptr, nullptr, nullptr, nullptr)) {
  SetForegroundWindow(window_);
}

StrictHost::~StrictHost() {
  DestroyWindow(window_);
}

std::string StrictHost::Calls() {
  return std::exchange(calls_, {});
}

HRESULT StrictHost::Note(const char* call, HRESULT answer) {
  if (!calls_.empty()) calls_ += ' ';
  calls_ += call;
  return answer;
}

HRESULT StrictHost::Unexpected(const char* call) {
  ADD_FAILURE() << "the control called " << call;
  return E_NOTIMPL;
}

void* StrictHost::FindBase(REFIID wanted) noexcept {
  if (IsEqualGUID(wanted, IID_IOleWindow)) return static_cast<IOleWindow*>(static_cast<IOleInPlaceSite*>(this));
  return nullptr;
}

HRESULT StrictHost::SaveObject() noexcept {
  return Note("SaveObject");
}
HRESULT StrictHost::GetMoniker(DWORD, DWORD, IMoniker**) noexcept {
  return Unexpected("GetMoniker");
}
HRESULT StrictHost::GetContainer(IOleContainer**) noexcept {
  return Unexpected("GetContainer");
}
HRESULT StrictHost::ShowObject() noexcept {
  return Note("ShowObject");
}
HRESULT StrictHost::OnShowWindow(BOOL) noexcept {
  return Unexpected("OnShowWindow");
}
HRESULT StrictHost::RequestNewObjectLayout() noexcept {
  return Unexpected("RequestNewObjectLayout");
}

HRESULT StrictHost::GetWindow(HWND* window) noexcept {
  *window = window_;
  return S_OK;
}
HRESULT StrictHost::ContextSensitiveHelp(BOOL) noexcept {
  return Unexpected("ContextSensitiveHelp");
}

HRESULT StrictHost::CanInPlaceActivate() noexcept {
  return Note("CanInPlaceActivate", letsActivate ? S_OK : S_FALSE);
}
HRESULT StrictHost::OnInPlaceActivate() noexcept {
  return Note("OnInPlaceActivate");
}
HRESULT StrictHost::OnUIActivate() noexcept {
  return Note("OnUIActivate");
}
HRESULT StrictHost::GetWindowContext(IOleInPlaceFrame** frame, IOleInPlaceUIWindow** document, LPRECT placeOfControl,
                                     LPRECT clipOfControl, LPOLEINPLACEFRAMEINFO info) noexcept {
  *frame = ComPtr<IOleInPlaceFrame>(this).Detach();
  *document = nullptr;
  *placeOfControl = place;
  *clipOfControl = clip;
  EXPECT_EQ(info->cb, sizeof(*info));
  info->hwndFrame = window_;
  return S_OK;
}
HRESULT StrictHost::Scroll(SIZE) noexcept {
  return Unexpected("Scroll");
}
HRESULT StrictHost::OnUIDeactivate(BOOL undoable) noexcept {
  EXPECT_FALSE(undoable);
  return Note("OnUIDeactivate");
}
HRESULT StrictHost::OnInPlaceDeactivate() noexcept {
  return Note("OnInPlaceDeactivate");
}
HRESULT StrictHost::DiscardUndoState() noexcept {
  return Unexpected("DiscardUndoState");
}
HRESULT StrictHost::DeactivateAndUndo() noexcept {
  return Unexpected("DeactivateAndUndo");
}
HRESULT StrictHost::OnPosRectChange(LPCRECT) noexcept {
  return Unexpected("OnPosRectChange");
}

HRESULT StrictHost::OnControlInfoChanged() noexcept {
  return Unexpected("OnControlInfoChanged");
}
HRESULT StrictHost::LockInPlaceActive(BOOL) noexcept {
  return Unexpected("LockInPlaceActive");
}
HRESULT StrictHost::GetExtendedControl(IDispatch** extended) noexcept {
  const auto panel = Holder(
      L"Text", [this] { return Variant(std::string_view(status_)); },
      [this](const Variant& value) { status_ = value.ToText(); });
  const auto bar = Holder(L"Panels", Holder(L"Item", panel));
  *extended = Holder(L"Parent", Holder(L"stStatusBar", bar)).Detach();
  return S_OK;
}
HRESULT StrictHost::TransformCoords(POINTL*, POINTF*, DWORD) noexcept {
  return Unexpected("TransformCoords");
}
HRESULT StrictHost::TranslateAccelerator(MSG* message, DWORD) noexcept {
  return Note(message->wParam == VK_TAB ? "Tab" : "Key", message->wParam == VK_TAB ? S_OK : S_FALSE);
}
HRESULT StrictHost::OnFocus(BOOL got) noexcept {
  return Note(got != FALSE ? "GotFocus" : "LostFocus");
}
HRESULT StrictHost::ShowPropertyFrame() noexcept {
  return Unexpected("ShowPropertyFrame");
}

HRESULT StrictHost::GetBorder(LPRECT) noexcept {
  return Unexpected("GetBorder");
}
HRESULT StrictHost::RequestBorderSpace(LPCBORDERWIDTHS) noexcept {
  return Unexpected("RequestBorderSpace");
}
HRESULT StrictHost::SetBorderSpace(LPCBORDERWIDTHS widths) noexcept {
  EXPECT_EQ(widths, nullptr);
  return S_OK;
}
HRESULT StrictHost::SetActiveObject(IOleInPlaceActiveObject* object, LPCOLESTR) noexcept {
  Note(object != nullptr ? "Active" : "NotActive");
  if (object != nullptr && whenActive) whenActive();
  return S_OK;
}
HRESULT StrictHost::InsertMenus(HMENU, LPOLEMENUGROUPWIDTHS) noexcept {
  return Unexpected("InsertMenus");
}
HRESULT StrictHost::SetMenu(HMENU, HOLEMENU, HWND) noexcept {
  return Unexpected("SetMenu");
}
HRESULT StrictHost::RemoveMenus(HMENU) noexcept {
  return Unexpected("RemoveMenus");
}
HRESULT StrictHost::SetStatusText(LPCOLESTR) noexcept {
  return Unexpected("SetStatusText");
}
HRESULT StrictHost::EnableModeless(BOOL) noexcept {
  return Unexpected("EnableModeless");
}
HRESULT StrictHost::TranslateAccelerator(MSG*, WORD) noexcept {
  return Unexpected("TranslateAccelerator of the frame");
}

HRESULT StrictHost::Read(LPCOLESTR name, VARIANT* value, IErrorLog*) noexcept {
  const auto found = std::ranges::find(kept, std::wstring(name), &decltype(kept)::value_type::first);
  return found == kept.end() ? E_INVALIDARG : VariantCopy(value, &found->second.raw());
}
HRESULT StrictHost::Write(LPCOLESTR name, VARIANT* value) noexcept {
  Variant copy;
  VariantCopy(&copy.raw(), value);
  kept.emplace_back(name, std::move(copy));
  return S_OK;
}

PlacedControl::PlacedControl() {
  EXPECT_EQ(object->SetClientSite(host.get()), S_OK);
}

PlacedControl::~PlacedControl() {
  object->Close(OLECLOSE_NOSAVE);
  object->SetClientSite(nullptr);
}

HRESULT PlacedControl::Do(LONG verb, MSG* message) {
  return object->DoVerb(verb, message, host.get(), 0, host->window(), &host->place);
}

HWND PlacedControl::Window() {
  HWND window = nullptr;
  inPlace->GetWindow(&window);
  return window;
}

HWND PlacedControl::Find(const wchar_t* windowClass) {
  struct Search {
    std::wstring wanted;
    HWND found = nullptr;
  } search{windowClass};
  const auto look = [](HWND window, LPARAM parameter) -> BOOL {
    auto& asked = *reinterpret_cast<Search*>(parameter);
    wchar_t name[64];
    GetClassNameW(window, name, 64);
    if (asked.wanted == name) asked.found = window;
    return asked.found == nullptr ? TRUE : FALSE;
  };
  EnumChildWindows(Window(), look, reinterpret_cast<LPARAM>(&search));
  return search.found;
}

}  // namespace quorvel::test
