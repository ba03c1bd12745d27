#pragma once

#include <string_view>

#include "sizewright/host/units.h"

namespace sizewright {

/// The unit texts of `data/units.json`, by the definitions of UDUNITS-2. A conversion looks both
/// texts up and multiplies; it allocates nothing.
///
/// "PSIG", "KPAG" and the like are relative to a standard atmosphere of 14.695948775513 PSI.
/// Degrees inside a compound unit are differences.
class UnitTable : public UnitService {
 public:
  /// `unitType` 0 stands for customary units, anything else for metric ones. The first table of the
  /// program reads the definitions; it throws std::runtime_error when UDUNITS-2 has no unit
  /// database or a definition cannot be read.
  explicit UnitTable(int unitType);

  /// Counted, without effect on conversions.
  void open() override { ++openCount_; }
  void close() override { --openCount_; }
  /// Calls of `open` less calls of `close`; below 0 when more were closed than opened.
  [[nodiscard]] int openCount() const { return openCount_; }

  [[nodiscard]] int unitType() const override { return unitType_; }

  /// The attached host's diagnostic is told of a text that is no unit, and of units of different
  /// quantities; a blank text is no unit either, but is not worth a diagnostic.
  bool convert(std::string_view from, std::string_view to, double& value) const override;

  /// Whether the text is a unit.
  [[nodiscard]] static bool knows(std::string_view unit);

 private:
  int unitType_;
  int openCount_ = 0;
};

}  // namespace sizewright
