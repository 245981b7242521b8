// Where the record sources of the component's controls come from: the data-access component of the machine or, for
// histories that a host opens through the control, the hub in this library.
#pragma once

#include <cstdint>
#include <memory>
#include <string_view>

#include "datasource/RecordSource.h"

namespace quorvel::windows {

// Makes record sources, and opens histories for hosts without a data-access component of their own.
class HistoryFactory {
 public:
  virtual ~HistoryFactory() = default;

  // A source for this connection. Of one that OpenHistory gave and that is open, from the hub; of any other from the
  // registered component, on the named server ("" = this machine); without a name, where none is registered, from the
  // hub, to which the connection is an error. Errors are those of RecordSourceFactory.
  virtual std::unique_ptr<datasource::RecordSource> Create(std::int32_t connection, std::string_view classIdentifier,
                                                           std::string_view serverName) = 0;
  // Gives the connection index. The errors of the data-access component: 5 for a URL of no known kind, 53 for a history
  // that is not there, ...
  virtual std::int32_t OpenHistory(std::string_view url) = 0;
  // Error 5 for a connection that is not open.
  virtual void CloseHistory(std::int32_t connection) = 0;
};

// All controls of a thread have one, so that a connection that is opened through one serves the others. It ends, and
// closes what is open, with the last of them.
std::shared_ptr<HistoryFactory> MakeFactory();

}  // namespace quorvel::windows
