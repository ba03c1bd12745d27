#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <functional>
#include <nlohmann/json_fwd.hpp>
#include <string>
#include <string_view>
#include <vector>

#include "sizewright/embedded/memory_store.h"
#include "sizewright/embedded/plant.h"

namespace sizewright {

// How a plant is cut into entries: what the plant file and the plant database have in common.
//
// An entry is a section, a name and a JSON value. Members of the plant file itself are in the
// section "". The sections below hold one entry for each of their members; the objects of a
// database are in the section "databases/NAME". That a section, or a database, is there at all is
// an entry of its own with an empty object: ("", "utilities", {}), ("databases", "SIZE", {}).

/// Takes entries one by one.
using EntrySink = std::function<void(std::string_view section, std::string_view name,
                                     const nlohmann::ordered_json& value)>;

inline constexpr std::string_view kDatabases = "databases";
inline constexpr std::string_view kDatabasePrefix = "databases/";

inline constexpr auto kSections =
    std::to_array<std::string_view>({"streams", "blocks", "items", "criteria", "utilities",
                                     kDatabases, "property database", "charts", "fluids"});

constexpr bool isSection(std::string_view member) {
  return std::find(kSections.begin(), kSections.end(), member) != kSections.end();
}

/// Members that the reader passes over and keeps.
constexpr bool isExtra(std::string_view member) {
  return member.starts_with("x-");
}

/// Databases that every plant has, empty or not.
inline constexpr auto kStandardDatabases = std::to_array<std::string_view>(
    {"VPECOMP", "UTILITY", "DESIGN", "VPEPROJ", "VPEPROC", "PROC", "SIZE"});

inline constexpr std::string_view kComponents = "VPECOMP";
inline constexpr std::string_view kEquipmentInformation = "equipment information";
inline constexpr std::string_view kInherits = "inherits";

/// Longest names in bytes: texts of the library have fixed sizes.
inline constexpr std::size_t kLongestName = 127;  // of items and blocks
inline constexpr std::size_t kLongestStreamName = 255;

/// A direction of ports on a component record.
struct PortDirection {
  std::string_view member;    // of an item, that connects streams by tag
  std::string_view listSlot;  // of the component record, that lists the ports
  std::string_view prefix;    // of the ports' names
};
inline constexpr PortDirection kInletPorts = {"inlets", "__STREAMS__IN", "_in_"};
inline constexpr PortDirection kExitPorts = {"exits", "__STREAMS__EX", "_ex_"};

inline constexpr std::string_view kObjectName = "object name";
inline constexpr std::string_view kType = "Type";

/// A stream of any class; null when there is none of that name.
StoredObject* findStream(MemoryStore& store, std::string_view name);
/// A block of either class; null when there is none of that name.
StoredObject* findBlock(MemoryStore& store, std::string_view name);
/// Name of the port at a position, counted from 1.
std::string portName(const PortDirection& direction, std::size_t position);
/// What a port's slot holds: stream, type text of the stream (none for an unknown one), tag.
CvdSlot portValue(MemoryStore& store, const std::string& stream, const std::string& tag);
/// What the component record's "Type" holds; not valid for an item without block.
CvdSlot typeValue(const PlantItem& item);

}  // namespace sizewright
