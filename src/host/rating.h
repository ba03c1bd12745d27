#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "sizewright/host/string_list.h"

namespace sizewright {

/// A length or volume with its unit text.
struct Measure {
  double value = 0.0;
  std::string units;
};

/// What a rating program found; a value that its file does not hold is absent.
struct RatingResults {
  std::optional<int> errors;  // fatal errors of the run
  std::optional<int> dataPoints;
  std::optional<std::string> shellType;
  std::optional<int> shellsInParallel;
  std::optional<int> shellsInSeries;
  std::optional<int> tubePasses;
  std::optional<int> tubes;
  std::optional<Measure> tubeLength;
  std::optional<Measure> shellDiameter;
  std::optional<Measure> tubeOutsideDiameter;
  std::optional<Measure> tubePitch;
  std::optional<Measure> coreLength;
  std::optional<Measure> coreWidth;
  std::optional<Measure> coreDepth;
  std::optional<Measure> coreVolume;
};

/// Rating services of a host: readers of result files and the air cooler program. Every call comes
/// on the thread that the host is attached to; nothing throws.
class RatingService {
 public:
  enum class Program { shellAndTube, plateFin };

  virtual ~RatingService() = default;

  /// Reads a result file; nothing when it cannot be read.
  [[nodiscard]] virtual std::optional<RatingResults> results(Program program,
                                                             std::string_view file) const;
  /// Sizes an air cooler: labels and values go in and come back sized. False when it is not sized
  /// or the host has no such program.
  virtual bool sizeAirCooler(CStrList& names, CStrList& values, CStrList& warnings,
                             CStrList& errors, bool mayShowMessages);
};

/// Results of the shell-and-tube rating program, read from a file.
class CTHRXTOSKINTOUTObj {
 public:
  explicit CTHRXTOSKINTOUTObj(const char* file);
  [[nodiscard]] bool IsValid() const { return results_.has_value(); }

  // Each getter returns true and sets its arguments when the value is there, and otherwise leaves
  // them. Texts write at most 64 characters, terminator included.
  bool Get_diag_numoffatalerrors(int& count) const;
  bool Get_geox_numdatapts(int& count) const;
  bool Get_geox_Shell_type_TEMA(char* type) const;
  bool Get_geox_Shell_numExch_parallel(int& count) const;
  bool Get_geox_Shell_numExch_series(int& count) const;
  bool Get_geox_Tube_length(double& length, char* units) const;
  bool Get_geox_Shell_dia(double& diameter, char* units) const;
  bool Get_geox_Bundle_numtubepasses(int& count) const;
  bool Get_geox_Bundle_numtubes(int& count) const;
  bool Get_geox_Tube_outsidedia(double& diameter, char* units) const;
  bool Get_geox_Tube_pitch(double& pitch, char* units) const;

 private:
  std::optional<RatingResults> results_;
};

/// Results of the plate-fin rating program, read from a file; getters as above.
class CTHRXMIREINTOUTObj {
 public:
  explicit CTHRXMIREINTOUTObj(const char* file);
  [[nodiscard]] bool IsValid() const { return results_.has_value(); }

  bool Get_cont_numoferrors(int& count) const;
  bool Get_geox_numdatapts(int& count) const;
  bool Get_geox_ExchLength(double& length, char* units) const;
  bool Get_geox_ExchWidth(double& width, char* units) const;
  bool Get_geox_ExchDepth(double& depth, char* units) const;
  bool Get_geox_ExchVolume(double& volume, char* units) const;

 private:
  std::optional<RatingResults> results_;
};

/// Sizes an air cooler through the host's program: the values come back sized. Returns 1 when
/// sized, otherwise 0.
int DoAirCoolerSizing(CStrList& names, CStrList& values, CStrList& warnings, CStrList& errors,
                      int mayShowMessages);

}  // namespace sizewright
