// Poisson numbers: the methods behind the entry.
#pragma once
#include "ork/rua.h"

namespace ork::rua {

// What stays with the stream: the set-up of the last mean, by the table of sums below kLeastHat, by
// the hat from there on.
struct PoissonKept {
  static constexpr uint32_t kChunk = 3;
  static constexpr double kLeastHat = 27;
  static constexpr int kBeyondMode = 16;  // sums behind the mode's

  struct Hat {
    double stirling;     // what the series has of the mode, from above 100 on
    float mode, center;  // the triangle's feet are half_width from its centre
    float half_width, left, right;
    float height;                 // of the parallelograms, above the triangle
    float left_rate, right_rate;  // of the exponential tails
    float area[4];                // of the regions up to triangle, parallelograms, left, right tail
    float cut[3];                 // the first three as shares of the whole
    float reserved[6];
    // f(mode + k) / f(mode) for k from -32 to 32, up to 100; infinite at 0: the mode is accepted.
    float ratio[65];
  } hat;
  double mean;
  double sums[int(kLeastHat) - 1 + kBeyondMode];
};

// n numbers by the hat; from kLeastHat on, with a mean's set-up.
void set_up(PoissonKept::Hat& hat, double lambda);
int32_t poisson_by_hat(RuaStream* stream, int32_t n, int32_t* r, const PoissonKept::Hat& hat,
                       double lambda);

// n numbers from one uniform or normal number each.
int32_t poisson_by_normal(RuaStream* stream, int32_t n, int32_t* r, double lambda);

// exp(x) below 1 by the polynomial that scales uniform numbers to sums of x^i/i!, and those sums.
// Coefficients lowest first.
inline constexpr double kExp[] = {0.9999999978976929,    1.000000235204182,    0.49999555884885266,
                                  0.16669916415448055,   0.0415487961378904,   0.008565930750590653,
                                  0.0011369805324212754, 0.0003351641595394528};
inline constexpr int kSums = 11;  // of small means

}  // namespace ork::rua
