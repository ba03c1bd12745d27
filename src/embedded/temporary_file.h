#pragma once

#include <filesystem>
#include <string>

namespace sizewright {

/// A file under a name of its own beside the one it is to replace, so that it can take its place in
/// one step. It goes away unless it is kept. Whatever fails is thrown as InputError.
class TemporaryFile {
 public:
  explicit TemporaryFile(const std::filesystem::path& target);
  ~TemporaryFile();
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;

  [[nodiscard]] const std::string& path() const { return path_; }

  /// Puts the file in the target's place, durably.
  void keep();

 private:
  [[noreturn]] void fail(int fault) const;

  std::filesystem::path target_;
  std::string path_;
  bool isKept_ = false;
};

}  // namespace sizewright
