#include "util/ComboSelection.h"

#include <cstddef>
#include <optional>

#include "datasource/ErrorsProcess.h"

namespace quorvel::util {
namespace {

using datasource::Propagating;
using widgets::ComboBox;

bool SelectIfThere(ComboBox& combo, std::optional<std::size_t> row) {
  if (row) combo.Select(*row);
  return row.has_value();
}

}  // namespace

bool SelectStringIn(ComboBox& combo, std::string_view text) {
  return Propagating("ListViewSort.SelectStringIn", [&] { return SelectIfThere(combo, combo.RowOfText(text)); });
}

bool SelectDataIn(ComboBox& combo, std::int32_t data) {
  return Propagating("ListViewSort.SelectDataIn", [&] { return SelectIfThere(combo, combo.RowOfData(data)); });
}

}  // namespace quorvel::util
