// Gaussian numbers from the sine of G. E. P. Box, M. E. Muller, "A note on the generation of
// random normal deviates", 1958: two uniform numbers each, the cosine is not used.
#include "rua_kernel/continuous/gaussian.hpp"
#include "rua_kernel/service/elementwise.hpp"
#include "rua_kernel/service/uniform.hpp"

namespace ork::rua {

template <class R>
int32_t box_muller(RuaStream* stream, int32_t n, R* r, R a, R sigma) {
  constexpr int32_t kBlock = 1024;
  alignas(64) R u[2 * kBlock], magnitude[kBlock], angle[kBlock];
  for (int32_t m; n > 0; n -= m, r += m) {
    m = n < kBlock ? n : kBlock;
    const int32_t status = uniform(stream, 2 * m, u, 0, 1);
    if (status < 0) return status;
    split(m, u, magnitude, angle, [](auto x) { return x * kTwoPi<R>; });
    apply(Tables<R>::sin, m, angle);
    R* const radius = u;
    radii(m, magnitude, radius);
    constexpr int w = simd<R>::width;
    int32_t i = 0;
    for (; m - i >= w; i += w) store(r + i, load(radius + i) * sigma * load(angle + i) + a);
    for (; i < m; ++i) r[i] = radius[i] * sigma * angle[i] + a;
  }
  return RUA_STATUS_OK;
}

template GaussianMethod<double> box_muller<double>;
template GaussianMethod<float> box_muller<float>;

}  // namespace ork::rua
