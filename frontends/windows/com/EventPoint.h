// Where hosts connect to hear the control's events.
#pragma once

#include <ocidl.h>
#include <windows.h>

#include <vector>

#include "control/HostEvents.h"
#include "platform/windows/ComPtr.h"
#include "platform/windows/ComValues.h"

namespace quorvel::windows {

// Part of the object that fires the events, whose references it counts.
class EventPoint final : public IConnectionPoint, public HostEvents {
 public:
  // `callsOutside` counts the events that sinks are hearing. Both must outlive it.
  EventPoint(IConnectionPointContainer& owner, int& callsOutside);

  // While frozen, by as many calls as thaw again, events are lost.
  void Freeze(bool freeze);
  void DisconnectAll();

  STDMETHODIMP QueryInterface(REFIID wanted, void** object) noexcept override;
  STDMETHODIMP_(ULONG) AddRef() noexcept override { return owner_.AddRef(); }
  STDMETHODIMP_(ULONG) Release() noexcept override { return owner_.Release(); }

  STDMETHODIMP GetConnectionInterface(IID* events) noexcept override;
  STDMETHODIMP GetConnectionPointContainer(IConnectionPointContainer** container) noexcept override;
  STDMETHODIMP Advise(IUnknown* sink, DWORD* cookie) noexcept override;
  STDMETHODIMP Unadvise(DWORD cookie) noexcept override;
  STDMETHODIMP EnumConnections(IEnumConnections** connections) noexcept override;

  void MajMenu() override;
  void Update() override;
  void PrintReport(const std::string& f_strCurrentProcessIdList) override;
  void UpdateAlarm() override;
  void lvMouseDown() override;
  void GoToLog(const std::string& f_strKey) override;

 private:
  struct Sink {
    DWORD cookie = 0;
    ComPtr<IDispatch> object;
    CONNECTDATA Give() const;
  };

  void Fire(DISPID event);
  void Fire(DISPID event, const std::string& text);
  void Fire(DISPID event, DISPPARAMS arguments);
  bool IsConnected(DWORD cookie) const;

  IConnectionPointContainer& owner_;
  int& callsOutside_;
  std::vector<Sink> sinks_;
  DWORD lastCookie_ = 0;
  int frozen_ = 0;
};

}  // namespace quorvel::windows
