// What a script wants to go wrong, and when.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace quorvel::scenario {

// Things are named as in the contract: queries, releases, "CreateProcessLog" for the creation of a record source, and
// the calls of the platform.
class Faults {
 public:
  // The nth next use of `name` raises this error; of a query, answers with this out status. n counts from 1.
  // ScriptError when there is nothing of that name.
  void Fail(std::string_view name, std::int32_t nth, std::int32_t number);
  void Answer(std::string_view name, std::int32_t nth, std::int32_t status);

  // From now on hears the name of each use first, also of those that no script can name; what it raises is what the
  // use raises.
  void Watch(std::function<void(std::string_view name)> watcher) { watcher_ = std::move(watcher); }

  // Counts one use. Raises the error that was asked for, else gives the status that was asked for.
  std::optional<std::int32_t> Use(std::string_view name);

 private:
  struct Wish {
    std::string name;
    std::int32_t usesLeft;
    std::int32_t value;
  };

  static void Add(std::vector<Wish>& wishes, std::string_view name, std::int32_t nth, std::int32_t value);
  static std::optional<std::int32_t> Count(std::vector<Wish>& wishes, std::string_view name);

  std::vector<Wish> failures_;
  std::vector<Wish> statuses_;
  std::function<void(std::string_view name)> watcher_;
};

}  // namespace quorvel::scenario
