#include "sizewright/embedded/json_printer.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <nlohmann/json.hpp>

namespace sizewright {

using nlohmann::ordered_json;

namespace {

bool isPlain(char c) {
  return c >= ' ' && c < 0x7F && c != '"' && c != '\\';
}

void printNumber(std::string& out, double number) {
  if (number == 0.0 && std::signbit(number)) {
    out += "-0.0";  // "-0" reads as a whole number, which has no sign
    return;
  }
  std::array<char, 32> digits{};
  char* const end = std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
  out.append(digits.data(), end);
}

// An object that stays on its line.
bool isSmall(const ordered_json& object) {
  return object.empty() || (object.size() == 1 && !object.begin()->is_object());
}

}  // namespace

void printJsonText(std::string& out, const std::string& text) {
  if (std::all_of(text.begin(), text.end(), isPlain)) {
    out.append(1, '"').append(text).append(1, '"');
  } else {
    out += ordered_json(text).dump(-1, ' ', false, ordered_json::error_handler_t::replace);
  }
}

void printJson(std::string& out, const ordered_json& value) {
  if (value.is_string()) return printJsonText(out, value.get_ref<const std::string&>());
  if (value.is_number_float()) return printNumber(out, value.get<double>());
  if (!value.is_structured()) {
    out += value.dump();
    return;
  }
  const bool isObject = value.is_object();
  out += isObject ? '{' : '[';
  bool first = true;
  for (auto member = value.begin(); member != value.end(); ++member) {
    if (!first) out += ", ";
    first = false;
    if (isObject) {
      printJsonText(out, member.key());
      out += ": ";
    }
    printJson(out, *member);
  }
  out += isObject ? '}' : ']';
}

void printJson(std::string& out, const ordered_json& value, std::size_t level) {
  if (!value.is_object() || isSmall(value)) return printJson(out, value);
  out += '{';
  bool first = true;
  for (auto member = value.begin(); member != value.end(); ++member) {
    out += first ? "\n" : ",\n";
    first = false;
    out.append(2 * (level + 1), ' ');
    printJsonText(out, member.key());
    out += ": ";
    printJson(out, *member, level + 1);
  }
  out.append(1, '\n').append(2 * level, ' ').append(1, '}');
}

}  // namespace sizewright
