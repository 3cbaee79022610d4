// What a task keeps of the observations that went by: for each variable epochs, each twice as
// long as the one before; in an epoch a sorted buffer (level 0), and above it summaries of half
// as many values, where level l stands for 2^(l - 1) buffers. Two summaries of a level merge into
// one of the next.
#pragma once
#include <stddef.h>

#include "ork/serv.h"
#include "rua_kernel/ss/quantiles/summary.hpp"

namespace ork::ss {

struct Epoch {
  int32_t consumed;     // observations
  int32_t blockSize;    // capacity of a level
  int32_t levelCount;   // above level 0
  int32_t topLevel;     // highest one in use so far
  int32_t bufferCount;  // observations in level 0
  int32_t* occupied;    // by level; owns the block
  void* values;         // a row of blockSize + 1 for each level
  int32_t *rankMin, *rankMax;

  int half() const { return blockSize / 2; }
  template <class R>
  Summary<R> level(int l, int count) const {
    const size_t at = size_t(l) * (size_t(blockSize) + 1);
    return {static_cast<R*>(values) + at, rankMin + at, rankMax + at, count};
  }
};

struct Variable {
  int32_t epochCount;
  int32_t currentEpoch;  // -1: none yet
  int32_t active;
  Epoch* epochs;
};

// The records stand behind one that counts them, in epochCount: the state can be released when
// the caller's arrays are gone.
inline int variables_in(const Variable* state) { return state[-1].epochCount; }

inline void release_state(Variable* state) {
  for (int j = 0; j < variables_in(state); ++j) {
    Variable& variable = state[j];
    for (int e = 0; e < variable.epochCount; ++e) ork_serv_deallocate(variable.epochs[e].occupied);
    if (variable.epochs) ork_serv_deallocate(variable.epochs);
  }
  ork_serv_deallocate(state - 1);
}

struct EpochSize {
  int32_t observations;
  int32_t block, levels;
};
// Epoch e for an error of epsilon times the count; block 0: too large for any memory.
EpochSize epoch_size(int e, double epsilon);

// Appends epoch e unless the variable has it. False: no memory, nothing changed.
bool open_epoch(Variable& variable, int e, const EpochSize& size, size_t real);

}  // namespace ork::ss
