// Small pieces of text on their way into a long one.
#pragma once

#include <array>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

namespace quorvel::list {

// Gathers the pieces of a row, so that the long text is called once: a call for each piece would take longer than what
// it does. What is gathered stands at the end of the text after Flush.
class TextPieces {
 public:
  // `text` must outlive this object.
  explicit TextPieces(std::string& text) : text_(text) {}

  void append(std::string_view piece) {
    if (piece.size() > buffer_.size() - size_) return AppendPastBuffer(piece);
    if (!piece.empty()) std::memcpy(buffer_.data() + size_, piece.data(), piece.size());
    size_ += piece.size();
  }
  // In decimal digits.
  void append(std::int32_t number) {
    constexpr std::size_t kMostDigits = 11;
    if (kMostDigits > buffer_.size() - size_) Flush();
    char* const end = buffer_.data() + size_;
    size_ += static_cast<std::size_t>(std::to_chars(end, end + kMostDigits, number).ptr - end);
  }
  void push_back(char c) { append(std::string_view(&c, 1)); }

  void Flush() {
    text_.append(buffer_.data(), size_);
    size_ = 0;
  }

 private:
  void AppendPastBuffer(std::string_view piece) {
    Flush();
    text_.append(piece);
  }

  std::string& text_;
  std::array<char, 512> buffer_;
  std::size_t size_ = 0;
};

}  // namespace quorvel::list
