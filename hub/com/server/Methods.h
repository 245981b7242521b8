// Makes the methods of a COM class from a class of the contract.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

#include "datasource/ProcessLog.h"
#include "hub_com/DetailFields.h"
#include "hub_com/server/ColumnValues.h"
#include "hub_com/server/HubObject.h"
#include "hub_com/server/Wire.h"

namespace quorvel::hub_com {

template <auto kCall>
inline constexpr bool kGivesDetail = false;
template <>
inline constexpr bool kGivesDetail<&datasource::ProcessLog::GetProcessLogDetail> = true;

// The method that makes one call of the contract, whose first argument is the connection.
template <auto kCall>
struct CallMethod;

template <class Source, class... Arguments, void (Source::*kCall)(std::int32_t, Arguments...)>
struct CallMethod<kCall> {
  static HRESULT STDMETHODCALLTYPE Run(Face* face, LONG connection,
                                       typename Wire<Arguments>::Type... arguments) noexcept {
    return face->object->Answer<Source>([&](SharedHub& hub, Source& source) {
      face->object->SetShowsDetail(kGivesDetail<kCall>);
      hub.Run(connection, [&](std::int32_t index) { (source.*kCall)(index, Wire<Arguments>::In(arguments)...); });
    });
  }
};

// Writes what a property gives; its place is the caller's and holds nothing before.
inline void Give(windows::Variant value, VARIANT* place) {
  if (place == nullptr) throw Error(SystemError::kInvalidCall, "A property has no place to be written to");
  *place = std::exchange(value.raw(), VARIANT{});
}

template <class Source>
struct CountProperty {
  static HRESULT STDMETHODCALLTYPE Get(Face* face, LONG* value) noexcept {
    return face->object->Answer<Source>([&](SharedHub&, Source& source) {
      if (value == nullptr) throw Error(SystemError::kInvalidCall, "A property has no place to be written to");
      *value = source.lngCount();
    });
  }
};

// The field of a detail, empty for a name that is none of its fields.
inline windows::Variant FieldOf(const datasource::ProcessLogDetail& detail, std::string_view wanted) {
  windows::Variant found;
  ForEachDetailField(detail, [&](std::string_view name, const auto& field) {
    if (name == wanted) found = ValueOf(field);
  });
  return found;
}

// The column that stands at this place among those of the class.
template <class Source, std::size_t kPlace>
struct ColumnProperty {
  static HRESULT STDMETHODCALLTYPE Get(Face* face, VARIANT* value) noexcept {
    return face->object->Answer<Source>([&](SharedHub&, Source& source) {
      std::size_t place = 0;
      const auto& records = source.Records();
      std::remove_cvref_t<decltype(records)>::ForEachColumn(records, [&](std::string_view name, const auto& column) {
        if (place++ == kPlace) Give(ValueOfColumn(*face->object, source, name, column), value);
      });
    });
  }

 private:
  template <class Column>
  static windows::Variant ValueOfColumn(const HubObject& object, const Source& source, std::string_view name,
                                        const Column& column) {
    if constexpr (std::is_same_v<Source, datasource::ProcessLog>) {
      if (windows::Variant field; object.showsDetail() && (field = FieldOf(source.Detail(), name)).type() != VT_EMPTY) {
        return field;
      }
    }
    return ValueOf(column);
  }
};

// A property that holds one value.
template <auto kRead>
struct ValueProperty;

template <class Source, class Value, Value (*kRead)(const Source&)>
struct ValueProperty<kRead> {
  static HRESULT STDMETHODCALLTYPE Get(Face* face, VARIANT* value) noexcept {
    return face->object->Answer<Source>([&](SharedHub&, Source& source) { Give(ValueOf(kRead(source)), value); });
  }
};

// The texts of a column, each once: see ColumnValues.h.
template <class Source>
struct PackedTextsMethod {
  static HRESULT STDMETHODCALLTYPE Get(Face* face, BSTR column, VARIANT* texts) noexcept {
    return face->object->Answer<Source>([&](SharedHub&, Source& source) {
      const std::string wanted = windows::TextOf(column);
      windows::Variant found;
      const auto& records = source.Records();
      std::remove_cvref_t<decltype(records)>::ForEachColumn(records, [&](std::string_view name, const auto& values) {
        if constexpr (std::is_same_v<decltype(values), const datasource::TextColumn&>) {
          if (name == wanted) found = PackedValueOf(values);
        }
      });
      if (found.type() == VT_EMPTY) throw Error(SystemError::kInvalidCall, "No column of texts: " + wanted);
      Give(std::move(found), texts);
    });
  }
};

struct ConnectionMethods {
  static HRESULT STDMETHODCALLTYPE Open(Face* face, BSTR url, LONG* connection) noexcept {
    return face->object->Answer<datasource::RecordSource>([&](SharedHub& hub, datasource::RecordSource&) {
      if (connection == nullptr) throw Error(SystemError::kInvalidCall, "The index has no place to be written to");
      *connection = hub.Open(windows::TextOf(url));
    });
  }
  static HRESULT STDMETHODCALLTYPE Close(Face* face, LONG connection) noexcept {
    return face->object->Answer<datasource::RecordSource>(
        [&](SharedHub& hub, datasource::RecordSource&) { hub.Close(connection); });
  }
};

// The methods of a class in the order of its interface: the calls, the number of rows and the columns where it has any,
// `kValues`, the packed texts of columns and the connections.
template <class Source, auto... kCalls>
class MethodTable {
 public:
  template <auto... kValues>
  static const Method* Get() {
    static const std::vector<Method> methods = Make<kValues...>();
    return methods.data();
  }

 private:
  // More than any class has.
  static constexpr std::size_t kMostColumns = 32;
  static constexpr bool kHasColumns = requires(const Source& source) { source.Records(); };

  template <auto... kValues>
  static std::vector<Method> Make() {
    std::vector<Method> methods(std::begin(kDispatch), std::end(kDispatch));
    (methods.push_back(reinterpret_cast<Method>(&CallMethod<kCalls>::Run)), ...);
    if constexpr (kHasColumns) AddColumns(methods);
    (methods.push_back(reinterpret_cast<Method>(&ValueProperty<kValues>::Get)), ...);
    if constexpr (kHasColumns) methods.push_back(reinterpret_cast<Method>(&PackedTextsMethod<Source>::Get));
    methods.push_back(reinterpret_cast<Method>(&ConnectionMethods::Open));
    methods.push_back(reinterpret_cast<Method>(&ConnectionMethods::Close));
    return methods;
  }

  static void AddColumns(std::vector<Method>& methods) {
    methods.push_back(reinterpret_cast<Method>(&CountProperty<Source>::Get));
    std::size_t columns = 0;
    using Records = std::remove_cvref_t<decltype(std::declval<const Source&>().Records())>;
    const Records none;
    Records::ForEachColumn(none, [&](std::string_view, const auto&) { ++columns; });
    AddColumns(methods, columns, std::make_index_sequence<kMostColumns>{});
  }

  template <std::size_t... kPlaces>
  static void AddColumns(std::vector<Method>& methods, std::size_t columns, std::index_sequence<kPlaces...>) {
    const Method all[] = {reinterpret_cast<Method>(&ColumnProperty<Source, kPlaces>::Get)...};
    methods.insert(methods.end(), all, all + columns);
  }
};

}  // namespace quorvel::hub_com
