#include "accuracy/points.hpp"

#include <bit>
#include <cmath>
#include <limits>
#include <string>
#include <type_traits>

namespace {

template <class T>
using Bits = std::conditional_t<sizeof(T) == 8, uint64_t, uint32_t>;

template <class T>
T draw(Random& random, bool log, double low, double high) {
  if (!log) return T(low + (high - low) * random.uniform());
  const double l = std::log2(low), h = std::log2(high);
  // The exponent from the interval, the low bits at random: no argument of few digits.
  const T magnitude = T(std::exp2(l + (h - l) * random.uniform()));
  const T x = std::bit_cast<T>(std::bit_cast<Bits<T>>(magnitude) ^ Bits<T>(random.next() & 0xFFF));
  return random.next() & 1 ? -x : x;
}

template <class T>
T any_finite(Random& random) {
  for (;;) {
    const T x = std::bit_cast<T>(Bits<T>(random.next()));
    if (std::isfinite(x)) return x;
  }
}

template <class T>
void neighbours(std::vector<T>& to, T centre, int each_side) {
  const auto image = std::bit_cast<Bits<T>>(centre);
  for (int k = -each_side; k <= each_side; ++k) {
    const T x = std::bit_cast<T>(Bits<T>(image + Bits<T>(k)));
    if (std::isfinite(x)) to.push_back(x), to.push_back(-x);
  }
}

}  // namespace

template <class T>
Points<T> make_points(const Claims& claims, const std::string& function, bool binary, int count) {
  Random random{0x9E3779B97F4A7C15u};
  for (const char c : function) random.state = (random.state ^ uint64_t(c)) * 0x100000001B3u;
  Points<T> points;
  std::vector<T> directed;
  using L = std::numeric_limits<T>;
  for (int e = L::min_exponent - L::digits; e < L::max_exponent; ++e)
    neighbours(directed, T(std::ldexp(1.0, e)), 2);
  if (const auto near = claims.near.find(function); near != claims.near.end())
    for (const double x : near->second) neighbours(directed, T(x), 64);

  const auto ranges = claims.ranges.find(function);
  const int share =
      ranges == claims.ranges.end() ? 0 : int(count * 0.9 / double(ranges->second.size()));
  if (share)
    for (const Range& r : ranges->second)
      for (int i = 0; i < share; ++i) {
        points.a.push_back(draw<T>(random, r.log, r.low, r.high));
        if (binary) points.b.push_back(draw<T>(random, r.log, r.low2, r.high2));
      }
  while (int(points.a.size()) < count) {
    points.a.push_back(any_finite<T>(random));
    if (binary) points.b.push_back(any_finite<T>(random));
  }
  // Directed arguments meet themselves in another order as second inputs.
  for (const T x : directed) {
    points.a.push_back(x);
    if (binary) points.b.push_back(directed[random.next() % directed.size()]);
  }
  if (const auto omitted = claims.omitted.find(function); omitted != claims.omitted.end())
    for (T& x : points.a)
      for (const Range& r : omitted->second)
        if (x >= r.low && x <= r.high) x = T(1);
  if (!binary) points.b.assign(points.a.size(), T(0));
  return points;
}

template Points<double> make_points(const Claims&, const std::string&, bool, int);
template Points<float> make_points(const Claims&, const std::string&, bool, int);
