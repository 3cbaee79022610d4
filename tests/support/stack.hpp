#pragma once
// Calls from a stack that is aligned to 4 bytes only.
#include <cstdint>
#include <cstring>
#include <type_traits>
#include <vector>

// f(arguments...) with the stack pointer `shift` (0, 4, 8 or 12) below a multiple of 16 where the
// arguments begin to be pushed.
template <class Result, class... P, class... A>
Result call_shifted(int shift, Result (*f)(P...), A... arguments) {
  std::vector<uint32_t> words;
  const auto put = [&words](auto value) {
    uint32_t w[(sizeof value + 3) / 4] = {};
    memcpy(w, &value, sizeof value);
    words.insert(words.end(), w, w + sizeof w / 4);
  };
  (put(static_cast<P>(arguments)), ...);
  const uint32_t* top = words.data() + words.size() - 1;
  uint32_t left = uint32_t(words.size());
  void* function = reinterpret_cast<void*>(f);
#define ORK_CALL            \
  "mov %%esp, %%esi\n\t"    \
  "and $-16, %%esp\n\t"     \
  "sub %[shift], %%esp\n\t" \
  "0: push (%[top])\n\t"    \
  "sub $4, %[top]\n\t"      \
  "dec %[left]\n\t"         \
  "jnz 0b\n\t"              \
  "call *%[function]\n\t"
#define ORK_REST                      \
  [top] "+d"(top), [left] "+c"(left), \
      [function] "+a"(function)       \
      : [shift] "D"(shift)            \
      : "esi", "memory", "cc", "xmm0", "xmm1", "xmm2", "xmm3", "xmm4", "xmm5", "xmm6", "xmm7"
  if constexpr (std::is_floating_point_v<Result>) {
    double result;
    asm volatile(ORK_CALL "mov %%esi, %%esp\n\tfstpl %[result]" : [result] "=m"(result), ORK_REST);
    return Result(result);
  } else {
    asm volatile(ORK_CALL "mov %%esi, %%esp" : ORK_REST);
    if constexpr (!std::is_void_v<Result>) return Result(reinterpret_cast<intptr_t>(function));
  }
#undef ORK_CALL
#undef ORK_REST
}
