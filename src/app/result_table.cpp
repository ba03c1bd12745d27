#include "sizewright/app/result_table.h"

#include <fmt/format.h>
#include <fmt/ostream.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <nlohmann/json.hpp>

#include "sizewright/embedded/data_json.h"
#include "sizewright/embedded/json_reader.h"
#include "sizewright/embedded/plant_file.h"
#include "sizewright/host/text.h"
#include "sizewright/host/units.h"

namespace sizewright {

using nlohmann::ordered_json;

namespace {

PublishedFigures::Figures figuresOf(const ordered_json& json, const std::string& path) {
  if (!json.is_object()) throw InputError(path, "expected an object");
  PublishedFigures::Figures figures;
  for (const auto& [slot, value] : json.items()) {
    try {
      figures.emplace_back(slot, slotFromJson(value));
    } catch (const std::runtime_error& fault) {
      throw InputError(joinPath(path, slot), fault.what());
    }
  }
  return figures;
}

bool isPort(std::string_view slot) {
  return slot.starts_with("_");
}

// A published number in the unit that the result has.
CvdSlot inUnitsOf(const CvdSlot& result, const CvdSlot& published) {
  if (!result.HasUnits() || !published.HasUnits()) return published;
  return CvdSlot::ofNumber(converted(published.Number(), published.Units(), result.Units()),
                           result.Units());
}

// The number of a value, rounded for people; nothing for a text.
std::string shownNumber(const CvdSlot& value) {
  if (!value.IsNumber()) return "";
  const double number = value.Number();
  const double size = std::abs(number);
  if (size != 0.0 && (size < 1e-3 || size >= 1e7)) return fmt::format("{:.4e}", number);
  const int places = size >= 1000.0 ? 0 : size >= 100.0 ? 1 : size >= 10.0 ? 2 : 3;
  return fmt::format("{:.{}f}", number, places);
}

std::string unitsOrText(const CvdSlot& value) {
  std::string text = value.IsNumber() ? value.Units() : value.Text();
  std::replace(text.begin(), text.end(), '\n', ' ');
  return text;
}

std::string difference(const ResultLine& line) {
  if (!line.value.IsNumber() || !line.published.IsNumber() || line.published.Number() == 0.0) {
    return "";
  }
  return fmt::format("{:+.0f} %", (line.value.Number() / line.published.Number() - 1.0) * 100.0);
}

using Row = std::vector<std::string>;

std::vector<Row> rowsOf(const std::vector<ItemResult>& results, bool withPublished) {
  std::vector<Row> rows = {{"Item", "Result", "Value", "Unit"}};
  if (withPublished) rows.front().insert(rows.front().end(), {"Published", "Difference"});
  for (const ItemResult& result : results) {
    rows.push_back({result.item, result.kind + (result.sized ? "" : ": not sized"), "", ""});
    for (const ResultLine& line : result.lines) {
      rows.push_back({"", line.slot, shownNumber(line.value), unitsOrText(line.value)});
      if (!withPublished) continue;
      rows.back().push_back(shownNumber(line.published));
      rows.back().push_back(difference(line));
    }
  }
  return rows;
}

// Columns of numbers stand to the right.
bool isRight(std::size_t column) {
  return column == 2 || column > 3;
}

void printRows(std::ostream& out, const std::vector<Row>& rows) {
  std::array<std::size_t, 6> widths{};
  for (const Row& row : rows) {
    for (std::size_t i = 0; i < row.size(); ++i) widths[i] = std::max(widths[i], row[i].size());
  }
  for (const Row& row : rows) {
    std::string line;
    for (std::size_t i = 0; i < row.size(); ++i) {
      line += isRight(i) ? fmt::format("{:>{}}  ", row[i], widths[i])
                         : fmt::format("{:<{}}  ", row[i], widths[i]);
    }
    out << withoutTrailingBlanks(line) << '\n';
  }
}

void printMessages(std::ostream& out, const ItemResult& result, bool verbose) {
  const auto print = [&](const char* kind, const std::vector<std::string>& texts) {
    for (const std::string& text : texts) fmt::print(out, "  {}: {}\n", kind, text);
  };
  const bool silent =
      result.errors.empty() && result.warnings.empty() && (!verbose || result.remarks.empty());
  if (silent) return;
  fmt::print(out, "\n{}\n", result.item);
  print("error", result.errors);
  print("warning", result.warnings);
  if (verbose) print("remark", result.remarks);
}

}  // namespace

PublishedFigures::PublishedFigures(const std::filesystem::path& path) {
  try {
    const ordered_json json = parseJson(readTextFile(path));
    if (!json.is_object() || !json.contains("items") || !json["items"].is_object()) {
      throw InputError("items", "expected an object of published figures by item");
    }
    for (const auto& [item, figures] : json["items"].items()) {
      items_.emplace(item, figuresOf(figures, joinPath("items", item)));
    }
  } catch (const InputError& fault) {
    if (std::string_view(fault.what()).starts_with(path.string())) throw;
    throw InputError(path.string(), fault.what());
  }
}

const PublishedFigures::Figures* PublishedFigures::of(const std::string& item) const {
  const auto found = items_.find(item);
  return found != items_.end() ? &found->second : nullptr;
}

ItemResult resultOf(EmbeddedHost& host, const PlantItem& item, ItemRun& run, bool sized,
                    const PublishedFigures& published) {
  ItemResult result;
  result.item = item.name;
  result.kind = std::string(run.className()) + " " + item.itemCode.value_or("");
  result.sized = sized;
  result.warnings = run.object().Warnings().texts();
  result.errors = run.object().Errors().texts();
  result.remarks = run.object().Calculations().texts();
  for (const std::string& note : run.object().Notes().texts()) result.remarks.push_back(note);

  MemoryStore& store = host.plant().store;
  const StoredObject* record = host.plant().componentOf(item);
  for (const SlotChange& change : store.changes()) {
    const std::string& slot = store.text(change.slot);
    const CvdSlot value = store.get(*change.object, slot);
    if (change.object == record && value.IsValid() && !isPort(slot)) {
      result.lines.push_back({slot, value, {}});
    }
  }
  if (const PublishedFigures::Figures* figures = published.of(item.name)) {
    for (const auto& [slot, value] : *figures) {
      auto line = std::find_if(
          result.lines.begin(), result.lines.end(),
          [&name = slot](const ResultLine& own) { return equalsIgnoringCase(own.slot, name); });
      if (line == result.lines.end()) line = result.lines.insert(line, {slot, {}, {}});
      line->published = inUnitsOf(line->value, value);
    }
  }
  return result;
}

void printResults(std::ostream& out, const std::vector<ItemResult>& results, bool withPublished,
                  bool verbose) {
  printRows(out, rowsOf(results, withPublished));
  for (const ItemResult& result : results) printMessages(out, result, verbose);
}

}  // namespace sizewright
