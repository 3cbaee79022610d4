#include "figures.hpp"

#include <algorithm>
#include <cmath>

#include "ork/front.h"
#include "svg.hpp"

namespace demo {
namespace {

constexpr int wide = 720, narrow = 360;

template <class Draw>
std::string in_both_widths(Draw draw, int wide_height, int narrow_height) {
  return draw(wide, wide_height) + draw(narrow, narrow_height);
}

// The highest of the curve's peak and the quarters within 0.7 years, to keep its label clear.
double summit(const Quarters& q, const Extreme& peak) {
  double highest = peak.value;
  for (size_t i = 0; i < q.size(); ++i)
    if (std::fabs(q.time[i] - peak.time) < 0.7) highest = std::max(highest, q.unemployment[i]);
  return highest;
}

}  // namespace

std::string unemployment_figure(const Quarters& q, const Curve& c) {
  Range y = range_of(q.unemployment);
  const Range fit = range_of(c.value);
  y = widened({std::min(y.low, fit.low), std::max(y.high, fit.high)}, 0.08);
  const auto draw = [&](int width, int height) {
    Plot plot(width, height, {q.time.front() - 0.5, q.time.back() + 0.5}, y,
              "Unemployment rate by quarter, with a spline through the yearly averages");
    for (const auto& [from, to] : q.downturns)
      plot.box(from, y.low, to, y.high, "shade", "GDP falls");
    plot.axes("year", "unemployment, %");
    for (size_t i = 0; i < q.size(); ++i)
      plot.dot(q.time[i], q.unemployment[i], plot.narrow() ? 1.5 : 2, "data",
               q.label(i) + ": " + number(q.unemployment[i], 1) + " %");
    plot.line(c.time, c.value, "curve");
    for (const Extreme& e : c.peaks)
      plot.text(e.time, summit(q, e), 0, -8, Anchor::middle, number(e.value, 1), "note");
    return plot.finish();
  };
  return in_both_widths(draw, 340, 280);
}

std::string scatter_figure(const Quarters& q, const Analysis& a) {
  const auto &x = q.series[gdp_growth].values, &y = q.series[unemployment_change].values;
  const Range xr = widened(range_of(x), 0.05), yr = widened(range_of(y), 0.06);
  const auto draw = [&](int width, int height) {
    Plot plot(width, height, xr, yr,
              "Change of unemployment against growth, a dot for each quarter, with the line of "
              "least squares");
    plot.axes("GDP growth, % a year", "change of unemployment, points");
    if (xr.low < 0 && xr.high > 0) plot.segment(0, yr.low, 0, yr.high, "zero");
    if (yr.low < 0 && yr.high > 0) plot.segment(xr.low, 0, xr.high, 0, "zero");
    for (size_t i = 0; i < x.size(); ++i)
      plot.dot(
          x[i], y[i], plot.narrow() ? 2 : 2.5, "data",
          q.label(i + 1) + ": growth " + number(x[i], 1) + " %, unemployment " + number(y[i], 1));
    // The line, as far as it stays inside the frame.
    double from = xr.low, to = xr.high;
    if (a.slope != 0) {
      const double u = (yr.low - a.intercept) / a.slope, v = (yr.high - a.intercept) / a.slope;
      from = std::max(from, std::min(u, v)), to = std::min(to, std::max(u, v));
    }
    plot.segment(from, a.intercept + a.slope * from, to, a.intercept + a.slope * to, "curve");
    return plot.finish();
  };
  return in_both_widths(draw, 340, 300);
}

std::string robust_figure(const Quarters& q, const Robust& r) {
  const auto &x = q.series[gdp_growth].values, &y = q.series[unemployment_change].values;
  std::vector<double> robust_x, robust_y, classical_x, classical_y;
  r.robust.ellipse(r.limit, robust_x, robust_y);
  r.classical.ellipse(r.limit, classical_x, classical_y);
  const auto range = [](std::vector<double> all, const std::vector<double>& a,
                        const std::vector<double>& b) {
    all.insert(all.end(), a.begin(), a.end());
    all.insert(all.end(), b.begin(), b.end());
    return widened(range_of(all), 0.06);
  };
  const Range xr = range(x, robust_x, classical_x), yr = range(y, robust_y, classical_y);
  const auto draw = [&](int width, int height) {
    Plot plot(width, height, xr, yr,
              "Change of unemployment against growth, with the regions that hold 39 of 40 quarters "
              "by the classical and by the robust estimate");
    plot.axes("GDP growth, % a year", "change of unemployment, points");
    plot.line(classical_x, classical_y, "theory");
    plot.line(robust_x, robust_y, "curve");
    for (size_t i = 0; i < x.size(); ++i) {
      const bool apart = r.robust.distance(x[i], y[i]) > r.limit;
      plot.dot(
          x[i], y[i], plot.narrow() ? 2 : 2.5, apart ? "apart" : "data",
          q.label(i + 1) + ": growth " + number(x[i], 1) + " %, unemployment " + number(y[i], 1));
    }
    for (size_t k = 0; k < r.apart.size() && k < 3; ++k) {
      const size_t i = r.apart[k];
      const bool left = x[i] < (xr.low + xr.high) / 2;
      plot.text(x[i], y[i], left ? 6 : -6, 4, left ? Anchor::start : Anchor::end, q.label(i + 1),
                "note");
    }
    return plot.finish();
  };
  return in_both_widths(draw, 340, 300);
}

std::string bootstrap_figure(const Bootstrap& b, double observed) {
  const Range x = range_of(b.draws);
  const auto edges = ticks_of(x, 60);
  const double step = edges.size() > 1 ? edges[1] - edges[0] : x.high - x.low;
  const double first = std::floor(x.low / step) * step;
  std::vector<int> count(size_t((x.high - first) / step) + 1);
  for (double r : b.draws) ++count[std::min(size_t((r - first) / step), count.size() - 1)];
  const double unit = 1 / (double(b.draws.size()) * step);
  const double highest = std::max(*std::max_element(count.begin(), count.end()) * unit,
                                  *std::max_element(b.theory_y.begin(), b.theory_y.end()));
  const Range xr = widened({first, first + step * double(count.size())}, 0.02),
              yr = {0, 1.1 * highest};
  const auto draw = [&](int width, int height) {
    Plot plot(width, height, xr, yr,
              "Histogram of the correlations of all resamples, with the density for normal data");
    plot.axes("correlation", "density");
    for (size_t i = 0; i < count.size(); ++i) {
      const double from = first + step * double(i);
      plot.box(from, 0, from + step, count[i] * unit,
               from + step / 2 < b.low || from + step / 2 > b.high ? "bar tail" : "bar",
               number(from, 3) + " to " + number(from + step, 3) + ": " + std::to_string(count[i]) +
                   " draws");
    }
    plot.line(b.theory_x, b.theory_y, "curve");
    plot.segment(observed, 0, observed, 1.02 * highest, "mark");
    plot.text(observed, 1.02 * highest, 0, -5, Anchor::middle, "observed", "note");
    return plot.finish();
  };
  return in_both_widths(draw, 320, 270);
}

std::string quantile_figure(const Quarters& q, const Analysis& a) {
  const int n = int(q.series[unemployment_change].values.size());
  const double* sorted = &a.sorted[size_t(unemployment_change * n)];
  const Moments& m = a.moments[unemployment_change];
  std::vector<double> z(size_t(n), 0);
  for (int i = 0; i < n; ++i) z[size_t(i)] = (i + 0.5) / n;
  ork_dCdfNormInv(n, z.data(), z.data());
  const Range xr = widened({z.front(), z.back()}, 0.05);
  const auto line = [&](double x) { return m.mean + m.deviation * x; };
  const Range yr = widened(
      {std::min(sorted[0], line(z.front())), std::max(sorted[n - 1], line(z.back()))}, 0.06);
  const auto draw = [&](int width, int height) {
    Plot plot(width, height, xr, yr,
              "Quantiles of the change of unemployment against those of the normal distribution");
    plot.axes("quantile of the normal distribution, deviations", "quantile of the data, points");
    plot.segment(z.front(), line(z.front()), z.back(), line(z.back()), "curve");
    for (int i = 0; i < n; ++i)
      plot.dot(z[size_t(i)], sorted[i], plot.narrow() ? 2 : 2.5, "data",
               number(sorted[i], 2) + " points");
    return plot.finish();
  };
  return in_both_widths(draw, 340, 300);
}

std::string speed_figure(const std::vector<Measured>& all) {
  std::vector<double> logs;
  for (const Measured& m : all) {
    for (const Measurement& level : m.level) logs.push_back(std::log10(level.cycles));
    logs.push_back(std::log10(m.c_library.cycles));
  }
  const Range xr = widened(range_of(logs), 0.04), yr = {-0.7, double(all.size()) - 0.3};
  const auto draw = [&](int width, int height) {
    Plot plot(width, height, xr, yr,
              "Cycles per element of kernels and of the C library, logarithmic scale");
    std::vector<std::pair<double, std::string>> x_ticks, y_ticks;
    for (double decade = 0.1; decade < 1e6; decade *= 10)
      for (int k : {1, 2, 5})
        if (const double at = std::log10(k * decade); at >= xr.low && at <= xr.high)
          x_ticks.emplace_back(at, number(k * decade, decade < 0.5 ? 1 : 0));
    for (size_t i = 0; i < all.size(); ++i)
      y_ticks.emplace_back(double(all.size() - 1 - i), all[i].name);
    plot.y_axis("function", y_ticks);
    plot.x_axis("cycles per element", x_ticks);
    const double radius = plot.narrow() ? 3.5 : 4.5;
    for (size_t i = 0; i < all.size(); ++i) {
      const Measured& m = all[i];
      const double y = double(all.size() - 1 - i);
      const auto dot = [&](const Measurement& x, const char* style, const char* what) {
        plot.dot(std::log10(x.cycles), y, radius, style,
                 m.name + ", " + what + ": " + number(x.cycles, 1) + " cycles");
      };
      dot(m.c_library, "c-library", "C library");
      dot(m.level[1], "high-accuracy", "high accuracy");
      dot(m.level[0], "low-accuracy", "low accuracy");
      dot(m.level[2], "performance", "enhanced performance");
    }
    return plot.finish();
  };
  return in_both_widths(draw, 360, 330);
}

}  // namespace demo
