// Uniform numbers: the generator's own, on request kept within the bounds.
#include "base/export.hpp"
#include "ork/rua_distributions.h"
#include "rua_kernel/service/elementwise.hpp"
#include "rua_sub_kernel/service/stream.hpp"

using namespace ork::rua;

namespace {

// a + (b - a) u may round to just beyond a bound.
template <class R, class Generate>
inline int32_t generate(Generate generator, int32_t method, RuaStream* stream, int32_t n, R* r, R a,
                        R b) {
  const int32_t status = generator(stream, n, r, a, b);
  if (status >= 0 && method & RUA_METHOD_ACCURATE)
    each(n, r, [=](auto x) { return at_most(b, at_least(a, x)); });
  return status;
}

}  // namespace

ORK_EXPORT int32_t _ruadRngUniform(int32_t method, RuaStream* stream, int32_t n, double* r,
                                   double a, double b) {
  return generate(properties(stream).dGenerate, method, stream, n, r, a, b);
}

ORK_EXPORT int32_t _ruasRngUniform(int32_t method, RuaStream* stream, int32_t n, float* r, float a,
                                   float b) {
  return generate(properties(stream).sGenerate, method, stream, n, r, a, b);
}
