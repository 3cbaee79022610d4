#include "powers/pow_s.hpp"

namespace ork {
namespace {

// In double no finite single leaves the range of normal numbers. From |q| = 1000 on the result
// is beyond single's range.
float pow_general(float a, float b, bool negative) {
  const f64x2 q = pow_exponent_s<Level::ha>(splat((double)a), splat((double)b));
  const double r = q[0] >= 1000    ? 0x1p1000
                   : q[0] <= -1000 ? 0x1p-1000
                                   : pow_exp2_s<Level::ha>(q, u32x4{})[0];
  return (float)(negative ? -r : r);
}

}  // namespace

int pow_rare(const float* a, const float* b, float* r) { return pow_special(a, b, r, pow_general); }

}  // namespace ork
