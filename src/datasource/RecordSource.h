// What every record source of the data-access component has in common, and how one is created.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <type_traits>

#include "datasource/Column.h"
#include "platform/Dates.h"
#include "platform/Error.h"

namespace quorvel::datasource {

// One object per class and caller. A query fills the object's columns; its last argument is an out status: 0 = its
// result may be read, any other value = there is nothing to read, which is no error. A call that fails raises an Error.
//
// The row count is `lngCount`. The columns that the query promises (see Contract.h) then hold that many values each;
// the others are empty. Columns stay readable in copies after the paired release; a second query without a release in
// between replaces the result.
//
// The first argument of every call is the index of an open connection; an index that is not open is error 5.
// Where an identifier filter is -1, or a reserved argument 0, it does not filter.
class RecordSource {
 public:
  virtual ~RecordSource() = default;

  // Rows of the last query; 0 or less = nothing to read.
  virtual std::int32_t lngCount() const = 0;
};

// What a query found: its columns, which outlive the release, and its number of rows; none for a status other than 0.
template <class Records>
struct Answer {
  Records records;
  std::int32_t count = 0;
};

// Takes the answer of a query that gave this status.
template <class Source>
auto TakeAnswer(const Source& source, std::int32_t status) {
  using Records = std::remove_cvref_t<decltype(source.Records())>;
  return status == 0 ? Answer<Records>{source.Records(), source.lngCount()} : Answer<Records>{};
}

// Creates record sources by class identifier. One per data-access component.
class RecordSourceFactory {
 public:
  virtual ~RecordSourceFactory() = default;

  // A new object of the class ("clRecordHub.ProcessLog") on the named server ("" = this machine). Error 429, with class
  // and server in its description, when that cannot be.
  virtual std::unique_ptr<RecordSource> Create(std::string_view classIdentifier, std::string_view serverName) = 0;
};

// The same, as the class wanted: `CreateRecordSource<ProcessLog>(factory, server)`. Error 429 too when the component
// answers with an object of another class.
template <class Source>
std::unique_ptr<Source> CreateRecordSource(RecordSourceFactory& factory, std::string_view serverName) {
  std::unique_ptr<RecordSource> created = factory.Create(Source::kClassIdentifier, serverName);
  auto* source = dynamic_cast<Source*>(created.get());
  if (source == nullptr) {
    throw Error(SystemError::kCannotCreateComponent, "The component does not answer as " +
                                                         std::string(Source::kClassIdentifier) + " on server \"" +
                                                         std::string(serverName) + "\"");
  }
  static_cast<void>(created.release());  // owned as a Source from here on
  return std::unique_ptr<Source>(source);
}

}  // namespace quorvel::datasource
