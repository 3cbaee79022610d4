// Equal cells: the cell follows from the distance to the left end.
#include "service/quad.hpp"
#include "simple_search1d/find.hpp"

namespace ork::df {

template <class T>
int find_uniform(const Search<T>& search, int n, const T* site, int32_t&, int32_t* cell) {
  const Quad<T> left = Quad<T>::all(search.x[0]), scale = Quad<T>::all(search.scale);
  const __m128i one = _mm_set1_epi32(1), nx = _mm_set1_epi32(search.nx);
  const __m128i last = _mm_set1_epi32(search.nx - 2);  // of the cells that need no clamp, less 1
  by_fours(n, site, cell, [&](const T* s, int32_t* c) {
    const Quad<T> v = Quad<T>::load(s);
    const __m128i t = ((v - left) * scale).truncate();
    // Beyond the right end, or too far to be counted: nx.
    const __m128i beyond = _mm_or_si128(_mm_cmpgt_epi32(t, last), _mm_srai_epi32(t, 31));
    store4(c, _mm_and_si128(v >= left, select(beyond, nx, _mm_add_epi32(t, one))));
  });
  return ORK_DF_OK;
}
template int find_uniform(const Search<double>&, int, const double*, int32_t&, int32_t*);
template int find_uniform(const Search<float>&, int, const float*, int32_t&, int32_t*);

}  // namespace ork::df
