#include "sizewright/embedded/utility_file.h"

#include "sizewright/host/fixed_text.h"
#include "sizewright/host/text.h"

namespace sizewright {

UtilityFile::UtilityFile(MemoryStore& store)
    : store_(store), utilities_(store.database(kUtilityStreamEntry)) {}

std::vector<std::string> UtilityFile::entries() const {
  std::vector<std::string> names;
  names.reserve(utilities_.order.size());
  for (const StoredObject* object : utilities_.order) names.push_back(store_.text(object->name));
  return names;
}

ObjectId UtilityFile::entry(std::string_view name) const {
  const StoredObject* const object = store_.find(utilities_, name);
  return object != nullptr ? MemoryStore::idOf(object) : ObjectId::none;
}

ObjectId UtilityFile::addEntry(std::string_view name) {
  return name.empty() ? ObjectId::none : MemoryStore::idOf(&store_.add(utilities_, name));
}

std::string UtilityFile::streamName(std::string_view wanted) const {
  return std::string(withoutTrailingBlanks(cutText(withoutBlanksAround(wanted), kStreamName)));
}

}  // namespace sizewright
