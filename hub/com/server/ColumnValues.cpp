#include "hub_com/server/ColumnValues.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <new>
#include <string>
#include <utility>
#include <vector>

#include "hub_com/ArrayData.h"
#include "platform/windows/WideText.h"

namespace quorvel::hub_com {
namespace {

using datasource::Column;
using datasource::Flag;
using datasource::TextColumn;
using windows::Variant;

// An array of so many empty values.
Variant MakeArray(VARTYPE type, std::size_t size) {
  if (size > std::numeric_limits<ULONG>::max()) throw std::bad_alloc();
  Variant made;
  SAFEARRAY* const array = SafeArrayCreateVector(type, 0, static_cast<ULONG>(size));
  if (array == nullptr) throw std::bad_alloc();
  made.raw().vt = static_cast<VARTYPE>(VT_ARRAY | type);
  made.raw().parray = array;
  return made;
}

template <class T>
Variant CopyOf(const Column<T>& column, VARTYPE type) {
  Variant made = MakeArray(type, column.size());
  const ArrayData data(made.raw().parray);
  if (column.size() > 0) std::memcpy(data.get(), column.values().data(), column.values().size_bytes());
  return made;
}

// Makes wide texts without memory of its own for each.
class WideBuffer {
 public:
  std::wstring_view Convert(std::string_view text) {
    buffer_.clear();
    for (const char character : text) {
      if (static_cast<unsigned char>(character) >= 0x80) return buffer_ = windows::ToWide(text);
      buffer_.push_back(static_cast<wchar_t>(character));
    }
    return buffer_;
  }

 private:
  std::wstring buffer_;
};

// Fills an array of texts with what textAt(place) gives.
template <class TextAt>
void WriteTexts(Variant& array, std::size_t size, TextAt textAt) {
  const ArrayData data(array.raw().parray);
  auto* const texts = static_cast<BSTR*>(data.get());
  WideBuffer buffer;
  for (std::size_t place = 0; place < size; ++place) {
    const std::wstring_view wide = buffer.Convert(textAt(place));
    texts[place] = SysAllocStringLen(wide.data(), static_cast<UINT>(wide.size()));
    if (texts[place] == nullptr) throw std::bad_alloc();
  }
}

}  // namespace

Variant ValueOf(const Column<std::int32_t>& column) {
  return CopyOf(column, VT_I4);
}

Variant ValueOf(const Column<double>& column) {
  return CopyOf(column, VT_DATE);
}

Variant ValueOf(const Column<Flag>& column) {
  return CopyOf(column, VT_BOOL);
}

Variant ValueOf(const TextColumn& column) {
  Variant made = MakeArray(VT_BSTR, column.size());
  WriteTexts(made, column.size(), [&](std::size_t row) { return column[row]; });
  return made;
}

Variant PackedValueOf(const TextColumn& column) {
  Variant places = MakeArray(VT_I4, column.size());
  const ArrayData data(places.raw().parray);
  auto* const placeOfRow = static_cast<LONG*>(data.get());
  constexpr LONG kNone = -1;
  std::vector<LONG> placeOfText;
  std::vector<std::size_t> firstRows;
  for (std::size_t row = 0; row < column.size(); ++row) {
    const std::uint32_t text = column.rows()[row];
    if (text >= placeOfText.size()) placeOfText.resize(std::max<std::size_t>(text + 1, 2 * placeOfText.size()), kNone);
    if (placeOfText[text] == kNone) {
      placeOfText[text] = static_cast<LONG>(firstRows.size());
      firstRows.push_back(row);
    }
    placeOfRow[row] = placeOfText[text];
  }
  Variant texts = MakeArray(VT_BSTR, firstRows.size());
  WriteTexts(texts, firstRows.size(), [&](std::size_t place) { return column[firstRows[place]]; });

  Variant both = MakeArray(VT_VARIANT, 2);
  const ArrayData pair(both.raw().parray);
  auto* const values = static_cast<VARIANT*>(pair.get());
  values[0] = std::exchange(texts.raw(), VARIANT{});
  values[1] = std::exchange(places.raw(), VARIANT{});
  return both;
}

Variant ValueOf(std::int32_t value) {
  return Variant(value);
}

Variant ValueOf(double date) {
  return Variant::Date(date);
}

Variant ValueOf(Flag flag) {
  Variant made;
  made.raw().vt = VT_BOOL;
  made.raw().boolVal = flag;
  return made;
}

Variant ValueOf(std::string_view text) {
  return Variant(text);
}

}  // namespace quorvel::hub_com
