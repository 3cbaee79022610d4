// The iteration for the translated biweight S-estimate (Rocke 1996).
#pragma once
#include "rua_kernel/ss/robust/biweight.hpp"
#include "rua_kernel/ss/service/data.hpp"

namespace ork::ss {

// Mean and covariance that the steps move on. v is p by p, full; both its triangles hold when a
// step is done.
template <class R>
struct Estimate {
  R* mean;
  R* v;
};

// mean and v <- those of the weighted observations: the sum of w c c' by `divisor`.
template <class R>
int32_t weighted_moments(const Data<R>& data, const R* w, R divisor, const Estimate<R>& to,
                         const ork_threader* threader);

// Steps until the weights of all observations together change by no more than the tolerance, in
// the root of the sum of squares. d, w, scratch: n reals each.
template <class R>
int32_t iterate(const Data<R>& data, const Biweight& biweight, R tolerance, int steps, R* d, R* w,
                R* scratch, const Estimate<R>& estimate, const ork_threader* threader);

}  // namespace ork::ss
