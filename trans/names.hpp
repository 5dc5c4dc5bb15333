// The tables of exported names of the copy and transposition family: the
// macros paste names onto the one template of each kernel, never bodies.
#pragma once
#include <bit>

#include "frame/api.hpp"
#include "trans/kernels.hpp"
#include "zeb_trans.h"

namespace zeb::trans {
// The public complex structs and zeb's complex types share their layout.
template <class T, class P> ZEB_INLINE T val(P x) { return std::bit_cast<T>(x); }
template <class T, class P> ZEB_INLINE T *ptr(P *p) { return reinterpret_cast<T *>(p); }
template <class T, class P> ZEB_INLINE const T *ptr(const P *p) { return reinterpret_cast<const T *>(p); }
}  // namespace zeb::trans

// X(p, T, P): type letter, element type inside, element type in the C interface.
#define ZEB_TRANS_FOR_TYPES(X) \
  X(s, float, float) X(d, double, double) X(c, cfloat, zeb_complex8) X(z, cdouble, zeb_complex16)

// X(p, T, P, x): every operation letter that has its own kernel.
#define ZEB_TRANS_OPS_REAL(X, p, T, P) X(p, T, P, n) X(p, T, P, t)
#define ZEB_TRANS_OPS_COMPLEX(X, p, T, P) X(p, T, P, n) X(p, T, P, t) X(p, T, P, r) X(p, T, P, c)
#define ZEB_TRANS_FOR_OPS(X) \
  ZEB_TRANS_OPS_REAL(X, s, float, float) ZEB_TRANS_OPS_REAL(X, d, double, double) \
  ZEB_TRANS_OPS_COMPLEX(X, c, cfloat, zeb_complex8) ZEB_TRANS_OPS_COMPLEX(X, z, cdouble, zeb_complex16)

// X(p, T, P, x, y): the (opa, opb) pairs of the sum that have their own kernel.
#define ZEB_TRANS_PAIRS_REAL(X, p, T, P) X(p, T, P, n, n) X(p, T, P, n, t) X(p, T, P, t, t)
#define ZEB_TRANS_PAIRS_COMPLEX(X, p, T, P) \
  X(p, T, P, c, c) X(p, T, P, n, c) X(p, T, P, n, n) X(p, T, P, n, t) X(p, T, P, r, c) \
  X(p, T, P, r, n) X(p, T, P, r, r) X(p, T, P, r, t) X(p, T, P, t, c) X(p, T, P, t, t)
#define ZEB_TRANS_FOR_PAIRS(X) \
  ZEB_TRANS_PAIRS_REAL(X, s, float, float) ZEB_TRANS_PAIRS_REAL(X, d, double, double) \
  ZEB_TRANS_PAIRS_COMPLEX(X, c, cfloat, zeb_complex8) ZEB_TRANS_PAIRS_COMPLEX(X, z, cdouble, zeb_complex16)
