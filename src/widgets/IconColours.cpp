#include "widgets/IconColours.h"

#include <cstddef>

namespace quorvel::widgets {
namespace {

struct ColourPair {
  std::uint32_t onLight;
  std::uint32_t onDark;
};

// In the order of IconColour.
constexpr ColourPair kColours[] = {
    {0x53637A, 0xA9B6C6},  // ink
    {0xDCE5F0, 0x3A4656},  // body
    {0x0E8585, 0x35C0BC},  // accent
    {0x8893A1, 0x808B98},  // nothing done
    {0xF6F8FA, 0x2A3138},  // its inside
    {0xDB7B00, 0xF59E2E},  // alarm
    {0x1E8E4E, 0x2FAE66},  // OK
    {0xC62F2F, 0xE0524D},  // error
    {0x1F6FD0, 0x3F8FF0},  // progress
    {0xF0B429, 0xF0B429},  // waiting
    {0x7A4FB5, 0x9A74D6},  // unknown
    {0x3466B0, 0x5B8FDD},  // mark
    {0xFFFFFF, 0xFFFFFF},  // on a badge
    {0x3A2C00, 0x3A2C00},  // on waiting
};

}  // namespace

std::uint32_t IconRgb(IconColour colour, bool dark) {
  const ColourPair& pair = kColours[static_cast<std::size_t>(colour)];
  return dark ? pair.onDark : pair.onLight;
}

}  // namespace quorvel::widgets
