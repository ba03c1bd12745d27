#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

namespace sizewright {

/// What is wrong with an input, in one line for the user. The one exception that the embedded side
/// lets out.
class InputError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
  /// "path: fault"; only the fault where the path is empty.
  InputError(std::string_view path, std::string_view fault);
};

/// A text of the user's made fit to stand in a message: cut when it is long, without control
/// characters.
std::string shortened(std::string_view text);

/// Place in a JSON document: "items/P-101/exits". Long names are cut.
std::string joinPath(std::string_view path, std::string_view name);

}  // namespace sizewright
