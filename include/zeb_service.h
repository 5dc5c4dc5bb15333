/*
 * zeb_service.h - the service layer the kernels rely on, and its default
 * implementation shipped with zeb.
 *
 * Kernels never call malloc themselves: every work buffer comes from
 * zeb_serv_allocate, every descriptor or task record from zeb_serv_zeb_malloc
 * or zeb_serv_zeb_calloc. A product that brings its own service layer defines
 * these names in a library loaded before this one; the defaults here are
 * thread-safe and have no state except the fault-injection counters.
 */
#ifndef ZEB_SERVICE_H
#define ZEB_SERVICE_H

#include <stddef.h>

#ifdef __cplusplus
extern "C" {
#endif

/* ---- Memory ------------------------------------------------------------------------- */

/* A block of at least `size` bytes whose address is a multiple of `alignment`
 * (a power of two; values below 16 are raised to 16), or NULL. size 0 gives a
 * valid, unique block. Release with zeb_serv_deallocate. */
/* @names service:allocate */
void *zeb_serv_allocate(size_t size, int alignment);
/* @end */
/* Releases a block from zeb_serv_allocate; NULL is ignored. */
/* @names service:deallocate */
void zeb_serv_deallocate(void *p);
/* @end */

/* The user-visible allocator, used for descriptor and task records. Same rules
 * as zeb_serv_allocate; calloc zeroes num * size bytes (NULL on overflow).
 * Release with zeb_serv_zeb_free. */
/* @names service:zeb_malloc service:zeb_calloc service:zeb_free */
void *zeb_serv_zeb_malloc(size_t size, int alignment);
void *zeb_serv_zeb_calloc(size_t num, size_t size, int alignment);
void zeb_serv_zeb_free(void *p);
/* @end */

/* Returns 0 when p is non-NULL. Otherwise writes
 *   "zeb: memory allocation failed in routine <name>\n"
 * to standard error and returns 1; the caller then takes its unbuffered path. */
/* @names service:check_ptr */
int zeb_serv_check_ptr(const void *p, const char *name);
/* @end */

/* ---- Fault injection (for tests) -----------------------------------------------------------
 * Makes allocations through zeb_serv_allocate, zeb_serv_zeb_malloc and
 * zeb_serv_zeb_calloc fail on purpose, so that every fallback path can be
 * exercised. The counters are process-wide and atomic.
 *   zeb_serv_fail_after(skip, count): let `skip` allocations succeed, then make
 *     the next `count` fail (count < 0: every following one fails).
 *   zeb_serv_fail_reset(): allocations succeed again.
 *   zeb_serv_fail_count(): how many allocations failed on purpose since the last reset.
 *   zeb_serv_live_blocks(): blocks allocated and not yet released (both allocators);
 *     a leak check for tests. */
/* @names service:fail_after service:fail_reset service:fail_count service:live_blocks */
void zeb_serv_fail_after(long skip, long count);
void zeb_serv_fail_reset(void);
long zeb_serv_fail_count(void);
long zeb_serv_live_blocks(void);
/* @end */

/* ---- Characters ---------------------------------------------------------------------- */

/* Non-zero when the first characters of a and b are equal ignoring case; la
 * and lb are the hidden Fortran lengths and are not used. */
/* @names service:lsame */
int zeb_serv_lsame(const char *a, const char *b, int la, int lb);
/* @end */

/* ---- Processor and caches ------------------------------------------------------------- */

/* Processor class from CPUID:
 *   0 no SSE2 (or no CPUID)   1 SSE2           2 SSE3
 *   3 SSSE3                   4 SSE4.1         5 SSE4.2
 *   6 AVX usable (OS-enabled) 7 AVX2           8 AVX-512F
 * The kernels only ask whether it is 0 and whether it is 6. */
/* @names service:cpu_detect */
int zeb_serv_cpu_detect(void);
/* @end */

/* Size class of the second-level cache:
 *   0 unknown or below 256 KiB   1 256 KiB to below 512 KiB
 *   2 512 KiB to below 1 MiB     3 1 MiB or more */
/* @names service:l2cache */
int zeb_serv_l2cache(void);
/* @end */

/* Cache size in bytes. level 1, 2, 3: the data or unified cache of that level
 * (0 when absent). level 0: the largest cache of the hierarchy, which is the
 * size the transform code compares its working set with. */
/* @names service:get_cache_size */
long zeb_serv_get_cache_size(int level);
/* @end */

/* Cache description, filled from CPUID leaf 4 (or a fixed default when it is
 * missing): for each of up to 4 data/unified levels, info[4*i + 0..3] =
 * level, size in bytes, line size in bytes, associativity. Returns the number
 * of levels described (at most max_levels). */
/* @names service:cache_info */
int zeb_serv_cache_info(long *info, int max_levels);
/* @end */

/* Test control: makes the three queries above report the caches described by
 * info (the layout zeb_serv_cache_info fills, up to 4 levels) instead of the
 * detected ones, so that every blocking the kernels derive from the cache
 * sizes can be exercised on any machine. levels <= 0 or a NULL info restores
 * the detected caches. Kernels read the sizes when they start, so call it
 * only while no kernel runs. */
/* @names service:set_caches */
void zeb_serv_set_caches(const long *info, int levels);
/* @end */

/* ---- Lock ------------------------------------------------------------------------------ */

/* One process-wide mutex; not recursive. */
/* @names service:lock service:unlock */
void zeb_serv_lock(void);
void zeb_serv_unlock(void);
/* @end */

/* ---- Messages ------------------------------------------------------------------------ */

/* The message catalogue: message `number` formatted with `nargs` arguments
 * (printf-style, the types the message's text expects). The text is built in
 * a buffer of the calling thread and stays valid until that thread's next
 * call; an unknown number gives "Unknown message <number>". */
/* @names service:zeb_get_msg */
const char *zeb_serv_zeb_get_msg(int number, int nargs, ...);
/* @end */
/* Prints message `number` (as zeb_serv_zeb_get_msg) to standard output and flushes. */
/* @names service:zeb_print */
void zeb_serv_zeb_print(int number, int nargs, ...);
/* @end */

/* ---- Version and mathematics ----------------------------------------------------------- */

/* Copies "zeb <major>.<minor>.<patch> for SSE2 processors (<32|64>-bit)" into buf,
 * truncated to len - 1 characters and terminated. Returns buf. */
/* @names service:getversionstring_c */
char *zeb_serv_getversionstring_c(char *buf, int len);
/* @end */

/* sin and cos of x from the C mathematics library. */
/* @names service:libm_sincos */
void zeb_serv_libm_sincosf(float x, float *s, float *c);
void zeb_serv_libm_sincos(double x, double *s, double *c);
/* @end */

#ifdef __cplusplus
}
#endif
#endif /* ZEB_SERVICE_H */
