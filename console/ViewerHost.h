// What the console does when a viewer asks its host for something: reports, and the way to what a row is about.
#pragma once

#include <string>
#include <string_view>

#include "console/ConsoleWindow.h"
#include "console/Subscription.h"
#include "control/HostEvents.h"
#include "datasource/ErrorsProcess.h"
#include "datasource/RecordSource.h"
#include "platform/Platform.h"

namespace quorvel::console {

// Failures are shown and logged.
class ViewerHost final : public HostEvents {
 public:
  // The viewer stands on the window and reads through `factory`. It may go before this object, the others may not.
  ViewerHost(ConsoleWindow& window, qt::ProcessLogWidget& viewer, Platform& platform,
             datasource::RecordSourceFactory& factory);

  // Opens a window with a report of these runs.
  void PrintReport(const std::string& f_strCurrentProcessIdList) override;
  void UpdateAlarm() override;
  // Goes to the run that the row of this key is about.
  void GoToLog(const std::string& f_strKey) override;

 private:
  ConsoleWindow& window_;
  qt::ProcessLogWidget& viewer_;
  Platform& platform_;
  datasource::RecordSourceFactory& factory_;
  datasource::ErrorsProcess errors_;
  Subscription subscription_;
};

}  // namespace quorvel::console
