#include "logarithms/log10/log10.hpp"

namespace ork {
namespace {

constexpr double log10_2[][2] = {
#include "logarithms/log10/log10_2.inc"
};

// In the variable scaled by c0 = 111/256; log10(1 + r/c0) - r, degree 8, |r| <= 2^-7.9.
struct Decimal {
  static constexpr double c0 = 0.43359375, l1 = log10_2[0][0], l2 = log10_2[0][1];
  static constexpr double split = 8388608.0;
  static constexpr double rows[128][3] = {
#include "logarithms/log10/rows_rare.inc"
  };
  static double p(double r) {
    constexpr double e[] = {
#include "logarithms/log10/poly_rare.inc"
    };
    double y = e[7];
    for (int i = 6; i >= 0; --i) y = e[i] + r * y;
    return r * y;
  }
};

}  // namespace

int log10_rare(const double* a, double* out) { return log_rare<Decimal>(*a, out); }
int log10_rare(const float* a, float* out) { return in_double(log_rare<Decimal>, *a, out); }

}  // namespace ork
