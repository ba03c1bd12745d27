#include "sizewright/separation/solid_streams.h"

#include "sizewright/host/units.h"

namespace sizewright {

namespace {

double flowOf(const CSizeEquip& item, CvdValueObject& stream, const char* slot) {
  double flow = 0.0;
  return item.lib_get_and_adjust_api(&stream, slot, &flow, "LB/H") != 0 ? flow : 0.0;
}

}  // namespace

bool readSolidFlow(const CSizeEquip& item, CvdValueObject& stream, double& flow) {
  double read = 0.0;
  if (item.lib_get_and_adjust_api(&stream, "SOLID MASS FLOW", &read, "LB/H") == 0) return false;
  flow = read;
  return true;
}

double solidFlowByDifference(const CSizeEquip& item, CvdValueObject& stream, double negligible) {
  const double difference = flowOf(item, stream, "TOTAL MASS FLOW") -
                            flowOf(item, stream, "LIQUID MASS FLOW") -
                            flowOf(item, stream, "VAPOR MASS FLOW");
  return difference > negligible ? difference : 0.0;
}

double solidFlowByFraction(const CSizeEquip& item, CvdValueObject& stream) {
  double fraction = 0.0;
  item.lib_get_value_n_api(&stream, "SOLID FRACTION", &fraction, "inherit");
  const double total = flowOf(item, stream, "TOTAL MASS FLOW");
  return total > 0.0 ? fraction * total : 0.0;
}

double solidFlowByLiquorRatio(const CSizeEquip& item, CvdValueObject& stream) {
  double ratio = 0.0;
  double liquid = 0.0;
  UnitText ratioUnits;  // the ratio counts as it stands
  UnitText units;
  item.lib_get_number_and_units_api(&stream, "SUSPENDED SOLID TO LIQUOR RATIO", &ratio,
                                    ratioUnits.data());
  item.lib_get_number_and_units_api(&stream, "LIQUID MASS FLOW", &liquid, units.data());
  if (!(ratio > 0.0) || !(liquid > 0.0)) return 0.0;
  const double flow = ratio * liquid;
  return units.empty() ? flow : converted(flow, units, "LB/H");
}

double readSolidDensity(const CSizeEquip& item, CvdValueObject& stream) {
  double density = 0.0;
  return item.lib_get_and_adjust_api(&stream, "SOLID MASS DENSITY", &density, "PCF") != 0
             ? density
             : kSolidDensity;
}

double solidVolume(double flow, double density) {
  return flow > 0.0 && density > 0.0 ? flow / density : 0.0;
}

}  // namespace sizewright
