// The classes of the contract, each made from the link to its object.
#pragma once

#include <memory>
#include <span>
#include <string_view>

#include "datasource/RecordSource.h"
#include "hub_com/SourceLink.h"

namespace quorvel::hub_com {

struct Adapter {
  std::string_view classIdentifier;
  std::unique_ptr<datasource::RecordSource> (*create)(SourceLink link);
};

std::span<const Adapter> Adapters();

}  // namespace quorvel::hub_com
