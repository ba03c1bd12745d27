#include "sizewright/host/units.h"

#include <charconv>
#include <cmath>
#include <cstring>

#include "sizewright/host/host.h"
#include "sizewright/host/objects.h"
#include "sizewright/host/text.h"

namespace sizewright {

void UnitService::open() {}
void UnitService::close() {}
int UnitService::unitType() const {
  return 0;
}
bool UnitService::convert(std::string_view, std::string_view, double&) const {
  return false;
}
double UnitService::roundUpByHalf(double value) const {
  return std::ceil(value * 2.0) / 2.0;
}
double UnitService::round(double value) const {
  return std::round(value);
}

void units_open() {
  currentHost().units().open();
}
void units_close() {
  currentHost().units().close();
}
int units_get_unit_type() {
  return currentHost().units().unitType();
}

int units_adjust(std::string_view from, std::string_view to, const double* in, double* out,
                 char* message, const char* /*control*/, const char* /*mode*/) {
  *out = *in;
  if (currentHost().units().convert(from, to, *out)) return 1;
  if (message != nullptr) {
    FixedText<kUnitMessage> text(formatText("Cannot convert <%.48s> to <%.48s>.",
                                            std::string(from).c_str(), std::string(to).c_str()));
    std::memcpy(message, text.c_str(), kUnitMessage);
  }
  return 0;
}

double converted(double value, std::string_view from, std::string_view to) {
  currentHost().units().convert(from, to, value);
  return value;
}

int ob_adjust_and_add_in_correct_base_type_api(CvdValueObject* object, std::string_view slot,
                                               double value, std::string_view internalUnit,
                                               std::string_view customaryUnit,
                                               std::string_view metricUnit, int unitType) {
  if (object == nullptr || !object->IsValid()) return 0;
  const std::string_view unit = unitType == 0 ? customaryUnit : metricUnit;
  return object->SetValue(slot, converted(value, internalUnit, unit), unit, 0);
}

double compiler_round(double value) {
  return currentHost().units().round(value);
}
double compiler_round_up_by_half(double value) {
  return currentHost().units().roundUpByHalf(value);
}

FixedText<32> compiler_float_to_string(double value) {
  FixedText<32> text;
  std::to_chars(text.data(), text.data() + text.capacity() - 1, value);
  return text;
}

}  // namespace sizewright
