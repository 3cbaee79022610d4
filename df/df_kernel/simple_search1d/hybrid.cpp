// Any partition, any sites: the bucket table brackets the cell, halving finds it.
//
// All sites of a block are halved side by side and in the same number of steps, that of the
// widest bracket: no branch depends on a site, and the loads of different sites overlap.
#include "service/quad.hpp"
#include "simple_search1d/find.hpp"

namespace ork::df {
namespace {

constexpr int block = 128;

// Lower ends of the brackets of n sites; the width of the widest.
template <class T>
int bracket(const Search<T>& search, int n, const T* site, int32_t* low) {
  const int last_cell = search.nx - 1;
  if (search.buckets == 0) {
    for (int j = 0; j < n; ++j) low[j] = 0;
    return last_cell;
  }
  const Quad<T> left = Quad<T>::all(search.x[0]), scale = Quad<T>::all(search.scale);
  const Quad<T> zero = Quad<T>::all(0), last = Quad<T>::all(static_cast<T>(search.buckets - 1));
  by_fours(n, site, low, [&](const T* s, int32_t* b) {
    store4(b, ((Quad<T>::load(s) - left) * scale).at_least(zero).at_most(last).truncate());
  });
  int width = 0;
  for (int j = 0; j < n; ++j) {
    // A table older than the partition may name breakpoints that are gone.
    const Bucket b = search.bucket[low[j]];
    const int high = b.hi < last_cell ? b.hi : last_cell;
    const int w = high - b.lo;
    low[j] = b.lo;
    if (w > width) width = w;
  }
  return width;
}

template <class T>
void find_block(const Search<T>& search, int n, const T* site, int32_t* cell) {
  const T* x = search.x;
  const int nx = search.nx, width = bracket(search, n, site, cell);
  const __m128i highest = _mm_set1_epi32(nx - width);
  by_fours(n, cell, cell, [&](const int32_t* from, int32_t* to) {
    const __m128i low = load4(from);
    store4(to, select(_mm_cmpgt_epi32(low, highest), highest, low));
  });
  for (int length = width; length > 0;) {
    const int half = (length + 1) / 2;
    const T* probe = x + half - 1;
    for (int j = 0; j < n; ++j) {
      const int c = cell[j];
      cell[j] = c + (half & -static_cast<int>(probe[c] <= site[j]));
    }
    length -= half;
  }
  const Quad<T> left = Quad<T>::all(x[0]), right = Quad<T>::all(x[nx - 1]);
  const __m128i beyond = _mm_set1_epi32(nx);
  int j = 0;
  for (; j + 4 <= n; j += 4) {
    const Quad<T> s = Quad<T>::load(site + j);
    const __m128i found = _mm_and_si128(s >= left, load4(cell + j));
    store4(cell + j, select(s >= right, beyond, found));
  }
  for (; j < n; ++j) cell[j] = site[j] >= x[nx - 1] ? nx : site[j] >= x[0] ? cell[j] : 0;
}

}  // namespace

template <class T>
int find_hybrid(const Search<T>& search, int n, const T* site, int32_t&, int32_t* cell) {
  for (int first = 0; first < n; first += block) {
    const int count = n - first < block ? n - first : block;
    find_block(search, count, site + first, cell + first);
  }
  return ORK_DF_OK;
}
template int find_hybrid(const Search<double>&, int, const double*, int32_t&, int32_t*);
template int find_hybrid(const Search<float>&, int, const float*, int32_t&, int32_t*);

}  // namespace ork::df
