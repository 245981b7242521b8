// Named settings and the notification of a stop request, over SQLite.
#include "datasource/Labels.h"

#include "hub/sqlite/Queries.h"
#include "hub/sqlite/RecordSources.h"
#include "hub/sqlite/SourceBase.h"
#include "hub/sqlite/Transaction.h"

namespace quorvel::hub {
namespace {

class LabelsSource final : public datasource::Labels {
 public:
  explicit LabelsSource(std::shared_ptr<const Connections> connections) : connections_(std::move(connections)) {}

  std::int32_t lngCount() const override { return 0; }
  const std::string& strLabelValue() const override { return value_; }

  void GetLabel(std::int32_t connection, std::string_view name, std::int32_t& status) override {
    value_.clear();
    status = kStatusMissing;
    Statement label = connections_->At(connection).Prepare(kLabelValue);
    if (!label.Bind(":name", name).Step()) return;
    value_ = label.Text(0);
    status = kStatusOk;
  }

  void NotifyStopRequest(std::int32_t connection, std::string_view serverName, std::int32_t processLogId,
                         std::int32_t& result) override {
    const Database& database = connections_->At(connection);
    InTransaction(database, [&] {
      database.Prepare(kNotifyStop).Bind(":server", serverName).Bind(":run", processLogId).Step();
      result = database.changes() > 0 ? kStatusOk : kStatusMissing;
    });
  }

 private:
  std::shared_ptr<const Connections> connections_;
  std::string value_;
};

}  // namespace

std::unique_ptr<datasource::RecordSource> CreateLabels(std::shared_ptr<const Connections> connections) {
  return std::make_unique<LabelsSource>(std::move(connections));
}

}  // namespace quorvel::hub
