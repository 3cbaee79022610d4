// The chi-square distribution against the finite sums that Q(a, x) has for whole and half a.
#include <quadmath.h>

#include "ork/ss_math.h"
#include "support/control.hpp"
#include "support/pch.hpp"
#include "support/special.hpp"

namespace {

typedef __float128 Quad;

// Q(dof/2, x): exp(-x) sum x^k/k! over k < a, or erfc(sqrt x) + exp(-x) sum x^k/Gamma(k + 1) over
// the half-integers k < a. All terms are positive.
Quad upper(int dof, Quad x) {
  const bool half = dof % 2 != 0;
  Quad sum = 0;
  for (Quad k = half ? 0.5Q : 0; k < dof * 0.5Q; k += 1)
    sum += expq(k * logq(x) - x - lgammaq(k + 1));
  return half ? erfcq(sqrtq(x)) + sum : sum;
}
Quad density(int dof, Quad x) {
  const Quad a = dof * 0.5Q;
  const Quad ln2 = 0.6931471805999999;  // of the interface: 4e-11 above ln 2
  return expq((a - 1) * logq(x) - x / 2 - a * ln2 - lgammaq(a));
}
// Relative error of exp(a ln x - x - ln Gamma(a)) computed in double.
double front_error(double a, double x) {
  return (std::abs(a * std::log(x)) + x + std::abs(std::lgamma(a)) + 4) * 0x1p-51;
}

const int degrees[] = {1, 2, 3, 4, 5, 7, 10, 17, 30, 61, 100, 333, 1000};
const double places[] = {1e-6, 0.01, 0.1, 0.3, 0.5, 0.8, 0.95, 1, 1.05, 1.3, 1.7, 2, 3, 5, 9, 25};

TEST(ChiSquare, CumulativeAndDensityMatchFiniteSums) {
  for (const int dof : degrees)
    for (const double place : places) {
      const double x = dof * place, a = dof * 0.5, y = x / 2;
      const Quad q = upper(dof, y), p = 1 - q;
      const double error = front_error(a, y);
      // What is 1 less the other one has an absolute error. The fraction ends when a step changes
      // it by 1e-15; near x = a many steps as small would follow.
      const bool series = y < 1 || y < a;
      EXPECT_LE(double(fabsq(_vdSSQ(a, y) - q)),
                (series ? 0x1p-51 : double(q) * 0x1p-46) + double(series ? p : q) * error + 1e-305)
          << dof << " " << x;
      // The quad difference has lost its digits where p is tiny: look where it has not.
      if (p > 1e-20Q) {
        EXPECT_LE(double(fabsq(__ruadChi2CDF(dof, x) - p)), double(p) * (error + 0x1p-48))
            << dof << " " << x;
      }
      EXPECT_LE(double(fabsq(__ruadChi2PDF(dof, x) - density(dof, x))),
                double(density(dof, x)) * (2 * error) + 1e-307)
          << dof << " " << x;
    }
  // Half an exponential law, and what the lower tail starts with.
  EXPECT_NEAR(__ruadChi2CDF(2, 1e-300) / 0.5e-300, 1, 1e-12);
  EXPECT_NEAR(__ruadChi2CDF(1, 1e-20) / (std::sqrt(2 / M_PI) * 1e-10), 1, 1e-12);
}

TEST(ChiSquare, EndsAreExactAndLeaveTheStateAlone) {
  const StateGuard guard;
  const auto events = record_events([] {
    for (const double x : {0.0, -0.0, -1.0, -inf<double>}) {
      EXPECT_EQ(__ruadChi2CDF(3, x), 0);
      EXPECT_EQ(__ruadChi2PDF(3, x), 0);
      EXPECT_EQ(_vdSSQ(1.5, x), 1);
    }
    EXPECT_EQ(_vdSSQ(0, 1), 1);
    EXPECT_EQ(_vdSSQ(-2, 1), 1);
    for (const double x : {5000.0, 1e10, 1e300, inf<double>}) {
      EXPECT_EQ(__ruadChi2CDF(3, x), 1);
      EXPECT_EQ(__ruadChi2PDF(3, x), 0);
      EXPECT_EQ(_vdSSQ(1.5, x), 0);
    }
    EXPECT_EQ(__ruadChi2ICDF(3, 0), 0);
    EXPECT_EQ(__ruadChi2ICDF(3, -1), 0);
    EXPECT_EQ(__ruadChi2ICDF(3, 1), largest<double>);
    EXPECT_EQ(__ruadChi2ICDF(3, 2), largest<double>);
    EXPECT_TRUE(std::isnan(__ruadChi2ICDF(3, quiet_nan<double>)));
    EXPECT_TRUE(std::isnan(__ruadChi2CDF(3, quiet_nan<double>)));
  });
  EXPECT_EQ(events.size(), 0u);

  // A caller's mode comes back, and its flushing of denormals does not reach the kernels.
  const uint32_t mode = ORK_ZEM_EP | ORK_ZEM_ERRMODE_IGNORE | ORK_ZEM_DENORMAL_ZERO;
  const double plain = __ruadChi2PDF(7, 4.5);
  ork_zem_kernel_SetMode(mode);
  EXPECT_EQ(__ruadChi2PDF(7, 4.5), plain);
  EXPECT_EQ(ork_zem_kernel_GetMode(), mode);
}

TEST(ChiSquare, InverseHitsItsProbability) {
  for (const int dof : degrees)
    for (const double p : {1e-12, 1e-6, 0.001, 0.01, 0.05, 0.1, 0.3, 0.5, 0.7, 0.9, 0.95, 0.975,
                           0.99, 0.999, 1 - 1e-6, 1 - 1e-10, 1 - 0x1p-52}) {
      const double x = __ruadChi2ICDF(dof, p), target = 1 - p;
      const double error = front_error(dof * 0.5, x / 2);
      // Found when Q agrees, or when the bracket has closed on x.
      const double slack = double(density(dof, x)) * x * 0x1p-46;
      EXPECT_LE(double(fabsq(upper(dof, Quad(x) / 2) - target)),
                target * 1e-14 + 0x1p-50 * (p < 0.5) + error * std::min(p, target) + slack)
          << dof << " " << p << " " << x;
    }
  // 1 - p is 1: the least that can be told from 0, of which the lower tail is never far.
  const double least = __ruadChi2ICDF(100, 1e-30);
  EXPECT_GT(least, 5);
  EXPECT_LT(least, __ruadChi2ICDF(100, 1e-12));
}

// The table: power series below x = a and continued fraction above, with 50 digits (mpmath).
TEST(ChiSquare, HugeDegreesOfFreedomHaveNormalTails) {
  const struct {
    double dof, z, upper, lower;
  } cases[] = {
      {2e6, -30, 1, 4.9209087785911619e-202},
      {2e6, -4, 0.99996899288178892, 3.1007118211082967e-5},
      {2e6, -0.25, 0.59858548566454919, 0.40141451433545081},
      {2e6, 0, 0.49986701923912741, 0.50013298076087259},
      {2e6, 1, 0.15865521363165971, 0.84134478636834029},
      {2e6, 5, 2.9874901401146349e-7, 0.99999970125098599},
      {2e6, 35, 1.2571935231573593e-262, 1.0},
      {2.5e8, -30, 1, 2.1902144619908116e-198},
      {2.5e8, -4, 0.99996838856854547, 3.161143145453101e-5},
      {2.5e8, -0.25, 0.59869551793066245, 0.40130448206933755},
      {2.5e8, 0, 0.49998810583922512, 0.50001189416077488},
      {2.5e8, 1, 0.15865525360883131, 0.84134474639116869},
      {2.5e8, 5, 2.8771699857508018e-7, 0.99999971228300142},
      {2.5e8, 35, 4.0268840427786818e-268, 1.0},
  };
  for (const auto& c : cases) {
    const double x = c.dof + c.z * std::sqrt(2 * c.dof);
    SCOPED_TRACE(testing::Message() << c.dof << " " << c.z);
    EXPECT_NEAR(_vdSSQ(c.dof / 2, x / 2) / c.upper, 1, 4e-12);
    EXPECT_NEAR(__ruadChi2CDF(c.dof, x) / c.lower, 1, 4e-12);
    if (c.z <= 0) {
      EXPECT_NEAR(__ruadChi2ICDF(c.dof, c.lower) / x, 1, 4e-15);
    }
  }
  // Far enough up only the normal law is left, then only the mean.
  for (const double dof : {1e15, 1e30, 1e100, 1e300, largest<double>}) {
    EXPECT_NEAR(__ruadChi2CDF(dof, dof), 0.5, 1e-8) << dof;
    for (const double p : {1e-300, 1e-20, 0.01, 0.5, 0.99, 1 - 1e-15}) {
      const double x = __ruadChi2ICDF(dof, p);
      EXPECT_LE(std::abs(x - dof), 40 * std::sqrt(dof) * std::sqrt(2.) + dof * 1e-15) << dof;
      if (dof == 1e15) {
        EXPECT_NEAR(__ruadChi2CDF(dof, x) / p, 1, 1e-6) << p;
      }
    }
    EXPECT_EQ(__ruadChi2CDF(dof, dof / 2), 0);
    EXPECT_EQ(_vdSSQ(dof, 10), 1);
    EXPECT_EQ(_vdSSQ(dof, inf<double>), 0) << dof;
  }
}

}  // namespace
