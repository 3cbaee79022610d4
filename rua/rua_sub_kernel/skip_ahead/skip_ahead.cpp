// Skip-ahead of a generator whose step F is linear over GF(2): with phi its characteristic
// polynomial, F^n = g(F), g = x^n mod phi (H. Haramoto, M. Matsumoto, T. Nishimura, F. Panneton,
// P. L'Ecuyer, "Efficient jump ahead for F2-linear random number generators", 2008). The generator
// comes as operations on records.
#include <string.h>

#include "base/export.hpp"
#include "base/scratch.hpp"
#include "ork/rua_skip_ahead.h"

namespace {

// g by its coefficients.
struct Polynomial {
  const uint32_t* w;
  bool operator[](int32_t k) const { return w[k / 32] >> (k % 32) & 1; }
  int32_t top(int32_t degree) const {
    int32_t k = degree - 1;
    while (k > 0 && !(*this)[k]) --k;
    return k;
  }
};

// A block of records, each as large as a stream.
class Records {
 public:
  Records(uint32_t count, int32_t bytes)
      : block_(uint64_t(count) * uint32_t(bytes)), bytes_(bytes) {}
  explicit operator bool() const { return bool(block_); }
  RuaStream* operator[](uint32_t i) const {
    return reinterpret_cast<RuaStream*>(block_.get() + size_t(i) * uint32_t(bytes_));
  }

 private:
  ork::Scratch<uint8_t> block_;
  int32_t bytes_;
};

}  // namespace

// Without memory the stream is as it was: most of it is taken before the stream is touched, and for
// what the power needs a copy is kept. One step is left to the end: it clears what is no part of
// the state (31 bits of MT19937's oldest word), on which phi(F) need not be 0.

ORK_EXPORT int32_t __rua_SkipAheadHorner(RuaStream* stream, RuaZeroState, RuaAddState AddState,
                                         RuaCopyState1 CopyState1, RuaUpdateS UpdateS,
                                         RuaCopyState2 CopyState2, RuaProcessIdx ProcessIdx,
                                         uint64_t nskip, int32_t words, int32_t degree,
                                         int32_t stateBytes, int32_t terms,
                                         const int32_t* exponents) {
  if (nskip == 0) return RUA_STATUS_OK;
  ork::Scratch<uint32_t> g(uint32_t(words) * 2);
  const Records sum(1, stateBytes);
  if (!g || !sum) return RUA_STATUS_NO_MEMORY;
  memcpy(sum[0], stream, uint32_t(stateBytes));
  int32_t flag = 0;
  if (ProcessIdx(stream, &nskip, &flag) == 0) return RUA_STATUS_OK;
  if (__ruaPolyRem(nskip - 1, degree, terms, exponents, words, g.get()) < 0) {
    memcpy(stream, sum[0], uint32_t(stateBytes));
    return RUA_STATUS_NO_MEMORY;
  }
  const Polynomial p{g.get()};
  int32_t k = p.top(degree);
  CopyState1(sum[0], stream);
  while (k-- > 0) {
    UpdateS(sum[0]);
    if (p[k]) AddState(sum[0], stream);
  }
  UpdateS(sum[0]);
  CopyState2(stream, sum[0], flag);
  return RUA_STATUS_OK;
}

// Windows of 8 coefficients that begin with a 1: a table has F^7 S plus every sum of F^0 S to
// F^6 S, in the order of the Gray code one more addition each.
ORK_EXPORT int32_t __rua_SkipAheadSWin(RuaStream* stream, RuaZeroState ZeroState,
                                       RuaAddState AddState, RuaCopyState1 CopyState1,
                                       RuaUpdateS UpdateS, RuaCopyState2 CopyState2,
                                       RuaProcessIdx ProcessIdx, uint64_t nskip, int32_t words,
                                       int32_t degree, int32_t stateBytes, int32_t terms,
                                       const int32_t* exponents) {
  if (nskip == 0) return RUA_STATUS_OK;
  constexpr uint32_t kTable = 128;
  ork::Scratch<uint32_t> g(uint32_t(words) * 2);
  const Records table(kTable, stateBytes), sum(1, stateBytes), power(1, stateBytes);
  if (!g || !table || !sum || !power) return RUA_STATUS_NO_MEMORY;
  memcpy(sum[0], stream, uint32_t(stateBytes));
  int32_t flag = 0;
  if (ProcessIdx(stream, &nskip, &flag) == 0) return RUA_STATUS_OK;
  if (__ruaPolyRem(nskip - 1, degree, terms, exponents, words, g.get()) < 0) {
    memcpy(stream, sum[0], uint32_t(stateBytes));
    return RUA_STATUS_NO_MEMORY;
  }

  const auto raise = [&](RuaStream* to, uint32_t steps) {
    CopyState1(to, stream);
    while (steps-- > 0) UpdateS(to);
  };
  raise(table[0], 7);
  for (uint32_t i = 1; i < kTable; ++i) {
    const uint32_t code = i ^ i >> 1, before = (i - 1) ^ (i - 1) >> 1;
    raise(power[0], uint32_t(__builtin_ctz(code ^ before)));
    CopyState1(table[code], table[before]);
    AddState(table[code], power[0]);
  }
  const Polynomial p{g.get()};
  ZeroState(sum[0]);
  int32_t k = p.top(degree);
  while (k >= 7) {
    int32_t steps = 1;
    if (p[k]) {
      steps = 8;
      uint32_t v = 0;
      for (int32_t i = 1; i < 8; ++i) v = v << 1 | uint32_t(p[k - i]);
      for (int32_t i = 0; i < 8; ++i) UpdateS(sum[0]);
      AddState(sum[0], table[v]);
    } else {
      UpdateS(sum[0]);
    }
    k -= steps;
  }
  for (; k >= 0; --k) {
    UpdateS(sum[0]);
    if (p[k]) AddState(sum[0], stream);
  }
  UpdateS(sum[0]);
  CopyState2(stream, sum[0], flag);
  return RUA_STATUS_OK;
}
