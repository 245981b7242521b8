#include "com/HistoryFactory.h"

#include <objbase.h>

#include <set>

#include "datasource/ProcessLog.h"
#include "hub/RecordHub.h"
#include "hub_com/ComRecordSources.h"
#include "platform/windows/WideText.h"

namespace quorvel::windows {
namespace {

bool ComponentIsRegistered() {
  CLSID identifier;
  return SUCCEEDED(CLSIDFromProgID(ToWide(datasource::ProcessLog::kClassIdentifier).c_str(), &identifier));
}

class HubFactory final : public HistoryFactory {
 public:
  std::unique_ptr<datasource::RecordSource> Create(std::int32_t connection, std::string_view classIdentifier,
                                                   std::string_view serverName) override {
    const bool inHub = open_.contains(connection) || (serverName.empty() && !ComponentIsRegistered());
    return inHub ? hub_.Create(classIdentifier, serverName) : component_.Create(classIdentifier, serverName);
  }
  std::int32_t OpenHistory(std::string_view url) override {
    const std::int32_t connection = hub_.OpenConnection(url);
    open_.insert(connection);
    return connection;
  }
  void CloseHistory(std::int32_t connection) override {
    hub_.CloseConnection(connection);
    open_.erase(connection);
  }

 private:
  hub::RecordHub hub_;
  std::set<std::int32_t> open_;  // in the hub
  hub_com::ComRecordSources component_;
};

}  // namespace

std::shared_ptr<HistoryFactory> MakeFactory() {
  static thread_local std::weak_ptr<HistoryFactory> shared;
  std::shared_ptr<HistoryFactory> factory = shared.lock();
  if (!factory) shared = factory = std::make_shared<HubFactory>();
  return factory;
}

}  // namespace quorvel::windows
