#pragma once
// Guards for the processor's floating-point control words. The asm statements clobber
// memory: a kernel's arithmetic begins with its loads and ends in its stores, so neither moves
// across the change or the restore.
#include "base/vec.hpp"

namespace ork {

// Rounding control (0x6000), flush-to-zero (0x8000) and denormals-are-zero (0x0040).
constexpr unsigned mxcsr_bits = 0xE040;
constexpr unsigned mxcsr_flush = 0x8040;
// Precision (0x300) and rounding (0xC00) control of the x87 unit.
constexpr unsigned x87_bits = 0xF00;
constexpr unsigned x87_extended = 0x300;
constexpr unsigned x87_double = 0x200;

ORK_INLINE unsigned get_mxcsr() {
  unsigned w;
  asm volatile("stmxcsr %0" : "=m"(w) : : "memory");
  return w;
}
ORK_INLINE void set_mxcsr(unsigned w) { asm volatile("ldmxcsr %0" : : "m"(w) : "memory"); }
ORK_INLINE unsigned short get_x87() {
  unsigned short w;
  asm volatile("fnstcw %0" : "=m"(w) : : "memory");
  return w;
}
ORK_INLINE void set_x87(unsigned short w) { asm volatile("fldcw %0" : : "m"(w) : "memory"); }

// Writes MXCSR only where the wanted bits differ. The restore is of the whole word, flags
// included.
struct MxcsrGuard {
  unsigned saved;
  bool changed;
  __attribute__((always_inline)) explicit MxcsrGuard(unsigned wanted) : saved(get_mxcsr()) {
    changed = (saved & mxcsr_bits) != wanted;
    if (__builtin_expect(changed, 0)) set_mxcsr((saved & ~mxcsr_bits) | wanted);
  }
  __attribute__((always_inline)) ~MxcsrGuard() {
    if (__builtin_expect(changed, 0)) set_mxcsr(saved);
  }
  MxcsrGuard(const MxcsrGuard&) = delete;
};

// The same for the x87 control word. X87Guard<0> does nothing.
template <unsigned wanted>
struct X87Guard {
  unsigned short saved;
  bool changed;
  __attribute__((always_inline)) X87Guard() : saved(get_x87()) {
    changed = (saved & x87_bits) != wanted;
    if (__builtin_expect(changed, 0)) set_x87((unsigned short)((saved & ~x87_bits) | wanted));
  }
  __attribute__((always_inline)) ~X87Guard() {
    if (__builtin_expect(changed, 0)) set_x87(saved);
  }
  X87Guard(const X87Guard&) = delete;
};
template <>
struct X87Guard<0> {
  __attribute__((always_inline)) X87Guard() {}
};

}  // namespace ork
