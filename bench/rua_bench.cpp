// Cycles a number of the basic generators, 1000 numbers a call, beside std::mt19937 scaled by
// hand and GSL's generators in the same run; times of skips. Ends with 1 when one is over its
// bound.
#include <dlfcn.h>

#include <chrono>
#include <cmath>
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

void* gsl_library() {
  static void* library = dlopen("libgsl.so.27", RTLD_NOW);
  return library;
}

// gsl_rng_uniform on mt19937; 0 when the library is not there.
double gsl() {
  void* library = gsl_library();
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

// Quasi-random sequences: bounds in cycles a number, integers and the two real forms.
struct Quasi {
  const char* name;
  int32_t id;
  uint32_t dimension;
  bool one;  // a selected component
  double integers, reals;
};
constexpr Quasi kQuasi[] = {
    {"Sobol", RUA_BRNG_SOBOL, 10, false, 1.0, 1.3},
    {"Sobol", RUA_BRNG_SOBOL, 40, false, 1.0, 1.3},
    {"Sobol", RUA_BRNG_SOBOL, 40, true, 1.5, 1.5},
    {"Niederr", RUA_BRNG_NIEDERR, 10, false, 0, 0},
    {"Niederr", RUA_BRNG_NIEDERR, 318, false, 1.2, 1.2},
    {"Niederr", RUA_BRNG_NIEDERR, 318, true, 1.5, 1.5},
};

// gsl_qrng_get, 1000 / d points a run; 0 when the library or the dimension is not there.
double gsl_points(const Quasi& q) {
  void* library = gsl_library();
  if (library == nullptr || q.one) return 0;
  const auto alloc =
      reinterpret_cast<void* (*)(const void*, unsigned)>(dlsym(library, "gsl_qrng_alloc"));
  const auto get = reinterpret_cast<int (*)(const void*, double*)>(dlsym(library, "gsl_qrng_get"));
  const bool sobol = q.id == RUA_BRNG_SOBOL;
  const auto type =
      static_cast<void**>(dlsym(library, sobol ? "gsl_qrng_sobol" : "gsl_qrng_niederreiter_2"));
  if (!alloc || !get || !type || q.dimension > (sobol ? 40 : 12)) return 0;
  void* points = alloc(*type, q.dimension);
  return cycles([&] {
    for (unsigned i = 0; i + q.dimension <= kNumbers; i += q.dimension) get(points, r + i);
  });
}

// A stream that begins anew before its sequence ends.
struct QuasiStream {
  const Quasi& q;
  RuaStream* s = nullptr;
  RuaBrngProperties row;
  explicit QuasiStream(const Quasi& quasi) : q(quasi) {
    __ruaGetBrngProperties(q.id, &row);
    begin();
  }
  ~QuasiStream() { __ruaDeleteStream(&s); }
  void begin() {
    __ruaDeleteStream(&s);
    __ruaNewStreamEx(&s, q.id, 1, &q.dimension);
    if (q.one) __ruaLeapfrogStream(s, 7, 0x7FFFFFFF);
  }
};

int quasi_random(Report& report) {
  report.line(
      "# quasi-random numbers, 1000 a call, cycles a number; gsl_qrng_get: ratio to double");
  report.line(format("%-12s %6s %8s %8s %8s %8s %8s %8s", "sequence", "d", "double", "float",
                     "bound", "integer", "bound", "GSL"));
  int over = 0;
  for (const Quasi& q : kQuasi) {
    if (!report.wants(q.name)) continue;
    QuasiStream at(q);
    const double d = cycles([&] { at.row.dGenerate(at.s, kNumbers, r, 0, 1); });
    at.begin();
    const double f = cycles([&] { at.row.sGenerate(at.s, kNumbers, rf, 0, 1); });
    at.begin();
    const double i = cycles([&] { at.row.iGenerate(at.s, kNumbers, ri); });
    const bool late = q.reals != 0 && (d > q.reals || f > q.reals || i > q.integers);
    over += late;
    report.line(format("%-12s %3u%s %8.2f %8.2f %8.1f %8.2f %8.1f %8.1f%s", q.name, q.dimension,
                       q.one ? "/1" : "  ", d, f, q.reals, i, q.integers, gsl_points(q) / d,
                       late ? "  over" : ""));
  }
  return over;
}

struct Skip {
  const char* name;
  int32_t id;
  uint32_t seed;
  int64_t count;
  double microseconds;  // bound, 0: none
};
constexpr Skip kSkips[] = {
    {"MT19937", RUA_BRNG_MT19937, 1, (1 << 20) - 1, 0},
    {"MT19937", RUA_BRNG_MT19937, 1, 1 << 20, 0},
    {"MT19937", RUA_BRNG_MT19937, 1, int64_t{1} << 62, 2000},
    {"SFMT19937", RUA_BRNG_SFMT19937, 1, (1 << 20) - 1, 0},
    {"SFMT19937", RUA_BRNG_SFMT19937, 1, 1 << 20, 0},
    {"SFMT19937", RUA_BRNG_SFMT19937, 1, int64_t{1} << 62, 12000},
    {"Sobol", RUA_BRNG_SOBOL, 40, int64_t{0xAAAAAAAA} * 40, 20},
    {"Niederr", RUA_BRNG_NIEDERR, 318, int64_t{0xAAAAAAAA} * 318, 0},
};

// The time of the fastest of some runs, in microseconds.
template <class Before, class F>
double least_microseconds(int runs, Before before, F f) {
  double least = HUGE_VAL;
  for (int i = 0; i < runs; ++i) {
    before();
    const auto start = std::chrono::steady_clock::now();
    f();
    const std::chrono::duration<double, std::micro> time = std::chrono::steady_clock::now() - start;
    least = std::min(least, time.count());
  }
  return least;
}

int skips(Report& report) {
  report.line("# skips, microseconds; generating as many integers where that takes no age");
  report.line(
      format("%-12s %20s %10s %8s %10s", "generator", "numbers", "skip", "bound", "generate"));
  int over = 0;
  for (const Skip& c : kSkips) {
    if (!report.wants(c.name)) continue;
    RuaBrngProperties row;
    __ruaGetBrngProperties(c.id, &row);
    RuaStream* s = nullptr;
    const auto begin = [&] {
      __ruaDeleteStream(&s);
      __ruaNewStreamEx(&s, c.id, 1, &c.seed);
    };
    const double skip = least_microseconds(40, begin, [&] { __ruaSkipAheadStream(s, c.count); });
    double generate = 0;
    if (c.count <= 1 << 20) {
      std::vector<uint32_t> numbers(size_t(c.count));
      generate = least_microseconds(40, begin,
                                    [&] { row.iGenerate(s, int32_t(c.count), numbers.data()); });
    }
    __ruaDeleteStream(&s);
    const bool late = c.microseconds != 0 && skip > c.microseconds;
    over += late;
    report.line(format("%-12s %20lld %10.1f %8.0f %10.1f%s", c.name, (long long)c.count, skip,
                       c.microseconds, generate, late ? "  over" : ""));
  }
  return over;
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
  over += quasi_random(report);
  over += skips(report);
  return over != 0;
}
