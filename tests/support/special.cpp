#include "support/special.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>

#include "support/bits.hpp"

namespace {

std::vector<Event> events;
const double* replacement;
uint32_t mode_before;

int32_t record(ork_error_record* e) {
  events.push_back({e->status, e->index, e->a1, e->a2, e->r1, e->r2,
                    std::string(e->name, size_t(e->name_length))});
  if (replacement) {
    e->r1 = e->r2 = *replacement;
    e->r1_im = e->r2_im = *replacement + 1;  // read for complex elements only
  }
  return 0;
}

}  // namespace

void support::start_recording(const double* value) {
  events.clear();
  replacement = value;
  mode_before = ork_zem_kernel_GetMode();
  ork_zem_kernel_SetErrorCallBack(record);
  ork_zem_kernel_SetMode(ORK_ZEM_ERRMODE_CALLBACK);
}

std::vector<Event> support::stop_recording() {
  ork_zem_kernel_ClearErrorCallBack();
  ork_zem_kernel_SetMode(mode_before);
  return events;
}

namespace {

template <class T>
bool is_quiet_nan(T x) {
  return std::isnan(x) && (bits(x) >> (sizeof(T) == 8 ? 51 : 22) & 1);
}

template <class T>
bool matches(T got, T expected, bool exact_nan) {
  if (std::isnan(expected) && !exact_nan) return is_quiet_nan(got);
  return bits(got) == bits(expected);
}

template <class T>
std::string show(T x) {
  char text[64];
  snprintf(text, sizeof text, "%.17g (0x%llx)", double(x), (unsigned long long)bits(x));
  return text;
}

// Arrays of a call at an element offset from a 16-byte boundary.
template <class T>
struct Arrays {
  alignas(16) T storage[4][64];
  T *a, *b, *r, *r2;
  Arrays(int offset, bool in_place) {
    a = storage[0] + offset, b = storage[1] + offset;
    r = in_place ? a : storage[2] + offset, r2 = storage[3] + offset;
  }
};

template <class T>
struct Check {
  const SpecialTable<T>& table;
  Call<T> call;
  T clean_r, clean_r2;

  std::string where(const SpecialCase<T>& c, int n, int place, int offset, bool in_place) const {
    return call.slot->name(call.level) + "(" + show(c.a) +
           (call.inputs() == 2 || call.slot->form == Form::scalar ? ", " + show(c.b) : "") +
           ") at " + std::to_string(place) + " of " + std::to_string(n) + ", offset " +
           std::to_string(offset) + (in_place ? ", in place" : "");
  }

  void run(const SpecialCase<T>& c, int n, int place, int offset, bool in_place,
           const double* replace) {
    Arrays<T> x(offset, in_place);
    for (int i = 0; i < n; ++i) x.a[i] = table.clean_a, x.b[i] = table.clean_b;
    memcpy(x.a + place, &c.a, sizeof(T));
    // Powx has one exponent for the whole vector.
    const bool scalar = call.slot->form == Form::scalar;
    memcpy(scalar ? x.b : x.b + place, &c.b, sizeof(T));
    const auto seen = record_events([&] { call(n, x.a, x.b, x.r, x.r2); }, replace);
    SCOPED_TRACE(where(c, n, place, offset, in_place));
    const bool replaced = replace && c.status != 0;
    const bool ok = replaced ? x.r[place] == T(*replace) : matches(x.r[place], c.r, c.exact_nan);
    ASSERT_TRUE(ok) << "got " << show(x.r[place]) << " want "
                    << (replaced ? "the callback's value" : show(c.r));
    if (call.outputs() == 2) {
      const bool ok2 =
          replaced ? x.r2[place] == T(*replace) : matches(x.r2[place], c.r2, c.exact_nan);
      ASSERT_TRUE(ok2) << "second result " << show(x.r2[place]) << " want " << show(c.r2);
    }
    if (!scalar)
      for (int i = 0; i < n; ++i)
        if (i != place) {
          ASSERT_EQ(bits(x.r[i]), bits(clean_r)) << "clean lane " << i;
          if (call.outputs() == 2) {
            ASSERT_EQ(bits(x.r2[i]), bits(clean_r2)) << "clean lane " << i;
          }
        }
    if (scalar && c.status == 0) return;
    const Event* event = nullptr;
    int count = 0;
    for (const Event& e : seen)
      if (e.index == place) event = &e, ++count;
    if (!scalar) {
      ASSERT_EQ(seen.size(), size_t(c.status != 0)) << "events";
    }
    ASSERT_EQ(count, c.status != 0) << "events of the element";
    if (c.status == 0) return;
    ASSERT_EQ(event->status, c.status);
    ASSERT_EQ(event->name, table.error_name);
    if (!in_place && !std::isnan(c.a)) {
      ASSERT_EQ(bits(event->a1), bits(double(c.a)));
    }
    ASSERT_TRUE(matches(event->r1, double(c.r), false)) << "reported result " << show(event->r1);
  }
};

}  // namespace

template <class T>
void check_special(const SpecialTable<T>& table) {
  for (const Slot& slot : slots) {
    if (slot.type != (sizeof(T) == 8 ? 'd' : 's') || strcmp(slot.function, table.function) != 0)
      continue;
    ASSERT_TRUE(slot.exists(table.level)) << slot.name(table.level);
    Check<T> check{table, {&slot, table.level}, 0, 0};
    check.call(1, &table.clean_a, &table.clean_b, &check.clean_r, &check.clean_r2);
    const double replacement = 42;
    const int width = 16 / sizeof(T);
    for (const SpecialCase<T>& c : table.cases) {
      for (int n = 1; n <= 5 * width; ++n)  // every tail, and every lane of two blocks and a tail
        for (int place = n > 4 * width ? 0 : n - 1; place < n; ++place)
          for (const bool in_place : {false, true}) {
            check.run(c, n, place, 0, in_place, nullptr);
            if (testing::Test::HasFatalFailure()) return;
          }
      for (int place = 0; place < 5 * width; ++place) {
        check.run(c, 5 * width, place, 1 + place % 3, false, &replacement);
        if (testing::Test::HasFatalFailure()) return;
      }
    }
    if (slot.form == Form::scalar) return;
    // All cases side by side: one event each, in index order.
    const int n = int(table.cases.size());
    std::vector<T> a, b, r(table.cases.size()), r2(r);
    for (const auto& c : table.cases) a.push_back(c.a), b.push_back(c.b);
    const auto seen =
        record_events([&] { check.call(n, a.data(), b.data(), r.data(), r2.data()); });
    size_t next = 0;
    for (int i = 0; i < n; ++i) {
      const auto& c = table.cases[size_t(i)];
      EXPECT_TRUE(matches(r[size_t(i)], c.r, c.exact_nan)) << check.where(c, n, i, 0, false);
      if (c.status == 0) continue;
      ASSERT_LT(next, seen.size());
      EXPECT_EQ(seen[next].index, i);
      EXPECT_EQ(seen[next++].status, c.status);
    }
    EXPECT_EQ(next, seen.size());
    return;
  }
  ADD_FAILURE() << "no such function: " << table.function;
}

template void check_special<double>(const SpecialTable<double>&);
template void check_special<float>(const SpecialTable<float>&);
