// Vector kernels: cycles per element beside the cost figure and the peers of the same run.
//
//   kernels_bench [NAME ...] [--record]      NAME: a function, "Exp" or "dExp"
//
// 1024 elements in the first-level cache, uniform in the interval that the function's claims
// declare. Peers: the C library's scalar loop, SLEEF's SSE2 forms of 1.0 and 3.5 ulp (opened at
// run time), a hand-written SSE2 loop for the arithmetic.
#include <dlfcn.h>
#include <emmintrin.h>

#include <cmath>
#include <cstring>
#include <map>

#include "registry/claims.hpp"
#include "registry/kernels.hpp"
#include "support.hpp"

namespace {

constexpr int n = 1024;

struct Peer {
  const char* function;
  const char* c_name;      // of the double form in the C library; the single form has an f more
  const char* sleef_name;  // "exp" of Sleef_expd2_u10sse2
};
const Peer peers[] = {{"Exp", "exp", "exp"},
                      {"Expm1", "expm1", "expm1"},
                      {"Ln", "log", "log"},
                      {"Log10", "log10", "log10"},
                      {"Log1p", "log1p", "log1p"},
                      {"Sqrt", "sqrt", "sqrt"},
                      {"Cbrt", "cbrt", "cbrt"},
                      {"Sin", "sin", "sin"},
                      {"Cos", "cos", "cos"},
                      {"Tan", "tan", "tan"},
                      {"SinCos", "sincos", "sincos"},
                      {"Pow", "pow", "pow"},
                      {"Hypot", "hypot", "hypot"},
                      {"Asin", "asin", "asin"},
                      {"Acos", "acos", "acos"},
                      {"Atan", "atan", "atan"},
                      {"Atan2", "atan2", "atan2"},
                      {"Sinh", "sinh", "sinh"},
                      {"Cosh", "cosh", "cosh"},
                      {"Tanh", "tanh", "tanh"},
                      {"Asinh", "asinh", "asinh"},
                      {"Acosh", "acosh", "acosh"},
                      {"Atanh", "atanh", "atanh"},
                      {"Erf", "erf", "erf"},
                      {"Erfc", "erfc", "erfc"},
                      {"LGamma", "lgamma", "lgamma"},
                      {"TGamma", "tgamma", "tgamma"},
                      {"Floor", "floor", "floor"},
                      {"Ceil", "ceil", "ceil"},
                      {"Trunc", "trunc", "trunc"},
                      {"Round", "round", "round"},
                      {"Rint", "rint", "rint"},
                      {"NearbyInt", "nearbyint", "rint"}};

void* libm() {
  static void* library = dlopen("libm.so.6", RTLD_NOW);
  return library;
}
void* sleef() {
  static void* library = dlopen("libsleef.so.3", RTLD_NOW);
  return library;
}

template <class T>
struct Width;
template <>
struct Width<double> {
  using vec = __m128d;
  static constexpr char letter = 'd';
  static vec load(const double* p) { return _mm_load_pd(p); }
  static void store(double* p, vec x) { _mm_store_pd(p, x); }
};
template <>
struct Width<float> {
  using vec = __m128;
  static constexpr char letter = 's';
  static vec load(const float* p) { return _mm_load_ps(p); }
  static void store(float* p, vec x) { _mm_store_ps(p, x); }
};

template <class T>
struct Bench {
  using vec = typename Width<T>::vec;
  static constexpr int width = 16 / sizeof(T);
  alignas(64) T a[n], b[n], r[n], r2[n];

  void fill(const Range& range) {
    uint64_t state = 1;
    const auto next = [&](double low, double high) {
      state = state * 6364136223846793005u + 1442695040888963407u;
      return T(low + (high - low) * double(state >> 11) * 0x1p-53);
    };
    for (int i = 0; i < n; ++i)
      a[i] = next(range.low, range.high), b[i] = next(range.low2, range.high2);
  }

  // 0 where there is no such peer.
  double c_library(const Slot& slot, const Peer& peer) {
    void* f = dlsym(libm(), (std::string(peer.c_name) + (sizeof(T) == 8 ? "" : "f")).c_str());
    if (!f) return 0;
    const auto timed = [&](auto body) { return time_calls(body, 30).least / n; };
    switch (slot.form) {
      case Form::binary: {
        const auto g = reinterpret_cast<T (*)(T, T)>(f);
        return timed([&] {
          for (int i = 0; i < n; ++i) r[i] = g(a[i], b[i]);
        });
      }
      case Form::two: {
        const auto g = reinterpret_cast<void (*)(T, T*, T*)>(f);
        return timed([&] {
          for (int i = 0; i < n; ++i) g(a[i], r + i, r2 + i);
        });
      }
      default: {
        const auto g = reinterpret_cast<T (*)(T)>(f);
        return timed([&] {
          for (int i = 0; i < n; ++i) r[i] = g(a[i]);
        });
      }
    }
  }

  // The form of the given accuracies, the first that exists.
  double sleef_form(const Slot& slot, const Peer& peer, std::vector<const char*> accuracies) {
    if (!sleef()) return 0;
    void* f = nullptr;
    for (const char* u : accuracies) {
      const std::string name =
          std::string("Sleef_") + peer.sleef_name + (sizeof(T) == 8 ? "d2" : "f4") + u + "sse2";
      if (!f) f = dlsym(sleef(), name.c_str());
    }
    if (!f) return 0;
    using W = Width<T>;
    switch (slot.form) {
      case Form::binary: {
        const auto g = reinterpret_cast<vec (*)(vec, vec)>(f);
        return time_calls([&] {
                 for (int i = 0; i < n; i += width)
                   W::store(r + i, g(W::load(a + i), W::load(b + i)));
               }).least /
               n;
      }
      case Form::two: {
        struct Pair {
          vec x, y;
        };
        const auto g = reinterpret_cast<Pair (*)(vec)>(f);
        return time_calls([&] {
                 for (int i = 0; i < n; i += width) {
                   const Pair p = g(W::load(a + i));
                   W::store(r + i, p.x), W::store(r2 + i, p.y);
                 }
               }).least /
               n;
      }
      default: {
        const auto g = reinterpret_cast<vec (*)(vec)>(f);
        return time_calls([&] {
                 for (int i = 0; i < n; i += width) W::store(r + i, g(W::load(a + i)));
               }).least /
               n;
      }
    }
  }

  // The obvious SSE2 loop, in the forms of the kernels that it stands beside.
  template <class Op>
  static void loop(int count, const T* x, const T* y, T* z) {
    using W = Width<T>;
    for (int i = 0; i < count; i += 4 * width)
#pragma GCC unroll 4
      for (int k = i; k < i + 4 * width; k += width)
        W::store(z + k, Op()(W::load(x + k), W::load(y + k)));
  }
  template <class Op>
  static void square(int count, const T* x, T* z) {
    loop<Op>(count, x, x, z);
  }

  // For Add, Sub, Mul and Sqr, called as the kernels are: through a table; 0 for others.
  double hand_written(const Slot& slot) {
    const auto timed = [&](auto* function) {
      const void* const table[3] = {reinterpret_cast<const void*>(function)};
      Slot hand = slot;
      hand.table = table;
      const Call<T> call{&hand, 0};
      return time_calls([&] { call(n, a, b, r, r2); }, 4000).least / n;
    };
    const auto add = [](vec x, vec y) { return x + y; };
    const auto sub = [](vec x, vec y) { return x - y; };
    const auto mul = [](vec x, vec y) { return x * y; };
    const std::string f = slot.function;
    if (f == "Add") return timed(loop<decltype(add)>);
    if (f == "Sub") return timed(loop<decltype(sub)>);
    if (f == "Mul") return timed(loop<decltype(mul)>);
    if (f == "Sqr") return timed(square<decltype(mul)>);
    return 0;
  }
};

std::string ratio(double cycles, double ours) {
  return cycles == 0 ? std::string("      -       ")
                     : format("%6.2f (%5.2f)", cycles, cycles / ours);
}

template <class T>
void run(Report& report, const Claims& claims, const Slot& slot) {
  static Bench<T> bench;
  const std::string name = slot.type + std::string(slot.function);
  const auto range = claims.bench.find(name);
  bench.fill(range == claims.bench.end() ? Range{false, 0.1, 0.9, 0.1, 0.9} : range->second);
  const Peer* peer = nullptr;
  for (const Peer& p : peers)
    if (!strcmp(p.function, slot.function)) peer = &p;
  const double hand = bench.hand_written(slot);
  const double c = peer ? bench.c_library(slot, *peer) : 0;
  const double fine = peer ? bench.sleef_form(slot, *peer, {"_u10", "_u05", "_u15", "_"}) : 0;
  const double coarse = peer ? bench.sleef_form(slot, *peer, {"_u35"}) : 0;
  for (int level = 0; level < 3; ++level) {
    bool again = false;
    for (int lower = 0; lower < level; ++lower) again |= slot.table[lower] == slot.table[level];
    if (again || !slot.exists(level)) continue;
    const Call<T> call{&slot, level};
    const Cycles cycles = time_calls([&] { call(n, bench.a, bench.b, bench.r, bench.r2); }, 4000);
    const double ours = cycles.least / n;
    report.line(format("%-18s %7.2f %7.2f  %7.2f  ", slot.name(level).c_str(), ours,
                       cycles.median / n, double(slot.costs[level])) +
                ratio(hand, ours) + ratio(fine, ours) + ratio(coarse, ours) + ratio(c, ours));
  }
}

void short_calls(Report& report) {
  alignas(16) double a[8] = {1, 2, 3, 4, 5, 6, 7, 8}, r[8];
  const double empty = time_calls([] { asm volatile("" : : : "memory"); }, 100000).least;
  const Cycles add = time_calls([&] { _zemdAdd(8, a, a, r); }, 100000);
  report.line(
      format("dAdd of 8 elements through a stub: %.0f cycles a call (an empty timing: %.0f)",
             add.least - empty, empty));
}

}  // namespace

int main(int argc, char** argv) {
  Report report("kernels", argc, argv);
  const Claims claims = read_claims(report.root());
  if (!sleef()) report.line("SLEEF for i386 is not installed: its columns are empty");
  report.line(format("%-18s %7s %7s  %7s  %-14s%-14s%-14s%-14s", "kernel", "least", "median",
                     "cost", " hand (ratio)", " SLEEF 1.0", " SLEEF 3.5", " C library"));
  for (const Slot& slot : slots) {
    if (slot.form >= Form::pack_i ||
        !(report.wants(slot.function) || report.wants(slot.type + std::string(slot.function))))
      continue;
    if (slot.type == 'd') run<double>(report, claims, slot);
    if (slot.type == 's') run<float>(report, claims, slot);
  }
  if (report.wants_all()) short_calls(report);
}
