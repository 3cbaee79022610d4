#include "bootstrap.hpp"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstring>

#include "fail.hpp"
#include "ork/front.h"

namespace demo {
namespace {

constexpr int workers = 4;  // fixed, so that the draws are the same on any number of threads
constexpr int rounds = 20, replicates_a_round = 250;  // for each worker
constexpr uint32_t seed = 1959;

RuaStream* new_stream() {
  RuaStream* stream = nullptr;
  require(ork_stream_new(&stream, RUA_BRNG_MCG59, seed), "a stream");
  return stream;
}

// Worker `w` gets elements w, w + workers, w + 2 workers... of the sequence.
RuaStream* new_leapfrog_stream(int w) {
  RuaStream* stream = new_stream();
  require(ork_stream_leapfrog(stream, w, workers), "leapfrog");
  return stream;
}

// One worker: its stream, room for one resample, a statistics task over that room.
struct Worker {
  RuaStream* stream = nullptr;
  RuaStream* twin = nullptr;  // if there is one, it must give the same bits
  int32_t n = 0;
  std::vector<double> uniform, twin_uniform, sample;  // sample: both variables, row after row
  std::vector<int32_t> index;
  double mean[2], correlation[4];
  ork_ss_task* task = nullptr;
  int32_t status = 0;
  int64_t compared = 0;
  bool differs = false;
};

void open(Worker& worker, int number, int32_t n) {
  static const int32_t p = 2, rows = ORK_SS_ROWS, full = ORK_SS_FULL;
  worker.stream = new_leapfrog_stream(number);
  worker.n = n;
  worker.uniform.resize(size_t(n)), worker.twin_uniform.resize(size_t(n));
  worker.sample.resize(size_t(2 * n)), worker.index.resize(size_t(n));
  require(__ruadSSNewTask(&worker.task, &p, &worker.n, &rows, worker.sample.data(), nullptr,
                          nullptr, 0),
          "a statistics task");
  __ruadSSEditCovCor(worker.task, worker.mean, nullptr, nullptr, worker.correlation, &full);
}

void close(Worker& worker) {
  __ruaSSDeleteTask(&worker.task);
  ork_stream_delete(&worker.twin);
  ork_stream_delete(&worker.stream);
}

// Draws n quarters with replacement, and returns the correlation of the two variables in them.
double replicate(Worker& w, const double* growth, const double* change) {
  const int32_t n = w.n;
  w.status |= ork_dRngUniform(0, w.stream, n, w.uniform.data(), 0, n);
  if (w.twin) {
    w.status |= ork_dRngUniform(0, w.twin, n, w.twin_uniform.data(), 0, n);
    w.differs |=
        std::memcmp(w.uniform.data(), w.twin_uniform.data(), size_t(n) * sizeof(double)) != 0;
    w.compared += n;
  }
  for (int32_t i = 0; i < n; ++i)
    w.index[size_t(i)] = std::min(int32_t(w.uniform[size_t(i)]), n - 1);
  ork_dPackV(n, growth, w.index.data(), w.sample.data());
  ork_dPackV(n, change, w.index.data(), w.sample.data() + n);
  w.status |= ork_ss_compute(w.task, ORK_SS_COR, ORK_SS_ONE_PASS, &ork_threader_serial);
  return w.correlation[1];
}

// What one launch of the threader works on: a round of replicates for each worker.
struct Round {
  Worker* worker;
  const double *growth, *change;
  double* draws;  // of this round
};

void run_worker(int number, int, int, void* context) {
  const Round& round = *static_cast<const Round*>(context);
  for (int k = 0; k < replicates_a_round; ++k)
    round.draws[k * workers + number] = replicate(round.worker[number], round.growth, round.change);
}

// The worker goes on with a stream read from a file; the one it had stays as the twin.
int save_and_restore(Worker& worker, const std::string& file) {
  RuaStream* restored = nullptr;
  const int saved = ork_stream_save(worker.stream, file.c_str());
  const int loaded = saved == 0 ? ork_stream_load(&restored, file.c_str()) : 0;
  std::remove(file.c_str());
  if (saved != 0) fail("%s: the stream cannot be saved (status %d)", file.c_str(), saved);
  require(loaded, "restoring the stream");
  worker.twin = worker.stream;
  worker.stream = restored;
  return __ruaGetStreamSize(restored);
}

// The workers' streams, taken in turns, are the undivided sequence. Returns the count compared.
int64_t check_leapfrog() {
  constexpr int each = 1000;
  std::vector<double> all(each * workers), part(each);
  RuaStream* whole = new_stream();
  require(ork_dRngUniform(0, whole, each * workers, all.data(), 0, 1), "drawing uniform numbers");
  ork_stream_delete(&whole);
  for (int w = 0; w < workers; ++w) {
    RuaStream* stream = new_leapfrog_stream(w);
    require(ork_dRngUniform(0, stream, each, part.data(), 0, 1), "drawing uniform numbers");
    ork_stream_delete(&stream);
    for (int i = 0; i < each; ++i)
      if (std::memcmp(&part[size_t(i)], &all[size_t(i * workers + w)], sizeof(double)) != 0)
        fail("leapfrog: number %d of worker %d differs from the undivided sequence", i, w);
  }
  return int64_t(all.size());
}

// Mean, deviation and the 95 % interval of the draws, by a statistics task.
void summarise(Bootstrap& b) {
  const int32_t p = 1, n = int32_t(b.draws.size()), rows = ORK_SS_ROWS, orders = 2;
  const double order[2] = {0.025, 0.975};
  double raw2, central2, ends[2];
  ork_ss_task* task = nullptr;
  require(__ruadSSNewTask(&task, &p, &n, &rows, b.draws.data(), nullptr, nullptr, 0),
          "a statistics task");
  __ruadSSEditMoments(task, &b.mean, &raw2, nullptr, nullptr, &central2, nullptr, nullptr);
  __ruadSSEditQuantiles(task, &orders, order, ends, nullptr, nullptr);
  require(
      ork_ss_compute(task, ORK_SS_MEAN | ORK_SS_CENTRAL2, ORK_SS_ONE_PASS, &ork_threader_parallel),
      "computing moments of the draws");
  require(ork_ss_compute(task, ORK_SS_QUANTILES, ORK_SS_FAST, &ork_threader_parallel),
          "computing quantiles of the draws");
  __ruaSSDeleteTask(&task);
  b.deviation = std::sqrt(central2), b.low = ends[0], b.high = ends[1];
}

// Fisher: for normal data atanh(r) is nearly normal, of mean atanh(rho) and variance 1/(n - 3).
// The density of r is exp(-z^2/2) / (sqrt(2 pi) s (1 - r^2)), z = (atanh(r) - atanh(rho)) / s.
void add_theory(Bootstrap& b, double rho, int sample_size) {
  constexpr int points = 241;
  const auto [least, greatest] = std::minmax_element(b.draws.begin(), b.draws.end());
  const double from = std::max(*least, -0.9999), to = std::min(*greatest, 0.9999);
  const double s = 1 / std::sqrt(sample_size - 3.0), centre = std::atanh(rho);
  auto &x = b.theory_x, &y = b.theory_y;
  for (int i = 0; i < points; ++i) x.push_back(from + (to - from) * i / (points - 1));
  std::vector<double> jacobian(x.size());
  y.resize(x.size());
  ork_dSqr(points, x.data(), jacobian.data());
  ork_dLinearFrac(points, x.data(), jacobian.data(), 0, 1, -1, 1,
                  jacobian.data());  // 1 / (1 - x^2)
  ork_dAtanh(points, x.data(), y.data());
  ork_dLinearFrac(points, y.data(), y.data(), 1 / s, -centre / s, 0, 1, y.data());
  ork_dSqr(points, y.data(), y.data());
  ork_dLinearFrac(points, y.data(), y.data(), -0.5, 0, 0, 1, y.data());
  ork_dExp(points, y.data(), y.data());
  ork_dMul(points, y.data(), jacobian.data(), y.data());
  ork_dLinearFrac(points, y.data(), y.data(), 1 / (std::sqrt(2 * M_PI) * s), 0, 0, 1, y.data());
}

}  // namespace

Bootstrap bootstrap(const Quarters& quarters, const Analysis& analysis,
                    const std::string& image_file, Progress& progress) {
  progress.step("bootstrap");
  const auto &growth = quarters.series[gdp_growth].values,
             &change = quarters.series[unemployment_change].values;
  const double rho = analysis.cor(gdp_growth, unemployment_change);
  if (!(std::fabs(rho) < 0.9999))
    fail("growth and the change of unemployment correlate by %.6f: nothing to resample", rho);
  Bootstrap b;
  b.workers = workers;
  b.threads = std::min(workers, ork_threader_parallel.max_threads());
  b.leapfrog_compared = check_leapfrog();
  b.draws.resize(size_t(rounds * replicates_a_round * workers));

  Worker worker[workers];
  for (int w = 0; w < workers; ++w) open(worker[w], w, int32_t(growth.size()));
  for (int round = 0; round < rounds; ++round) {
    if (round == rounds / 2) b.image_bytes = save_and_restore(worker[workers - 1], image_file);
    Round work = {worker, growth.data(), change.data(),
                  &b.draws[size_t(round * replicates_a_round * workers)]};
    ork_threader_parallel.parallel_for(workers, 0, &work, run_worker);
    progress.at(double(round + 1) / rounds);
  }
  for (Worker& w : worker) require(w.status, "the bootstrap");
  if (worker[workers - 1].differs)
    fail("the restored stream gave other numbers than the saved one");
  b.restored_compared = worker[workers - 1].compared;
  for (Worker& w : worker) close(w);

  for (double r : b.draws)
    if (!std::isfinite(r)) fail("growth and unemployment vary too little: a resample was constant");
  summarise(b);
  add_theory(b, rho, int(growth.size()));
  return b;
}

}  // namespace demo
