#pragma once
// Eigen's three large products, with the blocks they pack their operands into. Left alone, Eigen
// takes the blocks from malloc and cannot go on without them; here they come from
// ork_serv_allocate. Eigen sizes them by the caches, here but for the depth.
#include <algorithm>

#include "base/scratch.hpp"
#include "outer/dense/eigen/views.hpp"

namespace ork::dense {

constexpr int order_of(bool trans) { return trans ? Eigen::RowMajor : Eigen::ColMajor; }

// Blocks for rows by depth times depth by cols. Small ones stand here, and so do the smaller ones
// that have to do where there is no memory. A product that packs `all_columns` at once may lack the
// room.
template <class R>
class Blocks : public Eigen::internal::level3_blocking<R, R> {
  static constexpr int side = 32;
  // Fresh pages of deeper blocks cost more than the depth gains: a quarter at order 64.
  static constexpr int deepest = 192;

 public:
  Blocks(int rows, int cols, int depth, bool all_columns) {
    this->m_mc = rows;
    this->m_nc = cols;
    this->m_kc = depth;
    Eigen::Index unused = cols;
    Eigen::internal::computeProductBlockingSizes<R, R>(this->m_kc, this->m_mc,
                                                       all_columns ? unused : this->m_nc);
    const int passes = (depth + deepest - 1) / deepest;  // about equally deep
    this->m_kc = std::min<Eigen::Index>(this->m_kc, (depth / passes + 8) & ~7);
    if (reals() > 2 * side * side) {
      heap_ = Scratch<R>(reals());
      if (!heap_) {
        this->m_mc = std::min(rows, side);
        this->m_nc = std::min(cols, side);
        this->m_kc = std::min(depth, side);
      }
    }
    this->m_blockA = heap_ ? heap_.get() : near_;
    this->m_blockB = this->m_blockA + size_of_a();
    room_ = !all_columns || this->m_nc == cols;
  }
  Blocks(const Blocks&) = delete;

  explicit operator bool() const { return room_; }

 private:
  // The second block starts at a multiple of 64 bytes.
  size_t size_of_a() const { return size_t(this->m_mc * this->m_kc + 15) & ~size_t(15); }
  size_t reals() const { return size_of_a() + size_t(this->m_kc) * size_t(this->m_nc); }

  Scratch<R> heap_;
  bool room_;
  alignas(64) R near_[2 * side * side];
};

// C += alpha op(A) op(B), m by n, inner size k.
template <bool transa, bool transb, class R>
void add_general(int m, int n, int k, R alpha, const R* a, int lda, const R* b, int ldb, R* c,
                 int ldc) {
  Blocks<R> blocks(m, n, k, false);
  Eigen::internal::general_matrix_matrix_product<Eigen::Index, R, order_of(transa), false, R,
                                                 order_of(transb), false, Eigen::ColMajor,
                                                 1>::run(m, n, k, a, lda, b, ldb, c, 1, ldc, alpha,
                                                         blocks);
}

// A triangle of C += alpha op(A) op(A)', n by n. False: no room, nothing done.
template <unsigned triangle, bool trans, class R>
bool add_square(int n, int k, R alpha, const R* a, int lda, R* c, int ldc) {
  Blocks<R> blocks(n, n, k, true);
  if (blocks)
    Eigen::internal::general_matrix_matrix_triangular_product<
        Eigen::Index, R, order_of(trans), false, R, order_of(!trans), false, Eigen::ColMajor, 1,
        triangle>::run(n, k, a, lda, a, lda, c, 1, ldc, alpha, blocks);
  return bool(blocks);
}

// C += alpha A B (left) or alpha B A, m by n, with A given by a triangle. False: no room, nothing
// done.
template <bool left, bool upper, class R>
bool add_symmetric(int m, int n, R alpha, const R* a, int lda, const R* b, int ldb, R* c, int ldc) {
  Blocks<R> blocks(m, n, left ? m : n, true);
  if (!blocks) return false;
  constexpr int order = order_of(upper);  // read by rows, the upper triangle is a lower one
  if constexpr (left)
    Eigen::internal::product_selfadjoint_matrix<R, Eigen::Index, order, true, false,
                                                Eigen::ColMajor, false, false, Eigen::ColMajor,
                                                1>::run(m, n, a, lda, b, ldb, c, 1, ldc, alpha,
                                                        blocks);
  else
    Eigen::internal::product_selfadjoint_matrix<R, Eigen::Index, Eigen::ColMajor, false, false,
                                                order, true, false, Eigen::ColMajor,
                                                1>::run(m, n, b, ldb, a, lda, c, 1, ldc, alpha,
                                                        blocks);
  return true;
}

}  // namespace ork::dense
