#include "sizewright/embedded/bundled_data.h"

#include <nlohmann/json.hpp>
#include <stdexcept>

#include "sizewright/embedded/data_json.h"
#include "sizewright/embedded/embedded_files.h"

namespace sizewright {

using nlohmann::ordered_json;

namespace {

constexpr std::string_view kFolder = "data/";
constexpr std::string_view kUnits = "data/units.json";  // the unit table reads it

void addObjects(const ordered_json& json, std::vector<DataObject>& objects) {
  for (const auto& [name, slots] : json.items()) {
    DataObject& object = objects.emplace_back();
    object.name = name;
    object.slots.reserve(slots.size());
    for (const auto& [slot, value] : slots.items()) {
      object.slots.emplace_back(slot, slotFromJson(value));
    }
  }
}

// Of a file, the members below are data; the others say what they are and where they come from.
void addFile(const ordered_json& file, BundledData& data) {
  for (const auto& [key, json] : file.items()) {
    if (key == "objects") {
      addObjects(json, data.objects);
    } else if (key == "utilities") {
      addObjects(json, data.utilities);
    } else if (key == "charts") {
      for (const auto& [object, variables] : json.items()) {
        for (const auto& [variable, chart] : variables.items()) {
          data.charts[object][variable] = chartFromJson(chart);
        }
      }
    } else if (key == "fluids") {
      for (const auto& [name, fluid] : json.items()) data.fluids[name] = fluidFromJson(fluid);
    } else if (key == "design rules") {
      data.designRules = designRulesFromJson(json);
    }
  }
}

BundledData read() {
  BundledData data;
  for (const EmbeddedFile& file : embeddedFiles()) {
    if (!file.name.starts_with(kFolder) || file.name == kUnits) continue;
    try {
      addFile(ordered_json::parse(file.text), data);
    } catch (const std::exception& fault) {
      throw std::runtime_error(std::string(file.name) + ": " + fault.what());
    }
  }
  return data;
}

}  // namespace

const BundledData& bundledData() {
  static const BundledData data = read();
  return data;
}

}  // namespace sizewright
