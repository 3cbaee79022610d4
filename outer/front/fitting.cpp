// Splines without callbacks: construction by the kind that the task names, values, derivatives,
// cells, integrals.
#include "ork/front.h"
#include "outer/export.hpp"
#include "outer/front/splines.hpp"

namespace {

using ork::front::can_hold;
using ork::front::check_task;

constexpr int cubic_types = 6;

// The constructions of a precision.
struct Constructions {
  ork_df_construct *linear, *quadratic, *cubic[cubic_types];  // cubic: by type, for order 4
};
constexpr Constructions in_double = {
    ork_df_kernel_dDFLinearSpline1D,
    ork_df_kernel_dDFQuadraticSpline1D,
    {ork_df_kernel_dDFDefaultCubicSpline1D, nullptr, ork_df_kernel_dDFNaturalCubicSpline1D,
     ork_df_kernel_dDFHermiteCubicSpline1D, ork_df_kernel_dDFBesselCubicSpline1D,
     ork_df_kernel_dDFAkimaCubicSpline1D}};
constexpr Constructions in_single = {
    ork_df_kernel_sDFLinearSpline1D,
    ork_df_kernel_sDFQuadraticSpline1D,
    {ork_df_kernel_sDFDefaultCubicSpline1D, nullptr, ork_df_kernel_sDFNaturalCubicSpline1D,
     ork_df_kernel_sDFHermiteCubicSpline1D, ork_df_kernel_sDFBesselCubicSpline1D,
     ork_df_kernel_sDFAkimaCubicSpline1D}};

const ork_threader* or_serial(const ork_threader* threader) {
  return threader != nullptr ? threader : &ork_threader_serial;
}

template <class T>
int construct(ork_df_task* task, const Constructions& by, const ork_threader* threader) {
  if (const int code = check_task<T>(task)) return code;
  const int64_t order = task->splineOrder, type = task->splineType;
  ork_df_construct* entry = nullptr;
  if (order == 2) entry = by.linear;
  if (order == 3 && type < 2) entry = by.quadratic;
  if (order == 4 && type < cubic_types) entry = by.cubic[type];
  return entry != nullptr ? entry(task, 0, 0, or_serial(threader)) : ORK_DF_BAD_TYPE;
}

// `outputs`: values of one function at one site.
template <class T, class... Array>
int check(const ork_df_task* task, int64_t n, int64_t outputs, const T* result, Array... in) {
  if (const int code = check_task<T>(task)) return code;
  if (n < 0 || n > INT32_MAX) return ORK_DF_BAD_NX;
  if (n == 0) return ORK_DF_OK;
  if (((in == nullptr) || ...)) return ORK_DF_BAD_X;
  if (result == nullptr) return ORK_DF_NULL_RESULT;
  return can_hold<T>(n, ork::df::functions(task), outputs) ? ORK_DF_OK : ORK_DF_BAD_NX;
}

bool names_sites(int64_t hint) {
  return hint == 0 || hint == ORK_DF_SITES_SORTED || hint == ORK_DF_SITES_UNIFORM;
}

template <class T, class Kernel>
int interpolate(Kernel kernel, const ork_df_task* task, int64_t n, const T* site, int64_t hint,
                T* result, const ork_threader* threader) {
  if (const int code = check(task, n, 1, result, site)) return code;
  if (!names_sites(hint)) return ORK_DF_BAD_XHINT;
  return kernel(task, 0, 0, n, site, hint, 0, nullptr, nullptr, result, ORK_DF_RESULT_ROWS, nullptr,
                nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
                or_serial(threader));
}

template <class T, class Kernel>
int derive(Kernel kernel, const ork_df_task* task, int64_t n, const T* site, int64_t hint,
           int32_t orders, const int32_t* wanted, T* result, const ork_threader* threader) {
  if (const int code = check_task<T>(task)) return code;
  if (task->widthFlag != 0) return ORK_DF_BAD_TYPE;  // would read flags of 64 bits
  if (orders < 0 || (orders > 0 && wanted == nullptr)) return ORK_DF_BAD_ORDER;
  int count = 0;
  for (int k = 0; k < orders; ++k) {
    if (wanted[k] != 0 && wanted[k] != 1) return ORK_DF_BAD_ORDER;
    count += wanted[k];
  }
  if (const int code = check(task, n, count, result, site)) return code;
  if (!names_sites(hint)) return ORK_DF_BAD_XHINT;
  if (count == 0) return ORK_DF_OK;  // the kernel would give the value
  return kernel(task, 0, 0, n, site, hint, orders, wanted, nullptr, result, ORK_DF_RESULT_ROWS,
                nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
                or_serial(threader));
}

template <class T, class Kernel>
int search(Kernel kernel, const ork_df_task* task, int64_t n, const T* site, int64_t hint,
           int32_t* cell, const ork_threader* threader) {
  if (const int code = check_task<T>(task)) return code;
  if (n < 0 || n > INT32_MAX) return ORK_DF_BAD_NX;
  if (n > 0 && site == nullptr) return ORK_DF_BAD_X;
  if (!names_sites(hint)) return ORK_DF_BAD_XHINT;
  if (n > 0 && cell == nullptr) return ORK_DF_NULL_RESULT;
  if (n == 0) return ORK_DF_OK;
  return kernel(task, 0, n, site, hint, nullptr, cell, nullptr, nullptr, or_serial(threader));
}

template <class T, class Kernel>
int integrate(Kernel kernel, const ork_df_task* task, int64_t n, const T* left, const T* right,
              T* result, const ork_threader* threader) {
  if (const int code = check(task, n, 1, result, left, right)) return code;
  return kernel(task, 0, n, left, 0, right, 0, nullptr, nullptr, result, ORK_DF_RESULT_ROWS,
                nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
                or_serial(threader));
}

}  // namespace

ORK_OUTER int ork_dDFConstruct(ork_df_task* task, const ork_threader* threader) {
  return construct<double>(task, in_double, threader);
}
ORK_OUTER int ork_sDFConstruct(ork_df_task* task, const ork_threader* threader) {
  return construct<float>(task, in_single, threader);
}

ORK_OUTER int ork_dDFInterpolate(const ork_df_task* task, int64_t nsite, const double* site,
                                 int64_t siteHint, double* result, const ork_threader* threader) {
  return interpolate(ork_df_kernel_dDFInterpolate1D, task, nsite, site, siteHint, result, threader);
}
ORK_OUTER int ork_sDFInterpolate(const ork_df_task* task, int64_t nsite, const float* site,
                                 int64_t siteHint, float* result, const ork_threader* threader) {
  return interpolate(ork_df_kernel_sDFInterpolate1D, task, nsite, site, siteHint, result, threader);
}

ORK_OUTER int ork_dDFDerivatives(const ork_df_task* task, int64_t nsite, const double* site,
                                 int64_t siteHint, int32_t orders, const int32_t* wanted,
                                 double* result, const ork_threader* threader) {
  return derive(ork_df_kernel_dDFInterpolate1D, task, nsite, site, siteHint, orders, wanted, result,
                threader);
}
ORK_OUTER int ork_sDFDerivatives(const ork_df_task* task, int64_t nsite, const float* site,
                                 int64_t siteHint, int32_t orders, const int32_t* wanted,
                                 float* result, const ork_threader* threader) {
  return derive(ork_df_kernel_sDFInterpolate1D, task, nsite, site, siteHint, orders, wanted, result,
                threader);
}

ORK_OUTER int ork_dDFSearch(const ork_df_task* task, int64_t nsite, const double* site,
                            int64_t siteHint, int32_t* cell, const ork_threader* threader) {
  return search(ork_df_kernel_dDFSearch1D, task, nsite, site, siteHint, cell, threader);
}
ORK_OUTER int ork_sDFSearch(const ork_df_task* task, int64_t nsite, const float* site,
                            int64_t siteHint, int32_t* cell, const ork_threader* threader) {
  return search(ork_df_kernel_sDFSearch1D, task, nsite, site, siteHint, cell, threader);
}

ORK_OUTER int ork_dDFIntegrate(const ork_df_task* task, int64_t nlim, const double* left,
                               const double* right, double* result, const ork_threader* threader) {
  return integrate(ork_df_kernel_dDFIntegrate1D, task, nlim, left, right, result, threader);
}
ORK_OUTER int ork_sDFIntegrate(const ork_df_task* task, int64_t nlim, const float* left,
                               const float* right, float* result, const ork_threader* threader) {
  return integrate(ork_df_kernel_sDFIntegrate1D, task, nlim, left, right, result, threader);
}
