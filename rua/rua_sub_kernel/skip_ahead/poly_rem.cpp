// Powers of x modulo a polynomial over GF(2). The square of a polynomial has the same coefficients
// at twice their places, so that only the reduction costs: a modulus of few terms is divided out by
// folding, any other by a table of its multiples.
#include <string.h>

#include "base/export.hpp"
#include "base/scratch.hpp"
#include "rua_sub_kernel/service/words.hpp"
#include "rua_sub_kernel/skip_ahead/polynomial.hpp"

using namespace ork::rua;

namespace {

constexpr int32_t kFew = 512;        // terms up to which folding is quicker
constexpr int32_t kFold = 16;        // words that are folded at a time
constexpr int32_t kPad = 4 * kFold;  // words behind a square that the reductions may touch

// The low 16 bits at the even places.
uint32_t spread(uint32_t v) {
  v = (v | v << 8) & 0x00FF00FF;
  v = (v | v << 4) & 0x0F0F0F0F;
  v = (v | v << 2) & 0x33333333;
  return (v | v << 1) & 0x55555555;
}

__m128i load(const uint8_t* p) { return _mm_loadu_si128(reinterpret_cast<const __m128i*>(p)); }
void store(uint8_t* p, __m128i v) { _mm_storeu_si128(reinterpret_cast<__m128i*>(p), v); }

// A residue and, while it is reduced, its square.
class Power {
 public:
  int32_t prepare(int32_t degree, const uint64_t* modulus);
  void compute(uint64_t n);
  void residue(uint64_t* to) const { memcpy(to, w_.get(), size_t(degree_ + 63) / 64 * 8); }

 private:
  void make_table();
  void square();
  void reduce_by_terms();
  void reduce_by_folds();
  void reduce_by_table();
  void times_x();
  void flip(int32_t k) { w_[k / 32] ^= 1u << (k % 32); }
  bool bit(int32_t k) const { return w_[k / 32] >> (k % 32) & 1; }
  uint8_t* row(uint32_t v) { return table_.get() + v * stride_ + 16; }
  // 32 coefficients from place k on.
  static uint32_t window(const uint8_t* p, int32_t k) {
    uint64_t v;
    memcpy(&v, p + k / 8, sizeof v);
    return uint32_t(v >> (k % 8));
  }

  int32_t degree_ = 0, words_ = 0;  // words of 32 bits of the modulus
  int32_t terms_ = 0;               // below the leading one, or more than kFew
  int32_t exponents_[kFew];
  uint32_t stride_ = 0, length_ = 0;  // bytes from row to row, bytes of a sum of four rows
  uint32_t lead_[256];                // the leading 32 coefficients of each row
  ork::Scratch<uint32_t> w_, modulus_;
  ork::Scratch<uint8_t> table_;
};

int32_t Power::prepare(int32_t degree, const uint64_t* modulus) {
  degree_ = degree;
  words_ = degree / 32 + 1;
  w_ = ork::Scratch<uint32_t>(uint64_t(2 * words_ + kPad));
  modulus_ = ork::Scratch<uint32_t>(uint64_t(words_ + 1));
  if (!w_ || !modulus_) return RUA_STATUS_NO_MEMORY;
  memset(w_.get(), 0, size_t(2 * words_ + kPad) * 4);
  for (int32_t i = 0; i < words_; ++i) modulus_[i] = uint32_t(modulus[i / 2] >> (i % 2 * 32));
  terms_ = 0;
  for (int32_t k = 0; k < degree; ++k)
    if (modulus_[k / 32] >> (k % 32) & 1) {
      if (terms_ < kFew) exponents_[terms_] = k;
      ++terms_;
    }
  if (terms_ <= kFew) return RUA_STATUS_OK;
  length_ = (uint32_t(degree) / 8 + 5 + 15) / 16 * 16;
  stride_ = 16 + length_;
  table_ = ork::Scratch<uint8_t>(uint64_t{256} * stride_);
  if (!table_) return RUA_STATUS_NO_MEMORY;
  make_table();
  return RUA_STATUS_OK;
}

// Row v is the multiple of the modulus whose coefficients from its degree on are the bits of v,
// with zeros on both sides.
void Power::make_table() {
  memset(table_.get(), 0, size_t{256} * stride_);
  memcpy(row(1), modulus_.get(), size_t(words_) * 4);
  const auto add = [this](uint32_t v, uint32_t other) {
    for (uint32_t i = 0; i < length_; i += 16)
      store(row(v) + i, _mm_xor_si128(load(row(v) + i), load(row(other) + i)));
  };
  for (uint32_t v = 2; v < 256; ++v) {
    const uint32_t rest = v & (v - 1);
    if (rest != 0) {
      memcpy(row(v), row(rest), length_);
      add(v, v ^ rest);
      continue;
    }
    const uint8_t* half = row(v / 2);
    for (uint32_t i = 0; i < length_; ++i)
      row(v)[i] = uint8_t(half[i] << 1 | half[int(i) - 1] >> 7);
    if (row(v)[degree_ / 8] >> (degree_ % 8) & 1) add(v, 1);
  }
  for (uint32_t v = 0; v < 256; ++v) lead_[v] = window(row(v), degree_ - 24);
}

void Power::compute(uint64_t n) {
  int32_t rest = 0;  // bits of n that are still to come
  while (n >> rest >= uint32_t(degree_)) ++rest;
  flip(int32_t(n >> rest));
  while (rest-- > 0) {
    square();
    if (n >> rest & 1) times_x();
  }
}

void Power::square() {
  for (int32_t i = words_ - 1; i >= 0; --i) {
    const uint32_t v = w_[i];
    w_[2 * i] = spread(v & 0xFFFF);
    w_[2 * i + 1] = spread(v >> 16);
  }
  if (terms_ > kFew)
    reduce_by_table();
  else if (terms_ > 0 && degree_ - exponents_[terms_ - 1] >= 32 * kFold)
    reduce_by_folds();
  else
    reduce_by_terms();
}

// Any modulus, coefficient by coefficient.
void Power::reduce_by_terms() {
  for (int32_t k = 2 * degree_ - 2; k >= degree_; --k) {
    if (!bit(k)) continue;
    flip(k);
    for (int32_t i = 0; i < terms_; ++i) flip(k - degree_ + exponents_[i]);
  }
}

// From the top, kFold words at a time, fewer than the gap below the leading term: what stands at
// place `degree + base` and above is taken out, and added at base + e for every other exponent e.
void Power::reduce_by_folds() {
  alignas(16) uint32_t high[kFold + 8] = {};  // with zeros on both sides
  for (int32_t base = (degree_ / (32 * kFold) + 1) * 32 * kFold; base >= 0; base -= 32 * kFold) {
    const int32_t from = degree_ + base, shift = from % 32;
    uint32_t* at = w_.get() + from / 32;
    for (int32_t i = 0; i < kFold; ++i)
      high[4 + i] = uint32_t((uint64_t{at[i + 1]} << 32 | at[i]) >> shift);
    at[0] &= (1u << shift) - 1;
    memset(at + 1, 0, kFold * 4);
    for (int32_t k = 0; k < terms_; ++k) {
      const uint32_t to = uint32_t(base) + uint32_t(exponents_[k]);
      const __m128i left = _mm_cvtsi32_si128(int32_t(to % 32));
      const __m128i right = _mm_cvtsi32_si128(int32_t(32 - to % 32));  // 32 leaves nothing
      uint32_t* sum = w_.get() + to / 32;
      for (int32_t i = 0; i <= kFold; i += 4) {
        const __m128i v = _mm_xor_si128(_mm_sll_epi32(load4(high + 4 + i), left),
                                        _mm_srl_epi32(load4(high + 3 + i), right));
        store4(sum + i, _mm_xor_si128(load4(sum + i), v));
      }
    }
  }
}

// From the top, four bytes of the quotient at a time: each is what stands above the degree when
// the rows of those before it have been added, and only the leading coefficients of those are
// needed to know it.
void Power::reduce_by_table() {
  auto* bytes = reinterpret_cast<uint8_t*>(w_.get());
  for (int32_t k = ((degree_ - 1) / 32) * 4; k >= 0; k -= 4) {
    uint32_t v = window(bytes, degree_ + 8 * k);
    const uint32_t v3 = v >> 24;
    v ^= lead_[v3];
    const uint32_t v2 = v >> 16 & 255;
    v ^= lead_[v2] >> 8;
    const uint32_t v1 = v >> 8 & 255;
    v ^= lead_[v1] >> 16;
    const uint8_t *r0 = row(v & 255), *r1 = row(v1) - 1, *r2 = row(v2) - 2, *r3 = row(v3) - 3;
    uint8_t* sum = bytes + k;
    for (uint32_t i = 0; i < length_; i += 16) {
      const __m128i low = _mm_xor_si128(load(r0 + i), load(r1 + i));
      const __m128i high = _mm_xor_si128(load(r2 + i), load(r3 + i));
      store(sum + i, _mm_xor_si128(load(sum + i), _mm_xor_si128(low, high)));
    }
  }
}

void Power::times_x() {
  for (int32_t i = words_ - 1; i > 0; --i) w_[i] = w_[i] << 1 | w_[i - 1] >> 31;
  w_[0] <<= 1;
  if (bit(degree_))
    for (int32_t i = 0; i < words_; ++i) w_[i] ^= modulus_[i];
}

}  // namespace

ORK_EXPORT int32_t x_pow_nskip_mod_cpoly(uint64_t nskip, int32_t degree, const uint64_t* cpoly,
                                         uint64_t* result) {
  Power power;
  const int32_t status = power.prepare(degree, cpoly);
  if (status < 0) return status;
  power.compute(nskip);
  power.residue(result);
  return RUA_STATUS_OK;
}

ORK_EXPORT int32_t __ruaPolyRem(uint64_t nskip, int32_t degree, int32_t terms,
                                const int32_t* exponents, int32_t words, uint32_t* result) {
  memset(result, 0, size_t(words) * 4);
  if (nskip < uint64_t(degree)) {
    result[nskip / 32] |= 1u << (nskip % 32);
    return RUA_STATUS_OK;
  }
  const uint32_t dense = uint32_t(degree + 64) >> 6;
  ork::Scratch<uint64_t> work(2 * dense);
  if (!work) return RUA_STATUS_NO_MEMORY;
  uint64_t *modulus = work.get(), *residue = modulus + dense;
  memset(modulus, 0, size_t(dense) * 2 * 8);
  for (int32_t i = 0; i < terms; ++i)
    modulus[exponents[i] / 64] ^= uint64_t{1} << (exponents[i] % 64);
  const int32_t status = x_pow_nskip_mod_cpoly(nskip, degree, modulus, residue);
  if (status == RUA_STATUS_OK)
    for (int32_t i = 0; i < words && i < int32_t(2 * dense); ++i)
      result[i] = uint32_t(residue[i / 2] >> (i % 2 * 32));
  return status;
}
