// Floor, Ceil, Trunc, Round, Rint, NearbyInt, Modf: exact functions, checked to the bit.
#include <cfenv>

#include "support/bits.hpp"
#include "support/control.hpp"
#include "support/pch.hpp"
#include "support/special.hpp"

namespace {

const char* const names[] = {"Floor", "Ceil", "Trunc", "Round", "Rint", "NearbyInt", "Modf"};

template <class T>
class Rounding : public testing::Test {
 protected:
  StateGuard guard;

  // Each kernel once.
  static std::vector<Call<T>> kernels() {
    std::vector<Call<T>> found;
    for (const auto& call : elementwise_kernels<T>())
      for (const char* name : names)
        if (!strcmp(call.slot->function, name)) found.push_back(call);
    return found;
  }

  // Around every integer and half of small size, and around the powers of two where fractions end.
  static std::vector<T> points() {
    std::vector<T> p;
    const auto around = [&p](T x) {
      for (const T y : {std::nextafter(x, -inf<T>), x, std::nextafter(x, inf<T>)})
        p.push_back(y), p.push_back(-y);
    };
    for (int i = 0; i <= 40; ++i) around(T(i) / 4);
    const int digits = std::numeric_limits<T>::digits;
    for (int e = digits - 4; e <= digits + 1; ++e)
      for (const T fraction : {T(0), T(0.25), T(0.5), T(1), T(1.5)})
        around(std::ldexp(T(1), e) + fraction);
    for (const T x :
         {smallest_denormal<T>, smallest_normal<T>, largest<T>, T(0.1), T(1e6) + T(0.3)})
      around(x);
    for (T& x : p)
      if (std::isinf(x)) x = largest<T>;
    return p;
  }

  static T expected(const char* name, T x) {
    if (!strcmp(name, "Floor")) return std::floor(x);
    if (!strcmp(name, "Ceil")) return std::ceil(x);
    if (!strcmp(name, "Round")) return std::round(x);
    if (!strcmp(name, "Rint") || !strcmp(name, "NearbyInt")) return std::nearbyint(x);
    return std::trunc(x);
  }
};
using Types = testing::Types<double, float>;
TYPED_TEST_SUITE(Rounding, Types);

// In every rounding mode of the caller, which only Rint and NearbyInt follow.
TYPED_TEST(Rounding, ExactWithTheSignOfTheArgument) {
  using T = TypeParam;
  const std::vector<T> a = this->points();
  const int n = int(a.size());
  ASSERT_EQ(this->kernels().size(), 7u);
  for (const auto& call : this->kernels())
    for (const int rounding : {FE_TONEAREST, FE_DOWNWARD, FE_UPWARD, FE_TOWARDZERO}) {
      std::vector<T> r(a.size()), r2(a.size()), want(a.size());
      fesetround(rounding);
      call(n, a.data(), a.data(), r.data(), r2.data());
      for (size_t i = 0; i < a.size(); ++i) {
        const volatile T x = a[i];  // not rounded at compile time
        want[i] = std::copysign(this->expected(call.slot->function, x), a[i]);
      }
      fesetround(FE_TONEAREST);
      for (size_t i = 0; i < a.size(); ++i) {
        ASSERT_EQ(bits(r[i]), bits(want[i])) << call.slot->name(0) << "(" << std::hexfloat << a[i]
                                             << ") in mode " << rounding << ": " << r[i];
        if (call.outputs() == 2) {
          ASSERT_EQ(bits(r2[i]), bits(std::copysign(a[i] - want[i], a[i])))
              << call.slot->name(0) << "(" << a[i] << ")";
        }
      }
    }
}

TYPED_TEST(Rounding, InfinitiesNansAndZeros) {
  using T = TypeParam;
  const T signalling = from_bits<T>(sizeof(T) == 8 ? 0xFFF0000000000001 : 0xFF800001);
  for (const char* name : names)
    check_special<T>({name,
                      1,
                      "",
                      T(2.75),
                      0,
                      {{.a = inf<T>, .r = inf<T>, .r2 = 0},
                       {.a = -inf<T>, .r = -inf<T>, .r2 = -T(0)},
                       {.a = 0, .r = 0, .r2 = 0},
                       {.a = -T(0), .r = -T(0), .r2 = -T(0)},
                       {.a = quiet_nan<T>, .r = quiet_nan<T>, .r2 = quiet_nan<T>},
                       {.a = signalling, .r = quiet_nan<T>, .r2 = quiet_nan<T>},
                       {.a = -largest<T>, .r = -largest<T>, .r2 = -T(0)},
                       {.a = T(3), .r = T(3), .r2 = 0},
                       {.a = T(-3), .r = T(-3), .r2 = -T(0)}}});
}

// Denormals count as zeros in that mode, and go to whole numbers in the other.
TYPED_TEST(Rounding, DenormalsFollowTheMode) {
  using T = TypeParam;
  const T x = smallest_denormal<T>;
  T r;
  for (const auto& call : this->kernels()) {
    if (strcmp(call.slot->function, "Ceil") != 0) continue;
    ork_zem_kernel_SetMode(ORK_ZEM_DENORMAL_ZERO);
    call(1, &x, &x, &r, &r);
    EXPECT_EQ(bits(r), bits(T(0)));
    ork_zem_kernel_SetMode(ORK_ZEM_DENORMAL_KEEP);
    call(1, &x, &x, &r, &r);
    EXPECT_EQ(r, T(1));
  }
}

}  // namespace
