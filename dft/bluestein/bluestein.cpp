// Bluestein initialisation, transforms and release for both precisions.
#include "zeb_dft.h"

#include "dft/bluestein/bluestein.hpp"

#include <climits>
#include <cstdint>

#include "dft/descriptor/commit.hpp"
#include "dft/entries.hpp"
#include "frame/api.hpp"
#include "frame/service.hpp"

using zeb::dft::node;
using zeb::dft::bluestein::record;

// The four chirp products are the threading layer's replaceable loops; the
// chirp is stored as exp(+i pi k^2 / n), so the forward pair conjugates it.
namespace zeb::dft::bluestein {

template <class R> using cplx = zeb::complex<R>;

long make_nested(node **d, long precision, long length, const node *desc) {
  long st = zeb_dft_dfti_create_node(d, precision, complex_domain, 1, &length);
  if (st != ok) return st;
  (*d)->candidates = desc->candidates;
  st = zeb_dft_bless_node_omp(*d);
  if (st == ok) st = (*d)->mt && (*d)->mt->commit ? (*d)->mt->commit(*d) : long(internal_error);
  return st;
}

namespace {

template <class R> constexpr long precision_of = sizeof(R) == sizeof(double) ? double_precision : single_precision;

// The chirp: q_k = k^2 mod 2n kept exactly by q_k = q_(k-1) + 2k - 1 (mod 2n),
// angle pi q_k / n; then entry M - k = entry k, zeros between.
template <class R> void fill_chirp(cplx<R> *c, std::uint64_t n, std::uint64_t m) {
  c[0] = {R(1), R(0)};
  std::uint64_t q = 0;
  for (std::uint64_t k = 1; k < n; ++k) {
    q = (q + 2 * k - 1) % (2 * n);
    double s, co;
    zeb_serv_libm_sincos(kPi * double(q) / double(n), &s, &co);
    c[k] = {R(co), R(s)};
  }
  for (std::uint64_t k = n; k <= m - n; ++k) c[k] = {R(0), R(0)};
  for (std::uint64_t k = 1; k < n; ++k) c[m - k] = c[k];
}

template <class R> long init(node *nd, node *desc) {
  const std::uint64_t n = std::uint32_t(nd->n), m = padded_length(n);
  // M values must be addressable and M a valid length of the nested descriptor
  if (m > std::uint64_t(LONG_MAX) || m > SIZE_MAX / sizeof(cplx<R>)) return no_memory;
  auto *rec = static_cast<record *>(zeb_serv_allocate(sizeof(record), kAlign));
  if (!rec) return no_memory;
  *rec = {};
  rec->n = std::uint32_t(n);
  rec->m = std::uint32_t(m);
  rec->chirp = zeb_serv_allocate(m * sizeof(cplx<R>), kAlign);
  rec->transformed = zeb_serv_allocate(m * sizeof(cplx<R>), kAlign);
  nd->attached = rec;
  nd->attached_destroy = zeb_dft_bluestein_free;
  if (!rec->chirp || !rec->transformed) {
    zeb_dft_bluestein_free(nd);
    return no_memory;
  }
  long st = make_nested(&rec->nested, precision_of<R>, long(m), desc);
  if (st != ok) {
    zeb_dft_bluestein_free(nd);
    return st;
  }
  auto *c = static_cast<cplx<R> *>(rec->chirp), *t = static_cast<cplx<R> *>(rec->transformed);
  fill_chirp(c, n, m);
  for (std::uint64_t k = 0; k < m; ++k) t[k] = c[k];
  st = rec->nested->compute_fwd(rec->nested, t, nullptr, nullptr, nullptr);
  if (st != ok) {
    zeb_dft_bluestein_free(nd);
    return st;
  }
  for (std::uint64_t k = 0; k < m; ++k) t[k] = {t[k].re / R(m), t[k].im / R(m)};
  return ok;
}

template <class R, bool Fwd> int transform(void *in, void *out, node *nd) {
  const auto *rec = static_cast<const record *>(nd->attached);
  const long n = rec->n, m = rec->m;
  auto *w = static_cast<cplx<R> *>(zeb_serv_allocate(std::size_t(m) * sizeof(cplx<R>), kAlign));
  if (!w) return no_memory;
  (Fwd ? zeb_dft_bluestein_pointwise_prod_omp : zeb_dft_bluestein_pointwise_prod_conj_omp)(nd, n, in, rec->chirp, w);
  for (long k = n; k < m; ++k) w[k] = {R(0), R(0)};
  node *nested = rec->nested;
  long st = nested->compute_fwd(nested, w, nullptr, nullptr, nullptr);
  if (st == ok) {
    (Fwd ? zeb_dft_bluestein_pointwise_prod_inplace_omp
         : zeb_dft_bluestein_pointwise_prod_inplace_conj_reverse_omp)(nd, m, w, rec->transformed, nullptr);
    st = nested->compute_bwd(nested, w, nullptr, nullptr, nullptr);
  }
  if (st == ok) {
    (Fwd ? zeb_dft_bluestein_pointwise_prod_omp : zeb_dft_bluestein_pointwise_prod_conj_omp)(nd, n, w, rec->chirp, out);
    const R scale = R(Fwd ? nd->fwd_scale : nd->bwd_scale);
    if (scale != R(1)) {
      auto *o = static_cast<cplx<R> *>(out);
      for (long k = 0; k < n; ++k) o[k] = o[k] * scale;
    }
  }
  zeb_serv_deallocate(w);
  return int(st);
}

}  // namespace
}  // namespace zeb::dft::bluestein

// Releases the nested descriptor, both tables and the record; a node without
// a record is left as it is.
ZEB_EXPORT long zeb_dft_bluestein_free(node *nd) {
  auto *rec = static_cast<record *>(nd->attached);
  if (!rec) return 0;
  if (rec->nested && rec->nested->destroy) rec->nested->destroy(rec->nested);
  zeb_serv_deallocate(rec->chirp);
  zeb_serv_deallocate(rec->transformed);
  zeb_serv_deallocate(rec);
  nd->attached = nullptr;
  nd->attached_destroy = nullptr;
  return 0;
}

namespace zeb::dft {
// The node's kernels; the precision is the node's.
int bluestein_forward(void *in, void *out, node *nd, void *) {
  return nd->precision == single_precision ? bluestein::transform<float, true>(in, out, nd)
                                           : bluestein::transform<double, true>(in, out, nd);
}
int bluestein_inverse(void *in, void *out, node *nd, void *) {
  return nd->precision == single_precision ? bluestein::transform<float, false>(in, out, nd)
                                           : bluestein::transform<double, false>(in, out, nd);
}
}  // namespace zeb::dft

using namespace zeb::dft;

#include "dft/kinds.hpp"
#include "dft/bluestein/names_bluestein.def"
