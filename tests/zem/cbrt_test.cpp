// Cbrt and InvCbrt: special values, exact cubes, every interval of the table, hard cases.
#include <quadmath.h>

#include "support/bits.hpp"
#include "support/control.hpp"
#include "support/directed.hpp"
#include "support/pch.hpp"
#include "support/special.hpp"

namespace {

template <class T>
constexpr bool wide = sizeof(T) == 8;
// EP in double is the LA kernel; InvCbrt in double has one.
template <class T>
Limits cbrt_limits() {
  return wide<T> ? Limits{{1.95, 0.53, 1.95}, {false, false, false}}
                 : Limits{{0.55, 0.51, 0x1p-15}, {false, false, true}};
}
template <class T>
Limits invcbrt_limits() {
  return wide<T> ? Limits{{0.53, 0.53, 0.53}, {false, false, false}}
                 : Limits{{1.15, 0.51, 0x1p-14}, {false, false, true}};
}

template <class T>
class CubeRoots : public testing::Test {
 protected:
  StateGuard guard;
  // Both ends of every interval of the table in all residues of the exponent, at several
  // exponents; denormals.
  static std::vector<T> points() {
    std::vector<T> knots, tiny;
    for (int e = std::numeric_limits<T>::min_exponent - 1; e < std::numeric_limits<T>::max_exponent;
         e += 5)
      for (int j = 0; j < 32; ++j) knots.push_back(std::ldexp(1 + T(j) / 32, e));
    for (int i = 1; i < 300; ++i)
      tiny.push_back(smallest_denormal<T> * T(i * i)), tiny.push_back(smallest_normal<T> / T(i));
    auto all =
        neighbours<T>(knots, 1) + tiny + spread<T>(1, 8, 3000) + neighbours<T>({largest<T>}, 0);
    for (size_t i = 0; i < all.size(); i += 2) all[i] = -all[i];
    return all;
  }
};
using Types = testing::Types<double, float>;
TYPED_TEST_SUITE(CubeRoots, Types);

TYPED_TEST(CubeRoots, SpecialValues) {
  using T = TypeParam;
  const T signalling = from_bits<T>(wide<T> ? 0x7FF0000000000001 : 0x7F800001);
  for (int level = 0; level < 3; ++level) {
    check_special<T>({"Cbrt",
                      level,
                      "",
                      T(3),
                      0,
                      {{0, 0},
                       {-T(0), -T(0)},
                       {inf<T>, inf<T>},
                       {-inf<T>, -inf<T>},
                       {quiet_nan<T>, quiet_nan<T>},
                       {signalling, quiet_nan<T>}}});
    check_special<T>({"InvCbrt",
                      level,
                      wide<T> ? "vdInvCbrt" : "vsInvCbrt",
                      T(3),
                      0,
                      {{0, inf<T>, ZEM_STATUS_SINGULARITY},
                       {-T(0), -inf<T>, ZEM_STATUS_SINGULARITY},
                       {inf<T>, 0},
                       {-inf<T>, -T(0)},
                       {quiet_nan<T>, quiet_nan<T>},
                       {signalling, quiet_nan<T>}}});
  }
}

// Denormals count as zeros in that mode.
TYPED_TEST(CubeRoots, DenormalsAsZeros) {
  using T = TypeParam;
  ork_zem_kernel_SetMode(ORK_ZEM_ERRMODE_IGNORE | ORK_ZEM_DENORMAL_ZERO);
  for (const auto& call : elementwise_kernels<T>()) {
    const std::string name = call.slot->function;
    if (name != "Cbrt" && name != "InvCbrt") continue;
    const T x = -smallest_denormal<T>;
    T r;
    call(1, &x, nullptr, &r, nullptr);
    EXPECT_EQ(bits(r), bits(name == "Cbrt" ? -T(0) : -inf<T>)) << call.slot->name(call.level);
  }
}

TYPED_TEST(CubeRoots, Errors) {
  using T = TypeParam;
  const auto points = this->points();
  check_directed<T>("Cbrt", cbrtq, points, cbrt_limits<T>());
  check_directed<T>(
      "InvCbrt", [](quad x) { return 1 / cbrtq(x); }, points, invcbrt_limits<T>());
}

TYPED_TEST(CubeRoots, PublishedHardCases) {
  check_worst_cases<TypeParam>("Cbrt", "cbrt", cbrt_limits<TypeParam>());
}

// HA gives the exact root of a cube, and powers of 8 are exact in the reciprocal, denormals
// included.
TYPED_TEST(CubeRoots, CubesAreExact) {
  using T = TypeParam;
  std::vector<T> roots, cubes;
  for (int i = 1; i < (wide<T> ? 1 << 17 : 256); i += wide<T> ? 57 : 1)
    for (const int e : {-20, 0, 1, 10}) {
      const T root = std::ldexp(T(i % 2 ? i : -i), e);
      roots.push_back(root), cubes.push_back(root * root * root);
    }
  const T least = std::ldexp(T(1), wide<T> ? -358 : -49);
  roots.push_back(least), cubes.push_back(least * least * least);
  std::vector<T> r(roots.size());
  for (const auto& call : elementwise_kernels<T>()) {
    if (call.slot->exists(1) && !strcmp(call.slot->function, "Cbrt") &&
        !strcmp(call.slot->kernels[call.level], "W7HA")) {
      call(int(r.size()), cubes.data(), nullptr, r.data(), nullptr);
      for (size_t i = 0; i < r.size(); ++i) ASSERT_EQ(r[i], roots[i]) << cubes[i];
    }
    if (!strcmp(call.slot->function, "InvCbrt") && !strcmp(call.slot->kernels[call.level], "W7HA"))
      for (int e = wide<T> ? -1074 : -147; e < 120; e += 3) {
        const T x = std::ldexp(T(1), e);
        T y;
        call(1, &x, nullptr, &y, nullptr);
        ASSERT_EQ(y, std::ldexp(T(1), -e / 3)) << x;
      }
  }
}

}  // namespace
