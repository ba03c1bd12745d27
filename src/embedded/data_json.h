#pragma once

#include <nlohmann/json_fwd.hpp>

#include "sizewright/embedded/fluid_data.h"
#include "sizewright/host/slot.h"

namespace sizewright {

// The forms in which slot values, property data, charts and design rules are written in plant files
// and in the bundled data.
//
// Reading expects a document of the right shape, as a schema checks it; what does not fit throws
// std::runtime_error with a short text that says what was expected, without the place.
//
// Writing throws nothing and keeps every text byte for byte, be it UTF-8 or not. A document that
// may hold other people's texts is therefore dumped with `error_handler_t::replace`; the strict
// handler throws at a text that is not UTF-8.

/// A slot value: "text", 12.5, [12.5, "PSI"] or ["line", "line"].
CvdSlot slotFromJson(const nlohmann::ordered_json& json);
/// A list is written as such when it has more than one line, otherwise as text. The value that is
/// not valid is null.
nlohmann::ordered_json slotToJson(const CvdSlot& slot);

/// Property data of a fluid class. Keys that name no property are passed over.
Fluid fluidFromJson(const nlohmann::ordered_json& json);
/// What is absent is left out.
nlohmann::ordered_json fluidToJson(const Fluid& fluid);

/// A chart: {"x": [...], "y": [...], "z": [[...]]}. The sizes need not fit each other.
Chart chartFromJson(const nlohmann::ordered_json& json);
nlohmann::ordered_json chartToJson(const Chart& chart);

/// Design rules: {"pressure": [row...], "temperature": [row...]}, either of which may be missing.
DesignRules designRulesFromJson(const nlohmann::ordered_json& json);
/// What has its default value in a row is left out.
nlohmann::ordered_json designRulesToJson(const DesignRules& rules);

}  // namespace sizewright
