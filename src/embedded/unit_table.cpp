#include "sizewright/embedded/unit_table.h"

#include <udunits2.h>

#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <memory>
#include <nlohmann/json.hpp>
#include <stdexcept>
#include <string>
#include <vector>

#include "sizewright/embedded/embedded_files.h"
#include "sizewright/host/host.h"
#include "sizewright/host/text.h"

namespace sizewright {

namespace {

// --- Unit texts as keys -------------------------------------------------------------------------

constexpr std::size_t kKeyLength = 32;  // no unit text is longer

// A unit text in small letters, without the blanks around it, filled up with zeros.
struct Key {
  std::array<std::uint64_t, kKeyLength / 8> words{};

  friend bool operator==(const Key&, const Key&) = default;
};

// Makes the capitals among eight characters small, all at once: the sums carry into a character's
// top bit where it is at least 'A', and where it is above 'Z'.
constexpr std::uint64_t toLowerWord(std::uint64_t word) {
  constexpr std::uint64_t kEach = 0x0101010101010101ULL;
  const std::uint64_t low = word & (0x7F * kEach);
  const std::uint64_t fromA = low + (0x80 - 'A') * kEach;
  const std::uint64_t aboveZ = low + (0x7F - 'Z') * kEach;
  const std::uint64_t capital = (fromA ^ aboveZ) & ~word & (0x80 * kEach);
  return word | (capital >> 2U);
}

constexpr bool isBlank(char c) {
  return c == ' ' || c == '\t';
}

template <class Word>
std::uint64_t load(const char* text) {
  Word word;
  std::memcpy(&word, text, sizeof word);
  return word;
}

// The first characters of a text, at most eight, filled up with zeros. Loads that overlap and a
// shift are much faster than a copy of unknown length.
std::uint64_t firstWord(const char* text, std::size_t length) {
  if (length >= 8) return load<std::uint64_t>(text);
  const std::size_t shift = 8 * length;
  if (length >= 4) {
    return load<std::uint32_t>(text) | load<std::uint32_t>(text + length - 4) << (shift - 32);
  }
  if (length >= 2) {
    return load<std::uint16_t>(text) | load<std::uint16_t>(text + length - 2) << (shift - 16);
  }
  return load<std::uint8_t>(text);
}
static_assert(std::endian::native == std::endian::little, "the shifts put later characters higher");

// False when the text is blank or too long for a unit.
bool makeKey(std::string_view text, Key& key) {
  while (!text.empty() && isBlank(text.front())) text.remove_prefix(1);
  while (!text.empty() && isBlank(text.back())) text.remove_suffix(1);
  if (text.empty() || text.size() > kKeyLength) return false;
  std::size_t done = 0;
  for (std::uint64_t& word : key.words) {
    word = toLowerWord(firstWord(text.data() + done, text.size() - done));
    done += 8;
    if (done >= text.size()) break;
  }
  return true;
}

std::size_t hashOf(const Key& key) {
  constexpr std::uint64_t kOdd = 0x9E3779B97F4A7C15ULL;
  const std::uint64_t mixed = (key.words[0] * kOdd) ^ std::rotl(key.words[1] * kOdd, 23) ^
                              std::rotl(key.words[2] * kOdd, 41) ^ key.words[3];
  return static_cast<std::size_t>((mixed * kOdd) >> 32U);
}

// A unit: value in the base unit of its quantity = (value + shift) x factor.
struct Unit {
  Key key;
  double factor = 0.0;  // 0: a free place of the table
  double shift = 0.0;
  std::uint32_t quantity = 0;
};

// --- Definitions from UDUNITS-2 -----------------------------------------------------------------

struct FreeSystem {
  void operator()(ut_system* system) const { ut_free_system(system); }
};
struct FreeUnit {
  void operator()(ut_unit* unit) const { ut_free(unit); }
};
struct FreeConverter {
  void operator()(cv_converter* converter) const { cv_free(converter); }
};
using SystemHandle = std::unique_ptr<ut_system, FreeSystem>;
using UnitHandle = std::unique_ptr<ut_unit, FreeUnit>;
using ConverterHandle = std::unique_ptr<cv_converter, FreeConverter>;

// Reads expressions; the library's messages are off while it lives, as faults are thrown.
class Definitions {
 public:
  Definitions()
      : messages_(ut_set_error_message_handler(ut_ignore)), system_(ut_read_xml(nullptr)) {
    if (system_ != nullptr) return;
    ut_set_error_message_handler(messages_);
    throw std::runtime_error("the unit database of UDUNITS-2 cannot be read");
  }
  ~Definitions() { ut_set_error_message_handler(messages_); }
  Definitions(const Definitions&) = delete;
  Definitions& operator=(const Definitions&) = delete;

  [[nodiscard]] UnitHandle unit(const std::string& expression) const {
    UnitHandle unit(ut_parse(system_.get(), expression.c_str(), UT_ASCII));
    if (unit == nullptr) throw std::runtime_error("the unit \"" + expression + "\" cannot be read");
    return unit;
  }

  // How many of one unit another is.
  [[nodiscard]] static double ratio(ut_unit* from, ut_unit* to) {
    const ConverterHandle converter(ut_get_converter(from, to));
    if (converter == nullptr) throw std::runtime_error("units of one quantity do not convert");
    const double one = cv_convert_double(converter.get(), 1.0);
    // Units that are each other's reciprocal convert too, but not in proportion.
    if (!(one > 0.0) || std::fabs(cv_convert_double(converter.get(), 2.0) / one - 2.0) > 1e-12) {
      throw std::runtime_error("units of one quantity are not in proportion");
    }
    return one;
  }

 private:
  ut_error_message_handler messages_;
  SystemHandle system_;
};

// An expression of the file: "K @ 273.15", "kPa @ 14.7 psi" or plain "ft".
struct Expression {
  std::string unit;
  double zero = 0.0;     // where the scale has its zero
  std::string zeroUnit;  // of that, when it is not the unit itself
};

Expression split(const std::string& text) {
  const std::size_t at = text.find('@');
  if (at == std::string::npos) return {text, 0.0, {}};
  Expression expression;
  expression.unit = withoutBlanksAround(std::string_view(text).substr(0, at));
  const std::string_view rest = withoutBlanksAround(std::string_view(text).substr(at + 1));
  const auto [end, fault] =
      std::from_chars(rest.data(), rest.data() + rest.size(), expression.zero);
  if (fault != std::errc{}) throw std::runtime_error("\"" + text + "\" has no zero point");
  expression.zeroUnit =
      withoutBlanksAround(rest.substr(static_cast<std::size_t>(end - rest.data())));
  return expression;
}

// --- The table ----------------------------------------------------------------------------------

class Table {
 public:
  Table() {
    for (const EmbeddedFile& file : embeddedFiles()) {
      if (file.name == "data/units.json") read(file.text);
    }
    if (count_ == 0) throw std::runtime_error("the program has no unit texts");
  }

  // Null when the key is no unit.
  [[nodiscard]] const Unit* find(const Key& key) const {
    for (std::size_t place = hashOf(key) & kMask;; place = (place + 1) & kMask) {
      const Unit& unit = units_[place];
      if (unit.factor == 0.0) return nullptr;
      if (unit.key == key) return &unit;
    }
  }

 private:
  static constexpr std::size_t kSize = 2048;
  static constexpr std::size_t kMask = kSize - 1;

  void read(std::string_view text) {
    const Definitions definitions;
    const auto file = nlohmann::ordered_json::parse(text);
    std::uint32_t quantity = 0;
    for (const auto& [name, texts] : file.at("quantities").items()) {
      ++quantity;
      UnitHandle base;
      for (const auto& [unitText, definition] : texts.items()) {
        const Expression expression = split(definition.template get_ref<const std::string&>());
        const UnitHandle unit = definitions.unit(expression.unit);
        if (base == nullptr) base = definitions.unit(expression.unit);
        double shift = expression.zero;
        if (!expression.zeroUnit.empty()) {
          shift *= Definitions::ratio(definitions.unit(expression.zeroUnit).get(), unit.get());
        }
        add(unitText, Definitions::ratio(unit.get(), base.get()), shift, quantity);
      }
    }
  }

  void add(const std::string& text, double factor, double shift, std::uint32_t quantity) {
    Unit unit{{}, factor, shift, quantity};
    if (!makeKey(text, unit.key) || find(unit.key) != nullptr || ++count_ > kSize / 2) {
      throw std::runtime_error("the unit text \"" + text + "\" cannot be kept");
    }
    std::size_t place = hashOf(unit.key) & kMask;
    while (units_[place].factor != 0.0) place = (place + 1) & kMask;
    units_[place] = unit;
  }

  std::vector<Unit> units_ = std::vector<Unit>(kSize);  // open addressing
  std::size_t count_ = 0;
};

const Table& table() {
  static const Table table;
  return table;
}

// --- Converting ---------------------------------------------------------------------------------

// A number within rounding of one with up to three decimals is that one: 12 inches a foot, 1.8
// degrees, 3600 seconds.
double cleared(double number, double rounding) {
  constexpr double kLargest = 1e12;
  if (std::fabs(number) > kLargest) return number;
  const double clean = static_cast<double>(std::llround(number * 1000.0)) / 1000.0;
  return std::fabs(clean - number) <= rounding ? clean : number;
}

double ratioOf(double larger, double smaller) {
  const double ratio = larger / smaller;
  return cleared(ratio, 2e-15 * ratio);
}

// Distance of two zero points, in one unit: 32 degrees.
double distance(double a, double b) {
  return cleared(a - b, 1e-15 * (std::fabs(a) + std::fabs(b)));
}

// (value + shift of one) x ratio - shift of the other, with both shifts joined in the smaller unit.
double convertedBetween(const Unit& from, const Unit& to, double value) {
  if (from.factor == to.factor && from.shift == to.shift) return value;
  const bool shifted = from.shift != 0.0 || to.shift != 0.0;
  if (from.factor >= to.factor) {
    const double ratio = ratioOf(from.factor, to.factor);
    return shifted ? value * ratio + distance(from.shift * ratio, to.shift) : value * ratio;
  }
  const double ratio = ratioOf(to.factor, from.factor);
  return (shifted ? value + distance(from.shift, to.shift * ratio) : value) / ratio;
}

const Unit* findUnit(std::string_view text) {
  Key key;
  return makeKey(text, key) ? table().find(key) : nullptr;
}

void reportUnknown(std::string_view text) {
  if (withoutBlanksAround(text).empty()) return;
  currentHost().user().diagnostic("Unknown unit <" + std::string(text) + ">.");
}

}  // namespace

UnitTable::UnitTable(int unitType) : unitType_(unitType) {
  table();
}

bool UnitTable::knows(std::string_view unit) {
  return findUnit(unit) != nullptr;
}

bool UnitTable::convert(std::string_view from, std::string_view to, double& value) const {
  const Unit* const source = findUnit(from);
  const Unit* const target = findUnit(to);
  if (source == nullptr || target == nullptr) {
    if (source == nullptr) reportUnknown(from);
    if (target == nullptr) reportUnknown(to);
    return false;
  }
  if (source->quantity != target->quantity) {
    currentHost().user().diagnostic("Unit <" + std::string(from) + "> does not convert to <" +
                                    std::string(to) + ">.");
    return false;
  }
  value = convertedBetween(*source, *target, value);
  return true;
}

}  // namespace sizewright
