// Denormals counting as zeros, by the mode word 0x280000 and by the caller's MXCSR: normal results
// of normal arguments stay what they are, however near the ends of the range.
#include "registry/claims.hpp"
#include "support/bits.hpp"
#include "support/control.hpp"
#include "support/pch.hpp"
#include "support/special.hpp"

namespace {

template <class T>
class Flush : public testing::Test {
 protected:
  StateGuard guard;
};
using Types = testing::Types<double, float>;
TYPED_TEST_SUITE(Flush, Types);

// Some of every binade, more of the outer ones and of where exponentials run out.
template <class T>
std::vector<T> sweep() {
  using L = std::numeric_limits<T>;
  uint64_t state = 88172645463325252;
  const auto uniform = [&] {
    state ^= state << 13, state ^= state >> 7, state ^= state << 17;
    return sizeof(T) == 8 ? T(double(state >> 11) * 0x1p-53) : T(state >> 40) * T(0x1p-24);
  };
  std::vector<T> points;
  const int first = L::min_exponent - 1, last = L::max_exponent - 1;
  for (int e = first; e <= last; ++e)
    for (int k = 0; k < (e < first + 64 || e > last - 64 ? 12 : 4); ++k)
      points.push_back(std::ldexp(1 + uniform(), e));
  const T least = std::log(L::min()), root = std::sqrt(-least);
  for (int k = 0; k < 400; ++k) {
    points.push_back(-least - uniform() * (sizeof(T) == 8 ? 40 : 20));
    points.push_back(root * (T(0.9) + uniform() * T(0.6)));  // erfc, cdfnorm
  }
  for (size_t i = 0, n = points.size(); i < n; ++i) points.push_back(-points[i]);
  return points;
}

// Second inputs: of the first one's size, or such that product or quotient come to an end, or
// that a power does.
template <class T>
std::vector<T> partners(const std::vector<T>& a, bool power) {
  using L = std::numeric_limits<T>;
  std::vector<T> b;
  for (size_t i = 0; i < a.size(); ++i) {
    const int e = std::ilogb(a[i]), end = i % 3 ? L::min_exponent - 1 : L::max_exponent - 1;
    const T factor = T(1) + T(i % 97) / T(101);
    if (power)
      b.push_back(T(end + (i % 3 ? T(i % 53) : -T(i % 53))) / std::log2(std::fabs(a[i]) * factor));
    else
      b.push_back(std::ldexp(factor, i % 2 ? e + int(i % 9) - 4 : i % 4 ? e - end : end - e));
  }
  return b;
}

template <class T>
bool agree(T x, T y, const Claim& claim) {
  if (bits(x) == bits(y)) return true;
  const T unit = claim.relative
                     ? std::fabs(y)
                     : std::ldexp(T(1), std::ilogb(y) + 1 - std::numeric_limits<T>::digits);
  return std::fabs(x - y) <= T(2 * claim.bound) * unit;
}

TYPED_TEST(Flush, NormalResultsOfNormalArgumentsKeepTheirClaims) {
  using T = TypeParam;
  const Claims claims = read_claims(ORK_SOURCE_DIR);
  const std::vector<T> all = sweep<T>();
  for (const auto& call : elementwise_kernels<T>()) {
    const std::string name = call.slot->name(call.level);
    const bool power = !strncmp(call.slot->function, "Pow", 3),
               scalar = call.slot->form == Form::scalar;
    // LinearFrac as a quotient, so that its terms reach the ends.
    if (call.slot->form == Form::linear) linear_scalars[1] = linear_scalars[3] = 0;
    const std::vector<T> a = all, b = partners(a, power);
    std::vector<T> kept[2] = {std::vector<T>(a.size()), std::vector<T>(a.size())},
                   flushed[2] = {kept[0], kept[0]};
    const auto run = [&](std::vector<T>* r) {
      if (!scalar) return call(int(a.size()), a.data(), b.data(), r[0].data(), r[1].data());
      for (size_t i = 0; i < a.size(); i += 5) call(1, &a[i], &b[i], &r[0][i], &r[1][i]);
    };
    ork_zem_kernel_SetMode(ORK_ZEM_ERRMODE_IGNORE | ORK_ZEM_DENORMAL_KEEP);
    run(kept);
    ork_zem_kernel_SetMode(ORK_ZEM_DENORMAL_ZERO);
    _mm_setcsr(0x1F80 | 0x8040);
    run(flushed);
    _mm_setcsr(0x1F80);
    ork_zem_kernel_SetMode(ORK_ZEM_DENORMAL_KEEP);
    linear_scalars[1] = 0.25, linear_scalars[3] = 3;
    int bad = 0;
    for (int k = 0; k < call.outputs(); ++k)
      for (size_t i = 0; i < a.size(); ++i) {
        // b / 2: a term of LinearFrac is no larger.
        if (!std::isnormal(kept[k][i]) || (call.inputs() == 2 && !std::isnormal(b[i] / 2)))
          continue;
        if (!agree(flushed[k][i], kept[k][i], claims.bounds.at(name)) && ++bad <= 3)
          ADD_FAILURE() << name << std::hexfloat << "(" << a[i] << ", " << b[i]
                        << "): " << flushed[k][i] << " not " << kept[k][i];
      }
  }
}

}  // namespace
