// A short tour: kernels through stubs and tables, modes, an error event with a callback.
#include <chrono>
#include <cstdio>
#include <vector>

#include "ork/zem.h"
#include "ork/zem_kernels.h"

namespace {

int32_t on_error(ork_error_record* e) {
  std::printf("  callback: %.*s, status %d, element %d: %g gave %g, replaced by 0\n", int(e->name_length),
              e->name, int(e->status), int(e->index), double(e->a1), double(e->r1));
  e->r1 = 0;
  return 0;
}

template <class F> double nanoseconds_each(int n, F f) {
  f();
  const auto start = std::chrono::steady_clock::now();
  for (int i = 0; i < 100; ++i) f();
  return std::chrono::duration<double, std::nano>(std::chrono::steady_clock::now() - start).count() / 100 / n;
}

}  // namespace

int main() {
  constexpr int n = 4096;
  std::vector<double> x(n), y(n), r(n);
  for (int i = 0; i < n; ++i) x[size_t(i)] = 0.001 * i, y[size_t(i)] = 2 - 0.0005 * i;

  std::printf("Kernels by entry stub, %d doubles:\n", n);
  std::printf("  add      %5.2f ns an element\n", nanoseconds_each(n, [&] { _zemdAdd(n, x.data(), y.data(), r.data()); }));
  std::printf("  square   %5.2f ns an element\n", nanoseconds_each(n, [&] { _zemdSqr(n, x.data(), r.data()); }));

  std::printf("Kernels by table slot, where the table has them:\n");
  const struct { const char* name; const ork_d_unary* table; const float* costs; } functions[] = {
      {"exp", ork_zem_kernel_dExp_ttab, ork_zem_kernel_dExp_ctab},
      {"ln", ork_zem_kernel_dLn_ttab, ork_zem_kernel_dLn_ctab},
      {"sin", ork_zem_kernel_dSin_ttab, ork_zem_kernel_dSin_ctab},
      {"sqrt", ork_zem_kernel_dSqrt_ttab, ork_zem_kernel_dSqrt_ctab}};
  const char* levels[] = {"LA", "HA", "EP"};
  for (const auto& f : functions)
    for (int level = 0; level < 3; ++level)
      if (f.table[level])
        std::printf("  %-4s %s  %5.2f ns an element (relative cost %.2f), %s(1.5) = %.17g\n", f.name, levels[level],
                    nanoseconds_each(n, [&] { f.table[level](n, y.data(), r.data()); }), double(f.costs[level]), f.name,
                    (f.table[level](1, std::vector<double>{1.5}.data(), r.data()), r[0]));

  std::printf("Mode word of this thread: 0x%X; an error event:\n", unsigned(ork_zem_kernel_GetMode()));
  ork_zem_kernel_SetErrorCallBack(on_error);
  x[7] = -1, r[7] = 42;
  ork_zem_kernel_dError(ZEM_STATUS_DOMAIN, 7, x.data(), x.data(), r.data(), r.data(), "vdTour");
  std::printf("  element 7 is now %g, the thread's status %d\n", r[7], ork_zem_kernel_GetErrStatus());
  ork_zem_kernel_ClearErrorCallBack();
  return 0;
}
