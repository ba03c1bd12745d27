#pragma once

#include <cstdint>

namespace sizewright {

// Rows that tell, for one equipment class, where values come from and where they go. A class states
// its tables as `constexpr` arrays; `SizingItem` reads them, top to bottom. Fields are members of
// the class's data block, in internal units.

/// A slot or form label: a name as it stands, or a generic quantity that the item's category
/// resolves (`GetNewSlotNameField`).
struct SlotName {
  const char* text;
  bool generic = false;

  constexpr SlotName(const char* name) : text(name) {}
  constexpr SlotName(const char* name, bool isGeneric) : text(name), generic(isGeneric) {}
};

/// The slot that the item's category uses for a quantity.
constexpr SlotName slotOf(const char* quantity) {
  return {quantity, true};
}

/// Objects that an item reads from.
enum class From : std::uint8_t { component, simObject, projectObject };

/// Whether a slot is also looked for in what the object inherits from.
enum class Lookup : std::uint8_t { inherited, own };

/// A source of a value, read while the field is not positive: rows of one field stand in order of
/// priority.
template <class Data>
struct SourceRow {
  double Data::*field;
  From from;
  SlotName slot;
  const char* units = nullptr;  // null: the number as it stands
  Lookup lookup = Lookup::inherited;
};

/// A quantity that design criteria give, read while the field is not positive; the fallback counts
/// without the criterion. The project's record names it alike.
template <class Data>
struct CriterionRow {
  const char* name;
  double Data::*field;
  const char* units = "";
  double fallback = 0.0;
};

/// What a form's number means for its field.
enum class FormRule : std::uint8_t {
  converted,    // to the field's unit; without a unit the field stays; 0 when absent
  adjusted,     // to the field's unit; without a unit as it stands; 0 when absent
  plain,        // as it stands; 0 when absent
  plainOrKept,  // as it stands; the field stays when absent
  ifPositive,   // converted when a unit came with it; the field stays unless positive
};

/// A number that a form gives.
template <class Data>
struct FormInRow {
  SlotName label;
  double Data::*field;
  const char* units = nullptr;
  FormRule rule = FormRule::converted;
};

/// A number that a form shows when it is not 0. Without units it is shown as it stands.
template <class Data>
struct FormOutRow {
  SlotName label;
  double Data::*field;
  const char* internal = nullptr;
  const char* customary = nullptr;
  const char* metric = nullptr;
};

/// When a result is written.
enum class When : std::uint8_t { always, positive, aboveOne };

/// How a result is written.
enum class Style : std::uint8_t {
  converted,  // in the project's unit
  plain,      // the number with the unit text `internal`, if any
  count,      // whole number as text
};

/// A result written to the component record.
template <class Data>
struct ResultRow {
  SlotName slot;
  double Data::*field;
  When when = When::positive;
  Style style = Style::plain;
  const char* internal = nullptr;
  const char* customary = nullptr;
  const char* metric = nullptr;
};

/// The tag that an exit stream is connected under when it carries a flow, in order of priority.
struct PortByFlow {
  const char* flow;  // slot of a mass flow
  const char* tag;
};

}  // namespace sizewright
