// The mode word, its lazy initialisation, and the setters and getters of the thread's state.
#include "frame/mode.hpp"

#include <stdlib.h>
#include <string.h>

#include "base/export.hpp"

namespace ork {
__thread ThreadState thread_state;
}
using ork::thread_state;

namespace {
constexpr char variable_name[] = "ORK_ZEM_MODE";
constexpr char prefix[] = "ZEM_";
constexpr int prefix_length = 4;
// A token must end before this offset of the value.
constexpr int value_limit = 256;
}  // namespace

extern "C" __attribute__((visibility("default"))) const ork_zem_mode_token mapModeS_N[13] = {
    {"LA", 2, 0x1, 0},
    {"HA", 2, 0x2, 0},
    {"EP", 2, 0x3, 0},
    {"DEFAULT_PRECISION", 17, 0x0, 0},
    {"FLOAT_CONSISTENT", 16, 0x10, 0},
    {"DOUBLE_CONSISTEN", 16, 0x20, 0},
    {"RESTORE", 7, 0x30, 0},
    {"ERRMODE_IGNORE", 14, 0x100, 0},
    {"ERRMODE_ERRNO", 13, 0x200, 0},
    {"ERRMODE_STDERR", 14, 0x400, 0},
    {"ERRMODE_EXCEPT", 14, 0x800, 0},
    {"ERRMODE_CALLBACK", 16, 0x1000, 0},
    {"ERRMODE_DEFAULT", 15, 0x1A00, 0},
};

namespace {

// The first row whose token the text begins with, or null. `offset` is the prefix's place in
// the whole value.
const ork_zem_mode_token* match_token(const char* text, int offset) {
  for (const ork_zem_mode_token& row : mapModeS_N)
    if (row.length + offset + prefix_length < value_limit &&
        strncmp(row.token, text, (size_t)row.length) == 0)
      return &row;
  return nullptr;
}

}  // namespace

// One bad token discards the whole value: the result is all or nothing.
ORK_EXPORT int64_t ork_zem_kernel_ReadEnvVarMode(void) {
  const char* value = getenv(variable_name);
  if (value == nullptr) return -1;
  uint32_t low = 0, high = 0;
  for (int p = 0; value[p] == 'Z';) {
    if (strncmp(value + p, prefix, prefix_length) != 0) return -1;
    const ork_zem_mode_token* row = match_token(value + p + prefix_length, p);
    if (row == nullptr) return -1;
    low |= row->low;
    high |= row->high;
    p += prefix_length + row->length;
    const char after = value[p++];
    if (after == '\0') return (int64_t)((uint64_t)high << 32 | low);
    if (after != ',') return -1;
  }
  return -1;
}

// A variable that gives 0 leaves the word uninitialised, to be read again at the next use.
uint32_t ork::init_mode() {
  const int64_t from_environment = ork_zem_kernel_ReadEnvVarMode();
  thread_state.mode =
      from_environment == -1 ? (uint32_t)ORK_ZEM_DEFAULT_MODE : (uint32_t)from_environment;
  return (uint32_t)thread_state.mode;
}

ORK_EXPORT uint32_t ork_zem_kernel_GetMode(void) { return ork::current_mode(); }

ORK_EXPORT uint32_t ork_zem_kernel_SetMode(uint32_t wanted) {
  const uint32_t previous = ork::current_mode();
  uint32_t mode = previous;
  constexpr uint32_t fields[] = {ORK_ZEM_ACCURACY_MASK, ORK_ZEM_ERRMODE_MASK,
                                 ORK_ZEM_DENORMAL_MASK};
  for (const uint32_t field : fields)
    if (wanted & field) mode = (mode & ~field) | (wanted & field);
  thread_state.mode = mode;
  return previous;
}

ORK_EXPORT int ork_zem_kernel_GetTTableIndex(void) {
  return (int)(ork::current_mode() & ORK_ZEM_ACCURACY_MASK) - 1;
}

ORK_EXPORT int ork_zem_kernel_GetTTableIndexM(uint32_t, uint32_t mode) {
  return (int)(mode & ORK_ZEM_ACCURACY_MASK) - 1;
}

ORK_EXPORT int ork_zem_kernel_GetErrStatus(void) { return thread_state.status; }

ORK_EXPORT int ork_zem_kernel_SetErrStatus(int status) {
  const int previous = thread_state.status;
  thread_state.status = status;
  return previous;
}

ORK_EXPORT int ork_zem_kernel_ClearErrStatus(void) { return ork_zem_kernel_SetErrStatus(0); }

ORK_EXPORT ork_error_callback ork_zem_kernel_GetErrorCallBack(void) {
  return thread_state.callback;
}

// The mode's callback bit follows the pointer; where it is the field's only bit, clearing
// leaves it set, as a field cannot become 0. The dispatch tests the pointer as well.
ORK_EXPORT ork_error_callback ork_zem_kernel_SetErrorCallBack(ork_error_callback callback) {
  const ork_error_callback previous = thread_state.callback;
  const uint32_t mode = ork::current_mode();
  thread_state.callback = callback;
  const uint32_t bit = ORK_ZEM_ERRMODE_CALLBACK;
  ork_zem_kernel_SetMode(callback != nullptr ? mode | bit : mode & ~bit);
  return previous;
}

ORK_EXPORT ork_error_callback ork_zem_kernel_ClearErrorCallBack(void) {
  return ork_zem_kernel_SetErrorCallBack(nullptr);
}

ORK_EXPORT const void* ork_zem_kernel_SetInterfInputVectorPointer(const void* start) {
  thread_state.input = start;
  return start;
}

// The processor level is fixed when the library is built.
ORK_EXPORT int dll_cpu_version(void) { return 0; }

// The public layer's names for the same functions.
ORK_EXPORT uint32_t _zemGetMode(void) { return ork_zem_kernel_GetMode(); }
ORK_EXPORT uint32_t _zemSetMode(uint32_t mode) { return ork_zem_kernel_SetMode(mode); }
ORK_EXPORT int _zemGetErrStatus(void) { return ork_zem_kernel_GetErrStatus(); }
ORK_EXPORT int _zemSetErrStatus(int status) { return ork_zem_kernel_SetErrStatus(status); }
ORK_EXPORT int _zemClearErrStatus(void) { return ork_zem_kernel_ClearErrStatus(); }
ORK_EXPORT ork_error_callback _zemGetErrorCallBack(void) {
  return ork_zem_kernel_GetErrorCallBack();
}
ORK_EXPORT ork_error_callback _zemSetErrorCallBack(ork_error_callback callback) {
  return ork_zem_kernel_SetErrorCallBack(callback);
}
ORK_EXPORT ork_error_callback _zemClearErrorCallBack(void) {
  return ork_zem_kernel_ClearErrorCallBack();
}
ORK_EXPORT const void* _zemSetInterfInputVectorPointer(const void* start) {
  return ork_zem_kernel_SetInterfInputVectorPointer(start);
}
