#include "answering_host.h"

#include "operations.h"

namespace sizewright::fuzz {

namespace {

// Without these an object is not valid, and nothing more would be seen of it.
constexpr std::string_view kIdentity[] = {"component name", "category code", "item type code"};

bool isIdentity(std::string_view slot) {
  for (const std::string_view name : kIdentity) {
    if (slot == name) return true;
  }
  return false;
}

}  // namespace

AnsweringHost::AnsweringHost(Host& target, Bytes& bytes)
    : ForwardingHost(target),
      store_(target.store(), bytes),
      criteria_(target.criteria(), bytes),
      properties_(target.properties(), bytes) {}

bool AnsweringHost::Store::read(ObjectId object, std::string_view slot, bool inherit,
                                CvdSlot& value) const {
  if (isIdentity(slot) || bytes_.take() < 160) {
    return ForwardingObjectStore::read(object, slot, inherit, value);
  }
  value = anyValue(bytes_);
  return true;
}

bool AnsweringHost::Criteria::number(std::string_view model, std::string_view name,
                                     std::string_view units, double& value) const {
  if (bytes_.take() < 128) return ForwardingCriteriaService::number(model, name, units, value);
  value = anyValue(bytes_).Number();
  return true;
}

bool AnsweringHost::Criteria::text(std::string_view model, std::string_view name,
                                   CriterionText& value) const {
  if (bytes_.take() < 128) return ForwardingCriteriaService::text(model, name, value);
  value = anyValue(bytes_).Text();
  return true;
}

double AnsweringHost::Properties::answer(double value) const {
  return bytes_.take() < 192 ? value : anyValue(bytes_).Number();
}

double AnsweringHost::Properties::heatCapacity(std::string_view fluid, double temperature,
                                               double pressure, Phase phase) const {
  return answer(ForwardingPropertyService::heatCapacity(fluid, temperature, pressure, phase));
}

double AnsweringHost::Properties::compressibility(std::string_view fluid, double temperature,
                                                  double pressure, Phase phase) const {
  return answer(ForwardingPropertyService::compressibility(fluid, temperature, pressure, phase));
}

double AnsweringHost::Properties::heatCapacityRatio(std::string_view fluid, double temperature,
                                                    double pressure) const {
  return answer(ForwardingPropertyService::heatCapacityRatio(fluid, temperature, pressure));
}

}  // namespace sizewright::fuzz
