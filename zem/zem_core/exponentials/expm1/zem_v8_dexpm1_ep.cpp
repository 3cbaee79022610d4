// Expm1, double, EP: p of degree 3, |r| <= ln 2/256; ln 2/128 and 2^(n/128) in one word.
// p is frozen: relative error r^3/24 <= 2^-30.1. Fast range: |x| <= 707.703.
#include "common/exp_tables.hpp"
#include "exponentials/expm1/expm1.hpp"

namespace ork {
namespace {

struct Expm1EpD : Expm1D {
  static f64x2 eval(f64x2 x, u32x4& rare) {
    const f64x2 n = round(x * 184.66496523378731);
    const f64x2 r = x - n * 0x1.62e42fefa39efp-8;
    const f64x2 p = r + r * r * horner(r, 0.49999999999997669, 0.166666666666658);
    // 8 n in the low word, biased.
    const u32x4 image = as<u32x4>(n + 844424930262912.0), row = image & 0x3F8;
    const u64x2 exponent =
        as<u64x2>(image & (u32x4{0x1FFC00, 0, 0x1FFC00, 0} & as<u32x4>(test(x, rare)))) << 42;
    const char* const table = (const char*)exp_mantissa128_d;
    const f64x2 mantissa =
        gather((const double*)(table + row[0]), (const double*)(table + word<4>(row)));
    const f64x2 s = or_bits(mantissa, exponent);
    return with_sign_of(x, (s - 1.0) + s * p);
  }
};

}  // namespace
}  // namespace ork

ORK_EXPORT void ork_zem_kernel_dExpm1_V8EPnnn(int n, const double* a, double* r) {
  ork::chunk<ork::Expm1EpD>(n, {{a}, {r}});
}
