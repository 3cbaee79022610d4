#pragma once
// Binomial numbers written out one candidate at a time, from recorded uniform numbers.
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
