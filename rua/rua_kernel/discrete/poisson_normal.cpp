// Poisson numbers from one number each, without rejection: below a mean of 1 a uniform number
// among sums of probabilities, from there on polynomials in a normal number, whose law is a few
// 1e-4 from Poisson's at means of 1 to 3 and nearer above (docs/distributions.md).
#include "rua_kernel/discrete/poisson.hpp"
#include "rua_kernel/service/elementwise.hpp"
#include "rua_kernel/service/uniform.hpp"

namespace ork::rua {

namespace {

// From here on one expansion in 1/lambda serves all means.
constexpr double kLarge = 100;

// A row for each binade of the mean below kLarge. Coefficients of polynomials in the place within
// the binade, lowest first: 3 of the median less 1, 4 of the scale, 4 for each power of z.
constexpr double kRows[7][24] = {
#include "rua_kernel/discrete/poisson_rows_c.inc"
};

// Corrections of mean and variance, and of the second to the fourth power, in 1/lambda.
constexpr double kMean[] = {-0.6666957198, -0.01941020862, -0.001288719308, 0.001645153709};
constexpr double kVariance[] = {-0.05580667628, -0.000975814817, -0.005534854444, 0.00519830812};
constexpr double kQ1[] = {0.00774710541609, -0.443911391797447, 2.29098262740971, -3.85841212878712,
                          2.02847035732762};
constexpr double kQ2[] = {0.168577008904505, 0.0472242348292688, -0.228162379800275,
                          0.358642226989579, -0.185436433294704};
constexpr double kQ3[] = {-0.0001145865551857, -0.0126559989233446, 0.0232257954288354,
                          -0.0291113093667918, 0.014389264627966};

double cubic(const double* a, double x) { return ((a[3] * x + a[2]) * x + a[1]) * x + a[0]; }
double quintic(const double* q, double d) {
  return d * (q[0] + d * (q[1] + d * (q[2] + d * (q[3] + d * q[4]))));
}

// r[i] <- f(the number that stands there), four at a time.
template <class F>
ORK_INLINE void in_place(int32_t n, int32_t* r, F f) {
  int32_t i = 0;
  for (; n - i >= 4; i += 4) {
    const f32x4 x = load(reinterpret_cast<const float*>(r + i));
    _mm_storeu_si128(reinterpret_cast<__m128i*>(r + i), f(x));
  }
  for (; i < n; ++i) {
    const f32x4 x = _mm_castsi128_ps(_mm_loadu_si32(r + i));
    r[i] = _mm_cvtsi128_si32(f(x));
  }
}

ORK_INLINE __m128i whole(f32x4 x) { return _mm_cvttps_epi32(_mm_max_ps(x, f32x4{})); }

int32_t small(RuaStream* stream, int32_t n, int32_t* r, double lambda) {
  float sums[kSums];
  double term = 1, sum = 1, total = 0;
  for (int k = 0; k < kSums; ++k) {
    sums[k] = float(sum);
    term = term * lambda / (k + 1);
    sum += term;
  }
  for (int k = 8; k-- > 0;) total = total * lambda + kExp[k];
  const int32_t status = uniform(stream, n, reinterpret_cast<float*>(r), 0.0f, float(total));
  if (status < 0) return status;
  // As many as are below the number: the sums ascend.
  in_place(n, r, [&](f32x4 u) {
    __m128i count = _mm_setzero_si128();
    for (int k = 0; k < kSums; ++k)
      count = _mm_sub_epi32(count, _mm_castps_si128(_mm_cmpnle_ps(u, splat(sums[k]))));
    return count;
  });
  return status;
}

int32_t medium(RuaStream* stream, int32_t n, int32_t* r, float lambda) {
  // Exponent and fraction of the same number: its rounding may lead into the next binade.
  const uint32_t image = as<uint32_t>(lambda);
  const double* a = kRows[(image >> 23) - 127];
  const double t = double(as<float>((image & 0x7fffff) | 0x3f800000)) - 1;
  const float c0 = float(a[0] + 1 + (a[2] * t + a[1]) * t), c1 = float(cubic(a + 3, t)),
              c2 = float(cubic(a + 7, t)), c3 = float(cubic(a + 11, t)),
              c4 = float(cubic(a + 15, t)), c5 = float(cubic(a + 19, t));
  const int32_t status =
      _ruasRngGaussian(RUA_GAUSSIAN_ICDF, stream, n, reinterpret_cast<float*>(r), 0, 1);
  if (status < 0) return status;
  in_place(n, r, [=](f32x4 z) { return whole((((c5 * z + c4) * z + c3) * z + c2) * z * c1 + c0); });
  return status;
}

int32_t large(RuaStream* stream, int32_t n, int32_t* r, double lambda) {
  const double d = 1 / lambda;
  const float mean = float(lambda + kMean[0] + ((kMean[3] * d + kMean[2]) * d + kMean[1]) * d);
  const double variance =
      lambda + kVariance[0] + ((kVariance[3] * d + kVariance[2]) * d + kVariance[1]) * d;
  const float q1 = float(quintic(kQ1, d)), q2 = float(quintic(kQ2, d)), q3 = float(quintic(kQ3, d));
  const int32_t status = _ruasRngGaussian(RUA_GAUSSIAN_ICDF, stream, n, reinterpret_cast<float*>(r),
                                          mean, float(__builtin_sqrt(variance)));
  if (status < 0) return status;
  in_place(n, r, [=](f32x4 z) {
    const f32x4 e = z - mean;
    return whole(z + 1 + e * ((q3 * e + q2) * e + q1));
  });
  return status;
}

}  // namespace

int32_t poisson_by_normal(RuaStream* stream, int32_t n, int32_t* r, double lambda) {
  if (lambda < 1) return small(stream, n, r, lambda);
  if (lambda >= kLarge) return large(stream, n, r, lambda);
  return medium(stream, n, r, float(lambda));
}

}  // namespace ork::rua
