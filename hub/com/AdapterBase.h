// What the record sources over COM have in common: arguments go out, columns come in.
#pragma once

#include <windows.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <new>
#include <span>
#include <string>
#include <string_view>
#include <utility>

#include "datasource/Contract.h"
#include "hub_com/ArrayData.h"
#include "hub_com/ColumnReader.h"
#include "hub_com/SourceLink.h"

namespace quorvel::hub_com {

inline windows::Variant ArgumentOf(std::int32_t value) {
  return windows::Variant(value);
}
inline windows::Variant ArgumentOf(double date) {
  return windows::Variant::Date(date);
}
inline windows::Variant ArgumentOf(bool flag) {
  return windows::Variant(flag);
}
inline windows::Variant ArgumentOf(std::string_view text) {
  return windows::Variant(text);
}
inline windows::Variant ArgumentOf(std::span<const std::int32_t> values) {
  windows::Variant made;
  made.raw().parray = SafeArrayCreateVector(VT_I4, 0, static_cast<ULONG>(values.size()));
  if (made.raw().parray == nullptr) throw std::bad_alloc();
  made.raw().vt = VT_ARRAY | VT_I4;
  const ArrayData data(made.raw().parray);
  if (!values.empty()) std::memcpy(data.get(), values.data(), values.size_bytes());
  return made;
}

// A source without columns. `Interface` is the class of the contract.
template <class Interface>
class CallsOverCom : public Interface {
 public:
  explicit CallsOverCom(SourceLink link) : link_(std::move(link)) {}

 protected:
  // Makes one call; `status` is its last argument.
  template <class... Arguments>
  void Call(std::string_view method, std::int32_t& status, const Arguments&... arguments) {
    std::int32_t answered = 0;
    link_.Call(method, {ArgumentOf(arguments)..., windows::Variant::ByReference(answered)});
    status = answered;
  }

  template <class Value>
  void ReadProperty(std::string_view property, Value& value) {
    ReadValue(link_.Get(property), link_.NameOf(property), value);
  }

  SourceLink& link() { return link_; }

 private:
  SourceLink link_;
};

// A source with the columns `RecordsType`.
template <class Interface, class RecordsType>
class AdapterBase : public CallsOverCom<Interface> {
 public:
  using CallsOverCom<Interface>::CallsOverCom;

  std::int32_t lngCount() const final { return count_; }
  const RecordsType& Records() const final { return records_; }

 protected:
  // Sends a query and reads the columns that the contract promises for it. There is no result when that fails.
  template <class... Arguments>
  void Query(std::string_view query, std::int32_t& status, const Arguments&... arguments) {
    Clear();
    this->Call(query, status, arguments...);
    if (status != 0) return;
    std::int32_t count = 0;
    this->ReadProperty("lngCount", count);
    if (count < 1) return;
    RecordsType records;
    ReadColumns(query, static_cast<std::size_t>(count), records);
    records_ = std::move(records);
    count_ = count;
  }

  // An object that is gone has nothing to release.
  void Release(std::string_view release, std::int32_t connection) {
    Clear();
    if (this->link().alive()) this->link().Call(release, {ArgumentOf(connection)});
  }

  void Clear() {
    records_ = {};
    count_ = 0;
  }

 private:
  void ReadColumns(std::string_view query, std::size_t rows, RecordsType& records) {
    const auto promised = datasource::ContractOf(query).columns;
    RecordsType::ForEachColumn(records, [&](std::string_view name, auto& column) {
      if (std::ranges::find(promised, name) == promised.end()) return;
      const std::string what = this->link().NameOf(query) + ": column " + std::string(name);
      Read(name, rows, what, column);
    });
  }

  template <class Column>
  void Read(std::string_view name, std::size_t rows, const std::string& what, Column& column) {
    ReadColumn(this->link().Get(name), rows, what, column);
  }

  // A component may have a member that gives texts in less room, which counts between processes and machines.
  void Read(std::string_view name, std::size_t rows, const std::string& what, datasource::TextColumn& column) {
    constexpr std::string_view kPacked = "PackedTexts";
    if (!this->link().Has(kPacked)) {
      ReadColumn(this->link().Get(name), rows, what, column);
    } else {
      ReadPackedTexts(this->link().Call(kPacked, {ArgumentOf(name)}), rows, what, column);
    }
  }

  RecordsType records_;
  std::int32_t count_ = 0;
};

}  // namespace quorvel::hub_com
