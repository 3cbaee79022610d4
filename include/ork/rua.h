/* Random streams: generators, their registry, and what a stream carries.
 *
 * A stream is one independently seeded instance of a basic generator. It is a record on
 * the heap, made by a constructor, a copy or a load, and released by __ruaDeleteStream.
 * A stream belongs to one thread at a time; different streams may run side by side.
 *
 * Every function returns a 32-bit status unless its comment says otherwise: 0 is
 * success, a negative value one of the RUA_STATUS codes. Nothing is printed and no
 * global error state is set. Handles, counts and parameters are the caller's to check
 * beyond what is said here: a stream argument must be a live stream.
 */
#ifndef ORK_RUA_H
#define ORK_RUA_H

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/* ---- Status codes ------------------------------------------------------------------ */

enum {
  RUA_STATUS_OK = 0,
  RUA_STATUS_BAD_METHOD = -2,        /* an init function does not know the method */
  RUA_STATUS_BAD_ARGUMENT = -3,      /* abstract constructors, quasi-random parameter blocks */
  RUA_STATUS_NO_MEMORY = -4,         /* an allocation failed */
  RUA_STATUS_NULL_POINTER = -5,      /* null function in a row, null ring of an abstract stream */
  RUA_STATUS_BAD_GENERATOR = -1000,  /* the id names no row or no member; the registry is full */
  RUA_STATUS_NO_LEAPFROG = -1002,    /* the generator has no leapfrog */
  RUA_STATUS_NO_SKIPAHEAD = -1003,   /* the generator has no skip-ahead */
  RUA_STATUS_BAD_STATE_SIZE = -1008, /* registration: stateSize negative */
  RUA_STATUS_BAD_WORD_SIZE = -1009,  /* registration: wordSize not 4, 8 or 16 */
  RUA_STATUS_BAD_SEED_WORDS = -1010, /* registration: seedWords below 1 */
  RUA_STATUS_BAD_BIT_COUNT = -1011,  /* registration: bitCount below 1 */
  RUA_STATUS_SEQUENCE_ENDED = -1012, /* a quasi-random sequence has run out */
  RUA_STATUS_BAD_LEAPFROG_COUNT = -1013,     /* leapfrog: negative number of streams */
  RUA_STATUS_NO_BITS_FORM = -1014,           /* the generator has no uniform-bits form */
  RUA_STATUS_FILE_CLOSE = -1100,             /* closing a stream file failed */
  RUA_STATUS_FILE_OPEN = -1101,              /* opening a stream file failed */
  RUA_STATUS_FILE_WRITE = -1102,             /* writing a stream file failed */
  RUA_STATUS_FILE_READ = -1103,              /* reading a stream image failed */
  RUA_STATUS_BAD_FILE_FORMAT = -1110,        /* the header of a stream file is wrong */
  RUA_STATUS_BAD_FILE_VERSION = -1111,       /* the version of a stream file is above 1 */
  RUA_STATUS_ABSTRACT_CALLBACK = -1120,      /* refill returned a count below 0 or above the room */
  RUA_STATUS_ABSTRACT_NO_DATA = -1121,       /* refill returned 0 */
  RUA_STATUS_ABSTRACT_WRONG_FORM = -1122,    /* an abstract stream has not the form asked for */
  RUA_STATUS_NO_HARDWARE_RANDOM = -1130,     /* the processor has no RDRAND */
  RUA_STATUS_HARDWARE_RANDOM_FAILED = -1131, /* RDRAND failed too often */
  RUA_STATUS_BAD_MEMORY_FORMAT = -1200,      /* the header of a memory image is wrong */
  RUA_STATUS_NO_SHARED_ENTRY = -3000,        /* no row of the shared table has this key */
  RUA_STATUS_SHARED_TABLE_FULL = -3001       /* the shared table has no free row */
};

/* ---- Generator ids ----------------------------------------------------------------- */

enum {
  RUA_BRNG_MCG31M1 = 0x100000,
  RUA_BRNG_R250 = 0x200000,
  RUA_BRNG_MRG32K3A = 0x300000,
  RUA_BRNG_MCG59 = 0x400000,
  RUA_BRNG_WH = 0x500000, /* + member, 0 to 272 */
  RUA_BRNG_SOBOL = 0x600000,
  RUA_BRNG_NIEDERR = 0x700000,
  RUA_BRNG_MT19937 = 0x800000,
  RUA_BRNG_MT2203 = 0x900000, /* + member, 0 to 6023; seed members differently, see below */
  RUA_BRNG_IABSTRACT = 0xA00000,
  RUA_BRNG_DABSTRACT = 0xB00000,
  RUA_BRNG_SABSTRACT = 0xC00000,
  RUA_BRNG_SFMT19937 = 0xD00000,
  RUA_BRNG_NONDETERM = 0xE00000
};

/* Members of MT2203 seeded alike start from the same state words: their recurrences draw apart
 * only by and by, and for some 450 numbers the streams are visibly related. Give each member a
 * seed of its own (the member's number will do), or skip that many.
 *
 * Ids below 0x100000 address an older table with the same generators: 0 MCG31M1, 1 R250,
 * 2 MRG32K3A, 3 MCG59, 4 to 276 the members of WH, 277 Sobol, 278 Niederreiter. A stream
 * keeps the id it was made with. */

/* ---- Records ----------------------------------------------------------------------- */

typedef struct RuaChunk RuaChunk;
typedef struct RuaStream RuaStream;

/* A block of data that hangs on a stream: parameters of distributions, tables of
 * quasi-random generators. 32 bytes; the stream owns node and payload. */
struct RuaChunk {
  uint32_t chunkId; /* the owner's key */
  uint32_t size;    /* bytes at data */
  void* data;       /* payload, private or shared */
  RuaChunk* next;
  uint32_t sharedId[4]; /* all zero: private; else the key of a row of the shared table */
};

/* Head of a stream record: 16 bytes. The generator's own words follow it. */
struct RuaStream {
  int32_t brng;        /* generator id */
  uint8_t allocated;   /* 1 */
  uint8_t reserved[3]; /* 0 */
  RuaChunk* chunks;    /* newest first, or null */
  uint32_t reserved2;  /* 0: the slot of the pointer is 64 bits wide */
};

/* Sets a stream up: method 0 seeds it from n words at params; method 1 is leapfrog (n is
 * the number of streams, params[0] the number of this one); method 2 is skip-ahead
 * (params[0] and params[1] are the low and high word of a signed count). Another method
 * gives RUA_STATUS_BAD_METHOD. */
typedef int32_t (*RuaInitStream)(int32_t method, RuaStream* stream, int32_t n,
                                 const uint32_t* params);

/* Generate n numbers, n at least 1: real ones scaled to the interval from a to b, or n
 * items of wordSize bytes. */
typedef int32_t (*RuaSGenerate)(RuaStream* stream, int32_t n, float* r, float a, float b);
typedef int32_t (*RuaDGenerate)(RuaStream* stream, int32_t n, double* r, double a, double b);
typedef int32_t (*RuaIGenerate)(RuaStream* stream, int32_t n, void* r);

/* A generator, as the registry holds it: nine 32-bit words. */
typedef struct RuaBrngProperties {
  int32_t stateSize; /* bytes of the whole stream record, 16 bytes of head included */
  int32_t seedWords; /* the seed state has seedWords * wordSize bytes */
  int32_t zeroFlag;  /* a property that is stored and reported, and read by nothing here */
  int32_t wordSize;  /* bytes of one integer item: 4, 8 or 16 */
  int32_t bitCount;  /* significant bits of one integer word */
  RuaInitStream initStream;
  RuaSGenerate sGenerate;
  RuaDGenerate dGenerate;
  RuaIGenerate iGenerate;
} RuaBrngProperties;

/* A row of the process-wide table of shared read-only data. */
typedef struct RuaSharedRow {
  uint32_t sharedId[4];
  uint32_t refCount;
  void* data;
} RuaSharedRow;

/* ---- Streams ----------------------------------------------------------------------- */

/* Makes a stream of generator `brng` and seeds it from n words at params (params may be
 * null when n is 0). BAD_GENERATOR: no such generator, or an abstract one (these have
 * constructors of their own); *stream is as it was. NO_MEMORY: *stream is null. A status
 * of the generator's init function: the record stays in *stream for the caller to
 * delete. */
int32_t __ruaNewStreamEx(RuaStream** stream, int32_t brng, int32_t n, const uint32_t* params);

/* The step under all constructors: checks row and offset, allocates a record of
 * table[row].stateSize bytes (16 at least), aligned to 128, and fills its head. The
 * generator's words are left unset. */
int32_t __ruaAllocateStream(RuaStream** stream, RuaBrngProperties* table, int32_t brng, int32_t row,
                            int32_t offset);

/* Releases record and chunks and sets *stream to null. A null *stream is allowed. */
int32_t __ruaDeleteStream(RuaStream** stream);

/* A new stream that goes on as the source would. Shared chunks are shared with it, other
 * chunks are copied. If a chunk cannot be copied (NO_MEMORY) the copy stays in
 * *newStream, without chunks, for the caller to delete. */
int32_t __ruaCopyStream(RuaStream** newStream, const RuaStream* source);

/* Copies the seed state (seedWords * wordSize bytes, no further than the generator's
 * words reach) and replaces the target's chunks by copies of the source's. Both streams
 * must be of one generator. For MCG31M1 and MCG59 the multiplier that leapfrog set stays
 * the target's own. On NO_MEMORY the target has no chunks. */
int32_t __ruaCopyStreamState(RuaStream* target, const RuaStream* source);

/* The stream goes on with elements k, k + nstreams, k + 2 nstreams... of its sequence.
 * Quasi-random generators select component k instead, with nstreams = 0x7FFFFFFF.
 * BAD_LEAPFROG_COUNT for a negative nstreams, NO_LEAPFROG from generators without it. */
int32_t __ruaLeapfrogStream(RuaStream* stream, int32_t k, int32_t nstreams);

/* Passes over nskip elements. NO_SKIPAHEAD from generators without it. NO_MEMORY (MT19937 and
 * SFMT19937, by 2^20 and more): the stream is as it was. */
int32_t __ruaSkipAheadStream(RuaStream* stream, int64_t nskip);

/* The id the stream was made with (not a status). */
int32_t __ruaGetStreamStateBrng(const RuaStream* stream);

/* ---- Registry ---------------------------------------------------------------------- */

/* The table an id belongs to, its row there, and the number of the family member. Checks
 * nothing. */
RuaBrngProperties* __ruaGetBrngBaseOffset(int32_t brng, int32_t* row, int32_t* offset);

/* 0, or BAD_GENERATOR if the table has no such row or the row no such member. */
int32_t __ruaIsBrngValid(const RuaBrngProperties* table, int32_t row, int32_t offset);

/* Copies the row of an id. BAD_GENERATOR: no such generator; *out is as it was. */
int32_t __ruaGetBrngProperties(int32_t brng, RuaBrngProperties* out);

/* Adds a generator and returns its id (positive; the first is 0xF00000), or a status, in
 * this order of checks: BAD_STATE_SIZE, BAD_WORD_SIZE, BAD_SEED_WORDS, BAD_BIT_COUNT,
 * NULL_POINTER, and BAD_GENERATOR when all 512 rows are taken. Rows stay for the life of
 * the process. Calls must not overlap with each other. */
int32_t __ruaRegisterBrng(const RuaBrngProperties* row);

/* The number of generators, 14 at the start (not a status). */
int32_t __ruaGetNumRegBrngs(void);

/* ---- Chunks ------------------------------------------------------------------------ */

/* Hangs `size` bytes at `data`, from ork_serv_allocate, on the stream, which owns them
 * from then on. With a key of the shared table that is live, the chunk uses the row's
 * data and their size instead (and `data`, unless it is the same, stays the caller's); a
 * new key makes a row while fewer than 127 exist, beyond that the chunk stays private. sharedId may
 * be null. NO_MEMORY: nothing has changed. */
int32_t __ruaAddChunk(RuaStream* stream, uint32_t chunkId, const uint32_t* sharedId, void* data,
                      uint32_t size);

/* The payload of the newest chunk of that id, or null. Chunks 1 to 10 and 13 are the
 * library's own; where one is shorter than what is kept in it, the function that reads it
 * answers BAD_GENERATOR and draws nothing. */
void* __ruaSearchChunk(const RuaStream* stream, uint32_t chunkId);

/* The number of chunks (not a status). */
int32_t __ruaGetNumChunks(const RuaStream* stream);

/* Adds copies of the source's chunks to the target, shared data being shared. On a
 * failure the target is left without chunks. */
int32_t __ruaCopyChunks(RuaStream* target, const RuaStream* source);

/* Releases all chunks. */
int32_t __ruaDeleteChunks(RuaStream* stream);

/* ---- Shared read-only data --------------------------------------------------------- *
 * 128 rows, found by a key of four words of which one at least is not zero. Every function
 * takes the table's spin lock for itself. */

/* Stores the address of the key's row, which holds until a row is removed. Otherwise, and
 * for a null or zero key, NO_SHARED_ENTRY. */
int32_t __ruaFindGlobRODataTableEntry(RuaSharedRow** row, const uint32_t* sharedId);

/* Appends a row with one reference, without looking whether the key is there already.
 * SHARED_TABLE_FULL; NO_SHARED_ENTRY for a null or zero key. */
int32_t __ruaCreateGlobRODataTableEntry(RuaSharedRow** row, const uint32_t* sharedId, void* data);

/* Counts one more reference to the key's row and points the chunk at its data; the size
 * follows where a chunk made the row.
 * NO_SHARED_ENTRY: the chunk is as it was. */
int32_t __ruaRegisterGlobRODataReference(RuaChunk* chunk, const uint32_t* sharedId);

/* Takes one reference back; with the last one the row's data are released and the row is
 * removed. An unknown key changes nothing. Returns 0. */
int32_t __ruaUnregisterGlobRODataReference(const uint32_t* sharedId);

/* A key that is not in the table: the time stamp counter, then tag as 64 bits. */
int32_t __ruaGenerateNewGlobalRODataTableEntryId(uint32_t* sharedId, int32_t tag);

/* The processor's time stamp counter (not a status). */
uint64_t ruatsRDTSC(void);

/* ---- Abstract streams -------------------------------------------------------------- *
 * Numbers come from a ring of n elements that belongs to the caller and must outlive the
 * stream; when it runs dry, the callback refills it. A stream of one form feeds only
 * kernels of that form; the others give ABSTRACT_WRONG_FORM. No leapfrog, no skip-ahead. */

/* Writes numbers into the ring, from *writeIndex on, wrapping at *ringSize, and returns
 * their count: from 1 to *room. *want is what the running request still needs, at most
 * *room. What it changes behind the pointers is not read back. A count of 0 ends the
 * request with ABSTRACT_NO_DATA, one below 0 or above the room with ABSTRACT_CALLBACK;
 * numbers delivered so far stay in the output, and the stream stands where it stood. */
typedef int32_t (*RuaIRefill)(RuaStream* stream, int32_t* ringSize, uint32_t* ring, int32_t* want,
                              int32_t* room, int32_t* writeIndex);
typedef int32_t (*RuaDRefill)(RuaStream* stream, int32_t* ringSize, double* ring, int32_t* want,
                              int32_t* room, int32_t* writeIndex);
typedef int32_t (*RuaSRefill)(RuaStream* stream, int32_t* ringSize, float* ring, int32_t* want,
                              int32_t* room, int32_t* writeIndex);

/* New streams with an empty ring. The numbers of the real forms lie from a to b.
 * BAD_ARGUMENT: n below 1, no ring, no callback, or a not below b; *stream is as it was. */
int32_t __ruaiNewAbstractStream(RuaStream** stream, int32_t n, uint32_t* ibuf,
                                RuaIRefill icallback);
int32_t __ruadNewAbstractStream(RuaStream** stream, int32_t n, double* dbuf, double a, double b,
                                RuaDRefill dcallback);
int32_t __ruasNewAbstractStream(RuaStream** stream, int32_t n, float* sbuf, float a, float b,
                                RuaSRefill scallback);

/* ---- Images ------------------------------------------------------------------------ *
 * A stream as bytes: a head of 16 bytes, the generator's words, the chunks. A loaded
 * stream goes on exactly where the saved one stood. The image of an abstract stream holds
 * pointers of this process.
 *
 * name: `len` characters that need no terminator, or a terminated string if len is
 * negative. */

/* FILE_OPEN, FILE_WRITE, FILE_CLOSE, NO_MEMORY. After a failure the file may be there,
 * complete or not. */
int32_t __ruaSaveStreamF(const RuaStream* stream, const char* name, int32_t len);

/* FILE_OPEN, FILE_READ (too short), BAD_FILE_FORMAT, BAD_FILE_VERSION, FILE_CLOSE,
 * NO_HARDWARE_RANDOM, NO_MEMORY; *stream is null after each. BAD_FILE_FORMAT is also the
 * answer to a chunk of the library's own that is too short for its content. */
int32_t __ruaLoadStreamF(RuaStream** stream, const char* name, int32_t len);

/* Writes __ruaGetStreamSize(stream) bytes at memptr. */
int32_t __ruaSaveStreamM(const RuaStream* stream, void* memptr);

/* BAD_MEMORY_FORMAT (also for the version and for chunks too short), NO_HARDWARE_RANDOM,
 * NO_MEMORY, and FILE_READ for chunks under a version byte above 1; *stream is null after
 * each. The image must be whole: its length is not passed. */
int32_t __ruaLoadStreamM(RuaStream** stream, const void* memptr);

/* Bytes of the stream's image (not a status). */
int32_t __ruaGetStreamSize(const RuaStream* stream);

/* ---- Generators -------------------------------------------------------------------- *
 * One init function and three generate functions each, in the shapes of the typedefs
 * above; the registry calls them, and so may a caller with a stream of that generator.
 *
 * Real forms: z * ((b - a) * C) + a, in double, z being the integer output and C the step
 * of the generator; the single form rounds the double result once. SFMT19937, WH, Sobol,
 * Niederreiter and the non-deterministic generator have forms of their own.
 *
 * Seeding: words that are missing or not valid are replaced, so that every seed works. */

/* x <- 1132489760 x mod 2^31 - 1 (L'Ecuyer 1999). Emits x itself, 1 to 2^31 - 2. C is the
 * double nearest to 1/(2^31 - 1). Seed: one word, 0 modulo 2^31 - 1 becomes 1. Leapfrog and
 * skip-ahead. */
int32_t __ruaBRngMCG31M1InitStream(int32_t method, RuaStream*, int32_t n, const uint32_t* params);
int32_t __ruasBRngMCG31M1(RuaStream*, int32_t n, float* r, float a, float b);
int32_t __ruadBRngMCG31M1(RuaStream*, int32_t n, double* r, double a, double b);
int32_t __ruaiBRngMCG31M1(RuaStream*, int32_t n, void* r);
/* base^(high:low) mod 2^31 - 1 (not a status); exponent 0 gives 1. */
uint32_t __ruaiPowMod2P31M1(uint32_t base, uint32_t low, uint32_t high);

/* Generalised feedback shift register, w(n) = w(n-250) ^ w(n-103) (Kirkpatrick, Stoll
 * 1981). C = 2^-32. Seed: 250 words, or one. Neither leapfrog nor skip-ahead. */
int32_t __ruaBRngR250InitStream(int32_t method, RuaStream*, int32_t n, const uint32_t* params);
int32_t __ruasBRngR250(RuaStream*, int32_t n, float* r, float a, float b);
int32_t __ruadBRngR250(RuaStream*, int32_t n, double* r, double a, double b);
int32_t __ruaiBRngR250(RuaStream*, int32_t n, void* r);

/* Combined multiple recursive generator (L'Ecuyer 1999). Emits 0 to 2^32 - 210; C is the
 * double nearest to 1/(2^32 - 209). Seed: six words. Skip-ahead, no leapfrog. */
int32_t __ruaBRngMRG32K3AInitStream(int32_t method, RuaStream*, int32_t n, const uint32_t* params);
int32_t __ruasBRngMRG32K3A(RuaStream*, int32_t n, float* r, float a, float b);
int32_t __ruadBRngMRG32K3A(RuaStream*, int32_t n, double* r, double a, double b);
int32_t __ruaiBRngMRG32K3A(RuaStream*, int32_t n, void* r);
/* vector <- M^(high:low) vector, M the companion matrix of a recurrence of order 3 whose
 * coefficients are row[0] (newest) to row[2] (oldest); modulus below 2^32. The vector is
 * oldest first. */
void __ruaiVect3PowMod(uint32_t* vector, const uint32_t* row, uint32_t modulus, uint32_t low,
                       uint32_t high);

/* x <- 13^13 x mod 2^59. Emits x itself, a uint64 an item. C = 2^-59. Seed: two words, low
 * first. Leapfrog and skip-ahead. */
int32_t __ruaBRngMCG59InitStream(int32_t method, RuaStream*, int32_t n, const uint32_t* params);
int32_t __ruasBRngMCG59(RuaStream*, int32_t n, float* r, float a, float b);
int32_t __ruadBRngMCG59(RuaStream*, int32_t n, double* r, double a, double b);
int32_t __ruaiBRngMCG59(RuaStream*, int32_t n, void* r);
/* base^(high:low) mod 2^59 (not a status). */
uint64_t __ruaiPowMod2P59(uint32_t baseLow, uint32_t baseHigh, uint32_t low, uint32_t high);

/* Family of 273 Wichmann-Hill generators, each of four multiplicative parts; an item is the
 * four states, 16 bytes, and the real forms take the fraction of the sum of x/m. Seed: four
 * words. Leapfrog and skip-ahead. */
int32_t __ruaBRngWHInitStream(int32_t method, RuaStream*, int32_t n, const uint32_t* params);
int32_t __ruasBRngWH(RuaStream*, int32_t n, float* r, float a, float b);
int32_t __ruadBRngWH(RuaStream*, int32_t n, double* r, double a, double b);
int32_t __ruaiBRngWH(RuaStream*, int32_t n, void* r);
/* base^(high:low) mod modulus (not a status), modulus below 2^32. */
uint32_t __ruaiPowMod(uint32_t base, uint32_t low, uint32_t high, uint32_t modulus);
/* 1/m rounded to nearest, for the four moduli of each member. */
extern const double _ruadWH_IM_Tab[273][4];

/* Mersenne Twister MT19937 (Matsumoto, Nishimura 1998). C = 2^-32. Seed: any number of
 * words. Skip-ahead, no leapfrog. */
int32_t __ruaBRngMT19937InitStream(int32_t method, RuaStream*, int32_t n, const uint32_t* params);
int32_t __ruasBRngMT19937(RuaStream*, int32_t n, float* r, float a, float b);
int32_t __ruadBRngMT19937(RuaStream*, int32_t n, double* r, double a, double b);
int32_t __ruaiBRngMT19937(RuaStream*, int32_t n, void* r);

/* Family of 6024 Mersenne Twisters of period 2^2203 - 1 for independent streams (dynamic
 * creation, Matsumoto, Nishimura 2000). C = 2^-32. Seed: any number of words. Neither
 * leapfrog nor skip-ahead. */
int32_t __ruaBRngMT2203InitStream(int32_t method, RuaStream*, int32_t n, const uint32_t* params);
int32_t __ruasBRngMT2203(RuaStream*, int32_t n, float* r, float a, float b);
int32_t __ruadBRngMT2203(RuaStream*, int32_t n, double* r, double a, double b);
int32_t __ruaiBRngMT2203(RuaStream*, int32_t n, void* r);

/* SIMD-oriented Fast Mersenne Twister (Saito, Matsumoto 2008). Real forms: the word as a
 * signed number times (b - a) 2^-32, plus (a + b)/2; the single form works in float. Seed:
 * any number of words. Skip-ahead, no leapfrog. */
int32_t __ruaBRngSFMT19937InitStream(int32_t method, RuaStream*, int32_t n, const uint32_t* params);
int32_t __ruasBRngSFMT19937(RuaStream*, int32_t n, float* r, float a, float b);
int32_t __ruadBRngSFMT19937(RuaStream*, int32_t n, double* r, double a, double b);
int32_t __ruaiBRngSFMT19937(RuaStream*, int32_t n, void* r);

/* ---- Quasi-random sequences -------------------------------------------------------- *
 * Points of a sequence of low discrepancy in d dimensions, component by component, in the
 * order of the Gray code, from Gray number 1 on: the point of zeros is left out. Integer
 * items are the 32 bits behind the binary point. Real forms: C = 2^-32; the single form works
 * in float: the word as a signed number, 2^32 more if negative, times (b - a) 2^-32, plus a.
 *
 * SEQUENCE_ENDED, with nothing drawn, when point number + n would exceed 2^32 - 1; n counts
 * numbers, not points. BAD_GENERATOR: state or chunks that are not those of a sequence, as
 * after a failed seed or copy.
 *
 * Leapfrog with nstreams = 0x7FFFFFFF selects component k, from the current point on, or from
 * the next where it was emitted already; from one selected component to another it goes on with
 * the point behind the current one. NO_LEAPFROG for other arguments. Skip-ahead passes over
 * numbers of the whole sequence, also when one component is selected; NO_SKIPAHEAD, with
 * nothing changed, when point number + nskip/d would reach 2^32 - 1. Its time depends on the
 * bits that change in the point's number, not on nskip.
 *
 * Seed: a block of n words. Word 0 is d; with n = 0 d is 1. Words 1 and 2 are 1 and an option if
 * numbers of the caller's own follow. Blocks that are too short for their option, unknown
 * options and a d that is out of range without data of the caller's own are no errors: the
 * built-in tables serve, and a d above their range becomes 1. User tables beyond the built-in
 * dimensions are kept in chunks (NO_MEMORY). Polynomials: bit k is the coefficient of x^k; one
 * without a power of x gives BAD_ARGUMENT.
 *
 * Sobol's sequence, up to 40 dimensions (Bratley, Fox 1988). Options, n >= 4:
 *    1  d <= 40, n >= d + 2: polynomials of dimensions 1 to d - 1 from word 3 on
 *    2  d <= 40, n >= (d - 1) m + 4: word 3 is m; rows of m initial values from word 4 on
 *    3  n >= (d - 1)(m + 1) + 4: polynomials as in 1; m in word d + 2; rows from d + 3 on
 *    4  n >= 32 d + 3: 32 direction numbers a dimension from word 3 on
 *   11  n >= d (m + 1) + 4: as 3, dimension 0 included: m in word d + 3, rows from d + 4 on
 * BAD_ARGUMENT when a polynomial's degree exceeds the initial values of its row (8 for the
 * built-in ones). Initial value i counts in units of 2^-(i + 1) and should be odd and below
 * 2^(i + 1), polynomials primitive and different: neither is checked.
 *
 * User tables beyond 40 dimensions are shared by copies and loads of the stream (chunk 9, chunk
 * 13 holding the current point). The forms "Default" and "User" take the tables of the state
 * and of the chunks; the plain ones the chunks if both are there. */
int32_t __ruaBRngSobolInitStream(int32_t method, RuaStream*, int32_t n, const uint32_t* params);
int32_t __ruasBRngSobol(RuaStream*, int32_t n, float* r, float a, float b);
int32_t __ruadBRngSobol(RuaStream*, int32_t n, double* r, double a, double b);
int32_t __ruaiBRngSobol(RuaStream*, int32_t n, void* r);
int32_t __ruasBRngSobolDefault(RuaStream*, int32_t n, float* r, float a, float b);
int32_t __ruadBRngSobolDefault(RuaStream*, int32_t n, double* r, double a, double b);
int32_t __ruaiBRngSobolDefault(RuaStream*, int32_t n, void* r);
int32_t __ruasBRngSobolUser(RuaStream*, int32_t n, float* r, float a, float b);
int32_t __ruadBRngSobolUser(RuaStream*, int32_t n, double* r, double a, double b);
int32_t __ruaiBRngSobolUser(RuaStream*, int32_t n, void* r);

/* Niederreiter's sequence in base 2, up to 318 dimensions by the first irreducible polynomials
 * (Niederreiter 1988; Bratley, Fox, Niederreiter 1994). Options, n >= 3:
 *    1  n >= d + 3: polynomials of all dimensions from word 3 on, which should be irreducible
 *       and different
 *    4  n >= 32 d + 3: 32 direction numbers a dimension from word 3 on
 * User tables beyond 318 dimensions stand in chunk 10, which copies of the stream copy. */
int32_t __ruaBRngNiederrInitStream(int32_t method, RuaStream*, int32_t n, const uint32_t* params);
int32_t __ruasBRngNiederr(RuaStream*, int32_t n, float* r, float a, float b);
int32_t __ruadBRngNiederr(RuaStream*, int32_t n, double* r, double a, double b);
int32_t __ruaiBRngNiederr(RuaStream*, int32_t n, void* r);
int32_t __ruasBRngNiederrDefault(RuaStream*, int32_t n, float* r, float a, float b);
int32_t __ruadBRngNiederrDefault(RuaStream*, int32_t n, double* r, double a, double b);
int32_t __ruaiBRngNiederrDefault(RuaStream*, int32_t n, void* r);
int32_t __ruasBRngNiederrUser(RuaStream*, int32_t n, float* r, float a, float b);
int32_t __ruadBRngNiederrUser(RuaStream*, int32_t n, double* r, double a, double b);
int32_t __ruaiBRngNiederrUser(RuaStream*, int32_t n, void* r);

/* Abstract streams. The init functions take the words the constructors make: addresses of
 * n, ring, (addresses of a and b,) callback. Real forms: (v - lower) * scale + a, with
 * scale = (b - a)/(upper - lower); NULL_POINTER when the stream's ring is null. */
int32_t __ruaBRngiAbstractInitStream(int32_t method, RuaStream*, int32_t n, const uint32_t* params);
int32_t __ruasBRngiAbstract(RuaStream*, int32_t n, float* r, float a, float b);
int32_t __ruadBRngiAbstract(RuaStream*, int32_t n, double* r, double a, double b);
int32_t __ruaiBRngiAbstract(RuaStream*, int32_t n, void* r);
int32_t __ruaBRngdAbstractInitStream(int32_t method, RuaStream*, int32_t n, const uint32_t* params);
int32_t __ruasBRngdAbstract(RuaStream*, int32_t n, float* r, float a, float b);
int32_t __ruadBRngdAbstract(RuaStream*, int32_t n, double* r, double a, double b);
int32_t __ruaiBRngdAbstract(RuaStream*, int32_t n, void* r);
int32_t __ruaBRngsAbstractInitStream(int32_t method, RuaStream*, int32_t n, const uint32_t* params);
int32_t __ruasBRngsAbstract(RuaStream*, int32_t n, float* r, float a, float b);
int32_t __ruadBRngsAbstract(RuaStream*, int32_t n, double* r, double a, double b);
int32_t __ruaiBRngsAbstract(RuaStream*, int32_t n, void* r);

/* The processor's RDRAND. params[1], if given and not 0, is the number of retries, else 10:
 * a failed draw is repeated up to retries - 1 times before HARDWARE_RANDOM_FAILED ends the
 * call, outputs of earlier draws staying in place. Single form: a 32-bit word a number, in
 * float; double form: 64 bits, 2^-64 a step. NO_HARDWARE_RANDOM without the instruction.
 * Neither leapfrog nor skip-ahead. */
int32_t __ruaBRngTRNGInitStream(int32_t method, RuaStream*, int32_t n, const uint32_t* params);
int32_t __ruasBRngTRNG(RuaStream*, int32_t n, float* r, float a, float b);
int32_t __ruadBRngTRNG(RuaStream*, int32_t n, double* r, double a, double b);
int32_t __ruaiBRngTRNG(RuaStream*, int32_t n, void* r);
/* 1 if the processor has RDRAND, else 0. */
int32_t __ruaCPUisRDRAND(void);

#ifdef __cplusplus
}
#endif

#endif
