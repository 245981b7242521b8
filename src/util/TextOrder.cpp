#include "util/TextOrder.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <functional>
#include <utility>

namespace quorvel::util {
namespace {

using Byte = unsigned char;

// Capital letters from `first` to `last`, every `step`th one; the small letter stands `distance` further on.
struct Capitals {
  int first;
  int last;
  int step;
  int distance;
};

constexpr Capitals kCapitals[] = {
    {'A', 'Z', 1, 32},       {0x00C0, 0x00D6, 1, 32}, {0x00D8, 0x00DE, 1, 32}, {0x0100, 0x012E, 2, 1},
    {0x0132, 0x0136, 2, 1},  {0x0139, 0x0147, 2, 1},  {0x014A, 0x0176, 2, 1},  {0x0178, 0x0178, 1, -121},
    {0x0179, 0x017D, 2, 1},  {0x0200, 0x021E, 2, 1},  {0x0386, 0x0386, 1, 38}, {0x0388, 0x038A, 1, 37},
    {0x038C, 0x038C, 1, 64}, {0x038E, 0x038F, 1, 63}, {0x0391, 0x03A1, 1, 32}, {0x03A3, 0x03AB, 1, 32},
    {0x0400, 0x040F, 1, 80}, {0x0410, 0x042F, 1, 32}, {0x0460, 0x0480, 2, 1},  {0x048A, 0x04BE, 2, 1},
    {0x04C1, 0x04CD, 2, 1},  {0x04D0, 0x052E, 2, 1},
};

// The code points that UTF-8 writes in one or two bytes.
constexpr std::size_t kFolded = 0x800;

// For each of them its small letter, or itself.
constexpr auto kSmall = [] {
  std::array<std::uint16_t, kFolded> small{};
  for (std::size_t point = 0; point < kFolded; ++point) small[point] = static_cast<std::uint16_t>(point);
  for (const Capitals& letters : kCapitals) {
    for (int point = letters.first; point <= letters.last; point += letters.step) {
      small[static_cast<std::size_t>(point)] = static_cast<std::uint16_t>(point + letters.distance);
    }
  }
  return small;
}();

constexpr bool IsContinuation(Byte byte) {
  return (byte & 0xC0) == 0x80;
}

constexpr bool LeadsTwo(Byte byte) {
  return (byte & 0xE0) == 0xC0;
}

Byte ByteAt(std::string_view text, std::size_t position) {
  return position < text.size() ? static_cast<Byte>(text[position]) : Byte{0};
}

std::uint16_t SmallOfPair(Byte lead, Byte second) {
  return kSmall[static_cast<std::size_t>((lead & 0x1F) << 6 | (second & 0x3F))];
}

// The byte at an existing position of the text in small letters, which are as long as the others. Bytes order as code
// points do.
Byte SmallByteAt(std::string_view text, std::size_t position) {
  const Byte byte = ByteAt(text, position);
  if (byte < 0x80) return static_cast<Byte>(kSmall[byte]);
  if (LeadsTwo(byte)) {
    const Byte second = ByteAt(text, position + 1);
    return IsContinuation(second) ? static_cast<Byte>(0xC0 | SmallOfPair(byte, second) >> 6) : byte;
  }
  if (position == 0 || !IsContinuation(byte)) return byte;
  const Byte lead = ByteAt(text, position - 1);
  return LeadsTwo(lead) ? static_cast<Byte>(0x80 | (SmallOfPair(lead, byte) & 0x3F)) : byte;
}

// How far both texts are the same from `position` on, letters of two bytes whole.
std::size_t CommonEnd(std::string_view a, std::string_view b, std::size_t position) {
  const auto from = static_cast<std::ptrdiff_t>(position);
  const auto [inA, inB] = std::mismatch(a.begin() + from, a.end(), b.begin() + from, b.end());
  const auto end = static_cast<std::size_t>(inA - a.begin());
  return end > position && LeadsTwo(ByteAt(a, end - 1)) ? end - 1 : end;
}

// Compares texts in small letters that are alike up to `position`.
std::strong_ordering CompareSmall(std::string_view a, std::string_view b, std::size_t position) {
  const std::size_t shorter = std::min(a.size(), b.size());
  for (std::size_t at = CommonEnd(a, b, position); at < shorter; ++at) {
    if (const auto order = SmallByteAt(a, at) <=> SmallByteAt(b, at); std::is_neq(order)) return order;
  }
  return a.size() <=> b.size();
}

// The texts of a column without repetition, and which of them stands in each row.
struct Distinct {
  std::vector<std::string_view> texts;
  std::vector<std::uint32_t> rows;
};

class DistinctTexts {
 public:
  explicit DistinctTexts(std::size_t rows) { found_.rows.reserve(rows); }

  void Append(std::string_view text) {
    found_.rows.push_back(IsTheTextBefore(text) ? found_.rows.back() : NumberOf(text));
  }
  Distinct Take() { return std::move(found_); }

 private:
  struct Slot {
    std::uint32_t hash = 0;
    std::uint32_t number = 0;  // of the text plus 1, 0 = free
  };

  bool IsTheTextBefore(std::string_view text) const {
    if (found_.rows.empty()) return false;
    const std::string_view before = found_.texts[found_.rows.back()];
    return before.data() == text.data() && before.size() == text.size();
  }

  std::uint32_t NumberOf(std::string_view text) {
    const auto hash = static_cast<std::uint32_t>(std::hash<std::string_view>{}(text));
    if (slots_.size() < 2 * (found_.texts.size() + 1)) Grow();
    Slot& slot = slots_[Find(hash, text)];
    if (slot.number == 0) {
      found_.texts.push_back(text);
      slot = {hash, static_cast<std::uint32_t>(found_.texts.size())};
    }
    return slot.number - 1;
  }

  // The text's slot, or the free one that it may take.
  std::size_t Find(std::uint32_t hash, std::string_view text) const {
    std::size_t at = hash & (slots_.size() - 1);
    while (slots_[at].number != 0 && (slots_[at].hash != hash || found_.texts[slots_[at].number - 1] != text)) {
      at = (at + 1) & (slots_.size() - 1);
    }
    return at;
  }

  void Grow() {
    constexpr std::size_t kFirstSlots = 256;
    std::vector<Slot> before(std::max(slots_.size() * 2, kFirstSlots));
    before.swap(slots_);
    for (const Slot& slot : before) {
      if (slot.number != 0) slots_[Find(slot.hash, found_.texts[slot.number - 1])] = slot;
    }
  }

  Distinct found_;
  std::vector<Slot> slots_;  // open addressing; a power of two of them
};

// A text, and eight bytes of it in small letters, which decide most comparisons without a look at the text.
struct Head {
  std::uint64_t bytes = 0;
  std::uint32_t text = 0;
};

std::uint64_t HeadAt(std::string_view text, std::size_t position) {
  std::uint64_t head = 0;
  const std::size_t end = std::min(text.size(), position + sizeof head);
  for (std::size_t at = position; at < end; ++at) {
    head |= std::uint64_t{SmallByteAt(text, at)} << (8 * (sizeof head - 1 - (at - position)));
  }
  return head;
}

// Sorts texts by their heads; those that share one, by the heads further on.
class HeadSort {
 public:
  explicit HeadSort(std::span<const std::string_view> texts) : texts_(texts), heads_(texts.size()) {
    for (std::size_t i = 0; i < texts.size(); ++i) heads_[i].text = static_cast<std::uint32_t>(i);
    Sort(heads_, 0, 0);
  }
  // Numbers of the texts, in their order.
  const std::vector<Head>& heads() const { return heads_; }

 private:
  // Texts that are alike up to `position`.
  void Sort(std::span<Head> heads, std::size_t position, int round) {
    constexpr std::size_t kFewTexts = 8;
    constexpr int kMostRounds = 32;
    if (heads.size() < kFewTexts || round == kMostRounds) return SortByComparing(heads, position);
    position = CommonEndOf(heads, position);
    for (Head& head : heads) head.bytes = HeadAt(texts_[head.text], position);
    std::ranges::sort(heads, {}, &Head::bytes);
    for (std::size_t first = 0, last = 0; first < heads.size(); first = last) {
      while (last < heads.size() && heads[last].bytes == heads[first].bytes) ++last;
      SortAlike(heads.subspan(first, last - first), position, round);
    }
  }

  void SortAlike(std::span<Head> heads, std::size_t position, int round) {
    const bool mayEndHere = static_cast<Byte>(heads.front().bytes) == 0;
    if (mayEndHere) return SortByComparing(heads, position);
    if (heads.size() > 1) Sort(heads, position + sizeof heads.front().bytes, round + 1);
  }

  void SortByComparing(std::span<Head> heads, std::size_t position) {
    std::ranges::sort(heads, [&](const Head& a, const Head& b) {
      const auto order = CompareSmall(texts_[a.text], texts_[b.text], position);
      return std::is_neq(order) ? std::is_lt(order) : texts_[a.text] < texts_[b.text];
    });
  }

  std::size_t CommonEndOf(std::span<const Head> heads, std::size_t position) const {
    std::string_view common = texts_[heads.front().text];
    for (const Head& head : heads) {
      common = common.substr(0, CommonEnd(common, texts_[head.text], position));
      if (common.size() == position) break;
    }
    return common.size();
  }

  std::span<const std::string_view> texts_;
  std::vector<Head> heads_;
};

}  // namespace

std::strong_ordering CompareTexts(std::string_view a, std::string_view b) {
  const auto order = CompareSmall(a, b, 0);
  return std::is_neq(order) ? order : a <=> b;
}

bool BeginsWith(std::string_view text, std::string_view beginning) {
  return text.size() >= beginning.size() && std::is_eq(CompareSmall(text.substr(0, beginning.size()), beginning, 0));
}

std::vector<std::int64_t> RankTexts(std::span<const std::string_view> texts) {
  DistinctTexts collected(texts.size());
  for (const std::string_view text : texts) collected.Append(text);
  const Distinct distinct = collected.Take();
  std::vector<std::uint32_t> rankOf(distinct.texts.size());
  std::uint32_t rank = 0;
  const HeadSort sorted(distinct.texts);
  for (const Head& head : sorted.heads()) rankOf[head.text] = rank++;
  std::vector<std::int64_t> ranks(texts.size());
  std::ranges::transform(distinct.rows, ranks.begin(), [&](std::uint32_t text) { return std::int64_t{rankOf[text]}; });
  return ranks;
}

}  // namespace quorvel::util
