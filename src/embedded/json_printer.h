#pragma once

#include <nlohmann/json_fwd.hpp>
#include <string>

namespace sizewright {

/// Appends a value on one line. Numbers read back as the same double, whole ones without a point;
/// bytes that are not UTF-8 become U+FFFD.
void printJson(std::string& out, const nlohmann::ordered_json& value);

/// Appends a value as people read it: objects have a line for each member, two blanks a level,
/// except those that hold a single plain member; arrays are on one line. The first line stands
/// where it is, the others are indented from `level` on.
void printJson(std::string& out, const nlohmann::ordered_json& value, std::size_t level);

/// Appends a text in quotes.
void printJsonText(std::string& out, const std::string& text);

}  // namespace sizewright
