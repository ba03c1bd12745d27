#pragma once

#include <string_view>

namespace sizewright {

/// What happens to the exit list when an item releases its streams.
enum class ExitRelease {
  freed,
  /// kept: the release meant for the exit list is addressed to the inlet handle, which is null by
  /// then; the exit list stays behind and the host reclaims it.
  abandoned,
};

/// The inlet and exit lists of an item, as `list2` handles; null until first used.
class StreamLists {
 public:
  explicit StreamLists(ExitRelease exitRelease) : exitRelease_(exitRelease) {}
  ~StreamLists() { release(); }
  StreamLists(const StreamLists&) = delete;
  StreamLists& operator=(const StreamLists&) = delete;

  void*& inlets() { return inlets_; }
  void*& exits() { return exits_; }

  /// Deletes the inlet list and, where it is freed, the exit list; clears both handles.
  void release();
  /// Deletes both lists, the exit list included, and makes new empty ones.
  void restart();

 private:
  void* inlets_ = nullptr;
  void* exits_ = nullptr;
  ExitRelease exitRelease_;
};

/// A stream name that stands for no stream: a blank one or "NONE".
bool isNoStream(std::string_view name);
/// Makes the list if there is none.
void ensureList(void*& list);
/// Replaces the list by a copy of the one given. Returns 1, or 0 with nothing changed when that is
/// no list.
int replaceList(void*& list, void* given);
/// The same, but an empty list is refused, too.
int replaceListUnlessEmpty(void*& list, void* given);
/// Copies the list into the one given, when both exist. Returns 1 when copied.
int copyList(void* list, void* given);

}  // namespace sizewright
