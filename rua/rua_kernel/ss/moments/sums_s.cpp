#include "rua_kernel/ss/moments/sums.hpp"

namespace ork::ss {
template const Kernel<float> Kernels<float>::fast[2][2][kIndices];
template const Kernel<float> Kernels<float>::two_pass[2][2][kIndices];
}  // namespace ork::ss
