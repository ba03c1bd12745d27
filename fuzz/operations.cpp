#include "operations.h"

#include <cmath>
#include <limits>
#include <string>

namespace sizewright::fuzz {

namespace {

constexpr double kNumbers[] = {0.0,
                               1.0,
                               -1.0,
                               0.5,
                               2.0,
                               14.7,
                               -999.0,
                               -10000.0,
                               100.0,
                               1e4,
                               1e6,
                               1e9,
                               1e15,
                               1e100,
                               1e300,
                               -1e300,
                               1e-9,
                               1e-300,
                               4e-320,
                               2.1e9,
                               -2.2e9,
                               9.3e18,
                               62.43,
                               459.67,
                               -460,
                               0.999,
                               1.001,
                               32767.0,
                               65536.0,
                               1e-15,
                               std::numeric_limits<double>::max(),
                               std::numeric_limits<double>::infinity(),
                               -std::numeric_limits<double>::infinity(),
                               std::numeric_limits<double>::quiet_NaN()};
constexpr const char* kUnits[] = {"",    "LB/H", "KG/H",  "PSI", "PSIG", "KPA",  "DEG F", "DEG C",
                                  "CFH", "GPM",  "FEET",  "M",   "HP",   "KW",   "PCF",   "CPOISE",
                                  "IN",  "SF",   "BTU/H", "TPH", "%",    "FT/S", "ACFM",  "???"};
constexpr const char* kTexts[] = {"",        " ",         "S1",         "S2",
                                  "S3",      "no stream", "NONE",       "Yes",
                                  "No",      "VERTICAL",  "HORIZONTAL", "12.5",
                                  "PSI",     "B1",        "%s%n%s",     "Steam @400PSI",
                                  "a\nb\nc", "\n\n\n",    "Water",      "GAS TURBINE",
                                  "MOTOR",   "1",         "1e400",      "S1\nPROCESS\nINLET"};

double anyNumber(Bytes& bytes) {
  const std::uint8_t kind = bytes.take();
  if (kind < 128) return kNumbers[kind % std::size(kNumbers)];
  const double mantissa = bytes.take() / 25.6 + 0.1;
  return mantissa * std::pow(10.0, bytes.take() % 12 - 3);
}

std::string anyText(Bytes& bytes) {
  const std::uint8_t kind = bytes.take();
  if (kind < 230) return kTexts[kind % std::size(kTexts)];
  return std::string(kind < 245 ? 130 : 5000, static_cast<char>('A' + kind % 26));
}

// A form made of what the object shows, with some of its values replaced.
void setForm(CSizeEquip& object, Bytes& bytes) {
  CStrList names;
  CStrList values;
  object.ReturnValues(names, values);
  CStrList texts;
  for (int i = 0; i < names.GetLength(); ++i) {
    const std::uint8_t kind = bytes.take();
    if (kind < 128) {
      texts.Append(values.GetTextAt(i));
    } else if (kind < 220) {
      texts.Append(std::to_string(anyNumber(bytes)) + "\n" + bytes.oneOf(kUnits));
    } else {
      texts.Append(anyText(bytes));
    }
  }
  if (bytes.take() % 16 == 15) names.Append("a label without value");
  object.SetValues(names, texts);
}

void returnValues(CSizeEquip& object) {
  CStrList names;
  CStrList values;
  object.ReturnValues(names, values);
}

}  // namespace

CvdSlot anyValue(Bytes& bytes) {
  const std::uint8_t kind = bytes.take();
  if (kind < 170) {
    const double number = anyNumber(bytes);
    return CvdSlot::ofNumber(number, bytes.oneOf(kUnits));
  }
  if (kind < 235) return CvdSlot::ofText(anyText(bytes));
  std::vector<std::string> lines(kind == 255 ? 10'000 : kind % 8);
  for (std::string& line : lines) {
    if (!bytes.empty()) line = anyText(bytes);
  }
  return CvdSlot::ofList(std::move(lines));
}

void drive(CSizeEquip& object, int (*initialize)(CSizeEquip&), Bytes& bytes) {
  if (object.IsValid() == 0) return;
  const std::size_t steps = 4 + bytes.below(8);
  for (std::size_t i = 0; i < steps; ++i) {
    switch (bytes.below(14)) {
      case 0:
      case 1:
      case 2:
        object.Size();
        break;
      case 3:
        object.GetLastInfo();
        break;
      case 4:
      case 5:
        setForm(object, bytes);
        break;
      case 6:
        returnValues(object);
        break;
      case 7:
        object.Commit();
        break;
      case 8:
        object.UpdateSizeInfo();
        break;
      case 9:
        initialize(object);
        break;
      case 10:
        object.GetConnectedStreams();
        break;
      case 11:
        object.DisconnectStreams();
        break;
      case 12:
        object.GetStreamInfo();
        break;
      default:
        object.Size();
        object.Commit();
        object.UpdateSizeInfo();
        break;
    }
  }
}

}  // namespace sizewright::fuzz
