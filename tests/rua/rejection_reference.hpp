#pragma once
// Gamma and beta written out one number at a time, from recorded uniform numbers: which number goes
// where, classes of candidates in arrays of their own, kernels called for one element.
#include <cmath>
#include <optional>

#include "ork/ss_math.h"
#include "ork/zem_kernels.h"
#include "rua/player.hpp"

namespace reference {

template <class R>
using Unary = void (*const (&)[3])(int, const R*, R*);

template <class R>
struct Functions;
template <>
struct Functions<double> {
  static constexpr Unary<double> ln = ork_zem_kernel_dLn_ttab, exp = ork_zem_kernel_dExp_ttab,
                                 sqrt = ork_zem_kernel_dSqrt_ttab;
  static constexpr auto& sin_cos = ork_zem_kernel_dSinCos_ttab;
  static constexpr int block = 2;
  static constexpr double least_ln = -744.4400719213812, two_pi = 6.283185307179586,
                          third = 0.3333333333333333, squeeze = 0.0331, from = 0.6,
                          b1 = 0.8522552176537243, b2 = -0.9562409713408151,
                          ln4 = 1.3862943611198906;
  static double scalar_ln(double x) { return __ruadLn(x); }
};
template <>
struct Functions<float> {
  static constexpr Unary<float> ln = ork_zem_kernel_sLn_ttab, exp = ork_zem_kernel_sExp_ttab,
                                sqrt = ork_zem_kernel_sSqrt_ttab;
  static constexpr auto& sin_cos = ork_zem_kernel_sSinCos_ttab;
  static constexpr int block = 0;
  static constexpr float least_ln = -103.2789306640625f, two_pi = 6.2831855f, third = 0.33333334f,
                         squeeze = 0.0331f, from = 0.6f, b1 = std::bit_cast<float>(0x3F5A2D66),
                         b2 = std::bit_cast<float>(0xBF74CC35),
                         ln4 = std::bit_cast<float>(0x3FB17218);
  static float scalar_ln(float x) { return __ruasLn(x); }
};

// A distribution's state between calls, and what a call draws and gives.
template <class R>
class Rejections {
  using F = Functions<R>;

 public:
  struct Candidate {
    R z, u;
  };
  std::optional<Candidate> pending;
  std::vector<R> r;  // of the last call
  size_t drawn = 0;  // numbers, since the beginning
  int failing = -1;  // the draw that fails, counted since the beginning
  bool failed = false;

  explicit Rejections(const std::vector<R>& recorded) : recorded_(recorded) {}

  int32_t gamma(int n, R alpha, R a, R beta) {
    return call([&] {
      if (alpha > 1)
        cubes(n, alpha);
      else if (alpha == 1)
        for (const R u : uniforms(n)) r.push_back(least(R(0) - ln(u) * R(1), R(0)));
      else if (alpha < F::from)
        near_zero(n, alpha);
      else
        weibull(n, alpha);
      if (!failed)
        for (R& x : r) x = least(x * beta + a, a);
    });
  }

  int32_t beta(int n, R p, R q, R a, R width) {
    return call([&] {
      bool mirrored = false;
      if (p < 1 && q < 1) {
        if (p * p * F::b1 + q + F::b2 > 0)
          switching(n, p, q);
        else
          johnk(n, p, q);
      } else if (p < 1 && q > 1) {
        atkinson(n, p, q);
      } else if (p > 1 && q < 1) {
        atkinson(n, q, p);
        mirrored = true;
      } else if (p > 1 && q > 1) {
        cheng(n, p, q);
      } else {
        mirrored = p == 1;
        const R inverse = 1 / (mirrored ? q : p);
        for (const R u : uniforms(n)) r.push_back(exp(ln(u) * inverse));
      }
      const R b = a + width;
      if (!failed)
        for (R& x : r) {
          R t = (mirrored ? 1 - x : x) * width + a;
          if (a > t) t = a;
          if (t > b) t = b;
          x = t;
        }
    });
  }

 private:
  const std::vector<R>& recorded_;
  int calls_ = 0;

  static int32_t pole(ork_error_record* e) {
    if (e->status == ZEM_STATUS_SINGULARITY) e->r1 = e->r2 = F::least_ln;
    return 0;
  }
  template <class Body>
  int32_t call(Body body) {
    const ThreadState state;
    ork_zem_kernel_SetMode(ORK_ZEM_ERRMODE_CALLBACK);
    ork_zem_kernel_SetMode(ORK_ZEM_DENORMAL_KEEP);
    ork_zem_kernel_SetErrorCallBack(pole);
    r.clear();
    failed = false;
    body();
    return failed ? kFailure : 0;
  }
  std::vector<R> uniforms(int n) {
    if (calls_++ == failing) {
      failed = true;
      return {};
    }
    std::vector<R> u(n);
    for (R& x : u) x = recorded_[drawn++ % recorded_.size()];
    return u;
  }
  static R least(R t, R a) { return a > t ? a : t; }
  static R of(Unary<R> table, int slot, R x) {
    R y;
    table[slot](1, &x, &y);
    return y;
  }
  static R ln(R x, int slot = F::block) { return of(F::ln, slot, x); }
  static R exp(R x, int slot = F::block) { return of(F::exp, slot, x); }

  void cubes(int n, R alpha) {
    const R d = alpha - F::third, root = R(std::sqrt(double(R(9 * alpha - 3)))), c = 1 / root;
    std::vector<Candidate> row;
    if (pending) row.push_back(*pending);
    pending.reset();
    while (int(r.size()) < n) {
      int want = n - int(r.size()), m = want - int(row.size());
      if (m != 0) {
        if (m >= 512) m = want = 512;
        m += m % 2;
        const auto u = uniforms(2 * m);
        if (failed) return;
        for (int i = 0; i < m / 2; ++i) {
          R angle = u[4 * i + 2] * F::two_pi, sine, cosine, radius = ln(u[4 * i]);
          F::sin_cos[F::block](1, &angle, &sine, &cosine);
          radius = of(F::sqrt, F::block, -(radius + radius));
          row.push_back({sine * radius, u[4 * i + 1]});
          row.push_back({cosine * radius, u[4 * i + 3]});
        }
      }
      std::optional<Candidate> aside;
      if (int(row.size()) > want) aside = row.back();
      for (int i = 0; i < want; ++i) {
        const R x = row[i].z, x2 = x * x, t = c * x + 1, v = t * t * t;
        if (!(v > 0)) continue;
        if (!(1 - F::squeeze * x2 * x2 > row[i].u) &&
            !(R(0.5) * x2 + ((1 - v) + F::scalar_ln(v)) * d > F::scalar_ln(row[i].u)))
          continue;
        r.push_back(v * d);
      }
      row.clear();
      if (aside) row.push_back(*aside);
    }
    if (!row.empty()) pending = row[0];
  }

  // Rounds of pairs until n numbers are there.
  template <class Round>
  void rounds(int n, Round round) {
    while (int(r.size()) < n) {
      const auto u = uniforms(2 * std::min(n - int(r.size()), 512));
      if (failed) return;
      round(u);
    }
  }

  void near_zero(int n, R alpha) {
    const R inverse = 1 / alpha;
    rounds(n, [&](const std::vector<R>& draw) {
      std::vector<int> class_of;
      std::vector<R> u[2], v[2], x[2], w[2];
      for (size_t i = 0; i < draw.size(); i += 2) {
        const int c = !(draw[i] < 1 - alpha);
        class_of.push_back(c);
        u[c].push_back(c ? (1 - draw[i]) * inverse : draw[i]);
        v[c].push_back(draw[i + 1]);
      }
      for (size_t i = 0; i < u[0].size(); ++i) {
        x[0].push_back(exp(inverse * ln(u[0][i])));
        w[0].push_back(ln(v[0][i]) + x[0][i]);
      }
      for (size_t i = 0; i < u[1].size(); ++i) {
        const R l = ln(u[1][i]), y = (1 - alpha) - l * alpha;
        x[1].push_back(exp(inverse * ln(y)));
        w[1].push_back(x[1][i] + l + ln(v[1][i]));
      }
      merge(class_of, x, w);
    });
  }

  // Candidates in the order of their pairs, each the next of its class.
  void merge(const std::vector<int>& class_of, const std::vector<R> (&x)[2],
             const std::vector<R> (&test)[2]) {
    size_t next[2] = {};
    for (const int c : class_of) {
      const size_t i = next[c]++;
      if (!(test[c][i] > 0)) r.push_back(x[c][i]);
    }
  }

  void weibull(int n, R alpha) {
    const R inverse = 1 / alpha, k = (1 - alpha) * exp(alpha / (1 - alpha) * ln(alpha, 1), 1);
    rounds(n, [&](const std::vector<R>& draw) {
      for (size_t i = 0; i < draw.size(); i += 2) {
        const R l1 = ln(draw[i]), l2 = ln(draw[i + 1]), bound = -(l1 + k + l2);
        const R x = exp(inverse * ln(-l1));
        if (!(x > bound)) r.push_back(x);
      }
    });
  }

  void johnk(int n, R p, R q) {
    const R to_x = 1 / p, to_y = 1 / q;
    rounds(n, [&](const std::vector<R>& draw) {
      for (size_t i = 0; i < draw.size(); i += 2) {
        const R x = exp(ln(draw[i]) * to_x), y = exp(ln(draw[i + 1]) * to_y), s = x + y;
        if (s > 0 && !(s > 1)) r.push_back(x / s);
      }
    });
  }

  // Both methods by a cut: t is where, w how often the lower side is taken.
  void by_cut(int n, R p, R q, R t, R w, R l0) {
    const R l1 = ln(t);
    const R e0 = exp(-(1 / p) * ln(w, 1), 1), e1 = exp(-(1 / q) * ln(1 - w, 1), 1);
    const R c0 = e0 * t, c1 = e1 * (1 - t);
    rounds(n, [&](const std::vector<R>& draw) {
      std::vector<int> class_of;
      std::vector<R> x[2], test[2];
      for (size_t i = 0; i < draw.size(); i += 2) {
        const R u = draw[i], v = draw[i + 1];
        class_of.push_back(u > w);
        if (u > w) {
          x[1].push_back(1 - c1 * exp(ln(1 - u) / q));
          test[1].push_back((ln(x[1].back()) - l1) * (1 - p) + ln(v));
        } else {
          x[0].push_back(c0 * exp(ln(u) / p));
          test[0].push_back((ln(1 - x[0].back()) - l0) * (1 - q) + ln(v));
        }
      }
      merge(class_of, x, test);
    });
  }
  void switching(int n, R p, R q) {
    const R s1 = of(F::sqrt, 1, p * (1 - p)), s2 = of(F::sqrt, 1, q * (1 - q)), t = s1 / (s2 + s1);
    by_cut(n, p, q, t, q * t / (p * (1 - t) + q * t), ln(1 - t));
  }
  void atkinson(int n, R p, R q) {
    const R t = (1 - p) / (q + (1 - p)), g = exp(q * ln(1 - t, 1), 1);
    by_cut(n, p, q, t, t * q / (g * p + t * q), 0);
  }

  void cheng(int n, R p, R q) {
    const R s = p + q, lambda = of(F::sqrt, 1, (s - 2) / ((p + p) * q - s)), slope = 1 / lambda + p,
            c = s * ln(s, 1) - F::ln4;
    rounds(n, [&](const std::vector<R>& draw) {
      for (size_t i = 0; i < draw.size(); i += 2) {
        const R u = ln(draw[i]), v = (u - ln(1 - draw[i])) * lambda, z = u + u + ln(draw[i + 1]),
                w = exp(v), e = ln(w * p + q);
        if (!(((v * slope - e * s) - z) + c < 0)) r.push_back(w * p / (q + w * p));
      }
    });
  }
};

}  // namespace reference
