#include "sizewright/embedded/json_reader.h"

#include <algorithm>

#include "sizewright/host/text.h"

namespace sizewright {

using nlohmann::ordered_json;

namespace {

constexpr std::size_t kManyNames = 32;
constexpr int kNumberOverflow = 406;  // the parser's number for it

std::string lowerCase(std::string_view text) {
  std::string result(text);
  std::transform(result.begin(), result.end(), result.begin(), toLower);
  return result;
}

// What the parser says was wrong, without the number of the fault and without the text that it
// last read, which may be long.
std::string reasonOf(std::string_view what) {
  const std::size_t place = what.find(" - ");
  std::string_view reason = place != std::string_view::npos ? what.substr(place + 3) : what;
  reason = reason.substr(0, reason.find("; last read"));
  return shortened(reason);
}

std::string placeIn(std::string_view text, std::size_t position) {
  const std::string_view read = text.substr(0, position > 0 ? position - 1 : 0);
  const auto line = 1 + std::count(read.begin(), read.end(), '\n');
  const std::size_t lineStart = read.rfind('\n') + 1;  // 0 when there is none
  const std::size_t column = 1 + read.size() - lineStart;
  return "line " + std::to_string(line) + ", column " + std::to_string(column);
}

// The parser's interface, with its names.
class Events {
 public:
  Events(std::string_view text, JsonListener& listener) : text_(text), listener_(listener) {}

  bool null() { return scalar(nullptr); }
  bool boolean(bool value) { return scalar(value); }
  bool number_integer(std::int64_t value) { return scalar(value); }
  bool number_unsigned(std::uint64_t value) { return scalar(value); }
  bool number_float(double value, const std::string& /*text*/) { return scalar(value); }
  bool string(std::string& value) { return scalar(std::move(value)); }
  bool binary(ordered_json::binary_t& /*value*/) { return false; }
  bool start_object(std::size_t /*size*/) {
    listener_.open(true);
    return true;
  }
  bool start_array(std::size_t /*size*/) {
    listener_.open(false);
    return true;
  }
  bool end_object() { return close(); }
  bool end_array() { return close(); }
  bool key(std::string& name) {
    listener_.key(std::move(name));
    return true;
  }
  [[noreturn]] bool parse_error(std::size_t position, const std::string& last,
                                const ordered_json::exception& fault) {
    if (fault.id == kNumberOverflow) {
      throw InputError(listener_.path(), "number out of range: " + shortened(last));
    }
    throw InputError(placeIn(text_, position), "not JSON: " + reasonOf(fault.what()));
  }

 private:
  bool scalar(ordered_json value) {
    listener_.scalar(std::move(value));
    return true;
  }
  bool close() {
    listener_.close();
    return true;
  }

  std::string_view text_;
  JsonListener& listener_;
};

// Listens to a whole document.
class DocumentListener : public JsonListener {
 public:
  explicit DocumentListener(bool anyNames) { builder_.begin({}, 0, anyNames); }
  void scalar(ordered_json value) override { builder_.scalar(std::move(value)); }
  void open(bool isObject) override { builder_.open(isObject); }
  void close() override { builder_.close(); }
  void key(std::string name) override { builder_.key(std::move(name)); }
  [[nodiscard]] std::string path() const override { return builder_.path(); }
  ordered_json take() { return builder_.take(); }

 private:
  JsonBuilder builder_;
};

}  // namespace

void parseJson(std::string_view text, JsonListener& listener) {
  // The parser takes a null character for the end of the text, whatever follows.
  if (const std::size_t null = text.find('\0'); null != std::string_view::npos) {
    throw InputError(placeIn(text, null + 1), "not JSON: null character");
  }
  Events events(text, listener);
  ordered_json::sax_parse(text.begin(), text.end(), &events);
}

ordered_json parseJson(std::string_view text, bool anyNames) {
  DocumentListener listener(anyNames);
  parseJson(text, listener);
  return listener.take();
}

void JsonBuilder::begin(std::string path, std::size_t depth, bool anyNames) {
  path_ = std::move(path);
  depth_ = depth;
  anyNames_ = anyNames;
  count_ = 0;
  open_ = 0;
}

bool JsonBuilder::scalar(ordered_json value) {
  if (value.is_string()) {
    // The lines of a text become values of their own.
    const auto& text = value.get_ref<const std::string&>();
    count_ += static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
  }
  return add(std::move(value));
}

void JsonBuilder::open(bool isObject) {
  if (depth_ + open_ >= kMaxJsonDepth) {
    throw InputError(path(), "nested deeper than " + std::to_string(kMaxJsonDepth) + " levels");
  }
  if (open_ == levels_.size()) levels_.emplace_back();
  Level& level = levels_[open_++];
  level.isObject = isObject;
  level.members.clear();
  level.names.clear();
}

void JsonBuilder::key(std::string name) {
  Level& level = levels_[open_ - 1];
  if (name.empty() && !anyNames_) throw InputError(place(false), "empty name");
  const bool taken = isTaken(level, name);
  level.members.emplace_back(std::move(name), nullptr);
  if (taken) throw InputError(path(), "duplicate key");
}

bool JsonBuilder::isTaken(Level& level, const std::string& name) const {
  if (level.members.size() < kManyNames) {
    const auto same = [this, &name](const auto& member) {
      return anyNames_ ? member.first == name : equalsIgnoringCase(member.first, name);
    };
    return std::any_of(level.members.begin(), level.members.end(), same);
  }
  const auto form = [this](const std::string& text) { return anyNames_ ? text : lowerCase(text); };
  if (level.names.empty()) {
    for (const auto& member : level.members) level.names.insert(form(member.first));
  }
  return !level.names.insert(form(name)).second;
}

bool JsonBuilder::close() {
  Level& level = levels_[--open_];
  ordered_json value;
  if (level.isObject) {
    // Appended as they stand: a search of each name, as the document does it, takes long for many.
    ordered_json::object_t object;
    object.reserve(level.members.size());
    for (auto& member : level.members) {
      object.emplace_back(std::move(member.first), std::move(member.second));
    }
    value = std::move(object);
  } else {
    ordered_json::array_t array;
    array.reserve(level.members.size());
    for (auto& member : level.members) array.push_back(std::move(member.second));
    value = std::move(array);
  }
  level.members.clear();
  return add(std::move(value));
}

bool JsonBuilder::add(ordered_json value) {
  if (++count_ > kMaxJsonValues) {
    throw InputError(path_, "more than " + std::to_string(kMaxJsonValues) + " values");
  }
  if (open_ == 0) {
    done_ = std::move(value);
    return true;
  }
  Level& level = levels_[open_ - 1];
  if (level.isObject) {
    level.members.back().second = std::move(value);
  } else {
    level.members.emplace_back(std::string(), std::move(value));
  }
  return false;
}

// Of the value under way, or of the array or object that it belongs to.
std::string JsonBuilder::place(bool ofValue) const {
  std::string result = path_;
  for (std::size_t i = 0; i + (ofValue ? 0 : 1) < open_; ++i) {
    const Level& level = levels_[i];
    if (level.isObject) {
      if (!level.members.empty()) result = joinPath(result, level.members.back().first);
    } else {
      result = joinPath(result, std::to_string(level.members.size()));
    }
  }
  return result;
}

}  // namespace sizewright
