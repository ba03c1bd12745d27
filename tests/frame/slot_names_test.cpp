#include <gtest/gtest.h>

#include "frame/probe_item.h"
#include "frame/watched_plant.h"

namespace sizewright {
namespace {

struct SlotRow {
  const char* quantity;
  const char* category;
  const char* item;
  const char* slot;
  int known = 1;
};

class SlotNames : public testing::TestWithParam<SlotRow> {
 protected:
  WatchedPlant plant{R"({"items": {"X-1": {"category": "Q", "item": "NONE"}}})"};
};

TEST_P(SlotNames, A_quantity_has_the_slot_of_the_items_category) {
  const SlotRow& row = GetParam();
  const auto item = plant.make<ProbeItem>("X-1");
  ASSERT_EQ(item->SetCategoryCode(row.category), 1);
  ASSERT_EQ(item->SetItemCode(row.item), 1);
  char slot[64] = "";
  EXPECT_EQ(item->GetNewSlotNameField(row.quantity, slot), row.known)
      << row.quantity << " of " << row.category << ' ' << row.item;
  EXPECT_STREQ(slot, row.slot) << row.quantity << " of " << row.category << ' ' << row.item;
}

INSTANTIATE_TEST_SUITE_P(Duty, SlotNames,
                         testing::Values(SlotRow{"DUTY", "EFU", "BOX", "CpDuty"},
                                         SlotRow{"DUTY", "DTW", "TRAYED", "CpDuty"},
                                         SlotRow{"DUTY", "DRB", "KETTLE", "CpDuty"},
                                         SlotRow{"DUTY", "XRBX", "KETTLE", "CpDuty"},
                                         SlotRow{"DUTY", "DHE", "TEMA EXCH", "DUTY"},
                                         SlotRow{"DUTY", "efu", "BOX", "DUTY"},
                                         SlotRow{"DUTY", "dtw", "TRAYED", "DUTY"}));

INSTANTIATE_TEST_SUITE_P(Viscosity, SlotNames,
                         testing::Values(SlotRow{"Viscosity", "EGP", "GEAR", "CpViscosityCS"},
                                         SlotRow{"Viscosity", "DCP", "CENTRIF", "CpFluidViscosity"},
                                         SlotRow{"Viscosity", "egp", "GEAR", "CpFluidViscosity"}));

INSTANTIATE_TEST_SUITE_P(
    Diameter, SlotNames,
    testing::Values(SlotRow{"Diameter", "EVT", "CHEST CYL", "CpDiameterInside"},
                    SlotRow{"Diameter", "DVT", " chest cyl ", "CpDiameterInside"},
                    SlotRow{"Diameter", "EVT", "CYLINDER", "CpVesselDiameter"},
                    SlotRow{"Diameter", "DHT", "CHEST CYL", "CpVesselDiameter"},
                    SlotRow{"Diameter", "evt", "CHEST CYL", "CpVesselDiameter"}));

INSTANTIATE_TEST_SUITE_P(
    ExitPressure, SlotNames,
    testing::Values(
        SlotRow{"Exit pressure -gauge", "EFN", "CENTRIF", "CpFanOutletGaugePressure"},
        SlotRow{"CpDesignGaugePressureOutlet", "EFN", "CENTRIF", "CpFanOutletGaugePressure"},
        SlotRow{"Exit pressure -gauge", "EFN", " centrif ", "CpFanOutletGaugePressure"},
        SlotRow{"Exit pressure -gauge", "EFN", "PROPELLER", "CpDesignGaugePressureOutlet"},
        SlotRow{"CpDesignGaugePressureOutlet", "EFN", "PROPELLER", "CpDesignGaugePressureOutlet"},
        SlotRow{"Exit pressure -gauge", "DCP", "CENTRIF", "CpDesignGaugePressureOutlet"},
        SlotRow{"CpDesignGaugePressureOutlet", "DGC", "CENTRIF", "CpDesignGaugePressureOutlet"}));

INSTANTIATE_TEST_SUITE_P(
    TangentLength, SlotNames,
    testing::Values(SlotRow{"vessel t-t length", "DVT", "STORAGE", "CpVesselHeight"},
                    SlotRow{"vessel t-t height", "DVT", "STORAGE", "CpVesselHeight"},
                    SlotRow{"vessel t-t length", "EVT", "spheroid", "CpVesselHeight"},
                    SlotRow{"vessel t-t height", "EVT", "SPHEROID", "CpVesselHeight"},
                    SlotRow{"vessel t-t length", "DHT", "HORIZ DRUM", "CpTangentTangentLength"},
                    SlotRow{"vessel t-t height", "DHT", "STORAGE", "CpTangentTangentLength"},
                    SlotRow{"vessel t-t length", "DVT", "CYLINDER", "CpTangentTangentHeight"},
                    SlotRow{"vessel t-t height", "DVT", "CYLINDER", "CpTangentTangentHeight"},
                    SlotRow{"vessel t-t length", "DAT", "OFF MACH", "CpVesselHeight"},
                    SlotRow{"vessel t-t height", "dat", " mach pulp ", "CpVesselHeight"},
                    SlotRow{"vessel t-t length", "DAT", "REACTOR", "CpTangentTangentHeight"},
                    SlotRow{"vessel t-t height", "DATX", "OFF MACH", "CpTangentTangentHeight"},
                    SlotRow{"vessel t-t length", "EAT", "OFF MACH", "CpTangentTangentHeight"},
                    SlotRow{"vessel t-t height", "dvt", "STORAGE", "CpTangentTangentHeight"}));

INSTANTIATE_TEST_SUITE_P(
    DriverPower, SlotNames,
    testing::Values(SlotRow{"CpDriverPower", "DTUR", "TURBOEXP", "CpPowerOutput"},
                    SlotRow{"DRIVER POWER", "dtur", "turboexp", "CpPowerOutput"},
                    SlotRow{"DRIVER POWER", "DTUR", "TURBINE", "CpDriverPower"},
                    SlotRow{"CpDriverPower", "DTURX", "TURBOEXP", "CpDriverPower"},
                    SlotRow{"CpDriverPower", "EGC", "TURBOEXP", "CpDriverPower"},
                    SlotRow{"DRIVER POWER", "DGC", "CENTRIF", "CpDriverPower"},
                    SlotRow{"CpDriverPower", "DCP", "CENTRIF", "CpDriverPower"}));

INSTANTIATE_TEST_SUITE_P(
    Capacity, SlotNames,
    testing::Values(SlotRow{"CAPACITY", "EGC", "CENTRIF", "CpActualGasFlowrateInlet"},
                    SlotRow{"ACTUAL CAPACITY", "EGC", "CENTRIF", "CpActualGasFlowrateInlet"},
                    SlotRow{"CAPACITY", "DGC", "CENTRIF", "CpActualGasFlowrateInlet"},
                    SlotRow{"CAPACITY", "dgc", "HD STOCK", "CpActualGasFlowrateInlet"},
                    SlotRow{"CAPACITY", "DTUR", "TURBOEXP", "CpActualGasFlowrateInlet"},
                    SlotRow{"ACTUAL CAPACITY", "eac", "CENTRIF", "CpActualGasFlowrateInlet"},
                    SlotRow{"CAPACITY", "EFN", "CENTRIF", "CpActualGasFlowrate"},
                    SlotRow{"ACTUAL CAPACITY", "EFN", "HD STOCK", "CpActualGasFlowrate"},
                    SlotRow{"CAPACITY", "EVP", "MECHANICAL", "CpActualGasFlowrate"},
                    SlotRow{"CAPACITY", "EVP", "HD STOCK", "CpActualGasFlowrate"},
                    SlotRow{"CAPACITY", "DCP", "HD STOCK", "CpStockFlowrateAD"},
                    SlotRow{"ACTUAL CAPACITY", "DHE", " hd stock ", "CpStockFlowrateAD"},
                    SlotRow{"CAPACITY", "DCP", "CENTRIF", "CpLiquidFlowrate"},
                    SlotRow{"CAPACITY", "ECP", "CENTRIF", "CpLiquidFlowrate"},
                    SlotRow{"CAPACITY", "EGP", "GEAR", "CpLiquidFlowrate"},
                    SlotRow{"ACTUAL CAPACITY", "EP", "SIMPLEX", "CpLiquidFlowrate"},
                    SlotRow{"CAPACITY", "DP", "SIMPLEX", "CpLiquidFlowrate"},
                    SlotRow{"CAPACITY", "dcp", "CENTRIF", "CpActualGasFlowrateInlet", 0},
                    SlotRow{"CAPACITY", "DHE", "TEMA EXCH", "CpActualGasFlowrateInlet", 0},
                    SlotRow{"ACTUAL CAPACITY", "DTURX", "TURBOEXP", "CpActualGasFlowrateInlet",
                            0}));

INSTANTIATE_TEST_SUITE_P(
    UnknownQuantity, SlotNames,
    testing::Values(SlotRow{"", "DCP", "CENTRIF", "CpActualGasFlowrateInlet", 0},
                    SlotRow{"Head", "DCP", "CENTRIF", "CpActualGasFlowrateInlet", 0},
                    SlotRow{"Head", "DCP", "HD STOCK", "CpActualGasFlowrateInlet", 0},
                    SlotRow{"capacity", "DCP", "CENTRIF", "CpActualGasFlowrateInlet", 0},
                    SlotRow{"CAPACITY ", "DCP", "CENTRIF", "CpActualGasFlowrateInlet", 0},
                    SlotRow{"viscosity", "EGP", "GEAR", "CpActualGasFlowrateInlet", 0},
                    SlotRow{"duty", "EFU", "BOX", "CpActualGasFlowrateInlet", 0}));

TEST(SlotName, A_generic_name_of_a_table_is_resolved_and_any_other_stands) {
  WatchedPlant plant(R"({"items": {"P-101": {"category": "DCP", "item": "HD STOCK"}}})");
  const auto item = plant.make<ProbeItem>("P-101");
  EXPECT_EQ(item->resolved(slotOf("CAPACITY")).view(), "CpStockFlowrateAD");
  EXPECT_EQ(item->resolved("CAPACITY").view(), "CAPACITY");
  EXPECT_EQ(item->slotFor("Viscosity").view(), "CpFluidViscosity");
}

}  // namespace
}  // namespace sizewright
