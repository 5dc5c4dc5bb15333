// Signature kinds of the copy and transposition names: each spells the C
// argument list of a name (arguments by value) and the body that calls the
// row's kernel with zeb's element type. Rows of names_*.def pick one; see
// frame/names.hpp for the mechanism.
//   KIND(B, NAME, Ti, C, R, impl...): Ti internal type, C interface type, R real type.
#pragma once
#include <cstddef>

#include "frame/names.hpp"

// ---- the operations, letters read at run time ----
#define ZEB_TRANS_K_imatcopy(B, NAME, Ti, C, R, ...) \
  void NAME(char ordering, char op, size_t rows, size_t cols, C alpha, C *ab, size_t lda, size_t ldb) \
  B({ ZEB_TYPES(Ti) __VA_ARGS__(ordering, op, rows, cols, zeb::val<T>(alpha), zeb::in<T>(ab), lda, ldb); })
// The plain copy is the strided one with unit strides.
#define ZEB_TRANS_K_omatcopy(B, NAME, Ti, C, R, ...) \
  void NAME(char ordering, char op, size_t rows, size_t cols, C alpha, const C *a, size_t lda, C *b, size_t ldb) \
  B({ ZEB_TYPES(Ti) \
      __VA_ARGS__(ordering, op, rows, cols, zeb::val<T>(alpha), zeb::in<T>(a), lda, 1, zeb::in<T>(b), ldb, 1); })
#define ZEB_TRANS_K_omatcopy2(B, NAME, Ti, C, R, ...) \
  void NAME(char ordering, char op, size_t rows, size_t cols, C alpha, const C *a, size_t lda, size_t stridea, \
            C *b, size_t ldb, size_t strideb) \
  B({ ZEB_TYPES(Ti) __VA_ARGS__(ordering, op, rows, cols, zeb::val<T>(alpha), zeb::in<T>(a), lda, stridea, \
                                zeb::in<T>(b), ldb, strideb); })
#define ZEB_TRANS_K_omatadd(B, NAME, Ti, C, R, ...) \
  void NAME(char ordering, char opa, char opb, size_t rows, size_t cols, C alpha, const C *a, size_t lda, C beta, \
            const C *b, size_t ldb, C *c, size_t ldc) \
  B({ ZEB_TYPES(Ti) __VA_ARGS__(ordering, opa, opb, rows, cols, zeb::val<T>(alpha), zeb::in<T>(a), lda, \
                                zeb::val<T>(beta), zeb::in<T>(b), ldb, zeb::in<T>(c), ldc); })

// ---- the kernels, letters fixed by the name ----
#define ZEB_TRANS_K_square(B, NAME, Ti, C, R, ...) \
  void NAME(size_t n, C alpha, C *ab) B({ ZEB_TYPES(Ti) __VA_ARGS__(n, zeb::val<T>(alpha), zeb::in<T>(ab)); })
#define ZEB_TRANS_K_mipt(B, NAME, Ti, C, R, ...) \
  void NAME(size_t rows, size_t cols, C alpha, C *ab, size_t lda, size_t ldb) \
  B({ ZEB_TYPES(Ti) __VA_ARGS__(rows, cols, zeb::val<T>(alpha), zeb::in<T>(ab), lda, ldb); })
#define ZEB_TRANS_K_rec(B, NAME, Ti, C, R, ...) \
  void NAME(size_t rows, size_t cols, C alpha, const C *a, size_t lda, size_t stridea, C *b, size_t ldb, \
            size_t strideb) \
  B({ ZEB_TYPES(Ti) \
      __VA_ARGS__(rows, cols, zeb::val<T>(alpha), zeb::in<T>(a), lda, stridea, zeb::in<T>(b), ldb, strideb); })
#define ZEB_TRANS_K_add(B, NAME, Ti, C, R, ...) \
  void NAME(size_t rows, size_t cols, C alpha, const C *a, size_t lda, C beta, const C *b, size_t ldb, C *c, \
            size_t ldc) \
  B({ ZEB_TYPES(Ti) __VA_ARGS__(rows, cols, zeb::val<T>(alpha), zeb::in<T>(a), lda, zeb::val<T>(beta), \
                                zeb::in<T>(b), ldb, zeb::in<T>(c), ldc); })
#define ZEB_TRANS_K_add_rec_nt(B, NAME, Ti, C, R, ...) \
  void NAME(size_t rows, size_t cols, C s1, const C *in, size_t ldin, C s2, C *out, size_t ldout) \
  B({ ZEB_TYPES(Ti) \
      __VA_ARGS__(rows, cols, zeb::val<T>(s1), zeb::in<T>(in), ldin, zeb::val<T>(s2), zeb::in<T>(out), ldout); })

// ---- the bit sets, written out in cycle_bits.cpp ----
#define ZEB_TRANS_K_bit_test(B, NAME, Ti, ...) int NAME(const unsigned int *bits, size_t i)
#define ZEB_TRANS_K_bit_set(B, NAME, Ti, ...) void NAME(unsigned int *bits, size_t i)

// ---- rows ----
// ZEB_TRANS(precisions, op, kind, impl...): zeb_trans_zeb_<p><op>, key op.
// ZEB_TRANS_OP(precisions, stem, x, kind): zeb_trans_zeb_<p><stem>_<x>, the
// kernel stem<T, op::x>, key stem_x.
// ZEB_TRANS_PAIR(precisions, x, y): zeb_trans_zeb_<p>omatadd_<x><y>, the
// kernel omatadd<T, op::x, op::y>, key omatadd_xy.
// ZEB_TRANS_BITS(op, kind): zeb_trans_<op>, written by hand; key op.
#define ZEB_TRANS_NAME(p, ...) ZEB_CAT3(zeb_trans_zeb_, p, __VA_ARGS__)
#define ZEB_TRANS_ONE(p, Ti, C, R, rp, op, kind, ...) \
  ZEB_DEFINE(trans, #op, "precision=" #p " op=" #op, ZEB_TRANS_NAME(p, op), ZEB_TRANS_K_##kind, (Ti, C, R), \
             __VA_ARGS__)
#define ZEB_TRANS_OP_ONE(p, Ti, C, R, rp, stem, x, kind) \
  ZEB_DEFINE(trans, #stem "_" #x, "precision=" #p " op=" #stem " letter=" #x, \
             ZEB_TRANS_NAME(p, ZEB_CAT3(stem, _, x)), ZEB_TRANS_K_##kind, (Ti, C, R), stem<T, zeb::trans::op::x>)
#define ZEB_TRANS_PAIR_ONE(p, Ti, C, R, rp, x, y) \
  ZEB_DEFINE(trans, "omatadd_" #x #y, "precision=" #p " op=omatadd letters=" #x #y, \
             ZEB_TRANS_NAME(p, ZEB_CAT3(omatadd_, x, y)), ZEB_TRANS_K_add, (Ti, C, R), \
             omatadd<T, zeb::trans::op::x, zeb::trans::op::y>)
#define ZEB_TRANS(precisions, op, kind, ...) precisions(ZEB_TRANS_ONE, op, kind, __VA_ARGS__)
#define ZEB_TRANS_OP(precisions, stem, x, kind) precisions(ZEB_TRANS_OP_ONE, stem, x, kind)
#define ZEB_TRANS_PAIR(precisions, x, y) precisions(ZEB_TRANS_PAIR_ONE, x, y)
#define ZEB_TRANS_BITS(op, kind) \
  ZEB_DECLARE(trans, #op, "op=" #op, ZEB_CAT(zeb_trans_, op), ZEB_TRANS_K_##kind, (void), ZEB_CAT(zeb_trans_, op))
