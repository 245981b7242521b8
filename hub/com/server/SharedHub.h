// The hub behind all objects of this process, with the connections that they share.
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <mutex>
#include <string_view>

#include "hub/HubError.h"
#include "hub/RecordHub.h"

namespace quorvel::hub_com {

// The index of a connection is either the number of a setting "Connection1", "Connection2", ..., which holds its URL
// and is opened at first use, or one that Open gave. Settings stand in the registry under Software\Ostrana\clRecordHub,
// those of the user before those of the machine.
class SharedHub {
 public:
  // The hub of this process. It lives, with its connections, as long as somebody holds it.
  static std::shared_ptr<SharedHub> Get();

  // Held during each call: callers may come from several threads, the hub wants one at a time.
  std::mutex& mutex() { return mutex_; }
  hub::RecordHub& hub() { return hub_; }

  // Gives the new connection's index, which is never given again in this process. Errors are those of the hub.
  std::int32_t Open(std::string_view url);
  // Error 5 when it is not open. One of the settings is opened again at its next use.
  void Close(std::int32_t connection);
  // Runs call(index) with the hub's own index of a connection. What such a call makes of a connection that is neither
  // open nor set is an error that names the caller's number.
  template <class Call>
  void Run(std::int32_t connection, Call call) {
    const std::int32_t index = IndexOf(connection);
    try {
      call(index);
    } catch (const Error&) {
      if (index == kNotOpen) RaiseNotOpen(connection);
      throw;
    }
  }

 private:
  static constexpr std::int32_t kNotOpen = -1;

  std::int32_t IndexOf(std::int32_t connection);
  [[noreturn]] static void RaiseNotOpen(std::int32_t connection);

  std::mutex mutex_;
  hub::RecordHub hub_;
  std::map<std::int32_t, std::int32_t> open_;  // the hub's indices
};

}  // namespace quorvel::hub_com
