#include "sizewright/frame/stream_lists.h"

#include "sizewright/host/list2.h"

namespace sizewright {

void StreamLists::release() {
  list2_delete(inlets_);
  inlets_ = nullptr;
  list2_delete(exitRelease_ == ExitRelease::freed ? exits_ : inlets_);
  exits_ = nullptr;
}

void StreamLists::restart() {
  list2_delete(inlets_);
  list2_delete(exits_);
  inlets_ = list2_create();
  exits_ = list2_create();
}

void ensureList(void*& list) {
  if (list == nullptr) list = list2_create();
}

int replaceList(void*& list, void* given) {
  if (given == nullptr) return 0;
  void* copy = list2_create();
  const int copied = list2_copy_s(given, copy);
  list2_delete(list);
  list = copy;
  return copied;
}

int copyList(void* list, void* given) {
  return list != nullptr && given != nullptr ? list2_copy_s(list, given) : 0;
}

}  // namespace sizewright
