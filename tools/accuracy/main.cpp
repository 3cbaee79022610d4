// The accuracy meter: every kernel against its function, worst error against declared bound.
//
//   ork_accuracy --root DIR [NAME ...] [--points N] [--exhaustive] [--dry]
//
// NAME is a function ("Exp"), a function of a type ("dExp") or a kernel ("dExp_W7HA"). Without
// NAME, all. --exhaustive: all 2^32 arguments of single-precision functions of one argument.
// --dry: leave docs/accuracy.md alone. Exit code 1 if a bound is exceeded.
#include <quadmath.h>

#include <bit>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <mutex>
#include <thread>

#include "accuracy/points.hpp"
#include "accuracy/reference.hpp"
#include "accuracy/report.hpp"
#include "registry/claims.hpp"
#include "registry/kernels.hpp"

namespace {

template <class T> struct Wide;
template <> struct Wide<double> {
  using type = quad;
  static constexpr int digits = 53, min_exponent = -1022, max_exponent = 1023;
  static int exponent(quad x) { return ilogbq(x); }
  static quad scale(quad x, int e) { return scalbnq(x, e); }
  static quad call(const Reference& f, int output, quad a, quad b) { return (output ? f.wide2 : f.wide)(a, b); }
};
template <> struct Wide<float> {
  using type = long double;
  static constexpr int digits = 24, min_exponent = -126, max_exponent = 127;
  static int exponent(long double x) { return ilogbl(x); }
  static long double scale(long double x, int e) { return scalbnl(x, e); }
  static long double call(const Reference& f, int output, long double a, long double b) {
    return (output ? f.extended2 : f.extended)(a, b);
  }
};

// The error of `got` in the claim's unit; infinite where one of the two is a NaN, or a finite
// value lies where an infinity is due.
template <class T> double error_of(T got, typename Wide<T>::type exact, bool relative) {
  using W = Wide<T>;
  using R = typename W::type;
  const bool nan = exact != exact;
  if (std::isnan(got) || nan) return std::isnan(got) && nan ? 0 : INFINITY;
  const R top = W::scale(1, W::max_exponent + 1);
  R value = got;
  if (std::isinf(got)) {
    // Where the exact value rounds to an infinity there is no error in giving one.
    const R magnitude = exact < 0 ? -exact : exact;
    if ((got > 0) != (exact > 0)) return INFINITY;
    if (magnitude >= top - W::scale(1, W::max_exponent - W::digits)) return 0;
    value = got > 0 ? top : -top;
  } else if (exact > top * top || exact < -top * top) {
    return INFINITY;
  }
  R difference = value - exact;
  if (difference < 0) difference = -difference;
  if (difference == 0) return 0;
  int e = exact == 0 ? W::min_exponent : W::exponent(exact);
  if (e < W::min_exponent) e = W::min_exponent;
  if (relative) {
    R magnitude = exact < 0 ? -exact : exact;
    const R least = W::scale(1, W::min_exponent);
    return double(difference / (magnitude < least ? least : magnitude));
  }
  return double(W::scale(difference, W::digits - 1 - e));
}

struct Measured {
  int level;
  std::string kernel;
  Claim claim;
  Worst worst;
};

constexpr int block = 4096;

// Measures the kernels of one function on a block of arguments, the exact values taken once.
template <class T>
void measure_block(const Reference& reference, const Slot& slot, std::vector<Measured>& kernels, const T* a,
                   const T* b, int n) {
  static thread_local std::vector<T> r(block), r2(block);
  static thread_local std::vector<typename Wide<T>::type> exact[2] = {
      std::vector<typename Wide<T>::type>(block), std::vector<typename Wide<T>::type>(block)};
  const int outputs = slot.form == Form::two ? 2 : 1;
  for (int k = 0; k < outputs; ++k)
    for (int i = 0; i < n; ++i) exact[k][size_t(i)] = Wide<T>::call(reference, k, a[i], b[i]);
  for (Measured& m : kernels) {
    Call<T>{&slot, m.level}(n, a, b, r.data(), r2.data());
    for (int k = 0; k < outputs; ++k)
      for (int i = 0; i < n; ++i) {
        const T got = (k ? r2 : r)[size_t(i)];
        const double error = error_of(got, exact[k][size_t(i)], m.claim.relative);
        if (error > m.worst.error)
          m.worst = {error, double(a[i]), double(b[i]), double(got), double(exact[k][size_t(i)]), m.worst.points};
      }
    m.worst.points += n;
  }
}

void merge(std::vector<Measured>& to, const std::vector<Measured>& from) {
  for (size_t k = 0; k < to.size(); ++k) {
    const long long points = to[k].worst.points + from[k].worst.points;
    if (from[k].worst.error > to[k].worst.error) to[k].worst = from[k].worst;
    to[k].worst.points = points;
  }
}

// Splits blocks 0 to count - 1 among the processor's threads; f(block number, kernels).
template <class F> void on_all_threads(long long count, std::vector<Measured>& kernels, F f) {
  std::mutex lock;
  const auto blank = kernels;
  std::vector<std::thread> threads;
  const unsigned width = std::max(1u, std::thread::hardware_concurrency());
  for (unsigned t = 0; t < width; ++t)
    threads.emplace_back([&, t] {
      ork_zem_kernel_SetMode(ORK_ZEM_ERRMODE_IGNORE);
      auto mine = blank;
      for (long long i = t; i < count; i += width) f(i, mine);
      const std::lock_guard<std::mutex> guard(lock);
      merge(kernels, mine);
    });
  for (auto& thread : threads) thread.join();
}

template <class T>
void measure(const Claims& claims, const Slot& slot, std::vector<Measured>& kernels, int points, bool exhaustive) {
  const Reference& reference = *find_reference(slot.function);
  if (exhaustive) {
    on_all_threads((1LL << 32) / block, kernels, [&](long long number, std::vector<Measured>& mine) {
      T a[block], b[block] = {};
      for (int i = 0; i < block; ++i) {
        const auto image = uint32_t(number * block + i);
        const float x = std::bit_cast<float>(image);
        a[i] = T(std::isnan(x) ? 1 : x);
      }
      measure_block<T>(reference, slot, mine, a, b, block);
    });
    return;
  }
  const bool binary = slot.form == Form::binary || slot.form == Form::linear || slot.form == Form::scalar;
  const auto p = make_points<T>(claims, std::string(1, slot.type) + slot.function, binary, points);
  // One exponent serves a whole call of the scalar form.
  const int step = slot.form == Form::scalar ? 1 : block;
  on_all_threads((long long)((p.a.size() + size_t(step) - 1) / size_t(step)), kernels,
                 [&](long long number, std::vector<Measured>& mine) {
                   const size_t first = size_t(number) * size_t(step);
                   measure_block<T>(reference, slot, mine, &p.a[first], &p.b[first],
                                    int(std::min(size_t(step), p.a.size() - first)));
                 });
}

struct Options {
  std::string root = ".";
  std::vector<std::string> names;
  int points = 400000;
  bool exhaustive = false, dry = false;

  bool wants(const Slot& slot, int level) const {
    if (names.empty()) return true;
    const std::string function = slot.function, typed = slot.type + function;
    for (const auto& name : names)
      if (name == function || name == typed || name == slot.name(level)) return true;
    return false;
  }
};

Options parse(int argc, char** argv) {
  Options o;
  for (int i = 1; i < argc; ++i) {
    const std::string word = argv[i];
    if (word == "--root" && i + 1 < argc) o.root = argv[++i];
    else if (word == "--points" && i + 1 < argc) o.points = std::atoi(argv[++i]);
    else if (word == "--exhaustive") o.exhaustive = true;
    else if (word == "--dry") o.dry = true;
    else if (word.starts_with("--")) std::fprintf(stderr, "unknown option %s\n", argv[i]), std::exit(2);
    else o.names.push_back(word);
  }
  return o;
}

}  // namespace

int main(int argc, char** argv) {
  const Options options = parse(argc, argv);
  const Claims claims = read_claims(options.root);
  std::map<std::string, std::string> rows;
  int failures = 0, measured = 0;
  for (const Slot& slot : slots) {
    if (slot.form >= Form::pack_i || (slot.type != 'd' && slot.type != 's')) continue;
    if (options.exhaustive && (slot.type != 's' || (slot.form != Form::unary && slot.form != Form::two))) continue;
    std::vector<Measured> kernels;
    for (int level = 0; level < 3; ++level) {
      bool again = false;
      for (int lower = 0; lower < level; ++lower) again |= slot.table[lower] == slot.table[level];
      if (again || !slot.exists(level) || !options.wants(slot, level)) continue;
      const auto claim = claims.bounds.find(slot.name(level));
      if (claim == claims.bounds.end()) {
        std::printf("%-20s no declared bound\n", slot.name(level).c_str());
        ++failures;
        continue;
      }
      kernels.push_back({level, slot.name(level), claim->second, {}});
    }
    if (kernels.empty()) continue;
    if (!find_reference(slot.function)) {
      std::printf("%-20s no reference\n", slot.function);
      ++failures;
      continue;
    }
    if (slot.type == 'd') measure<double>(claims, slot, kernels, options.points, false);
    else measure<float>(claims, slot, kernels, options.points, options.exhaustive);
    const bool binary = slot.form == Form::binary || slot.form == Form::linear || slot.form == Form::scalar;
    for (const Measured& m : kernels) {
      const bool exceeded = !(m.worst.error <= m.claim.bound);
      failures += exceeded;
      ++measured;
      rows[m.kernel] = table_row(m.kernel, m.worst, m.claim.bound, m.claim.relative, binary);
      std::printf("%s%s\n", rows[m.kernel].c_str(), exceeded ? "  EXCEEDED" : "");
      if (exceeded) std::printf("    exact %.17g, got %.17g at %.17g %.17g\n", m.worst.exact, m.worst.got, m.worst.a, m.worst.b);
      std::fflush(stdout);
    }
  }
  if (!options.dry) update_report(options.root + "/docs/accuracy.md", rows, options.exhaustive);
  std::printf("%d kernels measured, %d failures\n", measured, failures);
  return failures != 0 || measured == 0;
}
