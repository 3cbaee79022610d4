// The chi-square distribution by the incomplete gamma functions: power series of P below x = a,
// continued fraction of Q above, and where either would take thousands of steps the uniform
// expansion around the normal limit; quantiles by Newton steps within a bracket, then bisection
// with a guess at the place.
#include "base/export.hpp"
#include "ork/ss_math.h"
#include "ork/zem_kernels.h"
#include "rua_sub_kernel/math/vector_mode.hpp"

namespace ork {
namespace {

constexpr double kLeastExponent = -709.7827129;  // below it exp counts as 0
constexpr double kNothing = -746;                // below it exp is 0, and would say so
constexpr double kEpsilon = 9.999999999999999e-16;
constexpr double kBig = 4503599627185248.0;  // rescales the continued fraction; also "no bound yet"
constexpr double kOneOverBig = 2.2204460491251566e-16;
constexpr double kLn2 = 0.6931471805999999;  // of the density; 4e-11 above ln 2
constexpr double kLargest = __DBL_MAX__;

double ln(double x) { return vector_call(ork_zem_kernel_dLn_ttab[1], x); }
double exp(double x) { return vector_call(ork_zem_kernel_dExp_ttab[1], x); }
double sqrt(double x) { return vector_call(ork_zem_kernel_dSqrt_ttab[1], x); }
double erf_inverse(double x) { return vector_call(ork_zem_kernel_dErfInv_ttab[1], x); }
double erfc(double x) { return vector_call(ork_zem_kernel_dErfc_ttab[1], x); }
double erfc_inverse(double x) { return vector_call(ork_zem_kernel_dErfcInv_ttab[1], x); }

// ln(x^a exp(-x) / Gamma(a))
double log_front(double a, double x) { return a * ln(x) - x - __ruadLGamma(a); }

// P(a, x) for x up to about a: front / a (1 + x/(a + 1) + x^2/((a + 1)(a + 2)) + ...).
double series(double a, double x) {
  const double e = log_front(a, x);
  if (e < kLeastExponent) return 0;
  double r = a, term = 1, sum = 1;
  do {
    r += 1;
    term = term * x / r;
    sum += term;
  } while (term / sum > kEpsilon);
  return exp(e) * sum / a;
}

// Q(a, x) for x from about a on: the convergents p/q of the continued fraction, times front.
double fraction(double a, double x) {
  if (x > kLargest) return 0;
  const double e = log_front(a, x);
  if (e < kLeastExponent) return 0;
  double y = 1 - a, z = x + y + 1, c = 0;
  double p2 = 1, q2 = x, p1 = x + 1, q1 = z * x;
  double value = p1 / q1, change;
  do {
    c += 1;
    y += 1;
    z += 2;
    const double yc = y * c;
    const double p = p1 * z - p2 * yc, q = q1 * z - q2 * yc;
    if (q != 0) {
      const double r = p / q;
      change = __builtin_fabs((value - r) / r);
      value = r;
    } else {
      change = 1;
    }
    p2 = p1, p1 = p, q2 = q1, q1 = q;
    if (__builtin_fabs(p) > kBig) {
      p2 *= kOneOverBig, p1 *= kOneOverBig;
      q2 *= kOneOverBig, q1 *= kOneOverBig;
    }
  } while (change > kEpsilon);
  return value * exp(e);
}

// From this a on (up to which the series takes some 10^4 terms) the expansion of N. M. Temme, "The
// asymptotic expansion of the incomplete gamma functions", 1979. With m = (x - a)/a and
// h = m sqrt(2 (m - ln(1 + m)))/m, y = h sqrt(a/2),
//
//   Q, P = erfc(+-y)/2 +- exp(-y^2)/sqrt(2 pi a) (c0(h) + c1(h)/a + ...)
//
// The terms left out are below 2e-16 of the result, however far out it lies.
constexpr double kLargeShape = 1e6;

class LargeShape {
 public:
  LargeShape(double a, double x) : a_(a) {
    const double m = (x - a) / a;
    beyond_ = a > kLargest ? (x > kLargest ? 0 : -1) : m > 0.1 ? 1 : m < -0.1 ? -1 : 0;
    if (beyond_ != 0) return;
    double sum = 0;  // 2 (m - ln(1 + m)) / m^2
    for (int k = 18; k >= 2; --k) sum = 2. / k - m * sum;
    h_ = m * __builtin_sqrt(sum);
    y_ = h_ * __builtin_sqrt(a / 2);
    if (y_ > kFar) beyond_ = 1;
    if (y_ < -kFar) beyond_ = -1;
  }
  double upper() const { return tail(1); }
  double lower() const { return tail(-1); }
  // Of the gamma distribution, relative to 1/12a.
  double density(double x) const { return exp(-y_ * y_) * __builtin_sqrt(a_ / kTwoPi) / x; }

 private:
  static constexpr double kFar = 26.5;  // erfc is near the least normal number
  static constexpr double kTwoPi = 6.283185307179586;

  double tail(double sign) const {
    if (beyond_ != 0) return beyond_ * sign > 0 ? 0 : 1;
    static constexpr double c0[] = {-1. / 3,   1. / 12,        -2. / 135, 1. / 864,
                                    1. / 2835, -139. / 777600, 1. / 25515};
    static constexpr double c1[] = {-1. / 540, -1. / 288, 1. / 378, -77. / 77760};
    const auto polynomial = [&](const auto& c) {
      double value = 0;
      for (int k = sizeof c / sizeof c[0] - 1; k >= 0; --k) value = value * h_ + c[k];
      return value;
    };
    const double rest = (polynomial(c0) + polynomial(c1) / a_) / __builtin_sqrt(kTwoPi * a_);
    return erfc(sign * y_) / 2 + sign * exp(-y_ * y_) * rest;
  }

  double a_, h_ = 0, y_ = 0;
  int beyond_;  // the side on which nothing is left, or 0
};

double upper(double a, double x) {
  if (x <= 0 || a <= 0) return 1;
  if (a >= kLargeShape) return LargeShape(a, x).upper();
  return x < 1 || x < a ? 1 - series(a, x) : fraction(a, x);
}

// The quantile of a large shape, by Newton steps on the smaller tail from the cube-root
// transformation, under which it is nearly normal with mean 1 - d and variance d.
double large_quantile(double a, double p) {
  const double side = p < 0.5 ? -1 : 1, target = p < 0.5 ? p : 1 - p, d = 1 / 9. / a;
  const double root = 1 - d + side * 1.4142135623730951 * erfc_inverse(2 * target) * sqrt(d);
  double x = a * root * root * root;
  for (int i = 0; i < 4; ++i) {
    const LargeShape at(a, x);
    const double tail = side > 0 ? at.upper() : at.lower(), density = at.density(x);
    if (tail == 0 || tail == 1 || density == 0) break;
    const double step = side * (tail - target) / density;
    x += step;
    if (__builtin_fabs(step) <= kEpsilon * x) break;
  }
  return x;
}

// The x with upper(a, x) = target, within a bracket that closes: upper(a, low) >= target >
// upper(a, high).
struct Search {
  double a, target;
  double low = 0, at_low = 1;
  double high = kBig, at_high = 0;
  double x = 0, step = 0.0625;

  void tighten(double y) {
    if (target > y) {
      high = x;
      at_high = y;
    } else {
      low = x;
      at_low = y;
    }
  }

  // At most ten Newton steps from x; true when x is the result. Leaves early where a step
  // falls out of the bracket or the density vanishes.
  bool newton() {
    const double g = __ruadLGamma(a);
    double s = 0;
    for (int i = 0; i < 10; ++i) {
      if (x > high || x < low || x <= 0) return false;
      const double y = upper(a, x);
      if (y < at_high || y > at_low) return false;
      tighten(y);
      const double e = (a - 1) * ln(x) - x - g;
      if (e < kLeastExponent) return false;
      s = (y - target) / -exp(e);
      if (__builtin_fabs(s / x) < kEpsilon) return true;
      x -= s;
    }
    step = s;
    return false;
  }

  // Moves x up by growing steps until it is an upper bound.
  void grow() {
    if (x <= 0) x = 1;
    for (;;) {
      x *= 1 + step;
      const double y = upper(a, x);
      if (!(y >= target)) {
        high = x;
        at_high = y;
        return;
      }
      step *= 2;
    }
  }

  // Steps to the fraction f of the bracket: the middle when the side changes, then where the
  // values at its ends point, then ever nearer to the end that does not move.
  void halve() {
    constexpr double tolerance = 5 * kEpsilon;
    double f = 0.5;
    int side = 0;
    for (int i = 0; i < 400; ++i) {
      x = low + f * (high - low);
      const double y = upper(a, x);
      if (__builtin_fabs((high - low) / (high + low)) < tolerance) return;
      if (__builtin_fabs((y - target) / target) < tolerance || x <= 0) return;
      if (y >= target) {
        low = x;
        at_low = y;
        if (side < 0)
          f = 0.5, side = 0;
        else if (side < 2)
          f = (target - at_high) / (at_low - at_high);
        else
          f = (f + 1) / 2;
        ++side;
      } else {
        high = x;
        at_high = y;
        if (side > 0)
          f = 0.5, side = 0;
        else if (side >= -1)
          f = (target - at_high) / (at_low - at_high);
        else
          f /= 2;
        --side;
      }
    }
  }
};

}  // namespace

ORK_EXPORT double _vdSSQ(double a, double x) { return upper(a, x); }

ORK_EXPORT double __ruadChi2CDF(double dof, double x) {
  const double a = dof / 2, y = x / 2;
  if (y <= 0 || a <= 0) return 0;
  if (a >= kLargeShape) return LargeShape(a, y).lower();
  return y > 1 && y > a ? 1 - upper(a, y) : series(a, y);
}

ORK_EXPORT double __ruadChi2PDF(double dof, double x) {
  if (x <= 0 || x > kLargest) return 0;
  const double a = dof / 2;
  const double e = (a - 1) * ln(x) - x / 2 - a * kLn2 - __ruadLGamma(a);
  return e < kNothing ? 0 : exp(e);
}

ORK_EXPORT double __ruadChi2ICDF(double dof, double p) {
  if (p <= 0) return 0;
  if (p >= 1) return kLargest;
  if (!(dof > 0) || p != p) return __builtin_nan("");
  if (dof / 2 >= kLargeShape) return dof > kLargest ? dof : 2 * large_quantile(dof / 2, p);
  Search search{dof / 2, 1 - p};
  const double d = 0.1111111111111111 / search.a;
  if (search.target < 1) {
    // Of the cube-root transformation: nearly normal, with mean 1 - d and variance d.
    const double root = 1 - d - erf_inverse(search.target) * sqrt(d);
    search.x = search.a * root * root * root;
    if (search.newton()) return 2 * search.x;
  }
  if (search.high == kBig) search.grow();
  search.halve();
  return 2 * search.x;
}

}  // namespace ork
