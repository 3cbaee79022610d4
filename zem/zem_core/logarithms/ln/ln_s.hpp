#pragma once
// Ln, single, V8: p = u + u^2 q(u), u in [-1/3, 1/3); a level gives q and adds k ln 2.
// Fast range: positive normal numbers; beyond it ln_rare.
// The coefficients are frozen; a level names the worst error of p, at |u| = 1/3.
#include "frame/chunk.hpp"
#include "logarithms/log_rare.hpp"
#include "logarithms/log_s.hpp"
#include "ork/zem_kernels.h"

namespace ork {

template <class Level>
struct LnS : Core<float> {
  static constexpr char name[] = "vsLn";
  static f32x4 eval(f32x4 x, u32x4& rare) {
    rare |= not_normal(x);
    i32x4 k;
    const f32x4 u = log_reduce(as<u32x4>(x), two_thirds, k);
    return Level::sum(u + u * u * horner(u, Level::q), to_float(k));
  }
  static int special(const float* a, float* out) { return in_double(ln_rare, *a, out); }
};

}  // namespace ork
