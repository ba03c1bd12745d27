#pragma once

#include <memory>
#include <nlohmann/json.hpp>
#include <string>
#include <utility>
#include <valijson/internal/adapter.hpp>
#include <valijson/internal/basic_adapter.hpp>
#include <valijson/internal/frozen_value.hpp>

namespace sizewright {

// How the schema validator sees JSON documents that keep the order of their keys. The classes view
// the document; names and signatures are the validator's.

class OrderedJsonAdapter;
using OrderedJsonMember = std::pair<std::string, OrderedJsonAdapter>;

/// Walks the elements of an array, or the members of an object.
template <class Element>
class OrderedJsonIterator {
 public:
  using iterator_category = std::bidirectional_iterator_tag;
  using value_type = Element;
  using difference_type = std::ptrdiff_t;
  using pointer = Element*;
  using reference = Element;

  explicit OrderedJsonIterator(nlohmann::ordered_json::const_iterator at) : at_(std::move(at)) {}

  Element operator*() const;
  valijson::adapters::DerefProxy<Element> operator->() const {
    return valijson::adapters::DerefProxy<Element>(**this);
  }
  OrderedJsonIterator& operator++() {
    ++at_;
    return *this;
  }
  OrderedJsonIterator operator++(int) {
    OrderedJsonIterator before = *this;
    ++at_;
    return before;
  }
  OrderedJsonIterator& operator--() {
    --at_;
    return *this;
  }
  void advance(std::ptrdiff_t count) { at_ += count; }
  bool operator==(const OrderedJsonIterator& other) const { return at_ == other.at_; }
  bool operator!=(const OrderedJsonIterator& other) const { return at_ != other.at_; }

 private:
  nlohmann::ordered_json::const_iterator at_;
};

/// An array or an object.
template <class Element>
class OrderedJsonContainer {
 public:
  using const_iterator = OrderedJsonIterator<Element>;
  using iterator = const_iterator;

  OrderedJsonContainer() : json_(&none()) {}
  // A pointer: the document's type would offer to convert from about anything.
  explicit OrderedJsonContainer(const nlohmann::ordered_json* json) : json_(json) {}

  [[nodiscard]] const_iterator begin() const { return const_iterator(json_->begin()); }
  [[nodiscard]] const_iterator end() const { return const_iterator(json_->end()); }
  [[nodiscard]] const_iterator find(const std::string& name) const {
    return const_iterator(json_->find(name));
  }
  [[nodiscard]] std::size_t size() const { return json_->size(); }

 private:
  static const nlohmann::ordered_json& none() {
    static const nlohmann::ordered_json kNone = nlohmann::ordered_json::object();
    return kNone;
  }
  const nlohmann::ordered_json* json_;
};
using OrderedJsonArray = OrderedJsonContainer<OrderedJsonAdapter>;
using OrderedJsonObject = OrderedJsonContainer<OrderedJsonMember>;

/// A value of a document.
class OrderedJsonValue {
 public:
  OrderedJsonValue() = default;
  explicit OrderedJsonValue(const nlohmann::ordered_json* json) : json_(json) {}

  [[nodiscard]] valijson::adapters::FrozenValue* freeze() const;
  [[nodiscard]] opt::optional<OrderedJsonArray> getArrayOptional() const {
    return isArray() ? opt::make_optional(OrderedJsonArray(json_)) : opt::nullopt;
  }
  [[nodiscard]] opt::optional<OrderedJsonObject> getObjectOptional() const {
    return isObject() ? opt::make_optional(OrderedJsonObject(json_)) : opt::nullopt;
  }
  bool getArraySize(std::size_t& size) const { return isArray() && take(json_->size(), size); }
  bool getObjectSize(std::size_t& size) const { return isObject() && take(json_->size(), size); }
  bool getBool(bool& value) const { return isBool() && take(json_->get<bool>(), value); }
  bool getDouble(double& value) const { return isDouble() && take(json_->get<double>(), value); }
  bool getInteger(std::int64_t& value) const {
    return isInteger() && take(json_->get<std::int64_t>(), value);
  }
  bool getString(std::string& value) const {
    return isString() && take(json_->get_ref<const std::string&>(), value);
  }
  static bool hasStrictTypes() { return true; }
  [[nodiscard]] bool isArray() const { return json_ != nullptr && json_->is_array(); }
  [[nodiscard]] bool isBool() const { return json_ != nullptr && json_->is_boolean(); }
  [[nodiscard]] bool isDouble() const { return json_ != nullptr && json_->is_number_float(); }
  [[nodiscard]] bool isInteger() const { return json_ != nullptr && json_->is_number_integer(); }
  [[nodiscard]] bool isNull() const { return json_ == nullptr || json_->is_null(); }
  [[nodiscard]] bool isNumber() const { return json_ != nullptr && json_->is_number(); }
  [[nodiscard]] bool isObject() const { return json_ != nullptr && json_->is_object(); }
  [[nodiscard]] bool isString() const { return json_ != nullptr && json_->is_string(); }

 private:
  template <class Value>
  static bool take(const Value& from, Value& to) {
    to = from;
    return true;
  }
  const nlohmann::ordered_json* json_ = nullptr;
};

class OrderedJsonAdapter
    : public valijson::adapters::BasicAdapter<OrderedJsonAdapter, OrderedJsonArray,
                                              OrderedJsonMember, OrderedJsonObject,
                                              OrderedJsonValue> {
 public:
  explicit OrderedJsonAdapter(const nlohmann::ordered_json& json)
      : BasicAdapter(OrderedJsonValue(&json)) {}
};

/// A copy of a value, for schemas that hold constants.
class OrderedJsonFrozenValue : public valijson::adapters::FrozenValue {
 public:
  explicit OrderedJsonFrozenValue(nlohmann::ordered_json json) : json_(std::move(json)) {}
  [[nodiscard]] FrozenValue* clone() const override { return new OrderedJsonFrozenValue(json_); }
  [[nodiscard]] bool equalTo(const valijson::adapters::Adapter& other, bool strict) const override {
    return OrderedJsonAdapter(json_).equalTo(other, strict);
  }

 private:
  nlohmann::ordered_json json_;
};

inline valijson::adapters::FrozenValue* OrderedJsonValue::freeze() const {
  return new OrderedJsonFrozenValue(json_ != nullptr ? *json_ : nlohmann::ordered_json());
}

template <>
inline OrderedJsonAdapter OrderedJsonIterator<OrderedJsonAdapter>::operator*() const {
  return OrderedJsonAdapter(*at_);
}
template <>
inline OrderedJsonMember OrderedJsonIterator<OrderedJsonMember>::operator*() const {
  return {at_.key(), OrderedJsonAdapter(at_.value())};
}

}  // namespace sizewright

template <>
struct valijson::adapters::AdapterTraits<sizewright::OrderedJsonAdapter> {
  using DocumentType = nlohmann::ordered_json;
  static std::string adapterName() { return "OrderedJsonAdapter"; }
};
