// A platform for tests: fixed clock, its own temporary folder, everything asked of it on record.
#pragma once

#include <filesystem>
#include <fstream>
#include <functional>
#include <sstream>
#include <string>
#include <vector>

#include "platform/Error.h"
#include "platform/StandardPlatform.h"
#include "support/TemporaryFolder.h"

namespace quorvel::test {

class RecordingPlatform : public StandardPlatform {
 public:
  void ShowMessage(std::string_view text, std::string_view title) override {
    messages.push_back(std::string(title) + ": " + std::string(text));
  }
  void SetMousePointer(MousePointer pointer) override { pointers.push_back(pointer); }
  void ClearClipboard() override { clipboard.clear(); }
  void SetClipboardText(std::string_view text) override { clipboard = text; }
  void OpenFile(const std::filesystem::path& /*file*/) override {}
  void OpenFileWith(const std::filesystem::path& /*file*/) override {}
  bool IsEscapePressed() override { return looksUntilEscape-- == 0; }
  void SetHostStatusText(std::string_view text) override {
    ++statusCalls;
    if (onStatus) onStatus();
    if (!hasStatusBar) throw Error(SystemError::kUnsupportedMember, "No stStatusBar");
    status = text;
  }
  DateValue Now() const override { return DateFromCivil({2026, 11, 20, 12, 0, 0}); }
  std::filesystem::path TemporaryFolder() const override { return folder; }
  void DeleteFile(const std::filesystem::path& file) override {
    if (deleteFails) throw Error(SystemError::kPathAccess, "Delete refused");
    StandardPlatform::DeleteFile(file);
  }
  void RenameFile(const std::filesystem::path& file, const std::filesystem::path& newName) override {
    if (renameFails) throw Error(SystemError::kPathAccess, "Rename refused");
    StandardPlatform::RenameFile(file, newName);
  }

  // The error log as it stands.
  std::string LogText() const {
    std::ifstream in(folder / "Ostrana.log", std::ios::binary);
    return (std::ostringstream() << in.rdbuf()).str();
  }

  test::TemporaryFolder temporary;
  const std::filesystem::path& folder = temporary.path();
  std::vector<std::string> messages;
  std::vector<MousePointer> pointers;
  std::string clipboard;
  std::string status;
  int statusCalls = 0;
  bool hasStatusBar = true;
  std::function<void()> onStatus;  // what else the host does then
  int looksUntilEscape = -1;       // negative: nobody presses it
  bool deleteFails = false;
  bool renameFails = false;
};

}  // namespace quorvel::test
