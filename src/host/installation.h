#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace sizewright {

/// Where a host keeps things, and the programs it can start. Every call comes on the thread that
/// the host is attached to; nothing throws.
class Installation {
 public:
  virtual ~Installation() = default;

  /// A registered directory. False, with `path` untouched, when the key is not registered.
  virtual bool directory(std::string_view key, std::string& path) const;
  /// A value of the user's profile. False, with `value` untouched, when it is not there.
  virtual bool profile(std::string_view section, std::string_view key, std::string& value) const;
  [[nodiscard]] virtual bool fileExists(std::string_view path) const;
  /// The project's directory; empty when there is none.
  [[nodiscard]] virtual std::string projectDirectory() const;
  /// Directory that relative file names belong to; empty when there is none.
  [[nodiscard]] virtual std::string currentDirectory() const;

  /// Runs a program and waits for its end. True when it ran.
  virtual bool launch(std::string_view executable, std::string_view commandLine) const;
  /// Path of an installed rating program. False, with `path` untouched, when there is none.
  virtual bool ratingProgramPath(std::string_view program, std::string& path) const;
  /// Version of the plate-fin rating program. False, with `version` untouched, when there is none.
  virtual bool plateFinVersion(std::string& version) const;
  /// Whether a rating program is installed and licensed.
  [[nodiscard]] virtual bool ratingProgramAvailable(std::string_view program) const;
  /// Loads the result text file of a rating program into a project database, by a layout database.
  virtual bool loadResultText(std::string_view layout, std::string_view file,
                              std::string_view database, std::string_view section);
};

/// Copies a registered directory into `buffer` of `size` characters; a longer one is cut.
/// Returns 1, or 0 and leaves `buffer`.
int VPERegGetInstallDir(const char* key, char* buffer, std::size_t size);
/// Copies a profile value, or `fallback` when it is not there. Returns the number of characters.
std::size_t GetProfileStringA(const char* section, const char* key, const char* fallback,
                              char* buffer, std::size_t size);
/// Copies the current directory. Returns the number of characters, 0 when there is none.
std::size_t GetCurrentDirectoryA(std::size_t size, char* buffer);
/// 1 when the file exists.
int ffile_exists(const char* path);

/// Path of an installed rating program, and the version of the plate-fin program. Each returns 1,
/// or 0 and leaves `buffer`; longer texts are cut at `size`.
int VdregGetTHRXAPPPath(const char* program, char* buffer, std::size_t size);
int VdregGetMIRECurVer(char* buffer, std::size_t size);
/// Loads a result text file into a database; the first argument is accepted and ignored.
/// Returns 1 on success.
int wasc_load_data(void* reserved, const char* layout, const char* file, const char* database,
                   const char* section);

/// Programs that the host starts for the library.
class CvdAppUtils {
 public:
  /// Runs a program and waits for its end. Returns 1 when it ran.
  static int LaunchProcessWait(const char* executable, const char* commandLine);
};

/// The project's place.
class CvdVPELib {
 public:
  /// Copies the project's directory; a longer one is cut at `size`. Returns 1, or 0 and leaves
  /// `buffer`.
  static int GetProjectDir(char* buffer, std::size_t size);
};

}  // namespace sizewright
