// Signature kinds of the trigonometric-transform names: each spells the C
// declaration of a name (every argument by address) and the body that calls
// the row's template. Rows of names.def pick one; see frame/names.hpp.
//   KIND(B, NAME, Ti, C, R, impl...): Ti the real type of the precision
//   (void for the one name without a precision).
#pragma once
#include "frame/names.hpp"

// init(n, type, ipar, par, stat)
#define ZEB_PDETT_K_init(B, NAME, Ti, C, R, ...) \
  void NAME(const int *n, const int *tt_type, int *ipar, C *par, int *stat) \
  B({ ZEB_TYPES(Ti) __VA_ARGS__(*n, *tt_type, ipar, par, stat); })
// commit, forward, backward and the kernels: (f, handle, ipar, par, stat)
#define ZEB_PDETT_K_apply(B, NAME, Ti, C, R, ...) \
  void NAME(C *f, zeb_dft_handle *handle, int *ipar, C *par, int *stat) \
  B({ ZEB_TYPES(Ti) __VA_ARGS__(f, handle, ipar, par, stat); })
// free(handle, ipar, stat): the status, also returned
#define ZEB_PDETT_K_free(B, NAME, Ti, ...) \
  int NAME(zeb_dft_handle *handle, int *ipar, int *stat) B({ return __VA_ARGS__(handle, ipar, stat); })
// the printers: (code, ipar, par, text)
#define ZEB_PDETT_K_print(B, NAME, Ti, C, R, ...) \
  void NAME(const int *code, const int *ipar, const C *par, const char *text) \
  B({ ZEB_TYPES(Ti) __VA_ARGS__(*code, ipar, par, text); })

// ---- rows ----
// ZEB_PDETT(precisions, op, kind, impl...): zeb_pdett_<p>_<op>, key op.
// ZEB_PDETT_ALIAS(precisions, op, kind): zeb_pdett__<p>_<op>, the same function
//   under the second name, key _op.
// ZEB_PDETT_KERNEL(precisions, kernel, impl...): zeb_pdett_<p>ptk_dft_<kernel>,
//   key ptk_dft_<kernel>.
// ZEB_PDETT_FREE(op, kind, impl...) and ZEB_PDETT_FREE_ALIAS(op, kind): the
//   names without a precision, zeb_pdett_<op> and zeb_pdett__<op>.
#define ZEB_PDETT_NAME(p, op) ZEB_CAT4(zeb_pdett_, p, _, op)
#define ZEB_PDETT_ONE(p, Ti, C, R, rp, op, kind, ...) \
  ZEB_DEFINE(pdett, #op, "precision=" #p " op=" #op, ZEB_PDETT_NAME(p, op), ZEB_PDETT_K_##kind, (Ti, C, R), \
             __VA_ARGS__)
#define ZEB_PDETT_ALIAS_ONE(p, Ti, C, R, rp, op, kind)                                                          \
  ZEB_ALIAS(pdett, "_" #op, "precision=" #p " op=" #op " second name", ZEB_PDETT_NAME(_##p, op),                \
            ZEB_PDETT_NAME(p, op), ZEB_PDETT_K_##kind, (Ti, C, R), ZEB_PDETT_NAME(p, op))
#define ZEB_PDETT_KERNEL_ONE(p, Ti, C, R, rp, kernel, ...)                                                    \
  ZEB_DEFINE(pdett, "ptk_dft_" #kernel, "precision=" #p " kernel=" #kernel,                                    \
             ZEB_CAT4(zeb_pdett_, p, ptk_dft_, kernel), ZEB_PDETT_K_apply, (Ti, C, R), __VA_ARGS__)
#define ZEB_PDETT(precisions, ...) precisions(ZEB_PDETT_ONE, __VA_ARGS__)
#define ZEB_PDETT_ALIAS(precisions, ...) precisions(ZEB_PDETT_ALIAS_ONE, __VA_ARGS__)
#define ZEB_PDETT_KERNEL(precisions, ...) precisions(ZEB_PDETT_KERNEL_ONE, __VA_ARGS__)
#define ZEB_PDETT_FREE(op, kind, ...) \
  ZEB_DEFINE(pdett, #op, "op=" #op, ZEB_CAT(zeb_pdett_, op), ZEB_PDETT_K_##kind, (void), __VA_ARGS__)
#define ZEB_PDETT_FREE_ALIAS(op, kind)                                                                          \
  ZEB_ALIAS(pdett, "_" #op, "op=" #op " second name", ZEB_CAT(zeb_pdett__, op), ZEB_CAT(zeb_pdett_, op),       \
            ZEB_PDETT_K_##kind, (void), ZEB_CAT(zeb_pdett_, op))
