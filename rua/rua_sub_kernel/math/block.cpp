// Block copy and clear.
#include <string.h>

#include "base/export.hpp"
#include "ork/ss_math.h"

namespace ork {

ORK_EXPORT void v8_opxsCopy_32f(const float* source, float* destination, int n) {
  if (n > 0) memcpy(destination, source, size_t(n) * sizeof *source);
}
ORK_EXPORT void v8_opxsZero_32s(int32_t* destination, int n) {
  if (n > 0) memset(destination, 0, size_t(n) * sizeof *destination);
}
ORK_EXPORT void v8_ownsCopy_8u(const uint8_t* source, uint8_t* destination, int n) {
  if (n > 0) memcpy(destination, source, size_t(n));
}
ORK_EXPORT void v8_ownsZero_8u(uint8_t* destination, int n) {
  if (n > 0) memset(destination, 0, size_t(n));
}

}  // namespace ork
