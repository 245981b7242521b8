// The part of the port that needs no toolkit: clock, fixed date text, temporary folder, account.
#pragma once

#include "platform/Platform.h"

namespace quorvel {

// The present local time by the system's clock, in whole seconds.
DateValue LocalNow();

// What is left open here (message box, clipboard, shell, pointer, status bar) is what a toolkit adds.
class StandardPlatform : public Platform {
 public:
  DateValue Now() const override;
  std::string FormatDate(DateValue date, DateFormat format) const override;
  std::optional<DateValue> ParseDate(std::string_view text) const override;
  bool HasFixedDates() const override { return true; }
  // $TMPDIR where it names a folder, else the system's temporary folder.
  std::filesystem::path TemporaryFolder() const override;
  void DeleteFile(const std::filesystem::path& file) override;
  void RenameFile(const std::filesystem::path& file, const std::filesystem::path& newName) override;
  std::string ToFileText(std::string_view text) const override;
  // Systems without a Windows version record count as the NT family.
  SystemFamily OperatingSystem() const override;
  // HOST\user off Windows.
  std::string CurrentAccount() const override;
};

}  // namespace quorvel
