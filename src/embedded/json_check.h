#pragma once

#include <memory>
#include <nlohmann/json_fwd.hpp>
#include <string_view>

#include "sizewright/embedded/input_error.h"

namespace sizewright {

/// What a schema says of one place in a document.
struct JsonRule;

/// A schema of the program, ready to check documents or parts of them. Belongs to one thread at a
/// time.
class JsonSchema {
 public:
  /// Name of an embedded file, such as "schemas/plant.schema.json".
  explicit JsonSchema(std::string_view file);
  ~JsonSchema();

  /// The rule for the whole document.
  [[nodiscard]] const JsonRule& root() const;
  /// The rule for the member of that name; null when an object under `rule` must not have one.
  [[nodiscard]] static const JsonRule* member(const JsonRule& rule, std::string_view name);

  /// Whether a value is as the rule asks.
  [[nodiscard]] bool accepts(const JsonRule& rule, const nlohmann::ordered_json& value) const;
  /// Throws InputError when it is not: one fault, at its place under `path`.
  void check(const JsonRule& rule, const nlohmann::ordered_json& value,
             std::string_view path) const;

 private:
  struct Compiled;
  std::unique_ptr<Compiled> compiled_;
};

}  // namespace sizewright
