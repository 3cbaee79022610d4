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

// What a call keeps, in which arrays, and where it starts from: made before anything is written.
template <class R>
class Plan {
 public:
  Plan(const Task<R>& t, const Request& q, const ork_threader* threader)
      : t_(t),
        q_(q),
        data_(data_of(t)),
        choice_(choose<R>(q, data_.rows, data_.w != nullptr)),
        threads_(threads_for(data_.n, threader)),
        matrix_(q.asks_matrix()),
        supplied_mean_(q.method == Method::kTwoPass),
        no_mean_(supplied_mean_ && !t.moments[kMean]) {
    if (t.accumulatedWeight) sum_ = {t.accumulatedWeight[0], t.accumulatedWeight[1]};
    if (sum_.w > 0) lost_ = lost_orders(t, q);
    if (!matrix_) return;
    first_ = first_matrix(t, q, form_);
    own_matrix_ = t.variableMask || !first_.full();
    scratch_ = by_products() ? uint64_t(block_length<R>(data_.p, data_.n)) * data_.p *
                                   (supplied_mean_ + (data_.w != nullptr))
                             : cross_scratch<R>(data_.p);
  }

  int threads() const { return threads_; }
  int32_t status() const { return check_continuation(t_, lost_); }
  // Of the one block that holds all arrays but the caller's.
  uint64_t reals() const {
    uint64_t sum = no_mean_ ? padded(data_.p) : 0;
    for (int k = 0; k < threads_; ++k) {
      for (int order = 0; order < kOrders; ++order)
        if (keeps(order) && !borrowed(k, order)) sum += padded(data_.p);
      if (matrix_ && !borrowed_matrix(k)) sum += padded(matrix_size());
      sum += padded(scratch_);
    }
    return sum;
  }
  // Gives the shares their arrays and what these start from. Outputs change.
  void start(R* block, Share<R>* shares) const {
    const auto take = [&](uint64_t count) {
      R* const piece = block;
      block += padded(count);
      return piece;
    };
    const auto cleared = [&](uint64_t count) {
      R* const piece = take(count);
      if (count > 0) memset(piece, 0, size_t(count) * sizeof(R));
      return piece;
    };
    const int p = data_.p;
    R* const mean = no_mean_ ? cleared(p) : t_.moments[kMean];
    for (int k = 0; k < threads_; ++k) {
      Share<R>& share = shares[k];
      share.weight = k == 0 ? sum_ : Weight<R>{0, 0};
      for (int order = 0; order < kOrders; ++order) {
        R* const own = keeps(order) ? borrowed(k, order) : nullptr;
        share.orders[order] = own || !keeps(order) ? own : cleared(p);
      }
      if (supplied_mean_) share.orders[kMean] = mean;
      share.s = !matrix_             ? nullptr
                : borrowed_matrix(k) ? borrowed_matrix(k)
                                     : cleared(matrix_size());
      share.scratch = cleared(scratch_);
    }
    for (int order = 0; order < kOrders; ++order) {
      if (!keeps(order)) continue;
      if (lost_ & bit(order))
        bring_back(order, p, sum_.w, shares[0].orders);
      else
        start_order(t_, order, shares[0].orders[order], !borrowed(0, order), sum_);
    }
    if (matrix_) start_matrix(first_, form_, shares[0].s, sum_);
  }
  Work<R> work(Share<R>* shares) const {
    return {data_, choice_.kernel, matrix_ && by_products(), supplied_mean_, shares};
  }
  void finish(Share<R>* shares) const {
    Share<R>& total = shares[0];
    for (int k = 1; k < threads_; ++k) merge(data_.p, total, shares[k], supplied_mean_);
    if (matrix_) finish_matrices(t_, q_, total.weight, total.s);
    if (t_.accumulatedWeight) {
      t_.accumulatedWeight[0] = total.weight.w;
      t_.accumulatedWeight[1] = total.weight.w2;
    }
    finish_moments(t_, q_, total.weight, total.orders);
  }

 private:
  // Pieces of the block start on cache lines of their own.
  static uint64_t padded(uint64_t count) { return (count + 31) / 32 * 32; }
  uint64_t matrix_size() const { return uint64_t(data_.p) * data_.p; }
  bool by_products() const { return q_.method != Method::kOnePass; }
  bool keeps(int order) const { return choice_.kept & bit(order); }
  // The caller's arrays serve thread 0 where they can; with a mask, variables that are left out
  // must keep their results.
  R* borrowed(int k, int order) const {
    if (k > 0 || t_.variableMask) return nullptr;
    return t_.sums[order] ? t_.sums[order] : t_.moments[order];
  }
  R* borrowed_matrix(int k) const { return k > 0 || own_matrix_ ? nullptr : first_.a; }

  const Task<R>& t_;
  const Request q_;
  const Data<R> data_;
  const Choice<R> choice_;
  const int threads_;
  const bool matrix_, supplied_mean_;
  const bool no_mean_;       // the supplied mean is 0
  Weight<R> sum_{0, 0};      // of the earlier calls
  uint32_t lost_ = 0;        // orders that earlier calls have not left
  Form form_{};              // of the matrix
  Symmetric<R> first_{};     // that the matrix starts from
  bool own_matrix_ = false;  // which cannot serve as one that sums go into
  uint64_t scratch_ = 0;     // reals of a share
};

}  // namespace

template <class R>
int32_t basic(Task<R>& t, uint64_t estimates, uint64_t method, const ork_threader* threader) {
  const Request q = request(t, estimates, method);
  if (q.status != ORK_SS_OK) return q.status;
  if (q.method == Method::kFromSums) return from_sums(t, q);

  const Plan<R> plan(t, q, threader);
  if (const int32_t status = plan.status()) return status;
  Share<R> one, *shares = &one;
  Scratch<Share<R>> more;
  if (plan.threads() > 1) {
    more = Scratch<Share<R>>(plan.threads());
    if (!more) return ORK_SS_NO_MEMORY;
    shares = more.get();
  }
  Scratch<R> block;
  if (const uint64_t reals = plan.reals()) {
    block = Scratch<R>(reals);
    if (!block) return ORK_SS_NO_MEMORY;
  }
  plan.start(block.get(), shares);
  const Work<R> work = plan.work(shares);
  run_team(threader, plan.threads(), [&](int index, int team) { take_share(work, index, team); });
  plan.finish(shares);
  return ORK_SS_OK;
}

template int32_t basic(Task<double>&, uint64_t, uint64_t, const ork_threader*);
template int32_t basic(Task<float>&, uint64_t, uint64_t, const ork_threader*);

ORK_COMPUTATION(Basic, basic)

}  // namespace ork::ss
