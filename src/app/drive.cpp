#include "sizewright/app/drive.h"

#include <algorithm>
#include <array>
#include <nlohmann/json.hpp>

#include "sizewright/embedded/json_check.h"
#include "sizewright/embedded/json_reader.h"
#include "sizewright/embedded/plant_file.h"
#include "sizewright/host/units.h"

namespace sizewright {

using nlohmann::ordered_json;

namespace {

constexpr std::string_view kSetValues = "SetValues";
constexpr std::string_view kReturnValues = "ReturnValues";

template <int (CSizeEquip::*operation)()>
int call(ItemRun& run) {
  return (run.object().*operation)();
}

constexpr auto kOperations = std::to_array<Operation>({
    {"IsValid", call<&CSizeEquip::IsValid>},
    {"Initialize", [](ItemRun& run) { return run.initialize(); }},
    {"Size", call<&CSizeEquip::Size>},
    {"GetLastInfo", call<&CSizeEquip::GetLastInfo>},
    {"GetStreamInfo", call<&CSizeEquip::GetStreamInfo>},
    {kReturnValues, nullptr},
    {"SaveParameters", call<&CSizeEquip::SaveParameters>},
    {"UpdateConnectivity", call<&CSizeEquip::UpdateConnectivity>},
    {"AddWarningAndError", call<&CSizeEquip::AddWarningAndError>},
    {"Commit", call<&CSizeEquip::Commit>},
    {"UpdateSizeInfo", call<&CSizeEquip::UpdateSizeInfo>},
    {"GetConnectedStreams", call<&CSizeEquip::GetConnectedStreams>},
    {"DisconnectStreams", call<&CSizeEquip::DisconnectStreams>},
    {"GetEquipCatType", [](ItemRun& run) { return int{run.object().GetEquipCatType()}; }},
});

const Operation* findOperation(std::string_view name) {
  return std::find_if(kOperations.begin(), kOperations.end(),
                      [name](const Operation& row) { return row.name == name; });
}

std::vector<DriveStep> stepsOf(std::initializer_list<std::string_view> names) {
  std::vector<DriveStep> steps;
  for (const std::string_view name : names) steps.push_back({findOperation(name), {}, {}});
  return steps;
}

// A value of a script as a form gives it: number and unit, or the lines of a text.
std::string formText(const ordered_json& value) {
  if (value.is_string()) return value.get<std::string>();
  if (value.is_number()) return compiler_float_to_string(value.get<double>()).c_str();
  std::string text;
  for (const ordered_json& line : value) {
    if (!text.empty() || &line != &value.front()) text += '\n';
    text += formText(line);
  }
  return text;
}

DriveStep formStep(const ordered_json& form) {
  DriveStep step;
  // Lists under both of these names are labels and values as they stand.
  if (form.size() == 2 && form.contains("names") && form.contains("values") &&
      form["names"].is_array() && form["values"].is_array()) {
    step.names = form["names"].get<std::vector<std::string>>();
    step.values = form["values"].get<std::vector<std::string>>();
    return step;
  }
  for (const auto& [label, value] : form.items()) {
    step.names.push_back(label);
    step.values.push_back(formText(value));
  }
  return step;
}

DriveStep stepOf(const ordered_json& step) {
  if (step.is_string()) return {findOperation(step.get_ref<const std::string&>()), {}, {}};
  return formStep(step[std::string(kSetValues)]);
}

RunForm formOf(const ordered_json& script) {
  RunForm form;
  form.selection = script.value("form", "design") == "selection";
  form.block = script.value("block", "");
  form.interactive = script.value("interactive", 0);
  if (const auto arguments = script.find("arguments"); arguments != script.end()) {
    for (std::size_t i = 0; i < arguments->size(); ++i) {
      form.arguments.at(i) = (*arguments)[i].get<std::string>();
    }
  }
  return form;
}

CStrList listOf(const std::vector<std::string>& texts) {
  CStrList list;
  for (const std::string& text : texts) list.Append(text);
  return list;
}

StepResult perform(ItemRun& run, const DriveStep& step) {
  StepResult result;
  if (step.operation == nullptr) {
    result.operation = kSetValues;
    CStrList names = listOf(step.names);
    CStrList values = listOf(step.values);
    result.result = run.object().SetValues(names, values);
    return result;
  }
  result.operation = step.operation->name;
  if (step.operation->perform != nullptr) {
    result.result = step.operation->perform(run);
    return result;
  }
  CStrList& names = result.names.emplace();
  result.result = run.object().ReturnValues(names, result.values);
  return result;
}

}  // namespace

DriveScript defaultScript() {
  return {{}, stepsOf({"Size", kReturnValues, "Commit", "UpdateSizeInfo"})};
}

std::vector<DriveStep> unattendedSteps() {
  return stepsOf({"Size", "Commit", "UpdateSizeInfo"});
}

DriveScript parseDriveScript(std::string_view text, std::string_view name) {
  try {
    const ordered_json json = parseJson(text);
    const JsonSchema schema("schemas/drive-script.schema.json");
    schema.check(schema.root(), json, "");
    DriveScript script;
    script.form = formOf(json);
    if (script.form.selection && script.form.block.empty()) {
      throw InputError("block", "the selection form needs a block name");
    }
    for (const ordered_json& step : json["steps"]) script.steps.push_back(stepOf(step));
    return script;
  } catch (const InputError& fault) {
    throw InputError(name, fault.what());
  }
}

DriveScript readDriveScript(const std::filesystem::path& path) {
  return parseDriveScript(readTextFile(path), path.string());
}

std::vector<StepResult> perform(ItemRun& run, const std::vector<DriveStep>& steps) {
  std::vector<StepResult> results;
  if (run.object().IsValid() == 0) return results;
  for (const DriveStep& step : steps) results.push_back(perform(run, step));
  return results;
}

int resultOf(const std::vector<StepResult>& results, std::string_view operation) {
  const auto found =
      std::find_if(results.rbegin(), results.rend(),
                   [operation](const StepResult& step) { return step.operation == operation; });
  return found != results.rend() ? found->result : 0;
}

}  // namespace sizewright
