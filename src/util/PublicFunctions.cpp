#include "util/PublicFunctions.h"

#include <algorithm>
#include <charconv>
#include <string>
#include <system_error>

#include "datasource/ErrorsProcess.h"
#include "platform/Error.h"
#include "util/ClipboardText.h"

namespace quorvel::util {
namespace {

char LowerAscii(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

std::size_t FindTextually(std::string_view text, std::string_view wanted, std::size_t start) {
  const auto same = [](char a, char b) { return LowerAscii(a) == LowerAscii(b); };
  const auto found =
      std::search(text.begin() + static_cast<std::ptrdiff_t>(start), text.end(), wanted.begin(), wanted.end(), same);
  return found == text.end() ? std::string_view::npos : static_cast<std::size_t>(found - text.begin());
}

}  // namespace

std::string_view Identifiant(std::string_view key, std::int32_t position, std::string_view separator) {
  if (separator.empty()) return {};
  std::size_t start = 0;
  for (std::int32_t field = 1; field <= position && start <= key.size(); ++field) {
    const std::size_t found = FindTextually(key, separator, start);
    if (field == position) return key.substr(start, found == std::string_view::npos ? found : found - start);
    if (found == std::string_view::npos) return {};
    // One character on, whatever the separator's length: all callers part by a single character.
    start = found + 1;
  }
  return {};
}

std::vector<std::string_view> SplitKey(std::string_view key) {
  std::vector<std::string_view> parts;
  if (key.empty()) return parts;
  while (true) {
    const std::size_t end = key.find(kKeySeparator);
    parts.push_back(key.substr(0, end));
    if (end == std::string_view::npos) return parts;
    key.remove_prefix(end + kKeySeparator.size());
  }
}

bool IsKeyNode(std::span<const std::string_view> parts, std::span<const std::string_view> pattern) {
  return std::ranges::equal(
      parts, pattern, [](std::string_view part, std::string_view wanted) { return wanted == "?" || part == wanted; });
}

std::int32_t IdentifiantNumber(std::string_view key, std::int32_t position) {
  return datasource::Propagating("Quorvel: PublicFunctions.IdentifiantNumber", [&] {
    const std::string_view field = Identifiant(key, position);
    std::int32_t number = 0;
    const auto [end, code] = std::from_chars(field.data(), field.data() + field.size(), number);
    if (code == std::errc::result_out_of_range) {
      throw Error(SystemError::kOverflow, "Field " + std::to_string(position) + " of key " + std::string(key));
    }
    if (code != std::errc() || end != field.data() + field.size()) {
      throw Error(SystemError::kTypeMismatch,
                  "Field " + std::to_string(position) + " of key " + std::string(key) + " is no whole number");
    }
    return number;
  });
}

void m_CopyListView(Platform& platform, const widgets::ListView& list) {
  datasource::Propagating("Quorvel: PublicFunctions.m_CopyListView", [&] {
    platform.ClearClipboard();
    platform.SetClipboardText(SelectedRowsText(list));
  });
}

}  // namespace quorvel::util
