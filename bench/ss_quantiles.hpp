#pragma once
// What rests on the order of data: cycles per entry of a 2 by 100000 matrix.
#include "ss_moments.hpp"

namespace quantiles {

using moments::n;
constexpr int p = 2;  // short runs, that the machine leaves alone

inline void run(Report& report) {
  const double* const x = moments::data().x.data();
  report.line(format("# quantiles: cycles per entry, p = %d, n = %d, double", p, n));
  report.line("  estimate                     rows  columns   peer");
  constexpr double entries = double(p) * n;
  const int one = 1, rows = ORK_SS_ROWS;
  const double half = 0.5, epsilon = 0.01;
  std::vector<double> result(p), low(p), high(p), sorted(size_t(p) * n), copy(n);
  const auto line = [&](const char* name, const std::string& peer, auto call) {
    double cycles[2];
    for (const int k : {0, 1}) {
      moments::Call t(p, n, k ? ORK_SS_COLUMNS : ORK_SS_ROWS, x, nullptr);
      __ruadSSEditQuantiles(t.task, &one, &half, result.data(), sorted.data(), &rows);
      __ruadSSEditStreamQuantiles(t.task, &one, &half, result.data(), &one, &epsilon);
      __ruadSSEditTask(t.task, ORK_SS_EDIT_MIN, low.data());
      __ruadSSEditTask(t.task, ORK_SS_EDIT_MAX, high.data());
      __ruadSSEditTask(t.task, ORK_SS_EDIT_MEDIAN_ABS_DEV, low.data());
      cycles[k] = time_calls([&] { call(t.task); }, 40).least / entries;
    }
    report.line(format("d %-24s %8.2f %8.2f   %s", name, cycles[0], cycles[1], peer.c_str()));
  };
  const double nth = time_calls(
                         [&] {
                           for (int j = 0; j < p; ++j) {
                             std::copy(x + j * n, x + (j + 1) * n, copy.begin());
                             std::nth_element(copy.begin(), copy.begin() + n / 2, copy.end());
                           }
                         },
                         40)
                         .least /
                     entries;
  const double standard = time_calls(
                              [&] {
                                for (int j = 0; j < p; ++j) {
                                  std::copy(x + j * n, x + (j + 1) * n, copy.begin());
                                  std::sort(copy.begin(), copy.end());
                                }
                              },
                              12)
                              .least /
                          entries;
  const ork_threader* const serial = &ork_threader_serial;
  line("median", format("std::nth_element %.2f", nth),
       [&](ork_ss_task* t) { _ruadSSQuantiles(t, ORK_SS_QUANTILES, 0, ORK_SS_FAST, 0, serial); });
  line("median, order statistics", format("std::sort %.2f (bound: 5 times)", standard),
       [&](ork_ss_task* t) {
         _ruadSSQuantiles(t, ORK_SS_QUANTILES | ORK_SS_ORDER_STATS, 0, ORK_SS_FAST, 0, serial);
       });
  line("minimum and maximum", "", [&](ork_ss_task* t) {
    _ruadSSMinmax(t, ORK_SS_MIN | ORK_SS_MAX, 0, ORK_SS_FAST, 0, serial);
  });
  line("median deviation", "",
       [&](ork_ss_task* t) { _ruadSSMAD(t, 0, 2, ORK_SS_FAST, 0, serial); });
  line("streaming, epsilon 0.01", "",
       [&](ork_ss_task* t) { _ruadSSStreamQuantiles(t, 0, 0, ORK_SS_STREAM_ADD, 0, serial); });
}

}  // namespace quantiles
