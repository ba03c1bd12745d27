#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <utility>
#include <vector>

#include "vessels/vessel_plant.h"

namespace sizewright {

using Texts = std::vector<std::string>;

// The library's power has a constant of ten digits.
inline constexpr double kPowerTolerance = 1e-9;

inline void expectClose(double value, double expected, double tolerance = kPowerTolerance) {
  EXPECT_NEAR(value, expected, std::abs(expected) * tolerance);
}

// Of streams at 77 DEG F and 15 PSI the bundled rules make 50 degrees and 25 PSI more.
inline constexpr double kDesignTemperature = 127;  // DEG F
inline constexpr double kDesignGauge = 15 - kStandardAtmosphere + 25;
inline constexpr const char* kVacuum = "CpVacuumDesignGaugePressure";

inline constexpr const char* kNoCapacity =
    "Vessel capacity cannot be calculated. Please check stream flows.";
inline constexpr const char* kNoDiameter =
    "Vessel diameter cannot be calculated. Please check stream flows.";
inline constexpr const char* kNoHeight =
    "Vessel height cannot be calculated. Please check stream flows.";

inline double roundedUp(double feet) {
  return std::ceil(feet * 2) / 2;
}
inline double squareOf(double x) {
  return x * x;
}
inline constexpr double kCirclePi = 3.14159265358979323846;
inline double cylinderOf(double diameter, double height) {
  return kCirclePi / 4 * squareOf(diameter) * height;
}

// Changes to a plant under construction. Flows are LB/H, densities PCF.
inline void setPhase(PlantJson& plant, const char* stream, const char* phase, double flow,
                     double density) {
  PlantJson& slots = slotsOf(plant, stream);
  slots[std::string(phase) + " MASS FLOW"] = {flow, "LB/H"};
  slots[std::string(phase) + " MASS DENSITY"] = {density, "PCF"};
}
inline void setVapor(PlantJson& plant, double flow, double density) {
  setPhase(plant, "F", "VAPOR", flow, density);
  setPhase(plant, "V", "VAPOR", flow, density);
}
inline void setLiquid(PlantJson& plant, double flow, double density) {
  setPhase(plant, "F", "LIQUID", flow, density);
  setPhase(plant, "L", "LIQUID", flow, density);
}
/// Leaves the vessel without liquid: the feed is vapor, and nothing but vapor leaves.
inline void removeLiquid(PlantJson& plant) {
  slotsOf(plant, "F").erase("LIQUID MASS FLOW");
  itemOf(plant)["exits"].erase("LIQUID OUTLET");
}
/// Leaves the vessel without vapor.
inline void removeVapor(PlantJson& plant) {
  slotsOf(plant, "F").erase("VAPOR MASS FLOW");
  itemOf(plant)["exits"].erase("VAPOR OUTLET");
}
/// A second liquid leaves, heavier than the first.
inline void addHeavyLiquid(PlantJson& plant, double flow, double density) {
  setPhase(plant, "H", "LIQUID", flow, density);
  itemOf(plant)["exits"]["HEAVY LIQUID OUTLET"] = {"H"};
}
inline void setPressure(PlantJson& plant, double pressure) {
  for (const char* stream : {"F", "V", "L"}) {
    slotsOf(plant, stream)["PRESSURE"] = {pressure, "PSI"};
  }
}
/// The project forbids resizing and gives 50 PSI and 300 DEG F.
inline void setUserDesign(PlantJson& plant) {
  projectOf(plant) = {{"CpAllowResize", "No"},
                      {"CpDesignGaugePressure", {50, "PSI"}},
                      {"CpDesignTemperature", {300, "DEG F"}}};
}

/// A vessel that 20,000 CF/H of vapor at 0.5 PCF and 1,200 CF/H of liquid at 50 PCF enter together
/// and leave apart, at 77 DEG F and 15 PSI. Without criteria: the separation factor is 0.6.
inline PlantJson sizingPlant(const char* category, const char* item) {
  PlantJson plant = vesselPlant(category, item);
  for (const char* stream : {"F", "V", "L"}) {
    slotsOf(plant, stream).erase("TEMPERATURE");
    slotsOf(plant, stream).erase("PRESSURE");
  }
  setVapor(plant, 10000, 0.5);
  setLiquid(plant, 60000, 50);
  return plant;
}
inline PlantJson verticalDrum() {
  return sizingPlant("DVT", "CYLINDER");
}
inline PlantJson horizontalDrum() {
  return sizingPlant("DHT", "HORIZ DRUM");
}

/// A vessel that a test can set values on and whose arithmetic it can reach.
class VesselUnderTest : public CVesObj {
 public:
  using CVesObj::CVesObj;
  using CVesObj::data;
  using CVesObj::determine_cylinder_capacity;
  using CVesObj::func_3rd_order_polynomial;
  using CVesObj::proc_ves_determine_liq_vol;
  using CVesObj::proc_vs_cal_root_3rd_order_polynoimial_by_mnr;
  using CVesObj::proc_vs_check_hd_ratio;
  using CVesObj::spheroid_cal_vol;
  using CVesObj::st_sp_calculate_sphere_volume;
};

/// The vessel V-1 of a plant, alive with it, and what its sizing tells.
struct SizedVessel : ItemAtHand<VesselUnderTest> {
  explicit SizedVessel(const PlantJson& json, int interactive = 0)
      : ItemAtHand(json, "V-1", interactive) {}

  VesselData& data() { return object->data(); }
  [[nodiscard]] Texts warnings() const { return textsOf(object->Warnings(), 0); }
  [[nodiscard]] Texts errors() const { return textsOf(object->Errors(), 0); }
  /// The trace of the sizing, without the three lines that tell how the liquids are assigned.
  [[nodiscard]] Texts calculations() const { return textsOf(object->Calculations(), 3); }
  /// Warnings but for the last two lines, which compare the slenderness with the criterion.
  [[nodiscard]] Texts warningsBeforeRatio() const {
    Texts texts = warnings();
    texts.resize(texts.size() < 2 ? 0 : texts.size() - 2);
    return texts;
  }
  [[nodiscard]] bool warned(std::string_view text) const {
    return holdsLines(object->Warnings(), text);
  }
  [[nodiscard]] bool told(std::string_view text) const {
    return holdsLines(object->Calculations(), text);
  }
  /// Times that the trace has a line.
  [[nodiscard]] long timesTold(std::string_view line) const {
    const Texts texts = calculations();
    return std::count(texts.begin(), texts.end(), line);
  }
  /// Message boxes shown: text and flags.
  std::vector<std::pair<std::string, int>> boxes() {
    std::vector<std::pair<std::string, int>> shown;
    for (const MessageLog::Dialog& dialog : plant.host().log().dialogs()) {
      if (!dialog.isBox) continue;
      EXPECT_EQ(dialog.title, "Sizing");
      shown.emplace_back(dialog.text, dialog.flags);
    }
    return shown;
  }
  /// Plain texts shown.
  Texts prints() {
    Texts shown;
    for (const MessageLog::Dialog& dialog : plant.host().log().dialogs()) {
      if (!dialog.isBox) shown.push_back(dialog.text);
    }
    return shown;
  }
  /// `Size` refuses with this one error, which is shown as a plain text when dialogs are on.
  void expectRefusal(const char* text, bool shows) {
    EXPECT_EQ(object->Size(), 0) << text;
    EXPECT_EQ(errors(), Texts{text});
    EXPECT_EQ(prints(), shows ? Texts{text} : Texts{});
    EXPECT_TRUE(boxes().empty());
  }
  /// Progress of `Size` once the streams are read.
  Progress sizingProgress() {
    Progress lines = progressOf([](CVesObj& vessel) { vessel.Size(); });
    const std::pair<int, std::string> read = {50,
                                              "Completed obtaining information from the "
                                              "simulator."};
    const auto start = std::find(lines.begin(), lines.end(), read);
    EXPECT_NE(start, lines.end());
    return start == lines.end() ? Progress{} : Progress(start + 1, lines.end());
  }

 private:
  static Texts textsOf(const CStrList& list, int first) {
    Texts texts;
    for (int i = first; i < list.GetLength(); ++i) texts.push_back(list.GetTextAt(i));
    return texts;
  }
};

}  // namespace sizewright
