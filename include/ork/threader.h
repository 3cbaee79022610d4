/* Threader table: how statistics and data fitting start parallel work.
 *
 * The caller passes a pointer to such a table as the last argument of a compute call.
 * Two tables are supplied; a program may bring its own.
 */
#ifndef ORK_THREADER_H
#define ORK_THREADER_H

#ifdef __cplusplus
extern "C" {
#endif

/* A body of parallel work. In slots 0 and 1: item number, thread number (below the
 * number of threads of the launch), a word that is not read, the launch's context. In
 * slot 2: index, thread (the same number), number of threads, context. */
typedef void (*ork_threader_body)(int item, int thread, int third, void* context);

/* The table. */
typedef struct ork_threader {
  /* Slot 0. Runs every item from 0 to count - 1 exactly once, on at most `threads`
   * threads, and returns when all are done. threads = 0 means max_threads(). */
  void (*parallel_for)(int count, int threads, void* context, ork_threader_body body);

  /* Slot 1. As slot 0, for bodies that call slot 3. */
  void (*ordered_for)(int count, int threads, void* context, ork_threader_body body);

  /* Slot 2. Runs the body `threads` times side by side, with index = thread = 0 to
   * threads - 1; returns when all have ended. threads = 0 means max_threads(). */
  void (*parallel)(int threads, void* context, ork_threader_body body);

  /* Slot 3. Called once by a body of slot 1 with the values it was called with: runs
   * `body` after the ordered bodies of all lower items have ended. */
  void (*ordered)(int item, int thread, int third, void* context, ork_threader_body body);

  /* Slot 4. The greatest number of threads to use, at least 1. */
  int (*max_threads)(void);
} ork_threader;

/* Everything in turn on the calling thread; max_threads() is 1. */
extern const ork_threader ork_threader_serial;

/* OpenMP. max_threads() follows OMP_NUM_THREADS and omp_set_num_threads. Built without
 * OpenMP it is the serial table.
 *
 * Threads are started by the first launch that wants several, and kept. Where the system refuses
 * one, OpenMP's own rule holds: GCC's run time says "libgomp: Thread creation failed" and ends the
 * program with exit code 1. A program that may meet such a limit sets OMP_NUM_THREADS=1 or passes
 * ork_threader_serial.
 *
 * After a launch, libork_outer.so and OpenMP's library stay loaded until the program ends, whatever
 * is unloaded around them. A child that fork() makes of a process after its first launch works on
 * one thread, max_threads() then being 1, and so do the child's children. (A program that starts
 * OpenMP threads by itself and forks must keep to OpenMP's rules: no parallel work in the child.)
 */
extern const ork_threader ork_threader_parallel;

#ifdef __cplusplus
}
#endif

#endif
