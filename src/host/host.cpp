#include "sizewright/host/host.h"

namespace sizewright {

namespace {

thread_local Host* attached = nullptr;

// A service without state that answers "not available" to everything.
template <class Service>
Service& absent() {
  static Service service;
  return service;
}

// Holds the thread's lists while no host is attached.
Host& withoutHost() {
  thread_local Host none;
  return none;
}

}  // namespace

Host::~Host() = default;

ObjectStore& Host::store() {
  return absent<ObjectStore>();
}
UnitService& Host::units() {
  return absent<UnitService>();
}
CriteriaService& Host::criteria() {
  return absent<CriteriaService>();
}
PropertyService& Host::properties() {
  return absent<PropertyService>();
}
UtilityService& Host::utilities() {
  return absent<UtilityService>();
}
UserInterface& Host::user() {
  return absent<UserInterface>();
}
Installation& Host::installation() {
  return absent<Installation>();
}
RatingService& Host::rating() {
  return absent<RatingService>();
}

Host& currentHost() {
  return attached != nullptr ? *attached : withoutHost();
}

HostScope::HostScope(Host& host) : previous_(attached) {
  attached = &host;
}
HostScope::~HostScope() {
  attached = previous_;
}

}  // namespace sizewright
