#pragma once

#include <span>
#include <string_view>

namespace sizewright {

/// A file of the source tree that is part of the program: bundled data and schemas.
struct EmbeddedFile {
  std::string_view name;  // relative to the source tree, such as "data/fluids.json"
  std::string_view text;
};

/// All of them, by name.
std::span<const EmbeddedFile> embeddedFiles();

}  // namespace sizewright
