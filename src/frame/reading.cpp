#include <cmath>
#include <cstring>

#include "sizewright/frame/size_equip.h"
#include "sizewright/host/host.h"
#include "sizewright/host/text.h"

namespace sizewright {

namespace {

// What the readers make of a slot once it is found.

int takeText(const CvdSlot& slot, char* out) {
  const SlotText text =
      slot.IsNumber() ? SlotText(wholeNumberText(slot.Number()).view()) : SlotText(slot.Text());
  std::memcpy(out, text.c_str(), text.view().size() + 1);
  return text.empty() ? 0 : 1;
}

int takeNumber(const CvdSlot& slot, double* out) {
  if (!slot.IsNumber()) return 0;
  *out = slot.Number();
  return *out != 0.0 ? 1 : 0;
}

// A text slot gives its text as unit and leaves the number; a list counts as the number 0.
int takeNumberAndUnits(const CvdSlot& slot, double* out, UnitText& units) {
  if (!slot.IsValid()) return 0;
  if (slot.IsText()) {
    units = std::string_view(slot.Text());
  } else {
    *out = slot.Number();
    if (slot.HasUnits()) units = std::string_view(slot.Units());
  }
  return *out != 0.0 && !units.empty() ? 1 : 0;
}

int takeAdjusted(const CvdSlot& slot, double* out, std::string_view targetUnits) {
  if (!slot.IsValid()) return 0;
  UnitText units;
  takeNumberAndUnits(slot, out, units);
  if (!units.empty()) *out = converted(*out, units, targetUnits);
  return *out != 0.0 ? 1 : 0;
}

// The unit goes out only when the slot has one.
void copyUnits(const UnitText& units, char* out) {
  if (!units.empty()) std::memcpy(out, units.c_str(), units.view().size() + 1);
}

CvdSlot readFrom(const CvdValueObject* object, std::string_view slot) {
  CvdSlot value;
  if (object != nullptr && object->IsValid() != 0 && !slot.empty()) {
    object->GetValueWithInheritance(slot, value, nullptr);
  }
  return value;
}

}  // namespace

CvdSlot CSizeEquip::search(std::string_view files, std::string_view objects,
                           std::string_view slot) const {
  if (slot.empty()) return {};
  for (std::string_view rest = objects; !rest.empty();) {
    const std::string_view name = popFirstLine(rest);
    CvdSlot value;
    if (component != nullptr && component->IsValid() != 0 &&
        equalsIgnoringCase(name, componentName)) {
      value = readFrom(component.get(), slot);
    } else if (equalsIgnoringCase(name, simBlockName)) {
      value = readFrom(simObject.get(), slot);
    }
    if (value.IsValid()) return value;
  }
  for (std::string_view rest = objects; !rest.empty();) {
    const std::string_view name = popFirstLine(rest);
    FixedText<64> type;
    int classNumber = 0;
    CvdSlot value;
    if (lib_stream_type(name, type.data(), classNumber) != 0 &&
        lib_get_stream_val(name, classNumber, slot, value) != 0) {
      return value;
    }
  }
  for (std::string_view restFiles = files; !restFiles.empty();) {
    const std::string_view file = popFirstLine(restFiles);
    for (std::string_view rest = objects; !rest.empty();) {
      const CvdGenericObject object(projectId, file, popFirstLine(rest));
      if (CvdSlot value = readFrom(&object, slot); value.IsValid()) return value;
    }
  }
  return {};
}

int CSizeEquip::lib_get_value_c(std::string_view files, std::string_view objects,
                                std::string_view slot, char* out) const {
  const CvdSlot value = search(files, objects, slot);
  return value.IsValid() ? takeText(value, out) : 0;
}

int CSizeEquip::lib_get_value_c_api(CvdValueObject* object, std::string_view slot, char* out,
                                    const char* /*ignored*/) const {
  const CvdSlot value = readFrom(object, slot);
  return value.IsValid() ? takeText(value, out) : 0;
}

int CSizeEquip::lib_get_value_n(std::string_view files, std::string_view objects,
                                std::string_view slot, double* out, const char* /*units*/) const {
  return takeNumber(search(files, objects, slot), out);
}

int CSizeEquip::lib_get_value_n_api(CvdValueObject* object, std::string_view slot, double* out,
                                    const char* /*ignored*/) const {
  return takeNumber(readFrom(object, slot), out);
}

int CSizeEquip::lib_get_number_and_units(std::string_view files, std::string_view objects,
                                         std::string_view slot, double* out, char* unitsOut) const {
  UnitText units;
  const int found = takeNumberAndUnits(search(files, objects, slot), out, units);
  copyUnits(units, unitsOut);
  return found;
}

int CSizeEquip::lib_get_number_and_units_api(CvdValueObject* object, std::string_view slot,
                                             double* out, char* unitsOut) const {
  UnitText units;
  const int found = takeNumberAndUnits(readFrom(object, slot), out, units);
  copyUnits(units, unitsOut);
  return found;
}

int CSizeEquip::lib_get_and_adjust(std::string_view files, std::string_view objects,
                                   std::string_view slot, double* out,
                                   std::string_view targetUnits) const {
  return takeAdjusted(search(files, objects, slot), out, targetUnits);
}

int CSizeEquip::lib_get_and_adjust_api(CvdValueObject* object, std::string_view slot, double* out,
                                       std::string_view targetUnits) const {
  return takeAdjusted(readFrom(object, slot), out, targetUnits);
}

int CSizeEquip::lib_lo_load_list2_all(std::string_view files, std::string_view object, void** names,
                                      void** values) const {
  while (!files.empty()) {
    const std::string_view file = popFirstLine(files);
    const CvdGenericObject stored(projectId, file, object);
    if (stored.IsValid() != 0 && stored.Exists() != 0) {
      return lo_load_list2_all(projectId, file, object, names, values);
    }
  }
  return 0;
}

int CSizeEquip::lib_obj_exists(std::string_view files, std::string_view object) const {
  while (!files.empty()) {
    const CvdGenericObject stored(projectId, popFirstLine(files), object);
    if (stored.IsValid() != 0 && stored.Exists() != 0) return 1;
  }
  return 0;
}

int CSizeEquip::GetValueFromDesCriteria(const char* name, double& value, const char* units) const {
  double found = 0.0;
  if (pxl_get_and_adjust_criteria_n(equipFullCode, name, found, units) == 0) return 0;
  if (found == 0.0) return 0;  // as everywhere, a number of exactly 0 counts as not given
  value = found;
  return 1;
}

int CSizeEquip::GetValueFromDesCriteria(const char* name, CriterionText& text) const {
  return pxl_get_criteria_value_c(equipFullCode, name, text);
}

const char* CSizeEquip::lib_func_get_str_upto_char(const char** cursor, char* out, char delimiter) {
  while (**cursor != '\0' && **cursor != delimiter) *out++ = *(*cursor)++;
  *out = '\0';
  if (**cursor == delimiter && delimiter != '\0') ++*cursor;
  return *cursor;
}

void CSizeEquip::TrimString(char* text) {
  text_remove_trailing_blanks(text);
  if (char* end = std::strchr(text, '\n'); end != nullptr) *end = '\0';
}

double CSizeEquip::compiler_pow_double(double x, double y) {
  if (y == 0.0) return 1.0;
  if (x == 0.0 && y < 0.0) return 0.0;
  if (x == 1.0) return 1.0;
  const double power = std::exp(std::fabs(y) * 2.302585093 * std::log10(x));
  return y < 0.0 ? 1.0 / power : power;
}

}  // namespace sizewright
