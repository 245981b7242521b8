#include "hub_com/ColumnReader.h"

#include <cstring>
#include <memory>
#include <span>
#include <type_traits>
#include <utility>

#include "hub_com/ArrayData.h"
#include "platform/Error.h"
#include "platform/windows/WideText.h"

namespace quorvel::hub_com {
namespace {

using datasource::Column;
using datasource::Flag;
using datasource::GrowingArray;
using datasource::TextColumn;
using datasource::TextColumnBuilder;
using windows::Variant;

[[noreturn]] void RaiseType(std::string_view what, VARTYPE type) {
  throw Error(SystemError::kTypeMismatch, std::string(what) + " has the wrong type, " + std::to_string(type));
}

[[noreturn]] void RaiseShape(std::string_view what, const std::string& problem) {
  throw Error(SystemError::kIndexOutOfRange, std::string(what) + " " + problem);
}

// The array of a column once its shape is as it must be, and the type of its values.
struct ColumnArray {
  SAFEARRAY* array;
  VARTYPE type;
};

ColumnArray ArrayOf(const VARIANT& from, std::size_t rows, std::string_view what) {
  if ((from.vt & VT_ARRAY) == 0 || (from.vt & VT_BYREF) != 0) RaiseType(what, from.vt);
  SAFEARRAY* const array = from.parray;
  if (array == nullptr) RaiseShape(what, "has no array");
  if (SafeArrayGetDim(array) != 1) {
    RaiseShape(what, "has " + std::to_string(SafeArrayGetDim(array)) + " dimensions instead of one");
  }
  const SAFEARRAYBOUND& bound = array->rgsabound[0];
  if (bound.lLbound != 0) RaiseShape(what, "begins at " + std::to_string(bound.lLbound) + " instead of 0");
  if (bound.cElements != rows) {
    RaiseShape(what, "holds " + std::to_string(bound.cElements) + " of " + std::to_string(rows) + " rows");
  }
  return {array, static_cast<VARTYPE>(from.vt & ~VT_ARRAY)};
}

// How many values an array holds whose shape nobody has looked at yet.
std::size_t SizeOf(const VARIANT& from) {
  if ((from.vt & VT_ARRAY) == 0 || (from.vt & VT_BYREF) != 0 || from.parray == nullptr) return 0;
  return from.parray->rgsabound[0].cElements;
}

template <class T>
T ValueAt(const void* values, std::size_t row) {
  T value;
  std::memcpy(&value, static_cast<const char*>(values) + row * sizeof(T), sizeof(T));
  return value;
}

// Which types a column takes as they are, and which it takes by making its values wider.
template <class T>
constexpr bool IsOwnType(VARTYPE type) {
  if constexpr (std::is_same_v<T, std::int32_t>) return type == VT_I4;
  if constexpr (std::is_same_v<T, double>) return type == VT_DATE || type == VT_R8;
  if constexpr (std::is_same_v<T, Flag>) return type == VT_BOOL || type == VT_I2;
  return false;
}
template <class T>
constexpr bool IsNarrower(VARTYPE type) {
  return std::is_same_v<T, std::int32_t> && type == VT_I2;
}

// The value of a VARIANT; all that it can be begin at the same place in it.
template <class T>
T NumberOf(const VARIANT& from, std::string_view what) {
  if (from.vt == VT_EMPTY || from.vt == VT_NULL) return 0;
  if (IsOwnType<T>(from.vt)) return ValueAt<T>(&from.lVal, 0);
  if (IsNarrower<T>(from.vt)) return static_cast<T>(from.iVal);
  RaiseType(what, from.vt);
}

std::wstring_view TextOf(const VARIANT& from, std::string_view what) {
  if (from.vt == VT_EMPTY || from.vt == VT_NULL) return {};
  if (from.vt != VT_BSTR) RaiseType(what, from.vt);
  return {from.bstrVal, SysStringLen(from.bstrVal)};
}

template <class T>
Column<T> ReadNumbers(const VARIANT& from, std::size_t rows, std::string_view what) {
  const auto [array, type] = ArrayOf(from, rows, what);
  const ArrayData data(array);
  GrowingArray<T> values;
  values.reserve(rows);
  if (IsOwnType<T>(type)) {
    values.append(static_cast<const T*>(data.get()), rows);
  } else if (IsNarrower<T>(type)) {
    for (std::size_t row = 0; row < rows; ++row) {
      values.push_back(static_cast<T>(ValueAt<std::int16_t>(data.get(), row)));
    }
  } else if (type == VT_VARIANT) {
    const auto* const variants = static_cast<const VARIANT*>(data.get());
    for (std::size_t row = 0; row < rows; ++row) values.push_back(NumberOf<T>(variants[row], what));
  } else {
    RaiseType(what, type);
  }
  return Column<T>(std::move(values));
}

// The same without a copy where the values are what the column holds.
template <class T>
Column<T> TakeNumbers(Variant from, std::size_t rows, std::string_view what) {
  const auto [array, type] = ArrayOf(from.raw(), rows, what);
  if (!IsOwnType<T>(type)) return ReadNumbers<T>(from.raw(), rows, what);
  const std::span values(static_cast<const T*>(array->pvData), rows);
  return Column<T>(std::make_shared<const Variant>(std::move(from)), values);
}

// Appends wide texts to a column without memory of its own for each.
class WideTexts {
 public:
  explicit WideTexts(std::size_t rows) { builder_.Reserve(rows); }

  // `text` must live until the next call.
  void Append(std::wstring_view text) {
    // Rows of a group follow each other.
    if (any_ && text == last_) {
      builder_.Repeat();
    } else {
      AppendOther(text);
    }
    any_ = true;
    last_ = text;
  }
  TextColumn Take() { return builder_.Take(); }

 private:
  void AppendOther(std::wstring_view text) {
    buffer_.clear();
    for (const wchar_t character : text) {
      if (character >= 0x80) return builder_.Append(windows::FromWide(text));
      buffer_.push_back(static_cast<char>(character));
    }
    builder_.Append(buffer_);
  }

  TextColumnBuilder builder_;
  std::string buffer_;
  std::wstring_view last_;
  bool any_ = false;
};

TextColumn ReadTexts(const VARIANT& from, std::size_t rows, std::string_view what) {
  const auto [array, type] = ArrayOf(from, rows, what);
  const ArrayData data(array);
  WideTexts texts(rows);
  if (type == VT_BSTR) {
    const auto* const values = static_cast<const BSTR*>(data.get());
    for (std::size_t row = 0; row < rows; ++row) texts.Append({values[row], SysStringLen(values[row])});
  } else if (type == VT_VARIANT) {
    const auto* const values = static_cast<const VARIANT*>(data.get());
    for (std::size_t row = 0; row < rows; ++row) texts.Append(TextOf(values[row], what));
  } else {
    RaiseType(what, type);
  }
  return texts.Take();
}

}  // namespace

void ReadColumn(Variant array, std::size_t rows, std::string_view what, Column<std::int32_t>& column) {
  column = TakeNumbers<std::int32_t>(std::move(array), rows, what);
}

void ReadColumn(Variant array, std::size_t rows, std::string_view what, Column<double>& column) {
  column = TakeNumbers<double>(std::move(array), rows, what);
}

void ReadColumn(Variant array, std::size_t rows, std::string_view what, Column<Flag>& column) {
  column = TakeNumbers<Flag>(std::move(array), rows, what);
}

void ReadColumn(const Variant& array, std::size_t rows, std::string_view what, TextColumn& column) {
  column = ReadTexts(array.raw(), rows, what);
}

void ReadPackedTexts(const Variant& packed, std::size_t rows, std::string_view what, TextColumn& column) {
  const auto [array, type] = ArrayOf(packed.raw(), 2, what);
  if (type != VT_VARIANT) RaiseType(what, type);
  const ArrayData data(array);
  const auto* const parts = static_cast<const VARIANT*>(data.get());
  const TextColumn texts = ReadTexts(parts[0], SizeOf(parts[0]), what);
  const Column<std::int32_t> places = ReadNumbers<std::int32_t>(parts[1], rows, what);
  TextColumnBuilder builder;
  builder.Reserve(rows);
  for (const std::int32_t place : places.values()) {
    if (place < 0 || static_cast<std::size_t>(place) >= texts.size()) {
      RaiseShape(what, "has no text " + std::to_string(place));
    }
    builder.Append(texts[static_cast<std::size_t>(place)]);
  }
  column = builder.Take();
}

void ReadValue(const Variant& from, std::string_view what, std::int32_t& value) {
  value = NumberOf<std::int32_t>(from.raw(), what);
}

void ReadValue(const Variant& from, std::string_view what, double& value) {
  value = NumberOf<double>(from.raw(), what);
}

void ReadValue(const Variant& from, std::string_view what, Flag& value) {
  value = NumberOf<Flag>(from.raw(), what);
}

void ReadValue(const Variant& from, std::string_view what, std::string& value) {
  value = windows::FromWide(TextOf(from.raw(), what));
}

}  // namespace quorvel::hub_com
