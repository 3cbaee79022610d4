// Covariance within groups: that of each group about its own mean, and pooled over all.
#include "base/threads.hpp"
#include "rua_kernel/ss/groups/members.hpp"
#include "rua_kernel/ss/groups/scatter.hpp"
#include "rua_kernel/ss/moments/finish.hpp"
#include "rua_kernel/ss/service/computation.hpp"

namespace ork::ss {
namespace {

// Fewer variables are not worth threads.
constexpr int kThreadedFrom = 11;

template <class R>
int32_t check(const Task<R>& t, bool pooled, bool single, uint64_t method) {
  if (!t.storageFormat) return ORK_SS_NULL_STORAGE;
  if (!(t.integer(t.storageFormat) & kLayouts)) return ORK_SS_BAD_STORAGE;
  if (!t.groupIndex) return ORK_SS_NULL_GROUPS;
  if (pooled && !t.pooledCovStorage) return ORK_SS_NULL_STORAGE;
  if (pooled && !t.pooledCov) return ORK_SS_NULL_POOLED_COV;
  if (pooled && !t.pooledMean) return ORK_SS_NULL_POOLED_MEAN;
  if (single && !t.groupCovStorage) return ORK_SS_NULL_STORAGE;
  if (single && !t.groupRequest) return ORK_SS_NULL_GROUPS;
  if (single && !t.groupCov) return ORK_SS_NULL_GROUP_COV;
  if (single && !t.groupMeans) return ORK_SS_NULL_GROUP_MEANS;
  return method & ORK_SS_ONE_PASS ? ORK_SS_OK : ORK_SS_BAD_METHOD;
}

// Asked for or not, requests are 0 or 1.
template <class R>
int32_t check_requests(const Task<R>& t, int groups) {
  for (int g = 0; t.groupRequest && g < groups; ++g) {
    const int64_t request = t.integer(t.groupRequest, g);
    if (request != 0 && request != 1) return ORK_SS_BAD_GROUPS;
  }
  return ORK_SS_OK;
}

// Divisor of a scatter: W - W2 / W.
template <class R>
auto divisor(const Scatter<R>& s) {
  return unbiased_divisor(Weight<typename Scatter<R>::Wide>{s.w(), s.w2()});
}

template <class R>
void put(const Task<R>& t, const Scatter<R>& s, typename Scatter<R>::Wide by, R* mean,
         const Symmetric<R>& cov) {
  for (int j = 0; j < s.p; ++j)
    if (t.selected(j)) mean[j] = R(s.mean()[j]);
  put_selected(t, cov, [&](int i, int j) { return R(ratio(s.row(i)[j], by)); });
}

// The pool keeps sums of w x in place of means, and of divisors in place of squared weights.
// Nothing comes of a group without weight.
template <class R>
void add_to_pool(const Scatter<R>& group, const Scatter<R>& pool) {
  if (group.w() == 0) return;
  pool.w() += group.w();
  pool.w2() += divisor(group);
  for (int i = 0; i < pool.p; ++i) {
    pool.mean()[i] += group.w() * group.mean()[i];
    for (int j = 0; j <= i; ++j) pool.row(i)[j] += group.row(i)[j];
  }
}

template <class R>
int32_t pooled_covariance(const Task<R>& t, uint64_t estimates, uint64_t method,
                          const ork_threader* threader) {
  const bool pooled = estimates & ORK_SS_POOLED_COV, single = estimates & ORK_SS_GROUP_COV;
  int groups = 0;
  if (const int32_t status = check(t, pooled, single, method)) return status;
  if (const int32_t status = count_groups(t, &groups)) return status;
  if (const int32_t status = check_requests(t, groups)) return status;

  const Data<R> data = data_of(t);
  const int p = data.p, threads = p >= kThreadedFrom ? thread_limit(threader, groups) : 1;
  typedef typename Scatter<R>::Wide Wide;
  const uint64_t size = Scatter<R>::size(p), own = Scatterer<R>::size(p);
  const Scratch<Wide> scatters((uint64_t(threads) + pooled) * size);
  if (!scatters) return ORK_SS_NO_MEMORY;
  const Scratch<R> scratch(threads * own);
  if (!scratch) return ORK_SS_NO_MEMORY;
  const Members members(t, groups);
  if (!members) return ORK_SS_NO_MEMORY;
  // How many of the groups before each are asked for.
  Scratch<int> places;
  if (single) {
    places = Scratch<int>(groups);
    if (!places) return ORK_SS_NO_MEMORY;
    for (int g = 0, place = 0; g < groups; ++g) {
      places[g] = place;
      place += t.integer(t.groupRequest, g) != 0;
    }
  }

  const auto scatter_of = [&](int thread) {
    return Scatter<R>(p, scatters.get() + size_t(thread) * size_t(size));
  };
  const Scatter<R> pool = scatter_of(threads);  // behind those of the threads, where asked for
  if (pooled) pool.clear();
  run_in_order(
      threader, groups, threads,
      [&](int g, int thread) {
        const Scatter<R> group = scatter_of(thread);
        Scatterer<R>(data, scratch.get() + size_t(thread) * size_t(own), group)
            .run(members.begin(g), members.end(g));
        if (!single || t.integer(t.groupRequest, g) == 0) return;
        Symmetric<R> cov{t.groupCov, p, code_of(t, t.groupCovStorage)};
        cov.a += size_t(places[g]) * size_t(cov.size());
        put(t, group, divisor(group), t.groupMeans + size_t(places[g]) * p, cov);
      },
      [&](int, int thread) { add_to_pool(scatter_of(thread), pool); }, pooled);
  if (pooled) {
    for (int j = 0; j < p; ++j) pool.mean()[j] = ratio(pool.mean()[j], pool.w());
    put(t, pool, pool.w2(), t.pooledMean,
        Symmetric<R>{t.pooledCov, p, code_of(t, t.pooledCovStorage)});
  }
  return ORK_SS_OK;
}

}  // namespace

ORK_COMPUTATION(PooledCovariance, pooled_covariance)

}  // namespace ork::ss
