#pragma once
// The processor's floating-point control words and vector-math state, as tests set and check
// them.
#include <xmmintrin.h>

#include "ork/zem.h"

inline unsigned short x87_control() {
  unsigned short w;
  asm volatile("fnstcw %0" : "=m"(w));
  return w;
}
inline void set_x87_control(unsigned short w) { asm volatile("fldcw %0" : : "m"(w)); }

// MXCSR without its six flags.
inline unsigned mxcsr_control() { return _mm_getcsr() & ~0x3Fu; }

// Puts mode, callback, status, vector pointer and control words back at the end of a test.
struct StateGuard {
  unsigned mxcsr = _mm_getcsr();
  unsigned short x87 = x87_control();
  ~StateGuard() {
    _mm_setcsr(mxcsr);
    set_x87_control(x87);
    ork_zem_kernel_ClearErrorCallBack();
    ork_zem_kernel_SetMode(ORK_ZEM_DEFAULT_MODE | ORK_ZEM_DENORMAL_KEEP);
    ork_zem_kernel_SetInterfInputVectorPointer(nullptr);
    ork_zem_kernel_ClearErrStatus();
  }
};
