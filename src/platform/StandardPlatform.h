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
  bool FileExists(const std::filesystem::path& file) const override;
  // $TMPDIR where it names a folder, else the system's temporary folder.
  std::filesystem::path TemporaryFolder() const override;
  void DeleteFile(const std::filesystem::path& file) override;
  void RenameFile(const std::filesystem::path& file, const std::filesystem::path& newName) override;
  std::string ToFileText(std::string_view text) const override;
  // Error 5 when Windows does not give its version.
  SystemVersion OperatingSystem() const override;
  // On Windows what the account library "OstranaAccount.dll" says, from the folder of the program, of the system or of
  // this library; nothing without it. Elsewhere the host's name and the user's.
  std::optional<Account> CurrentAccount() const override;
  std::optional<std::string> CurrentUser() const override;
};

}  // namespace quorvel
