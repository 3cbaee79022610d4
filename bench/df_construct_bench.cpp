// Spline construction: time-stamp cycles per function and breakpoint on one thread, beside GSL
// in the same run.
//
//   df_construct_bench [--record]
#include <dlfcn.h>

#include <cmath>

#include "ork/df.h"
#include "support.hpp"

namespace {

constexpr int n = 1000;  // breakpoints

template <class T>
struct Api;
template <>
struct Api<double> {
  static constexpr char letter = 'd';
  static constexpr auto create = ork_df_kernel_dNewTask1D;
  static constexpr auto edit = ork_df_kernel_dEditPPSpline1D;
  static constexpr ork_df_construct *linear = ork_df_kernel_dDFLinearSpline1D,
                                    *quadratic = ork_df_kernel_dDFQuadraticSpline1D,
                                    *natural = ork_df_kernel_dDFNaturalCubicSpline1D,
                                    *standard = ork_df_kernel_dDFDefaultCubicSpline1D,
                                    *hermite = ork_df_kernel_dDFHermiteCubicSpline1D,
                                    *bessel = ork_df_kernel_dDFBesselCubicSpline1D,
                                    *akima = ork_df_kernel_dDFAkimaCubicSpline1D;
};
template <>
struct Api<float> {
  static constexpr char letter = 's';
  static constexpr auto create = ork_df_kernel_sNewTask1D;
  static constexpr auto edit = ork_df_kernel_sEditPPSpline1D;
  static constexpr ork_df_construct *linear = ork_df_kernel_sDFLinearSpline1D,
                                    *quadratic = ork_df_kernel_sDFQuadraticSpline1D,
                                    *natural = ork_df_kernel_sDFNaturalCubicSpline1D,
                                    *standard = ork_df_kernel_sDFDefaultCubicSpline1D,
                                    *hermite = ork_df_kernel_sDFHermiteCubicSpline1D,
                                    *bessel = ork_df_kernel_sDFBesselCubicSpline1D,
                                    *akima = ork_df_kernel_sDFAkimaCubicSpline1D;
};

// GSL's constructions, 0 where it is not installed.
struct Peer {
  double cspline = 0, akima = 0;

  void measure(Report& report, const std::vector<double>& x, const std::vector<double>& y) {
    void* blas = dlopen("libgslcblas.so.0", RTLD_NOW | RTLD_GLOBAL);
    void* gsl = blas != nullptr ? dlopen("libgsl.so.27", RTLD_NOW) : nullptr;
    if (gsl == nullptr) return report.line("GSL for i386 is not installed: no peer");
    const auto alloc =
        reinterpret_cast<void* (*)(const void*, size_t)>(dlsym(gsl, "gsl_interp_alloc"));
    const auto init = reinterpret_cast<int (*)(void*, const double*, const double*, size_t)>(
        dlsym(gsl, "gsl_interp_init"));
    const auto cycles = [&](const char* kind) {
      void* spline = alloc(*static_cast<void* const*>(dlsym(gsl, kind)), n);
      return time_calls([&] { init(spline, x.data(), y.data(), n); }).least / n;
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
  double bound;  // 0: none
  double peer;
};

template <class T>
void measure(Report& report, const Row& row) {
  std::vector<T> x(n), y(size_t(n) * row.ny), ic(n, T(0.5)), coeffs(size_t(n) * row.order * row.ny);
  for (int i = 0; i < n; ++i) x[i] = T(i) + T(0.3) * T(std::sin(7.0 * i));
  for (size_t i = 0; i < y.size(); ++i) y[i] = T(std::sin(0.1 * double(i)));
  const T ends[2] = {0, T(n - 1)}, bc[2] = {T(0.1), T(0.2)};
  const bool uniform = row.xhint == ORK_DF_X_UNIFORM, given = row.ic == 0;
  ork_df_task* task = nullptr;
  Api<T>::create(&task, n, uniform ? ends : x.data(), row.xhint, row.ny, y.data(), row.yhint, 0);
  Api<T>::edit(task, row.order, row.type, row.bc, bc, given, given ? ic.data() : nullptr,
               coeffs.data(), 0);
  if (!given) ork_df_kernel_iEditVal(task, ORK_DF_VAL_IC, row.ic);
  int code = 0;
  const double cycles =
      time_calls([&] { code = row.build(task, 0, 0, &ork_threader_serial); }).least / n / row.ny;
  ork_df_kernel_DeleteTask(&task);
  if (code != 0) return report.line(format("%s: code %d", row.name, code));

  std::string line =
      format("%c %-20s %4d %-8s %-5s %8.2f", Api<T>::letter, row.name, row.ny,
             uniform ? "uniform" : "free", row.yhint == ORK_DF_COLS ? "cols" : "rows", cycles);
  line += row.bound > 0 ? format(" %6.0f %-4s", row.bound, cycles <= row.bound ? "met" : "MISS")
                        : "            ";
  if (row.peer > 0) line += format(" %8.2f %6.2f", row.peer, row.peer / cycles);
  report.line(line);
}

template <class T>
void table(Report& report, Peer peer) {
  using A = Api<T>;
  const bool bounded = sizeof(T) == 8;  // GSL and the bounds are of double precision
  if (!bounded) peer = Peer();
  for (int ny : {1, 16}) {
    const double bound = !bounded ? 0 : ny == 1 ? 45 : 14;
    for (int64_t xhint : {0, 4})
      for (int64_t yhint : {0, 32})
        measure<T>(report, {"natural, free ends", A::natural, 4, 2, 2, 0, ny, xhint, yhint, bound,
                            peer.cspline});
    const Row rows[] = {
        {"natural, not-a-knot", A::natural, 4, 2, 1, 0, ny, 0, 0, bound, peer.cspline},
        {"linear", A::linear, 2, 0, 0, 0, ny, 0, 0, 0, 0},
        {"quadratic", A::quadratic, 3, 0, 128, 0, ny, 0, 0, 0, 0},
        {"Subbotin", A::quadratic, 3, 1, 12, 8, ny, 0, 0, 0, 0},
        {"default", A::standard, 4, 0, 2, 0, ny, 0, 0, 0, 0},
        {"Hermite", A::hermite, 4, 3, 2, 0, ny, 0, 0, 0, 0},
        {"Bessel", A::bessel, 4, 4, 2, 0, ny, 0, 0, 0, 0},
        {"Akima", A::akima, 4, 5, 0, 0, ny, 0, 0, 0, peer.akima},
    };
    for (const Row& row : rows) measure<T>(report, row);
  }
}

}  // namespace

int main(int argc, char** argv) {
  Report report("df_construct", argc, argv);
  std::vector<double> x(n), y(n);
  for (int i = 0; i < n; ++i) x[i] = i + 0.3 * std::sin(7.0 * i), y[i] = std::sin(0.1 * i);
  Peer peer;
  peer.measure(report, x, y);
  report.line(format("# %d breakpoints; cycles per function and breakpoint, one thread", n));
  report.line("  construction           ny grid     y       cycles  bound           GSL  ratio");
  table<double>(report, peer);
  table<float>(report, peer);
}
