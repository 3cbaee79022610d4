// MT19937: the Mersenne Twister of period 2^19937 - 1.
#include "base/export.hpp"
#include "rua_sub_kernel/mt19937/mersenne_twister.hpp"
#include "rua_sub_kernel/service/stream.hpp"
#include "rua_sub_kernel/skip_ahead/skip_ahead.hpp"

using namespace ork::rua;

namespace {

constexpr uint32_t kN = 624, kM = 397, kLower = 0x7FFFFFFF, kMatrixA = 0x9908B0DF;
constexpr Tempering<11> kTempering{0x9D2C5680, 0xEFC60000};
constexpr double kStep = 0x1p-32;

struct Mt19937 {
  uint32_t mt[kN];
  int32_t index;  // kN: the block is used up
};
static_assert(sizeof(RuaStream) + sizeof(Mt19937) == 2516);

template <class Output>
int32_t generate(RuaStream* stream, int32_t n, Output out) {
  Mt19937& s = state<Mt19937>(stream);
  emit<kM, kLower>(s.mt, s.index, kMatrixA, kTempering, n, out);
  return RUA_STATUS_OK;
}

constexpr uint16_t kExponents[] = {
#include "rua_sub_kernel/mt19937/mt19937_poly.inc"
};
constexpr SparsePolynomial kCharacteristic{kExponents, sizeof kExponents / sizeof kExponents[0]};

struct Step {
  static constexpr uint32_t kUnit = 1;
  static void step(uint32_t* w, uint32_t k) {
    const auto at = [w](uint32_t i) { return w[i < kN ? i : i - kN]; };
    const uint32_t next = at(k + 1), y = (w[k] & ~kLower) | (next & kLower);
    w[k] = at(k + kM) ^ y >> 1 ^ (next & 1 ? kMatrixA : 0);
  }
  static void round(uint32_t (&w)[kN]) { rewrite_block<kN, kM, kLower>(w, kMatrixA); }
};

int32_t skip(Mt19937& s, int64_t n) {
  if (n < 0) return RUA_STATUS_NO_SKIPAHEAD;
  s.index = int32_t(std::min(uint32_t(s.index), kN));  // matters for a damaged state only
  const int64_t left = int64_t{kN} - s.index;          // of the block
  if (n <= left) {
    s.index += int32_t(n);
    return RUA_STATUS_OK;
  }
  const int32_t status = skip_ahead<Step>(s.mt, uint64_t(n - left), kCharacteristic);
  if (status == RUA_STATUS_OK) s.index = kN;
  return status;
}

}  // namespace

ORK_EXPORT int32_t __ruaBRngMT19937InitStream(int32_t method, RuaStream* stream, int32_t n,
                                              const uint32_t* params) {
  Mt19937& s = state<Mt19937>(stream);
  switch (method) {
    case kSeed:
      seed_by_array(s.mt, n, params);
      s.index = kN;
      return RUA_STATUS_OK;
    case kLeapfrog:
      return RUA_STATUS_NO_LEAPFROG;
    case kSkipAhead:
      return skip(s, int64_t(join(params[0], params[1])));
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
