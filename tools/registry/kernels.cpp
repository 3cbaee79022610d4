#include "registry/kernels.hpp"

#include <cstring>
#include <set>

const std::vector<Slot> slots = {
#define SLOT(type, function, form, la, ha, ep)                                   \
  {#type[0],                                                                     \
   #function,                                                                    \
   Form::form,                                                                   \
   {la, ha, ep},                                                                 \
   reinterpret_cast<const void* const*>(ork_zem_kernel_##type##function##_ttab), \
   ork_zem_kernel_##type##function##_ctab},
#include "registry/slots.inc"
#undef SLOT
};

template <class T>
void Call<T>::operator()(int n, const T* a, const T* b, T* r, T* r2) const {
  void* kernel = const_cast<void*>(slot->table[level]);
  switch (slot->form) {
    case Form::unary:
    case Form::to_real:
    case Form::from_real:
      return reinterpret_cast<void (*)(int, const T*, T*)>(kernel)(n, a, r);
    case Form::binary:
      return reinterpret_cast<void (*)(int, const T*, const T*, T*)>(kernel)(n, a, b, r);
    case Form::scalar: {
      if (complex()) {
        struct {
          T re, im;
        } pair;
        memcpy(&pair, b, sizeof pair);
        return reinterpret_cast<void (*)(int, const T*, decltype(pair), T*)>(kernel)(n, a, pair, r);
      }
      T second;
      memcpy(&second, b, sizeof second);  // b may stand at any address
      return reinterpret_cast<void (*)(int, const T*, T, T*)>(kernel)(n, a, second, r);
    }
    case Form::two:
      return reinterpret_cast<void (*)(int, const T*, T*, T*)>(kernel)(n, a, r, r2);
    case Form::linear:
      return reinterpret_cast<void (*)(int, const T*, const T*, T, T, T, T, T*)>(kernel)(
          n, a, b, T(linear_scalars[0]), T(linear_scalars[1]), T(linear_scalars[2]),
          T(linear_scalars[3]), r);
    default:
      __builtin_trap();
  }
}

template <class T>
static std::vector<Call<T>> kernels_of(char type) {
  std::vector<Call<T>> calls;
  for (const Slot& slot : slots) {
    if (slot.type != type || slot.form >= Form::pack_i) continue;
    std::set<const void*> seen = {nullptr};
    for (int level = 0; level < 3; ++level)
      if (seen.insert(slot.table[level]).second) calls.push_back({&slot, level});
  }
  return calls;
}
template <class T>
std::vector<Call<T>> elementwise_kernels() {
  return kernels_of<T>(sizeof(T) == 8 ? 'd' : 's');
}
template <class T>
std::vector<Call<T>> complex_kernels() {
  return kernels_of<T>(sizeof(T) == 8 ? 'z' : 'c');
}

template struct Call<double>;
template struct Call<float>;
template std::vector<Call<double>> elementwise_kernels<double>();
template std::vector<Call<float>> elementwise_kernels<float>();
template std::vector<Call<double>> complex_kernels<double>();
template std::vector<Call<float>> complex_kernels<float>();
