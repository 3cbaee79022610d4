#pragma once
// Partitions, sites and splines with arbitrary coefficients, for the tests of search,
// interpolation and integration. Coefficients that join nowhere show a wrong piece at once.
#include <algorithm>
#include <deque>
#include <random>

#include "df/recorder.hpp"
#include "ork/df.h"
#include "support/blocks.hpp"
#include "support/memory.hpp"

template <class T>
struct Df;
#define ORK_DF_API(t, T)                                                                  \
  template <>                                                                             \
  struct Df<T> {                                                                          \
    using search_callback = ork_df_search_##t;                                            \
    using interp_callback = ork_df_interp_##t;                                            \
    using integr_callback = ork_df_integr_##t;                                            \
    static constexpr auto create = ork_df_kernel_##t##NewTask1D;                          \
    static constexpr auto edit = ork_df_kernel_##t##EditPPSpline1D;                       \
    static constexpr auto set = ork_df_kernel_##t##EditPtr;                               \
    static constexpr auto search = ork_df_kernel_##t##DFSearch1D;                         \
    static constexpr auto interpolate = ork_df_kernel_##t##DFInterpolate1D;               \
    static constexpr auto integrate = ork_df_kernel_##t##DFIntegrate1D;                   \
    static constexpr ork_df_simple_search_##t* simple[7][2] = {ORK_BOTH(t, Uniform),      \
                                                               ORK_BOTH(t, QuasiUniform), \
                                                               ORK_BOTH(t, Sorted),       \
                                                               ORK_BOTH(t, Peak),         \
                                                               ORK_BOTH(t, Hybrid),       \
                                                               ORK_BOTH(t, UserDef),      \
                                                               ORK_BOTH(t, UniUserDef)};  \
  };
#define ORK_BOTH(t, name) \
  { ork_df_kernel_##t##DF##name##Search1D, ork_df_kernel_##t##DF##name##Search1D32 }
ORK_DF_API(d, double)
ORK_DF_API(s, float)
#undef ORK_DF_API
#undef ORK_BOTH

// Copies of arrays, each ending at an inaccessible page.
class Lender {
 public:
  template <class T>
  T* operator()(const std::vector<T>& v) {
    T* p = pages_.emplace_back(v.size() * sizeof(T) + 1).template at_end<T>(int(v.size()));
    std::copy(v.begin(), v.end(), p);
    return p;
  }

 private:
  std::deque<GuardedPages> pages_;
};

enum class Grid { even, near_even, free, clustered, repeated };

// On an even grid of step 1/2 all cells are exact. xhint says what a task is told of it.
template <class T>
std::vector<T> make_grid(Grid grid, int nx, std::mt19937& random) {
  std::uniform_real_distribution<double> unit;
  std::vector<T> x(nx);
  for (int i = 0; i < nx; ++i) {
    const double even = -1.25 + 0.5 * i;
    switch (grid) {
      case Grid::even:
        x[i] = T(even);
        break;
      case Grid::near_even:
        x[i] = T(even + 0.125 * (unit(random) - 0.5));
        break;
      case Grid::free:
        x[i] = T(even + unit(random));
        break;
      case Grid::clustered:
        x[i] = T(std::pow(double(i) / nx, 8));
        break;
      case Grid::repeated:
        x[i] = T(std::floor(even / 2));
        break;
    }
  }
  std::sort(x.begin(), x.end());
  return x;
}
inline int64_t xhint_of(Grid grid) {
  return grid == Grid::even        ? ORK_DF_X_UNIFORM
         : grid == Grid::near_even ? ORK_DF_X_QUASI_UNIFORM
                                   : ORK_DF_X_NON_UNIFORM;
}

// Sites in and around the partition, among them breakpoints and the ends.
template <class T>
std::vector<T> make_sites(const std::vector<T>& x, int n, std::mt19937& random) {
  const double span = double(x.back()) - double(x.front());
  std::uniform_real_distribution<double> around(x.front() - 0.1 * span - 0.3,
                                                x.back() + 0.1 * span + 0.3);
  std::vector<T> site(n);
  for (T& s : site) s = random() % 4 == 0 ? x[random() % x.size()] : T(around(random));
  return site;
}

template <class T>
int plain_cell(const std::vector<T>& x, T s) {
  return s != s ? 0 : int(std::upper_bound(x.begin(), x.end(), s) - x.begin());
}

// A task over lent arrays, deleted at the end.
template <class T>
struct Spline {
  Grid grid;
  std::vector<T> x, y;
  int nx, ny, order, type;
  int64_t yhint = 0;
  std::vector<T> coeffs;
  int64_t ic = 0;
  std::vector<T> subgrid;  // as icValues
  Lender lend;
  ork_df_task* task = nullptr;

  Spline(Grid grid, int nx, int ny, int order, int type, std::mt19937& random, int64_t width = 0,
         int64_t yhint = 0, int64_t ic = 0)
      : grid(grid),
        x(make_grid<T>(grid, nx, random)),
        nx(nx),
        ny(ny),
        order(order),
        type(type),
        yhint(yhint),
        ic(ic) {
    std::uniform_real_distribution<double> unit(-1, 1);
    y.resize(size_t(nx) * ny);
    coeffs.resize(size_t(ny) * pieces() * order);
    for (T& v : y) v = T(unit(random));
    for (T& v : coeffs) v = T(unit(random));
    if (ic == 12)
      subgrid = {T(x[0] + 0.25 * (x[1] - x[0])), T(x[nx - 2] + 0.25 * (x[nx - 1] - x[nx - 2]))};
    if (ic == 8) {
      subgrid = {x[0]};
      for (int i = 1; i < nx; ++i) subgrid.push_back(T(x[i - 1] + 0.375 * (x[i] - x[i - 1])));
      subgrid.push_back(x[nx - 1]);
    }
    const std::vector<T> lent = grid == Grid::even ? std::vector<T>{x.front(), x.back()} : x;
    EXPECT_EQ(Df<T>::create(&task, nx, lend(lent), xhint_of(grid), ny, lend(y), yhint, width), 0);
    EXPECT_EQ(Df<T>::edit(task, order, type, 0, nullptr, ic, ic != 0 ? lend(subgrid) : nullptr,
                          order != 0 ? lend(coeffs) : nullptr, 0),
              0);
  }
  ~Spline() { ork_df_kernel_DeleteTask(&task); }

  int pieces() const { return type == ORK_DF_TYPE_SUBBOTIN ? nx : nx - 1; }
  bool steps() const { return order == 0; }
  T value(int f, int i) const { return yhint == ORK_DF_COLS ? y[i * ny + f] : y[f * nx + i]; }

  // Point c of the Subbotin sub-grid.
  T inner(int c) const {
    if (ic == 8) return subgrid[c];
    if (ic == 12)
      return nx == 2 ? subgrid[0] : T(subgrid[0] + (c - 1) * (subgrid[1] - subgrid[0]) / (nx - 2));
    return (x[c - 1] + x[c]) / 2;
  }
  int piece(T s, int cell) const {
    if (type == ORK_DF_TYPE_SUBBOTIN && order == 3)
      return cell < 1 ? 0 : cell >= nx ? nx - 1 : cell - 1 + (s >= inner(cell));
    return std::clamp(cell - 1, 0, steps() ? nx - 1 : nx - 2);
  }
  // Derivative k at s with the piece given; `size` is the sum of the terms' magnitudes.
  long double at(int f, int p, T s, int k, long double* size) const {
    long double sum = 0, d = (long double)s - x[p];
    *size = 0;
    if (steps()) {
      sum = k == 0 ? value(f, type == ORK_DF_TYPE_STEP_LEFT && p > 0 && s == x[p] ? p - 1 : p) : 0;
      return sum;
    }
    long double power = 1;
    for (int j = k; j < order; ++j, power *= d) {
      long double term = coeffs[(size_t(f) * pieces() + p) * order + j] * power;
      for (int m = 0; m < k; ++m) term *= j - m;
      sum += term, *size += std::abs(term);
    }
    return sum;
  }
  // Integral over piece p from d0 to d1, distances from x[p].
  long double over(int f, int p, long double d0, long double d1, long double* size) const {
    if (steps()) {
      *size += std::abs(value(f, p)) * (std::abs(d0) + std::abs(d1));
      return value(f, p) * (d1 - d0);
    }
    long double sum = 0, upper = 1, lower = 1;
    for (int j = 0; j < order; ++j) {
      const long double c = coeffs[(size_t(f) * pieces() + p) * order + j] / (long double)(j + 1);
      upper *= d1, lower *= d0;
      sum += c * (upper - lower), *size += std::abs(c) * (std::abs(upper) + std::abs(lower));
    }
    return sum;
  }
};
