#include <array>

#include "sizewright/frame/stream_values.h"
#include "sizewright/host/criteria.h"
#include "sizewright/host/text.h"
#include "sizewright/host/units.h"
#include "sizewright/vessels/vessel.h"

namespace sizewright {

namespace {

using D = VesselData;
using enum From;

/// A row of the agitator table.
struct AgitatorRow {
  std::string_view type;
  double upper;
  double lower;
  double third;  // 0: left as it stands
  const char* description;
};

constexpr auto kAgitators = std::to_array<AgitatorRow>({
    {"DIRECT", 3.0, 0.25, 1800.0, "Portable Direct Drive Agitator"},
    {"FIXED PROP", 100.0, 2.0, 1800.0, "Fixed Propeller Gear Motor Type Agitator"},
    {"GEAR DRIVE", 5.0, 0.25, 400.0, "Portable Gear Drive Agitator"},
    {"MECH SEAL", 200.0, 2.0, 0.0, "Agitator, Mech-Seal, Variable Diameter"},
    {"PORT PROP", 7.5, 0.33, 1800.0, "Portable Propeller Agitator"},
});
constexpr AgitatorRow kOtherAgitator = {"", 5.0, 0.75, 400.0,
                                        "Agitator-Fixed, Geared, Anchor, Stuff. Box"};

const AgitatorRow& agitatorOf(std::string_view type) {
  for (const AgitatorRow& row : kAgitators) {
    if (sameWord(type, row.type)) return row;
  }
  return kOtherAgitator;
}

void chooseAgitator(AgitatorData& agitator) {
  const AgitatorRow& row = agitatorOf(agitator.agitator_type);
  agitator.agitator_upper_value = row.upper;
  agitator.agitator_lower_value = row.lower;
  if (row.third > 0.0) agitator.agitator_third_value = row.third;
  agitator.agitator_desc = row.description;
}

// Sources of the user's dimensions, by priority.
constexpr auto kGasCapacity = std::to_array<SourceRow<D>>({
    {&D::capacity, component, "CpGasVolume", "CF"},
    {&D::capacity, simObject, "CAPACITY", "CF"},
});
constexpr auto kLiquidCapacity = std::to_array<SourceRow<D>>({
    {&D::capacity, component, "CpLiquidVolume", "CF"},
    {&D::capacity, simObject, "CAPACITY", "CF"},
});
constexpr auto kDimensions = std::to_array<SourceRow<D>>({
    {&D::capacity, component, "CAPACITY (SIM)", "CF"},
    {&D::capacity, simObject, "CAPACITY (SIM)", "CF"},
    {&D::ves_dia, component, slotOf("Diameter"), "FEET"},
    {&D::ves_dia, simObject, "Diameter", "FEET"},
    {&D::ves_dia, component, "DIAMETER (SIM)", "FEET"},
    {&D::ves_dia, simObject, "DIAMETER (SIM)", "FEET"},
    {&D::ves_height, component, slotOf("vessel t-t height"), "FEET"},
    {&D::ves_height, simObject, "vessel t-t height", "FEET"},
    {&D::ves_height, component, "CpTangentTangentLength", "FEET"},
    {&D::ves_height, simObject, "vessel t-t length", "FEET"},
    {&D::ves_height, component, "CpVesselHeight", "FEET"},
    {&D::ves_height, simObject, "height", "FEET"},
    {&D::boot_dia, component, "CpDripLegDiameter", "FEET"},
    {&D::boot_dia, simObject, "Diameter of drip leg", "FEET"},
    {&D::boot_ht, component, "CpDripLegLength", "FEET"},
    {&D::boot_ht, simObject, "Length of drip leg", "FEET"},
});

constexpr const char* kProcessRatio = "Process Vessel Height to Diameter Ratio";
constexpr const char* kStorageRatio = "Storage Vessel Height to Diameter Ratio";
constexpr const char* kMethod = "Vapor/Liquid Separator Sizing Method";
constexpr const char* kEntrainment = "Liquid Entrainment Method";

// A count cut to a whole number; 0 for what is none.
int wholeCount(double number) {
  return number >= 0.0 && number < 1e9 ? static_cast<int>(number) : 0;
}

// What the project's record and the design criteria give, under the same names.
constexpr auto kDesignPressure = std::to_array<CriterionRow<D>>({
    {"CpDesignGaugePressure", &D::design_press, "PSI"},
});
constexpr auto kRatio = std::to_array<CriterionRow<D>>({
    {kProcessRatio, &D::ht_dia_ratio},
});
constexpr auto kResidence = std::to_array<CriterionRow<D>>({
    {"Residence Time", &D::res_time, "MINUTE", 10.0},
});
constexpr auto kSeparation = std::to_array<CriterionRow<D>>({
    {"Separation factor", &D::kv_factor},
    {"Minimum vessel diameter", &D::min_ves_dia, "FEET"},
    {"Average liquid particle diameter", &D::particle_dia, "FEET", 0.0125},
});
// kept: the zero for horizontal drums leaves them without a velocity by bubble disengagement
constexpr auto kHorizontalDisengagement = std::to_array<CriterionRow<D>>({
    {"Design factor multiplier for disengagement velocity", &D::disengage_factor, "", 0.0},
});
constexpr auto kDisengagement = std::to_array<CriterionRow<D>>({
    {"Design factor multiplier for disengagement velocity", &D::disengage_factor, "", 0.5},
});
constexpr auto kHorizontal = std::to_array<CriterionRow<D>>({
    {"Vapor area / cross sectional area", &D::r_vc, "", 0.2},
    {"Separation factor multiplier", &D::sep_factor_mult, "", 1.25},
});
constexpr auto kBoot = std::to_array<CriterionRow<D>>({
    {"Minimum bootleg length", &D::min_boot_ht, "FEET", 3.0},
    {"Minimum bootleg diameter", &D::min_boot_dia, "FEET", 1.5},
    {"Bootleg liquid velocity", &D::boot_liq_velocity, "FPM", 0.5},
});
constexpr auto kDisengagementHeight = std::to_array<CriterionRow<D>>({
    {"Minimum disengagement height", &D::ht_dis, "FEET"},
});
constexpr auto kAgitatedDisengagementHeight = std::to_array<CriterionRow<D>>({
    {"Minimum disengagement height", &D::ht_dis, "FEET", 1.0},
});
constexpr auto kMistEliminator = std::to_array<CriterionRow<D>>({
    {"Minimum height above the mist eliminator", &D::ht_hll, "FEET"},
    {"Height of mist eliminator", &D::ht_me, "FEET"},
});
// Metric projects have round defaults of their own.
std::array<CriterionRow<D>, 3> levelRows(bool metric) {
  const auto level = [metric](double feet, double millimetres) {
    return metric ? converted(millimetres, "MM", "FEET") : feet;
  };
  return {{{"Minimum Ht. Btw Low and High Liquid Level Taps", &D::min_liq_ht, "FEET",
            level(4.0, 1250.0)},
           {"Ht. Btw Inlet Nozzle and High Liquid Level Tap", &D::ht_btw_InNozz_HLLTap, "FEET",
            level(2.0, 600.0)},
           {"Ht. Btw Low Liquid Level Tap and Tangent Line", &D::ht_LLL_tangent, "FEET",
            level(0.5, 150.0)}}};
}
constexpr auto kStorageRatioRow = std::to_array<CriterionRow<D>>({
    {kStorageRatio, &D::ht_dia_ratio, "", 0.5},
});
constexpr auto kSpheroidRatioRow = std::to_array<CriterionRow<D>>({
    {kStorageRatio, &D::ht_dia_ratio, "", 0.4},
});
constexpr auto kHolding = std::to_array<CriterionRow<D>>({
    {"Holding Hours in a Day", &D::holding_hours, "", 24.0},
    {"Number of Holding Days", &D::holding_days, "", 30.0},
    {"Vapor Free Space (% of Total Storage Vessel Volume)", &D::vapor_free_space, "", 10.0},
});

}  // namespace

// --- User dimensions ----------------------------------------------------------------------------

void CVesObj::vs_main_get_user_input_from_add_module_screen() {
  if (itemIs({"STORAGE"})) {
    readTankCapacity();
  } else if (itemIs({"GAS HOLDER"})) {
    read(kGasCapacity);
  } else {
    read(kLiquidCapacity);
  }
  read(kDimensions);
}

// The number and the unit of a tank's capacity stand in slots of their own.
void CVesObj::readTankCapacity() {
  if (data().capacity > 0.0) return;
  readSource(data().capacity, From::component, "CpLiquidVolumeGallonsBarrels", nullptr);
  readSource(data().capacity, From::simObject, "CAPACITY", nullptr);
  SlotText units;
  if (lib_get_value_c_api(component.get(), "CpVolumeUnits", units.data(), "inherit") == 0 &&
      lib_get_value_c_api(simObject.get(), "Capacity units", units.data(), "inherit") == 0) {
    units = unitType == 0 ? "GALLONS" : "M3";
  }
  data().capacity = converted(data().capacity, units, "CF");
}

// --- Process information ------------------------------------------------------------------------

void CVesObj::vsinp_proc_vs() {
  readProject(kDesignPressure);
  readProject(kRatio);
  readProject(kResidence);
  readProject(kSeparation);
  readProject(kDisengagement);
  if (data().sep_method.empty()) {
    SlotText method;
    if (projectObject->GetValue(kMethod, method.data()) != 0) data().sep_method = method.view();
  }
  if (isHorizontal()) {
    vsinp_get_horizontal();
  } else {
    vsinp_get_vertical();
  }
}

void CVesObj::vsinp_get_horizontal() {
  readProject(kHorizontal);
  readProject(kBoot);
}

void CVesObj::vsinp_get_vertical() {
  readProject(kDisengagementHeight);
  readProject(kMistEliminator);
  readProject(levelRows(unitType != 0));
}

void CVesObj::vsinp_storage() {
  readProject(kDesignPressure);
  readProject(kStorageRatioRow);
  readProject(kHolding);
}

FixedText<128> CVesObj::projectText(const char* slot) const {
  SlotText text;
  projectObject->GetValue(slot, text.data());
  return {text.view()};
}

void CVesObj::vsinp_agvs() {
  readProject(kDesignPressure);
  readProject(kRatio);
  readProject(kResidence);
  readProject(kDisengagementHeight);
  AgitatorData& agitator = data().agitator;
  double impellers = 0.0;
  projectObject->GetValue("CpNumberImpellers", impellers, nullptr);
  agitator.num_impellers = wholeCount(impellers);
  agitator.driver_type = projectText("CpDriverType");
  agitator.impeller_type = projectText("CpImpellerType");
  agitator.agitator_type = projectText("Agitator Type");
}

// --- Design criteria ----------------------------------------------------------------------------

double CVesObj::vsinp_proc_vs_determine_ht_dia_ratio(const char* name,
                                                     double designPressure) const {
  double ratio = 0.0;
  if (GetValueFromDesCriteria(name, ratio, "") != 0) return ratio;
  if (designPressure > 500.0) return 5.0;
  return designPressure > 250.0 ? 4.0 : 3.0;
}

void CVesObj::vsinp_proc_vs_get_des() {
  if (data().ht_dia_ratio == 0.0) {
    data().ht_dia_ratio = vsinp_proc_vs_determine_ht_dia_ratio(kProcessRatio, data().design_press);
  }
  readCriteria(kResidence);
  readCriteria(kSeparation);
  if (isHorizontal()) {
    readCriteria(kHorizontal);
    readCriteria(kHorizontalDisengagement);
  } else {
    setIfNotPositive(data().r_vc, 1.0);
    setIfNotPositive(data().sep_factor_mult, 1.0);
    readCriteria(kDisengagement);
  }
  if (data().sep_method.empty()) {
    CriterionText method;
    data().sep_method =
        GetValueFromDesCriteria(kMethod, method) != 0 ? method.view() : kEntrainment;
  }
  readCriteria(kBoot);
  readCriteria(kDisengagementHeight);
  readCriteria(kMistEliminator);
  readCriteria(levelRows(unitType != 0));
}

void CVesObj::vsinp_storage_get_des() {
  if (itemIs({"SPHEROID"})) {
    readCriteria(kSpheroidRatioRow);
  } else {
    readCriteria(kStorageRatioRow);
  }
  readCriteria(kHolding);
}

void CVesObj::vsinp_agvs_get_des() {
  if (!(data().ht_dia_ratio > 0.0)) {
    data().ht_dia_ratio = vsinp_proc_vs_determine_ht_dia_ratio(kProcessRatio, data().design_press);
  }
  readCriteria(kResidence);
  readCriteria(kAgitatedDisengagementHeight);
  AgitatorData& agitator = data().agitator;
  if (agitator.num_impellers < 1) agitator.num_impellers = 1;
  if (agitator.driver_type.empty()) agitator.driver_type = "STD";
  if (agitator.impeller_type.empty()) agitator.impeller_type = "T6FB";
  if (agitator.agitator_type.empty()) {
    CriterionText type;
    agitator.agitator_type =
        GetValueFromDesCriteria("Agitator Type", type) != 0 ? type.view() : "ANCHOR";
  }
  chooseAgitator(agitator);
}

}  // namespace sizewright
