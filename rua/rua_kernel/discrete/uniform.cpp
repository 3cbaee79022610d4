// Uniform integers: floors of uniform numbers in double, which hold every step of 32 bits.
#include "rua_kernel/service/uniform.hpp"

#include "base/export.hpp"
#include "rua_kernel/discrete/floors.hpp"

using namespace ork::rua;

ORK_EXPORT int32_t _ruaiRngUniform(int32_t, RuaStream* stream, int32_t n, int32_t* r, int32_t a,
                                   int32_t b) {
  return floors_by_blocks<double>(
      n, r, [=](int32_t m, double* x) { return uniform(stream, m, x, double(a), double(b)); });
}
