#include <gtest/gtest.h>

#include "separation/screen_plant.h"

namespace sizewright {
namespace {

// --- Results -------------------------------------------------------------------------------------

TEST(ScreenResults, Are_written_by_shape_in_both_unit_systems) {
  struct Row {
    const char* item;
    const char* slot;
    double customary;
    const char* units;
    double metric;
    const char* metricUnits;
  };
  for (const Row& row : {Row{"CIRCULAR", "CpScreenDiameter", 18, "INCHES", 457.2, "MM"},
                         Row{"CIRCULAR", "CpSurfaceArea", 1, "SF", 0.09290304, "M2"},
                         Row{"RECTANGLE", "CpLength", 6, "FEET", 1828.8, "MM"},
                         Row{"RECTANGLE", "CpWidth", 5, "FEET", 1524, "MM"},
                         Row{"RECTANGLE", "CpSurfaceArea", 1, "SF", 0.09290304, "M2"},
                         Row{"HIGH CAP", "CpSurfaceArea", 10, "SF", 0.9290304, "M2"}}) {
    PlantJson plant = screenOf(row.item, 1);
    for (const bool metric : {false, true}) {
      plant["units"] = metric ? "metric" : "customary";
      Screen screen(plant);
      screen->Size();
      EXPECT_EQ(screen->SaveParameters(), 1);
      EXPECT_NEAR(screen.number(row.slot), metric ? row.metric : row.customary, 1e-9) << row.slot;
      EXPECT_EQ(screen.units(row.slot), metric ? row.metricUnits : row.units) << row.slot;
      EXPECT_EQ(screen.text("CpNumberItems"), "1");
    }
  }
}

TEST(ScreenResults, Tell_at_most_3_decks_of_shaped_screens) {
  for (const auto& [item, decks] : {std::pair("CIRCULAR", "3"), std::pair("RECTANGLE", "3")}) {
    PlantJson plant = screenOf(item, 10);
    recordOf(plant)["CpNumberDecks"] = 5;
    Screen screen(plant);
    screen->Size();
    screen->SaveParameters();
    EXPECT_EQ(screen.text("CpNumberDecks"), decks);
  }
  PlantJson plant = screenOf("HIGH CAP", 390);
  recordOf(plant)["CpNumberDecks"] = 5;
  Screen plain(plant);
  plain->Size();
  plain->SaveParameters();
  EXPECT_EQ(plain.text("CpNumberDecks"), "5");
}

TEST(ScreenPorts, Are_rewritten_under_the_usual_tags) {
  Screen screen(screenPlant("CIRCULAR"));
  screen->Size();
  EXPECT_EQ(screen->UpdateConnectivity(), 1);
  EXPECT_EQ(screen.text("_in__1"), "F\nPROCESS\nINLET");
  EXPECT_EQ(screen.text("_ex__1"), "P\nPROCESS\nOUTLET");
}

TEST(ScreenResults, Are_those_of_the_shape_only) {
  struct Row {
    const char* item;
    std::vector<const char*> absent;
  };
  for (const Row& row :
       {Row{"CIRCULAR", {"CpLength", "CpWidth"}}, Row{"RECTANGLE", {"CpScreenDiameter"}},
        Row{"HIGH CAP", {"CpLength", "CpWidth", "CpScreenDiameter"}}}) {
    Screen screen(screenPlant(row.item));
    screen->Size();
    screen->SaveParameters();
    for (const char* slot : row.absent) EXPECT_FALSE(screen.has(slot)) << row.item << slot;
  }
}

TEST(ScreenResults, Tell_items_and_decks_as_whole_numbers) {
  struct Row {
    const char* item;
    double area;
    double decks;
    const char* items;
    const char* told;
  };
  for (const Row& row : {Row{"CIRCULAR", 20, 0, "2", "0"}, Row{"CIRCULAR", 20, 2, "2", "2"},
                         Row{"RECTANGLE", 600, 3, "4", "3"}, Row{"HIGH CAP", 4001, 2, "50", "1"}}) {
    PlantJson plant = screenOf(row.item, row.area);
    recordOf(plant)["NUMBER OF DECKS"] = row.decks;
    Screen screen(plant);
    screen->Size();
    screen->SaveParameters();
    EXPECT_EQ(screen.text("CpNumberItems"), row.items) << row.item;
    EXPECT_EQ(screen.text("CpNumberDecks"), row.told) << row.item;
  }
}

TEST(ScreenResults, Of_no_flow_are_the_least_size) {
  PlantJson plant = screenPlant("RECTANGLE");
  slotsOf(plant, "F") = PlantJson::object();
  Screen screen(plant);
  screen->Size();
  EXPECT_EQ(screen->Commit(), 1);
  EXPECT_EQ(screen.number("CpLength"), 6);
  EXPECT_EQ(screen.number("CpWidth"), 3);
  EXPECT_EQ(screen.text("CpNumberItems"), "1");
}

}  // namespace
}  // namespace sizewright
