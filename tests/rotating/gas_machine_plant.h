#pragma once

#include "sizewright/fired/cooling_tower.h"
#include "sizewright/rotating/compressor.h"
#include "support/item_at_hand.h"

namespace sizewright {

inline constexpr double kAtmosphere = 14.695948775513;  // PSI

/// A gas machine C-101 from S1 (1,500 LB/H of 0.1 PCF, so 15,000 CFH, at 20 PSI) to S2 (60 PSI).
inline PlantJson gasPlant(const char* category = "DGC", const char* item = "CENTRIF") {
  PlantJson plant = PlantJson::parse(R"({
    "sizewright": 1, "units": "customary", "simulator": 1,
    "streams": {
      "S1": {"slots": {"TEMPERATURE": [100, "DEG F"], "PRESSURE": [20, "PSI"],
                       "VAPOR MASS FLOW": [1500, "LB/H"], "VAPOR MASS DENSITY": [0.1, "PCF"],
                       "TOTAL MASS FLOW": [1500, "LB/H"], "MOLECULAR WEIGHT": 29}},
      "S2": {"slots": {"TEMPERATURE": [300, "DEG F"], "PRESSURE": [60, "PSI"],
                       "VAPOR MASS FLOW": [1500, "LB/H"], "TOTAL MASS FLOW": [1500, "LB/H"],
                       "PRIMARY FLUID COMPONENT": "Test Gas"}}
    },
    "blocks": {"B1": {"class": 405, "slots": {}}},
    "items": {
      "C-101": {"model": "GAS MACHINE", "block": "B1",
                "inlets": {"INLET": ["S1"]}, "exits": {"OUTLET": ["S2"]},
                "component": {}, "project": {}}
    },
    "criteria": {"*": {}},
    "fluids": {"Test Gas": {"z": 0.9, "heat capacity ratio": 1.25}}
  })");
  plant["items"]["C-101"]["category"] = category;
  plant["items"]["C-101"]["item"] = item;
  return plant;
}

// Parts of a plant under construction.
inline PlantJson& gasStream(PlantJson& plant, const char* stream) {
  return plant["streams"][stream]["slots"];
}
inline PlantJson& gasItem(PlantJson& plant) {
  return plant["items"]["C-101"];
}
inline PlantJson& gasRecord(PlantJson& plant) {
  return plant["items"]["C-101"]["component"];
}
inline PlantJson& gasProject(PlantJson& plant) {
  return plant["items"]["C-101"]["project"];
}
inline PlantJson& gasBlock(PlantJson& plant) {
  return plant["blocks"]["B1"]["slots"];
}
inline PlantJson& gasCriteria(PlantJson& plant) {
  return plant["criteria"]["*"];
}

/// A plant with S3 beside S1 at the inlet, or S4 beside S2 at the exit, equal to it.
inline PlantJson twoGasInlets(const char* category = "DGC") {
  PlantJson plant = gasPlant(category);
  plant["streams"]["S3"] = plant["streams"]["S1"];
  gasItem(plant)["inlets"]["INLET"] = {"S1", "S3"};
  return plant;
}
inline PlantJson twoGasExits(const char* category = "DGC") {
  PlantJson plant = gasPlant(category);
  plant["streams"]["S4"] = plant["streams"]["S2"];
  gasItem(plant)["exits"]["OUTLET"] = {"S2", "S4"};
  return plant;
}

/// A machine whose steps and values a test can reach.
template <class Machine>
class Opened : public Machine {
 public:
  using Machine::comp_siz;
  using Machine::comp_stp;
  using Machine::comp_stp_assign_capacity;
  using Machine::comp_stp_calculate_specific_heat_ratio;
  using Machine::comp_stp_get_proc_info;
  using Machine::data;
  using Machine::exits;
  using Machine::inlets;
  using Machine::Machine;
};

/// The machine C-101 of a plant, alive with it.
template <class Machine>
struct GasMachineAtHand : ItemAtHand<Opened<Machine>> {
  using Base = ItemAtHand<Opened<Machine>>;
  explicit GasMachineAtHand(const PlantJson& json, int interactive = 0)
      : Base(json, "C-101", interactive) {}

  [[nodiscard]] bool warned(std::string_view text) const {
    return holds(Base::object->Warnings(), text);
  }
  [[nodiscard]] bool showed(std::string_view text) const {
    for (const std::string& shown : Base::plant.dialogTexts()) {
      if (shown == text) return true;
    }
    return false;
  }
};
using CompressorAtHand = GasMachineAtHand<CCompObj>;
using CoolingTowerAtHand = GasMachineAtHand<CCoolTwObj>;

// What both classes do is tested on both.
using GasMachines = testing::Types<CCompObj, CCoolTwObj>;
struct GasMachineName {
  template <class Machine>
  static std::string GetName(int /*index*/) {
    return std::is_same_v<Machine, CCompObj> ? "Compressor" : "CoolingTower";
  }
};

}  // namespace sizewright
