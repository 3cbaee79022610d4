// The mathematical helpers of either precision by one name; ork/ss_math.h describes them.
#pragma once
#include "ork/ss_math.h"

namespace ork::ss {

template <class R>
struct Math;

template <>
struct Math<double> {
  static constexpr auto sort_radix = v8_opxsSortRadixAscend_64f_I;
  static constexpr auto sort_strided = __ruadQSortStep;
  static constexpr auto sort_pairs = _vdSSQuickMapSort;
  static constexpr auto select = __ruadQSortSelect;
  static constexpr auto test_rank = __ruadTestCovRank;
  static constexpr auto invert = __ruadInvCov;
};

template <>
struct Math<float> {
  static constexpr auto sort_radix = v8_opxsSortRadixAscend_32f_I;
  static constexpr auto sort_strided = __ruasQSortStep;
  static constexpr auto sort_pairs = _vsSSQuickMapSort;
  static constexpr auto select = __ruasQSortSelect;
  static constexpr auto test_rank = __ruasTestCovRank;
  static constexpr auto invert = __ruasInvCov;
};

}  // namespace ork::ss
