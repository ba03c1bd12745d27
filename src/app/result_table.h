#pragma once

#include <filesystem>
#include <map>
#include <ostream>
#include <string>
#include <vector>

#include "sizewright/embedded/item_run.h"
#include "sizewright/embedded/plant.h"

namespace sizewright {

/// Published figures by item and slot, to stand beside the program's own.
class PublishedFigures {
 public:
  PublishedFigures() = default;
  /// A JSON document {"items": {"P-101": {"CpFluidHead": [120, "FEET"]}}}. Throws InputError for
  /// anything else.
  explicit PublishedFigures(const std::filesystem::path& path);

  [[nodiscard]] bool empty() const { return items_.empty(); }
  /// Slot and value, in the order of the document; null without any.
  using Figures = std::vector<std::pair<std::string, CvdSlot>>;
  [[nodiscard]] const Figures* of(const std::string& item) const;

 private:
  std::map<std::string, Figures> items_;
};

/// One result in the table: a slot of the component record that the run wrote.
struct ResultLine {
  std::string slot;
  CvdSlot value;
  CvdSlot published;
};

/// What one item came to.
struct ItemResult {
  std::string item;
  std::string kind;  // class and item code
  bool sized = false;
  std::vector<ResultLine> lines;
  std::vector<std::string> warnings;
  std::vector<std::string> errors;
  std::vector<std::string> remarks;  // calculations and notes
};

/// Takes down what a run came to, with the published figures converted to the units of its own.
ItemResult resultOf(EmbeddedHost& host, const PlantItem& item, ItemRun& run, bool sized,
                    const PublishedFigures& published);

/// Prints the results as a table, then the messages by item; remarks too when `verbose`.
void printResults(std::ostream& out, const std::vector<ItemResult>& results, bool withPublished,
                  bool verbose);

}  // namespace sizewright
