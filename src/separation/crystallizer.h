#pragma once

#include "sizewright/frame/formless_item.h"

namespace sizewright {

/// What is known of a crystallizer; 0 means not given.
struct CrystallizerData {
  double length = 0.0;           // FEET, of a mechanical one
  double crystalRate = 0.0;      // LB/H, solids of all exits; of an Oslo crystallizer
  double productSize = 0.0;      // MM
  double growthRate = 0.0;       // MM/H
  double holdTime = 0.0;         // H
  double liquidVolume = 0.0;     // CF, of a batch
  double solidVolumeFlow = 0.0;  // CFH, all exits
  double numberItems = 1.0;      // identical items
};

/// Hours that crystals take to grow to a size (MM) at a growth rate (MM/H).
double crystalHoldTime(double productSize, double growthRate);

/// A crystallizer ("ECRY"): "BATCH VAC" by liquid volume, "MECHANICAL" by length, "OSLO" by rate.
/// Above the limit of one unit there are several identical ones, unless their number is given.
/// There is no user form.
///
/// `Size` returns 0 without an inlet or without an exit; nothing else fails.
class CCryObj : public FormlessItem<CrystallizerData> {
 public:
  using FormlessItem::FormlessItem;

  int Size() override;
  int GetStreamInfo() override;
  int UpdateConnectivity() override;
  int SaveParameters() override;

 private:
  int cry_stp();
  void cry_stp_get_stream_solid_info(CvdStream& stream, double& flow, double& volume) const;
  void cry_stp_get_stream_solid_flow_rate_for_wingems(CvdStream& stream, double& flow,
                                                      double& volume) const;
  int crys_siz();
  void crys_bat();
  void crys_osl();
  void crys_mec();
  void crys_rep();
  void crys_rep_write_parameters();
};

}  // namespace sizewright
