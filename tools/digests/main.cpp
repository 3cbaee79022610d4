// What the library computes, as a list of digests: a line for each kernel, generator,
// distribution, computation and spline. Two builds agree where their lines do.
//
//   ork_digests [TEXT]      the names that hold TEXT; without it, all
//
// The lists of two builds come from one program when LD_LIBRARY_PATH names the other build's
// library folder.
#include <cinttypes>
#include <cstdio>

#include "digests/digests.hpp"

namespace {
std::string text;
}

bool wanted(const std::string& name) { return name.find(text) != std::string::npos; }

void print(const std::string& name, const Digest& digest) {
  if (wanted(name)) printf("%-40s %016" PRIx64 "\n", name.c_str(), digest.value());
}

int main(int argc, char** argv) {
  if (argc > 2) {
    fprintf(stderr, "usage: ork_digests [TEXT]\n");
    return 2;
  }
  if (argc == 2) text = argv[1];
  digest_kernels();
  digest_streams();
  digest_statistics();
  digest_fits();
}
