// Rows of a list whose cells a test writes down.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "widgets/ListView.h"

namespace quorvel::test {

class TextRows final : public widgets::RowSource {
 public:
  using Row = std::vector<std::string>;
  explicit TextRows(std::vector<Row> rows) : TextRows(rows, rows.size()) {}
  // `count` rows that repeat these.
  TextRows(std::vector<Row> rows, std::size_t count) : rows_(std::move(rows)), count_(count) {}

  std::size_t Count() const override { return count_; }
  void AppendKey(std::size_t row, std::string& out) const override { out += std::to_string(row); }
  void AppendCell(std::size_t row, std::size_t column, std::string& out) const override {
    ++asked;
    out += rows_[row % rows_.size()].at(column);
  }
  std::string_view Icon(std::size_t /*row*/) const override { return ""; }

  mutable std::size_t asked = 0;  // cells that anyone looked at

 private:
  std::vector<Row> rows_;
  std::size_t count_;
};

}  // namespace quorvel::test
