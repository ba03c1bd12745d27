#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace sizewright {

/// The value of one host slot: text, list of texts, or number with optional unit text.
///
/// A slot value is immutable and shared: copying one copies a pointer and allocates nothing, and a
/// copy stays good when the store replaces the slot. Needs no host; may be read from any thread.
///
/// A text of several lines and the list of its lines are the same value. It counts as a list; a
/// value of one line counts as a text; `Text` and `List` answer for both.
class CvdSlot {
 public:
  /// The empty value: `IsValid` is false.
  CvdSlot() = default;
  CvdSlot(std::nullptr_t, std::nullptr_t) {}

  /// A text; with line feeds in it, the list of its lines.
  static CvdSlot ofText(std::string_view text);
  /// A list; an empty one is an empty text.
  static CvdSlot ofList(std::vector<std::string> lines);
  /// A number; an empty `units` is a number without unit.
  static CvdSlot ofNumber(double number, std::string_view units = {});

  [[nodiscard]] bool IsValid() const { return value_ != nullptr; }
  [[nodiscard]] bool IsText() const { return is(Kind::text); }
  [[nodiscard]] bool IsList() const { return is(Kind::list); }
  [[nodiscard]] bool IsNumber() const { return is(Kind::number); }
  [[nodiscard]] bool HasUnits() const { return IsNumber() && !value_->text.empty(); }

  /// The text, or the lines of a list joined by line feeds; empty for a number.
  [[nodiscard]] const char* Text() const {
    return IsText() || IsList() ? value_->text.c_str() : "";
  }
  /// The lines of a list, or the one line of a text; empty for a number.
  [[nodiscard]] const std::vector<std::string>& List() const;
  /// The number; 0 for anything else.
  [[nodiscard]] double Number() const { return IsNumber() ? value_->number : 0.0; }
  /// The unit text of a number; empty for anything else.
  [[nodiscard]] const char* Units() const { return IsNumber() ? value_->text.c_str() : ""; }

  void Clear() { value_.reset(); }

  /// Same kind, same text or lines, same number and unit.
  friend bool operator==(const CvdSlot& a, const CvdSlot& b);

 private:
  enum class Kind : unsigned char { text, list, number };
  struct Value {
    Kind kind = Kind::text;
    double number = 0.0;
    std::string text;                // the text, the joined lines, or the unit of a number
    std::vector<std::string> lines;  // of a text or list
  };

  [[nodiscard]] bool is(Kind kind) const { return value_ != nullptr && value_->kind == kind; }

  std::shared_ptr<const Value> value_;
};

}  // namespace sizewright
