#pragma once

#include <chrono>
#include <cstddef>
#include <string>
#include <string_view>

namespace sizewright {

/// Tells on standard error how far a run has come: a bar on a terminal, otherwise a line whenever
/// another tenth of the items is done.
class Progress {
 public:
  Progress(std::size_t items, bool quiet);
  ~Progress();
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;

  void begin(std::string_view item);
  /// A step of the item at hand.
  void step(int percent, std::string_view text);
  void finished();

 private:
  using Clock = std::chrono::steady_clock;
  void draw(double share, std::string_view text);

  std::size_t items_;
  bool quiet_;
  bool isTerminal_;
  std::size_t done_ = 0;
  bool isDrawn_ = false;
  std::string item_;
  Clock::time_point next_ = Clock::now();
};

}  // namespace sizewright
