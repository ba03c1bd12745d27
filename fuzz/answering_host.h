#pragma once

#include "bytes.h"
#include "sizewright/host/forwarding_host.h"

namespace sizewright::fuzz {

/// A host whose store and services answer many calls with what the fuzzer's bytes say, so that any
/// slot may hold anything and any property may be known, unknown or absurd.
class AnsweringHost : public ForwardingHost {
 public:
  AnsweringHost(Host& target, Bytes& bytes);

  ObjectStore& store() override { return store_; }
  CriteriaService& criteria() override { return criteria_; }
  PropertyService& properties() override { return properties_; }

 private:
  class Store : public ForwardingObjectStore {
   public:
    Store(ObjectStore& target, Bytes& bytes) : ForwardingObjectStore(target), bytes_(bytes) {}
    bool read(ObjectId object, std::string_view slot, bool inherit, CvdSlot& value) const override;

   private:
    Bytes& bytes_;
  };

  class Criteria : public ForwardingCriteriaService {
   public:
    Criteria(CriteriaService& target, Bytes& bytes)
        : ForwardingCriteriaService(target), bytes_(bytes) {}
    bool number(std::string_view model, std::string_view name, std::string_view units,
                double& value) const override;
    bool text(std::string_view model, std::string_view name, CriterionText& value) const override;

   private:
    Bytes& bytes_;
  };

  class Properties : public ForwardingPropertyService {
   public:
    Properties(PropertyService& target, Bytes& bytes)
        : ForwardingPropertyService(target), bytes_(bytes) {}
    [[nodiscard]] double heatCapacity(std::string_view fluid, double temperature, double pressure,
                                      Phase phase) const override;
    [[nodiscard]] double compressibility(std::string_view fluid, double temperature,
                                         double pressure, Phase phase) const override;
    [[nodiscard]] double heatCapacityRatio(std::string_view fluid, double temperature,
                                           double pressure) const override;

   private:
    [[nodiscard]] double answer(double value) const;
    Bytes& bytes_;
  };

  Store store_;
  Criteria criteria_;
  Properties properties_;
};

}  // namespace sizewright::fuzz
