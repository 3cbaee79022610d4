// The message catalogue of the vector-math error reports.
#include <stdarg.h>
#include <stdio.h>

#include "ork/serv.h"
#include "outer/export.hpp"

namespace {

struct Message {
  int values;  // how many the text takes
  const char* text;
};

constexpr int first_number = 735;
constexpr Message catalogue[] = {
    {2, "%s: argument %d was rejected"},                // 735
    {1, "%s: an argument was rejected"},                // 736
    {1, "%s: argument outside the function's domain"},  // 737
    {1, "%s: the function has a pole here"},            // 738
    {1, "%s: the result overflows"},                    // 739
    {1, "%s: the result underflows"},                   // 740
    {1, "%s: unlisted status"},                         // 741
    {2, "  element %d: argument %.17g"},                // 742, 743: one argument, one result
    {2, "  element %d: result %.17g"},
    {2, "  element %d: argument %.17g"},  // 744 to 746: one argument, two results
    {2, "  element %d: first result %.17g"},
    {2, "  element %d: second result %.17g"},
    {2, "  element %d: first argument %.17g"},  // 747 to 749: two arguments, one result
    {2, "  element %d: second argument %.17g"},
    {2, "  element %d: result %.17g"},
    {2, "  element %d: first argument %.17g"},  // 750 to 753: two arguments, two results
    {2, "  element %d: second argument %.17g"},
    {2, "  element %d: first result %.17g"},
    {2, "  element %d: second result %.17g"},
};
constexpr int catalogue_size = sizeof catalogue / sizeof catalogue[0];
static_assert(first_number + catalogue_size - 1 == 753);

}  // namespace

ORK_OUTER void ork_serv_print(int /*kind*/, int number, int count, ...) {
  char line[256];  // one write a line: those of several threads do not mix
  const int row = number - first_number;
  if (row < 0 || row >= catalogue_size || count < catalogue[row].values) {
    snprintf(line, sizeof line, "message %d", number);
  } else {
    va_list values;
    va_start(values, count);
    vsnprintf(line, sizeof line, catalogue[row].text, values);
    va_end(values);
  }
  fprintf(stderr, "%s\n", line);
}
