// The meter of the elementary functions of complex numbers, kernels against quad precision.
//
//   ork_accuracy_complex --root DIR [NAME ...] [--points N]
//
// NAME is a function ("Exp") or a kernel ("zExp_W7HA"); without one, all. Bounds are the claims':
// in ulp for each part, or relative to the modulus. Beside them, how many parts are misrounded.
// Exit code 1 if a bound is exceeded.
#include <quadmath.h>

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <random>
#include <string>
#include <vector>

#include "registry/claims.hpp"
#include "registry/kernels.hpp"

namespace {

using quad = __float128;
using complex_quad = __complex128;

complex_quad of(quad re, quad im) {
  complex_quad z;
  __real__ z = re, __imag__ z = im;
  return z;
}

// Next to 0 and 1 the library's own product loses no more than a few bits of 113.
complex_quad power(complex_quad a, complex_quad b) { return cexpq(b * clogq(a)); }

struct Function {
  const char* name;
  complex_quad (*exact)(complex_quad);  // null: powers
  bool exponential;                     // overflows early in one of the parts
};
const Function functions[] = {{"Acos", cacosq, false},
                              {"Acosh", cacoshq, false},
                              {"Asin", casinq, false},
                              {"Asinh", casinhq, false},
                              {"Atan", catanq, false},
                              {"Atanh", catanhq, false},
                              {"Cos", ccosq, true},
                              {"Cosh", ccoshq, true},
                              {"Exp", cexpq, true},
                              {"Ln", clogq, false},
                              {"Log10", [](complex_quad z) { return clogq(z) / M_LN10q; }, false},
                              {"Pow", nullptr, true},
                              {"Powx", nullptr, true},
                              {"Sin", csinq, true},
                              {"Sinh", csinhq, true},
                              {"Sqrt", csqrtq, false},
                              {"Tan", ctanq, true},
                              {"Tanh", ctanhq, true}};

template <class T>
double ulps(T got, quad exact) {
  using L = std::numeric_limits<T>;
  if (std::isnan(got)) return isnanq(exact) ? 0 : INFINITY;
  // From half an ulp beyond the largest number on an infinity is right.
  if (std::isinf(got)) return fabsq(exact) > quad(L::max()) ? 0 : INFINITY;
  if (exact == 0) return got == 0 ? 0 : INFINITY;
  const int e = std::max(ilogbq(exact), L::min_exponent - 1);
  return double(scalbnq(fabsq(got - exact), L::digits - 1 - e));
}

// Uniform near 0, uniform in exponent, on and about the unit circle, thick around the branch points
// +-1 and +-i, and to the ends of the exponentials' range.
template <class T>
std::vector<T> arguments(const Function& f, int count) {
  std::mt19937_64 random(11);
  const auto uniform = [&](double a, double b) {
    return a + (b - a) * double(random() >> 11) * 0x1p-53;
  };
  const auto sign = [&] { return random() & 1 ? 1 : -1; };
  const double wide = sizeof(T) == 8 ? 700 : 85, end = sizeof(T) == 8 ? 746 : 104;
  std::vector<T> z;
  while (int(z.size()) < 2 * count) {
    double x, y;
    switch (random() % 8) {
      case 0:
        x = uniform(-4, 4), y = uniform(-4, 4);
        break;
      case 1:
        x = sign() * std::exp(uniform(-30, 5)), y = sign() * std::exp(uniform(-30, 5));
        break;
      case 2:
        x = sign() * std::exp(uniform(-wide, f.exponential ? 5 : wide));
        y = sign() * std::exp(uniform(-wide, wide));
        break;
      case 3: {
        const double angle = uniform(-3.2, 3.2), r = 1 + sign() * std::exp(uniform(-36, -3));
        x = r * std::cos(angle), y = r * std::sin(angle);
        break;
      }
      case 4:
        x = sign() + sign() * std::exp(uniform(-36, -1)), y = sign() * std::exp(uniform(-36, -1));
        break;
      case 5:
        y = sign() + sign() * std::exp(uniform(-36, -1)), x = sign() * std::exp(uniform(-36, -1));
        break;
      case 6:
        x = uniform(-end, end), y = uniform(-1e4, 1e4);
        break;
      default:
        x = uniform(-20, 20), y = uniform(-20, 20);
    }
    if (random() & 1 && strchr("CST", f.name[0]) && f.name[strlen(f.name) - 1] != 'h')
      std::swap(x, y);
    z.insert(z.end(), {T(x), T(y)});
  }
  return z;
}

struct Tally {
  double part = 0, modulus = 0;
  int at = 0;
  long long wrong = 0;
};

template <class T>
int measure(const Slot& slot, const Function& f, const Claims& claims,
            const std::vector<std::string>& names, int points) {
  int failures = 0;
  const auto wanted = [&](const std::string& kernel) {
    for (const auto& n : names)
      if (n == f.name || n == kernel) return true;
    return names.empty();
  };
  std::vector<T> z, b;
  std::vector<complex_quad> exact;
  for (int level = 0; level < 3; ++level) {
    const std::string kernel = slot.name(level);
    bool again = !slot.exists(level) || !wanted(kernel);
    for (int lower = 0; lower < level; ++lower) again |= slot.table[lower] == slot.table[level];
    if (again) continue;
    const auto claim = claims.bounds.find(kernel);
    if (claim == claims.bounds.end()) {
      std::printf("%-14s no declared bound\n", kernel.c_str());
      ++failures;
      continue;
    }
    if (z.empty()) {
      z = arguments<T>(f, points);
      b = slot.form == Form::scalar ? std::vector<T>{T(1.75), T(-0.625)}
                                    : arguments<T>(functions[12], points);
      if (!f.exact)  // powers of a moderate size
        for (auto* v : {&z, &b})
          for (T& x : *v)
            x = std::fabs(x) > 8 || std::fabs(x) < 1e-6
                    ? T(std::fmod(std::fabs(double(x)), 7) + 0.01)
                    : x;
      for (int i = 0; i < points; ++i) {
        const complex_quad a = of(z[size_t(2 * i)], z[size_t(2 * i + 1)]);
        const size_t k = slot.form == Form::scalar ? 0 : size_t(2 * i);
        exact.push_back(f.exact ? f.exact(a) : power(a, of(b[k], b[k + 1])));
      }
    }
    std::vector<T> r(z.size());
    Call<T>{&slot, level}(points, z.data(), b.data(), r.data(), r.data());
    Tally t;
    for (int i = 0; i < points; ++i) {
      const T re = r[size_t(2 * i)], im = r[size_t(2 * i + 1)];
      const quad x = __real__ exact[size_t(i)], y = __imag__ exact[size_t(i)];
      const double error[2] = {ulps(re, x), ulps(im, y)};
      for (const double e : error) t.wrong += e > 0.5;
      if (!claim->second.relative && std::max(error[0], error[1]) > t.part)
        t.part = std::max(error[0], error[1]), t.at = i;
      const quad size = hypotq(x, y);
      if (!std::isfinite(re) || !std::isfinite(im) ||
          !(size > quad(std::numeric_limits<T>::min())) || !finiteq(size))
        continue;
      const double relative = double(hypotq(re - x, im - y) / size);
      if (relative > t.modulus) {
        t.modulus = relative;
        if (claim->second.relative) t.at = i;
      }
    }
    const double worst = claim->second.relative ? t.modulus : t.part;
    const bool exceeded = !(worst <= claim->second.bound);
    failures += exceeded;
    if (claim->second.relative)
      std::printf("%-14s 2^%.1f of 2^%.1f rel", kernel.c_str(), std::log2(worst),
                  std::log2(claim->second.bound));
    else
      std::printf("%-14s %.4f of %.2f ulp", kernel.c_str(), worst, claim->second.bound);
    std::printf(" at (%a, %a), misrounded %lld of %d parts%s\n", double(z[size_t(2 * t.at)]),
                double(z[size_t(2 * t.at + 1)]), t.wrong, 2 * points, exceeded ? " EXCEEDED" : "");
    std::fflush(stdout);
  }
  return failures;
}

}  // namespace

int main(int argc, char** argv) {
  std::string root = ".";
  int points = 1000000, failures = 0;
  std::vector<std::string> names;
  for (int i = 1; i < argc; ++i) {
    const std::string word = argv[i];
    if (word == "--root" && i + 1 < argc)
      root = argv[++i];
    else if (word == "--points" && i + 1 < argc)
      points = std::atoi(argv[++i]);
    else
      names.push_back(word);
  }
  const Claims claims = read_claims(root);
  ork_zem_kernel_SetMode(ORK_ZEM_ERRMODE_IGNORE);
  for (const Slot& slot : slots)
    for (const Function& f : functions) {
      if (strcmp(slot.function, f.name)) continue;
      if (slot.type == 'z') failures += measure<double>(slot, f, claims, names, points);
      if (slot.type == 'c') failures += measure<float>(slot, f, claims, names, points);
    }
  return failures != 0;
}
