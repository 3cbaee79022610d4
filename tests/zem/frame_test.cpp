// What every elementwise kernel owes to its frame, checked on all that exist: lengths, offsets,
// guard pages, in-place calls, lanes beside special lanes, control words, rounding modes.
#include "support/bits.hpp"
#include "support/control.hpp"
#include "support/memory.hpp"
#include "support/pch.hpp"
#include "support/special.hpp"

namespace {

template <class T>
class Frame : public testing::Test {
 protected:
  StateGuard guard;
  Frame() { ork_zem_kernel_SetMode(ORK_ZEM_ERRMODE_IGNORE); }
};
using Types = testing::Types<double, float>;
TYPED_TEST_SUITE(Frame, Types);

// Inside every function's domain.
template <class T>
T tame(int i) {
  return T(0.1) + T(i % 13) / T(17);
}

// Values of which each is special to some function.
template <class T>
std::vector<T> wild() {
  std::vector<T> values = {T(0),
                           T(1),
                           T(2),
                           T(0.5),
                           T(1.5),
                           T(10),
                           T(33),
                           T(90),
                           T(200),
                           T(720),
                           T(1e5),
                           T(1e9),
                           T(1e30),
                           largest<T>,
                           smallest_normal<T>,
                           smallest_denormal<T>,
                           smallest_normal<T> / 2,
                           inf<T>,
                           quiet_nan<T>};
  for (size_t i = 0, n = values.size(); i < n; ++i) values.push_back(-values[i]);
  return values;
}

template <class T>
struct One {
  T r, r2;
};
template <class T>
One<T> alone(const Call<T>& call, T a, T b) {
  One<T> one{0, 0};
  call(1, &a, &b, &one.r, &one.r2);
  return one;
}

template <class T>
int longest(const Call<T>&) {
  return int(2 * 16 * 8 / sizeof(T) + 3);
}

// NaN payloads are not part of the promise where an operation meets two of them.
template <class T>
bool same(T x, T y) {
  return bits(x) == bits(y) || (std::isnan(x) && std::isnan(y));
}

// Where one division serves several elements, their last bits depend on each other.
template <class T>
bool agrees(const Call<T>& call, T x, T y) {
  const std::string name = call.slot->name(call.level);
  const bool shared = name == "dDiv_W7LA" || !strcmp(call.slot->function, "LinearFrac");
  return same(x, y) ||
         (shared && std::fabs(x - y) <= 4 * std::numeric_limits<T>::epsilon() * std::fabs(y));
}

// Values that flow through lanes of any place have the bits of a call of their own, and nothing
// is read or written beyond either end.
TYPED_TEST(Frame, LengthsOffsetsAndPages) {
  using T = TypeParam;
  for (const auto& call : elementwise_kernels<T>()) {
    const int top = longest(call);
    GuardedPages pa(4096), pb(4096), pr(4096), pr2(4096);
    std::vector<One<T>> expected;
    for (int i = 0; i < 13; ++i) expected.push_back(alone(call, tame<T>(i), tame<T>(3)));
    const auto check = [&](int n, T* a, T* b, T* r, T* r2, const char* what) {
      for (int i = 0; i < n; ++i) {
        const T x = tame<T>(i), y = tame<T>(3);
        memcpy(a + i, &x, sizeof x), memcpy(b + i, &y, sizeof y);
      }
      if (call.slot->form == Form::scalar && n <= 0) b = pb.template at_start<T>();
      call(n, a, b, r, r2);
      for (int i = 0; i < n; ++i) {
        T got, got2;
        memcpy(&got, r + i, sizeof got), memcpy(&got2, r2 + i, sizeof got2);
        ASSERT_TRUE(agrees(call, got, expected[size_t(i % 13)].r))
            << call.slot->name(call.level) << " n " << n << " element " << i << " " << what;
        if (call.outputs() == 2) {
          ASSERT_EQ(bits(got2), bits(expected[size_t(i % 13)].r2)) << call.slot->name(call.level);
        }
      }
    };
    for (int n = -1; n <= top; ++n) {
      check(n, pa.template at_end<T>(n), pb.template at_end<T>(n), pr.template at_end<T>(n),
            pr2.template at_end<T>(n), "at the page's end");
      check(n, pa.template at_start<T>(), pb.template at_start<T>(), pr.template at_start<T>(),
            pr2.template at_start<T>(), "at the page's start");
      T* in_place = pa.template at_end<T>(n);
      check(n, in_place, pb.template at_end<T>(n), in_place, pr2.template at_end<T>(n), "in place");
      if (call.inputs() == 2) {
        T* b = pb.template at_end<T>(n);
        check(n, pa.template at_end<T>(n), b, b, pr2.template at_end<T>(n), "in place of b");
      }
      if (this->HasFatalFailure()) return;
    }
    for (int offset = 0; offset < 16; ++offset) {
      check(top, pa.template at_start<T>(offset), pb.template at_start<T>((offset * 5) % 16),
            pr.template at_start<T>((offset * 7) % 16), pr2.template at_start<T>(offset),
            "at an offset");
      if (this->HasFatalFailure()) return;
    }
  }
}

// One special lane among tame ones, at every place of blocks, prefix and tail.
TYPED_TEST(Frame, SpecialLanesDoNotDisturbTheirNeighbours) {
  using T = TypeParam;
  for (const auto& call : elementwise_kernels<T>()) {
    const int n = int(16 * 5 / sizeof(T)) + 3;
    const T b = tame<T>(3);
    std::vector<One<T>> expected;
    for (int i = 0; i < 13; ++i) expected.push_back(alone(call, tame<T>(i), b));
    for (const T x : wild<T>()) {
      const One<T> special = alone(call, x, b);
      for (int place = 0; place < n; ++place)
        for (const bool in_place : {false, true}) {
          alignas(16) T a[80], bs[80], r[80], r2[80];
          T* start = a + place % 3;  // also off the 16-byte boundary
          for (int i = 0; i < n; ++i) start[i] = i == place ? x : tame<T>(i), bs[i] = b;
          T* out = in_place ? start : r;
          call(n, start, bs, out, r2);
          for (int i = 0; i < n; ++i) {
            const One<T>& want = i == place ? special : expected[size_t(i % 13)];
            ASSERT_TRUE(agrees(call, out[i], want.r) &&
                        (call.outputs() == 1 || same(r2[i], want.r2)))
                << call.slot->name(call.level) << " special " << x << " at " << place
                << ", element " << i << ": " << out[i] << " not " << want.r;
          }
        }
    }
  }
}

// Two wild operands in each pairing, side by side in one call.
TYPED_TEST(Frame, SpecialPairsKeepTheirPlaces) {
  using T = TypeParam;
  const auto values = wild<T>();
  for (const auto& call : elementwise_kernels<T>()) {
    if (call.inputs() != 2) continue;
    std::vector<T> a, b;
    for (const T x : values)
      for (const T y : values) a.push_back(x), b.push_back(y);
    std::vector<T> r(a.size()), r2(a.size());
    call(int(a.size()), a.data(), b.data(), r.data(), r2.data());
    for (size_t i = 0; i < a.size(); ++i)
      ASSERT_TRUE(agrees(call, r[i], alone(call, a[i], b[i]).r))
          << call.slot->name(call.level) << "(" << a[i] << ", " << b[i] << ")";
  }
}

bool follows_rounding_mode(const Slot& slot) {
  return !strcmp(slot.function, "Rint") || !strcmp(slot.function, "NearbyInt");
}
bool without_frame(const Slot& slot) {
  for (const char* f : {"Abs", "CdfNormInv", "ErfcInv", "LGamma", "TGamma"})
    if (!strcmp(slot.function, f)) return true;
  return follows_rounding_mode(slot);
}

// Kernels that set the x87 control word themselves. The others that use the unit, for a rare
// lane, compute there under the caller's word.
bool sets_x87(const std::string& kernel) {
  for (const char* name :
       {"dAcosh_W7HA", "dAsinh_W7HA", "dAtanh_W7HA", "dSinh_W7HA", "dHypot_W7HA", "dDiv_W7LA",
        "dSin_T7HA", "dCos_T7HA", "dSinCos_W7LA", "dTan_W7EP", "dTan_W7LA", "sPow_T7HA"})
    if (kernel == name) return true;
  return false;
}

// Control words come back as they were, whatever they were, also after special lanes, and
// results don't depend on the caller's rounding mode.
TYPED_TEST(Frame, ProcessorStateIsRestoredAndRoundingIsNearest) {
  using T = TypeParam;
  std::vector<T> a = wild<T>(), r(a.size()), r2(a.size()), nearest(a.size());
  for (int i = 0; i < 40; ++i)
    a.push_back(tame<T>(i)), r.push_back(0), r2.push_back(0), nearest.push_back(0);
  const std::vector<T> b(a.size(), tame<T>(3));
  const int n = int(a.size());
  for (const auto& call : elementwise_kernels<T>()) {
    call(n, a.data(), b.data(), nearest.data(), r2.data());
    for (unsigned rounding = 0; rounding < 4; ++rounding)
      for (const unsigned flush : {0u, 0x8000u, 0x0040u, 0x8040u})
        for (const unsigned short x87 : {0x037F, 0x027F, 0x0F7F}) {
          const unsigned csr = 0x1F80 | rounding << 13 | flush;
          _mm_setcsr(csr);
          set_x87_control(x87);
          call(n, a.data(), b.data(), r.data(), r2.data());
          const unsigned csr_after = mxcsr_control();
          const unsigned short x87_after = x87_control();
          _mm_setcsr(0x1F80);
          set_x87_control(0x037F);
          ASSERT_EQ(csr_after, csr) << call.slot->name(call.level);
          ASSERT_EQ(x87_after, x87) << call.slot->name(call.level);
          if (without_frame(*call.slot)) continue;
          if (x87 != 0x037F && !sets_x87(call.slot->name(call.level))) continue;
          for (int i = 0; i < n; ++i)
            ASSERT_TRUE(same(r[size_t(i)], nearest[size_t(i)]))
                << call.slot->name(call.level) << " of " << a[size_t(i)] << " with MXCSR "
                << std::hex << csr << ", x87 " << x87 << ": " << r[size_t(i)] << " not "
                << nearest[size_t(i)];
        }
  }
}

// The caller's stack may be aligned to 4 bytes only.
TYPED_TEST(Frame, MisalignedStack) {
  using T = TypeParam;
  alignas(16) T a[40], b[40], r[40];
  for (int i = 0; i < 40; ++i) a[i] = i == 7 ? inf<T> : tame<T>(i), b[i] = tame<T>(3);
  for (const auto& call : elementwise_kernels<T>()) {
    if (call.slot->form != Form::unary && call.slot->form != Form::binary) continue;
    const bool two = call.slot->form == Form::binary;
    for (int shift = 0; shift < 16; shift += 4) {
      const void* arguments[] = {a, two ? static_cast<const void*>(b) : r, r};
      const void* const* at = arguments;
      int n = 39;
      const void* kernel = call.slot->table[call.level];
      asm volatile(
          "mov %%esp, %%esi\n\t"
          "and $-16, %%esp\n\t"
          "sub %[shift], %%esp\n\t"
          "push 8(%[at])\n\t"
          "push 4(%[at])\n\t"
          "push (%[at])\n\t"
          "push %[n]\n\t"
          "call *%[kernel]\n\t"
          "mov %%esi, %%esp"
          : [at] "+d"(at), [n] "+a"(n), [kernel] "+c"(kernel)
          : [shift] "D"(shift)
          : "esi", "memory", "cc", "xmm0", "xmm1", "xmm2", "xmm3", "xmm4", "xmm5", "xmm6", "xmm7");
    }
    ASSERT_TRUE(agrees(call, r[38], alone(call, a[38], b[38]).r)) << call.slot->name(call.level);
  }
}

}  // namespace
