#pragma once
// Outlier detection: a round beside a pass of the covariance, the start, and two threads.
#include "ss_helpers.hpp"
#include "ss_moments.hpp"

namespace outliers {

using moments::p;
constexpr int n = 1000000;

// Counts the computations that ask how many threads there are: quantiles, the detection itself and
// the moments of each round.
template <const ork_threader& table>
struct Counting {
  static inline int calls;
  static const ork_threader* get() {
    static ork_threader own = table;
    own.max_threads = [] { return ++calls, table.max_threads(); };
    return &own;
  }
};

struct Times {
  double covariance, one_round, round;  // cycles per entry
  int rounds;
};

template <const ork_threader& table>
Times measure(int layout, const double* x) {
  constexpr double entries = double(p) * n;
  moments::Call call(p, n, layout, x, nullptr);
  std::vector<double> weights(n);
  const int three = 3;
  const ork_threader* const counting = Counting<table>::get();
  const auto detect = [&](double tol) {
    const double params[] = {2, 0.05, tol};
    __ruadSSEditOutDetect(call.task, &three, params, weights.data());
    return helpers::time_after(
        [] { Counting<table>::calls = 0; },
        [&] { _ruadSSOutliersDetection(call.task, 0, 0, ORK_SS_BACON, 0, counting); }, 1);
  };
  const auto covariance = [&] {
    _ruadSSBasic(call.task, uint32_t(ORK_SS_COV), 0, ORK_SS_ONE_PASS, 0, &table);
  };
  double least[3] = {1e300, 1e300, 1e300};
  Times times{};
  for (int run = 0; run < 5; ++run) {
    least[0] = std::min(least[0], helpers::time_after([] {}, covariance, 3));
    least[1] = std::min(least[1], detect(1e9));  // one round in any case
    least[2] = std::min(least[2], detect(1e-9));
    times.rounds = Counting<table>::calls - 2;
  }
  times.covariance = least[0] / entries;
  times.one_round = least[1] / entries;
  times.round = (least[2] - least[1]) / (times.rounds - 1) / entries;
  return times;
}

inline void run(Report& report) {
  report.line(format(
      "# outliers: BACON, cycles per entry, p = %d, n = %d, a fifth outliers, double", p, n));
  report.line("  layout     covariance   round  bound          rounds  start and one  two threads");
  std::mt19937 g(2);
  std::normal_distribution<double> gauss;
  std::vector<double> columns(size_t(p) * n), rows(columns.size());
  for (int i = 0; i < n; ++i)
    for (int j = 0; j < p; ++j)
      rows[size_t(j) * n + i] = columns[size_t(i) * p + j] =
          i % 5 == 0 ? 6 + 0.5 * gauss(g) : gauss(g);
  for (const bool by_rows : {true, false}) {
    const int layout = by_rows ? ORK_SS_ROWS : ORK_SS_COLUMNS;
    const double* const x = by_rows ? rows.data() : columns.data();
    const Times one = measure<ork_threader_serial>(layout, x);
    const Times two = measure<ork_threader_parallel>(layout, x);
    report.line(format("d %-10s %8.2f %9.2f %6.2f %-7s %6d %13.2f %9.2f: %.2f times",  //
                       by_rows ? "rows" : "columns", one.covariance, one.round, 3 * one.covariance,
                       one.round <= 3 * one.covariance ? "met" : "MISSED", one.rounds,
                       one.one_round, two.round, one.round / two.round));
  }
}

}  // namespace outliers
