#pragma once

#include <cstdarg>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "sizewright/host/fixed_text.h"

namespace sizewright {

// Text and number helpers. None of them needs a host, allocates across calls or fails.
// Letters are compared as ASCII letters; every other byte stands for itself.

/// Lower-case form of one ASCII letter.
constexpr char toLower(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

/// The text without the blanks at its end.
std::string_view withoutTrailingBlanks(std::string_view text);
/// The text without the blanks (spaces and tabs) around it.
std::string_view withoutBlanksAround(std::string_view text);

/// Equal without regard to case.
bool equalsIgnoringCase(std::string_view a, std::string_view b);
/// `text` begins with `prefix`, without regard to case.
bool startsWithIgnoringCase(std::string_view text, std::string_view prefix);

/// Compares without regard to case and surrounding blanks; 0 means equal, otherwise the sign tells
/// the order.
int stricmpwos(std::string_view a, std::string_view b);
/// `stricmpwos(a, b) == 0`
bool sameWord(std::string_view a, std::string_view b);

/// Removes the blanks at the end, in place.
void text_remove_trailing_blanks(char* text);
/// Turns ASCII letters into capitals, in place.
void text_to_upper(char* text);
/// Pads `text` with blanks to `length` characters; a longer text stays. The buffer must hold
/// `length` + 1 characters.
void str_add_blanks_at_end(char* text, std::size_t length);

/// Parts of `text` between separators; an empty text is one empty part.
std::vector<std::string> splitText(std::string_view text, char separator);
/// The texts in order with `separator` between them.
std::string joinTexts(const std::vector<std::string>& texts, char separator);

/// Takes the first line off `rest` and returns it; `rest` is left with what follows the line feed.
std::string_view popFirstLine(std::string_view& rest);
/// Moves the first line of the flat text into `out` (at most kFlatTextEntry characters, terminator
/// included, longer ones are cut) and closes the gap. Returns 1, or 0 when the text was empty.
int list_pop_first(char* text, char* out);
inline constexpr std::size_t kFlatTextEntry = 256;

/// Reads a whole text as a number, blanks around it allowed. Returns 0 when converted and 1
/// otherwise; a failed conversion leaves `number`.
int convert_to_double(std::string_view text, double* number);
/// The same under its other name.
int convert_todouble(std::string_view text, double* number);

/// Reads a value of a form: a number on the first line and its unit text on the second. Returns 1,
/// or 0 and leaves both when the first line is no number. `units` gets at most 64 characters,
/// terminator included, and is empty without a second line.
int readNumberAndUnits(std::string_view value, double* number, char* units);
/// The number cut to a whole one, as "%d" writes it; held at the ends of the 64-bit range.
FixedText<32> wholeNumberText(double number);

/// `printf` into a text of its own, whatever its length.
[[gnu::format(printf, 1, 2)]] std::string formatText(const char* format, ...);
[[gnu::format(printf, 1, 0)]] std::string formatTextV(const char* format, std::va_list arguments);

}  // namespace sizewright
