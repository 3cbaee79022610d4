// Negative binomial numbers by rejection below a hat of five regions, in single precision.
//
// f(y) is the probability of y divided by that of the mode M. The hat over f: the unit rectangle
// from x1 to x2, about a deviation on either side of the mode, trapezoids from there down to xl and
// xr, exponential tails beyond. Regions are numbered by falling area: rectangle, right and left
// trapezoid, right and left tail.
#pragma once
#include "ork/rua.h"

namespace ork::rua {

// Numbers are int32_t.
constexpr double kIntegers = 0x1p31;

// Where the hat stands.
struct HatCorners {
  double a, p, q, b;      // the shape a is b + 1
  double m, mode;         // real mode b q / p, and the integer one
  double foot;            // the integer below the rectangle, x1 - 1
  double x1, x2, xl, xr;  // of the rectangle and the trapezoids

  // a q / p below kIntegers.
  HatCorners(double a, double p);

  // A tail needs two integers: that on the left has none where the density begins too steeply, in
  // shapes up to 2 or 3.
  bool has_left_tail() const { return foot >= 1 && xl >= 1; }
};

struct NegbinomialHat {
  static constexpr int kNear = 64;

  // f from M - kNear to M + kNear. At M it is the hat's share of itself, 1 within rounding, which
  // the height of no candidate exceeds by more.
  float near[2 * kNear + 1];
  int32_t mode;
  float shares[4];                         // of regions 0, 0 to 1, 0 to 2, 0 to 3
  float width, from;                       // 0: x = u width + from
  float tops[2], ramps[2];                 // 1, 2: s = sqrt(u ramp + base), x = start + s step,
  float bases[2], starts[2], steps[2];     //       height s top v
  float ends[2], slopes[2];                // f is above (x - end) slope
  float middle, rises[2], ordinates[2];    // 0: f is above x rise + ordinate, left of the middle
                                           //    and right of it
  float feet[2], log_ratios[2], tails[2];  // 3, 4: x = ln(v) / log_ratio + foot, height
                                           //       (u - share) tail v
  float at_zero;                           // ln f(0)
  double b, bq, p, inverse, constant;      // of the logarithm of f; inverse is 1/(M + b)

  uint32_t seal;  // of all words before it

  void set_up(const HatCorners& corners);
  // Whether the words are those of a set-up. What a damaged image brings could have a call reject
  // for ever.
  bool sound() const { return seal == sum_of_words(); }
  int32_t draw(RuaStream* stream, int32_t n, int32_t* r) const;

 private:
  uint32_t sum_of_words() const;
};

// What Stirling's formula leaves out of ln(z!), to 6e-4/z^7.
template <class V>
inline V stirling_rest(V inverse) {
  const V square = inverse * inverse;
  return inverse * (1.0 / 12 - square * (1.0 / 360 - square * (1.0 / 1260)));
}

}  // namespace ork::rua
