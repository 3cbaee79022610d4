// Extended exponential.
#include "heap/real/exp.hpp"

#include "base/export.hpp"

namespace {

using namespace ork::extended;

// |x| >= 2^11: the power in two factors. A denormal result is rounded where its last place is: the
// head, cut there, and the rest meet in one sum.
long double exp_wide(long double x) {
  if (x > 0xB.17217F7D1CF79ABp10L) return overflow();    // 11356.5234062941439
  if (x < -0xB.220C447D16F2AF4p10L) return underflow();  // -11400.1916786694205
  const Power p = exp_step(x);
  if (x > 0) return (p.high + p.low) * 0x1p8192L * wide_power_of_two(p.m - 8192);
  long double sum = p.high + p.low;
  if (p.m < -16382 || (p.m == -16382 && sum < 1)) {
    const long double shift = wide_power_of_two(-16382 - p.m);
    const long double head = (p.high + shift) - shift;
    sum = ((shift + head) + ((p.high - head) + p.low)) - shift;
  }
  const long double y = sum * 0x1p-8192L * wide_power_of_two(p.m + 8192);
  if (y < 0x1p-16382L) drop(underflow());
  return y;
}

}  // namespace

ORK_EXPORT long double ork_zem_kernel_expl_scalar(long double x) {
  const int e = exponent(x);
  if (e < 16394) return exp_moderate(x);
  if (e < special_exponent) return exp_wide(x);
  if (is_nan(x)) return quieted(x);
  return negative(x) ? 0 : x;
}
