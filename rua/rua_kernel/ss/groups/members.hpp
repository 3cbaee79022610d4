// Which observations make up each group: sorted once for all groups, so that a group reads its own
// and no others.
#pragma once
#include <string.h>

#include "base/scratch.hpp"
#include "rua_kernel/ss/service/task.hpp"

namespace ork::ss {

// In *groups 1 + the greatest group number. The count has to be a number of 32 bits.
template <class R>
int32_t count_groups(const Task<R>& t, int* groups) {
  int64_t greatest = -1;
  for (int i = 0, n = t.n(); i < n; ++i) {
    const int64_t group = t.integer(t.groupIndex, i);
    if (group < 0) return ORK_SS_BAD_GROUPS;
    if (group > greatest) greatest = group;
  }
  if (greatest >= INT32_MAX) return ORK_SS_BAD_GROUPS;
  *groups = int(greatest) + 1;
  return ORK_SS_OK;
}

class Members {
 public:
  template <class R>
  Members(const Task<R>& t, int groups) : block_(uint64_t(t.n()) + groups + 1), ends_(groups + 1) {
    if (!block_) return;
    // While they are being filled, a group's end is its start plus what it has so far.
    int *const ends = block_.get(), *const sorted = ends + ends_, n = t.n();
    memset(ends, 0, size_t(ends_) * sizeof(int));
    const auto for_all = [&](auto f) {
      for (int i = 0; i < n; ++i)
        if (!t.weights || t.weights[i] != 0) f(i, ends[t.integer(t.groupIndex, i) + 1]);
    };
    for_all([](int, int& count) { ++count; });
    for (int g = 1, before = 0; g < ends_; ++g) {
      const int count = ends[g];
      ends[g] = before;
      before += count;
    }
    for_all([&](int i, int& end) { sorted[end++] = i; });
  }

  explicit operator bool() const { return bool(block_); }
  // Observations of a group, in their order; none of weight 0 among them.
  const int* begin(int group) const { return block_.get() + ends_ + block_[group]; }
  const int* end(int group) const { return block_.get() + ends_ + block_[group + 1]; }

 private:
  Scratch<int> block_;  // ends of the groups, behind a 0; observations group after group
  int ends_;
};

}  // namespace ork::ss
