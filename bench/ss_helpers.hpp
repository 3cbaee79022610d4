#pragma once
// The helpers of statistics: sorts and selection beside those of the C++ library, scalar
// functions beside the C library's.
#include <cmath>
#include <cstring>
#include <random>

#include "ork/ss_math.h"
#include "support.hpp"

namespace helpers {

// Cycles of work() after prepare(), the least of some runs.
template <class P, class W>
double time_after(P prepare, W work, int runs) {
  double least = 1e300;
  for (int i = 0; i < runs; ++i) {
    prepare();
    _mm_lfence();
    const uint64_t start = __rdtsc();
    work();
    _mm_lfence();
    least = std::min(least, double(__rdtsc() - start));
  }
  return least;
}

template <class R>
struct Sorts;
template <>
struct Sorts<double> {
  static constexpr char letter = 'd';
  static constexpr auto radix = v8_opxsSortRadixAscend_64f_I;
  static constexpr auto sort = __ruadQSort;
  static constexpr auto select = __ruadQSortSelect;
};
template <>
struct Sorts<float> {
  static constexpr char letter = 's';
  static constexpr auto radix = v8_opxsSortRadixAscend_32f_I;
  static constexpr auto sort = __ruasQSort;
  static constexpr auto select = __ruasQSortSelect;
};

// Means over several sets of Gaussian numbers: selection is a matter of luck with its pivots.
template <class R>
void sorts(Report& report) {
  using S = Sorts<R>;
  constexpr int n = 100000, sets = 8, runs = 24;
  std::vector<R> x(n), a(n), scratch(n);
  const R* const start = x.data();
  const auto prepare = [&] { std::memcpy(a.data(), start, n * sizeof(R)); };
  double radix = 0, quick = 0, standard = 0, one = 0, two = 0, nth = 0;
  for (int set = 0; set < sets; ++set) {
    std::mt19937 generator(set);
    std::normal_distribution<R> gauss;
    for (auto& v : x) v = gauss(generator);
    const auto timed = [&](auto work) {
      return time_after(prepare, work, runs) / (double(n) * sets);
    };
    radix += timed([&] { S::radix(a.data(), scratch.data(), n); });
    quick += timed([&] { S::sort(n, a.data()); });
    standard += timed([&] { std::sort(a.begin(), a.end()); });
    const int k = int((set + 0.5) / sets * n);
    one += timed([&] { S::select(n, a.data(), k); });
    two += timed([&] { S::select(n, a.data(), k), S::select(n, a.data(), k + 1); });
    nth += timed([&] { std::nth_element(a.begin(), a.begin() + k, a.end()); });
  }
  const auto row = [&](const char* name, double cycles, const char* bound, bool met,
                       const char* peer, double theirs) {
    report.line(format("%c %-26s %8.2f  %-22s %-7s %-16s %8.2f %6.2f", S::letter, name, cycles,
                       bound,
                       !*bound ? ""
                       : met   ? "met"
                               : "MISSED",
                       peer, theirs, theirs / cycles));
  };
  row("radix sort", radix, "5 x std::sort", standard >= 5 * radix, "std::sort", standard);
  row("quicksort", quick, "", true, "std::sort", standard);
  row("selection", one, "std::nth_element", one <= nth, "std::nth_element", nth);
  row("selection, two neighbours", two, "std::nth_element", two <= nth, "std::nth_element", nth);
}

template <class F, class G>
void scalar(Report& report, const char* name, const char* peer, double low, double high, F ours,
            G theirs) {
  constexpr int n = 1000;
  std::vector<double> x(n);
  std::mt19937 generator(5);
  for (auto& v : x) v = std::uniform_real_distribution<double>(low, high)(generator);
  volatile double sink;
  const auto timed = [&](auto f) {
    return time_calls(
               [&] {
                 for (const double v : x) sink = f(v);
               },
               50)
               .least /
           n;
  };
  const double mine = timed(ours), other = timed(theirs);
  report.line(format("d %-26s %8.2f  %-22s %-7s %-16s %8.2f %6.2f", name, mine, "", "", peer, other,
                     other / mine));
}

inline void run(Report& report) {
  report.line("# helpers: cycles per element, n = 100000 Gaussian numbers, or per call");
  report.line(
      "  helper                       cycles  bound                          peer             "
      "cycles  ratio");
  sorts<double>(report);
  sorts<float>(report);
  scalar(report, "logarithm", "log", 0.01, 100, __ruadLn, [](double x) { return std::log(x); });
  scalar(report, "log-gamma", "lgamma", 0.1, 30, __ruadLGamma,
         [](double x) { return std::lgamma(x); });
}

}  // namespace helpers
