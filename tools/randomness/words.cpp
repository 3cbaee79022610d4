// Writes random words to standard output, without end: words GENERATOR [SEED]. A word is the
// leading 32 bits of a uniform number in [0, 1), which is what users of a stream consume.
#include <unistd.h>

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "ork/rua.h"

namespace {
constexpr struct {
  const char* name;
  int32_t id;
} kGenerators[] = {{"MCG31M1", RUA_BRNG_MCG31M1},
                   {"R250", RUA_BRNG_R250},
                   {"MRG32K3A", RUA_BRNG_MRG32K3A},
                   {"MCG59", RUA_BRNG_MCG59},
                   {"WH", RUA_BRNG_WH},
                   {"WH_100", RUA_BRNG_WH + 100},
                   {"MT19937", RUA_BRNG_MT19937},
                   {"MT2203", RUA_BRNG_MT2203},
                   {"MT2203_3000", RUA_BRNG_MT2203 + 3000},
                   {"SFMT19937", RUA_BRNG_SFMT19937}};
}  // namespace

int main(int argc, char** argv) {
  for (const auto& g : kGenerators) {
    if (argc < 2 || std::strcmp(argv[1], g.name) != 0) continue;
    const uint32_t seed = argc > 2 ? std::strtoul(argv[2], nullptr, 0) : 20240229;
    RuaStream* stream = nullptr;
    RuaBrngProperties row;
    if (__ruaNewStreamEx(&stream, g.id, 1, &seed) != 0 || __ruaGetBrngProperties(g.id, &row) != 0)
      return 1;
    static double r[4096];
    static uint32_t word[4096];
    do {
      row.dGenerate(stream, 4096, r, 0, 1);
      for (int i = 0; i < 4096; ++i) word[i] = uint32_t(int64_t(r[i] * 0x1p32));
    } while (write(STDOUT_FILENO, word, sizeof word) == sizeof word);
    __ruaDeleteStream(&stream);
    return 0;
  }
  std::fputs("usage: words GENERATOR [SEED]\n", stderr);
  return 2;
}
