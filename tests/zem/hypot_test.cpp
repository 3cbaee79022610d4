// Hypot: special values, no spurious overflow or underflow, exact triples, published hard cases.
#include <quadmath.h>

#include "support/bits.hpp"
#include "support/control.hpp"
#include "support/directed.hpp"
#include "support/pch.hpp"
#include "support/special.hpp"

namespace {

template <class T>
constexpr bool wide = sizeof(T) == 8;

template <class T>
class Hypots : public testing::Test {
 protected:
  StateGuard guard;

  // Every kernel on one pair, both ways round and with both signs, against quad precision.
  static void check(T a, T b) {
    quad exact = hypotq(a, b);
    const T nearest = T(exact);
    for (const auto& call : elementwise_kernels<T>()) {
      if (strcmp(call.slot->function, "Hypot")) continue;
      const bool ep = call.slot->kernels[call.level][2] == 'E';
      const bool ha = call.slot->kernels[call.level][2] == 'H';
      const T x[4] = {a, -a, b, -b}, y[4] = {b, b, a, -a};
      T r[4];
      call(4, x, y, r, r);
      for (const T got : r) {
        if (std::isinf(nearest)) {
          EXPECT_EQ(got, nearest) << a << " " << b;
          continue;
        }
        const quad ulp = std::max(std::nextafter(nearest, inf<T>) - nearest, smallest_denormal<T>);
        const quad bound = ha    ? 0.51 * ulp
                           : !ep ? 1.0 * ulp
                                 : (wide<T> ? 0x1p-31 : 0x1p-12) * exact + 0.51 * ulp;
        EXPECT_LE(double(fabsq(got - exact) / bound), 1.0)
            << call.slot->name(call.level) << "(" << a << ", " << b << ") gives " << got;
      }
    }
  }
};
using Types = testing::Types<double, float>;
TYPED_TEST_SUITE(Hypots, Types);

TYPED_TEST(Hypots, SpecialValues) {
  using T = TypeParam;
  const T signalling = from_bits<T>(wide<T> ? 0x7FF0000000000001 : 0x7F800001);
  for (int level = 0; level < 3; ++level)
    check_special<T>({"Hypot",
                      level,
                      "",
                      T(3),
                      T(4),
                      {{.a = inf<T>, .r = inf<T>, .b = quiet_nan<T>},
                       {.a = quiet_nan<T>, .r = inf<T>, .b = -inf<T>},
                       {.a = signalling, .r = inf<T>, .b = inf<T>},
                       {.a = -inf<T>, .r = inf<T>, .b = T(1)},
                       {.a = quiet_nan<T>, .r = quiet_nan<T>, .b = T(1)},
                       {.a = T(1), .r = quiet_nan<T>, .b = signalling},
                       {.a = T(0), .r = T(0), .b = T(-0.0)},
                       {.a = T(-0.0), .r = T(0), .b = T(-0.0)},
                       {.a = largest<T>, .r = inf<T>, .b = largest<T>},
                       {.a = smallest_denormal<T>, .r = smallest_denormal<T>, .b = T(0)}}});
}

// The whole range of exponents of both, and the borders of the fast ranges.
TYPED_TEST(Hypots, Errors) {
  using T = TypeParam;
  using L = std::numeric_limits<T>;
  for (int e = L::min_exponent - L::digits; e < L::max_exponent; e += wide<T> ? 17 : 1)
    for (const int apart : {-60, -27, -1, 0, 3, 25, 200}) {
      const T a = std::ldexp(T(1.4142135), e), b = std::ldexp(T(1.7320508), e - apart);
      if (std::isfinite(b)) this->check(a, b);
    }
  for (const int e : {-500, -400, -60, 61, 62, 500, 511})
    for (const T a : neighbours<T>({std::ldexp(T(1), e)}, 2))
      if (std::isfinite(a)) this->check(a, a), this->check(a, 0), this->check(a, a * T(0.75));
}

TYPED_TEST(Hypots, TriplesAreExactAtHa) {
  using T = TypeParam;
  for (const auto& call : elementwise_kernels<T>())
    if (!strcmp(call.slot->function, "Hypot") && call.slot->kernels[call.level][2] == 'H')
      for (int m = 2; m < 40; ++m)
        for (int n = 1; n < m; ++n) {
          const T a = T(m * m - n * n), b = T(2 * m * n);
          T r;
          call(1, &a, &b, &r, &r);
          ASSERT_EQ(r, T(m * m + n * n));
        }
}

TYPED_TEST(Hypots, PublishedHardCases) {
  using T = TypeParam;
  for (const auto& row : published_cases<T>("hypot")) this->check(T(row.at(0)), T(row.at(1)));
}

}  // namespace
