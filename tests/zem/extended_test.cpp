// The extended scalars at special values, where their methods change, and the reduction modulo
// pi/4. Accuracy over the whole format is the meter's (accuracy.extended).
#include <quadmath.h>

#include "ork/zem_extended.h"
#include "support/bits.hpp"
#include "support/control.hpp"
#include "support/pch.hpp"

namespace {

using quad = __float128;
using wide = long double;

constexpr wide inf = __builtin_infl(), least = 0x1p-16445L, normal = 0x1p-16382L;
constexpr wide most = 0x1.fffffffffffffffep16383L;
constexpr wide pi = 0xC.90FDAA22168C235p-2L;
constexpr unsigned invalid = 1, pole = 4, overflow = 8, underflow = 16, inexact = 32;

struct Image {
  uint64_t significand;
  uint16_t exponent;
  bool operator==(const Image&) const = default;
};
Image image(wide x) {
  Image i;
  memcpy(&i.significand, &x, 8);
  memcpy(&i.exponent, (const char*)&x + 8, 2);
  return i;
}
wide signalling_nan() {
  const Image i = {0xA000000000000001, 0x7FFF};
  wide x = 0;
  memcpy(&x, &i.significand, 8);
  memcpy((char*)&x + 8, &i.exponent, 2);
  return x;
}
unsigned x87_flags() {
  unsigned short w;
  asm volatile("fnstsw %0" : "=m"(w));
  return w & 0x3F;
}

template <int which>
wide of_pair(wide x) {
  wide r[2];
  (which < 2 ? ork_zem_kernel_sincosl_scalar : ork_zem_kernel_sinhcoshl_scalar)(x, &r[0], &r[1]);
  return r[which & 1];
}

struct Row {
  wide x, result;
  unsigned raised = 0;
};
struct Function {
  const char* name;
  wide (*f)(wide);
  bool odd;
  std::vector<Row> rows;
};
#define F(name) #name, ork_zem_kernel_##name##l_scalar

const std::vector<Function>& functions() {
  const wide nan = __builtin_nanl("");
  static const std::vector<Function> all = {
      {F(exp),
       false,
       {{0.0L, 1},
        {-0.0L, 1},
        {inf, inf},
        {-inf, 0.0L},
        {least, 1, inexact},
        {11356.6L, inf, overflow},
        {most, inf, overflow},
        {-11400.2L, 0.0L, underflow},
        {-most, 0.0L, underflow}}},
      {F(log),
       false,
       {
           {1, 0.0L},
           {0.0L, -inf, pole},
           {-0.0L, -inf, pole},
           {-least, nan, invalid},
           {-inf, nan, invalid},
           {inf, inf},
       }},
      {F(log1p),
       false,
       {{-1, -inf, pole},
        {-1.0000001L, nan, invalid},
        {-inf, nan, invalid},
        {inf, inf},
        {0.0L, 0.0L},
        {-0.0L, -0.0L},
        {least, least},
        {-3 * least, -3 * least}}},
      {F(sqrt),
       false,
       {{-0.0L, -0.0L},
        {0.0L, 0.0L},
        {inf, inf},
        {-1, nan, invalid},
        {0x1p-16444L, 0x1p-8222L},
        {4 * normal, 0x1p-8190L}}},
      {F(fabs), false, {{-0.0L, 0.0L}, {-inf, inf}, {-2, 2}}},
      {F(sin), true, {{0.0L, 0.0L}, {inf, nan, invalid}, {least, least, inexact}}},
      {F(cos), false, {{0.0L, 1}, {-0.0L, 1}, {inf, nan, invalid}, {-inf, nan, invalid}}},
      {"sincos sine", of_pair<0>, true, {{0.0L, 0.0L}, {inf, nan, invalid}, {least, least}}},
      {"sincos cosine", of_pair<1>, false, {{-0.0L, 1}, {-inf, nan, invalid}}},
      {F(tan), true, {{0.0L, 0.0L}, {inf, nan, invalid}, {normal, normal, inexact}}},
      {F(sinh),
       true,
       {{0.0L, 0.0L},
        {inf, inf},
        {11357.3L, inf, overflow},
        {most, inf, overflow},
        {least, least}}},
      {F(cosh), false, {{-0.0L, 1}, {inf, inf}, {-inf, inf}, {-11357.3L, inf, overflow}}},
      {"sinhcosh sinh", of_pair<2>, true, {{0.0L, 0.0L}, {inf, inf}, {12000, inf, overflow}}},
      {"sinhcosh cosh", of_pair<3>, false, {{0.0L, 1}, {-inf, inf}, {-12000, inf, overflow}}},
      {F(tanh), true, {{0.0L, 0.0L}, {inf, 1}, {100, 1, inexact}, {most, 1, inexact}}},
      {F(asin),
       true,
       {{0.0L, 0.0L},
        {1, pi / 2, inexact},
        {1.0000001L, nan, invalid},
        {inf, nan, invalid},
        {least, least, inexact}}},
      {F(acos),
       false,
       {{1, 0.0L},
        {-1, pi},
        {0.0L, pi / 2},
        {least, pi / 2},
        {2, nan, invalid},
        {-inf, nan, invalid}}},
      {F(atan),
       true,
       {{0.0L, 0.0L},
        {inf, pi / 2, inexact},
        {0x1p65L, pi / 2, inexact},
        {most, pi / 2},
        {1, pi / 4},
        {least, least}}},
      {F(asinh), true, {{0.0L, 0.0L}, {inf, inf}, {normal, normal}}},
      {F(acosh), false, {{1, 0.0L}, {0.5L, nan, invalid}, {-inf, nan, invalid}, {inf, inf}}},
      {F(atanh), true, {{0.0L, 0.0L}, {1, inf, pole}, {1.5L, nan, invalid}, {inf, nan, invalid}}},
  };
  return all;
}

void expect_same(wide got, wide wanted, const std::string& where) {
  if (std::isnan(wanted))
    EXPECT_TRUE(std::isnan(got)) << where;
  else
    EXPECT_EQ(image(got), image(wanted)) << where << " = " << got;
}

TEST(Extended, SpecialValuesAndFlags) {
  const StateGuard state;
  for (const Function& f : functions()) {
    for (const Row& row : f.rows)
      for (const bool minus : {false, true}) {
        if (minus && !f.odd) continue;
        const wide x = minus ? -row.x : row.x;
        const std::string where = std::string(f.name) + " of " + std::to_string(x);
        asm volatile("fnclex");
        const wide got = f.f(x);
        const unsigned raised = x87_flags();
        expect_same(got, minus ? -row.result : row.result, where);
        EXPECT_EQ(raised & row.raised, row.raised) << where;
        const unsigned grave = invalid | pole | overflow;
        EXPECT_EQ(raised & grave, row.raised & grave) << where;
      }
    // A quiet NaN passes with its payload and no flag, a signalling one comes out quiet.
    wide nan = __builtin_nanl("0x1234");
    asm volatile("fnclex");
    EXPECT_EQ(image(f.f(nan)), image(nan)) << f.name;
    EXPECT_EQ(x87_flags() & invalid, 0u) << f.name;
    const Image quiet = image(f.f(signalling_nan()));
    EXPECT_EQ(quiet.significand, 0xE000000000000001) << f.name;
    EXPECT_EQ(x87_control(), 0x037F);
    EXPECT_EQ(mxcsr_control(), 0x1F80u);
  }
}

// Near the format's ends the exact value decides between a finite result and an infinity, and a
// denormal is rounded once.
TEST(Extended, OverflowAndDenormalResults) {
  const auto near = [](wide got, quad exact) {
    const int place = std::max(ilogbq(exact), -16382) - 63;
    return double(scalbnq(fabsq(quad(got) - exact), -place));
  };
  EXPECT_LT(near(ork_zem_kernel_expl_scalar(11356.5234062941439L), expq(11356.5234062941439L)),
            0.51);
  EXPECT_LT(near(ork_zem_kernel_sinhl_scalar(11357.2L), sinhq(11357.2L)), 0.51);
  for (int i = 0; i < 4000; ++i) {
    const wide x = -11355.14L - i * 0.0112345678901234567L;
    asm volatile("fnclex");
    const wide got = ork_zem_kernel_expl_scalar(x);
    EXPECT_TRUE(x87_flags() & underflow) << x;
    ASSERT_LE(near(got, expq(x)), 0.502) << x;
  }
}

TEST(Extended, Atan2OfSpecialPairs) {
  // atan2(y, x) of |y|, by columns of x; signs of y follow.
  const wide xs[] = {inf, 2, least, 0.0L, -0.0L, -least, -2, -inf};
  const struct {
    wide y;
    wide angle[8];
  } rows[] = {{0.0L, {0, 0, 0, 0, pi, pi, pi, pi}},
              {least, {0, 0, pi / 4, pi / 2, pi / 2, 3 * pi / 4, pi, pi}},
              {inf, {pi / 4, pi / 2, pi / 2, pi / 2, pi / 2, pi / 2, pi / 2, 3 * pi / 4}}};
  for (const auto& row : rows)
    for (int i = 0; i < 8; ++i)
      for (const wide sign : {1.0L, -1.0L})
        expect_same(ork_zem_kernel_atan2l_scalar(sign * row.y, xs[i]), sign * row.angle[i],
                    std::to_string(row.y) + ", " + std::to_string(xs[i]));
  const wide nan = __builtin_nanl("");
  for (const wide x : xs) {
    EXPECT_TRUE(std::isnan(ork_zem_kernel_atan2l_scalar(nan, x)));
    EXPECT_TRUE(std::isnan(ork_zem_kernel_atan2l_scalar(x, nan)));
  }
  // A quotient below the format.
  asm volatile("fnclex");
  EXPECT_EQ(ork_zem_kernel_atan2l_scalar(-normal, most), 0);
  EXPECT_TRUE(std::signbit(ork_zem_kernel_atan2l_scalar(-normal, most)));
  EXPECT_TRUE(x87_flags() & underflow);
}

// x = n pi/4 + r: sine and cosine of r, turned by n octants, are those of x to what quad precision
// shows.
TEST(Extended, ReductionModuloQuarterPi) {
  static const struct {
    uint64_t significand;
    int exponent;
  } nearest[] = {
#include "../../tools/accuracy/nearest_multiples.inc"
  };
  std::vector<wide> xs = {0.7853981633974483L, 0.3L, 1e-200L, 1e4000L, 1e4932L, 3, 0x1p30L - 1};
  for (const auto& n : nearest) xs.push_back(std::ldexp(wide(n.significand), n.exponent));
  for (int e = -4; e < 16384; e += e < 140 ? 1 : 37)  // every offset in a word of the constant
    for (const wide m : {1.0L, 1.99999999999999999989L, 1.2732395447351628L, 1.9L - e * 0x1p-20L})
      xs.push_back(std::ldexp(m, e));
  for (const wide x : xs)
    for (const int s : {0, 1}) {
      double r[2] = {7, 7};
      const int n = ork_zem_kernel_reduce_pi04l(x, s, r);
      ASSERT_EQ((n + s) & 1, 0) << x;
      ASSERT_LE(std::fabs(r[0]), 0.7853981633974484) << x;
      ASSERT_EQ(r[0], r[0] + r[1]) << x;
      const quad turn = (n & 7) * M_PI_4q, sum = quad(r[0]) + r[1];
      if (s == 0) {
        const quad sine[4] = {sinq(sum), cosq(sum), -sinq(sum), -cosq(sum)};
        ASSERT_LT(double(fabsq(sine[n >> 1 & 3] / sinq(x) - 1)), 0x1p-100) << x;
        ASSERT_LT(double(fabsq(sine[((n >> 1) + 1) & 3] / cosq(x) - 1)), 0x1p-100) << x;
      } else {
        ASSERT_LT(double(fabsq(sinq(sum + turn) - sinq(x))), 0x1p-98) << x;
        ASSERT_LT(double(fabsq(cosq(sum + turn) - cosq(x))), 0x1p-98) << x;
      }
    }
}

TEST(Extended, SharedTables) {
  for (int j = 0; j < 256; ++j) {
    const float c = ork_zem_core_rcp_table_256[j];
    EXPECT_LE(std::fabs(c - 1 / (1 + (j + 0.5) / 256)), 0x1p-12);
    EXPECT_EQ(c, ork_zem_core_double_rcp_table_256[j]);
    for (const auto& row : {ork_zem_core_logl_table_256[j], ork_zem_core_log_table_256[j]})
      EXPECT_LT(double(fabsq(quad(row[0]) + row[1] + logq(c))), 0x1p-82) << j;
    EXPECT_EQ(std::fmod(ork_zem_core_logl_table_256[j][0], 0x1p-48), 0);
    EXPECT_EQ(std::fmod(ork_zem_core_log_table_256[j][1], 0x1p-29), 0);
  }
  EXPECT_EQ(ork_zem_core_logl_table_256[0][1], -2.5960559907968786e-15);
  EXPECT_EQ(ork_zem_core_log_table_256[0][0], 6.245253888266704e-10);
  for (int j = 0; j <= 256; ++j) {
    const double* row = ork_zem_core_expl_table_256[j];
    EXPECT_LT(double(fabsq(quad(row[0]) + row[1] - exp2q((j - 128) / 256.0Q))), 0x1p-84) << j;
  }
  EXPECT_EQ(ork_zem_core_expl_table_256[0][1], -5.576365522251341e-12);
  for (int j = 0; j <= 512; ++j) {
    const double* row = ork_zem_core_atanl_table_128[j];
    const quad angle = j <= 256 ? atan2q(std::min(j, 128), std::min(256 - j, 128))
                                : M_PIq - atan2q(std::min(512 - j, 128), std::min(j - 256, 128));
    EXPECT_LT(double(fabsq(quad(row[0]) + row[1] - angle)), 0x1p-90) << j;
  }
  EXPECT_EQ(ork_zem_core_atanl_table_128[513][0], 0);
}

}  // namespace
