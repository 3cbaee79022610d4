#pragma once
// Robust methods: Mahalanobis distances beside the symmetric product that they could be, robust
// covariance in seconds.
#include <chrono>

#include "ss_moments.hpp"

namespace robust {

// Ends the set-up of a task for distances of all its observations from 0.
struct Distances {
  std::vector<double> mean, a, d;
  int first = 0, last;
  Distances(moments::Call& t, int p, int n) : mean(p), a(p * p), d(n), last(n) {
    for (int k = 0; k < p * p; ++k) a[k] = 1. / (1 + k % p + k / p);
    const void* const fields[] = {&first, &last, mean.data(), a.data(), d.data()};
    std::copy(std::begin(fields), std::end(fields), reinterpret_cast<const void**>(t.task) + 81);
  }
};

inline void distances(Report& report) {
  report.line("# Mahalanobis distances: cycles per entry, double");
  report.line("     p     n       rows  columns    bound        symmetric product alone");
  for (const auto& [p, n] : {std::pair{2, 20000}, {10, 10000}, {32, 4000}, {100, 1000}}) {
    const double* const x = moments::data().x.data();
    double cycles[2];
    for (const int k : {0, 1}) {
      moments::Call t(p, n, k ? ORK_SS_COLUMNS : ORK_SS_ROWS, x, nullptr);
      const Distances prepared(t, p, n);
      cycles[k] = time_calls([&] { _ruadSSMahDistance(t.task); }, 200).least / (double(p) * n);
    }
    std::vector<double> a(p * p, 0.5), product(p * n);
    const double one = 1, zero = 0;
    const double symm = time_calls(
                            [&, p = p, n = n] {
                              ork_blas_xdsymm("L", "U", &p, &n, &one, a.data(), &p, x, &p, &zero,
                                              product.data(), &p);
                            },
                            200)
                            .least /
                        (double(p) * n);
    const double bound = p == 10    ? 4
                         : p == 100 ? 1.6 * symm
                                    : 0,
                 worst = std::max(cycles[0], cycles[1]);
    report.line(format("d %4d %7d  %7.2f  %7.2f  %7.2f %-6s %7.2f", p, n, cycles[0], cycles[1],
                       bound,
                       !bound           ? ""
                       : worst <= bound ? "met"
                                        : "MISSED",
                       symm));
  }
}

// n observations of p variables; a tenth of them lies elsewhere.
inline std::vector<double> contaminated(int p, int n) {
  std::mt19937 g(3);
  std::normal_distribution<double> gauss;
  std::vector<double> x(size_t(p) * n);
  for (int i = 0; i < n; ++i)
    for (int j = 0; j < p; ++j) x[size_t(j) * n + i] = gauss(g) + (i % 10 == 0 ? 6 : 0);
  return x;
}

inline void covariance(Report& report) {
  constexpr int p = 10, n = 100000;
  report.line(format("# robust covariance: seconds, p = %d, n = %d, double", p, n));
  report.line("  part                          one thread   bound          two  times one");
  const std::vector<double> rows = contaminated(p, n);
  std::vector<double> columns(rows.size()), mean(p), cov(p * p);
  for (int i = 0; i < n; ++i)
    for (int j = 0; j < p; ++j) columns[size_t(i) * p + j] = rows[size_t(j) * n + i];
  const int full = ORK_SS_FULL, four = 4;
  for (const int steps : {0, 100})
    for (const int layout : {ORK_SS_ROWS, ORK_SS_COLUMNS}) {
      const bool by_rows = layout == ORK_SS_ROWS;
      moments::Call t(p, n, layout, by_rows ? rows.data() : columns.data(), nullptr);
      const double parameters[] = {0.5, 0.001, 0.001, double(steps)};
      __ruadSSEditRCov(t.task, &full, &four, parameters, mean.data(), cov.data());
      const auto seconds = [&](const ork_threader& table) {
        double least = 1e300;
        for (int k = 0; k < 15; ++k) {
          const auto start = std::chrono::steady_clock::now();
          _ruadSSRobustCovariance(t.task, 0, 0, ORK_SS_TBS, 0, &table);
          const std::chrono::duration<double> time = std::chrono::steady_clock::now() - start;
          least = std::min(least, time.count());
        }
        return least;
      };
      const double one = seconds(ork_threader_serial), two = seconds(ork_threader_parallel),
                   bound = steps ? 0.7 : 0.3;
      report.line(format("d %-22s %-7s %8.3f  %8.3f %-7s %8.3f %6.2f (bound: 1.70)",
                         steps ? "the whole" : "up to the rejection", by_rows ? "rows" : "columns",
                         one, bound, one <= bound ? "met" : "MISSED", two, one / two));
    }
}

// Distance of a mean from 0, and condition of a covariance: 0 and 1 for the clean data.
struct Error {
  double bias, condition;
  Error(int p, const std::vector<double>& mean, std::vector<double> cov) {
    double square = 0;
    for (int j = 0; j < p; ++j) square += mean[j] * mean[j];
    bias = std::sqrt(square);
    std::vector<double> values(p), work(3 * p);
    int size = 3 * p, info = 0;
    ork_lapack_dsyev("N", "L", &p, cov.data(), &p, values.data(), work.data(), &size, &info);
    condition = values[p - 1] / values[0];
  }
};

// A share of standard Gaussian observations is replaced: by one point 6 away in each variable, by
// a standard cluster there, or by a cloud of ten times the scale around the same centre.
inline void breakdown(Report& report) {
  constexpr int n = 500;
  report.line(format("# outliers among n = %d: bias of the mean, condition of the covariance", n));
  report.line("                      robust                classical");
  const char* const kinds[] = {"point", "cluster", "cloud"};
  for (const int p : {2, 5, 10, 20})
    for (int kind = 0; kind < 3; ++kind)
      for (const int tenths : {1, 2, 3, 4}) {
        std::mt19937 g(p);
        std::normal_distribution<double> gauss;
        std::vector<double> x(size_t(p) * n), mean(p), cov(p * p);
        for (int i = 0; i < n; ++i)
          for (int j = 0; j < p; ++j) {
            double& v = x[size_t(j) * n + i] = gauss(g);
            if (i % 10 < tenths) v = kind == 0 ? 6 : kind == 1 ? 6 + v : 10 * v;
          }
        moments::Call t(p, n, ORK_SS_ROWS, x.data(), nullptr);
        const int full = ORK_SS_FULL;
        __ruadSSEditRCov(t.task, &full, nullptr, nullptr, mean.data(), cov.data());
        const int status =
            _ruadSSRobustCovariance(t.task, 0, 0, ORK_SS_TBS, 0, &ork_threader_serial);
        _ruadSSBasic(t.task, ORK_SS_COV, 0, ORK_SS_ONE_PASS, 0, &ork_threader_serial);
        const Error ours(p, mean, cov),
            theirs(p, std::vector(t.vectors.begin(), t.vectors.begin() + p), t.cov);
        report.line(format("%4d %-8s %2d %% %9.2f %9.1f    %9.2f %9.1f%s", p, kinds[kind],
                           10 * tenths, ours.bias, ours.condition, theirs.bias, theirs.condition,
                           status ? " FAILED" : ""));
      }
}

inline void run(Report& report) {
  distances(report);
  covariance(report);
  breakdown(report);
}

}  // namespace robust
