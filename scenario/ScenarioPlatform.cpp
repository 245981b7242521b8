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
}

void ScenarioPlatform::SetHostStatusText(std::string_view text) {
  faults_.Use("SetHostStatusText");
  if (!statusBar_) throw Error(SystemError::kUnsupportedMember, "The host has no stStatusBar");
  port_.SetStatusText(text);
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
