// The checks in front of a distribution.
#pragma once

#include <math.h>
#include <stdint.h>

#include <type_traits>

#include "ork/rua_distributions.h"

namespace ork::front {

// n outputs of so many values each are an array that int32_t counts.
inline bool fits(int n, int32_t values) { return values < 1 || n <= INT32_MAX / values; }

template <class T, class Test>
bool all(int n, const T* x, Test test) {
  int i = 0;
  while (i < n && test(x[i])) ++i;
  return i >= n;
}

template <class T>
bool is_finite(T x) {
  if constexpr (std::is_floating_point_v<T>)
    return isfinite(x);
  else
    return true;
}

// `methods` is the number of the distribution's methods, `valid` what its parameters must meet
// beside being finite, `there` whether all arrays of parameters are given.
template <class T, class... P>
int draw(int32_t (*kernel)(int32_t, RuaStream*, int32_t, T*, P...), int methods, bool valid,
         bool there, int method, RuaStream* stream, int n, T* r,
         std::type_identity_t<P>... parameters) {
  if (stream == nullptr) return RUA_STATUS_NULL_POINTER;
  const int plain = method & ~RUA_METHOD_ACCURATE;
  if (plain < 0 || plain >= methods) return RUA_STATUS_BAD_METHOD;
  if (n < 0 || !valid || !(is_finite(parameters) && ...)) return RUA_STATUS_BAD_ARGUMENT;
  if (n == 0) return RUA_STATUS_OK;
  if (r == nullptr || !there) return RUA_STATUS_NULL_POINTER;
  return kernel(methods > 1 ? plain : method, stream, n, r, parameters...);
}

}  // namespace ork::front
