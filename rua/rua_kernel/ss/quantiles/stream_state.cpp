#include "rua_kernel/ss/quantiles/stream_state.hpp"

#include <string.h>

#include "base/scratch.hpp"
#include "rua_sub_kernel/math/ln.hpp"

namespace ork::ss {

EpochSize epoch_size(int e, double epsilon) {
  const auto until = [&](int k) {  // observations before epoch k - 1, and some
    return __builtin_floor((__builtin_ldexp(1, k) - 1) / epsilon);
  };
  const double largest = 0x7fffffff, observations = until(e + 2) - until(e + 1);
  const double u = ln(epsilon * observations) * 1.4426950408889634;  // 1 / ln 2
  const double block = __builtin_floor(u / epsilon);
  EpochSize size;
  size.observations = observations < largest ? int32_t(observations) : 0x7fffffff;
  // Large epsilons would give blocks of none.
  size.block = block < 1 ? 1 : block < largest / 2 ? int32_t(block) : 0;
  size.levels = int32_t(__builtin_floor(u + 2));
  if (size.levels < 1) size.levels = 1;
  return size;
}

bool open_epoch(Variable& variable, int e, const EpochSize& size, size_t real) {
  if (variable.currentEpoch >= e) return true;
  if (size.block == 0) return false;
  const uint64_t levels = uint64_t(size.levels) + 1, values = levels * (uint64_t(size.block) + 1);
  const uint64_t head = (levels * sizeof(int32_t) + 127) / 128 * 128;
  Scratch<char> block(head + values * (real + 2 * sizeof(int32_t)));
  if (!block) return false;
  Scratch<Epoch> epochs(variable.epochCount + 1);
  if (!epochs) return false;

  if (variable.epochCount > 0)
    memcpy(epochs.get(), variable.epochs, size_t(variable.epochCount) * sizeof(Epoch));
  Epoch& epoch = epochs[variable.epochCount];
  memset(&epoch, 0, sizeof epoch);
  epoch.blockSize = size.block;
  epoch.levelCount = size.levels;
  char* const start = block.get();
  memset(start, 0, size_t(head));
  epoch.occupied = reinterpret_cast<int32_t*>(start);
  epoch.values = start + head;
  epoch.rankMin = reinterpret_cast<int32_t*>(start + head + values * real);
  epoch.rankMax = epoch.rankMin + values;
  block.release();
  if (variable.epochs) ork_serv_deallocate(variable.epochs);
  variable.epochs = epochs.release();
  variable.currentEpoch = variable.epochCount++;
  return true;
}

}  // namespace ork::ss
