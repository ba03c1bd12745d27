#include <gtest/gtest.h>

#include <cmath>

#include "frame/probe_item.h"
#include "support/test_plant.h"

namespace sizewright {
namespace {

constexpr const char* kTable = "LIQUID_LINE_GPM_FPS_RELATION";

std::string plantWith(const std::string& slots) {
  return R"({"defaults": false, "items": {"P-101": {"category": "DCP"}}, "property database": {")" +
         std::string(kTable) + "\": " + slots + "}}";
}

struct LiquidCase {
  const char* slots;
  double gpm;
  int result;
  double velocity;
};

class LiquidLine : public testing::TestWithParam<LiquidCase> {};
INSTANTIATE_TEST_SUITE_P(
    EveryBranch, LiquidLine,
    testing::Values(LiquidCase{R"({"10": "2", "100": "3", "50": "2.5"})", 5, 1, 2},
                    LiquidCase{R"({"10": "2", "100": "3", "50": "2.5"})", 10, 1, 2},
                    LiquidCase{R"({"10": "2", "100": "3", "50": "2.5"})", 10.1, 1, 2.5},
                    LiquidCase{R"({"10": "2", "100": "3", "50": "9"})", 1000, 1, 9},
                    LiquidCase{R"({"10": "0", "100": "3"})", 5, 1, 3},
                    LiquidCase{R"({"10": "2", "10.0": "4"})", 5, 1, 4},
                    LiquidCase{R"({"ten": "7", "10": "2"})", 5, 1, 2},
                    LiquidCase{R"({"10": "two", "20": "4"})", 5, 1, 4},
                    LiquidCase{R"({"10": "0"})", 5, 0, 0}));

TEST_P(LiquidLine, Takes_the_velocity_of_the_next_flow) {
  TestPlant plant(plantWith(GetParam().slots));
  const auto item = plant.make<ProbeItem>("P-101");
  double velocity = -1;
  const double massFlow = GetParam().gpm * 60 * 231.0 / 1728.0 * 50;
  EXPECT_EQ(item->GetDesignVelocityForLiquid(massFlow * (1 - 1e-14), 50, velocity),
            GetParam().result);
  EXPECT_EQ(velocity, GetParam().velocity);
}

TEST(LiquidLines, Without_density_take_the_least_flow) {
  TestPlant plant(plantWith(R"({"10": "2", "5": "1.5"})"));
  const auto item = plant.make<ProbeItem>("P-101");
  double velocity = 0;
  EXPECT_EQ(item->GetDesignVelocityForLiquid(1e6, 0, velocity), 1);
  EXPECT_EQ(velocity, 1.5);
}

TEST(LiquidLines, Without_table_have_no_velocity) {
  TestPlant plant(R"({"defaults": false, "items": {"P-101": {"category": "DCP"}}})");
  const auto item = plant.make<ProbeItem>("P-101");
  double velocity = 7;
  EXPECT_EQ(item->GetDesignVelocityForLiquid(1e4, 50, velocity), 0);
  EXPECT_EQ(velocity, 7);
  EXPECT_TRUE(plant.dialogTexts().empty());
}

TEST(GasLines, Follow_a_log_log_line_that_is_held_at_its_ends) {
  for (const auto& [flow, expected] :
       {std::pair(50000.0, 30.0), std::pair(1e5, 30.0), std::pair(1e6, std::sqrt(3000.0)),
        std::pair(1e7, 100.0), std::pair(2e7, 100.0)}) {
    double velocity = 0;
    EXPECT_EQ(CSizeEquip::GetDesignVelocityForGas(flow, 0.1, velocity), 1);
    EXPECT_NEAR(velocity, expected, 1e-7) << flow;
  }
}

TEST(GasLines, Without_density_leave_the_velocity) {
  for (const auto& [before, result] : {std::pair(42.0, 1), std::pair(0.0, 0), std::pair(-1.0, 0)}) {
    double velocity = before;
    EXPECT_EQ(CSizeEquip::GetDesignVelocityForGas(1e6, 0, velocity), result);
    EXPECT_EQ(velocity, before);
  }
}

TEST(OtherLines, Have_nothing_to_tell) {
  EXPECT_EQ(CSizeEquip::GetDesignVelocityForSlurry(), 1);
  EXPECT_EQ(CSizeEquip::GetDesignVelocityForSteam(), 1);
}

}  // namespace
}  // namespace sizewright
