// Atan2, double, HA: fpatan, good to 64 bits; its latency is the whole cost.
// Infinities, NaNs and 0/0 go through vdatan2_cout_rare. Bound: 0.51 ulp.
#include "atan2/atan2.hpp"

namespace ork {
namespace {

int vdatan2_cout_rare(const double* y, const double* x, double* r) { return atan2_special(y, x, r); }

struct Atan2Ha : Core<double, 2> {
  static constexpr char name[] = "vdAtan2";
  static constexpr unsigned x87 = x87_extended;  // the store rounds as it says
  static f64x2 eval(f64x2 y, f64x2 x, u32x4& rare) {
    rare |= atan2_rare(y, x);
    double ys[2], xs[2], r[2];
    store(ys, y), store(xs, x);
    for (int i = 0; i < 2; ++i) fpatan(ys + i, xs + i, r + i);
    return _mm_loadh_pd(_mm_load_sd(r), r + 1);  // in halves, as they were stored
  }
  static int special(const double* y, const double* x, double* r) { return vdatan2_cout_rare(y, x, r); }
};

}  // namespace
}  // namespace ork

ORK_EXPORT void ork_zem_kernel_dAtan2_W7HAynn(int n, const double* a, const double* b, double* r) {
  ork::block<ork::Atan2Ha>(n, {{a, b}, {r}});
}
