#include "sizewright/separation/plain_item.h"

#include <gtest/gtest.h>

#include "separation/solids_plant.h"

namespace sizewright {
namespace {

using Plain = SolidsItem<CQObj>;

PlantJson plainPlant(const char* category = "C") {
  return solidsPlant(category, "ANY", "OUTLET");
}

TEST(PlainItem, Without_any_stream_is_sized_all_the_same) {
  PlantJson plant = plainPlant();
  itemOf(plant).erase("inlets");
  itemOf(plant).erase("exits");
  EXPECT_EQ(Plain(plant)->Size(), 1);
  EXPECT_EQ(Plain(plant)->GetStreamInfo(), 1);
}

TEST(PlainItem, Has_no_form) {
  expectNoForm<CQObj>(plainPlant());
}

TEST(PlainItem, Keeps_its_ports) {
  Plain item(plainPlant());
  item->Size();
  EXPECT_EQ(item->UpdateConnectivity(), 1);
  EXPECT_EQ(item.text("_in__1"), "F\nPROCESS\nINLET");
  EXPECT_EQ(item.text("_ex__1"), "P\nPROCESS\nOUTLET");
}

TEST(PlainItem, Gets_cost_defaults_where_its_record_says_nothing) {
  for (const char* nothing : {"", "?"}) {
    PlantJson plant = plainPlant();
    recordOf(plant) = {{"CpCodeOfAccount", nothing}, {"CpMaterialCostPerUnit", nothing}};
    Plain item(plant);
    EXPECT_EQ(item->SaveParameters(), 1);
    EXPECT_EQ(item.text("CpCodeOfAccount"), "100");
    EXPECT_EQ(item.text("CpMaterialCostPerUnit"), "0.000000");
  }
  Plain missing(plainPlant());
  missing->SaveParameters();
  EXPECT_EQ(missing.text("CpCodeOfAccount"), "100");
}

TEST(PlainItem, Keeps_what_its_record_says) {
  PlantJson plant = plainPlant();
  recordOf(plant) = {{"CpCodeOfAccount", "105"}, {"CpMaterialCostPerUnit", 12.5}};
  Plain item(plant);
  item->SaveParameters();
  EXPECT_EQ(item.text("CpCodeOfAccount"), "105");
  EXPECT_EQ(item.number("CpMaterialCostPerUnit"), 12.5);
}

TEST(PlainItem, Of_another_family_is_not_touched) {
  PlantJson mixer = plainPlant("DMX");
  PlantJson plateFin = plainPlant("C");
  itemOf(plateFin)["class"] = "CQObj";
  blockOf(plateFin)["ITEM MODEL"] = "LNG";
  for (const PlantJson& plant : {mixer, plateFin}) {
    Plain item(plant);
    EXPECT_EQ(item->SaveParameters(), 1);
    EXPECT_FALSE(item.has("CpCodeOfAccount"));
    EXPECT_FALSE(item.has("CpMaterialCostPerUnit"));
  }
}

}  // namespace
}  // namespace sizewright
