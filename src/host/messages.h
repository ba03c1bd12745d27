#pragma once

#include <cstddef>
#include <string_view>

#include "sizewright/host/fixed_text.h"

namespace sizewright {

/// Flags of message boxes.
enum MessageFlags : int { kStopBox = 16, kWarningBox = 48 };

/// What a host shows to its user. Every call comes on the thread that the host is attached to, may
/// block it for as long as the user takes, and must not throw. By default nothing is shown.
class UserInterface {
 public:
  virtual ~UserInterface() = default;

  /// A plain text.
  virtual void print(std::string_view text);
  /// A message box. `owner` is the window that the sizing object was given, or null.
  virtual void box(void* owner, std::string_view text, std::string_view title, int flags);
  /// A line of progress; `percent` rises from 30 to 95 over one sizing.
  virtual void status(int percent, int level, std::string_view text);
  /// Shows one of the system's cursors, by number.
  virtual void cursor(int number);
  /// A fault in the use of the library or in stored data that leaves results as they are: a stale
  /// list handle, an unknown unit.
  virtual void diagnostic(std::string_view text);
};

/// Shows a text formed as by `printf`, whatever its length.
[[gnu::format(printf, 1, 2)]] void m_printf(const char* format, ...);
void m_messageBox(void* owner, std::string_view text, std::string_view title, int flags);
void status_write(int percent, int level, std::string_view text);

/// Display names of project objects.
class DisplayMapper {
 public:
  /// The name of a stream as people know it. Returns 1, or 0 and leaves `name`.
  static int GetNodeData(std::string_view stream, FixedText<256>& name);
};

/// Slot name for the n-th warning of a record, "Sizing Warning(s) n".
void st_prop_setup_get_warning_slot_name(int n, FixedText<128>& name);

}  // namespace sizewright
