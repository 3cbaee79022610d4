#include "svg.hpp"

#include <algorithm>
#include <cmath>
#include <cstdio>

#include "fail.hpp"

namespace demo {
namespace {

constexpr double left = 44, right = 20, top = 30, bottom = 42;  // margins in pixels

// Pixels to a tenth. No plot is written with a coordinate that is not a number.
std::string pixel(double value) {
  if (!(std::fabs(value) < 1e5)) fail("the report: a coordinate of %g pixels", value);
  char text[32];
  std::snprintf(text, sizeof text, "%.1f", value);
  return text;
}

std::string attribute(const char* name, double value) {
  return std::string(" ") + name + "=\"" + pixel(value) + "\"";
}

std::string with_tip(const char* tag, const std::string& tip) {
  if (tip.empty()) return "/>\n";
  return "><title>" + escaped(tip) + "</title></" + tag + ">\n";
}

// Ticks with as many decimals as tell neighbours apart.
std::vector<std::pair<double, std::string>> labelled(const std::vector<double>& ticks) {
  const double step = ticks.size() > 1 ? ticks[1] - ticks[0] : 1;
  const int decimals = std::clamp(int(std::ceil(-std::log10(step) - 1e-9)), 0, 6);
  std::vector<std::pair<double, std::string>> labels;
  for (double t : ticks) labels.emplace_back(t, number(t, decimals));
  return labels;
}

}  // namespace

Range widened(Range range, double part) {
  const double margin = (range.high - range.low) * part;
  return {range.low - margin, range.high + margin};
}

Range range_of(const std::vector<double>& values) {
  const auto [low, high] = std::minmax_element(values.begin(), values.end());
  const double least = 1e-6 * std::max({std::fabs(*low), std::fabs(*high), 1e-6}) - (*high - *low);
  return least > 0 ? Range{*low - least / 2, *high + least / 2} : Range{*low, *high};
}

std::vector<double> ticks_of(Range range, int most) {
  const double rough = (range.high - range.low) / most;
  const double power = std::pow(10, std::floor(std::log10(rough)));
  double step = 10 * power;
  for (double factor : {5.0, 2.0, 1.0})
    if (factor * power >= rough) step = factor * power;
  std::vector<double> ticks;
  for (double k = std::ceil(range.low / step - 1e-9); k * step <= range.high + 1e-9 * step; ++k)
    ticks.push_back(k * step + 0.0);
  return ticks;
}

std::string number(double value, int decimals) {
  char text[64];
  std::snprintf(text, sizeof text, "%.*f", decimals, std::fabs(value));
  const bool zero = std::string(text).find_first_not_of("0.") == std::string::npos;
  return (value < 0 && !zero ? "\u2212" : "") + std::string(text);
}

std::string escaped(const std::string& text) {
  std::string out;
  for (char c : text) {
    switch (c) {
      case '&':
        out += "&amp;";
        break;
      case '<':
        out += "&lt;";
        break;
      case '>':
        out += "&gt;";
        break;
      case '"':
        out += "&quot;";
        break;
      default:
        out += c;
    }
  }
  return out;
}

Plot::Plot(int width, int height, Range x, Range y, const std::string& label)
    : width_(width), height_(height), x_(x), y_(y) {
  body_ = "<svg class=\"" + std::string(narrow() ? "narrow" : "wide") + "\" viewBox=\"0 0 " +
          std::to_string(width) + " " + std::to_string(height) + "\" role=\"img\" aria-label=\"" +
          escaped(label) + "\">\n";
}

double Plot::px(double x) const {
  return left + (x - x_.low) / (x_.high - x_.low) * (width_ - left - right);
}
double Plot::py(double y) const {
  return top + (y_.high - y) / (y_.high - y_.low) * (height_ - top - bottom);
}

void Plot::axes(const std::string& x_name, const std::string& y_name) {
  y_axis(y_name, labelled(ticks_of(y_, 7)));
  x_axis(x_name, labelled(ticks_of(x_, narrow() ? 6 : 10)));
}

void Plot::x_axis(const std::string& name,
                  const std::vector<std::pair<double, std::string>>& ticks) {
  segment(x_.low, y_.low, x_.high, y_.low, "axis");
  for (const auto& [at, label] : ticks) {
    body_ += "<path class=\"axis\" d=\"M" + pixel(px(at)) + " " + pixel(py(y_.low)) + "v5\"/>\n";
    text(at, y_.low, 0, 18, Anchor::middle, label, "tick");
  }
  text(x_.high, y_.low, 0, 36, Anchor::end, name, "name");
}

void Plot::y_axis(const std::string& name,
                  const std::vector<std::pair<double, std::string>>& ticks) {
  for (const auto& [at, label] : ticks) {
    segment(x_.low, at, x_.high, at, "grid");
    text(x_.low, at, -7, 4, Anchor::end, label, "tick");
  }
  text(x_.low, y_.high, -left + 2, -14, Anchor::start, name, "name");
}

void Plot::line(const std::vector<double>& x, const std::vector<double>& y, const char* style) {
  body_ += std::string("<path class=\"") + style + "\" d=\"";
  for (size_t i = 0; i < x.size(); ++i)
    body_ += (i ? "L" : "M") + pixel(px(x[i])) + " " + pixel(py(y[i]));
  body_ += "\"/>\n";
}

void Plot::segment(double x0, double y0, double x1, double y1, const char* style) {
  line({x0, x1}, {y0, y1}, style);
}

void Plot::dot(double x, double y, double radius, const char* style, const std::string& tip) {
  body_ += std::string("<circle class=\"") + style + "\"" + attribute("cx", px(x)) +
           attribute("cy", py(y)) + attribute("r", radius) + with_tip("circle", tip);
}

void Plot::box(double x0, double y0, double x1, double y1, const char* style,
               const std::string& tip) {
  body_ += std::string("<rect class=\"") + style + "\"" + attribute("x", px(x0)) +
           attribute("y", py(y1)) + attribute("width", px(x1) - px(x0)) +
           attribute("height", py(y0) - py(y1)) + with_tip("rect", tip);
}

void Plot::text(double x, double y, double dx, double dy, Anchor anchor, const std::string& text,
                const char* style) {
  static const char* const anchors[] = {"start", "middle", "end"};
  body_ += std::string("<text class=\"") + style + "\"" + attribute("x", px(x) + dx) +
           attribute("y", py(y) + dy) + " text-anchor=\"" + anchors[int(anchor)] + "\">" +
           escaped(text) + "</text>\n";
}

}  // namespace demo
