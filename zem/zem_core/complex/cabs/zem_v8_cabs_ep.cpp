#include "frame/block.hpp"
#include "ork/zem_kernels.h"

namespace ork {
namespace {

// The root of the sum of squares in single precision, whatever over- or underflows on the way: no
// lane is rare. Bound 2^-22 where the squares are normal numbers.
struct AbsEpC : Core<Complex<float>, 1, 1, float> {
  static constexpr bool total = true;
  ORK_INLINE f32x4 eval(const Planes<f32x4>& z, u32x4&) { return sqrt(z.re * z.re + z.im * z.im); }
};

}  // namespace
}  // namespace ork

ORK_EXPORT void ork_zem_kernel_cAbs_V8EPnnn(int n, const float* a, float* r) {
  ork::block<ork::AbsEpC>(n, {{ork::pairs(a)}, {r}});
}
