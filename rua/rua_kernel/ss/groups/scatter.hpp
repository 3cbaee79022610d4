// Mean and scatter of one group: S = sum w (x - m)(x - m)'.
//
// Chunk by chunk, distances from an origin near the mean go into the tiles of cross.hpp, so that
// nothing cancels far from zero. Sums of a chunk are added in the next wider type: with n
// observations rounding grows as that of a chunk, not with n.
#pragma once
#include <string.h>

#include "rua_kernel/ss/moments/cross.hpp"
#include "rua_kernel/ss/moments/kernel.hpp"
#include "rua_kernel/ss/service/data.hpp"

namespace ork::ss {

template <class R>
struct Wider {
  typedef long double type;
};
template <>
struct Wider<float> {
  typedef double type;
};

// From so many observations in all on, means move with each observation.
constexpr int kUpdatingFrom = 200001;

// What is known of a group, or of all: in words that the caller hands in.
template <class R>
class Scatter {
 public:
  typedef typename Wider<R>::type Wide;

  static uint64_t size(int p) { return 2 + p + uint64_t(p) * p; }
  Scatter(int p, Wide* words) : p(p), words_(words) {}
  void clear() const { memset(words_, 0, size_t(size(p)) * sizeof(Wide)); }

  Wide& w() const { return words_[0]; }
  Wide& w2() const { return words_[1]; }  // sum of squared weights; of the pool, of divisors
  Wide* mean() const { return words_ + 2; }
  // Row i of the lower triangle.
  Wide* row(int i) const { return rows() + size_t(i) * p; }
  Wide* rows() const { return words_ + 2 + p; }

  const int p;

 private:
  Wide* words_;
};

// A group's way into its Scatter, in scratch of one thread.
template <class R>
class Scatterer {
  typedef vec_of<R> V;
  typedef typename Scatter<R>::Wide Wide;
  // Of one observation: the factor of its product, and that of its step from the origin.
  struct Factor {
    R product, step;
  };

 public:
  static uint64_t size(int p) { return 2 * cross_stride<R>(p) + cross_scratch<R>(p); }
  Scatterer(const Data<R>& data, R* scratch, const Scatter<R>& to)
      : data_(data),
        stride_(cross_stride<R>(data.p)),
        origin_(scratch),
        shift_(origin_ + stride_),
        rows_(shift_ + stride_),
        to_(to) {}

  // Observations [first, last) of a list.
  void run(const int* first, const int* last) {
    to_.clear();
    if (first == last) return;
    for (int l = 0; l < 2 * stride_; ++l) origin_[l] = 0;
    const bool updating = data_.n >= kUpdatingFrom;
    bool started = false;
    for (; first < last; first += kChunk) {
      const int count = last - first < kChunk ? int(last - first) : kChunk;
      lay_down(first, count, last);
      if (!started) start(count);
      started = true;
      weigh(first, count, updating);
      if (updating)
        centre<true>(count);
      else
        centre<false>(count);
      add_cross_products(data_.p, count, rows_, to_.rows());
      if (updating)
        move_origin();
      else
        add_shift();
    }
    if (!updating) subtract_mean();
  }

 private:
  // x, observation after observation, the lanes behind the last variable 0.
  void lay_down(const int* list, int count, const int* end) {
    const int p = data_.p;
    for (int i = 0; i < count; ++i)
      for (int l = p; l < stride_; ++l) rows_[i * stride_ + l] = 0;
    if (data_.rows) {
      for (int j = 0; j < p; ++j) {
        const R* const x = data_.x + size_t(j) * data_.n;
        for (int i = 0; i < count; ++i) rows_[i * stride_ + j] = x[list[i]];
      }
      return;
    }
    constexpr int ahead = 12;  // observations: their places follow no pattern
    for (int i = 0; i < count; ++i) {
      if (list + i + ahead < end)
        for (size_t l = 0; l < p * sizeof(R); l += 64)
          prefetch(data_.x + size_t(list[i + ahead]) * p, l);
      memcpy(rows_ + i * stride_, data_.x + size_t(list[i]) * p, p * sizeof(R));
    }
  }

  // The first chunk's mean, whatever its weights, is near enough.
  void start(int count) {
    for (int j = 0; j < data_.p; ++j) {
      Wide sum = 0;
      for (int i = 0; i < count; ++i) sum += rows_[i * stride_ + j];
      origin_[j] = R(sum / count);
    }
  }

  void weigh(const int* list, int count, bool updating) {
    for (int i = 0; i < count; ++i) {
      const R w = data_.w ? data_.w[list[i]] : R(1), before = R(to_.w());
      to_.w() += w;
      to_.w2() += Wide(w) * w;
      const R r = w / R(to_.w());
      factors_[i] = updating ? Factor{before * r, r} : Factor{w, w};
    }
  }

  // rows_ becomes distances, with the same times their factors behind all of them. Updating,
  // distances are those from the running mean, origin + shift: S += c d d', m += r d with
  // r = w / (W + w), c = W r. Else they are those from the origin, and shift is the sum of w d.
  template <bool updating>
  void centre(int count) {
    constexpr int width = simd<R>::width;
    for (int i = 0; i < count; ++i) {
      R *const row = rows_ + i * stride_, *const scaled = row + size_t(kChunk) * stride_;
      const V factor = splat(factors_[i].product), step = splat(factors_[i].step);
      for (int l = 0; l < stride_; l += width) {
        const V shift = load(shift_ + l);
        V d = load(row + l) - load(origin_ + l);
        if constexpr (updating) d -= shift;
        store(row + l, d);
        store(scaled + l, factor * d);
        store(shift_ + l, shift + step * d);
      }
    }
  }

  // The mean in one word goes on as origin, what is left of it as shift.
  void move_origin() {
    for (int j = 0; j < data_.p; ++j) {
      const Wide mean = to_.mean()[j] = Wide(origin_[j]) + shift_[j];
      origin_[j] = R(mean);
      shift_[j] = R(mean - origin_[j]);
    }
  }

  void add_shift() {
    for (int j = 0; j < data_.p; ++j) {
      to_.mean()[j] += shift_[j];
      shift_[j] = 0;
    }
  }

  // From sums of w d and w d d' to mean and scatter.
  void subtract_mean() {
    Wide* const mean = to_.mean();
    for (int i = 0; i < data_.p; ++i)
      for (int j = 0; j <= i; ++j) to_.row(i)[j] -= mean[i] * mean[j] / to_.w();
    for (int j = 0; j < data_.p; ++j) mean[j] = origin_[j] + mean[j] / to_.w();
  }

  const Data<R>& data_;
  const int stride_;
  R *const origin_, *const shift_, *const rows_;
  const Scatter<R>& to_;
  Factor factors_[kChunk];
};

}  // namespace ork::ss
