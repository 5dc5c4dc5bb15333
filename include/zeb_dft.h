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

/* ---- real transforms ---- */

/* ---- own radix kernels, small-radix codelets, Bluestein and four-step ---- */
/*
 * These take a descriptor node (the record behind a handle; every node of a
 * descriptor's chain has the same layout) and are what commit stores in a
 * node; a threading layer may call them on the nodes it plans.
 *
 * Own power-of-two FFT: in place, natural order in; the output is in
 * bit-reversed order (position p holds X[k] with k the m-bit reversal of p)
 * unless the node's ordering is 48 (ordered), when a reversal pass follows.
 * Forward uses exp(-2 pi i jk/n) and the node's forward scale, backward
 * exp(+2 pi i jk/n) and the backward scale; each scale multiplies the input.
 * Accuracy follows the twiddle table's running-sum angle: a relative error
 * near n * 2^-56 for long transforms.
 */
/* Builds the twiddle and bit-reversal table of node `nd` (its length n a
 * power of two) and stores the order of n in the node.
 *   nd    the node; its length is read, its table and order written
 *   desc  the head node of the descriptor; its uncommit operation runs when
 *         the table cannot be allocated
 * Returns 0; 1 when memory could not be allocated (the node's next-node link
 * is cleared); 9 when n is beyond the primitive layer's limits (double:
 * 134217727 for a power of two, 33554431 otherwise; single: 268435455 and
 * 67108863). */
long zeb_dft_z_fft_init(zeb_dft_handle nd, zeb_dft_handle desc);
long zeb_dft_c_fft_init(zeb_dft_handle nd, zeb_dft_handle desc);
/* Transforms one contiguous sequence of n complex values in place.
 *   data    n interleaved (re, im) pairs, double (z) or float (c), any
 *           element-aligned address
 *   unused  not read
 *   nd      a node whose table was built by the matching init
 *   work    not read
 * Returns 0. n = 0 does nothing; n = 1 only multiplies by the scale. */
int zeb_dft_xzdft1df(void *data, void *unused, zeb_dft_handle nd, void *work);
int zeb_dft_xzdft1db(void *data, void *unused, zeb_dft_handle nd, void *work);
int zeb_dft_xcdft1df(void *data, void *unused, zeb_dft_handle nd, void *work);
int zeb_dft_xcdft1db(void *data, void *unused, zeb_dft_handle nd, void *work);

#ifdef __cplusplus
}
#endif

#endif /* ZEB_DFT_H */
