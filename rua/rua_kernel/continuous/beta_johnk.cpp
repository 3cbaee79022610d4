// Beta of two small shapes: M. D. Johnk, "Erzeugung von betaverteilten und gammaverteilten
// Zufallszahlen", 1964. With x = u^(1/p), y = v^(1/q) the number is x/(x + y) if the sum is at
// most 1.
#include "rua_kernel/continuous/beta.hpp"
#include "rua_kernel/service/rejection.hpp"

namespace ork::rua {

template <class R>
int32_t beta_johnk(RuaStream* stream, int32_t n, R* r, R p, R q) {
  using T = Tables<R>;
  using V = vec_of<R>;
  const R to_x = 1 / p, to_y = 1 / q;
  return accept_in_rounds(stream, n, r, [=](int32_t m, R* u, R* v, R*) {
    apply(T::ln, 2 * m, u);  // and v behind it
    vectors<R>(m, [=](int32_t i) {
      store(u + i, load(u + i) * to_x);
      store(v + i, load(v + i) * to_y);
    });
    apply(T::exp, 2 * m, u);
    return [=](int32_t i) {
      const V x = load(u + i), sum = x + load(v + i);
      return candidates(V(x / sum), lanes(sum > 0) & lanes(sum <= 1));
    };
  });
}

template int32_t beta_johnk(RuaStream*, int32_t, double*, double, double);
template int32_t beta_johnk(RuaStream*, int32_t, float*, float, float);

}  // namespace ork::rua
