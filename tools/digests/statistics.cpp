// Computations of statistics, in both precisions, layouts, with and without weights, masks and
// packed matrices, on one thread and divided among three.
#include <map>

#include "accuracy/points.hpp"
#include "digests/digests.hpp"
#include "digests/threads.hpp"
#include "ork/ss.h"

namespace {

template <class R>
struct Api;
#define ORK_API(t, R)                                          \
  template <>                                                  \
  struct Api<R> {                                              \
    static constexpr char letter[] = #t;                       \
    static constexpr auto make = __rua##t##SSNewTask;          \
    static constexpr auto edit = __rua##t##SSEditTask;         \
    static constexpr auto basic = _rua##t##SSBasic;            \
    static constexpr auto minmax = _rua##t##SSMinmax;          \
    static constexpr auto quantiles = _rua##t##SSQuantiles;    \
    static constexpr auto stream = _rua##t##SSStreamQuantiles; \
    static constexpr auto deviations = _rua##t##SSMAD;         \
    static constexpr auto median = _rua##t##SSWMedian;         \
  };
ORK_API(d, double)
ORK_API(s, float)
#undef ORK_API

struct Shape {
  int p, n, layout;
  bool weighted, masked;
  int matrices;  // their storage
  const ork_threader* threader;
};

template <class R>
using Entry = int32_t(ork_ss_task*, uint32_t, uint32_t, uint32_t, uint32_t, const ork_threader*);

template <class R>
struct Computation {
  const char* name;
  Entry<R>* entry;
  uint64_t estimates, method;
};

template <class R>
int32_t weighted_median(ork_ss_task* task, uint32_t, uint32_t, uint32_t, uint32_t,
                        const ork_threader*) {
  return Api<R>::median(task);
}

// A task with an array for every real output.
template <class R>
class Task {
 public:
  explicit Task(const Shape& shape) : shape_(shape) {
    const int p = shape.p, n = shape.n;
    Random random{0x1234567};
    std::vector<R>& x = reals_[ORK_SS_EDIT_OBSERVATIONS];
    x.resize(size_t(p) * n);
    for (int i = 0; i < n; ++i) {
      const double common = random.uniform();
      for (int j = 0; j < p; ++j)
        x[size_t(shape.layout == ORK_SS_ROWS ? j * n + i : i * p + j)] =
            R((j % 3 - 1) * 7 + (j + 1) * (random.uniform() + common));
    }
    std::vector<R>& w = reals_[ORK_SS_EDIT_WEIGHTS];
    for (int i = 0; i < n; ++i) w.push_back(i % 5 == 0 ? R(0) : R(random.uniform()));
    for (int j = 0; j < p; ++j) mask_.push_back(j % 3 != 1);
    Api<R>::make(&task_, &shape_.p, &shape_.n, &shape_.layout, x.data(),
                 shape.weighted ? w.data() : nullptr, shape.masked ? mask_.data() : nullptr, 0);

    for (int code = 1; code <= ORK_SS_EDIT_MEAN_ABS_DEV; ++code) {
      if (reals_.count(code)) continue;
      std::vector<R> array(size_t(p) * (n > p ? n : p) + 16, R(-7));
      if (Api<R>::edit(task_, code, array.data()) == 0) reals_[code] = std::move(array);
    }
    reals_[ORK_SS_EDIT_ACCUMULATED_WEIGHT] = {0, 0};
    reals_[ORK_SS_EDIT_QUANTILE_ORDERS] = {R(0), R(0.1), R(0.5), R(0.77), R(1)};
    reals_[ORK_SS_EDIT_STREAM_ORDERS] = {R(0.5), R(0.25), R(0.95)};
    reals_[ORK_SS_EDIT_STREAM_PARAMS] = {R(0.01)};
    for (const int code : {ORK_SS_EDIT_ACCUMULATED_WEIGHT, ORK_SS_EDIT_QUANTILE_ORDERS,
                           ORK_SS_EDIT_STREAM_ORDERS, ORK_SS_EDIT_STREAM_PARAMS})
      Api<R>::edit(task_, code, reals_[code].data());
    for (const int code :
         {ORK_SS_EDIT_COV_STORAGE, ORK_SS_EDIT_COR_STORAGE, ORK_SS_EDIT_CROSS_PRODUCT_STORAGE})
      __ruaiSSEditTask(task_, code, &shape_.matrices);
    __ruaiSSEditTask(task_, ORK_SS_EDIT_ORDER_STATS_STORAGE, &shape_.layout);
    __ruaiSSEditTask(task_, ORK_SS_EDIT_QUANTILE_COUNT, &kFive);
    __ruaiSSEditTask(task_, ORK_SS_EDIT_STREAM_ORDER_COUNT, &kThree);
    __ruaiSSEditTask(task_, ORK_SS_EDIT_STREAM_PARAM_COUNT, &kOne);
  }
  ~Task() { __ruaSSDeleteTask(&task_); }
  Task(const Task&) = delete;

  // Twice: the second call goes on from the first one's results.
  void run(const Computation<R>& c, Digest& digest) {
    for (int round = 0; round < 2; ++round) {
      digest.add(c.entry(task_, uint32_t(c.estimates), uint32_t(c.estimates >> 32),
                         uint32_t(c.method), uint32_t(c.method >> 32), shape_.threader));
      for (const auto& [code, array] : reals_) digest.add(array);
    }
  }

 private:
  static constexpr int kOne = 1, kThree = 3, kFive = 5;
  Shape shape_;
  ork_ss_task* task_ = nullptr;
  std::map<int, std::vector<R>> reals_;  // by edit code
  std::vector<int> mask_;
};

constexpr uint64_t kMoments = 0x3FF | ORK_SS_COV | ORK_SS_COR;
constexpr uint64_t kSums = ORK_SS_SUM | ORK_SS_SUM2 | ORK_SS_SUM3 | ORK_SS_SUM4 |
                           ORK_SS_CENTRAL_SUM2 | ORK_SS_CENTRAL_SUM3 | ORK_SS_CENTRAL_SUM4 |
                           ORK_SS_CROSS_PRODUCT;

template <class R>
constexpr Computation<R> kComputations[] = {
    {"Basic fast", Api<R>::basic, kMoments | kSums, ORK_SS_FAST},
    {"Basic fast, mean", Api<R>::basic, ORK_SS_MEAN, ORK_SS_FAST},
    {"Basic fast, raw", Api<R>::basic, ORK_SS_MEAN | ORK_SS_RAW2, ORK_SS_FAST},
    {"Basic fast, covariance", Api<R>::basic, ORK_SS_COV, ORK_SS_FAST},
    {"Basic one pass", Api<R>::basic, kMoments | kSums, ORK_SS_ONE_PASS},
    {"Basic one pass, mean", Api<R>::basic, ORK_SS_MEAN, ORK_SS_ONE_PASS},
    {"Basic one pass, central", Api<R>::basic, ORK_SS_MEAN | ORK_SS_CENTRAL2, ORK_SS_ONE_PASS},
    {"Basic one pass, correlation", Api<R>::basic, ORK_SS_COR, ORK_SS_ONE_PASS},
    {"Basic two passes", Api<R>::basic, kMoments | kSums, ORK_SS_TWO_PASS},
    {"Basic two passes, central", Api<R>::basic, ORK_SS_CENTRAL_SUM3, ORK_SS_TWO_PASS},
    {"Basic two passes, matrix", Api<R>::basic, ORK_SS_CROSS_PRODUCT, ORK_SS_TWO_PASS},
    {"Basic from sums", Api<R>::basic, kMoments, ORK_SS_FROM_SUMS},
    {"Minmax", Api<R>::minmax, ORK_SS_MIN | ORK_SS_MAX, ORK_SS_FAST},
    {"Quantiles", Api<R>::quantiles, ORK_SS_QUANTILES, ORK_SS_FAST},
    {"Quantiles, sorted", Api<R>::quantiles, ORK_SS_QUANTILES | ORK_SS_ORDER_STATS, ORK_SS_FAST},
    {"StreamQuantiles", Api<R>::stream, 0, ORK_SS_STREAM},
    {"MAD", Api<R>::deviations, ORK_SS_MEDIAN_ABS_DEV | ORK_SS_MEAN_ABS_DEV, ORK_SS_FAST},
    {"MAD, means supplied", Api<R>::deviations, ORK_SS_MEAN_ABS_DEV, ORK_SS_TWO_PASS},
    {"WMedian", weighted_median<R>, 0, 0},
};

template <class R>
void digest_all() {
  for (const Computation<R>& c : kComputations<R>) {
    const std::string name = std::string("statistics ") + Api<R>::letter + " " + c.name;
    if (!wanted(name)) continue;
    Digest digest;
    int matrices = 0;
    for (const int p : {1, 5, 11})
      for (const int n : {7, 3301})
        for (const int layout : {ORK_SS_ROWS, ORK_SS_COLUMNS})
          for (const bool weighted : {false, true})
            for (const bool masked : {false, true})
              for (const ork_threader* threader : {&ork_threader_serial, &digests::kThree}) {
                matrices = (matrices + 1) % 3;
                if (c.entry == weighted_median<R> && !weighted) continue;
                Task<R>({p, n, layout, weighted, masked, matrices, threader}).run(c, digest);
              }
    print(name, digest);
  }
}

}  // namespace

void digest_statistics() {
  digest_all<double>();
  digest_all<float>();
}
