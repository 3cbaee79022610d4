#pragma once
// Moments and covariance: cycles per entry of a 10 by 100000 matrix, in both layouts.
#include <dlfcn.h>

#include <cmath>
#include <random>

#include "ork/dense.h"
#include "ork/ss.h"
#include "support.hpp"

namespace moments {

constexpr int p = 10, n = 100000;

struct Data {
  std::vector<double> x = std::vector<double>(p * n), w = std::vector<double>(n);
  Data() {
    std::mt19937 g(1);
    std::normal_distribution<double> gauss;
    for (double& v : x) v = 3 + gauss(g);
    for (double& v : w) v = 0.5 + (g() % 16) / 16.0;
  }
};
inline const Data& data() {
  static const Data d;
  return d;
}

// One call with arrays for everything.
struct Call {
  int dimension, observations, layout, full = ORK_SS_FULL;
  ork_ss_task* task = nullptr;
  std::vector<double> vectors, cov;
  Call(int dimension, int observations, int layout, const double* x, const double* w)
      : dimension(dimension),
        observations(observations),
        layout(layout),
        vectors(16 * dimension),
        cov(dimension * dimension) {
    __ruadSSNewTask(&task, &this->dimension, &this->observations, &this->layout, x, w, nullptr, 0);
    double* v[16];
    for (int k = 0; k < 16; ++k) v[k] = &vectors[k * dimension];
    __ruadSSEditMoments(task, v[0], v[1], v[2], v[3], v[4], v[5], v[6]);
    __ruadSSEditTask(task, ORK_SS_EDIT_KURTOSIS, v[7]);
    __ruadSSEditTask(task, ORK_SS_EDIT_SKEWNESS, v[8]);
    __ruadSSEditCovCor(task, v[0], cov.data(), &full, nullptr, nullptr);
  }
  ~Call() { __ruaSSDeleteTask(&task); }
  double cycles(uint64_t estimates, uint64_t method,
                const ork_threader* table = &ork_threader_serial, int runs = 300) {
    const auto call = [&] {
      _ruadSSBasic(task, uint32_t(estimates), uint32_t(estimates >> 32), uint32_t(method), 0,
                   table);
    };
    return time_calls(call, runs).least / (double(dimension) * observations);
  }
};

// A plain loop over a variable, twice.
inline double plain_two_pass(const double* x) {
  volatile double sink;
  const auto work = [&] {
    for (int j = 0; j < p; ++j) {
      const double* v = x + j * n;
      double sum = 0;
      for (int i = 0; i < n; ++i) sum += v[i];
      const double mean = sum / n;
      double m2 = 0, m3 = 0, m4 = 0;
      for (int i = 0; i < n; ++i) {
        const double d = v[i] - mean, d2 = d * d;
        m2 += d2, m3 += d2 * d, m4 += d2 * d2;
      }
      sink = m2 + m3 + m4;
    }
  };
  return time_calls(work, 20).least / (double(p) * n);
}

// Variance, skewness and kurtosis, each with its own passes.
inline double gsl(const double* x) {
  void* library = dlopen("libgsl.so.27", RTLD_NOW);
  if (!library) return 0;
  typedef double (*Statistic)(const double*, size_t, size_t);
  const auto variance = Statistic(dlsym(library, "gsl_stats_variance"));
  const auto skew = Statistic(dlsym(library, "gsl_stats_skew"));
  const auto kurtosis = Statistic(dlsym(library, "gsl_stats_kurtosis"));
  volatile double sink;
  const auto work = [&] {
    for (int j = 0; j < p; ++j)
      sink = variance(x + j * n, 1, n) + skew(x + j * n, 1, n) + kurtosis(x + j * n, 1, n);
  };
  return time_calls(work, 3).least / (double(p) * n);
}

// Covariance as a program with OpenBLAS would compute it: means, a centred copy, dsyrk.
inline double open_blas(const double* x) {
  void* library = dlopen("libopenblas.so.0", RTLD_NOW);
  if (!library) return 0;
  const auto syrk = decltype(&ork_blas_dsyrk)(dlsym(library, "dsyrk_"));
  std::vector<double> centred(p * n), c(p * p);
  const double factor = 1.0 / (n - 1), zero = 0;
  const auto work = [&] {
    for (int j = 0; j < p; ++j) {
      const double* v = x + j * n;
      __m128d sum[4] = {};
      for (int i = 0; i + 8 <= n; i += 8)
        for (int k = 0; k < 4; ++k) sum[k] += _mm_loadu_pd(v + i + 2 * k);
      const __m128d all = (sum[0] + sum[1]) + (sum[2] + sum[3]);
      const __m128d mean = _mm_set1_pd((all[0] + all[1]) / n);
      for (int i = 0; i + 2 <= n; i += 2)
        _mm_storeu_pd(&centred[j * n + i], _mm_loadu_pd(v + i) - mean);
    }
    syrk("U", "T", &p, &n, &factor, centred.data(), &n, &zero, c.data(), &p);
  };
  return time_calls(work, 40).least / (double(p) * n);
}

// A sum over an array: what the memory alone lets two threads gain.
struct Reading {
  const double* x;
  size_t count;
  volatile double sums[64];  // a cache line each
};
inline void read_share(int index, int, int threads, void* context) {
  Reading& reading = *static_cast<Reading*>(context);
  const size_t each = reading.count / threads;
  const double* const x = reading.x + index * each;
  __m128d sum[4] = {};
  for (size_t i = 0; i + 8 <= each; i += 8) {
    _mm_prefetch(reinterpret_cast<const char*>(x + i + 512), _MM_HINT_T0);
    for (int k = 0; k < 4; ++k) sum[k] += _mm_loadu_pd(x + i + 2 * k);
  }
  const __m128d all = (sum[0] + sum[1]) + (sum[2] + sum[3]);
  reading.sums[8 * index] = all[0] + all[1];
}

// One thread and two, in turn: the least of each.
inline void threads(Report& report, uint64_t estimates) {
  constexpr int large = 1000000;
  std::vector<double> y(size_t(p) * large);
  for (size_t i = 0; i < y.size(); ++i) y[i] = data().x[i % (size_t(p) * n)];
  report.line(format("# threads: the same, n = %d (bound: 1.7 times one)", large));
  report.line("  work                          one      two  times one");
  const auto row = [&](const char* name, auto call) {
    double least[2] = {1e300, 1e300};
    for (int run = 0; run < 6; ++run)
      for (const int k : {0, 1}) {
        const double time =
            time_calls([&] { call(k ? &ork_threader_parallel : &ork_threader_serial); }, 3).least;
        least[k] = std::min(least[k], time / double(y.size()));
      }
    report.line(format("d %-24s %8.2f %8.2f %8.2f", name, least[0], least[1], least[0] / least[1]));
  };
  Reading reading{y.data(), y.size(), {}};
  row("reading alone", [&](const ork_threader* table) {
    table->parallel(table->max_threads(), &reading, read_share);
  });
  for (const uint64_t method : {ORK_SS_FAST, ORK_SS_ONE_PASS})
    for (const int layout : {ORK_SS_ROWS, ORK_SS_COLUMNS}) {
      Call big(p, large, layout, y.data(), nullptr);
      row(format("%s, %s", method == ORK_SS_FAST ? "fast" : "one-pass",
                 layout == ORK_SS_ROWS ? "rows" : "columns")
              .c_str(),
          [&](const ork_threader* table) {
            _ruadSSBasic(big.task, uint32_t(estimates), uint32_t(estimates >> 32), uint32_t(method),
                         0, table);
          });
    }
}

inline void run(Report& report) {
  report.line(format("# moments: cycles per entry, p = %d, n = %d, double", p, n));
  report.line("  estimates, method            rows  columns    bound   peer");
  const double* const x = data().x.data();
  constexpr uint64_t two = ORK_SS_MEAN | ORK_SS_CENTRAL2;
  constexpr uint64_t four =
      two | ORK_SS_CENTRAL3 | ORK_SS_CENTRAL4 | ORK_SS_SKEWNESS | ORK_SS_KURTOSIS;
  const double plain = plain_two_pass(x), theirs = gsl(x);
  const auto row = [&](const char* name, uint64_t estimates, uint64_t method, const double* w,
                       double bound, const std::string& peer) {
    Call rows(p, n, ORK_SS_ROWS, x, w), columns(p, n, ORK_SS_COLUMNS, x, w);
    const double a = rows.cycles(estimates, method), b = columns.cycles(estimates, method);
    report.line(format("d %-24s %8.2f %8.2f %8.2f %-7s %s", name, a, b, bound,
                       bound == 0                ? ""
                       : std::max(a, b) <= bound ? "met"
                                                 : "MISSED",
                       peer.c_str()));
  };
  row("mean, variance, fast", two, ORK_SS_FAST, nullptr, 1.5, "");
  row("mean, variance, one-pass", two, ORK_SS_ONE_PASS, nullptr, 3, "");
  row("four moments, fast", four, ORK_SS_FAST, nullptr, 3, "");
  row("four moments, one-pass", four, ORK_SS_ONE_PASS, nullptr, 8,
      format("plain two-pass loop %.2f, GSL %.2f%s", plain, theirs, theirs ? "" : " (not found)"));
  row("four moments, two-pass", four, ORK_SS_TWO_PASS, nullptr, 0, "");
  row("  weighted, fast", four, ORK_SS_FAST, data().w.data(), 0, "");
  row("  weighted, one-pass", four, ORK_SS_ONE_PASS, data().w.data(), 0, "");

  const double one = 1, zero = 0;
  std::vector<double> c(p * p);
  const auto syrk = [&](const char* trans, int ld) {
    return time_calls(
               [&] { ork_blas_dsyrk("U", trans, &p, &n, &one, x, &ld, &zero, c.data(), &p); }, 40)
               .least /
           (double(p) * n);
  };
  const double centred = open_blas(x);
  const double by_rows = syrk("T", n), by_columns = syrk("N", p);
  row("covariance, fast", ORK_SS_COV, ORK_SS_FAST, nullptr, 1.3 * std::max(by_rows, by_columns),
      format("rank-k update alone %.2f %.2f, OpenBLAS centred %.2f%s", by_rows, by_columns, centred,
             centred ? "" : " (not found)"));
  row("covariance, one-pass", ORK_SS_COV, ORK_SS_ONE_PASS, nullptr, 0, "");
  row("  weighted, fast", ORK_SS_COV, ORK_SS_FAST, data().w.data(), 0, "");

  threads(report, four);
}

}  // namespace moments
