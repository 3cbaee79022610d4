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

}  // namespace
