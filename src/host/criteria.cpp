#include "sizewright/host/criteria.h"

#include "sizewright/host/host.h"

namespace sizewright {

bool CriteriaService::number(std::string_view, std::string_view, std::string_view, double&) const {
  return false;
}
bool CriteriaService::text(std::string_view, std::string_view, CriterionText&) const {
  return false;
}
bool CriteriaService::designPressure(std::string_view, double, std::string_view, double&) const {
  return false;
}
bool CriteriaService::designTemperature(std::string_view, double, std::string_view, double&) const {
  return false;
}

int pxl_get_and_adjust_criteria_n(std::string_view code, std::string_view name, double& value,
                                  std::string_view units) {
  return currentHost().criteria().number(code, name, units, value) ? 1 : 0;
}

int pxl_get_criteria_value_c(std::string_view code, std::string_view name, CriterionText& text) {
  CriterionText found;
  if (!currentHost().criteria().text(code, name, found) || found.empty()) return 0;
  text = found;
  return 1;
}

int pxl_calculate_design_press(std::string_view code, double pressure, double* design,
                               std::string_view units) {
  return currentHost().criteria().designPressure(code, pressure, units, *design) ? 1 : 0;
}

int pxl_calculate_design_temp(std::string_view code, double temperature, double* design,
                              std::string_view units) {
  return currentHost().criteria().designTemperature(code, temperature, units, *design) ? 1 : 0;
}

}  // namespace sizewright
