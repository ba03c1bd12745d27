#include <algorithm>
#include <array>
#include <cstring>

#include "sizewright/frame/size_equip.h"
#include "sizewright/frame/stream_lists.h"
#include "sizewright/host/list2.h"
#include "sizewright/host/text.h"
#include "sizewright/host/units.h"

namespace sizewright {

namespace {

struct StreamClassRow {
  int classNumber;
  std::string_view type;
};

// In the order in which a name is tried.
constexpr auto kStreamClasses = std::to_array<StreamClassRow>({
    {kUserAddedStream, "USER ADDED PROCESS"},
    {kAddedUtilityStream, "VPE ADDED UTILITY"},
    {kProcessStream, "PROCESS"},
    {kAddedPremapStream, "VPE ADDED PREMAP"},
});

const StreamClassRow* findStreamClass(std::string_view name, const CvdProject* project) {
  if (project == nullptr) return nullptr;
  for (const StreamClassRow& row : kStreamClasses) {
    if (CvdStream(name, row.classNumber, *project, 0).IsValid() != 0) return &row;
  }
  return nullptr;
}

bool isStreamClass(int classNumber) {
  return std::any_of(
      kStreamClasses.begin(), kStreamClasses.end(),
      [classNumber](const StreamClassRow& row) { return row.classNumber == classNumber; });
}

}  // namespace

int CSizeEquip::GetStreamID(std::string_view name) const {
  const StreamClassRow* row = findStreamClass(name, project);
  return row != nullptr ? row->classNumber : 0;
}

int CSizeEquip::lib_stream_type(std::string_view name, char* typeOut, int& classOut) const {
  if (const StreamClassRow* row = findStreamClass(name, project); row != nullptr) {
    std::memcpy(typeOut, row->type.data(), row->type.size());
    typeOut[row->type.size()] = '\0';
    classOut = row->classNumber;
    return 1;
  }
  return *typeOut != '\0' && classOut != 0 ? 1 : 0;
}

int CSizeEquip::lib_get_stream_val(std::string_view name, int classNumber, std::string_view slot,
                                   CvdSlot& out) const {
  if (!isStreamClass(classNumber) || project == nullptr) return 0;
  const CvdStream stream(name, classNumber, *project, 0);
  if (stream.IsValid() == 0) return 0;
  return stream.GetValueWithInheritance(slot, out, nullptr) != 0 && out.IsValid() ? 1 : 0;
}

std::optional<CvdStream> CSizeEquip::openStream(std::string_view name) const {
  FixedText<64> type;
  int classNumber = 0;
  if (lib_stream_type(name, type.data(), classNumber) == 0) return std::nullopt;
  return CvdStream(name, classNumber, *project, 0);
}

std::vector<NamedStream> CSizeEquip::openStreams(void* list) const {
  std::vector<NamedStream> streams;
  for (int i = 0; i < list2_length(list); ++i) {
    const std::string name = list2_get_item(list, i, nullptr);
    if (isNoStream(name)) continue;
    if (const std::optional<CvdStream> stream = openStream(name))
      streams.push_back({name, *stream});
  }
  return streams;
}

int CSizeEquip::GetStreams(int direction, std::string_view slot, std::string_view tag,
                           void*& list) const {
  int found = 0;
  if (!tag.empty() && (direction == kInlet || direction == kExit)) {
    found = lib_func_obtain_streams_from_connections(direction, tag, &list);
  }
  if (found == 0 && !slot.empty()) found = lib_st_prop_get_info_from_list(slot, &list);
  return found;
}

int CSizeEquip::GetStreams(int direction, std::string_view slot, std::string_view tag,
                           CStrList& list) const {
  void* found = list2_create();
  void* created = found;  // a stream named in a slot replaces the handle
  const int result = GetStreams(direction, slot, tag, found);
  if (result != 0) {
    for (int i = 0; i < list2_length(found); ++i) list.Append(list2_get_item(found, i, nullptr));
  }
  list2_delete(found);
  if (created != found) list2_delete(created);
  return result;
}

int CSizeEquip::lib_st_prop_get_info_from_list(std::string_view slot, void** list) const {
  if (slot.empty()) return 0;
  CvdSlot value;
  if (component != nullptr) component->GetValueWithInheritance(slot, value, nullptr);
  if (!value.IsValid() && simObject != nullptr) {
    simObject->GetValueWithInheritance(slot, value, nullptr);
  }
  if (!value.IsValid()) return 0;

  void* entries = list2_create();
  if (value.IsNumber()) {
    list2_append_to_end(entries, wholeNumberText(value.Number()));
    if (value.HasUnits()) list2_append_to_end(entries, value.Units());
  } else {
    for (const std::string& line : value.List()) {
      if (!line.empty()) list2_append_to_end(entries, line);
    }
  }
  if (list2_length(entries) == 0) {
    list2_delete(entries);
    return 0;
  }
  *list = entries;  // the handle that stood here is abandoned, not deleted
  return 1;
}

void CSizeEquip::lib_GetStreamWithMax_total_mass_flow(void* list, char* out) const {
  if (list2_length(list) == 0) return;
  double greatest = 0.0;
  FixedText<256> name;
  for (int i = 0; i < list2_length(list); ++i) {
    const char* candidate = list2_get_item(list, i, nullptr);
    std::optional<CvdStream> stream = openStream(candidate);
    double flow = 0.0;
    if (!stream) continue;
    UnitText units;
    if (lib_get_number_and_units_api(&*stream, "TOTAL MASS FLOW", &flow, units.data()) != 0) {
      flow = converted(flow, units, "LB/H");
    }
    if (flow > greatest) {
      greatest = flow;
      name = candidate;
    }
  }
  std::memcpy(out, name.c_str(), name.view().size() + 1);
}

int CSizeEquip::lib_func_IsStreamInList(int direction, std::string_view name) const {
  void* streams = list2_create();
  lib_func_obtain_streams_from_connections(direction, "", &streams);
  const int found = list2_member(streams, withoutTrailingBlanks(name)) != 0 ? 1 : 0;
  list2_delete(streams);
  return found;
}

}  // namespace sizewright
