#pragma once
#include <stddef.h>

// The service layer's memory, with an account: blocks alive, and the k-th allocation failing.
// A program that uses this has the library call it in place of libork_outer.so.

namespace blocks {

// Blocks allocated and not released. Releasing what is not alive, or a block that was written
// beyond its end, aborts the program.
int live();

// The k-th allocation from now on (from 1) gives null; 0 ends that. Later ones succeed.
void fail(int k);

// Whether that allocation came.
bool failed();

// The least alignment that was asked for since the last call; 0: no allocation.
size_t least_alignment();

// While one lives, every allocation gives null.
struct None {
  None();
  ~None();
};

// Runs `attempt` with the first, the second... allocation failing, until a run asks for fewer
// blocks than that. The attempt may ask failed() how it has to end. Returns the number of
// allocations of the last, undisturbed run.
template <class Attempt>
int fail_each(Attempt attempt) {
  for (int k = 1;; ++k) {
    fail(k);
    attempt();
    const bool reached = failed();
    fail(0);
    if (!reached) return k - 1;
  }
}

}  // namespace blocks
