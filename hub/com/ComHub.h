// A data-access component over COM that opens histories too, as clRecordHub.dll does.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "hub_com/ComRecordSources.h"

namespace quorvel::hub_com {

// The counterpart of hub::RecordHub. Connections live as long as this object does.
class ComHub : public ComRecordSources {
 public:
  // Error 429 when the component cannot be created on the server ("" = this machine).
  explicit ComHub(std::shared_ptr<ComActivator> activator = MakeSystemActivator(), std::string_view serverName = "");

  // Opens a history ("sqlite:PATH") where the component is, and gives the connection index. Errors are the component's.
  std::int32_t OpenConnection(std::string_view url);
  // Error 5 when it is not open.
  void CloseConnection(std::int32_t connection);

 private:
  SourceLink holder_;  // the object that keeps the component and its connections
};

}  // namespace quorvel::hub_com
