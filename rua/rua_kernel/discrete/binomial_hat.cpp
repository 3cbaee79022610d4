// Binomial numbers by rejection from a hat of triangle, parallelograms and exponential tails:
// V. Kachitvichyanukul, B. W. Schmeiser, "Binomial random variate generation", 1988 (BTPE). A pair
// u, v of uniform numbers makes a candidate: u chooses the region; in the first one it is accepted
// at once, in the others by its probability's ratio to the mode's, multiplied out near the mode and
// far out, and in between by bounds on its logarithm that leave few candidates open.
#include "rua_kernel/discrete/binomial.hpp"
#include "rua_kernel/discrete/candidates.hpp"
#include "rua_sub_kernel/math/ln.hpp"

namespace ork::rua {

namespace {

constexpr int32_t kPairs = 512;

// What ln t! has beyond (t - 1/2) ln t - t and a constant, for t = k + 1; below 1e-9 off from 15
// on.
float stirling_rest(float t) {
  const float t2 = t * t;
  return 1 / t *
         (0.083333336f -
          1 / t2 *
              (0.0027777778f - (0.0007936508f - (0.0005952381f - 0.0008417508f / t2) / t2) / t2));
}

float single_ln(float x) { return float(ln(double(x))); }

// Whether a candidate y, k from the mode, is accepted at height v: by the ratio itself.
bool by_ratio(const BinomialHat& h, int32_t y, int32_t k, float v) {
  if (k >= -32 && k <= 32) return !(h.ratios.at(k) < v);
  float f = h.ratios.at(k > 0 ? 32 : -32);
  const int32_t mode = int32_t(h.mode);
  if (k > 0)
    for (int32_t i = mode + 32; i < y && !(f < v);) f *= h.a / float(++i) - h.s;
  else
    for (int32_t i = mode - 32; i > y && !(f < v); --i) f *= float(i) / (h.a - h.s * float(i));
  return !(f < v);
}

// By the logarithm of the ratio; ln_v that of the height.
bool by_logarithm(const BinomialHat& h, float y, float k, float ln_v) {
  const float f1 = h.mode + 1, z = h.n + 1 - h.mode, x1 = y + 1, w1 = h.n + 1 - y;
  const float bound = single_ln(f1 / x1) * h.xm + single_ln(z / w1) * (h.n + 0.5f - h.mode) +
                      single_ln(w1 * h.s / x1) * k + h.stirling + stirling_rest(x1) +
                      stirling_rest(w1);
  return ln_v <= bound;
}

// The candidates of a round outside the first region, one behind the other.
struct Rest {
  uint16_t place[kPairs + 3];                 // of the pair
  alignas(64) float v[kPairs], ln_v[kPairs];  // heights, infinite where the region rejects
  alignas(64) int32_t y[kPairs];
};

// Makes m of them, a multiple of four; lists those too far from the mode for the ratios there.
int32_t make_rest(const BinomialHat& h, int32_t m, const float* pairs, Rest& rest, uint16_t* far) {
  for (int32_t i = 0; i < m; i += 4) {
    f32x4 u, v;
    pairs_at(pairs, rest.place + i, u, v);
    store(rest.v + i, v);
  }
  apply(Tables<float>::ln, m, rest.v, rest.ln_v);
  return list_places(m, far, [&](int32_t i) {
    f32x4 u, v;
    pairs_at(pairs, rest.place + i, u, v);
    const f32x4 ln_v = load(rest.ln_v + i), area = u * h.p4;
    const auto second = u <= h.cut1, third = u <= h.cut2;
    const f32x4 slope = select(third, splat(h.left), splat(h.right));
    const f32x4 over = select(second, area - h.p1, select(third, ln_v, -ln_v));
    const f32x4 x =
        select(third, splat(h.xl), splat(h.xr)) + over / select(second, splat(h.c), slope);
    const f32x4 flat = v * h.c + 1 - abs(h.xm - x) / h.p1;
    const f32x4 tail = v * (area - select(third, splat(h.p2), splat(h.p3))) * slope;
    const f32x4 height = select(second, flat, tail);
    const __m128i y = _mm_cvttps_epi32(x);
    const f32x4 whole = _mm_cvtepi32_ps(y);
    const auto rejected = (height > 1) | (whole < 0) | (whole > h.n);
    _mm_store_si128(reinterpret_cast<__m128i*>(rest.y + i), y);
    store(rest.v + i, select(rejected, splat(__builtin_inff()), height));
    return (abs(whole - h.mode) > h.near) & ~rejected;
  });
}

// Decides on the m listed ones: y of their pairs, or -1.
void test_far(const BinomialHat& h, int32_t m, uint16_t* far, const Rest& rest, int32_t* y) {
  alignas(64) float v[kPairs], ln_v[kPairs], k[kPairs], accepted[kPairs];
  const int32_t whole = fill_places(m, far), mode = int32_t(h.mode);
  for (int32_t i = 0; i < whole; ++i) {
    v[i] = rest.v[far[i]];
    k[i] = float(rest.y[far[i]] - mode);
  }
  apply(Tables<float>::ln, whole, v, ln_v);
  const float w = 1 / h.npq, bounded = 0.5f * h.npq - 1;
  uint16_t open[kPairs + 3];
  int32_t left = list_places(whole, open, [&](int32_t i) {
    const f32x4 kk = abs(load(k + i)), l = load(ln_v + i);
    const f32x4 middle = -(0.5f * kk) * kk * w;
    const f32x4 width = kk * w * (((kk * 0.33333334f + 0.625f) * kk + 0.16666667f) * w + 0.5f);
    const auto in = kk < bounded;
    const auto below = l < middle - width;
    const auto above = l > middle + width;
    store(accepted + i, as<f32x4>(in & below));
    return ~(in & (below | above));
  });
  while (left > 0 && open[left - 1] >= m) --left;
  for (int32_t j = 0; j < left; ++j) {
    const int32_t i = open[j];
    const float distance = k[i] < 0 ? -k[i] : k[i];
    const int32_t at = rest.y[far[i]];
    const bool good = distance < bounded ? by_logarithm(h, float(at), k[i], ln_v[i])
                                         : by_ratio(h, at, at - mode, v[i]);
    accepted[i] = as<float>(-int32_t(good));
  }
  for (int32_t i = 0; i < m; ++i) {
    const int32_t good = as<int32_t>(accepted[i]);
    y[rest.place[far[i]]] = (rest.y[far[i]] & good) | ~good;
  }
}

void candidates_of(const BinomialHat& h, int32_t m, const float* pairs, int32_t* y) {
  Rest rest;
  const int32_t others = list_places(m, rest.place, [&](int32_t i) {
    const f32x4 a = load(pairs + 2 * i), b = load(pairs + 2 * i + 4);
    const f32x4 u = evens(a, b), v = odds(a, b);
    _mm_store_si128(reinterpret_cast<__m128i*>(y + i),
                    _mm_cvttps_epi32(h.xm - h.p1 * v + u * h.p4));
    return u > h.cut0;
  });
  if (others == 0) return;
  uint16_t far[kPairs + 3];
  int32_t distant = make_rest(h, fill_places(others, rest.place), pairs, rest, far);
  const int32_t mode = int32_t(h.mode), near = int32_t(h.near);
  for (int32_t i = 0; i < others; ++i) {
    const float ratio = h.ratios.within(rest.y[i] - mode, near);
    y[rest.place[i]] = ratio < rest.v[i] ? -1 : rest.y[i];
  }
  while (distant > 0 && far[distant - 1] >= others) --distant;
  if (distant > 0) test_far(h, distant, far, rest, y);
}

}  // namespace

BinomialHat binomial_hat(int32_t ntrial, double q, double other) {
  BinomialHat h;
  const float n = float(ntrial), r = float(q), g = float(other);
  const float centre = n * r + r;
  h.n = n;
  h.npq = n * r * g;
  h.s = r / g;
  h.a = (n + 1) * h.s;
  h.mode = float(int32_t(centre));
  const float root = _mm_cvtss_f32(_mm_sqrt_ss(_mm_set_ss(h.npq)));
  h.p1 = float(int32_t(2.195f * root - 4.6f * g)) + 0.5f;
  h.xm = h.mode + 0.5f;
  h.xl = h.xm - h.p1;
  h.xr = h.xm + h.p1;
  h.c = 0.134f + 20.5f / (15.3f + h.mode);
  const float al = (centre - h.xl) / (centre - h.xl * r), ar = (h.xr - centre) / (h.xr * g);
  h.left = al * (1 + 0.5f * al);
  h.right = ar * (1 + 0.5f * ar);
  h.p2 = h.p1 * (1 + 2 * h.c);
  h.p3 = h.p2 + h.c / h.left;
  h.p4 = h.p3 + h.c / h.right;
  h.cut0 = h.p1 / h.p4;
  h.cut1 = h.p2 / h.p4;
  h.cut2 = h.p3 / h.p4;
  h.stirling = stirling_rest(h.mode + 1) + stirling_rest(n + 1 - h.mode);
  // Where the bounds are not used before, the whole table counts.
  h.near = 0.5f * h.npq - 1 <= 21 ? 32.0f : 20.0f;
  h.ratios.set([&](int k) { return h.a * inverse(h.mode + float(k)) - h.s; },
               [&](int k) {
                 const float i = h.mode - float(k - 1);
                 return i * inverse(h.a - h.s * i);
               });
  return h;
}

int32_t binomial_by_hat(RuaStream* stream, int32_t n, int32_t* r, const BinomialHat& h) {
  return accept_of_pairs<kPairs, 0>(stream, n, r, [&](int32_t m, const float* pairs, int32_t* y) {
    candidates_of(h, m, pairs, y);
  });
}

}  // namespace ork::rua
