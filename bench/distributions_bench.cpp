// Cycles a number of the continuous distributions on MT19937, 1000 numbers a call, beside the
// standard library and GSL in the same run. A form over its bound is marked.
#include <dlfcn.h>

#include <random>

#include "ork/rua_distributions.h"
#include "ork/zem_kernels.h"
#include "support.hpp"

namespace {

constexpr int kNumbers = 1000;
alignas(64) double r[kNumbers];
alignas(64) float rf[kNumbers];

template <class Call>
double cycles(Call call) {
  return time_calls(call, 4000).least / kNumbers;
}

// A distribution of std:: on std::mt19937.
template <class Distribution>
double standard(Distribution d) {
  std::mt19937 engine;
  return cycles([&] {
    for (double& x : r) x = d(engine);
  });
}

// GSL's functions of (rng, one or two parameters) on its mt19937; 0 without the library.
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
  template <class... Parameters>
  double operator()(const char* name, Parameters... parameters) const {
    if (!rng_) return 0;
    const auto f = reinterpret_cast<double (*)(void*, Parameters...)>(dlsym(library_, name));
    return f ? cycles([&] {
      for (double& x : r) x = f(rng_, parameters...);
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

struct Row {
  const char* name;
  double bound;  // cycles a number of the double form; 0: none
  int32_t (*d)(RuaStream*);
  int32_t (*s)(RuaStream*);
  double standard, gsl;
};

}  // namespace

#define FORMS(NAME, METHOD, ...)                                                    \
  [](RuaStream* s) { return _ruadRng##NAME(METHOD, s, kNumbers, r, __VA_ARGS__); }, \
      [](RuaStream* s) { return _ruasRng##NAME(METHOD, s, kNumbers, rf, __VA_ARGS__); }

int main(int argc, char** argv) {
  Report report("distributions", argc, argv);
  const Gsl gsl;
  const double normal = standard(std::normal_distribution<>()),
               ziggurat = gsl("gsl_ran_gaussian_ziggurat", 2.0);
  const Row rows[] = {
      {"Uniform", 0, FORMS(Uniform, 0, 0, 2), standard(std::uniform_real_distribution<>(0, 2)),
       gsl("gsl_ran_flat", 0.0, 2.0)},
      {"Gaussian BoxMuller", 0, FORMS(Gaussian, RUA_GAUSSIAN_BOXMULLER, 1, 2), normal, ziggurat},
      {"Gaussian BoxMuller2", 14, FORMS(Gaussian, RUA_GAUSSIAN_BOXMULLER2, 1, 2), normal, ziggurat},
      {"Gaussian ICDF", 14, FORMS(Gaussian, RUA_GAUSSIAN_ICDF, 1, 2), normal, ziggurat},
      {"Exponential", 10, FORMS(Exponential, 0, 1, 2), standard(std::exponential_distribution<>()),
       gsl("gsl_ran_exponential", 2.0)},
      {"Laplace", 0, FORMS(Laplace, 0, 1, 2), 0, gsl("gsl_ran_laplace", 2.0)},
      {"Cauchy", 0, FORMS(Cauchy, 0, 1, 2), standard(std::cauchy_distribution<>()),
       gsl("gsl_ran_cauchy", 2.0)},
      {"Rayleigh", 0, FORMS(Rayleigh, 0, 1, 2), 0, gsl("gsl_ran_rayleigh", 2.0)},
      {"Lognormal ICDF", 0, FORMS(Lognormal, 1, 1, 0.5, 2, 3),
       standard(std::lognormal_distribution<>(1, 0.5)), gsl("gsl_ran_lognormal", 1.0, 0.5)},
      {"Weibull", 0, FORMS(Weibull, 0, 2.5, 1, 2), standard(std::weibull_distribution<>(2.5, 2)),
       gsl("gsl_ran_weibull", 2.0, 2.5)},
      {"Gumbel", 0, FORMS(Gumbel, 0, 1, 2), standard(std::extreme_value_distribution<>()),
       gsl("gsl_ran_gumbel1", 1.0, 2.0)},
  };
  report.line(
      "# MT19937, 1000 numbers a call, cycles a number; ratios of the peers to the double form;");
  report.line("# the bound of the single form is half of that of the double form");
  report.line(format("%-20s %8s %8s %8s %8s %8s", "distribution", "double", "bound", "single",
                     "std/ork", "GSL/ork"));
  const uint32_t seed = 777;
  for (const Row& row : rows) {
    RuaStream* s;
    if (__ruaNewStreamEx(&s, RUA_BRNG_MT19937, 1, &seed) != 0) return 1;
    const double d = cycles([&] { row.d(s); }), f = cycles([&] { row.s(s); });
    const bool late = row.bound != 0 && (d > row.bound || f > row.bound / 2);
    report.line(format("%-20s %8.2f %8.1f %8.2f %8.1f %8.1f%s", row.name, d, row.bound, f,
                       row.standard / d, row.gsl / d, late ? "  over" : ""));
    __ruaDeleteStream(&s);
  }
  report.line("# stages, cycles a number of 1024");
  RuaStream* s;
  if (__ruaNewStreamEx(&s, RUA_BRNG_MT19937, 1, &seed) != 0) return 1;
  stages<double>(report, s, "double");
  stages<float>(report, s, "single");
  __ruaDeleteStream(&s);
  if (!gsl) report.line("GSL: libgsl.so.27 is not there, skipped");
}
