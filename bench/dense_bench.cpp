// The dense layer beside OpenBLAS: time-stamp cycles per multiply and add, double, by order n.
// Products of n columns, or rows, by 1000 (above 64: by n), as covariances are formed.
#include <dlfcn.h>

#include "ork/dense.h"
#include "support.hpp"

namespace {

// `name` of the peer, or null.
template <class F>
F* peer(const char* name) {
  static void* const library = dlopen("libopenblas.so.0", RTLD_NOW);
  return library ? reinterpret_cast<F*>(dlsym(library, name)) : nullptr;
}

std::vector<double> numbers(size_t count) {
  std::vector<double> x(count);
  for (size_t i = 0; i < count; ++i) x[i] = double(i * 7919 % 1001) / 1001 - 0.5;
  return x;
}

struct Row {
  const char* name;
  double ours, theirs;
};

// f(routine) makes the call; theirs is 0 where there is no peer. They take turns, so that a change
// of the processor's clock meets both.
template <class F, class Call>
Row row(const char* name, F* ours, const char* theirs, double operations, Call call) {
  const int runs = operations > 1e8 ? 2 : 15;
  const auto cycles = [&](F* f) {
    return f ? time_calls([&] { call(f); }, runs).least / operations : 0;
  };
  F* const other = peer<F>(theirs);
  Row row = {name, cycles(ours), cycles(other)};
  for (int turn = 0; turn < 4; ++turn) {
    row.ours = std::min(row.ours, cycles(ours));
    row.theirs = std::min(row.theirs, cycles(other));
  }
  return row;
}

void measure(Report& report, int n) {
  const int k = n <= 64 ? 1000 : n;
  const double one = 1, zero = 0, square = double(n) * n;
  const auto a = numbers(size_t(n) * k), b = numbers(size_t(n) * k), s = numbers(size_t(n) * n);
  std::vector<double> c(size_t(n) * n);
  const auto definite = [&] {
    for (size_t i = 0; i < c.size(); ++i) c[i] = s[i];
    for (int i = 0; i < n; ++i) c[i * (n + 1)] = n;
  };
  int info;
  const Row rows[] = {
      row("product A B'", ork_blas_dgemm, "dgemm_", square * k,
          [&](auto* f) {
            f("N", "T", &n, &n, &k, &one, a.data(), &n, b.data(), &n, &zero, c.data(), &n);
          }),
      row("product A' B", ork_blas_dgemm, "dgemm_", square * k,
          [&](auto* f) {
            f("T", "N", &n, &n, &k, &one, a.data(), &k, b.data(), &k, &zero, c.data(), &n);
          }),
      row("triangle of A A'", ork_blas_dsyrk, "dsyrk_", square * k / 2,
          [&](auto* f) { f("U", "N", &n, &k, &one, a.data(), &n, &zero, c.data(), &n); }),
      row("triangle of A' A", ork_blas_dsyrk, "dsyrk_", square * k / 2,
          [&](auto* f) { f("L", "T", &n, &k, &one, a.data(), &k, &zero, c.data(), &n); }),
      row("symmetric A B", ork_blas_xdsymm, "dsymm_", square * n,
          [&](auto* f) {
            f("L", "U", &n, &n, &one, s.data(), &n, a.data(), &n, &zero, c.data(), &n);
          }),
      row("Cholesky factor", ork_lapack_dpotrf, "dpotrf_", square * n / 6,
          [&](auto* f) {
            definite();
            f("U", &n, c.data(), &n, &info);
          }),
  };
  for (const Row& r : rows)
    report.line(
        format("%-18s %6d %8.2f %10.2f %7.2f", r.name, n, r.ours, r.theirs, r.theirs / r.ours));
}

}  // namespace

int main(int argc, char** argv) {
  Report report("dense", argc, argv);
  report.line("# cycles per multiply and add; a factor's time holds the copy of its matrix");
  report.line("  routine               n   cycles   OpenBLAS   ratio");
  for (const int n : {4, 10, 32, 64, 200, 600}) measure(report, n);
}
