#include "sizewright/embedded/temporary_file.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

#include "sizewright/embedded/input_error.h"

namespace sizewright {

namespace {

// 0, or the fault's number.
int makeDurable(const std::filesystem::path& path) {
  const int opened = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
  if (opened < 0) return errno;
  const int fault = ::fsync(opened) == 0 ? 0 : errno;
  ::close(opened);
  return fault;
}

}  // namespace

TemporaryFile::TemporaryFile(const std::filesystem::path& target) : target_(target) {
  for (int number = 0;; ++number) {
    path_ = target.string() + ".new-" + std::to_string(::getpid()) + "-" + std::to_string(number);
    const int made = ::open(path_.c_str(), O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC, 0666);
    if (made >= 0) {
      ::close(made);
      return;
    }
    if (errno != EEXIST) fail(errno);
  }
}

TemporaryFile::~TemporaryFile() {
  if (isKept_) return;
  for (const char* ending : {"", "-wal", "-shm", "-journal"}) ::unlink((path_ + ending).c_str());
}

void TemporaryFile::keep() {
  if (const int fault = makeDurable(path_); fault != 0) fail(fault);
  // What is left of an earlier database of this name would be taken for part of this one.
  for (const char* ending : {"-wal", "-shm", "-journal"}) {
    ::unlink((target_.string() + ending).c_str());
  }
  if (::rename(path_.c_str(), target_.c_str()) != 0) fail(errno);
  isKept_ = true;
  // The new name; where a directory cannot be synchronised, the file system sees to it.
  std::error_code unknown;
  makeDurable(std::filesystem::absolute(target_, unknown).parent_path());
}

void TemporaryFile::fail(int fault) const {
  throw InputError(target_.string(), std::string("cannot be written: ") + std::strerror(fault));
}

}  // namespace sizewright
