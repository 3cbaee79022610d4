// The accuracy meter: every kernel against its function, worst error against declared bound.
//
//   ork_accuracy --root DIR [NAME ...] [--points N] [--exhaustive] [--flush] [--dry]
//
// NAME is a function ("Exp"), a function of a type ("dExp") or a kernel ("dExp_W7HA"). Without
// NAME, all. --exhaustive: all 2^32 arguments of single-precision functions of one argument.
// --flush: denormals count as zeros, by the mode word and by MXCSR; arguments lie thick where
// they or the results come near the ends of the range, and what is denormal does not count.
// --dry: leave docs/accuracy.md alone. Exit code 1 if a bound is exceeded.
#include <xmmintrin.h>

#include <bit>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <mutex>
#include <thread>

#include "accuracy/complex.hpp"
#include "accuracy/error.hpp"
#include "accuracy/points.hpp"
#include "accuracy/reference.hpp"
#include "accuracy/report.hpp"
#include "accuracy/sift.hpp"
#include "registry/claims.hpp"
#include "registry/kernels.hpp"

namespace {

struct Measured {
  int level;
  std::string kernel;
  Claim claim;
  Worst worst;
};

constexpr int block = 4096;

bool flush = false;  // --flush

// Around the kernel under measurement: denormals as --flush says.
struct Denormals {
  unsigned mxcsr = _mm_getcsr();
  Denormals() {
    if (!flush) return;
    ork_zem_kernel_SetMode(ORK_ZEM_DENORMAL_ZERO);
    _mm_setcsr(mxcsr | 0x8040);
  }
  ~Denormals() {
    ork_zem_kernel_SetMode(ORK_ZEM_DENORMAL_KEEP);
    _mm_setcsr(mxcsr);
  }
};

template <class T>
bool denormal(T x) {
  return std::fpclassify(x) == FP_SUBNORMAL;
}

// Whether --flush leaves this element out: an argument or the result is denormal. Where IEEE
// arithmetic of the kernel's own type is the reference, its intermediate values count.
template <class T>
bool flushed(const Slot& slot, T a, T b, typename Wide<T>::type exact) {
  if (!flush) return false;
  const auto magnitude = exact < 0 ? -exact : exact;
  if (denormal(a) || denormal(b)) return true;
  if (slot.form == Form::linear &&
      (denormal(a * T(linear_scalars[0])) || denormal(b * T(linear_scalars[2]))))
    return true;
  return magnitude < std::numeric_limits<T>::min() && exact != 0;
}

// Measures the kernels of one function on a block of arguments, the exact values taken once.
template <class T>
void measure_block(const Reference& reference, const Slot& slot, std::vector<Measured>& kernels,
                   const T* a, const T* b, int n) {
  static thread_local std::vector<T> r(block), r2(block);
  static thread_local std::vector<typename Wide<T>::type> exact[2] = {
      std::vector<typename Wide<T>::type>(block), std::vector<typename Wide<T>::type>(block)};
  const int outputs = slot.form == Form::two ? 2 : 1;
  for (int k = 0; k < outputs; ++k)
    for (int i = 0; i < n; ++i) exact[k][size_t(i)] = Wide<T>::call(reference, k, a[i], b[i]);
  for (Measured& m : kernels) {
    {
      const Denormals state;
      Call<T>{&slot, m.level}(n, a, b, r.data(), r2.data());
    }
    for (int k = 0; k < outputs; ++k)
      for (int i = 0; i < n; ++i) {
        const T got = (k ? r2 : r)[size_t(i)];
        if (flushed(slot, a[i], b[i], exact[k][size_t(i)])) continue;
        const double error = error_of(got, exact[k][size_t(i)], m.claim.relative);
        if (error > m.worst.error)
          m.worst = {
              error,         double(a[i]), double(b[i]), double(got), double(exact[k][size_t(i)]),
              m.worst.points};
      }
    m.worst.points += n;
  }
}

// The double kernel of a single-precision function.
const Slot* double_twin(const Slot& slot) {
  for (const Slot& other : slots)
    if (other.type == 'd' && !strcmp(other.function, slot.function) && other.exists(1))
      return &other;
  return nullptr;
}

// The same for all 2^32 arguments, in minutes: the double HA kernel, some 2^-29 ulp of single
// off, sifts; what it finds worse than the worst so far is measured against the reference.
void sift_block(const Reference& reference, const Slot& slot, const Slot& twin,
                std::vector<Measured>& kernels, const float* a, int n) {
  alignas(16) static thread_local double wide[block], near[2][block];
  alignas(16) static thread_local float r[2][block];
  constexpr double overflow = 0x1.ffffffp127;  // from here on an infinity is right
  const int outputs = slot.form == Form::two ? 2 : 1;
  for (int i = 0; i < n; ++i) wide[i] = a[i];
  Call<double>{&twin, 1}(n, wide, wide, near[0], near[1]);
  for (Measured& m : kernels) {
    {
      const Denormals state;
      Call<float>{&slot, m.level}(n, a, a, r[0], r[1]);
    }
    for (int k = 0; k < outputs; ++k)
      for (int pair = 0; pair < n; pair += 2) {
        const int suspects =
            worse_pair(r[k] + pair, near[k] + pair, m.worst.error, m.claim.relative);
        for (int i = pair; i < pair + 2; ++i) {
          if (!(suspects >> (i - pair) & 1)) continue;
          const double got = r[k][i], exact = near[k][i];
          if (got == exact || (got != got && exact != exact)) continue;
          if (std::fabs(exact) >= overflow && got == (exact > 0 ? INFINITY : -INFINITY)) continue;
          const long double truth = Wide<float>::call(reference, k, a[i], 0);
          if (flushed(slot, a[i], 0.0f, truth)) continue;
          const double error = error_of(r[k][i], truth, m.claim.relative);
          if (error > m.worst.error)
            m.worst = {error, double(a[i]), 0, got, double(truth), m.worst.points};
        }
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
template <class F>
void on_all_threads(long long count, std::vector<Measured>& kernels, F f) {
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

void measure_all(const Slot& slot, std::vector<Measured>& kernels) {
  const Reference& reference = *find_reference(slot.function);
  const Slot* twin = double_twin(slot);
  on_all_threads((1LL << 32) / block, kernels, [&](long long number, std::vector<Measured>& mine) {
    float a[block], b[block] = {};
    for (int i = 0; i < block; ++i) {
      const float x = std::bit_cast<float>(uint32_t(number * block + i));
      a[i] = std::isnan(x) ? 1 : x;
    }
    if (twin)
      sift_block(reference, slot, *twin, mine, a, block);
    else
      measure_block<float>(reference, slot, mine, a, b, block);
  });
}

template <class T>
void measure(const Claims& claims, const Slot& slot, std::vector<Measured>& kernels, int points) {
  const Reference& reference = *find_reference(slot.function);
  const bool binary =
      slot.form == Form::binary || slot.form == Form::linear || slot.form == Form::scalar;
  const std::string function = std::string(1, slot.type) + slot.function;
  const auto exponent = [&](T a, T b) {
    const auto exact = Wide<T>::call(reference, 0, a, b);
    return exact == 0 ? -100000 : exact != exact ? 0 : Wide<T>::exponent(exact);
  };
  const bool power = !strncmp(slot.function, "Pow", 3) && binary;
  const auto p = flush ? make_end_points<T>(claims, function, binary, power, points, exponent)
                       : make_points<T>(claims, function, binary, points);
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
    if (word == "--root" && i + 1 < argc)
      o.root = argv[++i];
    else if (word == "--points" && i + 1 < argc)
      o.points = std::atoi(argv[++i]);
    else if (word == "--exhaustive")
      o.exhaustive = true;
    else if (word == "--flush")
      flush = true;
    else if (word == "--dry")
      o.dry = true;
    else if (word.starts_with("--"))
      std::fprintf(stderr, "unknown option %s\n", argv[i]), std::exit(2);
    else
      o.names.push_back(word);
  }
  return o;
}

}  // namespace

int main(int argc, char** argv) {
  const Options options = parse(argc, argv);
  if (flush) linear_scalars[1] = linear_scalars[3] = 0;  // so that the terms reach the ends
  const Claims claims = read_claims(options.root);
  std::map<std::string, std::string> rows;
  int failures = 0, measured = 0;
  ComplexRun complex{options.points, flush, &rows};
  for (const Slot& slot : slots) {
    if (slot.form >= Form::pack_i) continue;
    if (slot.type == 'c' || slot.type == 'z') {
      std::vector<int> levels;
      for (int level = 0; level < 3; ++level) {
        bool again = false;
        for (int lower = 0; lower < level; ++lower) again |= slot.table[lower] == slot.table[level];
        if (!again && slot.exists(level) && options.wants(slot, level)) levels.push_back(level);
      }
      if (!options.exhaustive) measure_complex(claims, slot, levels, complex);
      continue;
    }
    if (options.exhaustive &&
        (slot.type != 's' || (slot.form != Form::unary && slot.form != Form::two)))
      continue;
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
    if (options.exhaustive)
      measure_all(slot, kernels);
    else if (slot.type == 'd')
      measure<double>(claims, slot, kernels, options.points);
    else
      measure<float>(claims, slot, kernels, options.points);
    const bool binary =
        slot.form == Form::binary || slot.form == Form::linear || slot.form == Form::scalar;
    for (const Measured& m : kernels) {
      const bool exceeded = !(m.worst.error <= m.claim.bound);
      failures += exceeded;
      ++measured;
      rows[m.kernel] = table_row(m.kernel, m.worst, m.claim.bound, m.claim.relative, binary);
      std::printf("%s%s\n", rows[m.kernel].c_str(), exceeded ? "  EXCEEDED" : "");
      if (exceeded)
        std::printf("    exact %.17g, got %.17g at %.17g %.17g\n", m.worst.exact, m.worst.got,
                    m.worst.a, m.worst.b);
      std::fflush(stdout);
    }
  }
  failures += complex.failures, measured += complex.measured;
  if (!options.dry)
    update_report(options.root + "/docs/accuracy.md", rows, flush ? 2 : options.exhaustive);
  std::printf("%d kernels measured, %d failures\n", measured, failures);
  return failures != 0 || measured == 0;
}
