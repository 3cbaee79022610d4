// The exported forms of the scalar routines that take an array and an index, and report.
#include "base/export.hpp"
#include "trig/scalar.hpp"

namespace {

using namespace ork::trig;

void report(int status, int index, const double* a, double* r, double* r2, const char* name) {
  if (status != ZEM_STATUS_NONE) ork_zem_kernel_dError(status, index, a, a, r, r2, name);
}
void report(int status, int index, const float* a, float* r, float* r2, const char* name) {
  if (status != ZEM_STATUS_NONE) ork_zem_kernel_sError(status, index, a, a, r, r2, name);
}

template <double (*f)(double), class T>
void element(const T* a, T* r, int index, const char* name) {
  report(scalar<f>(a + index, r + index), index, a, r, r, name);
}
template <class T>
void element_sincos(const T* a, T* r, T* r2, int index, const char* name) {
  report(scalar_sincos(a + index, r + index, r2 + index), index, a, r, r2, name);
}

}  // namespace

ORK_EXPORT void ork_zem_kernel_dSinCos_SC(const double* a, double* r, double* r2, int index,
                                          const char* name) {
  element_sincos(a, r, r2, index, name);
}

#define ONE_RESULT(T, NAME, LEVEL, f)                                               \
  ORK_EXPORT void ork_zem_kernel_##NAME##_SC_##LEVEL(const T* a, T* r, int index) { \
    element<f>(a, r, index, #NAME "_" #LEVEL);                                      \
  }
#define ONE_RESULT_LEVELS(T, NAME, f) \
  ONE_RESULT(T, NAME, HA, f) ONE_RESULT(T, NAME, LA, f) ONE_RESULT(T, NAME, A11, f)
#define ONE_RESULT_TYPES(F)                                                       \
  ORK_EXPORT void ork_zem_kernel_d##F##_SC(const double* a, double* r, int index, \
                                           const char* name) {                    \
    element<_d##F>(a, r, index, name);                                            \
  }                                                                               \
  ONE_RESULT_LEVELS(double, d##F, _d##F) ONE_RESULT_LEVELS(float, s##F, _d##F)
#define TWO_RESULTS(T, NAME, LEVEL)                                                        \
  ORK_EXPORT void ork_zem_kernel_##NAME##_SC_##LEVEL(const T* a, T* r, T* r2, int index) { \
    element_sincos(a, r, r2, index, #NAME "_" #LEVEL);                                     \
  }
#define TWO_RESULTS_LEVELS(T, NAME) \
  TWO_RESULTS(T, NAME, HA) TWO_RESULTS(T, NAME, LA) TWO_RESULTS(T, NAME, A11)

ONE_RESULT_TYPES(Sin)
ONE_RESULT_TYPES(Cos)
ONE_RESULT_TYPES(Tan)
TWO_RESULTS_LEVELS(double, dSinCos)
TWO_RESULTS_LEVELS(float, sSinCos)
