#pragma once
// The dense layer's routines by element type: Dense<R>::gemm and so on. Arguments and storage
// are those of ork/dense.h: matrices by columns, so a triangle of a matrix that stands row
// after row is the other one there.
#include "ork/dense.h"

namespace ork {

template <class R>
struct Dense;

template <>
struct Dense<double> {
  static constexpr auto gemm = ork_blas_dgemm;
  static constexpr auto gemv = ork_blas_dgemv;
  static constexpr auto syr = ork_blas_dsyr;
  static constexpr auto syrk = ork_blas_dsyrk;
  static constexpr auto symm = ork_blas_xdsymm;
  static constexpr auto trmm = ork_blas_dtrmm;
  static constexpr auto trmm_small = ork_blas_xdtrmm_4zem;
  static constexpr auto trmm_large = ork_blas4zem_dtrmm;
  static constexpr auto ptrmm = ork_blas4zem_dptrmm;
  static constexpr auto potrf = ork_lapack_dpotrf;
  static constexpr auto potri = ork_lapack_dpotri;
  static constexpr auto trtri = ork_lapack_dtrtri;
  static constexpr auto syev = ork_lapack_dsyev;
  static constexpr auto spevd = ork_lapack_dspevd;
  static constexpr auto dtsvb = ddtsvb_4dfl;
  static constexpr auto dttrfb = ddttrfb_4dfl;
  static constexpr auto dttrsb = ddttrsb_4dfl;
};

template <>
struct Dense<float> {
  static constexpr auto gemm = ork_blas_sgemm;
  static constexpr auto gemv = ork_blas_sgemv;
  static constexpr auto syr = ork_blas_ssyr;
  static constexpr auto syrk = ork_blas_ssyrk;
  static constexpr auto symm = ork_blas_xssymm;
  static constexpr auto trmm = ork_blas_strmm;
  static constexpr auto trmm_small = ork_blas_xstrmm_4zem;
  static constexpr auto trmm_large = ork_blas4zem_strmm;
  static constexpr auto ptrmm = ork_blas4zem_sptrmm;
  static constexpr auto potrf = ork_lapack_spotrf;
  static constexpr auto potri = ork_lapack_spotri;
  static constexpr auto trtri = ork_lapack_strtri;
  static constexpr auto syev = ork_lapack_ssyev;
  static constexpr auto spevd = ork_lapack_sspevd;
  static constexpr auto dtsvb = sdtsvb_4dfl;
  static constexpr auto dttrfb = sdttrfb_4dfl;
  static constexpr auto dttrsb = sdttrsb_4dfl;
};

}  // namespace ork
