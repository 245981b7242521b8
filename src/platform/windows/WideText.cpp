#include "platform/windows/WideText.h"

#include <windows.h>

#include <limits>
#include <stdexcept>

namespace quorvel::windows {
namespace {

int SizeForCall(std::size_t size) {
  if (size > static_cast<std::size_t>(std::numeric_limits<int>::max())) throw std::length_error("text too long");
  return static_cast<int>(size);
}

}  // namespace

std::wstring ToWide(std::string_view text) {
  const int size = SizeForCall(text.size());
  if (size == 0) return {};
  std::wstring wide(text.size(), L'\0');  // UTF-16 never has more units than UTF-8 has bytes
  const int written = MultiByteToWideChar(CP_UTF8, 0, text.data(), size, wide.data(), size);
  wide.resize(static_cast<std::size_t>(written));
  return wide;
}

std::string FromWide(std::wstring_view text) {
  const int size = SizeForCall(text.size());
  if (size == 0) return {};
  const int needed = WideCharToMultiByte(CP_UTF8, 0, text.data(), size, nullptr, 0, nullptr, nullptr);
  std::string narrow(static_cast<std::size_t>(needed), '\0');
  WideCharToMultiByte(CP_UTF8, 0, text.data(), size, narrow.data(), needed, nullptr, nullptr);
  return narrow;
}

}  // namespace quorvel::windows
