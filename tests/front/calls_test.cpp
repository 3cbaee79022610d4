// Elementwise calls of the public layer: bad arguments, the choice of the kernel, pack and unpack.
#include <errno.h>

#include <functional>
#include <tuple>

#include "front.hpp"

namespace {

ork_error_record last;
int events;
int32_t note(ork_error_record* record) {
  ++events;
  last = *record;
  return 0;
}

struct FrontCalls : testing::Test {
  StateGuard state;
  void SetUp() override {
    ork_zem_kernel_SetErrorCallBack(note);
    events = 0;
  }

  // One call must have been rejected, with its report, and nothing else.
  void expect_rejected(int status, const std::string& name, const std::string& how) {
    EXPECT_EQ(ork_zem_kernel_ClearErrStatus(), status) << name << " " << how;
    ASSERT_EQ(events, 1) << name << " " << how;
    events = 0;
    EXPECT_EQ(std::string(last.name, size_t(last.name_length)), name);
    EXPECT_EQ(last.status, status) << name;
    EXPECT_EQ(last.index, status == -1 ? 1 : 0) << name;
    EXPECT_EQ(errno, status == -1 ? EINVAL : EACCES) << name;
  }
};

template <class T>
struct BadArguments : FrontCalls {};
using Types = testing::Types<double, float>;
TYPED_TEST_SUITE(BadArguments, Types);

TYPED_TEST(BadArguments, AreReportedAndNothingIsWritten) {
  using T = TypeParam;
  // A pointer left from a caller's own slicing must not shift the argument's number.
  for_each_function<T>([&](const Slot& row, const Call<T>& front) {
    const std::string name = std::string("v") + row.type + row.function;
    T a[8], r[8], r2[8];  // complex functions take pairs
    for (int i = 0; i < 8; ++i) a[i] = 0.5, r[i] = 7, r2[i] = 8;
    for (const int n : {-1, INT32_MIN}) {
      ork_zem_kernel_SetInterfInputVectorPointer(a);
      front(n, a, a, r, r2);
      this->expect_rejected(-1, name, "n");
      front(n, nullptr, a, nullptr, nullptr);
      this->expect_rejected(-1, name, "n before null");
    }
    front(4, nullptr, a, r, r2);
    this->expect_rejected(-2, name, "a");
    front(4, a, a, nullptr, r2);
    this->expect_rejected(-2, name, "r");
    if (front.inputs() == 2) {
      front(4, a, nullptr, r, r2);
      this->expect_rejected(-2, name, "b");
    }
    if (front.outputs() == 2) {
      front(4, a, a, r, nullptr);
      this->expect_rejected(-2, name, "r2");
    }
    for (int i = 0; i < 8; ++i) EXPECT_TRUE(r[i] == 7 && r2[i] == 8) << name;
    front(0, nullptr, a, nullptr, nullptr);
    EXPECT_EQ(events, 0) << name << ": n = 0 is fine";
  });
}

TEST_F(FrontCalls, ReturnTheStatusOfTheCall) {
  const double ln[] = {1, -1, 0}, exp[] = {1, 1000};
  double r[3];
  const struct {
    int status;
    std::function<int()> call;
  } rows[] = {{0, [&] { return ork_dLn(1, ln, r); }},
              {1, [&] { return ork_dLn(2, ln, r); }},
              {2, [&] { return ork_dLn(3, ln, r); }},
              {0, [&] { return ork_dExp(1, exp, r); }},
              {3, [&] { return ork_dExp(2, exp, r); }},
              {-1, [&] { return ork_dExp(-5, exp, r); }},
              {-2, [&] { return ork_dExp(2, exp, nullptr); }},
              {-1, [&] { return ork_zPackV(-1, nullptr, nullptr, nullptr); }},
              {0, [&] { return ork_dExp(0, nullptr, nullptr); }}};
  for (const auto& row : rows) EXPECT_EQ(row.call(), row.status);
  ork_zem_kernel_SetMode(ORK_ZEM_ERRMODE_IGNORE);
  EXPECT_EQ(ork_dExp(-5, exp, r), -1) << "a quiet error mode hides no status";
}

TEST_F(FrontCalls, AccuracyPicksTheSlotAndNonsenseIsHighAccuracy) {
  double a[64], by_slot[3][64], r[64];
  for (int i = 0; i < 64; ++i) a[i] = 0.1 + 0.37 * i;
  for (int slot = 0; slot < 3; ++slot) ork_zem_kernel_dExp_ttab[slot](64, a, by_slot[slot]);
  ASSERT_NE(memcmp(by_slot[0], by_slot[1], sizeof r), 0);
  ASSERT_NE(memcmp(by_slot[1], by_slot[2], sizeof r), 0);
  const struct {
    unsigned accuracy;
    int slot;
  } rows[] = {{1, 0}, {2, 1}, {3, 2}, {4, 1}, {7, 1}, {15, 1}};
  for (const auto& row : rows) {
    ork_zem_kernel_SetMode(row.accuracy);
    EXPECT_EQ(ork_dExp(64, a, r), 0);
    EXPECT_EQ(memcmp(r, by_slot[row.slot], sizeof r), 0) << row.accuracy;
  }
}

// ---- Pack and unpack ----

template <size_t k, class... P>
void refuses_without(int (*call)(int, P...), std::tuple<P...> arguments) {
  if constexpr (std::is_pointer_v<std::tuple_element_t<k, std::tuple<P...>>>) {
    std::get<k>(arguments) = nullptr;
    EXPECT_EQ(std::apply([&](auto... p) { return call(1, p...); }, arguments), -2) << k;
  }
}
// A negative count, and each array missing in turn.
template <class... P, class... A>
void refuses(int (*call)(int, P...), A... arguments) {
  EXPECT_EQ(call(-1, arguments...), -1);
  [&]<size_t... k>(std::index_sequence<k...>) {
    (refuses_without<k>(call, std::tuple<P...>(arguments...)), ...);
  }
  (std::index_sequence_for<P...>{});
}

template <class T, int parts>
struct Packs {
  int (*pack_i)(int, const T*, int32_t, T*), (*unpack_i)(int, const T*, T*, int32_t);
  int (*pack_m)(int, const T*, const int32_t*, T*), (*unpack_m)(int, const T*, T*, const int32_t*);
  int (*pack_v)(int, const T*, const int32_t*, T*), (*unpack_v)(int, const T*, T*, const int32_t*);

  typedef std::vector<T> V;
  static V numbers(std::vector<int> firsts) {
    V v;
    for (const int x : firsts)
      for (int part = 0; part < parts; ++part) v.push_back(T(x + 100 * part));
    return v;
  }

  void check() const {
    const V a = numbers({10, 11, 12, 13, 14, 15}), seven = numbers({7, 7, 7, 7, 7, 7});
    const int32_t mask[] = {0, 5, 0, -1, 1, 0}, index[] = {4, 0, 0};
    const T* end = a.data() + 5 * parts;
    const struct {
      std::function<int(T*)> call;
      std::vector<int> expected;
    } rows[] = {
        {[&](T* y) { return pack_i(3, a.data(), 2, y); }, {10, 12, 14, 7, 7, 7}},
        {[&](T* y) { return pack_i(2, end, -1, y); }, {15, 14, 7, 7, 7, 7}},
        {[&](T* y) { return unpack_i(3, a.data(), y, 2); }, {10, 7, 11, 7, 12, 7}},
        {[&](T* y) { return pack_m(6, a.data(), mask, y); }, {11, 13, 14, 7, 7, 7}},
        {[&](T* y) { return unpack_m(6, a.data(), y, mask); }, {7, 10, 7, 11, 12, 7}},
        {[&](T* y) { return pack_v(3, a.data(), index, y); }, {14, 10, 10, 7, 7, 7}},
        {[&](T* y) { return unpack_v(3, a.data(), y, index); }, {12, 7, 7, 7, 10, 7}},
    };
    for (const auto& row : rows) {
      V y = seven;
      EXPECT_EQ(row.call(y.data()), 0);
      EXPECT_EQ(y, numbers(row.expected)) << &row - rows;
    }
    V y = seven;
    refuses(pack_i, a.data(), 1, y.data());
    refuses(unpack_i, a.data(), y.data(), 1);
    refuses(pack_m, a.data(), mask, y.data());
    refuses(unpack_m, a.data(), y.data(), mask);
    refuses(pack_v, a.data(), index, y.data());
    refuses(unpack_v, a.data(), y.data(), index);
    EXPECT_EQ(y, seven);
  }
};

TEST_F(FrontCalls, PackAndUnpackOfAllTypes) {
  Packs<double, 1>{ork_dPackI, ork_dUnpackI, ork_dPackM, ork_dUnpackM, ork_dPackV, ork_dUnpackV}
      .check();
  Packs<float, 1>{ork_sPackI, ork_sUnpackI, ork_sPackM, ork_sUnpackM, ork_sPackV, ork_sUnpackV}
      .check();
  Packs<float, 2>{ork_cPackI, ork_cUnpackI, ork_cPackM, ork_cUnpackM, ork_cPackV, ork_cUnpackV}
      .check();
  Packs<double, 2>{ork_zPackI, ork_zUnpackI, ork_zPackM, ork_zUnpackM, ork_zPackV, ork_zUnpackV}
      .check();
}

}  // namespace
