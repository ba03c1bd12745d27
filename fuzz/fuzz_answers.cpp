// Any equipment class on a host that answers anything.
#include <memory>
#include <string>

#include "answering_host.h"
#include "operations.h"
#include "sizewright/embedded/embedded_host.h"
#include "sizewright/embedded/plant_file.h"
#include "sizewright/embedded/registry.h"

namespace sizewright::fuzz {
namespace {

struct Model {
  const char* className;
  const char* category;
  const char* itemCode;
};

constexpr Model kModels[] = {
    {"CPumpObj", "DCP", "CENTRIF"},     {"CPumpObj", "DCP", "HD STOCK"},
    {"CPumpObj", "EGP", "GEAR"},        {"CCompObj", "DGC", "CENTRIF"},
    {"CCompObj", "EAC", "CENTRIF"},     {"CCompObj", "DTUR", "TURBOEXP"},
    {"CCompObj", "EFN", "CENTRIF"},     {"CTurbObj", "ETUR", "GAS"},
    {"CCoolTwObj", "ECTWR", "COOLING"}, {"CQObj", "C", "PLAIN"},
    {"CVesObj", "DVT", "CYLINDER"},     {"CVesObj", "DHT", "HORIZ DRUM"},
    {"CVesObj", "EVT", "CYLINDER"},     {"CVesObj", "DVT", "STORAGE"},
    {"CVesObj", "DVT", "GAS HOLDER"},   {"CVesObj", "DVT", "LIVE BTM"},
    {"CVesObj", "DVT", "SPHERE"},       {"CVesObj", "DVT", "SPHEROID"},
    {"CVesObj", "DAT", "OFF MACH"},     {"CVesObj", "EAT", "FLOAT CELL"},
    {"CVesObj", "DAT", "COND CELL"},    {"CCrshObj", "ECR", "CONE"},
    {"CCrshObj", "ECR", "JAW"},         {"CCrshObj", "EM", "BALL MILL"},
    {"CCryObj", "ECRY", "BATCH VAC"},   {"CCryObj", "ECRY", "MECHANICAL"},
    {"CCryObj", "ECRY", "OSLO"},        {"CDcObj", "EDC", "CYCLONE"},
    {"CDcObj", "EDC", "MULT CYCLO"},    {"CDcObj", "EDC", "CLOTH BAY"},
    {"CDcObj", "EDC", "PULSE SHKR"},    {"CDcObj", "EDC", "ELC H VOLT"},
    {"CDcObj", "EDC", "ELC L VOLT"},    {"CDcObj", "EDC", "WASHERS"},
    {"CDcObj", "ESE", "OIL WATER"},     {"CDcObj", "ESE", "PULP STOCK"},
    {"CDcObj", "ESE", "WATER CYCL"},    {"CDryObj", "ED", "PAN"},
    {"CDryObj", "ED", "ATMOS TRAY"},    {"CDryObj", "ETDS", "TUNNEL"},
    {"CDryObj", "EDD", "SINGLE ATM"},   {"CDryObj", "EDD", "DOUBL ATM"},
    {"CDryObj", "ERD", "DIRECT"},       {"CDryObj", "ERD", "JAC VACUUM"},
    {"CDryObj", "EAD", "AIR"},          {"CDryObj", "ED", "SPRAY"},
    {"CDryObj", "ED", "VACUUM"},        {"CFltObj", "ECT", "TUBULAR"},
    {"CFltObj", "ECT", "DISK"},         {"CFltObj", "ECT", "BATCH TOP"},
    {"CFltObj", "ECT", "INVERTING"},    {"CFltObj", "ECT", "TOP UNLOAD"},
    {"CFltObj", "ECT", "SOLID BOWL"},   {"CFltObj", "ECT", "SCREEN BWL"},
    {"CFltObj", "ECT", "RECIP CONV"},   {"CFltObj", "ECT", "SCROLL CON"},
    {"CFltObj", "ECT", "VIBRATORY"},    {"CFltObj", "EF", "CARTRIDGE"},
    {"CFltObj", "EF", "TUBULAR"},       {"CFltObj", "EF", "PLATE FRAM"},
    {"CFltObj", "EF", "LEAF DRY"},      {"CFltObj", "EF", "ROTY DRUM"},
    {"CFltObj", "EF", "SEWAGE"},        {"CFltObj", "EF", "SPARKLER"},
    {"CFltObj", "EF", "OTHER"},         {"CScObj", "EVS", "CIRCULAR"},
    {"CScObj", "EVS", "RECTANGLE"},     {"CScObj", "EVS", "HIGH CAP"},
};

std::string plantOf(const Model& model, Bytes& bytes) {
  const std::uint8_t shape = bytes.take();
  std::string text = R"({"sizewright": 1, "defaults": false, "units": ")";
  text += (shape & 1) != 0 ? "metric" : "customary";
  text += R"(", "simulator": )" + std::to_string(shape / 2 % 8);
  text += R"(, "streams": {
    "S1": {"slots": {"TEMPERATURE": [150, "DEG F"], "PRESSURE": [50, "PSI"],
      "TOTAL MASS FLOW": [30000, "LB/H"], "LIQUID MASS FLOW": [10000, "LB/H"],
      "VAPOR MASS FLOW": [15000, "LB/H"], "SOLID MASS FLOW": [5000, "LB/H"],
      "LIQUID MASS DENSITY": [50, "PCF"], "VAPOR MASS DENSITY": [0.3, "PCF"],
      "SOLID MASS DENSITY": [90, "PCF"], "TOTAL VOLUME FLOW": [60000, "CFH"],
      "LIQUID VISCOSITY": [0.5, "CPOISE"], "MOLECULAR WEIGHT": 40}},
    "S2": {"slots": {"TEMPERATURE": [250, "DEG F"], "PRESSURE": [150, "PSI"],
      "TOTAL MASS FLOW": [20000, "LB/H"], "VAPOR MASS FLOW": [20000, "LB/H"],
      "VAPOR MASS DENSITY": [0.8, "PCF"]}},
    "S3": {"class": 3305, "slots": {"TEMPERATURE": [150, "DEG F"], "PRESSURE": [40, "PSI"],
      "TOTAL MASS FLOW": [10000, "LB/H"], "LIQUID MASS FLOW": [10000, "LB/H"],
      "LIQUID MASS DENSITY": [50, "PCF"]}}},
  "blocks": {"B1": {"class": 405, "slots": {"ITEM MODEL": "BLOCK"}}},
  "items": {"X": {"class": ")";
  text += model.className;
  text += R"(", "category": ")";
  text += model.category;
  text += R"(", "item": ")";
  text += model.itemCode;
  text += R"(", "block": "B1", "inlets": {"INLET": ["S1"], "STEAM SUPPLY": ["S1"]}, "exits": {)";
  text +=
      shape >= 128
          ? R"("OUTLET": ["S2"], "DRAIN": ["S3"], "SOLIDS OUTLET": ["S1"], "VAPOR OUTLET": ["S2"])"
          : R"("OUTLET": ["S2", "S3"])";
  text += R"(}, "project": )";
  text += shape % 64 == 7 ? "null" : "{}";
  return text + "}}}";
}

void run(Bytes& bytes) {
  const Model& model = bytes.oneOf(kModels);
  const std::unique_ptr<Plant> plant =
      readPlant(plantOf(model, bytes), "fuzz", equipmentClassNames());
  EmbeddedHost embedded(*plant);
  embedded.select(plant->items.front());
  AnsweringHost host(embedded, bytes);
  const HostScope scope(host);
  const EquipmentClass& equipment = *findEquipmentClass(model.className);
  const std::uint8_t form = bytes.take();
  const std::unique_ptr<CSizeEquip> object =
      form >= 240 ? equipment.selection({embedded.project(), embedded.simCase(), "B1"})
                  : equipment.design({form & 1, "", "", "", "", form == 8 ? "Spreadsheet" : "",
                                      embedded.project(), embedded.simCase()});
  drive(*object, equipment.initialize, bytes);
}

}  // namespace
}  // namespace sizewright::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  sizewright::fuzz::Bytes bytes({data, size});
  sizewright::fuzz::run(bytes);
  return 0;
}
