#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "sizewright/embedded/data_json.h"

namespace sizewright {
namespace {

using nlohmann::ordered_json;

ordered_json json(const char* text) {
  return ordered_json::parse(text);
}

TEST(SlotJson, Each_form_is_read) {
  EXPECT_TRUE(slotFromJson(json(R"("text")")) == CvdSlot::ofText("text"));
  EXPECT_TRUE(slotFromJson(json("12.5")) == CvdSlot::ofNumber(12.5));
  EXPECT_TRUE(slotFromJson(json("70")) == CvdSlot::ofNumber(70.0));
  EXPECT_TRUE(slotFromJson(json(R"([12.5, "PSI"])")) == CvdSlot::ofNumber(12.5, "PSI"));
  EXPECT_TRUE(slotFromJson(json(R"([3, ""])")) == CvdSlot::ofNumber(3.0));
  EXPECT_TRUE(slotFromJson(json(R"(["S1", "S2"])")) == CvdSlot::ofList({"S1", "S2"}));
  EXPECT_TRUE(slotFromJson(json(R"(["12.5", "PSI"])")) == CvdSlot::ofList({"12.5", "PSI"}));
  EXPECT_TRUE(slotFromJson(json("[]")) == CvdSlot::ofText(""));
}

TEST(SlotJson, A_text_with_line_feeds_and_the_list_of_its_lines_are_the_same) {
  EXPECT_TRUE(slotFromJson(json(R"("a\nb")")) == slotFromJson(json(R"(["a", "b"])")));
}

TEST(SlotJson, A_list_is_written_only_when_it_has_several_lines) {
  EXPECT_EQ(slotToJson(CvdSlot::ofList({"S1", "S2"})).dump(), R"(["S1","S2"])");
  EXPECT_EQ(slotToJson(CvdSlot::ofText("S1\nS2")).dump(), R"(["S1","S2"])");
  EXPECT_EQ(slotToJson(CvdSlot::ofList({"S1"})).dump(), R"("S1")");
  EXPECT_EQ(slotToJson(CvdSlot::ofList({})).dump(), R"("")");
  EXPECT_EQ(slotToJson(CvdSlot()).dump(), "null");
}

TEST(SlotJson, What_is_written_reads_back_the_same) {
  const CvdSlot slots[] = {
      CvdSlot::ofText(""),
      CvdSlot::ofText("a \"b\" \\ \t"),
      CvdSlot::ofText("\n"),
      CvdSlot::ofText("12.5"),
      CvdSlot::ofNumber(0.1),
      CvdSlot::ofNumber(-0.0),
      CvdSlot::ofNumber(1e300),
      CvdSlot::ofNumber(5e-324),
      CvdSlot::ofNumber(1.0 / 3.0),
      CvdSlot::ofNumber(70, "DEG F"),
      CvdSlot::ofList({"", "", "x"}),
      CvdSlot::ofNumber(123456789012),
  };
  for (const CvdSlot& slot : slots) {
    const std::string text = slotToJson(slot).dump();
    const CvdSlot again = slotFromJson(ordered_json::parse(text));
    EXPECT_TRUE(again == slot) << text;
    EXPECT_EQ(std::signbit(again.Number()), std::signbit(slot.Number())) << text;
  }
}

TEST(SlotJson, A_text_that_is_not_UTF8_is_kept_and_can_be_dumped_with_replacement) {
  const CvdSlot slot = CvdSlot::ofText("caf\xE9\nna\xEFve");
  const ordered_json written = slotToJson(slot);
  EXPECT_TRUE(slotFromJson(written) == slot);
  std::string text;
  EXPECT_NO_THROW(text = written.dump(-1, ' ', false, ordered_json::error_handler_t::replace));
  EXPECT_EQ(text, "[\"caf\xEF\xBF\xBD\",\"na\xEF\xBF\xBDve\"]");
}

TEST(SlotJson, Other_shapes_are_refused) {
  const char* const texts[] = {"null",
                               "true",
                               "{}",
                               R"({"a": 1})",
                               "[1]",
                               "[1, 2]",
                               R"([1, "PSI", "x"])",
                               R"(["a", 1])",
                               "[null]",
                               R"([["a"]])",
                               R"([12.5, null])"};
  for (const char* text : texts) {
    EXPECT_THROW(slotFromJson(json(text)), std::runtime_error) << text;
  }
}

TEST(FluidJson, Every_member_is_read_and_written) {
  const char* const text = R"({
    "molecular weight": 18.0, "boiling point": 373.0, "critical temperature": 647.0,
    "critical pressure": 218.0, "acentric factor": 0.34, "latent heat": 970.0,
    "liquid density": 0.99, "liquid density temperature": 288.0, "z": 0.9,
    "heat capacity ratio": 1.3,
    "liquid heat capacity": [1.0, 2.0], "gas heat capacity": [3.0, 4.0],
    "liquid viscosity": [5.0, 6.0], "gas viscosity": [7.0, 8.0],
    "liquid conductivity": [9.0, 10.0], "gas conductivity": [11.0, 12.0],
    "valid temperatures": {"liquid heat capacity": [280.0, 400.0], "gas viscosity": [290.0, 500.0]}
  })";
  const Fluid fluid = fluidFromJson(json(text));
  EXPECT_EQ(fluid.molecularWeight, 18.0);
  EXPECT_EQ(fluid.boilingPoint, 373.0);
  EXPECT_EQ(fluid.criticalTemperature, 647.0);
  EXPECT_EQ(fluid.criticalPressure, 218.0);
  EXPECT_EQ(fluid.acentricFactor, 0.34);
  EXPECT_EQ(fluid.latentHeat, 970.0);
  EXPECT_EQ(fluid.liquidDensity, 0.99);
  EXPECT_EQ(fluid.liquidDensityTemperature, 288.0);
  EXPECT_EQ(fluid.z, 0.9);
  EXPECT_EQ(fluid.heatCapacityRatio, 1.3);
  EXPECT_EQ(fluid.liquidHeatCapacity->a, 1.0);
  EXPECT_EQ(fluid.liquidHeatCapacity->b, 2.0);
  EXPECT_EQ((*fluid.liquidHeatCapacity->validTemperatures)[1], 400.0);
  EXPECT_EQ(fluid.gasHeatCapacity->b, 4.0);
  EXPECT_FALSE(fluid.gasHeatCapacity->validTemperatures);
  EXPECT_EQ(fluid.liquidViscosity->a, 5.0);
  EXPECT_EQ(fluid.gasViscosity->a, 7.0);
  EXPECT_EQ((*fluid.gasViscosity->validTemperatures)[0], 290.0);
  EXPECT_EQ(fluid.liquidConductivity->b, 10.0);
  EXPECT_EQ(fluid.gasConductivity->a, 11.0);
  EXPECT_EQ(fluidToJson(fluid), json(text));
}

TEST(FluidJson, What_is_absent_stays_absent) {
  const Fluid fluid =
      fluidFromJson(json(R"({"molecular weight": 30, "representative compound": "x"})"));
  EXPECT_EQ(fluid.molecularWeight, 30.0);
  EXPECT_FALSE(fluid.boilingPoint || fluid.z || fluid.gasViscosity);
  EXPECT_EQ(fluidToJson(fluid).dump(), R"({"molecular weight":30.0})");
}

TEST(FluidJson, Other_shapes_are_refused) {
  for (const char* text :
       {"[]", R"({"z": "1"})", R"({"gas viscosity": 1})", R"({"gas viscosity": [1]})",
        R"({"gas viscosity": [1, "2"]})",
        R"({"gas viscosity": [1, 2], "valid temperatures": [1, 2]})",
        R"({"gas viscosity": [1, 2], "valid temperatures": {"gas viscosity": 3}})"}) {
    EXPECT_THROW(fluidFromJson(json(text)), std::runtime_error) << text;
  }
}

TEST(ChartJson, Is_read_and_written) {
  const ordered_json text = json(R"({"x": [1.0, 2.0], "y": [3.0], "z": [[4.0], [5.0]]})");
  const Chart chart = chartFromJson(text);
  EXPECT_EQ(chart.x, (std::vector<double>{1.0, 2.0}));
  EXPECT_EQ(chart.y, (std::vector<double>{3.0}));
  EXPECT_EQ(chart.z, (std::vector<std::vector<double>>{{4.0}, {5.0}}));
  EXPECT_EQ(chartToJson(chart), text);
  EXPECT_EQ(chartToJson(Chart{}).dump(), R"({"x":[],"y":[],"z":[]})");
}

TEST(ChartJson, Other_shapes_are_refused) {
  for (const char* text :
       {"[]", R"({"x": [], "y": []})", R"({"x": 1, "y": [], "z": []})",
        R"({"x": [], "y": ["a"], "z": []})", R"({"x": [], "y": [], "z": [1]})"}) {
    EXPECT_THROW(chartFromJson(json(text)), std::runtime_error) << text;
  }
}

TEST(DesignRulesJson, Rows_are_read_with_their_defaults) {
  const DesignRules rules = designRulesFromJson(json(
      R"({"pressure": [{"value": -14.7}, {"from": 0, "factor": 1.1, "at least": 25}],
          "temperature": [{"add": 50}]})"));
  ASSERT_EQ(rules.pressure.size(), 2U);
  EXPECT_EQ(rules.pressure[0].value, -14.7);
  EXPECT_FALSE(rules.pressure[0].from);
  EXPECT_EQ(rules.pressure[1].from, 0.0);
  EXPECT_EQ(rules.pressure[1].factor, 1.1);
  EXPECT_EQ(rules.pressure[1].atLeast, 25.0);
  EXPECT_FALSE(rules.pressure[1].value);
  ASSERT_EQ(rules.temperature.size(), 1U);
  EXPECT_EQ(rules.temperature[0].factor, 1.0);
  EXPECT_EQ(rules.temperature[0].add, 50.0);
  EXPECT_EQ(rules.temperature[0].atLeast, 0.0);
}

TEST(DesignRulesJson, Are_written_so_that_they_read_back) {
  const char* const text =
      R"({"pressure":[{"from":0.0,"value":1.0,"factor":1.5,"add":2.0,"at least":3.0},{}],"temperature":[]})";
  EXPECT_EQ(designRulesToJson(designRulesFromJson(json(text))).dump(), text);
  EXPECT_TRUE(designRulesFromJson(json("{}")).pressure.empty());
}

TEST(DesignRulesJson, Other_shapes_are_refused) {
  for (const char* text : {"[]", R"({"pressure": {}})", R"({"pressure": [1]})",
                           R"({"pressure": [{"from": "0"}]})", R"({"pressure": [{"form": 0}]})"}) {
    EXPECT_THROW(designRulesFromJson(json(text)), std::runtime_error) << text;
  }
}

}  // namespace
}  // namespace sizewright
