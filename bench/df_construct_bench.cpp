// Spline construction: cycles of the time stamp counter per function and breakpoint, beside
// GSL in the same run. The least of many short repetitions.
#include <dlfcn.h>
#include <stdint.h>
#include <stdio.h>
#include <stdlib.h>
#include <x86intrin.h>

#include <cmath>
#include <vector>

#include "ork/df.h"
#include "ork/threader.h"

namespace {

template <class F>
double least_cycles(F run) {
  uint64_t least = ~0ull;
  for (int i = 0; i < 400; ++i) {
    const uint64_t start = __rdtsc();
    run();
    const uint64_t cycles = __rdtsc() - start;
    if (cycles < least) least = cycles;
  }
  return static_cast<double>(least);
}

template <class T>
struct Api;
template <>
struct Api<double> {
  static constexpr char letter = 'd';
  static constexpr auto create = ork_df_kernel_dNewTask1D;
  static constexpr auto edit = ork_df_kernel_dEditPPSpline1D;
  static constexpr ork_df_construct *linear = ork_df_kernel_dDFLinearSpline1D,
      *quadratic = ork_df_kernel_dDFQuadraticSpline1D, *natural = ork_df_kernel_dDFNaturalCubicSpline1D,
      *standard = ork_df_kernel_dDFDefaultCubicSpline1D, *hermite = ork_df_kernel_dDFHermiteCubicSpline1D,
      *bessel = ork_df_kernel_dDFBesselCubicSpline1D, *akima = ork_df_kernel_dDFAkimaCubicSpline1D;
};
template <>
struct Api<float> {
  static constexpr char letter = 's';
  static constexpr auto create = ork_df_kernel_sNewTask1D;
  static constexpr auto edit = ork_df_kernel_sEditPPSpline1D;
  static constexpr ork_df_construct *linear = ork_df_kernel_sDFLinearSpline1D,
      *quadratic = ork_df_kernel_sDFQuadraticSpline1D, *natural = ork_df_kernel_sDFNaturalCubicSpline1D,
      *standard = ork_df_kernel_sDFDefaultCubicSpline1D, *hermite = ork_df_kernel_sDFHermiteCubicSpline1D,
      *bessel = ork_df_kernel_sDFBesselCubicSpline1D, *akima = ork_df_kernel_sDFAkimaCubicSpline1D;
};

// Fills the least cycles per breakpoint of GSL's constructions, 0 where there is no GSL.
struct Peer {
  double cspline = 0, akima = 0;

  void measure(int n, const std::vector<double>& x, const std::vector<double>& y) {
    void* blas = dlopen("libgslcblas.so.0", RTLD_NOW | RTLD_GLOBAL);
    void* gsl = blas != nullptr ? dlopen("libgsl.so.27", RTLD_NOW) : nullptr;
    if (gsl == nullptr) {
      puts("GSL for i386 is not installed: no peer");
      return;
    }
    const auto alloc = reinterpret_cast<void* (*)(const void*, size_t)>(dlsym(gsl, "gsl_interp_alloc"));
    const auto init = reinterpret_cast<int (*)(void*, const double*, const double*, size_t)>(
        dlsym(gsl, "gsl_interp_init"));
    const auto cycles = [&](const char* kind) {
      void* spline = alloc(*static_cast<void* const*>(dlsym(gsl, kind)), static_cast<size_t>(n));
      return least_cycles([&] { init(spline, x.data(), y.data(), static_cast<size_t>(n)); }) / n;
    };
    cspline = cycles("gsl_interp_cspline");
    akima = cycles("gsl_interp_akima");
  }
};

struct Row {
  const char* name;
  ork_df_construct* build;
  int order, type, bc, ic;
  int ny;
  int64_t xhint, yhint;
  double bound;  // 0: none asked for
  double peer;
};

template <class T>
void measure(const Row& row, int n) {
  std::vector<T> x(n), y(static_cast<size_t>(n) * row.ny), ic(n, T(0.5));
  for (int i = 0; i < n; ++i) x[i] = T(i) + T(0.3) * T(std::sin(7.0 * i));
  for (size_t i = 0; i < y.size(); ++i) y[i] = T(std::sin(0.1 * static_cast<double>(i)));
  const T ends[2] = {0, T(n - 1)}, bc[2] = {T(0.1), T(0.2)};
  std::vector<T> coeffs(static_cast<size_t>(n) * row.order * row.ny);
  ork_df_task* task = nullptr;
  Api<T>::create(&task, n, row.xhint == ORK_DF_X_UNIFORM ? ends : x.data(), row.xhint, row.ny, y.data(),
                 row.yhint, 0);
  Api<T>::edit(task, row.order, row.type, row.bc, bc, row.ic == 0, row.ic == 0 ? ic.data() : nullptr,
               coeffs.data(), 0);
  if (row.ic != 0) ork_df_kernel_iEditVal(task, ORK_DF_VAL_IC, row.ic);
  int code = 0;
  const double cycles =
      least_cycles([&] { code = row.build(task, 0, 0, &ork_threader_serial); }) / n / row.ny;
  if (code != 0) printf("%s: code %d\n", row.name, code), exit(1);
  printf("%c %-24s %4d %-8s %-5s %8.2f", Api<T>::letter, row.name, row.ny,
         row.xhint == ORK_DF_X_UNIFORM ? "uniform" : "free",
         row.yhint == ORK_DF_COLS ? "cols" : "rows", cycles);
  row.bound > 0 ? printf(" %8.0f %s", row.bound, cycles <= row.bound ? "ok  " : "MISS") : printf("%14s", "");
  if (row.peer > 0) printf(" %8.2f %6.2f", row.peer, row.peer / cycles);
  puts("");
  ork_df_kernel_DeleteTask(&task);
}

template <class T>
void table(int n, Peer peer) {
  using A = Api<T>;
  const double one = sizeof(T) == 8 ? 45 : 0, many = sizeof(T) == 8 ? 14 : 0;
  if (sizeof(T) == 4) peer = Peer();
  for (int64_t xhint : {0, 4})
    for (int64_t yhint : {0, 32})
      for (int ny : {1, 16})
        measure<T>({"natural free end", A::natural, 4, 2, 2, 0, ny, xhint, yhint, ny == 1 ? one : many,
                    peer.cspline}, n);
  for (int ny : {1, 16}) {
    const Row rows[] = {
        {"natural not-a-knot", A::natural, 4, 2, 1, 0, ny, 0, 0, ny == 1 ? one : many, peer.cspline},
        {"linear", A::linear, 2, 0, 0, 0, ny, 0, 0, 0, 0},
        {"quadratic", A::quadratic, 3, 0, 128, 0, ny, 0, 0, 0, 0},
        {"Subbotin", A::quadratic, 3, 1, 12, 8, ny, 0, 0, 0, 0},
        {"default", A::standard, 4, 0, 2, 0, ny, 0, 0, 0, 0},
        {"Hermite", A::hermite, 4, 3, 2, 0, ny, 0, 0, 0, 0},
        {"Bessel", A::bessel, 4, 4, 2, 0, ny, 0, 0, 0, 0},
        {"Akima", A::akima, 4, 5, 0, 0, ny, 0, 0, 0, peer.akima},
    };
    for (const Row& row : rows) measure<T>(row, n);
  }
}

}  // namespace

int main() {
  const int n = 1000;
  std::vector<double> x(n), y(n);
  for (int i = 0; i < n; ++i) x[i] = i + 0.3 * std::sin(7.0 * i), y[i] = std::sin(0.1 * i);
  Peer peer;
  peer.measure(n, x, y);
  printf("%d breakpoints; cycles per function and breakpoint, one thread\n", n);
  printf("  %-24s %4s %-8s %-5s %8s %8s %4s %8s %6s\n", "construction", "ny", "grid", "y", "cycles", "bound",
         "", "GSL", "ratio");
  table<double>(n, peer);
  table<float>(n, peer);
}
