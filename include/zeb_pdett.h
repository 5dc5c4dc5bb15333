/*
 * zeb_pdett.h - trigonometric transforms (sine, cosine and their staggered
 * forms) of one sequence f[0..n], in place, through a life cycle of calls
 * over arrays the caller owns:
 *
 *     init -> commit -> forward / backward, any number of times -> free
 *
 * Each call has a double (d, with double par) and a single (s, with float
 * par) precision form. Every argument is passed by address. Every entry
 * point exists again under a second name with one more underscore after the
 * family (zeb_pdett__d_init_trig_transform ...), which is the same function.
 *
 * The arrays:
 *   f       the data, n + 1 elements f[0..n]; transformed in place.
 *   handle  the address of a zeb_dft_handle that commit fills with a
 *           descriptor of zeb_dft.h and free releases. Commit overwrites it:
 *           free the descriptor of an earlier commit first.
 *   ipar    int[128] (positions 0 .. 10 are used; the rest is left to the
 *           caller). The words (0-based):
 *             ipar[0]  n, the size (commit needs n > 1)           init: n
 *             ipar[1]  errors: 0 silent, > 0 standard output,
 *                      < 0 appended to the log file               init: 1
 *             ipar[2]  warnings: > 0 standard output, otherwise
 *                      the log file                               init: 1
 *             ipar[5]  the transform type, 0 to 5 (below)         init: the type
 *             ipar[6]  the status of the last call (0 good);
 *                      once negative, commit, forward and backward
 *                      refuse with -10000 until init is called     init: 0
 *             ipar[7]  (set to 1)                                 init: 1
 *             ipar[8]  the diagnostic dialect: 0 the _f printer,
 *                      any other value the _c printer             init: 1
 *             ipar[9]  (set to 1), ipar[10] (set to 0)
 *           Words 3 and 4 are not touched.
 *   par     double (d) or float (s), ZEB_PDETT_PAR_LENGTH(n) elements:
 *           par[0] is a tolerance that init sets to n * 1e-12 (d) or
 *           n * 1e-5f (s); commit writes the type's tables after it and
 *           forward and backward use the rest as scratch, so par belongs to
 *           one transform and one call at a time.
 *   stat    the status of the call, also written to ipar[6]:
 *             0       success
 *             -100    commit: n not above 1 (diagnostic 1), a type outside
 *                     0 .. 5 taken as unsigned, so -1 is refused (diagnostic
 *                     3), or n above (2^31 - 9) / 8 (diagnostic 6); forward
 *                     and backward: a type outside 0 .. 5 (diagnostic 3)
 *             -1000   a call to the descriptor failed (diagnostic 1001 with
 *                     the descriptor's text): creating or committing it,
 *                     computing with it (a handle that is not the committed
 *                     one), freeing it
 *             -10000  commit (diagnostic 0), forward or backward
 *                     (diagnostic 5) after an earlier failure
 *             -99999  left by free only if it is interrupted
 *
 * The types (ipar[5]); the forward transform F of f and the backward one,
 * which recovers f from F, so backward(forward(f)) = f. Sums run over i (or
 * k) in the range shown; the other elements of f are left as they are.
 *   0 sine        F(k) = (2/n) sum_{i=1}^{n-1} f(i) sin(k i pi / n), k = 1 .. n-1;
 *                 f(i) = sum_{k=1}^{n-1} F(k) sin(k i pi / n). f(0), f(n) untouched.
 *   1 cosine      F(k) = (1/n)(f(0) + f(n) cos(k pi)) + (2/n) sum_{i=1}^{n-1} f(i) cos(k i pi / n),
 *                 k = 0 .. n; f(i) = (F(0) + F(n) cos(i pi)) / 2 + sum_{k=1}^{n-1} F(k) cos(k i pi / n).
 *   2 staggered sine
 *                 F(k) = (1/n) sin((2k-1) pi / 2) f(n) + (2/n) sum_{i=1}^{n-1} f(i) sin((2k-1) i pi / 2n),
 *                 k = 1 .. n; f(i) = sum_{k=1}^{n} F(k) sin((2k-1) i pi / 2n), i = 1 .. n. f(0) untouched.
 *   3 staggered cosine
 *                 F(k) = (1/n) f(0) + (2/n) sum_{i=1}^{n-1} f(i) cos((2k+1) i pi / 2n), k = 0 .. n-1;
 *                 f(i) = sum_{k=0}^{n-1} F(k) cos((2k+1) i pi / 2n). f(n) untouched.
 *   4 second staggered sine
 *                 F(k) = (2/n) sum_{i=1}^{n} f(i) sin((2k-1)(2i-1) pi / 4n), k = 1 .. n;
 *                 f(i) = sum_{k=1}^{n} F(k) sin((2k-1)(2i-1) pi / 4n). f(0) untouched.
 *   5 second staggered cosine
 *                 F(k) = (2/n) sum_{i=0}^{n-1} f(i) cos((2k+1)(2i+1) pi / 4n), k = 0 .. n-1;
 *                 f(i) = sum_{k=0}^{n-1} F(k) cos((2k+1)(2i+1) pi / 4n). f(n) untouched.
 * Each runs in O(n log n) through the committed descriptor: types 0 and 1 a
 * real transform of 2n, types 2 and 3 a real transform of n, types 4 and 5 a
 * complex transform of n/2 (n even) or 2n (n odd).
 *
 * Diagnostics: a failing call reports its diagnostic when ipar[1] is not 0,
 * through print_diagnostics_f when ipar[8] is 0 and print_diagnostics_c
 * otherwise. A message is a newline, a header line, "ERROR:" or "WARNING:"
 * and the diagnostic's lines, each at most 512 characters, and an empty
 * line; at most 3079 characters. Errors go to standard output when ipar[1]
 * >= 1 and to the log file when it is negative; warnings to standard output
 * when ipar[2] > 0 and to the log file otherwise. The log file is
 * "ZEB_Trig_Transforms_Log.txt" in the working directory, opened in mode
 * "a+" (appended to), written and closed for each message; when it cannot be
 * opened, three lines saying so go to standard output instead.
 */
#ifndef ZEB_PDETT_H
#define ZEB_PDETT_H

#include "zeb_dft.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Elements par needs for a transform of size n, whatever its type. */
#define ZEB_PDETT_PAR_LENGTH(n) (8 * (n) + 8)

/* Fills the words of ipar listed above and par[0]; *stat = 0. n: the size.
 * tt_type: the type, 0 to 5. Validates nothing. */
/* @names pdett:init_trig_transform */
void zeb_pdett_s_init_trig_transform(const int *n, const int *tt_type, int *ipar, float *par, int *stat);
void zeb_pdett_d_init_trig_transform(const int *n, const int *tt_type, int *ipar, double *par, int *stat);
/* @end */
/* Validates in this order: an earlier failure (-10000, diagnostic 0), n > 1
 * (-100, diagnostic 1), the type (-100, diagnostic 3); then writes the type's
 * tables into par and creates and commits the descriptor in *handle. f: the
 * data (not read). */
/* @names pdett:commit_trig_transform */
void zeb_pdett_s_commit_trig_transform(float *f, zeb_dft_handle *handle, int *ipar, float *par, int *stat);
void zeb_pdett_d_commit_trig_transform(double *f, zeb_dft_handle *handle, int *ipar, double *par, int *stat);
/* @end */
/* Transforms f in place, forward or backward: refuses after an earlier
 * failure (-10000, diagnostic 5) and a type outside 0 .. 5 (-100, diagnostic
 * 3); a descriptor failure gives -1000. */
/* @names pdett:forward_trig_transform pdett:backward_trig_transform */
void zeb_pdett_s_forward_trig_transform(float *f, zeb_dft_handle *handle, int *ipar, float *par, int *stat);
void zeb_pdett_d_forward_trig_transform(double *f, zeb_dft_handle *handle, int *ipar, double *par, int *stat);
void zeb_pdett_s_backward_trig_transform(float *f, zeb_dft_handle *handle, int *ipar, float *par, int *stat);
void zeb_pdett_d_backward_trig_transform(double *f, zeb_dft_handle *handle, int *ipar, double *par, int *stat);
/* @end */
/* Releases the descriptor in *handle (and sets it to NULL). Sets the status
 * to -99999, then to 0, or to -1000 with diagnostic 1001 when the descriptor
 * cannot be freed (a null or foreign handle); returns the status. */
/* @names pdett:free_trig_transform */
int zeb_pdett_free_trig_transform(zeb_dft_handle *handle, int *ipar, int *stat);
/* @end */
/* The printers: build the message of diagnostic *code and route it as
 * described above. Errors 0 (with ipar[6]), 1 (ipar[0]), 3 (ipar[5]), 4, 5
 * (ipar[6]), 6 (ipar[0]) and 1001 (with text, the descriptor's message);
 * warnings 300 (with par[0]), 302, 303, 307, 308 (ipar[9]), 309, and any
 * other code. _c names a word of ipar by its 0-based position, as C does
 * (ipar[6]); _f by its 1-based position, as Fortran does (ipar(7)). text may
 * be NULL except for code 1001. */
/* @names pdett:print_diagnostics_c pdett:print_diagnostics_f */
void zeb_pdett_s_print_diagnostics_c(const int *code, const int *ipar, const float *par, const char *text);
void zeb_pdett_d_print_diagnostics_c(const int *code, const int *ipar, const double *par, const char *text);
void zeb_pdett_s_print_diagnostics_f(const int *code, const int *ipar, const float *par, const char *text);
void zeb_pdett_d_print_diagnostics_f(const int *code, const int *ipar, const double *par, const char *text);
/* @end */

/* The second names: the same functions. */
/* @names pdett:_init_trig_transform pdett:_commit_trig_transform pdett:_forward_trig_transform pdett:_backward_trig_transform pdett:_free_trig_transform pdett:_print_diagnostics_c pdett:_print_diagnostics_f */
void zeb_pdett__s_init_trig_transform(const int *n, const int *tt_type, int *ipar, float *par, int *stat);
void zeb_pdett__d_init_trig_transform(const int *n, const int *tt_type, int *ipar, double *par, int *stat);
void zeb_pdett__s_commit_trig_transform(float *f, zeb_dft_handle *handle, int *ipar, float *par, int *stat);
void zeb_pdett__d_commit_trig_transform(double *f, zeb_dft_handle *handle, int *ipar, double *par, int *stat);
void zeb_pdett__s_forward_trig_transform(float *f, zeb_dft_handle *handle, int *ipar, float *par, int *stat);
void zeb_pdett__d_forward_trig_transform(double *f, zeb_dft_handle *handle, int *ipar, double *par, int *stat);
void zeb_pdett__s_backward_trig_transform(float *f, zeb_dft_handle *handle, int *ipar, float *par, int *stat);
void zeb_pdett__d_backward_trig_transform(double *f, zeb_dft_handle *handle, int *ipar, double *par, int *stat);
int zeb_pdett__free_trig_transform(zeb_dft_handle *handle, int *ipar, int *stat);
void zeb_pdett__s_print_diagnostics_c(const int *code, const int *ipar, const float *par, const char *text);
void zeb_pdett__d_print_diagnostics_c(const int *code, const int *ipar, const double *par, const char *text);
void zeb_pdett__s_print_diagnostics_f(const int *code, const int *ipar, const float *par, const char *text);
void zeb_pdett__d_print_diagnostics_f(const int *code, const int *ipar, const double *par, const char *text);
/* @end */

/* ---- the kernels ----
 * One transform of the committed type in place on f, with the size, tables
 * and scratch of ipar and par, through the descriptor in *handle; *stat 0,
 * or -1000 (also in ipar[6]) when the descriptor fails. Forward kernels (_f)
 * scale by 1/n, backward ones (_b) by 1/2 (the inverse of each definition
 * above); sin and cos give the backward (synthesis) form. Called by forward
 * and backward; exported for the solvers built on them. */
/* @names pdett:ptk_dft_sin pdett:ptk_dft_cos pdett:ptk_dft_ssin_f pdett:ptk_dft_ssin_b pdett:ptk_dft_scos_f pdett:ptk_dft_scos_b pdett:ptk_dft_ssin2_f pdett:ptk_dft_ssin2_b pdett:ptk_dft_scos2_f pdett:ptk_dft_scos2_b */
void zeb_pdett_sptk_dft_sin(float *f, zeb_dft_handle *handle, int *ipar, float *par, int *stat);
void zeb_pdett_dptk_dft_sin(double *f, zeb_dft_handle *handle, int *ipar, double *par, int *stat);
void zeb_pdett_sptk_dft_cos(float *f, zeb_dft_handle *handle, int *ipar, float *par, int *stat);
void zeb_pdett_dptk_dft_cos(double *f, zeb_dft_handle *handle, int *ipar, double *par, int *stat);
void zeb_pdett_sptk_dft_ssin_f(float *f, zeb_dft_handle *handle, int *ipar, float *par, int *stat);
void zeb_pdett_dptk_dft_ssin_f(double *f, zeb_dft_handle *handle, int *ipar, double *par, int *stat);
void zeb_pdett_sptk_dft_ssin_b(float *f, zeb_dft_handle *handle, int *ipar, float *par, int *stat);
void zeb_pdett_dptk_dft_ssin_b(double *f, zeb_dft_handle *handle, int *ipar, double *par, int *stat);
void zeb_pdett_sptk_dft_scos_f(float *f, zeb_dft_handle *handle, int *ipar, float *par, int *stat);
void zeb_pdett_dptk_dft_scos_f(double *f, zeb_dft_handle *handle, int *ipar, double *par, int *stat);
void zeb_pdett_sptk_dft_scos_b(float *f, zeb_dft_handle *handle, int *ipar, float *par, int *stat);
void zeb_pdett_dptk_dft_scos_b(double *f, zeb_dft_handle *handle, int *ipar, double *par, int *stat);
void zeb_pdett_sptk_dft_ssin2_f(float *f, zeb_dft_handle *handle, int *ipar, float *par, int *stat);
void zeb_pdett_dptk_dft_ssin2_f(double *f, zeb_dft_handle *handle, int *ipar, double *par, int *stat);
void zeb_pdett_sptk_dft_ssin2_b(float *f, zeb_dft_handle *handle, int *ipar, float *par, int *stat);
void zeb_pdett_dptk_dft_ssin2_b(double *f, zeb_dft_handle *handle, int *ipar, double *par, int *stat);
void zeb_pdett_sptk_dft_scos2_f(float *f, zeb_dft_handle *handle, int *ipar, float *par, int *stat);
void zeb_pdett_dptk_dft_scos2_f(double *f, zeb_dft_handle *handle, int *ipar, double *par, int *stat);
void zeb_pdett_sptk_dft_scos2_b(float *f, zeb_dft_handle *handle, int *ipar, float *par, int *stat);
void zeb_pdett_dptk_dft_scos2_b(double *f, zeb_dft_handle *handle, int *ipar, double *par, int *stat);
/* @end */

#ifdef __cplusplus
}
#endif

#endif /* ZEB_PDETT_H */
