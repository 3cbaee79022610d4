// The points of a digital sequence in base 2, in the order of the Gray code (I. A. Antonov, V. M.
// Saleev, 1979): one bit of the code changes from a point to the next, so that a step adds one
// direction number to each component. Shared by the generators that differ in those numbers alone.
#pragma once
#include "rua_sub_kernel/service/stream.hpp"

namespace ork::rua {

constexpr uint32_t kAllComponents = 0xFFFFFFFF;

// The words that every quasi-random state begins with.
struct Position {
  uint32_t counter;   // number of the current point, from 1; the last number ends the sequence
  int32_t dimension;  // components of a point
  uint32_t selected;  // the component that alone is emitted, or kAllComponents
  int32_t pending;    // components of the current point that are still to come, 0: all of them
};

// A stream as the routines below see it. Without `x` its words are not those of a sequence.
struct Points {
  Position* at = nullptr;
  uint32_t* x = nullptr;        // the current point
  const uint32_t* v = nullptr;  // v[j * v_stride + l]: what bit l of the code adds to component j
  uint32_t v_stride = 0;
  const uint32_t* t = nullptr;  // the same numbers, t[l * t_stride + j], or null
  uint32_t t_stride = 0;
  bool padded = false;  // x and the rows of t have room for whole vectors
};

// Where a generator looks for its tables.
enum class Tables { kEither, kInState, kInChunks };

// `points` with the tables that are there, if the position is within them; else without any.
inline Points checked(const Points& points, int32_t most) {
  const Position& at = *points.at;
  const bool good = at.dimension > 0 && at.dimension <= most && at.pending >= 0 &&
                    at.pending < at.dimension &&
                    (at.selected == kAllComponents || at.selected < uint32_t(at.dimension));
  return good ? points : Points{};
}

// The first point, behind the one of zeros.
void start(const Points& points, int32_t dimension);

// The generate functions. BAD_GENERATOR without x; SEQUENCE_ENDED when n more points would pass
// the last number, whatever the dimension.
int32_t integers(const Points& points, int32_t n, void* r);
int32_t doubles(const Points& points, int32_t n, double* r, double a, double b);
int32_t floats(const Points& points, int32_t n, float* r, float a, float b);

// The methods of init but seeding.
int32_t reposition(int32_t method, const Points& points, int32_t n, const uint32_t* params);

// What the parameter blocks of both generators have in common: word 0 is the dimension, which
// becomes 1 when it is out of range; word 1 tells whether the caller's own numbers follow.
inline int32_t dimension_within(int32_t most, int32_t n, const uint32_t* params) {
  const int32_t d = n > 0 ? int32_t(params[0]) : 1;
  return d > 0 && d <= most ? d : 1;
}
inline bool has_user_data(int32_t least, int32_t n, const uint32_t* params) {
  return n >= least && int32_t(params[0]) > 0 && params[1] == 1;
}

// 0 for the polynomials 0 and 1.
inline int32_t degree_of(uint32_t polynomial) {
  return polynomial == 0 ? 0 : 31 - __builtin_clz(polynomial);
}

constexpr int32_t kBits = 32;  // of a component, direction numbers of a component

}  // namespace ork::rua
