#include "rua_kernel/ss/moments/sums.hpp"

namespace ork::ss {
template const Kernel<double> Kernels<double>::fast[2][2][kIndices];
template const Kernel<double> Kernels<double>::two_pass[2][2][kIndices];
}  // namespace ork::ss
