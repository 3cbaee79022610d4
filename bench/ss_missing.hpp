#pragma once
// Expectation-maximisation on incomplete data: cycles per entry and iteration, beside a loop that
// solves for each pattern through the dense layer.
#include <bit>
#include <cmath>
#include <fstream>
#include <map>
#include <random>

#include "ork/dense.h"
#include "ork/ss.h"
#include "support.hpp"

namespace missing {

constexpr int p = 20, n = 100000;
constexpr double rate = 0.1;

struct Data {
  std::vector<double> rows = std::vector<double>(p * n), columns = rows;
  std::map<std::vector<bool>, std::vector<int>> patterns;  // gaps, observations
  int gaps = 0;
  Data() {
    std::mt19937 g(1);
    std::normal_distribution<double> gauss;
    for (int i = 0; i < n; ++i) {
      const double common = gauss(g);
      std::vector<bool> gap(p);
      for (int j = 0; j < p; ++j) {
        double x = 3 + common + gauss(g);
        gap[j] = g() < rate * 0x1p32;
        if (gap[j]) x = std::bit_cast<double>(0xFFF8000000000000), ++gaps;
        rows[j * n + i] = columns[i * p + j] = x;
      }
      patterns[gap].push_back(i);
    }
  }
};

// Kilobytes, "VmRSS:" at present or "VmHWM:" at most since reset_most().
inline long kilobytes(const std::string& what) {
  std::ifstream status("/proc/self/status");
  for (std::string word; status >> word;)
    if (long value; word == what && status >> value) return value;
  return 0;
}
inline void reset_most() { std::ofstream("/proc/self/clear_refs") << 5; }

// Cycles of a call with so many iterations and one step of the chain, and its memory beyond the
// caller's.
inline double call(const Data& data, int layout, int iterations, long* memory) {
  const int dimension = p, count = n, five = 5, simulated_count = data.gaps;
  const double params[5] = {double(iterations), 1, 1e-300, 1, double(data.gaps)};
  std::vector<double> simulated(data.gaps);
  ork_ss_task* task;
  __ruadSSNewTask(&task, &dimension, &count, &layout,
                  layout == ORK_SS_ROWS ? data.rows.data() : data.columns.data(), nullptr, nullptr,
                  0);
  __ruadSSEditMissingVals(task, &five, params, nullptr, nullptr, nullptr, nullptr, &simulated_count,
                          simulated.data(), nullptr, nullptr);
  reset_most();
  const long before = kilobytes("VmRSS:");
  const uint64_t start = __rdtsc();
  _ruadSSMissingValues(task, 0, 0, ORK_SS_IMPUTATION, 0, nullptr);
  const double cycles = double(__rdtsc() - start);
  *memory = kilobytes("VmHWM:") - before;
  __ruaSSDeleteTask(&task);
  return cycles;
}

// One iteration by solving: for each pattern the inverse of what is observed, then the products of
// all completed observations at once.
inline double solving(const Data& data, int runs) {
  const double one = 1, zero = 0, minus_one = -1, share = 1.0 / n;
  std::vector<double> mean(p, 3), cov(p * p), rows(p * n), extra(p * p), inverse(p * p),
      cross(p * p), slopes(p * p), rest(p * p), x, z, sum(p);
  for (int i = 0; i < p; ++i)
    for (int j = 0; j < p; ++j) cov[i * p + j] = i == j ? 2 : 1;
  const auto work = [&] {
    std::fill(extra.begin(), extra.end(), 0.0);
    for (const auto& [gap, members] : data.patterns) {
      int missing[p], present[p], q = 0, r = 0, info, b = int(members.size());
      for (int j = 0; j < p; ++j) (gap[j] ? missing[q++] : present[r++]) = j;
      x.resize(size_t(b) * p), z.resize(size_t(b) * p);
      for (int i = 0; i < b; ++i)
        for (int k = 0; k < r; ++k)
          rows[members[i] * p + present[k]] = x[i * r + k] =
              data.columns[members[i] * p + present[k]] - mean[present[k]];
      if (q == 0) continue;
      for (int i = 0; i < r; ++i) {
        for (int k = 0; k < r; ++k) inverse[i * r + k] = cov[present[i] * p + present[k]];
        for (int a = 0; a < q; ++a) cross[a * r + i] = cov[missing[a] * p + present[i]];
      }
      ork_lapack_dpotrf("U", &r, inverse.data(), &r, &info);
      ork_lapack_dpotri("U", &r, inverse.data(), &r, &info);
      ork_blas_xdsymm("L", "U", &r, &q, &one, inverse.data(), &r, cross.data(), &r, &zero,
                      slopes.data(), &r);
      for (int a = 0; a < q; ++a)
        for (int c = 0; c < q; ++c) rest[a * q + c] = cov[missing[a] * p + missing[c]];
      ork_blas_dgemm("T", "N", &q, &q, &r, &minus_one, slopes.data(), &r, cross.data(), &r, &one,
                     rest.data(), &q);
      for (int a = 0; a < q; ++a)
        for (int c = 0; c < q; ++c) extra[missing[a] * p + missing[c]] += b * rest[a * q + c];
      ork_blas_dgemm("T", "N", &q, &b, &r, &one, slopes.data(), &r, x.data(), &r, &zero, z.data(),
                     &q);
      for (int i = 0; i < b; ++i)
        for (int a = 0; a < q; ++a) rows[members[i] * p + missing[a]] = z[i * q + a];
    }
    std::fill(sum.begin(), sum.end(), 0.0);
    for (int i = 0; i < n; ++i)
      for (int j = 0; j < p; ++j) sum[j] += rows[i * p + j];
    ork_blas_dsyrk("U", "N", &p, &n, &one, rows.data(), &p, &one, extra.data(), &p);
    for (int j = 0; j < p; ++j)
      for (int i = 0; i <= j; ++i)
        cov[j * p + i] = cov[i * p + j] = share * (extra[j * p + i] - sum[i] * share * sum[j]);
    for (int j = 0; j < p; ++j) mean[j] += share * sum[j];
  };
  double least = 1e300;
  for (int run = 0; run < runs; ++run) {
    const uint64_t start = __rdtsc();
    work();
    least = std::min(least, double(__rdtsc() - start));
  }
  return least;
}

inline void run(Report& report) {
  const Data data;
  constexpr double entries = double(p) * n;
  constexpr int few = 1, many = 9, runs = 12;
  report.line(
      format("# missing values: cycles per entry, p = %d, n = %d, %g missing at random, "
             "%d patterns, double",
             p, n, rate, int(data.patterns.size())));
  report.line("  work                         rows  columns   solving   ratio (bound 5)");
  double iteration[2], rest[2];
  long memory = 0;
  for (const int k : {0, 1}) {
    double least[2] = {1e300, 1e300};
    for (int run = 0; run < runs; ++run)
      for (const int which : {0, 1}) {
        long own;
        least[which] = std::min(
            least[which], call(data, k ? ORK_SS_COLUMNS : ORK_SS_ROWS, which ? many : few, &own));
        memory = std::max(memory, own);
      }
    iteration[k] = (least[1] - least[0]) / (many - few) / entries;
    rest[k] = least[0] / entries - few * iteration[k];
  }
  const double peer = solving(data, 3) / entries;
  report.line(format("d %-24s %8.2f %8.2f  %8.2f %7.2f %s", "one iteration", iteration[0],
                     iteration[1], peer, peer / std::max(iteration[0], iteration[1]),
                     peer >= 5 * std::max(iteration[0], iteration[1]) ? "met" : "MISSED"));
  report.line(format("d %-24s %8.2f %8.2f", "patterns, first step", rest[0], rest[1]));
  report.line(format("  memory of a call %.2f times the data (bound 3 with what it is called on)",
                     memory * 1024.0 / (8 * entries)));
}

}  // namespace missing
