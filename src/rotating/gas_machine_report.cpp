#include <algorithm>
#include <array>

#include "sizewright/host/text.h"
#include "sizewright/rotating/gas_machine.h"

namespace sizewright {

namespace {

using D = GasMachineData;
using enum From;

void status(int percent, const char* text) {
  status_write(percent, 3, text);
}

constexpr const char* kCapacity = "ACTUAL CAPACITY";
constexpr const char* kIntercooler = "CpIntercoolerOutletTemperature";

constexpr auto kFormIn = std::to_array<FormInRow<D>>({
    {"Capacity Overdesign Factor", &D::overdesignFactor, nullptr, FormRule::ifPositive},
    {slotOf(kCapacity), &D::capacity, "CFH", FormRule::ifPositive},
    {slotOf("CpDriverPower"), &D::driverPower, "HP", FormRule::ifPositive},
    {"CpCompressibilityFactorInlet", &D::inletCompressibility, nullptr, FormRule::ifPositive},
    {"CpCompressibilityFactorOutlet", &D::exitCompressibility, nullptr, FormRule::ifPositive},
});

constexpr auto kFormOut = std::to_array<FormOutRow<D>>({
    {slotOf(kCapacity), &D::capacity, "CFH", "CFM", "M3/H"},
    {"Capacity Overdesign Factor", &D::overdesignFactor},
    {slotOf("CpDriverPower"), &D::driverPower, "HP", "HP", "KW"},
    {"CpCompressibilityFactorInlet", &D::inletCompressibility},
    {"CpCompressibilityFactorOutlet", &D::exitCompressibility},
    {"CpSpecificHeatRatio", &D::specificHeatRatio},
    {"Minimum Inlet Temperature", &D::minInletTemperature, "DEG F", "DEG F", "DEG C"},
    {"Maximum Exit Temperature", &D::maxExitTemperature, "DEG F", "DEG F", "DEG C"},
    {"Maximum Exit Pressure", &D::maxExitPressure, "PSI", "PSI", "KPA"},
});
constexpr auto kIntercoolerFormOut = std::to_array<FormOutRow<D>>({
    {kIntercooler, &D::intercoolerTemperature, "DEG F", "DEG F", "DEG C"},
});

constexpr const char* kSeveralInlets =
    "WARNING COMPRESSOR SIZING: Multiple Inlet Streams Found \nThe Interactive Sizer has selected "
    "%s as the inlet stream based on the criteria \nthat this is the stream with the maximum total "
    "mass flow rate \nPlease verify inlet stream selection.";
constexpr const char* kSeveralExits =
    "WARNING COMPRESSOR SIZING: Multiple Exit Streams Found \nThe Interactive Sizer has selected "
    "%s as the outlet stream based on the criteria \nthat this is the stream with the maximum "
    "total mass flow rate \nPlease verify outlet stream selection.";

constexpr ResultRow<D> gaugePressure(SlotName slot, double D::*field) {
  return {slot, field, When::positive, Style::converted, "PSIA", "PSIG", "KPA"};
}
constexpr ResultRow<D> temperature(SlotName slot, double D::*field) {
  return {slot, field, When::positive, Style::converted, "DEG F", "DEG F", "DEG C"};
}

constexpr auto kFactorResult = std::to_array<ResultRow<D>>({
    {"Compressor Overdesign Factor", &D::overdesignFactor},
});
constexpr auto kCapacityResult = std::to_array<ResultRow<D>>({
    {slotOf(kCapacity), &D::capacity, When::positive, Style::converted, "CFH", "CFH", "M3/H"},
});
constexpr auto kConditionResults = std::to_array<ResultRow<D>>({
    gaugePressure("CpDesignGaugePressureInlet", &D::designInletPressure),
    gaugePressure(slotOf("CpDesignGaugePressureOutlet"), &D::designExitPressure),
    temperature("CpDesignTemperatureInlet", &D::designInletTemperature),
    temperature("CpDesignTemperatureOutlet", &D::designExitTemperature),
    {"CpMolecularWeight", &D::molecularWeight},
    {"CpSpecificHeatRatio", &D::specificHeatRatio},
});
constexpr auto kCompressibilityResults = std::to_array<ResultRow<D>>({
    {"CpCompressibilityFactorInlet", &D::inletCompressibility},
    {"CpCompressibilityFactorOutlet", &D::exitCompressibility},
});

constexpr auto kEfficiencySources = std::to_array<SourceRow<D>>({
    {&D::isentropicEfficiency, component, "CpIsentropicEfficiency", "PERCENT"},
    {&D::isentropicEfficiency, simObject, "ISENTROPIC EFF. (SIM)", "PERCENT"},
    {&D::isentropicEfficiency, simObject, "ADIABATIC EFFICIENCY (SIM)", "PERCENT"},
});
constexpr auto kEfficiencyResult = std::to_array<ResultRow<D>>({
    {"CpIsentropicEfficiency", &D::isentropicEfficiency, When::positive, Style::plain, "PERCENT"},
});
constexpr auto kIntercoolerResult = std::to_array<ResultRow<D>>({
    temperature(kIntercooler, &D::intercoolerTemperature),
});

bool containsIgnoringCase(std::string_view text, std::string_view part) {
  return std::search(text.begin(), text.end(), part.begin(), part.end(),
                     [](char a, char b) { return toLower(a) == toLower(b); }) != text.end();
}

}  // namespace

// --- Form ---------------------------------------------------------------------------------------

int GasMachine::ReturnValues(CStrList& names, CStrList& texts) {
  names.RemoveAll();
  texts.RemoveAll();
  showStream("Inlet Stream", inlets(), kSeveralInlets, names, texts);
  showStream("Outlet Stream", exits(), kSeveralExits, names, texts);
  showForm(kFormOut, names, texts);
  if (!values().fluidType.empty()) {
    names.Append("Fluid");
    texts.Append(values().fluidType);
  }
  if (variant().intercooler) showForm(kIntercoolerFormOut, names, texts);
  return 1;
}

int GasMachine::SetValues(CStrList& names, CStrList& texts) {
  if (names.IsEmpty() || texts.IsEmpty()) return 0;
  takeStreams("Inlet Stream", "Outlet Stream", names, texts);
  takeForm(kFormIn, names, texts);
  takeSpecificHeatRatio(names, texts);
  if (variant().intercooler) takeIntercooler(names, texts);
  return 1;
}

void GasMachine::takeSpecificHeatRatio(const CStrList& names, const CStrList& texts) {
  double ratio = 0.0;
  UnitText unit;
  if (list2_get_slot_value_n(names, texts, "CpSpecificHeatRatio", &ratio, unit.data()) == 0) return;
  if (ratio > 1.0) {
    data().specificHeatRatio = ratio;
    return;
  }
  const std::string text = formatText(
      "Input Cp/Cv (%4.2f) is <= 1.00 . This input is invalid and hence ignored. Cp/Cv is "
      "estimated by the sizing expert.",
      ratio);
  tell(warnings, text);
  tell(calculations, text);
}

void GasMachine::takeIntercooler(const CStrList& names, const CStrList& texts) {
  double& field = data().intercoolerTemperature;
  if (field != 0.0) return;
  UnitText unit;
  if (list2_get_slot_value_n(names, texts, kIntercooler, &field, unit.data()) != 0 &&
      !unit.empty()) {
    field = converted(field, unit, "DEG F");
  }
  readTemperature(field, From::projectObject, kIntercooler);
  readTemperature(field, From::simObject, "INTERCOOLER TEMPERATURE (SIM)");
}

// --- Results ------------------------------------------------------------------------------------

int GasMachine::SaveParameters() {
  comp_siz_results();
  return 1;
}

void GasMachine::comp_siz_results() {
  if (component == nullptr || component->IsValid() == 0) return;
  status(90, "Writing results for compressor.");
  write(kFactorResult);
  writeCapacity();
  write(kConditionResults);
  const auto countAndPower = std::to_array<ResultRow<D>>({
      {"CpNumberItems", &D::numberItems, variant().countWritten, Style::count},
      {variant().powerSlot, &D::driverPower, When::positive, Style::converted, "HP", "HP", "KW"},
  });
  write(countAndPower);
  write(kCompressibilityResults);
  const CriterionText& driver = values().driverType;
  if (!driver.empty() && !sameWord(driver, "NONE")) component->SetValue("CpDriverType", driver, 0);
  if (isExpander()) writeEfficiency();
  if (variant().intercooler) writeIntercooler();
  status(95, "Completed writing results for compressor.");
}

void GasMachine::writeCapacity() {
  status(90, "Writing compressor capacity field.");
  if (values().capacity > 0.0) {
    write(kCapacityResult);
    return;
  }
  constexpr const char* kText =
      "This item cannot be sized because of incomplete information.\n"
      "Volumetric flow cannot be calculated";
  component->SetValue("Error", std::string_view(kText), 0);
  tell(errors, kText);
  showText(
      "This item cannot be sized because of incomplete information.\nNo inlet flow specified.");
}

void GasMachine::writeEfficiency() {
  read(kEfficiencySources);
  write(kEfficiencyResult);
}

void GasMachine::writeIntercooler() {
  if (!(values().intercoolerTemperature > 0.0) || !startsWithIgnoringCase(categoryCode, "DGC")) {
    return;
  }
  write(kIntercoolerResult);
  if (containsIgnoringCase(itemCode, "CENTRIF")) {
    component->SetValue("CpInterCoolerYN", std::string_view("YES"), 0);
  }
}

int GasMachine::UpdateConnectivity() {
  rewritePorts(kInlet, inlets(), "INLET", "_in_");
  rewriteGasExitPorts(exits());
  return 1;
}

}  // namespace sizewright
