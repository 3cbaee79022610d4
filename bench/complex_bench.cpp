// Complex kernels: cycles per element beside the cost figure and the peers of the same run.
//
//   complex_bench [NAME ...] [--record]      NAME: a function, "Mul" or "zMul"
//
// 1024 elements in the first-level cache, parts uniform in the interval that the function's claims
// declare. Peers: the compiler's loop over _Complex arrays with what the C library and the
// compiler's own library give it (cabs, carg, sincos, cexp and so on, __muldc3, __divdc3), and for
// sums and products at EP a hand-written SSE3 loop.
#include <complex.h>
#include <pmmintrin.h>

#include <cmath>
#include <cstring>

#include "registry/claims.hpp"
#include "registry/kernels.hpp"
#include "support.hpp"

namespace {

constexpr int n = 1024;

template <class T>
struct Types;
template <>
struct Types<double> {
  typedef __complex__ double complex;
  using vec = __m128d;
  static vec load(const double* p) { return _mm_load_pd(p); }
  static void store(double* p, vec x) { _mm_store_pd(p, x); }
  static vec product(vec a, vec b) {
    const vec turned = _mm_shuffle_pd(b, b, 1);
    return _mm_addsub_pd(_mm_unpacklo_pd(a, a) * b, _mm_unpackhi_pd(a, a) * turned);
  }
};
template <>
struct Types<float> {
  typedef __complex__ float complex;
  using vec = __m128;
  static vec load(const float* p) { return _mm_load_ps(p); }
  static void store(float* p, vec x) { _mm_store_ps(p, x); }
  static vec product(vec a, vec b) {
    const vec turned = _mm_shuffle_ps(b, b, 0xB1);
    return _mm_addsub_ps(_mm_moveldup_ps(a) * b, _mm_movehdup_ps(a) * turned);
  }
};

template <class T>
struct Bench {
  using C = typename Types<T>::complex;
  using W = Types<T>;
  alignas(64) T a[2 * n], b[2 * n], r[2 * n];

  void fill(const Range& range) {
    uint64_t state = 1;
    for (T* x : {a, b})
      for (int i = 0; i < 2 * n; ++i) {
        state = state * 6364136223846793005u + 1442695040888963407u;
        x[i] = T(range.low + (range.high - range.low) * double(state >> 11) * 0x1p-53);
      }
  }

  template <class F>
  double timed(F body, int runs = 400) {
    return time_calls(
               [&] {
                 body();
                 asm volatile("" : : : "memory");
               },
               runs)
               .least /
           n;
  }

  // The compiler's loop.
  double c_loop(const std::string& f) {
    const C *x = reinterpret_cast<const C*>(a), *y = reinterpret_cast<const C*>(b);
    C* z = reinterpret_cast<C*>(r);
    constexpr bool wide = sizeof(T) == 8;
#define LOOP(expression)                             \
  timed([&] {                                        \
    for (int i = 0; i < n; ++i) z[i] = (expression); \
  })
#define REAL_LOOP(expression)                         \
  timed([&] {                                         \
    for (int i = 0; i < n; ++i) r[i] = T(expression); \
  })
    if (f == "Add") return LOOP(x[i] + y[i]);
    if (f == "Sub") return LOOP(x[i] - y[i]);
    if (f == "Mul") return LOOP(x[i] * y[i]);
    if (f == "MulByConj") return LOOP(x[i] * ~y[i]);
    if (f == "Div") return LOOP(x[i] / y[i]);
    if (f == "Conj") return LOOP(~x[i]);
    if (f == "Abs") return REAL_LOOP(wide ? __builtin_cabs(x[i]) : __builtin_cabsf(x[i]));
    if (f == "Arg") return REAL_LOOP(wide ? __builtin_carg(x[i]) : __builtin_cargf(x[i]));
    if (f == "CIS")
      return timed([&] {
        for (int i = 0; i < n; ++i) {
          if constexpr (wide)
            __builtin_sincos(a[i], r + 2 * i + 1, r + 2 * i);
          else
            __builtin_sincosf(a[i], r + 2 * i + 1, r + 2 * i);
        }
      });
#define ELEMENTARY(name, c_name) \
  if (f == #name) return LOOP(wide ? __builtin_##c_name(x[i]) : __builtin_##c_name##f(x[i]))
    ELEMENTARY(Acos, cacos);
    ELEMENTARY(Acosh, cacosh);
    ELEMENTARY(Asin, casin);
    ELEMENTARY(Asinh, casinh);
    ELEMENTARY(Atan, catan);
    ELEMENTARY(Atanh, catanh);
    ELEMENTARY(Cos, ccos);
    ELEMENTARY(Cosh, ccosh);
    ELEMENTARY(Exp, cexp);
    ELEMENTARY(Ln, clog);
    ELEMENTARY(Sin, csin);
    ELEMENTARY(Sinh, csinh);
    ELEMENTARY(Sqrt, csqrt);
    ELEMENTARY(Tan, ctan);
    ELEMENTARY(Tanh, ctanh);
    if (f == "Log10")
      return LOOP(wide ? __builtin_clog(x[i]) * 0.4342944819032518
                       : __builtin_clogf(x[i]) * 0.43429447f);
    if (f == "Pow") return LOOP(wide ? __builtin_cpow(x[i], y[i]) : __builtin_cpowf(x[i], y[i]));
    if (f == "Powx") return LOOP(wide ? __builtin_cpow(x[i], y[0]) : __builtin_cpowf(x[i], y[0]));
    return 0;
#undef ELEMENTARY
#undef LOOP
#undef REAL_LOOP
  }

  template <class Op>
  static void loop(int count, const T* x, const T* y, T* z) {
    constexpr int width = 16 / sizeof(T);
    for (int i = 0; i < 2 * count; i += 4 * width)
#pragma GCC unroll 4
      for (int k = i; k < i + 4 * width; k += width)
        W::store(z + k, Op()(W::load(x + k), W::load(y + k)));
  }
  // For sums and products, called as the kernels are: through a pointer; 0 for others.
  double hand_written(const std::string& f) {
    using V = typename W::vec;
    const auto add = [](V x, V y) { return x + y; };
    const auto sub = [](V x, V y) { return x - y; };
    const auto mul = [](V x, V y) { return W::product(x, y); };
    void (*volatile function)(int, const T*, const T*, T*) = f == "Add"   ? loop<decltype(add)>
                                                             : f == "Sub" ? loop<decltype(sub)>
                                                             : f == "Mul" ? loop<decltype(mul)>
                                                                          : nullptr;
    return function ? timed([&] { function(n, a, b, r); }, 4000) : 0;
  }
};

std::string ratio(double cycles, double ours) {
  return cycles == 0 ? std::string("      -       ")
                     : format("%6.2f (%5.2f)", cycles, cycles / ours);
}

template <class T>
void run(Report& report, const Claims& claims, const Slot& slot) {
  static Bench<T> bench;
  const auto range = claims.bench.find(slot.type + std::string(slot.function));
  bench.fill(range == claims.bench.end() ? Range{false, -10, 10, -10, 10} : range->second);
  const double hand = bench.hand_written(slot.function), c = bench.c_loop(slot.function);
  for (int level = 0; level < 3; ++level) {
    bool again = false;
    for (int lower = 0; lower < level; ++lower) again |= slot.table[lower] == slot.table[level];
    if (again || !slot.exists(level)) continue;
    const Call<T> call{&slot, level};
    const Cycles cycles = time_calls([&] { call(n, bench.a, bench.b, bench.r, bench.r); }, 2000);
    const double ours = cycles.least / n;
    report.line(format("%-20s %7.2f %7.2f  %7.2f  ", slot.name(level).c_str(), ours,
                       cycles.median / n, double(slot.costs[level])) +
                ratio(slot.kernels[level][2] == 'E' ? hand : 0, ours) + ratio(c, ours));
  }
}

}  // namespace

int main(int argc, char** argv) {
  Report report("complex", argc, argv);
  const Claims claims = read_claims(report.root());
  report.line(format("%-20s %7s %7s  %7s  %-14s%-14s", "kernel", "least", "median", "cost",
                     " SSE3 (ratio)", " _Complex loop"));
  for (const Slot& slot : slots) {
    if (slot.form >= Form::pack_i ||
        !(report.wants(slot.function) || report.wants(slot.type + std::string(slot.function))))
      continue;
    if (slot.type == 'z') run<double>(report, claims, slot);
    if (slot.type == 'c') run<float>(report, claims, slot);
  }
}
