#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "sizewright/embedded/memory_store.h"
#include "sizewright/host/utilities.h"

namespace sizewright {

/// The utility specification file, as the objects of a store's utility class.
class UtilityFile : public UtilityService {
 public:
  /// Longest name that a stream is given.
  static constexpr std::size_t kStreamName = 120;

  /// Views the store, which must outlive it.
  explicit UtilityFile(MemoryStore& store);

  /// Always; a file may be empty.
  [[nodiscard]] bool isValid() const override { return true; }
  [[nodiscard]] std::vector<std::string> entries() const override;
  [[nodiscard]] ObjectId entry(std::string_view name) const override;
  /// `none` for an empty name.
  ObjectId addEntry(std::string_view name) override;
  /// Entries live as long as the store; nothing is left to do.
  bool commit() override { return true; }
  /// The text without the blanks around it, cut to kStreamName bytes.
  [[nodiscard]] std::string streamName(std::string_view wanted) const override;

 private:
  MemoryStore& store_;
  StoredDatabase& utilities_;
};

}  // namespace sizewright
