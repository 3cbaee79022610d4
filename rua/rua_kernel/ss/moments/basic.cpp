// Moments, sums, covariance: set-up, the shares of the threads, and what becomes of them.
#include "rua_kernel/ss/moments/basic.hpp"

#include <string.h>

#include "base/dense.hpp"
#include "base/scratch.hpp"
#include "base/threads.hpp"
#include "rua_kernel/ss/moments/continuation.hpp"
#include "rua_kernel/ss/moments/finish.hpp"
#include "rua_kernel/ss/moments/merge.hpp"
#include "rua_kernel/ss/moments/tables.hpp"
#include "rua_kernel/ss/service/computation.hpp"

namespace ork::ss {
namespace {

template <class R>
struct Work {
  Data<R> data;
  Kernel<R> kernel;
  bool by_products;  // cross-products by the dense layer, not by the kernel
  bool centred;      // of distances from the caller's mean
  Share<R>* shares;  // of the threads
};

// Observations that the kernel and the dense layer go through in turn: 256 KB, 128 at least.
template <class R>
int block_length(int p, int n) {
  const int cached = int(0x40000 / sizeof(R) / uint32_t(p)), length = cached > 128 ? cached : 128;
  return length < n ? length : n;
}

// A block of observations, in one of the two layouts, to <- f(i, j, x), i the observation.
template <class R, class F>
void lay_down(bool rows, int p, int count, const R* x, int ld, R* to, F f) {
  if (rows) {
    for (int j = 0; j < p; ++j)
      for (int i = 0; i < count; ++i) to[size_t(j) * count + i] = f(i, j, x[size_t(j) * ld + i]);
  } else {
    for (int i = 0; i < count; ++i)
      for (int j = 0; j < p; ++j) to[size_t(i) * p + j] = f(i, j, x[size_t(i) * ld + j]);
  }
}

// Adds the observations' weighted products to s, block after block while they are in the cache:
// those of their distances from the mean that the caller has supplied, or those about the origin.
// Row after row, the lower triangle is what the dense layer calls the upper one.
template <class R>
void take_products(const Work<R>& work, Share<R>& share, int first, int last) {
  typedef Dense<R> D;
  const Data<R>& data = work.data;
  const int p = data.p, n = data.n, one_step = 1;
  const R one = 1, minus = -1;
  // About the origin while observations come in, about the mean before and after.
  const auto shift = [&](R sign) {
    const R w = sign * share.weight.w;
    D::syr("U", &p, &w, share.orders[kMean], &one_step, share.s, &p);
  };
  const int length = block_length<R>(p, n);
  const R* const mean = share.orders[kMean];

  if (!work.centred) shift(one);
  for (int at = first; at < last; at += length) {
    const int count = last - at < length ? last - at : length;
    work.kernel(data, at, at + count, share.weight, share.orders, nullptr, nullptr);
    const R* x = data.x + (data.rows ? size_t(at) : size_t(at) * p);
    const int block_ld = data.rows ? count : p;
    int ld = data.rows ? n : p;
    R* to = share.scratch;
    if (work.centred) {
      lay_down(data.rows, p, count, x, ld, to, [&](int, int j, R v) { return v - mean[j]; });
      x = to;
      ld = block_ld;
      to += size_t(length) * p;
    }
    if (data.w) {
      const R* const w = data.w + at;
      lay_down(data.rows, p, count, x, ld, to, [&](int i, int, R v) { return w[i] * v; });
      D::gemm(data.rows ? "T" : "N", data.rows ? "N" : "T", &p, &p, &count, &one, to, &block_ld, x,
              &ld, &one, share.s, &p);
    } else {
      D::syrk("U", data.rows ? "T" : "N", &p, &count, &one, x, &ld, &one, share.s, &p);
    }
  }
  if (!work.centred) shift(minus);
}

// The observations of thread `index`.
template <class R>
void take_share(const Work<R>& work, int index, int threads) {
  Share<R>& share = work.shares[index];
  const int each = work.data.n / threads, first = index * each;
  const int last = index == threads - 1 ? work.data.n : first + each;
  if (work.by_products) {
    take_products(work, share, first, last);
  } else {
    work.kernel(work.data, first, last, share.weight, share.orders, share.s, share.scratch);
  }
}

// One block of reals, dealt out in pieces that start on cache lines of their own.
template <class R>
class Arena {
 public:
  // Counts as long as there is no block, then deals.
  R* take(uint64_t count) {
    R* piece = block_ ? block_.get() + size_t(used_) : nullptr;
    used_ += (count + 31) / 32 * 32;
    return piece;
  }
  bool allocate() {
    if (used_ == 0) return true;
    block_ = Scratch<R>(used_);
    used_ = 0;
    return bool(block_);
  }

 private:
  Scratch<R> block_;
  uint64_t used_ = 0;
};

int threads_for(int n, const ork_threader* threader) {
  constexpr int least = 1000;  // observations of a thread
  int threads = thread_limit(threader);
  if (n / threads < least) threads = n / least > 0 ? n / least : 1;
  return threads;
}

// Fills a working array of thread 0 from an earlier result, or with zeros. `own`: it is not one
// of the caller's.
template <class R>
void start_order(const Task<R>& t, int order, R* working, bool own, const Weight<R>& sum) {
  const int p = t.p();
  const R *total = t.sums[order], *moment = t.moments[order], *from = total ? total : moment;
  if (sum.w == 0 || (own && (!(sum.w > 0) || !from))) {
    memset(working, 0, size_t(p) * sizeof(R));
    return;
  }
  if (!(sum.w > 0)) return;
  R factor = 1;
  if (order <= kRaw4 && total) factor = 1 / sum.w;
  if (order >= kCentral2 && !total) factor = central_divisor(Order(order), sum);
  for (int j = 0; j < p; ++j) working[j] = factor * from[j];
}

// The matrix that s starts from: the first that is asked for.
template <class R>
Symmetric<R> first_matrix(const Task<R>& t, const Request& q, Form& form) {
  const int p = t.p();
  if (q.asks(kCrossProduct)) {
    form = Form::kCrossProduct;
    return {t.crossProduct, p, code_of(t, t.crossProductStorage)};
  }
  if (q.asks(kCov)) {
    form = Form::kCovariance;
    return {t.cov, p, code_of(t, t.covStorage)};
  }
  form = Form::kCorrelation;
  return {t.cor, p, code_of(t, t.corStorage)};
}

template <class R>
void start_matrix(const Symmetric<R>& from, Form form, R* s, const Weight<R>& sum) {
  if (sum.w > 0)
    to_working(from, form, unbiased_divisor(sum), s);
  else if (s != from.a || sum.w == 0)
    memset(s, 0, size_t(from.p) * from.p * sizeof(R));
}

template <class R>
int32_t from_sums(const Task<R>& t, const Request& q) {
  Weight<R> sum;
  if (t.accumulatedWeight)
    sum = {t.accumulatedWeight[0], t.accumulatedWeight[1]};
  else
    sum.w = sum.w2 = R(t.n());
  if (q.asks_matrix()) {
    const int p = t.p();
    const Symmetric<R> products{t.crossProduct, p, code_of(t, t.crossProductStorage)};
    Scratch<R> unpacked;
    if (!products.full()) {
      unpacked = Scratch<R>(uint64_t(p) * p);
      if (!unpacked) return ORK_SS_NO_MEMORY;
      to_working(products, Form::kCrossProduct, R(1), unpacked.get());
    }
    finish_matrices(t, q, sum, unpacked ? unpacked.get() : products.a);
  }
  finish_from_sums(t, q, sum);
  return ORK_SS_OK;
}

template <class R>
struct Choice {
  Kernel<R> kernel;
  uint32_t kept;  // orders that are written
};

template <class R>
Choice<R> choose(const Request& q, bool rows, bool weighted) {
#define ORK_KEPT(Orders, from)                   \
  (index == 0   ? mask_of<from>(Orders<0>::kept) \
   : index == 1 ? mask_of<from>(Orders<1>::kept) \
   : index == 2 ? mask_of<from>(Orders<2>::kept) \
                : mask_of<from>(Orders<3>::kept))
  const int index = q.order_index();
  switch (q.method) {
    case Method::kFast:
      return {Kernels<R>::fast[rows][weighted][index], ORK_KEPT(FastOrders, 0)};
    case Method::kTwoPass:
      return {Kernels<R>::two_pass[rows][weighted][index], ORK_KEPT(TwoPassOrders, 1)};
    default:
      return {Kernels<R>::one_pass[rows][weighted][q.asks_matrix()][index],
              ORK_KEPT(OnePassOrders, 0)};
  }
#undef ORK_KEPT
}

}  // namespace

template <class R>
int32_t basic(Task<R>& t, uint64_t estimates, uint64_t method, const ork_threader* threader) {
  const Request q = request(t, estimates, method);
  if (q.status != ORK_SS_OK) return q.status;
  if (q.method == Method::kFromSums) return from_sums(t, q);

  const Data<R> data = data_of(t);
  const int p = data.p, n = data.n, threads = threads_for(n, threader);
  const bool given_mean = q.method == Method::kTwoPass, matrix = q.asks_matrix();
  const bool one_pass = q.method == Method::kOnePass;
  const Choice<R> choice = choose<R>(q, data.rows, data.w != nullptr);
  Work<R> work{data, choice.kernel, matrix && !one_pass, given_mean, nullptr};

  Weight<R> sum{0, 0};
  if (t.accumulatedWeight) sum = {t.accumulatedWeight[0], t.accumulatedWeight[1]};
  const uint32_t lost = sum.w > 0 ? lost_orders(t, q) : 0;
  if (const int32_t status = check_continuation(t, lost)) return status;

  // The caller's arrays serve thread 0 where they can; with a mask, variables that are left out
  // must keep their results.
  Form form = Form::kCrossProduct;
  Symmetric<R> first{};
  if (matrix) first = first_matrix(t, q, form);
  const bool own_matrix = matrix && (t.variableMask || !first.full());
  const auto borrowed = [&](int order) -> R* {
    if (t.variableMask) return nullptr;
    return t.sums[order] ? t.sums[order] : t.moments[order];
  };
  const uint64_t scratch_size =
      !matrix    ? 0
      : one_pass ? cross_scratch<R>(p)
                 : uint64_t(block_length<R>(p, n)) * p * (given_mean + (t.weights != nullptr));
  const bool need_mean = given_mean && !t.moments[kMean];

  Scratch<Share<R>> more;
  Share<R> one;
  work.shares = &one;
  if (threads > 1) {
    more = Scratch<Share<R>>(threads);
    if (!more) return ORK_SS_NO_MEMORY;
    work.shares = more.get();
  }
  Arena<R> arena;
  R* zero_mean = nullptr;
  const auto deal = [&] {
    if (need_mean) zero_mean = arena.take(p);
    for (int k = 0; k < threads; ++k) {
      Share<R>& share = work.shares[k];
      share.weight = k == 0 ? sum : Weight<R>{0, 0};
      for (int order = 0; order < kOrders; ++order) {
        R* array = nullptr;
        if (choice.kept & bit(order)) {
          if (k == 0) array = borrowed(order);
          if (!array) array = arena.take(p);
        }
        share.orders[order] = array;
      }
      if (given_mean) share.orders[kMean] = need_mean ? zero_mean : t.moments[kMean];
      share.s = nullptr;
      if (matrix) share.s = k > 0 || own_matrix ? arena.take(uint64_t(p) * p) : first.a;
      share.scratch = arena.take(scratch_size);
    }
  };
  deal();
  if (!arena.allocate()) return ORK_SS_NO_MEMORY;
  deal();

  // From here on outputs change.
  if (need_mean) memset(zero_mean, 0, size_t(p) * sizeof(R));
  for (int k = 0; k < threads; ++k) {
    const Share<R>& share = work.shares[k];
    for (int order = 0; order < kOrders; ++order) {
      if (!(choice.kept & bit(order))) continue;
      if (k == 0 && (lost & bit(order)))
        bring_back(order, p, sum.w, share.orders);
      else if (k == 0)
        start_order(t, order, share.orders[order], !borrowed(order), sum);
      else
        memset(share.orders[order], 0, size_t(p) * sizeof(R));
    }
    if (matrix && k == 0) start_matrix(first, form, share.s, sum);
    if (matrix && k > 0) memset(share.s, 0, size_t(p) * p * sizeof(R));
    if (scratch_size) memset(share.scratch, 0, size_t(scratch_size) * sizeof(R));
  }

  run_team(threader, threads, [&](int index, int team) { take_share(work, index, team); });

  Share<R>& total = work.shares[0];
  for (int k = 1; k < threads; ++k) merge(p, total, work.shares[k], given_mean);
  if (matrix) finish_matrices(t, q, total.weight, total.s);
  if (t.accumulatedWeight) {
    t.accumulatedWeight[0] = total.weight.w;
    t.accumulatedWeight[1] = total.weight.w2;
  }
  finish_moments(t, q, total.weight, total.orders);
  return ORK_SS_OK;
}

template int32_t basic(Task<double>&, uint64_t, uint64_t, const ork_threader*);
template int32_t basic(Task<float>&, uint64_t, uint64_t, const ork_threader*);

ORK_COMPUTATION(Basic, basic)

}  // namespace ork::ss
