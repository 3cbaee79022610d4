// The statistics task: constructor, editors, destructor, and the order of their statuses.
#include "ork/serv.h"
#include "ss/api.hpp"
#include "support/blocks.hpp"
#include "support/pch.hpp"

namespace {
using statistics::Api;

// The record as its words.
constexpr int kWords = 90, kStreamState = 53, kReleaseCount = 88, kReleaseHook = 89;
typedef std::vector<uint32_t> Image;
Image image(const ork_ss_task* task) {
  Image words(kWords);
  memcpy(words.data(), task, sizeof(uint32_t) * kWords);
  return words;
}
uint32_t word(const void* pointer) { return uint32_t(reinterpret_cast<uintptr_t>(pointer)); }

template <class R>
struct StatisticsTask : ::testing::Test {
  int blocks_before = blocks::live();
  ork_ss_task* task = nullptr;
  int p = 3;
  void SetUp() override {
    ASSERT_EQ(Api<R>::make(&task, &p, nullptr, nullptr, nullptr, nullptr, nullptr, 0), 0);
  }
  void TearDown() override {
    EXPECT_EQ(__ruaSSDeleteTask(&task), 0);
    EXPECT_EQ(task, nullptr);
    EXPECT_EQ(blocks::live(), blocks_before);
  }
};
typedef ::testing::Types<double, float> RealTypes;
TYPED_TEST_SUITE(StatisticsTask, RealTypes);

TYPED_TEST(StatisticsTask, ConstructorChecksInOrder) {
  typedef TypeParam R;
  const R x[4] = {}, w[4] = {};
  const int64_t good_p = 3, good_n = 2, rows = 0x10000, columns = 0x20000, zero = 0, minus = -1;
  const int64_t beyond = int64_t(1) << 32, high_rows = rows | beyond, both = rows | columns;
  // With a low word below 1, that only the high word makes positive.
  const int64_t large = beyond | 0x80000000;
  const struct {
    const int64_t *p, *n, *storage;
    const R* x;
    int narrow, wide;  // statuses when only low words are read, and when all is
  } cases[] = {
      {&good_p, &good_n, &rows, x, 0, 0},
      {&good_p, &good_n, &columns, x, 0, 0},
      {nullptr, nullptr, nullptr, x, -4001, -4001},
      {&zero, nullptr, nullptr, x, -4001, -4001},
      {&minus, nullptr, nullptr, x, -4001, -4001},
      {&beyond, &good_n, &rows, x, -4001, 0},
      {&large, &good_n, &rows, x, -4001, 0},
      {&good_p, nullptr, nullptr, nullptr, 0, 0},
      {&good_p, &zero, &both, nullptr, 0, 0},
      {&good_p, nullptr, nullptr, x, -4044, -4044},
      {&good_p, nullptr, &both, x, -4003, -4003},
      {&good_p, nullptr, &zero, x, -4003, -4003},
      {&good_p, nullptr, &high_rows, x, -4002, -4003},
      {&good_p, nullptr, &rows, x, -4002, -4002},
      {&good_p, &zero, &rows, x, -4002, -4002},
      {&good_p, &minus, &columns, x, -4002, -4002},
  };
  for (const auto& c : cases)
    for (const int wide : {0, 1}) {
      SCOPED_TRACE(&c - cases);
      const int expected = wide ? c.wide : c.narrow;
      ork_ss_task* made = nullptr;
      ASSERT_EQ(Api<R>::make(&made, c.p, c.n, c.storage, c.x, w, c.n, wide), expected);
      ASSERT_EQ(made != nullptr, expected == 0);
      if (!made) continue;
      Image want(kWords);
      const uint32_t head[] = {
          uint32_t(wide), 2,         sizeof(R) == 8, word(c.p), word(c.n),
          word(c.n),      word(c.x), word(w),        0,         word(c.storage)};
      std::copy(std::begin(head), std::end(head), want.begin());
      EXPECT_EQ(image(made), want);
      EXPECT_EQ(__ruaSSDeleteTask(&made), 0);
    }
  EXPECT_EQ(Api<R>::make(nullptr, &good_p, &good_n, &rows, x, nullptr, nullptr, 0), -4031);
  blocks::fail_each([&] {
    ork_ss_task* made = nullptr;
    const int status = Api<R>::make(&made, &good_p, &good_n, &rows, x, nullptr, nullptr, 0);
    EXPECT_EQ(status, blocks::failed() ? -4000 : 0);
    EXPECT_EQ(made == nullptr, blocks::failed());
    if (made) __ruaSSDeleteTask(&made);
  });
}

// Word of the record and null status by code; codes below 0 go through the integer form.
const struct {
  int code, word, null_status;
} kCodes[] = {
    {-1, 3, -4001},   {-2, 4, -4002},   {3, 6, -4032},    {-4, 9, -4044},   {-5, 5, -4004},
    {6, 7, -4005},    {7, 12, -4006},   {8, 13, -4007},   {9, 14, -4008},   {10, 15, -4009},
    {11, 16, -4010},  {12, 17, -4011},  {13, 18, -4012},  {14, 26, -4013},  {15, 27, -4014},
    {16, 29, -4015},  {17, 30, -4016},  {18, 28, -4017},  {19, 32, -4018},  {-20, 31, -4044},
    {21, 34, -4019},  {-22, 33, -4044}, {23, 8, -4020},   {-24, 45, -4022}, {25, 46, -4021},
    {26, 47, -4023},  {27, 48, -4024},  {-28, 37, -4038}, {-29, 44, -4044}, {30, 42, -4035},
    {31, 43, -4034},  {-32, 38, -4038}, {33, 39, -4037},  {-34, 41, -4044}, {35, 40, -4036},
    {-36, 62, -4044}, {-37, 58, -4043}, {38, 59, -4042},  {39, 60, -4028},  {40, 61, -4027},
    {-41, 63, -4040}, {42, 64, -4039},  {43, 65, -4041},  {-44, 49, -4044}, {-45, 66, -4045},
    {46, 67, -4046},  {-47, 68, -4044}, {48, 69, -4047},  {-49, 70, -4044}, {-50, 71, -4049},
    {51, 72, -4048},  {-52, 73, -4052}, {53, 74, -4053},  {-54, 77, -4055}, {55, 78, -4054},
    {-56, 79, -4056}, {57, 80, -4057},  {-58, 75, -4061}, {59, 76, -4062},  {60, 10, -4071},
    {-61, 11, -4044}, {-62, 54, -4066}, {63, 55, -4065},  {-64, 50, -4069}, {65, 51, -4068},
    {66, 52, -4070},  {67, 19, -4074},  {68, 20, -4075},  {69, 21, -4076},  {70, 22, -4077},
    {71, 23, -4078},  {72, 24, -4079},  {73, 25, -4080},  {74, 36, -4081},  {-75, 35, -4044},
    {76, 57, -4082},  {77, 56, -4083},
};

TYPED_TEST(StatisticsTask, EachCodeSetsItsFieldThroughItsForm) {
  typedef TypeParam R;
  const R value = 0;
  ork_ss_task* const task = this->task;
  for (const auto& row : kCodes) {
    SCOPED_TRACE(row.code);
    const bool is_integer = row.code < 0;
    const int64_t code = std::abs(row.code);
    const auto right = [&](const R* v) {
      return is_integer ? __ruaiSSEditTask(task, code, v) : Api<R>::edit(task, code, v);
    };
    const auto other = [&](const R* v) {
      return is_integer ? Api<R>::edit(task, code, v) : __ruaiSSEditTask(task, code, v);
    };
    Image before = image(task);
    EXPECT_EQ(other(&value), -3);
    EXPECT_EQ(other(nullptr), -3);
    EXPECT_EQ(image(task), before);
    EXPECT_EQ(right(&value), 0);
    before[row.word] = word(&value);
    EXPECT_EQ(image(task), before) << "one field and no other";
    EXPECT_EQ(right(nullptr), row.null_status);
    EXPECT_EQ(image(task), before) << "null keeps the value";
  }
  const Image before = image(task);
  for (const int64_t code : {int64_t(-1), int64_t(0), int64_t(78), (int64_t(1) << 32) + 7,
                             (int64_t(1) << 32) + 4, std::numeric_limits<int64_t>::min()}) {
    EXPECT_EQ(Api<R>::edit(task, code, &value), -3) << code;
    EXPECT_EQ(__ruaiSSEditTask(task, code, &value), -3) << code;
  }
  EXPECT_EQ(image(task), before);
  EXPECT_EQ(Api<R>::edit(nullptr, 78, nullptr), -4031);
  EXPECT_EQ(__ruaiSSEditTask(nullptr, 78, nullptr), -4031);
}

// Calls a group editor with its k-th argument alone, then with all, then with none.
template <class R, class... A, size_t... k>
void check_group(ork_ss_task* task, int32_t (*edit)(ork_ss_task*, A...),
                 std::initializer_list<int> fields, std::index_sequence<k...>) {
  ASSERT_EQ(fields.size(), sizeof...(A));
  static R targets[sizeof...(A)];
  for (size_t only = 0; only <= sizeof...(A); ++only) {
    const bool all = only == sizeof...(A);
    Image want = image(task);
    for (size_t i = 0; i < sizeof...(A); ++i)
      if (all || i == only) want[fields.begin()[i]] = word(&targets[(i + only) % sizeof...(A)]);
    EXPECT_EQ(edit(task, static_cast<A>(all || k == only ? &targets[(k + only) % sizeof...(A)]
                                                         : nullptr)...),
              0);
    EXPECT_EQ(image(task), want) << only;
  }
  const Image before = image(task);
  EXPECT_EQ(edit(task, static_cast<A>(nullptr)...), 0);
  EXPECT_EQ(image(task), before);
  EXPECT_EQ(edit(nullptr, static_cast<A>(nullptr)...), -4031);
}
template <class R, class... A>
void check_group(const char* name, ork_ss_task* task, int32_t (*edit)(ork_ss_task*, A...),
                 std::initializer_list<int> fields) {
  SCOPED_TRACE(name);
  check_group<R>(task, edit, fields, std::index_sequence_for<A...>());
}

TYPED_TEST(StatisticsTask, GroupEditorsSetWhatIsNotNull) {
  typedef TypeParam R;
  typedef Api<R> A;
  ork_ss_task* const t = this->task;
  check_group<R>("moments", t, A::edit_moments, {12, 13, 14, 15, 16, 17, 18});
  check_group<R>("sums", t, A::edit_sums, {19, 20, 21, 22, 23, 24, 25});
  check_group<R>("cov_cor", t, A::edit_cov_cor, {12, 32, 31, 34, 33});
  check_group<R>("cp", t, A::edit_cp, {12, 19, 36, 35});
  check_group<R>("partial", t, A::edit_partial, {66, 32, 31, 34, 33, 67, 68, 69, 70});
  check_group<R>("pooled", t, A::edit_pooled, {37, 42, 43, 38, 39, 40});
  check_group<R>("quantiles", t, A::edit_quantiles, {45, 46, 47, 48, 49});
  check_group<R>("stream", t, A::edit_stream, {50, 51, 52, 54, 55});
  check_group<R>("outliers", t, A::edit_outliers, {63, 64, 65});
  check_group<R>("robust", t, A::edit_robust, {62, 58, 59, 60, 61});
  check_group<R>("missing", t, A::edit_missing, {71, 72, 73, 74, 75, 76, 77, 78, 79, 80});
  check_group<R>("parametrize", t, A::edit_matrix, {34, 33, 10, 11});
}

ork_ss_task* hooked = nullptr;
void hook(ork_ss_task* task) {
  hooked = task;
  void* state;
  memcpy(&state, reinterpret_cast<char*>(task) + 4 * kStreamState, sizeof state);
  ork_serv_deallocate(state);
}

TEST(StatisticsTaskLife, DeletionCallsARegisteredHookBeforeTheRecordGoes) {
  const int before = blocks::live(), p = 1;
  ork_ss_task* task = nullptr;
  EXPECT_EQ(__ruaSSDeleteTask(nullptr), -4031);
  EXPECT_EQ(__ruaSSDeleteTask(&task), -4031);
  for (const uint32_t hooks : {0u, 1u}) {
    ASSERT_EQ(__ruadSSNewTask(&task, &p, nullptr, nullptr, nullptr, nullptr, nullptr, 0), 0);
    ork_ss_task* const record = task;
    Image words = image(task);
    words[kStreamState] = hooks ? word(ork_serv_allocate(8, 128)) : 0;
    words[kReleaseCount] = hooks;
    words[kReleaseHook] = uint32_t(reinterpret_cast<uintptr_t>(&hook));
    memcpy(static_cast<void*>(task), words.data(), 4 * kWords);
    hooked = nullptr;
    EXPECT_EQ(__ruaSSDeleteTask(&task), 0);
    EXPECT_EQ(hooked, hooks ? record : nullptr);
    EXPECT_EQ(task, nullptr);
  }
  EXPECT_EQ(blocks::live(), before);
}

}  // namespace
