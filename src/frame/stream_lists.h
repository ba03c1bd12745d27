#pragma once

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

  /// Deletes the lists and clears both handles.
  void release();
  /// Deletes both lists, the exit list included, and makes new empty ones.
  void restart();

 private:
  void* inlets_ = nullptr;
  void* exits_ = nullptr;
  ExitRelease exitRelease_;
};

/// Makes the list if there is none.
void ensureList(void*& list);
/// Replaces the list by a copy of the one given; a null one is refused. Returns 1 when copied.
int replaceList(void*& list, void* given);
/// Copies the list into the one given, when both exist. Returns 1 when copied.
int copyList(void* list, void* given);

}  // namespace sizewright
