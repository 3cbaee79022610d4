#include "pow/pow_s.hpp"

namespace ork {
namespace {

// In double no finite single leaves the range of normal numbers. From |q| = 1000 on the result
// is beyond single's range.
float pow_rare(float a, float b, bool negative) {
  f64x2 q;
  double r = pow_in_double<Level::ha>(splat((double)a), splat((double)b), q)[0];
  if (q[0] >= 1000) r = 0x1p1000;
  if (q[0] <= -1000) r = 0x1p-1000;
  return (float)(negative ? -r : r);
}

}  // namespace

int vspow_cout_rare(const float* a, const float* b, float* r) {
  return pow_special(a, b, r, pow_rare);
}

}  // namespace ork
