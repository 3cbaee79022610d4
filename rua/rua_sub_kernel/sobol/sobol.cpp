// Sobol's sequence (I. M. Sobol', 1967), 40 components by the table of P. Bratley and B. L. Fox,
// "Algorithm 659", 1988, any number by the caller's own. Tables of up to 40 components stand in the
// stream's words, larger ones in two chunks: the direction numbers, which copies of the stream
// share, and the current point.
#include <string.h>

#include "base/scratch.hpp"
#include "rua_sub_kernel/quasi/points.hpp"
#include "rua_sub_kernel/quasi/streams.hpp"
#include "rua_sub_kernel/service/chunks.hpp"

using namespace ork::rua;

namespace {

constexpr int32_t kBuiltIn = 40;  // components, and as many as have room in the state
constexpr uint32_t kTablesChunk = 9, kPointChunk = 13;

struct Sobol {
  Position at;
  uint32_t unused[8];
  uint32_t x[kBuiltIn];
  uint32_t v[kBuiltIn][33];  // the last of each row is 0
  uint32_t t[kBits][48];
};
static_assert(sizeof(RuaStream) + sizeof(Sobol) == 11648);

// Words of a row of the turned table in a chunk: whole cache lines, and room behind the last.
uint32_t turned_stride(int32_t d) { return (uint32_t(d) & ~15u) + 16; }

uint64_t tables_bytes(int32_t d) {
  return uint64_t(kBits) * 4 * (uint32_t(d) + uint64_t(turned_stride(d)));
}

Points in_state(RuaStream* stream) {
  Sobol& s = state<Sobol>(stream);
  return {.at = &s.at,
          .x = s.x,
          .v = s.v[0],
          .v_stride = 33,
          .t = s.t[0],
          .t_stride = 48,
          .padded = true};
}

Points in_chunks(RuaStream* stream, void* tables, void* point) {
  Sobol& s = state<Sobol>(stream);
  const auto* v = static_cast<const uint32_t*>(tables);
  const auto d = uint32_t(s.at.dimension);
  return {.at = &s.at,
          .x = static_cast<uint32_t*>(point),
          .v = v,
          .v_stride = kBits,
          .t = v + size_t(d) * kBits,
          .t_stride = turned_stride(int32_t(d)),
          .padded = false};
}

// Components from `first` on have a polynomial and a row of initial values of their own, those
// before it have all m = 1; or the direction numbers are there already.
struct Source {
  int32_t d;
  const uint32_t *numbers, *polynomials;
  int32_t first;
  const uint32_t* initial;
  uint32_t columns;  // of `initial`
};

struct Row {
  uint32_t polynomial, initial[8];
};
constexpr Row kRows[] = {
#include "rua_sub_kernel/sobol/sobol_rows.inc"
};
static_assert(sizeof kRows / sizeof kRows[0] == kBuiltIn - 1);

struct BuiltIn {
  uint32_t polynomials[kBuiltIn - 1], initial[(kBuiltIn - 1) * 8];
};
constexpr BuiltIn built_in = [] {
  BuiltIn b{};
  for (int j = 0; j < kBuiltIn - 1; ++j) {
    b.polynomials[j] = kRows[j].polynomial;
    for (int i = 0; i < 8; ++i) b.initial[8 * j + i] = kRows[j].initial[i];
  }
  return b;
}();

// The parameter block; one that says nothing valid means the built-in numbers.
Source source_of(int32_t count, const uint32_t* w) {
  const int32_t within = dimension_within(kBuiltIn, count, w);
  const Source standard = {within, nullptr, built_in.polynomials, 1, built_in.initial, 8};
  if (!has_user_data(4, count, w)) return standard;
  const uint64_t n = uint32_t(count), d = w[0];
  Source s = standard;
  s.d = int32_t(d);
  switch (w[2]) {
    case 1:  // polynomials
      s.polynomials = w + 3;
      return d <= kBuiltIn && n >= d + 2 ? s : standard;
    case 2:  // initial values
      s.initial = w + 4;
      s.columns = w[3];
      return d <= kBuiltIn && n >= (d - 1) * s.columns + 4 ? s : standard;
    case 3:     // both
    case 11: {  // both, of the first component, too
      const uint64_t rows = w[2] == 3 ? d - 1 : d;
      if (n < rows + 4) return standard;
      s.first = int32_t(d - rows);
      s.polynomials = w + 3;
      s.columns = w[3 + rows];
      s.initial = w + 4 + rows;
      return n >= rows * (s.columns + uint64_t{1}) + 4 ? s : standard;
    }
    case 4:  // direction numbers
      s.numbers = w + 3;
      return n >= kBits * d + 3 ? s : standard;
    default:
      return standard;
  }
}

// The recurrence needs a polynomial of degree 1 at least and as many initial values.
bool usable(const Source& s) {
  for (int32_t j = s.first; !s.numbers && j < s.d; ++j) {
    const int32_t degree = degree_of(s.polynomials[j - s.first]);
    if (degree < 1 || uint32_t(degree) > s.columns) return false;
  }
  return true;
}

void make_row(const Source& s, int32_t j, uint32_t* v) {
  if (s.numbers) {
    memcpy(v, s.numbers + size_t(j) * kBits, kBits * 4);
    return;
  }
  uint32_t m[kBits];
  if (j < s.first) {
    for (uint32_t& value : m) value = 1;
  } else {
    const uint32_t p = s.polynomials[j - s.first];
    const int32_t e = degree_of(p);
    memcpy(m, s.initial + size_t(j - s.first) * s.columns, size_t(e) * 4);
    for (int32_t i = e; i < kBits; ++i) {
      m[i] = m[i - e];
      for (int32_t t = 0; t < e; ++t)
        if (p >> t & 1) m[i] ^= m[i - e + t] << (e - t);
    }
  }
  for (int32_t i = 0; i < kBits; ++i) v[i] = m[i] << (31 - i);
}

void make_tables(const Source& s, uint32_t* v, size_t v_stride, uint32_t* t, size_t t_stride) {
  for (int32_t j = 0; j < s.d; ++j, v += v_stride) {
    make_row(s, j, v);
    for (int32_t i = 0; i < kBits; ++i) t[i * t_stride + j] = v[i];
  }
}

int32_t make_chunks(RuaStream* stream, const Source& s) {
  const uint64_t bytes = tables_bytes(s.d);
  const uint32_t words = uint32_t(s.d) * kBits;
  ork::Scratch<uint32_t> tables(bytes < UINT32_MAX ? bytes / 4 : UINT64_MAX), x(uint32_t(s.d));
  if (!tables || !x) return RUA_STATUS_NO_MEMORY;
  memset(tables.get() + words, 0, size_t(bytes) - size_t(words) * 4);
  make_tables(s, tables.get(), kBits, tables.get() + words, turned_stride(s.d));
  start(in_chunks(stream, tables.get(), x.get()), s.d);

  uint32_t key[4];
  __ruaGenerateNewGlobalRODataTableEntryId(key, int32_t(reinterpret_cast<intptr_t>(tables.get())));
  int32_t status = give_chunk(stream, kTablesChunk, key, tables.release(), uint32_t(bytes));
  if (status < 0) return status;
  status = give_chunk(stream, kPointChunk, nullptr, x.release(), uint32_t(s.d) * 4);
  if (status < 0) drop_chunk(stream, kTablesChunk);
  return status;
}

// After a failure the stream has no points.
int32_t seed(RuaStream* stream, int32_t n, const uint32_t* params) {
  Sobol& s = state<Sobol>(stream);
  memset(&s, 0, sizeof s);
  drop_chunk(stream, kTablesChunk);  // of an earlier seed
  drop_chunk(stream, kPointChunk);
  const Source source = source_of(n, params);
  if (!usable(source)) return RUA_STATUS_BAD_ARGUMENT;
  if (source.d <= kBuiltIn) {
    make_tables(source, s.v[0], 33, s.t[0], 48);
    start(in_state(stream), source.d);
    return RUA_STATUS_OK;
  }
  s.at.dimension = source.d;
  const int32_t status = make_chunks(stream, source);
  if (status < 0) s.at.dimension = 0;
  return status;
}

}  // namespace

Points ork::rua::sobol_points(RuaStream* stream, Tables where) {
  const int32_t d = state<Sobol>(stream).at.dimension;
  const uint64_t bytes = d > 0 ? tables_bytes(d) : 0;
  if (where != Tables::kInState) {
    void *tables, *point;
    const bool short_one = bytes > UINT32_MAX ||
                           find_chunk(stream, kTablesChunk, uint32_t(bytes), &tables) < 0 ||
                           find_chunk(stream, kPointChunk, uint32_t(d) * 4, &point) < 0;
    if (short_one) return {};
    if (tables && point) return checked(in_chunks(stream, tables, point), INT32_MAX);
    if (where == Tables::kInChunks) return {};
  }
  return checked(in_state(stream), kBuiltIn);
}

ORK_EXPORT int32_t __ruaBRngSobolInitStream(int32_t method, RuaStream* stream, int32_t n,
                                            const uint32_t* params) {
  if (method == kSeed) return seed(stream, n, params);
  return reposition(method, sobol_points(stream), n, params);
}

ORK_GENERATE_POINTS(Sobol, sobol_points(stream))
ORK_GENERATE_POINTS(SobolDefault, sobol_points(stream, Tables::kInState))
ORK_GENERATE_POINTS(SobolUser, sobol_points(stream, Tables::kInChunks))
