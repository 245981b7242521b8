// Where the rare cases of a table stand among its rows.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>

namespace quorvel::tools {

// Spreads rare cases evenly over rows, so that none of them is in the front of every list.
class RareCases {
 public:
  // With fewer rows than cases there are none.
  RareCases(bool wanted, std::int64_t rows, std::int64_t cases)
      : rows_(rows), cases_(wanted && rows >= cases ? cases : 0) {}

  // The number of the case that the row (from 0) is to be; most rows are none.
  std::optional<std::size_t> At(std::int64_t row) const {
    const std::int64_t rare = (row * cases_ + rows_ - 1) / rows_;
    if (rare >= cases_ || rare * rows_ / cases_ != row) return std::nullopt;
    return static_cast<std::size_t>(rare);
  }

 private:
  std::int64_t rows_;
  std::int64_t cases_;
};

}  // namespace quorvel::tools
