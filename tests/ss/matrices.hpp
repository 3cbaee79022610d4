#pragma once
// Symmetric matrices in their storages.
#include "ork/ss.h"

namespace statistics {

inline constexpr int kStorages[] = {ORK_SS_FULL, ORK_SS_LOWER_PACKED, ORK_SS_UPPER_PACKED};

inline int size_of(int storage, int p) { return storage == ORK_SS_FULL ? p * p : p * (p + 1) / 2; }

// Where (i, j) stands, j <= i: packed triangles are counted element by element.
inline int place(int storage, int p, int i, int j) {
  if (storage == ORK_SS_FULL) return i * p + j;
  int k = 0;
  for (int row = 0; row < p; ++row)
    for (int column = 0; column < p; ++column) {
      const bool lower = storage == ORK_SS_LOWER_PACKED;
      if (lower ? column > row : column < row) continue;
      if (row == (lower ? i : j) && column == (lower ? j : i)) return k;
      ++k;
    }
  return -1;
}

}  // namespace statistics
