#include "com/HistoryFactory.h"

#include "hub/RecordHub.h"

namespace quorvel::windows {
namespace {

class HubFactory final : public HistoryFactory {
 public:
  std::unique_ptr<datasource::RecordSource> Create(std::string_view classIdentifier,
                                                   std::string_view serverName) override {
    return hub_.Create(classIdentifier, serverName);
  }
  std::int32_t OpenHistory(std::string_view url) override { return hub_.OpenConnection(url); }
  void CloseHistory(std::int32_t connection) override { hub_.CloseConnection(connection); }

 private:
  hub::RecordHub hub_;
};

}  // namespace

std::shared_ptr<HistoryFactory> MakeFactory() {
  static thread_local std::weak_ptr<HistoryFactory> shared;
  std::shared_ptr<HistoryFactory> factory = shared.lock();
  if (!factory) shared = factory = std::make_shared<HubFactory>();
  return factory;
}

}  // namespace quorvel::windows
