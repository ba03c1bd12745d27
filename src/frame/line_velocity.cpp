#include <algorithm>
#include <cmath>

#include "sizewright/frame/size_equip.h"
#include "sizewright/host/list2.h"
#include "sizewright/host/messages.h"
#include "sizewright/host/text.h"
#include "sizewright/host/units.h"

namespace sizewright {

namespace {

constexpr const char* kLiquidTable = "LIQUID_LINE_GPM_FPS_RELATION";

// Ends of the log-log line for gas, LB/H and FT/S.
constexpr double kLowFlow = 100000.0;
constexpr double kHighFlow = 10000000.0;
constexpr double kLowVelocity = 30.0;
constexpr double kHighVelocity = 100.0;

double gallonsPerMinute(double massFlow, double density) {
  const double volumeFlow = density > 0.0 ? massFlow / density : 0.0;
  return converted(volumeFlow, "CFH", "GPM");
}

/// The velocity of the smallest flow of the table that is not below `flow`, the last of equals;
/// without such a row, or a positive velocity in it, the greatest velocity of the table.
double stepVelocity(void* flows, void* velocities, double flow) {
  double greatest = 0.0;
  double chosen = 0.0;
  double chosenKey = HUGE_VAL;
  for (int i = 0; i < list2_length(flows); ++i) {
    double velocity = 0.0;
    convert_todouble(list2_get_item(velocities, i, nullptr), &velocity);
    greatest = std::max(greatest, velocity);
    double key = 0.0;
    if (convert_to_double(list2_get_item(flows, i, nullptr), &key) != 0) continue;
    if (key < flow || key > chosenKey) continue;
    chosenKey = key;
    chosen = velocity;
  }
  return chosen > 0.0 ? chosen : greatest;
}

}  // namespace

int CSizeEquip::GetDesignVelocityForLiquid(double massFlow, double density,
                                           double& velocity) const {
  return ObtainDesignVelocity(kLiquidTable, gallonsPerMinute(massFlow, density), velocity);
}

int CSizeEquip::ObtainDesignVelocity(const char* table, double flow, double& velocity) const {
  if (project == nullptr) return 0;
  CvdODB database(project->UserInstance(), pxpropFile, 0);
  if (database.Exists() == 0) return 0;
  const CvdSysGenericObject object(projectId, pxpropFile, table);
  if (object.IsValid() == 0 || object.Exists() == 0) return 0;
  void* flows = nullptr;
  void* velocities = nullptr;
  if (lo_load_list2_all(projectId, pxpropFile, table, &flows, &velocities) == 0) {
    list2_delete(flows);
    list2_delete(velocities);
    m_printf("Error in loading data from PXPROP.");
    return 0;
  }
  velocity = stepVelocity(flows, velocities, flow);
  list2_delete(flows);
  list2_delete(velocities);
  if (!(velocity > 0.0)) return 0;
  database.Close(0);
  return 1;
}

int CSizeEquip::GetDesignVelocityForGas(double massFlow, double density, double& velocity) {
  if (gallonsPerMinute(massFlow, density) > 0.0) {
    const double flow = std::clamp(massFlow, kLowFlow, kHighFlow);
    const double slope = (std::log10(kHighVelocity) - std::log10(kLowVelocity)) /
                         (std::log10(kHighFlow) - std::log10(kLowFlow));
    const double exponent =
        slope * (std::log10(flow) - std::log10(kLowFlow)) + std::log10(kLowVelocity);
    if (exponent > 0.0) velocity = compiler_pow_double(10.0, exponent);
  }
  return velocity > 0.0 ? 1 : 0;
}

}  // namespace sizewright
