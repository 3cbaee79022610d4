#include "logarithms/ln/ln_s.hpp"

namespace ork {
namespace {

// p of degree 10: 2^-28.7, relative 2^-27.4. ln 2 in two parts.
struct Ha {
  static constexpr float q[] = {-0.5f,         0.333332151f, -0.249997973f,
                                0.200104058f,  -0.16680488f, 0.140058696f,
                                -0.121842608f, 0.139844373f, -0.12891686f};
  static f32x4 sum(f32x4 p, f32x4 k) { return (p + k * 1.42860677e-06f) + k * 0.693145752f; }
};

}  // namespace
}  // namespace ork

ORK_EXPORT void ork_zem_kernel_sLn_V8HAynn(int n, const float* a, float* r) {
  ork::chunk<ork::LnS<ork::Ha>>(n, {{a}, {r}});
}
