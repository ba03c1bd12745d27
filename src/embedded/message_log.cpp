#include "sizewright/embedded/message_log.h"

#include <algorithm>

namespace sizewright {

void MessageLog::print(std::string_view text) {
  dialogs_.push_back({false, std::string(text), {}, 0});
}

void MessageLog::box(void* /*owner*/, std::string_view text, std::string_view title, int flags) {
  dialogs_.push_back({true, std::string(text), std::string(title), flags});
}

void MessageLog::status(int percent, int /*level*/, std::string_view text) {
  if (keepProgress_) progress_.push_back({percent, std::string(text)});
  if (listener_) listener_(percent, text);
}

void MessageLog::diagnostic(std::string_view text) {
  const bool known =
      std::find(diagnostics_.begin(), diagnostics_.end(), text) != diagnostics_.end();
  if (!known) diagnostics_.emplace_back(text);
}

void MessageLog::clear() {
  dialogs_.clear();
  progress_.clear();
  diagnostics_.clear();
}

}  // namespace sizewright
