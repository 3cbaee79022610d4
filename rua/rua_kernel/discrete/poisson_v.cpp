// PoissonV: a mean for each output. One normal number each, drawn for all outputs first; the
// stream's place afterwards depends on n alone.
#include "base/export.hpp"
#include "rua_kernel/discrete/candidates.hpp"
#include "rua_kernel/discrete/poisson.hpp"

namespace ork::rua {

namespace {

constexpr int32_t kBlockLength = 2048;
constexpr double kSmall = 0.0625;  // means below it have sums of probabilities instead of a row
constexpr int kLastRow = 17;       // for means from 2^13 on

// A row for each binade of the mean. p[0], p[1]: offset of the median; p[2], p[3]: of the scale
// from the root; then four cubics, the coefficients of z to z^4. All in the place within the
// binade, lowest power first.
constexpr double kWords[kLastRow + 1][20] = {
#include "rua_kernel/discrete/poisson_rows_v.inc"
};

// The same with what is computed side by side in pairs.
struct alignas(16) Row {
  double offsets[2][2];  // of median and scale; by power
  double odd[4][2];      // the cubics of z and z^3
  double even[4][2];     // of z^2 and z^4
};
struct Rows {
  Row row[kLastRow + 1];
};
constexpr Rows kRows = [] {
  Rows rows = {};
  for (int i = 0; i <= kLastRow; ++i) {
    const double* p = kWords[i];
    for (int k = 0; k < 2; ++k)
      rows.row[i].offsets[k][0] = p[k], rows.row[i].offsets[k][1] = p[2 + k];
    for (int k = 0; k < 4; ++k) {
      rows.row[i].odd[k][0] = p[4 + k], rows.row[i].odd[k][1] = p[12 + k];
      rows.row[i].even[k][0] = p[8 + k], rows.row[i].even[k][1] = p[16 + k];
    }
  }
  return rows;
}();

ORK_INLINE f64x2 pair(const double (&p)[2]) { return load_aligned(p); }
ORK_INLINE f64x2 cubics(const double (&p)[4][2], f64x2 t) {
  return ((pair(p[3]) * t + pair(p[2])) * t + pair(p[1])) * t + pair(p[0]);
}

// Median and scale offsets of a mean in its row, and the polynomial in z in two halves: odd + even
// z.
ORK_INLINE void element(const Row& row, f64x2 t, f64x2 z, f64x2& offsets, f64x2& halves) {
  offsets = pair(row.offsets[0]) + pair(row.offsets[1]) * t;
  halves = cubics(row.odd, t) + cubics(row.even, t) * z;
}

// Two outputs from two means and normal numbers.
ORK_INLINE __m128i two(f64x2 mean, f64x2 z) {
  const f64x2 t =
      as<f64x2>((as<u64x2>(mean) & splat_u64(0xfffffffffffff)) | splat_u64(0x3ff0000000000000)) -
      1.0;
  // Word 3 of each mean holds sign and exponent. Whatever the mean, the row is in the table.
  __m128i row = _mm_sub_epi16(_mm_srli_epi16(as<__m128i>(mean), 4), _mm_set1_epi16(1019));
  row = _mm_min_epi16(_mm_max_epi16(row, _mm_setzero_si128()), _mm_set1_epi16(kLastRow));
  f64x2 offsets0, offsets1, halves0, halves1;
  element(kRows.row[_mm_extract_epi16(row, 3)], evens(t, t), evens(z, z), offsets0, halves0);
  element(kRows.row[_mm_extract_epi16(row, 7)], odds(t, t), odds(z, z), offsets1, halves1);
  const f64x2 scale = sqrt(mean) + odds(offsets0, offsets1);
  const f64x2 polynomial = evens(halves0, halves1) + z * z * odds(halves0, halves1);
  const f64x2 x = 1 + mean + evens(offsets0, offsets1) + z * polynomial * scale;
  return _mm_cvttpd_epi32(_mm_max_pd(x, f64x2{}));
}

// r[i] <- its Poisson number, made of the normal number that stands there; any mean, but only those
// from kSmall on come out right.
void by_rows(int32_t n, int32_t* r, const double* lambda) {
  int32_t i = 0;
  for (; n - i >= 2; i += 2) {
    const auto place = reinterpret_cast<__m128i*>(r + i);
    const f64x2 z = _mm_cvtps_pd(_mm_castsi128_ps(_mm_loadl_epi64(place)));
    _mm_storel_epi64(place, two(load(lambda + i), z));
  }
  if (i < n) {
    const f64x2 z = _mm_cvtps_pd(_mm_castsi128_ps(_mm_loadu_si32(r + i)));
    r[i] = _mm_cvtsi128_si32(two(splat(lambda[i]), z));
  }
}

// Small means: the size of a normal number makes a uniform one.
int32_t by_sums(double lambda, float e) {
  const float u = float(((kExp[3] * lambda + kExp[2]) * lambda + kExp[1]) * lambda + kExp[0]) *
                  __builtin_fabsf(e);
  double term = 1, sum = 1;
  int32_t k = 0;
  while (!(u <= float(sum)) && ++k < kSums) {
    term = term * lambda / k;
    sum += term;
  }
  return k;
}

bool any_small(int32_t n, const double* lambda) {
  f64x2 least = splat(kSmall);
  int32_t i = 0;
  for (; n - i >= 4; i += 4)
    least = _mm_min_pd(_mm_min_pd(load(lambda + i), load(lambda + i + 2)), least);
  for (; i < n; ++i) least = _mm_min_pd(splat(lambda[i]), least);
  return _mm_movemask_pd(least < kSmall) != 0;
}

void block(int32_t n, int32_t* r, const double* lambda) {
  alignas(64) float e[kBlockLength + 4];
  uint16_t place[kBlockLength + 4];
  int32_t small = 0;
  if (any_small(n, lambda))
    for (int32_t i = 0; i < n; ++i) {
      place[small] = uint16_t(i);
      small += lambda[i] < kSmall;
    }
  for (int32_t k = 0; k < small; ++k) {
    const f32x4 z = _mm_castsi128_ps(_mm_loadu_si32(r + place[k]));
    e[k] = z[0] * 0.70710677f;
  }
  by_rows(n, r, lambda);
  if (small == 0) return;
  apply(Tables<float>::erf, small, e);
  for (int32_t k = 0; k < small; ++k) r[place[k]] = by_sums(lambda[place[k]], e[k]);
}

}  // namespace

}  // namespace ork::rua

ORK_EXPORT int32_t _ruaiRngPoissonV(int32_t, RuaStream* stream, int32_t n, int32_t* r,
                                    const double* lambda) {
  using namespace ork::rua;
  const int32_t status =
      _ruasRngGaussian(RUA_GAUSSIAN_ICDF, stream, n, reinterpret_cast<float*>(r), 0, 1);
  if (status < 0) return status;
  for (int32_t done = 0; done < n; done += kBlockLength)
    block(n - done < kBlockLength ? n - done : kBlockLength, r + done, lambda + done);
  return status;
}
