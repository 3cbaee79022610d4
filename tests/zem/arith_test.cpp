// Add, Sub, Mul, Sqr, Abs against the scalar operation, for every alignment and length that
// reaches another loop. (Control words and guard pages: frame_test.)
#include <functional>

#include "ork/zem_kernels.h"
#include "support/bits.hpp"
#include "support/control.hpp"
#include "support/pch.hpp"

namespace {

template <class T>
struct Functions;
template <>
struct Functions<double> {
  static constexpr auto add = ork_zem_kernel_dAdd_V8HAynn, sub = ork_zem_kernel_dSub_V8HAynn,
                        mul = ork_zem_kernel_dMul_V8HAynn;
  static constexpr auto sqr = ork_zem_kernel_dSqr_V8HAynn, abs = ork_zem_kernel_dAbs_W7HAynn;
};
template <>
struct Functions<float> {
  static constexpr auto add = ork_zem_kernel_sAdd_V8HAynn, sub = ork_zem_kernel_sSub_V8HAynn,
                        mul = ork_zem_kernel_sMul_V8HAynn;
  static constexpr auto sqr = ork_zem_kernel_sSqr_V8HAynn, abs = ork_zem_kernel_sAbs_W7HAynn;
};

template <class T>
class Arith : public testing::Test {
  StateGuard guard;
};
using Types = testing::Types<double, float>;
TYPED_TEST_SUITE(Arith, Types);

template <class T>
T value(int i) {
  return T((i * 37 % 101) - 50) / T(7);
}

// n elements at byte offsets from a 16-byte boundary; the rest of the buffer keeps its canary.
template <class T>
struct Buffer {
  alignas(16) unsigned char bytes[1200];
  int offset, n;
  Buffer(int offset, int n) : offset(offset), n(n) { memset(bytes, 0xA5, sizeof bytes); }
  T* data() { return reinterpret_cast<T*>(bytes + offset); }
  void check_canary() const {
    for (int i = 0; i < int(sizeof bytes); ++i)
      if (i < offset || i >= offset + n * int(sizeof(T))) {
        ASSERT_EQ(bytes[i], 0xA5) << i;
      }
  }
};

enum class Alias { none, r_is_a, r_is_b, all };

template <class T, class Kernel, class Reference>
void check_binary(Kernel kernel, Reference reference) {
  for (int n = -1; n < 90; ++n)
    for (int offset = 0; offset < 16; offset += 2)
      for (const Alias alias : {Alias::none, Alias::r_is_a, Alias::r_is_b, Alias::all}) {
        const int count = std::max(n, 0);
        Buffer<T> a(offset, count), b((offset * 7) % 16, count), r((offset * 3 + 4) % 16, count);
        T expected[90];
        for (int i = 0; i < count; ++i) {
          const T x = value<T>(i), y = value<T>(i * i + 5);
          memcpy(a.data() + i, &x, sizeof x);
          memcpy(b.data() + i, &y, sizeof y);
          expected[i] = reference(x, alias == Alias::all ? x : y);
        }
        T* out = alias == Alias::none ? r.data() : alias == Alias::r_is_b ? b.data() : a.data();
        kernel(n, a.data(), alias == Alias::all ? a.data() : b.data(), out);
        ASSERT_EQ(memcmp(out, expected, size_t(count) * sizeof(T)), 0)
            << "n " << n << " offset " << offset << " alias " << int(alias);
        a.check_canary(), b.check_canary(), r.check_canary();
      }
}

TYPED_TEST(Arith, BinaryInEveryNest) {
  using T = TypeParam;
  check_binary<T>(Functions<T>::add, std::plus<T>());
  check_binary<T>(Functions<T>::sub, std::minus<T>());
  check_binary<T>(Functions<T>::mul, std::multiplies<T>());
}

TYPED_TEST(Arith, UnaryInEveryNest) {
  using T = TypeParam;
  for (const auto& [kernel, square] :
       {std::pair{Functions<T>::sqr, true}, {Functions<T>::abs, false}})
    for (int n = -1; n < 90; ++n)
      for (int offset = 0; offset < 16; offset += 2)
        for (const bool in_place : {false, true}) {
          const int count = std::max(n, 0);
          Buffer<T> a(offset, count), r((offset * 5 + 8) % 16, count);
          T expected[90];
          for (int i = 0; i < count; ++i) {
            const T x = value<T>(i);
            memcpy(a.data() + i, &x, sizeof x);
            expected[i] = square ? x * x : x < 0 ? -x : x;
          }
          T* out = in_place ? a.data() : r.data();
          kernel(n, a.data(), out);
          ASSERT_EQ(memcmp(out, expected, size_t(count) * sizeof(T)), 0) << n << " " << offset;
          a.check_canary(), r.check_canary();
        }
}

TYPED_TEST(Arith, SpecialValuesRaiseNoStatus) {
  using T = TypeParam;
  using L = std::numeric_limits<T>;
  const T inf = L::infinity(), big = L::max(), zero = 0;
  T r;
  ork_zem_kernel_ClearErrStatus();
  Functions<T>::mul(1, &inf, &zero, &r);
  EXPECT_TRUE(std::isnan(r));
  Functions<T>::sqr(1, &big, &r);
  EXPECT_EQ(r, inf);
  const struct {
    T x;
    T magnitude;
  } cases[] = {{-T(0), T(0)},
               {-inf, inf},
               {L::denorm_min(), L::denorm_min()},
               {-L::denorm_min(), L::denorm_min()},
               {-big, big}};
  for (const auto& c : cases) {
    Functions<T>::abs(1, &c.x, &r);
    EXPECT_EQ(bits(r), bits(c.magnitude));
  }
  // A NaN keeps its sign and payload; a signalling one is quieted.
  const auto sign = bits(-T(0)),
             quiet_bit = sizeof(T) == 8 ? decltype(sign)(1ull << 51) : decltype(sign)(1u << 22);
  const auto signalling = bits(inf) | 5;
  for (const auto s : {decltype(sign)(0), sign}) {
    const T x = from_bits<T>(signalling | s);
    T y;
    memcpy(&y, &x, sizeof y);
    Functions<T>::abs(1, &y, &r);
    EXPECT_EQ(bits(r), signalling | s | quiet_bit);
  }
  EXPECT_EQ(ork_zem_kernel_GetErrStatus(), 0);
}

TYPED_TEST(Arith, DenormalsFollowTheMode) {
  using T = TypeParam;
  const T d = std::numeric_limits<T>::denorm_min();
  std::vector<T> a(40, d), r(40);
  const struct {
    uint32_t mode;
    T sum;
  } cases[] = {{ORK_ZEM_DENORMAL_ZERO, T(0)}, {ORK_ZEM_DENORMAL_KEEP, 2 * d}};
  for (const auto& c : cases) {
    ork_zem_kernel_SetMode(c.mode);
    Functions<T>::add(40, a.data(), a.data(), r.data());
    for (const T x : r) ASSERT_EQ(bits(x), bits(c.sum));
  }
}

TEST(ArithScalar, AbsClearsTheSign) {
  EXPECT_EQ(bits(ork_zem_kernel__dabs_scalar(-0.0)), 0u);
  EXPECT_EQ(ork_zem_kernel__sabs_scalar(-2.5f), 2.5f);
  EXPECT_EQ(bits(ork_zem_kernel__dabs_scalar(-NAN)), bits(double(NAN)));
}

}  // namespace
