// Elementary functions of complex numbers: cycles per element beside the cost figure and the C
// library's function in the same run.
//
//   complex_functions_bench [NAME ...] [--record]      NAME: a function, "Exp" or "zExp"
//
// 512 elements in the first-level cache, both parts uniform in the interval that the function's
// claims declare.
#include <cstring>

#include "registry/claims.hpp"
#include "registry/kernels.hpp"
#include "support.hpp"

namespace {

constexpr int n = 512;
typedef __complex__ double Z;
typedef __complex__ float C;

extern "C" {
Z cacos(Z);
C cacosf(C);
Z cacosh(Z);
C cacoshf(C);
Z casin(Z);
C casinf(C);
Z casinh(Z);
C casinhf(C);
Z catan(Z);
C catanf(C);
Z catanh(Z);
C catanhf(C);
Z ccos(Z);
C ccosf(C);
Z ccosh(Z);
C ccoshf(C);
Z cexp(Z);
C cexpf(C);
Z csin(Z);
C csinf(C);
Z csinh(Z);
C csinhf(C);
Z csqrt(Z);
C csqrtf(C);
Z ctan(Z);
C ctanf(C);
Z ctanh(Z);
C ctanhf(C);
Z clog(Z);
C clogf(C);
Z cpow(Z, Z);
C cpowf(C, C);
}

template <class T>
struct Types;
template <>
struct Types<double> {
  using complex = Z;
};
template <>
struct Types<float> {
  using complex = C;
};

// The C library's function, called as a program's own loop over an array calls it.
struct Peer {
  const char* function;
  Z (*z)(Z, Z);
  C (*c)(C, C);
};
#define PEER(name, f, single)                                           \
  {                                                                     \
    name, [](Z x, Z) { return f(x); }, [](C x, C) { return single(x); } \
  }
const Peer peers[] = {PEER("Acos", cacos, cacosf),
                      PEER("Acosh", cacosh, cacoshf),
                      PEER("Asin", casin, casinf),
                      PEER("Asinh", casinh, casinhf),
                      PEER("Atan", catan, catanf),
                      PEER("Atanh", catanh, catanhf),
                      PEER("Cos", ccos, ccosf),
                      PEER("Cosh", ccosh, ccoshf),
                      PEER("Exp", cexp, cexpf),
                      PEER("Sin", csin, csinf),
                      PEER("Sinh", csinh, csinhf),
                      PEER("Sqrt", csqrt, csqrtf),
                      PEER("Tan", ctan, ctanf),
                      PEER("Tanh", ctanh, ctanhf),
                      PEER("Ln", clog, clogf),
                      {"Log10", [](Z x, Z) { return clog(x) * 0.4342944819032518; },
                       [](C x, C) { return clogf(x) * 0.43429447f; }},
                      {"Pow", cpow, cpowf},
                      {"Powx", cpow, cpowf}};

template <class T>
void run(Report& report, const Claims& claims, const Slot& slot, const Peer& peer) {
  using Complex = typename Types<T>::complex;
  alignas(64) static T a[2 * n], b[2 * n], r[2 * n];
  const auto found = claims.bench.find(slot.type + std::string(slot.function));
  const Range range = found == claims.bench.end() ? Range{false, -4, 4, -4, 4} : found->second;
  uint64_t state = 1;
  for (T* x : {a, b})
    for (int i = 0; i < 2 * n; ++i) {
      state = state * 6364136223846793005u + 1442695040888963407u;
      x[i] = T(range.low + (range.high - range.low) * double(state >> 11) * 0x1p-53);
    }
  const auto f = [&] {
    if constexpr (sizeof(T) == 8)
      return peer.z;
    else
      return peer.c;
  }();
  const bool scalar = slot.form == Form::scalar;
  const double c_library = time_calls(
                               [&] {
                                 const auto *x = reinterpret_cast<const Complex*>(a),
                                            *y = reinterpret_cast<const Complex*>(b);
                                 auto* z = reinterpret_cast<Complex*>(r);
                                 for (int i = 0; i < n; ++i) z[i] = f(x[i], y[scalar ? 0 : i]);
                                 asm volatile("" : : : "memory");
                               },
                               100)
                               .least /
                           n;
  for (int level = 0; level < 3; ++level) {
    bool again = !slot.exists(level);
    for (int lower = 0; lower < level; ++lower) again |= slot.table[lower] == slot.table[level];
    if (again) continue;
    const Call<T> call{&slot, level};
    const Cycles cycles = time_calls([&] { call(n, a, b, r, r); }, 400);
    const double ours = cycles.least / n;
    report.line(format("%-14s %8.2f %8.2f %8.2f   %8.2f (%5.2f)", slot.name(level).c_str(), ours,
                       cycles.median / n, double(slot.costs[level]), c_library, c_library / ours));
  }
}

}  // namespace

int main(int argc, char** argv) {
  Report report("complex_functions", argc, argv);
  const Claims claims = read_claims(report.root());
  report.line(
      format("%-14s %8s %8s %8s   %s", "kernel", "least", "median", "cost", "C library (ratio)"));
  for (const Slot& slot : slots)
    for (const Peer& peer : peers) {
      if (strcmp(slot.function, peer.function) ||
          !(report.wants(slot.function) || report.wants(slot.type + std::string(slot.function))))
        continue;
      if (slot.type == 'z') run<double>(report, claims, slot, peer);
      if (slot.type == 'c') run<float>(report, claims, slot, peer);
    }
}
