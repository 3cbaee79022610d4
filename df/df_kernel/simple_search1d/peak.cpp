// Sites that lie close to one breakpoint: walk from there.
#include "simple_search1d/find.hpp"

namespace ork::df {

template <class T>
int find_peak(const Search<T>& search, int n, const T* site, int32_t&, int32_t* cell) {
  const T* x = search.x;
  const int nx = search.nx, peak = search.peak < nx ? search.peak : nx;
  for (int j = 0; j < n; ++j) {
    const T s = site[j];
    cell[j] = s != s                      ? 0
              : peak < nx && s >= x[peak] ? walk_up(x, nx, peak + 1, s)
                                          : walk_down(x, peak, s);
  }
  return ORK_DF_OK;
}
template int find_peak(const Search<double>&, int, const double*, int32_t&, int32_t*);
template int find_peak(const Search<float>&, int, const float*, int32_t&, int32_t*);

}  // namespace ork::df
