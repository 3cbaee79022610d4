// Calls of vector kernels, by table slot, from code that has its own idea of denormals.
#pragma once
#include "ork/zem.h"

namespace ork {

// Denormal handling off while it lives; the caller's mode afterwards. Accuracy and error mode
// of the caller stay as they are: a slot has its accuracy, and events go to the caller. A mode that
// has it off is not touched: a field of 0 could not be set back.
class VectorMode {
 public:
  VectorMode() : old_(ork_zem_kernel_GetMode()) {
    if (is_on()) ork_zem_kernel_SetMode(ORK_ZEM_DENORMAL_KEEP);
  }
  ~VectorMode() {
    if (is_on()) ork_zem_kernel_SetMode(old_);
  }
  VectorMode(const VectorMode&) = delete;

 private:
  uint32_t old_;
  bool is_on() const { return (old_ & ORK_ZEM_DENORMAL_MASK) == ORK_ZEM_DENORMAL_ZERO; }
};

// One element through a kernel of one argument.
template <class R>
inline R vector_call(void (*kernel)(int n, const R* a, R* r), R x) {
  const VectorMode mode;
  R y;
  kernel(1, &x, &y);
  return y;
}

}  // namespace ork
