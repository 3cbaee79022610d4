// Splines without callbacks: construction by the kind that the task names, values, integrals.
#include "ork/front.h"
#include "outer/export.hpp"

namespace {

// By type, for order 4.
constexpr int cubic_types = 6;
constexpr ork_df_construct* cubic_d[cubic_types] = {
    ork_df_kernel_dDFDefaultCubicSpline1D, nullptr,
    ork_df_kernel_dDFNaturalCubicSpline1D, ork_df_kernel_dDFHermiteCubicSpline1D,
    ork_df_kernel_dDFBesselCubicSpline1D,  ork_df_kernel_dDFAkimaCubicSpline1D};
constexpr ork_df_construct* cubic_s[cubic_types] = {
    ork_df_kernel_sDFDefaultCubicSpline1D, nullptr,
    ork_df_kernel_sDFNaturalCubicSpline1D, ork_df_kernel_sDFHermiteCubicSpline1D,
    ork_df_kernel_sDFBesselCubicSpline1D,  ork_df_kernel_sDFAkimaCubicSpline1D};

int construct(ork_df_task* task, ork_df_construct* linear, ork_df_construct* quadratic,
              ork_df_construct* const* cubic, const ork_threader* threader) {
  int64_t order = 0, type = 0;  // the query writes 32 or 64 bits
  if (const int code = ork_df_kernel_iQueryVal(task, ORK_DF_VAL_ORDER, &order)) return code;
  if (const int code = ork_df_kernel_iQueryVal(task, ORK_DF_VAL_TYPE, &type)) return code;
  ork_df_construct* entry = nullptr;
  if (order == 2) entry = linear;
  if (order == 3 && type < 2) entry = quadratic;
  if (order == 4 && type < cubic_types) entry = cubic[type];
  return entry != nullptr ? entry(task, 0, 0, threader) : ORK_DF_BAD_TYPE;
}

template <class... Array>
int check(const ork_df_task* task, int64_t n, const void* result, Array... in) {
  if (task == nullptr) return ORK_DF_NULL_TASK;
  if (n < 0 || n > INT32_MAX) return ORK_DF_BAD_NX;
  if (n == 0) return ORK_DF_OK;
  if (((in == nullptr) || ...)) return ORK_DF_BAD_X;
  return result != nullptr ? ORK_DF_OK : ORK_DF_NULL_RESULT;
}

const ork_threader* or_serial(const ork_threader* threader) {
  return threader != nullptr ? threader : &ork_threader_serial;
}

template <class T, class Kernel>
int interpolate(Kernel kernel, const ork_df_task* task, int64_t n, const T* site, int64_t hint,
                T* result, const ork_threader* threader) {
  if (const int code = check(task, n, result, site)) return code;
  return kernel(task, 0, 0, n, site, hint, 0, nullptr, nullptr, result, ORK_DF_RESULT_ROWS, nullptr,
                nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
                or_serial(threader));
}

template <class T, class Kernel>
int integrate(Kernel kernel, const ork_df_task* task, int64_t n, const T* left, const T* right,
              T* result, const ork_threader* threader) {
  if (const int code = check(task, n, result, left, right)) return code;
  return kernel(task, 0, n, left, 0, right, 0, nullptr, nullptr, result, ORK_DF_RESULT_ROWS,
                nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
                or_serial(threader));
}

}  // namespace

ORK_OUTER int ork_dDFConstruct(ork_df_task* task, const ork_threader* threader) {
  return construct(task, ork_df_kernel_dDFLinearSpline1D, ork_df_kernel_dDFQuadraticSpline1D,
                   cubic_d, or_serial(threader));
}
ORK_OUTER int ork_sDFConstruct(ork_df_task* task, const ork_threader* threader) {
  return construct(task, ork_df_kernel_sDFLinearSpline1D, ork_df_kernel_sDFQuadraticSpline1D,
                   cubic_s, or_serial(threader));
}

ORK_OUTER int ork_dDFInterpolate(const ork_df_task* task, int64_t nsite, const double* site,
                                 int64_t siteHint, double* result, const ork_threader* threader) {
  return interpolate(ork_df_kernel_dDFInterpolate1D, task, nsite, site, siteHint, result, threader);
}
ORK_OUTER int ork_sDFInterpolate(const ork_df_task* task, int64_t nsite, const float* site,
                                 int64_t siteHint, float* result, const ork_threader* threader) {
  return interpolate(ork_df_kernel_sDFInterpolate1D, task, nsite, site, siteHint, result, threader);
}

ORK_OUTER int ork_dDFIntegrate(const ork_df_task* task, int64_t nlim, const double* left,
                               const double* right, double* result, const ork_threader* threader) {
  return integrate(ork_df_kernel_dDFIntegrate1D, task, nlim, left, right, result, threader);
}
ORK_OUTER int ork_sDFIntegrate(const ork_df_task* task, int64_t nlim, const float* left,
                               const float* right, float* result, const ork_threader* threader) {
  return integrate(ork_df_kernel_sDFIntegrate1D, task, nlim, left, right, result, threader);
}
