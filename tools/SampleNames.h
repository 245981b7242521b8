// Names of companies, shops and failures in a sample.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "tools/SampleProcesses.h"

namespace quorvel::tools {

inline constexpr std::size_t kPlacesPerCompany = 8;

struct CompanyName {
  std::string_view name;
  std::array<std::string_view, kPlacesPerCompany> places;
};

// The first is the one that a sample with a single station has.
std::span<const CompanyName> Companies();

// "Lyon Part-Dieu 03": the nth station (from 0) of a company.
std::string StationName(const CompanyName& company, std::int64_t n);

// "ST-00417".
std::string StationIdentifier(std::int32_t stationId);

// Names that are hard to show, sort or use in a key.
std::span<const std::string_view> OddStationNames();

struct Failure {
  std::string_view report;         // on the station, its task and its step
  std::string_view commandReport;  // what the command said
  std::int32_t code = 0;           // and its result
  bool lineStays = false;          // no fault of the connection that carried the command
};

// What goes wrong in steps that run that risk; one at least.
std::span<const Failure> FailuresOf(Risk risk);

// Texts of a station that did what it should. "#" stands for a number.
std::span<const std::string_view> SuccessReports();

// The text with each `mark` replaced.
std::string Fill(std::string_view text, std::string_view mark, std::string_view replacement);

// What a station in progress can wait for; the last one is of a later version.
std::span<const std::string_view> WaitStates();

// A name that is longer than any column is wide.
inline constexpr std::string_view kLongLabel =
    "Everything that the shops of all regions have kept since the last stocktaking, with the photographs of the "
    "shelves, the recordings of the tills that were exchanged, and the letters that were never sent because the "
    "printer of the head office was under repair for the whole of the winter and most of the spring that followed";

// Reports that are hard to show: empty, in several scripts, with separators, of about 20 kB, not even UTF-8.
std::span<const std::string> OddReports();

}  // namespace quorvel::tools
