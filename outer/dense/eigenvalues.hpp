#pragma once
// Eigenvalues and eigenvectors of symmetric matrices in full or packed storage: brought to the form
// that decompose() takes.
#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>

#include "ork/serv.h"
#include "outer/dense/dense.hpp"

namespace ork::dense {
// Room for n * n reals, or null; none is asked for where n is 0.
template <class R>
struct Block {
  R* data = nullptr;
  explicit Block(long long n) {
    const long long bytes = n * n * sizeof(R);
    if (n > 0 && bytes <= PTRDIFF_MAX)
      data = static_cast<R*>(ork_serv_allocate(size_t(bytes), 128));
  }
  ~Block() { ork_serv_deallocate(data); }
  Block(const Block&) = delete;
};

// Whether q's lower triangle has finite elements only.
template <class R>
bool all_finite(int n, const R* q) {
  for (int j = 0; j < n; ++j)
    for (int i = j; i < n; ++i)
      if (!(std::fabs(q[i + j * n]) <= std::numeric_limits<R>::max())) return false;
  return true;
}

// Fills the lower triangle of q (n by n, no gaps) from element(i, j), i >= j.
template <class R, class Element>
void gather(int n, Element element, R* q) {
  for (int j = 0; j < n; ++j)
    for (int i = j; i < n; ++i) q[i + j * n] = element(i, j);
}

template <class R>
int decompose_finite(bool vectors, int n, R* q, R* w, R* work) {
  return all_finite(n, q) ? decompose(vectors, n, q, w, work) : n;
}

template <class R>
void copy(int n, const R* q, R* a, int lda) {
  for (int j = 0; j < n; ++j) std::copy_n(q + j * n, n, a + j * lda);
}

template <class R>
int syev(bool vectors, bool upper, int n, R* a, int lda, R* w, R* work) {
  if (n == 0) return 0;
  const auto element = [=](int i, int j) { return upper ? a[j + i * lda] : a[i + j * lda]; };
  if (lda == n && (vectors || !upper)) {
    if (upper) gather(n, element, a);
    return decompose_finite(vectors, n, a, w, work);
  }
  const Block<R> block(n);
  R* const q = block.data;
  if (q == nullptr) return n + 1;
  gather(n, element, q);
  const int info = decompose_finite(vectors, n, q, w, work);
  if (vectors && info == 0) copy(n, q, a, lda);
  return info;
}

template <class R>
int spevd(bool vectors, bool upper, int n, const R* ap, R* w, R* z, int ldz, R* work) {
  if (n == 0) return 0;
  const auto element = [=](int i, int j) {
    return upper ? ap[j + i * (i + 1) / 2] : ap[i + j * (2 * n - j - 1) / 2];
  };
  const bool in_place = vectors && ldz == n;
  const Block<R> block(vectors ? 0 : n);
  R* const q = in_place ? z : vectors ? work + 3 * n : block.data;
  if (q == nullptr) return n + 1;
  gather(n, element, q);
  const int info = decompose_finite(vectors, n, q, w, work);
  if (vectors && !in_place && info == 0) copy(n, q, z, ldz);
  return info;
}

struct Sizes {
  long long reals;
  int ints;
};
inline Sizes spevd_sizes(bool vectors, long long n) {
  if (n < 2) return {1, 1};
  return vectors ? Sizes{n * n + 6 * n + 1, int(5 * n + 3)} : Sizes{2 * n, 1};
}

}  // namespace ork::dense
