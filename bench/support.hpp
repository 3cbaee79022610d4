#pragma once
// Timing and tables shared by the benchmark programs.
#include <x86intrin.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

// Time-stamp cycles of one call of f, the least and the median of many short runs: other load
// on the machine lengthens runs, it cannot shorten them.
struct Cycles {
  double least, median;
};
template <class F>
Cycles time_calls(F f, int runs = 400) {
  std::vector<double> times;
  for (int i = 0; i < 3; ++i) f();
  for (int i = 0; i < runs; ++i) {
    _mm_lfence();
    const uint64_t start = __rdtsc();
    f();
    _mm_lfence();
    times.push_back(double(__rdtsc() - start));
  }
  std::sort(times.begin(), times.end());
  return {times.front(), times[times.size() / 2]};
}

// Lines go to the terminal and, at the end of a --record run of all rows, to
// bench/results/PROCESSOR/NAME.txt.
class Report {
 public:
  Report(const std::string& name, int argc, char** argv) {
    for (int i = 1; i < argc; ++i) {
      const std::string word = argv[i];
      if (word == "--root" && i + 1 < argc)
        root_ = argv[++i];
      else if (word == "--record")
        record_ = true;
      else
        names_.push_back(word);
    }
    if (record_ && !wants_all()) {
      std::puts("--record writes whole tables: no names beside it");
      std::exit(2);
    }
    const Processor here = processor();
    folder_ = root_ + "/bench/results/" + here.folder;
    path_ = folder_ + "/" + name + ".txt";
    line("# " + here.name + ", g++ " __VERSION__ ", " + today() + "; time-stamp cycles");
  }
  ~Report() {
    if (!record_) return;
    std::filesystem::create_directories(folder_);
    std::ofstream(path_) << text_;
  }
  Report(const Report&) = delete;
  void line(const std::string& text) {
    std::puts(text.c_str());
    std::fflush(stdout);
    text_ += text + "\n";
  }
  const std::string& root() const { return root_; }
  bool wants(const std::string& name) const {
    return names_.empty() || std::find(names_.begin(), names_.end(), name) != names_.end();
  }
  bool wants_all() const { return names_.empty(); }

 private:
  struct Processor {
    std::string name, folder;  // the folder is maker-family-model, as in amd-25-1
  };
  static Processor processor() {
    std::ifstream info("/proc/cpuinfo");
    std::string maker = "unknown", name = "unknown processor", family, model;
    for (std::string line; std::getline(info, line) && !line.empty();) {
      const auto value = [&] { return line.substr(line.find(':') + 2); };
      if (line.starts_with("vendor_id"))
        maker = value() == "AuthenticAMD" ? "amd" : value() == "GenuineIntel" ? "intel" : value();
      else if (line.starts_with("model name"))
        name = value();
      else if (line.starts_with("cpu family"))
        family = value();
      else if (line.starts_with("model\t"))
        model = value();
    }
    return {name + " (family " + family + ", model " + model + ")",
            maker + "-" + family + "-" + model};
  }
  static std::string today() {
    const std::time_t now = std::time(nullptr);
    char text[sizeof "2000-12-31"];
    std::strftime(text, sizeof text, "%F", std::gmtime(&now));
    return text;
  }
  std::string root_ = ".", folder_, path_, text_;
  std::vector<std::string> names_;
  bool record_ = false;
};

template <class... A>
std::string format(const char* pattern, A... arguments) {
  char text[500];
  std::snprintf(text, sizeof text, pattern, arguments...);
  return text;
}
