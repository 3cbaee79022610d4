// Rejection of integers by rounds: as many candidates as outputs are missing, at most kPairs, made
// of a pair u, v of uniform numbers each in single precision; what is accepted keeps the order of
// its pairs.
#pragma once
#include "rua_kernel/service/rejection.hpp"

namespace ork::rua {

// round(m, pairs, y) gives m candidates, a multiple of four, their integers y; it may use the pairs
// u0 v0 u1 v1 .. as it likes. Outputs are those not below kLeast, so that a rejected candidate is a
// negative one. Pairs beyond the last are 1/2, 1/2, and their candidates of no account.
template <int32_t kPairs, int32_t kLeast, class Round>
inline int32_t accept_of_pairs(RuaStream* stream, int32_t n, int32_t* r, Round round) {
  alignas(64) float pairs[2 * kPairs];
  alignas(64) int32_t y[kPairs];
  for (int32_t* const end = r + n; r < end;) {
    const int32_t missing = int32_t(end - r), m = missing < kPairs ? missing : kPairs;
    const int32_t status = uniform(stream, 2 * m, pairs, 0.0f, 1.0f);
    if (status < 0) return status;
    const int32_t whole = fours(m);
    for (int32_t i = 2 * m; i < 2 * whole; ++i) pairs[i] = 0.5f;
    round(whole, pairs, y);
    // No branch: which are accepted cannot be foreseen. Nothing is written beyond the m-th place.
    for (int32_t i = 0; i < m; ++i) {
      *r = y[i];
      r += y[i] >= kLeast;
    }
  }
  return RUA_STATUS_OK;
}

// The same with round(m, u, v, y).
template <int32_t kPairs, int32_t kLeast, class Round>
inline int32_t accept_integers(RuaStream* stream, int32_t n, int32_t* r, Round round) {
  alignas(64) float u[kPairs], v[kPairs];
  return accept_of_pairs<kPairs, kLeast>(stream, n, r,
                                         [&](int32_t m, const float* pairs, int32_t* y) {
                                           split(m, pairs, u, v, [](auto x) { return x; });
                                           round(m, u, v, y);
                                         });
}

// The lanes that a mask of four bits names, and how many they are.
struct LanesOf {
  uint16_t lane[16][4];
  uint8_t count[16];
};
inline constexpr LanesOf kLanesOf = [] {
  LanesOf l = {};
  for (int mask = 0; mask < 16; ++mask)
    for (int lane = 0; lane < 4; ++lane)
      if (mask >> lane & 1) l.lane[mask][l.count[mask]++] = uint16_t(lane);
  return l;
}();

// Puts the places i + lane, ascending, where condition(i) has a lane set, behind one another;
// returns their number. m is a multiple of four; `places` has room for three beyond their number.
template <class Condition>
ORK_INLINE int32_t list_places(int32_t m, uint16_t* places, Condition condition) {
  uint16_t* end = places;
  for (int32_t i = 0; i < m; i += 4) {
    const int mask = _mm_movemask_ps(as<__m128>(lanes(condition(i))));
    const __m128i lane = _mm_loadl_epi64(reinterpret_cast<const __m128i*>(kLanesOf.lane[mask]));
    _mm_storel_epi64(reinterpret_cast<__m128i*>(end),
                     _mm_add_epi16(lane, _mm_set1_epi16(int16_t(i))));
    end += kLanesOf.count[mask];
  }
  return int32_t(end - places);
}

// Fills a list up to a multiple of four with its own first place; its new length.
inline int32_t fill_places(int32_t m, uint16_t* places) {
  const int32_t whole = fours(m);
  for (int32_t i = m; i < whole; ++i) places[i] = places[0];
  return whole;
}

// The pairs at four places.
ORK_INLINE void pairs_at(const float* pairs, const uint16_t* places, f32x4& u, f32x4& v) {
  gather_pairs(pairs + 2 * places[0], pairs + 2 * places[1], pairs + 2 * places[2],
               pairs + 2 * places[3], u, v);
}

}  // namespace ork::rua
