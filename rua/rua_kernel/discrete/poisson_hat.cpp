// Poisson numbers from 27 on by rejection, after V. Kachitvichyanukul, B. W. Schmeiser: a triangle
// around the mode that is accepted at once, parallelograms beside it, exponential tails. The hat is
// computed in single precision; a mean above 100, where a table of ratios would be long, decides by
// Stirling's series in double, since its terms, of the size of the mean, cancel.
#include "rua_kernel/discrete/candidates.hpp"
#include "rua_kernel/discrete/poisson.hpp"
#include "rua_sub_kernel/math/ln.hpp"

namespace ork::rua {

namespace {

constexpr int32_t kPairs = 1012;
constexpr double kByRatios = 100;  // means up to here
constexpr int kNear = 32;          // distance from the mode in the table of ratios

// The slot of logarithms near 1: EP is short of relative accuracy there, and the mean magnifies.
constexpr int kNearOne = 0;

float root(float x) { return _mm_cvtss_f32(_mm_sqrt_ss(_mm_set_ss(x))); }

// The probability of y over that of the mode, beyond the table; below v nothing is of interest.
bool accepts_far(const PoissonKept::Hat& h, float lambda, float y, float v) {
  const float m = h.mode;
  float f;
  if (y < m) {
    f = h.ratio[0];
    for (float i = m - kNear; i > y && !(f < v); --i) f *= i / lambda;
  } else {
    f = h.ratio[2 * kNear];
    for (float i = m + kNear + 1; i <= y && !(f < v); ++i) f *= lambda / i;
  }
  return !(f < v);
}

// Candidates outside the triangle: their uniform numbers, then heights and integers.
struct Outside {
  alignas(64) float u[kPairs + 4], v[kPairs + 4], ln_v[kPairs + 4];
  alignas(64) int32_t y[kPairs + 4];
  uint16_t place[kPairs + 4];
};

// Integers and heights from uniform numbers; 0 for what lies above the hat or below 1.
void propose(const PoissonKept::Hat& h, int32_t m, Outside& o) {
  apply(Tables<float>::ln, m, o.v, o.ln_v);
  vectors<float>(m, [&](int32_t i) {
    const f32x4 u = load(o.u + i), v = load(o.v + i), l = load(o.ln_v + i);
    const f32x4 at = u * h.area[3];
    const auto beside = u <= h.cut[1], left = u <= h.cut[2];
    const f32x4 from = select(left, splat(h.left), splat(h.right));
    const f32x4 offset = select(beside, at - h.area[0], select(left, l, -l));
    const f32x4 rate =
        select(beside, splat(h.height), select(left, splat(h.left_rate), splat(h.right_rate)));
    const f32x4 x = from + offset / rate;
    const f32x4 tail = v * (at - select(left, splat(h.area[1]), splat(h.area[2]))) * rate;
    const f32x4 height = select(beside, v * h.height + 1 - abs(h.center - x) / h.half_width, tail);
    const u32x4 above = lanes(beside) & lanes(height > 1);
    const i32x4 y = (i32x4)_mm_cvttps_epi32(x);
    _mm_storeu_si128(reinterpret_cast<__m128i*>(o.y + i),
                     as<__m128i>(as<u32x4>(y) & ~above & lanes(y > 0)));
    store(o.v + i, height);
  });
}

// Those that the test rejects become 0.
void test_by_ratios(const PoissonKept::Hat& h, float lambda, int32_t m, Outside& o) {
  const int32_t lowest = int32_t(h.mode) - kNear;
  for (int32_t i = 0; i < m; ++i) {
    const uint32_t k = uint32_t(o.y[i] - lowest);
    const bool good = k <= 2 * kNear ? !(o.v[i] > h.ratio[k])
                                     : o.y[i] > 0 && accepts_far(h, lambda, float(o.y[i]), o.v[i]);
    o.y[i] &= -int32_t(good);
  }
}

void test_by_series(const PoissonKept::Hat& h, double lambda, int32_t m, Outside& o) {
  alignas(64) double l[kPairs + 4];
  const auto number = [&](int32_t i) {
    const __m128i y = _mm_loadl_epi64(reinterpret_cast<const __m128i*>(o.y + i));
    return f64x2(_mm_max_pd(_mm_cvtepi32_pd(y), splat(1.0)));
  };
  vectors<double>(m, [&](int32_t i) { store(l + i, lambda / number(i)); });
  apply(Tables<double>::ln, m, l, kNearOne);
  apply(Tables<float>::ln, m, o.v);
  vectors<double>(m, [&](int32_t i) {
    const f64x2 y = number(i), w = 1 / y,
                v = _mm_cvtps_pd(
                    _mm_castsi128_ps(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(o.v + i))));
    const f64x2 f =
        (y + 0.5) * load(l + i) + y - w * (ratio<1, 12> - w * w * ratio<1, 360>)+h.stirling;
    const __m128i below = _mm_shuffle_epi32(as<__m128i>(f < v), 0x08);
    const auto place = reinterpret_cast<__m128i*>(o.y + i);
    _mm_storel_epi64(place, _mm_andnot_si128(below, _mm_loadl_epi64(place)));
  });
}

}  // namespace

void set_up(PoissonKept::Hat& h, double mean) {
  const float lambda = float(mean), m = h.mode = float(int32_t(mean));
  h.half_width = float(int32_t(2.195f * root(m) - 2.2f)) + 0.5f;
  h.height = 0.133f + 8.56f / (lambda + 6.83f);
  h.center = m + 0.5f;
  h.left = h.center - h.half_width;
  h.right = h.center + h.half_width;
  const float a = (lambda - h.left) / lambda, b = (h.right - lambda) / h.right;
  h.left_rate = a * (1 + 0.5f * a);
  h.right_rate = b * (1 + 0.5f * b);
  h.area[0] = h.half_width;
  h.area[1] = h.half_width * (1 + 2 * h.height);
  h.area[2] = h.area[1] + (0.109f + 8.25f / (lambda + 10.86f)) / h.left_rate;
  h.area[3] = h.area[2] + h.height / h.right_rate;
  for (int k = 0; k < 3; ++k) h.cut[k] = h.area[k] / h.area[3];
  if (mean > kByRatios) {
    const double k = m, w = 1 / k;
    h.stirling = w * (ratio<1, 12> - w * w * ratio<1, 360>)-k + (k + 0.5) * ln(k / mean);
    return;
  }
  float down = 1, up = 1;
  h.ratio[kNear] = __builtin_inff();
  for (int k = 0; k < kNear; ++k) {
    h.ratio[kNear - 1 - k] = down *= (m - float(k)) / lambda;
    h.ratio[kNear + 1 + k] = up *= lambda / (m + float(k + 1));
  }
}

int32_t poisson_by_hat(RuaStream* stream, int32_t n, int32_t* r, const PoissonKept::Hat& hat,
                       double lambda) {
  // A copy that no store below may change.
  const PoissonKept::Hat h = hat;
  return accept_integers<kPairs, 1>(
      stream, n, r, [&h, lambda](int32_t m, const float* u, const float* v, int32_t* y) {
        Outside o;
        const int32_t outside = list_places(m, o.place, [&](int32_t i) {
          const f32x4 ui = load(u + i);
          const f32x4 x = h.center - h.half_width * load(v + i) + ui * h.area[3];
          _mm_storeu_si128(reinterpret_cast<__m128i*>(y + i), _mm_cvttps_epi32(x));
          return ui > h.cut[0];
        });
        const int32_t whole = fours(outside);
        for (int32_t k = outside; k < whole; ++k) o.u[k] = 1, o.v[k] = 0.5f;
        for (int32_t k = 0; k < outside; ++k) {
          o.u[k] = u[o.place[k]];
          o.v[k] = v[o.place[k]];
        }
        propose(h, whole, o);
        if (lambda > kByRatios)
          test_by_series(h, lambda, whole, o);
        else
          test_by_ratios(h, float(lambda), outside, o);
        for (int32_t k = 0; k < outside; ++k) y[o.place[k]] = o.y[k];
      });
}

}  // namespace ork::rua
