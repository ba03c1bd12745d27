#pragma once

#include <string_view>

#include "sizewright/frame/formless_item.h"

namespace sizewright {

/// What is known of a vibrating screen; 0 means not given.
struct ScreenData {
  double surfaceArea = 0.0;  // SF; all units of a given area, one unit of a split one
  double numberDecks = 0.0;
  double screenDiameter = 0.0;    // INCHES
  double screenLength = 0.0;      // FEET
  double screenWidth = 0.0;       // FEET
  double screenOpening = 0.0;     // INCHES; 1 unless given
  double numberItems = 1.0;       // identical items
  double deckCapacity = 0.0;      // TPH/SF of the decks together
  double materialCapacity = 0.0;  // TPH/SF of one deck; 3 unless the property database tells
  CriterionText feedMaterial;     // "Sand and Gravel" unless given
  double solidFlow = 0.0;         // LB/H, all inlets
  double solidFlowTPH = 0.0;      // TPH
};

/// Key under which the property database holds the capacity for an opening (INCHES): that of the
/// next greater opening of its table, "3." above 2.5.
std::string_view screenOpeningKey(double opening);
/// Capacity of stacked decks: 2.7 times that of one deck for three and more, 1.9 times for two.
double stackedCapacity(double capacity, double decks);
/// Area (SF) for a solid flow (TPH) and a capacity (TPH/SF); 1.5 without a capacity.
double screenArea(double solidFlow, double capacity);
/// Brings the area (SF) of a circular screen within one unit: above 18 SF there are area / 18
/// units, rounded up, of 16 SF each.
void limitCircularArea(double& area, double& units);
/// Diameter (INCHES) of a round area in SF, from 18 to 60.
double screenDiameter(double area);
/// Sides (FEET) of a rectangular screen of an area in SF; one that is given stays and the other
/// follows. A side is at least 6 long and 3 wide, and the area is not worked back from that. An
/// area of 0 has the least sides.
void setScreenSides(double area, double& length, double& width);
/// Items and decks of a plain screen. Up to 80 SF one deck will do, of at least 10 SF. Above, the
/// given decks are tried on one item, and then single decks on up to 50 items of 80 SF each; the
/// area becomes that of the decks found, or stays when 50 items do not reach it.
void findDecks(double& area, double& decks, double& units);

/// A vibrating screen: area from the solid flow of the inlets and the capacity per unit of area for
/// the feed material and the opening, then a diameter ("CIRCULAR"), two sides ("RECTANGLE") or a
/// number of decks (any other item).
///
/// `Size` returns 0 without an inlet or without an exit. Without solids there is an error, and
/// sizing goes on with the least size. There is no user form.
class CScObj : public FormlessItem<ScreenData> {
 public:
  using FormlessItem::FormlessItem;

  int Size() override;
  int GetStreamInfo() override;
  int UpdateConnectivity() override;
  int SaveParameters() override;

 private:
  void GetDesCriteriaInfo();
  int sc_setup();
  void sc_setup_get_solid_flow();
  [[nodiscard]] double sc_stp_get_stream_solid_flow_rate_for_orlan(CvdStream& stream) const;
  [[nodiscard]] double sc_stp_get_stream_solid_flow_rate_for_wingems(CvdStream& stream) const;
  void sc_setup_block_info();
  void sc_setup_opening();
  void sc_setup_material_capacity();
  int sc_siz();
  void sc_siz_area();
  void sc_calculate_diameter();
  void sc_calculate_length_width();
  void sc_calculate_area_and_no_of_decks();
  void sc_rep_write_parameters();

  [[nodiscard]] bool isShaped() const { return itemIs({"CIRCULAR", "RECTANGLE"}); }
};

}  // namespace sizewright
