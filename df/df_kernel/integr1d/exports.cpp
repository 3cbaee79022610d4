// The exported forms of the integrators.
#include "integr1d/integration.hpp"

namespace ork::df {
namespace {

// The order of the arguments is part of the interface.
template <class T>
struct IntegralArguments {
  int64_t nx;
  const T* x;
  int64_t xhint;
  T step;
  T* const* coeffs;
  int64_t count;
  const T* left;
  const int32_t* left_cells;
  const T* right;
  const int32_t* right_cells;
  const T* ic_values;
  int64_t ic_type;
  T* const* y;
  int64_t ny, function, yhint, order;
  T* results;

  int pairs() const { return count > 0 ? static_cast<int32_t>(count) : 0; }
};

template <class T>
int integrate(int kind, const IntegralArguments<T>& a, const Middles<T>& middles) {
  const auto fit = Fit<T>::of(a);
  const Integrator<T> sum = integrator<T>(kind);
  const int total = a.pairs();
  for (int j = 0; j < total; j += block) {
    const int n = total - j < block ? total - j : block;
    Located<T> from, to;
    sum.locate(fit, n, a.left + j, a.left_cells + j, from);
    sum.locate(fit, n, a.right + j, a.right_cells + j, to);
    sum.integrate(fit, n, a.left + j, from, a.right + j, to, static_cast<int32_t>(a.function),
                  middles, a.results + j, 1);
  }
  return ORK_DF_OK;
}

template <class T>
int integrate(int kind, const IntegralArguments<T>& a, const Parts<T>& parts) {
  const auto fit = Fit<T>::of(a);
  constexpr int on_stack = 64;
  const auto run = [&](T* part) -> int {
    for (int j = 0; j < a.pairs(); ++j) {
      const int status =
          integrate_parts(fit, kind, parts, a.left[j], a.left_cells[j], a.right[j],
                          a.right_cells[j], a.results + static_cast<ptrdiff_t>(j) * fit.ny, part);
      if (status < 0) return status;
    }
    return ORK_DF_OK;
  };
  if (fit.ny <= on_stack) {
    T part[on_stack];
    return run(part);
  }
  Scratch<T> part(fit.ny);
  return part ? run(part.get()) : ORK_DF_NO_MEMORY;
}

}  // namespace
}  // namespace ork::df

#define ORK_INTEGRAL_PARAMETERS(T)                                                               \
  int64_t nx, const T *x, int64_t xhint, T step, T *const *coeffs, int64_t count, const T *left, \
      const int32_t *leftCells, const T *right, const int32_t *rightCells, const T *icValues,    \
      int64_t icType, T *const *y, int64_t ny, int64_t function, int64_t yhint,                  \
      int64_t splineOrder, int64_t, int64_t, const T *, const T *, T *results
#define ORK_INTEGRAL_ARGUMENTS                                                                  \
  {                                                                                             \
    nx, x, xhint, step, coeffs, count, left, leftCells, right, rightCells, icValues, icType, y, \
        ny, function, yhint, splineOrder, results                                               \
  }
#define ORK_INTEGRATOR(name, letter, T, kind)                                                     \
  ORK_EXPORT int ork_df_kernel_##letter##_Integrate##name##Spline(                                \
      ORK_INTEGRAL_PARAMETERS(T), const T* middles, int32_t cut0, int32_t cut1, int32_t cut2,     \
      int32_t cut3) {                                                                             \
    return ork::df::integrate<T>(ork::df::kind, ORK_INTEGRAL_ARGUMENTS,                           \
                                 ork::df::Middles<T>{middles, {cut0, cut1, cut2, cut3}});         \
  }                                                                                               \
  ORK_EXPORT int ork_df_kernel_##letter##_Integrate##name##SplineCB(                              \
      ORK_INTEGRAL_PARAMETERS(T), ork_df_integr_##letter* leftCallback, void* leftParams,         \
      ork_df_integr_##letter* rightCallback, void* rightParams,                                   \
      ork_df_integr_##letter* interiorCallback, void* interiorParams, const T*, int32_t, int32_t, \
      int32_t, int32_t) {                                                                         \
    return ork::df::integrate<T>(ork::df::kind, ORK_INTEGRAL_ARGUMENTS,                           \
                                 ork::df::Parts<T>{leftCallback, leftParams, interiorCallback,    \
                                                   interiorParams, rightCallback, rightParams});  \
  }
#define ORK_INTEGRATORS(name, kind)     \
  ORK_INTEGRATOR(name, d, double, kind) \
  ORK_INTEGRATOR(name, s, float, kind)

ORK_INTEGRATORS(Linear, linear_kind)
ORK_INTEGRATORS(Quad, quadratic_kind)
ORK_INTEGRATORS(Cub, cubic_kind)
ORK_INTEGRATORS(Subb, subbotin_kind)
ORK_INTEGRATORS(Arb, arbitrary_kind)
ORK_INTEGRATORS(PwL, step_left_kind)
ORK_INTEGRATORS(PwR, step_right_kind)
