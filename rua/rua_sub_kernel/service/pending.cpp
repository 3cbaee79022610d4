// Stands in for generators that are not written yet: weak, so that the real ones win.
#include "frame/export.hpp"
#include "ork/rua.h"
#define PENDING(G)                                                                            \
  ORK_EXPORT __attribute__((weak)) int32_t __ruaBRng##G##InitStream(int32_t, RuaStream*,      \
                                                                    int32_t, const uint32_t*) { \
    return RUA_STATUS_BAD_GENERATOR;                                                          \
  }                                                                                           \
  ORK_EXPORT __attribute__((weak)) int32_t __ruasBRng##G(RuaStream*, int32_t, float*, float,  \
                                                         float) {                             \
    return RUA_STATUS_BAD_GENERATOR;                                                          \
  }                                                                                           \
  ORK_EXPORT __attribute__((weak)) int32_t __ruadBRng##G(RuaStream*, int32_t, double*, double, \
                                                         double) {                            \
    return RUA_STATUS_BAD_GENERATOR;                                                          \
  }                                                                                           \
  ORK_EXPORT __attribute__((weak)) int32_t __ruaiBRng##G(RuaStream*, int32_t, void*) {        \
    return RUA_STATUS_BAD_GENERATOR;                                                          \
  }
PENDING(R250)
PENDING(MRG32K3A)
PENDING(MCG59)
PENDING(WH)
PENDING(MT19937)
PENDING(MT2203)
PENDING(SFMT19937)
