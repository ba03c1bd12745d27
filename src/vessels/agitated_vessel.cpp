#include <array>
#include <cmath>

#include "sizewright/host/messages.h"
#include "sizewright/host/text.h"
#include "sizewright/host/units.h"
#include "sizewright/vessels/vessel.h"

namespace sizewright {

namespace {

using D = VesselData;

constexpr double kPi = 3.1415926536;
constexpr double kLargestCell = 1500.0;  // CF

constexpr auto kCriteria = std::to_array<ResultRow<D>>({
    {"Residence Time", &D::res_time, When::positive, Style::converted, "MINUTE", "MINUTE",
     "MINUTE"},
    {"Minimum disengagement height", &D::ht_dis, When::positive, Style::converted, "FEET", "FEET",
     "M"},
});

void status(int percent, const char* text) {
  status_write(percent, 3, text);
}

}  // namespace

int CVesObj::agvs_siz() {
  VesselData& vessel = data();
  status(55, "Obtaining agitator information.");
  status(60, "Obtained agitator information.");
  status(61, "Beginning vessel sizing.");
  status(61, "Checking user specifications.");
  const bool hasDiameter = vessel.ves_dia > 0.0;
  const bool hasHeight = vessel.ves_height > 0.0;
  status(67, "Estimating vessel volume.");
  if (!(vessel.capacity > 0.0))
    vessel.capacity = proc_ves_determine_liq_vol(vessel.res_time, largerLiquidFlow());
  if (!(vessel.capacity > 0.0)) {
    return refuse("Vessel capacity cannot be calculated. Please check stream flows.");
  }
  status(70, "Obtaining diameter.");
  if (!hasDiameter) {
    vessel.ves_dia = compiler_pow_double(vessel.capacity * 4.0 / (vessel.ht_dia_ratio * kPi), 0.33);
  }
  if (!(vessel.ves_dia > 0.0)) {
    return refuse("Vessel diameter cannot be calculated. Please check stream flows.");
  }
  status(71, "Obtaining height.");
  if (!hasHeight) {
    vessel.ves_height = cylinderHeight(vessel.capacity, compiler_pow_double(vessel.ves_dia, 2.0));
  }
  if (!(vessel.ves_height > 0.0)) {
    return refuse("Vessel height cannot be calculated. Please check stream flows.");
  }
  if (!hasHeight) {
    status(72, "Adding extra space for vapor disengagement.");
    vessel.ves_height += vessel.ht_dis;
  }
  status(74, "Rounding up height and diameter.");
  if (!hasDiameter && !hasHeight) {
    vessel.ves_height = compiler_round_up_by_half(vessel.ves_height);
    vessel.ves_dia = compiler_round_up_by_half(vessel.ves_dia);
  }
  vessel.capacity = determine_cylinder_capacity(vessel.ves_dia, vessel.ves_height);
  status(75, "Determined vessel height and diameter.");
  return 1;
}

void CVesObj::agvs_write_rep() {
  status(91, "Writing results to the file Please wait...");
  write(kCriteria);
  if (itemIs({"FLOAT CELL", "COND CELL"})) {
    writeCells();
  } else {
    writeLength(slotOf("Diameter"), data().ves_dia);
    writeLength(slotOf("vessel t-t height"), data().ves_height);
    writeVolume("CpLiquidVolume", data().capacity);
  }
  if (data().design_from_user) return;
  writeResult("CpDesignTemperature", data().design_temp, When::always, Style::converted, "DEG F",
              "DEG F", "DEG C");
  writeGaugePressure("CpDesignGaugePressure", data().design_press);
  writeVacuum(0.0);
}

void CVesObj::writeCells() {
  const double capacity = data().capacity;
  const double cells = capacity > kLargestCell ? std::ceil(capacity / kLargestCell) : 1.0;
  const bool isFlotation = itemIs({"FLOAT CELL"});
  writeResult(isFlotation ? "CpVolumePerCell" : "CpCellVolume", capacity / cells, When::always,
              Style::converted, "CF", "CF", "M3");
  writeResult(isFlotation ? "CpNumberCells" : "CpNumberItems", cells, When::always, Style::count,
              nullptr, nullptr, nullptr);
}

}  // namespace sizewright
