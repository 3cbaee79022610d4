#pragma once

namespace ork::ss {

// The value at fraction f of the way from a to b, a <= b: within them whatever rounding does, and
// without arithmetic on an infinite one that has no share.
template <class R>
inline R between(R a, R b, R f) {
  if (f == 0 || a == b) return a;
  const R x = (1 - f) * a + f * b;
  return x < a ? a : x > b ? b : x;
}

}  // namespace ork::ss
