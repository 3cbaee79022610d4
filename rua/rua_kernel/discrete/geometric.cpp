// Geometric: floor(ln(u) / ln(1 - p)), the failures before the first success.
#include "base/export.hpp"
#include "ork/ss_math.h"
#include "rua_kernel/discrete/floors.hpp"
#include "rua_kernel/service/guard.hpp"
#include "rua_kernel/service/uniform.hpp"

using namespace ork::rua;

ORK_EXPORT int32_t _ruaiRngGeometric(int32_t, RuaStream* stream, int32_t n, int32_t* r, double p) {
  const CallbackGuard guard(least_ln_at_pole<float>);
  const float t = float(1.0 / __ruadLn(1.0 - p));
  return floors_by_blocks<float>(n, r, [=](int32_t m, float* x) {
    const int32_t status = uniform(stream, m, x, 0.0f, 1.0f);
    if (status < 0) return status;
    apply(Tables<float>::ln, m, x);
    each(m, x, [=](auto l) { return l * t; });
    return status;
  });
}
