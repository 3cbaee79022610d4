#pragma once
// The SSE registers as GCC vector types, and the few operations that have no operator.
#include <pmmintrin.h>
#include <stdint.h>

namespace ork {

#define ORK_INLINE static inline __attribute__((always_inline))

typedef double f64x2 __attribute__((vector_size(16)));
typedef float f32x4 __attribute__((vector_size(16)));
typedef int64_t i64x2 __attribute__((vector_size(16)));
typedef uint64_t u64x2 __attribute__((vector_size(16)));
typedef int32_t i32x4 __attribute__((vector_size(16)));
typedef uint32_t u32x4 __attribute__((vector_size(16)));

// What an element type brings along. `bits` is its integer image.
template <class T>
struct simd;
template <>
struct simd<double> {
  using vec = f64x2;
  using ivec = u64x2;
  using bits = uint64_t;
  static constexpr int width = 2;
};
template <>
struct simd<float> {
  using vec = f32x4;
  using ivec = u32x4;
  using bits = uint32_t;
  static constexpr int width = 4;
};
template <class T>
using vec_of = typename simd<T>::vec;
template <class T>
using bits_of = typename simd<T>::bits;

// Reinterprets without conversion: as<u32x4>(x) of a vector, as<uint64_t>(x) of a scalar.
template <class To, class From>
ORK_INLINE To as(const From& x) {
  static_assert(sizeof(To) == sizeof(From));
  return __builtin_bit_cast(To, x);
}

ORK_INLINE f64x2 splat(double x) { return f64x2{x, x}; }
ORK_INLINE f32x4 splat(float x) { return f32x4{x, x, x, x}; }
ORK_INLINE u32x4 splat_u32(uint32_t x) { return u32x4{x, x, x, x}; }
ORK_INLINE u64x2 splat_u64(uint64_t x) { return u64x2{x, x}; }

// One element; arrays may stand at any address.
template <class T>
ORK_INLINE T read_one(const T* p) {
  T x;
  __builtin_memcpy(&x, p, sizeof x);
  return x;
}
template <class T>
ORK_INLINE void write_one(T* p, T x) {
  __builtin_memcpy(p, &x, sizeof x);
}

ORK_INLINE f64x2 load(const double* p) { return _mm_loadu_pd(p); }
ORK_INLINE f32x4 load(const float* p) { return _mm_loadu_ps(p); }
ORK_INLINE void store(double* p, f64x2 x) { _mm_storeu_pd(p, x); }
ORK_INLINE void store(float* p, f32x4 x) { _mm_storeu_ps(p, x); }
ORK_INLINE f64x2 load_aligned(const double* p) { return _mm_load_pd(p); }
ORK_INLINE f32x4 load_aligned(const float* p) { return _mm_load_ps(p); }
ORK_INLINE void store_aligned(double* p, f64x2 x) { _mm_store_pd(p, x); }
ORK_INLINE void store_aligned(float* p, f32x4 x) { _mm_store_ps(p, x); }

// The first `count` lanes (below the width) from memory, the others a repetition of the
// first; nothing is read beyond them.
ORK_INLINE f64x2 load_part(const double* p, int) { return splat(read_one(p)); }
ORK_INLINE f32x4 load_part(const float* p, int count) {
  f32x4 x = splat(read_one(p));
  if (count > 1) x[1] = read_one(p + 1);
  if (count > 2) x[2] = read_one(p + 2);
  return x;
}

// Table look-up: one number from each place, and rows of two, first members and second apart.
ORK_INLINE f64x2 gather(const double* p0, const double* p1) {
  return _mm_loadh_pd(_mm_load_sd(p0), p1);
}
ORK_INLINE void gather_pairs(const double* p0, const double* p1, f64x2& first, f64x2& second) {
  const f64x2 row0 = load_aligned(p0), row1 = load_aligned(p1);
  first = _mm_unpacklo_pd(row0, row1);
  second = _mm_unpackhi_pd(row0, row1);
}
ORK_INLINE void gather_pairs(const float* p0, const float* p1, const float* p2, const float* p3,
                             f32x4& first, f32x4& second) {
  const f32x4 none = {};
  const f32x4 row01 = _mm_loadh_pi(_mm_loadl_pi(none, (const __m64*)p0), (const __m64*)p1);
  const f32x4 row23 = _mm_loadh_pi(_mm_loadl_pi(none, (const __m64*)p2), (const __m64*)p3);
  first = _mm_shuffle_ps(row01, row23, 0x88);
  second = _mm_shuffle_ps(row01, row23, 0xDD);
}
// 16-bit word `place` of a vector, 0 to 7.
template <int place, class V>
ORK_INLINE int word(V x) {
  return _mm_extract_epi16(as<__m128i>(x), place);
}

// Bit operations on floating-point vectors.
ORK_INLINE f64x2 and_bits(f64x2 x, u64x2 m) { return as<f64x2>(as<u64x2>(x) & m); }
ORK_INLINE f32x4 and_bits(f32x4 x, u32x4 m) { return as<f32x4>(as<u32x4>(x) & m); }
ORK_INLINE f64x2 or_bits(f64x2 x, u64x2 m) { return as<f64x2>(as<u64x2>(x) | m); }
ORK_INLINE f32x4 or_bits(f32x4 x, u32x4 m) { return as<f32x4>(as<u32x4>(x) | m); }
ORK_INLINE f64x2 xor_bits(f64x2 x, u64x2 m) { return as<f64x2>(as<u64x2>(x) ^ m); }
ORK_INLINE f32x4 xor_bits(f32x4 x, u32x4 m) { return as<f32x4>(as<u32x4>(x) ^ m); }

inline constexpr u64x2 sign_f64x2 = {0x8000000000000000, 0x8000000000000000};
inline constexpr u32x4 sign_f32x4 = {0x80000000, 0x80000000, 0x80000000, 0x80000000};
ORK_INLINE f64x2 abs(f64x2 x) { return and_bits(x, ~sign_f64x2); }
ORK_INLINE f32x4 abs(f32x4 x) { return and_bits(x, ~sign_f32x4); }

// a/b as a constant: under -frounding-math an expression would divide when run.
template <int a, int b>
inline constexpr double ratio = double(a) / b;

// c0 + x (c1 + x (c2 + ...)), in that order of operations; of vectors or scalars.
template <class V, class T>
ORK_INLINE V horner(V x, T c0, T c1) {
  return c0 + x * c1;
}
template <class V, class T, class... Ts>
ORK_INLINE V horner(V x, T c0, T c1, Ts... rest) {
  return c0 + x * horner(x, c1, rest...);
}

ORK_INLINE f64x2 sqrt(f64x2 x) { return _mm_sqrt_pd(x); }
ORK_INLINE f32x4 sqrt(f32x4 x) { return _mm_sqrt_ps(x); }
ORK_INLINE f32x4 rcp_est(f32x4 x) { return _mm_rcp_ps(x); }      // relative error below 1.5 * 2^-12
ORK_INLINE f32x4 rsqrt_est(f32x4 x) { return _mm_rsqrt_ps(x); }  // relative error below 1.5 * 2^-12

// mask ? x : y, each mask lane all ones or all zeros.
template <class V, class M>
ORK_INLINE V select(M mask, V x, V y) {
  const u32x4 m = as<u32x4>(mask);
  return as<V>((as<u32x4>(x) & m) | (as<u32x4>(y) & ~m));
}

// The lanes' sign bits, lane 0 lowest. 64-bit lanes have theirs in the high word.
template <class T>
ORK_INLINE int sign_mask(u32x4 x) {
  if constexpr (sizeof(T) == 8)
    return _mm_movemask_pd(as<f64x2>(x));
  else
    return _mm_movemask_ps(as<f32x4>(x));
}

// Shuffles of 32-bit words: the high words of a double vector in both places, the low ones.
ORK_INLINE u32x4 high_words(f64x2 x) { return (u32x4)_mm_shuffle_epi32(as<__m128i>(x), 0xF5); }
ORK_INLINE u32x4 low_words(f64x2 x) { return (u32x4)_mm_shuffle_epi32(as<__m128i>(x), 0xA0); }

}  // namespace ork
