#include <array>
#include <cstring>

#include "sizewright/frame/size_equip.h"
#include "sizewright/frame/stream_lists.h"
#include "sizewright/host/installation.h"
#include "sizewright/host/list2.h"
#include "sizewright/host/text.h"

namespace sizewright {

namespace {

constexpr int kPortTries = 10000;
constexpr int kChanged = 2;
constexpr std::size_t kPortText = 6000;

std::string_view connectorSlot(int direction) {
  return direction == kInlet ? "__STREAMS__IN" : "__STREAMS__EX";
}

std::string portName(std::string_view prefix, int number) {
  return formatText("%.*s_%d", static_cast<int>(prefix.size()), prefix.data(), number);
}

/// A `list2` list for the length of a block.
class LocalList {
 public:
  LocalList() = default;
  ~LocalList() { list2_delete(handle_); }
  LocalList(const LocalList&) = delete;
  LocalList& operator=(const LocalList&) = delete;
  [[nodiscard]] void* get() const { return handle_; }

 private:
  void* handle_ = list2_create();
};

}  // namespace

int CSizeEquip::lib_func_get_connector_list(int direction, void* list) const {
  if (component == nullptr || component->IsValid() == 0) return 0;
  CvdSlot value;
  if (component->GetValue(connectorSlot(direction), value) == 0) return 0;
  int found = 0;
  if (value.IsNumber()) {
    found = list2_append_to_end(list, wholeNumberText(value.Number()));
  }
  for (const std::string& entry : value.List()) {
    if (!entry.empty()) found |= list2_append_to_end(list, entry);
  }
  return found;
}

int CSizeEquip::lib_func_delete_connectors(std::string_view file, std::string_view object,
                                           int direction) {
  CvdGenericObject record(projectId, file, object);
  if (record.IsValid() == 0) return 0;
  record.DeleteSlots(connectorSlot(direction));
  return 1;
}

int CSizeEquip::lib_func_obtain_streams_from_connections(int direction, std::string_view tag,
                                                         void** list) const {
  if (component == nullptr) return 0;
  const LocalList ports;
  lib_func_get_connector_list(direction, ports.get());
  if (*list == nullptr) *list = list2_create();
  for (int i = 0; i < list2_length(ports.get()); ++i) {
    CvdSlot value;
    component->GetValueWithInheritance(list2_get_item(ports.get(), i, nullptr), value, nullptr);
    std::string_view rest = cutText(value.Text(), kPortText - 1);
    const std::string_view stream = withoutTrailingBlanks(popFirstLine(rest));
    popFirstLine(rest);  // the type text
    const std::string_view portTag = popFirstLine(rest);
    const bool tagged = tag.empty() || equalsIgnoringCase(portTag, tag);
    if (stream.empty() || !tagged || list2_member(*list, stream) != 0) continue;
    if (list2_append_to_end(*list, stream) == 0) break;
  }
  return list2_length(*list);
}

int CSizeEquip::lib_func_create_connector_slot(std::string_view portName, std::string_view stream,
                                               std::string_view tag) {
  FixedText<64> type;
  int classNumber = 0;
  lib_stream_type(stream, type.data(), classNumber);
  if (component == nullptr || component->IsValid() == 0) return 0;
  std::string value(stream);
  value.append("\n").append(type).append("\n").append(tag);
  return component->SetValue(portName, value, 0);
}

int CSizeEquip::lib_func_add_new_ports(std::string_view /*file*/, std::string_view /*object*/,
                                       std::string_view /*connectorSlot*/, void* streams,
                                       std::string_view tag, std::string_view prefix,
                                       int direction) {
  if (list2_length(streams) == 0) return 0;
  const LocalList ports;
  int number = 0;
  for (int i = 0; i < list2_length(streams); ++i) {
    const std::string stream(withoutTrailingBlanks(list2_get_item(streams, i, nullptr)));
    if (isNoStream(stream)) continue;
    const std::string port = portName(prefix, ++number);
    AddStreamToList(stream, kChanged);
    lib_func_create_connector_slot(port, stream, tag);
    if (list2_append_to_end(ports.get(), port) == 0) return 0;
  }
  return lib_func_write_connector_list(ports.get(), direction);
}

int CSizeEquip::lib_func_append_ports(std::string_view stream, std::string_view tag,
                                      std::string_view prefix, int direction) {
  if (stream.empty()) return 0;
  const LocalList ports;
  lib_func_get_connector_list(direction, ports.get());
  AddStreamToList(stream, kChanged);
  for (int number = 0; number < kPortTries; ++number) {
    const std::string port = portName(prefix, number);
    if (list2_member(ports.get(), port) != 0) continue;
    lib_func_create_connector_slot(port, stream, tag);
    list2_append_to_end(ports.get(), port);
    return lib_func_write_connector_list(ports.get(), direction);
  }
  return 0;
}

int CSizeEquip::lib_func_append_ports(std::string_view /*file*/, std::string_view /*object*/,
                                      std::string_view /*connectorSlot*/, void* streams,
                                      std::string_view tag, std::string_view prefix,
                                      int direction) {
  int appended = 0;
  for (int i = 0; i < list2_length(streams); ++i) {
    const std::string stream = list2_get_item(streams, i, nullptr);
    appended |= lib_func_append_ports(stream, tag, prefix, direction);
  }
  return appended;
}

int CSizeEquip::lib_fun_delete_old_ports(std::string_view file, std::string_view object,
                                         int direction) {
  const LocalList ports;
  lib_func_get_connector_list(direction, ports.get());
  CvdGenericObject record(projectId, file, object);
  for (int i = 0; i < list2_length(ports.get()); ++i) {
    const std::string port = list2_get_item(ports.get(), i, nullptr);
    FixedText<256> stream;
    FixedText<256> type;
    FixedText<256> tag;
    lib_func_get_conn_str_prop(file, object, port, stream.data(), type.data(), tag.data());
    if (!stream.empty()) AddStreamToList(stream, kChanged);
    record.DeleteSlots(port);
  }
  return lib_func_delete_connectors(file, object, direction);
}

void CSizeEquip::lib_func_get_conn_str_prop(std::string_view file, std::string_view object,
                                            std::string_view port, char* stream, char* type,
                                            char* tag) const {
  const CvdGenericObject record(projectId, file, object);
  CvdSlot value;
  if (record.IsValid() == 0 || record.GetValueWithInheritance(port, value, nullptr) == 0) return;
  const std::array<char*, 3> outputs = {stream, type, tag};
  for (std::size_t i = 0; i < outputs.size() && i < value.List().size(); ++i) {
    const FixedText<256> line(value.List()[i]);
    std::memcpy(outputs[i], line.c_str(), line.view().size() + 1);
  }
}

int CSizeEquip::lib_func_write_connector_list(void* ports, int direction) {
  char* flat = list2_to_list(ports);
  const std::string text = flat != nullptr ? flat : "";
  list_free(flat);
  if (text.empty()) return 0;
  if (component != nullptr && component->IsValid() != 0) {
    component->SetValue(connectorSlot(direction), text, 0);
  }
  return 1;
}

int CSizeEquip::AddStreamToList(std::string_view stream, int kind) {
  // A marker file beside the project information turns the recording of changes on.
  if (ffile_exists(formatText("%s%s", vpeProjFile.c_str(), ".aee").c_str()) == 0) return 0;
  std::string_view list;
  if (kind == 1) list = "_STR_ADD_LIST_";
  if (kind == kChanged) list = "_STR_MOD_LIST_";
  if (kind == 3) list = "_STR_DEL_LIST_";
  CvdGenericObject changes(projectId, vpeProjFile, list, 1);
  return changes.IsValid() != 0 ? changes.SetValue(stream, "", 0) : 0;
}

int CSizeEquip::GetConnectedStreams() {
  const auto first = [this](int direction, std::string_view tag) {
    const LocalList streams;
    void* list = streams.get();
    const bool found = GetStreams(direction, "", tag, list) != 0;
    return std::string(found ? list2_get_item(list, 0, nullptr) : "");
  };
  AppendStreamToSinkList(first(kInlet, "INLET"));
  AppendStreamToSourceList(first(kExit, "OUTLET"));
  return 1;
}

int CSizeEquip::appendWithClass(CStrList& list, std::string_view stream) const {
  if (stream.empty()) return 0;
  const int classNumber = GetStreamID(stream);
  if (classNumber == 0 || list.IsMember(stream) != 0) return 0;
  list.Append(stream);
  list.SetData(list.GetLength() - 1, static_cast<unsigned long>(classNumber));
  return 1;
}

int CSizeEquip::AppendStreamToSourceList(std::string_view stream) {
  return appendWithClass(sourceList, stream);
}

int CSizeEquip::AppendStreamToSinkList(std::string_view stream) {
  return appendWithClass(sinkList, stream);
}

int CSizeEquip::DisconnectStreams() {
  for (int i = 0; i < sourceList.GetLength(); ++i) {
    DisconnectOneStream(sourceList.GetTextAt(i), sourceList.GetData(i), 1, 0);
  }
  for (int i = 0; i < sinkList.GetLength(); ++i) {
    DisconnectOneStream(sinkList.GetTextAt(i), sinkList.GetData(i), 0, 1);
  }
  return 1;
}

int CSizeEquip::DisconnectOneStream(std::string_view stream, unsigned long classNumber,
                                    int atSource, int atSink) {
  if (project == nullptr || project->IsValid() == 0) return 0;
  if (VdapipGetISCWrap() == 1) {
    return DisconnectStreamWrap(*project, stream, classNumber, atSource, atSink);
  }
  const CvdStream opened(stream, static_cast<int>(classNumber), *project, 0);
  if (opened.IsValid() == 0 || (atSource == 0 && atSink == 0)) return 0;
  const bool bothEnds = atSource != 0 && atSink != 0;
  const int direction = bothEnds ? 0 : (atSource != 0 ? 1 : 2);
  for (const CvdConnectorNode& node : opened.GetConnectors(direction)) {
    CvdConnector connector = node.InstantiateConnector(*project);
    connector.Disconnect(*project);
    connector.Delete();
  }
  return 1;
}

}  // namespace sizewright
