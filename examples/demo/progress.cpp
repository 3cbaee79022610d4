#include "progress.hpp"

#include <unistd.h>

#include <cstdio>

namespace demo {

using namespace std::chrono_literals;

void Progress::step(const std::string& name) {
  end();
  name_ = name;
  shown_ = Clock::now();
}

void Progress::at(double fraction) {
  const bool terminal = isatty(STDERR_FILENO);
  const auto wait = !open_ ? 1s : terminal ? 100ms : 2s;
  if (Clock::now() - shown_ < wait) return;
  shown_ = Clock::now();
  open_ = true;
  std::fprintf(stderr, terminal ? "\r%s: %3.0f %%" : "%s: %.0f %%\n", name_.c_str(),
               100 * fraction);
}

void Progress::end() {
  if (open_ && isatty(STDERR_FILENO)) std::fputs("\r\033[K", stderr);
  open_ = false;
}

}  // namespace demo
