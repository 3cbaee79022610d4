// The non-deterministic generator: every number from the processor's RDRAND.
#include <cpuid.h>

#include "base/export.hpp"
#include "rua_sub_kernel/nondeterministic/rounds.hpp"
#include "rua_sub_kernel/service/stream.hpp"

using namespace ork::rua;

namespace {

constexpr uint32_t kDefaultRetries = 10;

struct Nondeterministic {
  int32_t seed;  // 0
  uint32_t retries;
};
static_assert(sizeof(RuaStream) + sizeof(Nondeterministic) == 24);

// The carry flag tells whether the word is random.
bool rdrand(uint32_t* word) {
  bool good;
  asm volatile("rdrand %0" : "=r"(*word), "=@ccc"(good));
  return good;
}

uint32_t retries(const RuaStream* stream) { return state<Nondeterministic>(stream).retries; }

}  // namespace

ORK_EXPORT int32_t __ruaCPUisRDRAND(void) {
  uint32_t eax, ebx, ecx, edx;
  return __get_cpuid(1, &eax, &ebx, &ecx, &edx) && (ecx & bit_RDRND) ? 1 : 0;
}

ORK_EXPORT int32_t __ruaBRngTRNGInitStream(int32_t method, RuaStream* stream, int32_t n,
                                           const uint32_t* params) {
  switch (method) {
    case kSeed:
      state<Nondeterministic>(stream) = {0, n >= 2 && params[1] ? params[1] : kDefaultRetries};
      return RUA_STATUS_OK;
    case kLeapfrog:
      return RUA_STATUS_NO_LEAPFROG;
    case kSkipAhead:
      return RUA_STATUS_NO_SKIPAHEAD;
    default:
      return RUA_STATUS_BAD_METHOD;
  }
}

ORK_EXPORT int32_t __ruaiBRngTRNG(RuaStream* stream, int32_t n, void* r) {
  if (!__ruaCPUisRDRAND()) return RUA_STATUS_NO_HARDWARE_RANDOM;
  return draw_integers(rdrand, retries(stream), n, static_cast<uint32_t*>(r));
}

ORK_EXPORT int32_t __ruasBRngTRNG(RuaStream* stream, int32_t n, float* r, float a, float b) {
  if (!__ruaCPUisRDRAND()) return RUA_STATUS_NO_HARDWARE_RANDOM;
  return draw_singles(rdrand, retries(stream), n, r, a, b);
}

ORK_EXPORT int32_t __ruadBRngTRNG(RuaStream* stream, int32_t n, double* r, double a, double b) {
  if (!__ruaCPUisRDRAND()) return RUA_STATUS_NO_HARDWARE_RANDOM;
  return draw_doubles(rdrand, retries(stream), n, r, a, b);
}
