#pragma once
// Pooled covariance of eight groups that alternate at random: cycles per entry.
#include <Eigen/Dense>
#include <random>

#include "ork/ss.h"
#include "support.hpp"

namespace groups {

constexpr int p = 20, count = 8;

struct Sample {
  int n;
  std::vector<double> x;
  std::vector<int> group;
  explicit Sample(int n) : n(n), x(size_t(p) * n), group(n) {
    std::mt19937 g(1);
    std::normal_distribution<double> gauss;
    std::vector<double> numbers(100003);
    for (double& v : numbers) v = 3 + gauss(g);
    for (size_t i = 0; i < x.size(); ++i) x[i] = numbers[i % numbers.size()];
    for (int& k : group) k = int(g() % count);
  }
};

inline double ours(const Sample& s, int layout, const ork_threader* table, int runs) {
  int dimension = p, observations = s.n, full = ORK_SS_FULL;
  std::vector<double> mean(p), cov(p * p);
  ork_ss_task* task = nullptr;
  __ruadSSNewTask(&task, &dimension, &observations, &layout, s.x.data(), nullptr, nullptr, 0);
  __ruadSSEditPooledCovariance(task, s.group.data(), mean.data(), cov.data(), nullptr, nullptr,
                               nullptr);
  __ruaiSSEditTask(task, ORK_SS_EDIT_POOLED_COV_STORAGE, &full);
  const auto call = [&] {
    _ruadSSPooledCovariance(task, ORK_SS_POOLED_COV, 0, ORK_SS_ONE_PASS, 0, table);
  };
  const double cycles = time_calls(call, runs).least;
  __ruaSSDeleteTask(&task);
  return cycles / (double(p) * s.n);
}

// As a program would write it: the group's observations in a matrix, its mean, a centred product.
inline double eigen(const Sample& s, int runs) {
  typedef Eigen::Matrix<double, Eigen::Dynamic, Eigen::Dynamic, Eigen::RowMajor> Rows;
  const Eigen::Map<const Rows> x(s.x.data(), s.n, p);
  Eigen::MatrixXd pooled(p, p);
  volatile double sink;
  const auto call = [&] {
    pooled.setZero();
    for (int k = 0; k < count; ++k) {
      int members = 0;
      for (const int g : s.group) members += g == k;
      Rows own(members, p);
      for (int i = 0, to = 0; i < s.n; ++i)
        if (s.group[i] == k) own.row(to++) = x.row(i);
      own.rowwise() -= own.colwise().mean().eval();
      pooled.selfadjointView<Eigen::Lower>().rankUpdate(own.transpose());
    }
    pooled /= s.n - count;
    sink = pooled(p - 1, 0);
  };
  return time_calls(call, runs).least / (double(p) * s.n);
}

inline void run(Report& report) {
  report.line(format("# pooled covariance: cycles per entry, p = %d, %d groups, double", p, count));
  report.line("  observations             one      two  times one   Eigen, centred products");
  for (const int n : {100000, 1000000}) {
    const Sample sample(n);
    const int runs = n > 200000 ? 4 : 40;
    for (const int layout : {ORK_SS_COLUMNS, ORK_SS_ROWS}) {
      double least[2] = {1e300, 1e300}, peer = 1e300;
      for (int round = 0; round < 3; ++round) {  // in turn: load comes and goes
        for (const int k : {0, 1}) {
          const auto* table = k ? &ork_threader_parallel : &ork_threader_serial;
          least[k] = std::min(least[k], ours(sample, layout, table, runs));
        }
        if (layout == ORK_SS_COLUMNS) peer = std::min(peer, eigen(sample, runs));
      }
      const bool columns = layout == ORK_SS_COLUMNS;
      report.line(
          format("d %7d %-12s %8.2f %8.2f %10.2f%s   %s", n, columns ? "columns" : "rows", least[0],
                 least[1], least[0] / least[1],
                 n > 200000 && columns ? least[0] / least[1] >= 1.7 ? " met" : " MISSED 1.7" : "",
                 columns ? format("%8.2f", peer).c_str() : ""));
    }
  }
}

}  // namespace groups
