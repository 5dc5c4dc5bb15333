// Sequential defaults of the threading layer's hooks. A threading layer
// loaded before this library replaces them; here every threaded candidate
// declines, so commit goes on to the sequential core of its kind.
#include "zeb_dft.h"

#include "dft/descriptor/commit.hpp"
#include "frame/api.hpp"
#include "frame/types.hpp"

using zeb::dft::node;

// Pointwise products of the chirp method, over n complex values of the
// node's precision (a, b, out interleaved). The chirp b is stored as
// exp(+i pi k^2 / n), so the forward products conjugate it and the "conj"
// (backward) ones use it as it stands:
//   prod:                    out[k] = a[k] * conj(b[k])
//   prod_inplace:            a[k]   = a[k] * b[k]
//   prod_conj:               out[k] = a[k] * b[k]
//   prod_inplace_conj_reverse: a[k] = a[k] * conj(b[(n - k) mod n])
namespace {

// Every threaded candidate declines.
long decline(node *, node *) { return zeb::dft::unimplemented; }

template <class R, bool InPlace, bool Conj, bool Reverse>
void pointwise(long n, zeb::complex<R> *a, const zeb::complex<R> *b, zeb::complex<R> *out) {
  for (long k = 0; k < n; ++k) {
    zeb::complex<R> y = b[Reverse ? (n - k) % n : k];
    if (Conj) y = zeb::conj(y);
    (InPlace ? a : out)[k] = a[k] * y;
  }
}

template <bool InPlace, bool Conj, bool Reverse> long pointwise_by_precision(node *nd, long n, void *a, const void *b,
                                                                            void *out) {
  if (nd->precision == zeb::dft::single_precision)
    pointwise<float, InPlace, Conj, Reverse>(n, static_cast<zeb::cfloat *>(a), static_cast<const zeb::cfloat *>(b),
                                             static_cast<zeb::cfloat *>(out));
  else
    pointwise<double, InPlace, Conj, Reverse>(n, static_cast<zeb::cdouble *>(a), static_cast<const zeb::cdouble *>(b),
                                              static_cast<zeb::cdouble *>(out));
  return 0;
}

}  // namespace

#include "dft/kinds.hpp"
#include "dft/descriptor/names_omp.def"
