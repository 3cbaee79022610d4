// The meter of the extended (64-bit) scalars against quad precision.
//
//   ork_accuracy_extended [NAME ...] [--points N]
//
// NAME is a function ("expl"); without one, all. Points: all borders between binades with their
// neighbours, random ones over each range, and for the trigonometric functions the numbers next to
// multiples of pi/4. Exit code 1 if a bound is exceeded. Errors count in the last of 64 places
// (below the normal range the denormals' place).
#include <quadmath.h>

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <string>
#include <vector>

#include "ork/zem_extended.h"

namespace {

using quad = __float128;
using wide = long double;

struct Range {
  wide low, high;
  bool logarithmic;
};
struct Function {
  const char* name;
  wide (*f)(wide);
  quad (*exact)(quad);
  double bound;
  bool both_signs, near_multiples;
  std::vector<Range> ranges;
};

template <int which>
wide of_pair(wide x) {
  wide r[2];
  (which < 2 ? ork_zem_kernel_sincosl_scalar : ork_zem_kernel_sinhcoshl_scalar)(x, &r[0], &r[1]);
  return r[which & 1];
}
// Reduced, head and tail, back to the argument: exact only where the reduction is.
constexpr wide least = 0x1p-16445L, most = 0x1.fffffffffffffffep16383L;

const std::vector<Function>& functions() {
#define F(name) #name, ork_zem_kernel_##name##_scalar
  static const std::vector<Function> all = {
      {F(expl),
       expq,
       0.55,
       true,
       false,
       {{1e-25L, 64, true},
        {-11400, 11356.5L, false},
        {-11400, -11355, false},
        {0.01L, 11356, true}}},
      {F(logl),
       logq,
       0.55,
       false,
       false,
       {{least, most, true}, {0.9L, 1.1L, false}, {0.5L, 2, false}, {0.9999L, 1.0001L, false}}},
      {F(log1pl),
       log1pq,
       0.6,
       false,
       false,
       {{least, most, true},
        {-0.0626L, 0.0626L, false},
        {-1, 1, false},
        {-0.99999L, -0.9L, false}}},
      {F(sqrtl), sqrtq, 0.501, false, false, {{least, most, true}}},
      {F(sinl),
       sinq,
       0.7,
       true,
       true,
       {{least, most, true}, {0, 8, false}, {0.01L, 2e9L, true}, {0, 1, false}}},
      {F(cosl),
       cosq,
       0.7,
       true,
       true,
       {{least, most, true}, {0, 8, false}, {0.01L, 2e9L, true}, {0, 1, false}}},
      {"sincosl sine", of_pair<0>, sinq, 0.7, true, true, {{1e-3L, 1e10L, true}}},
      {"sincosl cosine", of_pair<1>, cosq, 0.7, true, true, {{1e-3L, 1e10L, true}}},
      {F(tanl),
       tanq,
       0.7,
       true,
       true,
       {{least, most, true}, {0, 8, false}, {0.01L, 2e9L, true}, {0, 1, false}}},
      {F(sinhl),
       sinhq,
       0.7,
       true,
       false,
       {{least, 11356, true}, {0, 1, false}, {0.4L, 30, false}, {11000, 11357.2L, false}}},
      {F(coshl),
       coshq,
       0.7,
       true,
       false,
       {{least, 11356, true}, {0, 1, false}, {0.4L, 30, false}, {11000, 11357.2L, false}}},
      {"sinhcoshl sinh", of_pair<2>, sinhq, 0.7, true, false, {{1e-3L, 11000, true}}},
      {"sinhcoshl cosh", of_pair<3>, coshq, 0.7, true, false, {{1e-3L, 11000, true}}},
      {F(tanhl), tanhq, 0.75, true, false, {{least, 40, true}, {0, 1, false}, {0.4L, 30, false}}},
      {F(asinl), asinq, 0.75, true, false, {{least, 1, true}, {0, 1, false}, {0.999L, 1, false}}},
      {F(acosl), acosq, 0.75, true, false, {{least, 1, true}, {0, 1, false}, {0.999L, 1, false}}},
      {F(atanl),
       atanq,
       0.7,
       true,
       false,
       {{least, most, true}, {0, 3, false}, {0.003L, 300, true}}},
      {F(asinhl),
       asinhq,
       0.7,
       true,
       false,
       {{least, most, true}, {0, 3, false}, {0.1L, 1e13L, true}}},
      {F(acoshl),
       acoshq,
       0.7,
       false,
       false,
       {{1, most, true}, {1, 3, false}, {1, 1.001L, false}, {1, 1e13L, true}}},
      {F(atanhl), atanhq, 0.7, true, false, {{least, 1, true}, {0, 1, false}, {0.999L, 1, false}}},
  };
#undef F
  return all;
}

double error_of(wide got, quad exact) {
  if (std::isnan(got) || isnanq(exact)) return std::isnan(got) && isnanq(exact) ? 0 : INFINITY;
  // From half a place beyond the largest number on an infinity is right.
  if (std::isinf(got)) return fabsq(exact) > quad(most) && (got > 0) == (exact > 0) ? 0 : INFINITY;
  if (exact == 0) return got == 0 ? 0 : INFINITY;
  const int place = std::max(ilogbq(exact), -16382) - 63;
  return double(scalbnq(fabsq(quad(got) - exact), -place));
}

wide random_in(const Range& range, std::mt19937_64& bits) {
  const wide u = wide(bits() >> 1) * 0x1p-63L;
  if (!range.logarithmic) return range.low + (range.high - range.low) * u;
  // The exponent uniform, 64 random bits behind it.
  int low, high;
  std::frexp(range.low, &low);
  std::frexp(range.high, &high);
  for (;;) {
    const int e = low + int(bits() % unsigned(high - low + 1));
    const wide x = std::ldexp(wide(bits() | 1ull << 63), e - 64);
    if (x >= range.low && x <= range.high) return x;
  }
}

struct Worst {
  double error = 0;
  wide x = 0;
  long long points = 0;
};

void measure(const Function& f, wide x, Worst& worst) {
  for (const wide y : {x, -x}) {
    const double error = error_of(f.f(y), f.exact(y));
    ++worst.points;
    if (error > worst.error) worst.error = error, worst.x = y;
    if (!f.both_signs) break;
  }
}

Worst measure(const Function& f, int points) {
  Worst worst;
  std::mt19937_64 bits(1);
  const auto inside = [&](wide x) {
    for (const Range& r : f.ranges)
      if (x >= r.low && x <= r.high) return true;
    return false;
  };
  for (int e = -16445; e < 16384; e += std::abs(e) < 100 ? 1 : 1 + 400000 / points) {
    const wide border = std::ldexp(1.0L, e);
    wide below = border, above = border;
    if (inside(border)) measure(f, border, worst);
    for (int k = 0; k < 3; ++k) {
      below = std::nextafter(below, 0.0L), above = std::nextafter(above, most);
      if (inside(below)) measure(f, below, worst);
      if (inside(above)) measure(f, above, worst);
    }
  }
  static const struct {
    unsigned long long significand;
    int exponent;
  } nearest[] = {
#include "accuracy/nearest_multiples.inc"
  };
  if (f.near_multiples)
    for (const auto& n : nearest) measure(f, std::ldexp(wide(n.significand), n.exponent), worst);
  const int share = points / int(f.ranges.size()) / (f.both_signs ? 2 : 1);
  for (const Range& range : f.ranges)
    for (int i = 0; i < share; ++i) measure(f, random_in(range, bits), worst);
  return worst;
}

// Quotients of all sizes in all quadrants, and both arguments over the whole range.
double measure_atan2(int points, wide& at_y, wide& at_x) {
  std::mt19937_64 bits(2);
  double worst = 0;
  for (int i = 0; i < points; ++i) {
    wide x = random_in({least, most, true}, bits), y;
    if (i % 4 == 0)
      y = random_in({least, most, true}, bits);
    else
      y = std::ldexp(x, int(bits() % (i % 4 == 1 ? 160 : 20)) - (i % 4 == 1 ? 80 : 10)) *
          random_in({0.5L, 1, false}, bits);
    if (i & 4) x = -x;
    if (i & 8) y = -y;
    if (y == 0 || std::isinf(y)) continue;
    const double error = error_of(ork_zem_kernel_atan2l_scalar(y, x), atan2q(y, x));
    if (error > worst) worst = error, at_y = y, at_x = x;
  }
  return worst;
}

}  // namespace

int main(int argc, char** argv) {
  int points = 2000000, failures = 0;
  std::vector<std::string> names;
  for (int i = 1; i < argc; ++i)
    if (std::string(argv[i]) == "--points" && i + 1 < argc)
      points = std::atoi(argv[++i]);
    else
      names.push_back(argv[i]);
  const auto wanted = [&](const char* name) {
    for (const auto& n : names)
      if (n == name || std::string(name).starts_with(n + " ")) return true;
    return names.empty();
  };
  for (const Function& f : functions()) {
    if (!wanted(f.name)) continue;
    const Worst w = measure(f, points);
    std::printf("%-15s %6.3f of %.3f at %.21Lg (%La), %lld points%s\n", f.name, w.error, f.bound,
                w.x, w.x, w.points, w.error > f.bound ? " EXCEEDED" : "");
    failures += w.error > f.bound;
  }
  if (wanted("atan2l")) {
    wide y = 0, x = 0;
    const double worst = measure_atan2(points, y, x);
    std::printf("%-15s %6.3f of %.3f at (%.21Lg, %.21Lg), %d points%s\n", "atan2l", worst, 0.7, y,
                x, points, worst > 0.7 ? " EXCEEDED" : "");
    failures += worst > 0.7;
  }
  return failures != 0;
}
