#include "sizewright/host/object_store.h"

namespace sizewright {

bool ObjectStore::projectIsValid(unsigned) const {
  return false;
}
bool ObjectStore::caseIsValid(unsigned) const {
  return false;
}
int ObjectStore::simulatorType(unsigned) const {
  return 0;
}
bool ObjectStore::databaseExists(unsigned, std::string_view) const {
  return false;
}
bool ObjectStore::createDatabase(unsigned, std::string_view) {
  return false;
}
bool ObjectStore::deleteDatabase(unsigned, std::string_view) {
  return false;
}
bool ObjectStore::systemDatabaseExists(std::string_view) const {
  return false;
}
ObjectId ObjectStore::object(unsigned, std::string_view, std::string_view, bool) {
  return ObjectId::none;
}
ObjectId ObjectStore::systemObject(std::string_view, std::string_view) {
  return ObjectId::none;
}
ObjectId ObjectStore::caseObject(unsigned, int, std::string_view) {
  return ObjectId::none;
}
ObjectId ObjectStore::projectObject(unsigned, std::string_view) {
  return ObjectId::none;
}
ObjectId ObjectStore::stream(unsigned, int, std::string_view, bool) {
  return ObjectId::none;
}
std::vector<std::string> ObjectStore::streamNames(unsigned) const {
  return {};
}
bool ObjectStore::exists(ObjectId) const {
  return false;
}
bool ObjectStore::read(ObjectId, std::string_view, bool, CvdSlot&) const {
  return false;
}
bool ObjectStore::write(ObjectId, std::string_view, const CvdSlot&) {
  return false;
}
bool ObjectStore::erase(ObjectId, std::string_view) {
  return false;
}
SlotList ObjectStore::slots(ObjectId) const {
  return {};
}
std::string_view ObjectStore::model(ObjectId) const {
  return {};
}
std::string_view ObjectStore::displayName(std::string_view) const {
  return {};
}
std::vector<ConnectorId> ObjectStore::connectors(ObjectId, int) const {
  return {};
}
bool ObjectStore::disconnect(ConnectorId) {
  return false;
}
bool ObjectStore::deleteConnector(ConnectorId) {
  return false;
}
bool ObjectStore::hasConnectionService() const {
  return false;
}
bool ObjectStore::disconnectStream(unsigned, std::string_view, int, bool, bool) {
  return false;
}

}  // namespace sizewright
