#pragma once

#include "sizewright/host/fixed_text.h"

namespace sizewright {

/// Agitator of an agitated vessel. Only recorded: the sizing reads none of it.
struct AgitatorData {
  FixedText<128> driver_type;
  FixedText<128> agitator_type;
  FixedText<128> agitator_desc;
  FixedText<128> impeller_type;
  double agitator_third_value = 0.0;
  double agitator_upper_value = 0.0;
  double agitator_lower_value = 0.0;
  int num_impellers = 0;
};

/// What is known of a vessel. A number at or below 0 means not given. Flows are mass (LB/H) and
/// volume (CF/H), lengths FEET.
struct VesselData {
  double oper_temp = 0.0;     // DEG F, highest of the streams
  double oper_press = 0.0;    // PSI, highest of the streams
  double design_press = 0.0;  // PSI
  double design_temp = 0.0;   // DEG F
  double total_inlet_vap_mass_flow = 0.0;
  double total_inlet_liq_mass_flow = 0.0;
  double total_inlet_liq_vol_flow = 0.0;
  double total_inlet_vap_vol_flow = 0.0;
  double total_exit_vap_mass_flow = 0.0;
  double total_exit_vap_vol_flow = 0.0;
  double total_exit_light_liq_mass_flow = 0.0;
  double total_exit_light_liq_vol_flow = 0.0;
  double light_liq_density = 0.0;  // PCF
  double total_exit_heavy_liq_mass_flow = 0.0;
  double total_exit_heavy_liq_vol_flow = 0.0;
  double heavy_liq_density = 0.0;  // PCF
  double ves_height = 0.0;         // tangent to tangent; the length of a horizontal vessel
  double ves_dia = 0.0;
  double capacity = 0.0;  // CF
  double boot_dia = 0.0;  // the drip leg of a horizontal drum
  double boot_ht = 0.0;
  double ht_dia_ratio = 0.0;      // L/D; H/D of a storage vessel
  double res_time = 0.0;          // MINUTE
  double vapor_free_space = 0.0;  // percent of the total volume
  double min_ves_dia = 0.0;
  double kv_factor = 0.0;     // vapor load factor, FT/S
  FixedText<256> sep_method;  // how the vapor velocity is found
  double disengage_factor = 0.0;
  double particle_dia = 0.0;
  double r_vc = 0.0;  // vapor area over cross-sectional area
  double sep_factor_mult = 0.0;
  double min_boot_ht = 0.0;
  double min_boot_dia = 0.0;
  double boot_liq_velocity = 0.0;     // FPM
  double ht_dis = 0.0;                // disengagement height
  double ht_hll = 0.0;                // above the mist eliminator
  double ht_me = 0.0;                 // of the mist eliminator
  double min_liq_ht = 0.0;            // between the level taps
  double ht_btw_InNozz_HLLTap = 0.0;  // inlet nozzle above the high level tap
  double ht_LLL_tangent = 0.0;        // low level tap above the tangent line
  double holding_days = 0.0;
  double holding_hours = 0.0;  // in a day
  FixedText<256> vap_stream;   // exit streams by phase
  FixedText<256> light_liq_stream;
  FixedText<256> heavy_liq_stream;
  double entered_sep_factor = 0.0;  // as a form gave it
  AgitatorData agitator;
  bool design_from_user = false;  // design conditions are the project's and stay
};

}  // namespace sizewright
