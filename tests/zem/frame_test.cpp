// What every elementwise kernel owes to its frame, checked on all that exist: lengths, offsets,
// guard pages, in-place calls, lanes beside special lanes, control words, rounding modes.
#include <array>

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

// Real and complex kernels. Of an element of one number, the second part stays 0.
template <class T>
std::vector<Call<T>> all_kernels() {
  auto calls = elementwise_kernels<T>();
  const auto more = complex_kernels<T>();
  calls.insert(calls.end(), more.begin(), more.end());
  return calls;
}
template <class T>
using Value = std::array<T, 2>;
template <class T>
Value<T> tame_value(int i) {
  return {tame<T>(i), tame<T>(i + 5)};
}
template <class T>
void put(T* array, int i, int parts, const Value<T>& x) {
  memcpy(array + i * parts, x.data(), size_t(parts) * sizeof(T));
}
template <class T>
Value<T> get(const T* array, int i, int parts) {
  Value<T> x = {};
  memcpy(x.data(), array + i * parts, size_t(parts) * sizeof(T));
  return x;
}
// The wild values in either part of a complex input, beside tame ones and beside each other.
template <class T>
std::vector<Value<T>> wild_values(const Call<T>& call) {
  std::vector<Value<T>> values;
  const auto w = wild<T>();
  for (size_t i = 0; i < w.size(); ++i) {
    values.push_back({w[i], tame<T>(2)});
    if (call.in_parts() == 2)
      values.insert(values.end(), {{tame<T>(2), w[i]}, {w[i], w[(i + 7) % w.size()]}});
  }
  return values;
}

template <class T>
struct One {
  Value<T> r, r2;
};
template <class T>
One<T> alone(const Call<T>& call, const Value<T>& a, const Value<T>& b) {
  One<T> one{};
  call(1, a.data(), b.data(), one.r.data(), one.r2.data());
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

template <class T>
bool same(const Value<T>& x, const Value<T>& y) {
  return same(x[0], y[0]) && same(x[1], y[1]);
}

// Where one division serves several elements, their last bits depend on each other.
template <class T>
bool agrees(const Call<T>& call, const Value<T>& x, const Value<T>& y) {
  const std::string name = call.slot->name(call.level);
  const bool shared = name == "dDiv_W7LA" || !strcmp(call.slot->function, "LinearFrac");
  return same(x, y) || (shared && std::fabs(x[0] - y[0]) <=
                                      4 * std::numeric_limits<T>::epsilon() * std::fabs(y[0]));
}

// Values that flow through lanes of any place have the bits of a call of their own, and nothing
// is read or written beyond either end.
TYPED_TEST(Frame, LengthsOffsetsAndPages) {
  using T = TypeParam;
  for (const auto& call : all_kernels<T>()) {
    const int top = longest(call), in = call.in_parts(), out = call.out_parts();
    GuardedPages pa(4096), pb(4096), pr(4096), pr2(4096);
    const Value<T> y = tame_value<T>(3);
    std::vector<One<T>> expected;
    for (int i = 0; i < 13; ++i) expected.push_back(alone(call, tame_value<T>(i), y));
    const auto check = [&](int n, T* a, T* b, T* r, T* r2, const char* what) {
      for (int i = 0; i < n; ++i) put(a, i, in, tame_value<T>(i)), put(b, i, in, y);
      if (call.slot->form == Form::scalar && n <= 0) b = pb.template at_start<T>();
      call(n, a, b, r, r2);
      for (int i = 0; i < n; ++i) {
        const One<T>& want = expected[size_t(i % 13)];
        ASSERT_TRUE(agrees(call, get(r, i, out), want.r))
            << call.slot->name(call.level) << " n " << n << " element " << i << " " << what;
        if (call.outputs() == 2) {
          ASSERT_TRUE(same(get(r2, i, out), want.r2)) << call.slot->name(call.level);
        }
      }
    };
    for (int n = -1; n <= top; ++n) {
      T* const a = pa.template at_end<T>(n * in);
      T* const b = pb.template at_end<T>(n * in);
      check(n, a, b, pr.template at_end<T>(n * out), pr2.template at_end<T>(n * out),
            "at the page's end");
      check(n, pa.template at_start<T>(), pb.template at_start<T>(), pr.template at_start<T>(),
            pr2.template at_start<T>(), "at the page's start");
      if (in == out) check(n, a, b, a, pr2.template at_end<T>(n * out), "in place");
      if (call.inputs() == 2) check(n, a, b, b, pr2.template at_end<T>(n * out), "in place of b");
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
  for (const auto& call : all_kernels<T>()) {
    const int n = int(16 * 5 / sizeof(T)) + 3, in = call.in_parts(), out = call.out_parts();
    const Value<T> b = tame_value<T>(3);
    std::vector<One<T>> expected;
    for (int i = 0; i < 13; ++i) expected.push_back(alone(call, tame_value<T>(i), b));
    for (const Value<T>& x : wild_values(call)) {
      const One<T> special = alone(call, x, b);
      for (int place = 0; place < n; ++place)
        for (const bool in_place : {false, true}) {
          if (in_place && in != out) continue;
          alignas(16) T a[160], bs[160], r[160], r2[160];
          T* start = a + place % 3;  // also off the 16-byte boundary
          for (int i = 0; i < n; ++i)
            put(start, i, in, i == place ? x : tame_value<T>(i)), put(bs, i, in, b);
          T* to = in_place ? start : r;
          call(n, start, bs, to, r2);
          for (int i = 0; i < n; ++i) {
            const One<T>& want = i == place ? special : expected[size_t(i % 13)];
            ASSERT_TRUE(agrees(call, get(to, i, out), want.r) &&
                        (call.outputs() == 1 || same(get(r2, i, out), want.r2)))
                << call.slot->name(call.level) << " special " << x[0] << " " << x[1] << " at "
                << place << ", element " << i << ": " << get(to, i, out)[0] << " not " << want.r[0];
          }
        }
    }
  }
}

// Two wild operands in each pairing, side by side in one call.
TYPED_TEST(Frame, SpecialPairsKeepTheirPlaces) {
  using T = TypeParam;
  for (const auto& call : all_kernels<T>()) {
    if (call.inputs() != 2) continue;
    const auto values = wild_values(call);
    const int parts = call.in_parts(), n = int(values.size() * values.size());
    std::vector<T> a(size_t(n * parts)), b(a), r(a), r2(a);
    for (int i = 0; i < n; ++i) {
      put(a.data(), i, parts, values[size_t(i) / values.size()]);
      put(b.data(), i, parts, values[size_t(i) % values.size()]);
    }
    call(n, a.data(), b.data(), r.data(), r2.data());
    for (int i = 0; i < n; ++i) {
      const Value<T> x = get(a.data(), i, parts), y = get(b.data(), i, parts);
      ASSERT_TRUE(agrees(call, get(r.data(), i, parts), alone(call, x, y).r))
          << call.slot->name(call.level) << "(" << x[0] << " " << x[1] << ", " << y[0] << " "
          << y[1] << ")";
    }
  }
}

bool follows_rounding_mode(const Slot& slot) {
  return !strcmp(slot.function, "Rint") || !strcmp(slot.function, "NearbyInt");
}
bool without_frame(const Slot& slot) {
  if (slot.type == 'd' || slot.type == 's')
    for (const char* f : {"Abs", "CdfNormInv", "ErfcInv", "LGamma", "TGamma"})
      if (!strcmp(slot.function, f)) return true;
  for (const char* f : {"Conj"})
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

// But for two kernels, whose NaNs come out as they went in.
TYPED_TEST(Frame, SignallingNansComeOutQuiet) {
  using T = TypeParam;
  const T signalling = std::numeric_limits<T>::signaling_NaN();
  const auto is_signalling = [](T x) {
    return std::isnan(x) && !(bits(x) >> (std::numeric_limits<T>::digits - 2) & 1);
  };
  for (const auto& call : elementwise_kernels<T>()) {
    const std::string name = call.slot->name(call.level);
    if (name == "dLn_W7HA" || name == "dLog10_W7HA") continue;
    const bool two = call.inputs() == 2 || call.slot->form == Form::scalar;
    for (const T other : {T(0.3), T(0), T(1), T(2), inf<T>})
      for (const bool second : {false, true}) {
        if (second && !two) continue;
        T a[9], b[9], r[9], r2[9] = {};
        for (int i = 0; i < 9; ++i) {
          memcpy(a + i, second ? &other : &signalling, sizeof(T));
          memcpy(b + i, second ? &signalling : &other, sizeof(T));
        }
        call(9, a, b, r, r2);
        for (const int i : {0, 8}) {
          ASSERT_FALSE(is_signalling(r[i])) << name << " " << other;
          ASSERT_FALSE(is_signalling(r2[i])) << name << " " << other;
        }
      }
  }
}

// Control words come back as they were, whatever they were, also after special lanes, and
// results don't depend on the caller's rounding mode.
TYPED_TEST(Frame, ProcessorStateIsRestoredAndRoundingIsNearest) {
  using T = TypeParam;
  for (const auto& call : all_kernels<T>()) {
    const int in = call.in_parts(), out = call.out_parts();
    auto values = wild_values(call);
    for (int i = 0; i < 40; ++i) values.push_back(tame_value<T>(i));
    const int n = int(values.size());
    std::vector<T> a(size_t(n * in)), b(a), r(size_t(n * out)), r2(r), nearest(r);
    for (int i = 0; i < n; ++i)
      put(a.data(), i, in, values[size_t(i)]), put(b.data(), i, in, tame_value<T>(3));
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
          for (int i = 0; i < n; ++i) {
            const Value<T> got = get(r.data(), i, out), want = get(nearest.data(), i, out);
            ASSERT_TRUE(same(got, want))
                << call.slot->name(call.level) << " of " << values[size_t(i)][0] << " "
                << values[size_t(i)][1] << " with MXCSR " << std::hex << csr << ", x87 " << x87
                << ": " << got[0] << " " << got[1] << " not " << want[0] << " " << want[1];
          }
        }
  }
}

// The caller's stack may be aligned to 4 bytes only.
TYPED_TEST(Frame, MisalignedStack) {
  using T = TypeParam;
  alignas(16) T a[80], b[80], r[80];
  for (const auto& call : all_kernels<T>()) {
    if (call.outputs() == 2 || call.slot->form == Form::scalar || call.slot->form == Form::linear)
      continue;
    for (int i = 0; i < 40; ++i) {
      put(a, i, call.in_parts(), i == 7 ? Value<T>{inf<T>, inf<T>} : tame_value<T>(i));
      put(b, i, call.in_parts(), tame_value<T>(3));
    }
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
    const Value<T> want = alone(call, tame_value<T>(38), tame_value<T>(3)).r;
    ASSERT_TRUE(agrees(call, get(r, 38, call.out_parts()), want)) << call.slot->name(call.level);
  }
}

}  // namespace
