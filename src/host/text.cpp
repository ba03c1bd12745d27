#include "sizewright/host/text.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstring>

namespace sizewright {

namespace {
constexpr std::string_view kBlanks = " \t";
}

std::string_view withoutTrailingBlanks(std::string_view text) {
  const std::size_t last = text.find_last_not_of(kBlanks);
  return last == std::string_view::npos ? std::string_view{} : text.substr(0, last + 1);
}

std::string_view withoutBlanksAround(std::string_view text) {
  const std::size_t first = text.find_first_not_of(kBlanks);
  return first == std::string_view::npos ? std::string_view{}
                                         : withoutTrailingBlanks(text.substr(first));
}

bool equalsIgnoringCase(std::string_view a, std::string_view b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](char x, char y) { return toLower(x) == toLower(y); });
}

bool startsWithIgnoringCase(std::string_view text, std::string_view prefix) {
  return equalsIgnoringCase(text.substr(0, prefix.size()), prefix);
}

int stricmpwos(std::string_view a, std::string_view b) {
  a = withoutBlanksAround(a);
  b = withoutBlanksAround(b);
  const auto less = [](char x, char y) {
    return static_cast<unsigned char>(toLower(x)) < static_cast<unsigned char>(toLower(y));
  };
  if (std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end(), less)) return -1;
  return std::lexicographical_compare(b.begin(), b.end(), a.begin(), a.end(), less) ? 1 : 0;
}

bool sameWord(std::string_view a, std::string_view b) {
  return equalsIgnoringCase(withoutBlanksAround(a), withoutBlanksAround(b));
}

void text_remove_trailing_blanks(char* text) {
  text[withoutTrailingBlanks(text).size()] = '\0';
}

void text_to_upper(char* text) {
  for (; *text != '\0'; ++text) {
    if (*text >= 'a' && *text <= 'z') *text = static_cast<char>(*text - 'a' + 'A');
  }
}

void str_add_blanks_at_end(char* text, std::size_t length) {
  const std::size_t present = std::strlen(text);
  if (present >= length) return;
  std::memset(text + present, ' ', length - present);
  text[length] = '\0';
}

std::vector<std::string> splitText(std::string_view text, char separator) {
  std::vector<std::string> parts;
  for (;;) {
    const std::size_t end = text.find(separator);
    parts.emplace_back(text.substr(0, end));
    if (end == std::string_view::npos) return parts;
    text.remove_prefix(end + 1);
  }
}

std::string joinTexts(const std::vector<std::string>& texts, char separator) {
  std::string joined;
  for (std::size_t i = 0; i < texts.size(); ++i) {
    if (i > 0) joined += separator;
    joined += texts[i];
  }
  return joined;
}

std::string_view popFirstLine(std::string_view& rest) {
  const std::size_t end = rest.find('\n');
  const std::string_view line = rest.substr(0, end);
  rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
  return line;
}

int list_pop_first(char* text, char* out) {
  std::string_view rest = text;
  if (rest.empty()) {
    *out = '\0';
    return 0;
  }
  const std::string_view line = cutText(popFirstLine(rest), kFlatTextEntry - 1);
  std::memcpy(out, line.data(), line.size());
  out[line.size()] = '\0';
  std::memmove(text, rest.data(), rest.size());
  text[rest.size()] = '\0';
  return 1;
}

int convert_to_double(std::string_view text, double* number) {
  text = withoutBlanksAround(text);
  if (text.starts_with('+')) text.remove_prefix(1);
  double value = 0.0;
  const auto [end, fault] = std::from_chars(text.data(), text.data() + text.size(), value);
  const bool whole = fault == std::errc{} && end == text.data() + text.size();
  if (!whole || !std::isfinite(value)) return 1;
  *number = value;
  return 0;
}

int convert_todouble(std::string_view text, double* number) {
  return convert_to_double(text, number);
}

int readNumberAndUnits(std::string_view value, double* number, char* units) {
  const std::string_view first = popFirstLine(value);
  if (convert_to_double(first, number) != 0) return 0;
  const FixedText<64> text(withoutBlanksAround(popFirstLine(value)));
  std::memcpy(units, text.c_str(), text.view().size() + 1);
  return 1;
}

FixedText<32> wholeNumberText(double number) {
  constexpr double kLimit = 9.2e18;
  FixedText<32> text;
  const double held = std::isnan(number) ? 0.0 : std::clamp(number, -kLimit, kLimit);
  std::to_chars(text.data(), text.data() + text.capacity() - 1, static_cast<std::int64_t>(held));
  return text;
}

std::string formatText(const char* format, ...) {
  std::va_list arguments;
  va_start(arguments, format);
  std::string text = formatTextV(format, arguments);
  va_end(arguments);
  return text;
}

std::string formatTextV(const char* format, std::va_list arguments) {
  std::va_list again;
  va_copy(again, arguments);
  const int length = std::vsnprintf(nullptr, 0, format, arguments);
  std::string text(length > 0 ? static_cast<std::size_t>(length) : 0U, '\0');
  if (length > 0) std::vsnprintf(text.data(), text.size() + 1, format, again);
  va_end(again);
  return text;
}

}  // namespace sizewright
