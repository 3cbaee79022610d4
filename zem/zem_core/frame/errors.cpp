// Error dispatch: from a special element's status to errno, message, exception and callback.
#include <errno.h>
#include <stddef.h>
#include <string.h>

#include "base/export.hpp"
#include "base/vec.hpp"
#include "frame/mode.hpp"
#include "ork/serv.h"

using ork::read_one;
using ork::thread_state;
using ork::write_one;

namespace {

static_assert(offsetof(ork_error_record, name) == 40);
static_assert(offsetof(ork_error_record, a1_im) == 108);
static_assert(sizeof(ork_error_record) == 140);

constexpr int name_limit = sizeof ork_error_record{}.name;

int copy_name(char* to, const char* from) {
  const int length = (int)strnlen(from, name_limit);
  memcpy(to, from, (size_t)length);
  if (length < name_limit) to[length] = '\0';
  return length;
}

int errno_of(int status) {
  switch (status) {
    case ZEM_STATUS_BAD_ACCESS:
      return EACCES;
    case ZEM_STATUS_BAD_ARGUMENT:
      return EINVAL;
    case ZEM_STATUS_NONE:
      return 0;
    case ZEM_STATUS_DOMAIN:
      return EDOM;
    case ZEM_STATUS_SINGULARITY:
    case ZEM_STATUS_OVERFLOW:
    case ZEM_STATUS_UNDERFLOW:
      return ERANGE;
    default:
      return EFAULT;
  }
}

void print_report(const ork_error_record& e) {
  // The name may fill its field; the printer takes a terminated string.
  char name[name_limit + 1] = {};
  memcpy(name, e.name, (size_t)e.name_length);
  switch (e.status) {
    case ZEM_STATUS_BAD_ACCESS:
      ork_serv_print(1, 736, 1, name);
      return;
    case ZEM_STATUS_BAD_ARGUMENT:
      ork_serv_print(1, 735, 2, name, e.index);
      return;
    case ZEM_STATUS_NONE:
      return;
    case ZEM_STATUS_DOMAIN:
    case ZEM_STATUS_SINGULARITY:
    case ZEM_STATUS_OVERFLOW:
    case ZEM_STATUS_UNDERFLOW:
      ork_serv_print(1, 736 + e.status, 1, name);
      break;
    default:
      ork_serv_print(1, 741, 1, name);
  }
  // A NaN is neither equal nor zero, so it counts as a second argument of its own.
  const bool two_arguments = !(e.a2 == e.a1 || e.a2 == 0.0);
  const bool two_results = !(e.r2 == e.r1 || e.r2 == 0.0);
  int message = two_arguments ? (two_results ? 750 : 747) : (two_results ? 744 : 742);
  ork_serv_print(1, message++, 2, e.index, e.a1);
  if (two_arguments) ork_serv_print(1, message++, 2, e.index, e.a2);
  ork_serv_print(1, message++, 2, e.index, e.r1);
  if (two_results) ork_serv_print(1, message++, 2, e.index, e.r2);
}

// Smallest normal plus an ulp, largest finite, zero, one.
alignas(16) constexpr uint64_t flag_operands[4] = {0x0010000000000001, 0x7FEFFFFFFFFFFFFF, 0,
                                                   0x3FF0000000000000};

// One x87 operation, stored as a double: the flag is raised, or the trap taken, here.
void raise_exception(int status) {
  double result;
  switch (status) {
    case ZEM_STATUS_DOMAIN:
      asm volatile("fldl %1\n\tfdivl %1\n\tfstpl %0\n\tfwait"
                   : "=m"(result)
                   : "m"(flag_operands[2]));
      break;
    case ZEM_STATUS_SINGULARITY:
      asm volatile("fldl %1\n\tfdivl %2\n\tfstpl %0\n\tfwait"
                   : "=m"(result)
                   : "m"(flag_operands[3]), "m"(flag_operands[2]));
      break;
    case ZEM_STATUS_OVERFLOW:
      asm volatile("fldl %1\n\tfmull %1\n\tfstpl %0\n\tfwait"
                   : "=m"(result)
                   : "m"(flag_operands[1]));
      break;
    case ZEM_STATUS_UNDERFLOW:
      asm volatile("fldl %1\n\tfmull %1\n\tfstpl %0\n\tfwait"
                   : "=m"(result)
                   : "m"(flag_operands[0]));
      break;
    default:
      break;
  }
}

void report_as_mode_says(const ork_error_record& e) {
  const uint32_t mode = ork::current_mode();
  if (mode & ORK_ZEM_ERRMODE_ERRNO) errno = errno_of(e.status);
  if (mode & ORK_ZEM_ERRMODE_STDERR) print_report(e);
  if (mode & ORK_ZEM_ERRMODE_EXCEPT) raise_exception(e.status);
}

// parts: 1 for real elements, 2 for complex ones. A packed record's fields cannot be bound to
// references, hence the plain assignments.
template <class T, int parts>
void dispatch(int status, int index, const T* a, const T* b, T* r, T* r2, const char* name) {
  constexpr int element_shift = __builtin_ctz(parts * sizeof(T));
  constexpr uint32_t callback_bits = 0xF000, action_bits = 0x0F00;

  thread_state.status = status;
  if ((ork::current_mode() & ORK_ZEM_ERRMODE_MASK) == ORK_ZEM_ERRMODE_IGNORE) return;

  ork_error_record e;
  e.status = status;
  e.index = index;
  if (const void* start = thread_state.input)
    e.index += (int)((intptr_t)a - (intptr_t)start) >> element_shift;
  e.name_length = copy_name(e.name, name);

  const bool has_element = status != ZEM_STATUS_BAD_ARGUMENT && status != ZEM_STATUS_BAD_ACCESS;
  const int i = index * parts;
  if (has_element) {
    e.a1 = read_one(a + i);
    e.a2 = read_one(b + i);
    e.r1 = read_one(r + i);
    e.r2 = read_one(r2 + i);
    if constexpr (parts == 2) {
      e.a1_im = read_one(a + i + 1);
      e.a2_im = read_one(b + i + 1);
      e.r1_im = read_one(r + i + 1);
      e.r2_im = read_one(r2 + i + 1);
    }
  }

  // The mode is read afresh: a callback that changes it affects its own event.
  const ork_error_callback callback = thread_state.callback;
  if ((ork::current_mode() & callback_bits) && callback != nullptr)
    if (callback(&e) != 0) return;
  if (ork::current_mode() & action_bits) report_as_mode_says(e);

  if (has_element) {
    // The first result last: it stands where both are one array.
    write_one(r2 + i, (T)e.r2);
    if constexpr (parts == 2) write_one(r2 + i + 1, (T)e.r2_im);
    write_one(r + i, (T)e.r1);
    if constexpr (parts == 2) write_one(r + i + 1, (T)e.r1_im);
  }
}

}  // namespace

ORK_EXPORT void ork_zem_kernel_sError(int status, int index, const float* a, const float* b,
                                      float* r, float* r2, const char* name) {
  dispatch<float, 1>(status, index, a, b, r, r2, name);
}
ORK_EXPORT void ork_zem_kernel_dError(int status, int index, const double* a, const double* b,
                                      double* r, double* r2, const char* name) {
  dispatch<double, 1>(status, index, a, b, r, r2, name);
}
ORK_EXPORT void ork_zem_kernel_cError(int status, int index, const float* a, const float* b,
                                      float* r, float* r2, const char* name) {
  dispatch<float, 2>(status, index, a, b, r, r2, name);
}
ORK_EXPORT void ork_zem_kernel_zError(int status, int index, const double* a, const double* b,
                                      double* r, double* r2, const char* name) {
  dispatch<double, 2>(status, index, a, b, r, r2, name);
}
