// Gaussian: the entries, and the method by the inverse of the distribution function.
#include "rua_kernel/continuous/gaussian.hpp"

#include "base/export.hpp"
#include "rua_kernel/service/elementwise.hpp"
#include "rua_kernel/service/guard.hpp"
#include "rua_kernel/service/uniform.hpp"

using namespace ork::rua;

namespace {

template <class R>
constexpr R kSqrt2 = 0x1.6a09e667f3bcdp+0;
template <>
constexpr float kSqrt2<float> = 0x1.6a09e6p+0f;

// At the ends of its range the inverse error function gives a large finite number; a logarithm of 0
// is the least one.
template <class R>
struct Ends {
  static constexpr double kLow = -0.7670519064056041, kHigh = 5.8635847487551676;
};
template <>
struct Ends<float> {
  static constexpr float kLow = -1.0837466f, kHigh = 3.832507f;
};

template <class R>
int32_t finite_ends(ork_error_record* e) {
  const bool pole = e->status == ZEM_STATUS_SINGULARITY;
  if (!pole && e->status != ZEM_STATUS_DOMAIN) return 0;
  if (pole && e->a1 == 0) return replace(e, kLeastLn<R>);
  return replace(e, e->a1 < 0 ? Ends<R>::kLow : Ends<R>::kHigh);
}

template <class R>
constexpr GaussianMethod<R>* kMethods[] = {box_muller<R>, box_muller2<R>, icdf<R>};

}  // namespace

// One uniform number from -1 to 1 each: sqrt(2) sigma erfinv(u) + a.
template <class R>
int32_t ork::rua::icdf(RuaStream* stream, int32_t n, R* r, R a, R sigma) {
  const int32_t status = uniform(stream, n, r, -1, 1);
  if (status < 0) return status;
  apply(Tables<R>::erf_inv, n, r);
  const R scale = kSqrt2<R> * sigma;
  each(n, r, [=](auto x) { return x * scale + a; });
  return status;
}

ORK_EXPORT int32_t _ruadRngGaussian(int32_t method, RuaStream* stream, int32_t n, double* r,
                                    double a, double sigma) {
  const CallbackGuard guard(finite_ends<double>);
  return kMethods<double>[method](stream, n, r, a, sigma);
}

ORK_EXPORT int32_t _ruasRngGaussian(int32_t method, RuaStream* stream, int32_t n, float* r, float a,
                                    float sigma) {
  const CallbackGuard guard(finite_ends<float>);
  return kMethods<float>[method](stream, n, r, a, sigma);
}
