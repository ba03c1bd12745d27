#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <nlohmann/json.hpp>

#include "embedded/plant_texts.h"
#include "sizewright/embedded/embedded_files.h"
#include "sizewright/embedded/item_run.h"
#include "sizewright/embedded/json_check.h"
#include "sizewright/embedded/json_reader.h"
#include "sizewright/embedded/registry.h"

namespace sizewright {
namespace {

// --- The schemas --------------------------------------------------------------------------------

std::string_view schemaText(std::string_view name) {
  for (const EmbeddedFile& file : embeddedFiles()) {
    if (file.name == name) return file.text;
  }
  return "null";
}

// Every node that describes a value, with its place.
void eachNode(const nlohmann::json& node, const std::string& place,
              const std::function<void(const nlohmann::json&, const std::string&)>& look) {
  look(node, place);
  for (const char* group : {"properties", "patternProperties", "definitions"}) {
    if (!node.contains(group)) continue;
    for (const auto& [name, inner] : node[group].items()) eachNode(inner, place + "/" + name, look);
  }
  for (const char* single : {"additionalProperties", "items"}) {
    if (node.contains(single) && node[single].is_object()) {
      eachNode(node[single], place + "/" + single, look);
    }
  }
  for (const char* list : {"anyOf", "items"}) {
    if (!node.contains(list) || !node[list].is_array()) continue;
    for (const auto& inner : node[list]) eachNode(inner, place + "/" + list, look);
  }
}

TEST(Schemas, Every_node_says_what_it_expects) {
  for (const char* name : {"schemas/plant.schema.json", "schemas/drive-script.schema.json"}) {
    const auto schema = nlohmann::json::parse(schemaText(name));
    ASSERT_TRUE(schema.is_object()) << name;
    EXPECT_EQ(schema["$schema"], "http://json-schema.org/draft-07/schema#");
    eachNode(schema, name, [](const nlohmann::json& node, const std::string& place) {
      EXPECT_TRUE(node.contains("$ref") || node.contains("title")) << place;
    });
  }
}

std::string scriptFault(std::string_view text) {
  const JsonSchema schema("schemas/drive-script.schema.json");
  try {
    schema.check(schema.root(), parseJson(text), "");
  } catch (const InputError& fault) {
    return fault.what();
  }
  return {};
}

TEST(DriveScript, Every_key_and_step_is_accepted) {
  EXPECT_EQ(scriptFault(R"({
      "form": "design", "interactive": 0, "arguments": ["", "", "", "", ""],
      "steps": ["IsValid", "Initialize", "Size", "GetLastInfo", "GetStreamInfo", "ReturnValues",
                "SaveParameters", "UpdateConnectivity", "AddWarningAndError", "Commit",
                "UpdateSizeInfo", "GetConnectedStreams", "DisconnectStreams", "GetEquipCatType",
                {"SetValues": {"Factor": 1.25, "Head": [120, "FEET"], "Inlet Stream": "S1",
                               "List": ["a", "b"]}},
                {"SetValues": {"names": ["a"], "values": ["1"]}}]})"),
            "");
  EXPECT_EQ(scriptFault(R"({"form": "selection", "block": "B1", "steps": []})"), "");
}

TEST(DriveScript, A_fault_is_told_with_its_place) {
  EXPECT_EQ(scriptFault("{}"), "missing key \"steps\"");
  EXPECT_EQ(scriptFault("[]"), "expected an object");
  EXPECT_EQ(scriptFault(R"({"steps": [], "from": 1})"), "from: unknown key");
  EXPECT_EQ(scriptFault(R"({"steps": [], "form": "other"})"),
            "form: expected \"design\" or \"selection\", got \"other\"");
  EXPECT_EQ(scriptFault(R"({"steps": ["Size", "Sise"]})"),
            "steps/1: expected the name of an operation or an object with \"SetValues\", got "
            "\"Sise\"");
  EXPECT_EQ(scriptFault(R"({"steps": [{"Size": 1}]})"), "steps/0/Size: unknown key");
  EXPECT_EQ(scriptFault(R"({"steps": [{}]})"), "steps/0: missing key \"SetValues\"");
  EXPECT_EQ(scriptFault(R"({"steps": [{"SetValues": {"a": true}}]})"),
            "steps/0/SetValues: expected an object of labels and values, or of \"names\" and "
            "\"values\"");
  EXPECT_EQ(scriptFault(R"({"steps": [], "arguments": ["", "", "", "", "", ""]})"),
            "arguments: expected a list of at most five texts");
  EXPECT_EQ(scriptFault(R"({"steps": [], "interactive": 1.5})"),
            "interactive: expected a whole number, got 1.5");
}

}  // namespace
}  // namespace sizewright
