// Pack and unpack against one plain loop, in both widths and through the stubs.
#include "ork/zem_kernels.h"
#include "support/bits.hpp"
#include "support/pch.hpp"

namespace {

// The six kernels of a type and their stubs, as functions of bytes.
template <class T>
struct Kernels {
  using I = void (*)(int32_t, int32_t, const T*, int32_t, int32_t, T*, int);
  using M = void (*)(int32_t, int32_t, const T*, const void*, T*, int);
  using U = void (*)(int32_t, int32_t, const T*, T*, int32_t, int32_t, int);
  using N = void (*)(int32_t, int32_t, const T*, T*, const void*, int);
  const char* name;
  int parts;
  I pack_i;
  M pack_m, pack_v;
  U unpack_i;
  N unpack_m, unpack_v;
};
#define KERNELS(t, parts)                                                                     \
  {                                                                                           \
    "table " #t, parts, ork_zem_kernel_##t##PackI_ttab[1], ork_zem_kernel_##t##PackM_ttab[0], \
        ork_zem_kernel_##t##PackV_ttab[2], ork_zem_kernel_##t##UnpackI_ttab[0],               \
        ork_zem_kernel_##t##UnpackM_ttab[1], ork_zem_kernel_##t##UnpackV_ttab[2]              \
  }
#define STUBS(t, parts, low, fast)                                                \
  {                                                                               \
    "stub " #t, parts, _zem##t##PackI, _zem##t##PackM##low, _zem##t##PackV##fast, \
        _zem##t##UnpackI_HA, _zem##t##UnpackM##fast, _zem##t##UnpackV##low        \
  }

template <class T>
class Pack : public testing::Test {
 protected:
  static std::vector<Kernels<T>> all() {
    if constexpr (sizeof(T) == 8)
      return {KERNELS(d, 1), KERNELS(z, 2), STUBS(d, 1, _50, _26), STUBS(z, 2, _50, _26)};
    else
      return {KERNELS(s, 1), KERNELS(c, 2), STUBS(s, 1, _21, _11), STUBS(c, 2, _21, _11)};
  }
  static bool is_stub(const Kernels<T>& k) { return k.name[0] == 's'; }

  // A source element's parts tell its index and part.
  static std::vector<T> source(int n, int parts) {
    std::vector<T> a;
    for (int i = 0; i < n; ++i)
      for (int p = 0; p < parts; ++p) a.push_back(T(10 * i + p + 1));
    return a;
  }
  // Element k of `from` to place i of `to`.
  static void copy(std::vector<T>& to, int i, const std::vector<T>& from, int k, int parts) {
    for (int p = 0; p < parts; ++p) to[size_t(parts * i + p)] = from[size_t(parts * k + p)];
  }
};
using Types = testing::Types<double, float>;
TYPED_TEST_SUITE(Pack, Types);

// Entries of either width, the high word given apart.
struct Entries {
  std::vector<int32_t> narrow;
  std::vector<uint64_t> wide;
  Entries(const std::vector<int32_t>& low, uint32_t high) : narrow(low) {
    for (const int32_t x : low) wide.push_back(uint64_t(high) << 32 | uint32_t(x));
  }
  const void* at(int width) const {
    return width == 1 ? static_cast<const void*>(narrow.data()) : wide.data();
  }
};

TYPED_TEST(Pack, GatherAndScatter) {
  using T = TypeParam;
  const std::vector<int32_t> pattern = {1, 0, -1, 0, 0, 1 << 30, 1, 1},
                             places = {3, 0, 7, 3, 15, 1, 1, 2};
  const int n = 8;
  for (const auto& k : this->all())
    for (const int width : {1, 0, 64}) {
      SCOPED_TRACE(std::string(k.name) + " width " + std::to_string(width));
      // A stub forces width 1: it reads 32-bit entries, and no high word of the count.
      const int entries = this->is_stub(k) ? 1 : width;
      const int32_t high = entries == 1 ? 77 : 0;
      const Entries mask(pattern, 0), index(places, 5);
      const auto a = this->source(32, k.parts);
      const size_t size = a.size();
      for (const int stride : {0, 1, 2, 3}) {
        std::vector<T> y(size), want(size), z(size), want_z(size);
        for (int i = 0; i < n; ++i)
          this->copy(want, i, a, i * stride, k.parts),
              this->copy(want_z, i * stride, a, i, k.parts);
        k.pack_i(n, high, a.data(), stride, high, y.data(), width);
        k.unpack_i(n, high, a.data(), z.data(), stride, high, width);
        EXPECT_EQ(y, want) << "stride " << stride;
        EXPECT_EQ(z, want_z) << "stride " << stride;
      }
      std::vector<T> y(size), want(size), z(size), want_z(size);
      for (int i = 0, j = 0; i < n; ++i)
        if (pattern[size_t(i)])
          this->copy(want, j, a, i, k.parts), this->copy(want_z, i, a, j++, k.parts);
      k.pack_m(n, high, a.data(), mask.at(entries), y.data(), width);
      k.unpack_m(n, high, a.data(), z.data(), mask.at(entries), width);
      EXPECT_EQ(y, want) << "mask";
      EXPECT_EQ(z, want_z) << "mask";
      want.assign(size, 0), want_z.assign(size, 0), y.assign(size, 0), z.assign(size, 0);
      for (int i = 0; i < n; ++i)
        this->copy(want, i, a, places[size_t(i)], k.parts),
            this->copy(want_z, places[size_t(i)], a, i, k.parts);
      k.pack_v(n, high, a.data(), index.at(entries), y.data(), width);
      k.unpack_v(n, high, a.data(), z.data(), index.at(entries), width);
      EXPECT_EQ(y, want) << "index";
      EXPECT_EQ(z, want_z) << "index";
    }
}

TYPED_TEST(Pack, NegativeStridesWalkBackward) {
  for (const auto& k : this->all())
    for (const int width : {1, 2}) {
      const auto a = this->source(12, k.parts);
      std::vector<TypeParam> y(a.size()), z(a.size()), want(a.size()), want_z(a.size());
      for (int i = 0; i < 4; ++i)
        this->copy(want, i, a, 11 - 3 * i, k.parts), this->copy(want_z, 11 - 3 * i, a, i, k.parts);
      k.pack_i(4, 0, a.data() + 11 * k.parts, -3, -1, y.data(), width);
      k.unpack_i(4, 0, a.data(), z.data() + 11 * k.parts, -3, -1, width);
      EXPECT_EQ(y, want) << k.name;
      EXPECT_EQ(z, want_z) << k.name;
    }
}

// Nothing is touched for no element: null pointers would fault.
TYPED_TEST(Pack, NoElements) {
  for (const auto& k : this->all())
    for (const auto& [low, high, width] :
         {std::tuple(0, 0, 1), {0, 5, 1}, {-1, 0, 1}, {0, 0, 2}, {5, -1, 2}, {-1, -1, 2}}) {
      if (width != 1 && this->is_stub(k)) continue;
      k.pack_i(low, high, nullptr, 1, 0, nullptr, width);
      k.pack_m(low, high, nullptr, nullptr, nullptr, width);
      k.pack_v(low, high, nullptr, nullptr, nullptr, width);
      k.unpack_i(low, high, nullptr, nullptr, 1, 0, width);
      k.unpack_m(low, high, nullptr, nullptr, nullptr, width);
      k.unpack_v(low, high, nullptr, nullptr, nullptr, width);
    }
}

// In the 64-bit form a mask entry counts by either word.
TYPED_TEST(Pack, WideMaskCountsByEitherWord) {
  const uint64_t mask[4] = {0, uint64_t(1) << 32, 1, 0};
  for (const auto& k : this->all()) {
    if (this->is_stub(k)) continue;
    const auto a = this->source(4, k.parts);
    std::vector<TypeParam> y(a.size()), want(a.size());
    this->copy(want, 0, a, 1, k.parts), this->copy(want, 1, a, 2, k.parts);
    k.pack_m(4, 0, a.data(), mask, y.data(), 0);
    EXPECT_EQ(y, want) << k.name;
  }
}

}  // namespace
