#include "measure.hpp"

#include <x86intrin.h>

#include <algorithm>
#include <cmath>
#include <fstream>
#include <limits>

#include "fail.hpp"
#include "ork/front.h"
#include "ork/zem_kernels.h"

namespace demo {
namespace {

// Functions of one argument; a function of two is one with its second argument fixed as a column.
template <class T>
using Unary = void (*)(int n, const T* a, T* r);
template <class T>
using Binary = void (*)(int n, const T* a, const T* b, T* r);

template <class T>
struct Function {
  const char* name;
  double low, high;         // arguments are uniform between
  double low2, high2;       // second arguments, where there is one
  const Unary<T>* unary;    // kernel table, or null
  const Binary<T>* binary;  // kernel table, or null
  void (*c_library)(int n, const T* a, const T* b, T* r);
  long double (*exact)(long double a, long double b);  // 64 bits of mantissa: 11 more than double
};

// The C library's function in a loop, and in extended precision.
#define LOOP(T, f)                                   \
  [](int n, const T* a, const T*, T* r) {            \
    for (int i = 0; i < n; ++i) r[i] = std::f(a[i]); \
  }
#define EXACT(f) [](long double a, long double) { return std::f(a); }
#define UNARY(t, T, Name, f, low, high) \
  { #f, low, high, 0, 0, ork_zem_kernel_##t##Name##_ttab, nullptr, LOOP(T, f), EXACT(f) }

const Function<double> doubles[] = {
    UNARY(d, double, Exp, exp, -20, 20),
    UNARY(d, double, Ln, log, 0.001, 1000),
    {"pow", 0.1, 10, -10, 10, nullptr, ork_zem_kernel_dPow_ttab,
     [](int n, const double* a, const double* b, double* r) {
       for (int i = 0; i < n; ++i) r[i] = std::pow(a[i], b[i]);
     },
     [](long double a, long double b) { return std::pow(a, b); }},
    UNARY(d, double, Sin, sin, -30, 30),
    UNARY(d, double, Atan, atan, -10, 10),
    UNARY(d, double, Tanh, tanh, -5, 5),
    UNARY(d, double, Cbrt, cbrt, -1000, 1000),
    UNARY(d, double, Erf, erf, -4, 4),
};
const Function<float> singles[] = {
    UNARY(s, float, Exp, exp, -20, 20),
    UNARY(s, float, Ln, log, 0.001, 1000),
    UNARY(s, float, Sin, sin, -30, 30),
    UNARY(s, float, Erf, erf, -4, 4),
};

template <class F>
double least_cycles(F call, int runs) {
  call();
  uint64_t least = std::numeric_limits<uint64_t>::max();
  for (int i = 0; i < runs; ++i) {
    _mm_lfence();
    const uint64_t start = __rdtsc();
    call();
    _mm_lfence();
    least = std::min<uint64_t>(least, __rdtsc() - start);
  }
  return double(least);
}

// Uniform arguments from the library's own Mersenne Twister, rounded to the type.
template <class T>
std::vector<T> arguments(RuaStream* stream, double low, double high) {
  std::vector<double> x(sample_points);
  require(ork_dRngUniform(0, stream, sample_points, x.data(), low, high), "drawing arguments");
  return {x.begin(), x.end()};
}

template <class T>
void compare(const std::vector<T>& got, const std::vector<long double>& exact, Measurement& m) {
  constexpr int digits = std::numeric_limits<T>::digits;
  long double ulp = 0, relative = 0;
  for (size_t i = 0; i < got.size(); ++i) {
    const long double error = std::fabs(got[i] - exact[i]);
    const int exponent = std::max(std::ilogb(exact[i]), std::numeric_limits<T>::min_exponent - 1);
    ulp = std::max(ulp, std::ldexp(error, digits - 1 - exponent));
    if (exact[i] != 0) relative = std::max(relative, error / std::fabs(exact[i]));
  }
  m.ulp = double(ulp), m.bits = -std::log2(double(relative));
}

// Short, with a true minus sign.
std::string number(double x) {
  char text[32];
  std::snprintf(text, sizeof text, "%g", std::fabs(x));
  return (x < 0 ? "\u2212" : "") + std::string(text);
}

template <class T>
Measured measure_one(const Function<T>& f, RuaStream* stream) {
  constexpr int timed = 1024, runs = 300;
  const auto interval = [](double low, double high) { return number(low) + " to " + number(high); };
  const std::string range =
      interval(f.low, f.high) + (f.binary ? ", " + interval(f.low2, f.high2) : "");
  Measured m{f.name + std::string(sizeof(T) == 4 ? "f" : ""), range, {}, {}};
  const auto a = arguments<T>(stream, f.low, f.high);
  const auto b = f.binary ? arguments<T>(stream, f.low2, f.high2) : a;
  std::vector<T> r(a.size());
  std::vector<long double> exact;
  for (size_t i = 0; i < a.size(); ++i) exact.push_back(f.exact(a[i], b[i]));
  const auto same = [&](int i, int j) {
    return f.unary ? f.unary[i] == f.unary[j] : f.binary[i] == f.binary[j];
  };
  for (int level = 0; level < 3; ++level) {
    int first = 0;  // slot with this kernel
    while (!same(first, level)) ++first;
    if (first < level) {
      m.level[level] = m.level[first];
      continue;
    }
    const auto call = [&](int n) {
      if (f.unary)
        f.unary[level](n, a.data(), r.data());
      else
        f.binary[level](n, a.data(), b.data(), r.data());
    };
    call(sample_points);
    compare(r, exact, m.level[level]);
    m.level[level].cycles = least_cycles([&] { call(timed); }, runs) / timed;
  }
  f.c_library(sample_points, a.data(), b.data(), r.data());
  compare(r, exact, m.c_library);
  m.c_library.cycles =
      least_cycles([&] { f.c_library(timed, a.data(), b.data(), r.data()); }, runs / 10) / timed;
  return m;
}

}  // namespace

std::vector<Measured> measure(Progress& progress) {
  progress.step("measuring kernels");
  RuaStream* stream = nullptr;
  require(ork_stream_new(&stream, RUA_BRNG_MT19937, 2009), "a stream");
  std::vector<Measured> all;
  const double count = double(std::size(doubles) + std::size(singles));
  const auto add = [&](const auto& functions) {
    for (const auto& f : functions) {
      all.push_back(measure_one(f, stream));
      progress.at(double(all.size()) / count);
    }
  };
  add(doubles);
  add(singles);
  ork_stream_delete(&stream);
  return all;
}

std::string processor_name() {
  std::ifstream info("/proc/cpuinfo");
  for (std::string line; std::getline(info, line);)
    if (line.starts_with("model name")) return line.substr(line.find(':') + 2);
  return "an unknown processor";
}

}  // namespace demo
