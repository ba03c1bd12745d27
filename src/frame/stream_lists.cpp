#include "sizewright/frame/stream_lists.h"

#include "sizewright/host/list2.h"
#include "sizewright/host/text.h"

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

bool isNoStream(std::string_view name) {
  return withoutBlanksAround(name).empty() || equalsIgnoringCase(name, "NONE");
}

void ensureList(void*& list) {
  if (list == nullptr) list = list2_create();
}

int replaceList(void*& list, void* given) {
  void* copy = list2_create();
  if (list2_copy_s(given, copy) == 0) {
    list2_delete(copy);
    return 0;
  }
  list2_delete(list);
  list = copy;
  return 1;
}

int replaceListUnlessEmpty(void*& list, void* given) {
  return list2_length(given) > 0 ? replaceList(list, given) : 0;
}

int copyList(void* list, void* given) {
  return list != nullptr && given != nullptr ? list2_copy_s(list, given) : 0;
}

}  // namespace sizewright
