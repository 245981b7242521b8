// The data-access component: opens histories and makes the record sources that read them.
#pragma once

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <string_view>

#include "datasource/RecordSource.h"
#include "hub/HubError.h"
#include "hub/Progress.h"

namespace quorvel::hub {

class Connections;

// Start here: open a history, hand the connection index to whoever asks record sources, create the sources.
//
// All calls, and those of the sources, come from one thread. Sources may outlive the hub and their connection: their
// calls then raise error 5, and the columns that they gave out stay readable.
class RecordHub : public datasource::RecordSourceFactory {
 public:
  RecordHub();
  // Closes what is still open.
  ~RecordHub() override;
  RecordHub(const RecordHub&) = delete;
  RecordHub(RecordHub&&) = delete;
  RecordHub& operator=(const RecordHub&) = delete;
  RecordHub& operator=(RecordHub&&) = delete;

  // Opens a history for reading and writing: "sqlite:PATH", or "sqlite:PATH?mode=ro" for reading alone. PATH is UTF-8;
  // a relative one starts at the current folder. A file that the system lets nobody write is opened for reading.
  // Gives the connection index: from 1, never used twice.
  //
  // Error 5: the URL is of no known kind. 53: there is no such file. 70: the system refuses to open it. 75: it cannot
  // be opened for another reason. 57: it cannot be read. The numbers of HubError.h: it is not a history, is one of
  // another schema, is locked (after half a second of waiting) or is damaged. The file stays as it was; nothing is
  // created.
  std::int32_t OpenConnection(std::string_view url);

  // Closes one connection. Error 5 when it is not open.
  void CloseConnection(std::int32_t connection);

  // Whom to tell which query runs: as it begins and while it goes on, but not again before `interval` is over. An empty
  // `callback` ends it. Holds for each connection, open or to come; see Progress.h for what the callback may do.
  void SetProgress(ProgressCallback callback, std::chrono::milliseconds interval = std::chrono::milliseconds(100));

  // See RecordSourceFactory. A history is a file that this process opens itself: the server's name is only told in
  // errors. Error 429 for a class that this hub does not have.
  std::unique_ptr<datasource::RecordSource> Create(std::string_view classIdentifier,
                                                   std::string_view serverName) override;

 private:
  std::shared_ptr<Connections> connections_;
};

// Creates an empty history. Error 58: something of that name exists already. 70, 75: the system refuses. Leaves nothing
// behind when it fails.
void CreateHistory(const std::filesystem::path& file);

}  // namespace quorvel::hub
