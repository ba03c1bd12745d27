#include "vessels/sized_vessel.h"

namespace sizewright {
namespace {

using Plant = PlantJson;

constexpr double kGallonsInCubicFoot = 1728.0 / 231.0;
constexpr double kMetersInFoot = 0.3048;

// A tank of known size: 10 by 20 ft and 1,500 CF.
Plant knownPlant(const char* item, const char* category = "DVT") {
  return sizingPlant(category, item);
}
struct KnownTank : SizedVessel {
  explicit KnownTank(const Plant& json) : SizedVessel(json) {
    data().ves_dia = 10;
    data().ves_height = 20;
    data().capacity = 1500;
    EXPECT_EQ(object->Size(), 1);
  }
};
void expectCriteria(KnownTank& tank, double ratio) {
  EXPECT_EQ(tank.number("Storage Vessel Height to Diameter Ratio"), ratio);
  EXPECT_EQ(tank.number("Holding Hours in a Day"), 24);
  EXPECT_EQ(tank.number("Number of Holding Days"), 30);
  EXPECT_EQ(tank.number("Vapor Free Space (% of Total Storage Vessel Volume)"), 10);
}
void expectDesign(KnownTank& tank, double temperature, double gauge) {
  EXPECT_DOUBLE_EQ(tank.number("CpOperatingTemperature"), 77);
  EXPECT_DOUBLE_EQ(tank.number("CpDesignTemperature"), temperature);
  EXPECT_EQ(tank.units("CpDesignTemperature"), "DEG F");
  expectClose(tank.number("CpDesignGaugePressure"), gauge);
  EXPECT_EQ(tank.units("CpDesignGaugePressure"), "PSIG");
}

// --- Cylindrical tanks --------------------------------------------------------------------------

TEST(TankResults, Hold_criteria_dimensions_and_design_conditions) {
  KnownTank tank(knownPlant("PLAST TANK"));
  tank->SaveParameters();
  expectCriteria(tank, 0.5);
  EXPECT_DOUBLE_EQ(tank.number("CpVesselDiameter"), 10);
  EXPECT_EQ(tank.units("CpVesselDiameter"), "FEET");
  EXPECT_DOUBLE_EQ(tank.number("CpVesselHeight"), 20);
  EXPECT_EQ(tank.units("CpVesselHeight"), "FEET");
  expectDesign(tank, kDesignTemperature, kDesignGauge);
  EXPECT_FALSE(tank.has(kVacuum));
  EXPECT_FALSE(tank.has("CpVolumeUnits"));
}

TEST(TankResults, Name_the_volume_by_the_item) {
  struct Row {
    const char* item;
    const char* slot;
    const char* step;
  };
  for (const Row& row : {Row{"GAS HOLDER", "CpGasVolume", "Writing capacity."},
                         Row{"LIVE BTM", "CpSolidVolume", "Writing capacity."},
                         Row{"PLAST TANK", "CpLiquidVolume", "Writing volume."},
                         Row{"WOOD TANK", "CpLiquidVolume", "Writing volume."},
                         Row{"CONE BTM", "CpLiquidVolume", "Writing volume."}}) {
    KnownTank tank(knownPlant(row.item));
    const auto lines = tank.progressOf([](CVesObj& vessel) { vessel.SaveParameters(); });
    ASSERT_EQ(lines.size(), 2U) << row.item;
    EXPECT_EQ(lines[0].second, row.step);
    EXPECT_EQ(lines[1], (std::pair<int, std::string>{92, "Completed writing results."}));
    for (const char* slot : {"CpGasVolume", "CpSolidVolume", "CpLiquidVolume"}) {
      EXPECT_EQ(tank.has(slot), std::string_view(slot) == row.slot) << row.item;
    }
    EXPECT_DOUBLE_EQ(tank.number(row.slot), 1500);
    EXPECT_EQ(tank.units(row.slot), "CF");
  }
}

TEST(TankResults, Of_a_storage_tank_tell_the_unit_of_the_volume_beside_it) {
  KnownTank tank(knownPlant("STORAGE"));
  const auto lines = tank.progressOf([](CVesObj& vessel) { vessel.SaveParameters(); });
  ASSERT_EQ(lines.size(), 3U);
  EXPECT_EQ(lines[0].second, "Writing capacity units.");
  EXPECT_EQ(lines[1].second, "Writing capacity.");
  EXPECT_EQ(tank.text("CpVolumeUnits"), "GALLONS");
  expectClose(tank.number("CpLiquidVolume"), 1500 * kGallonsInCubicFoot);
  EXPECT_EQ(tank.units("CpLiquidVolume"), "");
}

TEST(TankResults, Of_a_storage_tank_are_converted_in_place_and_again_when_written_again) {
  KnownTank tank(knownPlant("STORAGE"));
  tank->SaveParameters();
  expectClose(tank.values().capacity, 1500 * kGallonsInCubicFoot);
  tank->SaveParameters();
  expectClose(tank.number("CpLiquidVolume"), 1500 * squareOf(kGallonsInCubicFoot));
}

TEST(TankResults, Of_a_metric_project_are_metric) {
  Plant storage = knownPlant("STORAGE");
  storage["units"] = "metric";
  KnownTank tank(storage);
  tank->SaveParameters();
  const double volume = 1500 * kMetersInFoot * kMetersInFoot * kMetersInFoot;
  EXPECT_EQ(tank.text("CpVolumeUnits"), "M3");
  expectClose(tank.number("CpLiquidVolume"), volume);
  EXPECT_EQ(tank.units("CpLiquidVolume"), "");
  expectClose(tank.number("CpVesselDiameter"), 10 * kMetersInFoot);
  EXPECT_EQ(tank.units("CpVesselDiameter"), "M");
  expectClose(tank.number("CpVesselHeight"), 20 * kMetersInFoot);
  EXPECT_EQ(tank.units("CpDesignGaugePressure"), "KPA");

  Plant holder = knownPlant("GAS HOLDER");
  holder["units"] = "metric";
  KnownTank gas(holder);
  gas->SaveParameters();
  expectClose(gas.number("CpGasVolume"), volume);
  EXPECT_EQ(gas.units("CpGasVolume"), "M3");
}

TEST(TankResults, Leave_out_what_is_not_positive) {
  SizedVessel tank(knownPlant("PLAST TANK"));
  tank.data().ves_dia = -1;
  tank->SaveParameters();
  for (const char* slot :
       {"Storage Vessel Height to Diameter Ratio", "Holding Hours in a Day",
        "Number of Holding Days", "CpVesselDiameter", "CpVesselHeight", "CpLiquidVolume"}) {
    EXPECT_FALSE(tank.has(slot)) << slot;
  }
}

TEST(TankResults, Leave_design_conditions_of_the_user_alone) {
  for (const double pressure : {15.0, 10.0}) {
    Plant plant = knownPlant("STORAGE");
    setUserDesign(plant);
    setPressure(plant, pressure);
    KnownTank tank(plant);
    tank->SaveParameters();
    for (const char* slot :
         {"CpOperatingTemperature", "CpDesignTemperature", "CpDesignGaugePressure", kVacuum}) {
      EXPECT_FALSE(tank.has(slot)) << slot;
    }
  }
}

TEST(TankResults, Of_the_category_EVT_name_one_temperature) {
  for (const char* item : {"STORAGE", "SPHERE", "SPHEROID"}) {
    KnownTank tank(knownPlant(item, "EVT"));
    tank->SaveParameters();
    EXPECT_DOUBLE_EQ(tank.number("CpTemperature"), kDesignTemperature) << item;
    EXPECT_FALSE(tank.has("CpDesignTemperature"));
    EXPECT_FALSE(tank.has("CpOperatingTemperature"));
    expectClose(tank.number("CpDesignGaugePressure"), kDesignGauge);
  }
}

TEST(TankResults, Hold_a_vacuum_from_just_below_14_6_PSI_on) {
  for (const char* item : {"STORAGE", "SPHERE", "SPHEROID"}) {
    for (const double pressure : {14.599, 14.6}) {
      Plant plant = knownPlant(item);
      setPressure(plant, pressure);
      KnownTank tank(plant);
      tank->SaveParameters();
      EXPECT_EQ(tank.has(kVacuum), pressure < 14.6) << item << ' ' << pressure;
      if (tank.has(kVacuum)) {
        EXPECT_DOUBLE_EQ(tank.number(kVacuum), -14.6);
      }
    }
  }
  // a process drum within a hundredth of the limit has none
  Plant plant = verticalDrum();
  setPressure(plant, 14.599);
  SizedVessel drum(plant);
  drum->Size();
  drum->SaveParameters();
  EXPECT_FALSE(drum.has(kVacuum));
}

// --- Spheres and spheroids ----------------------------------------------------------------------

TEST(SphereResults, Hold_criteria_volume_and_diameter) {
  KnownTank sphere(knownPlant("SPHERE"));
  const auto lines = sphere.progressOf([](CVesObj& vessel) { vessel.SaveParameters(); });
  EXPECT_FALSE(lines.empty());
  for (const auto& [percent, text] : lines) EXPECT_EQ(percent, 90) << text;
  expectCriteria(sphere, 0.5);
  EXPECT_DOUBLE_EQ(sphere.number("CpLiquidVolume"), 1500);
  EXPECT_EQ(sphere.units("CpLiquidVolume"), "CF");
  EXPECT_DOUBLE_EQ(sphere.number("CpVesselDiameter"), 10);
  EXPECT_FALSE(sphere.has("CpVesselHeight"));
  expectDesign(sphere, kDesignTemperature, kDesignGauge);
}

TEST(SpheroidResults, Hold_criteria_volume_diameter_and_height) {
  KnownTank tank(knownPlant("SPHEROID"));
  EXPECT_EQ(tank.progressOf([](CVesObj& vessel) { vessel.SaveParameters(); }),
            (SizedVessel::Progress{
                {88, "Writing results."},
                {89, "Writing capacity."},
                {90, "Writing diameter."},
                {91, "Writing height."},
                {92, "Completed writing results."},
            }));
  expectCriteria(tank, 0.4);
  EXPECT_DOUBLE_EQ(tank.number("CpLiquidVolume"), 1500);
  EXPECT_DOUBLE_EQ(tank.number("CpVesselDiameter"), 10);
  EXPECT_DOUBLE_EQ(tank.number("CpVesselHeight"), 20);
  expectDesign(tank, kDesignTemperature, kDesignGauge);
}

TEST(SpheroidResults, Are_in_meters_for_a_metric_project) {
  Plant plant = knownPlant("SPHEROID");
  plant["units"] = "metric";
  KnownTank tank(plant);
  tank->SaveParameters();
  expectClose(tank.number("CpLiquidVolume"), 1500 * std::pow(kMetersInFoot, 3));
  EXPECT_EQ(tank.units("CpLiquidVolume"), "M3");
  expectClose(tank.number("CpVesselHeight"), 20 * kMetersInFoot);
  EXPECT_EQ(tank.units("CpVesselHeight"), "M");
}

TEST(SphereResults, Hold_the_design_conditions_of_the_user_but_then_no_vacuum) {
  for (const char* item : {"SPHERE", "SPHEROID"}) {
    Plant plant = knownPlant(item);
    setUserDesign(plant);
    setPressure(plant, 10);
    KnownTank tank(plant);
    tank->SaveParameters();
    EXPECT_DOUBLE_EQ(tank.number("CpDesignTemperature"), 300);
    expectClose(tank.number("CpDesignGaugePressure"), 50 - kStandardAtmosphere);
    EXPECT_TRUE(tank.has("CpOperatingTemperature"));
    EXPECT_FALSE(tank.has(kVacuum)) << item;
  }
}

}  // namespace
}  // namespace sizewright
