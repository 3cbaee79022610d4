// R250: w(n) = w(n-250) ^ w(n-103), from S. Kirkpatrick, E. Stoll, "A very fast shift-register
// sequence random number generator", 1981. The words stand in a ring; a new word replaces the
// oldest.
#include <algorithm>
#include <cstring>

#include "base/export.hpp"
#include "rua_sub_kernel/service/stream.hpp"
#include "rua_sub_kernel/service/words.hpp"

using namespace ork::rua;

namespace {

constexpr uint32_t kLag = 250, kTap = 103;
constexpr double kStep = 0x1p-32;

struct R250 {
  uint32_t w[kLag];
  uint32_t i;  // the oldest word
  uint32_t j;  // the word kTap after it
};
static_assert(sizeof(RuaStream) + sizeof(R250) == 1024);

void seed(R250& s, int32_t n, const uint32_t* params) {
  s.i = 0;
  s.j = kTap;
  if (n >= int32_t{kLag}) {
    std::memcpy(s.w, params, sizeof s.w);
    return;
  }
  uint32_t x = n > 0 && params[0] != 0 ? params[0] : 1;
  for (uint32_t& w : s.w) w = x *= 69069;
  // 32 words whose leading bits form a triangle make the bits linearly independent.
  for (uint32_t b = 0; b < 32; ++b) {
    uint32_t& w = s.w[3 + 7 * b];
    w = (w & 0xFFFFFFFFu >> b) | 0x80000000u >> b;
  }
}

// The ring turned so that the oldest word comes first.
void unroll(R250& s) {
  if (s.i == 0) return;
  uint32_t old[kLag];
  std::memcpy(old, s.w, sizeof old);
  std::memcpy(s.w, old + s.i, (kLag - s.i) * 4);
  std::memcpy(s.w + (kLag - s.i), old, s.i * 4);
  s.i = 0;
  s.j = kTap;
}

template <class Output>
int32_t generate(R250& s, int32_t n, Output out) {
  const bool whole = n >= int32_t{kLag};  // then the state is left unrolled
  if (s.i >= kLag) s.i = 0;               // only in a state that was not made here
  if (s.j >= kLag) s.j = (s.i + kTap) % kLag;
  while (n > 0) {
    // As far as neither place wraps. Four words at a time: w[j] was renewed 147 steps ago.
    const uint32_t run = std::min({uint32_t(n), kLag - s.i, kLag - s.j});
    uint32_t *w = s.w + s.i, *v = s.w + s.j, k = 0;
    for (; k + 4 <= run; k += 4) {
      const __m128i z = _mm_xor_si128(load4(w + k), load4(v + k));
      store4(w + k, z);
      out.put4(z);
    }
    for (; k < run; ++k) out.put(w[k] ^= v[k]);
    n -= run;
    if ((s.i += run) == kLag) s.i = 0;
    if ((s.j += run) == kLag) s.j = 0;
  }
  if (whole) unroll(s);
  return RUA_STATUS_OK;
}

}  // namespace

ORK_EXPORT int32_t __ruaBRngR250InitStream(int32_t method, RuaStream* stream, int32_t n,
                                           const uint32_t* params) {
  switch (method) {
    case kSeed:
      seed(state<R250>(stream), n, params);
      return RUA_STATUS_OK;
    case kLeapfrog:
      return RUA_STATUS_NO_LEAPFROG;
    case kSkipAhead:
      return RUA_STATUS_NO_SKIPAHEAD;
    default:
      return RUA_STATUS_BAD_METHOD;
  }
}

ORK_GENERATE(R250, generate(state<R250>(stream), n, WordsAsFloats(r, a, b, kStep)),
             generate(state<R250>(stream), n, WordsAsDoubles(r, a, b, kStep)),
             generate(state<R250>(stream), n, WordsAsIntegers{r}))
