// Loads the public layer given by its path, has it start threads, and unloads it, several times.
// While the program goes on, nothing may run in what has gone. Exit status 0.
#include <dlfcn.h>
#include <stdio.h>
#include <unistd.h>

int main(int, char** argv) {
  static double a[50000], r[50000];
  for (int round = 0; round < 5; ++round) {
    void* library = dlopen(argv[1], RTLD_NOW | RTLD_LOCAL);
    if (library == nullptr) return fprintf(stderr, "%s\n", dlerror()), 2;
    const auto set_threads = reinterpret_cast<int (*)(int)>(dlsym(library, "ork_set_threads"));
    const auto set_threshold =
        reinterpret_cast<float (*)(float)>(dlsym(library, "ork_set_threshold"));
    const auto exp =
        reinterpret_cast<int (*)(int, const double*, double*)>(dlsym(library, "ork_dExp"));
    if (!set_threads || !set_threshold || !exp) return 3;
    set_threads(4), set_threshold(1e-6f);
    if (exp(50000, a, r) != 0 || r[49999] != 1) return 4;
    if (dlclose(library) != 0) return 5;
    usleep(20000);  // idle threads doze off some milliseconds after their work
  }
  return 0;
}
