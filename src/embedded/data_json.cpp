#include "sizewright/embedded/data_json.h"

#include <array>
#include <nlohmann/json.hpp>
#include <stdexcept>

namespace sizewright {

using nlohmann::ordered_json;

namespace {

// --- Members of a fluid class -------------------------------------------------------------------

struct ConstantRow {
  const char* key;
  std::optional<double> Fluid::*member;
};

constexpr auto kConstants = std::to_array<ConstantRow>({
    {"molecular weight", &Fluid::molecularWeight},
    {"boiling point", &Fluid::boilingPoint},
    {"critical temperature", &Fluid::criticalTemperature},
    {"critical pressure", &Fluid::criticalPressure},
    {"acentric factor", &Fluid::acentricFactor},
    {"latent heat", &Fluid::latentHeat},
    {"liquid density", &Fluid::liquidDensity},
    {"liquid density temperature", &Fluid::liquidDensityTemperature},
    {"z", &Fluid::z},
    {"heat capacity ratio", &Fluid::heatCapacityRatio},
});

struct FitRow {
  const char* key;
  std::optional<Fit> Fluid::*member;
};

constexpr auto kFits = std::to_array<FitRow>({
    {"liquid heat capacity", &Fluid::liquidHeatCapacity},
    {"gas heat capacity", &Fluid::gasHeatCapacity},
    {"liquid viscosity", &Fluid::liquidViscosity},
    {"gas viscosity", &Fluid::gasViscosity},
    {"liquid conductivity", &Fluid::liquidConductivity},
    {"gas conductivity", &Fluid::gasConductivity},
});

constexpr const char* kValidTemperatures = "valid temperatures";

// --- Reading ------------------------------------------------------------------------------------

double numberOf(const ordered_json& json) {
  if (!json.is_number()) throw std::runtime_error("expected a number");
  return json.get<double>();
}

const std::string& textOf(const ordered_json& json) {
  if (!json.is_string()) throw std::runtime_error("expected a text");
  return json.get_ref<const std::string&>();
}

const ordered_json& arrayOf(const ordered_json& json) {
  if (!json.is_array()) throw std::runtime_error("expected a list");
  return json;
}

const ordered_json& objectOf(const ordered_json& json) {
  if (!json.is_object()) throw std::runtime_error("expected an object");
  return json;
}

std::array<double, 2> pairOf(const ordered_json& json) {
  if (!json.is_array() || json.size() != 2) throw std::runtime_error("expected two numbers");
  return {numberOf(json[0]), numberOf(json[1])};
}

std::vector<double> numbersOf(const ordered_json& json) {
  std::vector<double> numbers;
  numbers.reserve(json.size());
  for (const ordered_json& number : arrayOf(json)) numbers.push_back(numberOf(number));
  return numbers;
}

CvdSlot slotFromArray(const ordered_json& json) {
  if (!json.empty() && json[0].is_number()) {
    if (json.size() != 2) throw std::runtime_error("expected a number and its unit");
    return CvdSlot::ofNumber(json[0].get<double>(), textOf(json[1]));
  }
  std::vector<std::string> lines;
  lines.reserve(json.size());
  for (const ordered_json& line : json) lines.push_back(textOf(line));
  return CvdSlot::ofList(std::move(lines));
}

DesignRule ruleFromJson(const ordered_json& json) {
  DesignRule rule;
  for (const auto& [key, value] : objectOf(json).items()) {
    if (key == "from") {
      rule.from = numberOf(value);
    } else if (key == "value") {
      rule.value = numberOf(value);
    } else if (key == "factor") {
      rule.factor = numberOf(value);
    } else if (key == "add") {
      rule.add = numberOf(value);
    } else if (key == "at least") {
      rule.atLeast = numberOf(value);
    } else {
      throw std::runtime_error("a design rule has no \"" + key + "\"");
    }
  }
  return rule;
}

std::vector<DesignRule> rowsOf(const ordered_json& json, const char* key) {
  std::vector<DesignRule> rows;
  const auto found = json.find(key);
  if (found == json.end()) return rows;
  for (const ordered_json& row : arrayOf(*found)) rows.push_back(ruleFromJson(row));
  return rows;
}

// --- Writing ------------------------------------------------------------------------------------

ordered_json ruleToJson(const DesignRule& rule) {
  constexpr DesignRule kDefault;
  ordered_json json = ordered_json::object();
  if (rule.from) json["from"] = *rule.from;
  if (rule.value) json["value"] = *rule.value;
  if (rule.factor != kDefault.factor) json["factor"] = rule.factor;
  if (rule.add != kDefault.add) json["add"] = rule.add;
  if (rule.atLeast != kDefault.atLeast) json["at least"] = rule.atLeast;
  return json;
}

ordered_json rowsToJson(const std::vector<DesignRule>& rows) {
  ordered_json json = ordered_json::array();
  for (const DesignRule& row : rows) json.push_back(ruleToJson(row));
  return json;
}

}  // namespace

CvdSlot slotFromJson(const ordered_json& json) {
  if (json.is_string()) return CvdSlot::ofText(textOf(json));
  if (json.is_number()) return CvdSlot::ofNumber(json.get<double>());
  if (json.is_array()) return slotFromArray(json);
  throw std::runtime_error("expected a text, a number, a number with its unit or a list of texts");
}

ordered_json slotToJson(const CvdSlot& slot) {
  if (slot.HasUnits()) return ordered_json::array({slot.Number(), slot.Units()});
  if (slot.IsNumber()) return slot.Number();
  if (slot.IsList()) return slot.List();
  if (slot.IsText()) return slot.List().front();
  return nullptr;
}

Fluid fluidFromJson(const ordered_json& json) {
  Fluid fluid;
  objectOf(json);
  for (const ConstantRow& row : kConstants) {
    if (const auto found = json.find(row.key); found != json.end()) {
      fluid.*row.member = numberOf(*found);
    }
  }
  const auto ranges = json.find(kValidTemperatures);
  for (const FitRow& row : kFits) {
    const auto found = json.find(row.key);
    if (found == json.end()) continue;
    const auto [a, b] = pairOf(*found);
    Fit fit{a, b, {}};
    if (ranges != json.end() && objectOf(*ranges).contains(row.key)) {
      fit.validTemperatures = pairOf(ranges->at(row.key));
    }
    fluid.*row.member = fit;
  }
  return fluid;
}

ordered_json fluidToJson(const Fluid& fluid) {
  ordered_json json = ordered_json::object();
  for (const ConstantRow& row : kConstants) {
    if (fluid.*row.member) json[row.key] = *(fluid.*row.member);
  }
  ordered_json ranges = ordered_json::object();
  for (const FitRow& row : kFits) {
    const std::optional<Fit>& fit = fluid.*row.member;
    if (!fit) continue;
    json[row.key] = {fit->a, fit->b};
    if (fit->validTemperatures) ranges[row.key] = *fit->validTemperatures;
  }
  if (!ranges.empty()) json[kValidTemperatures] = std::move(ranges);
  return json;
}

Chart chartFromJson(const ordered_json& json) {
  objectOf(json);
  Chart chart;
  for (const char* key : {"x", "y", "z"}) {
    if (!json.contains(key)) throw std::runtime_error(R"(expected "x", "y" and "z")");
  }
  chart.x = numbersOf(json["x"]);
  chart.y = numbersOf(json["y"]);
  for (const ordered_json& row : arrayOf(json["z"])) chart.z.push_back(numbersOf(row));
  return chart;
}

ordered_json chartToJson(const Chart& chart) {
  return {{"x", chart.x}, {"y", chart.y}, {"z", chart.z}};
}

DesignRules designRulesFromJson(const ordered_json& json) {
  objectOf(json);
  return {rowsOf(json, "pressure"), rowsOf(json, "temperature")};
}

ordered_json designRulesToJson(const DesignRules& rules) {
  return {{"pressure", rowsToJson(rules.pressure)}, {"temperature", rowsToJson(rules.temperature)}};
}

}  // namespace sizewright
