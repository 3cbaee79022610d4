// Ascending sites: the cell only grows.
#include "service/quad.hpp"
#include "simple_search1d/find.hpp"

namespace ork::df {
namespace {

// Eight sites that end at most two cells after cell c, with no branch on where they cross a
// breakpoint. Writes their cells; false, with nothing to keep, when they go further, do not
// ascend, or hold a NaN. The breakpoints x[c], x[c + 1] and x[c + 2] must exist.
template <class T>
inline __attribute__((always_inline)) bool find_eight(const T* x, int c, const T* site,
                                                      int32_t* cell) {
  const Quad<T> a = Quad<T>::load(site), b = Quad<T>::load(site + 4);
  const Quad<T> first = Quad<T>::all(x[c]), second = Quad<T>::all(x[c + 1]);
  // Minus the breakpoints passed: masks are -1.
  const __m128i low = _mm_add_epi32(a >= first, a >= second);
  const __m128i high = _mm_add_epi32(b >= first, b >= second);
  const __m128i cells = _mm_set1_epi32(c);
  store4(cell, _mm_sub_epi32(cells, low));
  store4(cell + 4, _mm_sub_epi32(cells, high));
  const __m128i passed = _mm_packs_epi32(low, high);
  const __m128i drops = _mm_cmpgt_epi16(_mm_srli_si128(passed, 2), passed);
  const bool ascends = (_mm_movemask_epi8(drops) & 0x3FFF) == 0;
  return ascends & Quad<T>::all_below(a, b, x[c + 2]);
}

}  // namespace

template <class T>
int find_sorted(const Search<T>& search, int n, const T* site, int32_t& state, int32_t* cell) {
  const T* x = search.x;
  const int nx = search.nx;
  int c = state, j = 0;
  while (j < n) {
    if (j + 8 <= n && c < nx - 2 && find_eight(x, c, site + j, cell + j)) {
      const T last = site[j + 7];
      c += (x[c] <= last) + (x[c + 1] <= last);
      j += 8;
      continue;
    }
    for (const int end = j + 8 < n ? j + 8 : n; j < end; ++j) {
      const T s = site[j];
      if (c < nx && x[c] <= s) c = walk_up(x, nx, c + 1, s);
      cell[j] = s == s ? c : 0;
    }
  }
  state = c;
  return ORK_DF_OK;
}
template int find_sorted(const Search<double>&, int, const double*, int32_t&, int32_t*);
template int find_sorted(const Search<float>&, int, const float*, int32_t&, int32_t*);

}  // namespace ork::df
