// A ten-dimensional integral by points of three kinds: how the error falls with their number.
//
//     example_integral [figure.svg]
//
// The integrand is the product of (|4 x_i - 2| + i) / (1 + i) for i = 0 to 9, whose integral over
// the unit cube is 1. Random points are wrong by about n^(-1/2), quasi-random ones by about n^(-1).
#include <ork/front.h>
#include <stdio.h>

#include <cmath>
#include <cstdlib>
#include <string>
#include <vector>

namespace {

constexpr int kDimension = 10, kFirst = 8, kLast = 18;  // 2^kFirst to 2^kLast points
constexpr int kSeeds = 16;                              // of the pseudo-random points

void require(int status) {
  if (status == 0) return;
  fprintf(stderr, "status %d\n", status);
  std::exit(1);
}

double integrand(const double* x) {
  double product = 1;
  for (int i = 0; i < kDimension; ++i) product *= (std::abs(4 * x[i] - 2) + i) / (1 + i);
  return product;
}

// The errors of the mean over the first 2^kFirst, 2^(kFirst + 1), ... points of the stream, which
// is released. Points of zeros are left out of quasi-random sequences, so `first` may be counted
// in.
std::vector<double> errors(RuaStream* stream, bool zero_point) {
  constexpr int kBlock = 1 << kFirst;
  std::vector<double> x(kBlock * kDimension), found;
  const double zeros[kDimension] = {};
  double sum = zero_point ? integrand(zeros) : 0;
  long count = zero_point;
  for (long n = kBlock; n <= 1L << kLast; n *= 2) {
    while (count < n) {
      const int points = int(n - count < kBlock ? n - count : kBlock);
      require(ork_dRngUniform(0, stream, points * kDimension, x.data(), 0, 1));
      for (int i = 0; i < points; ++i) sum += integrand(&x[size_t(i) * kDimension]);
      count += points;
    }
    found.push_back(std::abs(sum / double(n) - 1));
  }
  require(ork_stream_delete(&stream));
  return found;
}

std::vector<double> quasi_random(int brng) {
  RuaStream* stream;
  require(ork_stream_new_points(&stream, brng, kDimension));
  return errors(stream, true);
}

// The root of the mean square over several seeds.
std::vector<double> pseudo_random() {
  std::vector<double> mean(kLast - kFirst + 1);
  for (int seed = 1; seed <= kSeeds; ++seed) {
    RuaStream* stream;
    require(ork_stream_new(&stream, RUA_BRNG_MT19937, unsigned(seed)));
    const std::vector<double> e = errors(stream, false);
    for (size_t i = 0; i < e.size(); ++i) mean[i] += e[i] * e[i] / kSeeds;
  }
  for (double& e : mean) e = std::sqrt(e);
  return mean;
}

// Slope of the line of least squares through (log n, log error).
double slope(const std::vector<double>& e) {
  const double middle = double(e.size() - 1) / 2;
  double xy = 0, xx = 0;
  for (size_t i = 0; i < e.size(); ++i) {
    xy += (double(i) - middle) * std::log2(e[i]);
    xx += (double(i) - middle) * (double(i) - middle);
  }
  return xy / xx;
}

struct Series {
  const char *name, *colour;
  std::vector<double> errors;
};

// Both axes in powers of two.
void draw(const char* path, const std::vector<Series>& all) {
  FILE* file = fopen(path, "w");
  if (file == nullptr) {
    perror(path);
    std::exit(1);
  }
  constexpr double kLeft = 60, kTop = 20, kWide = 44, kHigh = 18, kHighest = 0, kLowest = -20;
  const auto x = [=](double log_n) { return kLeft + (log_n - kFirst) * kWide; };
  const auto y = [=](double log_e) { return kTop + (kHighest - log_e) * kHigh; };
  fprintf(
      file,
      "<svg xmlns='http://www.w3.org/2000/svg' width='640' height='430' "
      "font-family='sans-serif' font-size='12'>\n<rect width='640' height='430' fill='white'/>\n"
      "<title>Error of a ten-dimensional integral against the number of points</title>\n");
  const double left = x(kFirst), right = x(kLast), top = y(kHighest), bottom = y(kLowest);
  for (int k = kFirst; k <= kLast; k += 2)
    fprintf(file,
            "<path d='M%g %gV%g' stroke='#ddd'/><text x='%g' y='%g' text-anchor='middle'>"
            "2<tspan dy='-5' font-size='9'>%d</tspan></text>\n",
            x(k), top, bottom, x(k), bottom + 20, k);
  for (int k = int(kLowest); k <= kHighest; k += 4)
    fprintf(file,
            "<path d='M%g %gH%g' stroke='#ddd'/><text x='%g' y='%g' text-anchor='end'>"
            "2<tspan dy='-5' font-size='9'>%d</tspan></text>\n",
            left, y(k), right, left - 8, y(k) + 4, k);
  fprintf(file, "<text x='%g' y='%g' text-anchor='middle'>points</text>\n", (left + right) / 2,
          bottom + 38);
  fprintf(file, "<text x='%g' y='%g'>error</text>\n", left + 6, top + 14);
  for (const Series& s : all) {
    fprintf(file, "<polyline fill='none' stroke='%s' stroke-width='2' points='", s.colour);
    for (size_t i = 0; i < s.errors.size(); ++i)
      fprintf(file, "%.1f,%.1f ", x(kFirst + double(i)), y(std::log2(s.errors[i])));
    fprintf(file, "'/>\n<text x='%g' y='%.1f' fill='%s'>%s</text>\n", right + 6,
            y(std::log2(s.errors.back())) + 4, s.colour, s.name);
  }
  fprintf(file, "</svg>\n");
  fclose(file);
}

}  // namespace

int main(int argc, char** argv) {
  const std::vector<Series> all = {{"Sobol", "#1664c0", quasi_random(RUA_BRNG_SOBOL)},
                                   {"Niederreiter", "#2a8a4a", quasi_random(RUA_BRNG_NIEDERR)},
                                   {"MT19937", "#c0392b", pseudo_random()}};
  printf("%9s", "points");
  for (const Series& s : all) printf(" %13s", s.name);
  printf("\n");
  for (int k = kFirst; k <= kLast; ++k) {
    printf("%9ld", 1L << k);
    for (const Series& s : all) printf(" %13.2e", s.errors[size_t(k - kFirst)]);
    printf("\n");
  }
  for (const Series& s : all)
    printf("%s: error falls as points to the power %.2f\n", s.name, slope(s.errors));
  if (argc > 1) draw(argv[1], all);
  return 0;
}
