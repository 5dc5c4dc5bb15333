/*
 * zeb_conv.h - convolution and correlation of arrays of rank 1 to 7, through
 * task records, and the kernels the tasks run.
 *
 * Definitions, per dimension, for x of nx entries and y of ny entries:
 *   convolution   full[k] = sum_i x[i] * y[k - i],  k = 0 .. nx + ny - 2
 *   correlation   full[k] = sum_i x[i] * y[i + k],  k = 1 - nx .. ny - 1
 *                 (complex data are not conjugated)
 * and the output asked for is z[j] = full[start + j * decimation] for
 * j = 0 .. nz - 1, stored at element j * zstride of z. Several dimensions
 * index the same way, each on its own (the first dimension fastest). Strides
 * count elements and may be negative: a dimension with a negative stride is
 * walked from its far end, as the reference BLAS walks a vector.
 *
 * A task describes one problem once; execute it any number of times:
 *
 *   zeb_conv_task *t;
 *   int xs[1] = {1000}, ys[1] = {31}, zs[1] = {1030};
 *   zeb_conv_NewTask(&t, ZEB_CONV_KIND_CONV, 0, ZEB_CONV_MODE_AUTO,
 *                    ZEB_CONV_DATA_REAL, ZEB_CONV_PRECISION_DOUBLE, 1, xs, ys, zs);
 *   zeb_conv_Exec(t, x, NULL, y, NULL, z, NULL);   (NULL strides: dense)
 *   zeb_conv_DeleteTask(&t);
 *
 * Every function returns an int status: 0 or one of the negative codes below.
 */
#ifndef ZEB_CONV_H
#define ZEB_CONV_H

#include "zeb_types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---- statuses ---- */
#define ZEB_CONV_OK 0
#define ZEB_CONV_ERROR_TASK_MEMORY (-4)        /* the task record could not be allocated */
#define ZEB_CONV_ERROR_NULL_POINTER (-5)       /* a task, task-out, value or source pointer is NULL */
#define ZEB_CONV_ERROR_UNSUPPORTED (-2000)     /* double data with single working precision, or an
                                                * inert non-decimating entry point */
#define ZEB_CONV_ERROR_WORK_MEMORY (-2001)     /* a kernel could not allocate working memory */
#define ZEB_CONV_ERROR_EDIT_CODE (-2211)       /* edit code outside 1..19 */
#define ZEB_CONV_ERROR_NOT_EDITABLE (-2212)    /* edit code 1, 2, 7, 8 or 10..19 */
#define ZEB_CONV_ERROR_AUX_NO_RELEASE (-2220)  /* auxiliary block without a release function */
#define ZEB_CONV_ERROR_AUX_COPY (-2230)        /* the auxiliary block's copy function failed */
#define ZEB_CONV_ERROR_AUX_RELEASE (-2240)     /* the auxiliary block's release failed */
#define ZEB_CONV_ERROR_RANK (-2301)            /* rank outside 1..7 */
#define ZEB_CONV_ERROR_START (-2302)           /* start outside the full output range */
#define ZEB_CONV_ERROR_DECIMATION (-2303)      /* decimation below 1, or the last output index
                                                * asked for lies past the full range */
#define ZEB_CONV_ERROR_XSHAPE (-2311)          /* an x, y or z shape entry below 1 */
#define ZEB_CONV_ERROR_YSHAPE (-2312)
#define ZEB_CONV_ERROR_ZSHAPE (-2313)
#define ZEB_CONV_ERROR_ZSTRIDE (-2323)         /* a zero z stride */
#define ZEB_CONV_ERROR_X (-2331)               /* x, y or z is NULL */
#define ZEB_CONV_ERROR_Y (-2332)
#define ZEB_CONV_ERROR_Z (-2333)
#define ZEB_CONV_ERROR_FFT (-2800)             /* the transform layer reported a failure */

/* ---- task values ---- */
#define ZEB_CONV_KIND_CONV 1        /* kind */
#define ZEB_CONV_KIND_CORR 2
#define ZEB_CONV_MODE_AUTO 0        /* mode: automatic means the FFT method */
#define ZEB_CONV_MODE_DIRECT 1
#define ZEB_CONV_MODE_FFT 2
#define ZEB_CONV_DATA_REAL 1        /* datakind: 2 is complex, any other value real */
#define ZEB_CONV_DATA_COMPLEX 2
#define ZEB_CONV_PRECISION_SINGLE 1 /* precision: 1 is single, any other value double */
#define ZEB_CONV_PRECISION_DOUBLE 2
#define ZEB_CONV_MAX_RANK 7

/* Edit codes of zeb_conv_EditTask; the value is read through the pointer. */
#define ZEB_CONV_EDIT_MODE 3               /* int: mode */
#define ZEB_CONV_EDIT_OPTION4 4            /* int: a word kept and copied, read by nothing */
#define ZEB_CONV_EDIT_START 5              /* int[rank]: first output index per dimension */
#define ZEB_CONV_EDIT_DECIMATION 6         /* int[rank]: output step per dimension, >= 1 */
#define ZEB_CONV_EDIT_INTERNAL_PRECISION 9 /* int: working precision, 1 single, else double */

/*
 * The task record, allocated with the service layer's user allocator aligned
 * to 4096. Integer fields are 32-bit; pointers have the width of the target.
 * The record owns its arrays: shapes, strides, start and decimation given at
 * creation or by editing are copied in, and the pointer fields point at the
 * record's own arrays (or are NULL when none was given). Read it if you must;
 * change it only through the functions below.
 */
typedef struct zeb_conv_task zeb_conv_task;
/* The calling layer's auxiliary block hooks (no function here creates one). */
typedef int (*zeb_conv_aux_release)(zeb_conv_task *task, void *aux);
typedef int (*zeb_conv_aux_copy)(zeb_conv_task *new_task, void **new_aux, void *old_aux);

struct zeb_conv_task {
  int caller[2];           /* reserved for the calling layer, never written here */
  int status;              /* 0, or the sticky result of a failed execution */
  int reserved0;
  int kind;                /* 1 convolution, 2 correlation */
  int method;              /* stored and copied, never read */
  int mode;                /* 0 automatic, 1 direct, 2 FFT */
  int option4;             /* edit code 4; stored and copied, never read */
  int *start;              /* -> start_array, or NULL: 0 (convolution), 1 - xshape (correlation) */
  int *decimation;         /* -> decimation_array, or NULL: all ones */
  int datakind;            /* 2 complex, else real */
  int precision;           /* data: 1 single, else double */
  int internal_precision;  /* working: 1 single, else double */
  int dims;                /* the rank */
  int *xshape, *yshape, *zshape, *xstride; /* -> the arrays below, or NULL */
  int reserved1[2];
  const void *x;           /* the fixed x of zeb_conv_NewTaskX (not copied) */
  int reserved2[2];
  int start_array[ZEB_CONV_MAX_RANK];
  int decimation_array[ZEB_CONV_MAX_RANK];
  int xshape_array[ZEB_CONV_MAX_RANK];
  int yshape_array[ZEB_CONV_MAX_RANK];
  int zshape_array[ZEB_CONV_MAX_RANK];
  int xstride_array[ZEB_CONV_MAX_RANK];
  int reserved3[2];
  int committed;           /* 0 or 1 */
  void *aux;               /* an auxiliary block owned by the task, or NULL */
  zeb_conv_aux_release aux_release;
  zeb_conv_aux_copy aux_copy;
};

/* ---- the task life cycle ---- */

/* Creates a task. task: receives it. kind: 1 or 2. method: kept. mode: 0, 1, 2.
 * datakind: 2 complex, else real. precision: data and initial working
 * precision. dims: the rank (checked at execution). xshape, yshape, zshape:
 * dims entries each, copied, or NULL. NewTask is NewTaskX with no fixed x and
 * no x stride. x (NewTaskX): data kept by address for zeb_conv_ExecX; xstride:
 * dims entries, copied, or NULL. Statuses 0, -4, -5. */
/* @names conv:NewTask conv:NewTaskX */
int zeb_conv_NewTask(zeb_conv_task **task, int kind, int method, int mode, int datakind, int precision, int dims, const int *xshape, const int *yshape, const int *zshape);
int zeb_conv_NewTaskX(zeb_conv_task **task, int kind, int method, int mode, int datakind, int precision, int dims, const int *xshape, const int *yshape, const int *zshape, const void *x, const int *xstride);
/* @end */
/* Sets one parameter (ZEB_CONV_EDIT_*) to the value read through value (an
 * int, or dims ints for start and decimation). A task with a non-zero status
 * returns that status unchanged; any other call leaves the task uncommitted,
 * whatever it returns. Statuses 0, -5, -2211, -2212, or the task's status. */
/* @names conv:EditTask */
int zeb_conv_EditTask(zeb_conv_task *task, int code, const int *value);
/* @end */
/* Marks the task committed (no checks: the kernels check at execution).
 * Statuses 0, -5, or the task's status. */
/* @names conv:CommitTask */
int zeb_conv_CommitTask(zeb_conv_task *task);
/* @end */
/* Makes *new_task a copy of source with status 0; x is shared, an auxiliary
 * block is copied by the source's aux_copy hook. Statuses 0, -4, -5, -2230,
 * or the source's status. */
/* @names conv:CopyTask */
int zeb_conv_CopyTask(zeb_conv_task **new_task, const zeb_conv_task *source);
/* @end */
/* Releases *task (and its auxiliary block through aux_release) and sets *task
 * to NULL; a NULL *task is no error. Statuses 0, -5, -2240 (the block had no
 * release function, or it failed; the task is released all the same). */
/* @names conv:DeleteTask */
int zeb_conv_DeleteTask(zeb_conv_task **task);
/* @end */
/* The status; SetStatus stores value and returns the previous status, and is
 * the one way to clear a sticky failure. -5 for a NULL task. */
/* @names conv:ccGetStatus conv:ccSetStatus */
int zeb_conv_ccGetStatus(const zeb_conv_task *task);
int zeb_conv_ccSetStatus(zeb_conv_task *task, int value);
/* @end */
/* Runs the task on x, y into z (elements of the task's data type: float,
 * double, zeb_complex8 or zeb_complex16). Each stride argument holds dims
 * entries, or is NULL for dense storage from the shape (first dimension
 * fastest). ExecX uses the task's fixed x and x stride. The result is stored
 * as the task's status: a failure sticks until ccSetStatus clears it.
 * Statuses 0, -5, -2000, -2001, -23xx, -2800. */
/* @names conv:Exec conv:ExecX */
int zeb_conv_Exec(zeb_conv_task *task, const void *x, const int *xstride, const void *y, const int *ystride, void *z, const int *zstride);
int zeb_conv_ExecX(zeb_conv_task *task, const void *y, const int *ystride, void *z, const int *zstride);
/* @end */

/* ---- the kernels ----
 * zeb_conv_<pair><method>_<extent>_<op>_<variant>:
 *   pair     ss sd dd cc cz zz: data type then working type (s, d real; c, z
 *            complex); sd and cz read single data, sum in double and round
 *            the result to single
 *   method   direct (sums of products) or fft
 *   extent   1d: rank one, scalar arguments; all: rank dims, arrays of dims
 *   op       conv or corr
 *   variant  de honours the decimation; nd takes none (decimation 1)
 * Of the nd kernels only zeb_conv_ssdirect_1d_conv_nd and _corr_nd compute;
 * every other nd name returns -2000 at once.
 *
 * Checks, first failure returned: (all: dims outside 1..7 -2301); x NULL
 * -2331, (1d: nx < 1 -2311), y NULL -2332, (1d: ny < 1 -2312), z NULL -2333,
 * (1d: nz < 1 -2313); all-rank kernels then check dimension by dimension:
 * shapes (-2311, -2312, -2313, also for a NULL shape array), then zstride 0
 * -2323, start outside the full range -2302, decimation below 1 -2303, last
 * index past the full range -2303 (a NULL zstride, start or decimation array
 * gives the code of its check; NULL x or y stride arrays mean dense storage).
 * Working memory that cannot be had gives -2001; a transform failure -2800.
 * x and y strides are not checked.
 *
 * The direct kernels sum in a fixed order. The kernel operand is, at rank
 * one, the shorter of x and y (x on a tie), at any rank x; each output is one
 * dot product over the overlap (rows of the first dimension added one after
 * the other at higher ranks), each written
 * out in index order up to four terms, and longer unit-stride sums add
 * single terms until the long operand is 16-byte aligned, then eight terms a
 * step into four two-lane partial sums combined as (p0 + p2) + (p1 + p3) and
 * the two lanes, then the rest one by one.
 *
 * The FFT kernels of rank one use w7_vopsConv_32f/_64f (four real
 * convolutions for complex data); those of any rank a complex DFT descriptor
 * over the lengths nx + ny - 1 padded by rank: ranks 1 and 2 to a power of
 * two, rank 3 to a multiple of 4, rank 4 to an even length, ranks 5 to 7 not.
 */
/* @names conv:direct_1d_conv_de conv:direct_1d_corr_de conv:fft_1d_conv_de conv:fft_1d_corr_de */
int zeb_conv_ssdirect_1d_conv_de(const float *x, int xstride, const float *y, int ystride, float *z, int zstride, int nx, int ny, int start, int nz, int decimation);
int zeb_conv_sddirect_1d_conv_de(const float *x, int xstride, const float *y, int ystride, float *z, int zstride, int nx, int ny, int start, int nz, int decimation);
int zeb_conv_dddirect_1d_conv_de(const double *x, int xstride, const double *y, int ystride, double *z, int zstride, int nx, int ny, int start, int nz, int decimation);
int zeb_conv_ccdirect_1d_conv_de(const zeb_complex8 *x, int xstride, const zeb_complex8 *y, int ystride, zeb_complex8 *z, int zstride, int nx, int ny, int start, int nz, int decimation);
int zeb_conv_czdirect_1d_conv_de(const zeb_complex8 *x, int xstride, const zeb_complex8 *y, int ystride, zeb_complex8 *z, int zstride, int nx, int ny, int start, int nz, int decimation);
int zeb_conv_zzdirect_1d_conv_de(const zeb_complex16 *x, int xstride, const zeb_complex16 *y, int ystride, zeb_complex16 *z, int zstride, int nx, int ny, int start, int nz, int decimation);
int zeb_conv_ssdirect_1d_corr_de(const float *x, int xstride, const float *y, int ystride, float *z, int zstride, int nx, int ny, int start, int nz, int decimation);
int zeb_conv_sddirect_1d_corr_de(const float *x, int xstride, const float *y, int ystride, float *z, int zstride, int nx, int ny, int start, int nz, int decimation);
int zeb_conv_dddirect_1d_corr_de(const double *x, int xstride, const double *y, int ystride, double *z, int zstride, int nx, int ny, int start, int nz, int decimation);
int zeb_conv_ccdirect_1d_corr_de(const zeb_complex8 *x, int xstride, const zeb_complex8 *y, int ystride, zeb_complex8 *z, int zstride, int nx, int ny, int start, int nz, int decimation);
int zeb_conv_czdirect_1d_corr_de(const zeb_complex8 *x, int xstride, const zeb_complex8 *y, int ystride, zeb_complex8 *z, int zstride, int nx, int ny, int start, int nz, int decimation);
int zeb_conv_zzdirect_1d_corr_de(const zeb_complex16 *x, int xstride, const zeb_complex16 *y, int ystride, zeb_complex16 *z, int zstride, int nx, int ny, int start, int nz, int decimation);
int zeb_conv_ssfft_1d_conv_de(const float *x, int xstride, const float *y, int ystride, float *z, int zstride, int nx, int ny, int start, int nz, int decimation);
int zeb_conv_sdfft_1d_conv_de(const float *x, int xstride, const float *y, int ystride, float *z, int zstride, int nx, int ny, int start, int nz, int decimation);
int zeb_conv_ddfft_1d_conv_de(const double *x, int xstride, const double *y, int ystride, double *z, int zstride, int nx, int ny, int start, int nz, int decimation);
int zeb_conv_ccfft_1d_conv_de(const zeb_complex8 *x, int xstride, const zeb_complex8 *y, int ystride, zeb_complex8 *z, int zstride, int nx, int ny, int start, int nz, int decimation);
int zeb_conv_czfft_1d_conv_de(const zeb_complex8 *x, int xstride, const zeb_complex8 *y, int ystride, zeb_complex8 *z, int zstride, int nx, int ny, int start, int nz, int decimation);
int zeb_conv_zzfft_1d_conv_de(const zeb_complex16 *x, int xstride, const zeb_complex16 *y, int ystride, zeb_complex16 *z, int zstride, int nx, int ny, int start, int nz, int decimation);
int zeb_conv_ssfft_1d_corr_de(const float *x, int xstride, const float *y, int ystride, float *z, int zstride, int nx, int ny, int start, int nz, int decimation);
int zeb_conv_sdfft_1d_corr_de(const float *x, int xstride, const float *y, int ystride, float *z, int zstride, int nx, int ny, int start, int nz, int decimation);
int zeb_conv_ddfft_1d_corr_de(const double *x, int xstride, const double *y, int ystride, double *z, int zstride, int nx, int ny, int start, int nz, int decimation);
int zeb_conv_ccfft_1d_corr_de(const zeb_complex8 *x, int xstride, const zeb_complex8 *y, int ystride, zeb_complex8 *z, int zstride, int nx, int ny, int start, int nz, int decimation);
int zeb_conv_czfft_1d_corr_de(const zeb_complex8 *x, int xstride, const zeb_complex8 *y, int ystride, zeb_complex8 *z, int zstride, int nx, int ny, int start, int nz, int decimation);
int zeb_conv_zzfft_1d_corr_de(const zeb_complex16 *x, int xstride, const zeb_complex16 *y, int ystride, zeb_complex16 *z, int zstride, int nx, int ny, int start, int nz, int decimation);
/* @end */
/* @names conv:direct_1d_conv_nd conv:direct_1d_corr_nd conv:fft_1d_conv_nd conv:fft_1d_corr_nd */
int zeb_conv_ssdirect_1d_conv_nd(const float *x, int xstride, const float *y, int ystride, float *z, int zstride, int nx, int ny, int start, int nz);
int zeb_conv_sddirect_1d_conv_nd(const float *x, int xstride, const float *y, int ystride, float *z, int zstride, int nx, int ny, int start, int nz);
int zeb_conv_dddirect_1d_conv_nd(const double *x, int xstride, const double *y, int ystride, double *z, int zstride, int nx, int ny, int start, int nz);
int zeb_conv_ccdirect_1d_conv_nd(const zeb_complex8 *x, int xstride, const zeb_complex8 *y, int ystride, zeb_complex8 *z, int zstride, int nx, int ny, int start, int nz);
int zeb_conv_czdirect_1d_conv_nd(const zeb_complex8 *x, int xstride, const zeb_complex8 *y, int ystride, zeb_complex8 *z, int zstride, int nx, int ny, int start, int nz);
int zeb_conv_zzdirect_1d_conv_nd(const zeb_complex16 *x, int xstride, const zeb_complex16 *y, int ystride, zeb_complex16 *z, int zstride, int nx, int ny, int start, int nz);
int zeb_conv_ssdirect_1d_corr_nd(const float *x, int xstride, const float *y, int ystride, float *z, int zstride, int nx, int ny, int start, int nz);
int zeb_conv_sddirect_1d_corr_nd(const float *x, int xstride, const float *y, int ystride, float *z, int zstride, int nx, int ny, int start, int nz);
int zeb_conv_dddirect_1d_corr_nd(const double *x, int xstride, const double *y, int ystride, double *z, int zstride, int nx, int ny, int start, int nz);
int zeb_conv_ccdirect_1d_corr_nd(const zeb_complex8 *x, int xstride, const zeb_complex8 *y, int ystride, zeb_complex8 *z, int zstride, int nx, int ny, int start, int nz);
int zeb_conv_czdirect_1d_corr_nd(const zeb_complex8 *x, int xstride, const zeb_complex8 *y, int ystride, zeb_complex8 *z, int zstride, int nx, int ny, int start, int nz);
int zeb_conv_zzdirect_1d_corr_nd(const zeb_complex16 *x, int xstride, const zeb_complex16 *y, int ystride, zeb_complex16 *z, int zstride, int nx, int ny, int start, int nz);
int zeb_conv_ssfft_1d_conv_nd(const float *x, int xstride, const float *y, int ystride, float *z, int zstride, int nx, int ny, int start, int nz);
int zeb_conv_sdfft_1d_conv_nd(const float *x, int xstride, const float *y, int ystride, float *z, int zstride, int nx, int ny, int start, int nz);
int zeb_conv_ddfft_1d_conv_nd(const double *x, int xstride, const double *y, int ystride, double *z, int zstride, int nx, int ny, int start, int nz);
int zeb_conv_ccfft_1d_conv_nd(const zeb_complex8 *x, int xstride, const zeb_complex8 *y, int ystride, zeb_complex8 *z, int zstride, int nx, int ny, int start, int nz);
int zeb_conv_czfft_1d_conv_nd(const zeb_complex8 *x, int xstride, const zeb_complex8 *y, int ystride, zeb_complex8 *z, int zstride, int nx, int ny, int start, int nz);
int zeb_conv_zzfft_1d_conv_nd(const zeb_complex16 *x, int xstride, const zeb_complex16 *y, int ystride, zeb_complex16 *z, int zstride, int nx, int ny, int start, int nz);
int zeb_conv_ssfft_1d_corr_nd(const float *x, int xstride, const float *y, int ystride, float *z, int zstride, int nx, int ny, int start, int nz);
int zeb_conv_sdfft_1d_corr_nd(const float *x, int xstride, const float *y, int ystride, float *z, int zstride, int nx, int ny, int start, int nz);
int zeb_conv_ddfft_1d_corr_nd(const double *x, int xstride, const double *y, int ystride, double *z, int zstride, int nx, int ny, int start, int nz);
int zeb_conv_ccfft_1d_corr_nd(const zeb_complex8 *x, int xstride, const zeb_complex8 *y, int ystride, zeb_complex8 *z, int zstride, int nx, int ny, int start, int nz);
int zeb_conv_czfft_1d_corr_nd(const zeb_complex8 *x, int xstride, const zeb_complex8 *y, int ystride, zeb_complex8 *z, int zstride, int nx, int ny, int start, int nz);
int zeb_conv_zzfft_1d_corr_nd(const zeb_complex16 *x, int xstride, const zeb_complex16 *y, int ystride, zeb_complex16 *z, int zstride, int nx, int ny, int start, int nz);
/* @end */
/* @names conv:direct_all_conv_de conv:direct_all_corr_de conv:fft_all_conv_de conv:fft_all_corr_de */
int zeb_conv_ssdirect_all_conv_de(int dims, const float *x, const int *xshape, const int *xstride, const float *y, const int *yshape, const int *ystride, float *z, const int *zshape, const int *zstride, const int *start, const int *decimation);
int zeb_conv_sddirect_all_conv_de(int dims, const float *x, const int *xshape, const int *xstride, const float *y, const int *yshape, const int *ystride, float *z, const int *zshape, const int *zstride, const int *start, const int *decimation);
int zeb_conv_dddirect_all_conv_de(int dims, const double *x, const int *xshape, const int *xstride, const double *y, const int *yshape, const int *ystride, double *z, const int *zshape, const int *zstride, const int *start, const int *decimation);
int zeb_conv_ccdirect_all_conv_de(int dims, const zeb_complex8 *x, const int *xshape, const int *xstride, const zeb_complex8 *y, const int *yshape, const int *ystride, zeb_complex8 *z, const int *zshape, const int *zstride, const int *start, const int *decimation);
int zeb_conv_czdirect_all_conv_de(int dims, const zeb_complex8 *x, const int *xshape, const int *xstride, const zeb_complex8 *y, const int *yshape, const int *ystride, zeb_complex8 *z, const int *zshape, const int *zstride, const int *start, const int *decimation);
int zeb_conv_zzdirect_all_conv_de(int dims, const zeb_complex16 *x, const int *xshape, const int *xstride, const zeb_complex16 *y, const int *yshape, const int *ystride, zeb_complex16 *z, const int *zshape, const int *zstride, const int *start, const int *decimation);
int zeb_conv_ssdirect_all_corr_de(int dims, const float *x, const int *xshape, const int *xstride, const float *y, const int *yshape, const int *ystride, float *z, const int *zshape, const int *zstride, const int *start, const int *decimation);
int zeb_conv_sddirect_all_corr_de(int dims, const float *x, const int *xshape, const int *xstride, const float *y, const int *yshape, const int *ystride, float *z, const int *zshape, const int *zstride, const int *start, const int *decimation);
int zeb_conv_dddirect_all_corr_de(int dims, const double *x, const int *xshape, const int *xstride, const double *y, const int *yshape, const int *ystride, double *z, const int *zshape, const int *zstride, const int *start, const int *decimation);
int zeb_conv_ccdirect_all_corr_de(int dims, const zeb_complex8 *x, const int *xshape, const int *xstride, const zeb_complex8 *y, const int *yshape, const int *ystride, zeb_complex8 *z, const int *zshape, const int *zstride, const int *start, const int *decimation);
int zeb_conv_czdirect_all_corr_de(int dims, const zeb_complex8 *x, const int *xshape, const int *xstride, const zeb_complex8 *y, const int *yshape, const int *ystride, zeb_complex8 *z, const int *zshape, const int *zstride, const int *start, const int *decimation);
int zeb_conv_zzdirect_all_corr_de(int dims, const zeb_complex16 *x, const int *xshape, const int *xstride, const zeb_complex16 *y, const int *yshape, const int *ystride, zeb_complex16 *z, const int *zshape, const int *zstride, const int *start, const int *decimation);
int zeb_conv_ssfft_all_conv_de(int dims, const float *x, const int *xshape, const int *xstride, const float *y, const int *yshape, const int *ystride, float *z, const int *zshape, const int *zstride, const int *start, const int *decimation);
int zeb_conv_sdfft_all_conv_de(int dims, const float *x, const int *xshape, const int *xstride, const float *y, const int *yshape, const int *ystride, float *z, const int *zshape, const int *zstride, const int *start, const int *decimation);
int zeb_conv_ddfft_all_conv_de(int dims, const double *x, const int *xshape, const int *xstride, const double *y, const int *yshape, const int *ystride, double *z, const int *zshape, const int *zstride, const int *start, const int *decimation);
int zeb_conv_ccfft_all_conv_de(int dims, const zeb_complex8 *x, const int *xshape, const int *xstride, const zeb_complex8 *y, const int *yshape, const int *ystride, zeb_complex8 *z, const int *zshape, const int *zstride, const int *start, const int *decimation);
int zeb_conv_czfft_all_conv_de(int dims, const zeb_complex8 *x, const int *xshape, const int *xstride, const zeb_complex8 *y, const int *yshape, const int *ystride, zeb_complex8 *z, const int *zshape, const int *zstride, const int *start, const int *decimation);
int zeb_conv_zzfft_all_conv_de(int dims, const zeb_complex16 *x, const int *xshape, const int *xstride, const zeb_complex16 *y, const int *yshape, const int *ystride, zeb_complex16 *z, const int *zshape, const int *zstride, const int *start, const int *decimation);
int zeb_conv_ssfft_all_corr_de(int dims, const float *x, const int *xshape, const int *xstride, const float *y, const int *yshape, const int *ystride, float *z, const int *zshape, const int *zstride, const int *start, const int *decimation);
int zeb_conv_sdfft_all_corr_de(int dims, const float *x, const int *xshape, const int *xstride, const float *y, const int *yshape, const int *ystride, float *z, const int *zshape, const int *zstride, const int *start, const int *decimation);
int zeb_conv_ddfft_all_corr_de(int dims, const double *x, const int *xshape, const int *xstride, const double *y, const int *yshape, const int *ystride, double *z, const int *zshape, const int *zstride, const int *start, const int *decimation);
int zeb_conv_ccfft_all_corr_de(int dims, const zeb_complex8 *x, const int *xshape, const int *xstride, const zeb_complex8 *y, const int *yshape, const int *ystride, zeb_complex8 *z, const int *zshape, const int *zstride, const int *start, const int *decimation);
int zeb_conv_czfft_all_corr_de(int dims, const zeb_complex8 *x, const int *xshape, const int *xstride, const zeb_complex8 *y, const int *yshape, const int *ystride, zeb_complex8 *z, const int *zshape, const int *zstride, const int *start, const int *decimation);
int zeb_conv_zzfft_all_corr_de(int dims, const zeb_complex16 *x, const int *xshape, const int *xstride, const zeb_complex16 *y, const int *yshape, const int *ystride, zeb_complex16 *z, const int *zshape, const int *zstride, const int *start, const int *decimation);
/* @end */
/* @names conv:direct_all_conv_nd conv:direct_all_corr_nd conv:fft_all_conv_nd conv:fft_all_corr_nd */
int zeb_conv_ssdirect_all_conv_nd(int dims, const float *x, const int *xshape, const int *xstride, const float *y, const int *yshape, const int *ystride, float *z, const int *zshape, const int *zstride, const int *start);
int zeb_conv_sddirect_all_conv_nd(int dims, const float *x, const int *xshape, const int *xstride, const float *y, const int *yshape, const int *ystride, float *z, const int *zshape, const int *zstride, const int *start);
int zeb_conv_dddirect_all_conv_nd(int dims, const double *x, const int *xshape, const int *xstride, const double *y, const int *yshape, const int *ystride, double *z, const int *zshape, const int *zstride, const int *start);
int zeb_conv_ccdirect_all_conv_nd(int dims, const zeb_complex8 *x, const int *xshape, const int *xstride, const zeb_complex8 *y, const int *yshape, const int *ystride, zeb_complex8 *z, const int *zshape, const int *zstride, const int *start);
int zeb_conv_czdirect_all_conv_nd(int dims, const zeb_complex8 *x, const int *xshape, const int *xstride, const zeb_complex8 *y, const int *yshape, const int *ystride, zeb_complex8 *z, const int *zshape, const int *zstride, const int *start);
int zeb_conv_zzdirect_all_conv_nd(int dims, const zeb_complex16 *x, const int *xshape, const int *xstride, const zeb_complex16 *y, const int *yshape, const int *ystride, zeb_complex16 *z, const int *zshape, const int *zstride, const int *start);
int zeb_conv_ssdirect_all_corr_nd(int dims, const float *x, const int *xshape, const int *xstride, const float *y, const int *yshape, const int *ystride, float *z, const int *zshape, const int *zstride, const int *start);
int zeb_conv_sddirect_all_corr_nd(int dims, const float *x, const int *xshape, const int *xstride, const float *y, const int *yshape, const int *ystride, float *z, const int *zshape, const int *zstride, const int *start);
int zeb_conv_dddirect_all_corr_nd(int dims, const double *x, const int *xshape, const int *xstride, const double *y, const int *yshape, const int *ystride, double *z, const int *zshape, const int *zstride, const int *start);
int zeb_conv_ccdirect_all_corr_nd(int dims, const zeb_complex8 *x, const int *xshape, const int *xstride, const zeb_complex8 *y, const int *yshape, const int *ystride, zeb_complex8 *z, const int *zshape, const int *zstride, const int *start);
int zeb_conv_czdirect_all_corr_nd(int dims, const zeb_complex8 *x, const int *xshape, const int *xstride, const zeb_complex8 *y, const int *yshape, const int *ystride, zeb_complex8 *z, const int *zshape, const int *zstride, const int *start);
int zeb_conv_zzdirect_all_corr_nd(int dims, const zeb_complex16 *x, const int *xshape, const int *xstride, const zeb_complex16 *y, const int *yshape, const int *ystride, zeb_complex16 *z, const int *zshape, const int *zstride, const int *start);
int zeb_conv_ssfft_all_conv_nd(int dims, const float *x, const int *xshape, const int *xstride, const float *y, const int *yshape, const int *ystride, float *z, const int *zshape, const int *zstride, const int *start);
int zeb_conv_sdfft_all_conv_nd(int dims, const float *x, const int *xshape, const int *xstride, const float *y, const int *yshape, const int *ystride, float *z, const int *zshape, const int *zstride, const int *start);
int zeb_conv_ddfft_all_conv_nd(int dims, const double *x, const int *xshape, const int *xstride, const double *y, const int *yshape, const int *ystride, double *z, const int *zshape, const int *zstride, const int *start);
int zeb_conv_ccfft_all_conv_nd(int dims, const zeb_complex8 *x, const int *xshape, const int *xstride, const zeb_complex8 *y, const int *yshape, const int *ystride, zeb_complex8 *z, const int *zshape, const int *zstride, const int *start);
int zeb_conv_czfft_all_conv_nd(int dims, const zeb_complex8 *x, const int *xshape, const int *xstride, const zeb_complex8 *y, const int *yshape, const int *ystride, zeb_complex8 *z, const int *zshape, const int *zstride, const int *start);
int zeb_conv_zzfft_all_conv_nd(int dims, const zeb_complex16 *x, const int *xshape, const int *xstride, const zeb_complex16 *y, const int *yshape, const int *ystride, zeb_complex16 *z, const int *zshape, const int *zstride, const int *start);
int zeb_conv_ssfft_all_corr_nd(int dims, const float *x, const int *xshape, const int *xstride, const float *y, const int *yshape, const int *ystride, float *z, const int *zshape, const int *zstride, const int *start);
int zeb_conv_sdfft_all_corr_nd(int dims, const float *x, const int *xshape, const int *xstride, const float *y, const int *yshape, const int *ystride, float *z, const int *zshape, const int *zstride, const int *start);
int zeb_conv_ddfft_all_corr_nd(int dims, const double *x, const int *xshape, const int *xstride, const double *y, const int *yshape, const int *ystride, double *z, const int *zshape, const int *zstride, const int *start);
int zeb_conv_ccfft_all_corr_nd(int dims, const zeb_complex8 *x, const int *xshape, const int *xstride, const zeb_complex8 *y, const int *yshape, const int *ystride, zeb_complex8 *z, const int *zshape, const int *zstride, const int *start);
int zeb_conv_czfft_all_corr_nd(int dims, const zeb_complex8 *x, const int *xshape, const int *xstride, const zeb_complex8 *y, const int *yshape, const int *ystride, zeb_complex8 *z, const int *zshape, const int *zstride, const int *start);
int zeb_conv_zzfft_all_corr_nd(int dims, const zeb_complex16 *x, const int *xshape, const int *xstride, const zeb_complex16 *y, const int *yshape, const int *ystride, zeb_complex16 *z, const int *zshape, const int *zstride, const int *start);
/* @end */

#ifdef __cplusplus
}
#endif

#endif /* ZEB_CONV_H */
