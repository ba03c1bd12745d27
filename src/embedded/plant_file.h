#pragma once

#include <cstddef>
#include <filesystem>
#include <iosfwd>
#include <memory>
#include <span>
#include <string>
#include <string_view>

#include "sizewright/embedded/input_error.h"
#include "sizewright/embedded/plant.h"

namespace sizewright {

/// Bytes that an input file may have.
inline constexpr std::size_t kMaxInputBytes = std::size_t{1} << 30U;

/// A whole file. Throws InputError when it cannot be read.
std::string readTextFile(const std::filesystem::path& path);

// Reading a plant file. A file that is not as it should be throws InputError with one line:
// "name: path/in/the/document: fault". Bundled data are not looked at. Items may ask for the
// classes of `knownClasses` only.

std::unique_ptr<Plant> readPlantFile(const std::filesystem::path& path,
                                     std::span<const std::string_view> knownClasses);
/// `name` stands in messages.
std::unique_ptr<Plant> readPlant(std::string_view text, std::string_view name,
                                 std::span<const std::string_view> knownClasses);
std::unique_ptr<Plant> readPlant(std::istream& input, std::string_view name,
                                 std::span<const std::string_view> knownClasses);

/// Writes a plant as a plant file, as it stands: the same plant is written the same way. Throws
/// InputError for what a plant file cannot say. Whether `out` took it is for the caller to look at.
void writePlant(Plant& plant, std::ostream& out);

}  // namespace sizewright
