/* Vector mathematics: per-thread mode, statuses, error reports.
 *
 * The kernels themselves, their tables and entry stubs are declared in zem_kernels.h.
 * All state here belongs to the calling thread; nothing here can fail.
 */
#ifndef ORK_ZEM_H
#define ORK_ZEM_H

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/* One complex number, where one is passed by value. On the stack it lies as std::complex and
 * _Complex do. */
typedef struct ork_c {
  float re, im;
} ork_c;
/* The same in double precision. */
typedef struct ork_z {
  double re, im;
} ork_z;

/* ---- Mode word --------------------------------------------------------------------------
 *
 * Four fields. A thread's word comes into being at its first use, from the environment
 * variable ORK_ZEM_MODE (a comma-separated list of tokens such as "ZEM_HA,ZEM_ERRMODE_ERRNO",
 * see mapModeS_N) or, when that is missing or malformed, as ORK_ZEM_DEFAULT_MODE. */

#define ORK_ZEM_ACCURACY_MASK 0x0000000Fu
#define ORK_ZEM_LA 0x1u /* low accuracy: kernel table slot 0 */
#define ORK_ZEM_HA 0x2u /* high accuracy: slot 1 */
#define ORK_ZEM_EP 0x3u /* enhanced performance: slot 2 */

#define ORK_ZEM_PRECISION_MASK 0x000000F0u /* set by the environment only; no kernel reads it */

#define ORK_ZEM_ERRMODE_MASK 0x0000FF00u
#define ORK_ZEM_ERRMODE_IGNORE 0x0100u /* alone: store the status, do nothing else */
#define ORK_ZEM_ERRMODE_ERRNO 0x0200u  /* set errno */
#define ORK_ZEM_ERRMODE_STDERR 0x0400u /* report through ork_serv_print */
#define ORK_ZEM_ERRMODE_EXCEPT 0x0800u /* raise the floating-point exception */
#define ORK_ZEM_ERRMODE_CALLBACK 0x1000u
#define ORK_ZEM_ERRMODE_DEFAULT 0x1A00u /* CALLBACK, EXCEPT and ERRNO */

#define ORK_ZEM_DENORMAL_MASK 0x003C0000u
#define ORK_ZEM_DENORMAL_ZERO 0x00280000u /* flush to zero and denormals are zero, both on */
#define ORK_ZEM_DENORMAL_KEEP 0x00140000u /* both off; so it is with a field of 0 */

#define ORK_ZEM_DEFAULT_MODE 0x1A02u /* HA, ERRMODE_DEFAULT */

/* One token of the environment variable, without its "ZEM_", and the value it ORs in. */
typedef struct ork_zem_mode_token {
  const char* token;
  int32_t length;
  uint32_t low, high;
} ork_zem_mode_token;

/* The tokens that the variable may hold. */
extern const ork_zem_mode_token mapModeS_N[13];

/* The mode word. */
uint32_t ork_zem_kernel_GetMode(void);
uint32_t _zemGetMode(void);

/* Replaces the accuracy, error-mode and denormal fields of the word, each as a whole, and
 * only where the argument's field is not 0; all other bits are ignored. Returns the word
 * before the call. */
uint32_t ork_zem_kernel_SetMode(uint32_t mode);
uint32_t _zemSetMode(uint32_t mode);

/* What the environment variable asks for, or -1 if it is not set or malformed. */
int64_t ork_zem_kernel_ReadEnvVarMode(void);

/* The kernel table slot of the thread's accuracy, or of a given mode word (the first
 * argument of ...IndexM is not read). -1, which is no slot, where the word names no
 * accuracy: fall back on slot 1. */
int ork_zem_kernel_GetTTableIndex(void);
int ork_zem_kernel_GetTTableIndexM(uint32_t unused, uint32_t mode);

/* ---- Statuses --------------------------------------------------------------------------- */

#define ZEM_STATUS_NONE 0
#define ZEM_STATUS_DOMAIN 1          /* the element lies outside the domain; the result is a NaN */
#define ZEM_STATUS_SINGULARITY 2     /* a pole; the result is an infinity */
#define ZEM_STATUS_OVERFLOW 3        /* a finite element whose result is too large for the type */
#define ZEM_STATUS_UNDERFLOW 4       /* a result too small for the type */
#define ZEM_STATUS_BAD_ARGUMENT (-1) /* raised by a public layer: `index` says which argument */
#define ZEM_STATUS_BAD_ACCESS (-2)   /* raised by a public layer */

/* The last status that any kernel of this thread raised; kernels never clear it. The setter
 * and ...Clear... return the status before the call. */
int ork_zem_kernel_GetErrStatus(void);
int ork_zem_kernel_SetErrStatus(int status);
int ork_zem_kernel_ClearErrStatus(void);
int _zemGetErrStatus(void);
int _zemSetErrStatus(int status);
int _zemClearErrStatus(void);

/* ---- Error reports ---------------------------------------------------------------------- */

/* What an error callback receives. Fields follow each other without gaps; the doubles lie on
 * 4-byte boundaries. Single-precision values are widened to double and rounded back. The
 * imaginary fields hold values for complex kernels only; no value field does for statuses -1
 * and -2. */
typedef struct __attribute__((packed, aligned(4))) ork_error_record {
  int32_t status;
  int32_t index; /* element, from the start of the whole vector */
  double a1, a2; /* the inputs; a kernel of one input gives it twice */
  double r1, r2; /* the results, which the callback may change */
  char name[64]; /* such as "vdExp"; terminated when shorter than 64 */
  int32_t name_length;
  double a1_im, a2_im, r1_im, r2_im;
} ork_error_record;

/* Called for an element's event if the mode has a bit of 0xF000 and a callback is set. It
 * runs on the kernel's thread, under the kernel's floating-point control words. Return 0 to
 * go on: the standard actions of the error mode follow, and r1, r2 become the element's
 * results. Any other value ends the event with the kernel's own results. */
typedef int32_t (*ork_error_callback)(ork_error_record* record);

/* The thread's callback, or null. Setting one also sets ORK_ZEM_ERRMODE_CALLBACK in the mode
 * word, clearing it removes that bit unless it is the field's only one. Setter and
 * ...Clear... return the callback before the call. */
ork_error_callback ork_zem_kernel_GetErrorCallBack(void);
ork_error_callback ork_zem_kernel_SetErrorCallBack(ork_error_callback callback);
ork_error_callback ork_zem_kernel_ClearErrorCallBack(void);
ork_error_callback _zemGetErrorCallBack(void);
ork_error_callback _zemSetErrorCallBack(ork_error_callback callback);
ork_error_callback _zemClearErrorCallBack(void);

/* For callers that hand a kernel a slice of a vector: the start of the whole first input, so
 * that reported indices count from there. Null (the initial state) when done. Returns its
 * argument. */
const void* ork_zem_kernel_SetInterfInputVectorPointer(const void* start);
const void* _zemSetInterfInputVectorPointer(const void* start);

/* Raises an event: stores the status, and unless the error mode is IGNORE alone, calls the
 * callback, then the standard actions: errno (EDOM, ERANGE, EINVAL, EACCES), the report on
 * standard error, the floating-point exception. `index` counts from the arrays' starts; a
 * function of one input passes `a` twice, one of one output `r` twice. r[index] must hold the
 * kernel's result, and holds the final one afterwards. Arrays of c and z are pairs. For
 * statuses -1 and -2 the arrays are not read. */
void ork_zem_kernel_sError(int status, int index, const float* a, const float* b, float* r,
                           float* r2, const char* name);
void ork_zem_kernel_dError(int status, int index, const double* a, const double* b, double* r,
                           double* r2, const char* name);
void ork_zem_kernel_cError(int status, int index, const float* a, const float* b, float* r,
                           float* r2, const char* name);
void ork_zem_kernel_zError(int status, int index, const double* a, const double* b, double* r,
                           double* r2, const char* name);

/* The processor level that the library was built for, as an offset into its family: 0. */
int dll_cpu_version(void);

/* |x| by clearing the sign bit; a NaN keeps its payload. */
float ork_zem_kernel__sabs_scalar(float x);
double ork_zem_kernel__dabs_scalar(double x);

#ifdef __cplusplus
}
#endif

#endif
