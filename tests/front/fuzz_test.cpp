// Every call of the public layer with type-correct random arguments: none may crash, hang, write
// beyond an array or change a neighbour. Rounds are seeded by their number, so that one can be run
// again: ORK_FUZZ_FIRST and ORK_FUZZ_ROUNDS in the environment.
#include <signal.h>
#include <sys/mman.h>
#include <unistd.h>

#include <chrono>
#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "front.hpp"
#include "registry/distributions.hpp"

namespace {

// What runs, for the message of a crash.
char current[200];
void report(int signal) {
  const ssize_t written = write(2, current, strlen(current));
  _exit(128 + (written > 0 ? signal : 0));
}

struct Random : std::mt19937 {
  using std::mt19937::mt19937;
  int below(int n) { return int((*this)() % unsigned(n)); }
  int from(int low, int high) { return low + below(high - low + 1); }
  bool one_in(int n) { return below(n) == 0; }
  template <class T>
  T pick(std::initializer_list<T> list) {
    return list.begin()[below(int(list.size()))];
  }
  uint64_t word() { return uint64_t((*this)()) << 32 | (*this)(); }
  double real() {
    switch (below(8)) {
      case 0:
        return pick({0.0, -0.0, 1.0, -1.0, 0.5, double(NAN), double(INFINITY), -double(INFINITY),
                     1e-310, 1e308, -1e308, 1e-30, 1e30, 2147483648.0});
      case 1: {
        const uint64_t bits = word();
        double x;
        memcpy(&x, &bits, sizeof x);
        return x;
      }
      default:
        return (below(20001) - 10000) / 1000.0;
    }
  }
};

// Arrays that end, or begin, at a page nobody may touch; the other side is watched.
class Arrays {
  static constexpr size_t page = 4096, room = 64 * page, count = 110;
  struct Block {
    char *base, *array;
    size_t bytes;
  };
  char* all_;
  std::vector<Block> used_;
  static constexpr char mark = 0x5A;

 public:
  Arrays() {
    all_ = static_cast<char*>(mmap(nullptr, count * (room + page) + page, PROT_NONE,
                                   MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0));
    EXPECT_NE(all_, MAP_FAILED);
    for (size_t i = 0; i < count; ++i)
      mprotect(all_ + page + i * (room + page), room, PROT_READ | PROT_WRITE);
  }
  ~Arrays() { munmap(all_, count * (room + page) + page); }
  Arrays(const Arrays&) = delete;

  template <class T>
  T* make(Random& random, size_t n) {
    const size_t bytes = n * sizeof(T);
    if (bytes > room || used_.size() >= count) {
      ADD_FAILURE() << "array of " << bytes;
      abort();
    }
    char* base = all_ + page + used_.size() * (room + page);
    char* array = random.one_in(4) ? base : base + room - bytes;
    const size_t seen = bytes + 256 < room ? bytes + 256 : room;
    memset(array == base ? base : base + room - seen, mark, seen);
    used_.push_back({base, array, bytes});
    return reinterpret_cast<T*>(array);
  }
  // An array of random values.
  template <class T>
  T* fill(Random& random, size_t n) {
    T* array = make<T>(random, n);
    const bool plain = random.one_in(2);
    for (size_t i = 0; i < n; ++i)
      array[i] = T(plain ? (random.below(2001) - 1000) / 100.0 : random.real());
    return array;
  }
  void release() {
    for (const Block& b : used_) {
      const char* end = b.array + b.bytes;
      const char* from = b.array == b.base ? end : b.array - 256 > b.base ? b.array - 256 : b.base;
      const char* to =
          b.array == b.base ? (end + 256 < b.base + room ? end + 256 : b.base + room) : b.array;
      for (; from < to; ++from)
        if (*from != mark) {
          ADD_FAILURE() << "written beyond an array: " << current;
          break;
        }
    }
    used_.clear();
  }
};

long setting(const char* name, long otherwise) {
  const char* text = getenv(name);
  return text != nullptr ? atol(text) : otherwise;
}

struct FrontFuzz : testing::Test {
  StateGuard state;
  DivisionGuard division;
  Arrays arrays;
  void SetUp() override {
    for (const int s : {SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGABRT, SIGALRM}) signal(s, report);
    alarm(100);
  }
  void TearDown() override {
    alarm(0);
    for (const int s : {SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGABRT, SIGALRM}) signal(s, SIG_DFL);
  }
  // Rounds until two seconds have passed.
  template <class Round>
  void rounds(const char* what, int most, Round round) {
    using Clock = std::chrono::steady_clock;
    const auto end = Clock::now() + std::chrono::seconds(2);
    const long first = setting("ORK_FUZZ_FIRST", 0), count = setting("ORK_FUZZ_ROUNDS", most);
    for (long i = first; i < first + count && !HasFailure(); ++i) {
      snprintf(current, sizeof current, "%s, round %ld\n", what, i);
      Random random{uint32_t(i + 1)};
      round(random);
      arrays.release();
      if (count == most && Clock::now() > end) break;
    }
  }
};

// ---- Elementwise functions ----

template <class T>
struct Elementwise {
  Arrays& arrays;
  Random& random;
  const Slot& row;

  T* array(int n, bool out = false) {
    if (random.one_in(20)) return nullptr;
    const size_t length = size_t(n > 0 ? n : 0);
    return out ? arrays.make<T>(random, length) : arrays.fill<T>(random, length);
  }
  // Packed and scattered elements: the side that strides, indices or the mask reach into.
  int move(int n) {
    const void* f = front_function(row);
    const bool unpack = row.form >= Form::unpack_i;
    const int parts = row.type == 'c' || row.type == 'z' ? 2 : 1, wide = 3 * (n > 0 ? n : 0) + 1;
    const int stride = random.from(0, 3);
    int32_t* list = arrays.make<int32_t>(random, size_t(n > 0 ? n : 0));
    for (int i = 0; i < n; ++i)
      list[i] = row.form == Form::pack_m || row.form == Form::unpack_m ? random.from(-1, 1)
                                                                       : random.below(wide);
    T *a = array((unpack ? n : wide) * parts), *r = array((unpack ? wide : n) * parts, true);
    if (row.form == Form::pack_i) return ((int (*)(int, const T*, int32_t, T*))f)(n, a, stride, r);
    if (row.form == Form::unpack_i)
      return ((int (*)(int, const T*, T*, int32_t))f)(n, a, r, stride);
    if (unpack) return ((int (*)(int, const T*, T*, const int32_t*))f)(n, a, r, list);
    return ((int (*)(int, const T*, const int32_t*, T*))f)(n, a, list, r);
  }
  int run() {
    const int n = random.one_in(30)  ? -random.below(1 << 30)
                  : random.one_in(8) ? random.from(256, 1500)
                                     : random.below(40);
    if (row.form >= Form::pack_i) return move(n);
    const FrontSlot front(row);
    const Call<T> call{&front.slot, 1};
    T* a = array(n * call.in_parts());
    T* b = row.form == Form::scalar ? arrays.fill<T>(random, 2) : array(n * call.in_parts());
    const bool in_place = random.one_in(4) && call.in_parts() == call.out_parts();
    T* r = in_place ? a : array(n * call.out_parts(), true);
    T* r2 = array(n * call.out_parts(), true);
    if (in_place && r2 == r) r2 = nullptr;
    ork_zem_kernel_ClearErrStatus();
    call(n, a, b, r, r2);
    return ork_zem_kernel_GetErrStatus();
  }
};

TEST_F(FrontFuzz, Elementwise) {
  rounds("elementwise", 20000, [&](Random& random) {
    const Slot& row = slots[size_t(random.below(int(slots.size())))];
    ork_zem_kernel_SetMode(uint32_t(random.from(1, 3)) | ORK_ZEM_ERRMODE_IGNORE);
    divide_all(random.from(1, 3));
    snprintf(current + strlen(current) - 1, 40, " %c%s\n", row.type, row.function);
    const bool wide = row.type == 'd' || row.type == 'z';
    const int status = wide ? Elementwise<double>{arrays, random, row}.run()
                            : Elementwise<float>{arrays, random, row}.run();
    EXPECT_TRUE(status >= -2 && status <= 4) << current << status;
  });
}

// ---- Streams and distributions ----

using Front = int(int method, RuaStream* stream, int n, void* r, const Values& p);
Front* const fronts[] = {
#define DISTRIBUTION(type, element, name, methods, values, chunk, arguments, parameters, sample) \
  [](int m, RuaStream* s, int n, void* out, [[maybe_unused]] const Values& p) {                  \
    auto* r = static_cast<element*>(out);                                                        \
    return ork_##type##Rng##name arguments;                                                      \
  },
#include "registry/distributions.inc"
#undef DISTRIBUTION
};

RuaStream* any_stream(Random& random) {
  RuaStream* stream = nullptr;
  const uint32_t seed[8] = {random(), random(), random(), random(), 1, 0, random(), random()};
  const int generator = random.from(1, 14);
  int id = generator << 20;
  if (id == RUA_BRNG_WH) id += random.below(273);
  if (id == RUA_BRNG_MT2203) id += random.below(6024);
  if (random.one_in(10)) id = random.pick({int(random()), random.below(280), -1});
  if (random.one_in(3))
    ork_stream_new_points(&stream, id, random.from(-1, 330));
  else if (random.one_in(2))
    ork_stream_new(&stream, id, random());
  else
    ork_stream_new_words(&stream, id, random.from(-1, 8), random.one_in(20) ? nullptr : seed);
  return stream;
}

void use(Random& random, Arrays& arrays, RuaStream* stream) {
  const size_t which = size_t(random.below(int(distributions.size())));
  const Distribution& d = distributions[which];
  Values p = d.sample;
  for (size_t k = 0; k < p.size(); ++k) {
    if (!random.one_in(2)) continue;
    const bool sizes = int(k) == d.values || d.parameters[k].kind == Kind::integer;
    if (d.parameters[k].kind != Kind::array) {
      double x = random.real();
      // A number that tells how long an array is stays below the sample's.
      if (d.parameters[k].kind == Kind::integer)
        x = d.values >= 0 && sizes
                ? random.from(-1, int32_t(p[k]))
                : random.pick({0, 1, -1, 7, 1000, INT32_MAX, INT32_MIN, int(random())});
      p[k].set(0, x);
    } else if (random.one_in(8)) {
      p[k] = nullptr;
    } else {
      for (size_t i = 0; i < p[k].size(); ++i) p[k].set(i, random.real());
    }
  }
  const int n = random.one_in(20) ? -5 : random.below(34);
  const int method = random.one_in(10) ? int(random()) : random.below(d.methods);
  size_t bytes = d.bytes(n > 0 ? n : 0);
  RuaBrngProperties generator;  // whose items UniformBits hands on as they are
  if (std::string(d.name) == "UniformBits" && stream != nullptr && n > 0 &&
      __ruaGetBrngProperties(__ruaGetStreamStateBrng(stream), &generator) == 0)
    bytes = size_t(n) * size_t(generator.wordSize);
  void* r = random.one_in(20) ? nullptr : arrays.make<char>(random, bytes);
  const size_t length = strlen(current);
  snprintf(current + length - 1, 60, " %s method %d\n", d.full_name().c_str(), method);
  fronts[which](method, stream, n, r, p);
  current[length] = 0;
}

// A byte of the file is another, or its end is missing.
void damage(Random& random, const std::string& file) {
  const int length = int(std::filesystem::file_size(file));
  if (random.one_in(4)) return std::filesystem::resize_file(file, uintmax_t(random.below(length)));
  std::fstream bytes(file, std::ios::in | std::ios::out | std::ios::binary);
  bytes.seekp(random.below(random.one_in(2) && length > 64 ? 64 : length));
  bytes.put(char(random()));
}

TEST_F(FrontFuzz, StreamsAndDistributions) {
  ASSERT_EQ(std::size(fronts), distributions.size());
  const std::string file = testing::TempDir() + "front_fuzz_" + std::to_string(getpid());
  rounds("streams", 6000, [&](Random& random) {
    RuaStream *stream = any_stream(random), *other = nullptr;
    for (int step = random.from(1, 6); step > 0; --step) {
      switch (random.below(9)) {
        case 0:
          ork_stream_leapfrog(stream, random.from(-1, 5), random.from(-1, 5));
          break;
        case 1:
          ork_stream_skip(stream, random.pick({int64_t(random.word()), int64_t(random.below(1000)),
                                               INT64_MAX, INT64_MIN, int64_t{-1}}));
          break;
        case 2:
          ork_stream_select(stream, random.from(-1, 330));
          break;
        case 3:
          ork_stream_copy(&other, stream);
          ork_stream_delete(&stream);
          stream = other;
          other = nullptr;
          break;
        case 4:
          if (ork_stream_save(stream, file.c_str()) != 0) break;
          if (random.one_in(2)) damage(random, file);
          ork_stream_load(&other, file.c_str());
          use(random, arrays, other);
          ork_stream_delete(&other);
          break;
        default:
          use(random, arrays, stream);
      }
    }
    ork_stream_delete(&stream);
  });
  unlink(file.c_str());
}

// ---- Statistics ----

int edit(ork_ss_task* task, int code, const double* value) {
  return ork_dSSEditTask(task, code, value);
}
int edit(ork_ss_task* task, int code, const float* value) {
  return ork_sSSEditTask(task, code, value);
}
int edit(ork_ss_task* task, int code, const int32_t* value) {
  return ork_iSSEditTask(task, code, value);
}

struct Pair {
  uint64_t estimate, method;
};
// Estimates and the methods that serve them, as the public layer says itself.
std::vector<Pair> served() {
  std::vector<Pair> pairs;
  const int32_t p = 1;
  ork_ss_task* task = nullptr;
  EXPECT_EQ(ork_dSSNewTask(&task, &p, nullptr, nullptr, nullptr, nullptr, nullptr), 0);
  for (int e = 0; e < 48; ++e)
    for (int m = 0; m < 12; ++m)
      if (ork_ss_compute(task, 1ull << e, 1ull << m, nullptr) != ORK_SS_BAD_METHOD)
        pairs.push_back({1ull << e, 1ull << m});
  ork_ss_delete(&task);
  return pairs;
}

template <class T>
struct Statistics {
  Arrays& arrays;
  Random& random;
  int p, n, orders, groups, record;
  ork_ss_task* task = nullptr;

  Statistics(Arrays& arrays, Random& random)
      : arrays(arrays),
        random(random),
        p(random.from(1, 7)),
        n(random.one_in(8) ? random.from(200, 900) : random.from(1, 40)),
        orders(random.below(5)),
        groups(random.from(1, 4)),
        record(p * (p + 3) / 2) {}

  int32_t* number(int value) {
    int32_t* x = arrays.make<int32_t>(random, 1);
    *x = value;
    return x;
  }
  int code(std::initializer_list<int> valid) {
    return random.one_in(25) ? int(random()) : random.pick(valid);
  }
  int32_t* numbers(int count, int low, int high) {
    int32_t* x = arrays.make<int32_t>(random, size_t(count));
    const bool wild = random.one_in(25);
    for (int i = 0; i < count; ++i) x[i] = random.from(wild ? low - 2 : low, high);
    return x;
  }
  T* reals(int count) { return arrays.fill<T>(random, size_t(count)); }
  T* small(int count, std::initializer_list<double> list) {
    T* x = reals(count);
    for (int i = 0; i < count; ++i) x[i] = T(random.pick(list));
    return x;
  }
  template <class V>
  void set(int c, V* value) {
    if (!random.one_in(25)) edit(task, c, value);
  }
  // A matrix with its storage: as long as that says.
  void matrix(int c, int storage_code, int count = 1) {
    int storage = code({0, 1, 2});
    if (random.one_in(25))
      storage = 0;  // not set: null counts as full
    else
      edit(task, storage_code, number(storage));
    T* m = reals(count * (storage == 1 || storage == 2 ? p * (p + 1) / 2 : p * p));
    if (random.one_in(2))  // one that could be a covariance
      for (int i = 0; i < p; ++i)
        for (int j = 0; j <= i && storage == 0; ++j)
          m[p * i + j] = m[p * j + i] = T(i == j ? 2 : 0.3);
    set(c, m);
  }
  void fields() {
    for (const int c : {ORK_SS_EDIT_MEAN,         ORK_SS_EDIT_RAW2,
                        ORK_SS_EDIT_RAW3,         ORK_SS_EDIT_RAW4,
                        ORK_SS_EDIT_CENTRAL2,     ORK_SS_EDIT_CENTRAL3,
                        ORK_SS_EDIT_CENTRAL4,     ORK_SS_EDIT_KURTOSIS,
                        ORK_SS_EDIT_SKEWNESS,     ORK_SS_EDIT_MIN,
                        ORK_SS_EDIT_MAX,          ORK_SS_EDIT_VARIATION,
                        ORK_SS_EDIT_POOLED_MEAN,  ORK_SS_EDIT_ROBUST_MEAN,
                        ORK_SS_EDIT_SUM,          ORK_SS_EDIT_SUM2,
                        ORK_SS_EDIT_SUM3,         ORK_SS_EDIT_SUM4,
                        ORK_SS_EDIT_CENTRAL_SUM2, ORK_SS_EDIT_CENTRAL_SUM3,
                        ORK_SS_EDIT_CENTRAL_SUM4, ORK_SS_EDIT_MEDIAN_ABS_DEV,
                        ORK_SS_EDIT_MEAN_ABS_DEV})
      set(c, reals(p));
    const int matrices[][2] = {{ORK_SS_EDIT_COV, ORK_SS_EDIT_COV_STORAGE},
                               {ORK_SS_EDIT_COR, ORK_SS_EDIT_COR_STORAGE},
                               {ORK_SS_EDIT_CROSS_PRODUCT, ORK_SS_EDIT_CROSS_PRODUCT_STORAGE},
                               {ORK_SS_EDIT_POOLED_COV, ORK_SS_EDIT_POOLED_COV_STORAGE},
                               {ORK_SS_EDIT_ROBUST_COV, ORK_SS_EDIT_ROBUST_COV_STORAGE},
                               {ORK_SS_EDIT_PARTIAL_COV, ORK_SS_EDIT_PARTIAL_COV_STORAGE},
                               {ORK_SS_EDIT_PARTIAL_COR, ORK_SS_EDIT_PARTIAL_COR_STORAGE},
                               {ORK_SS_EDIT_PARAM_COR, ORK_SS_EDIT_PARAM_COR_STORAGE}};
    for (const auto& m : matrices) matrix(m[0], m[1]);
    matrix(ORK_SS_EDIT_GROUP_COV, ORK_SS_EDIT_GROUP_COV_STORAGE, groups);
    set(ORK_SS_EDIT_GROUP_MEANS, reals(groups * p));
    set(ORK_SS_EDIT_GROUP_INDEX, numbers(n, 0, groups - 1));
    set(ORK_SS_EDIT_GROUP_REQUEST, numbers(groups, 0, 1));
    set(ORK_SS_EDIT_PARTIAL_INDEX, numbers(p, -1, 1));
    if (random.one_in(3)) set(ORK_SS_EDIT_VARIABLE_MASK, numbers(p, 0, 1));
    if (random.one_in(3)) set(ORK_SS_EDIT_WEIGHTS, reals(n));
    if (random.one_in(3)) set(ORK_SS_EDIT_ACCUMULATED_WEIGHT, reals(2));
    for (const int c : {ORK_SS_EDIT_QUANTILE_COUNT, ORK_SS_EDIT_STREAM_ORDER_COUNT})
      set(c, number(random.one_in(25) ? -1 : orders));
    for (const int c : {ORK_SS_EDIT_QUANTILE_ORDERS, ORK_SS_EDIT_STREAM_ORDERS})
      set(c, random.one_in(8) ? reals(orders) : small(orders, {0, 0.25, 0.5, 0.9, 1}));
    for (const int c : {ORK_SS_EDIT_QUANTILES, ORK_SS_EDIT_STREAM_QUANTILES})
      set(c, reals(orders * p));
    set(ORK_SS_EDIT_ORDER_STATS, reals(p * n));
    set(ORK_SS_EDIT_ORDER_STATS_STORAGE, number(code({ORK_SS_ROWS, ORK_SS_COLUMNS})));
    set(ORK_SS_EDIT_STREAM_PARAM_COUNT, number(random.one_in(25) ? 2 : 1));
    set(ORK_SS_EDIT_STREAM_PARAMS, small(1, {0.01, 0.1, 0.5, 1, 0, -1, NAN, 1e-4, 1e-9, 1e-300}));
    set(ORK_SS_EDIT_ROBUST_PARAM_COUNT, number(random.from(3, 4)));
    set(ORK_SS_EDIT_ROBUST_PARAMS, small(4, {0.1, 0.001, 0, 1, -1, 5, 0.4, NAN, INFINITY}));
    set(ORK_SS_EDIT_OUTLIER_PARAM_COUNT, number(random.from(2, 3)));
    set(ORK_SS_EDIT_OUTLIER_PARAMS, small(3, {0.05, 0.005, 0, 1, 2, -1, NAN, INFINITY}));
    set(ORK_SS_EDIT_OUTLIER_WEIGHTS, reals(n));
    missing();
  }
  // Counts that agree with the holes made in the observations, at times.
  void missing() {
    T* x = reals(p * n);
    int holes = 0;
    for (int i = 0; i < p * n; ++i)
      if (random.one_in(9) && holes < 40) x[i] = -T(NAN), ++holes;
    if (random.one_in(3)) set(ORK_SS_EDIT_OBSERVATIONS, x);
    const int imputations = random.from(1, 3), steps = random.from(1, 3);
    T* parameters = small(5, {3});
    parameters[1] = T(steps), parameters[2] = T(0.01), parameters[3] = T(imputations);
    parameters[4] = T(holes);
    if (random.one_in(8)) parameters[random.below(5)] = random.pick({T(-1), T(0), T(2), T(NAN)});
    set(ORK_SS_EDIT_MISSING_PARAM_COUNT, number(random.one_in(25) ? 4 : 5));
    set(ORK_SS_EDIT_MISSING_PARAMS, parameters);
    set(ORK_SS_EDIT_INIT_ESTIMATE_COUNT, number(record));
    set(ORK_SS_EDIT_INIT_ESTIMATES, reals(record));
    set(ORK_SS_EDIT_PRIOR_COUNT, number(record + 2));
    T* prior = reals(record + 2);
    prior[p + 1] = T(random.from(-1, 20));  // degrees of freedom: numbers drawn for each
    set(ORK_SS_EDIT_PRIOR, prior);
    set(ORK_SS_EDIT_SIMULATED_COUNT, number(imputations * holes));
    set(ORK_SS_EDIT_SIMULATED, reals(imputations * holes));
    set(ORK_SS_EDIT_ESTIMATE_COUNT, number(record * imputations * steps));
    set(ORK_SS_EDIT_ESTIMATES, reals(record * imputations * steps));
  }
  void run(const std::vector<Pair>& pairs) {
    const auto make = [&](auto create) {
      return create(&task, number(p), number(n), number(code({ORK_SS_ROWS, ORK_SS_COLUMNS})),
                    reals(p * n), nullptr, nullptr);
    };
    const int made = sizeof(T) == 8 ? make([](auto... a) { return pass(ork_dSSNewTask, a...); })
                                    : make([](auto... a) { return pass(ork_sSSNewTask, a...); });
    if (made != 0) return;
    fields();
    for (int k = 0; k < 6; ++k) {
      uint64_t estimates = 0, method = 0;
      for (int i = random.from(1, 3); i > 0; --i) {
        const Pair& pair = pairs[size_t(random.below(int(pairs.size())))];
        estimates |= pair.estimate, method |= pair.method;
        if (random.one_in(2)) break;
      }
      if (random.one_in(30)) estimates = random.word();
      if (random.one_in(30)) method = random.word();
      const size_t length = strlen(current);
      snprintf(current + length - 1, 60, " p %d n %d %llx %llx\n", p, n,
               (unsigned long long)estimates, (unsigned long long)method);
      const int status = ork_ss_compute(task, estimates, method,
                                        random.one_in(8) ? &ork_threader_parallel : nullptr);
      EXPECT_TRUE(status <= 0 && status > -6000) << current << status;
      current[length - 1] = '\n', current[length] = 0;
      edit(task, random.pick({-1, 0, 78, INT32_MAX}), number(1));
      edit(task, random.below(78), static_cast<T*>(nullptr));
    }
    ork_ss_delete(&task);
  }
  // The constructor of this precision; the other one is never called.
  template <class X>
  static int pass(int (*create)(ork_ss_task**, const int32_t*, const int32_t*, const int32_t*,
                                const X*, const X*, const int32_t*),
                  ork_ss_task** t, const int32_t* p, const int32_t* n, const int32_t* s, const T* x,
                  std::nullptr_t, std::nullptr_t) {
    return create(t, p, n, s, reinterpret_cast<const X*>(x), nullptr, nullptr);
  }
};

TEST_F(FrontFuzz, Statistics) {
  const std::vector<Pair> pairs = served();
  ASSERT_GT(pairs.size(), 30u);
  rounds("statistics", 4000, [&](Random& random) {
    if (random.one_in(2))
      Statistics<double>(arrays, random).run(pairs);
    else
      Statistics<float>(arrays, random).run(pairs);
  });
}

// ---- Splines ----

struct InDouble {
  using T = double;
  static constexpr auto make = ork_dDFNewTask;
  static constexpr auto partition = ork_dDFEditPartition;
  static constexpr auto functions = ork_dDFEditFunctions;
  static constexpr auto spline = ork_dDFEditSpline;
  static constexpr auto row = ork_dDFEditRow;
  static constexpr auto construct = ork_dDFConstruct;
  static constexpr auto values = ork_dDFInterpolate;
  static constexpr auto derivatives = ork_dDFDerivatives;
  static constexpr auto search = ork_dDFSearch;
  static constexpr auto integrate = ork_dDFIntegrate;
};
struct InSingle {
  using T = float;
  static constexpr auto make = ork_sDFNewTask;
  static constexpr auto partition = ork_sDFEditPartition;
  static constexpr auto functions = ork_sDFEditFunctions;
  static constexpr auto spline = ork_sDFEditSpline;
  static constexpr auto row = ork_sDFEditRow;
  static constexpr auto construct = ork_sDFConstruct;
  static constexpr auto values = ork_sDFInterpolate;
  static constexpr auto derivatives = ork_sDFDerivatives;
  static constexpr auto search = ork_sDFSearch;
  static constexpr auto integrate = ork_sDFIntegrate;
};

template <class Api>
struct Splines {
  using T = typename Api::T;
  Arrays& arrays;
  Random& random;
  ork_df_task* task = nullptr;
  int nx = 0, ny = 0, order = 0, type = 0;  // of the task

  T* null_or(T* array) { return random.one_in(25) ? nullptr : array; }
  int64_t hint(std::initializer_list<int> valid) {
    return random.one_in(25) ? int64_t(random.word()) : random.pick(valid);
  }
  T* breakpoints(int n, int64_t xhint) {
    T* x = arrays.fill<T>(random, size_t(xhint == ORK_DF_X_UNIFORM ? 2 : n));
    if (!random.one_in(5))
      std::sort(x, x + (xhint == ORK_DF_X_UNIFORM ? 2 : n),
                [](T a, T b) { return a < b || (b != b && a == a); });
    return null_or(x);
  }
  T* samples(int points, int f, int64_t yhint) {
    return null_or(arrays.fill<T>(random, size_t(points * (yhint == ORK_DF_ROWS_APART ? 1 : f))));
  }
  int points() { return random.one_in(6) ? random.from(100, 400) : random.from(2, 20); }
  int row_length() const { return order * (type == ORK_DF_TYPE_SUBBOTIN ? nx : nx - 1); }

  void partition() {
    const int n = random.one_in(2) ? points() : nx;
    const int64_t xhint = hint({0, 1, 2, 4});
    if (Api::partition(task, n, breakpoints(n, xhint), xhint) == 0) nx = n;
  }
  void functions() {
    const int f = random.from(random.one_in(9) ? -1 : 1, 4);
    const int64_t yhint = hint({0, 16, 32, 128});
    if (Api::functions(task, f, samples(nx, f > 0 ? f : 0, yhint), yhint) == 0) ny = f;
  }
  void spline() {
    static constexpr int kinds[][2] = {{2, 0}, {3, 0}, {3, 1}, {4, 0}, {4, 2}, {4, 3},
                                       {4, 4}, {4, 5}, {0, 6}, {0, 7}, {0, 8}, {6, 0}};
    const auto& kind = kinds[random.below(12)];
    const int old_order = order, old_type = type;
    order = random.one_in(25) ? random.from(-1, 7) : kind[0];
    type = random.one_in(25) ? random.from(-1, 9) : kind[1];
    const int64_t ic = random.pick({0, 1, 2, 8, 12, kind[0] == 3 ? 8 : 1, int(random.below(40))});
    const int inside = ic == 12 ? 2 : ic & 8 ? nx + 1 : nx > 2 ? nx - 2 : 0;
    T* values = arrays.fill<T>(random, size_t(inside));
    if (random.one_in(2)) values = nullptr;
    const int64_t layout = hint({0, 0, 16, 128});
    const int length = order > 0 ? row_length() : 0;
    T* coeffs =
        arrays.fill<T>(random, size_t(length * (layout == ORK_DF_ROWS_APART || ny < 1 ? 1 : ny)));
    T* ends = arrays.fill<T>(random, 2);
    const int bc =
        random.one_in(25) ? int(random()) : random.pick({0, 1, 2, 12, 36, 24, 48, 64, 128});
    if (Api::spline(task, order, type, bc, null_or(ends), values == nullptr && ic != 8 ? 0 : ic,
                    values, random.one_in(5) ? nullptr : coeffs, layout) != 0)
      order = old_order, type = old_type;
  }
  void compute() {
    const ork_threader* threader = random.one_in(4) ? &ork_threader_parallel : nullptr;
    const int n = random.one_in(30)  ? -7
                  : random.one_in(6) ? random.from(500, 1500)
                                     : random.below(70);
    const size_t count = size_t(n > 0 ? n : 0), f = size_t(ny > 0 ? ny : 1);
    const int64_t sites = hint({0, 64, 4});
    T* site = null_or(arrays.fill<T>(random, sites == ORK_DF_SITES_UNIFORM ? 2 : count));
    T* right = null_or(arrays.fill<T>(random, count));
    int32_t* wanted = arrays.make<int32_t>(random, 5);
    size_t outputs = 0;
    for (int k = 0; k < 5; ++k) outputs += size_t(wanted[k] = random.below(2));
    if (random.one_in(25)) wanted[random.below(5)] = 3;
    int status = 0;
    switch (random.below(5)) {
      case 0:
        status = Api::construct(task, threader);
        break;
      case 1:
        status =
            Api::values(task, n, site, sites, null_or(arrays.make<T>(random, count * f)), threader);
        break;
      case 2:
        status = Api::derivatives(task, n, site, sites, 5, wanted,
                                  null_or(arrays.make<T>(random, count * f * outputs)), threader);
        break;
      case 3:
        status = Api::search(task, n, site, sites, arrays.make<int32_t>(random, count), threader);
        break;
      default:
        if (sites != ORK_DF_SITES_UNIFORM)
          status = Api::integrate(task, n, site, right, null_or(arrays.make<T>(random, count * f)),
                                  threader);
    }
    EXPECT_TRUE(status <= 0 && status >= -1500) << current << status;
  }
  void row() {
    const int code = random.one_in(9) ? random.below(30) : random.pick({2, 5});
    const int length = code == ORK_DF_PTR_COEFFS ? row_length() : nx;
    Api::row(task, code, random.from(-1, ny), null_or(arrays.fill<T>(random, size_t(length))));
  }
  void run() {
    nx = points(), ny = random.below(4);
    const int64_t xhint = hint({0, 1, 2, 4}), yhint = hint({0, 16, 32, 128});
    if (Api::make(&task, random.one_in(25) ? int64_t(random.word()) : nx, breakpoints(nx, xhint),
                  xhint, ny, ny > 0 ? samples(nx, ny, yhint) : nullptr, yhint) != 0)
      return;
    spline();
    for (int step = random.from(1, 9); step > 0; --step) {
      switch (random.below(9)) {
        case 0:
          partition();
          break;
        case 1:
          functions();
          break;
        case 2:
          spline();
          break;
        case 3:
          row();
          break;
        default:
          compute();
      }
    }
    ork_df_delete(&task);
  }
};

TEST_F(FrontFuzz, Splines) {
  rounds("splines", 8000, [&](Random& random) {
    if (random.one_in(2))
      Splines<InDouble>{arrays, random}.run();
    else
      Splines<InSingle>{arrays, random}.run();
  });
}

}  // namespace
