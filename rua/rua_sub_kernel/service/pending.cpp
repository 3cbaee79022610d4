// Stands in for MT2203 until its table of members is there: weak, so that the real one wins.
#include "frame/export.hpp"
#include "ork/rua.h"

#define WEAK __attribute__((weak))

ORK_EXPORT WEAK int32_t __ruaBRngMT2203InitStream(int32_t, RuaStream*, int32_t, const uint32_t*) {
  return RUA_STATUS_BAD_GENERATOR;
}
ORK_EXPORT WEAK int32_t __ruasBRngMT2203(RuaStream*, int32_t, float*, float, float) {
  return RUA_STATUS_BAD_GENERATOR;
}
ORK_EXPORT WEAK int32_t __ruadBRngMT2203(RuaStream*, int32_t, double*, double, double) {
  return RUA_STATUS_BAD_GENERATOR;
}
ORK_EXPORT WEAK int32_t __ruaiBRngMT2203(RuaStream*, int32_t, void*) {
  return RUA_STATUS_BAD_GENERATOR;
}
