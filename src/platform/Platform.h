// What the control asks of its surroundings. A front end fulfils this port; so does a scenario that runs without one.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "platform/Dates.h"

#ifdef DeleteFile
#undef DeleteFile  // Windows gives its own function of that name another one, and with it every member
#endif

namespace quorvel {

// Values of a mouse pointer as hosts know them.
enum class MousePointer : std::int32_t { kDefault = 0, kHourglass = 11 };

// The two named date formats of the regional settings.
enum class DateFormat : std::int32_t { kGeneralDate = -1, kShortDate = 1 };

// The families of operating systems that a version record tells apart.
enum class SystemPlatform : std::uint32_t { kWin32s = 0, kWindows9x = 1, kWindowsNt = 2 };

// The version record of an operating system.
struct SystemVersion {
  SystemPlatform platform = SystemPlatform::kWindowsNt;
  std::uint32_t majorVersion = 0;
  std::uint32_t minorVersion = 0;
  std::uint32_t build = 0;
  std::string servicePack;  // "Service Pack 1", or a letter; empty when there is none
};

// A user, with the domain or host that knows the name.
struct Account {
  std::string domain;
  std::string user;
};

// All calls come from the user-interface thread. Texts are UTF-8. A call that cannot be done raises an Error.
class Platform {
 public:
  virtual ~Platform() = default;

  // Shows `text` in a message box with an OK button and no icon; returns when it was closed.
  virtual void ShowMessage(std::string_view text, std::string_view title) = 0;

  // The pointer shown over the control and the screen.
  virtual void SetMousePointer(MousePointer pointer) = 0;

  // The clipboard, plain text.
  virtual void ClearClipboard() = 0;
  virtual void SetClipboardText(std::string_view text) = 0;

  // Opens a file with the desktop's own program for it. Error 53 when it does not exist, 5 when no program opens it.
  virtual void OpenFile(const std::filesystem::path& file) = 0;
  // Lets the user choose the program that opens a file. The same errors.
  virtual void OpenFileWith(const std::filesystem::path& file) = 0;
  // Whether a file, or a folder, is there; not so where the system does not say.
  virtual bool FileExists(const std::filesystem::path& file) const = 0;

  // Whether the user pressed Escape since the last call, while work goes on that can be broken off. Other input waits
  // until the work is done.
  virtual bool IsEscapePressed() { return false; }

  // Writes `text` into the first panel of the host's status bar `stStatusBar`. Error 438 when the host has none.
  virtual void SetHostStatusText(std::string_view text) = 0;

  // The present local time.
  virtual DateValue Now() const = 0;

  // Date text by the regional settings, or in the fixed form where there are none. A date that cannot be shown gives
  // the empty text; text that is no date gives nothing.
  virtual std::string FormatDate(DateValue date, DateFormat format) const = 0;
  virtual std::optional<DateValue> ParseDate(std::string_view text) const = 0;
  // Whether both use the fixed form, which gives a date back at its nearest second: who knows the date needs no text.
  virtual bool HasFixedDates() const { return false; }

  // The current user's folder for temporary files, and the two changes that the error log makes there. Both raise 53
  // when `file` does not exist and 75 when the system refuses.
  virtual std::filesystem::path TemporaryFolder() const = 0;
  virtual void DeleteFile(const std::filesystem::path& file) = 0;
  virtual void RenameFile(const std::filesystem::path& file, const std::filesystem::path& newName) = 0;

  // Text in the encoding that plain text files have here: UTF-8 off Windows, the ANSI code page on it.
  virtual std::string ToFileText(std::string_view text) const = 0;

  // What the system says of itself and of the interactive user; what that means is for `WindowAPI` to say. A system
  // without a version record counts as the NT family, all numbers 0. Users are nothing when the system does not say.
  virtual SystemVersion OperatingSystem() const = 0;
  virtual std::optional<Account> CurrentAccount() const = 0;
  // The same user's name without its domain, as the families before NT know it.
  virtual std::optional<std::string> CurrentUser() const = 0;
};

}  // namespace quorvel
