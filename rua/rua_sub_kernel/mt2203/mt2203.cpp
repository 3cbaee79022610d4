// MT2203: 6024 Mersenne Twisters of period 2^2203 - 1 with parameters of their own, for streams
// that are independent of each other (M. Matsumoto, T. Nishimura, "Dynamic creation of
// pseudorandom number generators", 2000).
#include "base/export.hpp"
#include "rua_sub_kernel/mt19937/mersenne_twister.hpp"
#include "rua_sub_kernel/service/stream.hpp"

using namespace ork::rua;

namespace {

constexpr uint32_t kN = 69, kM = 34, kLower = 0x1F;
constexpr double kStep = 0x1p-32;

struct Member {
  uint32_t matrix_a, temper_b, temper_c;
};

struct Mt2203 {
  uint32_t mt[kN];
  int32_t index;  // kN: the block is used up
  Member member;
};
static_assert(sizeof(RuaStream) + sizeof(Mt2203) == 308);

constexpr Member kMembers[] = {
#include "rua_sub_kernel/mt2203/mt2203_table.inc"
};
static_assert(sizeof kMembers / sizeof kMembers[0] == 6024);

template <class Output>
int32_t generate(RuaStream* stream, int32_t n, Output out) {
  Mt2203& s = state<Mt2203>(stream);
  const Tempering<12> tempering{s.member.temper_b, s.member.temper_c};
  emit<kM, kLower>(s.mt, s.index, s.member.matrix_a, tempering, n, out);
  return RUA_STATUS_OK;
}

}  // namespace

ORK_EXPORT int32_t __ruaBRngMT2203InitStream(int32_t method, RuaStream* stream, int32_t n,
                                             const uint32_t* params) {
  Mt2203& s = state<Mt2203>(stream);
  switch (method) {
    case kSeed:
      seed_by_array(s.mt, n, params);
      s.index = kN;
      s.member = kMembers[family_member(stream)];
      return RUA_STATUS_OK;
    case kLeapfrog:
      return RUA_STATUS_NO_LEAPFROG;
    case kSkipAhead:
      return RUA_STATUS_NO_SKIPAHEAD;
    default:
      return RUA_STATUS_BAD_METHOD;
  }
}

ORK_GENERATE(MT2203, generate(stream, n, WordsAsFloats(r, a, b, kStep)),
             generate(stream, n, WordsAsDoubles(r, a, b, kStep)),
             generate(stream, n, WordsAsIntegers{r}))
