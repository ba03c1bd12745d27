#include <algorithm>
#include <array>
#include <cmath>

#include "sizewright/host/criteria.h"
#include "sizewright/host/messages.h"
#include "sizewright/host/units.h"
#include "sizewright/vessels/vessel.h"

namespace sizewright {

namespace {

using D = VesselData;
using enum When;

constexpr double kVacuumLimit = 14.6;  // PSI

constexpr ResultRow<D> feet(SlotName slot, double D::*field) {
  return {slot, field, positive, Style::converted, "FEET", "FEET", "M"};
}

constexpr auto kCriteria = std::to_array<ResultRow<D>>({
    {"Process Vessel Height to Diameter Ratio", &D::ht_dia_ratio},
    {"Residence Time", &D::res_time, positive, Style::converted, "MINUTE", "MINUTE", "MINUTE"},
    {"Separation factor", &D::entered_sep_factor},
    feet("Minimum vessel diameter", &D::min_ves_dia),
});
constexpr auto kSeparation = std::to_array<ResultRow<D>>({
    {"Design factor multiplier for disengagement velocity", &D::disengage_factor},
    feet("Average liquid particle diameter", &D::particle_dia),
});
constexpr auto kBoot = std::to_array<ResultRow<D>>({
    feet("CpDripLegDiameter", &D::boot_dia),
    feet("CpDripLegLength", &D::boot_ht),
    {"Vapor area / cross sectional area", &D::r_vc},
    {"Separation factor multiplier", &D::sep_factor_mult},
    feet("Minimum bootleg length", &D::min_boot_ht),
    feet("Minimum bootleg diameter", &D::min_boot_dia),
    {"Bootleg liquid velocity", &D::boot_liq_velocity, positive, Style::converted, "FPM", "FPM",
     "M/MIN"},
});
constexpr auto kHeights = std::to_array<ResultRow<D>>({
    feet("Minimum disengagement height", &D::ht_dis),
    feet("Minimum height above the mist eliminator", &D::ht_hll),
    feet("Height of mist eliminator", &D::ht_me),
    feet("Minimum Ht. Btw Low and High Liquid Level Taps", &D::min_liq_ht),
    feet("Ht. Btw Inlet Nozzle and High Liquid Level Tap", &D::ht_btw_InNozz_HLLTap),
    feet("Ht. Btw Low Liquid Level Tap and Tangent Line", &D::ht_LLL_tangent),
});

void status(int percent, const char* text) {
  status_write(percent, 3, text);
}

}  // namespace

void CVesObj::writeLength(SlotName slot, double length) {
  writeResult(resolved(slot), length, positive, Style::converted, "FEET", "FEET", "M");
}

void CVesObj::writeVolume(SlotName slot, double volume) {
  writeResult(resolved(slot), volume, positive, Style::converted, "CF", "CF", "M3");
}

void CVesObj::proc_vs_write_results() {
  status(92, "Writing results.");
  status(92, "Writing capacity.");
  writeVolume("CpLiquidVolume", data().capacity);
  status(92, "Writing diameter.");
  writeLength(slotOf("Diameter"), data().ves_dia);
  write(kCriteria);
  if (component != nullptr && !data().sep_method.empty()) {
    component->SetValue("Vapor/Liquid Separator Sizing Method", data().sep_method, 0);
  }
  write(kSeparation);
  if (isHorizontal()) {
    status(92, "Writing vessel length.");
    writeLength("CpTangentTangentLength", data().ves_height);
    status(92, "Writing drip leg dimensions.");
    write(kBoot);
  } else {
    status(92, "Writing vessel height.");
    writeLength(slotOf("vessel t-t height"), data().ves_height);
    write(kHeights);
  }
  writeDesignConditions();
  if (!data().design_from_user) writeVacuum(0.01);
  status(95, "Completed adding results.");
}

void CVesObj::writeDesignConditions() {
  const auto writeTemperature = [this](const char* slot, double value, const char* metric) {
    writeResult(slot, value, always, Style::converted, "DEG F", "DEG F", metric);
  };
  if (categoryIs({"EVT"})) {
    writeTemperature("CpTemperature", data().design_temp, "DEG K");
  } else {
    writeTemperature("CpOperatingTemperature", data().oper_temp, "DEG C");
    writeTemperature("CpDesignTemperature", data().design_temp, "DEG C");
  }
  writeGaugePressure("CpDesignGaugePressure", data().design_press);
}

// A vessel that runs more than `margin` PSI below atmospheric pressure is designed for vacuum.
void CVesObj::writeVacuum(double margin) {
  const double operating = data().oper_press;
  if (!(operating >= 0.0) || !(kVacuumLimit - operating > margin)) return;
  const double user =
      readOr(component.get(), "CpVacuumDesignGaugePressure", unitType == 1 ? "PSI" : "PSIG", 0.0);
  double design = 0.0;
  pxl_calculate_design_press(equipFullCode, operating, &design, "PSI");
  design = converted(design, "PSI", "PSIG");
  double vacuum = std::min(design, user);
  if (std::abs(vacuum) > kVacuumLimit || vacuum == 0.0) vacuum = -kVacuumLimit;
  writeResult("CpVacuumDesignGaugePressure", vacuum, always, Style::converted, "PSIG", "PSIG",
              "KPA");
}

}  // namespace sizewright
