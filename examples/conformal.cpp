// Conformal maps: what complex functions make of a grid of squares, drawn as an SVG file. Lines
// that cross at a right angle still do so in the picture.
#include <ork/front.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <vector>

namespace {

struct Point {
  double re, im;
};
static_assert(sizeof(Point) == 2 * sizeof(double));

int status = 0;  // the first that was not 0

struct Map {
  const char* name;
  int (*apply)(int n, const double* a, double* r);
  double left, right, bottom, top;  // of the grid

  std::vector<Point> of(const std::vector<Point>& z) const {
    std::vector<Point> w(z.size());
    const int s = apply(int(z.size()), &z[0].re, &w[0].re);
    if (status == 0) status = s;
    return w;
  }
};

constexpr double pi = 3.141592653589793;
const Map maps[] = {
    {"exp", ork_zExp, -1.5, 0.5, -pi, pi},     {"ln", ork_zLn, 0.1, 2.1, -1, 1},
    {"sqrt", ork_zSqrt, -2, 2, 0.05, 2.05},    {"sin", ork_zSin, -1.5, 1.5, -1, 1},
    {"tanh", ork_zTanh, -1.5, 1.5, -0.7, 0.7}, {"acos", ork_zAcos, -2, 2, 0.05, 2.05}};

constexpr int lines = 21, steps = 200;

// Line k of the grid, upright or level.
std::vector<Point> line(const Map& map, int k, bool upright) {
  std::vector<Point> z;
  const double across = double(k) / (lines - 1);
  for (int i = 0; i <= steps; ++i) {
    const double along = double(i) / steps, u = upright ? across : along,
                 v = upright ? along : across;
    z.push_back({map.left + (map.right - map.left) * u, map.bottom + (map.top - map.bottom) * v});
  }
  return map.of(z);
}

// The angles in degrees at which the images of the grid's lines cross.
void crossings(const Map& map) {
  constexpr double h = 1e-5;
  std::vector<Point> z;
  for (int i = 1; i < lines - 1; ++i)
    for (int k = 1; k < lines - 1; ++k) {
      const double x = map.left + (map.right - map.left) * i / (lines - 1),
                   y = map.bottom + (map.top - map.bottom) * k / (lines - 1);
      z.insert(z.end(), {{x + h, y}, {x - h, y}, {x, y + h}, {x, y - h}});
    }
  const std::vector<Point> w = map.of(z);
  double least = 180, most = 0;
  for (size_t i = 0; i < w.size(); i += 4) {
    const Point a = {w[i].re - w[i + 1].re, w[i].im - w[i + 1].im},
                b = {w[i + 2].re - w[i + 3].re, w[i + 2].im - w[i + 3].im};
    const double size = std::hypot(a.re, a.im) * std::hypot(b.re, b.im);
    if (size == 0) continue;
    const double angle = std::acos((a.re * b.re + a.im * b.im) / size) * 180 / pi;
    least = std::min(least, angle), most = std::max(most, angle);
  }
  std::printf("%s: crossings at %.4f to %.4f degrees\n", map.name, least, most);
}

void draw(std::FILE* file, const Map& map, double x, double y, double size) {
  std::vector<std::vector<Point>> all;
  double left = 1e300, right = -1e300, bottom = 1e300, top = -1e300;
  for (const bool upright : {false, true})
    for (int k = 0; k < lines; ++k) {
      all.push_back(line(map, k, upright));
      for (const Point p : all.back()) {
        left = std::min(left, p.re), right = std::max(right, p.re);
        bottom = std::min(bottom, p.im), top = std::max(top, p.im);
      }
    }
  const double scale = size / std::max(right - left, top - bottom);
  for (size_t k = 0; k < all.size(); ++k) {
    std::fprintf(file, "<polyline fill='none' stroke='%s' points='",
                 k < lines ? "#1f77b4" : "#d62728");
    for (const Point p : all[k])
      std::fprintf(file, "%.1f,%.1f ", x + (p.re - left) * scale, y + (top - p.im) * scale);
    std::fprintf(file, "'/>\n");
  }
  std::fprintf(file, "<text x='%.0f' y='%.0f' font-family='sans-serif'>%s</text>\n", x, y - 8,
               map.name);
}

}  // namespace

int main(int argc, char** argv) {
  const char* name = argc > 1 ? argv[1] : "conformal.svg";
  std::FILE* file = std::fopen(name, "w");
  if (!file) return std::perror(name), 1;
  std::fprintf(file, "<svg xmlns='http://www.w3.org/2000/svg' width='1000' height='700'>\n");
  for (int i = 0; i < 6; ++i) draw(file, maps[i], 20 + i % 3 * 330, 30 + i / 3 * 340, 300);
  std::fprintf(file, "</svg>\n");
  std::fclose(file);
  for (const Map& map : maps) crossings(map);
  std::printf("status %d\n", status);
  return status != 0;
}
