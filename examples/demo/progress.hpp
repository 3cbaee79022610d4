#pragma once
// Progress of steps that take longer than a second, on standard error: one line that updates on
// a terminal, else a line every two seconds.
#include <chrono>
#include <string>

namespace demo {

class Progress {
 public:
  // A step begins; the one before has ended.
  void step(const std::string& name);
  // The step has come so far, from 0 to 1.
  void at(double fraction);
  // The last step has ended.
  void end();

 private:
  using Clock = std::chrono::steady_clock;
  std::string name_;
  Clock::time_point shown_;
  bool open_ = false;  // an unfinished line stands on the terminal
};

}  // namespace demo
