// Cycles a number of the distributions on MT19937, 1000 numbers a call, beside the standard library
// and GSL in the same run. A form over its bound is marked. distributions_bench NAME: one of them.
#include <dlfcn.h>

#include <array>
#include <functional>
#include <random>

#include "ork/rua_distributions.h"
#include "ork/zem_kernels.h"
#include "registry/distributions.hpp"
#include "support.hpp"

namespace {

constexpr int kNumbers = 1000;
alignas(64) double numbers[kNumbers];

template <class Call>
double cycles(Call call) {
  return time_calls(call, 4000).least / kNumbers;
}

// A distribution of std:: on std::mt19937.
template <class Distribution>
double standard(Distribution d) {
  std::mt19937 engine;
  return cycles([&] {
    for (double& x : numbers) x = d(engine);
  });
}

// GSL's functions of (rng, parameters) on its mt19937; 0 without the library.
class Gsl {
 public:
  Gsl() {
    library_ = dlopen("libgsl.so.27", RTLD_NOW);
    if (!library_) return;
    const auto alloc = reinterpret_cast<void* (*)(const void*)>(dlsym(library_, "gsl_rng_alloc"));
    const auto type = static_cast<void**>(dlsym(library_, "gsl_rng_mt19937"));
    if (alloc && type) rng_ = alloc(*type);
  }
  explicit operator bool() const { return rng_; }
  template <class Result, class... Parameters>
  double run(const char* name, Parameters... parameters) const {
    if (!rng_) return 0;
    const auto f = reinterpret_cast<Result (*)(void*, Parameters...)>(dlsym(library_, name));
    return f ? cycles([&] {
      for (double& x : numbers) x = f(rng_, parameters...);
    })
             : 0;
  }

 private:
  void *library_ = nullptr, *rng_ = nullptr;
};

// Where the cycles of the Gaussian methods go: their kernels alone, on blocks as the methods take
// them, and what is left for the passes between them and the calls.
template <class R>
struct Parts;
#define PARTS(t, R, chosen)                                           \
  template <>                                                         \
  struct Parts<R> {                                                   \
    static constexpr int slot = chosen;                               \
    static constexpr auto uniform = _rua##t##RngUniform;              \
    static constexpr auto gaussian = _rua##t##RngGaussian;            \
    static constexpr auto &ln = ork_zem_kernel_##t##Ln_ttab,          \
                          &sqrt = ork_zem_kernel_##t##Sqrt_ttab,      \
                          &erf_inv = ork_zem_kernel_##t##ErfInv_ttab; \
    static constexpr auto& sin_cos = ork_zem_kernel_##t##SinCos_ttab; \
  };
PARTS(d, double, 2)
PARTS(s, float, 0)

template <class R>
void stages(Report& report, RuaStream* s, const char* type) {
  using P = Parts<R>;
  constexpr int block = 512, n = 2 * block;
  alignas(64) static R u[n], a[n], b[n], c[n];
  const auto number = [](auto call) { return time_calls(call, 4000).least / n; };
  P::uniform(0, s, n, u, 0, 1);
  for (int i = 0; i < block; ++i) a[i] = u[i] * R(6.2831853071795865);
  const double draw = number([&] { P::uniform(0, s, n, c, 0, 1); }),
               waves = number([&] { P::sin_cos[P::slot](block, a, b, c); }),
               ln = number([&] { P::ln[P::slot](block, u, b); }),
               root = number([&] { P::sqrt[P::slot](block, u, b); }),
               pairs = number([&] { P::gaussian(RUA_GAUSSIAN_BOXMULLER2, s, n, c, 1, 2); });
  report.line(
      format("%s BoxMuller2 %6.2f = uniform %.2f, SinCos %.2f, Ln %.2f, Sqrt %.2f, rest %.2f", type,
             pairs, draw, waves, ln, root, pairs - draw - waves - ln - root));
  P::uniform(0, s, n, u, -1, 1);
  const double symmetric = number([&] { P::uniform(0, s, n, c, -1, 1); }),
               inverse = number([&] { P::erf_inv[P::slot](n, u, b); }),
               icdf = number([&] { P::gaussian(RUA_GAUSSIAN_ICDF, s, n, c, 1, 2); });
  report.line(format("%s ICDF       %6.2f = uniform %.2f, ErfInv %.2f, rest %.2f", type, icdf,
                     symmetric, inverse, icdf - symmetric - inverse));
}

// A mean and a lower triangular factor of order 10, by rows; as a packed triangle or a diagonal as
// good as any.
template <class R>
struct Multivariate {
  R mean[10], factor[100];
  Multivariate() {
    for (int i = 0; i < 10; ++i) mean[i] = R(i);
    for (int i = 0; i < 100; ++i) factor[i] = R(1 + i % 7) / 8;
  }
};
template <class R>
const Multivariate<R> multivariate;

// A mean for each number, from 1 to 100 in no order.
const auto kMeans = [] {
  std::array<double, kNumbers> m;
  for (int i = 0; i < kNumbers; ++i) m[i] = 1 + 0.1 * (i * 377 % 991);
  return m;
}();

struct Row {
  char type;
  const char *name, *label;
  double bound;  // cycles a number, 0 for none
  int32_t (*draw)(RuaStream*, void*);
  std::function<double()> standard, gsl;
};

}  // namespace

int main(int argc, char** argv) {
  Report report("distributions", argc, argv);
  const Gsl gsl;
  const Row rows[] = {
#define BENCH(type, element, name, label, bound, arguments, std_, gsl_)     \
  {#type[0],                                                                \
   #name,                                                                   \
   label,                                                                   \
   bound,                                                                   \
   [](RuaStream* s, void* out) {                                            \
     constexpr int32_t n = kNumbers;                                        \
     [[maybe_unused]] const auto& [kMean, kFactor] = multivariate<element>; \
     auto* r = static_cast<element*>(out);                                  \
     return _rua##type##Rng##name arguments;                                \
   },                                                                       \
   [&]() -> double { return std_; },                                        \
   [&]() -> double { return gsl_; }},
#include "registry/distribution_benches.inc"
#undef BENCH
  };
  report.line(
      "# MT19937, 1000 numbers a call, cycles a number; peers in double, as multiples of the");
  report.line("# double form");
  report.line(
      format("%-32s %8s %8s %8s %8s", "distribution", "cycles", "bound", "std/ork", "GSL/ork"));
  const uint32_t seed = 777;
  alignas(64) static char r[8 * kNumbers];
  for (const Row& row : rows) {
    if (!report.wants(row.name)) continue;
    RuaStream* s;
    if (__ruaNewStreamEx(&s, RUA_BRNG_MT19937, 1, &seed) != 0) return 1;
    const double own = cycles([&] { row.draw(s, r); });
    std::string line = format("%-30s %c %8.2f", row.label, row.type, own);
    for (const double value : {row.bound, row.standard() / own, row.gsl() / own})
      line += value != 0 ? format(" %8.1f", value) : std::string(9, ' ');
    report.line(line + (row.bound != 0 && own > row.bound ? "  over" : ""));
    __ruaDeleteStream(&s);
  }
  if (report.wants_all()) {
    report.line("# stages, cycles a number of 1024");
    RuaStream* s;
    if (__ruaNewStreamEx(&s, RUA_BRNG_MT19937, 1, &seed) != 0) return 1;
    stages<double>(report, s, "double");
    stages<float>(report, s, "single");
    __ruaDeleteStream(&s);
  }
  if (!gsl) report.line("GSL: libgsl.so.27 is not there, skipped");
}
