#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "sizewright/host/messages.h"

namespace sizewright {

/// Keeps what the library shows to the user, and passes progress on.
class MessageLog : public UserInterface {
 public:
  struct Dialog {
    bool isBox = false;  // a message box, otherwise a plain text
    std::string text;
    std::string title;  // of a box
    int flags = 0;      // of a box
  };
  struct Progress {
    int percent = 0;
    std::string text;
  };

  void print(std::string_view text) override;
  void box(void* owner, std::string_view text, std::string_view title, int flags) override;
  void status(int percent, int level, std::string_view text) override;
  /// Each distinct text is kept once.
  void diagnostic(std::string_view text) override;

  [[nodiscard]] const std::vector<Dialog>& dialogs() const { return dialogs_; }
  [[nodiscard]] const std::vector<Progress>& progress() const { return progress_; }
  [[nodiscard]] const std::vector<std::string>& diagnostics() const { return diagnostics_; }
  /// Forgets what was kept.
  void clear();

  /// Whether progress is kept; it always is passed on.
  void keepProgress(bool keep) { keepProgress_ = keep; }
  void onProgress(std::function<void(int percent, std::string_view text)> listener) {
    listener_ = std::move(listener);
  }

 private:
  std::vector<Dialog> dialogs_;
  std::vector<Progress> progress_;
  std::vector<std::string> diagnostics_;
  std::function<void(int, std::string_view)> listener_;
  bool keepProgress_ = true;
};

}  // namespace sizewright
