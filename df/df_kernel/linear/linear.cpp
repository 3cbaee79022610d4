// Linear spline: its kernels, their dispatch table and the construction entries.
#include "linear/linear.hpp"

namespace ork::df {

using LinearKernel = int(const Task*, const ork_threader*);

template <class T>
inline constexpr LinearKernel* _v1DLSLinearYColsNoUniformGrid =
    Linear<T, YCols, NoUniformGrid>::build;
template <class T>
inline constexpr LinearKernel* _v1DLSLinearYColsUniformGrid = Linear<T, YCols, UniformGrid>::build;
template <class T>
inline constexpr LinearKernel* _v1DLSLinearYRowsNoUniformGrid =
    Linear<T, YRows, NoUniformGrid>::build;
template <class T>
inline constexpr LinearKernel* _v1DLSLinearYRowsUniformGrid = Linear<T, YRows, UniformGrid>::build;

template <class T>
inline constexpr LinearKernel* linear_dispatch[] = {
    _v1DLSLinearYColsNoUniformGrid<T>,
    _v1DLSLinearYColsUniformGrid<T>,
    _v1DLSLinearYRowsNoUniformGrid<T>,
    _v1DLSLinearYRowsUniformGrid<T>,
};

template <class T>
int construct_linear(const Task* task, int64_t method, const ork_threader* threader) {
  if (task == nullptr) return ORK_DF_NULL_TASK;
  if (method != 0) return ORK_DF_BAD_METHOD;
  if (const int code = check_shape(task, 2)) return code;
  if (const int code = check_arrays(task)) return code;
  return linear_dispatch<T>[dispatch_block(task)](task, threader);
}

}  // namespace ork::df

ORK_EXPORT int ork_df_kernel_dDFLinearSpline1D(ork_df_task* task, int64_t, int64_t method,
                                               const ork_threader* threader) {
  return ork::df::construct_linear<double>(task, method, threader);
}
ORK_EXPORT int ork_df_kernel_sDFLinearSpline1D(ork_df_task* task, int64_t, int64_t method,
                                               const ork_threader* threader) {
  return ork::df::construct_linear<float>(task, method, threader);
}
