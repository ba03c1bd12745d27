#pragma once

#include "sizewright/frame/formless_item.h"

namespace sizewright {

/// What is known of a dryer; 0 means not given.
struct DryerData {
  double airMassFlow = 0.0;       // LB/H; nothing fills it
  double inletLiquidFlow = 0.0;   // LB/H, all inlets
  double exitLiquidFlow = 0.0;    // LB/H, all exits
  double solidFlow = 0.0;         // LB/H, all exits
  double productFlow = 0.0;       // LB/H
  double evaporationRate = 0.0;   // LB/H
  double solidVolumeFlow = 0.0;   // CFH, all exits
  double gasFlowrate = 0.0;       // CFH
  double diameter = 0.0;          // FEET; pan and rotary
  double bedFactor = 0.0;         // what the solid volume flow of a tray, pan or drum is divided by
  double length = 0.0;            // FEET; tray and rotary
  double surfaceArea = 0.0;       // SF, one unit
  double capacity = 0.0;          // CF, one unit; vacuum and rotary
  double numberItems = 1.0;       // identical items
  double holdFactor = 0.0;        // 0.75 unless given
  double fillPercent = 0.0;       // 25 unless given
  double lengthToDiameter = 0.0;  // 4 unless given
  double dryVaporFlow = 0.0;      // LB/H, vapor of exits without solids
};

/// Volume of a dryer (CF) that holds the solid volume flow (CFH) for `holdFactor` hours and is
/// filled to `fillPercent`.
double dryerCapacity(double solidVolumeFlow, double holdFactor, double fillPercent);
/// Diameter (FEET) of the round bed of a pan dryer: square root of
/// (solidVolumeFlow x 4/pi / bedFactor).
double panDiameter(double solidVolumeFlow, double bedFactor);
/// Side (FEET) of the square bed of a tray dryer: square root of (solidVolumeFlow / bedFactor).
double trayLength(double solidVolumeFlow, double bedFactor);
/// Shell area (SF) of a cylinder, both sides in FEET.
double shellArea(double diameter, double length);

/// A dryer: tray and pan ("ED", "ETDS"), drum ("EDD"), rotary ("ERD" and whatever is no other),
/// air ("EAD"), and the items "SPRAY", "VACUUM" and "JAC VACUUM" of any category.
///
/// The evaporation rate and the solid volume flow of the streams give one figure of size per item:
/// an area, a capacity, a gas rate or an evaporation rate. Above the limit of one unit there are
/// several identical ones, unless their number is given. Missing flows count as 0 without a
/// message; `Size` returns 0 only without an inlet or without an exit. There is no user form.
class CDryObj : public FormlessItem<DryerData> {
 public:
  using FormlessItem::FormlessItem;

  int Size() override;
  /// Reads the evaporation rate of a spray dryer afresh; nothing for other items. Returns 1.
  int GetLastInfo() override;
  int GetStreamInfo() override;
  int UpdateConnectivity() override;
  int SaveParameters() override;

 private:
  int dry_stp();
  void dry_stp_get_inlets();
  void dry_stp_get_exits();
  void dry_stp_get_stream_solid_flow_info(CvdStream& stream, double& flow, double& volume) const;
  void dry_stp_get_stream_solid_flow_rate_for_wingems(CvdStream& stream, double& flow,
                                                      double& volume) const;
  void dry_stp_sizing();
  int dry_siz();
  void dry_cal_capacity();
  void dry_cal_surface_area();
  void dry_cal_pan();
  void dry_cal_tray();
  void dry_cal_drum();
  void dry_cal_rotary();
  void setCapacityFactors();
  void dry_rep();
  void dry_rep_write_parameters();
};

}  // namespace sizewright
