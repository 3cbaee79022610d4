// Cycles a number of the basic generators, 1000 numbers a call, beside std::mt19937 scaled by
// hand and GSL's mt19937 in the same run. Ends with 1 when a double form is over its bound.
#include <dlfcn.h>

#include <random>

#include "ork/rua.h"
#include "support.hpp"

namespace {

constexpr int kNumbers = 1000;
alignas(64) double r[kNumbers];
alignas(64) float rf[kNumbers];
alignas(64) uint32_t ri[4 * kNumbers];

template <class Call>
double cycles(Call call) {
  return time_calls(call, 3000).least / kNumbers;
}

struct Generator {
  const char* name;
  int32_t id;
  double bound;  // cycles a number of the double form; 0: none
};
constexpr Generator kGenerators[] = {
    {"MCG31M1", RUA_BRNG_MCG31M1, 2.5},
    {"R250", RUA_BRNG_R250, 1.5},
    {"MRG32K3A", RUA_BRNG_MRG32K3A, 8},
    {"MCG59", RUA_BRNG_MCG59, 8},
    {"WH", RUA_BRNG_WH, 8},
    {"MT19937", RUA_BRNG_MT19937, 2.5},
    {"MT2203", RUA_BRNG_MT2203, 0},
    {"SFMT19937", RUA_BRNG_SFMT19937, 2.5},
};

double standard_library() {
  std::mt19937 engine;
  return cycles([&] {
    for (double& x : r) x = engine() * 0x1p-32;
  });
}

// gsl_rng_uniform on mt19937; 0 when the library is not there.
double gsl() {
  void* library = dlopen("libgsl.so.27", RTLD_NOW);
  if (library == nullptr) return 0;
  const auto alloc = reinterpret_cast<void* (*)(const void*)>(dlsym(library, "gsl_rng_alloc"));
  const auto uniform = reinterpret_cast<double (*)(void*)>(dlsym(library, "gsl_rng_uniform"));
  const auto type = static_cast<void**>(dlsym(library, "gsl_rng_mt19937"));
  if (!alloc || !uniform || !type) return 0;
  void* rng = alloc(*type);
  return cycles([&] {
    for (double& x : r) x = uniform(rng);
  });
}

}  // namespace

int main(int argc, char** argv) {
  Report report("rua", argc, argv);
  const double standard = standard_library(), with_gsl = gsl();
  report.line(
      "# uniform numbers, 1000 a call, cycles a number; ratios of the peers to the double form");
  report.line(format("%-12s %8s %8s %8s %8s %8s %8s", "generator", "double", "bound", "float",
                     "integer", "std", "GSL"));
  int over = 0;
  for (const Generator& g : kGenerators) {
    if (!report.wants(g.name)) continue;
    RuaStream* s = nullptr;
    const uint32_t seed = 7777777;
    RuaBrngProperties row;
    if (__ruaNewStreamEx(&s, g.id, 1, &seed) != 0 || __ruaGetBrngProperties(g.id, &row) != 0)
      return 1;
    const double d = cycles([&] { row.dGenerate(s, kNumbers, r, 0, 1); });
    const double f = cycles([&] { row.sGenerate(s, kNumbers, rf, 0, 1); });
    const double i = cycles([&] { row.iGenerate(s, kNumbers, ri); });
    const bool late = g.bound != 0 && d > g.bound;
    over += late;
    report.line(format("%-12s %8.2f %8.1f %8.2f %8.2f %8.1f %8.1f%s", g.name, d, g.bound, f, i,
                       standard / d, with_gsl / d, late ? "  over" : ""));
    __ruaDeleteStream(&s);
  }
  report.line(format("%-12s %8.2f", "std::mt19937", standard));
  report.line(with_gsl != 0 ? format("%-12s %8.2f", "GSL mt19937", with_gsl)
                            : std::string("GSL mt19937: libgsl.so.27 is not there, skipped"));
  return over != 0;
}
