// Hypergeometric: by a table of sums of probabilities while the mode is below 40, by a hat from
// there on; from the smaller halves of the lot and of the sample, mapped to the ones asked about.
#include "rua_kernel/discrete/hypergeometric.hpp"

#include "base/export.hpp"
#include "rua_kernel/discrete/cumulative.hpp"
#include "rua_kernel/discrete/log_factorials.hpp"
#include "rua_kernel/service/elementwise.hpp"
#include "rua_kernel/service/guard.hpp"
#include "rua_kernel/service/kept.hpp"

namespace ork::rua {

namespace {

constexpr int32_t kHatFrom = 40;  // the mode

// Probabilities end here, the sums at 1.
constexpr double kLeastProbability = 0x1p-52;

double probability_of_none(const Lot& t) {
  return value(Tables<double>::exp, (log_factorial(t.n2) - log_factorial(t.n2 - t.k)) -
                                        (log_factorial(t.l) - log_factorial(t.l - t.k)));
}

// f(x + 1) from f(x).
double next(const Lot& t, double f, int32_t x) {
  const double up = double(t.n1 - x) * double(t.k - x),
               down = (double(x) + 1) * (double(t.n2 - t.k) + double(x) + 1);
  return f * up / down;
}

// Sums up to the mode from below, beyond it from 1 downwards, so that neither end is off; what the
// first probability's logarithm lacks is at the mode. Returns their number.
int32_t make_sums(const Lot& t, double* sums) {
  double f = probability_of_none(t);
  int32_t x = 0;
  sums[0] = f;
  for (; x < t.mode; ++x) {
    f = next(t, f, x);
    sums[x + 1] = sums[x] + f;
  }
  while (x < t.most && !(f < kLeastProbability)) {
    f = next(t, f, x);
    sums[++x] = f;
  }
  double sum = 1;
  for (int32_t i = x; i > t.mode; --i) {
    const double own = sums[i];
    sums[i] = sum;
    sum -= own;
  }
  if (x == t.mode) sums[x] = 1;
  return x + 1;
}

// The chunk of the lot's set-up, of so many bytes. `ready` where it is that of the last call.
template <class Kept>
int32_t find_or_replace(RuaStream* stream, const Lot& lot, uint32_t size, Kept*& kept,
                        bool& ready) {
  KeptTable* head;
  const int32_t status = find_chunk(stream, head);
  if (status < 0) return status;
  void* whole;
  ready = head && head->is_of(lot) &&
          find_chunk(stream, KeptLot::kChunk, size, &whole) == RUA_STATUS_OK;
  kept = static_cast<Kept*>(static_cast<KeptLot*>(head));
  if (ready) return status;
  const int32_t replaced = replace(stream, kept, size);
  if (replaced == RUA_STATUS_OK)
    static_cast<KeptLot&>(*kept) = {.l = lot.l, .s = lot.s, .m = lot.m};
  return replaced;
}

int32_t by_sums(RuaStream* stream, int32_t n, int32_t* r, const Lot& lot) {
  KeptTable* kept;
  bool ready;
  const uint32_t size = uint32_t(lot.most) * 8 + 48;
  const int32_t status = find_or_replace(stream, lot, size, kept, ready);
  if (status < 0) return status;
  // An image may say anything about the size.
  if (!ready || kept->size <= lot.mode || kept->size > lot.most + 1)
    kept->size = make_sums(lot, kept->sums);
  const Cumulative table = {kept->sums, kept->size, lot.mode};
  return by_table<2048>(stream, n, r, table, [=](double) { return table.size - 1; });
}

int32_t by_hat(RuaStream* stream, int32_t n, int32_t* r, const Lot& lot) {
  KeptHat* kept;
  bool ready;
  const int32_t status = find_or_replace(stream, lot, sizeof(KeptHat), kept, ready);
  if (status < 0) return status;
  if (!ready) kept->hat = hypergeometric_hat(lot);
  return hypergeometric_by_hat(stream, n, r, lot, kept->hat);
}

}  // namespace

Lot::Lot(int32_t l, int32_t s, int32_t m) : l(l), s(s), m(m) {
  n1 = m < l - m ? m : l - m;
  n2 = l - n1;
  k = s < l - s ? s : l - s;
  most = n1 < k ? n1 : k;
  mode = int32_t((float(k) + 1) * (float(n1) + 1) / (float(l) + 2));
}

int32_t Lot::base() const {
  if (s >= l - s) return m <= l - m ? m : s - n1;
  return m > l - m ? s : 0;
}

bool Lot::downward() const { return (s >= l - s) == (m <= l - m); }

}  // namespace ork::rua

using namespace ork::rua;

ORK_EXPORT int32_t _ruaiRngHypergeometric(int32_t, RuaStream* stream, int32_t n, int32_t* r,
                                          int32_t l, int32_t s, int32_t m) {
  const CallbackGuard guard(least_ln_at_pole<float>);
  const Lot lot(l, s, m);
  int32_t status = RUA_STATUS_OK;
  if (lot.most == 0)
    for (int32_t i = 0; i < n; ++i) r[i] = 0;
  else if (lot.mode >= kHatFrom)
    status = by_hat(stream, n, r, lot);
  else
    status = by_sums(stream, n, r, lot);
  if (status < 0) return status;
  const int32_t base = lot.base();
  if (lot.downward())
    for (int32_t i = 0; i < n; ++i) r[i] = base - r[i];
  else if (base != 0)
    for (int32_t i = 0; i < n; ++i) r[i] += base;
  return status;
}
