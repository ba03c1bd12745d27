#include <gtest/gtest.h>

#include "rotating/pump_plant.h"

namespace sizewright {
namespace {

struct RatingCase {
  const char* category;
  const char* item;
  double capacity;  // GPM, at, below and above the limits
  double rated;
  double number;  // 1 stays unless the capacity is divided
};

class PumpRating : public testing::TestWithParam<RatingCase> {};

TEST_P(PumpRating, Limits_the_capacity_and_tells_how_many_pumps_share_it) {
  const RatingCase& row = GetParam();
  double capacity = row.capacity;
  double number = 1.0;
  limitPumpRating(row.category, row.item, capacity, number);
  EXPECT_DOUBLE_EQ(capacity, row.rated);
  EXPECT_DOUBLE_EQ(number, row.number);
}

INSTANTIATE_TEST_SUITE_P(
    EveryRow, PumpRating,
    testing::Values(
        RatingCase{"DCP", "GEN SERV", 16000, 16000, 1},
        RatingCase{"DCP", "GEN SERV", 16000.1, 16000, 16000.1 / 16040},
        RatingCase{"EP", "GEN SERV", 20000, 20000, 1}, RatingCase{"DCP", "ANSI", 16000, 16000, 1},
        RatingCase{"DCP", "ANSI", 32080, 16000, 2}, RatingCase{"GP", "ANSI", 32080, 32080, 1},
        RatingCase{"EGP", "CANNED RTR", 310.7, 310.8, 1},
        RatingCase{"EGP", "CANNED RTR", 310.8, 310.8, 1},
        RatingCase{"EGP", "CANNED RTR", 310.9, 310.9, 1},
        RatingCase{"EGP", "CANNED RTR", 4550, 4550, 1},
        RatingCase{"EGP", "CANNED RTR", 9142, 4550, 2},
        RatingCase{"DCP", "CANNED RTR", 9142, 9142, 1}, RatingCase{"EP", "GEAR", 2400, 2400, 1},
        RatingCase{"EP", "GEAR", 4812, 2400, 2}, RatingCase{"DCP", "GEAR", 4812, 4812, 1},
        RatingCase{"EGP", "GEAR", 4812, 4812, 1}, RatingCase{"EP", "MECH SEAL", 274, 275, 1},
        RatingCase{"EP", "MECH SEAL", 275, 275, 1}, RatingCase{"EP", "MECH SEAL", 276, 276, 1},
        RatingCase{"EP", "MECH SEAL", 38450, 38450, 1},
        RatingCase{"EP", "MECH SEAL", 76900, 38450, 2}, RatingCase{"DCP", "MECH SEAL", 100, 100, 1},
        RatingCase{"EGP", "MECH SEAL", 100, 100, 1}, RatingCase{"EP", "DIAPHRAGM", 150.3, 150.4, 1},
        RatingCase{"EP", "DIAPHRAGM", 150.4, 150.4, 1},
        RatingCase{"EP", "DIAPHRAGM", 150.5, 150.5, 1},
        RatingCase{"EP", "DIAPHRAGM", 4810, 4810, 1}, RatingCase{"EP", "DIAPHRAGM", 9620, 4810, 2},
        RatingCase{"DCP", "DIAPHRAGM", 1, 1, 1}, RatingCase{"GP", "DUPLEX", 8020, 8020, 1},
        RatingCase{"GP", "DUPLEX", 16040, 8020, 2}, RatingCase{"EP", "DUPLEX", 16040, 16040, 1},
        RatingCase{"any", "RECIP MOTR", 40, 40.1, 1},
        RatingCase{"any", "RECIP MOTR", 40.1, 40.1, 1},
        RatingCase{"any", "RECIP MOTR", 1e6, 1e6, 1}, RatingCase{"any", "ROTARY", 80.1, 80.2, 1},
        RatingCase{"any", "ROTARY", 80.3, 80.3, 1}, RatingCase{"any", "ROTARY", 6015, 6015, 1},
        RatingCase{"any", "ROTARY", 12030, 6015, 2}, RatingCase{"any", "SIMPLEX", 44.1, 44.11, 1},
        RatingCase{"any", "SIMPLEX", 44.12, 44.12, 1},
        RatingCase{"any", "SIMPLEX", 7298.2, 7298.2, 1},
        RatingCase{"any", "SIMPLEX", 14596, 7298, 2}, RatingCase{"any", "SLURRY", 12.03, 12, 1},
        RatingCase{"any", "SLURRY", 12.02, 12, 1}, RatingCase{"any", "SLURRY", 12.04, 12.04, 1},
        RatingCase{"any", "SLURRY", 200, 200, 1}, RatingCase{"any", "SLURRY", 500, 200, 2.5},
        RatingCase{"any", "TRIPLEX", 8020, 8020, 1}, RatingCase{"any", "TRIPLEX", 24060, 8020, 3},
        RatingCase{"DCP", "CENTRIF", 1e6, 1e6, 1}));

class RatedPump : public CPumpObj {
 public:
  using CPumpObj::CPumpObj;
  using CPumpObj::pump_check_min_max;
};

TEST(PumpRatingOperation, Uses_the_codes_of_the_item_and_tells_its_end) {
  PlantJson json = pumpPlant();
  itemOf(json)["item"] = "ansi";
  TestPlant plant(json.dump());
  const auto pump = plant.make<RatedPump>("P-101");
  double capacity = 32080;
  double number = 1;
  double third = 7;
  pump->pump_check_min_max(&capacity, &number, &third);
  EXPECT_DOUBLE_EQ(capacity, 16000);
  EXPECT_DOUBLE_EQ(number, 2);
  EXPECT_EQ(third, 7);
  EXPECT_EQ(
      plant.progress().back(),
      (std::pair<int, std::string>(87, "Completed pump rating based on VARDEX Cost Engine.")));
}

}  // namespace
}  // namespace sizewright
