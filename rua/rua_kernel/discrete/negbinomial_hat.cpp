// Candidates of the negative binomial distribution's hat, in passes over a round: whatever region a
// candidate belongs to, every pass computes it with selects in place of branches. Nearly three of
// four are accepted by straight lines below f; the others are compared with f itself, from the
// table around the mode or by its logarithm.
#include "rua_kernel/discrete/negbinomial_hat.hpp"

#include "rua_kernel/discrete/candidates.hpp"

namespace ork::rua {

namespace {

constexpr int32_t kPairs = 1024;
constexpr int32_t kRejected = -1;

using F = Tables<float>;

// Which region a uniform number falls into.
struct Region {
  u32x4 sloped, tail, left;  // not 0; 3 or 4; 2 or 4

  Region(const NegbinomialHat& hat, f32x4 u) {
    const auto above = [&](int k) { return lanes(u > hat.shares[k]); };
    sloped = above(0);
    tail = above(2);
    left = (above(1) & ~tail) | above(3);
  }
};
// A constant of the region's side.
ORK_INLINE f32x4 side(const Region& in, const float (&constants)[2]) {
  return select(in.left, splat(constants[1]), splat(constants[0]));
}

// From pairs u, v to integers y, heights into v, and the places that the lines below f leave open.
int32_t propose(const NegbinomialHat& hat, int32_t m, const float* u, float* v, int32_t* y,
                uint16_t* open) {
  alignas(16) float root[kPairs], log_v[kPairs];
  vectors<float>(m, [&](int32_t i) {
    const f32x4 ui = load(u + i);
    const Region in(hat, ui);
    const f32x4 s = ui * side(in, hat.ramps) + side(in, hat.bases);
    store(root + i, select(in.sloped & ~in.tail, s, splat(1.0f)));
  });
  apply(F::sqrt, m, root);
  apply(F::ln, m, v, log_v);
  const f32x4 none = {};
  return list_places(m, open, [&](int32_t i) {
    const f32x4 ui = load(u + i), vi = load(v + i), s = load(root + i);
    const Region in(hat, ui);
    const f32x4 flat = ui * hat.width + hat.from;
    const f32x4 slope = side(in, hat.starts) + side(in, hat.steps) * s;
    const f32x4 tail = load(log_v + i) / side(in, hat.log_ratios) + side(in, hat.feet);
    const f32x4 x = select(in.tail, tail, select(in.sloped, slope, flat));
    const f32x4 share = select(in.left, splat(hat.shares[3]), splat(hat.shares[2]));
    const f32x4 top = select(in.tail, (ui - share) * side(in, hat.tails), s * side(in, hat.tops));
    const f32x4 height = select(in.sloped, top * vi, vi);
    const auto right = x > hat.middle;
    const f32x4 line =
        select(right, x * hat.rises[1] + hat.ordinates[1], x * hat.rises[0] + hat.ordinates[0]);
    const f32x4 ramp = (x - side(in, hat.ends)) * side(in, hat.slopes);
    const u32x4 above = lanes(height > select(in.sloped, ramp, line)) | in.tail;
    // Below 0 and beyond the integers; truncation would take -0.5 for 0.
    const __m128i whole = _mm_or_si128(_mm_cvttps_epi32(x), as<__m128i>(lanes(x < none)));
    _mm_store_si128(reinterpret_cast<__m128i*>(y + i), whole);
    store(v + i, height);
    return above & ~(as<u32x4>(whole) & 0x80000000);
  });
}

// Compares the open candidates near the mode with f and lists the others in `open`; returns their
// number.
int32_t compare_near(const NegbinomialHat& hat, int32_t count, const float* height, int32_t* y,
                     uint16_t* open) {
  constexpr uint32_t most = 2 * NegbinomialHat::kNear;
  int32_t far = 0;
  for (int32_t k = 0; k < count; ++k) {
    const int32_t i = open[k], yi = y[i];
    const uint32_t place = uint32_t(yi) - uint32_t(hat.mode - NegbinomialHat::kNear);
    const bool is_far = place > most;
    const bool rejected = height[i] > hat.near[is_far ? most : place];
    open[far] = uint16_t(i);
    far += is_far;
    y[i] = !is_far && rejected ? kRejected : yi;
  }
  return far;
}

// The same for candidates far from the mode, by the logarithm of f. In double: its terms grow with
// the parameters, and it is their difference that counts.
void compare_far(const NegbinomialHat& hat, int32_t count, const float* height, int32_t* y,
                 const uint16_t* open) {
  using D = Tables<double>;
  constexpr int32_t block = 256;
  alignas(16) double a[block], b[block], at[block];
  alignas(16) float log_height[block];
  for (int32_t done = 0; done < count; done += block) {
    const int32_t m = count - done < block ? count - done : block;
    for (int32_t k = 0; k < m; ++k) {
      const int32_t i = open[done + k];
      at[k] = y[i] ? y[i] : 2;
      log_height[k] = height[i];
    }
    apply(F::ln, m, log_height);
    for (int32_t k = m; k < fours(m); ++k) at[k] = hat.mode;
    vectors<double>(fours(m), [&](int32_t k) {
      const f64x2 yk = load(at + k);
      store(a + k, (hat.bq - hat.p * yk) / yk);
      store(b + k, (yk - hat.mode) * hat.inverse);
    });
    apply(D::log1p, m, a, 0);
    apply(D::log1p, m, b, 0);
    vectors<double>(fours(m), [&](int32_t k) {
      const f64x2 yk = load(at + k);
      store(a + k, (yk + 0.5) * load(a + k) + hat.b * load(b + k) +
                       stirling_rest(1 / (yk + hat.b)) - stirling_rest(1 / yk) - hat.constant);
    });
    for (int32_t k = 0; k < m; ++k) {
      const int32_t i = open[done + k];
      const double log_f = y[i] ? a[k] : hat.at_zero;
      y[i] = log_f < log_height[k] ? kRejected : y[i];
    }
  }
}

}  // namespace

int32_t NegbinomialHat::draw(RuaStream* stream, int32_t n, int32_t* r) const {
  return accept_integers<kPairs, 0>(stream, n, r,
                                    [this](int32_t m, float* u, float* v, int32_t* y) {
                                      uint16_t open[kPairs + 4];
                                      const int32_t left = propose(*this, m, u, v, y, open);
                                      const int32_t far = compare_near(*this, left, v, y, open);
                                      if (far > 0) compare_far(*this, far, v, y, open);
                                    });
}

}  // namespace ork::rua
