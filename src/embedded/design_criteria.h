#pragma once

#include <string_view>

#include "sizewright/embedded/fluid_data.h"
#include "sizewright/embedded/memory_store.h"
#include "sizewright/embedded/unit_table.h"
#include "sizewright/host/criteria.h"

namespace sizewright {

/// Design criteria out of a store's criteria objects, and design pressure and temperature by rules.
///
/// A criterion is a slot of the object that bears the model text, as it stands or without the
/// blanks around it; the object "*" serves where that has no such slot.
class DesignCriteria : public CriteriaService {
 public:
  /// Views all three, which must outlive it.
  DesignCriteria(MemoryStore& store, const DesignRules& rules, const UnitTable& units);

  /// A number without unit is taken to be in `units`; blank `units` take the number as it stands.
  /// False for a text, too, and for a unit that does not convert.
  bool number(std::string_view model, std::string_view name, std::string_view units,
              double& value) const override;
  /// False for a number, too.
  bool text(std::string_view model, std::string_view name, CriterionText& value) const override;
  /// The rules are the same for every model. False, too, when no row serves the operating value or
  /// `units` is no unit of pressure.
  bool designPressure(std::string_view model, double operating, std::string_view units,
                      double& design) const override;
  bool designTemperature(std::string_view model, double operating, std::string_view units,
                         double& design) const override;

 private:
  [[nodiscard]] CvdSlot find(std::string_view model, std::string_view name) const;
  [[nodiscard]] bool apply(const std::vector<DesignRule>& rows, std::string_view rowUnit,
                           double operating, std::string_view units, double& design) const;

  MemoryStore& store_;
  StoredDatabase& criteria_;
  const DesignRules& rules_;
  const UnitTable& units_;
};

}  // namespace sizewright
