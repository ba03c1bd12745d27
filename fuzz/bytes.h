#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace sizewright::fuzz {

/// The fuzzer's input, taken byte by byte; zeros after its end.
class Bytes {
 public:
  explicit Bytes(std::span<const std::uint8_t> data) : data_(data) {}

  [[nodiscard]] bool empty() const { return position_ >= data_.size(); }
  std::uint8_t take() { return empty() ? 0 : data_[position_++]; }
  /// A number below `count`, which is not 0.
  std::size_t below(std::size_t count) {
    std::size_t number = take();
    if (count > 256) number = number * 256 + take();
    return number % count;
  }
  template <class Row, std::size_t count>
  const Row& oneOf(const Row (&rows)[count]) {
    return rows[below(count)];
  }

 private:
  std::span<const std::uint8_t> data_;
  std::size_t position_ = 0;
};

}  // namespace sizewright::fuzz
