#pragma once

#include <string_view>

#include "sizewright/frame/sizing_item.h"
#include "sizewright/vessels/vessel_correlations.h"
#include "sizewright/vessels/vessel_data.h"

namespace sizewright {

/// A vessel: process drum, storage tank, sphere, spheroid, agitated vessel or cell. Category and
/// item code choose the road that it is sized on.
///
/// `Size` returns 0 when the streams are not fit for sizing or the road finds no capacity; the
/// reason is in the errors. kept: inlet totals add up over several `Size` on one object, until
/// `Initialize`.
class CVesObj : public SizingItem<VesselData, ExitRelease::abandoned> {
 public:
  using SizingItem::SizingItem;

  int GetConnectedStreams() override;
  int Size() override;
  /// Gathers user dimensions, process information, criteria and streams. Always 1.
  int GetLastInfo() override;
  /// Takes up to three inlets and three exits, and the sizes and criteria of a form. kept: a
  /// "Separation factor" is turned into Kv, and Kv goes out under the same label.
  int SetValues(CStrList& names, CStrList& values) override;
  int ReturnValues(CStrList& names, CStrList& values) override;
  /// 0 without inlets or with more than three exits.
  int GetStreamInfo() override;
  int UpdateConnectivity() override;
  int SaveParameters() override;

  /// Each replaces a list by a copy of the one given; 0 for a null or empty list.
  int SetInletStreams(void* list) { return replaceListUnlessEmpty(inlets(), list); }
  int SetExitStreams(void* list) { return replaceListUnlessEmpty(exits(), list); }

 protected:
  // --- Geometry: lengths in FEET, volumes in CF, flows in CF/H, times in minutes ---
  static double determine_cylinder_capacity(double diameter, double height) {
    return cylinderVolume(diameter, height);
  }
  static double st_sp_calculate_sphere_volume(double diameter) { return sphereVolume(diameter); }
  static double spheroid_cal_vol(double diameter, double height) {
    return spheroidVolume(diameter, height);
  }
  static double proc_ves_determine_liq_vol(double minutes, double flow) {
    return heldVolume(minutes, flow);
  }
  /// Compares a limit with the slenderness: -1 when the limit is greater, 1 when it is less, 0 when
  /// they are equal. No sizing path asks.
  static int proc_vs_check_hd_ratio(double limit, double diameter, double height);
  static void func_3rd_order_polynomial(double a3, double a2, double a1, double a0, double x,
                                        double* f, double* df) {
    evaluate({a3, a2, a1, a0}, x, *f, *df);
  }
  /// The root that `findRoot` gives; a warning, and 0, where the bounds do not bracket it, a
  /// warning where the rounds do not suffice.
  double proc_vs_cal_root_3rd_order_polynoimial_by_mnr(double lower, double upper, double a3,
                                                       double a2, double a1, double a0);

 private:
  // --- Roads ---
  struct Road {
    void (CVesObj::*information)();
    void (CVesObj::*criteria)();
    int (CVesObj::*size)();
    void (CVesObj::*write)();
  };
  const Road& road() const;
  [[nodiscard]] bool isHorizontal() const;
  int vs_design_vardex_sizing_expert();

  // --- Intake ---
  void vs_main_get_user_input_from_add_module_screen();
  void readTankCapacity();
  void vsinp_get_process_info();
  void vsinp_proc_vs();
  void vsinp_get_horizontal();
  void vsinp_get_vertical();
  void vsinp_storage();
  void vsinp_agvs();
  void GetDesCriteriaInfo();
  void vsinp_proc_vs_get_des();
  void vsinp_storage_get_des();
  void vsinp_agvs_get_des();
  [[nodiscard]] double vsinp_proc_vs_determine_ht_dia_ratio(const char* name,
                                                            double designPressure) const;
  FixedText<128> projectText(const char* slot) const;

  // --- Streams ---
  struct StreamFlows {
    double vaporMass = 0.0;
    double liquidMass = 0.0;
    double liquidVolume = 0.0;
    double vaporVolume = 0.0;
    double pressure = 0.0;
    double temperature = 0.0;
  };
  struct Conditions;
  int vsstream();
  Conditions readInlets();
  Conditions readExits();
  void readPhases();
  void vsstream_get_stream_flow_properties(std::string_view name, StreamFlows& flows) const;
  void vsstream_assign_liquid_streams(double density1, std::string_view name1, double density2,
                                      std::string_view name2);
  bool takeUserDesign();
  void vsstream_get_design_temp_and_pressure(const Conditions& inlet, const Conditions& exit);
  int vessel_input_is_ok();
  int refuse(const char* text);
  int vsstream_write_streams_and_port_function_ex();

  // --- Process vessels ---
  int proc_vs();
  int proc_vs_size_horizontal(double ratio, double residence);
  void setHorizontalLength(double ratio, double residence);
  void setLengthByRatio(double ratio);
  int proc_vs_size_vertical(double ratio, double residence);
  void setVerticalHeight(double residence);
  [[nodiscard]] double vaporHeight() const;
  void tellRatio(double ratio);
  int proc_vs_size_boot(double residence);
  double proc_vs_determine_diameter(double capacity, double ratio, double residence, double minimum,
                                    double areaRatio, double multiplier, double kv,
                                    double vaporHeight);
  double vaporDiameter(double ratio, double areaRatio, double multiplier, double kv);
  double vaporVelocity(double massFlow, double volumeFlow, double density, double multiplier,
                       double kv);
  double liquidDiameter(double capacity, double ratio, double residence, double areaRatio,
                        double vaporHeight);
  double proc_vs_determine_vap_vel_liquid_entrainment_method(double massFlow, double volumeFlow,
                                                             double density, double multiplier,
                                                             double kv);
  double correlatedKv(double massFlow, double density);
  double proc_vs_determine_vap_vel_particle_size_separation(double density, double liquidDensity);
  double proc_vs_calc_dia_from_liq_vol(double capacity, double liquidVolume, double ratio,
                                       double vaporHeight);
  [[nodiscard]] double exitOrInletLiquid() const;
  double liquidFlowOrNote();
  void roundUpAndTell(double& size, const char* note);
  void proc_vs_write_results();

  // --- Storage, spheres, spheroids ---
  int stor_vs();
  int st_sp();
  int spheroid();
  void setHoldingDefaults();
  [[nodiscard]] double holdingMinutes() const;
  [[nodiscard]] double largerLiquidFlow() const;
  void stor_vs_write_results();
  void writeTankVolume();
  void st_sp_write_results();
  void spheroid_write_results();
  void writeStorageCriteria();

  // --- Agitated vessels and cells ---
  int agvs_siz();
  void agvs_write_rep();
  void writeCells();

  // --- Results of all roads ---
  void writeLength(SlotName slot, double length);
  void writeVolume(SlotName slot, double volume);
  void writeDesignConditions();
  void writeVacuum(double margin);
};

}  // namespace sizewright
