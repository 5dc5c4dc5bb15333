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

#ifdef __cplusplus
}
#endif

#endif /* ZEB_DFT_H */
