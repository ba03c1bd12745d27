#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "sizewright/host/string_list.h"

namespace sizewright {

/// The lists behind `list2` handles.
///
/// A handle is a checked number in the shape of a pointer: deleting null or a handle whose list is
/// gone does nothing, and using one finds no list. Lists that nobody deletes stay until `reclaim`.
/// Belongs to one thread at a time.
class ListPool {
 public:
  using List = std::vector<std::string>;

  /// A new empty list.
  void* create();
  /// Deletes the list; a null or stale handle is left alone. Returns whether a list was deleted.
  bool remove(void* handle);
  /// The list of the handle, or null. Good until the next `create`.
  List* find(void* handle);

  /// Number of lists that are alive.
  [[nodiscard]] std::size_t live() const { return live_; }
  /// Deletes every list that is alive and returns how many there were. A host calls this when an
  /// item is done, whatever the item left behind.
  std::size_t reclaim();

 private:
  struct Entry {
    List list;
    std::uint64_t generation = 1;
    bool used = false;
  };
  Entry* entryOf(void* handle);

  std::vector<Entry> entries_;
  std::vector<std::size_t> free_;
  std::size_t live_ = 0;
};

// The operations on `list2` handles work on the pool of the host attached to the calling thread,
// or on a pool of the thread's own when there is none. A null handle counts as an empty list; a
// stale one likewise, and the host is told of the fault. Indices are zero-based.

/// A new empty list, to be deleted by the caller.
void* list2_create();
void list2_delete(void* list);
int list2_length(void* list);
/// Position of the first entry equal to `text`, without regard to case, plus 1; 0 for none.
int list2_member(void* list, std::string_view text);
/// Replaces the content of `to` by that of `from`. Returns 1, or 0 when either is no list.
int list2_copy_s(void* from, void* to);
/// Returns 1, or 0 when the handle is no list.
int list2_append_to_end(void* list, std::string_view text);
/// The entry and its length (where asked for), or null past the end. Good until the list changes.
const char* list2_get_item(void* list, int index, int* length);
/// Replaces an entry. Returns 1, or 0 past the end.
int list2_replace_item(void* list, int index, std::string_view text);

/// Value of the first entry of `names` equal to `label` (without regard to case) in the list of
/// values beside it, or null. Good until the lists change.
const char* list2_get_slot_value(void* names, void* values, std::string_view label, int* length);
/// The number of such a value and its unit text (the second line, at most 64 characters with
/// terminator, empty without one). Returns 1, or 0 and leaves both when there is no number.
int list2_get_slot_value_n(void* names, void* values, std::string_view label, double* number,
                           char* units);
/// The same for a form's lists.
int list2_get_slot_value_n(const CStrList& names, const CStrList& values, std::string_view label,
                           double* number, char* units);
/// Adds a label and its value. Returns 1 on success.
int list2_add_slot_value(void* names, void* values, std::string_view label, std::string_view value);

/// All entries joined by line feeds as a new text, to be freed with `list_free`; null when the
/// handle is no list.
char* list2_to_list(void* list);
void list_free(char* text);

}  // namespace sizewright
