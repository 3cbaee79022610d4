#include "support/directed.hpp"

#include <gtest/gtest.h>
#include <quadmath.h>

#include <cmath>
#include <cstring>
#include <fstream>
#include <limits>

#include "ork/zem.h"
#include "support/bits.hpp"

namespace {

template <class T>
double error_of(T got, quad exact, bool relative) {
  using L = std::numeric_limits<T>;
  const quad difference = fabsq(quad(got) - exact);
  if (difference == 0) return 0;
  if (relative) return double(difference / fmaxq(fabsq(exact), quad(L::min())));
  const int e = exact == 0 ? L::min_exponent - 1 : std::max(ilogbq(exact), L::min_exponent - 1);
  return double(scalbnq(difference, L::digits - 1 - e));
}

template <class T>
void check(const char* function, const std::vector<T>& points, const std::vector<quad>& exact,
           const Limits& limits) {
  for (const Slot& slot : slots) {
    if (slot.type != (sizeof(T) == 8 ? 'd' : 's') || strcmp(slot.function, function) != 0) continue;
    const uint32_t mode = ork_zem_kernel_SetMode(ORK_ZEM_ERRMODE_IGNORE);
    for (int level = 0; level < 3; ++level) {
      ASSERT_TRUE(slot.exists(level));
      std::vector<T> r(points.size());
      Call<T>{&slot, level}(int(points.size()), points.data(), points.data(), r.data(), r.data());
      double worst = 0;
      size_t at = 0;
      for (size_t i = 0; i < points.size(); ++i) {
        ASSERT_TRUE(std::isfinite(r[i])) << slot.name(level) << "(" << points[i] << ") = " << r[i];
        const double error = error_of(r[i], exact[i], limits.relative[level]);
        if (error > worst) worst = error, at = i;
      }
      EXPECT_LE(worst, limits.bound[level])
          << slot.name(level) << " at " << std::hexfloat << points[at] << ": " << r[at];
    }
    ork_zem_kernel_SetMode(mode);
    return;
  }
  ADD_FAILURE() << "no such function: " << function;
}

}  // namespace

template <class T>
std::vector<T> neighbours(const std::vector<T>& centres, int each_side) {
  std::vector<T> points;
  for (const T centre : centres)
    for (int k = -each_side; k <= each_side; ++k)
      points.push_back(from_bits<T>(bits(centre) + uint64_t(int64_t(k))));
  return points;
}

template <class T>
std::vector<T> spread(double low, double high, int count) {
  std::vector<T> points;
  for (int i = 0; i < count; ++i)
    points.push_back(T(low + (high - low) * std::fmod(i * 0.6180339887498949, 1.0)));
  return points;
}

template <class T>
void check_directed(const char* function, quad (*exact)(quad), const std::vector<T>& points,
                    const Limits& limits) {
  std::vector<quad> values;
  for (const T x : points) values.push_back(exact(quad(x)));
  check(function, points, values, limits);
}

template <class T>
std::vector<std::vector<double>> published_cases(const std::string& name) {
  std::ifstream file(std::string(ORK_SOURCE_DIR) + "/tests/data/worst_cases/binary" +
                     (sizeof(T) == 8 ? "64_" : "32_") + name + ".tsv");
  EXPECT_TRUE(file) << "no published cases of " << name;
  std::vector<std::vector<double>> rows;
  for (std::string line; std::getline(file, line);) {
    if (line.empty() || line[0] == '#') continue;
    rows.emplace_back();
    const char* p = line.c_str();
    for (char* end; *p; p = end) {  // not by a stream: those do not read hexadecimal digits
      rows.back().push_back(std::strtod(p, &end));
      if (end == p) break;
    }
  }
  EXPECT_FALSE(rows.empty()) << name;
  return rows;
}

template <class T>
void check_worst_cases(const char* function, const char* name, const Limits& limits) {
  std::vector<T> points;
  std::vector<quad> exact;
  for (const auto& row : published_cases<T>(name)) {
    points.push_back(T(row.at(0)));
    exact.push_back(quad(row.at(1)) + quad(row.at(2)));
  }
  check(function, points, exact, limits);
}

#define INSTANTIATE(T)                                                                             \
  template std::vector<T> neighbours(const std::vector<T>&, int);                                  \
  template std::vector<T> spread(double, double, int);                                             \
  template void check_directed(const char*, quad (*)(quad), const std::vector<T>&, const Limits&); \
  template std::vector<std::vector<double>> published_cases<T>(const std::string&);                \
  template void check_worst_cases<T>(const char*, const char*, const Limits&);
INSTANTIATE(double)
INSTANTIATE(float)
