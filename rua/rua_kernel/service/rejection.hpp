// Rejection by rounds: as many candidates as numbers are missing, at most kRound, of pairs of
// uniform numbers each; accepted ones keep their order.
#pragma once
#include "rua_kernel/service/elementwise.hpp"
#include "rua_kernel/service/uniform.hpp"

namespace ork::rua {

constexpr int32_t kRound = 512;

// Candidates are computed by fours, so that no pass has a rest.
constexpr int32_t fours(int32_t m) { return (m + 3) & ~3; }

// What a candidate makes of a vector's lanes: its values, and all ones where they are accepted.
template <class R>
struct Candidates {
  vec_of<R> value;
  u32x4 accepted;
};
ORK_INLINE Candidates<double> candidates(f64x2 value, u32x4 accepted) { return {value, accepted}; }
ORK_INLINE Candidates<float> candidates(f32x4 value, u32x4 accepted) { return {value, accepted}; }

// A comparison's lanes. They have to be combined in this form: the compiler takes 64-bit masks
// apart.
template <class M>
ORK_INLINE u32x4 lanes(M comparison) {
  return as<u32x4>(comparison);
}

// Puts the accepted of m candidates behind one another from r on and returns their number.
// candidate(i) computes those from i on. Nothing is written beyond r[m - 1]; behind the accepted
// may stand rejected ones.
template <class R, class Candidate>
ORK_INLINE int32_t accept(int32_t m, R* r, Candidate candidate) {
  constexpr int w = simd<R>::width;
  R* const begin = r;
  // No branch: which lanes are accepted cannot be foreseen.
  const auto put = [&r](const Candidates<R>& c, int lanes) __attribute__((always_inline)) {
    const int mask = sign_mask<R>(c.accepted);
#pragma GCC unroll 4
    for (int lane = 0; lane < lanes; ++lane) {
      *r = c.value[lane];
      r += mask >> lane & 1;
    }
  };
  int32_t i = 0;
  for (; m - i >= w; i += w) put(candidate(i), w);
  if (i < m) put(candidate(i), m - i);
  return int32_t(r - begin);
}

// So many rounds in a row without a number happen to no healthy parameters, which accept a
// candidate in five at least: those whose test cancels to nothing or overflows accept none, ever.
constexpr int kIdleRounds = 1000;

// Candidates of uniform pairs. BAD_ARGUMENT where kIdleRounds in a row accept none. round(m, first,
// second, scratch) computes with the arrays, fours(m) long, and returns the function for accept;
// second stands fours(m) behind first.
template <class R, class Round>
ORK_INLINE int32_t accept_in_rounds(RuaStream* stream, int32_t n, R* r, Round round) {
  alignas(64) R u[2 * kRound], pairs[2 * kRound];
  for (int32_t done = 0, idle = 0; done < n;) {
    const int32_t m = n - done < kRound ? n - done : kRound, whole = fours(m);
    const int32_t status =
        idle < kIdleRounds ? uniform(stream, 2 * m, u, 0, 1) : int32_t(RUA_STATUS_BAD_ARGUMENT);
    if (status < 0) return status;
    // Lanes beyond the last pair get a number that nothing happens to.
    for (int32_t i = 2 * m; i < 2 * whole; ++i) u[i] = R(0.5);
    R *const first = pairs, *const second = pairs + whole;
    split(whole, u, first, second, [](auto x) { return x; });
    const int32_t accepted = accept(m, r + done, round(whole, first, second, u));
    idle = accepted > 0 ? 0 : idle + 1;
    done += accepted;
  }
  return RUA_STATUS_OK;
}

// f(i) for the vectors of n values, a multiple of four.
template <class R, class F>
ORK_INLINE void vectors(int32_t n, F f) {
  for (int32_t i = 0; i < n; i += 4)
#pragma GCC unroll 2
    for (int32_t k = i; k < i + 4; k += simd<R>::width) f(k);
}

}  // namespace ork::rua
