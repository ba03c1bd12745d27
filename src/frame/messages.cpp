#include "sizewright/host/messages.h"

#include <cstdio>
#include <memory>

#include "sizewright/frame/size_equip.h"
#include "sizewright/host/list2.h"
#include "sizewright/host/text.h"

namespace sizewright {

namespace {

constexpr char kLine = '\n';

void store(CvdProjectObject& object, std::string_view slot, const CStrList& list) {
  if (!list.IsEmpty()) object.SetValue(slot, list.GetTextList(kLine), 0);
}

void storeNumbered(CvdValueObject& record, const char* slot, const CStrList& list) {
  for (int i = 0; i < list.GetLength(); ++i) {
    record.SetValue(formatText("%s %d", slot, i), list.GetTextAt(i), 0);
  }
}

}  // namespace

int CSizeEquip::Commit() {
  SaveParameters();
  UpdateConnectivity();
  return AddWarningAndError();
}

int CSizeEquip::AddWarningAndError() {
  if (projectObject == nullptr || projectObject->IsValid() == 0) return 0;
  store(*projectObject, "Sizing Warning(s)", warnings);
  store(*projectObject, "Sizing Error(s)", errors);
  store(*projectObject, "Sizing Note(s)", notes);
  store(*projectObject, "Sizing Calculation(s)", calculations);
  return 1;
}

int CSizeEquip::UpdateSizeInfo() {
  static const CStrList kLeftOut = {"object name",       "Title",     "CpRemarks1",  "CpRemarks2",
                                    "CpItemDescription", "CpUserTag", "CpQuotedCost"};
  if (CvdODB(projectId, sizeFile, 0).Exists() == 0) return 0;
  CvdGenericObject record(projectId, sizeFile, projectComponentName, 1);
  if (record.IsValid() == 0 || record.Exists() == 0) return 0;

  SlotList slots;
  int copied = component != nullptr ? component->LoadAllSlots(slots) : 0;
  if (copied != 0) {
    lo_load_list2_trim(slots);
    copied = record.UnLoadAllSlots(slots, 1);
  }
  if (copied != 0) record.DeleteSlots(kLeftOut);

  storeNumbered(record, "Warning(s)", warnings);
  storeNumbered(record, "Error(s)", errors);
  // The calculations decide whether, but the errors are what is filed under this prefix.
  if (!calculations.IsEmpty()) storeNumbered(record, "Sizing Calculation(s)", errors);
  storeNumbered(record, "Sizing Note(s)", notes);
  return copied;
}

void CSizeEquip::WriteToFile(const char* path, void* names, void* values) {
  if (list2_length(names) != list2_length(values)) return;
  const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(path, "a"), std::fclose);
  if (file == nullptr) return;
  for (int i = list2_length(names) - 1; i >= 0; --i) {
    std::string_view value = list2_get_item(values, i, nullptr);
    if (value.empty()) continue;
    const std::string number(popFirstLine(value));
    const std::string units(popFirstLine(value));
    std::fprintf(file.get(), "  %-48s%-20s%s\n", list2_get_item(names, i, nullptr), number.c_str(),
                 units.c_str());
  }
}

int CSizeEquip::lib_func_write_msg(const char* /*ignored1*/, const char* /*ignored2*/,
                                   const char* slot, const char* text, int mode) {
  if (mode == 0 && component != nullptr && component->IsValid() != 0) {
    component->SetValue(slot, text, 0);
  }
  if (mode == 1) m_printf("%s", text);
  return 1;
}

void CSizeEquip::tell(CStrList& list, std::string_view text) {
  list.AddTextList(text, kLine);
}

void CSizeEquip::showBox(std::string_view text, int flags) const {
  if (noDialogs == 0) m_messageBox(nullptr, text, "Sizing", flags);
}

void CSizeEquip::showText(std::string_view text) const {
  if (noDialogs == 0) m_printf("%.*s", static_cast<int>(text.size()), text.data());
}

void CSizeEquip::warn(std::string_view text) {
  tell(warnings, text);
  showBox(text, kWarningBox);
}

void CSizeEquip::fail(std::string_view text) {
  tell(errors, text);
  showText(text);
}

}  // namespace sizewright
