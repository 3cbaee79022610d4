#include "arcs/atan2_d_ha.hpp"
#include "frame/of_parts.hpp"

namespace ork {
namespace {

// Atan2 of the parts in two words, see atan2_d_ha.hpp; the lanes next to a border between doubles
// are not looked at again. Bound 0.51 ulp.
struct ArgHaZ : Atan2Ha {
  ORK_INLINE f64x2 eval(f64x2 y, f64x2 x, u32x4& rare) {
    const Octant<double> o(y, x);
    rare |= atan2_pair_rare(o);
    f64x2 low;
    const f64x2 high = atan2_pair(o, low);
    return or_bits(high + low, as<u64x2>(y) & sign_f64x2);
  }
};

}  // namespace
}  // namespace ork

ORK_EXPORT void ork_zem_kernel_zArg_V8HAynn(int n, const double* a, double* r) {
  ork::block<ork::OfParts<ork::ArgHaZ, true>>(n, {{ork::pairs(a)}, {r}});
}
