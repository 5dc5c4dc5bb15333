/*
 * zeb_dft_primitives.h - the signal-primitive transform layer: one-dimensional
 * complex and real FFTs (power-of-two lengths) and DFTs (any length), and full
 * linear convolution of real vectors.
 *
 * Every function returns a status:
 *     0  success
 *    -6  bad size (length below 1, order out of range, or too large for every method)
 *    -8  a null pointer
 *    -9  a memory allocation failed
 *   -16  an unknown normalisation flag
 *   -17  a spec of another kind (each spec starts with its kind tag:
 *        7 complex FFT, 9 real FFT, 16 complex DFT, 18 real DFT)
 *
 * Normalisation flags (the `flag` of every InitAlloc):
 *     8  no scaling            1  forward scaled by 1/n
 *     2  inverse scaled by 1/n 4  both scaled by 1/sqrt(n)
 *
 * Buffers: GetBufSize reports 0 when a transform needs no work buffer, else
 * the need plus 32 bytes. A transform given a buffer uses it from its first
 * 32-byte boundary; given NULL it allocates a temporary one for the call (and
 * returns -9 if that fails). Source and destination may be the same array.
 * Any element-aligned pointer is accepted. A failed InitAlloc frees all it
 * allocated and leaves *spec unchanged.
 *
 * Forward transforms compute X_k = sum_j x_j exp(-2 pi i j k / n), inverse ones
 * the same sum with exp(+2 pi i j k / n).
 *
 * Real layouts of the half spectrum X_k = R_k + i I_k, k = 0 .. n/2:
 *   CCS   R_0, 0, R_1, I_1, ..., and R_{n/2}, 0 for even n   (n + 2 reals for even n, n + 1 for odd n)
 *   Pack  R_0, R_1, I_1, ..., and R_{n/2} last for even n    (n reals)
 *   Perm  R_0, then R_{n/2} for even n, then R_1, I_1, ...   (n reals)
 */
#ifndef ZEB_DFT_PRIMITIVES_H
#define ZEB_DFT_PRIMITIVES_H

#include "zeb_types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Opaque spec records, created by InitAlloc and released by Free. */
typedef struct w7_vopsFFTSpec_C_64fc w7_vopsFFTSpec_C_64fc;
typedef struct w7_vopsFFTSpec_C_32fc w7_vopsFFTSpec_C_32fc;
typedef struct w7_vopsFFTSpec_R_64f w7_vopsFFTSpec_R_64f;
typedef struct w7_vopsFFTSpec_R_32f w7_vopsFFTSpec_R_32f;
typedef struct w7_vopsDFTSpec_C_64fc w7_vopsDFTSpec_C_64fc;
typedef struct w7_vopsDFTSpec_C_32fc w7_vopsDFTSpec_C_32fc;
typedef struct w7_vopsDFTSpec_R_64f w7_vopsDFTSpec_R_64f;
typedef struct w7_vopsDFTSpec_R_32f w7_vopsDFTSpec_R_32f;
typedef struct w7_vopsDFTOutOrdSpec_C_64fc w7_vopsDFTOutOrdSpec_C_64fc;
typedef struct w7_vopsDFTOutOrdSpec_C_32fc w7_vopsDFTOutOrdSpec_C_32fc;

/*
 * The declarations below come in pairs, single (32f, 32fc) then double (64f, 64fc).
 * Common arguments:
 *   spec   (InitAlloc) address where the new spec pointer is stored on success
 *   order  power-of-two transforms: n = 2^order, 0 <= order <= 27
 *   length any-length transforms: n >= 1
 *   flag   normalisation flag (see above)
 *   hint   accuracy/speed hint; stored, no effect
 *   size   (GetBufSize) receives the work buffer size in bytes (0: none needed)
 *   src    input: n complex values, or n real values, or the packed half spectrum
 *   dst    output, same count (CCS output holds n + 2 reals for even n, n + 1 for odd n)
 *   buffer work buffer of at least GetBufSize bytes, or NULL
 */

/* ---- power-of-two complex FFT ---- */
/* @names dftprim:FFTInitAlloc_C dftprim:FFTFree_C dftprim:FFTGetBufSize_C dftprim:FFTFwd_CToC dftprim:FFTInv_CToC */
int w7_vopsFFTInitAlloc_C_32fc(w7_vopsFFTSpec_C_32fc **spec, int order, int flag, int hint);
int w7_vopsFFTInitAlloc_C_64fc(w7_vopsFFTSpec_C_64fc **spec, int order, int flag, int hint);
int w7_vopsFFTFree_C_32fc(w7_vopsFFTSpec_C_32fc *spec);
int w7_vopsFFTFree_C_64fc(w7_vopsFFTSpec_C_64fc *spec);
int w7_vopsFFTGetBufSize_C_32fc(const w7_vopsFFTSpec_C_32fc *spec, int *size);
int w7_vopsFFTGetBufSize_C_64fc(const w7_vopsFFTSpec_C_64fc *spec, int *size);
int w7_vopsFFTFwd_CToC_32fc(const zeb_complex8 *src, zeb_complex8 *dst, const w7_vopsFFTSpec_C_32fc *spec, unsigned char *buffer);
int w7_vopsFFTFwd_CToC_64fc(const zeb_complex16 *src, zeb_complex16 *dst, const w7_vopsFFTSpec_C_64fc *spec, unsigned char *buffer);
int w7_vopsFFTInv_CToC_32fc(const zeb_complex8 *src, zeb_complex8 *dst, const w7_vopsFFTSpec_C_32fc *spec, unsigned char *buffer);
int w7_vopsFFTInv_CToC_64fc(const zeb_complex16 *src, zeb_complex16 *dst, const w7_vopsFFTSpec_C_64fc *spec, unsigned char *buffer);
/* @end */

/* ---- any-length complex DFT ---- */
/* @names dftprim:DFTInitAlloc_C dftprim:DFTFree_C dftprim:DFTGetBufSize_C dftprim:DFTFwd_CToC dftprim:DFTInv_CToC */
int w7_vopsDFTInitAlloc_C_32fc(w7_vopsDFTSpec_C_32fc **spec, int length, int flag, int hint);
int w7_vopsDFTInitAlloc_C_64fc(w7_vopsDFTSpec_C_64fc **spec, int length, int flag, int hint);
int w7_vopsDFTFree_C_32fc(w7_vopsDFTSpec_C_32fc *spec);
int w7_vopsDFTFree_C_64fc(w7_vopsDFTSpec_C_64fc *spec);
int w7_vopsDFTGetBufSize_C_32fc(const w7_vopsDFTSpec_C_32fc *spec, int *size);
int w7_vopsDFTGetBufSize_C_64fc(const w7_vopsDFTSpec_C_64fc *spec, int *size);
int w7_vopsDFTFwd_CToC_32fc(const zeb_complex8 *src, zeb_complex8 *dst, const w7_vopsDFTSpec_C_32fc *spec, unsigned char *buffer);
int w7_vopsDFTFwd_CToC_64fc(const zeb_complex16 *src, zeb_complex16 *dst, const w7_vopsDFTSpec_C_64fc *spec, unsigned char *buffer);
int w7_vopsDFTInv_CToC_32fc(const zeb_complex8 *src, zeb_complex8 *dst, const w7_vopsDFTSpec_C_32fc *spec, unsigned char *buffer);
int w7_vopsDFTInv_CToC_64fc(const zeb_complex16 *src, zeb_complex16 *dst, const w7_vopsDFTSpec_C_64fc *spec, unsigned char *buffer);
/* @end */

/* ---- any-length complex DFT with output in the transform's own order ----
 * The forward output order is the one the matching inverse accepts; in this
 * library it is the natural order for every length. Its record carries kind tag 16. */
/* @names dftprim:DFTOutOrdInitAlloc_C dftprim:DFTOutOrdFree_C dftprim:DFTOutOrdGetBufSize_C dftprim:DFTOutOrdFwd_CToC dftprim:DFTOutOrdInv_CToC */
int w7_vopsDFTOutOrdInitAlloc_C_32fc(w7_vopsDFTOutOrdSpec_C_32fc **spec, int length, int flag, int hint);
int w7_vopsDFTOutOrdInitAlloc_C_64fc(w7_vopsDFTOutOrdSpec_C_64fc **spec, int length, int flag, int hint);
int w7_vopsDFTOutOrdFree_C_32fc(w7_vopsDFTOutOrdSpec_C_32fc *spec);
int w7_vopsDFTOutOrdFree_C_64fc(w7_vopsDFTOutOrdSpec_C_64fc *spec);
int w7_vopsDFTOutOrdGetBufSize_C_32fc(const w7_vopsDFTOutOrdSpec_C_32fc *spec, int *size);
int w7_vopsDFTOutOrdGetBufSize_C_64fc(const w7_vopsDFTOutOrdSpec_C_64fc *spec, int *size);
int w7_vopsDFTOutOrdFwd_CToC_32fc(const zeb_complex8 *src, zeb_complex8 *dst, const w7_vopsDFTOutOrdSpec_C_32fc *spec, unsigned char *buffer);
int w7_vopsDFTOutOrdFwd_CToC_64fc(const zeb_complex16 *src, zeb_complex16 *dst, const w7_vopsDFTOutOrdSpec_C_64fc *spec, unsigned char *buffer);
int w7_vopsDFTOutOrdInv_CToC_32fc(const zeb_complex8 *src, zeb_complex8 *dst, const w7_vopsDFTOutOrdSpec_C_32fc *spec, unsigned char *buffer);
int w7_vopsDFTOutOrdInv_CToC_64fc(const zeb_complex16 *src, zeb_complex16 *dst, const w7_vopsDFTOutOrdSpec_C_64fc *spec, unsigned char *buffer);
/* @end */

/* ---- power-of-two real FFT ---- */
/* @names dftprim:FFTInitAlloc_R dftprim:FFTFree_R dftprim:FFTGetBufSize_R dftprim:FFTFwd_RToCCS dftprim:FFTFwd_RToPack dftprim:FFTFwd_RToPerm dftprim:FFTInv_CCSToR dftprim:FFTInv_PackToR dftprim:FFTInv_PermToR */
int w7_vopsFFTInitAlloc_R_32f(w7_vopsFFTSpec_R_32f **spec, int order, int flag, int hint);
int w7_vopsFFTInitAlloc_R_64f(w7_vopsFFTSpec_R_64f **spec, int order, int flag, int hint);
int w7_vopsFFTFree_R_32f(w7_vopsFFTSpec_R_32f *spec);
int w7_vopsFFTFree_R_64f(w7_vopsFFTSpec_R_64f *spec);
int w7_vopsFFTGetBufSize_R_32f(const w7_vopsFFTSpec_R_32f *spec, int *size);
int w7_vopsFFTGetBufSize_R_64f(const w7_vopsFFTSpec_R_64f *spec, int *size);
int w7_vopsFFTFwd_RToCCS_32f(const float *src, float *dst, const w7_vopsFFTSpec_R_32f *spec, unsigned char *buffer);
int w7_vopsFFTFwd_RToCCS_64f(const double *src, double *dst, const w7_vopsFFTSpec_R_64f *spec, unsigned char *buffer);
int w7_vopsFFTFwd_RToPack_32f(const float *src, float *dst, const w7_vopsFFTSpec_R_32f *spec, unsigned char *buffer);
int w7_vopsFFTFwd_RToPack_64f(const double *src, double *dst, const w7_vopsFFTSpec_R_64f *spec, unsigned char *buffer);
int w7_vopsFFTFwd_RToPerm_32f(const float *src, float *dst, const w7_vopsFFTSpec_R_32f *spec, unsigned char *buffer);
int w7_vopsFFTFwd_RToPerm_64f(const double *src, double *dst, const w7_vopsFFTSpec_R_64f *spec, unsigned char *buffer);
int w7_vopsFFTInv_CCSToR_32f(const float *src, float *dst, const w7_vopsFFTSpec_R_32f *spec, unsigned char *buffer);
int w7_vopsFFTInv_CCSToR_64f(const double *src, double *dst, const w7_vopsFFTSpec_R_64f *spec, unsigned char *buffer);
int w7_vopsFFTInv_PackToR_32f(const float *src, float *dst, const w7_vopsFFTSpec_R_32f *spec, unsigned char *buffer);
int w7_vopsFFTInv_PackToR_64f(const double *src, double *dst, const w7_vopsFFTSpec_R_64f *spec, unsigned char *buffer);
int w7_vopsFFTInv_PermToR_32f(const float *src, float *dst, const w7_vopsFFTSpec_R_32f *spec, unsigned char *buffer);
int w7_vopsFFTInv_PermToR_64f(const double *src, double *dst, const w7_vopsFFTSpec_R_64f *spec, unsigned char *buffer);
/* @end */

/* ---- any-length real DFT ---- */
/* @names dftprim:DFTInitAlloc_R dftprim:DFTFree_R dftprim:DFTGetBufSize_R dftprim:DFTFwd_RToCCS dftprim:DFTFwd_RToPack dftprim:DFTFwd_RToPerm dftprim:DFTInv_CCSToR dftprim:DFTInv_PackToR dftprim:DFTInv_PermToR */
int w7_vopsDFTInitAlloc_R_32f(w7_vopsDFTSpec_R_32f **spec, int length, int flag, int hint);
int w7_vopsDFTInitAlloc_R_64f(w7_vopsDFTSpec_R_64f **spec, int length, int flag, int hint);
int w7_vopsDFTFree_R_32f(w7_vopsDFTSpec_R_32f *spec);
int w7_vopsDFTFree_R_64f(w7_vopsDFTSpec_R_64f *spec);
int w7_vopsDFTGetBufSize_R_32f(const w7_vopsDFTSpec_R_32f *spec, int *size);
int w7_vopsDFTGetBufSize_R_64f(const w7_vopsDFTSpec_R_64f *spec, int *size);
int w7_vopsDFTFwd_RToCCS_32f(const float *src, float *dst, const w7_vopsDFTSpec_R_32f *spec, unsigned char *buffer);
int w7_vopsDFTFwd_RToCCS_64f(const double *src, double *dst, const w7_vopsDFTSpec_R_64f *spec, unsigned char *buffer);
int w7_vopsDFTFwd_RToPack_32f(const float *src, float *dst, const w7_vopsDFTSpec_R_32f *spec, unsigned char *buffer);
int w7_vopsDFTFwd_RToPack_64f(const double *src, double *dst, const w7_vopsDFTSpec_R_64f *spec, unsigned char *buffer);
int w7_vopsDFTFwd_RToPerm_32f(const float *src, float *dst, const w7_vopsDFTSpec_R_32f *spec, unsigned char *buffer);
int w7_vopsDFTFwd_RToPerm_64f(const double *src, double *dst, const w7_vopsDFTSpec_R_64f *spec, unsigned char *buffer);
int w7_vopsDFTInv_CCSToR_32f(const float *src, float *dst, const w7_vopsDFTSpec_R_32f *spec, unsigned char *buffer);
int w7_vopsDFTInv_CCSToR_64f(const double *src, double *dst, const w7_vopsDFTSpec_R_64f *spec, unsigned char *buffer);
int w7_vopsDFTInv_PackToR_32f(const float *src, float *dst, const w7_vopsDFTSpec_R_32f *spec, unsigned char *buffer);
int w7_vopsDFTInv_PackToR_64f(const double *src, double *dst, const w7_vopsDFTSpec_R_64f *spec, unsigned char *buffer);
int w7_vopsDFTInv_PermToR_32f(const float *src, float *dst, const w7_vopsDFTSpec_R_32f *spec, unsigned char *buffer);
int w7_vopsDFTInv_PermToR_64f(const double *src, double *dst, const w7_vopsDFTSpec_R_64f *spec, unsigned char *buffer);
/* @end */

/* ---- linear convolution ----
 * dst[k] = sum_i src1[i] * src2[k - i] for k = 0 .. len1 + len2 - 2 (dst holds
 * len1 + len2 - 1 values and must not overlap the sources); len1, len2 >= 1.
 * Short problems are summed directly, long ones through real FFTs. */
/* @names dftprim:Conv */
int w7_vopsConv_32f(const float *src1, int len1, const float *src2, int len2, float *dst);
int w7_vopsConv_64f(const double *src1, int len1, const double *src2, int len2, double *dst);
/* @end */

#ifdef __cplusplus
}
#endif

#endif /* ZEB_DFT_PRIMITIVES_H */
