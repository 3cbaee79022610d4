// Gamma of a shape above 1 by the cube of a Gaussian number: G. Marsaglia, W. W. Tsang, "A simple
// method for generating gamma variables", 2000. Gaussian numbers come in pairs of two uniform
// numbers, each with a third or fourth uniform number for its acceptance: of four numbers the
// first makes the radius, the third the angle, the second and fourth decide. A candidate that a
// call does not need waits in a chunk of the stream and is the first of the next call.
#include "rua_kernel/continuous/gamma.hpp"
#include "rua_kernel/continuous/gaussian.hpp"
#include "rua_kernel/service/kept.hpp"
#include "rua_kernel/service/rejection.hpp"
#include "rua_sub_kernel/math/ln.hpp"

namespace ork::rua {

namespace {

// u is the uniform number for acceptance, below 0 when no candidate waits; z the Gaussian one.
template <class R>
struct Pending {
  static constexpr uint32_t kChunk = sizeof(R) == 8 ? 7 : 8;
  R u, z;
};

template <class R>
constexpr R kThird = 0x1.5555555555555p-2;
template <>
constexpr float kThird<float> = 0x1.555556p-2f;
// Of the squeeze 1 - 0.0331 z^4, which lies below the exact bound for every shape.
template <class R>
constexpr R kSqueeze = 0x1.0f27bb2fec56dp-5;
template <>
constexpr float kSqueeze<float> = 0x1.0f27bcp-5f;

// The candidate d (1 + c z)^3 with d = alpha - 1/3, c = 1/sqrt(9 d).
template <class R>
struct Shape {
  R d, c;

  explicit Shape(R alpha) : d(alpha - kThird<R>), c(1 / R(__builtin_sqrt(9 * alpha - 3))) {}

  // The test that the squeeze leaves open.
  bool accepts(R x2, R v, R u) const {
    const R ln_v = R(ln(v)), ln_u = R(ln(u));
    return R(0.5) * x2 + ((1 - v) + ln_v) * d > ln_u;
  }
};

// m candidates, an even number: Gaussian numbers z, sine before cosine of each pair, and uniform
// numbers u.
template <class R>
int32_t draw(RuaStream* stream, int32_t m, R* z, R* u) {
  alignas(64) R drawn[2 * kRound], magnitude[kRound / 2], sine[kRound / 2], cosine[kRound / 2];
  const int32_t status = uniform(stream, 2 * m, drawn, 0, 1), half = m / 2;
  if (status < 0) return status;
  split(m, drawn, drawn, u, [](auto x) { return x; });
  split(half, drawn, magnitude, sine, [](auto x) { return x * kTwoPi<R>; });
  sin_cos(half, sine, cosine);
  R* const radius = drawn;
  radii(half, magnitude, radius);
  constexpr int w = simd<R>::width;
  int32_t i = 0;
  for (; half - i >= w; i += w) {
    const vec_of<R> rho = load(radius + i);
    put_records(z + 2 * i, rho * load(sine + i), rho * load(cosine + i));
  }
  for (; i < half; ++i) {
    z[2 * i] = radius[i] * sine[i];
    z[2 * i + 1] = radius[i] * cosine[i];
  }
  return status;
}

// Accepted values of m candidates, behind one another from r on; their number. First all go
// through the squeeze, then those that it leaves open, about one of twelve, through the test.
template <class R>
int32_t accept_cubes(const Shape<R>& shape, int32_t m, const R* z, const R* u, R* r) {
  using V = vec_of<R>;
  constexpr int w = simd<R>::width;
  alignas(16) R cube[kRound], verdict[kRound];  // verdict: all ones for accepted
  int32_t open[kRound + 3], left = 0;
  for (int32_t i = 0; i < m; i += w) {
    const V x = load(z + i), x2 = x * x, t = shape.c * x + 1, v = t * t * t;
    const V q = 1 - kSqueeze<R> * x2 * x2;
    const u32x4 positive = lanes(v > 0), good = positive & lanes(q > load(u + i));
    store(cube + i, v);
    store(verdict + i, as<V>(good));
    const int mask = sign_mask<R>(positive & ~good);
#pragma GCC unroll 4
    for (int lane = 0; lane < w; ++lane) {
      open[left] = i + lane;
      left += mask >> lane & 1;
    }
  }
  for (int32_t k = 0; k < left; ++k) {
    const int32_t i = open[k];
    const bits_of<R> good = -bits_of<R>(shape.accepts(z[i] * z[i], cube[i], u[i]));
    verdict[i] = as<R>(good);
  }
  return accept(m, r, [=, &shape](int32_t i) {
    return candidates(load(cube + i) * shape.d, as<u32x4>(load(verdict + i)));
  });
}

}  // namespace

template <class R>
int32_t gamma_above_one(RuaStream* stream, int32_t n, R* r, R alpha) {
  Pending<R>* pending;
  const int32_t found = find_or_make(stream, pending, {-1, 0});
  if (found < 0) return found;
  const Shape<R> shape(alpha);
  // Candidates: one left over before those of a round, which are an even number.
  alignas(64) R z[kRound + 4], u[kRound + 4];
  z[0] = pending->z;
  u[0] = pending->u;
  int32_t ready = pending->u < 0 ? 0 : 1;
  pending->u = -1;
  for (int32_t done = 0; done < n;) {
    int32_t want = n - done, m = want - ready;
    if (m > 0) {
      if (m >= kRound) m = want = kRound;
      m += m & 1;
      const int32_t status = draw(stream, m, z + ready, u + ready);
      if (status < 0) return status;
      ready += m;
    }
    for (int32_t i = ready; i < want + 3; ++i) z[i] = u[i] = 0;  // lanes beyond
    done += accept_cubes(shape, want, z, u, r + done);
    z[0] = z[ready - 1];
    u[0] = u[ready - 1];
    ready = ready > want ? 1 : 0;
  }
  if (ready) *pending = {u[0], z[0]};
  return RUA_STATUS_OK;
}

template int32_t gamma_above_one(RuaStream*, int32_t, double*, double);
template int32_t gamma_above_one(RuaStream*, int32_t, float*, float);

}  // namespace ork::rua
