// Summaries of sorted data: some of its values, each with bounds of its rank.
#pragma once
#include <stdint.h>

namespace ork::ss {

template <class R>
struct Summary {
  R* value;
  int32_t *least, *greatest;  // bounds of the rank, counted from 1
  int count;
};

// The summary of both data sets together. On ties a's element comes first.
template <class R>
void merge(const Summary<R>& a, const Summary<R>& b, Summary<R>& out) {
  int at = 0;
  const auto take = [&](const Summary<R>& own, int i, const Summary<R>& other, int next) {
    out.value[at] = own.value[i];
    out.least[at] = own.least[i] + (next > 0 ? other.least[next - 1] : 0);
    out.greatest[at] = own.greatest[i] + (next < other.count ? other.greatest[next] - 1
                                          : next > 0         ? other.greatest[next - 1]
                                                             : 0);
    ++at;
  };
  int i = 0, j = 0;
  while (i < a.count || j < b.count)
    if (j == b.count || (i < a.count && !(b.value[j] < a.value[i]))) {
      take(a, i, b, j);
      ++i;
    } else {
      take(b, j, a, i);
      ++j;
    }
  out.count = at;
}

// Every second element of `from`, from the first: `count` of them. In place is fine.
template <class R>
void compress(const Summary<R>& from, int count, Summary<R>& to) {
  for (int i = 0; i < count; ++i) {
    to.value[i] = from.value[2 * i];
    to.least[i] = from.least[2 * i];
    to.greatest[i] = from.greatest[2 * i];
  }
  to.count = count;
}

}  // namespace ork::ss
