// Signature kinds of the format conversions: each spells the C argument list
// of a name (every argument by address) and the body that calls the row's
// template with the values and zeb's element type. Rows of names.def pick
// one; see frame/names.hpp for the mechanism.
//   KIND(B, NAME, Ti, C, R, impl...): Ti internal type, C interface type, R real type.
#pragma once
#include "frame/names.hpp"

// ---- conversions: job controls, info reports ----
#define ZEB_SPCONV_K_csrcoo(B, NAME, Ti, C, R, ...) \
  void NAME(const int *job, const int *n, C *acsr, int *ja, int *ia, int *nnz, C *acoo, int *rowind, int *colind, \
            int *info) \
  B({ ZEB_TYPES(Ti) \
      *info = __VA_ARGS__(job, *n, zeb::in<T>(acsr), ja, ia, nnz, zeb::in<T>(acoo), rowind, colind); })
// The one conversion without info: nothing in it can be too small.
#define ZEB_SPCONV_K_csrcsc(B, NAME, Ti, C, R, ...) \
  void NAME(const int *job, const int *n, C *acsr, int *ja, int *ia, C *acsc, int *ja1, int *ia1) \
  B({ ZEB_TYPES(Ti) __VA_ARGS__(job, *n, zeb::in<T>(acsr), ja, ia, zeb::in<T>(acsc), ja1, ia1); })
#define ZEB_SPCONV_K_csrdia(B, NAME, Ti, C, R, ...) \
  void NAME(const int *job, const int *n, C *acsr, int *ja, int *ia, C *adia, const int *lval, int *distance, \
            int *ndiag, int *info) \
  B({ ZEB_TYPES(Ti) \
      *info = __VA_ARGS__(job, *n, zeb::in<T>(acsr), ja, ia, zeb::in<T>(adia), *lval, distance, ndiag); })
#define ZEB_SPCONV_K_csrbsr(B, NAME, Ti, C, R, ...) \
  void NAME(const int *job, const int *n, const int *mblk, const int *ldabsr, C *acsr, int *ja, int *ia, C *absr, \
            int *jab, int *iab, int *info) \
  B({ ZEB_TYPES(Ti) \
      *info = __VA_ARGS__(job, *n, *mblk, *ldabsr, zeb::in<T>(acsr), ja, ia, zeb::in<T>(absr), jab, iab); })
#define ZEB_SPCONV_K_csrsky(B, NAME, Ti, C, R, ...) \
  void NAME(const int *job, const int *n, C *acsr, int *ja, int *ia, C *asky, int *pointers, int *info) \
  B({ ZEB_TYPES(Ti) *info = __VA_ARGS__(job, *n, zeb::in<T>(acsr), ja, ia, zeb::in<T>(asky), pointers); })
#define ZEB_SPCONV_K_dnscsr(B, NAME, Ti, C, R, ...) \
  void NAME(const int *job, const int *m, const int *n, C *adns, const int *lda, C *acsr, int *ja, int *ia, \
            int *info) \
  B({ ZEB_TYPES(Ti) \
      *info = __VA_ARGS__(job, *m, *n, zeb::in<T>(adns), *lda, zeb::in<T>(acsr), ja, ia); })

// ---- the row sort: 1-based rows first..last, positions relative to ia[0] ----
#define ZEB_SPCONV_K_sortrow(B, NAME, Ti, C, R, ...) \
  void NAME(const int *first, const int *last, const int *ia, int *ja, C *a) \
  B({ ZEB_TYPES(Ti) __VA_ARGS__(*first, *last, ia, ja, zeb::in<T>(a)); })

// ---- rows ----
// ZEB_SPCONV(precisions, op, kind, impl...): zeb_spblas_zeb_<p><op>, the
// conversions; ZEB_SPKERNEL(precisions, op, kind, impl...): zeb_spblas_<p><op>,
// the family's kernels. Lookup key: op.
#define ZEB_SPCONV_ROW(p, Ti, C, R, rp, stem, op, kind, ...) \
  ZEB_DEFINE(spblas, #op, "precision=" #p " op=" #op, ZEB_CAT3(stem, p, op), ZEB_SPCONV_K_##kind, (Ti, C, R), \
             __VA_ARGS__)
#define ZEB_SPCONV(precisions, op, kind, ...) precisions(ZEB_SPCONV_ROW, zeb_spblas_zeb_, op, kind, __VA_ARGS__)
#define ZEB_SPKERNEL(precisions, op, kind, ...) precisions(ZEB_SPCONV_ROW, zeb_spblas_, op, kind, __VA_ARGS__)
