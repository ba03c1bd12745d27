#pragma once

#include <string_view>

#include "sizewright/frame/sizing_item.h"
#include "sizewright/host/criteria.h"
#include "sizewright/host/properties.h"

namespace sizewright {

/// What is known of a gas machine; 0 or an empty text means not given. There is one item unless
/// said otherwise.
struct GasMachineData {
  double isentropicEfficiency = 0.0;  // PERCENT; expanders only
  double capacity = 0.0;              // CFH, actual gas flow with overdesign
  double inletCompressibility = 0.0;
  double exitCompressibility = 0.0;
  double minInletPressure = 0.0;        // PSI
  double maxExitPressure = 0.0;         // PSI
  double minInletTemperature = 0.0;     // DEG F
  double maxExitTemperature = 0.0;      // DEG F
  double designInletPressure = 0.0;     // PSI
  double designExitPressure = 0.0;      // PSI
  double designInletTemperature = 0.0;  // DEG F
  double designExitTemperature = 0.0;   // DEG F
  double intercoolerTemperature = 0.0;  // DEG F
  double driverPower = 0.0;             // HP
  double inletVolumeFlow = 0.0;         // CFH, before overdesign
  double overdesignFactor = 0.0;
  double numberItems = 1.0;
  double molecularWeight = 0.0;
  double specificHeatRatio = 0.0;  // Cp/Cv
  FluidName fluidType;             // fluid class of the property service
  CriterionText driverType;
};

/// What sets one class of gas machines apart from another.
struct GasMachineVariant {
  bool expanders = false;  // an item may be an expander
  bool warnsOfSeveralInlets = false;
  bool streamAverages = false;  // skips heat and work; averages Z and Cp/Cv over the streams
  bool intercooler = false;
  SlotName powerSlot = "CpDriverPower";  // driver power on the record
  When countWritten = When::positive;    // when the number of items is a result
};

/// The sizing that compressors and their like share: inlet gas flow, design conditions at both
/// ends, compressibility, Cp/Cv and the kind of driver. Driver power is only passed through.
///
/// `Size` returns 0 when a first run finds no inlet, and when the pressures contradict the machine;
/// nothing is computed then and the error list says why.
class GasMachine : public SizingItem<GasMachineData, ExitRelease::abandoned> {
 public:
  using SizingItem::SizingItem;

  int Size() override;
  int GetLastInfo() override;
  int SetValues(CStrList& names, CStrList& texts) override;
  int ReturnValues(CStrList& names, CStrList& texts) override;
  int GetStreamInfo() override;
  int UpdateConnectivity() override;
  int SaveParameters() override;

 protected:
  /// One end of the machine: where its operating and design conditions stand.
  struct End {
    double GasMachineData::*operating;
    double GasMachineData::*design;
    const char* blockSlot;
    const char* designSlot;
  };
  /// What the streams of one end tell together.
  struct StreamSummary;

  [[nodiscard]] virtual const GasMachineVariant& variant() const = 0;

  /// Gathers streams and design conditions; 0 when the pressures contradict the machine.
  int comp_stp();
  void comp_stp_get_vpecomp_info();
  void comp_stp_get_block_info();
  void comp_stp_get_proc_info();
  /// Cp/Cv of the fluid class at a temperature (DEG F) and pressure (PSI) as the property service
  /// tells it; not above 0 when it cannot.
  double comp_stp_calculate_specific_heat_ratio(const char* fluid, double temperature,
                                                double pressure);
  /// Takes nothing: the capacity is worked out from the volume flow.
  void comp_stp_assign_capacity(double streamValue);
  // Operating and design condition of one end from its streams' value (PSI, DEG F), which the
  // simulator block outranks.
  void comp_stp_assign_min_press(double streamValue);
  void comp_stp_assign_max_press(double streamValue);
  void comp_stp_assign_min_temp(double streamValue);
  void comp_stp_assign_max_temp(double streamValue);
  /// Driver, compressibility and capacity.
  void comp_siz();
  /// Writes the results to the component record, when it is valid.
  void comp_siz_results();
  void GetDesCriteriaInfo();

 private:
  void readRecord(From from);
  void readTemperature(double& field, From from, const char* slot) const;
  void assignPressure(const End& end, double streamValue);
  void assignTemperature(const End& end, double streamValue);

  double comp_stp_get_inlets();
  double comp_stp_get_exits();
  bool takeStream(CvdValueObject& stream, StreamSummary& summary) const;
  void comp_stp_get_specific_heat_ratio(double inletMean, double exitMean);
  int comp_stp_check_pressures();

  void comp_siz_check_driver();
  void fillCompressibility(double& factor, double temperature, double pressure) const;

  void takeSpecificHeatRatio(const CStrList& names, const CStrList& texts);
  void takeIntercooler(const CStrList& names, const CStrList& texts);
  void writeCapacity();
  void writeEfficiency();
  void writeIntercooler();

  /// Adds a warning and shows it, or a text of its own, to the user.
  void warnAndPrint(std::string_view text, std::string_view shown);
  void warnAndPrint(std::string_view text) { warnAndPrint(text, text); }
  [[nodiscard]] bool isExpander() const;
};

}  // namespace sizewright
