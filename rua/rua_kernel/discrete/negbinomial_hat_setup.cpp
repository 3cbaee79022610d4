// Where the hat of the negative binomial distribution stands, and the constants of its regions.
#include <stddef.h>

#include "ork/ss_math.h"
#include "rua_kernel/discrete/negbinomial_hat.hpp"
#include "rua_kernel/service/elementwise.hpp"

namespace ork::rua {

namespace {

double ceiling(double x) { return -__ruadFloor(-x); }

// Side 0 is the right one, 1 the left one, as regions are numbered.
struct Heights {
  double corner[2], end[2];
};

}  // namespace

HatCorners::HatCorners(double a, double p) : a(a), p(p), q(1 - p), b(a - 1) {
  m = double(float(b) * float(q)) / p;
  mode = __ruadFloor(m);
  const double near = float(m), h = __builtin_sqrt(near / p + 0.25);
  foot = near - 0.5 - h;
  foot = foot >= 1 ? __ruadFloor(foot) : 0;
  x1 = foot + 1;
  x2 = ceiling(near - 0.5 + h);
  const double d = (b + foot) * q;
  xl = d / (foot - d) + x1;
  xr = (1 + x2) / (1 + x2 - (a + x2) * q) + x2;
}

// ln f(y) = (y + 1/2) ln(q (y + b) / y) + b ln(y + b) + rest(y + b) - rest(y), less the same at the
// mode. Both logarithms are taken of what is near 1 around the mode: y and b may be large, and
// differences of f have to come out at its deviation.
void NegbinomialHat::set_up(const HatCorners& c) {
  using T = Tables<double>;
  b = c.b, p = c.p, bq = c.b * c.q, inverse = 1 / (c.mode + c.b);
  mode = int32_t(c.mode);
  double up = 1, down = 1;
  for (int k = 1; k <= kNear; ++k) {
    near[kNear + k] = float(up *= (b + c.mode + k) * c.q / (c.mode + k));
    const double y = c.mode - (k - 1);
    near[kNear - k] = float(down *= y / ((b + y) * c.q));
  }
  const auto log_f = [&](double y) {
    return (y + 0.5) * value(T::log1p, (bq - p * y) / y) +
           b * value(T::log1p, (y - c.mode) * inverse) + stirling_rest(1 / (y + b)) -
           stirling_rest(1 / y) - constant;
  };
  constant = 0;
  constant = log_f(c.mode);
  // From y = 2, where Stirling's formula is good enough.
  at_zero = float(log_f(2) - __ruadLn(c.a * c.q) - __ruadLn((c.a + 1) * c.q / 2));
  const auto f = [&](double y) -> double {
    const double k = y - c.mode;
    return k >= -kNear && k <= kNear ? near[int(k) + kNear] : value(T::exp, log_f(y));
  };

  const double right = __ruadFloor(c.xr), left = __ruadFloor(c.xl);
  Heights h = {{f(c.x2), f(c.foot)}, {f(right), f(left)}};
  const double inner[2] = {h.end[0] * right / ((b + right) * c.q),
                           h.end[1] * c.q * (c.a + left) / (left + 1)};
  const double ratios[2] = {(c.a + right) * c.q / (right + 1), c.q * (b + left) / left};
  double power[2], exponents[2] = {c.xr - 1 - right, c.xl - left};
  {
    const VectorMode mode_of_kernels;
    T::pow[kConstants](2, ratios, exponents, power);
  }
  const double widths[3] = {c.x2 - c.x1, c.xr - c.x2, c.x1 - c.xl};
  double logs[2], t[2];
  float areas[5] = {float(widths[0])};
  for (int side = 0; side < 2; ++side) {
    logs[side] = __ruadLn(ratios[side]);
    t[side] = h.end[side] * power[side];
    areas[1 + side] = float((0.5 * h.corner[side] + inner[side]) * widths[1 + side]);
    areas[3 + side] = float(t[side] / (side == 0 ? -logs[side] : logs[side]));
  }
  double total = 0, sum = 0;
  for (const float area : areas) total += area;
  for (int region = 0; region < 4; ++region)
    shares[region] = float(double(float(sum += areas[region])) / total);
  near[kNear] = float(double(float(total)) / total);
  const float all[6] = {0, shares[0], shares[1], shares[2], shares[3], near[kNear]};

  from = float(c.x1);
  width = float(widths[0]) / shares[0];
  middle = float(mode) + 0.5f;
  const double rise[2] = {(1 - h.corner[1]) / (c.mode - c.foot),
                          (1 - h.corner[0]) / -(c.x2 - c.mode)};
  rises[0] = float(rise[0]), ordinates[0] = float(1 - (c.mode + 1) * rise[0]);
  rises[1] = float(rise[1]), ordinates[1] = float(1 - rise[1] * c.mode);
  const double ends_of[2] = {c.xr, c.xl};
  for (int side = 0; side < 2; ++side) {
    const double g = inner[side] / h.corner[side], share = all[1 + side];
    const double ramp = (1 + 2 * g) / (all[2 + side] - share);
    const float w = float(widths[1 + side]), out = side == 0 ? -w : w;
    ends[side] = feet[side] = float(ends_of[side]);
    tops[side] = float(h.corner[side]);
    ramps[side] = float(ramp);
    bases[side] = float(g * g - share * ramp);
    starts[side] = ends[side] - float(g) * out;
    steps[side] = out;
    slopes[side] = tops[side] / out;
    log_ratios[side] = float(logs[side]);
    tails[side] = float(t[side] / (all[4 + side] - all[3 + side]));
  }
  seal = sum_of_words();
}

// Of products with odd numbers, so that words in each other's places show.
uint32_t NegbinomialHat::sum_of_words() const {
  uint32_t sum = 0x9E3779B9, words[offsetof(NegbinomialHat, seal) / sizeof(uint32_t)];
  __builtin_memcpy(words, this, sizeof words);
  uint32_t odd = 1;
  for (const uint32_t word : words) sum += word * (odd += 2);
  return sum;
}

}  // namespace ork::rua
