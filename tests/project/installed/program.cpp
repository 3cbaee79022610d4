/* A user's C++ program against the installed headers and libraries. */
#include <ork/serv.h>
#include <ork/threader.h>
#include <ork/zem.h>
#include <ork/zem_kernels.h>

#include <cstdio>

int main() {
  const double a[3] = {1, 2, 3};
  double r[3];
  _zemdSqr(3, a, r);
  void* block = ork_serv_allocate(64, 128);
  const int ok = r[2] == 9 && block && ork_threader_serial.max_threads() == 1 &&
                 ork_zem_kernel_GetMode() == ORK_ZEM_DEFAULT_MODE;
  ork_serv_deallocate(block);
  std::puts(ok ? "works" : "broken");
  return !ok;
}
