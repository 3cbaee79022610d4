// Binomial: by a table of sums of probabilities while ntrial min(p, 1 - p) is below 30, by a hat
// from there on; p and 1 - p from 1/2 on exchanged, and the outputs with them.
#include "rua_kernel/discrete/binomial.hpp"

#include "base/export.hpp"
#include "rua_kernel/discrete/cumulative.hpp"
#include "rua_kernel/service/elementwise.hpp"
#include "rua_kernel/service/guard.hpp"
#include "rua_kernel/service/kept.hpp"

using namespace ork::rua;

namespace {

constexpr double kHatFrom = 30;  // of ntrial q

// f(k) / f(k - 1) = a / k - s.
struct Recurrence {
  double s, a;

  Recurrence(int32_t ntrial, double q) : s(q / (1 - q)), a((double(ntrial) + 1) * s) {}
  double operator()(double f, int32_t k) const { return f * (a / k - s); }
};

int32_t table_mode(int32_t ntrial, double q) { return int32_t(ntrial * q); }

// 32 sums beyond the mode, but none beyond ntrial.
int32_t table_size(int32_t ntrial, double q) {
  const int32_t size = table_mode(ntrial, q) + 32;
  return ntrial < size ? ntrial + 1 : size;
}

void make_table(int32_t ntrial, double q, KeptBinomial& kept) {
  const Recurrence next(ntrial, q);
  double f = 1 - q;
  power(1, &f, double(ntrial), kConstants);
  double* const sums = kept.table.sums;
  sums[0] = f;
  for (int32_t k = 1, size = table_size(ntrial, q); k < size; ++k) {
    f = next(f, k);
    sums[k] = sums[k - 1] + f;
  }
  kept.table.last = f;
}

int32_t by_sums(RuaStream* stream, int32_t n, int32_t* r, int32_t ntrial, double q,
                const KeptBinomial& kept) {
  const Cumulative table = {kept.table.sums, table_size(ntrial, q), table_mode(ntrial, q)};
  return by_table<1024>(stream, n, r, table, [=, &kept](double u) {
    const int32_t k =
        go_on(table.sums[table.size - 1], kept.table.last, table.size, u, Recurrence(ntrial, q));
    return k < ntrial ? k : ntrial;  // sums may end below 1
  });
}

}  // namespace

ORK_EXPORT int32_t _ruaiRngBinomial(int32_t, RuaStream* stream, int32_t n, int32_t* r,
                                    int32_t ntrial, double p) {
  static constexpr KeptBinomial none;
  const CallbackGuard guard(least_ln_at_pole<float>);
  KeptBinomial* kept;
  const int32_t found = find_or_make(stream, kept, none);
  if (found < 0) return found;
  const bool mirrored = p >= 0.5;
  const double q = mirrored ? 1 - p : p;
  const bool by_hat = ntrial * q >= kHatFrom;
  if (kept->ntrial != ntrial || kept->p != p) {
    if (by_hat)
      kept->hat = binomial_hat(ntrial, q, 1 - q);
    else
      make_table(ntrial, q, *kept);
    kept->ntrial = ntrial;
    kept->p = p;
  }
  const int32_t status =
      by_hat ? binomial_by_hat(stream, n, r, kept->hat) : by_sums(stream, n, r, ntrial, q, *kept);
  if (status < 0 || !mirrored) return status;
  for (int32_t i = 0; i < n; ++i) r[i] = ntrial - r[i];
  return status;
}
