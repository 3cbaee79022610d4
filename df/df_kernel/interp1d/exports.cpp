// The exported forms of the evaluators.
#include "interp1d/interpolate.hpp"

namespace ork::df {
namespace {

// The order of the arguments is part of the interface.
template <class T>
struct EvalArguments {
  int64_t nx;
  const T* x;
  int64_t xhint;
  T step;
  const T* ic_values;
  int64_t ic_type;
  int64_t n;
  const T* sites;
  T* const* y;
  int64_t ny, function, yhint, order;
  T* const* coeffs;
  const int32_t* cells;
  int32_t width;
  const int32_t* positions;
  T* results;
  int64_t apart;
  int64_t flags;
  const void* flag;
  int64_t count;
  const int32_t* flags4;

  Request request() const {
    Request request = read_request(flags, flag, width != 0);
    if (flags4 != nullptr)
      for (int k = 0, place = 0; k < 4; ++k) request.place[k] = flags4[k] != 0 ? place++ : -1;
    request.count = static_cast<int32_t>(count);
    return request;
  }
  // Outputs of the sites from `first` on.
  Output<T> output(int first) const {
    const ptrdiff_t per_site = static_cast<ptrdiff_t>(count);
    return {positions != nullptr ? results : results + first * per_site, per_site, 1,
            positions != nullptr ? positions + first : nullptr};
  }
  // Calls serve(first, n) for blocks of sites until one fails.
  template <class Serve>
  int by_blocks(Serve serve) const {
    const int total = n > 0 ? static_cast<int32_t>(n) : 0;
    for (int first = 0; first < total; first += block) {
      const int status = serve(first, total - first < block ? total - first : block);
      if (status < 0) return status;
    }
    return ORK_DF_OK;
  }
};

template <class T>
int evaluate(int kind, const EvalArguments<T>& a) {
  const auto fit = Fit<T>::of(a);
  const Request request = a.request();
  const Evaluator<T>& eval = evaluator<T>(kind);
  Located<T> located;
  return a.by_blocks([&](int first, int n) {
    const int status = eval.locate(fit, n, a.sites + first, a.cells + first, located);
    return status < 0 ? status
                      : eval.fill(fit, request, n, located, static_cast<int32_t>(a.function),
                                  a.output(first));
  });
}

template <class T>
int evaluate(int kind, const EvalArguments<T>& a, typename InterpCallback<T>::type* callback,
             void* params) {
  constexpr int on_stack = 1024;
  const auto fit = Fit<T>::of(a);
  const Request request = a.request();
  const ptrdiff_t by_function = static_cast<ptrdiff_t>((a.apart != 0 ? a.apart : block) * a.count);
  Located<T> located;
  const auto run = [&](T* values) {
    return a.by_blocks([&](int first, int n) {
      return interpolate_group(fit, kind, request, n, a.sites + first, a.cells + first, callback,
                               params, located, values, a.output(first), by_function);
    });
  };
  const uint64_t in_block = a.n < block ? a.n : block;
  const uint64_t needed = callback != nullptr ? in_block * fit.ny * a.count : 0;
  if (needed <= on_stack) {
    T values[on_stack];
    return run(values);
  }
  Scratch<T> values(needed);
  return values ? run(values.get()) : ORK_DF_NO_MEMORY;
}

}  // namespace
}  // namespace ork::df

#define ORK_EVAL_PARAMETERS(T)                                                                 \
  int64_t nx, const T *x, int64_t xhint, T step, const T *icValues, int64_t icType, int64_t n, \
      const T *sites, T *const *y, int64_t ny, int64_t function, int64_t yhint,                \
      int64_t splineOrder, T *const *coeffs, const int32_t *cells, int32_t widthFlag,          \
      const int32_t *positions, T *results, int64_t reserved, int64_t nDerivFlags,             \
      const void *derivFlags, int64_t count, const int32_t *flags4
#define ORK_EVAL_ARGUMENTS                                                                       \
  {                                                                                              \
    nx, x, xhint, step, icValues, icType, n, sites, y, ny, function, yhint, splineOrder, coeffs, \
        cells, widthFlag, positions, results, reserved, nDerivFlags, derivFlags, count, flags4   \
  }
#define ORK_EVALUATOR(name, letter, T, kind)                                             \
  ORK_EXPORT int ork_df_kernel_##letter##_##name##SplineEval32(ORK_EVAL_PARAMETERS(T)) { \
    return ork::df::evaluate<T>(ork::df::kind, ORK_EVAL_ARGUMENTS);                      \
  }                                                                                      \
  ORK_EXPORT int ork_df_kernel_##letter##_##name##SplineEval32CB(                        \
      ORK_EVAL_PARAMETERS(T), ork_df_interp_##letter* callback, void* params) {          \
    return ork::df::evaluate<T>(ork::df::kind, ORK_EVAL_ARGUMENTS, callback, params);    \
  }
#define ORK_EVALUATORS(name, kind)     \
  ORK_EVALUATOR(name, d, double, kind) \
  ORK_EVALUATOR(name, s, float, kind)

ORK_EVALUATORS(Linear, linear_kind)
ORK_EVALUATORS(Quadratic, quadratic_kind)
ORK_EVALUATORS(Cubic, cubic_kind)
ORK_EVALUATORS(QuadSubb, subbotin_kind)
ORK_EVALUATORS(Arbitr, arbitrary_kind)
ORK_EVALUATORS(StepLeft, step_left_kind)
ORK_EVALUATORS(StepRight, step_right_kind)
ORK_EVALUATORS(LookUp, look_up_kind)
