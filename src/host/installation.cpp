#include "sizewright/host/installation.h"

#include <cstring>

#include "sizewright/host/fixed_text.h"
#include "sizewright/host/host.h"

namespace sizewright {

bool Installation::directory(std::string_view, std::string&) const {
  return false;
}
bool Installation::profile(std::string_view, std::string_view, std::string&) const {
  return false;
}
bool Installation::fileExists(std::string_view) const {
  return false;
}
std::string Installation::projectDirectory() const {
  return {};
}
std::string Installation::currentDirectory() const {
  return {};
}
bool Installation::launch(std::string_view, std::string_view) const {
  return false;
}
bool Installation::ratingProgramPath(std::string_view, std::string&) const {
  return false;
}
bool Installation::plateFinVersion(std::string&) const {
  return false;
}
bool Installation::ratingProgramAvailable(std::string_view) const {
  return false;
}
bool Installation::loadResultText(std::string_view, std::string_view, std::string_view,
                                  std::string_view) {
  return false;
}

namespace {

std::size_t copyTo(char* buffer, std::size_t size, std::string_view text) {
  if (size == 0) return 0;
  const std::string_view kept = cutText(text, size - 1);
  std::memcpy(buffer, kept.data(), kept.size());
  buffer[kept.size()] = '\0';
  return kept.size();
}

}  // namespace

int VPERegGetInstallDir(const char* key, char* buffer, std::size_t size) {
  std::string path;
  if (!currentHost().installation().directory(key, path)) return 0;
  copyTo(buffer, size, path);
  return 1;
}

std::size_t GetProfileStringA(const char* section, const char* key, const char* fallback,
                              char* buffer, std::size_t size) {
  std::string value;
  if (!currentHost().installation().profile(section, key, value)) value = fallback;
  return copyTo(buffer, size, value);
}

std::size_t GetCurrentDirectoryA(std::size_t size, char* buffer) {
  return copyTo(buffer, size, currentHost().installation().currentDirectory());
}

int ffile_exists(const char* path) {
  return currentHost().installation().fileExists(path) ? 1 : 0;
}

int VdregGetTHRXAPPPath(const char* program, char* buffer, std::size_t size) {
  std::string path;
  if (!currentHost().installation().ratingProgramPath(program, path)) return 0;
  copyTo(buffer, size, path);
  return 1;
}

int VdregGetMIRECurVer(char* buffer, std::size_t size) {
  std::string version;
  if (!currentHost().installation().plateFinVersion(version)) return 0;
  copyTo(buffer, size, version);
  return 1;
}

int wasc_load_data(void* /*reserved*/, const char* layout, const char* file, const char* database,
                   const char* section) {
  return currentHost().installation().loadResultText(layout, file, database, section) ? 1 : 0;
}

int CvdAppUtils::LaunchProcessWait(const char* executable, const char* commandLine) {
  return currentHost().installation().launch(executable, commandLine) ? 1 : 0;
}

int CvdVPELib::GetProjectDir(char* buffer, std::size_t size) {
  const std::string directory = currentHost().installation().projectDirectory();
  if (directory.empty()) return 0;
  copyTo(buffer, size, directory);
  return 1;
}

}  // namespace sizewright
