#include <algorithm>

#include "sizewright/frame/size_equip.h"
#include "sizewright/frame/stream_lists.h"
#include "sizewright/host/list2.h"
#include "sizewright/host/messages.h"
#include "sizewright/host/text.h"
#include "sizewright/host/units.h"

namespace sizewright {

bool CSizeEquip::itemIs(std::initializer_list<std::string_view> codes) const {
  return std::any_of(codes.begin(), codes.end(),
                     [this](std::string_view code) { return sameWord(itemCode, code); });
}

bool CSizeEquip::categoryIs(std::initializer_list<std::string_view> codes) const {
  return std::any_of(codes.begin(), codes.end(), [this](std::string_view code) {
    return equalsIgnoringCase(categoryCode, code);
  });
}

CvdValueObject* CSizeEquip::source(From from) const {
  switch (from) {
    case From::component:
      return component.get();
    case From::simObject:
      return simObject.get();
    case From::projectObject:
      return projectObject.get();
  }
  return nullptr;
}

void CSizeEquip::readSource(double& field, From from, std::string_view slot, const char* units,
                            Lookup lookup) const {
  CvdValueObject* object = source(from);
  if (field > 0.0 || object == nullptr) return;
  double value = 0.0;
  bool found = false;
  if (lookup == Lookup::own) {
    UnitText unit;
    found = object->GetValue(slot, value, unit.data()) != 0 && value != 0.0;
    if (found && units != nullptr && !unit.empty()) value = converted(value, unit, units);
  } else {
    value = readOr(object, slot, units, 0.0);
    found = value != 0.0;
  }
  if (found) field = value;
}

void CSizeEquip::readCount(double& count, From from, std::string_view slot) const {
  if (!(count > 1.0)) count = std::max(count, readOr(source(from), slot, nullptr, 0.0));
}

double CSizeEquip::readOr(CvdValueObject* object, std::string_view slot, const char* units,
                          double missing) const {
  double value = 0.0;
  const int found = units != nullptr ? lib_get_and_adjust_api(object, slot, &value, units)
                                     : lib_get_value_n_api(object, slot, &value, "inherit");
  return found != 0 ? value : missing;
}

double CSizeEquip::readSentinel(CvdValueObject* object, std::string_view slot, const char* units,
                                double sentinel) const {
  double value = sentinel;
  return lib_get_and_adjust_api(object, slot, &value, units) != 0 ? value : sentinel;
}

double CSizeEquip::readComponentOrBlock(std::string_view componentSlot, std::string_view blockSlot,
                                        const char* units, double sentinel) const {
  const double value = readSentinel(component.get(), componentSlot, units, sentinel);
  return value != sentinel ? value : readSentinel(simObject.get(), blockSlot, units, sentinel);
}

bool CSizeEquip::allowsResize() const {
  SlotText text;
  lib_get_value_c_api(projectObject.get(), "CpAllowResize", text.data(), "inherit");
  return !equalsIgnoringCase(text, "No");
}

bool CSizeEquip::readDesignConditions(double& pressure, double& temperature) const {
  const auto take = [this](double& field, const char* slot, const char* units) {
    const double value = readOr(projectObject.get(), slot, units, 0.0);
    if (value != 0.0) field = value;
    return value != 0.0;
  };
  const bool hasPressure = take(pressure, "CpDesignGaugePressure", "PSI");
  return take(temperature, "CpDesignTemperature", "DEG F") && hasPressure;
}

void CSizeEquip::findStreams(void*& list, Direction direction, std::string_view slot,
                             std::string_view tag) const {
  ensureList(list);
  if (list2_length(list) != 0) return;
  void* empty = list;
  GetStreams(direction, slot, tag, list);
  if (list != empty) list2_delete(empty);  // a stream named in a slot came in a new list
}

void CSizeEquip::findExits(void*& list, std::initializer_list<std::string_view> tags) const {
  ensureList(list);
  if (list2_length(list) != 0) return;
  for (const std::string_view tag : tags) GetStreams(kExit, "", tag, list);
  findStreams(list, kNoDirection, "Exit stream", "");
}

void CSizeEquip::rewritePorts(Direction direction, void* list, std::string_view tag,
                              std::string_view prefix) {
  if (list == nullptr) return;
  lib_fun_delete_old_ports(vpeCompFile, componentName, direction);
  lib_func_add_new_ports(vpeCompFile, componentName,
                         direction == kInlet ? "__STREAMS__IN" : "__STREAMS__EX", list, tag, prefix,
                         direction);
}

void CSizeEquip::rewriteExitPorts(void* list, std::span<const PortByFlow> rows) {
  if (list == nullptr) return;
  lib_fun_delete_old_ports(vpeCompFile, componentName, kExit);
  for (int i = 0; i < list2_length(list); ++i) {
    const std::string name(withoutTrailingBlanks(list2_get_item(list, i, nullptr)));
    if (isNoStream(name)) continue;
    std::optional<CvdStream> stream = openStream(name);
    const auto carried = std::find_if(rows.begin(), rows.end(), [&](const PortByFlow& row) {
      return stream && readOr(&*stream, row.flow, "LB/H", 0.0) > 0.0;
    });
    lib_func_append_ports(name, carried != rows.end() ? carried->tag : "OUTLET", "_ex_", kExit);
  }
}

void CSizeEquip::rewriteGasExitPorts(void* list) {
  if (list == nullptr) return;
  lib_fun_delete_old_ports(vpeCompFile, componentName, kExit);
  for (auto& [name, stream] : openStreams(list)) {
    const bool vapor = readOr(&stream, "VAPOR MASS FLOW", "LB/H", 0.0) > 0.0;
    lib_func_append_ports(name, vapor ? "OUTLET" : "DRAIN", "_ex_", kExit);
  }
}

void CSizeEquip::showStream(std::string_view label, void* list, const char* dialog, CStrList& names,
                            CStrList& values) const {
  if (list2_length(list) == 0) return;
  if (list2_length(list) > 1) {
    FixedText<256> stream;
    lib_GetStreamWithMax_total_mass_flow(list, stream.data());
    // kept: the name takes the first place even when it is empty, because nothing flows
    list2_replace_item(list, 0, stream);
    FixedText<256> shown;
    if (DisplayMapper::GetNodeData(stream, shown) == 0) shown = stream;
    std::string text = dialog;
    text.replace(text.find("%s"), 2, shown.view());
    showBox(text, kWarningBox);
  }
  names.Append(label);
  values.Append(list2_get_item(list, 0, nullptr));
}

void CSizeEquip::takeFormNumber(double& field, const CStrList& names, const CStrList& values,
                                std::string_view label, const char* units, FormRule rule) {
  double number = 0.0;
  UnitText unit;
  const bool present = list2_get_slot_value_n(names, values, label, &number, unit.data()) != 0;
  const bool hasUnit = !unit.empty() && units != nullptr;
  const double value = hasUnit ? converted(number, unit, units) : number;
  switch (rule) {
    case FormRule::converted:
      if (!present) field = 0.0;
      if (present && hasUnit) field = value;
      break;
    case FormRule::adjusted:
      field = present ? value : 0.0;
      break;
    case FormRule::plain:
      field = present ? number : 0.0;
      break;
    case FormRule::plainOrKept:
      if (present) field = number;
      break;
    case FormRule::ifPositive:
      if (present && value > 0.0) field = value;
      break;
  }
}

std::string CSizeEquip::formText(const CStrList& names, const CStrList& values,
                                 std::string_view label) {
  const int position = names.IsMember(label);
  return position > 0 ? values.GetTextAt(position - 1) : "";
}

void CSizeEquip::showFormNumber(CStrList& names, CStrList& values, std::string_view label,
                                double number, const char* internal, const char* shown) {
  if (number == 0.0) return;
  if (shown != nullptr) number = converted(number, internal, shown);
  std::string text = compiler_float_to_string(number).c_str();
  if (shown != nullptr) text.append("\n").append(shown);
  names.Append(label);
  values.Append(text);
}

void CSizeEquip::writeGaugePressure(std::string_view slot, double pressure) {
  writeResult(slot, converted(pressure, "PSI", "PSIG"), When::always, Style::converted, "PSIG",
              "PSIG", "KPA");
}

void CSizeEquip::writeResult(std::string_view slot, double value, When when, Style style,
                             const char* internal, const char* customary, const char* metric) {
  if (component == nullptr || (when == When::positive && !(value > 0.0)) ||
      (when == When::aboveOne && !(value > 1.0))) {
    return;
  }
  switch (style) {
    case Style::converted:
      ob_adjust_and_add_in_correct_base_type_api(component.get(), slot, value, internal, customary,
                                                 metric, unitType);
      break;
    case Style::plain:
      component->SetValue(slot, value, internal != nullptr ? internal : "", 0);
      break;
    case Style::count:
      component->SetValue(slot, wholeNumberText(value), 0);
      break;
  }
}

}  // namespace sizewright
