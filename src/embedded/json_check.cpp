#include "sizewright/embedded/json_check.h"

#include <algorithm>
#include <map>
#include <nlohmann/json.hpp>
#include <valijson/schema.hpp>
#include <vector>

// GCC 12 sees overlapping copies where the validator replaces characters of a text, and with the
// sanitizers uninitialized values in its regular expressions; there are none.
#pragma GCC diagnostic push
#if defined(__GNUC__) && !defined(__clang__)
#pragma GCC diagnostic ignored "-Wrestrict"
#pragma GCC diagnostic ignored "-Wmaybe-uninitialized"
#endif
#include <valijson/schema_parser.hpp>
#include <valijson/validator.hpp>
#pragma GCC diagnostic pop

#include "sizewright/embedded/embedded_files.h"
#include "sizewright/embedded/ordered_json_adapter.h"

namespace sizewright {

using nlohmann::ordered_json;
using valijson::Subschema;

struct JsonRule {
  const Subschema* compiled = nullptr;
  const ordered_json* source = nullptr;  // where the titles are
  std::map<std::string, JsonRule, std::less<>> members;
  std::unique_ptr<JsonRule> others;       // members of any other name; null: none may be there
  std::vector<JsonRule> elements;         // of an array, by position
  std::unique_ptr<JsonRule> eachElement;  // or all alike
  std::vector<JsonRule> choices;          // any of which will do
};

namespace {

std::string_view embeddedText(std::string_view name) {
  for (const EmbeddedFile& file : embeddedFiles()) {
    if (file.name == name) return file.text;
  }
  throw std::logic_error("no embedded file " + std::string(name));
}

// The node that a reference names, itself where it is none.
const ordered_json& resolved(const ordered_json& document, const ordered_json& node) {
  const auto reference = node.find("$ref");
  if (reference == node.end()) return node;
  return document.at(ordered_json::json_pointer(reference->get<std::string>().substr(1)));
}

template <class Constraint>
const Constraint* findConstraint(const Subschema& schema) {
  const Constraint* found = nullptr;
  Subschema::ApplyFunction look = [&found](const valijson::constraints::Constraint& constraint) {
    if (found == nullptr) found = dynamic_cast<const Constraint*>(&constraint);
    return true;
  };
  schema.apply(look);
  return found;
}

JsonRule makeRule(const ordered_json& document, const ordered_json& node, const Subschema& schema);

void addMembers(const ordered_json& document, JsonRule& rule) {
  using valijson::constraints::PropertiesConstraint;
  const auto* properties = findConstraint<PropertiesConstraint>(*rule.compiled);
  if (properties == nullptr) return;
  properties->applyToProperties([&](const auto& name, const Subschema* schema) {
    const std::string key(name.begin(), name.end());
    rule.members.emplace(key, makeRule(document, rule.source->at("properties").at(key), *schema));
    return true;
  });
  const Subschema* others = properties->getAdditionalPropertiesSubschema();
  const auto source = rule.source->find("additionalProperties");
  if (others == nullptr || source == rule.source->end() || !source->is_object()) return;
  rule.others = std::make_unique<JsonRule>(makeRule(document, *source, *others));
}

void addElements(const ordered_json& document, JsonRule& rule) {
  using valijson::constraints::LinearItemsConstraint;
  using valijson::constraints::SingularItemsConstraint;
  if (const auto* each = findConstraint<SingularItemsConstraint>(*rule.compiled)) {
    rule.eachElement = std::make_unique<JsonRule>(
        makeRule(document, rule.source->at("items"), *each->getItemsSubschema()));
  }
  if (const auto* listed = findConstraint<LinearItemsConstraint>(*rule.compiled)) {
    listed->applyToItemSubschemas([&](unsigned index, const Subschema* schema) {
      rule.elements.push_back(makeRule(document, rule.source->at("items").at(index), *schema));
      return true;
    });
  }
}

void addChoices(const ordered_json& document, JsonRule& rule) {
  using valijson::constraints::AnyOfConstraint;
  const auto* anyOf = findConstraint<AnyOfConstraint>(*rule.compiled);
  if (anyOf == nullptr) return;
  anyOf->applyToSubschemas([&](unsigned index, const Subschema* schema) {
    rule.choices.push_back(makeRule(document, rule.source->at("anyOf").at(index), *schema));
    return true;
  });
}

JsonRule makeRule(const ordered_json& document, const ordered_json& node, const Subschema& schema) {
  JsonRule rule;
  rule.compiled = &schema;
  rule.source = &resolved(document, node);
  addMembers(document, rule);
  addElements(document, rule);
  addChoices(document, rule);
  return rule;
}

std::string_view typeName(const ordered_json& value) {
  if (value.is_number_integer()) return "integer";
  return value.type_name();  // the names of JSON Schema, but for whole numbers
}

// Whether the rule speaks of values of this kind: the fault then lies deeper.
bool isOfType(const JsonRule& rule, const ordered_json& value) {
  const auto type = rule.source->find("type");
  if (type == rule.source->end()) return false;
  const std::string_view name = typeName(value);
  const auto matches = [name](const ordered_json& wanted) {
    return wanted == name || (wanted == "number" && name == "integer");
  };
  return type->is_array() ? std::any_of(type->begin(), type->end(), matches) : matches(*type);
}

bool isStructure(const JsonRule& rule) {
  return isOfType(rule, ordered_json::object()) || isOfType(rule, ordered_json::array());
}

std::string expected(const JsonRule& rule, const ordered_json& value) {
  std::string result = "expected " + rule.source->at("title").get<std::string>();
  if (value.is_structured() || isStructure(rule)) return result;
  if (value.is_string()) {
    return result + ", got \"" + shortened(value.get_ref<const std::string&>()) + '"';
  }
  return result + ", got " + value.dump();
}

}  // namespace

struct JsonSchema::Compiled {
  ordered_json document;
  valijson::Schema schema;
  JsonRule root;
  valijson::Validator validator;

  explicit Compiled(std::string_view text) : document(ordered_json::parse(text)) {
    valijson::SchemaParser parser;
    parser.populateSchema(OrderedJsonAdapter(document), schema);
    root = makeRule(document, document, schema);
  }

  bool accepts(const JsonRule& rule, const ordered_json& value) {
    return validator.validate(*rule.compiled, OrderedJsonAdapter(value), nullptr);
  }

  // Throws the fault of a value that the rule does not accept.
  [[noreturn]] void refuse(const JsonRule& rule, const ordered_json& value, std::string_view path);
  void refuseMembers(const JsonRule& rule, const ordered_json& value, std::string_view path);
  void refuseElements(const JsonRule& rule, const ordered_json& value, std::string_view path);
};

void JsonSchema::Compiled::refuseMembers(const JsonRule& rule, const ordered_json& value,
                                         std::string_view path) {
  for (const auto& [name, content] : value.items()) {
    const JsonRule* inner = member(rule, name);
    if (inner == nullptr) throw InputError(joinPath(path, name), "unknown key");
    if (!accepts(*inner, content)) refuse(*inner, content, joinPath(path, name));
  }
  const auto required = rule.source->find("required");
  if (required == rule.source->end()) return;
  for (const ordered_json& name : *required) {
    if (!value.contains(name.get_ref<const std::string&>())) {
      throw InputError(path, "missing key " + name.dump());
    }
  }
}

void JsonSchema::Compiled::refuseElements(const JsonRule& rule, const ordered_json& value,
                                          std::string_view path) {
  for (std::size_t i = 0; i < value.size(); ++i) {
    const JsonRule* inner = i < rule.elements.size() ? &rule.elements[i] : rule.eachElement.get();
    if (inner != nullptr && !accepts(*inner, value[i])) {
      refuse(*inner, value[i], joinPath(path, std::to_string(i)));
    }
  }
}

void JsonSchema::Compiled::refuse(const JsonRule& rule, const ordered_json& value,
                                  std::string_view path) {
  if (value.is_object() && isOfType(rule, value)) refuseMembers(rule, value, path);
  if (value.is_array() && isOfType(rule, value)) refuseElements(rule, value, path);

  const auto meant = [&value](const JsonRule& choice) { return isOfType(choice, value); };
  if (value.is_structured() &&
      std::count_if(rule.choices.begin(), rule.choices.end(), meant) == 1) {
    refuse(*std::find_if(rule.choices.begin(), rule.choices.end(), meant), value, path);
  }
  throw InputError(path, expected(rule, value));
}

JsonSchema::JsonSchema(std::string_view file)
    : compiled_(std::make_unique<Compiled>(embeddedText(file))) {}
JsonSchema::~JsonSchema() = default;

const JsonRule& JsonSchema::root() const {
  return compiled_->root;
}

const JsonRule* JsonSchema::member(const JsonRule& rule, std::string_view name) {
  const auto found = rule.members.find(name);
  return found != rule.members.end() ? &found->second : rule.others.get();
}

bool JsonSchema::accepts(const JsonRule& rule, const ordered_json& value) const {
  return compiled_->accepts(rule, value);
}

void JsonSchema::check(const JsonRule& rule, const ordered_json& value,
                       std::string_view path) const {
  if (!accepts(rule, value)) compiled_->refuse(rule, value, path);
}

}  // namespace sizewright
