#include "com/EventPoint.h"

#include <olectl.h>

#include <algorithm>
#include <utility>

#include "Quorvel.h"
#include "com/Snapshot.h"
#include "com/Viewer.h"
#include "platform/windows/ComError.h"
#include "windows/Guard.h"

namespace quorvel::windows {

EventPoint::EventPoint(IConnectionPointContainer& owner, int& callsOutside)
    : owner_(owner), callsOutside_(callsOutside) {}

void EventPoint::Freeze(bool freeze) {
  if (freeze) {
    ++frozen_;
  } else if (frozen_ > 0) {
    --frozen_;
  }
}

void EventPoint::DisconnectAll() {
  const std::vector<Sink> leaving = std::exchange(sinks_, {});
}

HRESULT EventPoint::QueryInterface(REFIID wanted, void** object) noexcept {
  if (object == nullptr) return E_POINTER;
  *object = nullptr;
  if (!IsEqualGUID(wanted, __uuidof(IUnknown)) && !IsEqualGUID(wanted, __uuidof(IConnectionPoint))) {
    return E_NOINTERFACE;
  }
  *object = static_cast<IConnectionPoint*>(this);
  AddRef();
  return S_OK;
}

HRESULT EventPoint::GetConnectionInterface(IID* events) noexcept {
  if (events == nullptr) return E_POINTER;
  *events = __uuidof(__ucProcessLog);
  return S_OK;
}

HRESULT EventPoint::GetConnectionPointContainer(IConnectionPointContainer** container) noexcept {
  if (container == nullptr) return E_POINTER;
  owner_.AddRef();
  *container = &owner_;
  return S_OK;
}

HRESULT EventPoint::Advise(IUnknown* sink, DWORD* cookie) noexcept {
  if (sink == nullptr || cookie == nullptr) return E_POINTER;
  *cookie = 0;
  return Answering(__uuidof(IConnectionPoint), [&] {
    const ComPtr<IUnknown> given(sink);
    ComPtr<IDispatch> object = given.As<IDispatch>(__uuidof(__ucProcessLog));
    if (!object) object = given.As<IDispatch>();
    if (!object) return CONNECT_E_CANNOTCONNECT;
    sinks_.push_back({++lastCookie_, std::move(object)});
    *cookie = lastCookie_;
    return S_OK;
  });
}

HRESULT EventPoint::Unadvise(DWORD cookie) noexcept {
  const auto found = std::ranges::find(sinks_, cookie, &Sink::cookie);
  if (found == sinks_.end()) return CONNECT_E_NOCONNECTION;
  // Its last release may come back here: it goes from the list first.
  const Sink leaving = std::move(*found);
  sinks_.erase(found);
  return S_OK;
}

CONNECTDATA EventPoint::Sink::Give() const {
  return {ComPtr<IDispatch>(object).Detach(), cookie};
}

HRESULT EventPoint::EnumConnections(IEnumConnections** connections) noexcept {
  if (connections == nullptr) return E_POINTER;
  *connections = nullptr;
  return Answering(__uuidof(IConnectionPoint),
                   [&] { *connections = MakeObject<Snapshot<IEnumConnections, CONNECTDATA, Sink>>(sinks_).Detach(); });
}

void EventPoint::MajMenu() {
  Fire(1);
}

void EventPoint::Update() {
  Fire(2);
}

void EventPoint::PrintReport(const std::string& f_strCurrentProcessIdList) {
  Fire(3, f_strCurrentProcessIdList);
}

void EventPoint::UpdateAlarm() {
  Fire(4);
}

void EventPoint::lvMouseDown() {
  Fire(5);
}

void EventPoint::GoToLog(const std::string& f_strKey) {
  Fire(6, f_strKey);
}

void EventPoint::Fire(DISPID event) {
  Fire(event, DISPPARAMS{});
}

void EventPoint::Fire(DISPID event, const std::string& text) {
  Variant argument{std::string_view(text)};
  Fire(event, DISPPARAMS{&argument.raw(), nullptr, 1, 0});
}

bool EventPoint::IsConnected(DWORD cookie) const {
  return std::ranges::find(sinks_, cookie, &Sink::cookie) != sinks_.end();
}

// A sink may disconnect itself or others, or let the control go. What it answers is its own affair, and nothing that it
// throws comes further.
void EventPoint::Fire(DISPID event, DISPPARAMS arguments) {
  if (frozen_ > 0 || sinks_.empty()) return;
  const HostedPlatform::Outside outside(callsOutside_);
  const std::vector<Sink> hearing = sinks_;
  for (const Sink& sink : hearing) {
    if (!IsConnected(sink.cookie)) continue;
    Guarded([&] {
      sink.object->Invoke(event, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &arguments, nullptr, nullptr, nullptr);
    });
  }
}

}  // namespace quorvel::windows
