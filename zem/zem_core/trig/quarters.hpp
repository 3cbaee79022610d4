#pragma once
// Sine and cosine of x from those of r, x = n pi/2 + r.
#include "trig/bits.hpp"

namespace ork::trig {

struct Both {
  f32x4 sine, cosine;
};

// An odd n swaps the two; its second bit, and that of n + 1, are the signs.
ORK_INLINE Both turn_quarters(f32x4 s, f32x4 c, u32x4 n) {
  const u32x4 two = splat_u32(2);
  const u32x4 swap = (as<u32x4>(s) ^ as<u32x4>(c)) & -(n & splat_u32(1));
  return {as<f32x4>(as<u32x4>(s) ^ swap ^ ((n & two) << 30)),
          as<f32x4>(as<u32x4>(c) ^ swap ^ (((n + splat_u32(1)) & two) << 30))};
}

}  // namespace ork::trig
