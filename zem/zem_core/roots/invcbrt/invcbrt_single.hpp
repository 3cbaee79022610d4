#pragma once
#include "roots/cbrt_single.hpp"
#include "roots/invcbrt/invcbrt.hpp"

namespace ork {

// {(2^rem c_j)^(-1/3), 1 / c_j}
alignas(16) inline constexpr CbrtPair<double> invcbrt_pairs[96] = {
#include "roots/invcbrt/pairs.inc"
};
alignas(16) inline constexpr CbrtPair<float> invcbrt_pairs_single[96] = {
#include "roots/invcbrt/pairs_single.inc"
};
// Not converted from the doubles here: under -frounding-math the compiler lays those down as
// doubles in a constant array of floats.
inline constexpr float invcbrt_series_single[3] = {
#include "roots/invcbrt/series_single.inc"
};

inline constexpr char sinvcbrt_name[] = "vsInvCbrt";

// Single reciprocal cube root, HA: in double; the terms left out are below 2^-32. Fast: normal x.
struct InvCbrtHaS : Core<float> {
  static constexpr auto& name = sinvcbrt_name;
  static constexpr bool inverse = true;
  static constexpr int vectors = 1;

  ORK_INLINE f32x4 eval(f32x4 x, u32x4& rare) {
    rare |= not_normal(x);
    return cbrt_in_double<4>(CbrtReducedS::of<inverse>(x), invcbrt_pairs, invcbrt_series);
  }
  static int special(const float* x, float* r) { return invcbrt_scalar<InvCbrtHaS>(x, r); }
};

// LA and EP: S T + (S T r) P(r) in single throughout, with 3 and 1 terms; those left out are
// below 2^-26 and 2^-14.
template <Level level>
struct InvCbrtS : Core<float> {
  static constexpr auto& name = sinvcbrt_name;
  static constexpr bool inverse = true;
  static constexpr int vectors = 1;
  static constexpr int terms = level == Level::la ? 3 : 1;

  ORK_INLINE f32x4 eval(f32x4 x, u32x4& rare) {
    rare |= not_normal(x);
    const auto [difference, s, row] = CbrtReducedS::of<inverse>(x);
    const auto two_rows = [](unsigned i, unsigned k) {
      const auto* table = invcbrt_pairs_single;
      f32x4 v = _mm_loadl_pi(f32x4{}, (const __m64*)(table + i));
      return (f32x4)_mm_loadh_pi(v, (const __m64*)(table + k));
    };
    const f32x4 low = two_rows(row[0], row[1]), high = two_rows(row[2], row[3]);
    const f32x4 t = s * (f32x4)_mm_shuffle_ps(low, high, 0x88);
    const f32x4 r = difference * (f32x4)_mm_shuffle_ps(low, high, 0xDD);
    return t + (t * r) * horner<terms>(r, invcbrt_series_single);
  }
  static int special(const float* x, float* r) { return invcbrt_scalar<InvCbrtS>(x, r); }
};

}  // namespace ork
