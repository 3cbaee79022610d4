// Partial covariance: what is left of the covariance of some variables, Y, when the linear
// influence of others, Z, is taken out. It is the Schur complement of the others' block,
// YY - YZ ZZ^-1 ZY.
#include <math.h>

#include "base/dense.hpp"
#include "base/scratch.hpp"
#include "rua_kernel/ss/service/computation.hpp"
#include "rua_kernel/ss/service/symmetric.hpp"

namespace ork::ss {
namespace {

// Entries of partialIndex. Variables with any other one take no part.
constexpr int kResult = 1, kConditionedOn = -1;

template <class R>
int count_of(const Task<R>& t, int entry) {
  int count = 0;
  for (int i = 0; i < t.p(); ++i) count += int(t.integer(t.partialIndex, i)) == entry;
  return count;
}

// The matrix to start from: a covariance, or a correlation with variances on its diagonal.
template <class R>
struct Source {
  Symmetric<R> matrix;
  bool correlation;

  explicit Source(const Task<R>& t)
      : matrix{t.cov ? t.cov : t.cor, t.p(), code_of(t, t.cov ? t.covStorage : t.corStorage)},
        correlation(!t.cov) {}
  R operator()(int i, int j) const {
    const R a = i < j ? matrix.at(j, i) : matrix.at(i, j);
    if (!correlation || i == j) return a;
    return a * R(sqrt(matrix.at(i, i))) * R(sqrt(matrix.at(j, j)));
  }
  // The block of the variables with these entries, row after row.
  void block(const Task<R>& t, int row_entry, int column_entry, R* to) const {
    for (int i = 0; i < matrix.p; ++i)
      if (int(t.integer(t.partialIndex, i)) == row_entry)
        for (int j = 0; j < matrix.p; ++j)
          if (int(t.integer(t.partialIndex, j)) == column_entry) *to++ = (*this)(i, j);
  }
};

// The lower triangle of p rows onto the storage `to`, which may be the same full matrix.
template <class R, class Value>
void put(const Symmetric<R>& to, Value value) {
  for (int i = 0; i < to.p; ++i)
    for (int j = 0; j <= i; ++j) to.set(i, j, value(i, j));
}

template <class R>
int32_t compute_partial(const Task<R>& t, bool cov, bool cor) {
  if (t.p() < 1) return ORK_SS_EMPTY_PARTIAL_SET;
  const int ny = count_of(t, kResult), nz = count_of(t, kConditionedOn);
  if (ny == 0 || nz == 0) return ORK_SS_EMPTY_PARTIAL_SET;
  const Symmetric<R> to{t.partialCov, ny, cov ? code_of(t, t.partialCovStorage) : ORK_SS_FULL};
  // A full partial covariance is made where it goes.
  const bool in_place = cov && to.full();
  const uint64_t y = ny, z = nz;
  const Scratch<R> scratch((z + 2 * y) * z + (in_place ? 0 : y * y));
  if (!scratch) return ORK_SS_NO_MEMORY;
  R *const zz = scratch.get(), *const yz = zz + z * z, *const product = yz + y * z;
  R* const rest = in_place ? t.partialCov : product + y * z;
  const Source<R> source(t);
  source.block(t, kConditionedOn, kConditionedOn, zz);
  source.block(t, kResult, kConditionedOn, yz);
  source.block(t, kResult, kResult, rest);

  int info = 0;
  Dense<R>::potrf("u", &nz, zz, &nz, &info);
  if (info != 0) return ORK_SS_PARTIAL_CHOLESKY;
  Dense<R>::potri("u", &nz, zz, &nz, &info);
  if (info != 0) return ORK_SS_PARTIAL_INVERSE;
  for (size_t i = 0; i < z; ++i)
    for (size_t j = 0; j < i; ++j) zz[j * z + i] = zz[i * z + j];
  const R one = 1, zero = 0, minus_one = -1;
  Dense<R>::gemm("t", "n", &ny, &nz, &nz, &one, yz, &nz, zz, &nz, &zero, product, &ny);
  Dense<R>::gemm("n", "n", &ny, &ny, &nz, &minus_one, product, &ny, yz, &nz, &one, rest, &ny);

  const auto element = [&](int i, int j) { return rest[size_t(i) * ny + j]; };
  if (cov) put(to, element);
  if (cor) {
    // Roots one by one: the product of two variances may leave the range.
    const auto ratio = [&](int i, int j) {
      if (i == j) return element(i, i);
      return element(i, j) / R(sqrt(element(i, i))) / R(sqrt(element(j, j)));
    };
    put(Symmetric<R>{t.partialCor, ny, code_of(t, t.partialCorStorage)}, ratio);
  }
  return ORK_SS_OK;
}

template <class R>
int32_t partial(const Task<R>& t, uint64_t estimates, uint64_t method) {
  const bool cov = estimates & ORK_SS_PARTIAL_COV, cor = estimates & ORK_SS_PARTIAL_COR;
  if (!t.cov && !t.cor) return ORK_SS_NULL_COV;
  if (t.cov ? !t.covStorage : !t.corStorage) return ORK_SS_NULL_STORAGE;
  if (!t.partialIndex) return ORK_SS_NULL_PARTIAL_INDEX;
  if (cov && !t.partialCov) return ORK_SS_NULL_PARTIAL_COV;
  if (cov && !t.partialCovStorage) return ORK_SS_NULL_STORAGE;
  if (cor && !t.partialCor) return ORK_SS_NULL_PARTIAL_COR;
  if (cor && !t.partialCorStorage) return ORK_SS_NULL_STORAGE;
  if (!(method & ORK_SS_FAST)) return ORK_SS_BAD_METHOD;
  return compute_partial(t, cov, cor);
}

}  // namespace

// No threads: the table of the other computations is not an argument here.
#define ORK_PARTIAL(t, R)                                                                         \
  ORK_EXPORT int32_t _rua##t##SSPartialCovariance(ork_ss_task* task, uint32_t estimates_low,      \
                                                  uint32_t estimates_high, uint32_t method_low) { \
    return partial(record_of<R>(task), join(estimates_low, estimates_high), method_low);          \
  }
ORK_TWINS(ORK_PARTIAL)

}  // namespace ork::ss
