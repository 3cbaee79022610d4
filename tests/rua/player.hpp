#pragma once
// A generator that the test writes, and the thread state that draws have to leave as it was.
#include "ork/zem.h"
#include "rua/stream_fixture.hpp"

// A registered generator that plays a list of numbers from 0 to 1 over and over, and fails in
// one of its calls.
struct Player {
  std::vector<double> list;
  size_t next = 0;
  int calls = 0, failing = -1;
};
inline Player player;
inline constexpr int32_t kFailure = -77;

template <class R>
int32_t play(RuaStream*, int32_t n, R* r, R a, R b) {
  if (player.calls++ == player.failing) return kFailure;
  for (int i = 0; i < n; ++i)
    r[i] = a + (b - a) * R(player.list[player.next++ % player.list.size()]);
  return 0;
}

inline Stream player_stream(std::vector<double> list, int failing = -1) {
  static const int32_t id = [] {
    RuaBrngProperties row = {};
    row.stateSize = 32, row.seedWords = 1, row.wordSize = 4, row.bitCount = 32;
    row.initStream = [](int32_t, RuaStream*, int32_t, const uint32_t*) { return 0; };
    row.sGenerate = play<float>, row.dGenerate = play<double>;
    row.iGenerate = [](RuaStream*, int32_t, void*) { return 0; };
    return __ruaRegisterBrng(&row);
  }();
  player = {std::move(list), 0, 0, failing};
  return Stream(id, {1});
}

// The thread's mode, callback and last status, put back at the end.
struct ThreadState {
  uint32_t mode = ork_zem_kernel_GetMode();
  ork_error_callback callback = ork_zem_kernel_GetErrorCallBack();
  ~ThreadState() {
    ork_zem_kernel_SetErrorCallBack(callback);
    ork_zem_kernel_SetMode(mode);
    ork_zem_kernel_ClearErrStatus();
  }
};
