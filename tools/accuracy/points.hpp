#pragma once
// Arguments to measure at.
#include <cstdint>
#include <vector>

#include "registry/claims.hpp"

// xorshift64*, seeded by function, so that a measurement can be repeated.
struct Random {
  uint64_t state;
  uint64_t next() {
    state ^= state >> 12, state ^= state << 25, state ^= state >> 27;
    return state * 2685821657736338717u;
  }
  double uniform() { return double(next() >> 11) * 0x1p-53; }
};

template <class T>
struct Points {
  std::vector<T> a, b;
};

// About `count` arguments: the declared ranges in equal shares; random bit patterns, a tenth;
// every power of two and its neighbours; the declared neighbourhoods. Binary: both inputs.
template <class T>
Points<T> make_points(const Claims& claims, const std::string& function, bool binary, int count);
