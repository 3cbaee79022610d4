#pragma once
// Dimensions of equidistribution k(v) of an MT2203 member of full period: the largest k such that
// the leading v bits of k consecutive outputs take every value equally often over the period. At
// most floor(2203 / v).
//
// The outputs, written as power series in 1/t, and the polynomials span a lattice over GF(2)[t]
// of rank v and determinant t^-2203. In a reduced basis k(v) is the smallest of the numbers -deg.
// A lattice vector is kept as its leading coefficient and the generator state that produces the
// rest, so that multiplication by t is one step of the recurrence. The reduced basis for v gives
// the one for v - 1 by dropping the last coordinate and reducing on.
#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>

namespace mt2203 {

struct Member {
  uint32_t a, b, c;

  uint32_t temper(uint32_t y) const {
    y ^= y >> 12;
    y ^= y << 7 & b;
    y ^= y << 15 & c;
    return y ^ y >> 18;
  }
};

class Equidistribution {
 public:
  static constexpr int kP = 2203;

  explicit Equidistribution(const Member& m) : m_(m) {}

  // k(v) alone.
  int dimension(int v) {
    start(v);
    return smallest(v);
  }

  // k(1) to k(32), at index 1 to 32.
  std::array<int, 33> profile() {
    std::array<int, 33> k{};
    start(32);
    k[32] = smallest(32);
    for (int v = 31; v >= 1; --v) {
      int dropped = slot_[v];
      slot_[v] = kNone;
      rank_ = v;
      mask_ = ~uint32_t{0} << (32 - v);
      insert(dropped);
      k[v] = smallest(v);
    }
    return k;
  }

 private:
  static constexpr int kN = 69, kM = 34, kNone = -1;

  struct Vector {
    uint32_t lead;  // coefficient of t^-count
    int count;      // -degree; the state starts at word[count]
    uint32_t word[kP + 2 * kN];
  };

  void start(int v) {
    rank_ = v;
    mask_ = ~uint32_t{0} << (32 - v);
    for (int i = 0; i < v; ++i) {  // the unit vectors
      Vector& e = vectors_[i];
      e.lead = 0x80000000u >> i;
      e.count = 0;
      std::memset(e.word, 0, sizeof(uint32_t) * kN);
      slot_[i] = i;
    }
    Vector& s = vectors_[v];  // any state that is not zero
    s.lead = 0;
    s.count = 0;
    for (int i = 0; i < kN; ++i) s.word[i] = 0x9E3779B9u * (i + 1);
    insert(v);
  }

  // Reduces vector u against the basis until it vanishes.
  void insert(int u) {
    for (;;) {
      Vector& x = vectors_[u];
      if ((x.lead & mask_) == 0) {
        if (slot_degrees() == kP) return;  // the slots span the lattice: nothing is left of x
        do advance(x);
        while ((x.lead & mask_) == 0);
      }
      int j = __builtin_clz(x.lead & mask_);
      if (vectors_[slot_[j]].count < x.count) std::swap(slot_[j], u);
      add(vectors_[u], vectors_[slot_[j]]);
    }
  }

  int slot_degrees() const {
    int sum = 0;
    for (int i = 0; i < rank_; ++i) sum += vectors_[slot_[i]].count;
    return sum;
  }

  static void add(Vector& x, const Vector& y) {
    x.lead ^= y.lead;
    uint32_t* a = x.word + x.count;
    const uint32_t* b = y.word + y.count;
    for (int i = 0; i < kN; ++i) a[i] ^= b[i];
  }

  void advance(Vector& x) const {
    uint32_t* w = x.word + x.count++;
    x.lead = m_.temper(w[kN - 1]);
    uint32_t y = (w[0] & 0xFFFFFFE0u) | (w[1] & 0x1Fu);
    w[kN] = w[kM] ^ y >> 1 ^ (y & 1 ? m_.a : 0);
  }

  int smallest(int v) const {
    int k = kP;
    for (int i = 0; i < v; ++i) k = std::min(k, vectors_[slot_[i]].count);
    return k;
  }

  Member m_;
  uint32_t mask_ = 0;
  int rank_ = 0;
  std::array<int, 32> slot_{};  // slot_[j]: the vector whose lead begins at bit j
  std::array<Vector, 33> vectors_;
};

}  // namespace mt2203
