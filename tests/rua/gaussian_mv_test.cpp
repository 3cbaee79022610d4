// Multivariate Gaussian numbers against a plain product of the factor with the Gaussian numbers
// that the same stream gives.
#include <dlfcn.h>

#include <cmath>
#include <limits>

#include "ork/dense.h"
#include "ork/rua_distributions.h"
#include "rua/player.hpp"

// The dense layer's two entries for full factors, counted: the library calls these in their place.
static int small_calls, large_calls;
#define COUNTED(name, R, calls)                                                                  \
  extern "C" void name(const char* side, const char* uplo, const char* transa, const char* diag, \
                       const int* m, const int* n, const R* alpha, const R* a, const int* lda,   \
                       R* b, const int* ldb) {                                                   \
    static const auto next = reinterpret_cast<decltype(&name)>(dlsym(RTLD_NEXT, #name));         \
    ++calls;                                                                                     \
    next(side, uplo, transa, diag, m, n, alpha, a, lda, b, ldb);                                 \
  }
COUNTED(ork_blas_xdtrmm_4zem, double, small_calls)
COUNTED(ork_blas_xstrmm_4zem, float, small_calls)
COUNTED(ork_blas4zem_dtrmm, double, large_calls)
COUNTED(ork_blas4zem_strmm, float, large_calls)

namespace {

template <class R>
struct Entries;
template <>
struct Entries<double> {
  static constexpr auto gaussian = _ruadRngGaussian;
  static constexpr auto vectors = _ruadRngGaussianMV;
};
template <>
struct Entries<float> {
  static constexpr auto gaussian = _ruasRngGaussian;
  static constexpr auto vectors = _ruasRngGaussianMV;
};

// A lower triangular factor and a mean, the factor as each storage has it. What must not be read is
// NaN.
template <class R>
struct Factor {
  int dim;
  std::vector<R> mean, full, packed, diagonal;

  explicit Factor(int n) : dim(n) {
    uint32_t word = 12345;
    const auto number = [&] { return R(int32_t(word = word * 1664525 + 1013904223)) / R(0x1p31); };
    full.assign(n * n, R(NAN));
    for (int i = 0; i < n; ++i) {
      mean.push_back(100 * number());
      for (int j = 0; j <= i; ++j) full[i * n + j] = number() + R(i == j ? 2 : 0);
      diagonal.push_back(full[i * n + i]);
    }
    for (int j = 0; j < n; ++j)
      for (int i = j; i < n; ++i) packed.push_back(full[i * n + j]);
  }
  const R* storage(int kind) const {
    return (kind == RUA_MATRIX_FULL ? full : kind == RUA_MATRIX_PACKED ? packed : diagonal).data();
  }
  // What coordinate i of T z + a may miss for rounding: the bound of any order of summation.
  void expect(int kind, const R* z, const R* r) const {
    for (int i = 0; i < dim; ++i) {
      long double want = mean[i], size = std::fabs(mean[i]);
      for (int j = kind == RUA_MATRIX_DIAGONAL ? i : 0; j <= i; ++j) {
        const long double term = (long double)full[i * dim + j] * z[j];
        want += term;
        size += std::fabs(term);
      }
      ASSERT_LE(std::fabs(r[i] - want), (i + 2) * std::numeric_limits<R>::epsilon() * size) << i;
    }
  }
};

template <class R>
class GaussianMV : public RuaTest {};
using Types = testing::Types<double, float>;
TYPED_TEST_SUITE(GaussianMV, Types);

TYPED_TEST(GaussianMV, IsTheFactorTimesGaussianNumbers) {
  using R = TypeParam;
  for (const int dim : {1, 2, 3, 10, 11, 31, 32, 64})
    for (const int kind : {RUA_MATRIX_FULL, RUA_MATRIX_PACKED, RUA_MATRIX_DIAGONAL})
      for (const int n : {1, 2, 5, 403})
        for (const int method : {0, 1, 2}) {
          SCOPED_TRACE(testing::Message() << dim << ' ' << kind << ' ' << n << ' ' << method);
          const Factor<R> f(dim);
          Stream s(RUA_BRNG_MT19937, {5}), plain(RUA_BRNG_MT19937, {5});
          small_calls = large_calls = 0;
          std::vector<R> z(n * dim), r(n * dim + 2, R(99));
          ASSERT_EQ(Entries<R>::gaussian(method, plain, n * dim, z.data(), 0, 1), 0);
          ASSERT_EQ(Entries<R>::vectors(method, s, n, r.data() + 1, dim, kind, f.mean.data(),
                                        f.storage(kind)),
                    0);
          EXPECT_EQ(r.front(), R(99));
          EXPECT_EQ(r.back(), R(99));
          const bool product = kind == RUA_MATRIX_FULL && dim > 1;
          EXPECT_EQ(small_calls, product && dim < 11);
          EXPECT_EQ(large_calls, product && dim >= 11);
          for (int i = 0; i < n; ++i) f.expect(kind, &z[i * dim], &r[1 + i * dim]);
          for (RuaStream* stream : {static_cast<RuaStream*>(s), static_cast<RuaStream*>(plain)})
            __ruaDeleteChunks(stream);
          EXPECT_TRUE(record(s) == record(plain));
        }
}

TYPED_TEST(GaussianMV, OfOneDimensionIsGaussianItself) {
  using R = TypeParam;
  for (const int kind : {0, 1, 2, 3}) {
    Stream s(RUA_BRNG_MT19937, {5}), plain(RUA_BRNG_MT19937, {5});
    const R a = 7, t = R(0.3);
    R r[99], want[99];
    ASSERT_EQ(Entries<R>::gaussian(1, plain, 99, want, a, t), 0);
    ASSERT_EQ(Entries<R>::vectors(1, s, 99, r, 1, kind, &a, &t), 0);
    EXPECT_EQ(memcmp(r, want, sizeof r), 0) << kind;
  }
}

TYPED_TEST(GaussianMV, FailingStreamLeavesWhatItGave) {
  using R = TypeParam;
  const Factor<R> f(3);
  for (const int failing : {0, 1, 2}) {
    const std::vector<double> list = {0.5, 0.25, 0.75, 0.125};
    std::vector<R> r(3000, R(99)), want = r;
    Stream plain = player_stream(list, failing);
    ASSERT_EQ(Entries<R>::gaussian(0, plain, 3000, want.data(), 0, 1), kFailure);
    Stream s = player_stream(list, failing);
    ASSERT_EQ(Entries<R>::vectors(0, s, 1000, r.data(), 3, 0, f.mean.data(), f.full.data()),
              kFailure);
    EXPECT_EQ(r, want);
  }
  Stream s(RUA_BRNG_MT19937, {5});
  R r = 99;
  EXPECT_EQ(Entries<R>::vectors(1, s, 0, &r, 3, 0, f.mean.data(), f.full.data()), 0);
  EXPECT_EQ(r, R(99));
}

}  // namespace
