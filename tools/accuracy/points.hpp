#pragma once
// Arguments to measure at.
#include <cstdint>
#include <functional>
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

// The same number of arguments where numbers run out: every binade of the type in equal shares,
// twice as many in the outermost 64 at either end; second inputs within four binades of the first,
// or of what takes its product or quotient to an end of the range, or anywhere. Then `thicken`
// neighbours, within 2^-8, for each one whose result, by exponent(a, b), lies within 60 binades of
// an end. For a power, second inputs are such that the result does.
template <class T>
Points<T> make_end_points(const Claims& claims, const std::string& function, bool binary,
                          bool power, int count, const std::function<int(T, T)>& exponent);
