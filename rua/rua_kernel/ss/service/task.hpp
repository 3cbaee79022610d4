// The statistics task: a record of borrowed pointers, and how kernels read it.
#pragma once
#include <stddef.h>
#include <stdint.h>

#include "base/export.hpp"
#include "ork/ss.h"

namespace ork::ss {

// Orders in the arrays of moments and sums, and in what is kept while a computation runs:
// raw orders 1 to 4, then central orders 2 to 4.
enum Order { kMean, kRaw2, kRaw3, kRaw4, kCentral2, kCentral3, kCentral4, kOrders };

// An integer parameter, or an array of them: 32 or 64 bits each, by Task::wideIntegers. Read
// through Task::integer, which knows the width.
typedef const int32_t* Integers;

// Bits of a storage format, one of which has to be there.
constexpr int kLayouts = ORK_SS_ROWS | ORK_SS_COLUMNS;

// Field order and widths are part of the interface; every pointer but streamState is
// borrowed. A zeroed record is a valid empty one: code that computes on data of its own fills
// such a record on its stack.
template <class R>
struct Task {
  int32_t wideIntegers;
  int32_t taskKind;  // kTaskKind
  int32_t isDouble;
  Integers dimension;         // p
  Integers observationCount;  // n
  Integers variableMask;      // null: all variables
  const R* observations;
  const R* weights;      // null: all 1
  R* accumulatedWeight;  // W, the sum of weights, and W2, the sum of their squares
  Integers storageFormat;
  R* paramCorrelation;
  Integers paramCorrelationStorage;
  R* moments[kOrders];
  R* sums[kOrders];  // of powers of x, then of x - mean
  R* kurtosis;
  R* skewness;
  R* variation;
  R* min;
  R* max;
  Integers covStorage;
  R* cov;
  Integers corStorage;
  R* cor;
  Integers crossProductStorage;
  R* crossProduct;
  Integers groupIndex;
  Integers groupRequest;
  R* groupMeans;
  R* groupCov;
  Integers groupCovStorage;
  R* pooledMean;
  R* pooledCov;
  Integers pooledCovStorage;
  Integers quantileCount;
  const R* quantileOrders;
  R* quantiles;
  R* orderStatistics;
  Integers orderStatisticsStorage;
  Integers streamOrderCount;
  const R* streamOrders;
  R* streamQuantiles;
  void* streamState;  // owned: released by releaseHook
  Integers streamParamCount;
  const R* streamParams;
  R* meanAbsDev;
  R* medianAbsDev;
  Integers robustParamCount;
  const R* robustParams;
  R* robustMean;
  R* robustCov;
  Integers robustCovStorage;
  Integers outlierParamCount;
  const R* outlierParams;
  R* outlierWeights;
  Integers partialIndex;
  R* partialCov;
  Integers partialCovStorage;
  R* partialCor;
  Integers partialCorStorage;
  Integers missingParamCount;
  const R* missingParams;
  Integers initEstimateCount;
  const R* initEstimates;
  Integers priorCount;
  const R* prior;
  Integers simulatedCount;
  R* simulated;
  Integers estimateCount;
  R* estimates;
  // Of private records only: no editor sets these.
  Integers mahFirst;
  Integers mahLast;
  const R* mahMean;
  const R* mahInverseCov;
  R* mahDistances;
  R* mahScratch;
  Integers mahScratchSize;
  int32_t releaseCount;                    // 0 or 1
  void (*releaseHook)(ork_ss_task* task);  // called at deletion

  // Element i of an integer parameter; kernels use its low 32 bits, sign tests all of it.
  int64_t integer(Integers parameter, int i = 0) const {
    if (!wideIntegers) return parameter[i];
    return int64_t(uint64_t(uint32_t(parameter[2 * i + 1])) << 32 | uint32_t(parameter[2 * i]));
  }
  int p() const { return int(integer(dimension)); }
  int n() const { return int(integer(observationCount)); }
  bool selected(int variable) const {
    return !variableMask || int(integer(variableMask, variable)) != 0;
  }
  // Row storage keeps each variable's observations together.
  bool rows() const { return (integer(storageFormat) & ORK_SS_ROWS) != 0; }
  R* mean() const { return moments[kMean]; }
};

constexpr int32_t kTaskKind = 2;
constexpr int kFields = 90;
static_assert(sizeof(void*) == 4, "the record is that of 32-bit code");
static_assert(sizeof(Task<double>) == 4 * kFields && sizeof(Task<float>) == 4 * kFields);
static_assert(offsetof(Task<double>, moments) == 4 * 12 && offsetof(Task<double>, cov) == 4 * 32 &&
              offsetof(Task<double>, streamState) == 4 * 53 &&
              offsetof(Task<double>, mahFirst) == 4 * 81);

template <class R>
Task<R>& record_of(ork_ss_task* task) {
  return *reinterpret_cast<Task<R>*>(task);
}
template <class R>
ork_ss_task* handle_of(Task<R>& record) {
  return reinterpret_cast<ork_ss_task*>(&record);
}

// The two words in which a 64-bit mask travels.
inline uint64_t join(uint32_t low, uint32_t high) { return uint64_t{high} << 32 | low; }

}  // namespace ork::ss
