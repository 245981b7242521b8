#include "datasource/Utf8.h"

#include <cstddef>
#include <cstdint>
#include <cstring>

namespace quorvel::datasource {
namespace {

bool IsContinuation(unsigned char byte) {
  return (byte & 0xC0U) == 0x80U;
}

// Bytes of the well-formed sequence at the front of `text`, 0 when there is none.
std::size_t SequenceLength(std::string_view text) {
  const auto byte = [text](std::size_t i) { return static_cast<unsigned char>(text[i]); };
  const unsigned char lead = byte(0);
  if (lead < 0x80) return 1;
  const std::size_t length = lead >= 0xC2 && lead <= 0xDF   ? 2
                             : (lead & 0xF0U) == 0xE0U      ? 3
                             : lead >= 0xF0 && lead <= 0xF4 ? 4
                                                            : 0;
  if (length == 0 || text.size() < length) return 0;
  for (std::size_t i = 1; i < length; ++i) {
    if (!IsContinuation(byte(i))) return 0;
  }
  const bool overlong = (lead == 0xE0 && byte(1) < 0xA0) || (lead == 0xF0 && byte(1) < 0x90);
  const bool surrogate = lead == 0xED && byte(1) > 0x9F;
  const bool tooLarge = lead == 0xF4 && byte(1) > 0x8F;
  return overlong || surrogate || tooLarge ? 0 : length;
}

// Length of the run of ASCII at the front of `text`, eight bytes at a time.
std::size_t AsciiPrefix(std::string_view text) {
  std::size_t i = 0;
  for (std::uint64_t word = 0; i + sizeof(word) <= text.size(); i += sizeof(word)) {
    std::memcpy(&word, text.data() + i, sizeof(word));
    if ((word & 0x8080808080808080U) != 0) break;
  }
  while (i < text.size() && static_cast<unsigned char>(text[i]) < 0x80) ++i;
  return i;
}

// Bytes of the longest well-formed prefix.
std::size_t ValidPrefix(std::string_view text) {
  std::size_t i = AsciiPrefix(text);
  while (i < text.size()) {
    const std::size_t length = SequenceLength(text.substr(i));
    if (length == 0) break;
    i += length;
  }
  return i;
}

}  // namespace

bool IsValidUtf8(std::string_view text) {
  return ValidPrefix(text) == text.size();
}

std::string ReplaceInvalidUtf8(std::string_view text) {
  std::string result;
  result.reserve(text.size() + 2);
  while (true) {
    const std::size_t valid = ValidPrefix(text);
    result.append(text.substr(0, valid));
    if (valid == text.size()) return result;
    result.append("\xEF\xBF\xBD");
    text.remove_prefix(valid + 1);
  }
}

}  // namespace quorvel::datasource
