// The caller's own search: its cells are final, or guesses that the library walks from.
#include "simple_search1d/find.hpp"

namespace ork::df {
namespace {

constexpr int all_final = 1000;  // status of a callback whose cells need no work

}  // namespace

template <class T, class Cell>
int find_by_user(const Search<T>& search, bool uniform, int n, const T* site, Cell* cell,
                 int32_t* flags) {
  int64_t found[user_block];
  // The last block may be empty; the callback sees it all the same.
  for (int first = 0;; first += user_block) {
    const bool last = n - first < user_block;
    const int count = last ? n - first : user_block;
    int64_t asked = count;
    for (int j = 0; j < count; ++j) found[j] = 0, flags[j] = 0;
    const int status = search.callback(&asked, site + first, found, flags, search.params);
    if (status < 0) return status;
    for (int j = 0; j < count; ++j) {
      if (status == all_final || flags[j] != 0) {
        cell[first + j] = static_cast<Cell>(found[j]);
      } else if (uniform) {
        int32_t state = 0, one;
        find_uniform(search, 1, site + first + j, state, &one);
        cell[first + j] = one;
      } else {
        const int guess = found[j] < 1           ? 0
                          : found[j] > search.nx ? search.nx
                                                 : static_cast<int>(found[j]);
        cell[first + j] = walk_from_guess(search.x, search.nx, guess, site[first + j]);
      }
    }
    if (last) return status == all_final ? ORK_DF_OK : status;
  }
}
template int find_by_user(const Search<double>&, bool, int, const double*, int32_t*, int32_t*);
template int find_by_user(const Search<double>&, bool, int, const double*, int64_t*, int32_t*);
template int find_by_user(const Search<float>&, bool, int, const float*, int32_t*, int32_t*);
template int find_by_user(const Search<float>&, bool, int, const float*, int64_t*, int32_t*);

template <class T>
int find_user(const Search<T>& search, int n, const T* site, int32_t&, int32_t* cell) {
  int32_t flags[user_block];
  return find_by_user(search, false, n, site, cell, flags);
}
template int find_user(const Search<double>&, int, const double*, int32_t&, int32_t*);
template int find_user(const Search<float>&, int, const float*, int32_t&, int32_t*);

template <class T>
int find_user_uniform(const Search<T>& search, int n, const T* site, int32_t&, int32_t* cell) {
  int32_t flags[user_block];
  return find_by_user(search, true, n, site, cell, flags);
}
template int find_user_uniform(const Search<double>&, int, const double*, int32_t&, int32_t*);
template int find_user_uniform(const Search<float>&, int, const float*, int32_t&, int32_t*);

}  // namespace ork::df
