#include "scenario/ScenarioPort.h"

#include "hub/RecordHub.h"

namespace quorvel::scenario {

std::unique_ptr<DataComponent> ScenarioPort::MakeDataComponent() {
  return std::make_unique<ComponentOf<hub::RecordHub>>();
}

}  // namespace quorvel::scenario
