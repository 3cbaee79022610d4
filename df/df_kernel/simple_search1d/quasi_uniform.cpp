// Nearly equal cells: the guess of the uniform search, then a walk to the cell.
#include "simple_search1d/find.hpp"

namespace ork::df {

template <class T>
int find_quasi_uniform(const Search<T>& search, int n, const T* site, int32_t& state,
                       int32_t* cell) {
  constexpr int batch = 32;
  const T right = search.x[search.nx - 1];
  for (int first = 0; first < n; first += batch) {
    const int end = n - first < batch ? n : first + batch;
    find_uniform(search, end - first, site + first, state, cell + first);
    // Guess 0 marks the sites left of the partition, and NaN. The right end is in cell nx
    // even when the guess rounds below it.
    for (int j = first; j < end; ++j)
      if (cell[j] != 0)
        cell[j] =
            site[j] >= right ? search.nx : walk_from_guess(search.x, search.nx, cell[j], site[j]);
  }
  return ORK_DF_OK;
}
template int find_quasi_uniform(const Search<double>&, int, const double*, int32_t&, int32_t*);
template int find_quasi_uniform(const Search<float>&, int, const float*, int32_t&, int32_t*);

}  // namespace ork::df
