// Correlation matrices with negative eigenvalues made positive definite: the eigenvalues below a
// floor are raised to it, and the matrix is scaled back to a unit diagonal.
#include <string.h>

#include "base/dense.hpp"
#include "base/scratch.hpp"
#include "rua_kernel/service/elementwise.hpp"
#include "rua_kernel/ss/service/computation.hpp"
#include "rua_kernel/ss/service/symmetric.hpp"

namespace ork::ss {
namespace {

// Some 50 units of the diagonal, 8 in single.
template <class R>
inline constexpr R kFloor = 1e-14;
template <>
inline constexpr float kFloor<float> = 1e-6f;

// Reals of the eigensolver's work, for each variable.
constexpr int kWork = 50;

template <class R>
int32_t check(const Task<R>& t, uint64_t method) {
  if (!t.dimension || t.integer(t.dimension) < 1) return ORK_SS_BAD_DIMENSION;
  const auto storage = [&](Integers code) -> int32_t {
    if (!code) return ORK_SS_NULL_STORAGE;
    const int64_t value = t.integer(code);
    return value < ORK_SS_FULL || value > ORK_SS_UPPER_PACKED ? ORK_SS_BAD_STORAGE : ORK_SS_OK;
  };
  if (!t.cor) return ORK_SS_NULL_COR;
  if (const int32_t status = storage(t.corStorage)) return status;
  if (!t.paramCorrelation) return ORK_SS_NULL_PARAM_COR;
  if (const int32_t status = storage(t.paramCorrelationStorage)) return status;
  // The full result has no room in a packed array.
  if (t.cor == t.paramCorrelation && code_of(t, t.paramCorrelationStorage) == ORK_SS_FULL &&
      code_of(t, t.corStorage) != ORK_SS_FULL)
    return ORK_SS_BAD_STORAGE;
  return method & ORK_SS_SPECTRAL ? ORK_SS_OK : ORK_SS_BAD_METHOD;
}

// The elements below the diagonal, and 1 on it.
template <class R>
void put_correlations(const Symmetric<R>& from, const Symmetric<R>& to) {
  for (int i = 0; i < to.p; ++i) {
    for (int j = 0; j < i; ++j) to.set(i, j, from.at(i, j));
    to.set(i, i, R(1));
  }
}

// result (lower triangle) <- the matrix of p eigenvectors, the rows of a, and of the eigenvalues
// that stand behind the four vectors; scaled on both sides for a diagonal of 1. a is used up.
template <class R>
void rebuild(int p, R* a, R* vectors, R* result) {
  R *const scale = vectors, *const roots = scale + p, *const root_values = roots + p,
           *const diagonal = root_values + p;
  const R* const values = diagonal + p;
  for (int i = 0; i < p; ++i) diagonal[i] = 0;
  for (int k = 0; k < p; ++k)
    for (int i = 0; i < p; ++i) {
      const R x = a[size_t(k) * p + i];
      diagonal[i] += values[k] * (x * x);
    }
  // Diagonal and eigenvalues are one array of 2p, and so are their roots.
  rua::apply(rua::Tables<R>::sqrt, 2 * p, diagonal, roots, 0);
  rua::apply(rua::Tables<R>::inv, p, roots, scale, 0);
  for (int k = 0; k < p; ++k)
    for (int i = 0; i < p; ++i) a[size_t(k) * p + i] *= scale[i] * root_values[k];
  const R one = 1, zero = 0;
  Dense<R>::syrk("U", "N", &p, &p, &one, a, &p, &zero, result, &p);
}

template <class R>
int32_t repair(const Task<R>& t, uint64_t, uint64_t method, const ork_threader*) {
  if (const int32_t status = check(t, method)) return status;
  const int p = t.p();
  const Symmetric<R> cor{t.cor, p, code_of(t, t.corStorage)},
      to{t.paramCorrelation, p, code_of(t, t.paramCorrelationStorage)};
  const uint64_t square = uint64_t(p) * p;
  const Scratch<R> block((kWork + 1) * uint64_t(p) + 2 * square);
  if (!block) return ORK_SS_NO_MEMORY;
  const int work_size = kWork * p;
  R *const work = block.get(), *const values = work + work_size, *const a = values + p,
           *const result = a + square;
  const Symmetric<R> copy{a, p, ORK_SS_FULL};
  put_correlations(cor, copy);
  int info = 0;
  Dense<R>::syev("V", "U", &p, a, &p, values, work, &work_size, &info);
  if (info != 0) return ORK_SS_PARAM_EIGEN;
  int raised = 0;
  for (int k = 0; k < p; ++k)
    if (values[k] < kFloor<R>) {
      values[k] = kFloor<R>;
      ++raised;
    }
  if (raised == p) return ORK_SS_NO_EIGENVALUE;
  if (raised) {
    rebuild(p, a, values - 4 * p, result);
    put_correlations(Symmetric<R>{result, p, ORK_SS_FULL}, to);
  } else if (cor.a != to.a) {
    put_correlations(cor, to);
  } else if (cor.code != to.code) {
    memcpy(a, cor.a, size_t(cor.size()) * sizeof(R));
    put_correlations(Symmetric<R>{a, p, cor.code}, to);
  }
  return ORK_SS_OK;
}

}  // namespace

ORK_COMPUTATION(CorParametrization, repair)

}  // namespace ork::ss
