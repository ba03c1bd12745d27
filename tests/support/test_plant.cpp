#include "support/test_plant.h"

#include <cmath>

#include "sizewright/embedded/plant_file.h"
#include "sizewright/embedded/registry.h"

namespace sizewright {

TestPlant::TestPlant(std::string_view json)
    : plant_(readPlant(json, "test plant", equipmentClassNames())),
      host_(std::make_unique<EmbeddedHost>(*plant_)),
      scope_(std::make_unique<HostScope>(*host_)) {}

TestPlant::~TestPlant() = default;

void TestPlant::select(std::string_view item) {
  const int position = plant_->findItem(item);
  ASSERT_GE(position, 0) << "no item " << item;
  host_->select(plant_->items[static_cast<std::size_t>(position)]);
}

CvdSlot TestPlant::stored(std::string_view database, std::string_view object,
                          std::string_view slot) {
  StoredDatabase* found = plant_->store.findDatabase(database);
  const StoredObject* record = found != nullptr ? plant_->store.find(*found, object) : nullptr;
  return record != nullptr ? plant_->store.get(*record, slot) : CvdSlot();
}

CvdSlot TestPlant::component(std::string_view item, std::string_view slot) {
  return stored("VPECOMP", item, slot);
}

CvdSlot TestPlant::sizeRecord(std::string_view item, std::string_view slot) {
  return stored("SIZE", item, slot);
}

CvdSlot TestPlant::project(std::string_view item, std::string_view slot) {
  MemoryStore& store = plant_->store;
  const StoredObject* record = store.find(store.database(kProjectItem), item);
  return record != nullptr ? store.get(*record, slot) : CvdSlot();
}

double TestPlant::number(std::string_view item, std::string_view slot) {
  const CvdSlot value = component(item, slot);
  EXPECT_TRUE(value.IsNumber()) << item << " has no number in \"" << slot << '"';
  return value.IsNumber() ? value.Number() : std::nan("");
}

std::string TestPlant::units(std::string_view item, std::string_view slot) {
  return component(item, slot).Units();
}

std::string TestPlant::text(std::string_view item, std::string_view slot) {
  return component(item, slot).Text();
}

bool TestPlant::has(std::string_view item, std::string_view slot) {
  return component(item, slot).IsValid();
}

std::vector<std::string> TestPlant::dialogTexts() const {
  std::vector<std::string> texts;
  for (const MessageLog::Dialog& dialog : host_->log().dialogs()) texts.push_back(dialog.text);
  return texts;
}

std::vector<std::pair<int, std::string>> TestPlant::progress() const {
  std::vector<std::pair<int, std::string>> lines;
  for (const auto& [percent, text] : host_->log().progress()) lines.emplace_back(percent, text);
  return lines;
}

std::vector<std::pair<std::string, std::string>> formOf(CSizeEquip& object) {
  CStrList names;
  CStrList values;
  object.ReturnValues(names, values);
  std::vector<std::pair<std::string, std::string>> rows;
  for (int i = 0; i < names.GetLength(); ++i) {
    rows.emplace_back(names.GetTextAt(i), values.GetTextAt(i));
  }
  return rows;
}

std::string formValue(CSizeEquip& object, std::string_view label) {
  for (const auto& [name, value] : formOf(object)) {
    if (name == label) return value;
  }
  return {};
}

int setForm(CSizeEquip& object, const std::vector<std::pair<std::string, std::string>>& rows) {
  CStrList names;
  CStrList values;
  for (const auto& [name, value] : rows) {
    names.Append(name);
    values.Append(value);
  }
  return object.SetValues(names, values);
}

bool holds(const CStrList& list, std::string_view entry) {
  for (int i = 0; i < list.GetLength(); ++i) {
    if (list.GetTextAt(i) == entry) return true;
  }
  return false;
}

bool holdsLines(const CStrList& list, std::string_view text) {
  std::string all = "\n";
  for (int i = 0; i < list.GetLength(); ++i) all.append(list.GetTextAt(i)).append("\n");
  std::string wanted = "\n";
  wanted.append(text).append("\n");
  return all.find(wanted) != std::string::npos;
}

}  // namespace sizewright
