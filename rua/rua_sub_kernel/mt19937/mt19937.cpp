// MT19937: the Mersenne Twister of period 2^19937 - 1.
#include "base/export.hpp"
#include "rua_sub_kernel/mt19937/mersenne_twister.hpp"
#include "rua_sub_kernel/service/stream.hpp"
#include "rua_sub_kernel/skip_ahead/ring.hpp"

using namespace ork::rua;

namespace {

constexpr uint32_t kN = 624, kM = 397, kLower = 0x7FFFFFFF, kMatrixA = 0x9908B0DF;
constexpr Tempering<11> kTempering{0x9D2C5680, 0xEFC60000};
constexpr double kStep = 0x1p-32;

using Mt19937 = Ring;  // index kN: the block is used up
static_assert(kN == kRingWords && sizeof(RuaStream) + sizeof(Mt19937) == 2516);

template <class Output>
int32_t generate(RuaStream* stream, int32_t n, Output out) {
  Mt19937& s = state<Mt19937>(stream);
  emit<kM, kLower>(s.w, s.index, kMatrixA, kTempering, n, out);
  return RUA_STATUS_OK;
}

constexpr int32_t _rua_mt19937_poly[] = {
#include "rua_sub_kernel/mt19937/mt19937_poly.inc"
};
constexpr Characteristic kCharacteristic{_rua_mt19937_poly,
                                         sizeof _rua_mt19937_poly / sizeof _rua_mt19937_poly[0]};

struct Step {
  static constexpr uint32_t kUnit = 1;
  static void step(uint32_t* w, uint32_t k) {
    const auto at = [w](uint32_t i) { return w[i < kN ? i : i - kN]; };
    const uint32_t next = at(k + 1), y = (w[k] & ~kLower) | (next & kLower);
    w[k] = at(k + kM) ^ y >> 1 ^ (next & 1 ? kMatrixA : 0);
  }
  static void round(uint32_t (&w)[kN]) { rewrite_block<kN, kM, kLower>(w, kMatrixA); }
};

using Operations = RingOperations<Step>;

// The skip within the block, or to its end.
int32_t process_index(RuaStream* stream, uint64_t* nskip, int32_t* flag) {
  Mt19937& s = state<Mt19937>(stream);
  const uint64_t left = kN - uint32_t(s.index);
  if (*nskip <= left) {
    s.index += int32_t(*nskip);
    return 0;
  }
  *nskip -= left;
  s.index = kN;
  *flag = 0;
  return 1;
}

void finish(RuaStream* stream, const RuaStream* from, int32_t) {
  Mt19937& s = state<Mt19937>(stream);
  state<Mt19937>(from).unroll(s.w);
  s.index = kN;
}

int32_t skip(RuaStream* stream, int64_t n) {
  if (n < 0) return RUA_STATUS_NO_SKIPAHEAD;
  Mt19937& s = state<Mt19937>(stream);
  s.index = int32_t(std::min(uint32_t(s.index), kN));  // matters for a damaged state only
  uint64_t steps = uint64_t(n);
  int32_t flag;
  if (n < kSteppedSkip) {
    if (process_index(stream, &steps, &flag)) Operations::advance(s, steps);
    return RUA_STATUS_OK;
  }
  return __rua_SkipAheadSWin(stream, Operations::zero, Operations::add, Operations::copy,
                             Operations::update, finish, process_index, steps, kN,
                             kCharacteristic.degree(), sizeof(RuaStream) + sizeof(Mt19937),
                             kCharacteristic.terms, kCharacteristic.exponents);
}

}  // namespace

ORK_EXPORT int32_t __ruaBRngMT19937InitStream(int32_t method, RuaStream* stream, int32_t n,
                                              const uint32_t* params) {
  Mt19937& s = state<Mt19937>(stream);
  switch (method) {
    case kSeed:
      seed_by_array(s.w, n, params);
      s.index = kN;
      return RUA_STATUS_OK;
    case kLeapfrog:
      return RUA_STATUS_NO_LEAPFROG;
    case kSkipAhead:
      return skip(stream, int64_t(join(params[0], params[1])));
    default:
      return RUA_STATUS_BAD_METHOD;
  }
}

ORK_EXPORT int32_t __ruasBRngMT19937(RuaStream* stream, int32_t n, float* r, float a, float b) {
  if (a == 0 && b == 1) return generate(stream, n, WordsAsUnitFloats{r});
  if (a == -1 && b == 1) return generate(stream, n, WordsAsSymmetricFloats{r});
  return generate(stream, n, WordsAsFloats(r, a, b, kStep));
}

ORK_EXPORT int32_t __ruadBRngMT19937(RuaStream* stream, int32_t n, double* r, double a, double b) {
  if ((a == 0 || a == -1) && b == 1) return generate(stream, n, WordsAsUnitDoubles(r, a));
  return generate(stream, n, WordsAsDoubles(r, a, b, kStep));
}

ORK_EXPORT int32_t __ruaiBRngMT19937(RuaStream* stream, int32_t n, void* r) {
  return generate(stream, n, WordsAsIntegers{static_cast<uint32_t*>(r)});
}
