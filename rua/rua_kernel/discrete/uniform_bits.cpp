// Bits as a generator emits them, and words of 32 and 64 bits that are uniform in all of them.
#include "base/export.hpp"
#include "ork/rua_distributions.h"
#include "rua_sub_kernel/service/stream.hpp"

using namespace ork::rua;

namespace {

// n words from a generator of 32-bit words.
int32_t whole_words(RuaStream* stream, int32_t n, uint32_t* r) {
  return _ruaiRngUniformBits(0, stream, n, r);
}

// n words from bits 27 to 58 of MCG59's numbers: its low bits have short periods.
int32_t high_words(RuaStream* stream, int32_t n, uint32_t* r) {
  constexpr int32_t kItems = 2048;
  alignas(64) uint64_t items[kItems];
  const auto generate = properties(stream).iGenerate;
  for (int32_t done = 0; done < n;) {
    const int32_t m = n - done < kItems ? n - done : kItems;
    const int32_t status = generate(stream, m, items);
    if (status < 0) return status;
    for (int32_t i = 0; i < m; ++i) r[done + i] = uint32_t(items[i] >> 27);
    done += m;
  }
  return RUA_STATUS_OK;
}

int32_t no_words(RuaStream*, int32_t, uint32_t*) { return RUA_STATUS_NO_BITS_FORM; }

using Words = int32_t(RuaStream* stream, int32_t n, uint32_t* r);

// A row for each built-in generator, in the registry's order; a number of any other generator is
// shorter than a word, or its bits are not known to be uniform.
Words* const kWords[] = {no_words,    no_words,    no_words,  // MCG31M1, R250, MRG32K3A
                         high_words,  no_words,               // MCG59, WH
                         no_words,    no_words,               // SOBOL, NIEDERR
                         whole_words, whole_words,            // MT19937, MT2203
                         no_words,    no_words,    no_words,  // IABSTRACT, DABSTRACT, SABSTRACT
                         whole_words, whole_words};           // SFMT19937, NONDETERM

Words* words_of(const RuaStream* stream) {
  const uint32_t row = uint32_t(built_in_row(stream));
  return row < sizeof(kWords) / sizeof(*kWords) ? kWords[row] : no_words;
}

}  // namespace

ORK_EXPORT int32_t _ruaiRngUniformBits(int32_t, RuaStream* stream, int32_t n, uint32_t* r) {
  return properties(stream).iGenerate(stream, n, r);
}

ORK_EXPORT int32_t _ruaiRngUniformBits32(int32_t, RuaStream* stream, int32_t n, uint32_t* r) {
  return words_of(stream)(stream, n, r);
}

// The low word first. No array of this address space has so many words that 2 n overflows.
ORK_EXPORT int32_t _ruaiRngUniformBits64(int32_t, RuaStream* stream, int32_t n, uint64_t* r) {
  return words_of(stream)(stream, 2 * n, reinterpret_cast<uint32_t*>(r));
}
