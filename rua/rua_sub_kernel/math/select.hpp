// Selection by partitions (quicksort.hpp), with an end to bad luck: when the partitions have cost
// eight comparisons an element, as they do on inputs made against medians of three, the answer's
// image is counted out digit by digit instead, and one last pass divides around it. In all never
// above 20 comparisons an element.
#pragma once
#include "rua_sub_kernel/math/quicksort.hpp"

namespace ork {

// The image of rank k - l among places l to r; then what is below it stands before place k, and
// what is above behind. Sequence::image gives unsigned integers in the order of the keys.
template <class Sequence>
__attribute__((noinline)) void select_by_digits(Sequence a, int l, int r, int k) {
  using Image = decltype(a.image(0));
  constexpr int bits = 8 * sizeof(Image), digit_bits = 11;
  Image answer = 0;  // its digits so far
  int rank = k - l;  // among the elements that begin with them
  int shift = bits;  // of the lowest one
  while (shift > 0) {
    const int width = shift < digit_bits ? shift : digit_bits, above = shift;
    shift -= width;
    int counts[1 << digit_bits] = {};
    for (int i = l; i <= r; ++i) {
      const Image image = a.image(i);
      if (above == bits || image >> above == answer) ++counts[image >> shift & ((1 << width) - 1)];
    }
    int digit = 0;
    while (rank >= counts[digit]) rank -= counts[digit++];
    answer = answer << width | Image(digit);
  }
  for (int i = l, below = l, above = r; i <= above;) {
    const Image image = a.image(i);
    if (image < answer)
      exchange(a, below++, i++);
    else if (image > answer)
      exchange(a, i, above--);
    else
      ++i;
  }
}

// Puts the element of rank k at place k.
template <class Sequence>
inline void select(Sequence a, int n, int k) {
  // Of so few no input takes more than 20 comparisons each.
  constexpr int few = 64;
  // Places at the ends, and those that the scans by blocks look at twice.
  const auto cost = [](int count) { return count + (count > 128 ? 134 : 6); };
  int64_t allowed = n > few ? int64_t{8} * n : INT64_MAX;
  int l = 0, r = n - 1;
  while (r > l + 1) {
    allowed -= cost(r - l + 1);
    if (allowed < 0) return select_by_digits(a, l, r, k);
    int i, j;
    partition(a, l, r, i, j);
    if (j >= k) r = j - 1;
    if (j <= k) l = i;
  }
  if (r == l + 1 && a.key(l) > a.key(r)) exchange(a, l, r);
}

}  // namespace ork
