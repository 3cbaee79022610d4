// The orthogonalised estimate of Gnanadesikan and Kettenring (1972) by Maronna and Zamar (2002).
#pragma once
#include "rua_kernel/ss/service/data.hpp"

namespace ork::ss {

// Series of n reals that each of its threads owns.
constexpr int kOgkSeries = 3;

// The threads whose series stay within 10 MB.
template <class R>
int ogk_threads(int n, const ork_threader* threader);

// Reals of scratch for `threads`.
template <class R>
uint64_t ogk_reals(int p, int n, int threads);

// e (n) <- the squared distance of each observation: along the principal axes of a matrix of
// robust correlations, in the robust scale of each axis, from its robust centre.
template <class R>
int32_t ogk_distances(const Data<R>& data, int threads, R* scratch, R* e,
                      const ork_threader* threader);

}  // namespace ork::ss
