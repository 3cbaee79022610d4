// Splines of every kind and boundary, in both precisions: coefficients, then values and
// derivatives at sites in and beside the partition, then integrals, then the cells of the sites.
#include <algorithm>

#include "accuracy/points.hpp"
#include "digests/digests.hpp"
#include "digests/threads.hpp"
#include "ork/df.h"

namespace {

template <class T>
struct Api;
#define ORK_API(t, T)                                                                         \
  template <>                                                                                 \
  struct Api<T> {                                                                             \
    static constexpr char letter[] = #t;                                                      \
    static constexpr auto make = ork_df_kernel_##t##NewTask1D;                                \
    static constexpr auto edit = ork_df_kernel_##t##EditPPSpline1D;                           \
    static constexpr auto search = ork_df_kernel_##t##DFSearch1D;                             \
    static constexpr auto interpolate = ork_df_kernel_##t##DFInterpolate1D;                   \
    static constexpr auto integrate = ork_df_kernel_##t##DFIntegrate1D;                       \
    static constexpr ork_df_construct* build[] = {                                            \
        ork_df_kernel_##t##DFLinearSpline1D,       ork_df_kernel_##t##DFQuadraticSpline1D,    \
        ork_df_kernel_##t##DFQuadraticSpline1D,    ork_df_kernel_##t##DFNaturalCubicSpline1D, \
        ork_df_kernel_##t##DFDefaultCubicSpline1D, ork_df_kernel_##t##DFHermiteCubicSpline1D, \
        ork_df_kernel_##t##DFBesselCubicSpline1D,  ork_df_kernel_##t##DFAkimaCubicSpline1D};  \
  };
ORK_API(d, double)
ORK_API(s, float)
#undef ORK_API

struct Kind {
  const char* name;
  int order, type, internal, boundaries[9];  // ended by -1
};
constexpr Kind kKinds[] = {
    {"linear", 2, 0, 0, {0, 64, -1}},
    {"quadratic", 3, 0, 0, {128, -1}},
    {"Subbotin", 3, 1, 8, {12, 36, 24, 48, -1}},
    {"natural", 4, 2, 0, {1, 2, 12, 36, 24, 48, 64, -1}},
    {"default", 4, 0, 2, {1, 2, 12, 36, 24, 48, 64, -1}},
    {"Hermite", 4, 3, 1, {1, 2, 12, 36, 24, 48, 64, -1}},
    {"Bessel", 4, 4, 0, {1, 2, 12, 36, 24, 48, 64, -1}},
    {"Akima", 4, 5, 0, {1, 2, 12, 36, 24, 48, 64, 0, -1}},
};

template <class T>
void digest_fit(const Kind& kind, int boundary, int nx, int ny, int xhint, int yhint,
                const ork_threader* threader, Digest& digest) {
  Random random{0xABCDEF12345};
  const auto noise = [&] { return T(2 * random.uniform() - 1); };
  std::vector<T> x(static_cast<size_t>(nx)), y(static_cast<size_t>(nx) * ny), internal;
  for (int i = 0; i < nx; ++i) x[size_t(i)] = T(i) / 4 + (xhint == 4 ? T(0) : noise() / 10);
  for (T& value : y) value = noise();
  const auto at = [&](int f, int i) -> T& {
    return y[size_t(yhint == 32 ? i * ny + f : f * nx + i)];
  };
  if (boundary == 64)
    for (int f = 0; f < ny; ++f) at(f, nx - 1) = at(f, 0);
  for (int i = 0; i < nx; ++i) internal.push_back(noise());
  if (kind.type == 1) {  // a sub-grid between the breakpoints
    internal.assign(1, x[0]);
    for (int i = 1; i < nx; ++i) internal.push_back((x[size_t(i) - 1] + x[size_t(i)]) / 2);
    internal.push_back(x.back());
  }
  if (xhint == 4) x = {x.front(), x.back()};
  const T boundary_values[] = {T(0.625), T(-1.375)};
  const int pieces = kind.type == 1 ? nx : nx - 1;
  std::vector<T> coefficients(static_cast<size_t>(pieces) * ny * kind.order, T(-1));

  ork_df_task* task = nullptr;
  digest.add(Api<T>::make(&task, nx, x.data(), xhint, ny, y.data(), yhint, 0));
  digest.add(Api<T>::edit(task, kind.order, kind.type, boundary,
                          boundary == 0 ? nullptr : boundary_values, kind.internal,
                          kind.internal ? internal.data() : nullptr, coefficients.data(), 0));
  digest.add(Api<T>::build[&kind - kKinds](task, 0, 0, threader));
  digest.add(coefficients);

  std::vector<T> sites;
  for (int i = 0; i < 600; ++i) sites.push_back(T(nx) / 4 * T(1.2 * random.uniform() - 0.1));
  std::vector<T> other = sites;
  std::reverse(other.begin(), other.end());
  for (const int hint : {0, int(ORK_DF_SITES_SORTED), int(ORK_DF_SITES_UNIFORM)}) {
    if (hint != 0) std::sort(sites.begin(), sites.end());
    if (hint == ORK_DF_SITES_UNIFORM) sites = {sites.front(), sites.back()};
    for (const int n : {1, 13, 600}) {
      std::vector<int32_t> cells(600, -1);
      digest.add(Api<T>::search(task, 0, n, sites.data(), hint, nullptr, cells.data(), nullptr,
                                nullptr, threader));
      digest.add(cells);
      const int32_t derivatives[] = {1, 0, 1};
      for (const int layout : {0, int(ORK_DF_RESULT_ROWS)}) {
        std::vector<T> results(size_t(600) * ny * 2, T(-1));
        digest.add(Api<T>::interpolate(task, 0, 0, n, sites.data(), hint, 3, derivatives, nullptr,
                                       results.data(), layout, nullptr, nullptr, nullptr, nullptr,
                                       nullptr, nullptr, nullptr, nullptr, nullptr, threader));
        digest.add(results);
        if (hint != 0) continue;
        digest.add(Api<T>::integrate(task, 0, n, sites.data(), 0, other.data(), 0, nullptr, nullptr,
                                     results.data(), layout, nullptr, nullptr, nullptr, nullptr,
                                     nullptr, nullptr, nullptr, nullptr, threader));
        digest.add(results);
      }
    }
  }
  ork_df_kernel_DeleteTask(&task);
}

template <class T>
void digest_all() {
  for (const Kind& kind : kKinds)
    for (const int* boundary = kind.boundaries; *boundary >= 0; ++boundary) {
      const std::string name = std::string("fit ") + Api<T>::letter + " " + kind.name +
                               ", boundary " + std::to_string(*boundary);
      if (!wanted(name)) continue;
      Digest digest;
      for (const int nx : {4, 17, 700})
        for (const int ny : {1, 6})
          for (const int xhint : {0, 2, 4})
            for (const int yhint : {0, 32})
              for (const ork_threader* threader : {&ork_threader_serial, &digests::kThree})
                digest_fit<T>(kind, *boundary, nx, ny, xhint, yhint, threader, digest);
      print(name, digest);
    }
}

}  // namespace

void digest_fits() {
  digest_all<double>();
  digest_all<float>();
}
