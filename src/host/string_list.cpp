#include "sizewright/host/string_list.h"

#include "sizewright/host/text.h"

namespace sizewright {

const CDLList::Entry* CDLList::at(int index) const {
  const auto position = static_cast<std::size_t>(index);
  return index >= 0 && position < entries_.size() ? &entries_[position] : nullptr;
}

unsigned long CDLList::GetData(int index) const {
  const Entry* entry = at(index);
  return entry != nullptr ? entry->data : 0;
}

void CDLList::SetData(int index, unsigned long data) {
  if (at(index) != nullptr) entries_[static_cast<std::size_t>(index)].data = data;
}

CStrList::CStrList(std::initializer_list<std::string_view> texts) {
  for (const std::string_view text : texts) Append(text);
}

void CStrList::Append(std::string_view text) {
  entries_.push_back({std::string(text), 0});
}

void CStrList::Append(const CStrList& other) {
  const std::vector<Entry> added = other.entries_;  // a list may be added to itself
  entries_.insert(entries_.end(), added.begin(), added.end());
}

void CStrList::AddTextList(std::string_view text, int separator) {
  if (text.empty()) return;
  for (std::string& part : splitText(text, static_cast<char>(separator))) {
    entries_.push_back({std::move(part), 0});
  }
}

const char* CStrList::GetTextAt(int index) const {
  const Entry* entry = at(index);
  return entry != nullptr ? entry->text.c_str() : "";
}

int CStrList::IsMember(std::string_view text) const {
  for (std::size_t i = 0; i < entries_.size(); ++i) {
    if (equalsIgnoringCase(entries_[i].text, text)) return static_cast<int>(i) + 1;
  }
  return 0;
}

int CStrList::GetTextListLen() const {
  std::size_t length = entries_.empty() ? 0 : entries_.size() - 1;
  for (const Entry& entry : entries_) length += entry.text.size();
  return static_cast<int>(length);
}

std::string CStrList::GetTextList(int separator) const {
  std::string joined;
  joined.reserve(static_cast<std::size_t>(GetTextListLen()));
  for (std::size_t i = 0; i < entries_.size(); ++i) {
    if (i > 0) joined += static_cast<char>(separator);
    joined += entries_[i].text;
  }
  return joined;
}

std::vector<std::string> CStrList::texts() const {
  std::vector<std::string> result;
  result.reserve(entries_.size());
  for (const Entry& entry : entries_) result.push_back(entry.text);
  return result;
}

int CvdStrListPair::GetValue(std::string_view label, CvdString& value) const {
  const int position = names_.IsMember(label);
  if (position == 0 || position > values_.GetLength()) return 0;
  value = values_.GetTextAt(position - 1);
  return 1;
}

}  // namespace sizewright
