// What holds for every item whatever its class: the unit system changes how results are written and
// nothing else.
#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <nlohmann/json.hpp>

#include "sizewright/embedded/item_run.h"
#include "support/test_plant.h"

namespace sizewright {
namespace {

using Json = nlohmann::ordered_json;

Json goldenPlant(const char* units) {
  Json plant = Json::parse(std::ifstream(SIZEWRIGHT_SOURCE "/tests/golden/plant.json"));
  plant["units"] = units;
  return plant;
}

// The results of an item that has been sized.
std::vector<std::pair<std::string, CvdSlot>> resultsOf(TestPlant& plant, const PlantItem& item) {
  EXPECT_TRUE(ItemRun(plant.host(), item).size()) << item.name;
  const StoredObject* record = plant.plant().componentOf(item);
  std::vector<std::pair<std::string, CvdSlot>> results;
  for (std::size_t i = 0; i < record->slotNames.size(); ++i) {
    results.emplace_back(plant.plant().store.text(record->slotNames[i]), record->slotValues[i]);
  }
  return results;
}

void expectSameMeasure(const CvdSlot& customary, const CvdSlot& metric, const std::string& where) {
  ASSERT_EQ(customary.IsNumber(), metric.IsNumber()) << where;
  if (!customary.IsNumber()) {
    EXPECT_TRUE(customary == metric) << where;
    return;
  }
  ASSERT_EQ(customary.HasUnits(), metric.HasUnits()) << where;
  const double number = customary.HasUnits()
                            ? converted(metric.Number(), metric.Units(), customary.Units())
                            : metric.Number();
  EXPECT_NEAR(number, customary.Number(), 1e-9 * std::max(1.0, std::abs(customary.Number())))
      << where;
}

TEST(EveryItem, Is_the_same_thing_in_customary_and_in_metric_units) {
  TestPlant customary(goldenPlant("customary").dump());
  std::vector<std::vector<std::pair<std::string, CvdSlot>>> expected;
  for (const PlantItem& item : customary.plant().items) {
    expected.push_back(resultsOf(customary, item));
  }
  TestPlant metric(goldenPlant("metric").dump());
  for (std::size_t i = 0; i < expected.size(); ++i) {
    const PlantItem& item = metric.plant().items[i];
    const auto results = resultsOf(metric, item);
    ASSERT_EQ(results.size(), expected[i].size()) << item.name;
    const bool isTank = item.itemCode == "STORAGE";  // its volume has its unit in another slot
    for (std::size_t k = 0; k < results.size(); ++k) {
      const auto& [slot, value] = results[k];
      ASSERT_EQ(slot, expected[i][k].first) << item.name;
      if (isTank && (slot == "CpVolumeUnits" || slot == "CpLiquidVolume")) continue;
      expectSameMeasure(expected[i][k].second, value, item.name + ": " + slot);
    }
  }
}

TEST(EveryItem, Has_the_lists_that_it_leaves_behind_reclaimed_and_counted) {
  TestPlant plant(goldenPlant("customary").dump());
  std::size_t abandoned = 0;
  for (const PlantItem& item : plant.plant().items) {
    ItemRun(plant.host(), item).size();
    const std::size_t left = plant.host().lists().live();
    EXPECT_EQ(plant.host().select(item), left) << item.name;
    EXPECT_EQ(plant.host().lists().live(), 0u) << item.name;
    abandoned += left;
  }
  EXPECT_GT(abandoned, 0u);  // pumps, compressors and vessels leave their exits behind
}

}  // namespace
}  // namespace sizewright
