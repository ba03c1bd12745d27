#include "sizewright/app/size_command.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <optional>
#include <sstream>

#include "sizewright/app/drive.h"
#include "sizewright/app/output.h"
#include "sizewright/app/plant_source.h"
#include "sizewright/app/progress.h"
#include "sizewright/app/report.h"
#include "sizewright/app/result_table.h"
#include "sizewright/embedded/json_printer.h"
#include "sizewright/embedded/plant_file.h"
#include "sizewright/embedded/registry.h"

namespace sizewright {

namespace {

// Items whose results become durable together.
constexpr std::size_t kGroup = 200;

/// One run of `sizewright size`.
class Sizing {
 public:
  explicit Sizing(const SizeOptions& options);
  int run();

 private:
  std::vector<const PlantItem*> pending() const;
  void size(const PlantItem& item);
  void notAvailable(const PlantItem& item, const char* why);
  void keep(const PlantItem& item);
  void report(const std::string& line);
  void commit();
  void finish();

  const SizeOptions& options_;
  PublishedFigures published_;
  std::unique_ptr<PlantDatabase> database_;  // none for a plant file
  std::unique_ptr<Plant> file_;
  Plant& plant_;
  EmbeddedHost host_;
  Output out_;
  std::optional<Output> reports_;
  std::optional<Output> saved_;
  std::vector<const PlantItem*> items_;
  std::optional<Progress> progress_;
  std::vector<DriveStep> steps_ = unattendedSteps();
  std::vector<std::string> lines_;  // reports of the group at hand
  std::vector<ItemResult> results_;
  std::size_t uncommitted_ = 0;
  bool allSized_ = true;
};

std::unique_ptr<PlantDatabase> openDatabase(const std::filesystem::path& path) {
  if (!isPlantDatabase(path)) return nullptr;
  return std::make_unique<PlantDatabase>(path, equipmentClassNames());
}

Sizing::Sizing(const SizeOptions& options)
    : options_(options),
      published_(options.published.empty() ? PublishedFigures()
                                           : PublishedFigures(options.published)),
      database_(openDatabase(options.plant)),
      file_(database_ ? nullptr : readPlantFile(options.plant, equipmentClassNames())),
      plant_(database_ ? database_->plant() : *file_),
      host_(plant_),
      out_(options.out),
      items_(itemsNamed(plant_, options.items)) {
  if (!options.report.empty()) reports_.emplace(options.report);
  if (!options.save.empty()) saved_.emplace(options.save);
  if (database_) items_ = pending();
  progress_.emplace(items_.size(), options.quiet);
  host_.log().keepProgress(options.json || !options.report.empty());
  host_.log().onProgress(
      [this](int percent, std::string_view text) { progress_->step(percent, text); });
}

// A run that was cut short is taken up where it ended; otherwise everything is sized anew.
std::vector<const PlantItem*> Sizing::pending() const {
  std::vector<const PlantItem*> rest;
  for (const PlantItem* item : items_) {
    if (!database_->isSized(*item)) rest.push_back(item);
  }
  if (!rest.empty()) return rest;
  database_->clearSized();
  return items_;
}

int Sizing::run() {
  for (const PlantItem* item : items_) {
    progress_->begin(item->name);
    size(*item);
    progress_->finished();
    if (uncommitted_ >= kGroup) commit();
  }
  commit();
  finish();
  return allSized_ ? 0 : 1;
}

void Sizing::size(const PlantItem& item) {
  try {
    const RunForm form;
    ItemRun run(host_, item, form);
    const std::vector<StepResult> steps = perform(run, steps_);
    const bool sized = resultOf(steps, "Size") != 0;
    allSized_ = allSized_ && sized;
    if (options_.json || reports_) {
      std::string line;
      printJson(line, reportOf(host_, item, run, form, steps));
      lines_.push_back(std::move(line));
    }
    if (!options_.json && !options_.quiet) {
      results_.push_back(resultOf(host_, item, run, sized, published_));
    }
  } catch (const InputError& fault) {
    notAvailable(item, fault.what());
  }
  keep(item);
}

void Sizing::notAvailable(const PlantItem& item, const char* why) {
  allSized_ = false;
  if (options_.json || reports_) {
    std::string line;
    printJson(line, {{"item", item.name}, {"isValid", 0}, {"messages", {{"errors", {why}}}}});
    lines_.push_back(std::move(line));
  }
  ItemResult result;
  result.item = item.name;
  result.kind = item.itemCode.value_or("");
  result.errors = {why};
  results_.push_back(std::move(result));
}

void Sizing::keep(const PlantItem& item) {
  ++uncommitted_;
  if (database_) database_->store(item, changedObjects(plant_.store));
}

// Nothing is said to be sized before it is durable.
void Sizing::commit() {
  if (database_) database_->commit();
  for (const std::string& line : lines_) report(line);
  lines_.clear();
  uncommitted_ = 0;
}

void Sizing::report(const std::string& line) {
  if (options_.json) out_.line(line);
  if (reports_) reports_->line(line);
}

void Sizing::finish() {
  progress_.reset();
  if (!options_.json && !options_.quiet) {
    printResults(out_.stream(), results_, !published_.empty(), options_.verbose);
  }
  if (saved_) {
    writePlant(plant_, saved_->stream());
    saved_->finish();
  }
  if (reports_) reports_->finish();
  out_.finish();
}

}  // namespace

int sizePlant(const SizeOptions& options) {
  return Sizing(options).run();
}

}  // namespace sizewright
