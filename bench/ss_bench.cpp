// Statistics: cycles beside the bounds asked for and the peers of the same run.
//
//   ss_bench [SECTION ...] [--record]      SECTION: helpers
#include "ss_helpers.hpp"

int main(int argc, char** argv) {
  Report report("ss", argc, argv);
  if (report.wants("helpers")) helpers::run(report);
}
