// Value and derivatives of the pieces of order 2, 3 and 4, a register of sites at a time.
//
// Horner's rule for each output; every lane does the same operations in the same order, so
// the bits depend on the site alone.
#pragma once
#include "base/lanes.hpp"
#include "base/vec.hpp"
#include "interp1d/evaluate.hpp"

namespace ork::df {

// Coefficients of the pieces of a register of sites: k[i] holds those of the power i.
template <int P>
ORK_INLINE void gather_rows(const double* row, const int32_t* piece, ork::f64x2 (&k)[P]) {
  const double* a = row + static_cast<ptrdiff_t>(piece[0]) * P;
  const double* b = row + static_cast<ptrdiff_t>(piece[1]) * P;
  for (int i = 0; i + 1 < P; i += 2) {
    const __m128d u = _mm_loadu_pd(a + i), v = _mm_loadu_pd(b + i);
    k[i] = _mm_unpacklo_pd(u, v);
    k[i + 1] = _mm_unpackhi_pd(u, v);
  }
  if constexpr (P % 2 != 0) k[P - 1] = _mm_loadh_pd(_mm_load_sd(a + P - 1), b + P - 1);
}
template <int P>
ORK_INLINE void gather_rows(const float* row, const int32_t* piece, ork::f32x4 (&k)[P]) {
  const float* r[4];
  for (int j = 0; j < 4; ++j) r[j] = row + static_cast<ptrdiff_t>(piece[j]) * P;
  if constexpr (P == 4) {
    __m128 a = _mm_loadu_ps(r[0]), b = _mm_loadu_ps(r[1]), c = _mm_loadu_ps(r[2]),
           d = _mm_loadu_ps(r[3]);
    _MM_TRANSPOSE4_PS(a, b, c, d);
    k[0] = a, k[1] = b, k[2] = c, k[3] = d;
  } else {
    for (int i = 0; i < P; ++i) k[i] = _mm_setr_ps(r[0][i], r[1][i], r[2][i], r[3][i]);
  }
}

// The derivative of order `order` at distance d, all coefficients multiplied by their factor
// first: c1 + (2 c2) d + (3 c3) d^2 as (3 c3 d + 2 c2) d + c1.
template <int order, int P, class V>
ORK_INLINE V derivative(const V (&k)[P], V d) {
  if constexpr (order >= P) {
    return V{};
  } else {
    constexpr auto factor = [](int power) {
      int product = 1;
      for (int i = 0; i < order; ++i) product *= power - i;
      return product;
    };
    V sum{};
    for (int power = P - 1; power >= order; --power) {
      const V term = factor(power) == 1
                         ? k[power]
                         : k[power] * ork::splat(static_cast<decltype(V{}[0] + 0)>(factor(power)));
      sum = power == P - 1 ? term : sum * d + term;
    }
    return sum;
  }
}

// How the outputs lie: those of an order side by side; those of a site side by side, and the
// sites too; any other way.
enum class Layout { rows, records, spread };

// `all` names the orders asked for when that is known beforehand, one bit an order; 0 reads
// the request.
template <class T, int P, unsigned all, Layout layout>
int fill_orders(const Fit<T>& fit, const Request& request, int n, const Located<T>& located, int f,
                const Output<T>& out) {
  using V = ork::vec_of<T>;
  constexpr int width = ork::simd<T>::width;
  const T* row = fit.row(f);
  const Output<T> to = out;
  const int place[4] = {request.place[0], request.place[1], request.place[2], request.place[3]};
  const auto emit = [&](int j, auto put) __attribute__((always_inline)) {
    const auto wants = [&](int order) {
      return all != 0 ? (all >> order & 1) != 0 : place[order] >= 0;
    };
    const V d = ork::load_aligned(located.distance + j);
    V k[P];
    gather_rows<P>(row, located.piece + j, k);
    // Known orders are 0, 1, .. and so are their places.
    if (wants(0)) put(all != 0 ? 0 : place[0], derivative<0>(k, d));
    if (wants(1)) put(all != 0 ? 1 : place[1], derivative<1>(k, d));
    if (wants(2)) put(all != 0 ? 2 : place[2], derivative<2>(k, d));
    if (wants(3)) put(all != 0 ? 3 : place[3], derivative<3>(k, d));
  };
  int j = 0;
  for (; j + width <= n; j += width) {
    V value[3];
    emit(
        j, [&](int k, V v) __attribute__((always_inline)) {
          if constexpr (layout == Layout::rows) {
            ork::store(to.base + j + k * to.order, v);
          } else if constexpr (layout == Layout::records) {
            value[k] = v;
          } else {
#pragma GCC unroll 4
            for (int i = 0; i < width; ++i) *to.at(j + i, k) = v[i];
          }
        });
    if constexpr (layout == Layout::records && all == 3)
      put_records(to.base + 2 * j, value[0], value[1]);
    if constexpr (layout == Layout::records && all == 7)
      put_records(to.base + 3 * j, value[0], value[1], value[2]);
  }
  if (j < n)
    emit(j, [&](int k, V v) {
      for (int i = 0; j + i < n; ++i) *to.at(j + i, k) = v[i];
    });
  return ORK_DF_OK;
}

template <class T, int P>
int fill_polynomial(const Fit<T>& fit, const Request& request, int n, const Located<T>& located,
                    int f, const Output<T>& out) {
  int k = 0;
  unsigned all = 0;
  for (int order = 0; order < 4; ++order)
    if (request.asks(order)) all |= 1u << order, ++k;
  for (int order = 4; k < request.count; ++order) {  // higher derivatives vanish
    if (!request.asks(order)) continue;
    for (int j = 0; j < n; ++j) *out.at(j, k) = T(0);
    ++k;
  }
  const bool in_order = out.position == nullptr;
  const bool rows = in_order && out.site == 1;
  const bool records = in_order && out.order == 1 && out.site == request.count;
  const auto fill = rows && all == 1      ? fill_orders<T, P, 1, Layout::rows>
                    : rows && all == 3    ? fill_orders<T, P, 3, Layout::rows>
                    : rows && all == 7    ? fill_orders<T, P, 7, Layout::rows>
                    : rows                ? fill_orders<T, P, 0, Layout::rows>
                    : records && all == 3 ? fill_orders<T, P, 3, Layout::records>
                    : records && all == 7 ? fill_orders<T, P, 7, Layout::records>
                                          : fill_orders<T, P, 0, Layout::spread>;
  return fill(fit, request, n, located, f, out);
}

}  // namespace ork::df
