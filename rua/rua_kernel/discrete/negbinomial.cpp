// Negative binomial: failures before the a-th success of probability p, by a table of cumulative
// probabilities or below a hat. The set-up stays with the stream.
#include "base/export.hpp"
#include "ork/rua_distributions.h"
#include "rua_kernel/discrete/cumulative.hpp"
#include "rua_kernel/discrete/negbinomial_hat.hpp"
#include "rua_kernel/discrete/negbinomial_tail.hpp"
#include "rua_kernel/service/elementwise.hpp"
#include "rua_kernel/service/guard.hpp"
#include "rua_kernel/service/kept.hpp"

using namespace ork::rua;

namespace {

// From this mean of a - 1 on by the hat, where it stands.
constexpr double kHatFrom = 100;
constexpr int32_t kBatch = 2048;
// Below this p numbers may lie far behind the table.
constexpr double kFarBelow = 1.0 / 64;

// One probability from the one before it.
struct Recurrence {
  double q, a;
  double operator()(double before, int32_t k) const { return before * q * (a + (k - 1)) / k; }
};

// Sums of the probabilities of 0, 1, .. and the last one that was added.
struct Sums {
  static constexpr int32_t kMost = 163;
  double sums[kMost], last;

  void set_up(double a, double p, int32_t size) {
    last = p;
    power(1, &last, a, kConstants);
    double sum = sums[0] = last;
    const Recurrence next = {1 - p, a};
    for (int32_t k = 1; k < size; ++k) sums[k] = sum += last = next(last, k);
  }
};

// What stays with a stream: the parameters, and the set-up of the method that they lead to.
struct SetUp {
  static constexpr uint32_t kChunk = 4;
  double a, p;
  union {
    Sums table;
    NegbinomialHat hat;
  };
  SetUp() : a(__builtin_nan("")), p(a), table{} {}

  bool serves(double of_a, double of_p) const { return a == of_a && p == of_p; }
};
static_assert(sizeof(SetUp) == 1328);

int32_t by_sums(SetUp& kept, RuaStream* stream, int32_t n, int32_t* r, double a, double p) {
  const double mean = (a - 1) * (1 - p) / p;
  const int32_t mode = mean < kHatFrom ? mean > 0 ? int32_t(mean) : 0 : int32_t(kHatFrom) - 1;
  const int32_t size = p < kFarBelow ? Sums::kMost : mode + 64;
  if (!kept.serves(a, p)) {
    kept.table.set_up(a, p, size);
    kept.a = a, kept.p = p;
  }
  const Sums& t = kept.table;
  const double sum = t.sums[size - 1];
  const Cumulative table = {t.sums, size, mode};
  if (p >= kFarBelow || t.last == 0)
    return by_table<kBatch>(stream, n, r, table, [&](double u) {
      return go_on(sum, t.last, size, u, Recurrence{1 - p, a});
    });
  NegbinomialTail tail(a, p, size - 1, t.last, sum);
  return by_table<kBatch>(stream, n, r, table, [&](double u) { return tail.answer(u); });
}

int32_t by_hat(SetUp& kept, RuaStream* stream, int32_t n, int32_t* r, const HatCorners& corners) {
  const CallbackGuard guard(least_ln_at_pole<float>);
  if (!kept.serves(corners.a, corners.p) || !kept.hat.sound()) {
    kept.hat.set_up(corners);
    kept.a = corners.a, kept.p = corners.p;
  }
  return kept.hat.draw(stream, n, r);
}

}  // namespace

ORK_EXPORT int32_t _ruaiRngNegbinomial(int32_t, RuaStream* stream, int32_t n, int32_t* r, double a,
                                       double p) {
  // Two deviations above the mean the numbers still have to be integers of the type.
  const double q = 1 - p, mean = a * q / p;
  if (!(mean + 2 * __builtin_sqrt(mean / p) < kIntegers)) return RUA_STATUS_BAD_ARGUMENT;
  SetUp* kept;
  const int32_t status = find_or_make(stream, kept, SetUp());
  if (status < 0) return status;
  if ((a - 1) * q / p >= kHatFrom) {
    const HatCorners corners(a, p);
    if (corners.has_left_tail()) return by_hat(*kept, stream, n, r, corners);
  }
  return by_sums(*kept, stream, n, r, a, p);
}
