// What holds for every distribution alike.
#include "registry/distributions.hpp"

#include <thread>

#include "ork/zem.h"
#include "rua/stream_fixture.hpp"
#include "support/stack.hpp"

namespace {

class Distributions : public RuaTest {};

// Callers may bring a stack that is aligned to 4 bytes only.
TEST_F(Distributions, StackMayBeMisaligned) {
  using Shifted = int32_t(int shift, int32_t m, RuaStream* s, int32_t n, void* r, const Values& p);
  Shifted* const shifted[] = {
#define CALL(f, ...) call_shifted(shift, f, __VA_ARGS__)
#define PASS(...) __VA_ARGS__
#define DISTRIBUTION(type, element, name, methods, values, chunk, arguments, parameters, sample)   \
  [](int shift, int32_t m, RuaStream* s, int32_t n, void* out, [[maybe_unused]] const Values& p) { \
    auto* r = static_cast<element*>(out);                                                          \
    return CALL(_rua##type##Rng##name, PASS arguments);                                            \
  },
#include "registry/distributions.inc"
#undef DISTRIBUTION
#undef PASS
#undef CALL
  };
  ASSERT_EQ(std::size(shifted), distributions.size());
  constexpr int n = 99;
  for (size_t i = 0; i < distributions.size(); ++i) {
    const Distribution& d = distributions[i];
    for (int method = 0; method < d.methods; ++method) {
      std::vector<char> want(d.bytes(n)), r(d.bytes(n));
      Stream plain(RUA_BRNG_MT19937, {3});
      ASSERT_EQ(d.kernel(method, plain, n, want.data(), d.sample), 0);
      for (const int shift : {0, 4, 8, 12}) {
        Stream s(RUA_BRNG_MT19937, {3});
        ASSERT_EQ(shifted[i](shift, method, s, n, r.data(), d.sample), 0);
        ASSERT_EQ(r, want) << d.full_name() << ' ' << method << ' ' << shift;
      }
    }
  }
}

// Whatever the denormal field says: 0, as in a thread that never set it, or on.
TEST_F(Distributions, ModeStaysAsItWas) {
  std::thread([] {
    for (const uint32_t mode : {0u, ORK_ZEM_DENORMAL_ZERO, ORK_ZEM_DENORMAL_KEEP}) {
      if (mode) ork_zem_kernel_SetMode(mode);
      const uint32_t before = ork_zem_kernel_GetMode();
      EXPECT_EQ(before & ORK_ZEM_DENORMAL_MASK, mode);
      for (const Distribution& d : distributions)
        for (int method = 0; method < d.methods; ++method) {
          Stream s(RUA_BRNG_MT19937, {3});
          std::vector<char> r(d.bytes(9));
          ASSERT_EQ(d.kernel(method, s, 9, r.data(), d.sample), 0);
          ASSERT_EQ(ork_zem_kernel_GetMode(), before) << d.full_name();
        }
    }
  }).join();
}

// The k-th allocation fails: the call says so, draws nothing and leaves nothing behind. What the
// rows say about chunks is what hangs on the stream afterwards.
TEST_F(Distributions, MemoryMayRunOut) {
  constexpr int n = 9;
  for (const Distribution& d : distributions)
    for (int method = 0; method < d.methods; ++method) {
      SCOPED_TRACE(d.full_name());
      Stream other(RUA_BRNG_MT19937, {9}), s(RUA_BRNG_MT19937, {9});
      const auto before = record(s);
      std::vector<char> r(d.bytes(n)), want(d.bytes(n));
      ASSERT_EQ(d.kernel(method, other, n, want.data(), d.sample), 0);
      const int allocations = blocks::fail_each([&] {
        const int32_t status = d.kernel(method, s, n, r.data(), d.sample);
        EXPECT_EQ(status, blocks::failed() ? RUA_STATUS_NO_MEMORY : 0);
        if (blocks::failed()) {
          EXPECT_EQ(record(s), before);
          EXPECT_EQ(__ruaGetNumChunks(s), 0);
        }
      });
      EXPECT_EQ(r, want);
      EXPECT_EQ(allocations, 2 * __ruaGetNumChunks(s)) << "a node and its payload";
      if (allocations > 0) {
        EXPECT_EQ(s->chunks->chunkId, d.chunk);
      }
    }
}

}  // namespace
