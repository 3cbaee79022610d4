// Log10, double, LA: m = m_hi + m_lo with m_hi of 43 bits, v = (m_hi c - 1) + m_lo c,
// log10 x = K log10 2 + (T(c) + p(v)), p of degree 5, |v| < 2^-9.5. Next to 1, v = m - 1.
// p is frozen: off by at most 2^-62.7. Fast range: positive normal numbers.
#include "common/log_short_d.hpp"
#include "frame/chunk.hpp"
#include "logarithms/log10/log10.hpp"
#include "ork/zem_kernels.h"

namespace ork {
namespace {

struct Log10LaD : Core<double> {
  static constexpr char name[] = "vdLog10";
  static constexpr double table[] = {
#include "logarithms/log10/rows_d_la.inc"
  };
  static f64x2 eval(f64x2 x, u32x4& rare) {
    rare |= (u32x4)((i32x4)(as<u32x4>(x) - 0x80100000) > -0x200001);
    const ShortD f(x, (u64x2)(abs(x - 1.0) < 0.0009765625));
    const f64x2 m_hi = and_bits(f.m, splat_u64(0xFFFFFFFFFFFFFC00)), m_lo = f.m - m_hi;
    const f64x2 v = (m_hi * f.c - 1.0) + m_lo * f.c, v2 = v * v;
    const f64x2 p =
        0.43429448190325182 * v + v2 * ((-0.21714724095157728 + 0.14476482730097556 * v) +
                                        v2 * (-0.10857375315018218 + 0.086859055590810946 * v));
    return short_sum(f, x, table, 0.3010299956639812, p);
  }
  static int special(const double* a, double* out) { return log10_rare(a, out); }
};

}  // namespace
}  // namespace ork

ORK_EXPORT void ork_zem_kernel_dLog10_V8LAynn(int n, const double* a, double* r) {
  ork::chunk<ork::Log10LaD>(n, {{a}, {r}});
}
