// The complex scalars at all pairs of special values, each cell by its rule, and at ordinary ones
// against quad precision.
#include <quadmath.h>

#include <cfenv>
#include <random>

#include "ork/zem_complex_scalar.h"
#include "support/bits.hpp"
#include "support/control.hpp"
#include "support/pch.hpp"

namespace {

using quad = __float128;
using complex_quad = __complex128;

constexpr double inf = __builtin_inf(), largest = 0x1.fffffffffffffp1023, denormal = 0x1p-1060;
constexpr double pi = 0x1.921fb54442d18p1;
const double quiet = __builtin_nan("0x77"), signalling = from_bits<double>(0x7FF0000000000123);

bool is_signalling(double x) { return std::isnan(x) && !(bits(x) >> 51 & 1); }

// What a cell holds: a value made of the argument's signs and sizes, or `exact`, the function's
// own value to 0.51 ulp, zeros with its sign.
using Cell = double (*)(double x, double y);
const Cell exact = nullptr;
double like(double size, double sign) { return std::copysign(size, sign); }
double sine(double y) { return std::fpclassify(y) == FP_SUBNORMAL ? y : double(sinq(y)); }
double cosine(double y) { return double(cosq(y)); }

double nan(double, double) { return quiet; }
double plus_0(double, double) { return 0.0; }
double plus_inf(double, double) { return inf; }
double minus_inf(double, double) { return -inf; }
double plus_1_like_x(double x, double) { return like(1, x); }
double x_itself(double x, double) { return x; }
double y_itself(double, double y) { return y; }
double minus_y(double, double y) { return -y; }
double zero_like_x(double x, double) { return like(0, x); }
double zero_like_y(double, double y) { return like(0, y); }
double zero_unlike_y(double, double y) { return like(0, -y); }
double inf_like_x(double x, double) { return like(inf, x); }
double inf_like_y(double, double y) { return like(inf, y); }
double inf_unlike_y(double, double y) { return like(inf, -y); }
double inf_cos(double, double y) { return like(inf, cosine(y)); }
double inf_sin(double, double y) { return like(inf, sine(y)); }
double zero_cos(double, double y) { return like(0, cosine(y)); }
double zero_sin(double, double y) { return like(0, sine(y)); }
double x_inf_cos(double x, double y) { return like(inf, x) * like(1, cosine(y)); }
double x_inf_sin(double x, double y) { return like(inf, x) * like(1, sine(y)); }
double zero_sin_cos(double, double y) { return like(0, double(sinq(y) * cosq(y))); }
double zero_xy(double x, double y) { return like(0, x) * like(1, y); }
double pi_like_y(double, double y) { return like(pi, y); }
double half_pi_like_y(double, double y) { return like(pi / 2, y); }
double quarter_pi_like_y(double, double y) { return like(pi / 4, y); }
double three_quarters_like_y(double, double y) { return like(0x1.2d97c7f3321d2p1, y); }
double plus_pi(double, double) { return pi; }
double plus_half_pi(double, double) { return pi / 2; }
double plus_quarter_pi(double, double) { return pi / 4; }
double plus_three_quarters(double, double) { return 0x1.2d97c7f3321d2p1; }
double over_ln10(double y, quad angle) { return like(double(angle / M_LN10q), y); }
double pi_over_ln10(double, double y) { return over_ln10(y, M_PIq); }
double half_pi_over_ln10(double, double y) { return over_ln10(y, M_PIq / 2); }
double quarter_pi_over_ln10(double, double y) { return over_ln10(y, M_PIq / 4); }
double three_quarters_over_ln10(double, double y) { return over_ln10(y, 3 * M_PIq / 4); }
double asin_y(double, double y) { return double(asinq(y)); }
double acosh_size_y_like_x(double x, double y) { return like(double(acoshq(fabsq(y))), x); }
double minus_asinh_y(double, double y) { return double(-asinhq(y)); }

// Sets of arguments: F ordinary, 0 zero, I infinite, N not a number, f finite, n not finite,
// b ordinary and below 1, a from 1 on, H from 2048 on, L ordinary and below, G and K the same for
// 512, * all; a leading + or - for one sign.
bool is_in(const char* set, double x) {
  if (*set == '+' || *set == '-') {
    if (std::isnan(x) || std::signbit(x) != (*set == '-')) return false;
    ++set;
  }
  const double size = std::fabs(x);
  switch (*set) {
    case 'F':
      return std::isfinite(x) && x != 0;
    case '0':
      return x == 0;
    case 'I':
      return std::isinf(x);
    case 'N':
      return std::isnan(x);
    case 'f':
      return std::isfinite(x);
    case 'n':
      return !std::isfinite(x);
    case 'b':
      return size < 1 && x != 0;
    case 'a':
      return size >= 1 && std::isfinite(x);
    case 'H':
      return size >= 2048 && std::isfinite(x);
    case 'L':
      return size < 2048 && x != 0;
    case 'G':
      return size >= 512 && std::isfinite(x);
    case 'K':
      return size < 512 && x != 0;
    default:
      return *set == '*';
  }
}

struct Row {
  const char *x, *y;
  Cell re, im;
  int raised = 0;
};
struct Function {
  const char* name;
  double* (*f)(double*, double, double);
  complex_quad (*reference)(complex_quad);
  std::vector<Row> rows;  // the first that fits
};

complex_quad clog10_quad(complex_quad z) { return clogq(z) / M_LN10q; }

#define F(name) "c" #name, ork_zem_kernel_c##name##_scalar
const std::vector<Function>& functions() {
  constexpr int over = FE_OVERFLOW, bad = FE_INVALID, pole = FE_DIVBYZERO, under = FE_UNDERFLOW,
                inex = FE_INEXACT;
  static const std::vector<Function> all = {
      {F(exp),
       cexpq,
       {{"L", "F", exact, exact},
        {"+H", "F", inf_cos, inf_sin, over},
        {"-H", "F", zero_cos, zero_sin},
        {"f", "0", exact, y_itself},
        {"+I", "0", plus_inf, y_itself},
        {"-I", "0", plus_0, y_itself},
        {"N", "0", nan, y_itself},
        {"+I", "I", plus_inf, nan, bad},
        {"+I", "N", plus_inf, nan},
        {"-I", "I", plus_0, zero_like_y},
        {"-I", "N", plus_0, plus_0},
        {"N", "n", nan, nan},
        {"f", "I", nan, nan, bad},
        {"f", "N", nan, nan},
        {"0", "F", exact, exact},
        {"+I", "F", inf_cos, inf_sin},
        {"-I", "F", zero_cos, zero_sin},
        {"N", "F", nan, nan}}},
      {F(log),
       clogq,
       {{"0", "0", minus_inf, exact, pole},
        {"f", "f", exact, exact},
        {"N", "I", plus_inf, nan},
        {"N", "*", nan, nan},
        {"I", "N", plus_inf, nan},
        {"*", "N", nan, nan},
        {"+I", "f", plus_inf, zero_like_y},
        {"-I", "f", plus_inf, pi_like_y},
        {"f", "I", plus_inf, half_pi_like_y},
        {"+I", "I", plus_inf, quarter_pi_like_y},
        {"-I", "I", plus_inf, three_quarters_like_y}}},
      {F(log10),
       clog10_quad,
       {{"+0", "0", minus_inf, y_itself, pole},
        {"-0", "0", minus_inf, pi_over_ln10, pole},
        {"f", "f", exact, exact},
        {"N", "I", plus_inf, nan},
        {"N", "*", nan, nan},
        {"I", "N", plus_inf, nan},
        {"*", "N", nan, nan},
        {"-I", "I", plus_inf, three_quarters_over_ln10},
        {"+I", "I", plus_inf, quarter_pi_over_ln10},
        {"f", "I", plus_inf, half_pi_over_ln10},
        {"-I", "f", plus_inf, pi_over_ln10},
        {"+I", "f", plus_inf, zero_like_y}}},
      {F(sqrt),
       csqrtq,
       {{"*", "I", plus_inf, y_itself},
        {"-I", "N", nan, plus_inf},
        {"+I", "N", plus_inf, nan},
        {"N", "*", nan, nan},
        {"*", "N", nan, nan},
        {"-I", "f", plus_0, inf_like_y},
        {"+I", "f", plus_inf, zero_like_y},
        {"-F", "0", plus_0, exact},
        {"0", "0", plus_0, zero_like_y},
        {"f", "f", exact, exact}}},
      {F(cosh),
       ccoshq,
       {{"L", "F", exact, exact},
        {"H", "F", inf_cos, x_inf_sin, over},
        {"f", "0", exact, y_itself},
        {"-I", "0", plus_inf, minus_y},
        {"+I", "0", plus_inf, y_itself},
        {"N", "0", nan, y_itself},
        {"0", "F", exact, exact, inex},
        {"I", "b", plus_inf, [](double x, double y) { return x * like(1, y); }},
        {"I", "a", inf_cos, x_inf_sin},
        {"N", "F", nan, nan},
        {"0", "I", nan, zero_xy, bad},
        {"0", "N", nan, [](double x, double) { return -x; }},
        {"F", "I", nan, nan, bad},
        {"F", "N", nan, nan},
        {"I", "I", plus_inf, nan, bad},
        {"I", "N", plus_inf, nan},
        {"N", "I", nan, nan, bad},
        {"N", "N", nan, nan}}},
      {F(sinh),
       csinhq,
       {{"L", "F", exact, exact},
        {"H", "F", x_inf_cos, inf_sin, over},
        {"H", "0", inf_like_x, y_itself},
        {"f", "0", exact, y_itself},
        {"I", "0", x_itself, y_itself},
        {"N", "0", nan, y_itself},
        {"0", "F", exact, exact, inex},
        {"I", "b", x_itself, inf_like_y},
        {"I", "a", x_inf_cos, inf_sin},
        {"N", "F", nan, nan},
        {"0", "I", x_itself, nan, bad},
        {"0", "N", x_itself, nan},
        {"I", "I", x_itself, nan, bad},
        {"I", "N", x_itself, nan},
        {"N", "I", nan, nan, bad},
        {"N", "N", nan, nan},
        {"F", "I", nan, nan, bad},
        {"F", "N", nan, nan}}},
      {F(tanh),
       ctanhq,
       {{"K", "f", exact, exact},
        {"G", "0", plus_1_like_x, y_itself, under},
        {"G", "F", plus_1_like_x, zero_sin_cos, under},
        {"I", "0", plus_1_like_x, y_itself},
        {"I", "I", plus_1_like_x, zero_like_y},
        {"I", "N", plus_1_like_x, plus_0},
        {"I", "b", plus_1_like_x, zero_like_y},
        {"I", "a", plus_1_like_x, zero_sin_cos},
        {"N", "0", nan, y_itself},
        {"N", "*", nan, nan},
        {"f", "I", nan, nan, bad},
        {"f", "N", nan, nan},
        {"0", "F", x_itself, exact},
        {"0", "0", x_itself, y_itself}}},
      {F(atanh),
       catanhq,
       {{"F", "F", exact, exact},
        {"N", "f", nan, nan},
        {"N", "I", plus_0, half_pi_like_y, inex},
        {"N", "N", nan, nan},
        {"F", "N", nan, nan},
        {"I", "N", zero_like_x, nan},
        {"0", "N", zero_like_x, nan},
        {"*", "I", zero_like_x, half_pi_like_y},
        {"0", "f", x_itself, exact},
        {"+a", "0", [](double x, double) { return x == 1 ? inf : double(atanhq(1 / quad(x))); },
         [](double x, double y) { return x == 1 ? y : like(pi / 2, y); }},
        {"-a", "0", [](double x, double) { return x == -1 ? -inf : double(atanhq(1 / quad(x))); },
         [](double x, double y) { return x == -1 ? y : like(pi / 2, y); }},
        {"b", "0", exact, y_itself},
        {"I", "f", zero_like_x, half_pi_like_y, inex}}},
      {F(asinh),
       casinhq,
       {{"F", "F", exact, exact},
        {"N", "0", nan, y_itself},
        {"I", "0", x_itself, y_itself},
        {"f", "0", exact, y_itself},
        {"0", "b", x_itself, asin_y},
        {"0", "I", inf_like_x, half_pi_like_y, inex},
        {"0", "a", acosh_size_y_like_x, half_pi_like_y, inex},
        {"N", "I", plus_inf, nan},
        {"N", "*", nan, nan},
        {"f", "N", nan, nan},
        {"I", "N", x_itself, nan},
        {"I", "F", x_itself, zero_like_y, inex},
        {"I", "I", x_itself, quarter_pi_like_y, inex},
        {"F", "I", inf_like_x, half_pi_like_y, inex}}},
      {F(acos),
       cacosq,
       {{"F", "F", exact, exact},
        {"0", "N", plus_half_pi, nan},
        {"0", "I", plus_half_pi, minus_y, inex},
        {"0", "f", plus_half_pi, minus_asinh_y, inex},
        {"f", "N", nan, nan},
        {"N", "f", nan, nan},
        {"N", "N", nan, nan},
        {"I", "N", nan, plus_inf},
        {"b", "0", exact, zero_unlike_y},
        {"+a", "0", plus_0, [](double x, double y) { return like(double(acoshq(x)), -y); }},
        {"-a", "0", plus_pi, [](double x, double y) { return like(double(acoshq(-x)), -y); }, inex},
        {"+I", "f", plus_0, inf_unlike_y},
        {"-I", "f", plus_pi, inf_unlike_y, inex},
        {"+I", "I", plus_quarter_pi, minus_y},
        {"-I", "I", plus_three_quarters, minus_y},
        {"F", "I", plus_half_pi, minus_y, inex},
        {"N", "I", nan, minus_y}}},
      {F(acosh),
       cacoshq,
       {{"F", "F", exact, exact},
        {"b", "0", plus_0, [](double x, double y) { return like(double(acosq(x)), y); }},
        {"0", "0", plus_0, half_pi_like_y},
        {"+I", "0", plus_inf, y_itself},
        {"-I", "0", plus_inf, pi_like_y, inex},
        {"+a", "0", [](double x, double) { return double(acoshq(x)); }, y_itself},
        {"-a", "0", [](double x, double) { return double(acoshq(-x)); }, pi_like_y, inex},
        {"0", "I", plus_inf, half_pi_like_y},
        {"0", "F", [](double, double y) { return double(asinhq(fabsq(y))); }, half_pi_like_y},
        {"N", "I", plus_inf, nan},
        {"N", "*", nan, nan},
        {"f", "N", nan, nan},
        {"I", "N", plus_inf, nan},
        {"+I", "f", plus_inf, zero_like_y},
        {"-I", "f", plus_inf, pi_like_y, inex},
        {"+I", "I", plus_inf, quarter_pi_like_y},
        {"-I", "I", plus_inf, three_quarters_like_y},
        {"F", "I", plus_inf, half_pi_like_y, inex}}},
  };
  return all;
}

// The function that is one of the above, turned: -i g(iz); that of the cosine is g(iz).
struct Turned {
  const char* name;
  double* (*f)(double*, double, double);
  const char* of;
};
const Turned turned[] = {{F(sin), "csinh"},
                         {F(cos), "ccosh"},
                         {F(tan), "ctanh"},
                         {F(asin), "casinh"},
                         {F(atan), "catanh"}};

double ulps(double got, quad truth) {
  if (std::isnan(got) || isnanq(truth)) return std::isnan(got) && isnanq(truth) ? 0 : inf;
  if (std::isinf(got)) return fabsq(truth) > quad(largest) && (got > 0) == (truth > 0) ? 0 : inf;
  if (truth == 0) return got == 0 && std::signbit(got) == bool(signbitq(truth)) ? 0 : inf;
  if (got == 0 && std::signbit(got) != (truth < 0)) return inf;
  return double(scalbnq(fabsq(got - truth), 52 - std::max(ilogbq(truth), -1022)));
}

void check(double got, Cell cell, quad truth, double x, double y, const std::string& where) {
  if (!cell) {
    EXPECT_LE(ulps(got, truth), 0.51) << where << " = " << got;
    return;
  }
  const double wanted = cell(x, y);
  if (std::isnan(wanted)) {
    EXPECT_TRUE(std::isnan(got)) << where << " = " << got;
    EXPECT_FALSE(is_signalling(got)) << where;
  } else {
    EXPECT_EQ(bits(got), bits(wanted)) << where << " = " << got << ", not " << wanted;
  }
}

const double special_values[] = {0.0,   -0.0,       denormal, -denormal, 1,   -1,
                                 0.5,   -0.5,       largest,  -largest,  inf, -inf,
                                 quiet, signalling, 700,      -2};

complex_quad pair(quad x, quad y) {
  complex_quad z;
  __real__ z = x, __imag__ z = y;
  return z;
}

TEST(ComplexScalar, EveryPairOfSpecialValues) {
  const StateGuard state;
  for (const Function& f : functions())
    for (const double x : special_values)
      for (const double y : special_values) {
        const std::string where =
            std::string(f.name) + "(" + std::to_string(x) + ", " + std::to_string(y) + ")";
        const Row* row = nullptr;
        for (const Row& r : f.rows)
          if (is_in(r.x, x) && is_in(r.y, y)) {
            row = &r;
            break;
          }
        ASSERT_TRUE(row) << where;
        double r[3] = {7, 7, 7};
        std::feclearexcept(FE_ALL_EXCEPT);
        EXPECT_EQ(f.f(r, x, y), r);
        EXPECT_EQ(std::fetestexcept(row->raised), row->raised) << where;
        const bool signals = is_signalling(x) || is_signalling(y);
        if (!signals) {
          EXPECT_EQ(bool(std::fetestexcept(FE_INVALID)), bool(row->raised & FE_INVALID)) << where;
        }
        EXPECT_EQ(bool(std::fetestexcept(FE_DIVBYZERO)),
                  bool(row->raised & FE_DIVBYZERO) ||
                      (!strcmp(f.name, "catanh") && std::fabs(x) == 1 && y == 0))
            << where;
        EXPECT_EQ(r[2], 7);
        complex_quad truth = pair(0, 0);
        if (std::isfinite(x) && std::isfinite(y)) truth = f.reference(pair(x, y));
        check(r[0], row->re, __real__ truth, x, y, where + " real");
        check(r[1], row->im, __imag__ truth, x, y, where + " imaginary");
      }
  EXPECT_EQ(x87_control(), 0x037F);
  EXPECT_EQ(mxcsr_control(), 0x1F80u);
}

// z -> -i g(iz), a NaN without a sign of its own.
TEST(ComplexScalar, TurnedFunctions) {
  const auto minus = [](double x) { return std::isnan(x) ? x : -x; };
  for (const Turned& t : turned) {
    const auto& all = functions();
    const auto g =
        std::find_if(all.begin(), all.end(), [&](auto& f) { return !strcmp(f.name, t.of); });
    for (const double x : special_values)
      for (const double y : special_values) {
        double r[2], h[2];
        t.f(r, x, y);
        g->f(h, minus(y), x);
        const double re = strcmp(t.name, "ccos") ? h[1] : h[0],
                     im = strcmp(t.name, "ccos") ? minus(h[0]) : h[1];
        EXPECT_TRUE(bits(r[0]) == bits(re) && bits(r[1]) == bits(im)) << t.name << x << ", " << y;
      }
  }
}

// Ordinary arguments: uniform in exponent, around the branch points, on the unit circle and where
// methods change.
std::vector<std::pair<double, double>> arguments() {
  std::vector<std::pair<double, double>> z;
  std::mt19937_64 random(3);
  const auto uniform = [&](double a, double b) {
    return a + (b - a) * double(random() >> 11) * 0x1p-53;
  };
  for (int i = 0; i < 700; ++i) {
    z.emplace_back(uniform(-4, 4), uniform(-4, 4));
    z.emplace_back(std::exp(uniform(-30, 9)), -std::exp(uniform(-30, 9)));
    z.emplace_back(-std::exp(uniform(-700, 700)), std::exp(uniform(-700, 700)));
    const double angle = uniform(-3.2, 3.2), r = 1 + std::exp(uniform(-40, -3)) * (i % 2 ? 1 : -1);
    z.emplace_back(r * std::cos(angle), r * std::sin(angle));
    const double gap = std::exp(uniform(-45, -1)), other = std::exp(uniform(-45, -1));
    z.emplace_back(i % 4 < 2 ? 1 + gap : -1 + gap, i % 8 < 4 ? other : -other);
    z.emplace_back(other, i % 4 < 2 ? 1 - gap : -1 - gap);
    z.emplace_back(uniform(700, 720), uniform(-1e6, 1e6));
    z.emplace_back(uniform(-760, -700), uniform(-1e6, 1e6));
  }
  for (const double x : {512.0, 2048.0, 709.78271289338397, 1.5, 0.9, 0.6417})
    for (const double near : {x, std::nextafter(x, 0), std::nextafter(x, 9999)})
      for (const double y : {1.0, -2.0, 1e-5, 1e17})
        z.emplace_back(near, y), z.emplace_back(y, -near);
  return z;
}

TEST(ComplexScalar, OrdinaryValues) {
  const auto points = arguments();
  for (const Function& f : functions()) {
    int wrong = 0, parts = 0;
    for (const auto& [x, y] : points) {
      if (std::fabs(x) >= 512 && (!strcmp(f.name, "ctanh") || std::fabs(x) >= 2048) &&
          strchr("esct", f.name[1]) && strcmp(f.name, "csqrt"))
        continue;  // rows of their own
      double r[2];
      f.f(r, x, y);
      const complex_quad truth = f.reference(pair(x, y));
      const double re = ulps(r[0], __real__ truth), im = ulps(r[1], __imag__ truth);
      ASSERT_LE(re, 0.51) << std::hexfloat << f.name << " real " << x << ", " << y;
      ASSERT_LE(im, 0.51) << std::hexfloat << f.name << " imaginary " << x << ", " << y;
      wrong += (re > 0.5) + (im > 0.5);
      parts += 2;
    }
    EXPECT_LE(wrong * 250, parts) << f.name;
  }
}

// exp(b ln a) with logarithm and product in double.
TEST(ComplexScalar, Powers) {
  std::mt19937_64 random(4);
  const auto uniform = [&](double a, double b) {
    return a + (b - a) * double(random() >> 11) * 0x1p-53;
  };
  for (int i = 0; i < 2000; ++i) {
    const double x = uniform(-3, 3), y = uniform(-3, 3), u = uniform(-8, 8), v = uniform(-8, 8);
    double r[2];
    EXPECT_EQ(ork_zem_kernel_cpow_scalar(r, x, y, u, v), r);
    const complex_quad truth = cpowq(pair(x, y), pair(u, v));
    const quad size = cabsq(truth), error = cabsq(pair(r[0], r[1]) - truth);
    const quad factor = 2 + cabsq(pair(u, v)) * (1 + cabsq(clogq(pair(x, y))));
    ASSERT_LE(double(error / size), double(factor) * 0x1p-52)
        << x << ' ' << y << ' ' << u << ' ' << v;
  }
  // From the logarithm of 0 and the exponential of it.
  double r[2];
  ork_zem_kernel_cpow_scalar(r, 0, 0, 2, 0);
  EXPECT_TRUE(std::isnan(r[0]) || r[0] == 0);
}

}  // namespace
