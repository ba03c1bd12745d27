#pragma once

#include <cstddef>
#include <string_view>

#include "sizewright/host/fixed_text.h"

namespace sizewright {

class CvdValueObject;

/// A unit text such as "BTU/H/SF/DEG F".
using UnitText = FixedText<64>;

/// Units and rounding of a host. Every call comes on the thread that the host is attached to;
/// nothing throws. Unit texts compare without regard to case and surrounding blanks.
class UnitService {
 public:
  virtual ~UnitService() = default;

  /// Balanced by no promise: an object may close a service that it did not open.
  virtual void open();
  virtual void close();
  /// 0 when the project uses customary units, otherwise metric.
  [[nodiscard]] virtual int unitType() const;
  /// Converts a value. False, with `value` untouched, when a unit is unknown or the two measure
  /// different things.
  virtual bool convert(std::string_view from, std::string_view to, double& value) const;

  /// Up to a multiple of one half; by default a value on a multiple stays.
  [[nodiscard]] virtual double roundUpByHalf(double value) const;
  /// To a whole number; by default halves go away from zero.
  [[nodiscard]] virtual double round(double value) const;
};

void units_open();
void units_close();
int units_get_unit_type();

/// Converts `*in` between two units into `*out`, which may be the same variable. An unknown or
/// unfitting unit leaves the value as it is and writes a text to `message` (at most
/// kUnitMessage characters, may be null). The last two arguments are accepted and ignored.
/// Returns 1 when converted.
int units_adjust(std::string_view from, std::string_view to, const double* in, double* out,
                 char* message, const char* control, const char* mode);
inline constexpr std::size_t kUnitMessage = 128;

/// The value in another unit; unchanged when it cannot be converted.
double converted(double value, std::string_view from, std::string_view to);

/// Writes a number, given in `internalUnit`, to a slot of `object`: in `customaryUnit` when
/// `unitType` is 0, otherwise in `metricUnit`. Returns 1 when stored.
int ob_adjust_and_add_in_correct_base_type_api(CvdValueObject* object, std::string_view slot,
                                               double value, std::string_view internalUnit,
                                               std::string_view customaryUnit,
                                               std::string_view metricUnit, int unitType);

double compiler_round(double value);
double compiler_round_up_by_half(double value);

/// The shortest text that reads back as the same double.
FixedText<32> compiler_float_to_string(double value);

}  // namespace sizewright
