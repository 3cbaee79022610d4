// The frames themselves, in every argument form, around a core with foreseeable rare lanes and
// statuses (toy_kernels.cpp).
#include <dlfcn.h>

#include "ork/zem.h"
#include "support/control.hpp"
#include "support/pch.hpp"

namespace {

// The toy library has mode, callback and status of its own.
struct Toy {
  void* library = dlopen(ORK_LIB_DIR "/libork_toy.so", RTLD_NOW | RTLD_LOCAL);
  template <class F>
  F* get(const std::string& name) const {
    void* symbol = library ? dlsym(library, name.c_str()) : nullptr;
    if (!symbol) ADD_FAILURE() << name << ": " << dlerror();
    return reinterpret_cast<F*>(symbol);
  }
};

enum class Shape { unary, binary, two, scalar };
struct Kernel {
  const char* name;
  Shape shape;
  bool clean_last;  // the chunk frame stores a chunk's clean lanes after its events
};
const Kernel kernels[] = {{"block1", Shape::unary, false},   {"chunk1", Shape::unary, true},
                          {"element1", Shape::unary, false}, {"block2", Shape::binary, false},
                          {"chunk2", Shape::binary, true},   {"blocktwo", Shape::two, false},
                          {"chunktwo", Shape::two, true},    {"blockscalar", Shape::scalar, false}};

struct Seen {
  int status, index;
  double a1, a2, r1, r2;
};
std::vector<Seen> events;
unsigned csr_in_callback;
unsigned short x87_in_callback;
bool replace;

int32_t record(ork_error_record* e) {
  events.push_back({e->status, e->index, e->a1, e->a2, e->r1, e->r2});
  csr_in_callback = mxcsr_control();
  x87_in_callback = x87_control();
  if (replace) e->r1 = 77, e->r2 = 78;
  return 0;
}

template <class T>
class Toys : public testing::Test {
 protected:
  Toy toy;
  StateGuard guard;
  std::string prefix = sizeof(T) == 8 ? "d" : "s";
  Toys() {
    toy.get<ork_error_callback(ork_error_callback)>("ork_zem_kernel_SetErrorCallBack")(record);
    set_mode(ORK_ZEM_ERRMODE_CALLBACK);
  }
  ~Toys() { dlclose(toy.library); }
  uint32_t set_mode(uint32_t mode) {
    return toy.get<uint32_t(uint32_t)>("ork_zem_kernel_SetMode")(mode);
  }
  void call(const Kernel& k, int n, const T* a, const T* b, T* r, T* r2) {
    const std::string name = prefix + k.name;
    switch (k.shape) {
      case Shape::unary:
        return toy.get<void(int, const T*, T*)>(name)(n, a, r);
      case Shape::binary:
        return toy.get<void(int, const T*, const T*, T*)>(name)(n, a, b, r);
      case Shape::two:
        return toy.get<void(int, const T*, T*, T*)>(name)(n, a, r, r2);
      case Shape::scalar:
        return toy.get<void(int, const T*, T, T*)>(name)(n, a, *b, r);
    }
  }
};
using Types = testing::Types<double, float>;
TYPED_TEST_SUITE(Toys, Types);

// A deterministic mix of clean values and rare ones, some with a status.
template <class T>
T input(int i, unsigned seed) {
  const unsigned h = (unsigned(i) + 1) * 2654435761u ^ seed * 40503u;
  return h % 5 ? T(h % 97) : -T(h / 5 % 7) - T(h / 35 % 2) / 2;
}

TYPED_TEST(Toys, ValuesEventsAndNothingElse) {
  using T = TypeParam;
  const T canary = T(-12345);
  for (const Kernel& k : kernels)
    for (int n = -1; n < 70; ++n)
      for (const bool in_place : {false, true})
        for (replace = false;; replace = true) {
          const int count = std::max(n, 0);
          alignas(16) T storage[5][80];
          for (auto& row : storage) std::fill(row, row + 80, canary);
          T* a = storage[0] + (n + 4) % 4 + 1;
          T* b = storage[1] + 3;
          T* r = in_place ? a : storage[2] + (n + 6) % 7 + 1;
          T* r2 = storage[3] + 2;
          T x[80], y[80];
          b[0] = T(9);
          for (int i = 0; i < count; ++i) {
            a[i] = x[i] = input<T>(i, unsigned(n));
            y[i] = k.shape == Shape::scalar ? T(9) : T(i);
            if (k.shape != Shape::scalar) b[i] = y[i];
          }
          events.clear();
          this->call(k, n, a, b, r, r2);
          SCOPED_TRACE(std::string(k.name) + " n " + std::to_string(n) +
                       (in_place ? " in place" : "") + (replace ? " replaced" : ""));
          size_t next = 0;
          for (int i = 0; i < count; ++i) {
            const T v = x[i];
            const bool rare = std::signbit(v) || !strcmp(k.name, "element1");
            const int status = v >= -4 && v < 0 && v == T(int(v)) ? int(-v) : 0;
            const T added = k.shape == Shape::binary || k.shape == Shape::scalar ? y[i] : T(1);
            const bool toy_rare_value =
                rare && (v < 0 || k.shape == Shape::two || k.shape == Shape::scalar);
            T want = toy_rare_value ? T(1000) - v : v + v + added, want2 = rare ? T(2000) - v : -v;
            if (status) {
              ASSERT_LT(next, events.size());
              const Seen& e = events[next++];
              ASSERT_EQ(e.status, status);
              ASSERT_EQ(e.index, i);
              ASSERT_EQ(e.a1, double(in_place ? want : v))
                  << "in place, the result stands there already";
              if (k.shape == Shape::scalar || k.shape == Shape::binary) {
                ASSERT_EQ(e.a2, double(y[i]));
              }
              ASSERT_EQ(e.r1, double(want));
              if (k.shape == Shape::two) {
                ASSERT_EQ(e.r2, double(want2));
              }
              if (replace) want = 77, want2 = k.shape == Shape::two ? 78 : want2;
            }
            ASSERT_EQ(r[i], want) << i;
            if (k.shape == Shape::two) {
              ASSERT_EQ(r2[i], want2) << i;
            }
          }
          ASSERT_EQ(next, events.size());
          for (const T* outside : {a - 1, a + count, r - 1, r + count, r2 - 1, r2 + count})
            if (k.shape == Shape::two || (outside != r2 - 1 && outside != r2 + count)) {
              ASSERT_EQ(*outside, canary);
            }
          if (replace) break;
        }
}

// When the callback runs, lower lanes of a block are stored in a block frame, those of the
// same chunk not yet in a chunk frame.
TYPED_TEST(Toys, OrderOfStores) {
  using T = TypeParam;
  static const T* output;
  static T first_seen;
  struct Peek {
    static int32_t look(ork_error_record*) {
      first_seen = *output;
      return 0;
    }
  };
  this->toy.template get<ork_error_callback(ork_error_callback)>("ork_zem_kernel_SetErrorCallBack")(
      Peek::look);
  this->set_mode(ORK_ZEM_ERRMODE_CALLBACK);
  for (const Kernel& k : kernels) {
    if (k.shape != Shape::unary || !strcmp(k.name, "element1")) continue;
    alignas(16) T a[16] = {5, -1}, r[16] = {};
    output = r;
    this->call(k, 16, a, a, r, r);
    EXPECT_EQ(first_seen, k.clean_last ? T(0) : T(11)) << k.name;
  }
}

TYPED_TEST(Toys, ControlWordsInsideAndAfter) {
  using T = TypeParam;
  replace = false;
  for (const Kernel& k : kernels)
    for (const uint32_t mode : {ORK_ZEM_DENORMAL_KEEP, ORK_ZEM_DENORMAL_ZERO})
      for (unsigned rounding = 0; rounding < 4; ++rounding) {
        T a[] = {1, 2, -1}, b[] = {9, 9, 9}, r[3], r2[3];
        this->set_mode(mode);
        const unsigned csr = 0x1F80 | rounding << 13 | (mode == ORK_ZEM_DENORMAL_KEEP ? 0x8040 : 0);
        _mm_setcsr(csr);
        set_x87_control(0x027F);
        this->call(k, 3, a, b, r, r2);
        EXPECT_EQ(mxcsr_control(), csr) << k.name;
        EXPECT_EQ(x87_control(), 0x027F) << k.name;
        const unsigned wanted = (mode == ORK_ZEM_DENORMAL_ZERO ? 0x8040u : 0u) |
                                (k.shape == Shape::scalar ? 0x2000u : 0u);
        EXPECT_EQ(csr_in_callback & 0xE040, wanted) << k.name;
        EXPECT_EQ(x87_in_callback & 0xF00, k.shape == Shape::two ? 0x300 : 0x200) << k.name;
      }
  _mm_setcsr(0x1F80);
}

}  // namespace
