// What keeps variates finite where a uniform number is an end of its range: the distributions'
// own error callback, which replaces the results of the vector kernels there.
#pragma once
#include "ork/zem.h"

namespace ork::rua {

// Error mode CALLBACK with the given callback while it lives; the thread's own afterwards. The
// callback goes back first: that changes the mode word, which then goes back as a whole.
class CallbackGuard {
 public:
  explicit CallbackGuard(ork_error_callback callback)
      : mode_(ork_zem_kernel_SetMode(ORK_ZEM_ERRMODE_CALLBACK)),
        callback_(ork_zem_kernel_SetErrorCallBack(callback)) {}
  ~CallbackGuard() {
    ork_zem_kernel_SetErrorCallBack(callback_);
    ork_zem_kernel_SetMode(mode_);
  }
  CallbackGuard(const CallbackGuard&) = delete;

 private:
  uint32_t mode_;
  ork_error_callback callback_;
};

inline int32_t replace(ork_error_record* e, double result) {
  e->r1 = e->r2 = result;
  return 0;
}

// The logarithm of the smallest positive number, 2^-1074 or 2^-149, rounded to the type.
template <class R>
inline constexpr double kLeastLn = -744.4400719213812;
template <>
inline constexpr double kLeastLn<float> = -103.2789306640625;

// Every event, or only a pole (the logarithm of 0), gives the least logarithm.
template <class R>
int32_t least_ln(ork_error_record* e) {
  return replace(e, kLeastLn<R>);
}
template <class R>
int32_t least_ln_at_pole(ork_error_record* e) {
  return e->status == ZEM_STATUS_SINGULARITY ? replace(e, kLeastLn<R>) : 0;
}

}  // namespace ork::rua
