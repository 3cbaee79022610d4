// Sqrt and InvSqrt: special values, exact squares, errors at the borders of fast and rare ranges.
#include <quadmath.h>

#include "support/bits.hpp"
#include "support/control.hpp"
#include "support/directed.hpp"
#include "support/pch.hpp"
#include "support/special.hpp"

namespace {

// LA in single: a 12-bit estimate and one Newton step, whose error is up to 3.4 ulp.
template <class T>
constexpr bool wide = sizeof(T) == 8;
template <class T>
Limits sqrt_limits() {
  return wide<T> ? Limits{{2, 0.51, 0x1p-26}, {false, false, true}}
                 : Limits{{3.25, 0.51, 0x1p-11}, {false, false, true}};
}
template <class T>
Limits invsqrt_limits() {
  return wide<T> ? Limits{{1.1, 0.51, 1.1}, {false, false, false}}
                 : Limits{{4, 0.51, 0x1p-11}, {false, false, true}};
}

template <class T>
class Roots : public testing::Test {
 protected:
  StateGuard guard;
  static constexpr const char* sqrt_name = wide<T> ? "vdSqrt" : "vsSqrt";
  static constexpr const char* invsqrt_name = wide<T> ? "vdInvSqrt" : "vsInvSqrt";
  const T domain = from_bits<T>(wide<T> ? 0xFFF8000000000000 : 0xFFC00000);
  const T signalling = from_bits<T>(wide<T> ? 0x7FF0000000000001 : 0x7F800001);

  static std::vector<T> points() {
    std::vector<T> powers;
    for (int e = std::numeric_limits<T>::min_exponent - 1; e < std::numeric_limits<T>::max_exponent;
         e += 3)
      powers.push_back(std::ldexp(T(1), e));
    std::vector<T> tiny;
    for (int i = 1; i < 200; ++i)
      tiny.push_back(smallest_denormal<T> * T(i * i)), tiny.push_back(smallest_normal<T> / T(i));
    return neighbours<T>(powers, 2) + tiny + neighbours<T>({largest<T>}, 0) +
           spread<T>(0.5, 4, 5000) +
           (wide<T> ? spread<T>(0x1p-1021, 0x1p-1020, 500) : spread<T>(0x1p-126, 0x1p-120, 2000)) +
           neighbours<T>({from_bits<T>(wide<T> ? 0x7FEFFFFFFFFFFFF0 : 0x7F7FF001), T(0x1p-96)}, 4);
  }
};
using Types = testing::Types<double, float>;
TYPED_TEST_SUITE(Roots, Types);

TYPED_TEST(Roots, SpecialValues) {
  using T = TypeParam;
  for (int level = 0; level < 3; ++level) {
    check_special<T>(
        {"Sqrt",
         level,
         this->sqrt_name,
         T(3),
         0,
         {{0, 0},
          {-T(0), -T(0)},
          {inf<T>, inf<T>},
          {quiet_nan<T>, quiet_nan<T>},
          {this->signalling, quiet_nan<T>},
          {.a = -1, .r = this->domain, .status = ZEM_STATUS_DOMAIN, .exact_nan = true},
          {.a = -smallest_denormal<T>,
           .r = this->domain,
           .status = ZEM_STATUS_DOMAIN,
           .exact_nan = true},
          {.a = -inf<T>, .r = this->domain, .status = ZEM_STATUS_DOMAIN, .exact_nan = true}}});
    check_special<T>(
        {"InvSqrt",
         level,
         this->invsqrt_name,
         T(3),
         0,
         {{0, inf<T>, ZEM_STATUS_SINGULARITY},
          {-T(0), -inf<T>, ZEM_STATUS_SINGULARITY},
          {inf<T>, 0},
          {quiet_nan<T>, quiet_nan<T>},
          {this->signalling, quiet_nan<T>},
          {.a = -1, .r = this->domain, .status = ZEM_STATUS_DOMAIN, .exact_nan = true},
          {.a = -smallest_denormal<T>,
           .r = this->domain,
           .status = ZEM_STATUS_DOMAIN,
           .exact_nan = true},
          {.a = -inf<T>, .r = this->domain, .status = ZEM_STATUS_DOMAIN, .exact_nan = true}}});
  }
}

// Denormals count as zeros in that mode, of either sign.
TYPED_TEST(Roots, DenormalsAsZeros) {
  using T = TypeParam;
  ork_zem_kernel_SetMode(ORK_ZEM_ERRMODE_IGNORE | ORK_ZEM_DENORMAL_ZERO);
  for (const auto& call : elementwise_kernels<T>()) {
    const std::string name = call.slot->function;
    const bool inverse = name == "InvSqrt";
    if (name != "Sqrt" && !inverse) continue;
    const T a[3] = {smallest_normal<T> / 2, -smallest_denormal<T>, smallest_denormal<T>};
    T r[3];
    call(3, a, nullptr, r, nullptr);
    for (int i = 0; i < 3; ++i)
      EXPECT_EQ(bits(r[i]), bits(std::copysign(inverse ? inf<T> : T(0), a[i])))
          << call.slot->name(call.level);
  }
}

TYPED_TEST(Roots, Errors) {
  using T = TypeParam;
  const auto points = this->points();
  check_directed<T>("Sqrt", sqrtq, points, sqrt_limits<T>());
  check_directed<T>(
      "InvSqrt", [](quad x) { return 1 / sqrtq(x); }, points, invsqrt_limits<T>());
}

// HA gives the exact root of a square, denormal squares included.
TYPED_TEST(Roots, SquaresAreExact) {
  using T = TypeParam;
  std::vector<T> roots, squares;
  const int half = std::numeric_limits<T>::digits / 2;
  for (int i = 1; i < 3000; ++i)
    for (const int e : {-half, 0, 1, 20}) {
      const T m = std::floor(std::ldexp(T(std::fmod(i * 0.6180339887498949, 1.0)), half)) + 1;
      roots.push_back(std::ldexp(m, e)), squares.push_back(roots.back() * roots.back());
    }
  const T least = std::ldexp(T(1), wide<T> ? -537 : -74);
  roots.push_back(least), squares.push_back(least * least);
  std::vector<T> r(roots.size());
  for (const auto& call : elementwise_kernels<T>()) {
    if (strcmp(call.slot->function, "Sqrt") != 0 || call.level != 1) continue;
    call(int(r.size()), squares.data(), nullptr, r.data(), nullptr);
    for (size_t i = 0; i < r.size(); ++i) ASSERT_EQ(r[i], roots[i]) << call.slot->name(1);
  }
  // Of 4 at all levels, in blocks and tails.
  const std::vector<T> fours(19, T(4));
  for (const auto& call : elementwise_kernels<T>())
    if (!strcmp(call.slot->function, "Sqrt")) {
      call(19, fours.data(), nullptr, r.data(), nullptr);
      for (int i = 0; i < 19; ++i) ASSERT_EQ(r[size_t(i)], 2) << call.slot->name(call.level);
    }
}

}  // namespace
