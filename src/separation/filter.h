#pragma once

#include <string_view>

#include "sizewright/frame/formless_item.h"

namespace sizewright {

/// What is known of a filter or centrifuge; 0 means not given.
struct FilterData {
  double flt_diameter = 0.0;       // INCHES; bowl, basket, disk or filter
  double liquid_flow = 0.0;        // CFH; GPM of a sized centrifuge, see `liquidFlowInGpm`
  double driver_power = 0.0;       // HP; passed through
  double flt_length = 0.0;         // INCHES; bowl or filter
  double filter_area = 0.0;        // SF
  double filter_volume = 0.0;      // plate and frame
  double solid_vol_flow = 0.0;     // CFH
  double basket_capacity = 0.0;    // CF
  double num_units = 1.0;          // identical units
  double solid_mass_flow = 0.0;    // LB/H
  double cake_thickness = 0.0;     // FEET; 0.0833 unless given
  double bowl_extra_length = 0.0;  // INCHES; straight part of a bowl, added to its cone
  double tube_flow = 0.0;          // CFH; replaces `liquid_flow` of a tubular filter
  bool liquidFlowInGpm = false;
};

// Correlations of centrifuges: lengths in INCHES, liquid flows in GPM, solid flows in LB/H.

/// Bowl of a tubular centrifuge: 3 + 0.1 x flow.
double tubularDiameter(double liquidFlow);
/// Bowl of a disk centrifuge: 10^((flow + 160) / 600).
double diskDiameter(double liquidFlow);
/// Basket of a batch centrifuge: 10^((flow + 24307.688) / 23076.92).
double basketDiameter(double solidFlow);
/// Bowl of a continuous centrifuge with a scroll or pusher: 10^((flow + 1075) / 928.57).
double bowlDiameter(double liquidFlow);
/// Screen of a vibratory centrifuge: 10^((log10(flow) - 1.265) / 1.875).
double vibratoryDiameter(double liquidFlow);
/// Content (CF) of a cylindrical basket.
double basketCapacity(double diameter, double length);
/// Length of a bowl: the straight part and a cone of 15 degrees to each side of the axis.
double bowlLength(double straightLength, double diameter);
/// Length of a bowl whose length is not given: 40 below 200 GPM. A length above 0 stays, and so
/// does one of 0 at 200 GPM and more; a negative one becomes 96 at 350 GPM and more.
double usualBowlLength(double length, double liquidFlow);
/// Volume of a plate and frame filter from its solids: 0.25 x flow.
double plateFrameVolume(double solidFlow);
/// The same from its dimensions: length x pi/4 x (diameter^2 - (diameter - 0.06)^2).
double plateFrameVolume(double diameter, double length);
/// Area (SF) that holds a cake: flow (CFH) / 0.033 x thickness (FEET).
double cakeArea(double solidVolumeFlow, double cakeThickness);
/// Area (SF) of a drum, both sides in FEET.
double drumArea(double diameter, double length);

/// Sizes a centrifuge of a type, `liquid_flow` in GPM: brings the load within one unit, then finds
/// diameter, basket capacity and bowl length. A type without a row is left alone.
void sizeCentrifuge(std::string_view item, FilterData& data);
/// Brings the area of a filter type within one unit. `blockArea` is the area that the simulator
/// block tells: a rotary filter of that area is left alone.
void limitFilterArea(std::string_view item, double blockArea, double& area, double& units);

/// Slots of the component record for the sizes of a centrifuge type; null where it has none.
struct CentrifugeSlots {
  std::string_view item;  // empty: any other type
  const char* diameter;
  const char* length = nullptr;
  const char* flow = nullptr;  // of the machines that are known by their flow
};
CentrifugeSlots centrifugeSlots(std::string_view item);

/// A filter or, in the category "ECT", a centrifuge, from the liquid and solid flows of its inlets.
/// A load above the limit of one unit is split into identical units, each sized at the limit.
///
/// What is not given elsewhere is read like this:
///
/// - Values of the user or the simulator come from the slots that the results go to, on the
///   component record and then on the simulator block; "FILTER AREA", "Diameter" and "Length" of
///   the block come after them. Dimensions of a filter are "CpDiameter" and "CpLength", a bowl's
///   straight length is "CpBowlStraightLength", a tubular filter's flow "CpTubeFlowrate", the
///   cake's thickness "CpCakeThickness". Last come flows and densities that the record or the block
///   tells in the slots of a stream.
/// - Solids of a stream are its "SOLID MASS FLOW" or, without one, the balance of total less liquid
///   less vapor. For a centrifuge a positive balance comes first: its mass and volume replace those
///   of the solids flow. Volumes follow by the densities, 93.6 PCF for solids and 62.4 PCF for
///   liquid where the stream tells none.
/// - Exits may be connected under any tag. An exit that carries solids becomes "SOLIDS OUTLET",
///   any other "OUTLET".
///
/// A centrifuge writes its sizes where `centrifugeSlots` tells: bowl diameter and length of
/// "SOLID BOWL" and "SCREEN BWL", screen diameter of "VIBRATORY", centrifuge diameter of all
/// others, and the flow of "TUBULAR" and "DISK". Above one unit "CpNumberItems" tells how many
/// there are; flows and sizes are those of one unit. The volume of a plate and frame filter has no
/// slot; `values()` tells it.
///
/// `Size` returns 0 without an inlet and, with an error, without liquid. There is no user form.
class CFltObj : public FormlessItem<FilterData> {
 public:
  using FormlessItem::FormlessItem;

  /// Replace the list by a copy of the one given. 0, with nothing changed, for a null or empty one.
  int SetInletStreams(void* list) { return replaceListUnlessEmpty(inlets(), list); }
  int SetExitStreams(void* list) { return replaceListUnlessEmpty(exits(), list); }

  int Size() override;
  /// 1 with at least one inlet.
  int GetStreamInfo() override;
  int UpdateConnectivity() override;
  int SaveParameters() override;

 private:
  struct Solids {
    double mass = 0.0;    // LB/H
    double volume = 0.0;  // CFH
  };
  /// Flows of one inlet.
  struct StreamFlows {
    double liquidVolume = 0.0;  // CFH
    Solids solid;
    Solids balance;  // total less liquid less vapor
  };

  int flt_set();
  void flt_set_block_info();
  void flt_set_inlet_flows();
  void takeFlows(const StreamFlows& flows);
  [[nodiscard]] const Solids& solidsOf(const StreamFlows& flows) const;
  [[nodiscard]] StreamFlows flt_stp_get_reqd_stream_flow(CvdValueObject& stream) const;
  [[nodiscard]] StreamFlows flt_stp_get_stream_flow_rate_for_wingems(CvdValueObject& stream) const;
  [[nodiscard]] double liquidVolumeOf(CvdValueObject& stream) const;
  void flt_get_outlet_port_info();
  int flt_siz();
  void flt_cent_siz();
  void flt_calculate_area_or_volume();
  void flt_calculate_area();
  void flt_rep();
  void flt_rep_write_parameters();
  void flt_rep_write_centrifuge();

  [[nodiscard]] bool isCentrifuge() const { return categoryIs({"ECT"}); }
  [[nodiscard]] const char* liquidFlowUnit() const;
};

}  // namespace sizewright
