#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "sizewright/host/fixed_text.h"
#include "sizewright/host/object_store.h"

namespace sizewright {

/// The utility specification file of a host. Every call comes on the thread that the host is
/// attached to; nothing throws.
class UtilityService {
 public:
  virtual ~UtilityService() = default;

  /// Whether the file can be read.
  [[nodiscard]] virtual bool isValid() const;
  /// Names of the entries in file order.
  [[nodiscard]] virtual std::vector<std::string> entries() const;
  /// The entry as an object of the store; `none` when there is none of that name.
  virtual ObjectId entry(std::string_view name) const;
  /// Adds an empty entry at the end, or finds the one of that name.
  virtual ObjectId addEntry(std::string_view name);
  /// Makes added entries lasting.
  virtual bool commit();
  /// A name for a new utility stream made from `wanted`; empty when there is none.
  [[nodiscard]] virtual std::string streamName(std::string_view wanted) const;
};

/// The utility specification file, as the library reads and extends it.
class CvdProjectStreamsConfig {
 public:
  [[nodiscard]] int IsValid() const;
  /// Names of the entries in file order.
  [[nodiscard]] std::vector<std::string> GetEntries() const;
  /// The object of an entry, `none` without one; `CvdValueObject` reads and writes it.
  [[nodiscard]] ObjectId InstantiateEntry(std::string_view name) const;
  [[nodiscard]] int IsEntry(std::string_view name) const;
  /// The object of a new entry.
  ObjectId AddEntry(std::string_view name);
  int Commit();
};

/// A name for a utility stream, from the text wanted. Returns 1, or 0 and leaves `name`.
int NameUtilStream(std::string_view wanted, FixedText<256>& name);

}  // namespace sizewright
