// Error dispatch: record, callback, standard actions, write-back, for the four types.
#include <cerrno>
#include <cstdarg>
#include <functional>

#include "ork/serv.h"
#include "support/control.hpp"
#include "support/pch.hpp"

namespace {

std::vector<std::string> printed;

}  // namespace

// Takes the place of the service layer's printer in this program.
extern "C" void ork_serv_print(int kind, int message, int count, ...) {
  va_list values;
  va_start(values, count);
  char line[256];
  if (message >= 742) {
    const int index = va_arg(values, int);
    snprintf(line, sizeof line, "%d %d %d: %d %g", kind, message, count, index,
             va_arg(values, double));
  } else {
    const int n =
        snprintf(line, sizeof line, "%d %d %d: %s", kind, message, count, va_arg(values, char*));
    if (count == 2) snprintf(line + n, sizeof line - size_t(n), " %d", va_arg(values, int));
  }
  va_end(values);
  printed.push_back(line);
}

namespace {

ork_error_record seen;
int calls, answer;
std::function<void(ork_error_record*)> change;

int32_t callback(ork_error_record* e) {
  ++calls;
  seen = *e;
  if (change) change(e);
  return answer;
}

struct Errors : testing::Test {
  StateGuard guard;
  Errors() {
    printed.clear();
    calls = answer = 0;
    change = nullptr;
    errno = 0;
    clear_flags();
    mode(0x1A00);
  }
  static void mode(uint32_t m) { ork_zem_kernel_SetMode(m); }
  static void clear_flags() { asm volatile("fnclex"); }
  static unsigned flags() {
    unsigned short status;
    asm volatile("fnstsw %0" : "=m"(status));
    return status & 0x1D;  // invalid 1, zero divide 4, overflow 8, underflow 16
  }
};

TEST_F(Errors, StandardActionsByStatus) {
  const struct {
    int status, error;
    unsigned flag;
    std::vector<std::string> head;
    bool values;
  } cases[] = {
      {-2, EACCES, 0, {"1 736 1: vdExp"}, false},
      {-1, EINVAL, 0, {"1 735 2: vdExp 1"}, false},
      {0, 0, 0, {}, false},
      {1, EDOM, 1, {"1 737 1: vdExp"}, true},
      {2, ERANGE, 4, {"1 738 1: vdExp"}, true},
      {3, ERANGE, 8, {"1 739 1: vdExp"}, true},
      {4, ERANGE, 16, {"1 740 1: vdExp"}, true},
      {77, EFAULT, 0, {"1 741 1: vdExp"}, true},
  };
  mode(0xE00);
  for (const auto& c : cases) {
    double a[] = {10, 20}, r[] = {30, 40};
    errno = 999;
    clear_flags();
    printed.clear();
    ork_zem_kernel_dError(c.status, 1, a, a, r, r, "vdExp");
    EXPECT_EQ(ork_zem_kernel_GetErrStatus(), c.status);
    EXPECT_EQ(errno, c.error) << c.status;
    EXPECT_EQ(flags(), c.flag) << c.status;
    auto expected = c.head;
    if (c.values) expected.insert(expected.end(), {"1 742 2: 1 20", "1 743 2: 1 40"});
    EXPECT_EQ(printed, expected) << c.status;
    EXPECT_EQ(r[1], 40);
  }
}

TEST_F(Errors, ValueLinesCountArgumentsAndResults) {
  const double nan = NAN;
  const struct {
    double a1, a2, r1, r2;
    std::vector<std::string> lines;
  } cases[] = {
      {1, 1, 2, 2, {"742 2: 0 1", "743 2: 0 2"}},
      {1, 0, 2, 0, {"742 2: 0 1", "743 2: 0 2"}},
      {1, 1, 2, 3, {"744 2: 0 1", "745 2: 0 2", "746 2: 0 3"}},
      {1, 5, 2, 2, {"747 2: 0 1", "748 2: 0 5", "749 2: 0 2"}},
      {1, 5, 2, 3, {"750 2: 0 1", "751 2: 0 5", "752 2: 0 2", "753 2: 0 3"}},
      {nan, nan, 2, 2, {"747 2: 0 nan", "748 2: 0 nan", "749 2: 0 2"}},
  };
  mode(0x400);
  for (const auto& c : cases) {
    double r1 = c.r1, r2 = c.r2;
    printed.clear();
    ork_zem_kernel_dError(1, 0, &c.a1, &c.a2, &r1, &r2, "f");
    ASSERT_EQ(printed.size(), c.lines.size() + 1);
    for (size_t i = 0; i < c.lines.size(); ++i) EXPECT_EQ(printed[i + 1], "1 " + c.lines[i]);
  }
}

TEST_F(Errors, ModeDecidesWhatHappens) {
  ork_zem_kernel_SetErrorCallBack(callback);
  const struct {
    uint32_t mode;
    int calls;
    bool with_errno, flag, lines;
  } cases[] = {
      {0x100, 0, false, false, false},  // IGNORE alone
      {0x300, 0, true, false, false},   // with another bit the dispatch goes on
      {0x1000, 1, false, false, false}, {0x1A00, 1, true, true, false},
      {0x402, 0, false, false, true},   {0x8000, 1, false, false, false},
  };
  for (const auto& c : cases) {
    double a = -1, r = 5;
    calls = 0, errno = 0;
    clear_flags();
    printed.clear();
    mode(c.mode);
    ork_zem_kernel_SetErrStatus(0);
    ork_zem_kernel_dError(2, 0, &a, &a, &r, &r, "f");
    EXPECT_EQ(ork_zem_kernel_GetErrStatus(), 2) << std::hex << c.mode;
    EXPECT_EQ(calls, c.calls) << std::hex << c.mode;
    EXPECT_EQ(errno, c.with_errno ? ERANGE : 0) << std::hex << c.mode;
    EXPECT_EQ(flags() != 0, c.flag) << std::hex << c.mode;
    EXPECT_EQ(!printed.empty(), c.lines) << std::hex << c.mode;
    EXPECT_EQ(r, 5);
  }
  mode(0x1A00);
  ork_zem_kernel_ClearErrorCallBack();
  double a = 0, r = 1;
  ork_zem_kernel_dError(2, 0, &a, &a, &r, &r, "f");
  EXPECT_EQ(errno, ERANGE);
}

TEST_F(Errors, CallbackReplacesResultsUnlessItStopsTheEvent) {
  ork_zem_kernel_SetErrorCallBack(callback);
  change = [](ork_error_record* e) { e->r1 = 7, e->r2 = 8; };
  double a[] = {0, 1, 2}, r[] = {10, 11, 12}, r2[] = {20, 21, 22};
  ork_zem_kernel_dError(1, 2, a, a, r, r2, "f");
  EXPECT_EQ(r[2], 7);
  EXPECT_EQ(r2[2], 8);
  EXPECT_EQ(errno, EDOM) << "the standard actions still run";
  ork_zem_kernel_dError(1, 1, a, a, r, r, "f");
  EXPECT_EQ(r[1], 7) << "one array: the first result stands";
  answer = 1, errno = 0;
  ork_zem_kernel_dError(1, 0, a, a, r, r2, "f");
  EXPECT_EQ(r[0], 10);
  EXPECT_EQ(r2[0], 20);
  EXPECT_EQ(errno, 0);
  // A callback that changes the mode changes its own event.
  answer = 0;
  change = [](ork_error_record*) { ork_zem_kernel_SetMode(0x400); };
  printed.clear();
  ork_zem_kernel_dError(1, 0, a, a, r, r, "f");
  EXPECT_EQ(errno, 0);
  EXPECT_EQ(printed.size(), 3u);
}

TEST_F(Errors, NamesAreCutAt64Characters) {
  ork_zem_kernel_SetErrorCallBack(callback);
  double a = 0, r = 0;
  for (const int length : {1, 63, 64, 65, 100}) {
    const std::string name(size_t(length), 'x');
    ork_zem_kernel_dError(1, 0, &a, &a, &r, &r, name.c_str());
    EXPECT_EQ(seen.name_length, std::min(length, 64));
    EXPECT_EQ(std::string(seen.name, strnlen(seen.name, 64)), name.substr(0, 64));
  }
  mode(0x400);
  ork_zem_kernel_dError(1, 0, &a, &a, &r, &r, std::string(70, 'y').c_str());
  EXPECT_EQ(printed.at(0), "1 737 1: " + std::string(64, 'y'));
}

TEST_F(Errors, RejectedCallArgumentsTouchNoElement) {
  ork_zem_kernel_SetErrorCallBack(callback);
  for (const int status : {-1, -2}) {
    ork_zem_kernel_dError(status, 3, nullptr, nullptr, nullptr, nullptr, "vdExp");
    ork_zem_kernel_cError(status, 3, nullptr, nullptr, nullptr, nullptr, "vcExp");
    EXPECT_EQ(seen.status, status);
    EXPECT_EQ(seen.index, 3);
  }
  EXPECT_EQ(calls, 4);
}

// The element at index 2 of a slice that begins at element `shift` of the whole vector.
template <class T, int parts, class Dispatch>
void check_type(Dispatch dispatch, int shift) {
  std::vector<T> a(size_t(100 * parts)), b(a), r(a), r2(a);
  for (size_t i = 0; i < a.size(); ++i)
    a[i] = T(i), b[i] = T(1000 + i), r[i] = T(2000 + i), r2[i] = T(3000 + i);
  ork_zem_kernel_SetInterfInputVectorPointer(a.data());
  change = [](ork_error_record* e) {
    e->r1 = 0.1, e->r2 = 0.2;
    if (parts == 2) e->r1_im = 0.3, e->r2_im = 0.4;
  };
  const auto r_before = r, r2_before = r2;
  const size_t at = size_t((shift + 2) * parts);
  dispatch(1, 2, &a[size_t(shift * parts)], &b[size_t(shift * parts)], &r[size_t(shift * parts)],
           &r2[size_t(shift * parts)], "name");
  ork_zem_kernel_SetInterfInputVectorPointer(nullptr);
  EXPECT_EQ(seen.index, shift + 2);
  const double* expected[] = {&seen.a1, &seen.a2, &seen.r1, &seen.r2};
  const double* imaginary[] = {&seen.a1_im, &seen.a2_im, &seen.r1_im, &seen.r2_im};
  for (int k = 0; k < 4; ++k) {
    double value;
    memcpy(&value, expected[k], 8);
    EXPECT_EQ(value, 1000.0 * k + double(at));
    memcpy(&value, imaginary[k], 8);
    if (parts == 2) {
      EXPECT_EQ(value, 1000.0 * k + double(at) + 1);
    }
  }
  for (size_t i = 0; i < r.size(); ++i) {
    const bool real = i == at, im = parts == 2 && i == at + 1;
    EXPECT_EQ(r[i], real ? T(0.1) : im ? T(0.3) : r_before[i]) << i;
    EXPECT_EQ(r2[i], real ? T(0.2) : im ? T(0.4) : r2_before[i]) << i;
  }
}

TEST_F(Errors, FourTypesIndexAndWriteBack) {
  ork_zem_kernel_SetErrorCallBack(callback);
  for (const int shift : {0, 1, 37}) {
    check_type<float, 1>(ork_zem_kernel_sError, shift);
    check_type<double, 1>(ork_zem_kernel_dError, shift);
    check_type<float, 2>(ork_zem_kernel_cError, shift);
    check_type<double, 2>(ork_zem_kernel_zError, shift);
  }
}

TEST_F(Errors, RecordLayout) {
  EXPECT_EQ(offsetof(ork_error_record, a1), 8u);
  EXPECT_EQ(offsetof(ork_error_record, r2), 32u);
  EXPECT_EQ(offsetof(ork_error_record, name), 40u);
  EXPECT_EQ(offsetof(ork_error_record, name_length), 104u);
  EXPECT_EQ(offsetof(ork_error_record, a1_im), 108u);
  EXPECT_EQ(sizeof(ork_error_record), 140u);
}

}  // namespace
