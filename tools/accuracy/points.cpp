#include "accuracy/points.hpp"

#include <algorithm>
#include <bit>
#include <cmath>
#include <limits>
#include <string>
#include <type_traits>

namespace {

Random seeded(const std::string& function) {
  Random random{0x9E3779B97F4A7C15u};
  for (const char c : function) random.state = (random.state ^ uint64_t(c)) * 0x100000001B3u;
  return random;
}

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

// Replaces the arguments of `omit` lines.
template <class T>
void leave_out(const Claims& claims, const std::string& function, std::vector<T>& points) {
  const auto omitted = claims.omitted.find(function);
  if (omitted == claims.omitted.end()) return;
  for (T& x : points)
    for (const Range& r : omitted->second)
      if (x >= r.low && x <= r.high) x = T(1);
}

}  // namespace

template <class T>
Points<T> make_points(const Claims& claims, const std::string& function, bool binary, int count) {
  Random random = seeded(function);
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
  leave_out(claims, function, points.a);
  if (!binary) points.b.assign(points.a.size(), T(0));
  return points;
}

template Points<double> make_points(const Claims&, const std::string&, bool, int);
template Points<float> make_points(const Claims&, const std::string&, bool, int);

template <class T>
Points<T> make_end_points(const Claims& claims, const std::string& function, bool binary,
                          bool power, int count, const std::function<int(T, T)>& exponent) {
  using L = std::numeric_limits<T>;
  constexpr int least = L::min_exponent - 1, greatest = L::max_exponent - 1, outer = 64;
  Random random = seeded(function);
  const auto any_of = [&](double first, double last) {
    return int(std::floor(first + (last - first + 1) * random.uniform()));
  };
  const auto in_binade = [&](int e) {
    e = e < least ? least : e > greatest ? greatest : e;
    return std::ldexp(T(1 + random.uniform() * (1 - L::epsilon())), e);
  };
  const auto sign = [&](T x) { return random.next() & 1 ? -x : x; };
  Points<T> points;
  const auto add = [&](T a, T b) {
    if (!std::isfinite(a) || !std::isfinite(b)) return;
    points.a.push_back(a), points.b.push_back(binary ? b : T(0));
  };
  const int share = std::max(1, count / 2 / (greatest - least + 1 + 2 * outer));
  for (int e = least; e <= greatest; ++e) {
    const bool at_end = e < least + outer || e > greatest - outer;
    for (int i = 0; i < (at_end ? 2 : 1) * share; ++i) {
      const T a = in_binade(e);
      const int place = any_of(0, 7), end = random.next() & 1 ? least : greatest;
      T b;
      if (power) {
        const double low = (end == least ? least : greatest - 60), high = low + 60;
        b = T((low + (high - low) * random.uniform()) / std::log2(double(a)));
      } else {
        b = sign(in_binade(place < 4   ? e + any_of(-4, 4)
                           : place < 5 ? e - end + any_of(-8, 8)
                           : place < 6 ? end - e + any_of(-8, 8)
                                       : any_of(least, greatest)));
      }
      add(power ? a : sign(a), b);
    }
  }
  // Centres: what leads to within 60 binades of an end, and where the result crosses into them.
  std::vector<size_t> centres;
  const auto at_end = [&](int e) {
    return (e >= least - 2 && e < least + 60) || (e <= greatest + 1 && e > greatest - 60);
  };
  std::vector<std::pair<T, int>> walk;
  for (size_t i = 0; i < points.a.size(); ++i) {
    const int e = exponent(points.a[i], points.b[i]);
    if (at_end(e)) centres.push_back(i);
    walk.push_back({points.a[i], e});
  }
  std::sort(walk.begin(), walk.end());
  if (!binary)
    for (size_t i = 1; i < walk.size(); ++i)
      for (const int border : {least + 4, greatest - 4}) {
        auto [low, e_low] = walk[i - 1];
        auto [high, e_high] = walk[i];
        if ((e_low < border) == (e_high < border) || (low < 0) != (high < 0)) continue;
        for (int k = 0; k < 60; ++k) {
          const T middle = low + (high - low) / 2;
          ((exponent(middle, 0) < border) == (e_low < border) ? low : high) = middle;
        }
        if (!at_end(exponent(low, 0)) || !std::isnormal(low)) continue;
        for (int k = 0; k < 16; ++k) {
          centres.push_back(points.a.size());
          add(low, 0);
        }
      }
  if (!centres.empty())
    while (int(points.a.size()) < count) {
      const size_t centre = centres[random.next() % centres.size()];
      const double step = std::exp2(-8 - 40 * random.uniform());
      add(points.a[centre] * T(1 + step * (2 * random.uniform() - 1)),
          points.b[centre] * T(1 + step * (2 * random.uniform() - 1)));
    }
  leave_out(claims, function, points.a);
  return points;
}

template Points<double> make_end_points(const Claims&, const std::string&, bool, bool, int,
                                        const std::function<int(double, double)>&);
template Points<float> make_end_points(const Claims&, const std::string&, bool, bool, int,
                                       const std::function<int(float, float)>&);
