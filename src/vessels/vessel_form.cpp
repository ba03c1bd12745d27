#include <array>
#include <string>

#include "sizewright/host/list2.h"
#include "sizewright/host/text.h"
#include "sizewright/vessels/vessel.h"

namespace sizewright {

namespace {

using D = VesselData;

constexpr int kFormStreams = 3;
constexpr const char* kNone = "NONE";
constexpr const char* kProcessRatio = "Process Vessel Height to Diameter Ratio";
constexpr const char* kStorageRatio = "Storage Vessel Height to Diameter Ratio";
constexpr const char* kMethod = "Vapor/Liquid Separator Sizing Method";
constexpr const char* kSeparationFactor = "Separation factor";

constexpr auto kFormIn = std::to_array<FormInRow<D>>({
    {"Residence Time", &D::res_time, nullptr, FormRule::plain},
    {"Minimum disengagement height", &D::ht_dis, "FEET", FormRule::adjusted},
    {"Minimum height above the mist eliminator", &D::ht_hll, "FEET", FormRule::adjusted},
    {"Height of mist eliminator", &D::ht_me, "FEET", FormRule::adjusted},
    {"Minimum Ht. Btw Low and High Liquid Level Taps", &D::min_liq_ht, "FEET", FormRule::adjusted},
    {"Ht. Btw Inlet Nozzle and High Liquid Level Tap", &D::ht_btw_InNozz_HLLTap, "FEET",
     FormRule::adjusted},
    {"Ht. Btw Low Liquid Level Tap and Tangent Line", &D::ht_LLL_tangent, "FEET",
     FormRule::adjusted},
    {kSeparationFactor, &D::entered_sep_factor, nullptr, FormRule::plain},
    {"Minimum vessel diameter", &D::min_ves_dia, "FEET", FormRule::adjusted},
    {"Design factor multiplier for disengagement velocity", &D::disengage_factor, nullptr,
     FormRule::plain},
    {"Vapor area / cross sectional area", &D::r_vc, nullptr, FormRule::plain},
    {"Separation factor multiplier", &D::sep_factor_mult, nullptr, FormRule::plain},
    {"Average liquid particle diameter", &D::particle_dia, "FEET", FormRule::adjusted},
    {"Minimum bootleg length", &D::min_boot_ht, "FEET", FormRule::adjusted},
    {"Minimum bootleg diameter", &D::min_boot_dia, "FEET", FormRule::adjusted},
    {"Bootleg liquid velocity", &D::boot_liq_velocity, "FPM", FormRule::adjusted},
    {slotOf("Diameter"), &D::ves_dia, "FEET", FormRule::adjusted},
    {slotOf("vessel t-t length"), &D::ves_height, "FEET", FormRule::adjusted},
    {"CpLiquidVolume", &D::capacity, "CF", FormRule::adjusted},
    {"CpDripLegDiameter", &D::boot_dia, "FEET", FormRule::adjusted},
    {"CpDripLegLength", &D::boot_ht, "FEET", FormRule::adjusted},
    {"Holding Hours in a Day", &D::holding_hours, nullptr, FormRule::plain},
    {"Number of Holding Days", &D::holding_days, nullptr, FormRule::plain},
    {"Vapor Free Space (% of Total Storage Vessel Volume)", &D::vapor_free_space, nullptr,
     FormRule::plain},
});

// The method stands between these two tables.
constexpr auto kFormOutBeforeMethod = std::to_array<FormOutRow<D>>({
    {"Residence Time", &D::res_time, "MINUTES", "MINUTES", "MINUTES"},
    {kProcessRatio, &D::ht_dia_ratio},
    {kStorageRatio, &D::ht_dia_ratio},
    {"Minimum disengagement height", &D::ht_dis, "FEET", "FEET", "MM"},
    {"Minimum height above the mist eliminator", &D::ht_hll, "FEET", "FEET", "MM"},
    {"Height of mist eliminator", &D::ht_me, "FEET", "FEET", "MM"},
    {"Minimum Ht. Btw Low and High Liquid Level Taps", &D::min_liq_ht, "FEET", "FEET", "MM"},
    {"Ht. Btw Inlet Nozzle and High Liquid Level Tap", &D::ht_btw_InNozz_HLLTap, "FEET", "FEET",
     "MM"},
    {"Ht. Btw Low Liquid Level Tap and Tangent Line", &D::ht_LLL_tangent, "FEET", "FEET", "MM"},
    {kSeparationFactor, &D::kv_factor},  // kept: Kv under the label of the factor
    {"Minimum vessel diameter", &D::min_ves_dia, "FEET", "FEET", "MM"},
});
constexpr auto kFormOutAfterMethod = std::to_array<FormOutRow<D>>({
    {"Design factor multiplier for disengagement velocity", &D::disengage_factor},
    {"Vapor area / cross sectional area", &D::r_vc},
    {"Separation factor multiplier", &D::sep_factor_mult},
    {"Average liquid particle diameter", &D::particle_dia, "FEET", "FEET", "MM"},
    {"Minimum bootleg length", &D::min_boot_ht, "FEET", "FEET", "MM"},
    {"Minimum bootleg diameter", &D::min_boot_dia, "FEET", "FEET", "MM"},
    {"Bootleg liquid velocity", &D::boot_liq_velocity, "FPM", "FPM", "M/MIN"},
    {slotOf("Diameter"), &D::ves_dia, "FEET", "FEET", "MM"},
    {slotOf("vessel t-t height"), &D::ves_height, "FEET", "FEET", "MM"},
    {"CpLiquidVolume", &D::capacity, "CF", "CF", "M3"},
    {"CpDripLegDiameter", &D::boot_dia, "FEET", "FEET", "MM"},
    {"CpDripLegLength", &D::boot_ht, "FEET", "FEET", "MM"},
    {"Holding Hours in a Day", &D::holding_hours},
    {"Number of Holding Days", &D::holding_days},
    {"Vapor Free Space (% of Total Storage Vessel Volume)", &D::vapor_free_space},
});

// "INLET STREAM 1" and so on.
std::string streamLabel(const char* direction, int number) {
  return formatText("%s STREAM %d", direction, number);
}

void showStreams(const char* direction, void* list, CStrList& names, CStrList& values) {
  for (int i = 0; i < list2_length(list); ++i) {
    const std::string_view stream = list2_get_item(list, i, nullptr);
    names.Append(streamLabel(direction, i + 1));
    values.Append(stream.empty() ? kNone : stream);
  }
}

}  // namespace

int CVesObj::SetValues(CStrList& names, CStrList& values) {
  if (names.IsEmpty()) return 0;
  streamLists().restart();
  const auto takeStreams = [&](void* list, const char* direction) {
    for (int number = 1; number <= kFormStreams; ++number) {
      const std::string stream = formText(names, values, streamLabel(direction, number));
      list2_append_to_end(list, stream.empty() ? kNone : stream);
    }
  };
  takeStreams(inlets(), "INLET");
  takeStreams(exits(), "OUTLET");

  takeForm(kFormIn, names, values);
  takeFormNumber(data().ht_dia_ratio, names, values,
                 itemIs({"CYLINDER", "HORIZ DRUM"}) ? kProcessRatio : kStorageRatio, nullptr,
                 FormRule::plain);
  const double factor = data().entered_sep_factor;
  data().kv_factor = factor > 0.0 ? vaporLoadFactor(factor) : 0.0;
  data().sep_method = formText(names, values, kMethod);
  TrimString(data().sep_method.data());
  return 1;
}

int CVesObj::ReturnValues(CStrList& names, CStrList& values) {
  names.RemoveAll();
  values.RemoveAll();
  showStreams("INLET", inlets(), names, values);
  showStreams("OUTLET", exits(), names, values);
  showForm(kFormOutBeforeMethod, names, values);
  names.Append(kMethod);
  values.Append(data().sep_method);
  showForm(kFormOutAfterMethod, names, values);
  return 1;
}

}  // namespace sizewright
