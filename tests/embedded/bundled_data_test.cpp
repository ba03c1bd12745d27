#include "sizewright/embedded/bundled_data.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>
#include <map>
#include <nlohmann/json.hpp>
#include <set>

#include "sizewright/embedded/embedded_files.h"
#include "sizewright/embedded/unit_table.h"
#include "sizewright/host/text.h"

namespace sizewright {
namespace {

const DataObject* findObject(std::string_view name) {
  for (const DataObject& object : bundledData().objects) {
    if (equalsIgnoringCase(object.name, name)) return &object;
  }
  return nullptr;
}

CvdSlot findSlot(std::string_view object, std::string_view slot) {
  const DataObject* const found = findObject(object);
  if (found == nullptr) return {};
  for (const auto& [name, value] : found->slots) {
    if (equalsIgnoringCase(name, slot)) return value;
  }
  return {};
}

double numberOf(std::string_view text) {
  double number = 0.0;
  EXPECT_EQ(convert_to_double(text, &number), 0) << text;
  return number;
}

const DataObject& objectOf(std::string_view name) {
  static const DataObject none;
  const DataObject* const found = findObject(name);
  EXPECT_NE(found, nullptr) << name;
  return found != nullptr ? *found : none;
}

// --- The files ----------------------------------------------------------------------------------

TEST(BundledFiles, Each_says_what_it_is_and_where_it_comes_from) {
  const std::set<std::string> known = {"title",        "units",     "source", "notes",
                                       "objects",      "charts",    "fluids", "utilities",
                                       "design rules", "quantities"};
  int files = 0;
  for (const EmbeddedFile& file : embeddedFiles()) {
    if (!file.name.starts_with("data/")) continue;
    ++files;
    const auto json = nlohmann::ordered_json::parse(file.text);
    EXPECT_FALSE(json.at("title").get<std::string>().empty()) << file.name;
    EXPECT_TRUE(json.at("source").is_object() && !json.at("source").empty()) << file.name;
    EXPECT_TRUE(json.at("notes").is_array() && !json.at("notes").empty()) << file.name;
    for (const auto& [key, value] : json.items()) {
      EXPECT_TRUE(known.contains(key)) << file.name << ": " << key;
    }
  }
  EXPECT_GE(files, 11);
}

TEST(BundledFiles, No_object_and_no_slot_comes_twice) {
  std::set<std::string> names;
  for (const DataObject& object : bundledData().objects) {
    EXPECT_TRUE(names.insert(object.name).second) << object.name;
    std::set<std::string> slots;
    for (const auto& [slot, value] : object.slots) {
      EXPECT_TRUE(slots.insert(slot).second) << object.name << ": " << slot;
      EXPECT_TRUE(value.IsValid()) << object.name << ": " << slot;
    }
  }
}

TEST(BundledData, Is_read_once) {
  EXPECT_EQ(&bundledData(), &bundledData());
}

// --- What the library looks up ------------------------------------------------------------------

constexpr std::string_view kLiquidClasses[] = {
    "Liquid",
    "Water",
    "Light Hydrocarbon Liquid",
    "Medium Hydrocarbon Liquid",
    "Heavy Hydrocarbon Liquid",
    "Very Heavy Hydrocarbon Liquid",
    "Halogenated Liquid",
    "Miscellaneous Organic Liquid",
    "Inorganic Liquid",
    "Alcohol",
    "Organic Acid",
    "Aromatic Liquid",
};
constexpr std::string_view kGasClasses[] = {
    "Gas",
    "Steam",
    "Air",
    "Hydrocarbon Gas",
    "Halogenated Gas",
    "Inorganic Gas",
    "Miscellaneous Organic Gas",
    "Ammonia",
    "Refrigerant",
};

std::vector<std::string_view> allClasses() {
  std::vector<std::string_view> classes(std::begin(kLiquidClasses), std::end(kLiquidClasses));
  classes.insert(classes.end(), std::begin(kGasClasses), std::end(kGasClasses));
  return classes;
}

struct SlotRow {
  const char* object;
  const char* slot;
};

constexpr SlotRow kNumbers[] = {
    {"Sieve tray parameters", "outlet weir height"},
    {"Sieve tray parameters", "Fractional hole area"},
    {"Sieve tray parameters", "Flooding factor"},
    {"Sieve tray thickness", "US 14 GAGE"},
    {"Sieve tray derating factor", "Low"},
    {"Sieve tray downcomer liquid velocity - 18 TS", "Low"},
    {"Sieve tray downcomer liquid velocity - 24 TS", "Low"},
    {"Sieve tray downcomer liquid velocity - 30 TS", "Low"},
    {"Packing Factors for Random Packings", "1.0PPR"},
    {"Thermal Conductivity - Tube Materials", "CS"},
    {"Air", "Overall coefficient - condensation - Hydrocarbon Gas"},
    {"Air", "Overall coefficient - condensation - Halogenated Gas"},
    {"Air", "Overall coefficient - condensation - Miscellaneous Organic Gas"},
    {"Air", "Overall coefficient - condensation - Inorganic Gas"},
    {"Air", "Overall coefficient - Sensible - Very Heavy Hydrocarbon Liquid"},
    {"Air", "Overall coefficient - Sensible - Heavy Hydrocarbon Liquid"},
    {"Air", "Overall coefficient - Sensible - Heavy Hydrocarbon Liquid "},
    {"Air", "Overall coefficient - Sensible - Medium Hydrocarbon Liquid"},
    {"Air", "Overall coefficient - Sensible - Light Hydrocarbon Liquid"},
    {"Air", "Overall coefficient - Sensible - Light Hydrocarbon Liquid - 10PSI"},
    {"Air", "Overall coefficient - Sensible - Light Hydrocarbon Liquid - 50PSI"},
    {"Air", "Overall coefficient - Sensible - Light Hydrocarbon Liquid - 100PSI"},
    {"Air", "Overall coefficient - Sensible - Light Hydrocarbon Liquid - 300PSI"},
    {"Air", "Overall coefficient - Sensible - Alcohol"},
    {"Air", "Overall coefficient - Sensible - Organic Acid"},
    {"Air", "Overall coefficient - Sensible - Miscellaneous Organic Liquid"},
    {"Air", "Overall coefficient - Sensible - Aromatic Liquid"},
    {"Air", "Overall coefficient - Sensible - Water"},
};

TEST(BundledObjects, Hold_every_number_that_is_looked_up) {
  for (const SlotRow& row : kNumbers) {
    EXPECT_GT(findSlot(row.object, row.slot).Number(), 0.0) << row.object << ": " << row.slot;
  }
  EXPECT_STREQ(findSlot("Sieve tray parameters", "Pitch").Text(), "TRIANGULAR");
}

TEST(BundledObjects, Hold_film_and_fouling_resistances_of_every_class) {
  const auto hold = [](std::string_view fluid, std::string_view slot) {
    const double value = findSlot(fluid, slot).Number();
    EXPECT_TRUE(value >= 0.00005 && value < 0.2) << fluid << ": " << slot << " is " << value;
  };
  const auto holdCommon = [&hold](std::string_view fluid) {
    for (const char* kind : {"Film", "Fouling"}) {
      for (const char* process : {"sensible", "condensation", "vaporization", "sensible - heating",
                                  "sensible - cooling"}) {
        hold(fluid, std::string(kind) + " resistance - " + process);
      }
    }
  };
  for (const std::string_view fluid : kLiquidClasses) holdCommon(fluid);
  for (const std::string_view fluid : kGasClasses) {
    holdCommon(fluid);
    for (const char* pressure : {"10PSI", "50PSI", "100PSI", "300PSI", "500PSI"}) {
      hold(fluid, std::string("Film resistance - sensible - ") + pressure);
    }
    for (const char* pressure : {"10PSI", "30PSI", "50PSI", "100PSI", "300PSI", "500PSI"}) {
      hold(fluid, std::string("Fouling resistance - sensible - ") + pressure);
    }
  }
}

TEST(BundledObjects, The_film_resistance_of_a_gas_falls_with_pressure) {
  for (const std::string_view fluid : kGasClasses) {
    double previous = 1.0;
    for (const char* pressure : {"10PSI", "50PSI", "100PSI", "300PSI", "500PSI"}) {
      const double film =
          findSlot(fluid, std::string("Film resistance - sensible - ") + pressure).Number();
      EXPECT_LT(film, previous) << fluid << " " << pressure;
      previous = film;
    }
  }
}

TEST(BundledObjects, Air_cooler_limits_are_ordered_and_in_the_usual_range) {
  const auto check = [](std::string_view fluid, const std::string& process) {
    const double lower = findSlot(fluid, "U_AC LOWER LIMIT - " + process).Number();
    const double upper = findSlot(fluid, "U_AC UPPER LIMIT - " + process).Number();
    EXPECT_TRUE(lower >= 5.0 && lower < upper && upper <= 250.0)
        << fluid << ": " << process << " " << lower << " to " << upper;
  };
  for (const std::string_view fluid : allClasses()) {
    check(fluid, "condensation");
    for (const char* pressure : {"<=50PSI", "<=100PSI", "<=300PSI", "<=500PSI", ">500PSI"}) {
      check(fluid, std::string("Sensible ") + pressure);
    }
  }
}

TEST(BundledObjects, Overall_coefficients_of_air_coolers_are_in_the_usual_range) {
  int coefficients = 0;
  for (const auto& [slot, value] : objectOf("Air").slots) {
    if (!slot.starts_with("Overall coefficient - ")) continue;
    ++coefficients;
    EXPECT_TRUE(value.Number() >= 10.0 && value.Number() <= 150.0) << slot;
  }
  EXPECT_GT(coefficients, 40);
}

TEST(BundledObjects, The_boiling_point_of_a_class_is_that_of_its_fluid) {
  const UnitTable units(0);
  for (const std::string_view fluid : allClasses()) {
    const CvdSlot slot = findSlot(fluid, "Tb");
    ASSERT_TRUE(slot.HasUnits()) << fluid;
    double boiling = slot.Number();
    ASSERT_TRUE(units.convert(slot.Units(), "DEG K", boiling));
    const auto data = bundledData().fluids.find(fluid);
    ASSERT_NE(data, bundledData().fluids.end()) << fluid;
    EXPECT_NEAR(boiling, *data->second.boilingPoint, 0.1) << fluid;
  }
}

// --- Tables -------------------------------------------------------------------------------------

TEST(BundledTables, Line_velocity_rises_with_flow_and_is_text_that_converts) {
  double flow = 0.0;
  double velocity = 0.0;
  for (const auto& [key, value] : objectOf("LIQUID_LINE_GPM_FPS_RELATION").slots) {
    ASSERT_TRUE(value.IsText()) << key;
    EXPECT_GT(numberOf(key), flow) << key;
    EXPECT_GE(numberOf(value.Text()), velocity) << key;
    flow = numberOf(key);
    velocity = numberOf(value.Text());
  }
  EXPECT_EQ(flow, 10000.0);
  EXPECT_EQ(velocity, 10.0);
}

TEST(BundledTables, Downcomer_velocity_rises_with_spacing_and_falls_with_foaming) {
  const char* const objects[] = {"Sieve tray downcomer liquid velocity - 18 TS",
                                 "Sieve tray downcomer liquid velocity - 24 TS",
                                 "Sieve tray downcomer liquid velocity - 30 TS"};
  const char* const foaming[] = {"Low", "Moderate", "High"};
  for (std::size_t i = 0; i < std::size(objects); ++i) {
    for (std::size_t j = 0; j < std::size(foaming); ++j) {
      const double velocity = findSlot(objects[i], foaming[j]).Number();
      EXPECT_TRUE(velocity > 0.1 && velocity < 1.0);
      if (i > 0) {
        EXPECT_GE(velocity, findSlot(objects[i - 1], foaming[j]).Number());
      }
      if (j > 0) {
        EXPECT_LT(velocity, findSlot(objects[i], foaming[j - 1]).Number());
      }
    }
  }
  EXPECT_GT(findSlot("Sieve tray derating factor", "Low").Number(),
            findSlot("Sieve tray derating factor", "High").Number());
  EXPECT_GT(findSlot("Sieve tray thickness", "US 10 GAGE").Number(),
            findSlot("Sieve tray thickness", "US 16 GAGE").Number());
}

// "1.0PPR": size in inches and a kind of three letters.
TEST(BundledTables, Packing_factors_and_areas_fall_with_size) {
  for (const char* table :
       {"Packing Factors for Random Packings", "Surface Area for Random Packings"}) {
    std::map<std::string, std::map<double, double>> kinds;
    for (const auto& [code, value] : objectOf(table).slots) {
      ASSERT_GT(code.size(), 3U);
      const std::string kind = code.substr(code.size() - 3);
      EXPECT_TRUE(findSlot("Packing Codes", kind).IsText()) << code;
      const std::string size = code.substr(0, code.size() - 3);
      EXPECT_NE(size.find('.'), std::string::npos) << code;
      kinds[kind][numberOf(size)] = value.Number();
    }
    EXPECT_GE(kinds.size(), 7U);
    for (const auto& [kind, bySize] : kinds) {
      double previous = 5000.0;
      for (const auto& [size, value] : bySize) {
        EXPECT_TRUE(value > 5.0 && value < previous) << table << " " << size << kind;
        previous = value;
      }
    }
  }
}

TEST(BundledTables, Screen_capacity_rises_with_the_opening) {
  const char* const openings[] = {"0.375", "0.5", "0.75", "0.875", "1.",  "1.125",
                                  "1.25",  "1.5", "1.75", "2.",    "2.5", "3."};
  for (const char* material : {"Sand and Gravel", "Crushed Stone", "Coal", "Coke", "Clay", "Ore"}) {
    const DataObject& object = objectOf(material);
    ASSERT_EQ(object.slots.size(), std::size(openings)) << material;
    double previous = 0.3;
    for (std::size_t i = 0; i < std::size(openings); ++i) {
      EXPECT_EQ(object.slots[i].first, openings[i]) << material;
      EXPECT_GT(object.slots[i].second.Number(), previous) << material << " " << openings[i];
      previous = object.slots[i].second.Number();
    }
    EXPECT_LT(previous, 10.0) << material;
  }
}

TEST(BundledTables, Tube_materials_conduct_as_metals_do) {
  for (const auto& [material, value] : objectOf("Thermal Conductivity - Tube Materials").slots) {
    EXPECT_TRUE(value.Number() >= 5.0 && value.Number() <= 250.0) << material;
  }
}

// "1,2,4,6 passes" of each shell.
using Counts = std::array<int, 4>;

Counts countsOf(const CvdSlot& slot) {
  Counts counts{};
  const std::vector<std::string> parts = splitText(slot.Text(), ',');
  EXPECT_EQ(parts.size(), counts.size()) << slot.Text();
  for (std::size_t i = 0; i < std::min(parts.size(), counts.size()); ++i) {
    counts[i] = static_cast<int>(numberOf(parts[i]));
  }
  return counts;
}

TEST(BundledTubeCounts, The_index_names_the_tables_there_are) {
  std::set<std::string> listed;
  for (const auto& [name, value] : objectOf("Tube-Sheet Tube Hole Count").slots) {
    EXPECT_NE(findObject(name), nullptr) << name;
    listed.insert(name);
  }
  EXPECT_EQ(listed.size(), 15U);
  for (const DataObject& object : bundledData().objects) {
    if (object.name.starts_with("Tubecount - ")) {
      EXPECT_TRUE(listed.contains(object.name)) << object.name;
    }
  }
}

TEST(BundledTubeCounts, Rise_with_the_shell_and_fall_with_the_passes) {
  // Printed with more tubes at two passes than at one, and kept so.
  const std::set<std::pair<std::string, std::string>> kept = {
      {"Tubecount - 1.00 - 1.25 - TRIANGULAR - LM", "8"},
      {"Tubecount - 1.00 - 1.25 - SQUARE - LM", "23.25"},
      {"Tubecount - 1.00 - 1.25 - SQUARE - PS", "23.25"},
  };
  for (const auto& [name, value] : objectOf("Tube-Sheet Tube Hole Count").slots) {
    double shell = 0.0;
    Counts previous{};
    for (const auto& [key, counts] : objectOf(name).slots) {
      SCOPED_TRACE(name + ", shell " + key);
      EXPECT_GT(numberOf(key), shell);
      shell = numberOf(key);
      const Counts row = countsOf(counts);
      for (std::size_t i = 0; i < row.size(); ++i) {
        EXPECT_TRUE(row[i] > previous[i] || row[i] == 0) << "column " << i;
      }
      if (!kept.contains({name, key})) {
        EXPECT_GE(row[0], row[1]);
      }
      EXPECT_GE(row[1], row[2]);
      EXPECT_GE(row[2], row[3]);
      previous = row;
    }
    EXPECT_EQ(shell, 60.0) << name;
  }
}

TEST(BundledTubeCounts, The_tubes_fit_into_the_shell) {
  for (const auto& [name, value] : objectOf("Tube-Sheet Tube Hole Count").slots) {
    // "Tubecount - 0.75 - 0.94 - TRIANGULAR - PS"
    const double pitch = numberOf(name.substr(19, 4));
    const double share = name.find("TRIANGULAR") != std::string::npos ? 0.866 : 1.0;
    for (const auto& [key, counts] : objectOf(name).slots) {
      const double shell = numberOf(key);
      const double cells = 0.7854 * shell * shell / (share * pitch * pitch);
      EXPECT_LT(countsOf(counts)[0], cells) << name << " " << key;
      if (shell > 20.0) {
        EXPECT_GT(countsOf(counts)[0], 0.5 * cells) << name << " " << key;
      }
    }
  }
}

// --- Charts -------------------------------------------------------------------------------------

TEST(BundledCharts, Have_rising_axes_and_a_value_for_each_point) {
  int charts = 0;
  for (const auto& [object, variables] : bundledData().charts) {
    for (const auto& [variable, chart] : variables) {
      SCOPED_TRACE(object + ", " + variable);
      ++charts;
      const auto rises = [](const std::vector<double>& axis) {
        return axis.size() > 1 && axis.front() > 0.0 &&
               std::adjacent_find(axis.begin(), axis.end(), std::greater_equal<>()) == axis.end();
      };
      EXPECT_TRUE(rises(chart.x) && rises(chart.y));
      ASSERT_EQ(chart.z.size(), chart.x.size());
      for (const std::vector<double>& row : chart.z) {
        ASSERT_EQ(row.size(), chart.y.size());
        EXPECT_GT(*std::min_element(row.begin(), row.end()), 0.0);
      }
    }
  }
  EXPECT_EQ(charts, 4);
}

const Chart& chartOf(std::string_view object, std::string_view variable) {
  return bundledData().charts.find(object)->second.find(variable)->second;
}

TEST(BundledCharts, Vapor_capacity_follows_the_limit_line_at_low_density) {
  const Chart& chart = chartOf("Vapor Capacity Factor", "TS");
  EXPECT_EQ(chart.x.front(), 12.0);  // spacing, INCHES
  EXPECT_EQ(chart.y.back(), 12.0);   // density, PCF
  for (std::size_t i = 0; i < chart.x.size(); ++i) {
    for (std::size_t j = 0; j < chart.y.size(); ++j) {
      if (chart.y[j] >= 0.17) continue;
      const double limit = std::pow(chart.x[i], 0.65) * std::pow(chart.y[j], 1.0 / 6.0) / 12.0;
      EXPECT_LT(chart.z[i][j], limit + 0.0001) << chart.x[i] << " " << chart.y[j];
      if (j == 0) {
        EXPECT_NEAR(chart.z[i][j], limit, 0.0001);
      }
    }
    if (i == 0) continue;
    for (std::size_t j = 0; j < chart.y.size(); ++j) EXPECT_GT(chart.z[i][j], chart.z[i - 1][j]);
  }
}

TEST(BundledCharts, Packing_capacity_rises_with_pressure_drop_and_falls_with_the_flow_parameter) {
  for (const char* object :
       {"Pressure Drop for Random Packings", "Pressure Drop for Random Packings - Eckert chart",
        "Pressure Drop for Structured Packings"}) {
    const Chart& chart = chartOf(object, "dP");
    EXPECT_EQ(chart.x.front(), 0.05);
    for (std::size_t i = 0; i < chart.x.size(); ++i) {
      for (std::size_t j = 0; j < chart.y.size(); ++j) {
        EXPECT_LT(chart.z[i][j], 3.5);
        if (i > 0) {
          EXPECT_GT(chart.z[i][j], chart.z[i - 1][j]) << object;
        }
        if (j > 0) {
          EXPECT_LE(chart.z[i][j], chart.z[i][j - 1]) << object;
        }
      }
    }
  }
}

TEST(BundledCharts, Packing_capacity_is_the_closed_form_of_its_constants) {
  const auto constant = [](const char* name) {
    return findSlot("Pressure Drop for Random Packings - constants", name).Number();
  };
  const Chart& chart = chartOf("Pressure Drop for Random Packings", "dP");
  for (std::size_t i = 0; i < chart.x.size(); ++i) {
    for (std::size_t j = 0; j < chart.y.size(); ++j) {
      const double dp = chart.x[i];
      const double flow = chart.y[j];
      const double rise = constant("C1") * std::pow(dp, constant("C2")) *
                          (1.0 - std::exp(constant("C6") * std::pow(flow, constant("C7"))));
      const double fall = 1.0 + constant("C3") * std::pow(dp, constant("C2") / constant("C4")) *
                                    std::pow(flow, constant("C5"));
      EXPECT_NEAR(chart.z[i][j], rise / std::pow(fall, constant("C4")), 0.002) << dp << " " << flow;
    }
  }
}

// --- Fluids, utilities, rules -------------------------------------------------------------------

TEST(BundledFluids, Have_every_class_and_sound_constants) {
  for (const std::string_view fluid : allClasses()) {
    EXPECT_TRUE(bundledData().fluids.contains(fluid)) << fluid;
  }
  EXPECT_EQ(bundledData().fluids.size(), 53U);
  for (const auto& [name, fluid] : bundledData().fluids) {
    SCOPED_TRACE(name);
    ASSERT_TRUE(fluid.molecularWeight && fluid.boilingPoint && fluid.criticalTemperature &&
                fluid.criticalPressure && fluid.latentHeat && fluid.liquidDensity);
    EXPECT_TRUE(*fluid.boilingPoint > 15.0 && *fluid.boilingPoint < *fluid.criticalTemperature);
    EXPECT_TRUE(*fluid.criticalPressure > 5.0 && *fluid.criticalPressure < 250.0);
    EXPECT_TRUE(*fluid.latentHeat > 50.0 && *fluid.latentHeat < 1000.0);
    EXPECT_TRUE(*fluid.liquidDensity > 0.05 && *fluid.liquidDensity < 1.6);
    for (const std::optional<Fit>* fit :
         {&fluid.liquidHeatCapacity, &fluid.gasHeatCapacity, &fluid.liquidViscosity,
          &fluid.gasViscosity, &fluid.liquidConductivity, &fluid.gasConductivity}) {
      ASSERT_TRUE(*fit);
      if ((*fit)->validTemperatures) {
        EXPECT_LT((*(*fit)->validTemperatures)[0], (*(*fit)->validTemperatures)[1]);
      }
    }
  }
}

TEST(BundledFluids, The_latent_heat_obeys_Trouton) {
  // 17 to 28 cal/mol K at the boiling point; hydrogen, a quantum fluid, has 11.
  for (const auto& [name, fluid] : bundledData().fluids) {
    if (name == "Compound - Hydrogen") continue;
    const double ratio = *fluid.latentHeat / 1.8 * *fluid.molecularWeight / *fluid.boilingPoint;
    EXPECT_TRUE(ratio > 14.5 && ratio < 29.0) << name << " " << ratio;
  }
}

TEST(BundledUtilities, Come_in_order_with_every_slot_that_is_read) {
  const std::vector<DataObject>& utilities = bundledData().utilities;
  ASSERT_EQ(utilities.size(), 12U);
  EXPECT_EQ(utilities.front().name, "Steam @100PSI");
  EXPECT_EQ(utilities[4].name, "Cooling water");
  EXPECT_EQ(utilities.back().name, "Ethylene refrigerant @-150F");
  const UnitTable units(0);
  for (const DataObject& utility : utilities) {
    SCOPED_TRACE(utility.name);
    std::map<std::string, CvdSlot> slots(utility.slots.begin(), utility.slots.end());
    for (const char* text : {"Description", "Fluid", "Utility type", "Enabled", "Temperature units",
                             "Pressure units", "Energy units", "Unit Cost Units"}) {
      EXPECT_TRUE(slots[text].IsText()) << text;
    }
    for (const char* number :
         {"Inlet temperature", "Exit temperature", "Pressure", "Design Pressure",
          "Design Temperature", "Energy transfer per unit mass", "Unit Cost"}) {
      EXPECT_TRUE(slots[number].IsNumber()) << number;
    }
    EXPECT_TRUE(UnitTable::knows(slots["Temperature units"].Text()));
    EXPECT_TRUE(UnitTable::knows(slots["Pressure units"].Text()));
    EXPECT_TRUE(UnitTable::knows(slots["Energy units"].Text()));
    const bool source = sameWord(slots["Utility type"].Text(), "Heat Source");
    EXPECT_TRUE(source || sameWord(slots["Utility type"].Text(), "Heat Sink"));
    const double change = slots["Exit temperature"].Number() - slots["Inlet temperature"].Number();
    EXPECT_TRUE(source ? change <= 0.0 : change >= 0.0);
    EXPECT_GT(slots["Design Pressure"].Number(), slots["Pressure"].Number());
    EXPECT_GT(slots["Energy transfer per unit mass"].Number(), 5.0);
  }
}

TEST(BundledDesignRules, Are_the_usual_ones) {
  const DesignRules& rules = bundledData().designRules;
  ASSERT_EQ(rules.pressure.size(), 2U);
  EXPECT_FALSE(rules.pressure[0].from);
  EXPECT_EQ(rules.pressure[0].value, -14.695948775513);
  EXPECT_EQ(rules.pressure[1].from, 0.0);
  EXPECT_EQ(rules.pressure[1].factor, 1.1);
  EXPECT_EQ(rules.pressure[1].atLeast, 25.0);
  ASSERT_EQ(rules.temperature.size(), 1U);
  EXPECT_EQ(rules.temperature[0].add, 50.0);
}

}  // namespace
}  // namespace sizewright
