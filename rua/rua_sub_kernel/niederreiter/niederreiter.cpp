// Niederreiter's sequence in base 2 (H. Niederreiter, 1988; the choice of free values is that of P.
// Bratley, B. L. Fox and H. Niederreiter, "Algorithm 738", 1994), 318 components by the first
// irreducible polynomials, any number by the caller's own. Tables of up to 318 components stand in
// the stream's words, larger ones in a chunk, direction numbers first, the current point behind.
#include <string.h>

#include "base/scratch.hpp"
#include "rua_sub_kernel/quasi/points.hpp"
#include "rua_sub_kernel/quasi/streams.hpp"
#include "rua_sub_kernel/service/chunks.hpp"

using namespace ork::rua;

namespace {

constexpr int32_t kBuiltIn = 318;  // components, and as many as have room in the state
constexpr uint32_t kChunk = 10;

struct Niederreiter {
  Position at;
  uint32_t x[kBuiltIn];
  uint32_t v[kBuiltIn][33];  // the last of each row is 0
};
static_assert(sizeof(RuaStream) + sizeof(Niederreiter) == 43280);

constexpr uint16_t kPolynomials[] = {
#include "rua_sub_kernel/niederreiter/niederreiter_polynomials.inc"
};
static_assert(sizeof kPolynomials / sizeof kPolynomials[0] == kBuiltIn);

uint64_t chunk_bytes(int32_t d) { return uint64_t(uint32_t(d)) * (kBits + 1) * 4; }

Points in_state(RuaStream* stream) {
  Niederreiter& s = state<Niederreiter>(stream);
  return {.at = &s.at, .x = s.x, .v = s.v[0], .v_stride = 33};
}

Points in_chunk(RuaStream* stream, void* payload) {
  Niederreiter& s = state<Niederreiter>(stream);
  auto* v = static_cast<uint32_t*>(payload);
  return {
      .at = &s.at, .x = v + size_t(uint32_t(s.at.dimension)) * kBits, .v = v, .v_stride = kBits};
}

// One of the two is there, or neither: the built-in polynomials.
struct Source {
  int32_t d;
  const uint32_t *numbers, *polynomials;
  uint32_t polynomial(int32_t j) const { return polynomials ? polynomials[j] : kPolynomials[j]; }
};

Source source_of(int32_t count, const uint32_t* w) {
  if (has_user_data(3, count, w)) {
    const uint64_t n = uint32_t(count), d = w[0];
    if (w[2] == 1 && n >= d + 3) return {int32_t(d), nullptr, w + 3};
    if (w[2] == 4 && n >= kBits * d + 3) return {int32_t(d), w + 3, nullptr};
  }
  return {dimension_within(kBuiltIn, count, w), nullptr, nullptr};
}

// Powers of a polynomial of degree 0 would never have rows enough.
bool usable(const Source& s) {
  for (int32_t j = 0; !s.numbers && j < s.d; ++j)
    if (degree_of(s.polynomial(j)) < 1) return false;
  return true;
}

uint64_t carry_less_product(uint64_t a, uint32_t b) {
  uint64_t r = 0;
  for (; b != 0; b &= b - 1) r ^= a << __builtin_ctz(b);
  return r;
}

// The rows of the generating matrix are windows into sequences that the powers of p generate,
// degree of p of them into each. The q terms before the current one stand in `past`, the oldest in
// bit 0, so that b, too, has its constant term there; q is at most 62.
void make_row(uint32_t p, uint32_t* v) {
  const int32_t e = degree_of(p);
  memset(v, 0, kBits * 4);
  uint64_t b = 1;
  int32_t q = 0;
  for (int32_t row = 0; row < kBits;) {
    b = carry_less_product(b, p);
    const int32_t before = q;
    q += e;
    // Terms `before` to q - 1 are 1, those in front of them 0.
    const uint64_t mask = (uint64_t{1} << q) - 1, taps = b & mask;
    uint64_t past = mask & ~((uint64_t{1} << before) - 1);
    const int32_t rows = e < kBits - row ? e : kBits - row;
    for (int32_t t = 0; t < rows - 1 + kBits; ++t) {  // term t is in bit 0
      for (int32_t k = t < kBits ? 0 : t - kBits + 1; k < rows && k <= t; ++k)
        v[t - k] |= uint32_t(past & 1) << (31 - (row + k));
      past = past >> 1 | uint64_t(__builtin_parityll(past & taps)) << (q - 1);
    }
    row += rows;
  }
}

void make_numbers(const Source& s, uint32_t* v, size_t stride) {
  for (int32_t j = 0; j < s.d; ++j, v += stride)
    if (s.numbers)
      memcpy(v, s.numbers + size_t(j) * kBits, kBits * 4);
    else
      make_row(s.polynomial(j), v);
}

// After a failure the stream has no points.
int32_t seed(RuaStream* stream, int32_t n, const uint32_t* params) {
  Niederreiter& s = state<Niederreiter>(stream);
  memset(&s, 0, sizeof s);
  drop_chunk(stream, kChunk);  // of an earlier seed
  const Source source = source_of(n, params);
  if (!usable(source)) return RUA_STATUS_BAD_ARGUMENT;
  if (source.d <= kBuiltIn) {
    make_numbers(source, s.v[0], 33);
    start(in_state(stream), source.d);
    return RUA_STATUS_OK;
  }
  const uint64_t bytes = chunk_bytes(source.d);
  ork::Scratch<uint32_t> payload(bytes < UINT32_MAX ? bytes / 4 : UINT64_MAX);
  if (!payload) return RUA_STATUS_NO_MEMORY;
  make_numbers(source, payload.get(), kBits);
  s.at.dimension = source.d;
  start(in_chunk(stream, payload.get()), source.d);
  const int32_t status = give_chunk(stream, kChunk, nullptr, payload.release(), uint32_t(bytes));
  if (status < 0) s.at.dimension = 0;
  return status;
}

}  // namespace

Points ork::rua::niederreiter_points(RuaStream* stream, Tables where) {
  const int32_t d = state<Niederreiter>(stream).at.dimension;
  const uint64_t bytes = d > 0 ? chunk_bytes(d) : 0;
  if (where != Tables::kInState) {
    void* payload;
    if (bytes > UINT32_MAX || find_chunk(stream, kChunk, uint32_t(bytes), &payload) < 0) return {};
    if (payload) return checked(in_chunk(stream, payload), INT32_MAX);
    if (where == Tables::kInChunks) return {};
  }
  return checked(in_state(stream), kBuiltIn);
}

ORK_EXPORT int32_t __ruaBRngNiederrInitStream(int32_t method, RuaStream* stream, int32_t n,
                                              const uint32_t* params) {
  if (method == kSeed) return seed(stream, n, params);
  return reposition(method, niederreiter_points(stream), n, params);
}

ORK_GENERATE_POINTS(Niederr, niederreiter_points(stream))
ORK_GENERATE_POINTS(NiederrDefault, niederreiter_points(stream, Tables::kInState))
ORK_GENERATE_POINTS(NiederrUser, niederreiter_points(stream, Tables::kInChunks))
