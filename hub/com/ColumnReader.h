// Columns and values of the contract from the VARIANTs that a component gives.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "datasource/Column.h"
#include "platform/windows/ComValues.h"

namespace quorvel::hub_com {

// A column is an array of one dimension, lower bound 0 and exactly `rows` values, of these types:
//   32-bit integers: VT_I4, VT_I2           dates: VT_DATE, VT_R8
//   flags: VT_BOOL, VT_I2, kept as they are   texts: VT_BSTR
// or VT_VARIANT with values of these types; an empty value and a null are then 0 and "". Error 13 for other types, 9
// for an array of another shape. `what` names class, query and column in them.
// Numbers stay where they are, and the column holds the array from then on.
void ReadColumn(windows::Variant array, std::size_t rows, std::string_view what,
                datasource::Column<std::int32_t>& column);
void ReadColumn(windows::Variant array, std::size_t rows, std::string_view what, datasource::Column<double>& column);
void ReadColumn(windows::Variant array, std::size_t rows, std::string_view what,
                datasource::Column<datasource::Flag>& column);
void ReadColumn(const windows::Variant& array, std::size_t rows, std::string_view what, datasource::TextColumn& column);

// A column of texts, each of which comes once: an array of two VARIANTs, an array of texts and an array with the place
// of its text in the first for each row. Error 13 for other types, 9 for other shapes and for a place that is none.
void ReadPackedTexts(const windows::Variant& packed, std::size_t rows, std::string_view what,
                     datasource::TextColumn& column);

// One value of the same types.
void ReadValue(const windows::Variant& from, std::string_view what, std::int32_t& value);
void ReadValue(const windows::Variant& from, std::string_view what, double& value);
void ReadValue(const windows::Variant& from, std::string_view what, datasource::Flag& value);
void ReadValue(const windows::Variant& from, std::string_view what, std::string& value);

}  // namespace quorvel::hub_com
