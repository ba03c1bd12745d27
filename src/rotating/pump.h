#pragma once

#include "sizewright/frame/sizing_item.h"

namespace sizewright {

/// What is known of a pump; 0 means not given. There is one item unless said otherwise.
struct PumpData {
  double overdesignFactor = 0.0;
  double totalMassFlow = 0.0;    // LB/H
  double totalVolumeFlow = 0.0;  // CFH
  double minFluidDensity = 0.0;  // PCF; never filled from streams
  double minMolecularWeight = 0.0;
  double minInletPressure = 0.0;     // PSI
  double maxExitPressure = 0.0;      // PSI
  double minInletTemperature = 0.0;  // DEG F
  double maxExitTemperature = 0.0;   // DEG F
  double designPressure = 0.0;       // PSI
  double designTemperature = 0.0;    // DEG F
  double fluidDensity = 0.0;         // PCF
  double capacity = 0.0;             // CFH; LB/H for a stock pump
  double driverPower = 0.0;          // HP; 0 leaves the estimate to the evaluation engine
  double fluidHead = 0.0;            // FEET
  double numberItems = 1.0;
  double fractionalEfficiency = 0.0;
  double efficiencyPercent = 0.0;
  double specificGravity = 0.0;
  double viscosity = 0.0;  // CPOISE
};

/// Head in FEET of a liquid raised from one pressure to another, in PSI: 2.31 feet of water a PSI,
/// divided by the specific gravity.
double pumpHead(double exitPressure, double inletPressure, double specificGravity);

/// Rating limits of a pump type: raises a capacity (GPM) at or below the lower limit, and lowers
/// one above the upper limit to it with `number` items instead. A type without limits is left
/// alone.
void limitPumpRating(std::string_view category, std::string_view item, double& capacity,
                     double& number);

/// A liquid pump: flow, density, pressures, head, capacity and design conditions from streams,
/// record, simulator block and form. Driver power is only passed through.
///
/// The item "HD STOCK" is a paper stock pump, rated by mass flow. Setup and sizing cannot fail: bad
/// input shows as warnings, as zero head or as the slot "Error". `Size` returns 0 only when a first
/// run finds no inlet.
class CPumpObj : public SizingItem<PumpData, ExitRelease::abandoned> {
 public:
  using SizingItem::SizingItem;

  int Size() override;
  int GetLastInfo() override;
  int SetValues(CStrList& names, CStrList& values) override;
  int ReturnValues(CStrList& names, CStrList& values) override;
  int GetStreamInfo() override;
  int UpdateConnectivity() override;
  int SaveParameters() override;

 protected:
  /// The rating limits of the evaluation engine, which no sizing path applies; capacity in GPM, the
  /// third argument is left alone.
  void pump_check_min_max(double* capacity, double* number, double* third);

 private:
  int pump_stp();
  void pump_stp_get_vpecomp_info();
  void pump_stp_get_block_info();
  void pump_stp_get_proc_info();
  void pump_stp_get_inlets();
  void pump_stp_get_exits();
  void pump_stp_get_design_conditions();
  void pump_stp_get_design_pressure();
  void pump_stp_get_design_temp();
  void pump_stp_write_design_pressure();
  void pump_stp_write_design_temp();
  int pump_siz();
  void pump_siz_head();
  double pump_get_final_capacity(double flow, double factor);
  double pump_get_final_driver_power(double factor);
  int pump_write_results();
  void GetDesCriteriaInfo();
  void readRecord(From from);

  [[nodiscard]] bool isStockPump() const;
  [[nodiscard]] const char* capacityUnit() const;
};

}  // namespace sizewright
