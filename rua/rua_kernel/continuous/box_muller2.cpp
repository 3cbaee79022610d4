// Gaussian numbers from sine and cosine of the Box-Muller transformation, in this order. When
// the count is odd, the last pair of uniform numbers waits in a chunk of the stream, and its
// cosine is the first output of the next call.
#include "rua_kernel/continuous/gaussian.hpp"
#include "rua_kernel/service/elementwise.hpp"
#include "rua_kernel/service/kept.hpp"
#include "rua_kernel/service/uniform.hpp"

namespace ork::rua {

namespace {

// The uniform numbers behind the half-used Gaussian pair; both -1 when there is none.
template <class R>
struct Pending {
  static constexpr uint32_t kChunk = sizeof(R) == 8 ? 2 : 1;
  R u[2];
};

// The two outputs of one pair, by the kernels of the blocks: a number has the same bits wherever
// a call ends.
template <class R>
struct Halves {
  R sine, cosine;
};
template <class R>
inline Halves<R> halves(const Pending<R>& pair) {
  R radius, sine = pair.u[1] * kTwoPi<R>, cosine;
  sin_cos(1, &sine, &cosine);
  radii(1, pair.u, &radius);
  return {radius * sine, radius * cosine};
}

constexpr int32_t kBlock = 512;  // pairs

template <class R>
inline int32_t whole_pairs(RuaStream* stream, int32_t n, R* r, R a, R sigma) {
  alignas(64) R u[2 * kBlock], magnitude[kBlock], sine[kBlock], cosine[kBlock];
  for (int32_t m; n > 0; n -= m, r += 2 * m) {
    m = n < kBlock ? n : kBlock;
    const int32_t status = uniform(stream, 2 * m, u, 0, 1);
    if (status < 0) return status;
    split(m, u, magnitude, sine, [](auto x) { return x * kTwoPi<R>; });
    sin_cos(m, sine, cosine);
    R* const radius = u;
    radii(m, magnitude, radius);
    const auto scaled = [=](auto rho, auto wave) { return rho * wave * sigma + a; };
    constexpr int w = simd<R>::width;
    int32_t i = 0;
    for (; m - i >= 4 * w; i += 4 * w)
#pragma GCC unroll 4
      for (int k = i; k < i + 4 * w; k += w) {
        const vec_of<R> rho = load(radius + k);
        put_records(r + 2 * k, scaled(rho, load(sine + k)), scaled(rho, load(cosine + k)));
      }
    for (; i < m; ++i) {
      r[2 * i] = scaled(radius[i], sine[i]);
      r[2 * i + 1] = scaled(radius[i], cosine[i]);
    }
  }
  return RUA_STATUS_OK;
}

}  // namespace

template <class R>
int32_t box_muller2(RuaStream* stream, int32_t n, R* r, R a, R sigma) {
  if (n < 1) return RUA_STATUS_OK;
  Pending<R>* pending;
  int32_t status = find_or_make(stream, pending, {{-1, -1}});
  if (status < 0) return status;
  // The pair stays pending until the whole call has succeeded.
  Pending<R> left = {{-1, -1}};
  if (pending->u[0] != -1) {
    *r++ = halves(*pending).cosine * sigma + a;
    --n;
  }
  status = whole_pairs(stream, n / 2, r, a, sigma);
  if (status < 0) return status;
  if (n % 2 != 0) {
    status = uniform(stream, 2, left.u, 0, 1);
    if (status < 0) return status;
    r[n - 1] = halves(left).sine * sigma + a;
  }
  *pending = left;
  return RUA_STATUS_OK;
}

template GaussianMethod<double> box_muller2<double>;
template GaussianMethod<float> box_muller2<float>;

}  // namespace ork::rua
