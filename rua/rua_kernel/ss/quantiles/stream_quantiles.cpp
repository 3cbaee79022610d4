// Quantiles of data that goes by in blocks, each off by at most epsilon n in rank.
#include <string.h>

#include "base/scratch.hpp"
#include "base/threads.hpp"
#include "rua_kernel/ss/quantiles/quantiles.hpp"
#include "rua_kernel/ss/quantiles/stream_state.hpp"
#include "rua_kernel/ss/service/computation.hpp"
#include "rua_kernel/ss/service/data.hpp"
#include "rua_kernel/ss/service/math.hpp"

namespace ork::ss {
namespace {

template <class R>
int32_t check(const Task<R>& t, uint64_t method) {
  if (!t.observationCount || t.integer(t.observationCount) < 0) return ORK_SS_BAD_OBSERVATION_COUNT;
  if (t.n() > 0) {
    if (!t.observations) return ORK_SS_NULL_OBSERVATIONS;
    if (!t.storageFormat) return ORK_SS_NULL_STORAGE;
    if (!(t.integer(t.storageFormat) & kLayouts)) return ORK_SS_BAD_STORAGE;
  }
  if (!t.streamQuantiles) return ORK_SS_NULL_STREAM_QUANTILES;
  if (!t.streamOrders) return ORK_SS_NULL_STREAM_ORDERS;
  if (!t.streamOrderCount || t.integer(t.streamOrderCount) < 0) return ORK_SS_BAD_STREAM_ORDERS;
  if (!t.streamParamCount) return ORK_SS_NULL_STREAM_PARAM_COUNT;
  if (t.integer(t.streamParamCount) != 1) return ORK_SS_BAD_STREAM_PARAM_COUNT;
  if (!orders_in_range(t.streamOrders, int(t.integer(t.streamOrderCount))))
    return ORK_SS_BAD_STREAM_ORDERS;
  if (!t.streamParams) return ORK_SS_NULL_STREAM_PARAMS;
  if (!(method & (ORK_SS_STREAM | ORK_SS_STREAM_ADD))) return ORK_SS_BAD_METHOD;
  if (!(t.streamParams[0] > 0) || t.streamParams[0] > 1) return ORK_SS_BAD_STREAM_EPSILON;
  return ORK_SS_OK;
}

// Values and both ranks of a summary, on one block.
template <class R>
class Room {
 public:
  explicit Room(uint64_t count) : block_(count * (sizeof(R) + 2 * sizeof(int32_t))) {
    if (!block_) return;
    summary_.value = reinterpret_cast<R*>(block_.get());
    summary_.least = reinterpret_cast<int32_t*>(block_.get() + count * sizeof(R));
    summary_.greatest = summary_.least + count;
    summary_.count = 0;
  }
  explicit operator bool() const { return bool(block_); }
  Summary<R>& operator*() { return summary_; }

 private:
  Scratch<char> block_;
  Summary<R> summary_{};
};

template <class R>
struct Work {
  Data<R> data;
  Variable* state;
  int offset, count;  // observations of this run
};

// Level 0 is full: it moves up as a summary, merging with what is in its way.
template <class R>
void carry(Epoch& epoch, Summary<R>& moving) {
  const int half = epoch.half();
  Summary<R> merged = epoch.level<R>(0, 0);
  compress(merged, half, moving);
  int level = 1;
  for (; level < epoch.levelCount && epoch.occupied[level]; ++level) {
    merge(epoch.level<R>(level, half), moving, merged);
    epoch.occupied[level] = 0;
    compress(merged, half, moving);
  }
  const Summary<R> place = epoch.level<R>(level, half);
  memcpy(place.value, moving.value, size_t(half) * sizeof(R));
  memcpy(place.least, moving.least, size_t(half) * sizeof(int32_t));
  memcpy(place.greatest, moving.greatest, size_t(half) * sizeof(int32_t));
  epoch.occupied[level] = 1;
  if (level > epoch.topLevel) epoch.topLevel = level;
}

template <class R>
int32_t add_data(const Work<R>& work, int item) {
  Variable& variable = work.state[item];
  if (!variable.active) return ORK_SS_OK;
  Epoch& epoch = variable.epochs[variable.currentEpoch];
  const Scratch<R> sorting(epoch.blockSize);
  Room<R> moving(epoch.half());
  if (!sorting || !moving) return ORK_SS_NO_MEMORY;
  const Series<R> x = work.data.variable(item);
  for (int at = work.offset, end = at + work.count; at < end;) {
    const int room = epoch.blockSize - epoch.bufferCount, taken = room < end - at ? room : end - at;
    const Summary<R> buffer = epoch.level<R>(0, 0);
    x.copy(at, taken, buffer.value + epoch.bufferCount);
    epoch.bufferCount += taken;
    epoch.consumed += taken;
    at += taken;
    Math<R>::sort_radix(buffer.value, sorting.get(), epoch.bufferCount);
    for (int i = 0; i < epoch.bufferCount; ++i) buffer.least[i] = buffer.greatest[i] = i + 1;
    if (epoch.bufferCount == epoch.blockSize) {
      carry(epoch, *moving);
      epoch.bufferCount = 0;
    }
  }
  return ORK_SS_OK;
}

// The first observation makes the state.
template <class R>
int32_t create_state(Task<R>& t) {
  const int p = t.p();
  Scratch<Variable> block(uint64_t(p) + 1);
  if (!block) return ORK_SS_NO_MEMORY;
  block[0].epochCount = p;
  for (int j = 0; j < p; ++j) block[j + 1] = {0, -1, t.selected(j), nullptr};
  t.streamState = block.release() + 1;
  t.releaseHook = __ruaSQuantilesFreeBuffers;
  t.releaseCount = 1;
  return ORK_SS_OK;
}

template <class R>
int32_t add(Task<R>& t, const ork_threader* threader) {
  const bool known = t.streamState != nullptr;
  if (!known)
    if (const int32_t status = create_state(t)) return status;
  const int p = t.p(), n = t.n();
  Variable* const state = static_cast<Variable*>(t.streamState);
  if (variables_in(state) != p) return p < 1 ? ORK_SS_BAD_MASK : ORK_SS_BAD_DIMENSION;
  const Variable* last = nullptr;  // all active ones advance alike
  for (int j = 0; j < p; ++j) {
    if (state[j].active) last = &state[j];
    if (t.variableMask && t.selected(j) && !state[j].active) return ORK_SS_BAD_MASK;
  }
  if (!last) return known ? ORK_SS_BAD_MASK : ORK_SS_OK;

  if (n == 0) return ORK_SS_OK;  // and the layout need not be there
  Work<R> work{data_of(t), state, 0, 0};
  const double epsilon = t.streamParams[0];
  while (work.offset < n) {
    int room = 0;
    if (last->currentEpoch >= 0)
      room = epoch_size(last->currentEpoch, epsilon).observations -
             last->epochs[last->currentEpoch].consumed;
    if (room <= 0) {
      const int e = last->currentEpoch + 1;
      const EpochSize size = epoch_size(e, epsilon);
      for (int j = 0; j < p; ++j)
        if (state[j].active && !open_epoch(state[j], e, size, sizeof(R))) return ORK_SS_NO_MEMORY;
      room = size.observations;
    }
    work.count = n - work.offset < room ? n - work.offset : room;
    SharedStatus status;
    const auto add_to = [&](int item, int) { status.put(add_data(work, item)); };
    if (threader)
      launch_items(threader, p, 0, add_to);  // as many threads as the table has
    else
      run_items(threader, p, 1, add_to);
    if (status.get() != ORK_SS_OK) return status.get();
    work.offset += work.count;
  }
  return ORK_SS_OK;
}

// All epochs and levels of a variable as one summary, in *whole.
template <class R>
double gather(const Variable& variable, Summary<R>*& whole, Summary<R>*& other) {
  double observations = 0;
  const auto take = [&](const Summary<R>& part) {
    merge(*whole, part, *other);
    Summary<R>* const merged = other;
    other = whole;
    whole = merged;
  };
  for (int e = 0; e < variable.epochCount; ++e) {
    const Epoch& epoch = variable.epochs[e];
    observations += epoch.consumed;
    take(epoch.level<R>(0, epoch.bufferCount));
    for (int l = 1; l <= epoch.topLevel; ++l)
      if (epoch.occupied[l]) take(epoch.level<R>(l, epoch.half()));
  }
  return observations;
}

template <class R>
int32_t estimate(const Task<R>& t) {
  const Variable* const state = static_cast<const Variable*>(t.streamState);
  const int count = int(t.integer(t.streamOrderCount));
  R* to = t.streamQuantiles;
  for (int j = 0; j < t.p(); ++j) {
    const Variable& variable = state[j];
    if (!variable.active) continue;
    uint64_t capacity = 0;
    for (int e = 0; e < variable.epochCount; ++e) {
      const Epoch& epoch = variable.epochs[e];
      capacity += epoch.bufferCount;
      for (int l = 1; l <= epoch.topLevel; ++l)
        if (epoch.occupied[l]) capacity += epoch.half();
    }
    Room<R> one(capacity), two(capacity);
    if (!one || !two) return ORK_SS_NO_MEMORY;
    Summary<R>*whole = &*one, *other = &*two;
    const double observations = gather(variable, whole, other);
    for (int k = 0; k < count; ++k) {
      const double target = t.streamOrders[k] * observations;
      double best = 2 * observations;
      for (int i = 0; i < whole->count; ++i) {
        const double middle = (double(whole->least[i]) + whole->greatest[i]) * 0.5;
        const double off = __builtin_trunc(__builtin_fabs(middle - target));
        if (off < best) {
          best = off;
          to[k] = whole->value[i];
        }
      }
    }
    to += count;
  }
  return ORK_SS_OK;
}

template <class R>
int32_t stream_quantiles(Task<R>& t, uint64_t, uint64_t method, const ork_threader* threader) {
  if (const int32_t status = check(t, method)) return status;
  if (const int32_t status = add(t, threader)) return status;
  return method & ORK_SS_STREAM ? estimate(t) : ORK_SS_OK;
}

}  // namespace

ORK_COMPUTATION(StreamQuantiles, stream_quantiles)

// What it needs stands at the same place in records of both precisions.
ORK_EXPORT void __ruaSQuantilesFreeBuffers(ork_ss_task* task) {
  Task<double>& t = record_of<double>(task);
  if (!t.streamState) return;
  release_state(static_cast<Variable*>(t.streamState));
  t.streamState = nullptr;
}

}  // namespace ork::ss
