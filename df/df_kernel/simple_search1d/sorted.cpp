// Ascending sites: the cell only grows.
#include "simple_search1d/find.hpp"

namespace df {

template <class T>
int find_sorted(const Search<T>& search, int n, const T* site, int32_t& state, int32_t* cell) {
  const T* x = search.x;
  const int nx = search.nx;
  int c = state;
  for (int j = 0; j < n; ++j) {
    const T s = site[j];
    if (c < nx && x[c] <= s) c = walk_up(x, nx, c + 1, s);
    cell[j] = s == s ? c : 0;
  }
  state = c;
  return ORK_DF_OK;
}
template int find_sorted(const Search<double>&, int, const double*, int32_t&, int32_t*);
template int find_sorted(const Search<float>&, int, const float*, int32_t&, int32_t*);

}  // namespace df
