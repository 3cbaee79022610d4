#pragma once
// Line drawing for the report: a plot with axes, as an SVG element. Colours come from the page's
// style sheet, by class.
#include <string>
#include <utility>
#include <vector>

namespace demo {

struct Range {
  double low, high;
};

// A range with a margin, as a part of its width.
Range widened(Range range, double part);
// Never narrower than a millionth of its size.
Range range_of(const std::vector<double>& values);

// The multiples of 1, 2 or 5 times a power of ten in the range, at most `most` of them.
std::vector<double> ticks_of(Range range, int most);

// A number with a true minus sign; HTML-safe text.
std::string number(double value, int decimals);
std::string escaped(const std::string& text);

enum class Anchor { start, middle, end };

class Plot {
 public:
  // `label` tells readers who cannot see the plot what it shows.
  Plot(int width, int height, Range x, Range y, const std::string& label);

  double width() const { return width_; }
  bool narrow() const { return width_ < 500; }

  // Grid lines and labels; the name of x stands below, that of y above its axis.
  void axes(const std::string& x_name, const std::string& y_name);
  void x_axis(const std::string& name, const std::vector<std::pair<double, std::string>>& ticks);
  void y_axis(const std::string& name, const std::vector<std::pair<double, std::string>>& ticks);

  // In data coordinates. A tip shows when the pointer rests on the mark.
  void line(const std::vector<double>& x, const std::vector<double>& y, const char* style);
  void segment(double x0, double y0, double x1, double y1, const char* style);
  void dot(double x, double y, double radius, const char* style, const std::string& tip = "");
  void box(double x0, double y0, double x1, double y1, const char* style,
           const std::string& tip = "");
  // dx, dy: pixels away from the point.
  void text(double x, double y, double dx, double dy, Anchor anchor, const std::string& text,
            const char* style);

  Range x_range() const { return x_; }
  Range y_range() const { return y_; }
  std::string finish() const { return body_ + "</svg>\n"; }

 private:
  double px(double x) const;
  double py(double y) const;

  double width_, height_;
  Range x_, y_;
  std::string body_;
};

}  // namespace demo
