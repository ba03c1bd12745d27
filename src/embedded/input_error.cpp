#include "sizewright/embedded/input_error.h"

namespace sizewright {

namespace {

constexpr std::size_t kLongest = 60;

bool continuesCharacter(char c) {
  return (static_cast<unsigned char>(c) & 0xC0U) == 0x80U;
}

}  // namespace

InputError::InputError(std::string_view path, std::string_view fault)
    : std::runtime_error(path.empty() ? std::string(fault)
                                      : std::string(path).append(": ").append(fault)) {}

std::string shortened(std::string_view text) {
  std::size_t length = text.size();
  if (length > kLongest) {
    length = kLongest - 3;
    while (length > 0 && continuesCharacter(text[length])) --length;
  }
  std::string result(text.substr(0, length));
  for (char& c : result) {
    if (static_cast<unsigned char>(c) < 0x20 || c == 0x7F) c = '?';
  }
  if (length < text.size()) result += "...";
  return result;
}

std::string joinPath(std::string_view path, std::string_view name) {
  std::string result(path);
  if (!result.empty()) result += '/';
  return result += shortened(name);
}

}  // namespace sizewright
