// Special values of the complex arithmetic: every pairing of special parts, in every lane and tail,
// in place, with callbacks. What is due stands here as a list of cases, decided from top to
// bottom; it shares nothing with the library.
#include <quadmath.h>

#include "ork/zem_scalar.h"
#include "support/bits.hpp"
#include "support/control.hpp"
#include "support/pch.hpp"
#include "support/special.hpp"

namespace {

using quad = __float128;

struct Complex {
  double re, im;
};
struct Due {
  Complex value;
  int status = 0;
};

bool is_inf(Complex z) { return std::isinf(z.re) || std::isinf(z.im); }
bool is_nan(Complex z) { return std::isnan(z.re) || std::isnan(z.im); }
bool is_zero(Complex z) { return z.re == 0 && z.im == 0; }
bool is_finite(Complex z) { return std::isfinite(z.re) && std::isfinite(z.im); }
Complex each(Complex z, double (*f)(double)) { return {f(z.re), f(z.im)}; }
Complex times(Complex z, double f) { return {z.re * f, z.im * f}; }
Complex product(Complex a, Complex b, bool conj) {
  if (conj) return {a.re * b.re + a.im * b.im, a.im * b.re - a.re * b.im};
  return {a.re * b.re - a.im * b.im, a.im * b.re + a.re * b.im};
}
double infinite_or_zero(double x) { return std::copysign(std::isinf(x) ? 1. : 0., x); }
double unit(double x) { return std::isfinite(x) && x != 0 ? std::copysign(1., x) : x; }
double one_or_nan(double x) { return std::isnan(x) ? x : 1; }

// An exact value rounded to T once, with the sign of a zero where it is exactly 0.
template <class T>
double rounded(quad exact, double zero) {
  return exact == 0 ? zero : double(T(exact));
}
// Finite operands: the exact value of each part, from quad precision (106 bits of a product, and
// the special parts' sums, fit), rounded once; zeros as the plain formula signs them.
template <class T>
Due finite(quad re, quad im, Complex plain) {
  const Due due = {{rounded<T>(re, plain.re), rounded<T>(im, plain.im)}, 0};
  return {due.value, is_inf(due.value) ? ZEM_STATUS_OVERFLOW : 0};
}

template <class T, bool conj>
Due mul(Complex a, Complex b) {
  if (is_finite(a) && is_finite(b)) {
    const quad x = a.re, y = a.im, u = b.re, v = conj ? -b.im : b.im;
    // A term of a zero factor is no term: only two of them sign a zero.
    return finite<T>(x * u - y * v, y * u + x * v, product(each(a, unit), each(b, unit), conj));
  }
  if ((is_zero(a) || is_zero(b)) && !is_nan(a) && !is_nan(b))
    return {product(each(a, unit), each(b, unit), conj)};
  if (is_inf(a) && !is_zero(a) && !is_zero(b) && (is_inf(b) || is_finite(b)))
    return {
        times(product(each(a, infinite_or_zero), is_inf(b) ? each(b, infinite_or_zero) : b, conj),
              INFINITY)};
  if (is_inf(b) && is_finite(a) && !is_zero(a))
    return {times(product(a, each(b, infinite_or_zero), conj), INFINITY)};
  return {product(each(a, one_or_nan), each(b, one_or_nan), conj)};
}

template <class T>
Due div(Complex a, Complex b) {
  if (is_finite(a) && is_finite(b) && !is_zero(b)) {
    const quad x = a.re, y = a.im, u = b.re, v = b.im, d = u * u + v * v;
    return finite<T>((x * u + y * v) / d, (y * u - x * v) / d,
                     product(each(a, unit), each(b, unit), true));
  }
  const double directed = std::copysign(INFINITY, b.re);
  if (is_finite(a) && is_finite(b)) return is_zero(a) ? Due{{NAN, NAN}} : Due{times(a, directed)};
  if (is_zero(b)) return is_inf(a) ? Due{times(a, directed)} : Due{{a.re * a.im, a.re * a.im}};
  if (is_inf(b) && is_finite(a)) {  // zeros signed by sums that neither over- nor underflow
    const quad x = a.re, y = a.im, u = infinite_or_zero(b.re), v = infinite_or_zero(b.im);
    return {{double((x * u + y * v) * 0), double((y * u - x * v) * 0)}};
  }
  if (is_inf(b)) return {times(product(each(a, unit), each(b, unit), true), 0.0)};
  if (!is_inf(a)) return {product(each(a, unit), each(b, unit), true)};
  if (is_finite(b)) return {times(product(each(a, infinite_or_zero), b, true), INFINITY)};
  return {times(product(each(a, unit), each(b, unit), true), INFINITY)};
}

template <class T, int sign>
Due sum(Complex a, Complex b) {
  const Complex r = {double(T(T(a.re) + T(sign * b.re))), double(T(T(a.im) + T(sign * b.im)))};
  bool cause = false;
  for (const double part : {a.re, a.im, b.re, b.im})
    cause |= std::isinf(part) || (sizeof(T) == 4 && (std::isnan(part) || part == 0));
  return {r, is_inf(r) && !cause ? ZEM_STATUS_OVERFLOW : 0};
}

template <class T>
struct Row {
  const char* function;
  const char* error_name;
  Due (*due)(Complex a, Complex b);
};
template <class T>
const Row<T> rows[] = {
    {"Add", sizeof(T) == 4 ? "vcAdd" : "vzAdd", sum<T, 1>},
    {"Sub", sizeof(T) == 4 ? "vcSub" : "vzSub", sum<T, -1>},
    {"Mul", sizeof(T) == 4 ? "vcMul" : "vzMul", mul<T, false>},
    {"MulByConj", sizeof(T) == 4 ? "vcMulByConj" : "vzMulByConj", mul<T, true>},
    {"Div", sizeof(T) == 4 ? "vcDiv" : "vzDiv", div<T>},
};

template <class T>
Call<T> kernel(const char* function, int level) {
  for (const Slot& slot : slots)
    if (slot.type == (sizeof(T) == 8 ? 'z' : 'c') && !strcmp(slot.function, function))
      return {&slot, level};
  ADD_FAILURE() << function;
  return {};
}

template <class T>
std::vector<T> parts() {
  const T signalling = from_bits<T>(sizeof(T) == 8 ? 0x7FF0000000000001 : 0x7F800001);
  return {
      T(0),         T(-0.0),   3 * smallest_denormal<T>, T(1), T(-1), largest<T>, inf<T>, -inf<T>,
      quiet_nan<T>, signalling};
}

template <class T>
bool agrees(T got, double want) {
  if (std::isnan(want)) return std::isnan(got) && (bits(got) >> (sizeof(T) == 8 ? 51 : 22) & 1);
  return bits(got) == bits(T(want));
}

template <class T>
std::string show(const T* z) {
  char text[100];
  snprintf(text, sizeof text, "(%a, %a)", double(z[0]), double(z[1]));
  return text;
}

template <class T>
class ComplexSpecials : public testing::Test {
 protected:
  StateGuard guard;
};
using Types = testing::Types<double, float>;
TYPED_TEST_SUITE(ComplexSpecials, Types);

// 10^4 pairs, all in one call and in place, by the lists above; each event once, in index order.
// With denormals as zeros too, where neither operands nor results are denormal.
TYPED_TEST(ComplexSpecials, EveryPairHasTheResultAndStatusOfItsCase) {
  using T = TypeParam;
  const auto p = parts<T>();
  std::vector<T> a, b;
  for (const T x : p)
    for (const T y : p)
      for (const T u : p)
        for (const T v : p) a.insert(a.end(), {x, y}), b.insert(b.end(), {u, v});
  const int n = int(a.size() / 2);
  for (const Row<T>& row : rows<T>)
    for (const uint32_t mode : {ORK_ZEM_DENORMAL_KEEP, ORK_ZEM_DENORMAL_ZERO}) {
      ork_zem_kernel_SetMode(mode);
      std::vector<T> r(a.size()), in_place(b);
      const Call<T> call = kernel<T>(row.function, 1);
      const auto seen = record_events([&] { call(n, a.data(), b.data(), r.data(), nullptr); });
      record_events([&] { call(n, a.data(), in_place.data(), in_place.data(), nullptr); });
      size_t next = 0;
      for (int i = 0; i < n; ++i) {
        const T *x = &a[size_t(2 * i)], *y = &b[size_t(2 * i)], *z = &r[size_t(2 * i)];
        const Due due = row.due({x[0], x[1]}, {y[0], y[1]});
        const auto is_denormal = [](double v) { return std::fpclassify(T(v)) == FP_SUBNORMAL; };
        bool denormal = is_denormal(due.value.re) || is_denormal(due.value.im);
        for (const T v : {x[0], x[1], y[0], y[1]}) denormal |= is_denormal(v);
        const bool event = next < seen.size() && seen[next].index == i;
        if (mode == ORK_ZEM_DENORMAL_ZERO && denormal) {
          next += event;
          continue;
        }
        ASSERT_TRUE(agrees(z[0], due.value.re) && agrees(z[1], due.value.im))
            << row.function << show(x) << show(y) << " is " << show(z) << " not " << due.value.re
            << " " << due.value.im;
        const T* w = &in_place[size_t(2 * i)];
        ASSERT_TRUE(agrees(w[0], due.value.re) && agrees(w[1], due.value.im)) << "in place";
        ASSERT_EQ(event ? seen[next].status : 0, due.status) << row.function << show(x) << show(y);
        if (!event) continue;
        ASSERT_EQ(seen[next].name, row.error_name);
        const auto seen_as = [](double got, T want) { return std::isnan(want) || got == want; };
        ASSERT_TRUE(seen_as(seen[next].a1, x[0]) && seen_as(seen[next].a2, y[0]) &&
                    seen_as(seen[next].r1, T(due.value.re)));
        ++next;
      }
      EXPECT_EQ(next, seen.size()) << row.function;
    }
}

// What happens to one element happens in any lane, tail and place, beside clean lanes; a callback's
// value goes out, and to that element alone.
TYPED_TEST(ComplexSpecials, LanesTailsAndCallbacks) {
  using T = TypeParam;
  const auto p = parts<T>();
  const double replacement = 42;
  for (const Row<T>& row : rows<T>)
    for (int level = 0; level < 3; level += 1) {
      const Call<T> call = kernel<T>(row.function, level);
      if (call.slot->kernels[level][2] == 'E') continue;
      for (size_t i = 0; i < 40; ++i) {
        // Parts that a stride through all pairs picks; every third pair overflows.
        T x[2] = {p[i * 7 % 10], p[i * 3 % 10]}, y[2] = {p[i * 9 % 10], p[(i * 7 + i / 10) % 10]};
        if (i % 3 == 0)
          x[0] = y[0] = largest<T>, x[1] = 2, y[1] = row.due == rows<T>[1].due ? 5 : 3;
        if (i % 3 == 0 && row.due == rows<T>[1].due) y[0] = -largest<T>;
        if (i % 3 == 0 && row.due == rows<T>[4].due) y[0] = y[1] = smallest_normal<T>;
        const Due due = row.due({x[0], x[1]}, {y[0], y[1]});
        for (int n = 1; n <= 19; ++n)
          for (int place = n < 17 ? n - 1 : 0; place < n; ++place)
            for (const double* replace : {static_cast<const double*>(nullptr), &replacement}) {
              std::vector<T> a(size_t(2 * n + 1), T(3)), b(a.size(), T(1.5)), clean(2),
                  r(a.size(), T(-7));
              T* const start = a.data() + place % 2;  // also off an element's boundary
              std::fill(start, start + 2 * n, T(3));
              call(1, start, b.data(), clean.data(), nullptr);
              memcpy(start + 2 * place, x, sizeof x), memcpy(&b[size_t(2 * place)], y, sizeof y);
              const auto seen =
                  record_events([&] { call(n, start, b.data(), r.data(), nullptr); }, replace);
              ASSERT_EQ(seen.size(), size_t(due.status != 0)) << row.function << show(x) << show(y);
              for (int k = 0; k < n; ++k) {
                const T* z = &r[size_t(2 * k)];
                const bool replaced = k == place && due.status != 0 && replace;
                const double re = k != place ? clean[0] : replaced ? 42 : due.value.re;
                const double im = k != place ? clean[1] : replaced ? 43 : due.value.im;
                ASSERT_TRUE(agrees(z[0], re) && agrees(z[1], im))
                    << row.function << show(x) << show(y) << " at " << place << " of " << n
                    << ", element " << k << ": " << show(z) << " not " << re << " " << im;
              }
              ASSERT_EQ(r[size_t(2 * n)], T(-7));
            }
      }
    }
}

// EP: plain arithmetic on all values, and no status.
TYPED_TEST(ComplexSpecials, EpReportsNothing) {
  using T = TypeParam;
  const auto p = parts<T>();
  for (const Row<T>& row : rows<T>) {
    std::vector<T> a, b;
    for (const T x : p)
      for (const T y : p) a.insert(a.end(), {x, y}), b.insert(b.end(), {y, x});
    std::vector<T> r(a.size());
    const auto seen = record_events([&] {
      kernel<T>(row.function, 2)(int(a.size() / 2), a.data(), b.data(), r.data(), nullptr);
    });
    EXPECT_TRUE(seen.empty()) << row.function;
  }
}

// Both parts of Abs, Arg, Conj; the argument of CIS.
TYPED_TEST(ComplexSpecials, OneOperand) {
  using T = TypeParam;
  const auto p = parts<T>();
  std::vector<T> a;
  for (const T x : p)
    for (const T y : p) a.insert(a.end(), {x, y});
  const int n = int(a.size() / 2);
  std::vector<T> r(a.size()), real(size_t(n), T(0));
  for (int level = 0; level < 3; ++level) {
    const bool ep = level == 2;
    const auto seen = record_events([&] {
      for (const char* function : {"Abs", "Arg", "Conj", "CIS"}) {
        const Call<T> call = kernel<T>(function, level);
        const std::string f = function;
        call(n, a.data(), nullptr, r.data(), nullptr);
        for (int i = 0; i < n; ++i) {
          const T *x = &a[size_t(2 * i)], *z = &r[size_t(2 * i)];
          const double re = x[0], im = x[1];
          if (f == "Conj") {
            ASSERT_EQ(bits(z[0]), bits(x[0])) << "payloads too";
            ASSERT_EQ(bits(z[1]), bits(x[1]) ^ bits(T(-0.0)));
          } else if (f == "CIS") {
            const T y = a[size_t(i)];
            if (!std::isfinite(y)) {
              ASSERT_TRUE(agrees(z[0], NAN) && agrees(z[1], NAN));
            } else if (std::fabs(y) < 1e-3) {
              if (!ep) {
                ASSERT_EQ(z[0], 1);
                ASSERT_EQ(bits(z[1]), bits(y)) << "a zero keeps its sign";
              }
            } else if (!ep) {
              ASSERT_NEAR(z[0], double(cosq(y)), 1e-6);
              ASSERT_NEAR(z[1], double(sinq(y)), 1e-6);
            }
          } else if (f == "Abs") {
            const double want = std::isinf(re) || std::isinf(im) ? INFINITY : std::hypot(re, im);
            // Of the digits of ordinary values EP has some; a NaN beside an infinity may stay.
            if (ep && !(want == 0 || (std::isinf(want) && !std::isnan(re + im)))) continue;
            ASSERT_TRUE(agrees(r[size_t(i)], double(T(want))))
                << call.slot->name(level) << show(x) << r[size_t(i)];
          } else {
            const T want = T(std::atan2(im, re));
            const T got = r[size_t(i)];
            if (std::isnan(want) || want == 0) {
              ASSERT_TRUE(agrees(got, want)) << call.slot->name(level) << show(x) << got;
            } else {
              ASSERT_NEAR(got / want, 1, ep ? 0x1p-11 : 4 * std::numeric_limits<T>::epsilon())
                  << call.slot->name(level) << show(x) << got;
            }
          }
        }
      }
    });
    EXPECT_TRUE(seen.empty());
  }
}

// The scalar forms: one element by its index, any argument, nothing else touched or reported.
template <class T>
void check_scalars(std::initializer_list<void (*)(int, const T*, T*)> functions) {
  const StateGuard guard;
  for (const auto f : functions)
    for (const T x :
         {T(0.5), T(-0.0), T(-1e22), smallest_denormal<T>, largest<T>, inf<T>, quiet_nan<T>})
      for (const unsigned short x87 : {0x037F, 0x027F}) {
        const T a[3] = {1, 1, x};
        T r[8] = {7, 7, 7, 7, 7, 7, 7, 7};
        set_x87_control(x87);
        const auto seen = record_events([&] { f(2, a, r); });
        EXPECT_EQ(x87_control(), x87);
        EXPECT_TRUE(seen.empty());
        for (const int k : {0, 1, 2, 3, 6, 7}) EXPECT_EQ(r[k], 7);
        if (!std::isfinite(x)) {
          EXPECT_TRUE(agrees(r[4], NAN) && agrees(r[5], NAN));
          continue;
        }
        const T re = T(cosq(x)), im = T(sinq(x));  // to 113 bits
        EXPECT_LE(std::fabs(r[4] - re), std::numeric_limits<T>::epsilon() / 2) << x;
        EXPECT_LE(std::fabs(r[5] - im), std::numeric_limits<T>::epsilon() / 2) << x;
        EXPECT_EQ(std::signbit(r[5]), std::signbit(im)) << x;
      }
}
TEST(ComplexScalars, CisOfOneElement) {
  check_scalars<double>({ork_zem_kernel_zCIS_SC, ork_zem_kernel_zCIS_SC_HA,
                         ork_zem_kernel_zCIS_SC_LA, ork_zem_kernel_zCIS_SC_A11});
  check_scalars<float>(
      {ork_zem_kernel_cCIS_SC_HA, ork_zem_kernel_cCIS_SC_LA, ork_zem_kernel_cCIS_SC_A11});
}

}  // namespace
