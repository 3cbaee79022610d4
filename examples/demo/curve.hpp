#pragma once
// A smooth curve of unemployment: a natural cubic spline through the yearly averages.
#include <string>
#include <vector>

#include "series.hpp"

namespace demo {

struct Extreme {
  double time, value;
};

// A decade, as far as the data cover it.
struct Span {
  double from, to;
  double by_curve;     // average of the curve: its integral over the span's length
  double by_quarters;  // average of the quarters in the span
};

struct Curve {
  std::vector<double> knot_time, knot_value;
  std::vector<double> time, value, slope;  // a fine even grid; points a year
  std::vector<double> at_quarters;
  double rms;          // of quarters less curve
  Extreme rise, fall;  // the steepest slopes
  std::vector<Extreme> peaks;
  std::vector<Span> spans;
};

Curve fit_curve(const Quarters& quarters);

}  // namespace demo
