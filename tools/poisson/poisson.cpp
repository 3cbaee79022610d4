// Coefficients of the normal transforms of Poisson numbers.
//
//   g++ -std=gnu++20 -O3 -o poisson tools/poisson/poisson.cpp      (64-bit, native)
//   poisson table FORM FILE    print FILE with its distances measured anew; without the file, fit
//   it poisson verify FORM FILE   fit again and compare: distances of the table, of a new fit, and
//   of
//                              the best of this form, with nothing held, and its first numbers
//
// FORM c is one polynomial in the place t within the binade for each coefficient, for a mean of a
// whole call; form v, for a mean of its own for each output, takes the root of the mean itself.
//
// A row serves the means of a binade; t, from 0 to 1, is the place in it. Each row is fitted for
// the least greatest total variation distance between the law of the integers that it gives and
// the Poisson law: Gauss and Newton's steps on the probabilities of the single values, weighted
// towards absolute values (within a mean) and towards the worst mean (within a row).
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

#include "fit.hpp"

namespace {

using namespace poisson;

constexpr int kMost = 23;  // coefficients of a row

struct Form {
  char letter;
  int rows, count, words;  // rows of the table, coefficients of a row, numbers that it is long
  int exponent;            // binary, of the means of row 0
  std::vector<std::vector<double>> known;  // numbers that begin a row
};
const Form kForms[] = {
    {'c',
     7,
     23,
     24,
     0,
     {{0.3143729428652824, 1.015123349264915, -0.006246652997537985},
      {1.3235626213110492, 2.0081616643486204}}},
    {'v',
     18,
     20,
     20,
     -4,
     {{-0.7784668838132114, 0.029461530258082718, -0.06517070906207373, 0.0036449873889968348}}}};

real cubic(const real* a, real t) { return ((a[3] * t + a[2]) * t + a[1]) * t + a[0]; }

// The polynomial in z for a mean, and its derivatives with respect to the coefficients.
Quartic polynomial(const Form& form, const real* a, real mean, real t) {
  if (form.letter == 'c') {
    const real c0 = a[0] + 1 + (a[2] * t + a[1]) * t, c1 = cubic(a + 3, t);
    return {{c0, cubic(a + 7, t) * c1, cubic(a + 11, t) * c1, cubic(a + 15, t) * c1,
             cubic(a + 19, t) * c1}};
  }
  const real s = sqrtl(mean) + a[2] + a[3] * t;
  return {{1 + mean + a[0] + a[1] * t, cubic(a + 4, t) * s, cubic(a + 8, t) * s,
           cubic(a + 12, t) * s, cubic(a + 16, t) * s}};
}
void gradient(const Form& form, const real* a, real mean, real t, real z, real* g) {
  const int first = form.letter == 'c' ? 7 : 4;
  real sum = 0, s = form.letter == 'c' ? cubic(a + 3, t) : sqrtl(mean) + a[2] + a[3] * t;
  const real powers[] = {1, t, t * t, t * t * t};
  real power = 1;
  for (int j = 0; j < 4; ++j) {
    power *= z;
    sum += power * cubic(a + first + 4 * j, t);
    for (int i = 0; i < 4; ++i) g[first + 4 * j + i] = s * power * powers[i];
  }
  if (form.letter == 'c') {
    g[0] = 1, g[1] = t, g[2] = t * t;
    for (int i = 0; i < 4; ++i) g[3 + i] = sum * powers[i];
  } else {
    g[0] = 1, g[1] = t, g[2] = sum, g[3] = sum * t;
  }
}

struct Threshold {
  real k, z, below, above;  // the integer, its quantile, P(X < k), P(X >= k)
};

// A mean of a fit, with thresholds at no more than some 200 integers: where there are more, their
// probabilities are taken together.
struct Node {
  real mean, t;
  std::vector<Threshold> thresholds;

  // All integers, with a guess for the quantiles.
  Node(real mean, real t) : mean(mean), t(t) {
    const Law law(mean);
    for (size_t i = 0; i < law.below.size(); ++i) {
      const real k = real(law.first + int64_t(i));
      thresholds.push_back({k, (k - mean) / sqrtl(mean), law.below[i], law.above[i]});
    }
  }
  Node(real mean, real t, int64_t most) : mean(mean), t(t) {
    const Law law(mean);
    const int64_t n = int64_t(law.below.size()), step = (n + most - 1) / most;
    for (int64_t i = n % step / 2; i < n; i += step)
      thresholds.push_back({real(law.first + i), normal_quantile(law.below[i], law.above[i]),
                            law.below[i], law.above[i]});
  }
};

real place(real mean) {
  int e;
  return 2 * frexpl(mean, &e) - 1;
}

// Is the map monotone where it makes integers above 0?
bool monotone(const Quartic& q) {
  bool risen = true;
  for (int i = 1100; i >= -1100; --i) {
    const real z = kEnd * i / 1100;
    if (q(z) < 1) risen = false;
    if (risen ? q.slope(z) <= 0 : q(z) >= 1) return false;
  }
  return true;
}

// Total variation distance; 1 where the map is not monotone. The residuals of the thresholds, too.
real distance(const Form& form, const real* a, const Node& node, std::vector<real>* residuals,
              std::vector<real>* crossings) {
  const Quartic q = polynomial(form, a, node.mean, node.t);
  if (!monotone(q)) return 1;
  real sum = 0, before = 0;
  for (const Threshold& t : node.thresholds) {
    real r, z = t.z;
    if (q(kEnd) <= t.k) {  // never reached
      r = t.above;
    } else {
      z = crossing(q, t.k, t.z);
      r = z < 0 ? normal_cdf(z) - t.below : t.above - normal_cdf(-z);
    }
    if (residuals) residuals->push_back(r), crossings->push_back(z);
    sum += fabsl(r - before);
    before = r;
  }
  return (sum + fabsl(before)) / 2;
}

std::vector<Node> nodes(const Form& form, int row, int count, int64_t most) {
  std::vector<Node> all;
  const real low = ldexpl(1, form.exponent + row);
  const bool last = form.letter == 'v' && row == form.rows - 1;
  for (int i = 0; i < count; ++i) {
    // Denser at the ends; the last row of v serves all binades from its own on.
    const real t = (1 - cosl(3.14159265358979L * i / (count - 1))) / 2;
    all.emplace_back(low * (1 + t), t, most);
    if (last)
      for (int e : {1, 2, 3, 5, 8}) all.emplace_back(ldexpl(low, e) * (1 + t), t, most);
  }
  return all;
}

// Least squares with damping. Returns the step.
std::vector<real> solve(std::vector<std::vector<real>> m, std::vector<real> b, real damping) {
  const int n = int(b.size());
  for (int i = 0; i < n; ++i) m[i][i] *= 1 + damping;
  for (int i = 0; i < n; ++i) {
    for (int j = 0; j < i; ++j) {
      const real f = m[i][j] / m[j][j];
      for (int k = j; k < n; ++k) m[i][k] -= f * m[j][k];
      b[i] -= f * b[j];
    }
  }
  for (int i = n; i-- > 0;) {
    for (int k = i + 1; k < n; ++k) b[i] -= m[i][k] * b[k];
    b[i] /= m[i][i];
  }
  return b;
}

struct Row {
  std::vector<real> a;
  real worst;
};

class Fit {
 public:
  Fit(const Form& form, int row, bool free)
      : form_(form), nodes_(nodes(form, row, 28, 120)), a_(form.count) {
    const int known = free || row >= int(form.known.size()) ? 0 : int(form.known[row].size());
    for (int i = 0; i < known; ++i) a_[i] = form.known[row][i];
    // The scale can be traded for the factors that it is multiplied by. Where it contains the root
    // of the mean it is not fitted, unless all is free.
    for (int i = known; i < form.count; ++i)
      if (free || form.letter == 'c' || i < 2 || i > 3) free_.push_back(i);
  }
  Row run(int rounds = 150) {
    start();
    weights_.assign(nodes_.size(), 1.0L / nodes_.size());
    real damping = 1e-3L;
    best_ = {a_, 2};
    std::vector<real> d = distances(a_);
    for (int round = 0; round < rounds; ++round) {
      keep(d);
      // Weights follow the distances, so that the worst means gain.
      if (round > 10) {
        real total = 0;
        for (size_t i = 0; i < d.size(); ++i) total += weights_[i] *= powl(d[i], 0.5L);
        for (real& w : weights_) w /= total;
      }
      const real before = objective(d);
      bool moved = false;
      for (int attempt = 0; attempt < 12 && !moved; ++attempt) {
        std::vector<real> next = step(damping);
        const std::vector<real> e = distances(next);
        if (objective(e) <= before * 1.0001L) {
          a_ = next, d = e, moved = true;
          damping = std::max<real>(damping / 3, 1e-12L);
        } else {
          damping = std::min<real>(damping * 5, 1e6L);
        }
      }
      if (!moved) damping = 1e-2L, a_ = best_.a, d = distances(a_);
    }
    keep(d);
    return best_;
  }

 private:
  const Form& form_;
  std::vector<Node> nodes_;
  std::vector<real> a_, weights_;
  std::vector<int> free_;    // the coefficients that are fitted
  std::vector<real> scale_;  // at the start, which it need not leave without a reason
  Row best_;

  std::vector<real> distances(const std::vector<real>& a) const {
    std::vector<real> d;
    for (const Node& node : nodes_) d.push_back(distance(form_, a.data(), node, nullptr, nullptr));
    return d;
  }
  real objective(const std::vector<real>& d) const {
    real sum = 0;
    for (size_t i = 0; i < d.size(); ++i) sum += weights_[i] * d[i];
    return sum;
  }
  void keep(const std::vector<real>& d) {
    const real worst = *std::max_element(d.begin(), d.end());
    if (worst < best_.worst) best_ = {a_, worst};
  }

  // Normal equations for some of the coefficients.
  struct Normal {
    const std::vector<int>& place;
    std::vector<std::vector<real>> m;
    std::vector<real> b;
    explicit Normal(const std::vector<int>& place)
        : place(place), m(place.size(), std::vector<real>(place.size())), b(place.size()) {}
    // A residual r that is to become 0, with its derivatives.
    void add(const real* g, real r, real w) {
      const int n = int(b.size());
      for (int i = 0; i < n; ++i) {
        const real f = w * g[place[i]];
        b[i] -= f * r;
        for (int j = 0; j <= i; ++j) m[i][j] += f * g[place[j]];
      }
    }
    std::vector<real> solution(real damping) {
      for (size_t i = 0; i < b.size(); ++i)
        for (size_t j = 0; j < i; ++j) m[j][i] = m[i][j];
      return solve(m, b, damping);
    }
  };

  // The polynomial through the thresholds, with the scale near the root of the mean, as the
  // start.
  void start() {
    if (form_.letter == 'c') {
      const std::vector<int> scale = {3, 4, 5, 6};
      Normal normal(scale);
      for (const Node& node : nodes_) {
        real g[kMost] = {};
        for (int i = 0; i < 4; ++i) g[3 + i] = powl(node.t, i);
        normal.add(g, -sqrtl(node.mean), 1);
      }
      const std::vector<real> c = normal.solution(0);
      std::copy(c.begin(), c.end(), a_.begin() + 3);
      scale_ = c;
    }
    std::vector<int> linear;  // all but the scale's
    for (const int i : free_)
      if (form_.letter == 'c' ? i < 3 || i > 6 : i < 2 || i > 3) linear.push_back(i);
    Normal normal(linear);
    for (const Node& node : nodes_) {
      const auto aim = [&](real z, real value, real w) {
        real g[kMost];
        gradient(form_, a_.data(), node.mean, node.t, z, g);
        const real now = polynomial(form_, a_.data(), node.mean, node.t)(z);
        normal.add(g, now - value, w / node.mean);
      };
      for (const Threshold& t : node.thresholds) {
        const real w = normal_density(t.z) + 1e-4L * (fabsl(t.z) < kEnd);
        aim(t.z, t.k, w * w);
      }
      // Few thresholds leave room for waves: towards 0 below them.
      for (real z = -kEnd; z < node.thresholds[0].z - 0.5L; z += 0.5L) aim(z, 0.2L, 1e-5L);
    }
    const std::vector<real> c = normal.solution(1e-12L);
    for (size_t i = 0; i < linear.size(); ++i) a_[linear[i]] += c[i];
  }

  std::vector<real> step(real damping) const {
    Normal normal(free_);
    for (size_t i = 0; i < scale_.size(); ++i) {
      real g[kMost] = {};
      g[3 + i] = 1;
      normal.add(g, a_[3 + i] - scale_[i], 1e-5L);
    }
    for (size_t n = 0; n < nodes_.size(); ++n) {
      const Node& node = nodes_[n];
      const Quartic q = polynomial(form_, a_.data(), node.mean, node.t);
      std::vector<real> r, z;
      if (distance(form_, a_.data(), node, &r, &z) == 1)
        r.resize(node.thresholds.size()), z.resize(r.size());
      real before = 0, g0[kMost] = {};
      for (size_t i = 0; i <= r.size(); ++i) {
        real g[kMost] = {}, cell[kMost], now = 0;
        if (i < r.size()) {
          gradient(form_, a_.data(), node.mean, node.t, z[i], g);
          const real f = -normal_density(z[i]) / std::max<real>(q.slope(z[i]), 1e-3L);
          // Far out, where probabilities count for nothing, the thresholds are to stay near theirs.
          const Threshold& t = node.thresholds[i];
          if (fabsl(t.z) > 3 && fabsl(t.z) < kEnd)
            normal.add(g, q(t.z) - t.k,
                       weights_[n] * 1e-6L / (q.slope(t.z) * q.slope(t.z) + 1e-2L));
          for (int j = 0; j < form_.count; ++j) g[j] *= f;
          now = r[i];
        }
        for (int j = 0; j < form_.count; ++j) cell[j] = g[j] - g0[j];
        const real change = now - before;
        normal.add(cell, change, weights_[n] / (fabsl(change) + 1e-7L));
        before = now;
        std::copy(g, g + form_.count, g0);
      }
      // Below the first threshold the polynomial stays below 1.
      for (real x = -kEnd; x < z[0] - 0.4L; x += 0.25L)
        if (q(x) > 0.7L) {
          real g[kMost];
          gradient(form_, a_.data(), node.mean, node.t, x, g);
          normal.add(g, q(x) - 0.7L, weights_[n] * 1e-2L);
        }
      // From there on it rises, also where no thresholds are.
      for (real x = z[0]; x < kEnd + 0.25L; x += 0.25L)
        if (q.slope(x) < 0.3L) {
          real g[kMost], h[kMost];
          gradient(form_, a_.data(), node.mean, node.t, x + 1e-6L, g);
          gradient(form_, a_.data(), node.mean, node.t, x - 1e-6L, h);
          for (int j = 0; j < form_.count; ++j) g[j] = (g[j] - h[j]) / 2e-6L;
          normal.add(g, q.slope(x) - 0.3L, weights_[n] * 1e-2L);
        }
    }
    std::vector<real> next = a_;
    const std::vector<real> change = normal.solution(damping);
    for (size_t i = 0; i < free_.size(); ++i) next[free_[i]] += change[i];
    return next;
  }
};

// The greatest distance at 1000 means, each with all its integers, and where.
std::pair<real, real> greatest(const Form& form, int row, const real* a) {
  const real low = ldexpl(1, form.exponent + row);
  // The last row of v: means up to 2^20; above, the law is that of its limit.
  const bool last = form.letter == 'v' && row == form.rows - 1;
  std::pair<real, real> found = {0, 0};
  for (int i = 0; i < 1000; ++i) {
    const real part = (i + 0.5L) / 1000, mean = last ? low * powl(2, 7 * part) : low * (1 + part);
    const real d = distance(form, a, Node(mean, place(mean)), nullptr, nullptr);
    if (d > found.first) found = {d, mean};
  }
  return found;
}

// In as few digits as lead back to the number.
std::string shortest(double x) {
  char text[32];
  for (int digits = 15; digits <= 17; ++digits) {
    snprintf(text, sizeof text, "%.*g", digits, x);
    if (strtod(text, nullptr) == x) break;
  }
  return text;
}

using Table = std::vector<std::vector<real>>;

// The rows of a table file, empty ones where there are none.
Table read(const Form& form, const char* path) {
  Table table(form.rows);
  FILE* file = fopen(path, "r");
  char line[2000];
  for (int row = 0; file && row < form.rows && fgets(line, sizeof line, file);) {
    if (line[0] != '{') continue;
    char* next = line + 1;
    for (int i = 0; i < form.count; ++i, next = strchr(next, ',') + 1)
      table[row].push_back(strtod(next, nullptr));
    ++row;
  }
  if (file) fclose(file);
  return table;
}

void print(const Form& form, const Table& table) {
  printf(
      "// Normal transforms of Poisson numbers, form %c: a row for each binade of the mean, from\n"
      "// 2^%d on. Behind a row its greatest total variation distance from the Poisson law at "
      "1000\n"
      "// means, and the mean where that is. Frozen; fitted and measured by tools/poisson/.\n",
      form.letter, form.exponent);
  for (int row = 0; row < form.rows; ++row) {
    const auto [worst, mean] = greatest(form, row, table[row].data());
    printf("{");
    for (int i = 0; i < form.words; ++i)
      printf("%s%s", i ? ", " : "", i < form.count ? shortest(table[row][i]).c_str() : "0");
    printf("},  // %.2Le at %.6Lg\n", worst, mean);
  }
}

// Do the known numbers stand in the table?
bool holds_known(const Form& form, const Table& table) {
  for (size_t row = 0; row < form.known.size(); ++row)
    for (size_t i = 0; i < form.known[row].size(); ++i)
      if (table[row][i] != form.known[row][i]) return false;
  return true;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 4) return 2;
  const std::string verb = argv[1];
  const Form& form = kForms[argv[2][0] == 'v'];
  Table table = read(form, argv[3]);
  for (int row = 0; row < form.rows; ++row)
    if (table[row].empty()) table[row] = Fit(form, row, false).run().a;
  if (!holds_known(form, table)) return 1;
  if (verb == "table") return print(form, table), 0;
  int bad = 0;
  printf("%4s %12s %10s %10s %10s\n", "row", "means from", "table", "anew", "free");
  for (int row = 0; row < form.rows; ++row) {
    const Row anew = Fit(form, row, false).run(), free = Fit(form, row, true).run();
    const real d[] = {greatest(form, row, table[row].data()).first,
                      greatest(form, row, anew.a.data()).first,
                      greatest(form, row, free.a.data()).first};
    printf("%4d %12Lg %10.2Le %10.2Le %10.2Le  ", row, ldexpl(1, form.exponent + row), d[0], d[1],
           d[2]);
    for (int i = 0; i < 4; ++i) printf(" %.6Lg", free.a[i]);
    printf("\n");
    fflush(stdout);
    bad += d[0] > 1.25L * d[1] + 1e-6L;
  }
  return bad != 0;
}
