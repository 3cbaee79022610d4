// Hypergeometric numbers by rejection from a level hat with exponential tails:
// V. Kachitvichyanukul, B. W. Schmeiser, "Computer generation of hypergeometric random variates",
// 1985 (H2PE). A pair u, v of uniform numbers makes a candidate: u chooses the region. It is
// accepted by its probability's ratio to the mode's, multiplied out where values are at most 16000,
// else by bounds on its logarithm that leave few candidates open.
#include "rua_kernel/discrete/candidates.hpp"
#include "rua_kernel/discrete/hypergeometric.hpp"
#include "rua_kernel/discrete/log_factorials.hpp"
#include "rua_sub_kernel/math/ln.hpp"

namespace ork::rua {

namespace {

constexpr int32_t kPairs = 1024, kNear = 64;
constexpr int32_t kRatiosTo = 16000;

// The counts in single precision, and how probabilities of neighbours compare.
struct Counts {
  float n1, n2, k, rest;  // rest = n2 - k

  explicit Counts(const Lot& t)
      : n1(float(t.n1)), n2(float(t.n2)), k(float(t.k)), rest(float(t.n2 - t.k)) {}
  // f(i - 1) and f(i + 1) over f(i) are quotients of these.
  float down(float i) const { return (rest + i) * i / ((n1 + 1 - i) * (k + 1 - i)); }
  float up(float i) const { return (n1 - i) * (k - i) / ((i + rest + 1) * (i + 1)); }
};

double factorials(const Lot& t, int32_t x) {
  return log_factorials(x, t.n1 - x, t.k - x, x + t.n2 - t.k, t.l);
}

// Ratios beyond those of the set-up, on one side of the mode, multiplied out as far as a call asks
// for them. The distance of 576 is nine deviations where values are at most 16000, and more.
class Further {
 public:
  // step(distance) leads from there to the next.
  template <class Step>
  float at(int32_t distance, float first, Step step) {
    const int32_t held = distance < kNear + kMost ? distance - kNear : kMost;
    for (; size_ < held; ++size_)
      ratios_[size_] = (size_ ? ratios_[size_ - 1] : first) * step(kNear + size_);
    float f = ratios_[held - 1];
    for (int32_t d = kNear + held; d < distance && f > 0; ++d) f *= step(d);
    return f;
  }

 private:
  static constexpr int32_t kMost = 512;
  int32_t size_ = 0;
  float ratios_[kMost];
};

// y (1 - y/2 + y^2/3), of ln(1 + y); vectors or scalars.
ORK_INLINE f32x4 short_ln(f32x4 y) { return y * (1 - 0.5f * y + 0.33333334f * (y * y)); }
// What that may lack, but for a factor 1/4.
ORK_INLINE f32x4 lack(f32x4 y) {
  const f32x4 y2 = y * y, y4 = y2 * y2;
  return select(y < 0, y4 / (1 + y), y4);
}

struct Sampler {
  const Lot& lot;
  const HypergeometricHat& h;
  Counts c;
  float mode;
  Further above, below;

  Sampler(const Lot& lot, const HypergeometricHat& h)
      : lot(lot), h(h), c(lot), mode(float(lot.mode)) {}

  // Candidates and heights of m pairs, infinite where the region rejects.
  void make(int32_t m, const float* pairs, int32_t* y, float* v) const {
    alignas(64) float u[kPairs], ln_v[kPairs];
    split(m, pairs, u, v, [](auto x) { return x; });
    apply(Tables<float>::ln, m, v, ln_v);
    const float most = float(lot.most);
    vectors<float>(m, [&](int32_t i) {
      const f32x4 area = load(u + i) * h.p3, vi = load(v + i), l = load(ln_v + i);
      const auto level = area <= h.p1, left = area <= h.p2;
      const f32x4 slope = select(left, splat(h.left), splat(h.right));
      const f32x4 step = select(level, area, select(left, l, -l) / slope);
      const f32x4 x = select(left, splat(h.xl), splat(h.xr)) + step;
      const f32x4 tail = slope * vi * (area - select(left, splat(h.p1), splat(h.p2)));
      const __m128i whole = _mm_cvttps_epi32(x);
      const f32x4 yi = _mm_cvtepi32_ps(whole);
      const auto rejected = ~level & ((yi < 0) | (yi > most));
      _mm_store_si128(reinterpret_cast<__m128i*>(y + i), whole);
      store(v + i, select(rejected, splat(__builtin_inff()), select(level, vi, tail)));
    });
  }

  // y of the m candidates, -1 where they are rejected.
  void by_ratios(int32_t m, const float* v, int32_t* y) {
    uint16_t far[kPairs + 3];
    const int32_t distant = list_places(m, far, [&](int32_t i) {
      const f32x4 yi = _mm_cvtepi32_ps(_mm_load_si128(reinterpret_cast<__m128i*>(y + i)));
      return (abs(yi - mode) > float(kNear)) & (load(v + i) < __builtin_inff());
    });
    alignas(64) int32_t verdict[kPairs];
    for (int32_t i = 0; i < m; ++i)
      verdict[i] = h.ratios.within(y[i] - lot.mode, kNear) < v[i] ? -1 : y[i];
    for (int32_t j = 0; j < distant; ++j) {
      const int32_t i = far[j], k = y[i] - lot.mode;
      const float f =
          k > 0 ? above.at(k, h.ratios.at(kNear), [&](int32_t d) { return c.up(mode + float(d)); })
                : below.at(-k, h.ratios.at(-kNear),
                           [&](int32_t d) { return c.down(mode - float(d)); });
      if (!(f < v[i])) verdict[i] = y[i];
    }
    for (int32_t i = 0; i < m; i += 4)
      _mm_store_si128(reinterpret_cast<__m128i*>(y + i),
                      _mm_load_si128(reinterpret_cast<const __m128i*>(verdict + i)));
  }

  void by_bounds(int32_t m, float* v, int32_t* y) const {
    alignas(64) float ln_v[kPairs];
    uint16_t open[kPairs + 3];
    apply(Tables<float>::ln, m, v, ln_v);
    int32_t left = list_places(m, open, [&](int32_t i) {
      const f32x4 x = _mm_cvtepi32_ps(_mm_load_si128(reinterpret_cast<__m128i*>(y + i)));
      const f32x4 l = load(ln_v + i), t = x - mode;
      const f32x4 a = x + 1, b = c.n1 + 1 - x, d = c.k + 1 - x, e = c.rest + x + 1;
      const f32x4 r1 = -t / a, s1 = t / b, t1 = t / d, e1 = -t / e;
      const f32x4 g = b * d / (e * a) - 1, g2 = g * g;
      const f32x4 gu = g * (1 - 0.5f * g + 0.33333334f * g2);
      const f32x4 gl = gu - 0.25f * (g2 * g2) / (1 + select(g < 0, g, splat(0.0f)));
      const float wa = mode + 0.5f, wb = c.n1 + 0.5f - mode, wd = c.k + 0.5f - mode,
                  we = mode + 0.5f + c.rest;
      const f32x4 above_ratio = x * gu + 0.0034f - mode * gl + short_ln(r1) * wa +
                                short_ln(s1) * wb + short_ln(t1) * wd + short_ln(e1) * we;
      const f32x4 below_ratio =
          (x + mode) * (gl - gu) - 0.0078f + above_ratio -
          0.25f * (lack(r1) * wa + lack(s1) * wb + lack(t1) * wd + lack(e1) * we);
      const auto rejected = (above_ratio < l) | (l == __builtin_inff());
      const auto accepted = l < below_ratio;
      store(v + i, as<f32x4>(rejected));
      return ~(rejected | accepted);
    });
    for (int32_t j = 0; j < left; ++j) {
      const int32_t i = open[j];
      if (h.factorials - factorials(lot, y[i]) < double(ln_v[i])) v[i] = as<float>(-1);
    }
    for (int32_t i = 0; i < m; i += 4) {
      const auto place = reinterpret_cast<__m128i*>(y + i);
      _mm_store_si128(place, _mm_or_si128(_mm_load_si128(place), _mm_castps_si128(load(v + i))));
    }
  }

  void operator()(int32_t m, const float* pairs, int32_t* y) {
    alignas(64) float v[kPairs];
    make(m, pairs, y, v);
    if (lot.most <= kRatiosTo)
      by_ratios(m, v, y);
    else
      by_bounds(m, v, y);
  }
};

}  // namespace

HypergeometricHat hypergeometric_hat(const Lot& t) {
  HypergeometricHat h;
  const Counts c(t);
  const float l = float(t.l), undrawn = float(t.l - t.k), mode = float(t.mode);
  const float variance = c.n1 * c.n2 * undrawn * c.k / (l - 1);
  const float root = _mm_cvtss_f32(_mm_sqrt_ss(_mm_set_ss(variance)));
  const float half = float(int32_t(1.5f * root / l)) + 0.5f, middle = mode + 0.5f;
  h.xl = middle - half;
  h.xr = middle + half;
  h.factorials = factorials(t, t.mode);
  const float kl = float(value(Tables<double>::exp, h.factorials - factorials(t, int32_t(h.xl))));
  const float kr =
      float(value(Tables<double>::exp, h.factorials - factorials(t, int32_t(h.xr) - 1)));
  h.left = -float(ln(c.down(h.xl)));
  h.right = -float(ln((c.n1 + 1 - h.xr) * (c.k + 1 - h.xr) / (h.xr * (c.rest + h.xr))));
  h.p1 = 2 * half;
  h.p2 = h.p1 + kl / h.left;
  h.p3 = h.p2 + kr / h.right;
  h.ratios.set([&](int k) { return c.up(mode + float(k - 1)); },
               [&](int k) { return c.down(mode - float(k - 1)); });
  return h;
}

int32_t hypergeometric_by_hat(RuaStream* stream, int32_t n, int32_t* r, const Lot& lot,
                              const HypergeometricHat& h) {
  Sampler sampler(lot, h);
  return accept_of_pairs<kPairs, 1>(
      stream, n, r, [&](int32_t m, const float* pairs, int32_t* y) { sampler(m, pairs, y); });
}

}  // namespace ork::rua
