#pragma once

#include "sizewright/host/criteria.h"
#include "sizewright/host/installation.h"
#include "sizewright/host/list2.h"
#include "sizewright/host/messages.h"
#include "sizewright/host/object_store.h"
#include "sizewright/host/properties.h"
#include "sizewright/host/rating.h"
#include "sizewright/host/units.h"
#include "sizewright/host/utilities.h"

namespace sizewright {

/// Everything that the library asks of the application around it. An application derives from this
/// class and from the services it offers; a service that it does not override answers "not
/// available" to every call. Services stay good for the life of the host.
class Host {
 public:
  Host() = default;
  virtual ~Host();
  Host(const Host&) = delete;
  Host& operator=(const Host&) = delete;

  virtual ObjectStore& store();
  virtual UnitService& units();
  virtual CriteriaService& criteria();
  virtual PropertyService& properties();
  virtual UtilityService& utilities();
  virtual UserInterface& user();
  virtual Installation& installation();
  virtual RatingService& rating();

  /// The `list2` lists made while this host is attached.
  ListPool& lists() { return lists_; }

 private:
  ListPool lists_;
};

/// The host attached to the calling thread. Without one, a host that offers nothing.
Host& currentHost();

/// Attaches a host to the calling thread for the life of the scope; scopes nest. Two threads may
/// run two hosts side by side. A host serves one thread at a time.
class HostScope {
 public:
  explicit HostScope(Host& host);
  ~HostScope();
  HostScope(const HostScope&) = delete;
  HostScope& operator=(const HostScope&) = delete;

 private:
  Host* previous_;
};

}  // namespace sizewright
