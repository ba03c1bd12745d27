#pragma once

#include "sizewright/frame/formless_item.h"

namespace sizewright {

/// What is known of a crusher or mill; 0 means not given.
struct CrusherData {
  double solidFlow = 0.0;       // LB/H, all exits
  double flowTPH = 0.0;         // TPH
  double flowPerMinute = 0.0;   // short tons a minute
  double driverPower = 0.0;     // HP
  double outletDiameter = 0.0;  // FEET: outlet size, or the diameter of a mill
  double workIndex = 0.0;
  double feedDiameter = 0.0;  // FEET
  double productSize = 0.0;   // FEET
  double numberItems = 1.0;   // kept: neither read nor written
  double insideLength = 0.0;  // FEET, of a mill
};

/// Power (HP) to grind short tons a minute from a feed size to a product size, both in FEET, by
/// Bond's third theory of comminution (F. C. Bond, Trans. AIME 193, 1952): 1.46 W (1/sqrt(P) -
/// 1/sqrt(F)).
double grindingPower(double tonsPerMinute, double workIndex, double productSize, double feedSize);

/// A crusher ("ECR") or mill ("EM"): solid flow of the exits, outlet size, and the power to grind
/// down from four times that size. There is no user form.
///
/// `Size` returns 0 without an inlet or without an exit. A missing outlet size is a warning and
/// leaves the power at 0.
class CCrshObj : public FormlessItem<CrusherData> {
 public:
  using FormlessItem::FormlessItem;

  int Size() override;
  int GetStreamInfo() override;
  int UpdateConnectivity() override;
  int SaveParameters() override;

 private:
  int cr_setup();
  void cr_stp_get_block_info();
  double readOutletDiameter() const;
  double cr_stp_get_stream_solid_flow_rate(CvdStream& stream) const;
  double cr_stp_get_stream_solid_flow_rate_for_wingems(CvdStream& stream) const;
  int cr_siz();
  void cr_rep_write_parameters();
  [[nodiscard]] bool isMill() const;
};

}  // namespace sizewright
