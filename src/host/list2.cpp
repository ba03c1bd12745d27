#include "sizewright/host/list2.h"

#include <cstring>

#include "sizewright/host/host.h"
#include "sizewright/host/text.h"

namespace sizewright {

namespace {

// A handle is the position plus 1 in the low bits and the generation of that position above them.
constexpr unsigned kPositionBits = 24;
constexpr std::uintptr_t kPositionMask = (std::uintptr_t{1} << kPositionBits) - 1;
constexpr std::uint64_t kGenerations = std::uint64_t{1} << (64 - kPositionBits);

void* handleOf(std::size_t position, std::uint64_t generation) {
  const auto number = static_cast<std::uintptr_t>(generation << kPositionBits) | (position + 1);
  return reinterpret_cast<void*>(number);  // NOLINT(performance-no-int-to-ptr): never dereferenced
}

}  // namespace

static_assert(sizeof(void*) == 8, "list handles hold a position and a generation in 64 bits");

ListPool::Entry* ListPool::entryOf(void* handle) {
  const auto number = reinterpret_cast<std::uintptr_t>(handle);
  const std::size_t position = (number & kPositionMask) - 1;
  if (handle == nullptr || position >= entries_.size()) return nullptr;
  Entry& entry = entries_[position];
  return entry.used && entry.generation == number >> kPositionBits ? &entry : nullptr;
}

void* ListPool::create() {
  if (free_.empty()) {
    if (entries_.size() >= kPositionMask) return nullptr;
    free_.push_back(entries_.size());
    entries_.emplace_back();
  }
  const std::size_t position = free_.back();
  free_.pop_back();
  Entry& entry = entries_[position];
  entry.used = true;
  ++live_;
  return handleOf(position, entry.generation);
}

bool ListPool::remove(void* handle) {
  Entry* entry = entryOf(handle);
  if (entry == nullptr) return false;
  entry->list.clear();
  entry->used = false;
  entry->generation = (entry->generation + 1) % kGenerations;
  free_.push_back(static_cast<std::size_t>(entry - entries_.data()));
  --live_;
  return true;
}

ListPool::List* ListPool::find(void* handle) {
  Entry* entry = entryOf(handle);
  return entry != nullptr ? &entry->list : nullptr;
}

std::size_t ListPool::reclaim() {
  std::size_t count = 0;
  for (std::size_t position = 0; live_ > 0 && position < entries_.size(); ++position) {
    if (remove(handleOf(position, entries_[position].generation))) ++count;
  }
  return count;
}

namespace {

ListPool& pool() {
  return currentHost().lists();
}

ListPool::List* listOf(void* handle) {
  if (handle == nullptr) return nullptr;
  ListPool::List* list = pool().find(handle);
  if (list == nullptr) currentHost().user().diagnostic("A list was used after its deletion.");
  return list;
}

const std::string* entryOf(void* handle, int index) {
  const ListPool::List* list = listOf(handle);
  const auto position = static_cast<std::size_t>(index);
  return list != nullptr && index >= 0 && position < list->size() ? &(*list)[position] : nullptr;
}

void setLength(int* length, std::size_t value) {
  if (length != nullptr) *length = static_cast<int>(value);
}

}  // namespace

void* list2_create() {
  return pool().create();
}

void list2_delete(void* list) {
  pool().remove(list);
}

int list2_length(void* list) {
  const ListPool::List* entries = listOf(list);
  return entries != nullptr ? static_cast<int>(entries->size()) : 0;
}

int list2_member(void* list, std::string_view text) {
  const ListPool::List* entries = listOf(list);
  if (entries == nullptr) return 0;
  for (std::size_t i = 0; i < entries->size(); ++i) {
    if (equalsIgnoringCase((*entries)[i], text)) return static_cast<int>(i) + 1;
  }
  return 0;
}

int list2_copy_s(void* from, void* to) {
  const ListPool::List* source = listOf(from);
  ListPool::List* target = listOf(to);
  if (source == nullptr || target == nullptr) return 0;
  *target = ListPool::List(*source);
  return 1;
}

int list2_append_to_end(void* list, std::string_view text) {
  ListPool::List* entries = listOf(list);
  if (entries == nullptr) return 0;
  entries->emplace_back(text);
  return 1;
}

const char* list2_get_item(void* list, int index, int* length) {
  const std::string* entry = entryOf(list, index);
  if (entry == nullptr) return nullptr;
  setLength(length, entry->size());
  return entry->c_str();
}

int list2_replace_item(void* list, int index, std::string_view text) {
  if (entryOf(list, index) == nullptr) return 0;
  (*listOf(list))[static_cast<std::size_t>(index)] = text;
  return 1;
}

const char* list2_get_slot_value(void* names, void* values, std::string_view label, int* length) {
  const int position = list2_member(names, label);
  return position > 0 ? list2_get_item(values, position - 1, length) : nullptr;
}

int list2_get_slot_value_n(void* names, void* values, std::string_view label, double* number,
                           char* units) {
  const char* value = list2_get_slot_value(names, values, label, nullptr);
  return value != nullptr ? readNumberAndUnits(value, number, units) : 0;
}

int list2_get_slot_value_n(const CStrList& names, const CStrList& values, std::string_view label,
                           double* number, char* units) {
  const int position = names.IsMember(label);
  return position > 0 && position <= values.GetLength()
             ? readNumberAndUnits(values.GetTextAt(position - 1), number, units)
             : 0;
}

int list2_add_slot_value(void* names, void* values, std::string_view label,
                         std::string_view value) {
  return list2_append_to_end(names, label) != 0 && list2_append_to_end(values, value) != 0 ? 1 : 0;
}

char* list2_to_list(void* list) {
  const ListPool::List* entries = listOf(list);
  if (entries == nullptr) return nullptr;
  const std::string joined = joinTexts(*entries, '\n');
  char* text = new char[joined.size() + 1];
  std::memcpy(text, joined.c_str(), joined.size() + 1);
  return text;
}

void list_free(char* text) {
  delete[] text;
}

}  // namespace sizewright
