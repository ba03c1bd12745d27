#pragma once

#include <filesystem>
#include <fstream>
#include <memory>
#include <ostream>
#include <string>
#include <string_view>

#include "sizewright/embedded/temporary_file.h"

namespace sizewright {

/// Where a command writes: standard output, or a file that appears whole or not at all.
class Output {
 public:
  /// An empty path, or "-", is standard output. Throws InputError when the file cannot be made.
  explicit Output(const std::filesystem::path& path);
  ~Output();
  Output(const Output&) = delete;
  Output& operator=(const Output&) = delete;

  std::ostream& stream() { return *stream_; }
  /// Writes a line of text. Throws InputError when it could not be written.
  void line(std::string_view text);
  /// Puts the file in its place. Throws InputError when something could not be written.
  void finish();

 private:
  void check();

  std::string name_;
  std::unique_ptr<TemporaryFile> temporary_;  // none for standard output and devices
  std::ofstream file_;
  std::ostream* stream_;
};

}  // namespace sizewright
