// The distinct patterns of missing entries, and a copy of the data in which the observations of a
// pattern stand together.
#pragma once
#include <algorithm>

#include "base/image.hpp"
#include "base/scratch.hpp"
#include "rua_kernel/ss/service/data.hpp"

namespace ork::ss {

// Only a negative quiet NaN marks a gap: other NaNs are data.
template <class R>
inline bool is_missing(const R* x) {
  return (image(x) & domain_nan<R>) == domain_nan<R>;
}

struct Pattern {
  int32_t gaps;          // variables without a value
  int32_t first, count;  // its observations, by their place in the copy
};

// In the order in which they appear, which is the order of the draws.
template <class R>
class Patterns {
 public:
  const int p, n;

  // Of n observations, at least one.
  explicit Patterns(const Data<R>& data) : p(data.p), n(data.n) { made_ = make(data); }
  explicit operator bool() const { return made_; }  // false: no memory

  int size() const { return size_; }
  const Pattern& operator[](int k) const { return list_[k]; }
  // The numbers of the variables missing in pattern k and of those present, ascending.
  void members(int k, int32_t* missing, int32_t* present) const {
    for (int j = 0; j < p; ++j) *(has(k, j) ? present++ : missing++) = j;
  }
  bool has(int k, int j) const { return mask(k)[j / 32] >> j % 32 & 1; }

  // Observations of a pattern: p reals each, 0 for what is missing, the others less centre().
  const R* rows(const Pattern& pattern) const { return rows_.get() + size_t(pattern.first) * p; }
  // For each of them, how many entries the observations before it in the data miss.
  const int32_t* offsets(const Pattern& pattern) const { return offsets_.get() + pattern.first; }
  // Observations of the incomplete pattern that has most of them, at least 1.
  int longest() const {
    int count = 1;
    for (int k = 0; k < size_; ++k)
      if (list_[k].gaps) count = std::max(count, list_[k].count);
    return count;
  }
  // The mean of each variable's values. Sums of products about it do not cancel.
  const R* centre() const { return centre_.get(); }
  // The patterns in an order in which neighbours differ in few variables.
  const int32_t* near_order() const { return order_.get(); }

 private:
  uint32_t* mask(int k) const { return masks_.get() + size_t(k) * words_; }

  bool make(const Data<R>& data) {
    const uint64_t most = p < 31 ? std::min(n, 1 << p) : n;
    words_ = (p + 31) / 32;
    masks_ = Scratch<uint32_t>((most + 1) * words_);  // one to try
    list_ = Scratch<Pattern>(most);
    order_ = Scratch<int32_t>(2 * most);  // half of it to sort with
    offsets_ = Scratch<int32_t>(n);
    centre_ = Scratch<R>(p);
    rows_ = Scratch<R>(uint64_t(n) * p);
    uint32_t places = 2;
    while (places < 2 * most) places *= 2;
    const Scratch<int32_t> scratch(uint64_t(places) + n);
    const Scratch<double> sums(2 * uint64_t(p));
    if (!masks_ || !list_ || !order_ || !offsets_ || !centre_ || !rows_ || !scratch || !sums)
      return false;
    int32_t *const table = scratch.get(), *const pattern_of = table + places;
    find(data, table, places - 1, pattern_of, sums.get());
    set_centre(sums.get());
    copy(data, pattern_of);
    sort(order_.get(), order_.get() + most);
    return true;
  }

  // Fills masks, list, pattern_of and sums. The hash table keeps numbers of patterns, 1 and up.
  void find(const Data<R>& data, int32_t* table, uint32_t last_place, int32_t* pattern_of,
            double* sums) {
    std::fill_n(table, size_t(last_place) + 1, 0);
    std::fill_n(sums, 2 * size_t(p), 0.0);
    for (int i = 0; i < n; ++i) {
      const R* x = data.x + (data.rows ? size_t(i) : size_t(i) * p);
      const size_t step = data.rows ? n : 1;
      uint32_t* const own = mask(size_);
      uint32_t hash = 0;
      int32_t gaps = 0;
      for (int word = 0; word < words_; ++word) {
        uint32_t bits = 0;
        for (int j = 32 * word; j < std::min(p, 32 * word + 32); ++j, x += step) {
          if (is_missing(x)) {
            ++gaps;
            continue;
          }
          bits |= uint32_t(1) << j % 32;
          sums[j] += *x;
          sums[p + j] += 1;
        }
        own[word] = bits;
        hash = (hash ^ bits) * 0x9E3779B1;  // 2^32 times the golden ratio
        hash ^= hash >> 15;
      }
      uint32_t place = hash & last_place;
      while (table[place] && memcmp(mask(table[place] - 1), own, 4 * words_) != 0)
        place = (place + 1) & last_place;
      if (!table[place]) {
        list_[size_] = {gaps, 0, 0};
        table[place] = ++size_;
      }
      pattern_of[i] = table[place] - 1;
      ++list_[pattern_of[i]].count;
    }
    for (int k = 1; k < size_; ++k) list_[k].first = list_[k - 1].first + list_[k - 1].count;
  }

  // sums: p of the values, then p of their numbers. A variable without a value, or with one that is
  // not finite, stays where it is.
  void set_centre(const double* sums) {
    for (int j = 0; j < p; ++j) {
      const R mean = R(sums[p + j] > 0 ? sums[j] / sums[p + j] : 0);
      centre_[j] = mean - mean == 0 ? mean : R(0);
    }
  }

  void copy(const Data<R>& data, const int32_t* pattern_of) {
    // Until all are in place, a pattern's `first` is where its next observation goes.
    for (int32_t i = 0, gone = 0; i < n; ++i) {
      Pattern& pattern = list_[pattern_of[i]];
      const int32_t place = pattern.first++;
      R* const row = rows_.get() + size_t(place) * p;
      const R* x = data.x + (data.rows ? size_t(i) : size_t(i) * p);
      const size_t step = data.rows ? n : 1;
      for (int j = 0; j < p; ++j, x += step) row[j] = is_missing(x) ? R(0) : *x - centre_[j];
      offsets_[place] = gone;
      gone += pattern.gaps;
    }
    for (int k = 0; k < size_; ++k) list_[k].first -= list_[k].count;
  }

  // By the rank of the mask in the Gray code: bit after bit, the last one first, each stable. A bit
  // of the rank is the parity of the mask up to that bit.
  void sort(int32_t* order, int32_t* other) const {
    for (int k = 0; k < size_; ++k) order[k] = k;
    for (int j = p - 1; j >= 0; --j) {
      int zeros = 0, ones = 0;
      for (int k = 0; k < size_; ++k) {
        const uint32_t* const bits = mask(order[k]);
        uint32_t all = bits[j / 32] & ~uint32_t(0) >> (31 - j % 32);
        for (int word = 0; word < j / 32; ++word) all ^= bits[word];
        if (__builtin_parity(all))
          other[ones++] = order[k];
        else
          order[zeros++] = order[k];
      }
      std::copy_n(other, ones, order + zeros);
    }
  }

  int words_, size_ = 0;
  Scratch<uint32_t> masks_;
  Scratch<Pattern> list_;
  Scratch<int32_t> order_, offsets_;
  Scratch<R> centre_, rows_;
  bool made_;
};

}  // namespace ork::ss
