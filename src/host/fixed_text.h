#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

namespace sizewright {

/// Cuts `text` to at most `length` bytes without splitting a UTF-8 character.
constexpr std::string_view cutText(std::string_view text, std::size_t length) {
  if (text.size() <= length) return text;
  while (length > 0 && (static_cast<unsigned char>(text[length]) & 0xC0U) == 0x80U) --length;
  return text.substr(0, length);
}

/// Text in a fixed buffer of N characters, always terminated; what does not fit is cut.
/// Needs no host, allocates nothing.
template <std::size_t N>
class FixedText {
 public:
  static constexpr std::size_t kCapacity = N;

  constexpr FixedText() = default;
  constexpr FixedText(std::string_view text) { assign(text); }
  constexpr FixedText& operator=(std::string_view text) {
    assign(text);
    return *this;
  }

  /// Replaces the text; the rest of the buffer is zero filled.
  constexpr void assign(std::string_view text) {
    const std::string_view kept = cutText(text, N - 1);
    std::copy(kept.begin(), kept.end(), buffer_.begin());
    std::fill(buffer_.begin() + static_cast<std::ptrdiff_t>(kept.size()), buffer_.end(), '\0');
  }
  constexpr void clear() { buffer_.fill('\0'); }

  [[nodiscard]] constexpr const char* c_str() const { return buffer_.data(); }
  [[nodiscard]] constexpr std::string_view view() const { return buffer_.data(); }
  [[nodiscard]] constexpr bool empty() const { return buffer_.front() == '\0'; }
  constexpr operator std::string_view() const { return view(); }

  /// The buffer itself, for operations that write text out; they may use kCapacity characters,
  /// terminator included.
  [[nodiscard]] constexpr char* data() { return buffer_.data(); }
  [[nodiscard]] constexpr std::size_t capacity() const { return N; }

 private:
  std::array<char, N> buffer_{};
};

}  // namespace sizewright
