#include "sizewright/host/utilities.h"

#include "sizewright/host/host.h"

namespace sizewright {

bool UtilityService::isValid() const {
  return false;
}
std::vector<std::string> UtilityService::entries() const {
  return {};
}
ObjectId UtilityService::entry(std::string_view) const {
  return ObjectId::none;
}
ObjectId UtilityService::addEntry(std::string_view) {
  return ObjectId::none;
}
bool UtilityService::commit() {
  return false;
}
std::string UtilityService::streamName(std::string_view) const {
  return {};
}

int CvdProjectStreamsConfig::IsValid() const {
  return currentHost().utilities().isValid() ? 1 : 0;
}

std::vector<std::string> CvdProjectStreamsConfig::GetEntries() const {
  return currentHost().utilities().entries();
}

ObjectId CvdProjectStreamsConfig::InstantiateEntry(std::string_view name) const {
  return currentHost().utilities().entry(name);
}

int CvdProjectStreamsConfig::IsEntry(std::string_view name) const {
  return InstantiateEntry(name) != ObjectId::none ? 1 : 0;
}

ObjectId CvdProjectStreamsConfig::AddEntry(std::string_view name) {
  return currentHost().utilities().addEntry(name);
}

int CvdProjectStreamsConfig::Commit() {
  return currentHost().utilities().commit() ? 1 : 0;
}

int NameUtilStream(std::string_view wanted, FixedText<256>& name) {
  const std::string found = currentHost().utilities().streamName(wanted);
  if (found.empty()) return 0;
  name = found;
  return 1;
}

}  // namespace sizewright
