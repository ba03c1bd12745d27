#include "sizewright/app/report.h"

#include <algorithm>
#include <nlohmann/json.hpp>

#include "sizewright/embedded/data_json.h"
#include "sizewright/embedded/plant_layout.h"
#include "sizewright/host/text.h"

namespace sizewright {

using nlohmann::ordered_json;

namespace {

ordered_json textsOf(const CStrList& list) {
  ordered_json texts = ordered_json::array();
  for (const std::string& text : list.texts()) texts.push_back(text);
  return texts;
}

ordered_json stepOf(const StepResult& step) {
  ordered_json json = {{"op", step.operation}, {"result", step.result}};
  if (!step.names) return json;
  ordered_json form = ordered_json::array();
  for (int i = 0; i < step.names->GetLength(); ++i) {
    form.push_back({step.names->GetTextAt(i), step.values.GetTextAt(i)});
  }
  json["form"] = std::move(form);
  return json;
}

ordered_json dialogOf(const MessageLog::Dialog& dialog) {
  if (!dialog.isBox) return {{"kind", "printf"}, {"text", dialog.text}};
  return {{"kind", "box"}, {"text", dialog.text}, {"title", dialog.title}, {"flags", dialog.flags}};
}

/// The records that a run of an item works on; null where they do not exist.
struct Records {
  const StoredObject* component = nullptr;
  const StoredObject* project = nullptr;
  const StoredObject* size = nullptr;

  [[nodiscard]] bool hold(const StoredObject* object) const {
    return object == component || object == project || object == size;
  }
};

const StoredObject* find(MemoryStore& store, std::string_view database, std::string_view name) {
  StoredDatabase* found = store.findDatabase(database);
  return found != nullptr ? store.find(*found, name) : nullptr;
}

Records recordsOf(MemoryStore& store, const PlantItem& item, const RunForm& form) {
  const std::string& components = form.arguments[1];
  const std::string& sizes = form.arguments[3];
  Records records;
  records.component =
      find(store, components.empty() ? kComponents : std::string_view(components), item.name);
  std::string name = item.name;
  if (records.component != nullptr) {
    const CvdSlot own = store.get(*records.component, kObjectName);
    if (*own.Text() != '\0') name = own.Text();
  }
  records.project = store.find(store.database(kProjectItem), name);
  records.size =
      find(store, sizes.empty() ? std::string_view("SIZE") : std::string_view(sizes), name);
  return records;
}

ordered_json slotsOf(const MemoryStore& store, const StoredObject* record) {
  ordered_json slots = ordered_json::object();
  if (record == nullptr) return slots;
  for (std::size_t i = 0; i < record->slotNames.size(); ++i) {
    slots[store.text(record->slotNames[i])] = slotToJson(record->slotValues[i]);
  }
  return slots;
}

// Where the report tells of a change outside the item's own records.
ordered_json& placeOf(ordered_json& changes, const MemoryStore& store, const StoredObject& object) {
  const std::string& name = store.text(object.name);
  switch (object.database->classNumber) {
    case 0:
      return changes["databases"][store.text(object.database->name)][name];
    case kUtilityStreamEntry:
      return changes["utilities"][name];
    case kSimulatorBlock:
    case kPremappedItem:
      return changes["blocks"][name];
    case kProjectItem:
      return changes["projects"][name];
    default:
      return changes["streams"][name];
  }
}

ordered_json changesOf(const MemoryStore& store, const Records& records) {
  ordered_json changes = {{"streams", ordered_json::object()},
                          {"utilities", ordered_json::object()},
                          {"databases", ordered_json::object()}};
  for (const SlotChange& change : store.changes()) {
    if (records.hold(change.object)) continue;
    placeOf(changes, store, *change.object)[store.text(change.slot)] =
        slotToJson(store.get(*change.object, store.text(change.slot)));
  }
  return changes;
}

}  // namespace

ordered_json reportOf(EmbeddedHost& host, const PlantItem& item, ItemRun& run, const RunForm& form,
                      const std::vector<StepResult>& steps) {
  MemoryStore& store = host.plant().store;
  CSizeEquip& object = run.object();
  ordered_json report = {
      {"item", item.name}, {"class", run.className()}, {"isValid", object.IsValid()}};
  ordered_json& performed = report["steps"] = ordered_json::array();
  for (const StepResult& step : steps) performed.push_back(stepOf(step));
  report["messages"] = {{"warnings", textsOf(object.Warnings())},
                        {"errors", textsOf(object.Errors())},
                        {"notes", textsOf(object.Notes())},
                        {"calculations", textsOf(object.Calculations())}};
  ordered_json& status = report["status"] = ordered_json::array();
  for (const auto& [percent, text] : host.log().progress()) status.push_back({percent, text});
  ordered_json& dialogs = report["dialogs"] = ordered_json::array();
  for (const MessageLog::Dialog& dialog : host.log().dialogs()) dialogs.push_back(dialogOf(dialog));
  const Records records = recordsOf(store, item, form);
  report["component"] = slotsOf(store, records.component);
  report["project"] = slotsOf(store, records.project);
  report["size record"] = slotsOf(store, records.size);
  report["changes"] = changesOf(store, records);
  return report;
}

std::vector<StoredObject*> changedObjects(const MemoryStore& store) {
  std::vector<StoredObject*> objects;
  for (const SlotChange& change : store.changes()) {
    if (std::find(objects.begin(), objects.end(), change.object) == objects.end()) {
      objects.push_back(change.object);
    }
  }
  return objects;
}

}  // namespace sizewright
