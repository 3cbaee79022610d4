#include "curve.hpp"

#include <algorithm>
#include <cmath>

#include "fail.hpp"
#include "ork/front.h"

namespace demo {
namespace {

constexpr int grid_points_a_year = 32;
constexpr double half_quarter = 0.125;

void add_knots(Curve& c, const Quarters& q) {
  for (size_t i = 0; i < q.size();) {
    double time = 0, value = 0;
    const size_t first = i;
    for (; i < q.size() && q.year[i] == q.year[first]; ++i)
      time += q.time[i], value += q.unemployment[i];
    c.knot_time.push_back(time / double(i - first)),
        c.knot_value.push_back(value / double(i - first));
  }
}

// Peaks of the curve that stand out: the curve falls by a tenth of its range on both sides
// before it rises above them again.
void find_peaks(Curve& c) {
  const auto [low, high] = std::minmax_element(c.value.begin(), c.value.end());
  const double swing = (*high - *low) / 10;
  size_t top = 0, bottom = 0;
  bool rising = false;
  for (size_t i = 0; i < c.value.size(); ++i) {
    if (c.value[i] > c.value[top]) top = i;
    if (c.value[i] < c.value[bottom]) bottom = i;
    if (rising && c.value[i] < c.value[top] - swing) {
      c.peaks.push_back({c.time[top], c.value[top]});
      rising = false, bottom = i;
    } else if (!rising && c.value[i] > c.value[bottom] + swing) {
      rising = true, top = i;
    }
  }
}

void add_spans(Curve& c, const Quarters& q) {
  const double from = q.time.front() - half_quarter, to = q.time.back() + half_quarter;
  for (double decade = std::floor(from / 10) * 10; decade < to; decade += 10) {
    const double a = std::max(from, decade), b = std::min(to, decade + 10);
    if (b - a >= 5) c.spans.push_back({a, b, 0, 0});
  }
  if (c.spans.empty()) c.spans.push_back({from, to, 0, 0});
  for (Span& s : c.spans) {
    int count = 0;
    for (size_t i = 0; i < q.size(); ++i)
      if (q.time[i] > s.from && q.time[i] < s.to) s.by_quarters += q.unemployment[i], ++count;
    s.by_quarters /= count;
  }
}

// Values of the spline at ascending sites, then its slopes there.
void values_and_slopes(const ork_df_task* task, const std::vector<double>& sites, double* result) {
  const int32_t orders[2] = {1, 1};
  require(ork_df_kernel_dDFInterpolate1D(
              task, 1, 0, int64_t(sites.size()), sites.data(), ORK_DF_SITES_SORTED, 2, orders,
              nullptr, result, ORK_DF_RESULT_DEFAULT, nullptr, nullptr, nullptr, nullptr, nullptr,
              nullptr, nullptr, nullptr, nullptr, &ork_threader_parallel),
          "evaluating the spline");
}

void integrate(const ork_df_task* task, Curve& c) {
  std::vector<double> from, to, integral(c.spans.size());
  for (const Span& s : c.spans) from.push_back(s.from), to.push_back(s.to);
  require(ork_dDFIntegrate(task, int64_t(from.size()), from.data(), to.data(), integral.data(),
                           &ork_threader_parallel),
          "integrating the spline");
  for (size_t i = 0; i < c.spans.size(); ++i) c.spans[i].by_curve = integral[i] / (to[i] - from[i]);
}

}  // namespace

Curve fit_curve(const Quarters& q) {
  Curve c;
  add_knots(c, q);
  const int64_t knots = int64_t(c.knot_time.size());
  std::vector<double> coefficients(size_t(4 * (knots - 1)));
  const double ends[2] = {0, 0};

  ork_df_task* task = nullptr;
  require(ork_df_kernel_dNewTask1D(&task, knots, c.knot_time.data(), ORK_DF_X_QUASI_UNIFORM, 1,
                                   c.knot_value.data(), ORK_DF_ROWS_DEFAULT, 0),
          "a data fitting task");
  constexpr int order = 4;
  require(ork_df_kernel_dEditPPSpline1D(task, order, ORK_DF_TYPE_NATURAL, ORK_DF_BC_FREE_END, ends,
                                        0, nullptr, coefficients.data(), ORK_DF_ROWS_DEFAULT),
          "describing the spline");
  require(ork_dDFConstruct(task, &ork_threader_parallel), "constructing the spline");

  const double from = q.time.front(), to = q.time.back();
  const int points = int((to - from) * grid_points_a_year) + 1;
  for (int i = 0; i < points; ++i) c.time.push_back(from + (to - from) * i / (points - 1));
  std::vector<double> both(size_t(2 * points));
  values_and_slopes(task, c.time, both.data());
  c.value.assign(both.begin(), both.begin() + points);
  c.slope.assign(both.begin() + points, both.end());
  c.at_quarters.resize(q.size());
  require(ork_dDFInterpolate(task, int64_t(q.size()), q.time.data(), ORK_DF_SITES_SORTED,
                             c.at_quarters.data(), &ork_threader_parallel),
          "evaluating the spline");
  add_spans(c, q);
  integrate(task, c);
  ork_df_kernel_DeleteTask(&task);

  double squares = 0;
  for (size_t i = 0; i < q.size(); ++i)
    squares += std::pow(q.unemployment[i] - c.at_quarters[i], 2);
  c.rms = std::sqrt(squares / double(q.size()));
  const auto [fall, rise] = std::minmax_element(c.slope.begin(), c.slope.end());
  c.fall = {c.time[size_t(fall - c.slope.begin())], *fall};
  c.rise = {c.time[size_t(rise - c.slope.begin())], *rise};
  find_peaks(c);
  return c;
}

}  // namespace demo
