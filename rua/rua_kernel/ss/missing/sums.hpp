// Loops over the observations of a pattern: conditional means of what is missing, and what they
// add to the sums of products. Observations are rows of p reals, 0 where one is missing.
//
// Sums is a matrix of order d = p + 1 like the sweep form, filled half by half: what a
// missing variable j and an observed one k give (or the constant) stands at [j][k], what two
// missing ones give in the upper triangle. settle() adds the two places.
#pragma once
#include "base/lanes.hpp"
#include "rua_kernel/ss/missing/sweep_form.hpp"

namespace ork::ss {

// Variables of a pattern, ascending.
struct Members {
  int gaps;
  const int32_t *missing, *present;
};

ORK_INLINE double total(double x) { return x; }
ORK_INLINE float total(float x) { return x; }
ORK_INLINE double total(f64x2 x) { return x[0] + x[1]; }
ORK_INLINE float total(f32x4 x) { return (x[0] + x[2]) + (x[1] + x[3]); }

// O observations times M missing variables at a time: as many sums as the registers hold.
template <int O, int M, class R>
ORK_INLINE void means_tile(int p, const R* const (&theta)[2], const R* x, R* z, int step) {
  using V = vec_of<R>;
  V sum[O][M] = {};
  int k = 0;
  for (; k <= p - simd<R>::width; k += simd<R>::width) {
    V factor[M];
    for (int m = 0; m < M; ++m) factor[m] = load(theta[m] + 1 + k);
    for (int o = 0; o < O; ++o) {
      const V y = load(x + size_t(o) * p + k);
      for (int m = 0; m < M; ++m) sum[o][m] += factor[m] * y;
    }
  }
  for (int o = 0; o < O; ++o)
    for (int m = 0; m < M; ++m) {
      R rest = theta[m][0];
      for (int t = k; t < p; ++t) rest += theta[m][1 + t] * x[size_t(o) * p + t];
      z[o * step + m] = rest + total(sum[o][m]);
    }
}

// z[i * gaps + a] <- the mean of missing variable a of observation i, given those present, which
// are the variables swept in theta.
template <class R>
void conditional_means(const SweepForm<R>& theta, const Members& v, int count, const R* rows,
                       R* z) {
  const int p = theta.d - 1, q = v.gaps;
  for (int a = 0; a < q; a += 2) {
    const bool two = a + 1 < q;
    const R* const row[2] = {theta[v.missing[a] + 1], theta[v.missing[a + two] + 1]};
    int i = 0;
    for (; i + 2 <= count; i += 2) {
      const R* const x = rows + size_t(i) * p;
      R* const to = z + size_t(i) * q + a;
      if (two)
        means_tile<2, 2>(p, row, x, to, q);
      else
        means_tile<2, 1>(p, row, x, to, q);
    }
    if (i < count) {
      const R* const x = rows + size_t(i) * p;
      R* const to = z + size_t(i) * q + a;
      if (two)
        means_tile<1, 2>(p, row, x, to, q);
      else
        means_tile<1, 1>(p, row, x, to, q);
    }
  }
}

// to[m][k..] += sum z_m x[k..], K registers wide.
template <class V, int K, int M, class R>
ORK_INLINE void products_tile(int p, int count, const R* x, const R* z, int q, int k,
                              R* const (&to)[2]) {
  constexpr int w = sizeof(V) / sizeof(R);
  V sum[K][M] = {};
  x += k;
  for (int i = 0; i < count; ++i, x += p, z += q) {
    V y[K];
    for (int c = 0; c < K; ++c) y[c] = get<V>(x + c * w);
    for (int m = 0; m < M; ++m) {
      const V factor = all<V>(z[m]);
      for (int c = 0; c < K; ++c) sum[c][m] += y[c] * factor;
    }
  }
  for (int c = 0; c < K; ++c)
    for (int m = 0; m < M; ++m) {
      R* const place = to[m] + 1 + k + c * w;
      put(place, get<V>(place) + sum[c][m]);
    }
}

template <int M, class R>
void products_of(int p, int count, const R* x, const R* z, int q, R* const (&to)[2]) {
  using V = vec_of<R>;
  constexpr int w = simd<R>::width;
  for (int m = 0; m < M; ++m) {
    R sum = 0;
    for (int i = 0; i < count; ++i) sum += z[size_t(i) * q + m];
    to[m][0] += sum;
  }
  int k = 0;
  for (; k <= p - 2 * w; k += 2 * w) products_tile<V, 2, M>(p, count, x, z, q, k, to);
  for (; k <= p - w; k += w) products_tile<V, 1, M>(p, count, x, z, q, k, to);
  for (; k < p; ++k) products_tile<R, 1, M>(p, count, x, z, q, k, to);
}

// Products of what was put in for the missing entries with the constant and with what is there.
template <class R>
void add_products(const Members& v, int count, const R* rows, const R* z,
                  const SweepForm<R>& sums) {
  const int q = v.gaps, p = sums.d - 1;
  for (int a = 0; a < q; a += 2) {
    const bool two = a + 1 < q;
    R* const to[2] = {sums[v.missing[a] + 1], sums[v.missing[a + two] + 1]};
    if (two)
      products_of<2>(p, count, rows, z + a, q, to);
    else
      products_of<1>(p, count, rows, z + a, q, to);
  }
}

// Products of the z with each other, two by two.
template <class R>
void add_squares(const Members& v, int count, const R* z, const SweepForm<R>& sums) {
  const int q = v.gaps;
  for (int a = 0; a < q; a += 2)
    for (int b = a; b < q; b += 2) {
      const int a1 = a + (a + 1 < q), b1 = b + (b + 1 < q);
      R s00 = 0, s01 = 0, s10 = 0, s11 = 0;
      for (int i = 0; i < count; ++i) {
        const R* const row = z + size_t(i) * q;
        s00 += row[a] * row[b];
        s01 += row[a] * row[b1];
        s10 += row[a1] * row[b];
        s11 += row[a1] * row[b1];
      }
      const auto add = [&](int i, int j, R sum) {
        sums[v.missing[i] + 1][v.missing[j] + 1] += sum;
      };
      add(a, b, s00);
      if (b1 > b) add(a, b1, s01);
      if (a1 > a && a1 <= b) add(a1, b, s10);
      if (a1 > a && b1 > b) add(a1, b1, s11);
    }
}

// sums over n observations become mean and covariance, of divisor n.
template <class R>
void settle(const SweepForm<R>& sums, int n, const SweepForm<R>& to) {
  const int d = sums.d;
  const auto mean_of = [&](int i, int j) {
    return (i == j ? sums[i][i] : sums[i][j] + sums[j][i]) / R(n);
  };
  to[0][0] = -1;
  for (int j = 1; j < d; ++j) to[j][0] = mean_of(j, 0);
  for (int i = 1; i < d; ++i)
    for (int j = 1; j <= i; ++j) to[i][j] = mean_of(i, j) - to[i][0] * to[j][0];
  to.mirror();
}

}  // namespace ork::ss
