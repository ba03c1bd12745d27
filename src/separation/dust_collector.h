#pragma once

#include <vector>

#include "sizewright/frame/formless_item.h"

namespace sizewright {

/// What is known of a dust collector or liquid separator; 0 and an empty text mean not given.
struct DustCollectorData {
  FixedText<128> name;              // of the item's record
  CriterionText material;           // of construction
  CriterionText gas_name;           // "Air" unless given
  CriterionText note_text;          // remark on the sizing
  double air_temp = 0.0;            // DEG F
  double total_gas_flow = 0.0;      // CFH, all units; of a liquid separator the liquid
  double flow_per_unit = 0.0;       // CFH
  double filter_area = 0.0;         // SF, one unit
  double air_to_cloth = 0.0;        // CFM of gas a SF of cloth
  double cyclone_dia = 0.0;         // FEET
  double inlet_velocity = 0.0;      // FPS; gas
  double liquid_velocity = 0.0;     // as the simulator tells it
  double num_items = 0.0;           // identical items that the user asks for
  double num_cyclones = 0.0;        // units: cyclones, cells of a bag house, cyclones of a manifold
  double inlet_height = 0.0;        // FEET; gas inlet
  double inlet_width = 0.0;         // FEET; gas inlet
  double inlet_ratio = 0.0;         // height over width of the gas inlet
  double oil_gravity = 0.0;         // specific gravity
  double cyclone_length = 0.0;      // FEET
  double efficiency = 0.0;          // fraction; of a precipitator as it is given
  double migration_velocity = 0.0;  // FPS; precipitator
};

/// Density of water, PCF, by which gravities and the capacity of water cyclones are told.
inline constexpr double kSeparatorWaterDensity = 62.4;
/// Inlet velocity of a gas cyclone where none is given, FPS.
inline constexpr double kCycloneInletVelocity = 150.0;

// --- Correlations -------------------------------------------------------------------------------

/// Diameter (FEET) of a cyclone whose inlet is a quarter of it wide and `inletRatio` times as high,
/// for a gas flow (CFS) at an inlet velocity (FPS): square root of 16 / ratio x flow / velocity.
double cycloneDiameter(double flow, double inletRatio, double velocity);
/// Gas flow (CFS) that gives the velocity in the inlet of such a cyclone:
/// diameter^2 x ratio x velocity / 16.
double cycloneFlow(double diameter, double inletRatio, double velocity);
/// Ratio of a gas flow (CFH) to a cloth area (SF), in CFM a SF: flow / (area x 60).
double clothRatio(double flow, double area);
/// Cloth area (SF) for a gas flow (CFH) at a cloth ratio: flow / (ratio x 60).
double clothArea(double flow, double ratio);
/// Gravity of the oil in several streams, taken one by one: `held` so far (0 for none) and the next
/// stream's density (PCF), which counts when it is above 0. Gravity is density / 62.4; one below 1
/// gives way to a smaller one that is held, any other takes its place.
double oilGravity(double held, double density);
/// An efficiency as a fraction; above 1 it is a percentage.
double efficiencyFraction(double efficiency);

/// A dust collector or liquid separator. The categories "EDC" and "DDC" are read by vapor flow:
/// cyclones ("CYCLONE", "MULT CYCLO") get a diameter, bag houses ("PULSE SHKR", "CLOTH BAY") a
/// cloth area, precipitators ("ELC L VOLT", "ELC H VOLT") and any other item but "WASHERS" a flow
/// per unit. "ESE" and "DSE" are read by liquid flow: "WATER CYCL", "OIL WATER" and "PULP STOCK",
/// which are not sized; their values pass through.
///
/// What is not given elsewhere is read like this:
///
/// - The flow of one unit is "VOLUMETRIC FLOW RATE" or, for liquid separators, the flow slot of the
///   item. "CpGasFlowrate" of the record and "FLOW RATE" of the block replace it for gases when the
///   units are counted, and stand in for the streams where these carry no flow.
/// - Cells of a bag house count as its units where no number of cyclones is given.
/// - "CpNumberItems" splits gas collectors only. For a liquid separator what the user gives for the
///   gravity and the flow outranks the streams.
///
/// Results without an agreed slot go to "CpAirToClothRatio", "CpRemovalEfficiencyPercent" (as it
/// was read) and, for the cyclones of a liquid separator, "CpNumberCyclonesPerManifold".
///
/// `Size` returns 0 without an inlet or an exit and, with an error, without flow. Warnings are
/// listed and not shown, but for a diameter that is missing. There is no user form.
class CDcObj : public FormlessItem<DustCollectorData> {
 public:
  using FormlessItem::FormlessItem;

  /// Replace the list by a copy of the one given. 0, with nothing changed, for a null or empty one.
  int SetInletStreams(void* list) { return replaceListUnlessEmpty(inlets(), list); }
  int SetExitStreams(void* list) { return replaceListUnlessEmpty(exits(), list); }

  int Size() override;
  /// 1 with at least one inlet and one exit.
  int GetStreamInfo() override;
  int UpdateConnectivity() override;
  int SaveParameters() override;

 protected:
  /// The cloth area of a bag house with injected gas, which no sizing path takes: units of at most
  /// 6000 SF.
  void dc_bag_calc_inj_area();

 private:
  void GetDesCriteriaInfo();
  int dc_setup();
  void dc_setup_texts();
  void dc_setup_air_temp();
  void dc_setup_efficiency();
  int dc_stp_esp();
  int dcstream(double flowOtherwise);
  void dcstream_exits();
  int dstcoll();
  void dc_update_items();
  void dc_update_flows();
  void dc_cyc_calc_diameter();
  void dc_cyc_calc_number();
  void dc_bag();
  void dc_bag_calc_area(double netArea);
  void dc_elec();
  void dc_liq_cyclone();
  void dstcoll2();
  void dstcoll2_write_parameters();
  void dstcoll2_edc_report();
  void dstcoll2_ese_report();

  [[nodiscard]] bool isGasCategory() const { return categoryIs({"EDC", "DDC"}); }
  [[nodiscard]] bool isLiquidCategory() const { return categoryIs({"ESE", "DSE"}); }
  [[nodiscard]] std::vector<NamedStream> namedStreams(void* list) const;
  [[nodiscard]] double firstOf(const char* ofRecord, const char* ofBlock, const char* units) const;
  [[nodiscard]] double givenGasFlow() const;
  [[nodiscard]] double givenLiquidFlow() const;
};

}  // namespace sizewright
