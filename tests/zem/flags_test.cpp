// Exception flags: an ordinary argument traps nothing, a pole raises its flag.
#include <csetjmp>
#include <csignal>
#include <random>

#include "support/bits.hpp"
#include "support/control.hpp"
#include "support/pch.hpp"
#include "support/special.hpp"

namespace {

sigjmp_buf trapped;
void on_trap(int) { siglongjmp(trapped, 1); }

// Runs f() with invalid operation, division by zero and overflow unmasked in both units. False
// if one of them trapped.
template <class F>
bool runs_untrapped(F f) {
  constexpr unsigned masked = 0x1F80, unmasked = masked & ~0x0680u;
  const unsigned short x87 = x87_control(), x87_unmasked = (unsigned short)(x87 & ~0x0D);
  struct sigaction action = {}, before;
  action.sa_handler = on_trap;
  sigaction(SIGFPE, &action, &before);
  volatile bool clean = false;
  if (sigsetjmp(trapped, 1) == 0) {
    asm volatile("fnclex\n\tfldcw %0" : : "m"(x87_unmasked));
    _mm_setcsr(unmasked);
    f();
    asm volatile("fwait");
    clean = true;
  }
  asm volatile("fnclex\n\tfldcw %0" : : "m"(x87));
  _mm_setcsr(masked);
  sigaction(SIGFPE, &before, nullptr);
  return clean;
}

// Both signs of zero, of borders of kernels' fast ranges and what lies just beyond, and of numbers
// of many binades, none so large that its square leaves the type's range.
template <class T>
std::vector<T> ordinary() {
  std::vector<T> points = {T(0),     T(1),     T(2),     T(3),     T(0.5),   T(6.5), T(8.3),
                           T(14),    T(27.5),  T(33),    T(34.5),  T(38.6),  T(40),  T(88.5),
                           T(89.2),  T(90),    T(100),   T(103.5), T(171.5), T(700), T(708.5),
                           T(709.5), T(710.2), T(745.2), T(1000),  T(70000), T(1e5)};
  points.push_back(sizeof(T) == 8 ? T(710.474) : T(89.414));
  constexpr int range = sizeof(T) == 8 ? 100 : 30;
  for (int e = -range; e < range; e += sizeof(T) == 8 ? 7 : 5)
    points.push_back(std::ldexp(T(1) + T((unsigned(e) * 2654435769u) >> 8) / T(1 << 25), e));
  for (size_t i = 0, n = points.size(); i < n; ++i) points.push_back(-points[i]);
  return points;
}

template <class T>
class Flags : public testing::Test {
 protected:
  StateGuard guard;
  Flags() { ork_zem_kernel_SetMode(ORK_ZEM_ERRMODE_IGNORE); }
};
using Types = testing::Types<double, float>;
TYPED_TEST_SUITE(Flags, Types);

// Where arguments and results are finite there is nothing to trap on, alone or among others.
TYPED_TEST(Flags, FiniteResultsTrapNothing) {
  using T = TypeParam;
  const std::vector<T> points = ordinary<T>();
  for (const auto& call : elementwise_kernels<T>()) {
    const bool two = call.inputs() == 2 || call.slot->form == Form::scalar;
    std::vector<T> a, b;
    int bad = 0;
    for (const T x : points)
      for (const T y : two ? points : std::vector<T>{0}) {
        T r, r2 = 0;
        call(1, &x, &y, &r, &r2);
        if (!std::isfinite(r) || !std::isfinite(r2)) continue;
        a.push_back(x), b.push_back(y);
        if (!runs_untrapped([&] { call(1, &x, &y, &r, &r2); }) && ++bad <= 5)
          ADD_FAILURE() << call.slot->name(call.level) << "(" << x << ", " << y << ") = " << r;
      }
    if (call.slot->form == Form::scalar || bad) continue;
    std::vector<T> r(a.size()), r2(a.size());
    EXPECT_TRUE(runs_untrapped([&] {
      call(int(a.size()), a.data(), b.data(), r.data(), r2.data());
    })) << call.slot->name(call.level)
        << " of all of them";
  }
}

// The same of complex arguments, whose parts are dealt from those points. Powers of 0 may pass its
// logarithm, angles beyond 2^50 a product that overflows in a lane that is thrown away.
TYPED_TEST(Flags, FiniteComplexResultsTrapNothing) {
  using T = TypeParam;
  const std::vector<T> points = ordinary<T>();
  std::minstd_rand deal;
  for (const auto& call : complex_kernels<T>()) {
    int bad = 0;
    for (int k = 0; k < 3000; ++k) {
      T a[2], b[2], r[2] = {0, 0}, r2[2];
      for (T* part : {a, a + 1, b, b + 1}) *part = points[deal() % points.size()];
      const bool power = !strncmp(call.slot->function, "Pow", 3) && a[0] == 0 && a[1] == 0;
      if (power || (!strcmp(call.slot->function, "Exp") && std::fabs(a[1]) > T(0x1p50))) continue;
      call(1, a, b, r, r2);
      if (!std::isfinite(r[0]) || !std::isfinite(r[1])) continue;
      if (!runs_untrapped([&] { call(1, a, b, r, r2); }) && ++bad <= 5)
        ADD_FAILURE() << call.slot->name(call.level) << "((" << a[0] << ", " << a[1] << "), ("
                      << b[0] << ", " << b[1] << ")) = (" << r[0] << ", " << r[1] << ")";
    }
  }
}

// A power's pole divides by zero, whatever the status is.
TYPED_TEST(Flags, PolesOfPowDivideByZero) {
  using T = TypeParam;
  for (const auto& call : elementwise_kernels<T>()) {
    if (strcmp(call.slot->function, "Pow") && strcmp(call.slot->function, "Powx")) continue;
    for (const T zero : {T(0), -T(0)})
      for (const T power : {T(-1), T(-2.5)}) {
        T r, r2;
        EXPECT_FALSE(runs_untrapped([&] { call(1, &zero, &power, &r, &r2); }))
            << call.slot->name(call.level) << "(" << zero << ", " << power << ")";
      }
  }
}

// A comparison with a denormal constant would raise it on every vector.
TYPED_TEST(Flags, ErfRaisesNoDenormalFlag) {
  using T = TypeParam;
  for (const auto& call : elementwise_kernels<T>()) {
    if (strcmp(call.slot->function, "Erf")) continue;
    const T x[] = {T(-3), T(-0.01), T(0), T(0.3), T(1), T(2), T(4), T(7)};
    T r[8];
    _mm_setcsr(0x1F80);
    call(8, x, x, r, r);
    EXPECT_EQ(_mm_getcsr() & 2, 0u) << call.slot->name(call.level);
  }
}

}  // namespace
