#include "rua_kernel/discrete/log_factorials.hpp"

#include "rua_kernel/service/elementwise.hpp"
#include "rua_sub_kernel/math/ln.hpp"

namespace ork::rua {

namespace {

constexpr int32_t kTable = 16;
// ln k!
constexpr double kLogFactorials[kTable] = {0.0,
                                           0.0,
                                           0.69314718055994529,
                                           1.7917594692280550,
                                           3.1780538303479458,
                                           4.7874917427820458,
                                           6.5792512120101012,
                                           8.5251613610654147,
                                           10.604602902745251,
                                           12.801827480081469,
                                           15.104412573075516,
                                           17.502307845873887,
                                           19.987214495661885,
                                           22.552163853123425,
                                           25.191221182738680,
                                           27.899271383840890};
constexpr double kHalfLn2Pi = 0.9189385332;

// Of 1/x.
double series(double inverse) {
  return inverse * (0.08333333333333333 - 0.002777777777777778 * (inverse * inverse));
}

}  // namespace

double log_factorial(int32_t x) {
  if (x < kTable) return kLogFactorials[x];
  const double d = x;
  return (d + 0.5) * ln(d) + kHalfLn2Pi - d + series(1 / d);
}

double log_factorials(int32_t a, int32_t b, int32_t c, int32_t d, int32_t sum) {
  if (a < kTable || b < kTable || c < kTable || d < kTable)
    return log_factorial(a) + log_factorial(b) + log_factorial(c) + log_factorial(d);
  const double x[4] = {double(a), double(b), double(c), double(d)};
  double l[4], inverse[4];
  apply(Tables<double>::ln, 4, x, l, kConstants);
  apply(Tables<double>::inv, 4, x, inverse, kConstants);
  double total = 0, rest = 0;
  for (int i = 0; i < 4; ++i) {
    total += (x[i] + 0.5) * l[i];
    rest += series(inverse[i]);
  }
  return total + 4 * kHalfLn2Pi - sum + rest;
}

}  // namespace ork::rua
