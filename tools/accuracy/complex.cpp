#include "accuracy/complex.hpp"

#include <quadmath.h>
#include <xmmintrin.h>

#include <cmath>
#include <cstdio>
#include <cstring>
#include <limits>
#include <mutex>
#include <thread>

#include "accuracy/error.hpp"
#include "accuracy/points.hpp"

namespace {

struct Number {
  quad re, im;
};

// The functions; b is not read by those of one argument. A real result stands in re.
struct Function {
  const char* name;
  Number (*exact)(Number a, Number b);
  int cancelling;  // 1: a third of the points has products that cancel, 2: sums that do
  bool conjugate;  // of the products: as those of a and the conjugate of b
};

Number times_conjugate(Number a, Number b) {
  return {a.re * b.re + a.im * b.im, a.im * b.re - a.re * b.im};
}

const Function functions[] = {
    {"Add",
     [](Number a, Number b) -> Number {
       return {a.re + b.re, a.im + b.im};
     },
     2, false},
    {"Sub",
     [](Number a, Number b) -> Number {
       return {a.re - b.re, a.im - b.im};
     },
     2, true},
    {"Mul",
     [](Number a, Number b) -> Number {
       return {a.re * b.re - a.im * b.im, a.im * b.re + a.re * b.im};
     },
     1, false},
    {"MulByConj", times_conjugate, 1, true},
    {"Div",
     [](Number a, Number b) -> Number {
       const Number n = times_conjugate(a, b);
       const quad d = b.re * b.re + b.im * b.im;
       return {n.re / d, n.im / d};
     },
     1, true},
    {"Conj",
     [](Number a, Number) -> Number {
       return {a.re, -a.im};
     },
     0, false},
    {"Abs",
     [](Number a, Number) -> Number {
       return {sqrtq(a.re * a.re + a.im * a.im), 0};
     },
     0, false},
    {"Arg",
     [](Number a, Number) -> Number {
       return {atan2q(a.im, a.re), 0};
     },
     0, false},
    {"CIS",
     [](Number a, Number) -> Number {
       return {cosq(a.re), sinq(a.re)};
     },
     0, false},
};

template <class T>
struct Pair {
  T re, im;
};

// Random numbers of a type: significands with all bits, exponents from an interval.
template <class T>
struct Draw {
  using L = std::numeric_limits<T>;
  Random random;

  int between(int low, int high) { return low + int(random.next() >> 33) % (high - low + 1); }
  T in_binade(int e) {
    const T x = T(std::ldexp(1 + random.uniform() * (1 - double(L::epsilon())), e));
    return random.next() & 1 ? -x : x;
  }
  int any_exponent() { return between(L::min_exponent - 20, L::max_exponent - 1); }
  T any_bits() {
    for (;;) {
      const uint64_t bits = random.next();
      T x;
      std::memcpy(&x, &bits, sizeof x);
      if (std::isfinite(x)) return x;
    }
  }
};

template <class T>
struct Operands {
  std::vector<Pair<T>> a, b;
};

// A third with exponents over the whole range, among them results at the ends of the range; a third
// near 1 and random bits; a third that cancels, where there is something to cancel.
template <class T>
Operands<T> make_operands(const Function& f, int count) {
  using L = std::numeric_limits<T>;
  Draw<T> draw{{0x9E3779B97F4A7C15u + uint64_t(f.name[0]) * 77 + uint64_t(f.name[2])}};
  Operands<T> o;
  const T sign = f.conjugate ? -1 : 1;
  while (int(o.a.size()) < count) {
    Pair<T> a, b;
    const int kind = draw.between(0, 11);
    if (kind < 4) {
      const int e = draw.any_exponent(), apart = draw.between(0, 2) ? 8 : 120;
      const int target = draw.between(0, 3) == 0 ? draw.any_exponent()
                         : draw.between(0, 1) == 0
                             ? draw.between(L::min_exponent - 60, L::min_exponent + 60)
                             : draw.between(L::max_exponent - 4, L::max_exponent);
      // The exponent of b by that of a product or a quotient.
      const int eb = strcmp(f.name, "Div") == 0 ? e - target : target - e;
      const auto near = [&](int centre) {
        const int x = centre + draw.between(-apart, apart);
        return std::min(std::max(x, L::min_exponent - L::digits), L::max_exponent - 1);
      };
      a = {draw.in_binade(near(e)), draw.in_binade(near(e))};
      b = {draw.in_binade(near(eb)), draw.in_binade(near(eb))};
    } else if (kind < 7) {
      const auto part = [&] { return draw.in_binade(draw.between(-10, 10)); };
      a = {part(), part()}, b = {part(), part()};
    } else if (kind == 7 || f.cancelling == 0) {
      a = {draw.any_bits(), draw.any_bits()}, b = {draw.any_bits(), draw.any_bits()};
    } else if (f.cancelling == 2) {
      const int e = draw.between(L::min_exponent, L::max_exponent - 2);
      a = {draw.in_binade(e), draw.in_binade(e)};
      const T gap = T(std::ldexp(1.0, -draw.between(1, 50)));
      b = {-sign * a.re * (1 + gap), sign * a.im * (1 - gap)};
    } else {
      // Products that agree in 1 to 50 bits and more, of the real or of the imaginary part.
      const int e = draw.between(L::min_exponent / 2, L::max_exponent / 2 - 3);
      const int eb = draw.between(0, 1)
                         ? draw.between(-3, 3)
                         : draw.between(L::min_exponent / 2, L::max_exponent / 2 - 3);
      const bool imaginary = draw.between(0, 1);
      if (draw.between(0, 3)) {
        a.re = draw.in_binade(e);
        b = {draw.in_binade(eb), draw.in_binade(eb)};
        const double gap = 1 + std::ldexp(1.0, -draw.between(1, 50));
        a.im = imaginary ? T(-sign * double(a.re) * double(b.im) / double(b.re) * gap)
                         : T(sign * double(a.re) * double(b.re) / double(b.im) * gap);
      } else {
        // (m + d)(m - d) - m m = -d d: all but the square of a small integer cancels.
        const double m = std::ldexp(1.0, L::digits - 1) +
                         std::floor(std::ldexp(draw.random.uniform(), L::digits - 2));
        const double d = draw.between(0, 1 << draw.between(0, 11));
        const double s = std::ldexp(1.0, 1 - L::digits);
        const T high = T((m + d) * s), low = T((m - d) * s), middle = T(m * s);
        a = {high, middle};
        b = imaginary ? Pair<T>{-sign * middle, low} : Pair<T>{low, sign * middle};
        const T up = T(std::ldexp(1.0, e)), down = T(std::ldexp(1.0, eb));
        a = {a.re * up, a.im * up}, b = {b.re * down, b.im * down};
      }
    }
    if (std::isfinite(a.re) && std::isfinite(a.im) && std::isfinite(b.re) && std::isfinite(b.im))
      o.a.push_back(a), o.b.push_back(b);
  }
  return o;
}

// Whether the squares of x's parts are far from the ends of the range: what EP kernels promise
// something for.
template <class T>
bool moderate(Pair<T> x) {
  constexpr int e = std::numeric_limits<T>::max_exponent / 4;
  const auto inside = [](T part) { return part == 0 || std::abs(std::ilogb(part)) <= e; };
  return inside(x.re) && inside(x.im);
}

template <class T>
bool below_normal(quad x) {
  return x != 0 && fabsq(x) < quad(std::numeric_limits<T>::min());
}

struct WorstPair {
  double error = 0;
  Number a{}, b{}, got{}, exact{};
};

struct Bound {
  std::string row;
  int level;
  Claim claim;
  bool modulus;
  WorstPair worst;
  long long points = 0;
};

template <class T>
class Meter {
 public:
  Meter(const Function& f, const Slot& slot, bool flush) : f_(f), slot_(slot), flush_(flush) {}

  void run(const Operands<T>& o, const std::vector<T>& reals, size_t first, int n,
           std::vector<Bound>& bounds) const {
    const Call<T> shape{&slot_, 0};
    const bool from_real = shape.in_parts() == 1;
    std::vector<Number> exact(static_cast<size_t>(n));
    const auto a_of = [&](int i) -> Pair<T> {
      return from_real ? Pair<T>{reals[first + size_t(i)], 0} : o.a[first + size_t(i)];
    };
    const auto b_of = [&](int i) -> Pair<T> {
      return shape.inputs() == 2 ? o.b[first + size_t(i)] : Pair<T>{0, 0};
    };
    for (int i = 0; i < n; ++i)
      exact[size_t(i)] = f_.exact({a_of(i).re, a_of(i).im}, {b_of(i).re, b_of(i).im});
    std::vector<T> r(size_t(2 * n));
    const T* a = from_real ? &reals[first] : &o.a[first].re;
    const T* b = shape.inputs() == 2 ? &o.b[first].re : a;
    int made = -1;
    for (Bound& bound : bounds) {
      if (bound.level != made) call(Call<T>{&slot_, bound.level}, n, a, b, r.data());
      made = bound.level;
      const bool ep = slot_.kernels[bound.level][2] == 'E';
      const int parts = shape.out_parts();
      for (int i = 0; i < n; ++i) {
        const Number& x = exact[size_t(i)];
        if (ep && !from_real && !(moderate(a_of(i)) && moderate(b_of(i)))) continue;
        if (flush_ &&
            (below_normal<T>(x.re) || below_normal<T>(x.im) || tiny(a_of(i)) || tiny(b_of(i))))
          continue;
        const T* got = &r[size_t(i * parts)];
        const Number y = {got[0], parts == 2 ? got[1] : 0};
        const double error = error_of_pair(y, x, parts, bound);
        ++bound.points;
        if (error > bound.worst.error)
          bound.worst = {error, {a_of(i).re, a_of(i).im}, {b_of(i).re, b_of(i).im}, y, x};
      }
    }
  }

 private:
  static bool tiny(Pair<T> x) { return below_normal<T>(x.re) || below_normal<T>(x.im); }

  void call(const Call<T>& kernel, int n, const T* a, const T* b, T* r) const {
    const unsigned csr = _mm_getcsr();
    if (flush_) ork_zem_kernel_SetMode(ORK_ZEM_DENORMAL_ZERO), _mm_setcsr(csr | 0x8040);
    kernel(n, a, b, r, r);
    ork_zem_kernel_SetMode(ORK_ZEM_DENORMAL_KEEP), _mm_setcsr(csr);
  }

  static double error_of_pair(const Number& got, const Number& exact, int parts,
                              const Bound& bound) {
    using W = typename Wide<T>::type;
    const double re = error_of<T>(T(got.re), W(exact.re), bound.claim.relative && parts == 1);
    if (parts == 1) return re;
    const double im = error_of<T>(T(got.im), W(exact.im), false);
    if (!bound.modulus && !bound.claim.relative) return std::max(re, im);
    if (!(re < INFINITY && im < INFINITY)) return INFINITY;
    if (!finiteq(got.re) || !finiteq(got.im)) return 0;  // an overflow that is due
    const quad difference = hypotq(got.re - exact.re, got.im - exact.im);
    const quad size = hypotq(exact.re, exact.im), least = std::numeric_limits<T>::min();
    if (bound.claim.relative) return double(difference / fmaxq(size, least));
    const int e = size < least ? std::numeric_limits<T>::min_exponent - 1 : ilogbq(size);
    return double(scalbnq(difference, std::numeric_limits<T>::digits - 1 - e));
  }

  const Function& f_;
  const Slot& slot_;
  bool flush_;
};

std::string row_text(const Bound& m, bool two_inputs) {
  const auto number = [](const Number& x) {
    char text[120];
    std::snprintf(text, sizeof text, "(%a, %a)", double(x.re), double(x.im));
    return std::string(text);
  };
  char unit[60];
  std::snprintf(unit, sizeof unit, m.claim.relative ? "2^%.1f | 2^%.1f rel" : "%.3f | %.2f ulp",
                m.claim.relative ? std::log2(m.worst.error) : m.worst.error,
                m.claim.relative ? std::log2(m.claim.bound) : m.claim.bound);
  return "| " + m.row + " | " + unit + " | " + number(m.worst.a) +
         (two_inputs ? ", " + number(m.worst.b) : "") + " | " + number(m.worst.got) + " | " +
         std::to_string(m.points) + " |";
}

template <class T>
void measure(const Claims& claims, const Slot& slot, const Function& f, std::vector<Bound>& bounds,
             const ComplexRun& run) {
  const bool from_real = slot.form == Form::from_real;
  const Operands<T> o = from_real ? Operands<T>{} : make_operands<T>(f, run.points);
  const std::vector<T> reals =
      from_real
          ? make_points<T>(claims, std::string(1, slot.type) + slot.function, false, run.points).a
          : std::vector<T>{};
  const size_t count = from_real ? reals.size() : o.a.size();
  constexpr size_t block = 4096;
  std::mutex lock;
  std::vector<std::thread> threads;
  const unsigned width = std::max(1u, std::thread::hardware_concurrency());
  const auto blank = bounds;
  for (unsigned t = 0; t < width; ++t)
    threads.emplace_back([&, t] {
      ork_zem_kernel_SetMode(ORK_ZEM_ERRMODE_IGNORE);
      auto mine = blank;
      const Meter<T> meter(f, slot, run.flush);
      for (size_t first = t * block; first < count; first += width * block)
        meter.run(o, reals, first, int(std::min(block, count - first)), mine);
      const std::lock_guard<std::mutex> guard(lock);
      for (size_t k = 0; k < bounds.size(); ++k) {
        bounds[k].points += mine[k].points;
        if (mine[k].worst.error > bounds[k].worst.error) bounds[k].worst = mine[k].worst;
      }
    });
  for (auto& thread : threads) thread.join();
}

}  // namespace

void measure_complex(const Claims& claims, const Slot& slot, const std::vector<int>& levels,
                     ComplexRun& run) {
  std::vector<Bound> bounds;
  for (const int level : levels) {
    bool found = false;
    for (const bool modulus : {false, true}) {
      const std::string row = slot.name(level) + (modulus ? " modulus" : "");
      const auto claim = claims.bounds.find(row);
      if (claim == claims.bounds.end()) continue;
      bounds.push_back({row, level, claim->second, modulus, {}});
      found = true;
    }
    if (!found) std::printf("%-20s no declared bound\n", slot.name(level).c_str()), ++run.failures;
  }
  if (bounds.empty()) return;
  const Function* function = nullptr;
  for (const Function& f : functions)
    if (!strcmp(f.name, slot.function)) function = &f;
  if (!function) return;  // elementary functions: complex_functions.cpp
  if (slot.type == 'z')
    measure<double>(claims, slot, *function, bounds, run);
  else
    measure<float>(claims, slot, *function, bounds, run);
  for (const Bound& m : bounds) {
    const bool exceeded = !(m.worst.error <= m.claim.bound);
    run.failures += exceeded;
    ++run.measured;
    (*run.rows)[m.row] = row_text(m, slot.form == Form::binary);
    std::printf("%s%s\n", (*run.rows)[m.row].c_str(), exceeded ? "  EXCEEDED" : "");
    if (exceeded)
      std::printf("    exact %.17g, %.17g\n", double(m.worst.exact.re), double(m.worst.exact.im));
    std::fflush(stdout);
  }
}
