#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace sizewright {

/// Ordered list whose entries carry a text and one number of the caller's. Indices are zero-based;
/// reading past the end answers an empty text or 0, writing past the end does nothing.
/// Needs no host; belongs to one thread at a time.
class CDLList {
 public:
  [[nodiscard]] int GetLength() const { return static_cast<int>(entries_.size()); }
  [[nodiscard]] bool IsEmpty() const { return entries_.empty(); }
  void RemoveAll() { entries_.clear(); }

  /// The number kept with an entry, 0 until set.
  [[nodiscard]] unsigned long GetData(int index) const;
  void SetData(int index, unsigned long data);

 protected:
  struct Entry {
    std::string text;
    unsigned long data = 0;
  };
  [[nodiscard]] const Entry* at(int index) const;

  std::vector<Entry> entries_;
};

/// List of texts.
class CStrList : public CDLList {
 public:
  CStrList() = default;
  CStrList(std::initializer_list<std::string_view> texts);

  /// Adds one entry.
  void Append(std::string_view text);
  /// Adds all the entries of another list, with their numbers.
  void Append(const CStrList& other);
  /// Adds the parts of `text` between separators (a character code); an empty text adds nothing.
  void AddTextList(std::string_view text, int separator);

  /// The entry's text, good until the list changes; empty past the end.
  [[nodiscard]] const char* GetTextAt(int index) const;
  /// Position of the first entry equal to `text` without regard to case plus 1, or 0 for none.
  [[nodiscard]] int IsMember(std::string_view text) const;

  /// Number of characters of `GetTextList`, without terminator.
  [[nodiscard]] int GetTextListLen() const;
  /// All entries joined by the separator (a character code).
  [[nodiscard]] std::string GetTextList(int separator) const;
  /// The entries as plain texts.
  [[nodiscard]] std::vector<std::string> texts() const;
};

/// A growing text.
class CvdString {
 public:
  CvdString() = default;
  CvdString(std::string_view text) : text_(text) {}
  CvdString& operator=(std::string_view text) {
    text_ = text;
    return *this;
  }
  CvdString& operator+=(std::string_view text) {
    text_ += text;
    return *this;
  }
  [[nodiscard]] const char* Text() const { return text_.c_str(); }

 private:
  std::string text_;
};

/// Two lists of equal length that hold labels and their values, as forms pass them.
class CvdStrListPair {
 public:
  /// Views the lists; both must outlive the pair.
  CvdStrListPair(const CStrList& names, const CStrList& values) : names_(names), values_(values) {}

  /// The value of the first entry with this label, without regard to case. Returns 1, or 0 and
  /// leaves `value` when there is none.
  int GetValue(std::string_view label, CvdString& value) const;

 private:
  const CStrList& names_;
  const CStrList& values_;
};

}  // namespace sizewright
