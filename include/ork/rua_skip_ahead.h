/* Skips by polynomials over GF(2), as MT19937 and SFMT19937 make them: advancing a generator
 * whose step F is linear over GF(2) by n steps is g(F), with g = x^n modulo the characteristic
 * polynomial phi of F.
 *
 * Dense polynomials are arrays of 64-bit words, the coefficient of x^k in bit k % 64 of word
 * k / 64. Nothing here checks its arguments; the statuses are those of rua.h.
 */
#ifndef ORK_RUA_SKIP_AHEAD_H
#define ORK_RUA_SKIP_AHEAD_H

#include <emmintrin.h>
#include <stdint.h>

#include "ork/rua.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---- Skips ------------------------------------------------------------------------- *
 * A generator's operations, on whole stream records. They may use what follows the 16 bytes
 * of head, no more: scratch records have no head. */

typedef void (*RuaZeroState)(RuaStream* s);                      /* s <- 0 */
typedef void (*RuaAddState)(RuaStream* s, const RuaStream* t);   /* s <- s + t */
typedef void (*RuaCopyState1)(RuaStream* s, const RuaStream* t); /* s <- t */
typedef void (*RuaUpdateS)(RuaStream* s);                        /* s <- F s */
/* Lays the result s into the stream; flag is what RuaProcessIdx has left there. */
typedef void (*RuaCopyState2)(RuaStream* stream, const RuaStream* s, int32_t flag);
/* Makes the part of a skip by *nskip numbers that needs no step. 0: that was all. 1: the stream
 * stands at the end of its block, and *nskip is the number of steps to make, at least 1. */
typedef int32_t (*RuaProcessIdx)(RuaStream* stream, uint64_t* nskip, int32_t* flag);

/* Skips nskip numbers: Horner's scheme, one addition for every coefficient of g that is 1, or a
 * window of 8 coefficients over a table of 128 records, one addition for about nine. words: 32-bit
 * words that hold g, at least degree / 32 rounded up; degree, terms and exponents (ascending) are
 * those of phi; stateBytes is the size of a record. NO_MEMORY: the stream is as it was. */
int32_t __rua_SkipAheadHorner(RuaStream* stream, RuaZeroState ZeroState, RuaAddState AddState,
                              RuaCopyState1 CopyState1, RuaUpdateS UpdateS,
                              RuaCopyState2 CopyState2, RuaProcessIdx ProcessIdx, uint64_t nskip,
                              int32_t words, int32_t degree, int32_t stateBytes, int32_t terms,
                              const int32_t* exponents);
int32_t __rua_SkipAheadSWin(RuaStream* stream, RuaZeroState ZeroState, RuaAddState AddState,
                            RuaCopyState1 CopyState1, RuaUpdateS UpdateS, RuaCopyState2 CopyState2,
                            RuaProcessIdx ProcessIdx, uint64_t nskip, int32_t words, int32_t degree,
                            int32_t stateBytes, int32_t terms, const int32_t* exponents);

/* ---- Powers ------------------------------------------------------------------------ */

/* x^nskip modulo the polynomial of these exponents, as bits: coefficient k in bit k % 32 of
 * result[k / 32]; words as above. NO_MEMORY. */
int32_t __ruaPolyRem(uint64_t nskip, int32_t degree, int32_t terms, const int32_t* exponents,
                     int32_t words, uint32_t* result);

/* The same of a dense polynomial of degree 2 at least; result has (degree + 63) / 64 words. About
 * log2(nskip / degree) squarings. Each is reduced by adding shifted copies of the polynomial where
 * it has at most 512 terms below the leading one, and else by a table of its 256 multiples by
 * polynomials of degree 7, 32 * degree bytes. NO_MEMORY: result is as it was. */
int32_t x_pow_nskip_mod_cpoly(uint64_t nskip, int32_t degree, const uint64_t* cpoly,
                              uint64_t* result);

/* ---- Products ---------------------------------------------------------------------- *
 * product has the words of both operands together and overlaps neither. work: 8 n + 256 words,
 * n being the words of an operand, of the longer one in poly_mul. */

/* Any degrees; words are (degree + 64) / 64. */
void poly_mul(const uint64_t* a, int32_t degreeA, const uint64_t* b, int32_t degreeB,
              uint64_t* product, uint64_t* work);
/* Schoolbook, any numbers of words. */
void poly_mul_long(const uint64_t* a, int32_t wordsA, const uint64_t* b, int32_t wordsB,
                   uint64_t* product);
/* n words each: Toom-Cook in three parts from 39 words on, Karatsuba. */
void poly_mul_tc3(const uint64_t* a, const uint64_t* b, int32_t n, uint64_t* product,
                  uint64_t* work);
void poly_mul_kar(const uint64_t* a, const uint64_t* b, int32_t n, uint64_t* product,
                  uint64_t* work);
/* As many words as the name says, unrolled. */
void poly_mul_kar_n2(const uint64_t* a, const uint64_t* b, uint64_t* product);
void poly_mul_kar_n3(const uint64_t* a, const uint64_t* b, uint64_t* product);
void poly_mul_kar_n4(const uint64_t* a, const uint64_t* b, uint64_t* product);
void poly_mul_kar_n5(const uint64_t* a, const uint64_t* b, uint64_t* product);
void poly_mul_kar_n6(const uint64_t* a, const uint64_t* b, uint64_t* product);
void poly_mul_kar_n7(const uint64_t* a, const uint64_t* b, uint64_t* product);
void poly_mul_kar_n9(const uint64_t* a, const uint64_t* b, uint64_t* product);
void poly_mul_kar_n11(const uint64_t* a, const uint64_t* b, uint64_t* product);
void poly_mul_kar_n13(const uint64_t* a, const uint64_t* b, uint64_t* product);
void poly_mul_kar_n15(const uint64_t* a, const uint64_t* b, uint64_t* product);
void poly_mul_kar_n17(const uint64_t* a, const uint64_t* b, uint64_t* product);
void poly_mul_kar_n19(const uint64_t* a, const uint64_t* b, uint64_t* product);

/* The product of the low 64 coefficients of a and b, and a sum of 128 (not statuses). */
__m128i _rua_polyrem_clmulepi64_si128(__m128i a, __m128i b);
__m128i _rua_polyrem_xor_si128(__m128i a, __m128i b);

#ifdef __cplusplus
}
#endif

#endif
