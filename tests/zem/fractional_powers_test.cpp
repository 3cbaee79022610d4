// Pow2o3 and Pow3o2: special values, statuses, exact powers, every interval of the tables.
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
Limits limits() {
  return wide<T> ? Limits{{2.0, 0.6, 0x1p-28}, {false, false, true}}
                 : Limits{{2.0, 0.51, 0x1p-12}, {false, false, true}};
}

template <class T>
class FractionalPowers : public testing::Test {
 protected:
  StateGuard guard;
  const T signalling = from_bits<T>(wide<T> ? 0x7FF0000000000001 : 0x7F800001);
  // Both ends of every interval of the table in all residues of the exponent, between powers
  // of two.
  static std::vector<T> knots(int first, int last) {
    std::vector<T> all;
    for (int e = first; e < last; e += 5)
      for (int j = 0; j < 32; ++j) all.push_back(std::ldexp(1 + T(j) / 32, e));
    return neighbours<T>(all, 1);
  }
};
using Types = testing::Types<double, float>;
TYPED_TEST_SUITE(FractionalPowers, Types);

TYPED_TEST(FractionalPowers, SpecialValues) {
  using T = TypeParam;
  for (int level = 0; level < 3; ++level) {
    check_special<T>({"Pow2o3",
                      level,
                      "",
                      T(3),
                      0,
                      {{0, 0},
                       {-T(0), 0},
                       {inf<T>, inf<T>},
                       {-inf<T>, inf<T>},
                       {quiet_nan<T>, quiet_nan<T>},
                       {this->signalling, quiet_nan<T>}}});
    check_special<T>({"Pow3o2",
                      level,
                      wide<T> ? "vdPow3o2" : "vsPow3o2",
                      T(3),
                      0,
                      {{0, 0},
                       {-T(0), 0},
                       {inf<T>, inf<T>},
                       {-inf<T>, quiet_nan<T>, ZEM_STATUS_DOMAIN},
                       {-1, quiet_nan<T>, ZEM_STATUS_DOMAIN},
                       {-smallest_denormal<T>, quiet_nan<T>, ZEM_STATUS_DOMAIN},
                       {quiet_nan<T>, quiet_nan<T>},
                       {this->signalling, quiet_nan<T>},
                       {largest<T>, inf<T>},
                       {smallest_denormal<T>, 0},
                       {smallest_normal<T>, 0}}});
  }
}

TYPED_TEST(FractionalPowers, TwoThirds) {
  using T = TypeParam;
  using L = std::numeric_limits<T>;
  std::vector<T> tiny;
  for (int i = 1; i < 300; ++i)
    tiny.push_back(smallest_denormal<T> * T(i * i)), tiny.push_back(smallest_normal<T> / T(i));
  auto points = this->knots(L::min_exponent - 1, L::max_exponent) + tiny + spread<T>(1, 8, 3000);
  for (size_t i = 0; i < points.size(); i += 2) points[i] = -points[i];
  check_directed<T>(
      "Pow2o3", [](quad x) { return cbrtq(x) * cbrtq(x); }, points, limits<T>());
}

// Down to results that are denormal.
TYPED_TEST(FractionalPowers, ThreeHalves) {
  using T = TypeParam;
  auto points = spread<T>(1, 4, 3000) + (wide<T> ? this->knots(-714, 680) : this->knots(-98, 85)) +
                neighbours<T>({std::ldexp(T(1), wide<T> ? -680 : -82)}, 20);
  if (!wide<T>) points = points + neighbours<T>({std::ldexp(T(1), 84)}, 20);
  check_directed<T>(
      "Pow3o2", [](quad x) { return x * sqrtq(x); }, points, limits<T>());
}

TYPED_TEST(FractionalPowers, ExactPowersAtHa) {
  using T = TypeParam;
  const int most = wide<T> ? 1 << 17 : 256;
  for (const auto& call : elementwise_kernels<T>()) {
    const bool two_thirds = !strcmp(call.slot->function, "Pow2o3");
    if (call.slot->kernels[call.level][2] != 'H') continue;
    if (!two_thirds && strcmp(call.slot->function, "Pow3o2")) continue;
    for (int i = 1; i < most; i += wide<T> ? 57 : 1) {
      const T root = T(i), square = root * root, cube = square * root;
      const T x = two_thirds ? (i % 2 ? -cube : cube) : square;
      T r;
      call(1, &x, nullptr, &r, nullptr);
      ASSERT_EQ(r, two_thirds ? square : cube) << x;
    }
  }
}

}  // namespace
