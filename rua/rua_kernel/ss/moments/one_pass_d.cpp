#include "rua_kernel/ss/moments/one_pass.hpp"

namespace ork::ss {
template const Kernel<double> Kernels<double>::one_pass[2][2][2][kIndices];
}
