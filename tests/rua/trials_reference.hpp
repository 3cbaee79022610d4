#pragma once
// Binomial and hypergeometric numbers written out one candidate at a time, from recorded uniform
// numbers.
#include <xmmintrin.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>

#include "ork/ss_math.h"
#include "ork/zem_kernels.h"
#include "rua/player.hpp"

namespace reference {

// What calls on a stream draw and give. A number takes one word of the generator in either
// precision.
class Trials {
 public:
  std::vector<int32_t> r;  // of the last call
  size_t drawn = 0;        // numbers, since the beginning
  int failing = -1;        // the draw that fails, counted since the beginning
  bool failed = false;

  Trials(std::vector<double> doubles, std::vector<float> floats)
      : doubles_(std::move(doubles)), floats_(std::move(floats)) {}

  const std::vector<double>& doubles() const { return doubles_; }
  double next() const { return doubles_[drawn % doubles_.size()]; }

  int32_t binomial(int n, int32_t ntrial, double p) {
    return call([&] {
      const double q = p >= 0.5 ? 1 - p : p;
      if (ntrial * q >= 30)
        btpe(n, ntrial, q);
      else
        binomial_table(n, ntrial, q);
      if (p >= 0.5 && !failed)
        for (int32_t& x : r) x = ntrial - x;
    });
  }

  int32_t hypergeometric(int n, int32_t l, int32_t s, int32_t m) {
    return call([&] {
      const int32_t n1 = std::min(m, l - m), n2 = l - n1, k = std::min(s, l - s);
      const int32_t most = std::min(n1, k);
      const int M = int((float(k) + 1) * (float(n1) + 1) / (float(l) + 2));
      if (most == 0)
        r.assign(n, 0);
      else if (M > 39)
        h2pe(n, n1, n2, k, l, M, most);
      else if (const auto sums = hypergeometric_sums(n1, n2, k, l, M); true)
        look_up(n, 2048, sums, M, [&](double) { return int(sums.size()) - 1; });
      if (failed) return;
      const bool few = 2.0 * s < l, marked = m <= l - m;
      for (int32_t& x : r) {
        if (!few)
          x = marked ? m - x : x + s - n1;
        else if (!marked)
          x = s - x;
      }
    });
  }

  static std::vector<double> hypergeometric_sums(int32_t n1, int32_t n2, int32_t k, int32_t l,
                                                 int M) {
    double f = (ln_factorial(n2) - ln_factorial(n2 - k)) - (ln_factorial(l) - ln_factorial(l - k));
    ork_zem_kernel_dExp_ttab[1](1, &f, &f);
    std::vector<double> p = {f};
    const int most = std::min(n1, k);
    for (int x = 0; x < most && !(x >= M && p.back() < std::numeric_limits<double>::epsilon()); ++x)
      p.push_back(p.back() * (double(n1 - x) * (k - x)) / ((x + 1.0) * (double(n2) - k + x + 1)));
    std::vector<double> sums(p.size());
    for (int x = 0; x <= M; ++x) sums[x] = x ? sums[x - 1] + p[x] : p[x];
    sums.back() = 1;
    for (int x = int(p.size()) - 2; x > M; --x) sums[x] = sums[x + 1] - p[x + 1];
    return sums;
  }

  // Sums of the table, for numbers that hit them.
  static std::vector<double> binomial_sums(int32_t ntrial, double q) {
    const double s = q / (1 - q), a = (ntrial + 1.0) * s, base = 1 - q;
    const int size = int(std::min(ntrial + 1.0, std::floor(ntrial * q) + 32));
    double f;
    ork_zem_kernel_dPowx_ttab[1](1, &base, ntrial, &f);
    std::vector<double> sums = {f};
    for (int k = 1; k < size; ++k) sums.push_back(sums.back() + (f = f * (a / k - s)));
    return sums;
  }

 private:
  std::vector<double> doubles_;
  std::vector<float> floats_;
  int calls_ = 0;

  static int32_t pole(ork_error_record* e) {
    if (e->status == ZEM_STATUS_SINGULARITY) e->r1 = e->r2 = -103.2789306640625;
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
  template <class R>
  std::vector<R> uniforms(const std::vector<R>& recorded, int n) {
    if (calls_++ == failing) {
      failed = true;
      return {};
    }
    std::vector<R> u(n);
    for (R& x : u) x = recorded[drawn++ % recorded.size()];
    return u;
  }
  static float ln(float x) {
    float y;
    ork_zem_kernel_sLn_ttab[0](1, &x, &y);
    return y;
  }
  static float inverse(float x) {
    const float y = _mm_cvtss_f32(_mm_rcp_ss(_mm_set_ss(x)));
    return y * (2 - x * y);
  }

  // The place of u among sums, looked for from the mode; beyond(u) behind them.
  template <class Beyond>
  static int32_t place(const std::vector<double>& sums, int mode, double u, Beyond beyond) {
    if (u < sums[0]) return 0;
    if (u >= sums[mode]) {
      for (int k = mode; k < int(sums.size()); ++k)
        if (u < sums[k]) return k;
      return beyond(u);
    }
    int k = mode;
    while (k >= 0 && !(sums[k] < u)) --k;
    return k + 1;
  }
  template <class Beyond>
  void look_up(int n, int batch, const std::vector<double>& sums, int mode, Beyond beyond) {
    while (int(r.size()) < n) {
      for (const double u : uniforms(doubles_, std::min(n - int(r.size()), batch)))
        r.push_back(place(sums, mode, u, beyond));
      if (failed) return;
    }
  }

  void binomial_table(int n, int32_t ntrial, double q) {
    const auto sums = binomial_sums(ntrial, q);
    const double s = q / (1 - q), a = (ntrial + 1.0) * s;
    look_up(n, 1024, sums, int(ntrial * q), [&](double u) {
      // Once more from the beginning, for the last probability.
      double f = sums[0], sum = sums.back();
      int k = 1;
      for (; k < int(sums.size()); ++k) f = f * (a / k - s);
      for (; k < ntrial; ++k) {
        f = f * (a / k - s);
        if (sum + f > u || sum + f == sum) return k;
        sum += f;
      }
      return ntrial;
    });
  }

  // Rounds of pairs; candidate(u, v) gives an integer, below 0 for a rejection.
  template <class Candidate>
  void rounds(int n, int floats, int least, Candidate candidate) {
    while (int(r.size()) < n) {
      const auto u = uniforms(floats_, std::min(2 * (n - int(r.size())), floats));
      if (failed) return;
      for (size_t i = 0; i < u.size(); i += 2)
        if (const int32_t y = candidate(u[i], u[i + 1]); y >= least) r.push_back(y);
    }
  }

  static double ln_factorial(int32_t x) {
    if (x < 16) return double(lgammal(x + 1.0L));
    return (x + 0.5) * __ruadLn(x) + 0.9189385332 - x +
           (1.0 / x) * (0.08333333333333333 - 0.002777777777777778 * ((1.0 / x) * (1.0 / x)));
  }
  // Of four, whose sum is l.
  static double ln_factorials(const std::vector<int32_t>& x, int32_t l) {
    if (*std::min_element(x.begin(), x.end()) < 16)
      return ln_factorial(x[0]) + ln_factorial(x[1]) + ln_factorial(x[2]) + ln_factorial(x[3]);
    double logs = 0, series = 0;
    for (const double d : x) {
      double ln_d, i;
      ork_zem_kernel_dLn_ttab[1](1, &d, &ln_d);
      ork_zem_kernel_dInv_ttab[1](1, &d, &i);
      logs += (d + 0.5) * ln_d;
      series += i * (0.08333333333333333 - 0.002777777777777778 * (i * i));
    }
    return logs + 3.6757541328 - l + series;
  }

  void h2pe(int count, int32_t i1, int32_t i2, int32_t ik, int32_t l, int M, int32_t most) {
    const float n1 = float(i1), k = float(ik), b = float(i2 - ik), m = float(M);
    const auto G = [&](int x) { return ln_factorials({x, i1 - x, ik - x, x + i2 - ik}, l); };
    const auto exp = [](double x) {
      ork_zem_kernel_dExp_ttab[1](1, &x, &x);
      return float(x);
    };
    const float A =
        1.5f * std::sqrt(n1 * float(i2) * float(l - ik) * k / (float(l) - 1)) / float(l);
    const float a = float(int(A)) + 0.5f, d = m + 0.5f, xl = d - a, xr = d + a;
    const double lf = G(M);
    const float kl = exp(lf - G(int(xl))), kr = exp(lf - G(int(xr) - 1));
    const float left = -__ruasLn(xl * (b + xl) / ((n1 + 1 - xl) * (k + 1 - xl)));
    const float right = -__ruasLn((n1 + 1 - xr) * (k + 1 - xr) / (xr * (b + xr)));
    const float p1 = 2 * a, p2 = p1 + kl / left, p3 = p2 + kr / right;
    const auto by_ratio = [&](int y, float v) {
      float f = 1;
      for (int j = M; j > y && !(f < v && j < M - 64); --j) {
        const float i = float(j);
        f = f * ((b + i) * i / ((n1 + 1 - i) * (k + 1 - i)));
      }
      for (int j = M; j < y && !(f < v && j > M + 64); ++j) {
        const float i = float(j);
        f = f * ((n1 - i) * (k - i) / ((i + b + 1) * (i + 1)));
      }
      return y == M || !(f < v);
    };
    const auto P = [](float y) { return y * (1 - 0.5f * y + 0.33333334f * (y * y)); };
    const auto R = [](float y) { return (y * y) * (y * y) / (y < 0 ? 1 + y : 1); };
    const auto accepts = [&](int y, float v) {
      if (most <= 16000) return by_ratio(y, v);
      const float x = float(y), t = x - m, L = ln(v);
      const float r1 = -t / (x + 1), s1 = t / (n1 + 1 - x), t1 = t / (k + 1 - x),
                  e1 = -t / (b + x + 1);
      const float g = (n1 + 1 - x) * (k + 1 - x) / ((b + x + 1) * (x + 1)) - 1;
      const float gu = g * (1 - 0.5f * g + 0.33333334f * (g * g));
      const float gl = gu - 0.25f * ((g * g) * (g * g)) / (g < 0 ? 1 + g : 1);
      const float wr = m + 0.5f, ws = n1 + 0.5f - m, wt = k + 0.5f - m, we = m + 0.5f + b;
      const float ub =
          x * gu + 0.0034f - m * gl + P(r1) * wr + P(s1) * ws + P(t1) * wt + P(e1) * we;
      if (ub < L) return false;
      const float lb = (x + m) * (gl - gu) - 0.0078f + ub -
                       0.25f * (R(r1) * wr + R(s1) * ws + R(t1) * wt + R(e1) * we);
      return lb > L || !(lf - G(y) < L);
    };
    rounds(count, 2048, 1, [&](float u, float v) -> int32_t {
      const float area = u * p3;
      int y;
      if (area <= p1) {
        y = int(xl + area);
      } else if (area <= p2) {
        y = int(xl + ln(v) / left);
        if (y < 0) return -1;
        v = left * v * (area - p1);
      } else {
        y = int(xr - ln(v) / right);
        if (y > most) return -1;
        v = right * v * (area - p2);
      }
      return accepts(y, v) ? y : -1;
    });
  }

  static float rest_of_stirling(float t) {
    const float t2 = t * t;
    return (1 / t) *
           (0.083333336f -
            (1 / t2) *
                (0.0027777778f - (0.0007936508f - (0.0005952381f - 0.0008417508f / t2) / t2) / t2));
  }

  void btpe(int count, int32_t ntrial, double q) {
    const float n = float(ntrial), r = float(q), g = float(1 - q), npq = n * r * g, ffm = n * r + r;
    const int M = int(ffm);
    const float m = float(M), s = r / g, a = (n + 1) * s;
    const float p1 = float(int(2.195f * std::sqrt(npq) - 4.6f * g)) + 0.5f, xm = m + 0.5f,
                xl = xm - p1, xr = xm + p1, c = 0.134f + 20.5f / (15.3f + m);
    const float al = (ffm - xl) / (ffm - xl * r), left = al * (1 + 0.5f * al);
    const float ar = (xr - ffm) / (xr * g), right = ar * (1 + 0.5f * ar);
    const float p2 = p1 * (1 + 2 * c), p3 = p2 + c / left, p4 = p3 + c / right;
    std::vector<float> up, down;
    for (int i = 0; i < 32; ++i) {
      const float below = m - float(i);
      up.push_back((i ? up.back() : 1) * (a * inverse(m + float(i + 1)) - s));
      down.push_back((i ? down.back() : 1) * (below * inverse(a - s * below)));
    }
    const auto by_ratio = [&](int y, float v) {
      const int k = y - M;
      if (k == 0) return true;
      float f = k > 0 ? up[std::min(k, 32) - 1] : down[std::min(-k, 32) - 1];
      for (int i = M + 33; i <= y; ++i) {
        f = f * (a / float(i) - s);
        if (f < v) return false;
      }
      for (int i = M - 32; i > y; --i) {
        f = f * (float(i) / (a - s * float(i)));
        if (f < v) return false;
      }
      return !(f < v);
    };
    const auto accepts = [&](int y, float v) {
      const float k = std::abs(float(y) - m), w = 1 / npq;
      if (k <= 20 || k >= 0.5f * npq - 1) return by_ratio(y, v);
      const float l = ln(v), A = -(0.5f * k) * k * w;
      const float B = k * w * (((k * 0.33333334f + 0.625f) * k + 0.16666667f) * w + 0.5f);
      if (l < A - B) return true;
      if (l > A + B) return false;
      const float f1 = m + 1, z = n + 1 - m, x1 = float(y) + 1, w1 = n + 1 - float(y);
      return l <= __ruasLn(f1 / x1) * xm + __ruasLn(z / w1) * (n + 0.5f - m) +
                      __ruasLn(w1 * s / x1) * (float(y) - m) +
                      (rest_of_stirling(f1) + rest_of_stirling(z)) + rest_of_stirling(x1) +
                      rest_of_stirling(w1);
    };
    rounds(count, 1024, 0, [&](float u, float v) -> int32_t {
      const float area = u * p4;
      float x;
      if (u <= p1 / p4) return int(xm - p1 * v + area);
      if (u <= p2 / p4) {
        x = xl + (area - p1) / c;
        v = v * c + 1 - std::abs(xm - x) / p1;
        if (v > 1) return -1;
      } else if (u <= p3 / p4) {
        x = xl + ln(v) / left;
        if (int(x) < 0) return -1;
        v = v * (area - p2) * left;
      } else {
        x = xr - ln(v) / right;
        if (int(x) > ntrial) return -1;
        v = v * (area - p3) * right;
      }
      return accepts(int(x), v) ? int(x) : -1;
    });
  }
};

}  // namespace reference
