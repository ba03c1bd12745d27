#include <algorithm>
#include <string>

#include "sizewright/frame/stream_values.h"
#include "sizewright/host/messages.h"
#include "sizewright/host/text.h"
#include "sizewright/host/units.h"
#include "sizewright/vessels/vessel.h"

namespace sizewright {

namespace {

constexpr double kPi = 3.1415926536;
constexpr double kQuarterPi = 0.7853981634;
constexpr const char* kNoLiquid =
    "Both total_exit_light_liq_vol_flow and total_inlet_liq_vol_flow were found to be not > 0.  No "
    "liquid flow.";
constexpr const char* kNoSize =
    "Vessel Capacity could not be calculated.\nPlease check design information.";

void status(int percent, const char* text) {
  status_write(percent, 3, text);
}

}  // namespace

int CVesObj::proc_vs() {
  VesselData& vessel = data();
  status(51, "Checking user specifications.");
  const bool hasDiameter = vessel.ves_dia > 0.0;
  const bool hasHeight = vessel.ves_height > 0.0;
  setIfNotPositive(vessel.ht_dia_ratio, 3.0);
  setIfNotPositive(vessel.res_time, 5.0);
  status(53, "Checking vessel configuration.");
  const bool horizontal = isHorizontal();
  const int sized = horizontal ? proc_vs_size_horizontal(vessel.ht_dia_ratio, vessel.res_time)
                               : proc_vs_size_vertical(vessel.ht_dia_ratio, vessel.res_time);
  if (sized == 0) {
    tell(errors, kNoSize);
    showBox(kNoSize, kStopBox);
    // kept: without dialogs a horizontal drum goes on with whatever values stand
    if (!horizontal || noDialogs == 0) return 0;
  }
  if (horizontal) {
    status(66, "Completed sizing of main vessel.");
    status(67, "Checking for bootleg.");
    if (proc_vs_size_boot(vessel.res_time) == 0) {
      vessel.boot_ht = 0.0;
      vessel.boot_dia = 0.0;
    }
  }
  status(80, "Rounding up main vessel dimensions.");
  if (!hasDiameter) {
    status(85, "Rounding up diameter.");
    roundUpAndTell(vessel.ves_dia, "Calc vessel dia rounded up by 1/2 ft");
  }
  if (!hasHeight) {
    status(85, "Rounding up height.");
    roundUpAndTell(vessel.ves_height, "Calc vessel ht rounded up by 1/2 ft");
  }
  status(87, "Determining vessel capacity.");
  vessel.capacity = determine_cylinder_capacity(vessel.ves_dia, vessel.ves_height);
  if (horizontal) {
    status(85, "Rounding up boot dimensions.");
    // kept: also what the user gave, and the note comes once for each
    roundUpAndTell(vessel.boot_ht, "Calc boot ht and dia rounded up by 1/2 ft.");
    roundUpAndTell(vessel.boot_dia, "Calc boot ht and dia rounded up by 1/2 ft.");
  }
  status(90, "Completed vessel sizing...");
  return 1;
}

int CVesObj::proc_vs_check_hd_ratio(double limit, double diameter, double height) {
  const double ratio = height / diameter;
  if (limit > ratio) return -1;
  return ratio > limit ? 1 : 0;
}

void CVesObj::roundUpAndTell(double& size, const char* note) {
  size = compiler_round_up_by_half(size);
  if (size > 0.0) tell(calculations, note);
}

double CVesObj::exitOrInletLiquid() const {
  const double exit = values().total_exit_light_liq_vol_flow;
  return exit > 0.0 ? exit : std::max(exit, values().total_inlet_liq_vol_flow);
}

double CVesObj::liquidFlowOrNote() {
  const double flow = exitOrInletLiquid();
  if (!(flow > 0.0)) tell(calculations, kNoLiquid);
  return flow;
}

void CVesObj::tellRatio(double ratio) {
  status(75, "Estimating L/D.");
  const double actual = data().ves_height / data().ves_dia;
  warn(std::string("Actual L/D ratio is ") + compiler_float_to_string(actual).c_str() +
       "\nUser defined L/D ratio from design criteria is " +
       compiler_float_to_string(ratio).c_str());
}

// --- Horizontal drums ---------------------------------------------------------------------------

int CVesObj::proc_vs_size_horizontal(double ratio, double residence) {
  VesselData& drum = data();
  status(53, "Beginning horizontal vessel design.");
  status(60, "Determining vessel diameter.");
  if (drum.r_vc >= 1.0) {
    tell(calculations, "Invalid input for r_vc (should be <1.0)");
    return 0;
  }
  if (!(drum.ves_dia > 0.0)) {
    drum.ves_dia = proc_vs_determine_diameter(drum.capacity, ratio, residence, drum.min_ves_dia,
                                              drum.r_vc, drum.sep_factor_mult, drum.kv_factor, 0.0);
  }
  if (!(drum.ves_dia > 0.0)) return 1;
  status(70, "Obtaining vessel length.");
  if (!(drum.ves_height > 0.0)) {
    status(73, "Calculating vessel length.");
    setHorizontalLength(ratio, residence);
  }
  if (drum.ves_height > 0.0) {
    drum.capacity = drum.ves_dia * drum.ves_dia * kQuarterPi * drum.ves_height;
  }
  tellRatio(ratio);
  status(80, "Obtained vessel capacity, length and diameter for horizontal vessel.");
  return 1;
}

void CVesObj::setHorizontalLength(double ratio, double residence) {
  VesselData& drum = data();
  const double square = drum.ves_dia * drum.ves_dia;
  if (drum.capacity > 0.0) {
    drum.ves_height = cylinderHeight(drum.capacity, square);
    return;
  }
  const double flow = liquidFlowOrNote();
  if (!(flow > 0.0)) {
    setLengthByRatio(ratio);
    return;
  }
  drum.capacity = proc_ves_determine_liq_vol(residence, flow) / (1.0 - drum.r_vc);
  drum.ves_height = cylinderHeight(drum.capacity, square);
  if (drum.ves_dia < drum.ves_height) {
    tell(calculations,
         " Veslength calc using LRT,RatioVapArea/crosssecArea(capacity=liq_vol/(1-Rvc), Dcalc");
    return;
  }
  tell(calculations,
       " VesHt calc using (LRT,RatioVapArea/crosssecArea(capacity=liq_vol/(1-Rvc), Dcalc) is <= "
       "DiaCalc; Possibly low liquid flow; Check process conditions and consider using Vertical "
       "vessel.");
  tell(warnings,
       " Veslength calc using LRT <= Dia; Possibly low liquid flow; Check process conditions and "
       "consider using Vertical vessel.");
  setLengthByRatio(ratio);
}

void CVesObj::setLengthByRatio(double ratio) {
  data().ves_height = data().ves_dia * ratio;
  tell(calculations, formatText(" So Veslength calc using L/D*Dcalc: Veslength(%5.2f ft) = "
                                "Dcalc(%5.2f ft)*L/D(%3.2f ft).",
                                data().ves_height, data().ves_dia, ratio));
}

int CVesObj::proc_vs_size_boot(double residence) {
  VesselData& drum = data();
  status(70, "Checking design criteria file for bootleg sizing parameters.");
  status(72, "Checking for heavy liquid phase volume.");
  const double heavyFlow = drum.total_exit_heavy_liq_vol_flow;
  const double heavy = heavyFlow > 0.0 ? proc_ves_determine_liq_vol(residence, heavyFlow) : 0.0;
  status(74, "Determining boot diameter.");
  if (!(drum.boot_dia > 0.0)) {
    if (!(heavy > 0.0)) {
      tell(calculations, "No Heavy Liquid Flow found.  Boot not sized");
      return 0;
    }
    // kept: the volume of the residence time is divided by a velocity as if it were a flow
    const double area = heavy / (drum.boot_liq_velocity * 60.0);
    drum.boot_dia = compiler_pow_double(area * 4.0 / kPi, 0.5);
    if (drum.min_boot_dia > drum.boot_dia) drum.boot_dia = drum.min_boot_dia;
  }
  status(74, "Determining boot height.");
  if (!(drum.boot_ht > 0.0)) {
    if (drum.boot_dia > 0.0) {
      drum.boot_ht = heavy * 4.0 / (compiler_pow_double(drum.boot_dia, 2.0) * kPi);
    }
    if (drum.min_boot_ht > drum.boot_ht) drum.boot_ht = drum.min_boot_ht;
  }
  status(75, "Obtained boot dimensions.");
  return 1;
}

// --- Vertical drums -----------------------------------------------------------------------------

double CVesObj::vaporHeight() const {
  const VesselData& drum = values();
  return drum.ht_btw_InNozz_HLLTap + drum.ht_dis + drum.ht_hll + drum.ht_me;
}

int CVesObj::proc_vs_size_vertical(double ratio, double residence) {
  VesselData& drum = data();
  status(53, "Beginning vertical vessel design.");
  drum.r_vc = 1.0;
  drum.sep_factor_mult = 1.0;
  status(55, "Obtaining disengagement height from design criteria file.");
  status(60, "Obtained sizing parameters from design criteria file.");
  status(60, "Determining vessel diameter.");
  if (!(drum.ves_dia > 0.0)) {
    drum.ves_dia =
        proc_vs_determine_diameter(drum.capacity, ratio, residence, drum.min_ves_dia, drum.r_vc,
                                   drum.sep_factor_mult, drum.kv_factor, vaporHeight());
  }
  if (!(drum.ves_dia > 0.0)) return 1;
  status(70, "Obtaining vessel height.");
  if (!(drum.ves_height > 0.0)) setVerticalHeight(residence);
  if (drum.ves_height > 0.0) {
    drum.capacity = drum.ves_dia * drum.ves_dia * kQuarterPi * drum.ves_height;
  }
  tellRatio(ratio);
  status(80, "Obtained vessel capacity, length and diameter for vertical vessel.");
  return 1;
}

void CVesObj::setVerticalHeight(double residence) {
  VesselData& drum = data();
  const double square = drum.ves_dia * drum.ves_dia;
  if (drum.capacity > 0.0) {
    drum.ves_height = cylinderHeight(drum.capacity, square);
    return;
  }
  double liquid =
      cylinderHeight(proc_ves_determine_liq_vol(residence, exitOrInletLiquid()), square);
  tell(calculations, "Liq. ht calculated based on liq vol(res time) and ves dia calculated.");
  if (liquid < drum.min_liq_ht) {
    const std::string text = formatText(
        "Calculated liquid level (%6.2f ft) is less than the minimum specified in the design "
        "criteria (%6.2f ft).\nMinimum liquid level used.",
        liquid, drum.min_liq_ht);
    liquid = drum.min_liq_ht;
    warn(text);
    tell(calculations, text);
  }
  liquid += drum.ht_LLL_tangent;
  tell(calculations,
       formatText("Added the height between the LowLiqLevel(LowLiqLevel Tap) and the Tangent Line "
                  "(this is to provide space for welding) = %5.2f ft",
                  drum.ht_LLL_tangent));
  status(73, "Obtaining vapor disengagement height.");
  const double vapor = vaporHeight();
  tell(calculations,
       formatText("vapht(%5.2f ft) = ht_btw_InNozz_HLLTap(%5.2f ft) + ht_dis(%5.2f ft) + "
                  "ht_hll(%5.2f ft) + ht_me(%5.2f ft)",
                  vapor, drum.ht_btw_InNozz_HLLTap, drum.ht_dis, drum.ht_hll, drum.ht_me));
  status(74, "Calculating overall height of the vessel.");
  drum.ves_height = liquid + vapor;
  tell(calculations, formatText("Totvesht(%5.2f ft)=htliq(%5.2f ft)+ht_vap(%5.2f ft)",
                                drum.ves_height, liquid, vapor));
}

}  // namespace sizewright
