// Columns and values of the contract as the VARIANTs that a client reads.
#pragma once

#include <cstdint>
#include <string_view>

#include "datasource/Column.h"
#include "platform/windows/ComValues.h"

namespace quorvel::hub_com {

// An array with one value a row and the lower bound 0. std::bad_alloc when there is no memory for it.
windows::Variant ValueOf(const datasource::Column<std::int32_t>& column);
windows::Variant ValueOf(const datasource::Column<double>& column);            // dates
windows::Variant ValueOf(const datasource::Column<datasource::Flag>& column);  // flags, with the values recorded
windows::Variant ValueOf(const datasource::TextColumn& column);

// The same texts in less room where they repeat: an array of two VARIANTs, the first one an array of the texts, each
// once, the second one an array with the place of its text in the first for each row.
windows::Variant PackedValueOf(const datasource::TextColumn& column);

// A single value.
windows::Variant ValueOf(std::int32_t value);
windows::Variant ValueOf(double date);
windows::Variant ValueOf(datasource::Flag flag);
windows::Variant ValueOf(std::string_view text);

}  // namespace quorvel::hub_com
