// Partitions, and sorting by them, over a sequence that knows how its elements move:
//
//   R key(i)            what is compared
//   Item load(i)        an element, and whatever moves with it
//   void store(i, Item)
//   R Item::key         of a loaded element
//
// A NaN compares as neither above nor below, which stops every scan: no scan leaves its range.
#pragma once
#include <stdint.h>

#include "rua_sub_kernel/math/sequences.hpp"

namespace ork {

template <class Sequence>
inline void exchange(Sequence& a, int i, int j) {
  const auto t = a.load(i);
  a.store(i, a.load(j));
  a.store(j, t);
}

// The pairs that the scans of partition() exchange, found by blocks and without branches: the
// places where the scan from the left stops, and those where the one from the right does, are
// listed, then exchanged in order. On return the scans may go on from i and j as if they had
// come there themselves.
template <class Sequence, class R>
inline __attribute__((always_inline)) void exchange_by_blocks(Sequence& a, R pivot, int& i,
                                                              int& j) {
  constexpr int block = 64;
  uint8_t left[block], right[block];        // distances from the first place of the block
  int lefts = 0, rights = 0, l = 0, r = 0;  // listed, and exchanged
  int left_from = 0, right_from = 0;
  while (j - i > 2 * block) {
    if (l == lefts) {
      left_from = i + 1;
      l = lefts = 0;
      for (int d = 0; d < block; ++d) {
        left[lefts] = uint8_t(d);
        lefts += !(a.key(left_from + d) < pivot);
      }
      i += block;
    }
    if (r == rights) {
      right_from = j - 1;
      r = rights = 0;
      for (int d = 0; d < block; ++d) {
        right[rights] = uint8_t(d);
        rights += !(a.key(right_from - d) > pivot);
      }
      j -= block;
    }
    const int pairs = lefts - l < rights - r ? lefts - l : rights - r;
    for (int k = 0; k < pairs; ++k) exchange(a, left_from + left[l + k], right_from - right[r + k]);
    l += pairs;
    r += pairs;
  }
  if (l < lefts) i = left_from + left[l] - 1;
  if (r < rights) j = right_from - right[r] + 1;
}

// Partitions [l, r], r > l + 1, around the median of its first, middle and last element. Then
// places l to i - 1 hold nothing above the pivot, which is at j, and j + 1 to r nothing below;
// i is j + 1 or j + 2, and what lies between is equal to the pivot.
template <class Sequence>
inline __attribute__((always_inline)) void partition(Sequence& a, int l, int r, int& i, int& j) {
  exchange(a, (l + r) / 2, l + 1);
  if (a.key(l) > a.key(r)) exchange(a, l, r);
  if (a.key(l + 1) > a.key(r)) exchange(a, l + 1, r);
  if (a.key(l) > a.key(l + 1)) exchange(a, l, l + 1);
  const auto pivot = a.load(l + 1);
  i = l + 1;
  j = r;
  exchange_by_blocks(a, pivot.key, i, j);
  for (;;) {
    do ++i;
    while (a.key(i) < pivot.key);
    do --j;
    while (a.key(j) > pivot.key);
    if (j < i) break;
    exchange(a, i, j);
  }
  a.store(l + 1, a.load(j));
  a.store(j, pivot);
}

// Each element moves left past all that are above it.
template <class Sequence>
inline void insertion_sort(Sequence& a, int l, int r) {
  for (int i = l + 1; i <= r; ++i) {
    const auto moving = a.load(i);
    int to = i;
    for (; to > l && a.key(to - 1) > moving.key; --to) a.store(to, a.load(to - 1));
    a.store(to, moving);
  }
}

// Each element sinks below its larger child; heap place k is l + k.
template <class Sequence>
__attribute__((noinline)) void heapsort(Sequence a, int l, int r) {
  const int n = r - l + 1;
  const auto sink = [&](int place, int end) {
    const auto moving = a.load(l + place);
    for (int child; (child = 2 * place + 1) < end; place = child) {
      if (child + 1 < end && a.key(l + child + 1) > a.key(l + child)) ++child;
      if (!(a.key(l + child) > moving.key)) break;
      a.store(l + place, a.load(l + child));
    }
    a.store(l + place, moving);
  };
  for (int place = n / 2; place-- > 0;) sink(place, n);
  for (int end = n - 1; end > 0; --end) {
    exchange(a, l, l + end);
    sink(0, end);
  }
}

// Never above some 4 n log2 n comparisons: ranges that come of more than 2 log2 n partitions one
// within the other, as inputs made against medians of three have them, go to the heap
// (D. R. Musser 1997).
template <class Sequence>
inline void quicksort(Sequence a, int n) {
  constexpr int short_range = 7;  // partitions of fewer differences do not pay
  struct {
    int l, r, depth;
  } stack[64], *top = stack;  // of the larger parts: their sizes halve, 31 would do
  int l = 0, r = n - 1, depth = 0;
  const int deepest = n < 2 ? 0 : 2 * (31 - __builtin_clz(unsigned(n)));
  for (;;) {
    while (r - l >= short_range) {
      if (depth++ == deepest) {
        heapsort(a, l, r);
        l = r;
        break;
      }
      int i, j;
      partition(a, l, r, i, j);
      if (r - i + 1 < j - l) {
        *top++ = {l, j - 1, depth};
        l = i;
      } else {
        *top++ = {i, r, depth};
        r = j - 1;
      }
    }
    insertion_sort(a, l, r);
    if (top == stack) return;
    --top;
    l = top->l;
    r = top->r;
    depth = top->depth;
  }
}

}  // namespace ork
