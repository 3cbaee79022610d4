// Abstract streams: numbers from a ring of the caller's, which a callback of the caller's
// refills. One template for the integer, the double and the single form.
#include "base/export.hpp"
#include "rua_sub_kernel/service/stream.hpp"

using namespace ork::rua;

namespace {

template <class T>
using Refill = int32_t (*)(RuaStream*, int32_t*, T*, int32_t*, int32_t*, int32_t*);

// The range of the numbers in the ring, and its map to the range asked for. Integers go
// through as they are.
template <class T>
struct Range {
  T lower, upper;
};
template <>
struct Range<uint32_t> {};

template <class T>
struct Ring {
  int32_t size;
  int32_t read;  // next element to deliver
  int32_t used;  // elements already delivered, free for refilling
  [[no_unique_address]] Range<T> range;
  T* buffer;  // the caller's
  Refill<T> refill;
};
static_assert(sizeof(RuaStream) + sizeof(Ring<uint32_t>) == 36);
static_assert(sizeof(RuaStream) + sizeof(Ring<double>) == 52);
static_assert(sizeof(RuaStream) + sizeof(Ring<float>) == 44);

// Delivers n numbers. The stream moves only if all of them are there.
template <class T, class Map>
int32_t deliver(RuaStream* stream, int32_t n, T* r, Map map) {
  Ring<T>& ring = state<Ring<T>>(stream);
  if (!ring.buffer) return RUA_STATUS_NULL_POINTER;
  if (n < 1) return RUA_STATUS_OK;  // below 0 it would make delivered numbers count as new
  const int32_t size = ring.size;
  T* const buffer = ring.buffer;
  int32_t read = ring.read;

  const auto take = [&](int32_t count) {
    while (count > 0) {
      const int32_t piece = count < size - read ? count : size - read;
      for (int32_t i = 0; i < piece; ++i) *r++ = map(buffer[read + i]);
      read = read + piece == size ? 0 : read + piece;
      count -= piece;
    }
  };

  const int32_t available = size - ring.used;
  int32_t used = ring.used + n;
  if (n <= available) {
    take(n);
  } else {
    take(available);
    int32_t remaining = n - available;
    while (remaining > 0) {
      // The ring is empty here: all of it is room, and writing begins where reading stands.
      // The callback gets copies, so that it cannot move the ring.
      int32_t size_told = size, room = size, write = read;
      int32_t want = remaining < size ? remaining : size;
      const int32_t got = ring.refill(stream, &size_told, buffer, &want, &room, &write);
      if (got < 0 || got > size) return RUA_STATUS_ABSTRACT_CALLBACK;
      if (got == 0) return RUA_STATUS_ABSTRACT_NO_DATA;
      const int32_t now = remaining < got ? remaining : got;
      take(now);
      remaining -= now;
      used = size - got + now;
    }
  }
  ring.read = read;
  ring.used = used;
  return RUA_STATUS_OK;
}

template <class T>
int32_t deliver_scaled(RuaStream* stream, int32_t n, T* r, T a, T b) {
  const Range<T> range = state<Ring<T>>(stream).range;
  const T scale = (b - a) / (range.upper - range.lower);
  return deliver(stream, n, r, [=](T v) { return (v - range.lower) * scale + a; });
}

// The words of a parameter block are addresses.
template <class T>
uint32_t word(T* pointer) {
  return reinterpret_cast<uintptr_t>(pointer);
}
template <class T>
T pointer(uint32_t word) {
  return reinterpret_cast<T>(uintptr_t{word});
}

template <class T>
int32_t init(int32_t method, RuaStream* stream, const uint32_t* params) {
  Ring<T>& ring = state<Ring<T>>(stream);
  switch (method) {
    case kSeed:
      ring.size = ring.used = *pointer<const int32_t*>(params[0]);
      ring.read = 0;
      ring.buffer = pointer<T*>(params[1]);
      if constexpr (sizeof(Ring<T>) == 20) {
        ring.refill = pointer<Refill<T>>(params[2]);
      } else {
        ring.range = {*pointer<const T*>(params[2]), *pointer<const T*>(params[3])};
        ring.refill = pointer<Refill<T>>(params[4]);
      }
      return RUA_STATUS_OK;
    case kLeapfrog:
      return RUA_STATUS_NO_LEAPFROG;
    case kSkipAhead:
      return RUA_STATUS_NO_SKIPAHEAD;
    default:
      return RUA_STATUS_BAD_METHOD;
  }
}

int32_t make(RuaStream** stream, int32_t brng, int32_t count, const uint32_t* block) {
  int32_t row, offset;
  RuaBrngProperties* table = __ruaGetBrngBaseOffset(brng, &row, &offset);
  const int32_t status = __ruaAllocateStream(stream, table, brng, row, offset);
  if (status < 0) return status;
  return table[row].initStream(kSeed, *stream, count, block);
}

template <class T>
int32_t make_scaled(RuaStream** stream, int32_t brng, int32_t n, T* ring, T a, T b,
                    Refill<T> refill) {
  if (n < 1 || !ring || !refill || !(a < b)) return RUA_STATUS_BAD_ARGUMENT;
  const uint32_t block[10] = {word(&n), word(ring), word(&a), word(&b), word(refill)};
  return make(stream, brng, 10, block);
}

// A stream of numbers of one type does not have the forms of the others.
template <class... Arguments>
int32_t wrong_form(const Arguments&...) {
  return RUA_STATUS_ABSTRACT_WRONG_FORM;
}

}  // namespace

ORK_EXPORT int32_t __ruaiNewAbstractStream(RuaStream** stream, int32_t n, uint32_t* ibuf,
                                           RuaIRefill icallback) {
  if (n < 1 || !ibuf || !icallback) return RUA_STATUS_BAD_ARGUMENT;
  const uint32_t block[6] = {word(&n), word(ibuf), word(icallback)};
  return make(stream, RUA_BRNG_IABSTRACT, 6, block);
}

ORK_EXPORT int32_t __ruadNewAbstractStream(RuaStream** stream, int32_t n, double* dbuf, double a,
                                           double b, RuaDRefill dcallback) {
  return make_scaled(stream, RUA_BRNG_DABSTRACT, n, dbuf, a, b, dcallback);
}

ORK_EXPORT int32_t __ruasNewAbstractStream(RuaStream** stream, int32_t n, float* sbuf, float a,
                                           float b, RuaSRefill scallback) {
  return make_scaled(stream, RUA_BRNG_SABSTRACT, n, sbuf, a, b, scallback);
}

#define ORK_INIT(t, T)                                                                            \
  ORK_EXPORT int32_t __ruaBRng##t##AbstractInitStream(int32_t method, RuaStream* stream, int32_t, \
                                                      const uint32_t* params) {                   \
    return init<T>(method, stream, params);                                                       \
  }
ORK_INIT(i, uint32_t)
ORK_TWINS(ORK_INIT)

ORK_GENERATE(iAbstract, wrong_form(stream, n, r, a, b), wrong_form(stream, n, r, a, b),
             deliver(stream, n, r, [](uint32_t v) { return v; }))
ORK_GENERATE(dAbstract, wrong_form(stream, n, r, a, b), deliver_scaled(stream, n, r, a, b),
             wrong_form(stream, n, r))
ORK_GENERATE(sAbstract, deliver_scaled(stream, n, r, a, b), wrong_form(stream, n, r, a, b),
             wrong_form(stream, n, r))
