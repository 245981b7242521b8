#include "scenario_windows/ScenarioOverCom.h"

#include <objbase.h>

#include "hub_com/ComHub.h"
#include "platform/windows/ComError.h"

namespace quorvel::scenario {
namespace {

// Creates everything on this machine: the histories of a script are here, whatever server it names.
class ActivatorHere final : public hub_com::ComActivator {
 public:
  HRESULT Create(std::string_view classIdentifier, std::string_view /*serverName*/, REFIID identity,
                 windows::ComPtr<IDispatch>& object) override {
    return system_->Create(classIdentifier, "", identity, object);
  }

 private:
  std::shared_ptr<hub_com::ComActivator> system_ = hub_com::MakeSystemActivator();
};

class HubHere final : public hub_com::ComHub {
 public:
  HubHere() : ComHub(std::make_shared<ActivatorHere>()) {}
};

}  // namespace

ScenarioOverCom::ScenarioOverCom(HWND form, HWND statusBar) : ScenarioWindows(form, statusBar) {
  windows::Check(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED), "COM cannot be started");
}

ScenarioOverCom::~ScenarioOverCom() {
  CoUninitialize();
}

std::unique_ptr<DataComponent> ScenarioOverCom::MakeDataComponent() {
  return std::make_unique<ComponentOf<HubHere>>();
}

}  // namespace quorvel::scenario
