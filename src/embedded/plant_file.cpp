#include "sizewright/embedded/plant_file.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <istream>
#include <new>
#include <nlohmann/json.hpp>
#include <ostream>
#include <vector>

#include "sizewright/embedded/json_printer.h"
#include "sizewright/embedded/json_reader.h"
#include "sizewright/embedded/plant_layout.h"
#include "sizewright/embedded/plant_reader.h"
#include "sizewright/embedded/plant_writer.h"

namespace sizewright {

using nlohmann::ordered_json;

namespace {

constexpr std::size_t kChunk = std::size_t{1} << 20U;

/// Cuts a plant file into entries while it is parsed, so that only one of them is in memory.
class EntryCutter : public JsonListener {
 public:
  explicit EntryCutter(PlantReader& reader) : reader_(reader) {}

  void scalar(ordered_json value) override {
    if (!builder_.isOpen()) beginEntry();
    if (builder_.scalar(std::move(value))) endEntry();
  }

  void open(bool isObject) override {
    if (builder_.isOpen()) return builder_.open(isObject);
    if (isObject && opensSection()) return openSection();
    beginEntry();
    builder_.open(isObject);
  }

  void close() override {
    if (!builder_.isOpen()) {
      names_.pop_back();
    } else if (builder_.close()) {
      endEntry();
    }
  }

  void key(std::string name) override {
    if (builder_.isOpen()) return builder_.key(std::move(name));
    names_.back() = std::move(name);
  }

  [[nodiscard]] std::string path() const override {
    if (builder_.isOpen()) return builder_.path();
    std::string result;
    for (const std::string& name : names_) result = joinPath(result, name);
    return result;
  }

 private:
  // Whether an object that begins here is cut up itself: the document, a section, a database.
  [[nodiscard]] bool opensSection() const {
    return names_.empty() || (names_.size() == 1 && isSection(names_[0])) ||
           (names_.size() == 2 && names_[0] == kDatabases);
  }

  void openSection() {
    if (!names_.empty()) reader_.take(section(), names_.back(), ordered_json::object());
    names_.emplace_back();
  }

  // Section of the entry that the last name begins.
  [[nodiscard]] std::string section() const {
    if (names_.size() == 1) return {};
    return names_.size() == 2 ? names_[0] : std::string(kDatabasePrefix) + names_[1];
  }

  void beginEntry() {
    if (names_.empty()) throw InputError("expected an object");
    const bool isOfExtra = names_.size() == 1 && isExtra(names_[0]);
    builder_.begin(path(), names_.size(), isOfExtra);
  }

  void endEntry() { reader_.take(section(), names_.back(), builder_.take()); }

  PlantReader& reader_;
  JsonBuilder builder_;
  std::vector<std::string> names_;  // of the members under way, down to the entry
};

/// Prints entries as a plant file.
class FilePrinter {
 public:
  explicit FilePrinter(std::ostream& out) : out_(out) {}

  void take(std::string_view section, std::string_view name, const ordered_json& value) {
    descend(section);
    line_ += isFirst_ ? "\n" : ",\n";
    isFirst_ = false;
    line_.append(2 * (open_.size() + 1), ' ');
    printJsonText(line_, std::string(name));
    line_ += ": ";
    const bool isHead = (section.empty() && isSection(name)) || section == kDatabases;
    if (isHead) {
      line_ += '{';
      open_.emplace_back(name);
      isFirst_ = true;
    } else {
      printJson(line_, value, open_.size() + 1);
    }
    flush();
  }

  void begin() { line_.assign(1, '{'); }
  void end() {
    descend({});
    line_ += "\n}\n";
    flush();
  }

 private:
  // Closes what is open until the section's object is the innermost.
  void descend(std::string_view section) {
    std::size_t depth = section.empty() ? 0 : 1;
    if (section.starts_with(kDatabasePrefix)) depth = 2;
    while (open_.size() > depth) {
      open_.pop_back();
      if (!isFirst_) line_.append(1, '\n').append(2 * (open_.size() + 1), ' ');
      line_ += '}';
      isFirst_ = false;
    }
  }

  void flush() {
    out_.write(line_.data(), static_cast<std::streamsize>(line_.size()));
    line_.clear();
  }

  std::ostream& out_;
  std::string line_;
  std::vector<std::string> open_;  // section, database
  bool isFirst_ = true;            // member of the innermost object
};

[[noreturn]] void refuseFile(const std::filesystem::path& path, int error) {
  if (error == ENOENT) throw InputError(path.string(), "no such file");
  if (error == EISDIR) throw InputError(path.string(), "is a directory");
  throw InputError(path.string(), std::string("cannot be read: ") + std::strerror(error));
}

}  // namespace

std::string readTextFile(const std::filesystem::path& path) {
  const auto close = [](std::FILE* file) { std::fclose(file); };
  const std::unique_ptr<std::FILE, decltype(close)> file(std::fopen(path.c_str(), "rb"), close);
  if (file == nullptr) refuseFile(path, errno);
  std::string text;
  std::error_code unknown;
  const std::uintmax_t size = std::filesystem::file_size(path, unknown);
  if (!unknown && size <= kMaxInputBytes) text.reserve(size + kChunk);
  std::size_t length = 0;
  do {
    text.resize(length + kChunk);
    const std::size_t read = std::fread(text.data() + length, 1, kChunk, file.get());
    if (std::ferror(file.get()) != 0) refuseFile(path, errno);
    length += read;
    if (length > kMaxInputBytes) throw InputError(path.string(), "larger than 1 GiB");
  } while (std::feof(file.get()) == 0);
  text.resize(length);
  return text;
}

std::unique_ptr<Plant> readPlantFile(const std::filesystem::path& path,
                                     std::span<const std::string_view> knownClasses) {
  return readPlant(readTextFile(path), path.string(), knownClasses);
}

std::unique_ptr<Plant> readPlant(std::string_view text, std::string_view name,
                                 std::span<const std::string_view> knownClasses) {
  try {
    PlantReader reader(knownClasses);
    EntryCutter cutter(reader);
    parseJson(text, cutter);
    return reader.finish();
  } catch (const InputError& fault) {
    throw InputError(name, fault.what());
  } catch (const std::bad_alloc&) {
    throw InputError(name, "not enough memory to read it");
  }
}

std::unique_ptr<Plant> readPlant(std::istream& input, std::string_view name,
                                 std::span<const std::string_view> knownClasses) {
  std::string text;
  while (input) {
    const std::size_t length = text.size();
    if (length > kMaxInputBytes) throw InputError(name, "larger than 1 GiB");
    text.resize(length + kChunk);
    input.read(text.data() + length, static_cast<std::streamsize>(kChunk));
    text.resize(length + static_cast<std::size_t>(input.gcount()));
  }
  if (input.bad()) throw InputError(name, "cannot be read");
  return readPlant(text, name, knownClasses);
}

void writePlant(Plant& plant, std::ostream& out) {
  FilePrinter printer(out);
  printer.begin();
  PlantWriter(plant).write(
      [&printer](std::string_view section, std::string_view name, const ordered_json& value) {
        printer.take(section, name, value);
      });
  printer.end();
}

}  // namespace sizewright
