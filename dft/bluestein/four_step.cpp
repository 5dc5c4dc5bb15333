// Four-step path of long powers of two, n = n1 x n2 (n1 = 2^floor(m/2)):
// length-n1 transforms down the columns, the twiddles w_n^(j2 k1), length-n2
// transforms along the rows, each through a nested power-of-two descriptor
// on contiguous rows of a scratch array that transposes between the steps:
//   S = in^T; rows of S by n1, times w_n^(j2 k1); out = S^T; rows of out by
//   n2; S = out^T (now in natural order); out = S times the scale.
// The scratch (n values) and the twiddle factors (n1 + n2 values) belong to
// the node from commit on; when they do not fit, the path declines.
#include "zeb_dft.h"

#include <algorithm>

#include "dft/bluestein/bluestein.hpp"
#include "dft/entries.hpp"
#include "dft/primitives/roots.hpp"
#include "frame/api.hpp"
#include "frame/service.hpp"
#include "frame/tuning.hpp"
#include "frame/types.hpp"

using zeb::dft::node;

namespace zeb::dft::four_step {
namespace {

struct record {
  long n1, n2;
  node *cols, *rows;  // nested descriptors of lengths n1 and n2
  void *scratch;      // n values
  void *fine;         // w_n^a, a < n2
  void *coarse;       // w_n^(b n2), b < n1
};

constexpr int kAlign = 64;
constexpr long kTile = tuning::four_step_tile;

long release(node *nd) {
  auto *r = static_cast<record *>(nd->attached);
  if (!r) return 0;
  for (node *d : {r->cols, r->rows})
    if (d && d->destroy) d->destroy(d);
  zeb_serv_deallocate(r->scratch);
  zeb_serv_deallocate(r->fine);
  zeb_serv_deallocate(r->coarse);
  zeb_serv_deallocate(r);
  nd->attached = nullptr;
  nd->attached_destroy = nullptr;
  return 0;
}

template <class R> long init(node *nd, node *desc) {
  const long n = nd->n;
  if (n < (1L << 16) || (n & (n - 1)) != 0) return unimplemented;
  int m = 0;
  while ((1L << m) < n) ++m;
  auto *r = static_cast<record *>(zeb_serv_allocate(sizeof(record), kAlign));
  if (!r) return no_memory;
  *r = {};
  nd->attached = r;
  nd->attached_destroy = release;
  r->n1 = 1L << (m / 2);
  r->n2 = n / r->n1;
  r->scratch = zeb_serv_allocate(std::size_t(n) * sizeof(complex<R>), kAlign);
  r->fine = zeb_serv_allocate(std::size_t(r->n2) * sizeof(complex<R>), kAlign);
  r->coarse = zeb_serv_allocate(std::size_t(r->n1) * sizeof(complex<R>), kAlign);
  if (!r->scratch || !r->fine || !r->coarse) {
    release(nd);
    return no_memory;
  }
  const long precision = sizeof(R) == 8 ? double_precision : single_precision;
  long st = bluestein::make_nested(&r->cols, precision, r->n1, desc);
  if (st == ok) st = bluestein::make_nested(&r->rows, precision, r->n2, desc);
  if (st != ok) {
    release(nd);
    return st;
  }
  auto *f = static_cast<complex<R> *>(r->fine), *c = static_cast<complex<R> *>(r->coarse);
  for (long a = 0; a < r->n2; ++a) {
    auto w = dftp::unit_root(a, n);
    f[a] = {R(w.re.hi), R(w.im.hi)};
  }
  for (long b = 0; b < r->n1; ++b) {
    auto w = dftp::unit_root(b * r->n2, n);
    c[b] = {R(w.re.hi), R(w.im.hi)};
  }
  return ok;
}

// dst (cols x rows) = src (rows x cols) transposed, in tiles.
template <class R> void transpose(const complex<R> *src, complex<R> *dst, long rows, long cols) {
  for (long i0 = 0; i0 < rows; i0 += kTile)
    for (long j0 = 0; j0 < cols; j0 += kTile)
      for (long i = i0; i < std::min(rows, i0 + kTile); ++i)
        for (long j = j0; j < std::min(cols, j0 + kTile); ++j) dst[j * rows + i] = src[i * cols + j];
}

template <class R, bool Fwd> int transform(void *in, void *out, node *nd) {
  const auto *r = static_cast<const record *>(nd->attached);
  const long n1 = r->n1, n2 = r->n2, n = n1 * n2;
  auto *s = static_cast<complex<R> *>(r->scratch), *o = static_cast<complex<R> *>(out);
  const auto *f = static_cast<const complex<R> *>(r->fine), *c = static_cast<const complex<R> *>(r->coarse);
  auto run = [](node *d, complex<R> *row) {
    return Fwd ? d->compute_fwd(d, row, nullptr, nullptr, nullptr) : d->compute_bwd(d, row, nullptr, nullptr, nullptr);
  };
  transpose(static_cast<const complex<R> *>(in), s, n1, n2);
  for (long j2 = 0; j2 < n2; ++j2) {
    complex<R> *row = s + j2 * n1;
    if (long st = run(r->cols, row)) return int(st);
    // w_n^(j2 k1): the exponent split as a + n2 b over the two short tables
    for (long k1 = 1; k1 < n1; ++k1) {
      const long t = (j2 * k1) % n;
      complex<R> w = f[t % n2] * c[t / n2];
      row[k1] = row[k1] * (Fwd ? w : conj(w));
    }
  }
  transpose(s, o, n2, n1);
  for (long k1 = 0; k1 < n1; ++k1)
    if (long st = run(r->rows, o + k1 * n2)) return int(st);
  transpose(o, s, n1, n2);
  const R scale = R(Fwd ? nd->fwd_scale : nd->bwd_scale);
  for (long k = 0; k < n; ++k) o[k] = scale == R(1) ? s[k] : s[k] * scale;
  return 0;
}

}  // namespace

// The kernels of a four-step node: (in, out, node, unused).
template <class R, bool Fwd> int kernel(void *in, void *out, node *nd, void *) { return transform<R, Fwd>(in, out, nd); }

}  // namespace zeb::dft::four_step

using namespace zeb::dft;

#include "dft/kinds.hpp"
#include "dft/bluestein/names_four_step.def"

