// A platform for what asks it of nothing but the form of dates.
#pragma once

#include <filesystem>
#include <string_view>

#include "platform/StandardPlatform.h"

namespace quorvel::bench {

class BarePlatform : public StandardPlatform {
 public:
  void ShowMessage(std::string_view /*text*/, std::string_view /*title*/) override {}
  void SetMousePointer(MousePointer /*pointer*/) override {}
  void ClearClipboard() override {}
  void SetClipboardText(std::string_view /*text*/) override {}
  void OpenFile(const std::filesystem::path& /*file*/) override {}
  void OpenFileWith(const std::filesystem::path& /*file*/) override {}
  void SetHostStatusText(std::string_view /*text*/) override {}
};

}  // namespace quorvel::bench
