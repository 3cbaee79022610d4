// Long vectors in slices on several threads: the results of a whole call, to the bit.
#include <algorithm>

#include "front.hpp"
#include "support/stack.hpp"

namespace {

constexpr int n = 3001, slice = 1024;

template <class T>
struct Divide : testing::Test {
  StateGuard state;
  DivisionGuard division;
};
using Types = testing::Types<double, float>;
TYPED_TEST_SUITE(Divide, Types);

// Ordinary values, and bit patterns of all kinds every few elements.
template <class T>
std::vector<T> mixed_values(int count, unsigned seed) {
  std::mt19937_64 random(seed);
  std::vector<T> values(size_t(count) + 4);
  for (T& v : values) {
    const uint64_t bits = random();
    if (random() % 7 == 0)
      memcpy(&v, &bits, sizeof v);
    else
      v = T(int64_t(bits) * 0x1p-61);
    if (std::isnan(v)) v = std::numeric_limits<T>::quiet_NaN();
  }
  return values;
}

TYPED_TEST(Divide, EveryFunctionGivesTheBitsAndStatusOfAWholeCall) {
  using T = TypeParam;
  const std::vector<T> a = mixed_values<T>(2 * n, 1), b = mixed_values<T>(2 * n, 2);
  for (const unsigned level : {ORK_ZEM_LA, ORK_ZEM_HA, ORK_ZEM_EP}) {
    ork_zem_kernel_SetMode(level | ORK_ZEM_ERRMODE_IGNORE);
    for_each_function<T>([&](const Slot& row, const Call<T>& front) {
      // The kernel itself, the layer whole, the layer in three and in five slices.
      std::vector<T> r[4], r2[4];
      int status[4];
      for (int way = 0; way < 4; ++way) {
        r[way].assign(2 * n + 4, T(-7)), r2[way] = r[way];
        divide_all(way == 0 ? 1 : 2 * way - 1);
        ork_zem_kernel_ClearErrStatus();
        const Call<T> call = way == 0 ? Call<T>{&row, int(level) - 1} : front;
        call(n, a.data(), b.data(), r[way].data(), r2[way].data());
        status[way] = ork_zem_kernel_GetErrStatus();
      }
      for (int way = 1; way < 4; ++way) {
        EXPECT_EQ(memcmp(r[0].data(), r[way].data(), r[0].size() * sizeof(T)), 0)
            << row.name(int(level) - 1) << " " << way;
        EXPECT_EQ(memcmp(r2[0].data(), r2[way].data(), r2[0].size() * sizeof(T)), 0)
            << row.name(int(level) - 1) << " " << way;
        EXPECT_EQ(status[0], status[way]) << row.name(int(level) - 1) << " " << way;
      }
    });
  }
}

TYPED_TEST(Divide, LengthsAroundTheGrainAndInPlace) {
  using T = TypeParam;
  const std::vector<T> a = mixed_values<T>(4000, 3);
  ork_zem_kernel_SetMode(ORK_ZEM_ERRMODE_IGNORE);
  for_each_function<T>([&](const Slot& row, const Call<T>& front) {
    if (row.function != std::string("Exp") && row.function != std::string("Sub")) return;
    const int parts = front.in_parts();
    for (const int length : {1, 127, 255, 256, 257, 384, 511, 512, 513, 1023, 1985})
      for (const int threads : {2, 3, 128, 1000}) {
        std::vector<T> whole(a.size(), 5), r(a);
        Call<T>{&row, 1}(length, a.data(), a.data(), whole.data(), nullptr);
        std::copy(a.begin() + parts * length, a.end(), whole.begin() + parts * length);
        divide_all(threads);
        front(length, r.data(), r.data(), r.data(), nullptr);
        EXPECT_EQ(memcmp(r.data(), whole.data(), a.size() * sizeof(T)), 0)
            << row.function << " " << length << " " << threads;
      }
  });
}

// The caller's stack may be aligned to 4 bytes only; those of the workers are the system's.
TYPED_TEST(Divide, MisalignedStack) {
  using T = TypeParam;
  const std::vector<T> a(2 * n, T(0.5));
  for_each_function<T>([&](const Slot& row, const Call<T>& front) {
    if (front.outputs() == 2 || front.inputs() == 2 || row.form == Form::scalar) return;
    std::vector<T> expected(2 * n), r(2 * n);
    Call<T>{&row, 1}(n, a.data(), nullptr, expected.data(), nullptr);
    for (const int threads : {1, 3})
      for (int shift = 0; shift < 16; shift += 4) {
        divide_all(threads);
        std::fill(r.begin(), r.end(), T(0));
        const auto function =
            reinterpret_cast<int (*)(int, const T*, T*)>(const_cast<void*>(front.slot->table[1]));
        call_shifted(shift, function, n, a.data(), r.data());
        ASSERT_EQ(memcmp(r.data(), expected.data(), r.size() * sizeof(T)), 0)
            << row.function << shift;
      }
  });
}

}  // namespace
