#include <array>
#include <string>

#include "sizewright/frame/size_equip.h"
#include "sizewright/host/installation.h"
#include "sizewright/host/messages.h"
#include "sizewright/host/text.h"
#include "sizewright/host/units.h"

namespace sizewright {

namespace {

void report(std::string_view step) {
  status_write(30, 3, step);
}

bool usable(const CvdProject* project) {
  return project != nullptr && project->IsValid() != 0;
}
bool usable(const CvdSimCase* simCase) {
  return simCase != nullptr && simCase->IsValid() != 0;
}

const CStrList& messageSlots() {
  static const CStrList kSlots = {"Sizing Error(s)", "Sizing Warning(s)", "Sizing Note(s)",
                                  "Sizing Calculation(s)"};
  return kSlots;
}

bool missing(unsigned projectId, const FixedText<512>& database) {
  if (CvdODB(projectId, database, 0).Exists() != 0) return false;
  m_printf("Could not find <%s>. Please recreate project.", database.c_str());
  return true;
}

}  // namespace

int CSizeEquip::size_init_set(int interactiveMode, const char* first, const char* projectFileName,
                              const char* third, const char* sizeFileName, const char* mode,
                              void* window, CvdProject* hostProject, CvdSimCase* hostCase) {
  // The arguments may point into this object's own texts, which the next step clears.
  const std::array<std::string, 5> texts = {first, projectFileName, third, sizeFileName, mode};
  report("Initializing all the variables");
  szInitialize();
  report("Setting program arguments.");
  size_init_set_args(texts[0].c_str(), texts[1].c_str(), texts[2].c_str(), texts[3].c_str(),
                     texts[4].c_str());
  report("Assigning program arguments.");
  parentWindow = window;
  project = hostProject;
  simCase = hostCase;
  interactive = interactiveMode;
  if (!usable(project)) {
    m_printf("Current Project is not valid");
    return 0;
  }
  projectId = project->UserInstance();
  report("Setting project database.");
  if (size_init_set_pxproj_file_name() == 0) return 0;
  report("Obtaining simulator information.");
  simulatorType = usable(simCase) ? simCase->SimType() : 0;
  report("Setting property database.");
  if (size_init_set_pxprop_file_name() == 0) return 0;
  report("Setting remaining project database.");
  if (size_init_set_project_files() == 0) return 0;
  noDialogs = interactive == 0 ? 1 : 0;
  report("Checking the project units of measure.");
  unitType = units_get_unit_type();
  if (openItemRecords() == 0) return 0;
  report("Obtaining unit operation model.");
  readItemModel();
  report("Completed initializing the sizing variables. Beginning design.");
  return 1;
}

// The item's record and codes, its simulator block and its project object.
int CSizeEquip::openItemRecords() {
  report("Obtaining equipment information.");
  const CvdGenericObject equipment(projectId, vpeCompFile, "equipment information");
  if (equipment.IsValid() == 0 || equipment.Exists() == 0) return 0;

  SlotText text;
  report("Obtaining simulator block name.");
  if (equipment.GetValue("component name", text.data()) == 0) return 0;
  componentName = text;
  report("Obtaining VARDEX component information.");
  component = std::make_shared<CvdGenericObject>(projectId, vpeCompFile, componentName);
  if (component->IsValid() == 0) return 0;
  report("Obtaining mapping category code.");
  if (equipment.GetValue("category code", text.data()) == 0) return 0;
  categoryCode = text;
  report("Obtaining mapping item code.");
  if (equipment.GetValue("item type code", text.data()) != 0) itemCode = text;

  report("Obtaining base simulator block information.");
  SetBaseObject();
  report("Obtaining project component name.");
  if (component->GetValueWithInheritance("object name", text.data(), nullptr) != 0) {
    projectComponentName = text;
  }
  if (!projectComponentName.empty()) {
    auto opened =
        std::make_shared<CvdProjectObject>(projectComponentName, kProjectItem, *project, 0);
    if (opened->IsValid() != 0) projectObject = std::move(opened);
  }
  component->DeleteSlots(messageSlots());
  if (projectObject != nullptr) projectObject->DeleteSlots(messageSlots());
  getVdEquipFullCode(equipFullCode.data());
  return 1;
}

void CSizeEquip::readItemModel() {
  SlotText text;
  if (simObject != nullptr) simObject->GetValueWithInheritance("ITEM MODEL", text.data(), nullptr);
  itemModel = text;
}

int CSizeEquip::size_init_set(CvdProject* hostProject, CvdSimCase* hostCase, const char* blockName,
                              const char* /*ignored1*/, const char* /*ignored2*/) {
  report("Initializing all the variables");
  szInitialize();
  report("Assigning program arguments.");
  project = hostProject;
  simCase = hostCase;
  simBlockName = blockName;
  if (usable(simCase)) openBlock();
  if (simObject == nullptr) return 0;
  componentName = simBlockName;
  interactive = 0;
  if (!usable(project)) {
    m_printf("Current Project is not valid");
    return 0;
  }
  if (!usable(simCase)) {
    m_printf("Selection can be done only for simulator case.");
    return 0;
  }
  if (simObject->IsValid() == 0) {
    m_printf("Selection can be done only on unit operation obtainded from simulator.");
    return 0;
  }
  projectId = project->UserInstance();
  report("Obtaining simulator information.");
  simulatorType = simCase->SimType();
  report("Setting property database.");
  if (size_init_set_pxprop_file_name() == 0) return 0;
  useDefaultFileNames();
  sizeFile = "SIZE";
  noDialogs = 1;
  report("Checking the project units of measure.");
  unitType = units_get_unit_type();
  report("Obtaining unit operation model.");
  readItemModel();
  report("Completed initializing the sizing variables. Beginning selection.");
  return 1;
}

void CSizeEquip::size_init_set_args(const char* first, const char* projectFileName,
                                    const char* third, const char* sizeFileName, const char* mode) {
  argFirst = first;
  argProjectFile = projectFileName;
  argThird = third;
  argSizeFile = sizeFileName;
  argMode = mode;
}

int CSizeEquip::size_init_set_pxproj_file_name() {
  vpeCompFile = argProjectFile.empty() ? std::string_view("VPECOMP") : argProjectFile.view();
  const CvdODB database(projectId, vpeCompFile, 0);
  if (database.IsValid() != 0 && database.Exists() != 0) return 1;
  m_printf("Could not find <%s> database. Please recreate project.", vpeCompFile.c_str());
  return 0;
}

int CSizeEquip::size_init_set_pxprop_file_name() {
  FixedText<512> directory;
  if (VPERegGetInstallDir("SystemCacheDir", directory.data(), directory.capacity()) == 0) {
    m_printf("Cannot obtain SYSTEM directory. Installation error.");
    return 0;
  }
  pxpropFile = formatText("%s\\pxprop", directory.c_str());
  if (pxpropFile.empty()) {
    GetProfileStringA("VPE", "SourceDir", "", directory.data(), directory.capacity());
    std::string_view source = directory;
    if (source.ends_with('\\')) source.remove_suffix(1);
    pxpropFile = formatText("%s\\%s", std::string(source).c_str(), "PXPROP");
  }
  if (CvdSysODB(projectId, pxpropFile, 0).Exists() != 0) return 1;
  m_printf("Cannot obtain PXPROP database. Installation error.");
  return 0;
}

void CSizeEquip::useDefaultFileNames() {
  utilFile = "UTILITY";
  designFile = "DESIGN";
  vpeProjFile = "VPEPROJ";
  vpeProcFile = "VPEPROC";
  procFile = "PROC";
}

int CSizeEquip::size_init_set_project_files() {
  useDefaultFileNames();
  const CvdGenericObject options(projectId, vpeCompFile, "VARDEX sizer options");
  const auto override = [&options](const char* slot, FixedText<512>& name) {
    SlotText text;
    options.GetValueWithInheritance(slot, text.data(), nullptr);
    if (!text.empty()) name = text;
  };
  if (options.IsValid() != 0 && options.Exists() != 0) {
    override("utility specifications file", utilFile);
    override("design criteria file", designFile);
    override("VPE project information file", vpeProjFile);
    override("VPE map process object file", vpeProcFile);
    override("Simulation data file", procFile);
  }
  if (missing(projectId, utilFile) || missing(projectId, designFile)) return 0;

  if (CvdODB(projectId, vpeProjFile, 0).Exists() == 0) {
    CvdODB created(projectId, vpeProjFile, 1);
    if (created.Exists() == 0) created.Create();
  }
  // The project information is tested a second time here, not the file of mapped objects, which
  // may be missing; only the name in the message is that file's.
  if (CvdODB(projectId, vpeProjFile, 0).Exists() == 0) {
    m_printf("Could not find <%s>. Please recreate project.", vpeProcFile.c_str());
    return 0;
  }
  if (simulatorType != 0 && missing(projectId, procFile)) return 0;
  sizeFile = argSizeFile.empty() ? std::string_view("SIZE") : argSizeFile.view();
  return 1;
}

int CSizeEquip::SetBaseObject() {
  CvdSlot type;
  component->GetValueWithInheritance("Type", type, nullptr);
  simBlockName.clear();
  if (type.IsNumber()) {
    simBlockName = wholeNumberText(type.Number()).view();
  } else if (type.IsValid()) {
    simBlockName = type.List().front();
  }
  if (simBlockName.empty()) simBlockName = componentName.view();
  simObject.reset();
  if (!usable(simCase)) return 0;
  openBlock();
  return simObject != nullptr ? 1 : 0;
}

// Opens the block that `simBlockName` tells; a premapped tower stands for the block of its "Type".
void CSizeEquip::openBlock() {
  int classNumber = kSimulatorBlock;
  if (IsPremapTower(simBlockName.c_str()) != 0) {
    const CvdSimCaseObject tower(simBlockName, kPremappedItem, *simCase, 0);
    SlotText type;
    tower.GetValueWithInheritance("Type", type.data(), nullptr);
    simBlockName = type;
  } else if (IsPremapType(simBlockName.c_str()) != 0) {
    classNumber = kPremappedItem;
  }
  auto opened = std::make_shared<CvdSimCaseObject>(simBlockName, classNumber, *simCase, 0);
  if (opened->IsValid() != 0) simObject = std::move(opened);
}

}  // namespace sizewright
