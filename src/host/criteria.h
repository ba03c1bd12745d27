#pragma once

#include <cstddef>
#include <string_view>

#include "sizewright/host/fixed_text.h"

namespace sizewright {

/// Texts that design criteria hand out.
using CriterionText = FixedText<256>;

/// Design criteria and design rules of a host, by the item's model text. Every call comes on the
/// thread that the host is attached to; nothing throws.
class CriteriaService {
 public:
  virtual ~CriteriaService() = default;

  /// A numeric criterion in `units`. False, with `value` untouched, when there is none.
  virtual bool number(std::string_view model, std::string_view name, std::string_view units,
                      double& value) const;
  /// A text criterion. False, with `value` untouched, when there is none.
  virtual bool text(std::string_view model, std::string_view name, CriterionText& value) const;
  /// Design pressure for an operating pressure, both in `units`. False, with `design` untouched,
  /// when the project has no rule.
  virtual bool designPressure(std::string_view model, double operating, std::string_view units,
                              double& design) const;
  /// The same for a temperature.
  virtual bool designTemperature(std::string_view model, double operating, std::string_view units,
                                 double& design) const;
};

/// A numeric design criterion of the model, in `units`. Returns 1, or 0 and leaves `value`.
int pxl_get_and_adjust_criteria_n(std::string_view code, std::string_view name, double& value,
                                  std::string_view units);
/// A text design criterion of the model. Returns 1 when found and not empty, or 0 and leaves
/// `text`.
int pxl_get_criteria_value_c(std::string_view code, std::string_view name, CriterionText& text);

/// The design value under the project's rule, both values in `units`. Returns 1, or 0 and leaves
/// `*design`.
int pxl_calculate_design_press(std::string_view code, double pressure, double* design,
                               std::string_view units);
int pxl_calculate_design_temp(std::string_view code, double temperature, double* design,
                              std::string_view units);

}  // namespace sizewright
