#include "console_windows/ReportFile.h"

#include <windows.h>

#include <fstream>
#include <system_error>

#include "platform/Error.h"
#include "platform/windows/ComError.h"
#include "platform/windows/WideText.h"

namespace quorvel::console {

void SaveReport(const ReportText& report, const std::filesystem::path& file) {
  const auto refuse = [&](const std::string& why) {
    throw Error(SystemError::kPathAccess, windows::FromWide(file.wstring()) + ": The report cannot be written: " + why);
  };
  std::filesystem::path part = file;
  part += L".part";
  {
    std::ofstream out(part, std::ios::binary);
    out << report.html;
    out.close();
    if (!out) refuse(windows::DescriptionOf(HRESULT_FROM_WIN32(GetLastError())));
  }
  if (MoveFileExW(part.c_str(), file.c_str(), MOVEFILE_REPLACE_EXISTING) != FALSE) return;
  const HRESULT why = HRESULT_FROM_WIN32(GetLastError());
  std::error_code ignored;
  std::filesystem::remove(part, ignored);
  refuse(windows::DescriptionOf(why));
}

}  // namespace quorvel::console
