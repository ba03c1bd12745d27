#include "vessels/sized_vessel.h"

namespace sizewright {
namespace {

using Plant = PlantJson;

constexpr double kVapor = 20000;                  // CF/H of the plant
constexpr double kRootOfRatio = 9.9498743710662;  // of (50 - 0.5) / 0.5
constexpr double kRatio = 3;
constexpr double kHorizontalMultiplier = 1.25;

constexpr const char* kNoDensity =
    "Exit liquid flow is not present. Exit light liquid density assumed to be 62.4 lb/cf.";
constexpr const char* kDryDrum =
    "Exit liquid flow is not present. Exit light liquid density assumed to be 62.4 lb/cf.(Dry Drum "
    "condition).";
constexpr const char* kFactorLow =
    "Separation factor(less than 0.006) is outside the range. Defaulted to 0.006. Kv value maybe "
    "incorrect.";
constexpr const char* kFactorHigh =
    "Separation factor(greater than 6) is outside the range. Defaulted to 6. Kv value maybe "
    "incorrect.";
constexpr const char* kNoVelocity =
    "Vapor velocity cannot be calculated. Diameter will be based on liquid flow.";
constexpr const char* kLargeBubble =
    "Bubble diameter is outside the range. Terminal settling velocity calculated may be incorrect.";
constexpr const char* kBetween =
    "Reynolds number predicts flow is in intermediate region. Please check stream flows.";
constexpr const char* kMethod = "Vapor/Liquid Separator Sizing Method";

// The diameter that the vapor of a drum asks for, as the trace tells it; -1 when it does not.
double vaporDiameterTold(const SizedVessel& drum) {
  const std::string start = "ves_dia(based on vapor flow) = ";
  for (const std::string& line : drum.calculations()) {
    if (line.rfind(start, 0) == 0) return std::stod(line.substr(start.size()));
  }
  return -1;
}

double verticalDiameter(double flow, double velocity) {
  return std::sqrt(flow / velocity * 4 / kCirclePi);
}
double horizontalDiameter(double flow, double velocity, double ratio) {
  return std::sqrt(flow / (kCirclePi / 4 * velocity * ratio));
}

// A drum whose liquid is so little that the vapor decides, and large enough to read the diameter.
Plant vaporDrum(const char* category, double vaporFlow = 1e6) {
  Plant plant = sizingPlant(category, "CYLINDER");
  setVapor(plant, vaporFlow, 0.5);
  setLiquid(plant, vaporFlow * 6, 50);
  criteriaOf(plant)["Residence Time"] = Plant::array({0.01, "MINUTE"});
  return plant;
}

// --- Liquid entrainment -------------------------------------------------------------------------

TEST(DrumVapor, Of_a_vertical_drum_passes_its_cross_section) {
  SizedVessel drum(vaporDrum("DVT"));
  drum->Size();
  const double velocity = 0.221281748966819 * kRootOfRatio * 3600;
  EXPECT_NEAR(vaporDiameterTold(drum), verticalDiameter(100 * kVapor, velocity), 0.0051);
}

TEST(DrumVapor, Of_every_other_drum_passes_a_section_of_its_slenderness) {
  struct Row {
    const char* category;
    double multiplier;
  };
  for (const Row& row : {Row{"DHT", kHorizontalMultiplier}, Row{"EVT", 1.0}}) {
    SizedVessel drum(vaporDrum(row.category));
    drum->Size();
    const double velocity = 0.221281748966819 * row.multiplier * kRootOfRatio * 3600;
    EXPECT_NEAR(vaporDiameterTold(drum), horizontalDiameter(100 * kVapor, velocity, kRatio), 0.0051)
        << row.category;
  }
}

TEST(DrumVapor, Does_not_ask_a_horizontal_drum_for_its_area_ratio) {
  double told[2] = {};
  for (const int i : {0, 1}) {
    SizedVessel drum(vaporDrum("DHT"));
    drum.data().r_vc = i == 0 ? 0.2 : 0.9;
    drum->Size();
    told[i] = vaporDiameterTold(drum);
  }
  EXPECT_GT(told[0], 0);
  EXPECT_EQ(told[0], told[1]);
}

TEST(DrumVapor, Takes_a_given_Kv_without_the_correlation_and_its_warnings) {
  for (const char* category : {"DVT", "DHT"}) {
    Plant plant = vaporDrum(category);
    setLiquid(plant, 1000, 50);  // separation factor 0.0001
    criteriaOf(plant)["Separation factor"] = 0.4;
    SizedVessel drum(plant);
    drum->Size();
    const bool vertical = std::string(category) == "DVT";
    const double velocity = 0.4 * (vertical ? 1 : kHorizontalMultiplier) * kRootOfRatio * 3600;
    EXPECT_NEAR(vaporDiameterTold(drum),
                vertical ? verticalDiameter(100 * kVapor, velocity)
                         : horizontalDiameter(100 * kVapor, velocity, kRatio),
                0.0051);
    EXPECT_FALSE(drum.warned(kFactorLow));
  }
}

TEST(DrumVapor, Replaces_a_negative_Kv_by_0_227) {
  Plant plant = vaporDrum("DVT");
  criteriaOf(plant)["Separation factor"] = -0.4;
  SizedVessel drum(plant);
  drum->Size();
  EXPECT_NEAR(vaporDiameterTold(drum), verticalDiameter(100 * kVapor, 0.227 * kRootOfRatio * 3600),
              0.0051);
  EXPECT_EQ(drum.values().kv_factor, -0.4);
}

struct FactorRow {
  double liquidFlow;  // LB/H for a vapor of a million: the factor is a tenth of the ratio
  double kv;
  const char* warning;  // null for none
};

TEST(DrumVapor, Keeps_the_separation_factor_within_its_range) {
  constexpr double kLeast = 0.257424466046143;
  constexpr double kMost = 0.0177460276733265;
  for (const FactorRow& row : {
           FactorRow{60000 * (1 - 1e-6), kLeast, kFactorLow},
           FactorRow{60000 * (1 + 1e-6), kLeast, nullptr},
           FactorRow{1e7, 0.152975408846661, nullptr},
           FactorRow{6e7 * (1 - 1e-6), kMost, nullptr},
           FactorRow{6e7 * (1 + 1e-6), kMost, kFactorHigh},
           FactorRow{6e8, kMost, kFactorHigh},
       }) {
    Plant plant = vaporDrum("DVT");
    setLiquid(plant, row.liquidFlow, 50);
    criteriaOf(plant)["Residence Time"] = Plant::array({1e-6, "MINUTE"});
    SizedVessel drum(plant);
    drum->Size();
    EXPECT_NEAR(vaporDiameterTold(drum),
                verticalDiameter(100 * kVapor, row.kv * kRootOfRatio * 3600), 0.0051);
    EXPECT_EQ(drum.warned(kFactorLow), row.warning == kFactorLow) << row.liquidFlow;
    EXPECT_EQ(drum.warned(kFactorHigh), row.warning == kFactorHigh) << row.liquidFlow;
  }
}

// With equal densities of 1 PCF the factor is the ratio of the flows, to the last digit.
TEST(DrumVapor, Does_not_warn_at_a_separation_factor_on_the_limit) {
  struct Row {
    double liquidFlow;  // LB/H for a vapor of 1,000
    const char* warning;
  };
  for (const Row& row :
       {Row{6, nullptr}, Row{5.9999, kFactorLow}, Row{6000, nullptr}, Row{6000.1, kFactorHigh}}) {
    Plant plant = verticalDrum();
    setVapor(plant, 1000, 1);
    setLiquid(plant, row.liquidFlow, 1);
    SizedVessel drum(plant);
    drum->Size();
    EXPECT_EQ(drum.warned(kFactorLow), row.warning == kFactorLow) << row.liquidFlow;
    EXPECT_EQ(drum.warned(kFactorHigh), row.warning == kFactorHigh) << row.liquidFlow;
  }
}

TEST(DrumVapor, Assumes_water_when_no_liquid_leaves) {
  Plant plant = verticalDrum();
  removeLiquid(plant);
  SizedVessel drum(plant, 1);
  drum->Size();
  EXPECT_EQ(drum.values().light_liq_density, 62.4);
  EXPECT_TRUE(drum.warned(kNoDensity));
  EXPECT_TRUE(drum.warned(kFactorLow));
  EXPECT_FALSE(drum.told(kDryDrum));
  const auto boxes = drum.boxes();
  ASSERT_GE(boxes.size(), 2U);
  EXPECT_EQ(boxes[0], (std::pair<std::string, int>{kNoDensity, 48}));
  EXPECT_EQ(boxes[1], (std::pair<std::string, int>{kFactorLow, 48}));
}

TEST(DrumVapor, Finds_no_velocity_with_a_given_Kv_and_no_liquid_density) {
  Plant plant = verticalDrum();
  removeLiquid(plant);
  criteriaOf(plant)["Separation factor"] = 0.3;
  SizedVessel drum(plant);
  drum->Size();
  EXPECT_EQ(drum.values().light_liq_density, 0);
  EXPECT_FALSE(drum.warned(kNoDensity));
  EXPECT_TRUE(drum.warned(kNoVelocity));
  EXPECT_EQ(drum.values().ves_dia, 0);
}

TEST(DrumVapor, Finds_no_velocity_for_a_liquid_as_light_as_the_vapor) {
  for (const double density : {0.5, 0.4}) {
    Plant plant = verticalDrum();
    setLiquid(plant, 600, density);
    SizedVessel drum(plant, 1);
    drum->Size();
    EXPECT_TRUE(drum.warned(kNoVelocity));
    const auto boxes = drum.boxes();
    EXPECT_EQ(std::count(boxes.begin(), boxes.end(), std::pair<std::string, int>{kNoVelocity, 48}),
              1);
    EXPECT_EQ(vaporDiameterTold(drum), 0);
    EXPECT_GT(drum.values().ves_dia, 0);  // of the liquid
  }
}

TEST(DrumVapor, Is_the_greater_of_inlet_and_exit) {
  struct Row {
    double exitFlow;  // LB/H, in a density of its own
    double volume;    // CF/H that counts
    double density;
  };
  for (const Row& row : {Row{0.9e6, 2e6, 0.5}, Row{1.5e6, 3e6, 0.5}}) {
    Plant plant = vaporDrum("DVT");
    setPhase(plant, "V", "VAPOR", row.exitFlow, 0.5);
    criteriaOf(plant)["Separation factor"] = 0.4;
    SizedVessel drum(plant);
    drum->Size();
    EXPECT_NEAR(vaporDiameterTold(drum), verticalDiameter(row.volume, 0.4 * kRootOfRatio * 3600),
                0.0051);
  }
}

TEST(DrumVapor, Of_equal_volumes_is_that_of_the_exit) {
  Plant plant = vaporDrum("DVT");
  setPhase(plant, "V", "VAPOR", 2e6, 1.0);  // as many CF/H as the inlet, but denser
  criteriaOf(plant)["Separation factor"] = 0.4;
  SizedVessel drum(plant);
  drum->Size();
  EXPECT_NEAR(vaporDiameterTold(drum), verticalDiameter(2e6, 0.4 * std::sqrt(49) * 3600), 0.0051);
}

// --- Bubble disengagement -----------------------------------------------------------------------

Plant bubbleDrum(const char* category, double bubble) {
  Plant plant = vaporDrum(category);
  criteriaOf(plant)[kMethod] = "Bubble Disengagement";
  criteriaOf(plant)["Average liquid particle diameter"] = Plant::array({bubble, "FEET"});
  return plant;
}

TEST(BubbleDisengagement, Rises_at_half_its_terminal_velocity_in_a_vertical_drum) {
  SizedVessel drum(bubbleDrum("DVT", 0.0125));
  drum->Size();
  const double terminal = 1.74 * std::sqrt(4.17118e8 * 0.0125 * 49.5 / 0.5);
  EXPECT_NEAR(vaporDiameterTold(drum), verticalDiameter(100 * kVapor, terminal / 2), 0.0051);
  for (const char* text : {kNoVelocity, kBetween, kLargeBubble, kNoDensity}) {
    EXPECT_FALSE(drum.warned(text)) << text;
  }
}

TEST(BubbleDisengagement, Takes_the_factor_of_the_criteria) {
  Plant plant = bubbleDrum("DHT", 0.0125);
  criteriaOf(plant)["Design factor multiplier for disengagement velocity"] = 0.8;
  SizedVessel drum(plant);
  drum->Size();
  const double terminal = 1.74 * std::sqrt(4.17118e8 * 0.0125 * 49.5 / 0.5);
  EXPECT_NEAR(vaporDiameterTold(drum), horizontalDiameter(100 * kVapor, terminal * 0.8, kRatio),
              0.0051);
}

TEST(BubbleDisengagement, Of_a_horizontal_drum_without_a_factor_has_no_velocity) {
  SizedVessel drum(bubbleDrum("DHT", 0.0125));
  drum->Size();
  EXPECT_EQ(drum.values().disengage_factor, 0);
  EXPECT_EQ(vaporDiameterTold(drum), 0);
  EXPECT_TRUE(drum.warned(kNoVelocity));
  EXPECT_GT(drum.values().ves_dia, 0);  // of the liquid alone
}

TEST(BubbleDisengagement, Is_every_method_but_the_one_of_entrainment) {
  for (const char* method : {"liquid entrainment method", "LIQUID ENTRAINMENT METHOD"}) {
    Plant plant = vaporDrum("DHT");
    criteriaOf(plant)[kMethod] = method;
    SizedVessel drum(plant);
    drum->Size();
    EXPECT_GT(vaporDiameterTold(drum), 0) << method;
  }
  for (const char* method : {"Liquid Entrainment", "Liquid  Entrainment Method", "x"}) {
    Plant plant = vaporDrum("DHT");
    criteriaOf(plant)[kMethod] = method;
    SizedVessel drum(plant);
    drum->Size();
    EXPECT_TRUE(drum.warned(kNoVelocity)) << method;
  }
}

TEST(BubbleDisengagement, Warns_between_the_regimes) {
  const double one = std::pow(4.17118e8 * 0.5 * 49.5 / squareOf(0.05), 0.33);
  struct Row {
    double k;
    bool warns;
  };
  for (const Row& row :
       {Row{2.999, false}, Row{3.001, true}, Row{69.99, true}, Row{70.01, false}}) {
    SizedVessel drum(bubbleDrum("DVT", row.k / one), 1);
    drum->Size();
    EXPECT_EQ(drum.warned(kBetween), row.warns) << row.k;
    const auto boxes = drum.boxes();
    EXPECT_EQ(std::count(boxes.begin(), boxes.end(), std::pair<std::string, int>{kBetween, 48}),
              row.warns ? 1 : 0);
  }
}

TEST(BubbleDisengagement, Warns_of_bubbles_above_0_3125_feet) {
  for (const double bubble : {0.3125, 0.3126}) {
    SizedVessel drum(bubbleDrum("DVT", bubble), 1);
    drum->Size();
    EXPECT_EQ(drum.warned(kLargeBubble), bubble > 0.3125);
    const auto boxes = drum.boxes();
    EXPECT_EQ(std::count(boxes.begin(), boxes.end(), std::pair<std::string, int>{kLargeBubble, 48}),
              bubble > 0.3125 ? 1 : 0);
  }
}

TEST(BubbleDisengagement, In_a_dry_drum_finds_no_velocity_though_water_is_assumed) {
  Plant plant = bubbleDrum("DVT", 0.0125);
  removeLiquid(plant);
  for (const int interactive : {1, 0}) {
    SizedVessel drum(plant, interactive);
    drum->Size();
    EXPECT_EQ(drum.values().light_liq_density, 62.4);
    EXPECT_EQ(drum.warnings(), (Texts{kNoDensity, kBetween, kNoVelocity}));
    EXPECT_TRUE(drum.told(kDryDrum));
    EXPECT_EQ(vaporDiameterTold(drum), 0);
    const std::vector<std::pair<std::string, int>> shown = {
        {kDryDrum, 48}, {kBetween, 48}, {kNoVelocity, 48}};
    if (interactive != 0) {
      EXPECT_EQ(drum.boxes(), shown);
    } else {
      EXPECT_TRUE(drum.boxes().empty());
    }
  }
}

TEST(BubbleDisengagement, Reports_its_progress) {
  SizedVessel drum(bubbleDrum("DVT", 0.0125));
  const auto lines = drum.sizingProgress();
  const auto expected = SizedVessel::Progress{
      {64, "Calculating vessel diameter based on vapor flow."},
      {65, "Checking user specified method for estimating design vapor velocity."},
      {65, "Calculating vapor velocity based on liquid bubble disengagement."},
      {66, "Obtaining design factor multiplier for disengagement velocity from design criteria."},
      {66, "Estimating design vapor velocity."},
      {67, "Calculating vessel diameter based on vapor velocity."},
      {68, "Calculating vessel diameter based on L/D."},
  };
  EXPECT_NE(std::search(lines.begin(), lines.end(), expected.begin(), expected.end()), lines.end());
}

// --- Vapor or liquid, and the least diameter ----------------------------------------------------

TEST(DrumDiameter, Is_at_least_the_one_of_the_criteria) {
  struct Row {
    double minimum;
    bool raised;
  };
  // the liquid of the plant asks for 4.6286 ft
  for (const Row& row : {Row{4.62, false}, Row{4.64, true}, Row{7.2, true}}) {
    Plant plant = verticalDrum();
    criteriaOf(plant)["Minimum vessel diameter"] = Plant::array({row.minimum, "FEET"});
    SizedVessel drum(plant, 1);
    drum->Size();
    const std::string text = formatText(
        "Calculated Vessel Diameter is  4.63 feet. User specified minimum value %5.2f feet is "
        "used.",
        row.minimum);
    EXPECT_EQ(drum.warned(text), row.raised) << row.minimum;
    const auto boxes = drum.boxes();
    EXPECT_EQ(std::count(boxes.begin(), boxes.end(), std::pair<std::string, int>{text, 48}),
              row.raised ? 1 : 0);
    EXPECT_EQ(drum.values().ves_dia, roundedUp(row.minimum));
  }
}

TEST(DrumDiameter, Of_liquid_that_would_take_more_than_50_feet_is_left_to_the_vapor) {
  constexpr const char* kOutside = "Diameter is outside range 0 to 1000 feet.";
  const double limit = cylinderOf(50, kRatio * 50);
  for (const double capacity : {limit * 0.999, limit * 1.001}) {
    SizedVessel drum(verticalDrum(), 1);
    drum.data().capacity = capacity;
    drum->Size();
    const bool outside = capacity > limit;
    EXPECT_EQ(drum.warned(kOutside), outside);
    EXPECT_EQ(drum.values().ves_dia, outside ? 2 : 50);
    EXPECT_TRUE(drum.told(outside ? "ves_dia(based on vapor flow) =  1.79 ft; ves_dia(based on L/D "
                                    "and Liq.flow) =  0.00 ft; Max chosen."
                                  : "ves_dia(based on vapor flow) =  1.79 ft; ves_dia(based on L/D "
                                    "and Liq.flow) = 49.98 ft; Max chosen."));
    const auto boxes = drum.boxes();
    EXPECT_EQ(std::count(boxes.begin(), boxes.end(), std::pair<std::string, int>{kOutside, 48}),
              outside ? 1 : 0);
  }
}

TEST(DrumDiameter, Without_vapor_is_that_of_the_liquid_and_no_velocity_is_sought) {
  Plant plant = verticalDrum();
  removeVapor(plant);
  SizedVessel drum(plant);
  const auto lines = drum.sizingProgress();
  EXPECT_EQ(vaporDiameterTold(drum), 0);
  EXPECT_EQ(drum.values().ves_dia, 5);
  EXPECT_FALSE(drum.warned(kNoVelocity));
  for (const auto& [percent, text] : lines) EXPECT_NE(percent, 65) << text;
}

TEST(DrumDiameter, Is_the_liquids_where_the_drum_is_slender_enough_for_either) {
  for (const double ratio : {1.5, 3.0, 6.0}) {
    Plant plant = verticalDrum();
    criteriaOf(plant)["Process Vessel Height to Diameter Ratio"] = ratio;
    SizedVessel drum(plant);
    drum.data().kv_factor = 0.3;
    drum->Size();
    std::string line;
    for (const std::string& text : drum.calculations()) {
      if (text.find("Max chosen.") != std::string::npos) line = text;
    }
    const std::size_t place = line.find("Liq.flow) = ");
    ASSERT_NE(place, std::string::npos);
    const double diameter = std::stod(line.substr(place + 12));
    // 200 CF below 2 ft of vapor space in a drum of that slenderness, to the two places shown
    const double slope = kCirclePi / 4 * (3 * ratio * squareOf(diameter) - 4 * diameter);
    EXPECT_NEAR(cylinderOf(diameter, ratio * diameter - 2), 200, 0.0051 * slope) << ratio;
  }
}

}  // namespace
}  // namespace sizewright
