#include "sizewright/embedded/design_criteria.h"

#include <algorithm>
#include <cmath>

#include "sizewright/host/text.h"

namespace sizewright {

namespace {

constexpr std::string_view kEveryModel = "*";

double designValue(const DesignRule& row, double operating) {
  if (row.value) return *row.value;
  return std::max(operating * row.factor + row.add, operating + row.atLeast);
}

// The row with the greatest `from` that is not above the value, the later one of equals; null when
// none serves it. A row without `from` begins below every other.
const DesignRule* rowFor(const std::vector<DesignRule>& rows, double operating) {
  const DesignRule* best = nullptr;
  for (const DesignRule& row : rows) {
    if (row.from && !(*row.from <= operating)) continue;
    const bool later = best == nullptr || !best->from || (row.from && *row.from >= *best->from);
    if (later) best = &row;
  }
  return best;
}

}  // namespace

DesignCriteria::DesignCriteria(MemoryStore& store, const DesignRules& rules, const UnitTable& units)
    : store_(store), criteria_(store.database(kDesignCriteria)), rules_(rules), units_(units) {}

CvdSlot DesignCriteria::find(std::string_view model, std::string_view name) const {
  for (const std::string_view key : {model, withoutBlanksAround(model), kEveryModel}) {
    const StoredObject* const object = store_.find(criteria_, key);
    if (object == nullptr) continue;
    CvdSlot value = store_.get(*object, name);
    if (value.IsValid()) return value;
  }
  return {};
}

bool DesignCriteria::number(std::string_view model, std::string_view name, std::string_view units,
                            double& value) const {
  const CvdSlot slot = find(model, name);
  if (!slot.IsNumber()) return false;
  double number = slot.Number();
  const bool converts = slot.HasUnits() && !withoutBlanksAround(units).empty();
  if (converts && !units_.convert(slot.Units(), units, number)) return false;
  value = number;
  return true;
}

bool DesignCriteria::text(std::string_view model, std::string_view name,
                          CriterionText& value) const {
  const CvdSlot slot = find(model, name);
  if (!slot.IsText() && !slot.IsList()) return false;
  value = slot.Text();
  return true;
}

bool DesignCriteria::apply(const std::vector<DesignRule>& rows, std::string_view rowUnit,
                           double operating, std::string_view units, double& design) const {
  if (rows.empty() || !std::isfinite(operating)) return false;
  double value = operating;
  if (!units_.convert(units, rowUnit, value)) return false;
  const DesignRule* const row = rowFor(rows, value);
  if (row == nullptr) return false;
  value = designValue(*row, value);
  if (!std::isfinite(value) || !units_.convert(rowUnit, units, value)) return false;
  design = value;
  return true;
}

bool DesignCriteria::designPressure(std::string_view /*model*/, double operating,
                                    std::string_view units, double& design) const {
  return apply(rules_.pressure, "PSIG", operating, units, design);
}

bool DesignCriteria::designTemperature(std::string_view /*model*/, double operating,
                                       std::string_view units, double& design) const {
  return apply(rules_.temperature, "DEG F", operating, units, design);
}

}  // namespace sizewright
