#include "service/buckets.hpp"

namespace ork::df {
namespace {

template <class T>
T fill(Bucket* bucket, int n, const T* x, int nx) {
  for (int b = 0; b < n; ++b) bucket[b] = {-1, -1};
  const T scale = 1 / ((x[nx - 1] - x[0]) / static_cast<T>(n));
  bucket[0].lo = 0;
  for (int i = 1; i < nx; ++i) {
    const T position = (x[i] - x[0]) * scale;
    if (!(position >= 1)) continue;
    // The last breakpoint may round to n or just below; equal breakpoints give infinities.
    const int b = position < static_cast<T>(n) ? static_cast<int>(position) : n;
    if (bucket[b - 1].hi == -1) bucket[b - 1].hi = i;
    if (b + 1 < n) bucket[b + 1].lo = i;
  }
  bucket[n - 1].hi = nx - 1;
  for (int b = 1; b < n; ++b)
    if (bucket[b].lo == -1) bucket[b].lo = bucket[b - 1].lo;
  for (int b = n - 2; b >= 0; --b)
    if (bucket[b].hi == -1) bucket[b].hi = bucket[b + 1].hi;
  return scale;
}

}  // namespace

int build_buckets(Task* task) {
  if (task->buckets == nullptr) {
    task->buckets = static_cast<Bucket*>(ork_serv_allocate(max_buckets * sizeof(Bucket), 128));
    if (task->buckets == nullptr) return ORK_DF_NO_MEMORY;
  }
  const int nx = breakpoints(task);
  if (nx < 2) return ORK_DF_OK;
  const int sixteenth = nx / 16;
  const int n = sixteenth < 16 ? 16 : sixteenth > max_buckets ? max_buckets : sixteenth;
  task->bucketCount = n;
  if (task->precisionFlag != 0)
    task->inverseBucketWidth.d = fill(task->buckets, n, partition<double>(task), nx);
  else
    task->inverseBucketWidth.s = fill(task->buckets, n, partition<float>(task), nx);
  return ORK_DF_OK;
}

}  // namespace ork::df
