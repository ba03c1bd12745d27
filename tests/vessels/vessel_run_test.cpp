#include <array>

#include "vessels/sized_vessel.h"

namespace sizewright {
namespace {

// A whole run: what the user gave stands in the record, the results go there.
struct RunCase {
  const char* category;
  const char* item;
  const char* givenSlot;
  double given;  // FEET
  const char* heightSlot;
  const char* volumeSlot;
  double diameter;  // FEET
  double height;
};

// Of 200 CF of liquid in ten minutes, or 864,000 CF in thirty days.
const RunCase kRuns[] = {
    // 200 CF stand 15.4 ft high in 4.07 ft, 2.5 ft of levels and nozzle come to that
    {"DVT", "CYLINDER", "CpVesselDiameter", 4.07, "CpTangentTangentHeight", "CpLiquidVolume", 4.07,
     18},
    // 200 CF of liquid in the lower 10.5 ft are 4.92 ft wide
    {"DVT", "CYLINDER", "CpTangentTangentHeight", 12.5, "CpTangentTangentHeight", "CpLiquidVolume",
     5, 12.5},
    // 250 CF in 10.3 ft are 5.56 ft wide
    {"DHT", "HORIZ DRUM", "CpTangentTangentLength", 10.3, "CpTangentTangentLength",
     "CpLiquidVolume", 6, 10.3},
    {"DHT", "HORIZ DRUM", "CpVesselDiameter", 4.3, "CpTangentTangentLength", "CpLiquidVolume", 4.3,
     17.5},
    {"DAT", "OFF MACH", "CpVesselDiameter", 5.3, "CpVesselHeight", "CpLiquidVolume", 5.3,
     200 / (0.25 * kCirclePi * 5.3 * 5.3) + 1},
    {"DVT", "GAS HOLDER", "CpVesselDiameter", 100.3, "CpVesselHeight", "CpGasVolume", 100.3,
     960000 / (0.25 * kCirclePi * 100.3 * 100.3)},
};

class VesselRun : public testing::TestWithParam<RunCase> {};
INSTANTIATE_TEST_SUITE_P(EveryRoad, VesselRun, testing::ValuesIn(kRuns));

TEST_P(VesselRun, Keeps_what_the_user_gave_and_writes_the_rest) {
  const RunCase& row = GetParam();
  PlantJson plant = sizingPlant(row.category, row.item);
  recordOf(plant)[row.givenSlot] = {row.given, "FEET"};
  SizedVessel vessel(plant);
  EXPECT_EQ(vessel->GetLastInfo(), 1);
  EXPECT_EQ(vessel->Size(), 1);
  EXPECT_EQ(vessel->Commit(), 1);
  expectClose(vessel.number("CpVesselDiameter"), row.diameter);
  expectClose(vessel.number(row.heightSlot), row.height);
  expectClose(vessel.number(row.volumeSlot), cylinderOf(row.diameter, row.height));
  EXPECT_EQ(vessel.units("CpVesselDiameter"), "FEET");
  EXPECT_EQ(vessel.units(row.heightSlot), "FEET");
  EXPECT_EQ(vessel.units(row.volumeSlot), "CF");
}

TEST(VesselRuns, Of_an_agitated_vessel_and_a_drum_differ_by_the_category_alone) {
  SizedVessel drum(sizingPlant("DVT", "CYLINDER"));
  EXPECT_EQ(drum->Size(), 1);
  EXPECT_EQ(drum.values().ves_height, 14.5);
  SizedVessel mixer(sizingPlant("DAT", "CYLINDER"));
  EXPECT_EQ(mixer->Size(), 1);
  EXPECT_EQ(mixer.values().ves_height, 15);
}

TEST(VesselRuns, Of_metric_projects_give_the_same_vessel) {
  for (const char* category : {"DVT", "DHT"}) {
    PlantJson plant = sizingPlant(category, "CYLINDER");
    criteriaOf(plant) = {{"Minimum Ht. Btw Low and High Liquid Level Taps", {1, "M"}},
                         {"Ht. Btw Inlet Nozzle and High Liquid Level Tap", {600, "MM"}},
                         {"Ht. Btw Low Liquid Level Tap and Tangent Line", {150, "MM"}}};
    const auto run = [&](const char* units) {
      plant["units"] = units;
      SizedVessel vessel(plant);
      EXPECT_EQ(vessel->Size(), 1);
      vessel->Commit();
      return std::array{vessel.values().ves_dia, vessel.values().ves_height,
                        vessel.number("CpVesselDiameter"), vessel.number("CpLiquidVolume")};
    };
    const auto customary = run("customary");
    const auto metric = run("metric");
    EXPECT_EQ(customary[0], metric[0]);
    EXPECT_EQ(customary[1], metric[1]);
    expectClose(metric[2], customary[2] * 0.3048);
    expectClose(metric[3], customary[3] * std::pow(0.3048, 3));
  }
}

}  // namespace
}  // namespace sizewright
