#pragma once
// A spline construction as a record: what the task lends, and the coefficients that come out.
#include <algorithm>
#include <cmath>
#include <deque>
#include <string>
#include <vector>

#include "ork/df.h"
#include "support/memory.hpp"

enum class Kind { linear, quadratic, subbotin, natural, standard, hermite, bessel, akima };

template <class T>
struct FitApi;
#define ORK_FIT_API(t, T)                                                                     \
  template <>                                                                                 \
  struct FitApi<T> {                                                                          \
    static constexpr auto create = ork_df_kernel_##t##NewTask1D;                              \
    static constexpr auto edit = ork_df_kernel_##t##EditPPSpline1D;                           \
    static constexpr auto set = ork_df_kernel_##t##EditPtr;                                   \
    static constexpr ork_df_construct* build[] = {                                            \
        ork_df_kernel_##t##DFLinearSpline1D,       ork_df_kernel_##t##DFQuadraticSpline1D,    \
        ork_df_kernel_##t##DFQuadraticSpline1D,    ork_df_kernel_##t##DFNaturalCubicSpline1D, \
        ork_df_kernel_##t##DFDefaultCubicSpline1D, ork_df_kernel_##t##DFHermiteCubicSpline1D, \
        ork_df_kernel_##t##DFBesselCubicSpline1D,  ork_df_kernel_##t##DFAkimaCubicSpline1D};  \
  };
ORK_FIT_API(d, double)
ORK_FIT_API(s, float)
#undef ORK_FIT_API

struct KindFacts {
  const char* name;
  int order, type, least_nx;
};
inline constexpr KindFacts kind_facts[] = {
    {"linear", 2, 0, 2},  {"quadratic", 3, 0, 2}, {"Subbotin", 3, 1, 2}, {"natural", 4, 2, 3},
    {"default", 4, 0, 3}, {"Hermite", 4, 3, 3},   {"Bessel", 4, 4, 4},   {"Akima", 4, 5, 5}};

template <class T>
struct Fit {
  Kind kind;
  int nx, ny;
  int64_t xhint = 0, yhint = 0, bc = 0, ic = 0;
  std::vector<T> x{}, y{}, bc_values{}, ic_values{};  // y as the task reads it; x whole
  int64_t method = 0;
  const ork_threader* threader = &ork_threader_serial;

  std::vector<T> coeffs{};

  const KindFacts& facts() const { return kind_facts[int(kind)]; }
  int pieces() const { return kind == Kind::subbotin ? nx : nx - 1; }
  T value(int f, int i) const { return yhint == 32 ? y[i * ny + f] : y[f * nx + i]; }
  T& value(int f, int i) { return yhint == 32 ? y[i * ny + f] : y[f * nx + i]; }
  const T* piece(int f, int i) const { return &coeffs[(size_t(f) * pieces() + i) * facts().order]; }

  // Builds through the exported interface. Every array ends at an inaccessible page; a
  // coefficient that is never written stays -1.
  int build() {
    std::deque<GuardedPages> pages;
    const auto lend = [&](const std::vector<T>& v) -> T* {
      if (v.empty()) return nullptr;
      T* p = pages.emplace_back(v.size() * sizeof(T)).template at_end<T>(int(v.size()));
      std::copy(v.begin(), v.end(), p);
      return p;
    };
    coeffs.assign(size_t(ny) * pieces() * facts().order, T(-1));
    T* out = lend(coeffs);
    ork_df_task* task = nullptr;
    int code =
        FitApi<T>::create(&task, nx, lend(xhint == 4 ? std::vector<T>{x.front(), x.back()} : x),
                          xhint, ny, lend(y), yhint, 0);
    if (code == 0)
      code = FitApi<T>::edit(task, facts().order, facts().type, bc, lend(bc_values), 0, nullptr,
                             out, 0);
    if (code == 0 && !ic_values.empty())
      code = FitApi<T>::set(task, ORK_DF_PTR_IC, lend(ic_values));
    if (code == 0 && ic != 0) code = ork_df_kernel_iEditVal(task, ORK_DF_VAL_IC, ic);
    if (code == 0) code = FitApi<T>::build[int(kind)](task, 0, method, threader);
    if (task != nullptr) ork_df_kernel_DeleteTask(&task);
    std::copy(out, out + coeffs.size(), coeffs.begin());
    return code;
  }
  bool untouched() const {
    return std::all_of(coeffs.begin(), coeffs.end(), [](T c) { return c == T(-1); });
  }

  std::string name() const {
    return std::string(facts().name) + " nx " + std::to_string(nx) + " ny " + std::to_string(ny) +
           " x " + std::to_string(xhint) + " y " + std::to_string(yhint) + " bc " +
           std::to_string(bc) + " ic " + std::to_string(ic) + (sizeof(T) == 8 ? " d" : " s");
  }
};

// Deterministic irregular data in -1 .. 1.
inline double noise(int i) {
  const double s = std::sin(12.9898 * i + 78.233) * 43758.5453;
  return 2 * (s - std::floor(s)) - 1;
}

// Every boundary condition that a kind takes.
inline std::vector<int64_t> boundaries(Kind kind) {
  switch (kind) {
    case Kind::linear:
      return {0, 64};
    case Kind::quadratic:
      return {128};
    case Kind::subbotin:
      return {12, 36, 24, 48};
    case Kind::akima:
      return {1, 2, 12, 36, 24, 48, 64, 0};
    default:
      return {1, 2, 12, 36, 24, 48, 64};
  }
}

// A fit of the kind over irregular data; even grid for xhint 4.
template <class T>
Fit<T> make_fit(Kind kind, int64_t bc, int nx, int ny, int64_t xhint, int64_t yhint,
                int64_t ic = 0) {
  Fit<T> fit{kind, nx, ny, xhint, yhint, bc, ic};
  fit.x.resize(nx), fit.y.resize(size_t(nx) * ny);
  const T left = T(-1.25), step = T(0.75);
  for (int i = 0; i < nx; ++i)
    fit.x[i] = xhint == 4 ? left + T(i) * step : left + step * (T(i) + T(0.35 * noise(i)));
  for (int f = 0; f < ny; ++f)
    for (int i = 0; i < nx; ++i) fit.value(f, i) = T(noise(1000 * (f + 1) + i));
  if (bc == 64)
    for (int f = 0; f < ny; ++f) fit.value(f, nx - 1) = fit.value(f, 0);
  if (bc != 0) fit.bc_values = {T(0.625), T(-1.375)};
  if (kind == Kind::standard || kind == Kind::hermite)
    for (int i = 1; i < nx - 1; ++i) fit.ic_values.push_back(T(noise(77 + i)));
  if (kind == Kind::subbotin && fit.ic == 0) fit.ic = 8;
  return fit;
}
