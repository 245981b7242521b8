#include "hub_com/ComHub.h"

#include "datasource/Labels.h"

namespace quorvel::hub_com {

using windows::Variant;

ComHub::ComHub(std::shared_ptr<ComActivator> activator, std::string_view serverName)
    : ComRecordSources(activator),
      holder_(std::move(activator), datasource::Labels::kClassIdentifier, serverName,
              std::make_shared<MemberNumbers>()) {}

std::int32_t ComHub::OpenConnection(std::string_view url) {
  return holder_.Call("OpenConnection", {Variant(url)}).ToInt32();
}

void ComHub::CloseConnection(std::int32_t connection) {
  holder_.Call("CloseConnection", {Variant(connection)});
}

}  // namespace quorvel::hub_com
