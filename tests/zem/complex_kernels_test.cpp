// Kernels of complex functions: at special values the scalars' results, rounded to the element's
// type, and an overflow reported where, and only where, it comes from ordinary numbers.
#include "ork/zem_complex_scalar.h"
#include "support/bits.hpp"
#include "support/control.hpp"
#include "support/pch.hpp"
#include "support/special.hpp"

namespace {

struct Function {
  const char* name;
  double* (*scalar)(double*, double, double);  // null: powers
  bool reports;
};
#define F(name, scalar) #name, ork_zem_kernel_c##scalar##_scalar
const Function functions[] = {
    {F(Acos, acos), false},   {F(Acosh, acosh), false}, {F(Asin, asin), false},
    {F(Asinh, asinh), false}, {F(Atan, atan), false},   {F(Atanh, atanh), false},
    {F(Cos, cos), true},      {F(Cosh, cosh), true},    {F(Exp, exp), true},
    {F(Ln, log), false},      {F(Log10, log10), false}, {F(Sin, sin), true},
    {F(Sinh, sinh), true},    {F(Sqrt, sqrt), false},   {F(Tan, tan), false},
    {F(Tanh, tanh), false},   {"Pow", nullptr, true},   {"Powx", nullptr, true}};

// The same bits; a NaN for a NaN; an ordinary number of a vector kernel within 4 ulp.
template <class T>
bool same(T got, T wanted, bool vector) {
  if (std::isnan(wanted)) return std::isnan(got);
  if (vector && std::isfinite(wanted) && wanted != 0)
    return std::fabs(got - wanted) <= 4 * std::numeric_limits<T>::epsilon() * std::fabs(wanted);
  return bits(got) == bits(wanted);
}
template <class T>
bool ordinary(T x) {
  return std::isfinite(x) && x != 0;
}

template <class T>
void check(const Slot& slot, const Function& f, int level) {
  const T values[] = {
      T(0),   T(-0.0), smallest_denormal<T>, -smallest_denormal<T>,
      1,      -1,      largest<T>,           -largest<T>,
      inf<T>, -inf<T>, quiet_nan<T>,         std::numeric_limits<T>::signaling_NaN(),
      100};
  const bool two = f.scalar == nullptr, vector = slot.kernels[level][0] != 'P';
  std::vector<T> a, b;
  for (const T x : values)
    for (const T y : values) {
      a.insert(a.end(), {x, y});
      b.insert(b.end(), {T(2), slot.form == Form::scalar ? T(0.5) : y});
    }
  const int n = int(a.size() / 2);
  std::vector<T> r(a.size());
  const auto events = record_events([&] {
    Call<T>{&slot, level}(n, a.data(), b.data(), r.data(), r.data());
  });
  size_t next = 0;
  for (int i = 0; i < n; ++i) {
    const T *x = &a[size_t(2 * i)], *p = &b[size_t(2 * i)], *got = &r[size_t(2 * i)];
    const std::string where =
        slot.name(level) + "(" + std::to_string(x[0]) + ", " + std::to_string(x[1]) + ")";
    double z[2];
    if (two)
      ork_zem_kernel_cpow_scalar(z, x[0], x[1], p[0], p[1]);
    else
      f.scalar(z, x[0], x[1]);
    const bool clean =
        ordinary(x[0]) && ordinary(x[1]) && (!two || (ordinary(p[0]) && ordinary(p[1])));
    const bool special = !clean || std::fabs(x[0]) == largest<T> || std::fabs(x[1]) == largest<T>;
    if (special) {
      EXPECT_TRUE(same(got[0], T(z[0]), vector)) << where << " real " << got[0] << " not " << z[0];
      EXPECT_TRUE(same(got[1], T(z[1]), vector))
          << where << " imaginary " << got[1] << " not " << z[1];
    }
    if (f.reports && clean && (std::isinf(got[0]) || std::isinf(got[1]))) {
      ASSERT_LT(next, events.size()) << where;
      const Event& e = events[next++];
      EXPECT_EQ(e.index, i) << where;
      EXPECT_EQ(e.status, ZEM_STATUS_OVERFLOW) << where;
      EXPECT_EQ(e.name, std::string("v") + slot.type + slot.function);
      EXPECT_EQ(e.a1, double(x[0]));
      if (two) {
        EXPECT_EQ(e.a2, double(p[0])) << where;
      }
    }
  }
  EXPECT_EQ(next, events.size()) << slot.name(level);
}

TEST(ComplexKernels, SpecialValuesAndReports) {
  const StateGuard state;
  for (const Slot& slot : slots)
    for (const Function& f : functions)
      for (int level = 0; level < 3; ++level) {
        if (strcmp(slot.function, f.name) || !slot.exists(level)) continue;
        if (slot.type == 'z') check<double>(slot, f, level);
        if (slot.type == 'c') check<float>(slot, f, level);
      }
}

}  // namespace
