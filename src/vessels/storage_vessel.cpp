#include <algorithm>
#include <array>

#include "sizewright/frame/stream_values.h"
#include "sizewright/host/messages.h"
#include "sizewright/host/units.h"
#include "sizewright/vessels/vessel.h"

namespace sizewright {

namespace {

using D = VesselData;

constexpr double kPi = 3.1415926536;
constexpr double kCubeRoot = 0.33;
constexpr double kSquareRoot = 0.5;

constexpr const char* kNoCapacity =
    "Vessel capacity cannot be calculated. Please check stream flows.";
constexpr const char* kNoDiameter =
    "Vessel diameter cannot be calculated. Please check stream flows.";
constexpr const char* kNoHeight = "Vessel height cannot be calculated. Please check stream flows.";

constexpr auto kCriteria = std::to_array<ResultRow<D>>({
    {"Storage Vessel Height to Diameter Ratio", &D::ht_dia_ratio},
    {"Holding Hours in a Day", &D::holding_hours},
    {"Number of Holding Days", &D::holding_days},
    {"Vapor Free Space (% of Total Storage Vessel Volume)", &D::vapor_free_space},
});

void status(int percent, const char* text) {
  status_write(percent, 3, text);
}

void roundUp(double& size) {
  size = compiler_round_up_by_half(size);
}

}  // namespace

void CVesObj::setHoldingDefaults() {
  setIfNotPositive(data().holding_days, 30.0);
  setIfNotPositive(data().holding_hours, 24.0);
}

double CVesObj::holdingMinutes() const {
  return values().holding_days * values().holding_hours * 60.0;
}

double CVesObj::largerLiquidFlow() const {
  return std::max(values().total_inlet_liq_vol_flow, values().total_exit_light_liq_vol_flow);
}

// --- Cylindrical tanks --------------------------------------------------------------------------

int CVesObj::stor_vs() {
  VesselData& tank = data();
  status(51, "Checking user specifications.");
  const bool hasDiameter = tank.ves_dia > 0.0;
  const bool hasHeight = tank.ves_height > 0.0;
  setIfNotPositive(tank.ht_dia_ratio, 0.5);
  setHoldingDefaults();
  if (!(tank.vapor_free_space > 0.0) || tank.vapor_free_space >= 100.0) {
    tank.vapor_free_space = 10.0;
  }
  status(53, "Obtaining holding time.");
  tank.res_time = holdingMinutes();
  status(55, "Determining vapor free space.");
  status(60, "Beginning detailed sizing of the equipment.");
  status(61, "Determining vessel volume.");
  if (!(tank.capacity > 0.0)) {
    tank.capacity = hasDiameter && hasHeight
                        ? determine_cylinder_capacity(tank.ves_dia, tank.ves_height)
                        : proc_ves_determine_liq_vol(tank.res_time, largerLiquidFlow()) *
                              (100.0 / (100.0 - tank.vapor_free_space));
  }
  if (!(tank.capacity > 0.0)) return refuse(kNoCapacity);

  status(65, "Obtaining height and diameter of the equipment.");
  status(66, "Obtaining diameter.");
  if (!hasDiameter) {
    tank.ves_dia =
        tank.ves_height == 0.0
            ? compiler_pow_double(tank.capacity * 4.0 / (tank.ht_dia_ratio * kPi), kCubeRoot)
            : compiler_pow_double(tank.capacity * 4.0 / (tank.ves_height * kPi), kSquareRoot);
  }
  if (!(tank.ves_dia > 0.0)) return refuse(kNoDiameter);
  status(67, "Obtaining height.");
  if (!hasHeight) {
    tank.ves_height = cylinderHeight(tank.capacity, compiler_pow_double(tank.ves_dia, 2.0));
  }
  if (!(tank.ves_height > 0.0)) return refuse(kNoHeight);
  status(68, "Checking height over diameter ratio for vessel.");
  if (!hasDiameter && !hasHeight) {
    status(75, "Rounding up height and diameter.");
    roundUp(tank.ves_height);
    roundUp(tank.ves_dia);
    status(80, "Calculating vessel capacity.");
    tank.capacity = determine_cylinder_capacity(tank.ves_dia, tank.ves_height);
  }
  return 1;
}

// --- Spheres and spheroids ----------------------------------------------------------------------
//
// kept: what is given is told by "above 0" before sizing and by "not exactly 0" while sizing, so
// that a negative dimension stands and yet counts as not given.

int CVesObj::st_sp() {
  VesselData& sphere = data();
  status(51, "Checking user specifications.");
  const bool hasDiameter = sphere.ves_dia > 0.0;
  setHoldingDefaults();
  status(55, "Determining liquid holding time.");
  const double holding = holdingMinutes();
  status(60, "Beginning detailed sizing of the equipment.");
  status(61, "Determining vessel volume.");
  if (sphere.capacity == 0.0) {
    sphere.capacity = hasDiameter ? st_sp_calculate_sphere_volume(sphere.ves_dia)
                                  : proc_ves_determine_liq_vol(holding, largerLiquidFlow());
  }
  if (sphere.capacity == 0.0) return refuse(kNoCapacity);
  status(65, "Obtaining diameter of the equipment.");
  if (sphere.ves_dia == 0.0) {
    sphere.ves_dia = compiler_pow_double(sphere.capacity * 6.0 / kPi, kCubeRoot);
  }
  if (sphere.ves_dia == 0.0) return refuse(kNoDiameter);
  status(75, "Rounding up diameter.");
  status(80, "Calculating vessel capacity.");
  if (!hasDiameter) {
    roundUp(sphere.ves_dia);
    sphere.capacity = st_sp_calculate_sphere_volume(sphere.ves_dia);
  }
  return 1;
}

int CVesObj::spheroid() {
  VesselData& tank = data();
  status(51, "Checking user specifications.");
  const bool hasDiameter = tank.ves_dia > 0.0;
  const bool hasHeight = tank.ves_height > 0.0;
  status(52, "Determining height over diameter ratio.");
  setIfNotPositive(tank.ht_dia_ratio, 0.4);
  status(55, "Determining liquid holding time.");
  setHoldingDefaults();
  const double holding = holdingMinutes();
  status(60, "Beginning detailed sizing of the equipment.");
  status(61, "Determining vessel volume.");
  if (tank.capacity == 0.0) {
    tank.capacity = hasDiameter && hasHeight
                        ? spheroid_cal_vol(tank.ves_dia, tank.ves_height)
                        : proc_ves_determine_liq_vol(holding, largerLiquidFlow());
  }
  if (tank.capacity == 0.0) return refuse(kNoCapacity);

  status(65, "Obtaining height and diameter of the equipment.");
  status(66, "Obtaining diameter.");
  status(67, "Obtaining diameter.");
  if (tank.ves_dia == 0.0) {
    tank.ves_dia =
        tank.ves_height == 0.0
            ? compiler_pow_double(
                  tank.capacity * 6.0 / (compiler_pow_double(tank.ht_dia_ratio, 2.0) * kPi),
                  kCubeRoot)
            : tank.capacity / (tank.ves_height * tank.ves_height) * 1.909859317096539;
  }
  if (tank.ves_dia == 0.0) return refuse(kNoDiameter);
  status(67, "Obtaining height.");
  if (tank.ves_height == 0.0) {
    tank.ves_height = compiler_pow_double(tank.capacity * 6.0 / kPi / tank.ves_dia, kSquareRoot);
  }
  if (tank.ves_height == 0.0) return refuse(kNoHeight);
  status(75, "Rounding up height and diameter.");
  status(80, "Calculating vessel capacity.");
  if (!hasDiameter && !hasHeight) {
    roundUp(tank.ves_height);
    roundUp(tank.ves_dia);
    tank.capacity = spheroid_cal_vol(tank.ves_dia, tank.ves_height);
  }
  return 1;
}

// --- Results ------------------------------------------------------------------------------------

void CVesObj::writeStorageCriteria() {
  write(kCriteria);
}

void CVesObj::stor_vs_write_results() {
  writeStorageCriteria();
  writeLength("CpVesselDiameter", data().ves_dia);
  writeLength("CpVesselHeight", data().ves_height);
  writeTankVolume();
  if (!data().design_from_user) {
    writeDesignConditions();
    writeVacuum(0.0);
  }
  status(92, "Completed writing results.");
}

void CVesObj::writeTankVolume() {
  if (itemIs({"STORAGE"})) {
    status(90, "Writing capacity units.");
    const char* units = unitType == 0 ? "GALLONS" : "M3";
    if (component != nullptr) component->SetValue("CpVolumeUnits", units, 0);
    status(90, "Writing capacity.");
    // kept: in place, so that results written twice are converted twice
    data().capacity = converted(data().capacity, "CF", units);
    writeResult("CpLiquidVolume", data().capacity, When::positive, Style::plain, nullptr, nullptr,
                nullptr);
  } else if (itemIs({"GAS HOLDER"})) {
    status(90, "Writing capacity.");
    writeVolume("CpGasVolume", data().capacity);
  } else if (itemIs({"LIVE BTM"})) {
    status(90, "Writing capacity.");
    writeVolume("CpSolidVolume", data().capacity);
  } else {
    status(90, "Writing volume.");
    writeVolume("CpLiquidVolume", data().capacity);
  }
}

void CVesObj::st_sp_write_results() {
  status(90, "Writing results.");
  writeStorageCriteria();
  status(90, "Writing capacity.");
  writeVolume("CpLiquidVolume", data().capacity);
  status(90, "Writing diameter.");
  writeLength("CpVesselDiameter", data().ves_dia);
  writeDesignConditions();
  if (!data().design_from_user) writeVacuum(0.0);
  status(90, "Completed writing results.");
}

void CVesObj::spheroid_write_results() {
  status(88, "Writing results.");
  writeStorageCriteria();
  status(89, "Writing capacity.");
  writeVolume("CpLiquidVolume", data().capacity);
  status(90, "Writing diameter.");
  writeLength("CpVesselDiameter", data().ves_dia);
  status(91, "Writing height.");
  writeLength("CpVesselHeight", data().ves_height);
  writeDesignConditions();
  if (!data().design_from_user) writeVacuum(0.0);
  status(92, "Completed writing results.");
}

}  // namespace sizewright
