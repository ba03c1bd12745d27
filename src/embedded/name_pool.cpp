#include "sizewright/embedded/name_pool.h"

#include "sizewright/host/text.h"

namespace sizewright {

namespace {

constexpr std::size_t kFirstSize = 1024;

// FNV-1a over the lower-case letters.
std::size_t hashOf(std::string_view name) {
  std::uint64_t hash = 14695981039346656037ULL;
  for (const char c : name) {
    hash ^= static_cast<unsigned char>(toLower(c));
    hash *= 1099511628211ULL;
  }
  return static_cast<std::size_t>(hash ^ (hash >> 32U));
}

}  // namespace

NamePool::NamePool() : table_(kFirstSize, Symbol::none) {}

// Position of the name in the table, or of the free place where it belongs.
std::size_t NamePool::probe(std::string_view name) const {
  const std::size_t mask = table_.size() - 1;
  std::size_t place = hashOf(name) & mask;
  while (table_[place] != Symbol::none && !equalsIgnoringCase(text(table_[place]), name)) {
    place = (place + 1) & mask;
  }
  return place;
}

Symbol NamePool::find(std::string_view name) const {
  return table_[probe(name)];
}

Symbol NamePool::intern(std::string_view name) {
  std::size_t place = probe(name);
  if (table_[place] != Symbol::none) return table_[place];
  if (names_.size() >= table_.size() / 2) {
    grow();
    place = probe(name);
  }
  names_.emplace_back(name);
  table_[place] = static_cast<Symbol>(names_.size());
  return table_[place];
}

const std::string& NamePool::text(Symbol symbol) const {
  return names_[static_cast<std::size_t>(symbol) - 1];
}

void NamePool::grow() {
  table_.assign(table_.size() * 2, Symbol::none);
  for (std::size_t i = 0; i < names_.size(); ++i) {
    table_[probe(names_[i])] = static_cast<Symbol>(i + 1);
  }
}

}  // namespace sizewright
