// What the console does when a viewer asks its host for something: reports, and the way to what a row is about.
#pragma once

#include <string>

#include "console_windows/ConsoleWindow.h"
#include "control/HostEvents.h"
#include "datasource/ErrorsProcess.h"
#include "datasource/RecordSource.h"
#include "platform/Platform.h"

namespace quorvel::console {

// Failures are shown and logged.
class ViewerHost final : public HostEvents {
 public:
  // All must outlive this object.
  ViewerHost(ConsoleWindow& window, windows::ProcessLogWindow& viewer, Platform& platform,
             datasource::RecordSourceFactory& factory);
  ~ViewerHost() override;
  ViewerHost(const ViewerHost&) = delete;
  ViewerHost& operator=(const ViewerHost&) = delete;

  // Writes a report of these runs into the folder for temporary files, and opens it with the program that the desktop
  // has for such documents: there it is read and printed.
  void PrintReport(const std::string& f_strCurrentProcessIdList) override;
  void UpdateAlarm() override;
  // Goes to the run that the row of this key is about.
  void GoToLog(const std::string& f_strKey) override;

 private:
  ConsoleWindow& window_;
  windows::ProcessLogWindow& viewer_;
  Platform& platform_;
  datasource::RecordSourceFactory& factory_;
  datasource::ErrorsProcess errors_;
};

}  // namespace quorvel::console
