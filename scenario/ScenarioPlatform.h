// The surroundings of a viewer under a script: nothing waits for a user, and everything asked for is recorded.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/StandardPlatform.h"
#include "scenario/Faults.h"
#include "scenario/PrivateFolder.h"
#include "scenario/ScenarioPort.h"

namespace quorvel::scenario {

struct ShownMessage {
  std::string title;
  std::string text;
};

// The clock stands, message boxes are answered OK at once, temporary files lie in a folder of this object's own.
class ScenarioPlatform : public StandardPlatform {
 public:
  // Both outlive the platform; the port shows the status text.
  ScenarioPlatform(Faults& faults, ScenarioPort& port) : faults_(faults), port_(port) {}

  void SetNow(DateValue now) { now_ = now; }
  // Who works at the system; nothing = it does not say.
  void SetAccount(std::optional<Account> account) { account_ = std::move(account); }
  // Whether the host has a status bar.
  void SetHostStatusBar(bool present) { statusBar_ = present; }

  // What was recorded since the last time.
  std::vector<ShownMessage> TakeMessages() { return std::exchange(messages_, {}); }
  std::vector<MousePointer> TakePointers() { return std::exchange(pointers_, {}); }
  const std::string& clipboard() const { return clipboard_; }
  // Files that were given to the desktop: "open PATH", "open with PATH".
  std::vector<std::string> TakeShellCalls() { return std::exchange(shellCalls_, {}); }

  void ShowMessage(std::string_view text, std::string_view title) override;
  void SetMousePointer(MousePointer pointer) override;
  void ClearClipboard() override;
  void SetClipboardText(std::string_view text) override;
  void OpenFile(const std::filesystem::path& file) override;
  void OpenFileWith(const std::filesystem::path& file) override;
  void SetHostStatusText(std::string_view text) override;
  bool FileExists(const std::filesystem::path& file) const override;
  bool IsEscapePressed() override;
  DateValue Now() const override;
  std::string FormatDate(DateValue date, DateFormat format) const override;
  std::optional<DateValue> ParseDate(std::string_view text) const override;
  std::filesystem::path TemporaryFolder() const override;
  void DeleteFile(const std::filesystem::path& file) override;
  void RenameFile(const std::filesystem::path& file, const std::filesystem::path& newName) override;
  std::string ToFileText(std::string_view text) const override;
  SystemVersion OperatingSystem() const override;
  std::optional<Account> CurrentAccount() const override;
  std::optional<std::string> CurrentUser() const override;

 private:
  Faults& faults_;
  ScenarioPort& port_;
  PrivateFolder folder_;
  DateValue now_ = DateFromCivil({2026, 11, 20, 12, 0, 0});
  bool statusBar_ = true;
  std::optional<Account> account_ = Account{"SCENARIO", "operator"};
  std::vector<ShownMessage> messages_;
  std::vector<MousePointer> pointers_;
  std::string clipboard_;
  std::vector<std::string> shellCalls_;
};

}  // namespace quorvel::scenario
