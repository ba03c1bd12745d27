#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <vector>

namespace sizewright {

/// A name of the store: equal names have equal symbols, whatever their case.
enum class Symbol : std::uint32_t { none = 0 };

/// Names, each kept once in the spelling first seen.
class NamePool {
 public:
  NamePool();

  /// The symbol of a name, `none` when it was never seen. Allocates nothing.
  [[nodiscard]] Symbol find(std::string_view name) const;
  /// The symbol of a name, new when it was never seen.
  Symbol intern(std::string_view name);
  /// The name in its first spelling.
  [[nodiscard]] const std::string& text(Symbol symbol) const;

 private:
  [[nodiscard]] std::size_t probe(std::string_view name) const;
  void grow();

  std::deque<std::string> names_;  // by symbol - 1; addresses stay
  std::vector<Symbol> table_;      // open addressing, a power of two long
};

}  // namespace sizewright
