// What the construction entries share: checks, and the exported forms.
#pragma once
#include "service/task.hpp"

namespace ork::df {

// The conditions at both ends.
enum Boundary {
  not_a_knot,
  free_end,
  first_first,
  first_second,
  second_first,
  second_second,
  periodic,
  not_set
};

// The boundary of bcType, or -1.
inline int boundary_index(int64_t bc) {
  switch (bc) {
    case 1:
      return not_a_knot;
    case 2:
      return free_end;
    case 4 | 8:
      return first_first;
    case 4 | 32:
      return first_second;
    case 16 | 8:
      return second_first;
    case 16 | 32:
      return second_second;
    case 64:
      return periodic;
    case 0:
      return not_set;
    default:
      return -1;
  }
}
inline bool two_boundary_values(int boundary) {
  return boundary >= first_first && boundary <= second_second;
}

inline bool valid_storage(int64_t hint) {
  return hint == ORK_DF_ROWS_DEFAULT || hint == ORK_DF_ROWS || hint == ORK_DF_COLS ||
         hint == ORK_DF_ROWS_APART;
}

// nx, then yhint: the two tests that every entry makes. 0 or a code.
inline int check_shape(const Task* task, int least_nx) {
  if (task->nx < least_nx) return ORK_DF_BAD_NX;
  return valid_storage(task->yhint) ? ORK_DF_OK : ORK_DF_BAD_YHINT;
}

// bcType and bcValues of a cubic spline. The boundary, or a code.
inline int check_cubic_boundary(const Task* task, bool may_be_unset) {
  const int boundary = boundary_index(task->bcType);
  if (boundary < 0 || (boundary == not_set && !may_be_unset)) return ORK_DF_BAD_BC;
  const bool needed = two_boundary_values(boundary) ||
                      (boundary == periodic && (task->splineType == ORK_DF_TYPE_DEFAULT ||
                                                task->splineType == ORK_DF_TYPE_HERMITE));
  return needed && task->bcValues == nullptr ? ORK_DF_BAD_BC_VALUES : boundary;
}

}  // namespace ork::df

// Both entries of a construction; build is a template over the type.
#define ORK_CONSTRUCTION(name, build)         \
  ORK_CONSTRUCTION_OF(d, double, name, build) \
  ORK_CONSTRUCTION_OF(s, float, name, build)
#define ORK_CONSTRUCTION_OF(letter, T, name, build)                               \
  ORK_EXPORT int ork_df_kernel_##letter##DF##name##Spline1D(                      \
      ork_df_task* task, int64_t, int64_t method, const ork_threader* threader) { \
    return ork::df::build<T>(task, method, threader);                             \
  }
