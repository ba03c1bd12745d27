#include "sizewright/host/messages.h"

#include <cstdarg>

#include "sizewright/host/host.h"
#include "sizewright/host/text.h"

namespace sizewright {

void UserInterface::print(std::string_view) {}
void UserInterface::box(void*, std::string_view, std::string_view, int) {}
void UserInterface::status(int, int, std::string_view) {}
void UserInterface::cursor(int) {}
void UserInterface::diagnostic(std::string_view) {}

void m_printf(const char* format, ...) {
  std::va_list arguments;
  va_start(arguments, format);
  currentHost().user().print(formatTextV(format, arguments));
  va_end(arguments);
}

void m_messageBox(void* owner, std::string_view text, std::string_view title, int flags) {
  currentHost().user().box(owner, text, title, flags);
}

void status_write(int percent, int level, std::string_view text) {
  currentHost().user().status(percent, level, text);
}

int DisplayMapper::GetNodeData(std::string_view stream, FixedText<256>& name) {
  const std::string_view known = currentHost().store().displayName(stream);
  if (known.empty()) return 0;
  name = known;
  return 1;
}

void st_prop_setup_get_warning_slot_name(int n, FixedText<128>& name) {
  name = formatText("Sizing Warning(s) %d", n);
}

}  // namespace sizewright
