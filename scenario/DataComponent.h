// Where a scenario gets its data: what opens histories and makes the record sources that read them.
#pragma once

#include <cstdint>
#include <memory>
#include <string_view>

#include "datasource/RecordSource.h"

namespace quorvel::scenario {

class DataComponent {
 public:
  virtual ~DataComponent() = default;

  // Opens a history ("sqlite:PATH") and gives the index of the connection. Errors are the component's.
  virtual std::int32_t OpenConnection(std::string_view url) = 0;
  virtual datasource::RecordSourceFactory& Sources() = 0;
};

// A component whose one class does both.
template <class Hub>
class ComponentOf final : public DataComponent {
 public:
  std::int32_t OpenConnection(std::string_view url) override { return hub_.OpenConnection(url); }
  datasource::RecordSourceFactory& Sources() override { return hub_; }

 private:
  Hub hub_;
};

}  // namespace quorvel::scenario
