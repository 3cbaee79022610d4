#pragma once
// The per-thread state of the vector kernels.
#include <stdint.h>

#include "ork/zem.h"

namespace ork {

// All zero when a thread starts. A zero mode word is one that is not initialised yet.
struct ThreadState {
  const void* input;
  int32_t status;
  ork_error_callback callback;
  uint64_t mode;
};
extern __thread __attribute__((tls_model("initial-exec"), visibility("hidden")))
ThreadState thread_state;

// Initialises the mode word from the environment, or with the default.
uint32_t init_mode();

// How a kernel reads the mode: a thread-local load and a test.
static inline uint32_t current_mode() {
  const uint64_t mode = thread_state.mode;
  return __builtin_expect(mode != 0, 1) ? (uint32_t)mode : init_mode();
}

// The MXCSR bits that a mode word asks for.
static inline unsigned mxcsr_of_mode(uint32_t mode) {
  return (mode & ORK_ZEM_DENORMAL_MASK) == ORK_ZEM_DENORMAL_ZERO ? 0x8040 : 0;
}

}  // namespace ork
