#include "sizewright/host/objects.h"

#include <algorithm>
#include <cstring>

#include "sizewright/host/host.h"
#include "sizewright/host/text.h"

namespace sizewright {

namespace {

ObjectStore& store() {
  return currentHost().store();
}

template <std::size_t N>
void copyText(std::string_view text, char* out) {
  const FixedText<N> kept(text);
  std::memcpy(out, kept.c_str(), kept.view().size() + 1);
}

// The text of a slot as texts are read everywhere: lines joined, a number cut to a whole one.
FixedText<kSlotText> textOf(const CvdSlot& slot) {
  if (slot.IsNumber()) return wholeNumberText(slot.Number()).view();
  return std::string_view(slot.Text());
}

int read(ObjectId object, std::string_view slot, bool inherit, char* text) {
  CvdSlot value;
  if (!store().read(object, slot, inherit, value)) return 0;
  copyText<kSlotText>(textOf(value), text);
  return 1;
}

int read(ObjectId object, std::string_view slot, bool inherit, double& number, char* units) {
  CvdSlot value;
  if (!store().read(object, slot, inherit, value) || !value.IsNumber()) return 0;
  number = value.Number();
  if (units != nullptr) copyText<UnitText::kCapacity>(value.Units(), units);
  return 1;
}

std::string flatValue(const CvdSlot& value) {
  if (!value.IsNumber()) return value.Text();
  std::string text = compiler_float_to_string(value.Number()).c_str();
  if (value.HasUnits()) text.append("\n").append(value.Units());
  return text;
}

bool isBlank(std::string_view text) {
  return withoutBlanksAround(text).empty();
}

}  // namespace

int CvdProject::IsValid() const {
  return store().projectIsValid(instance_) ? 1 : 0;
}
int CvdSimCase::IsValid() const {
  return store().caseIsValid(instance_) ? 1 : 0;
}
VD_SIMULATOR_TYPE CvdSimCase::SimType() const {
  return store().simulatorType(instance_);
}

CvdODB::CvdODB(unsigned project, std::string_view name, int create)
    : project_(project), name_(name) {
  if (create != 0 && Exists() == 0) Create();
}
int CvdODB::IsValid() const {
  return name_.empty() ? 0 : 1;
}
int CvdODB::Exists() const {
  return store().databaseExists(project_, name_) || store().systemDatabaseExists(name_) ? 1 : 0;
}
int CvdODB::Create() {
  return store().createDatabase(project_, name_) ? 1 : 0;
}
int CvdODB::Delete() {
  return store().deleteDatabase(project_, name_) ? 1 : 0;
}
int CvdODB::Close(int /*flag*/) {
  return 1;
}

CvdSysODB::CvdSysODB(unsigned /*project*/, std::string_view path, int /*create*/) : path_(path) {}
int CvdSysODB::IsValid() const {
  return path_.empty() ? 0 : 1;
}
int CvdSysODB::Exists() const {
  return store().systemDatabaseExists(path_) ? 1 : 0;
}

int CvdBase::Exists() const {
  return IsValid() != 0 && store().exists(id_) ? 1 : 0;
}

int CvdValueObject::GetValue(std::string_view slot, CvdSlot& value) const {
  return store().read(Id(), slot, false, value) ? 1 : 0;
}
int CvdValueObject::GetValue(std::string_view slot, char* text) const {
  return read(Id(), slot, false, text);
}
int CvdValueObject::GetValue(std::string_view slot, double& number, char* units) const {
  return read(Id(), slot, false, number, units);
}
int CvdValueObject::GetValueWithInheritance(std::string_view slot, CvdSlot& value,
                                            int* /*from*/) const {
  return store().read(Id(), slot, true, value) ? 1 : 0;
}
int CvdValueObject::GetValueWithInheritance(std::string_view slot, char* text,
                                            int* /*from*/) const {
  return read(Id(), slot, true, text);
}
int CvdValueObject::GetValueWithInheritance(std::string_view slot, double& number, char* units,
                                            int* /*from*/) const {
  return read(Id(), slot, true, number, units);
}

int CvdValueObject::SetValue(std::string_view slot, std::string_view text, int flag) {
  return SetValue(slot, CvdSlot::ofText(text), flag);
}
int CvdValueObject::SetValue(std::string_view slot, const CStrList& list, int flag) {
  return SetValue(slot, CvdSlot::ofList(list.texts()), flag);
}
int CvdValueObject::SetValue(std::string_view slot, const CvdSlot& value, int /*flag*/) {
  return store().write(Id(), slot, value) ? 1 : 0;
}
int CvdValueObject::SetValue(std::string_view slot, double number, std::string_view units,
                             int flag) {
  return SetValue(slot, CvdSlot::ofNumber(number, units), flag);
}

int CvdValueObject::DeleteSlots(std::string_view slot) {
  return store().erase(Id(), slot) ? 1 : 0;
}

int CvdValueObject::DeleteSlots(const CStrList& slots) {
  int any = 0;
  for (int i = 0; i < slots.GetLength(); ++i) any |= DeleteSlots(slots.GetTextAt(i));
  return any;
}

int CvdValueObject::LoadAllSlots(SlotList& slots) const {
  if (IsValid() == 0) return 0;
  slots = store().slots(Id());
  return 1;
}

int CvdValueObject::UnLoadAllSlots(const SlotList& slots, int replace) {
  if (IsValid() == 0) return 0;
  if (replace != 0) {
    for (const std::string& name : store().slots(Id()).names) store().erase(Id(), name);
  }
  bool all = true;
  for (std::size_t i = 0; i < slots.names.size(); ++i) {
    all = store().write(Id(), slots.names[i], slots.values[i]) && all;
  }
  return all ? 1 : 0;
}

CvdGenericObject::CvdGenericObject(unsigned project, std::string_view database,
                                   std::string_view name, int create)
    : CvdValueObject(store().object(project, database, name, create != 0)) {}
CvdGenericObject::CvdGenericObject(const CvdProject& project, std::string_view database,
                                   std::string_view name, int create)
    : CvdGenericObject(project.UserInstance(), database, name, create) {}

CvdSysGenericObject::CvdSysGenericObject(unsigned /*project*/, std::string_view path,
                                         std::string_view name)
    : CvdValueObject(store().systemObject(path, name)) {}

CvdSimCaseObject::CvdSimCaseObject(std::string_view name, int classNumber,
                                   const CvdSimCase& simCase, int /*flag*/)
    : CvdValueObject(store().caseObject(simCase.Instance(), classNumber, name)) {}

CvdProjectObject::CvdProjectObject(std::string_view name, int classNumber,
                                   const CvdProject& project, int /*flag*/)
    : CvdValueObject(classNumber == kProjectItem
                         ? store().projectObject(project.UserInstance(), name)
                         : ObjectId::none) {}
std::string_view CvdProjectObject::Model() const {
  return store().model(Id());
}

int CvdConnector::Disconnect(const CvdProject& /*project*/) {
  return store().disconnect(id_) ? 1 : 0;
}
int CvdConnector::Delete() {
  return store().deleteConnector(id_) ? 1 : 0;
}

CvdConnector CvdConnectorNode::InstantiateConnector(const CvdProject& /*project*/) const {
  return CvdConnector(id_);
}

CvdStream::CvdStream(std::string_view name, int classNumber, const CvdProject& project, int create)
    : CvdValueObject(store().stream(project.UserInstance(), classNumber, name, create != 0)),
      classNumber_(classNumber) {}

std::vector<CvdConnectorNode> CvdStream::GetConnectors(int direction) const {
  std::vector<CvdConnectorNode> nodes;
  for (const ConnectorId id : store().connectors(Id(), direction)) nodes.emplace_back(id);
  return nodes;
}

int VdapipGetISCWrap() {
  return store().hasConnectionService() ? 1 : 0;
}

int DisconnectStreamWrap(const CvdProject& project, std::string_view stream,
                         unsigned long classNumber, int atSource, int atSink) {
  return store().disconnectStream(project.UserInstance(), stream, static_cast<int>(classNumber),
                                  atSource != 0, atSink != 0)
             ? 1
             : 0;
}

int lo_load_list2_all(unsigned project, std::string_view database, std::string_view object,
                      void** names, void** values) {
  *names = nullptr;
  *values = nullptr;
  ObjectId id = store().object(project, database, object, false);
  if (id == ObjectId::none) id = store().systemObject(database, object);
  if (id == ObjectId::none || !store().exists(id)) return 0;
  *names = list2_create();
  *values = list2_create();
  const SlotList slots = store().slots(id);
  for (std::size_t i = 0; i < slots.names.size(); ++i) {
    list2_add_slot_value(*names, *values, slots.names[i], flatValue(slots.values[i]));
  }
  return 1;
}

void lo_load_list2_trim(void** names, void** values) {
  void* keptNames = list2_create();
  void* keptValues = list2_create();
  for (int i = 0; i < list2_length(*names); ++i) {
    const char* name = list2_get_item(*names, i, nullptr);
    const char* value = list2_get_item(*values, i, nullptr);
    if (value == nullptr || isBlank(name) || isBlank(value)) continue;
    list2_add_slot_value(keptNames, keptValues, name, value);
  }
  list2_delete(*names);
  list2_delete(*values);
  *names = keptNames;
  *values = keptValues;
}

void lo_load_list2_trim(SlotList& slots) {
  SlotList kept;
  for (std::size_t i = 0; i < slots.names.size(); ++i) {
    const bool blank = !slots.values[i].IsNumber() && isBlank(slots.values[i].Text());
    if (blank || isBlank(slots.names[i])) continue;
    kept.names.push_back(std::move(slots.names[i]));
    kept.values.push_back(std::move(slots.values[i]));
  }
  slots = std::move(kept);
}

}  // namespace sizewright
