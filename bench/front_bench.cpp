// The public layer: what a checked call adds to the kernel's own, and from which length on two
// threads are worth their launch.
//
//   front_bench [--record]
#include "ork/front.h"
#include "ork/zem_kernels.h"
#include "support.hpp"

namespace {

typedef int Checked(int n, const double* a, double* r);

struct Row {
  const char* name;
  Checked* front;
  const ork_d_unary* table;
  const float* costs;
};
const Row rows[] = {
    {"Sqr", ork_dSqr, ork_zem_kernel_dSqr_ttab, ork_zem_kernel_dSqr_ctab},
    {"Sqrt", ork_dSqrt, ork_zem_kernel_dSqrt_ttab, ork_zem_kernel_dSqrt_ctab},
    {"Exp", ork_dExp, ork_zem_kernel_dExp_ttab, ork_zem_kernel_dExp_ctab},
    {"Tan", ork_dTan, ork_zem_kernel_dTan_ttab, ork_zem_kernel_dTan_ctab},
    {"LGamma", ork_dLGamma, ork_zem_kernel_dLGamma_ttab, ork_zem_kernel_dLGamma_ctab}};

}  // namespace

int main(int argc, char** argv) {
  Report report("front", argc, argv);
  constexpr int longest = 1 << 18;
  std::vector<double> a(longest), r(longest);
  for (int i = 0; i < longest; ++i) a[i] = 0.5 + i * 1e-5;

  report.line("# a call of 8 elements, cycles: the kernel by its table, and checked");
  report.line("  function   kernel  checked");
  ork_set_threads(1);
  for (const Row& row : rows) {
    const double kernel = time_calls([&] { row.table[1](8, a.data(), r.data()); }).least;
    const double front = time_calls([&] { row.front(8, a.data(), r.data()); }).least;
    report.line(format("d %-8s %7.0f  %7.0f", row.name, kernel, front));
  }

  ork_set_threshold(1e-6f);  // whatever the length: two slices
  report.line("# HA, whole and in two slices on two threads");
  report.line("  function      n      work   whole  divided  gain  cycles/work");
  for (const Row& row : rows)
    for (int n = 256; n <= longest; n *= 4) {
      const float work = float(n) * row.costs[1];
      if (work < 1e3f || work > 4e6f) continue;
      ork_set_threads(1);
      const double whole = time_calls([&] { row.front(n, a.data(), r.data()); }, 200).least;
      ork_set_threads(2);
      const double divided = time_calls([&] { row.front(n, a.data(), r.data()); }, 200).least;
      if (divided > 20 * whole) {  // another program holds the second processor
        report.line(format("d %-8s %7d  no reading", row.name, n));
        continue;
      }
      report.line(format("d %-8s %7d %9.0f %7.0f  %7.0f  %4.2f  %.2f", row.name, n, double(work),
                         whole, divided, whole / divided, whole / work));
    }
}
