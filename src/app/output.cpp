#include "sizewright/app/output.h"

#include <cerrno>
#include <cstring>
#include <iostream>

#include "sizewright/embedded/input_error.h"

namespace sizewright {

namespace {

bool isStandardOutput(const std::filesystem::path& path) {
  return path.empty() || path == "-";
}

// A pipe or a device takes what is written as it comes.
bool isReplaceable(const std::filesystem::path& path) {
  std::error_code unknown;
  const std::filesystem::file_status status = std::filesystem::status(path, unknown);
  return !std::filesystem::exists(status) || std::filesystem::is_regular_file(status);
}

}  // namespace

Output::Output(const std::filesystem::path& path) : name_(path.string()), stream_(&file_) {
  if (isStandardOutput(path)) {
    name_ = "standard output";
    stream_ = &std::cout;
    return;
  }
  std::error_code unknown;
  if (std::filesystem::is_directory(path, unknown)) throw InputError(name_, "is a directory");
  if (isReplaceable(path)) temporary_ = std::make_unique<TemporaryFile>(path);
  errno = 0;
  file_.open(temporary_ ? temporary_->path() : name_, std::ios::binary);
  check();
}

Output::~Output() = default;

void Output::check() {
  if (*stream_) return;
  throw InputError(name_,
                   std::string("cannot be written: ") + std::strerror(errno != 0 ? errno : EIO));
}

void Output::line(std::string_view text) {
  errno = 0;
  *stream_ << text << '\n';
  check();
}

void Output::finish() {
  errno = 0;
  stream_->flush();
  check();
  if (file_.is_open()) {
    file_.close();
    check();
  }
  if (temporary_) temporary_->keep();
}

}  // namespace sizewright
