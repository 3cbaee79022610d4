// Hermite cubic spline: the slopes at the interior breakpoints are given, one set for all
// functions.
#include "cubic_local/local.hpp"

namespace ork::df {

struct Hermite {
  static constexpr int run = 4, reach = 0, least_nx = 3;
  static constexpr bool may_be_unset = false;

  static int check(const Task* task) {
    return task->icValues == nullptr ? ORK_DF_BAD_IC_VALUES : ORK_DF_OK;
  }
  template <class T, class Grid>
  static void slopes(const Task* task, const Window<T>& s, int first, int last) {
    const T* given = internal_values<T>(task);
    for (int i = first; i <= last; ++i) s.d[i] = given[s.origin + i - 1];
  }
  template <class T>
  static T closed(const Task* task, const End<T>&, const End<T>&) {
    return boundary_values<T>(task)[0];
  }
};

template <class T>
int construct_hermite(const Task* task, int64_t, const ork_threader* threader) {
  return construct_local<T, Hermite>(task, threader);
}

}  // namespace ork::df

ORK_CONSTRUCTION(HermiteCubic, construct_hermite)
