// Double division, LA: four quotients from one division on the x87 unit.
//
//   P = (b0 b1)(b2 b3),  inv = 1 / P,  a0 / b0 = a0 ((b1 (b2 b3)) inv), and so on
//
// in extended precision, where eight roundings of 2^-64 leave the result within 0.51 ulp.
// A block whose P is outside the range of single precision, and the tail, take one element at a
// time through the same products with b^4 for P. MXCSR plays no part.
#include "arithmetic/div.hpp"

namespace ork {
namespace {

struct DivLa : Core<double, 2> {
  static constexpr char name[] = "vdDiv";
  static constexpr Csr csr = Csr::untouched;
  static constexpr unsigned x87 = x87_extended;
};

void one_element(const OperandsOf<DivLa>& o, int i) {
  double pair[2] = {read_one(o.in[0] + i),
                    read_one(o.in[1] + i)};  // the event is decided by the inputs, in place or not
  const long double a = pair[0], b = pair[1];
  const bool regular = magnitude(pair + 1) - 1 < infinity_bits<double> - 1;
  const long double b2 = b * b;
  const long double q = regular ? 1 / (b2 * b2) * b2 * b * a : a / b;
  write_one(o.out[0] + i, (double)q);
  if (const int status = division_status(pair, pair + 1)) report(DivLa{}, o, i, status);
}

// False, with nothing stored, if the product of the denominators is out of range.
ORK_INLINE bool four_elements(const double* a, const double* b, double* r) {
  const long double b0 = read_one(b), b1 = read_one(b + 1), b2 = read_one(b + 2),
                    b3 = read_one(b + 3);
  const long double p01 = b0 * b1, p23 = b2 * b3;
  const long double p = p01 * p23;
  // By the exponent of P as a double: as a single it might overflow.
  const uint32_t size = (uint32_t)(as<uint64_t>((double)p) >> 32) & 0x7FFFFFFF;
  constexpr uint32_t least = (1023 - 149) << 20, beyond = (1023 + 128) << 20;
  if (__builtin_expect(size - least >= beyond - least, 0)) return false;
  const long double inv = 1 / p;
  const long double r0 = b1 * p23 * inv * read_one(a);
  const long double r1 = b0 * p23 * inv * read_one(a + 1);
  const long double r2 = b3 * p01 * inv * read_one(a + 2);
  const long double r3 = b2 * p01 * inv * read_one(a + 3);
  write_one(r, (double)r0);
  write_one(r + 1, (double)r1);
  write_one(r + 2, (double)r2);
  write_one(r + 3, (double)r3);
  return true;
}

}  // namespace
}  // namespace ork

ORK_EXPORT void ork_zem_kernel_dDiv_W7LAynn(int n, const double* a, const double* b, double* r) {
  using namespace ork;
  if (n <= 0) return;
  const Control<DivLa> control;
  int i = 0;
  while (i <= n - 4) {
    if (four_elements(a + i, b + i, r + i)) {
      i += 4;
      continue;
    }
    for (const int end = i + 4; i < end; ++i) one_element({{a, b}, {r}}, i);
  }
  for (; i < n; ++i) one_element({{a, b}, {r}}, i);
}
