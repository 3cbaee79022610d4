// Div and Inv: divisions by zero, denominators at the ends of the range, errors.
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
class Division : public testing::Test {
 protected:
  StateGuard guard;
  const T signalling = from_bits<T>(wide<T> ? 0x7FF0000000000001 : 0x7F800001);

  static const Slot& slot(const char* function) {
    for (const Slot& s : slots)
      if (s.type == (wide<T> ? 'd' : 's') && !strcmp(s.function, function)) return s;
    abort();
  }
  // In ulp by level; EP in single: relative.
  static double bound(int level) {
    return level == 1 ? 0.5 : wide<T> ? 0.51 : level == 0 ? 3.6 : 0x1p-11;
  }
};
using Types = testing::Types<double, float>;
TYPED_TEST_SUITE(Division, Types);

TYPED_TEST(Division, SpecialValues) {
  using T = TypeParam;
  const int pole = ZEM_STATUS_SINGULARITY, infinite = wide<T> ? 0 : pole;
  for (int level = 0; level < 3; ++level) {
    check_special<T>({"Div",
                      level,
                      wide<T> ? "vdDiv" : "vsDiv",
                      T(3),
                      T(1.5),
                      {{1, inf<T>, pole, 0},
                       {-1, inf<T>, pole, -T(0)},
                       {largest<T>, -inf<T>, pole, -T(0)},
                       {0, quiet_nan<T>, pole, 0},
                       {smallest_denormal<T>, inf<T>, pole, 0},
                       {inf<T>, inf<T>, infinite, 0},
                       {-inf<T>, inf<T>, infinite, -T(0)},
                       {quiet_nan<T>, quiet_nan<T>, 0, 0},
                       {this->signalling, quiet_nan<T>, 0, 0},
                       {1, quiet_nan<T>, 0, quiet_nan<T>},
                       {0, quiet_nan<T>, 0, this->signalling},
                       {1, 0, 0, inf<T>},
                       {-1, -T(0), 0, inf<T>},
                       {inf<T>, quiet_nan<T>, 0, inf<T>},
                       {-inf<T>, -inf<T>, 0, T(2)},
                       {0, 0, 0, T(1.5)},
                       {0, -T(0), 0, T(-1.5)},
                       {smallest_denormal<T>, 1, 0, smallest_denormal<T>},
                       {largest<T>, -1, 0, -largest<T>},
                       {1, inf<T>, 0, smallest_denormal<T>}}});
    check_special<T>(
        {"Inv",
         level,
         wide<T> ? "vdInv" : "vsInv",
         T(3),
         0,
         {{0, inf<T>, pole},
          {-T(0), -inf<T>, pole},
          {inf<T>, 0},
          {-inf<T>, -T(0)},
          {quiet_nan<T>, quiet_nan<T>},
          {this->signalling, quiet_nan<T>},
          {smallest_denormal<T>, inf<T>},
          {-largest<T>, -1 / largest<T>},
          {-std::ldexp(T(1), -std::numeric_limits<T>::min_exponent + 1), -smallest_normal<T>}}});
  }
}

// Denominators everywhere, side by side with others of any size: products of four of them
// overflow and underflow in every combination.
TYPED_TEST(Division, Errors) {
  using T = TypeParam;
  std::vector<T> a, b;
  uint64_t state = 12345;
  const int low = std::numeric_limits<T>::min_exponent - 20,
            high = std::numeric_limits<T>::max_exponent;
  const auto number = [&](int range) {
    state = state * 6364136223846793005u + 1442695040888963407u;
    const int e = range == 0 ? 0 : low + int((state >> 33) % uint64_t(high - low));
    state = state * 6364136223846793005u + 1442695040888963407u;
    return std::ldexp(T(1 + double(state >> 12) * 0x1p-52), e) * (state & 1 ? T(1) : T(-1));
  };
  for (int i = 0; i < 20000; ++i) {
    a.push_back(number(i % 3 ? 0 : 1)), b.push_back(number(i / 100 % 2));
    if (std::isinf(b.back())) b.back() = largest<T>;
    if (std::isinf(a.back())) a.back() = largest<T>;
  }
  for (const T x : neighbours<T>(
           {std::ldexp(T(1), -std::numeric_limits<T>::min_exponent + 1), smallest_normal<T>}, 40))
    a.push_back(T(1.25)), b.push_back(x);
  std::vector<T> r(a.size());
  for (int level = 0; level < 3; ++level)
    for (const bool inverse : {false, true}) {
      const Slot& slot = this->slot(inverse ? "Inv" : "Div");
      Call<T>{&slot, level}(int(a.size()), inverse ? b.data() : a.data(), b.data(), r.data(),
                            nullptr);
      for (size_t i = 0; i < a.size(); ++i) {
        if (b[i] == 0) continue;
        const quad exact = quad(inverse ? T(1) : a[i]) / b[i];
        const quad top = quad(largest<T>) * (1 + quad(std::numeric_limits<T>::epsilon()) / 4);
        if (fabsq(exact) >= top) {
          ASSERT_TRUE(std::isinf(r[i]) && (r[i] > 0) == (exact > 0)) << slot.name(level);
          continue;
        }
        const bool relative = level == 2 && !wide<T>;
        const int e =
            std::max(exact == 0 ? -20000 : ilogbq(exact), std::numeric_limits<T>::min_exponent - 1);
        const quad unit = relative ? fmaxq(fabsq(exact), quad(smallest_normal<T>))
                                   : scalbnq(1, e - std::numeric_limits<T>::digits + 1);
        ASSERT_LE(double(fabsq(quad(r[i]) - exact) / unit), this->bound(level))
            << slot.name(level) << " " << std::hexfloat << a[i] << " / " << b[i] << " = " << r[i];
      }
    }
}

// LA in double shares one division among four: a zero stops at its own element.
TEST(DivisionLa, OneZeroInABlock) {
  const double a[4] = {6, 1, 10, -9}, b[4] = {2, 0, 5, 3};
  double r[4];
  const auto seen = record_events([&] { ork_zem_kernel_dDiv_W7LAynn(4, a, b, r); });
  EXPECT_EQ(std::vector<double>(r, r + 4), (std::vector<double>{3, inf<double>, 2, -3}));
  ASSERT_EQ(seen.size(), 1u);
  EXPECT_EQ(seen[0].index, 1);
  EXPECT_EQ(seen[0].status, ZEM_STATUS_SINGULARITY);
}

}  // namespace
