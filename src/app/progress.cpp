#include "sizewright/app/progress.h"

#include <fmt/format.h>
#include <unistd.h>

#include <cstdio>

namespace sizewright {

namespace {

constexpr std::size_t kBar = 30;
constexpr std::size_t kText = 40;
constexpr auto kPause = std::chrono::milliseconds(80);
constexpr const char* kClearLine = "\r\x1b[K";

}  // namespace

Progress::Progress(std::size_t items, bool quiet)
    : items_(items), quiet_(quiet), isTerminal_(::isatty(STDERR_FILENO) != 0) {}

Progress::~Progress() {
  if (isDrawn_) std::fputs(kClearLine, stderr);
}

void Progress::begin(std::string_view item) {
  item_ = item;
}

void Progress::step(int percent, std::string_view text) {
  if (quiet_ || !isTerminal_ || Clock::now() < next_) return;
  next_ = Clock::now() + kPause;
  draw((static_cast<double>(done_) + percent / 100.0) / static_cast<double>(items_), text);
}

void Progress::draw(double share, std::string_view text) {
  const auto filled = static_cast<std::size_t>(share * static_cast<double>(kBar));
  fmt::print(stderr, "{}[{:#<{}}{:.<{}}] {:3.0f} % {:.{}}", kClearLine, "", filled, "",
             kBar - filled, share * 100.0, fmt::format("{}: {}", item_, text), kText);
  std::fflush(stderr);
  isDrawn_ = true;
}

void Progress::finished() {
  ++done_;
  if (quiet_ || isTerminal_) return;
  if (done_ * 10 / items_ != (done_ - 1) * 10 / items_) {
    fmt::print(stderr, "{} of {} items sized\n", done_, items_);
  }
}

}  // namespace sizewright
