#include "vessels/sized_vessel.h"

namespace sizewright {
namespace {

using Plant = PlantJson;

constexpr double kHeld = 200;  // CF of liquid in ten minutes

Plant mixerPlant(const char* item = "MIXER", const char* category = "DAT") {
  return sizingPlant(category, item);
}
double diameterOf(double capacity, double ratio) {
  return std::pow(capacity * 4 / (ratio * kCirclePi), 0.33);
}

// --- Sizing -------------------------------------------------------------------------------------

TEST(AgitatedVessel, Holds_the_residence_time_below_a_foot_of_vapor) {
  for (const char* category : {"DAT", "EAT", "dat"}) {
    for (const char* item : {"MIXER", "SPHERE", "STORAGE"}) {  // the category decides
      SizedVessel vessel(mixerPlant(item, category));
      EXPECT_EQ(vessel->Size(), 1);
      const double diameter = diameterOf(kHeld, 3);  // 4.33
      EXPECT_EQ(vessel.values().ves_dia, 4.5) << category << ' ' << item;
      EXPECT_EQ(vessel.values().ves_dia, roundedUp(diameter));
      EXPECT_NEAR(kHeld / cylinderOf(diameter, 1), 13.58, 0.005);
      EXPECT_EQ(vessel.values().ves_height, 15);
      expectClose(vessel.values().capacity, cylinderOf(4.5, 15));
      EXPECT_EQ(vessel.errors(), Texts{});
      EXPECT_EQ(vessel.warnings(), Texts{});
    }
  }
}

TEST(AgitatedVessel, Reports_its_progress) {
  SizedVessel vessel(mixerPlant());
  EXPECT_EQ(vessel.sizingProgress(), (SizedVessel::Progress{
                                         {55, "Obtaining agitator information."},
                                         {60, "Obtained agitator information."},
                                         {61, "Beginning vessel sizing."},
                                         {61, "Checking user specifications."},
                                         {67, "Estimating vessel volume."},
                                         {70, "Obtaining diameter."},
                                         {71, "Obtaining height."},
                                         {72, "Adding extra space for vapor disengagement."},
                                         {74, "Rounding up height and diameter."},
                                         {75, "Determined vessel height and diameter."},
                                     }));
}

TEST(AgitatedVessel, Follows_the_criteria) {
  Plant plant = mixerPlant();
  criteriaOf(plant) = {{"Process Vessel Height to Diameter Ratio", 1.2},
                       {"Residence Time", {30, "MINUTE"}},
                       {"Minimum disengagement height", {2.2, "FEET"}}};
  SizedVessel vessel(plant);
  EXPECT_EQ(vessel->Size(), 1);
  const double diameter = diameterOf(3 * kHeld, 1.2);
  EXPECT_EQ(vessel.values().ves_dia, roundedUp(diameter));
  EXPECT_EQ(vessel.values().ves_height, roundedUp(3 * kHeld / cylinderOf(diameter, 1) + 2.2));
}

TEST(AgitatedVessel, Holds_the_greater_of_what_comes_and_what_leaves) {
  struct Row {
    double leaves;  // CF/H, where 1,200 come
    double counts;
  };
  for (const Row& row : {Row{600, 1200}, Row{1200, 1200}, Row{3000, 3000}}) {
    Plant plant = mixerPlant();
    setPhase(plant, "L", "LIQUID", row.leaves * 50, 50);
    SizedVessel vessel(plant);
    vessel.data().ves_dia = 6;
    EXPECT_EQ(vessel->Size(), 1);
    expectClose(vessel.values().ves_height, row.counts / 6 / cylinderOf(6, 1) + 1);
  }
}

TEST(AgitatedVessel, Of_a_user_height_has_neither_vapor_space_nor_rounding) {
  SizedVessel vessel(mixerPlant());
  vessel.data().ves_height = 10.3;
  EXPECT_EQ(vessel->Size(), 1);
  EXPECT_EQ(vessel.values().ves_height, 10.3);
  const double diameter = diameterOf(kHeld, 3);  // the height does not count
  expectClose(vessel.values().ves_dia, diameter);
  expectClose(vessel.values().capacity, cylinderOf(diameter, 10.3));
  for (const auto& [percent, text] : vessel.plant.progress()) {
    EXPECT_NE(text, "Adding extra space for vapor disengagement.");
  }
}

TEST(AgitatedVessel, Of_a_user_diameter_has_the_vapor_space_but_no_rounding) {
  SizedVessel vessel(mixerPlant());
  vessel.data().ves_dia = 5.3;
  EXPECT_EQ(vessel->Size(), 1);
  EXPECT_EQ(vessel.values().ves_dia, 5.3);
  const double height = kHeld / cylinderOf(5.3, 1) + 1;
  expectClose(vessel.values().ves_height, height);
  expectClose(vessel.values().capacity, cylinderOf(5.3, height));
}

TEST(AgitatedVessel, Replaces_a_user_capacity_by_the_volume_of_its_dimensions) {
  SizedVessel vessel(mixerPlant());
  vessel.data().capacity = 400;
  EXPECT_EQ(vessel->Size(), 1);
  const double diameter = diameterOf(400, 3);  // 5.44
  EXPECT_EQ(vessel.values().ves_dia, 5.5);
  EXPECT_EQ(vessel.values().ves_height, roundedUp(400 / cylinderOf(diameter, 1) + 1));
  expectClose(vessel.values().capacity, cylinderOf(5.5, vessel.values().ves_height));

  SizedVessel given(mixerPlant());
  given.data().capacity = 400;
  given.data().ves_dia = 6.1;
  given.data().ves_height = 9.7;
  EXPECT_EQ(given->Size(), 1);
  expectClose(given.values().capacity, cylinderOf(6.1, 9.7));
}

TEST(AgitatedVessel, Is_refused_without_a_volume_a_diameter_or_a_height) {
  Plant dry = mixerPlant();
  removeLiquid(dry);
  Plant withoutRatio = mixerPlant();
  criteriaOf(withoutRatio)["Process Vessel Height to Diameter Ratio"] = -1;
  struct Row {
    Plant plant;
    double diameter;
    const char* error;
  };
  for (const Row& row : {Row{dry, 0, kNoCapacity}, Row{withoutRatio, 0, kNoDiameter},
                         Row{mixerPlant(), 1e200, kNoHeight}}) {
    for (const int interactive : {1, 0}) {
      SizedVessel vessel(row.plant, interactive);
      vessel.data().ves_dia = row.diameter;
      vessel.expectRefusal(row.error, interactive != 0);
    }
  }
}

// --- Results ------------------------------------------------------------------------------------

struct KnownMixer : SizedVessel {
  explicit KnownMixer(const Plant& json) : SizedVessel(json) {
    data().ves_dia = 10;
    data().ves_height = 20;
    EXPECT_EQ(object->Size(), 1);
  }
};

TEST(AgitatedResults, Hold_criteria_dimensions_and_volume) {
  struct Row {
    const char* item;
    const char* height;
  };
  for (const Row& row : {Row{"MIXER", "CpTangentTangentHeight"}, Row{"OFF MACH", "CpVesselHeight"},
                         Row{"MACH PULP", "CpVesselHeight"}}) {
    KnownMixer vessel(mixerPlant(row.item));
    EXPECT_EQ(vessel.progressOf([](CVesObj& object) { object.SaveParameters(); })[0],
              (std::pair<int, std::string>{91, "Writing results to the file Please wait..."}));
    EXPECT_DOUBLE_EQ(vessel.number("Residence Time"), 10);
    EXPECT_EQ(vessel.units("Residence Time"), "MINUTE");
    EXPECT_DOUBLE_EQ(vessel.number("Minimum disengagement height"), 1);
    EXPECT_EQ(vessel.units("Minimum disengagement height"), "FEET");
    EXPECT_DOUBLE_EQ(vessel.number("CpVesselDiameter"), 10);
    EXPECT_EQ(vessel.units("CpVesselDiameter"), "FEET");
    EXPECT_DOUBLE_EQ(vessel.number(row.height), 20) << row.item;
    expectClose(vessel.number("CpLiquidVolume"), cylinderOf(10, 20));
    EXPECT_EQ(vessel.units("CpLiquidVolume"), "CF");
  }
}

TEST(AgitatedResults, Leave_out_what_is_not_positive) {
  SizedVessel vessel(mixerPlant());
  vessel.data().ves_dia = -1;
  vessel->SaveParameters();
  for (const char* slot : {"Residence Time", "Minimum disengagement height", "CpVesselDiameter",
                           "CpTangentTangentHeight", "CpLiquidVolume"}) {
    EXPECT_FALSE(vessel.has(slot)) << slot;
  }
}

TEST(AgitatedResults, Hold_design_conditions_without_the_operating_temperature) {
  for (const char* category : {"DAT", "EAT"}) {
    KnownMixer vessel(mixerPlant("MIXER", category));
    vessel->SaveParameters();
    EXPECT_DOUBLE_EQ(vessel.number("CpDesignTemperature"), kDesignTemperature);
    EXPECT_EQ(vessel.units("CpDesignTemperature"), "DEG F");
    expectClose(vessel.number("CpDesignGaugePressure"), kDesignGauge);
    EXPECT_EQ(vessel.units("CpDesignGaugePressure"), "PSIG");
    EXPECT_FALSE(vessel.has("CpOperatingTemperature"));
    EXPECT_FALSE(vessel.has("CpTemperature"));
    EXPECT_FALSE(vessel.has(kVacuum));
  }
}

TEST(AgitatedResults, Leave_design_conditions_of_the_user_alone) {
  Plant plant = mixerPlant();
  setUserDesign(plant);
  setPressure(plant, 10);
  KnownMixer vessel(plant);
  vessel->SaveParameters();
  for (const char* slot : {"CpDesignTemperature", "CpDesignGaugePressure", kVacuum}) {
    EXPECT_FALSE(vessel.has(slot)) << slot;
  }
}

TEST(AgitatedResults, Hold_a_vacuum_from_just_below_14_6_PSI_on) {
  for (const double pressure : {14.599, 14.6, 2.0}) {
    Plant plant = mixerPlant();
    setPressure(plant, pressure);
    KnownMixer vessel(plant);
    vessel->SaveParameters();
    EXPECT_EQ(vessel.has(kVacuum), pressure < 14.6) << pressure;
    if (vessel.has(kVacuum)) {
      EXPECT_DOUBLE_EQ(vessel.number(kVacuum), -14.6);
    }
  }
}

// --- Cells --------------------------------------------------------------------------------------

struct CellRow {
  double capacity;
  int cells;
  double volume;
};

TEST(Cells, Hold_at_most_1500_CF_each) {
  for (const CellRow& row : {
           CellRow{1, 1, 1},
           CellRow{1499.9, 1, 1499.9},
           CellRow{1500, 1, 1500},
           CellRow{1500.001, 2, 750.0005},
           CellRow{1501, 2, 750.5},
           CellRow{3000, 2, 1500},
           CellRow{3000.6, 3, 1000.2},
           CellRow{15e6, 10000, 1500},
       }) {
    for (const bool flotation : {true, false}) {
      SizedVessel vessel(mixerPlant(flotation ? "FLOAT CELL" : "COND CELL"));
      EXPECT_EQ(vessel->Size(), 1);
      vessel.data().capacity = row.capacity;
      vessel->SaveParameters();
      const char* volume = flotation ? "CpVolumePerCell" : "CpCellVolume";
      EXPECT_DOUBLE_EQ(vessel.number(volume), row.volume);
      EXPECT_EQ(vessel.units(volume), "CF");
      EXPECT_EQ(vessel.text(flotation ? "CpNumberCells" : "CpNumberItems"),
                std::to_string(row.cells));
      EXPECT_FALSE(vessel.has(flotation ? "CpCellVolume" : "CpVolumePerCell"));
      EXPECT_FALSE(vessel.has(flotation ? "CpNumberItems" : "CpNumberCells"));
    }
  }
}

TEST(Cells, Have_no_dimensions_nor_a_total_volume) {
  for (const char* item : {"FLOAT CELL", "COND CELL", " float cell "}) {
    SizedVessel vessel(mixerPlant(item));
    EXPECT_EQ(vessel->Size(), 1);
    vessel->Commit();
    for (const char* slot :
         {"CpVesselDiameter", "CpTangentTangentHeight", "CpVesselHeight", "CpLiquidVolume"}) {
      EXPECT_FALSE(vessel.has(slot)) << slot;
    }
    EXPECT_TRUE(vessel.has("Residence Time"));
    EXPECT_TRUE(vessel.has("CpDesignTemperature"));
  }
}

TEST(Cells, Share_the_volume_that_sizing_found) {
  Plant plant = mixerPlant("FLOAT CELL");
  recordOf(plant)["CpVesselDiameter"] = Plant::array({10, "FEET"});
  recordOf(plant)["CpTangentTangentHeight"] = Plant::array({40, "FEET"});
  SizedVessel vessel(plant);
  vessel->GetLastInfo();
  EXPECT_EQ(vessel->Size(), 1);
  vessel->Commit();
  expectClose(vessel.number("CpVolumePerCell"), cylinderOf(10, 40) / 3);  // of 3,141.6 CF
  EXPECT_EQ(vessel.text("CpNumberCells"), "3");
}

TEST(Cells, Of_a_metric_project_are_in_cubic_meters) {
  Plant plant = mixerPlant("COND CELL");
  plant["units"] = "metric";
  SizedVessel vessel(plant);
  EXPECT_EQ(vessel->Size(), 1);
  vessel.data().capacity = 1501;
  vessel->SaveParameters();
  expectClose(vessel.number("CpCellVolume"), 750.5 * std::pow(0.3048, 3));
  EXPECT_EQ(vessel.units("CpCellVolume"), "M3");
}

}  // namespace
}  // namespace sizewright
