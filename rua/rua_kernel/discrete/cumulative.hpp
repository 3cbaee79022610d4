// Integers by a table of sums of probabilities: the answer to a uniform number u in double.
//
// The search begins at the mode M. From M on an answer is the first k with u below the k-th sum;
// before M it is the place behind the last sum that is below u. So a number that is equal to a sum
// goes up from M on and stays before it. How the answer is found is free: short calls search from
// the mode; long ones cut [0, 1) into 256 parts and keep for each the answer at its lower end,
// from where two comparisons without a branch are nearly always enough.
#pragma once
#include "base/vec.hpp"
#include "rua_kernel/service/uniform.hpp"

namespace ork::rua {

// Sums of the probabilities of 0, 1, .. size - 1; mode below size.
struct Cumulative {
  const double* sums;
  int32_t size, mode;
};

// Behind the end of a table: sums go on with probabilities next(p, k), p being the one of k - 1,
// until they exceed u or do not change any more; that k is the answer. It also ends on NaNs.
template <class Next>
inline int32_t go_on(double sum, double p, int32_t k, double u, Next next) {
  for (;; ++k) {
    p = next(p, k);
    const double longer = sum + p;
    if (longer > u || !(longer > sum)) return k;
    sum = longer;
  }
}

// The answer from the table, or its size if u is not below the last sum.
inline int32_t search_from_mode(const Cumulative& t, double u) {
  int32_t k = t.mode;
  if (u < t.sums[k]) {
    while (k > 0 && !(t.sums[k - 1] < u)) --k;
    return u < t.sums[0] ? 0 : k;
  }
  do ++k;
  while (k < t.size && !(u < t.sums[k]));
  return k;
}

// A table in the form for long calls.
class Guide {
 public:
  static constexpr int32_t kParts = 256, kMost = 254;  // sums

  static bool serves(const Cumulative& t, int32_t n) { return t.size <= kMost && n >= 128; }

  explicit Guide(const Cumulative& t) : size_(t.size) {
    // An answer counts the borders that are at or below u. A sum before the mode counts when it is
    // below u: its border is the next number.
    alignas(16) uint8_t borders_in[kParts + 16] = {};
    for (int32_t k = 0; k < size_; ++k) {
      const double border = k < t.mode ? above(t.sums[k]) : t.sums[k];
      border_[k] = border;
      const double scaled = border * kParts;
      const uint32_t whole = uint32_t(int32_t(scaled)), part = whole + (scaled > whole);
      ++borders_in[part <= kParts ? part : kParts + 1];
    }
    border_[size_] = __builtin_inf();
    // Borders up to the lower end of each part.
    __m128i before = _mm_setzero_si128();
    for (int i = 0; i < kParts + 16; i += 16) {
      __m128i x = _mm_load_si128(reinterpret_cast<const __m128i*>(borders_in + i));
      x = _mm_add_epi8(x, _mm_slli_si128(x, 1));
      x = _mm_add_epi8(x, _mm_slli_si128(x, 2));
      x = _mm_add_epi8(x, _mm_slli_si128(x, 4));
      x = _mm_add_epi8(x, _mm_slli_si128(x, 8));
      x = _mm_add_epi8(x, before);
      _mm_store_si128(reinterpret_cast<__m128i*>(first_ + i), x);
      before = _mm_set1_epi8(char(_mm_extract_epi16(x, 7) >> 8));
    }
  }

  inline __attribute__((always_inline)) int32_t answer(double u) const {
    // What a generator may give outside [0, 1] stays within the arrays.
    uint32_t k = first_[uint32_t(int32_t(u * kParts)) % (2 * kParts)];
    k += border_[k] <= u;
    k += border_[k] <= u;
    while (__builtin_expect(border_[k] <= u, 0)) ++k;
    return int32_t(k);
  }

 private:
  int32_t size_;
  alignas(16) uint8_t first_[2 * kParts] = {};
  double border_[kMost + 1];

  // The next number above a sum, which is not negative.
  static double above(double x) { return as<double>(as<uint64_t>(x) + 1); }
};

// r[0..n-1] from uniform numbers, one each, drawn kBatch at a time. beyond(u) is the answer where u
// is not below the last sum.
template <int32_t kBatch, class Beyond>
inline int32_t by_table(RuaStream* stream, int32_t n, int32_t* r, const Cumulative& t,
                        Beyond beyond) {
  alignas(64) double u[kBatch];
  const auto batches = [&](auto answer) -> int32_t {
    for (int32_t done = 0; done < n;) {
      const int32_t m = n - done < kBatch ? n - done : kBatch;
      const int32_t status = uniform(stream, m, u, 0.0, 1.0);
      if (status < 0) return status;
      for (int32_t i = 0; i < m; ++i) {
        const int32_t k = answer(u[i]);
        r[done + i] = __builtin_expect(k == t.size, 0) ? beyond(u[i]) : k;
      }
      done += m;
    }
    return RUA_STATUS_OK;
  };
  if (!Guide::serves(t, n)) return batches([&](double x) { return search_from_mode(t, x); });
  const Guide guide(t);
  return batches([&](double x) { return guide.answer(x); });
}

}  // namespace ork::rua
