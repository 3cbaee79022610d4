// Outliers that hide: mean and covariance of the stars of a cluster, as they are and robust, and
// the stars that stand apart by each, drawn as an SVG file. Four giants pull the classical ellipse
// towards themselves until none of them lies outside.
#include <ork/front.h>
#include <ork/ss_math.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <vector>

namespace {

// Logarithms of surface temperature and of light intensity of stars of CYG OB1 (P. J. Rousseeuw,
// A. M. Leroy, Robust Regression and Outlier Detection, 1987).
constexpr int n = 47, p = 2;
constexpr double star[n][p] = {
    {4.37, 5.23}, {4.56, 5.74}, {4.26, 4.93}, {4.56, 5.74}, {4.30, 5.19}, {4.46, 5.46},
    {3.84, 4.65}, {4.57, 5.27}, {4.26, 5.57}, {4.37, 5.12}, {3.49, 5.73}, {4.43, 5.45},
    {4.48, 5.42}, {4.01, 4.05}, {4.29, 4.26}, {4.42, 4.58}, {4.23, 3.94}, {4.42, 4.18},
    {4.23, 4.18}, {3.49, 5.89}, {4.29, 4.38}, {4.29, 4.22}, {4.42, 4.42}, {4.49, 4.85},
    {4.38, 5.02}, {4.42, 4.66}, {4.29, 4.66}, {4.38, 4.90}, {4.22, 4.39}, {3.48, 6.05},
    {4.38, 4.42}, {4.56, 5.10}, {4.45, 5.22}, {3.49, 6.29}, {4.23, 4.34}, {4.62, 5.62},
    {4.53, 5.10}, {4.45, 5.22}, {4.53, 5.18}, {4.43, 5.57}, {4.38, 4.62}, {4.45, 5.06},
    {4.50, 5.34}, {4.45, 5.34}, {4.55, 5.54}, {4.45, 4.98}, {4.42, 4.50}};

struct Estimate {
  const char* name;
  const char* colour;
  double mean[p], cov[p * p];

  double correlation() const { return cov[1] / std::sqrt(cov[0] * cov[3]); }
  double distance(const double* x) const {
    const double a = x[0] - mean[0], b = x[1] - mean[1], det = cov[0] * cov[3] - cov[1] * cov[1];
    return std::sqrt((cov[3] * a * a - 2 * cov[1] * a * b + cov[0] * b * b) / det);
  }
};

// A star in a thousand of a Gaussian cloud lies beyond.
const double limit = std::sqrt(__ruadChi2ICDF(p, 0.999));

void report(const Estimate& e) {
  std::printf("%s correlation %.3f\n%s outliers:", e.name, e.correlation(), e.name);
  for (int i = 0; i < n; ++i)
    if (e.distance(star[i]) > limit) std::printf(" %d", i + 1);
  std::puts("");
}

// Stars and ellipses on the left; on the right distances, sorted, against what they would be in a
// Gaussian cloud.
void draw(std::FILE* file, const Estimate (&estimates)[2]) {
  const auto x = [](double v) { return 40 + (4.9 - v) * 215; };  // hot stars stand left
  const auto y = [](double v) { return 330 - (v - 3.5) * 100; };
  const auto across = [](double v) { return 430 + v * 85; };
  const auto up = [](double v) { return 330 - std::min(v, 14.0) * 21; };
  std::fputs(
      "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 780 370' font-family='sans-serif' "
      "font-size='12'>\n<rect width='780' height='370' fill='white'/>\n"
      "<path d='M30 20V335H370M420 20V335H770' fill='none' stroke='#888'/>\n"
      "<text x='40' y='355'>log of temperature, falling; upwards log of light</text>\n"
      "<text x='430' y='355'>expected distances; upwards those found</text>\n",
      file);
  for (const Estimate& e : estimates) {
    // The points of distance `limit`, by the Cholesky factor.
    const double l = std::sqrt(e.cov[0]), m = e.cov[1] / l, k = std::sqrt(e.cov[3] - m * m);
    std::fprintf(file,
                 "<g stroke='%s' fill='none'><svg x='30' y='20' width='345' height='315' "
                 "viewBox='30 20 345 315'><path d='",
                 e.colour);
    for (int i = 0; i < 90; ++i) {
      const double c = limit * std::cos(i * M_PI / 45), s = limit * std::sin(i * M_PI / 45);
      std::fprintf(file, "%c%.1f %.1f", i ? 'L' : 'M', x(e.mean[0] + l * c),
                   y(e.mean[1] + m * c + k * s));
    }
    std::fprintf(file, "Z'/></svg><path d='M430 %.1fH770' stroke-dasharray='3 5'/></g>\n",
                 up(limit));
    std::vector<double> d;
    for (const auto& one : star) d.push_back(e.distance(one));
    std::sort(d.begin(), d.end());
    for (int i = 0; i < n; ++i)
      std::fprintf(file, "<circle cx='%.1f' cy='%.1f' r='3' fill='%s'/>\n",
                   across(std::sqrt(__ruadChi2ICDF(p, (i + 0.5) / n))), up(d[i]), e.colour);
    std::fprintf(file, "<text x='450' y='%d' fill='%s'>%s</text>\n", &e == estimates ? 60 : 40,
                 e.colour, e.name);
  }
  for (int i = 0; i < n; ++i) {
    const bool far = estimates[1].distance(star[i]) > limit;
    std::fprintf(file, "<circle cx='%.1f' cy='%.1f' r='3' fill='%s'/>\n", x(star[i][0]),
                 y(star[i][1]), far ? "#c03020" : "#666");
    if (far)
      std::fprintf(file, "<text x='%.1f' y='%.1f'>%d</text>\n", x(star[i][0]) + 5,
                   y(star[i][1]) - 4, i + 1);
  }
  std::fputs("</svg>\n", file);
}

}  // namespace

int main(int argc, char** argv) {
  const int variables = p, stars = n, layout = ORK_SS_COLUMNS, full = ORK_SS_FULL;
  Estimate e[2] = {{"classical", "#2060a0", {}, {}}, {"robust", "#c03020", {}, {}}};
  ork_ss_task* task;
  int status = __ruadSSNewTask(&task, &variables, &stars, &layout, star[0], nullptr, nullptr, 0);
  if (status != 0) return 1;
  __ruadSSEditCovCor(task, e[0].mean, e[0].cov, &full, nullptr, nullptr);
  __ruadSSEditRCov(task, &full, nullptr, nullptr, e[1].mean, e[1].cov);
  status =
      ork_ss_compute(task, ORK_SS_COV | ORK_SS_ROBUST_COV, ORK_SS_ONE_PASS | ORK_SS_TBS, nullptr);
  __ruaSSDeleteTask(&task);
  for (const Estimate& one : e) report(one);
  std::printf("status %d\n", status);

  const char* name = argc > 1 ? argv[1] : "outliers.svg";
  std::FILE* file = std::fopen(name, "w");
  if (!file) return 1;
  draw(file, e);
  return std::fclose(file) != 0 || status != 0;
}
