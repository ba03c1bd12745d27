#pragma once

#include "sizewright/frame/formless_item.h"
#include "sizewright/host/properties.h"

namespace sizewright {

/// What is known of a turbine; 0 or an empty text means not given.
struct TurbineData {
  FluidName fluidType;             // fluid class of the property service
  double fluidCp = 0.0;            // BTU/LB/DEG F
  double heatCapacityRatio = 0.0;  // Cp/Cv
  double numberItems = 0.0;
  double powerOutput = 0.0;  // HP
  double overdesignFactor = 0.0;
  double gasMassFlow = 0.0;        // LB/H, vapor of all inlets
  double gasVolumeFlow = 0.0;      // CFH, vapor of all inlets
  double gasDensity = 0.0;         // PCF, least of the inlets
  double molecularWeight = 0.0;    // least of the inlets
  double inletPressure = 0.0;      // PSI
  double exitPressure = 0.0;       // PSI
  double inletTemperature = 0.0;   // DEG F
  double exitTemperature = 0.0;    // DEG F
  double designPressure = 0.0;     // PSI
  double designTemperature = 0.0;  // DEG F
  double fluidDensity = 0.0;       // PCF
  double fractionalEfficiency = 0.0;
};

/// Cp/Cv of an ideal gas of a molar mass: Cp / (Cp - R / M), Cp in CAL/G/DEG C and R of 1.98719
/// CAL/MOL/DEG C.
double gasHeatCapacityRatio(double cp, double molecularWeight);
/// Power (BTU/H) of an isentropic expansion of an ideal gas at an efficiency of 0.5: Cp in
/// BTU/LB/DEG F, inlet temperature in DEG R, mass flow in LB/H, exit over inlet pressure.
double expansionPower(double cp, double inletTemperature, double pressureRatio,
                      double heatCapacityRatio, double massFlow);

/// A gas or steam drive turbine: gas flow, pressures, temperatures and the power that it gives,
/// from the item or from an isentropic expansion. There is no user form.
///
/// `Size` returns 0 without an inlet or without an exit. An expansion that cannot be worked out
/// gives no power, and none is written.
class CTurbObj : public FormlessItem<TurbineData> {
 public:
  using FormlessItem::FormlessItem;

  int Size() override;
  int GetStreamInfo() override;
  int UpdateConnectivity() override;
  int SaveParameters() override;

 private:
  void GetDesCriteriaInfo();
  int turb_stp();
  void turb_stp_get_inlets(double& pressure, double& temperature);
  void turb_stp_get_exits(double& pressure, double& temperature);
  void turb_assign_pressures(double inlet, double exit);
  void turb_assign_temperatures(double inlet, double exit);
  void turb_stp_get_design_pressure();
  void turb_stp_get_design_temp();
  int turb_siz();
  void turb_siz_number_items();
  void turb_siz_efficiency();
  void turb_siz_power();
  void turbine_calculate_power_output();
  void calculate_fluid_Cp();
  void turbine_write_results();
  void turb_stp_write_design_pressure();
  void turb_stp_write_design_temp();
};

}  // namespace sizewright
