#pragma once
// Characteristic polynomials of the MT2203 recurrence over GF(2), and the test that one is
// irreducible. Native 64-bit code with carry-less multiplication: g++ -O3 -mpclmul.
#include <emmintrin.h>
#include <wmmintrin.h>

#include <array>
#include <cstdint>
#include <vector>

namespace mt2203 {

constexpr int kDegree = 2203;  // 69 x 32 - 5, a Mersenne exponent
constexpr int kWords = 35;     // 64-bit words of a residue
constexpr int kN = 69, kM = 34, kR = 5, kW = 32;

using Poly = std::array<uint64_t, kWords>;

inline void flip(Poly& p, int e) { p[e >> 6] ^= uint64_t{1} << (e & 63); }
inline bool coefficient(const Poly& p, int e) { return p[e >> 6] >> (e & 63) & 1; }

// p x (t^s + t^r), exact: the degree stays within kWords words.
inline Poly times_binomial(const Poly& p, int s, int r) {
  Poly out{};
  for (int shift : {s, r})
    for (int i = kWords - 1; i >= 0; --i) {
      int j = i + shift / 64, b = shift % 64;
      if (j < kWords) out[j] ^= p[i] << b;
      if (b != 0 && j + 1 < kWords) out[j + 1] ^= p[i] >> (64 - b);
    }
  return out;
}

// The characteristic polynomial is affine in the bits of the twist word a. With
// U = t^69 + t^34 and L = t^68 + t^33 (whole words, and words that straddle the mask):
//   phi = U^27 L^5 + sum_{j < 5} a_j U^27 L^(4 - j) + sum_{5 <= j < 32} a_j U^(31 - j).
struct Family {
  Poly leading{};
  std::array<Poly, kW> bit{};

  Family() {
    Poly p{};
    flip(p, 0);
    for (int j = kW - 1; j >= kR; --j) {
      bit[j] = p;
      p = times_binomial(p, kN, kM);
    }
    for (int j = kR - 1; j >= 0; --j) {
      bit[j] = p;
      p = times_binomial(p, kN - 1, kM - 1);
    }
    leading = p;
  }

  Poly characteristic(uint32_t a) const {
    Poly f = leading;
    for (int j = 0; j < kW; ++j)
      if (a >> j & 1)
        for (int i = 0; i < kWords; ++i) f[i] ^= bit[j][i];
    return f;
  }
};

// Arithmetic modulo a fixed f of degree 2203, by Barrett's method: the quotient is the high half
// of (high half of the product) x floor(t^4406 / f).
class Modulo {
 public:
  explicit Modulo(const Poly& f) : f_(f), inverse_(reciprocal(f)) {}

  void square(Poly& x) const {
    alignas(16) uint64_t sq[2 * kWords + 2] = {};
    for (int i = 0; i < kWords; ++i) {
      __m128i v = _mm_set_epi64x(0, static_cast<long long>(x[i]));
      _mm_store_si128(reinterpret_cast<__m128i*>(sq + 2 * i), _mm_clmulepi64_si128(v, v, 0));
    }
    reduce(sq, x);
  }

  void multiply(Poly& x, const Poly& y) const {
    alignas(16) uint64_t prod[2 * kWords + 2] = {};
    for (int c = 0; c < 2 * kWords - 1; ++c) column(x, y, c, prod);
    reduce(prod, x);
  }

 private:
  static constexpr int kTop = kDegree / 64, kShift = kDegree % 64;

  // x = sq mod f.
  void reduce(const uint64_t (&sq)[2 * kWords + 2], Poly& x) const {
    // h = floor(sq / t^2203), below t^2203.
    Poly h;
    for (int i = 0; i < kWords; ++i)
      h[i] = sq[i + kTop] >> kShift | sq[i + kTop + 1] << (64 - kShift);
    // h x inverse, of which the words that hold t^2203 and above are wanted.
    alignas(16) uint64_t prod[2 * kWords + 2] = {};
    for (int c = kTop - 1; c < 2 * kWords - 1; ++c) column(h, inverse_, c, prod);
    Poly q;
    for (int i = 0; i < kWords; ++i)
      q[i] = prod[i + kTop] >> kShift | prod[i + kTop + 1] << (64 - kShift);
    // x = sq + q f, of which only the words up to t^2202 are wanted.
    alignas(16) uint64_t low[kWords + 2] = {};
    for (int c = 0; c < kWords; ++c) column(q, f_, c, low);
    for (int i = 0; i < kWords; ++i) x[i] = sq[i] ^ low[i];
    x[kWords - 1] &= (uint64_t{1} << kShift) - 1;
  }

  // Adds the products a[i] b[c - i] at word c.
  static void column(const Poly& a, const Poly& b, int c, uint64_t* out) {
    __m128i sum = _mm_setzero_si128();
    int first = c < kWords ? 0 : c - kWords + 1, last = c < kWords ? c : kWords - 1;
    for (int i = first; i <= last; ++i)
      sum = _mm_xor_si128(
          sum,
          _mm_clmulepi64_si128(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(&a[i])),
                               _mm_loadl_epi64(reinterpret_cast<const __m128i*>(&b[c - i])), 0));
    __m128i* at = reinterpret_cast<__m128i*>(out + c);
    _mm_storeu_si128(at, _mm_xor_si128(_mm_loadu_si128(at), sum));
  }

  // floor(t^4406 / f), by long division.
  static Poly reciprocal(const Poly& f) {
    uint64_t rest[2 * kWords + 1] = {};
    rest[2 * kDegree / 64] = uint64_t{1} << (2 * kDegree % 64);
    Poly q{};
    for (int e = kDegree; e >= 0; --e) {
      int at = e + kDegree;
      if (!(rest[at >> 6] >> (at & 63) & 1)) continue;
      flip(q, e);
      int w = e / 64, b = e % 64;
      for (int i = 0; i < kWords; ++i) {
        rest[i + w] ^= f[i] << b;
        if (b != 0) rest[i + w + 1] ^= f[i] >> (64 - b);
      }
    }
    return q;
  }

  Poly f_, inverse_;
};

inline int degree(const Poly& p) {
  for (int i = kWords - 1; i >= 0; --i)
    if (p[i] != 0) return 64 * i + 63 - __builtin_clzll(p[i]);
  return -1;
}

inline bool coprime(Poly a, Poly b) {
  int da = degree(a), db = degree(b);
  while (db > 0) {
    for (; da >= db; da = degree(a)) {
      int w = (da - db) / 64, s = (da - db) % 64;
      for (int i = kWords - 1; i >= w; --i) {
        uint64_t v = b[i - w] << s;
        if (s != 0 && i > w) v |= b[i - w - 1] >> (64 - s);
        a[i] ^= v;
      }
    }
    std::swap(a, b);
    std::swap(da, db);
  }
  return db == 0;
}

// f of degree 2203 is irreducible when it has no root in GF(2) and divides t^(2^2203) - t: its
// factors then have degree 2203 or 1, 2203 being a prime. As 2^2203 - 1 is a prime too, it is
// primitive.
inline bool irreducible(const Poly& f) {
  constexpr int kSmall = 100;
  int terms = 0;
  for (uint64_t w : f) terms += __builtin_popcountll(w);
  if (!coefficient(f, 0) || terms % 2 == 0 || !coefficient(f, kDegree)) return false;
  Modulo mod(f);
  Poly x{};
  flip(x, 1);
  Poly t = x;
  // On the way, the product of the t^(2^d) - t shows most of the factors of small degree, which
  // saves the rest of the way.
  Poly product{};
  flip(product, 0);
  for (int d = 1; d <= kDegree; ++d) {
    mod.square(x);
    if (d > kSmall) continue;
    Poly difference = x;
    for (int i = 0; i < kWords; ++i) difference[i] ^= t[i];
    mod.multiply(product, difference);
    if (d == kSmall && !coprime(f, product)) return false;
  }
  return x == t;
}

}  // namespace mt2203
