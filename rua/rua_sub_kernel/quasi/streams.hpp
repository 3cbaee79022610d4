// The two quasi-random generators by name.
#pragma once
#include "base/export.hpp"
#include "rua_sub_kernel/quasi/points.hpp"

namespace ork::rua {

Points sobol_points(RuaStream* stream, Tables where = Tables::kEither);
Points niederreiter_points(RuaStream* stream, Tables where = Tables::kEither);

// Whether a generator's words begin with the tables of a sequence.
inline bool is_quasi_random(const RuaBrngProperties& row) {
  return row.initStream == __ruaBRngSobolInitStream || row.initStream == __ruaBRngNiederrInitStream;
}

// False for a quasi-random stream whose words do not fit its tables.
inline bool has_sound_tables(RuaStream* stream) {
  const RuaBrngProperties& row = properties(stream);
  if (row.initStream == __ruaBRngSobolInitStream) return sobol_points(stream).x;
  if (row.initStream == __ruaBRngNiederrInitStream) return niederreiter_points(stream).x;
  return true;
}

}  // namespace ork::rua

// The three generate functions __rua?BRng<name>, which find their points in `stream` so.
#define ORK_GENERATE_POINTS(name, points)                                                         \
  ORK_EXPORT int32_t __ruasBRng##name(RuaStream* stream, int32_t n, float* r, float a, float b) { \
    return ork::rua::floats(points, n, r, a, b);                                                  \
  }                                                                                               \
  ORK_EXPORT int32_t __ruadBRng##name(RuaStream* stream, int32_t n, double* r, double a,          \
                                      double b) {                                                 \
    return ork::rua::doubles(points, n, r, a, b);                                                 \
  }                                                                                               \
  ORK_EXPORT int32_t __ruaiBRng##name(RuaStream* stream, int32_t n, void* r) {                    \
    return ork::rua::integers(points, n, r);                                                      \
  }
