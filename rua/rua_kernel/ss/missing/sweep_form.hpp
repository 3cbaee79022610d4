// Mean and covariance in one symmetric matrix of order p + 1, row after row: index 0 is the
// constant, index j + 1 variable j. [0][0] is -1, row 0 holds the means, the rest the covariance.
// Sweeping variables (Beaton 1964; Dempster 1969) turns it into the regression of those that are
// left on those swept.
#pragma once
#include <math.h>

#include "base/lanes.hpp"
#include "base/vec.hpp"

namespace ork::ss {

template <class R>
struct SweepForm {
  R* a;
  int d;  // p + 1

  R* operator[](int i) const { return a + size_t(i) * d; }
  // Half of a step may have written one triangle only: the lower one, of the variables' part.
  void mirror() const {
    for (int i = 1; i < d; ++i)
      for (int j = 0; j < i; ++j) (*this)[j][i] = (*this)[i][j];
  }

  // Sweeps index k, or undoes it where it was swept: its diagonal is then negative. `scaled` is
  // room for a row. Symmetric to the bit.
  void sweep(int k, R* scaled) const {
    R* const own = (*this)[k];
    const R pivot = own[k], root = R(::sqrt(1 / (pivot < 0 ? -pivot : pivot)));
    for (int j = 0; j < d; ++j) scaled[j] = own[j] * root;
    scaled[k] = 0;
    for (int i = 0; i < d; ++i) {
      R* const row = (*this)[i];
      const R factor = pivot < 0 ? scaled[i] : -scaled[i];
      ork::sweep<R>(
          0, d, [&]<class V>(int j) __attribute__((always_inline)) {
            put(row + j, get<V>(row + j) + all<V>(factor) * get<V>(scaled + j));
          });
      row[k] = scaled[i] * root;
    }
    for (int j = 0; j < d; ++j) own[j] = scaled[j] * root;
    own[k] = -1 / pivot;
  }
};

}  // namespace ork::ss
