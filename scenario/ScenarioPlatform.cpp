#include "scenario/ScenarioPlatform.h"

#include "platform/Error.h"

namespace quorvel::scenario {

void ScenarioPlatform::ShowMessage(std::string_view text, std::string_view title) {
  faults_.Use("ShowMessage");
  messages_.push_back({std::string(title), std::string(text)});
}

void ScenarioPlatform::SetMousePointer(MousePointer pointer) {
  faults_.Use("SetMousePointer");
  pointers_.push_back(pointer);
}

void ScenarioPlatform::ClearClipboard() {
  faults_.Use("ClearClipboard");
  clipboard_.clear();
}

void ScenarioPlatform::SetClipboardText(std::string_view text) {
  faults_.Use("SetClipboardText");
  clipboard_ = text;
}

void ScenarioPlatform::OpenFile(const std::filesystem::path& file) {
  faults_.Use("OpenFile");
  if (!std::filesystem::exists(file)) throw Error(SystemError::kFileNotFound, "File not found: " + file.string());
  shellCalls_.push_back("open " + file.string());
}

void ScenarioPlatform::OpenFileWith(const std::filesystem::path& file) {
  faults_.Use("OpenFileWith");
  shellCalls_.push_back("open with " + file.string());
}

void ScenarioPlatform::SetHostStatusText(std::string_view text) {
  faults_.Use("SetHostStatusText");
  if (!statusBar_) throw Error(SystemError::kUnsupportedMember, "The host has no stStatusBar");
  port_.SetStatusText(text);
}

bool ScenarioPlatform::FileExists(const std::filesystem::path& file) const {
  faults_.Use("FileExists");
  return StandardPlatform::FileExists(file);
}

// Work that can be broken off is not: a script has no time at which to press the key.
bool ScenarioPlatform::IsEscapePressed() {
  faults_.Use("IsEscapePressed");
  return false;
}

DateValue ScenarioPlatform::Now() const {
  faults_.Use("Now");
  return now_;
}

std::string ScenarioPlatform::FormatDate(DateValue date, DateFormat format) const {
  faults_.Use("FormatDate");
  return StandardPlatform::FormatDate(date, format);
}

std::optional<DateValue> ScenarioPlatform::ParseDate(std::string_view text) const {
  faults_.Use("ParseDate");
  return StandardPlatform::ParseDate(text);
}

std::string ScenarioPlatform::ToFileText(std::string_view text) const {
  faults_.Use("ToFileText");
  return StandardPlatform::ToFileText(text);
}

SystemVersion ScenarioPlatform::OperatingSystem() const {
  faults_.Use("OperatingSystem");
  return StandardPlatform::OperatingSystem();
}

std::optional<Account> ScenarioPlatform::CurrentAccount() const {
  faults_.Use("CurrentAccount");
  return account_;
}

std::optional<std::string> ScenarioPlatform::CurrentUser() const {
  faults_.Use("CurrentUser");
  return StandardPlatform::CurrentUser();
}

std::filesystem::path ScenarioPlatform::TemporaryFolder() const {
  faults_.Use("TemporaryFolder");
  return folder_.path();
}

void ScenarioPlatform::DeleteFile(const std::filesystem::path& file) {
  faults_.Use("DeleteFile");
  StandardPlatform::DeleteFile(file);
}

void ScenarioPlatform::RenameFile(const std::filesystem::path& file, const std::filesystem::path& newName) {
  faults_.Use("RenameFile");
  StandardPlatform::RenameFile(file, newName);
}

}  // namespace quorvel::scenario
