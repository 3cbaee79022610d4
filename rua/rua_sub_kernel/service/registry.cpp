// The registry: which functions and sizes belong to a generator id.
#include "base/export.hpp"
#include "rua_sub_kernel/service/stream.hpp"

namespace {

using Row = RuaBrngProperties;

// stateSize, seedWords, zeroFlag, wordSize, bitCount, init, s, d, i. Row k has the id
// (k + 1) * 0x100000.
constexpr Row built_in[] = {
    {24, 1, 0, 4, 31, __ruaBRngMCG31M1InitStream, __ruasBRngMCG31M1, __ruadBRngMCG31M1,
     __ruaiBRngMCG31M1},
    {1024, 252, 1, 4, 32, __ruaBRngR250InitStream, __ruasBRngR250, __ruadBRngR250, __ruaiBRngR250},
    {40, 6, 1, 4, 32, __ruaBRngMRG32K3AInitStream, __ruasBRngMRG32K3A, __ruadBRngMRG32K3A,
     __ruaiBRngMRG32K3A},
    {32, 1, 0, 8, 59, __ruaBRngMCG59InitStream, __ruasBRngMCG59, __ruadBRngMCG59, __ruaiBRngMCG59},
    {48, 4, 1, 16, 24, __ruaBRngWHInitStream, __ruasBRngWH, __ruadBRngWH, __ruaiBRngWH},
    {11648, 2604, 0, 4, 32, __ruaBRngSobolInitStream, __ruasBRngSobol, __ruadBRngSobol,
     __ruaiBRngSobol},
    {43280, 10498, 0, 4, 32, __ruaBRngNiederrInitStream, __ruasBRngNiederr, __ruadBRngNiederr,
     __ruaiBRngNiederr},
    {2516, 625, 1, 4, 32, __ruaBRngMT19937InitStream, __ruasBRngMT19937, __ruadBRngMT19937,
     __ruaiBRngMT19937},
    {308, 70, 1, 4, 32, __ruaBRngMT2203InitStream, __ruasBRngMT2203, __ruadBRngMT2203,
     __ruaiBRngMT2203},
    {36, 0, 1, 4, 32, __ruaBRngiAbstractInitStream, __ruasBRngiAbstract, __ruadBRngiAbstract,
     __ruaiBRngiAbstract},
    {52, 0, 1, 4, 32, __ruaBRngdAbstractInitStream, __ruasBRngdAbstract, __ruadBRngdAbstract,
     __ruaiBRngdAbstract},
    {44, 0, 1, 4, 32, __ruaBRngsAbstractInitStream, __ruasBRngsAbstract, __ruadBRngsAbstract,
     __ruaiBRngsAbstract},
    {2536, 625, 1, 4, 32, __ruaBRngSFMT19937InitStream, __ruasBRngSFMT19937, __ruadBRngSFMT19937,
     __ruaiBRngSFMT19937},
    {24, 1, 0, 4, 32, __ruaBRngTRNGInitStream, __ruasBRngTRNG, __ruadBRngTRNG, __ruaiBRngTRNG},
};
constexpr int32_t kBuiltIn = sizeof built_in / sizeof built_in[0];
constexpr int32_t kIdStep = 0x100000;

// Ids from kIdStep on. Rows behind the built-in ones are free for registration.
struct Table {
  static constexpr int32_t kRows = 512;
  Row row[kRows];
  int32_t members[kRows];
  int32_t count;
};
constinit Table current = [] {
  Table t{};
  t.count = kBuiltIn;
  for (int32_t i = 0; i < kBuiltIn; ++i) {
    t.row[i] = built_in[i];
    t.members[i] = 1;
  }
  t.members[RUA_BRNG_WH / kIdStep - 1] = 273;
  t.members[RUA_BRNG_MT2203 / kIdStep - 1] = 6024;
  return t;
}();

// Ids below kIdStep: the first generators, each member of WH under an id of its own.
struct SmallTable {
  static constexpr int32_t kFirstWh = 4, kLastWh = 276, kRows = 279;
  Row row[kRows];

  static constexpr int32_t built_in(int32_t i) {
    return i < kFirstWh ? i : i <= kLastWh ? kFirstWh : kFirstWh + i - kLastWh;
  }
};
constinit SmallTable small = [] {
  SmallTable t{};
  for (int32_t i = 0; i < SmallTable::kRows; ++i) t.row[i] = built_in[SmallTable::built_in(i)];
  return t;
}();

bool below(int32_t i, int32_t limit) { return i >= 0 && i < limit; }

}  // namespace

int32_t ork::rua::built_in_row(const RuaStream* stream) {
  int32_t row, offset;
  const Row* table = __ruaGetBrngBaseOffset(stream->brng, &row, &offset);
  return table == small.row ? SmallTable::built_in(row) : row;
}

ORK_EXPORT RuaBrngProperties* __ruaGetBrngBaseOffset(int32_t brng, int32_t* row, int32_t* offset) {
  if (brng >= kIdStep) {
    *row = brng / kIdStep - 1;
    *offset = brng % kIdStep;
    return current.row;
  }
  const bool wh = brng >= SmallTable::kFirstWh && brng <= SmallTable::kLastWh;
  *row = wh ? SmallTable::kFirstWh : brng;
  *offset = wh ? brng - SmallTable::kFirstWh : 0;
  return small.row;
}

ORK_EXPORT int32_t __ruaIsBrngValid(const RuaBrngProperties* table, int32_t row, int32_t offset) {
  const bool valid = table == small.row ? below(row, SmallTable::kRows)
                                        : table == current.row && below(row, current.count) &&
                                              below(offset, current.members[row]);
  return valid ? RUA_STATUS_OK : RUA_STATUS_BAD_GENERATOR;
}

ORK_EXPORT int32_t __ruaGetBrngProperties(int32_t brng, RuaBrngProperties* out) {
  int32_t row, offset;
  const RuaBrngProperties* table = __ruaGetBrngBaseOffset(brng, &row, &offset);
  const int32_t status = __ruaIsBrngValid(table, row, offset);
  if (status == RUA_STATUS_OK) *out = table[row];
  return status;
}

ORK_EXPORT int32_t __ruaRegisterBrng(const RuaBrngProperties* row) {
  if (row->stateSize < 0) return RUA_STATUS_BAD_STATE_SIZE;
  if (row->wordSize != 4 && row->wordSize != 8 && row->wordSize != 16)
    return RUA_STATUS_BAD_WORD_SIZE;
  if (row->seedWords < 1) return RUA_STATUS_BAD_SEED_WORDS;
  if (row->bitCount < 1) return RUA_STATUS_BAD_BIT_COUNT;
  if (!row->dGenerate || !row->sGenerate || !row->iGenerate || !row->initStream)
    return RUA_STATUS_NULL_POINTER;
  if (current.count == Table::kRows) return RUA_STATUS_BAD_GENERATOR;
  const int32_t place = current.count;
  current.row[place] = *row;
  current.members[place] = 1;
  current.count = place + 1;
  return (place + 1) * kIdStep;
}

ORK_EXPORT int32_t __ruaGetNumRegBrngs(void) { return current.count; }
