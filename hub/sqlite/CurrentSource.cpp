// Stop requests for the executions that are running now, over SQLite.
#include "datasource/Current.h"

#include "hub/sqlite/Queries.h"
#include "hub/sqlite/RecordSources.h"
#include "hub/sqlite/SourceBase.h"
#include "hub/sqlite/Transaction.h"

namespace quorvel::hub {
namespace {

class CurrentSource final : public datasource::Current {
 public:
  explicit CurrentSource(std::shared_ptr<const Connections> connections) : connections_(std::move(connections)) {}

  std::int32_t lngCount() const override { return 0; }

  void StopExecution(std::int32_t connection, bool onStation, std::int32_t processLogId, std::string_view /*reserved*/,
                     std::int32_t& result) override {
    const Database& database = connections_->At(connection);
    InTransaction(database, [&] {
      const std::int32_t place = onStation ? 1 : 0;
      result = kStatusMissing;
      if (!database.Prepare(kRunIsRunningThere).Bind(":run", processLogId).Bind(":onStation", place).Step()) return;
      database.Prepare(kRequestStop).Bind(":run", processLogId).Bind(":onStation", place).Step();
      result = kStatusOk;
    });
  }

 private:
  std::shared_ptr<const Connections> connections_;
};

}  // namespace

std::unique_ptr<datasource::RecordSource> CreateCurrent(std::shared_ptr<const Connections> connections) {
  return std::make_unique<CurrentSource>(std::move(connections));
}

}  // namespace quorvel::hub
