#pragma once

#include <cstddef>
#include <nlohmann/json.hpp>
#include <string>
#include <string_view>
#include <unordered_set>
#include <utility>
#include <vector>

#include "sizewright/embedded/input_error.h"

namespace sizewright {

/// Levels of arrays and objects that a document may have.
inline constexpr std::size_t kMaxJsonDepth = 32;
/// Values, and lines of texts, that one entry of a document may have.
inline constexpr std::size_t kMaxJsonValues = 1'000'000;

/// Hears a JSON document as it is parsed.
class JsonListener {
 public:
  virtual ~JsonListener() = default;
  /// Text, number, true, false or null.
  virtual void scalar(nlohmann::ordered_json value) = 0;
  /// An object or array begins, or ends.
  virtual void open(bool isObject) = 0;
  virtual void close() = 0;
  /// Name of the member that follows.
  virtual void key(std::string name) = 0;
  /// Place of the value that comes next, for messages.
  [[nodiscard]] virtual std::string path() const = 0;
};

/// Parses a JSON text. Throws InputError with line and column where it is not JSON, and with the
/// path where a number is out of range.
void parseJson(std::string_view text, JsonListener& listener);

/// Parses a JSON text into a document. Its objects must not hold a name twice, in whatever case,
/// nor an empty one; where `anyNames`, only names that are the same to the letter are the same.
nlohmann::ordered_json parseJson(std::string_view text, bool anyNames = false);

/// Puts a value together from what a listener hears. Throws InputError at names that come twice in
/// an object, empty names, and values that are too deep or too many.
class JsonBuilder {
 public:
  /// Gets ready for the next value, which stands at `path` and `depth` levels deep. Where
  /// `anyNames`, only names that are the same to the letter count as the same, and they may be
  /// empty.
  void begin(std::string path, std::size_t depth, bool anyNames = false);

  // Each returns true when the value is complete.
  bool scalar(nlohmann::ordered_json value);
  bool close();
  void open(bool isObject);
  void key(std::string name);

  /// Whether an array or object is under way.
  [[nodiscard]] bool isOpen() const { return open_ > 0; }
  [[nodiscard]] std::string path() const { return place(true); }
  nlohmann::ordered_json take() { return std::move(done_); }

 private:
  struct Level {
    bool isObject = false;
    std::vector<std::pair<std::string, nlohmann::ordered_json>> members;  // names of an object's
    std::unordered_set<std::string> names;  // in lower case, once many
  };

  bool add(nlohmann::ordered_json value);
  [[nodiscard]] std::string place(bool ofValue) const;
  [[nodiscard]] bool isTaken(Level& level, const std::string& name) const;

  std::string path_;
  std::size_t depth_ = 0;
  bool anyNames_ = false;
  std::size_t count_ = 0;
  std::vector<Level> levels_;  // kept from value to value
  std::size_t open_ = 0;
  nlohmann::ordered_json done_;
};

}  // namespace sizewright
