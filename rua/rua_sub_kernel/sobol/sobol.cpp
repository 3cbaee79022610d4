// Holds the generator's place in the registry: the sequence itself is still to come, and
// every entry says that there is no such generator.
#include "base/export.hpp"
#include "ork/rua.h"

ORK_EXPORT int32_t __ruaBRngSobolInitStream(int32_t, RuaStream*, int32_t, const uint32_t*) {
  return RUA_STATUS_BAD_GENERATOR;
}
ORK_EXPORT int32_t __ruasBRngSobol(RuaStream*, int32_t, float*, float, float) {
  return RUA_STATUS_BAD_GENERATOR;
}
ORK_EXPORT int32_t __ruadBRngSobol(RuaStream*, int32_t, double*, double, double) {
  return RUA_STATUS_BAD_GENERATOR;
}
ORK_EXPORT int32_t __ruaiBRngSobol(RuaStream*, int32_t, void*) { return RUA_STATUS_BAD_GENERATOR; }
