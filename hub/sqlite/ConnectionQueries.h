// The statements about connections with stations. What Queries.h says of orders and filters holds here too.
#pragma once

#include <string_view>

namespace quorvel::hub {

inline constexpr std::string_view kCommunicationExists = "SELECT 1 FROM communication WHERE communication_id = :id";

// GetCommunications. The days cut the period out of the index, the starts cut it to the second.
inline constexpr std::string_view kCommunications = R"sql(
  SELECT communication_id, start_date, end_date, station_id, station_name, from_station, size_kb, report, in_progress,
         ok, not_ok
  FROM communication
  WHERE (:station = -1 OR station_id = :station)
    AND day >= CAST(:from AS INTEGER) AND day <= CAST(:to AS INTEGER)
    AND start_date >= :from AND start_date < :to
    AND (:state = 0 OR state = :state) AND (:failedOnly = 0 OR state = 2)
  ORDER BY day DESC, start_date DESC, communication_id DESC)sql";

// The same for "Last execution": of each station the newest connection, if the filters let that one through. Sorts one
// row for each station.
inline constexpr std::string_view kLastCommunications = R"sql(
  SELECT c.communication_id, c.start_date, c.end_date, c.station_id, c.station_name, c.from_station, c.size_kb,
         c.report, c.in_progress, c.ok, c.not_ok
  FROM station t
  CROSS JOIN communication c ON c.communication_id = (
    SELECT n.communication_id FROM communication n
    WHERE n.station_id = t.station_id
    ORDER BY n.day DESC, n.start_date DESC, n.communication_id DESC LIMIT 1)
  WHERE (:station = -1 OR t.station_id = :station)
    AND c.start_date >= :from AND c.start_date < :to
    AND (:failedOnly = 0 OR c.state = 2)
  ORDER BY c.start_date DESC, c.communication_id DESC)sql";

// GetCommunicationsByMonth. The index alone answers.
inline constexpr std::string_view kDaysOfCommunications = R"sql(
  SELECT day, count(*)
  FROM communication
  WHERE (:station = -1 OR station_id = :station)
    AND day >= CAST(:from AS INTEGER) AND day <= CAST(:to AS INTEGER)
    AND start_date >= :from AND start_date < :to
    AND (:state = 0 OR state = :state)
  GROUP BY day
  ORDER BY day DESC)sql";

// The same for "Last execution". Sorts one row for each station.
inline constexpr std::string_view kDaysOfLastCommunications = R"sql(
  SELECT c.day, count(*)
  FROM station t
  CROSS JOIN communication c ON c.communication_id = (
    SELECT n.communication_id FROM communication n
    WHERE n.station_id = t.station_id
    ORDER BY n.day DESC, n.start_date DESC, n.communication_id DESC LIMIT 1)
  WHERE (:station = -1 OR t.station_id = :station)
    AND c.start_date >= :from AND c.start_date < :to
  GROUP BY c.day
  ORDER BY c.day DESC)sql";

// GetCommandLogByCommunication. Commands without a connection are not in the index.
inline constexpr std::string_view kCommandsOfCommunication = R"sql(
  SELECT communication_id, communication_date, command_log_id, kind, result, text, report, start_date, end_date,
         in_progress, ok, not_ok
  FROM command_log WHERE communication_id = :communication AND communication_id <> 0
  ORDER BY command_log_id)sql";

}  // namespace quorvel::hub
