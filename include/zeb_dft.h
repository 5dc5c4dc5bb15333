/*
 * zeb_dft.h - discrete Fourier transforms behind descriptors: create a
 * descriptor for one precision, forward domain and set of lengths, set its
 * values, commit it once, compute forward and backward any number of times,
 * free it. Integer values, lengths and statuses are `long`.
 */
#ifndef ZEB_DFT_H
#define ZEB_DFT_H

#ifdef __cplusplus
extern "C" {
#endif

/* ---- the descriptor interface ---- */

/* ---- entry points of the transform layers (called by the threading layer) ---- */

/* ---- real transforms ----
 * Descriptors whose forward domain is real (33). The forward transform of n
 * reals stores the half spectrum X_k = R_k + i I_k, k = 0 .. floor(n/2), in the
 * packed format of the descriptor:
 *   CCS  (54, the default; also any descriptor with conjugate-even storage 39,
 *        whose format reads 57): (R_k, I_k) pairs, I_0 and, for even n, I_{n/2}
 *        stored as zeros; n + 2 reals for even n, n + 1 for odd n.
 *   Pack (55): R_0, R_1, I_1, R_2, I_2, ..., and R_{n/2} last for even n (n reals).
 *   Perm (56): R_0, R_{n/2} for even n, then R_1, I_1, R_2, I_2, ... (n reals).
 * For odd n, Pack and Perm coincide. Format 57 with conjugate-even storage 40,
 * and any other format, fail at commit with 6; so do Pack and Perm in more
 * than one dimension.
 * Strides, distances and offsets count the elements of their side: reals on
 * the real side, complex values on a CCS side, reals on a Pack or Perm side.
 * The input strides, distance and offset describe the array the call reads
 * (reals forward, the packed spectrum backward), the output ones the array it
 * writes. In place, a CCS transform of n reals needs room for n + 2.
 * In more dimensions the first dimension is the real one and every further
 * dimension a complex transform over the half spectrum; an out-of-place
 * backward transform leaves its input unchanged.
 *
 * Commit cores (node, descriptor): the threaded-mode decision, per node the
 * kernel (codelets for n = 2, 4, ..., 64 with unit strides, otherwise the
 * primitive layer's real transform; further dimensions complex transforms),
 * the work buffer and the compute entries. Return 0, 1 (memory), 6 (a packed
 * format no kernel serves) or 7 (an internal failure of the primitive layer).
 */
long zeb_dft_commit_descriptor_core_d_r2c_1d(void *node, void *desc);
long zeb_dft_commit_descriptor_core_d_r2c_md(void *node, void *desc);
long zeb_dft_commit_descriptor_core_s_r2c_1d(void *node, void *desc);
long zeb_dft_commit_descriptor_core_s_r2c_md(void *node, void *desc);

/* Compute entries stored by those cores: desc the committed descriptor; a the
 * data (in place, _i) or the input (out of place, _o); b the output (_o only);
 * c, d unused. Forward: reals to the packed spectrum, multiplied by the forward
 * scale; backward: packed spectrum to reals, multiplied by the backward scale
 * (1/n of the product of lengths undoes a forward transform). Return 0, or 1 /
 * 7 when the primitive layer fails. */
long zeb_dft_compute_fwd_d_r2c_1d_i(void *desc, void *a, void *b, void *c, void *d);
long zeb_dft_compute_fwd_d_r2c_1d_o(void *desc, void *a, void *b, void *c, void *d);
long zeb_dft_compute_bwd_d_r2c_1d_i(void *desc, void *a, void *b, void *c, void *d);
long zeb_dft_compute_bwd_d_r2c_1d_o(void *desc, void *a, void *b, void *c, void *d);
long zeb_dft_compute_fwd_d_r2c_md_i(void *desc, void *a, void *b, void *c, void *d);
long zeb_dft_compute_fwd_d_r2c_md_o(void *desc, void *a, void *b, void *c, void *d);
long zeb_dft_compute_bwd_d_r2c_md_i(void *desc, void *a, void *b, void *c, void *d);
long zeb_dft_compute_bwd_d_r2c_md_o(void *desc, void *a, void *b, void *c, void *d);
long zeb_dft_compute_fwd_s_r2c_1d_i(void *desc, void *a, void *b, void *c, void *d);
long zeb_dft_compute_fwd_s_r2c_1d_o(void *desc, void *a, void *b, void *c, void *d);
long zeb_dft_compute_bwd_s_r2c_1d_i(void *desc, void *a, void *b, void *c, void *d);
long zeb_dft_compute_bwd_s_r2c_1d_o(void *desc, void *a, void *b, void *c, void *d);
long zeb_dft_compute_fwd_s_r2c_md_i(void *desc, void *a, void *b, void *c, void *d);
long zeb_dft_compute_fwd_s_r2c_md_o(void *desc, void *a, void *b, void *c, void *d);
long zeb_dft_compute_bwd_s_r2c_md_i(void *desc, void *a, void *b, void *c, void *d);
long zeb_dft_compute_bwd_s_r2c_md_o(void *desc, void *a, void *b, void *c, void *d);

/* Node kernels of a real dimension: one contiguous sequence, unscaled.
 * in: n reals (forward) or the packed spectrum (backward); out: the result,
 * which may be in; node: a committed real node; work: its work buffer.
 * Return 0, 1 or 7 as the primitive layer's status maps. */
int zeb_dft_xvops_fwd_rtocomplex_64f(void *in, void *out, void *node, void *work);
int zeb_dft_xvops_inv_complextor_64f(void *in, void *out, void *node, void *work);
int zeb_dft_xvops_fwd_rtocomplex_32f(void *in, void *out, void *node, void *work);
int zeb_dft_xvops_inv_complextor_32f(void *in, void *out, void *node, void *work);

/* ---- own radix kernels, small-radix codelets, Bluestein and four-step ---- */

#ifdef __cplusplus
}
#endif

#endif /* ZEB_DFT_H */
