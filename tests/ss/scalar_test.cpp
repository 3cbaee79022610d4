// Scalar functions against quad precision, by ulps.
#include <quadmath.h>

#include <cfenv>
#include <random>

#include "ork/ss_math.h"
#include "ork/zem.h"
#include "support/bits.hpp"
#include "support/pch.hpp"
#include "support/special.hpp"

namespace {

template <class R>
double ulps(R got, __float128 exact) {
  int exponent;
  frexpq(exact, &exponent);
  typedef std::numeric_limits<R> L;
  const int least = L::min_exponent - L::digits, unit = exponent - L::digits;
  return double(fabsq((__float128(got) - exact) / scalbnq(1, std::max(unit, least))));
}

std::mt19937_64 generator(11);
double uniform(double a, double b) {
  return std::uniform_real_distribution<double>(a, b)(generator);
}
template <class R>
R any_positive() {
  for (;;) {
    const R x = from_bits<R>(generator() >> (sizeof(R) == 8 ? 1 : 33));
    if (x > 0 && x <= largest<R>) return x;
  }
}

TEST(Scalars, LnIsWithinItsBound) {
  double worst = 0, worst_s = 0;
  const auto check = [&](double x) {
    worst = std::max(worst, ulps(__ruadLn(x), logq(x)));
    const float s = float(x);
    if (s > 0 && s <= largest<float>) worst_s = std::max(worst_s, ulps(__ruasLn(s), logq(s)));
  };
  for (int i = 0; i < 20000; ++i) {
    check(any_positive<double>());
    check(any_positive<float>());
    check(uniform(0.6, 1.5));
    check(1 + std::ldexp(uniform(-1, 1), -int(generator() % 50)));
  }
  // Ends of the intervals of the table.
  for (uint32_t high = 0x3FE60000; high <= 0x3FF60000; high += 0x2000)
    for (const int64_t off : {-1, 0, 1}) check(from_bits<double>((uint64_t(high) << 32) + off));
  for (const double x : {smallest_denormal<double>, smallest_normal<double>, largest<double>,
                         double(smallest_denormal<float>)})
    check(x);
  EXPECT_LE(worst, 0.52);
  EXPECT_LE(worst_s, 0.51);
  EXPECT_EQ(bits(__ruadLn(1)), bits(0.0));

  const int status = ork_zem_kernel_SetErrStatus(0);
  const uint32_t mode = ork_zem_kernel_GetMode();
  for (const double zero : {0.0, -0.0}) EXPECT_EQ(__ruadLn(zero), -inf<double>);
  EXPECT_EQ(__ruasLn(0), -inf<float>);
  EXPECT_EQ(__ruadLn(inf<double>), inf<double>);
  for (const double bad : {-1.0, -inf<double>, -smallest_denormal<double>, quiet_nan<double>})
    EXPECT_TRUE(std::isnan(__ruadLn(bad))) << bad;
  EXPECT_EQ(ork_zem_kernel_GetErrStatus(), 0);
  EXPECT_EQ(ork_zem_kernel_GetMode(), mode);
  ork_zem_kernel_SetErrStatus(status);
}

TEST(Scalars, LGammaIsWithinAnUlpAndClosesOnItsZeros) {
  double worst = 0, at = 0;
  const auto check = [&](double x) {
    const double error = ulps(__ruadLGamma(x), lgammaq(x));
    if (error > worst) worst = error, at = x;
  };
  for (int i = 0; i < 3000; ++i) {
    check(uniform(0, 3));
    check(uniform(2, 20));
    check(std::exp(uniform(-700, 699)));
    // A quad reference loses its own digits nearer to the zeros.
    for (const double zero : {1, 2})
      check(zero + std::ldexp(uniform(-1, 1), -int(generator() % 25)));
  }
  for (const double x : {0.5, 1.5, 2.5, 16.0, 0.25, 0.75, 1.25, smallest_denormal<double>, 2.5e305})
    for (const double y : {std::nextafter(x, 0), x, std::nextafter(x, inf<double>)})
      if (y > 0) check(y);
  EXPECT_LE(worst, 1) << at;
  // Beside the zeros: -Euler's constant, and one less it, times the distance.
  for (const double t : {1e-9, -1e-9, 0x1p-40, 0x1p-52}) {
    const __float128 euler = 0.57721566490153286060651209008240243Q, tq = t;
    const double one = 1 + t, two = 2 + 2 * t;
    const __float128 d1 = __float128(one) - 1, d2 = __float128(two) - 2;
    EXPECT_LE(ulps(__ruadLGamma(one), d1 * (-euler + d1 * 0.822467033424113218Q)), 1) << t;
    EXPECT_LE(ulps(__ruadLGamma(two), d2 * (1 - euler + d2 * 0.322467033424113218Q)), 1) << t;
    (void)tq;
  }
  for (int i = 0; i < 3000; ++i) {
    const double x = uniform(-30, 0);
    const __float128 exact = lgammaq(x);
    EXPECT_LE(double(fabsq(__ruadLGamma(x) - exact)), double(fabsq(exact)) * 0x1p-53 + 0x1p-58)
        << x;
  }
  EXPECT_EQ(bits(__ruadLGamma(1)), bits(0.0));
  EXPECT_EQ(bits(__ruadLGamma(2)), bits(0.0));
  for (const double pole : {0.0, -0.0, -1.0, -3.0, -0x1p60, -0x1p80, inf<double>, -inf<double>})
    EXPECT_EQ(__ruadLGamma(pole), inf<double>) << pole;
  EXPECT_EQ(__ruadLGamma(1e306), inf<double>);
  EXPECT_TRUE(std::isnan(__ruadLGamma(quiet_nan<double>)));

  // The unit may have been set to 53 bits.
  unsigned short control, narrow;
  asm volatile("fnstcw %0" : "=m"(control));
  narrow = (control & ~0x300) | 0x200;
  const double want = __ruadLGamma(7.3);
  asm volatile("fldcw %0" : : "m"(narrow));
  const double got = __ruadLGamma(7.3);
  unsigned short after;
  asm volatile("fnstcw %0" : "=m"(after));
  asm volatile("fldcw %0" : : "m"(control));
  EXPECT_EQ(bits(got), bits(want));
  EXPECT_EQ(after, narrow);
}

TEST(Scalars, FloorAndSqrtInEveryRoundingMode) {
  std::vector<double> xs = {0.0,          0.3,          0.5,          1,
                            1.5,          2.7,          1e9 + 0.5,    0x1p31,
                            0x1p31 + 0.5, 0x1p51 + 0.5, 0x1p52 - 0.5, 0x1p52,
                            0x1p53,       1e300,        inf<double>,  smallest_denormal<double>};
  for (int i = 0; i < 1000; ++i) xs.push_back(std::exp(uniform(-5, 40)));
  for (const int mode : {FE_TONEAREST, FE_DOWNWARD, FE_UPWARD, FE_TOWARDZERO})
    for (const double x : xs)
      for (const double y : {x, -x}) {
        const double want = std::floor(y);
        fesetround(mode);
        const double got = __ruadFloor(y);
        fesetround(FE_TONEAREST);
        ASSERT_EQ(bits(got), bits(want)) << y;
        ASSERT_EQ(bits(__ruadSqrt(std::abs(y))), bits(std::sqrt(std::abs(y))));
      }
  EXPECT_TRUE(std::isnan(__ruadFloor(quiet_nan<double>)));
  EXPECT_TRUE(std::isnan(__ruadSqrt(-1)));
}

}  // namespace
