#include "sizewright/frame/size_equip.h"

#include <array>
#include <cstring>

#include "sizewright/host/host.h"
#include "sizewright/host/text.h"
#include "sizewright/host/units.h"

namespace sizewright {

namespace {

constexpr int kArrowCursor = 32512;
constexpr int kWaitCursor = 32514;

struct CategoryRow {
  std::string_view code;
  EQ_CAT_TYPE category;
};

// Read top to bottom; "C" stands after these and depends on the item model.
constexpr auto kCategories = std::to_array<CategoryRow>({
    {"DGC", EQ_CAT_COMPRESSOR},     {"EGC", EQ_CAT_COMPRESSOR},
    {"EAC", EQ_CAT_COMPRESSOR},     {"DTUR", EQ_CAT_COMPRESSOR},
    {"EFN", EQ_CAT_COMPRESSOR},     {"ECR", EQ_CAT_CRUSHER},
    {"EM", EQ_CAT_CRUSHER},         {"ECRY", EQ_CAT_CRYSTALLIZER},
    {"EDC", EQ_CAT_DUST_COLLECTOR}, {"DSE", EQ_CAT_DUST_COLLECTOR},
    {"ESE", EQ_CAT_DUST_COLLECTOR}, {"DDC", EQ_CAT_DUST_COLLECTOR},
    {"ED", EQ_CAT_DRYER},           {"EDD", EQ_CAT_DRYER},
    {"ETDS", EQ_CAT_DRYER},         {"EAD", EQ_CAT_DRYER},
    {"ERD", EQ_CAT_DRYER},          {"ECT", EQ_CAT_FILTER},
    {"EF", EQ_CAT_FILTER},          {"DF", EQ_CAT_FILTER},
    {"EFU", EQ_CAT_FURNACE},        {"DHE", EQ_CAT_HEAT_EXCHANGER},
    {"EHE", EQ_CAT_HEAT_EXCHANGER}, {"DRB", EQ_CAT_HEAT_EXCHANGER},
    {"EE", EQ_CAT_HEAT_EXCHANGER},  {"WFE", EQ_CAT_HEAT_EXCHANGER},
    {"DCP", EQ_CAT_PUMP},           {"ECP", EQ_CAT_PUMP},
    {"EGP", EQ_CAT_PUMP},           {"EP", EQ_CAT_PUMP},
    {"EVP", EQ_CAT_PUMP},           {"DP", EQ_CAT_PUMP},
    {"EVS", EQ_CAT_SCREEN},         {"ETUR", EQ_CAT_TURBINE},
    {"DTW", EQ_CAT_TOWER},          {"DDDT", EQ_CAT_TOWER},
    {"DVT", EQ_CAT_VESSEL},         {"DHT", EQ_CAT_VESSEL},
    {"EVT", EQ_CAT_VESSEL},         {"DAT", EQ_CAT_VESSEL},
    {"EAT", EQ_CAT_VESSEL},         {"DMX", EQ_CAT_MIXER},
});

constexpr std::size_t kCodeLength = 4;  // a category code is compared on four characters

void cursorShow(int cursor) {
  currentHost().user().cursor(cursor);
}

template <std::size_t N>
void copyOut(const FixedText<N>& member, char* out) {
  std::memcpy(out, member.c_str(), member.view().size() + 1);
}

}  // namespace

EQ_CAT_TYPE equipmentCategory(std::string_view categoryCode, std::string_view itemModel) {
  std::string_view code = withoutTrailingBlanks(categoryCode.substr(0, kCodeLength));
  // An exchanger with the item code "PLATE FIN" stays a heat exchanger: the code alone decides.
  for (const CategoryRow& row : kCategories) {
    if (equalsIgnoringCase(code, row.code)) return row.category;
  }
  if (!equalsIgnoringCase(code, "C")) return EQ_CAT_NONE;
  const bool plateFin =
      equalsIgnoringCase(itemModel, "LNG") || equalsIgnoringCase(itemModel, "MHEATX");
  return plateFin ? EQ_CAT_PLATE_FIN : EQ_CAT_SIMPLE;
}

CSizeEquip::CSizeEquip(int interactiveMode, const char* first, const char* projectFileName,
                       const char* third, const char* sizeFileName, const char* mode, void* window,
                       CvdProject* hostProject, CvdSimCase* hostCase) {
  isValid = size_init_set(interactiveMode, first, projectFileName, third, sizeFileName, mode,
                          window, hostProject, hostCase);
}

CSizeEquip::CSizeEquip(CvdProject* hostProject, CvdSimCase* hostCase, const char* blockName,
                       const char* ignored1, const char* ignored2) {
  isValid = size_init_set(hostProject, hostCase, blockName, ignored1, ignored2);
}

CSizeEquip::CSizeEquip(const CSizeEquip& other) {
  isValid = size_init_set(other.interactive, other.argFirst.c_str(), other.argProjectFile.c_str(),
                          other.argThird.c_str(), other.argSizeFile.c_str(), other.argMode.c_str(),
                          other.parentWindow, other.project, other.simCase);
  units_open();
}

CSizeEquip& CSizeEquip::operator=(const CSizeEquip& other) = default;

CSizeEquip::~CSizeEquip() {
  szTerminate();
  units_close();  // in every case, though only the copying forms opened the service
}

void CSizeEquip::szInitialize() {
  cursorShow(kWaitCursor);
  isValid = 0;
  interactive = 1;
  for (FixedText<100>* text : {&argFirst, &argProjectFile, &argThird, &argSizeFile, &argMode}) {
    text->clear();
  }
  for (FixedText<512>* text : {&reservedFile, &utilFile, &designFile, &vpeProcFile, &vpeProjFile,
                               &procFile, &vpeCompFile, &pxpropFile, &sizeFile}) {
    text->clear();
  }
  for (FixedText<128>* text : {&categoryCode, &componentName, &itemCode, &equipFullCode,
                               &projectComponentName, &simBlockName, &itemModel}) {
    text->clear();
  }
  component.reset();
  simObject.reset();
  projectObject.reset();
  project = nullptr;
  simCase = nullptr;
  projectId = 0;
  parentWindow = nullptr;
  noDialogs = 0;
  simulatorType = 0;
  warningSlotCount = 0;
  unitType = 0;
  for (CStrList* list : {&warnings, &errors, &calculations, &notes}) list->RemoveAll();
}

void CSizeEquip::szTerminate() {
  cursorShow(kArrowCursor);
  component.reset();
  simObject.reset();
  projectObject.reset();
}

int CSizeEquip::IsValid() {
  return isValid;
}

int CSizeEquip::GetStreamInfo() {
  return 0;
}

int CSizeEquip::hxthrx_info_general_ok(std::FILE*, const char*, const char*) {
  m_printf("hxthrx_info_general_ok1: CSizeEquip called");  // a marker that no class overrode it
  return 1;
}
int CSizeEquip::hxthrx_get_results() {
  return 1;
}
int CSizeEquip::hxthrx_info_geo_ok(std::FILE*, const char*, const char*) {
  return 1;
}
int CSizeEquip::hxthrx_info_proc_ok(std::FILE*, const char*) {
  return 1;
}
int CSizeEquip::hxthrx_info_stre_ok(std::FILE*, const char*) {
  return 1;
}

EQ_CAT_TYPE CSizeEquip::GetEquipCatType() const {
  return equipmentCategory(categoryCode, itemModel);
}

void CSizeEquip::GetCategoryCode(char* out) const {
  copyOut(categoryCode, out);
}
void CSizeEquip::GetItemCode(char* out) const {
  copyOut(itemCode, out);
}
void CSizeEquip::GetUtilFile(char* out) const {
  copyOut(utilFile, out);
}
void CSizeEquip::GetProcFile(char* out) const {
  copyOut(procFile, out);
}
void CSizeEquip::GetVpeCompFile(char* out) const {
  copyOut(vpeCompFile, out);
}
void CSizeEquip::GetVpeProjFile(char* out) const {
  copyOut(vpeProjFile, out);
}

int CSizeEquip::SetCategoryCode(const char* code) {
  if (*code == '\0') return 0;
  categoryCode = code;
  return 1;
}

int CSizeEquip::SetItemCode(const char* code) {
  if (*code == '\0') return 0;
  itemCode = code;
  return 1;
}

int CSizeEquip::getVdEquipFullCode(char* out) const {
  *out = '\0';
  if (projectObject == nullptr) return 0;
  copyOut(FixedText<128>(withoutTrailingBlanks(projectObject->Model())), out);
  return 1;
}

int CSizeEquip::GetProjObjectInfo() const {
  return equalsIgnoringCase(argMode, "Spreadsheet") ? 0 : 1;
}

int CSizeEquip::IsPremapType(const char* name) const {
  if (simCase == nullptr || simCase->IsValid() == 0) return 0;
  const CvdSimCaseObject premapped(name, kPremappedItem, *simCase, 0);
  return premapped.IsValid() != 0 && premapped.Exists() != 0 ? 1 : 0;
}

int CSizeEquip::IsPremapTower(const char* name) const {
  return IsPremapType(name) != 0 && std::strstr(name, "-tower") != nullptr ? 1 : 0;
}

}  // namespace sizewright
