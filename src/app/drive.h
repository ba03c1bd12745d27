#pragma once

#include <filesystem>
#include <nlohmann/json_fwd.hpp>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "sizewright/embedded/item_run.h"

namespace sizewright {

/// An operation on a sizing object, known by its name.
struct Operation {
  std::string_view name;
  int (*perform)(ItemRun& run);
};

/// One step of a script: an operation without arguments, or the labels and values that a form
/// gives.
struct DriveStep {
  const Operation* operation = nullptr;  // null: SetValues
  std::vector<std::string> names;
  std::vector<std::string> values;
};

/// How one item's sizing object is made, and what it then does.
struct DriveScript {
  RunForm form;
  std::vector<DriveStep> steps;
};

/// What a drive does without a script: size, show, commit, file.
DriveScript defaultScript();
/// What a host that works unattended does: size, commit, file.
std::vector<DriveStep> unattendedSteps();
/// Throws InputError, with the place of the fault, for what is no script.
DriveScript readDriveScript(const std::filesystem::path& path);
DriveScript parseDriveScript(std::string_view text, std::string_view name);

/// What a step came to.
struct StepResult {
  std::string_view operation;
  int result = 0;
  std::optional<CStrList> names;  // the form, where the step returns one
  CStrList values;
};

/// Performs the steps; none on an object that is not valid.
std::vector<StepResult> perform(ItemRun& run, const std::vector<DriveStep>& steps);

/// Result of the last step of that name; 0 when there is none.
int resultOf(const std::vector<StepResult>& results, std::string_view operation);

}  // namespace sizewright
