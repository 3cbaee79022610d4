// LinearFrac against plain divisions of the same numerators and denominators.
#include "support/bits.hpp"
#include "support/control.hpp"
#include "support/pch.hpp"
#include "support/special.hpp"

namespace {

void linear_frac(int n, const double* a, const double* b, const double* s, double* r) {
  _zemdLinearFrac(n, a, b, s[0], s[1], s[2], s[3], r);
}
void linear_frac(int n, const float* a, const float* b, const float* s, float* r) {
  _zemsLinearFrac(n, a, b, s[0], s[1], s[2], s[3], r);
}

template <class T>
class LinearFrac : public testing::Test {
 protected:
  StateGuard guard;
  LinearFrac() { ork_zem_kernel_ClearErrStatus(); }
  ~LinearFrac() { EXPECT_EQ(ork_zem_kernel_GetErrStatus(), 0); }

  // The results must be within `ulps` units of the quotients, infinities and NaNs in their places.
  static void check(const std::vector<T>& a, const std::vector<T>& b, const T (&s)[4], T epsilons) {
    std::vector<T> r(a.size());
    linear_frac(int(a.size()), a.data(), b.data(), s, r.data());
    for (size_t i = 0; i < a.size(); ++i) {
      const T numerator = s[0] == 0 && s[2] != 0 ? s[1] : s[0] * a[i] + s[1];
      const T want = numerator / (s[2] == 0 ? s[3] : s[2] * b[i] + s[3]);
      if (std::isnan(want) || std::isinf(want))
        ASSERT_TRUE(std::isnan(want) ? std::isnan(r[i]) : r[i] == want)
            << i << ": " << r[i] << " not " << want;
      else
        ASSERT_LE(
            std::fabs(r[i] - want),
            epsilons * std::numeric_limits<T>::epsilon() * std::fabs(want) + smallest_denormal<T>)
            << "(" << a[i] << ", " << b[i] << "): " << r[i] << " not " << want;
    }
  }
};
using Types = testing::Types<double, float>;
TYPED_TEST_SUITE(LinearFrac, Types);

TYPED_TEST(LinearFrac, GeneralCase) {
  using T = TypeParam;
  std::vector<T> a, b;
  for (int i = 0; i < 1000; ++i) {
    a.push_back(T(std::fmod(i * 0.618, 1.0) * 20 - 10));
    b.push_back(std::ldexp(T(i % 2 ? -1.3 : 1.7), i * 7 % 60 - 30) + T(i) / 1000);
  }
  this->check(a, b, {T(1.5), T(0.25), T(0.75), T(3)}, 4);
  this->check(a, b, {T(-2), T(0), T(1), T(0)}, 4);
  this->check(a, b, {T(0), T(7), T(3), T(1)}, 4);       // constant numerator
  this->check(a, b, {T(0.3), T(7), T(0), T(-1.7)}, 0);  // constant denominator
}

// Each in every lane of blocks and tail; its neighbours in the block stay right.
TYPED_TEST(LinearFrac, DenominatorsOutsideTheSharedDivision) {
  using T = TypeParam;
  for (const T d : {T(0), -T(0), inf<T>, -inf<T>, quiet_nan<T>, smallest_denormal<T>, largest<T>,
                    -largest<T>, largest<T> / 2, smallest_normal<T>})
    for (int place = 0; place < 35; ++place) {
      std::vector<T> a(35, T(3)), b(35, T(7));
      b[size_t(place)] = d;
      a[size_t(place)] = T(5);
      this->check(a, b, {T(1), T(0), T(1), T(0)}, 4);
    }
}

// An infinite input does not meet a zero scale: the constant stands alone.
TYPED_TEST(LinearFrac, ZeroScales) {
  using T = TypeParam;
  const std::vector<T> wild = {inf<T>, quiet_nan<T>, 1,  2,  3,  4,  -inf<T>, 5, 6, 7, 8,
                               9,      10,           11, 12, 13, 14, 15};
  const std::vector<T> tame(wild.size(), T(2));
  this->check(wild, tame, {T(0), T(1), T(1), T(1)}, 4);
  this->check(tame, wild, {T(1), T(1), T(0), T(4)}, 0);
  this->check(tame, wild, {T(1), T(1), T(0), T(0)}, 0);
  this->check(std::vector<T>(20, T(-1)), std::vector<T>(20, T(1)), {T(1), T(1), T(0), T(0)}, 0);
}

TYPED_TEST(LinearFrac, OnesGiveOneAtAnySize) {
  using T = TypeParam;
  for (const T x : {T(0), T(1), std::numeric_limits<T>::max() / 1000, largest<T>, T(-3)}) {
    const std::vector<T> a(37, x);
    std::vector<T> r(37);
    const T ones[4] = {1, 1, 1, 1};
    linear_frac(37, a.data(), a.data(), ones, r.data());
    for (const T y : r)
      ASSERT_NEAR(double(y), 1, 4 * double(std::numeric_limits<T>::epsilon())) << x;
  }
}

// A denormal numerator keeps its bits where the quotient is normal, in blocks as in tails.
TYPED_TEST(LinearFrac, DenormalNumerators) {
  using T = TypeParam;
  std::vector<T> a, b;
  for (int i = 0; i < 70; ++i) {
    a.push_back(smallest_denormal<T> * T(i % 2 ? 2 * i + 1 : -1001 - i));
    b.push_back(std::ldexp(T(1) + T(i) / 71, i % 7 * (sizeof(T) == 8 ? -20 : -8) + 4));
  }
  this->check(a, b, {T(1), T(0), T(1), T(0)}, 4);
}

// In double denormals are kept whatever the mode; in single the mode decides.
TYPED_TEST(LinearFrac, Denormals) {
  using T = TypeParam;
  ork_zem_kernel_SetMode(ORK_ZEM_DENORMAL_ZERO);
  const std::vector<T> a(20, smallest_normal<T> / 2), b(20, T(1));
  std::vector<T> r(20);
  const T scales[4] = {1, 0, 1, 0};
  linear_frac(20, a.data(), b.data(), scales, r.data());
  for (const T y : r) ASSERT_EQ(y, sizeof(T) == 8 ? a[0] : T(0));
}

}  // namespace
