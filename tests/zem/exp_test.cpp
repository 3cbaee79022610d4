// Exp: special values, statuses, borders of the rare ranges, published hard cases.
#include <quadmath.h>

#include "support/bits.hpp"
#include "support/control.hpp"
#include "support/directed.hpp"
#include "support/pch.hpp"
#include "support/special.hpp"

namespace {

// LA d: the fit of the polynomial ends short of |r| = ln 2/256.
const Limits limits_d = {{3.75, 0.55, 0x1p-28}, {false, false, true}};
const Limits limits_s = {{2.0, 0.58, 0x1p-12}, {false, false, true}};

TEST(Exp, SpecialDouble) {
  for (int level = 0; level < 3; ++level) {
    const auto nan = [&](uint64_t image) {
      return SpecialCase<double>{
          .a = from_bits<double>(image),
          .r = from_bits<double>(level == 1 ? ~0ull : image | 0x0008000000000000),
          .exact_nan = true};
    };
    check_special<double>(
        {"Exp",
         level,
         "vdExp",
         0.75,
         0,
         {nan(0x7FF8000000000123),
          nan(0x7FF0000000000001),
          nan(0xFFF4000000000000),
          {inf<double>, inf<double>},
          {-inf<double>, 0.0},
          {0.0, 1.0},
          {-0.0, 1.0},
          {smallest_denormal<double>, 1.0},
          {-largest<double>, 0.0, ZEM_STATUS_UNDERFLOW},
          {-746.0, 0.0, ZEM_STATUS_UNDERFLOW},
          {-745.1332191019412, 0.0, ZEM_STATUS_UNDERFLOW},
          {from_bits<double>(0xC0874910D52D3051), smallest_denormal<double>, ZEM_STATUS_UNDERFLOW},
          {-740.0, from_bits<double>(0x55), ZEM_STATUS_UNDERFLOW},
          {709.7827128933841, inf<double>, ZEM_STATUS_OVERFLOW},
          {710.0, inf<double>, ZEM_STATUS_OVERFLOW},
          {largest<double>, inf<double>, ZEM_STATUS_OVERFLOW}}});
  }
}

TEST(Exp, SpecialSingle) {
  for (int level = 0; level < 3; ++level)
    check_special<float>({"Exp",
                          level,
                          "vsExp",
                          0.75f,
                          0,
                          {{quiet_nan<float>, quiet_nan<float>},
                           {from_bits<float>(0x7F800001), quiet_nan<float>},
                           {inf<float>, inf<float>},
                           {-inf<float>, 0.0f},
                           {0.0f, 1.0f},
                           {-0.0f, 1.0f},
                           {smallest_denormal<float>, 1.0f},
                           {88.72283935546875f, inf<float>, ZEM_STATUS_OVERFLOW},
                           {largest<float>, inf<float>, ZEM_STATUS_OVERFLOW},
                           {-104.0f, 0.0f, ZEM_STATUS_UNDERFLOW},
                           {-largest<float>, 0.0f, ZEM_STATUS_UNDERFLOW},
                           {-103.0f, smallest_denormal<float>, ZEM_STATUS_UNDERFLOW}}});
}

// Where a result is not exact, its status is.
template <class T>
void check_status(const char* function, int level, T x, int status) {
  for (const Slot& slot : slots) {
    if (slot.type != (sizeof(T) == 8 ? 'd' : 's') || std::string(slot.function) != function)
      continue;
    T r;
    ork_zem_kernel_ClearErrStatus();
    Call<T>{&slot, level}(1, &x, &x, &r, &r);
    EXPECT_EQ(ork_zem_kernel_GetErrStatus(), status) << slot.name(level) << "(" << x << ")";
    EXPECT_TRUE(std::isfinite(r)) << slot.name(level) << "(" << x << ")";
  }
}

TEST(Exp, StatusAtTheBorders) {
  const StateGuard guard;
  ork_zem_kernel_SetMode(ORK_ZEM_ERRMODE_IGNORE);
  for (int level = 0; level < 3; ++level) {
    check_status("Exp", level, 709.78, 0);
    check_status("Exp", level, from_bits<double>(0x40862E42FEFA39EF), 0);
    check_status("Exp", level, -708.396, 0);
    check_status("Exp", level, from_bits<double>(0xC086232BDD7ABCD2), 0);
    check_status("Exp", level, from_bits<double>(0xC086232BDD7ABCD3), ZEM_STATUS_UNDERFLOW);
    check_status("Exp", level, -708.4, ZEM_STATUS_UNDERFLOW);
    check_status("Exp", level, from_bits<float>(0x42B17217), 0);
    check_status("Exp", level, -87.336f, 0);
    check_status("Exp", level, -87.34f, ZEM_STATUS_UNDERFLOW);
  }
}

TEST(Exp, FlushedToZero) {
  const StateGuard guard;
  ork_zem_kernel_SetMode(ORK_ZEM_ERRMODE_IGNORE | ORK_ZEM_DENORMAL_ZERO);
  for (const Slot& slot : slots) {
    if (std::string(slot.function) != "Exp" || (slot.type != 'd' && slot.type != 's')) continue;
    for (int level = 0; level < 3; ++level) {
      if (slot.type == 'd') {
        const double x[2] = {-710, smallest_denormal<double>};
        double r[2];
        Call<double>{&slot, level}(2, x, x, r, r);
        EXPECT_EQ(bits(r[0]), 0u) << slot.name(level);
        EXPECT_EQ(r[1], 1.0);
      } else {
        const float x[2] = {-90, smallest_denormal<float>};
        float r[2];
        Call<float>{&slot, level}(2, x, x, r, r);
        EXPECT_EQ(bits(r[0]), 0u) << slot.name(level);
        EXPECT_EQ(r[1], 1.0f);
      }
    }
  }
}

TEST(Exp, Directed) {
  const double step =
      0.005415212348514943;  // ln 2/128; halfway between two: the table changes its row
  std::vector<double> centres = {-708.3964185322642, -708.39599609375, 709.7772976810359,
                                 709.78000528721};
  std::vector<float> centres_s = {87.3365479f, -87.3365479f, -103.2f};
  for (int i = -300; i < 300; ++i)
    centres.push_back((i + 0.5) * step), centres_s.push_back(float((i + 0.5) * step));
  check_directed<double>("Exp", expq, neighbours(centres, 20) + spread<double>(-745, 709.78, 20000),
                         limits_d);
  check_directed<float>("Exp", expq,
                        neighbours(centres_s, 20) + spread<float>(-103.27, 88.72, 20000), limits_s);
}

TEST(Exp, WorstCasesDouble) { check_worst_cases<double>("Exp", "exp", limits_d); }
TEST(Exp, WorstCasesSingle) { check_worst_cases<float>("Exp", "exp", limits_s); }

}  // namespace
