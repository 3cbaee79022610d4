#pragma once
// Eigenvectors by cyclic Jacobi rotations in long double.
#include "support/pch.hpp"

namespace statistics {

typedef long double Wide;
typedef std::vector<Wide> Square;  // p by p, row after row

// a becomes diagonal, the rows of the result are its eigenvectors.
inline Square jacobi(int p, Square& a) {
  Square v(p * p, 0);
  for (int i = 0; i < p; ++i) v[i * p + i] = 1;
  for (int sweep = 0; sweep < 30; ++sweep)
    for (int i = 0; i < p; ++i)
      for (int j = 0; j < i; ++j) {
        if (a[i * p + j] == 0) continue;
        const Wide angle = atan2l(2 * a[i * p + j], a[j * p + j] - a[i * p + i]) / 2;
        const Wide c = cosl(angle), s = sinl(angle);
        const auto rotate = [&](Square& m, int at, int step) {
          for (int k = 0; k < p; ++k) {
            Wide &x = m[at * j + k * step], &y = m[at * i + k * step];
            const Wide old = x;
            x = c * old + s * y, y = c * y - s * old;
          }
        };
        rotate(a, p, 1), rotate(a, 1, p), rotate(v, p, 1);
      }
  return v;
}

}  // namespace statistics
