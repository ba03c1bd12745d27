#include <gtest/gtest.h>

#include "vessels/vessel_plant.h"

namespace sizewright {
namespace {

using D = VesselData;

struct ResultCase {
  const char* slot;
  double D::*field;  // in FEET, CF or FPM where there is a unit
  const char* units;
  const char* metricUnits;
  double perMetric;  // metric units in one customary unit
  bool horizontal;
  bool vertical;
};

constexpr double kM = 0.3048;
constexpr double kM3 = 0.028316846592;

constexpr ResultCase kResults[] = {
    {"CpLiquidVolume", &D::capacity, "CF", "M3", kM3, true, true},
    {"CpVesselDiameter", &D::ves_dia, "FEET", "M", kM, true, true},
    {"Process Vessel Height to Diameter Ratio", &D::ht_dia_ratio, "", "", 1, true, true},
    {"Residence Time", &D::res_time, "MINUTE", "MINUTE", 1, true, true},
    {"Separation factor", &D::entered_sep_factor, "", "", 1, true, true},
    {"Minimum vessel diameter", &D::min_ves_dia, "FEET", "M", kM, true, true},
    {"Design factor multiplier for disengagement velocity", &D::disengage_factor, "", "", 1, true,
     true},
    {"Average liquid particle diameter", &D::particle_dia, "FEET", "M", kM, true, true},
    {"CpTangentTangentLength", &D::ves_height, "FEET", "M", kM, true, false},
    {"CpDripLegDiameter", &D::boot_dia, "FEET", "M", kM, true, false},
    {"CpDripLegLength", &D::boot_ht, "FEET", "M", kM, true, false},
    {"Vapor area / cross sectional area", &D::r_vc, "", "", 1, true, false},
    {"Separation factor multiplier", &D::sep_factor_mult, "", "", 1, true, false},
    {"Minimum bootleg length", &D::min_boot_ht, "FEET", "M", kM, true, false},
    {"Minimum bootleg diameter", &D::min_boot_dia, "FEET", "M", kM, true, false},
    {"Bootleg liquid velocity", &D::boot_liq_velocity, "FPM", "M/MIN", kM, true, false},
    {"CpTangentTangentHeight", &D::ves_height, "FEET", "M", kM, false, true},
    {"Minimum disengagement height", &D::ht_dis, "FEET", "M", kM, false, true},
    {"Minimum height above the mist eliminator", &D::ht_hll, "FEET", "M", kM, false, true},
    {"Height of mist eliminator", &D::ht_me, "FEET", "M", kM, false, true},
    {"Minimum Ht. Btw Low and High Liquid Level Taps", &D::min_liq_ht, "FEET", "M", kM, false,
     true},
    {"Ht. Btw Inlet Nozzle and High Liquid Level Tap", &D::ht_btw_InNozz_HLLTap, "FEET", "M", kM,
     false, true},
    {"Ht. Btw Low Liquid Level Tap and Tangent Line", &D::ht_LLL_tangent, "FEET", "M", kM, false,
     true}};

// A drum of which every field is given.
PlantJson fullPlant(const char* category, bool metric) {
  PlantJson plant = vesselPlant(category, "CYLINDER");
  plant["units"] = metric ? "metric" : "customary";
  itemOf(plant)["exits"]["HEAVY LIQUID OUTLET"] = {"H"};
  return plant;
}

void fill(CVesObj& drum) {
  setForm(drum, {{"INLET STREAM 1", "F"},
                 {"OUTLET STREAM 1", "V"},
                 {"OUTLET STREAM 2", "L"},
                 {"OUTLET STREAM 3", "H"},
                 {"Separation factor", "0.3"},
                 {"Minimum vessel diameter", "2\nFEET"},
                 {"Design factor multiplier for disengagement velocity", "0.25"},
                 {"Minimum disengagement height", "1\nFEET"},
                 {"Minimum height above the mist eliminator", "2\nFEET"},
                 {"Height of mist eliminator", "3\nFEET"},
                 {"CpDripLegDiameter", "2\nFEET"}});
}

class DrumResults : public testing::TestWithParam<std::tuple<const char*, bool>> {};
INSTANTIATE_TEST_SUITE_P(EveryKind, DrumResults,
                         testing::Combine(testing::Values("DHT", "DVT"), testing::Bool()));

TEST_P(DrumResults, Are_written_row_by_row) {
  const auto& [category, metric] = GetParam();
  VesselAtHand drum(fullPlant(category, metric));
  fill(*drum.object);
  ASSERT_EQ(drum->Size(), 1);
  EXPECT_EQ(drum->SaveParameters(), 1);
  const bool horizontal = std::string(category) == "DHT";
  for (const ResultCase& row : kResults) {
    const bool expected = horizontal ? row.horizontal : row.vertical;
    ASSERT_EQ(drum.has(row.slot), expected) << row.slot;
    if (!expected) continue;
    const double value = drum.values().*row.field * (metric ? row.perMetric : 1);
    EXPECT_NEAR(drum.number(row.slot), value, 1e-9 * value) << row.slot;
    EXPECT_EQ(drum.units(row.slot), metric ? row.metricUnits : row.units) << row.slot;
  }
  EXPECT_EQ(drum.text("Vapor/Liquid Separator Sizing Method"), "Liquid Entrainment Method");
}

TEST(DrumDesign, Is_written_with_operating_temperature) {
  VesselAtHand drum(drumPlant());
  drum->Size();
  drum->SaveParameters();
  EXPECT_EQ(drum.number("CpOperatingTemperature"), 150);
  EXPECT_EQ(drum.units("CpOperatingTemperature"), "DEG F");
  EXPECT_NEAR(drum.number("CpDesignTemperature"), 200, 1e-9);
  EXPECT_NEAR(drum.number("CpDesignGaugePressure"), 75 - kStandardAtmosphere, 1e-9);
  EXPECT_EQ(drum.units("CpDesignGaugePressure"), "PSIG");
}

TEST(DrumDesign, Of_the_category_EVT_has_one_temperature) {
  PlantJson plant = drumPlant();
  itemOf(plant)["category"] = "EVT";
  VesselAtHand drum(plant);
  drum->Size();
  drum->SaveParameters();
  EXPECT_NEAR(drum.number("CpTemperature"), 200, 1e-9);
  EXPECT_FALSE(drum.has("CpOperatingTemperature"));
  EXPECT_FALSE(drum.has("CpDesignTemperature"));
  plant["units"] = "metric";
  VesselAtHand metric(plant);
  metric->Size();
  metric->SaveParameters();
  EXPECT_EQ(metric.units("CpTemperature"), "DEG K");
  EXPECT_NEAR(metric.number("CpTemperature"), (200 + 459.67) / 1.8, 1e-9);
  EXPECT_EQ(metric.units("CpDesignGaugePressure"), "KPA");
}

TEST(DrumDesign, Of_the_user_is_written_without_a_vacuum_rating) {
  PlantJson plant = drumPlant();
  projectOf(plant) = {{"CpAllowResize", "No"},
                      {"CpDesignGaugePressure", {40, "PSI"}},
                      {"CpDesignTemperature", {99, "DEG F"}}};
  for (const char* stream : {"F", "V", "L"}) slotsOf(plant, stream)["PRESSURE"] = {5, "PSI"};
  VesselAtHand drum(plant);
  drum->Size();
  drum->SaveParameters();
  EXPECT_EQ(drum.number("CpDesignTemperature"), 99);
  EXPECT_NEAR(drum.number("CpDesignGaugePressure"), 40 - kStandardAtmosphere, 1e-9);
  EXPECT_FALSE(drum.has("CpVacuumDesignGaugePressure"));
}

// --- Vacuum
// ---------------------------------------------------------------------------------------

struct VacuumCase {
  double pressure;  // PSI, operating
  double rule;      // PSIG, what the design rule gives
  double user;      // PSIG, 0 for none
  double written;   // PSIG, 0 for none
};

class DrumVacuum : public testing::TestWithParam<VacuumCase> {};
INSTANTIATE_TEST_SUITE_P(EveryBranch, DrumVacuum,
                         testing::Values(VacuumCase{14.595, -3, 0, 0},
                                         VacuumCase{14.585, -3, 0, -3}, VacuumCase{5, -3, -5, -5},
                                         VacuumCase{5, -3, -3, -3}, VacuumCase{5, -3, 4, -3},
                                         VacuumCase{5, -14.695, 0, -14.6},
                                         VacuumCase{5, 0, 0, -14.6},
                                         VacuumCase{5, -3, -20, -14.6}));

TEST_P(DrumVacuum, Is_rated) {
  PlantJson plant = drumPlant();
  const VacuumCase& row = GetParam();
  for (const char* stream : {"F", "V", "L"}) {
    slotsOf(plant, stream)["PRESSURE"] = {row.pressure, "PSI"};
  }
  plant["design rules"] = {{"pressure", {{{"value", row.rule}}}}};
  if (row.user != 0) recordOf(plant)["CpVacuumDesignGaugePressure"] = {row.user, "PSIG"};
  VesselAtHand drum(plant);
  drum->Size();
  drum->SaveParameters();
  ASSERT_EQ(drum.has("CpVacuumDesignGaugePressure"), row.written != 0);
  if (row.written == 0) return;
  EXPECT_NEAR(drum.number("CpVacuumDesignGaugePressure"), row.written, 1e-9);
  EXPECT_EQ(drum.units("CpVacuumDesignGaugePressure"), "PSIG");
}

TEST(DrumProgress, Tells_each_step_of_a_vertical_drum) {
  VesselAtHand drum(drumPlant());
  const auto lines = drum.progressOf([](CVesObj& object) {
    object.Size();
    object.SaveParameters();
  });
  std::vector<std::string> texts;
  for (const auto& [percent, text] : lines) texts.push_back(text);
  const std::vector<std::string> expected = {
      "Checking inlets..",
      "Checking exits...",
      "Beginning vessel design.",
      "Obtaining inlet stream(s).",
      "Obaining flow properties for all inlet stream fluid phases.",
      "Obtaining exit stream(s).",
      "Obaining flow properties for all exit stream fluid phases.",
      "Determining exit flow properties for individual phases.",
      "Calculating design temperature and pressure.",
      "Calculating vessel input parameters.",
      "Completed obtaining information from the simulator.",
      "Checking user specifications.",
      "Checking vessel configuration.",
      "Beginning vertical vessel design.",
      "Obtaining disengagement height from design criteria file.",
      "Obtained sizing parameters from design criteria file.",
      "Determining vessel diameter.",
      "Estimating diameter based on geometry.",
      "Estimating maximum vapor flow in the vessel.",
      "Calculating vessel diameter based on vapor flow.",
      "Checking user specified method for estimating design vapor velocity.",
      "Calculating vapor velocity based on liquid entrainment method.",
      "Calculating vessel diameter based on vapor velocity.",
      "Calculating vessel diameter based on L/D.",
      "Choosing the maximum value as vessel diameter.",
      "Obtained vessel diameter.",
      "Obtaining vessel height.",
      "Obtaining vapor disengagement height.",
      "Calculating overall height of the vessel.",
      "Estimating L/D.",
      "Obtained vessel capacity, length and diameter for vertical vessel.",
      "Rounding up main vessel dimensions.",
      "Rounding up diameter.",
      "Rounding up height.",
      "Determining vessel capacity.",
      "Completed vessel sizing...",
      "Writing results.",
      "Writing capacity.",
      "Writing diameter.",
      "Writing vessel height.",
      "Completed adding results."};
  EXPECT_EQ(texts, expected);
}

}  // namespace
}  // namespace sizewright
