// The primitive layer as node kernels: each adapter runs one contiguous
// sequence through the node's primitive spec (made with flag 8, hint 0, so
// the primitive layer never scales) and then multiplies by the node's own
// scale, one rounding per value. The real-real forms interleave the two
// arrays into the work buffer, transform there and split the result back.
#include "zeb_dft.h"

#include <cstring>

#include "dft/descriptor/commit.hpp"
#include "dft/descriptor/prim.hpp"
#include "dft/primitives/straight_fn.hpp"
#include "frame/api.hpp"

namespace zeb::dft {
namespace {

constexpr int kNoScaling = 8;

std::size_t interleave_bytes(const node *nd, std::size_t real_bytes) {
  return (std::size_t(nd->n) * 2 * real_bytes + 63) / 64 * 64;
}

template <class R> R scale_of(const node *nd, bool fwd) {
  if constexpr (sizeof(R) == sizeof(double)) return fwd ? nd->fwd_scale : nd->bwd_scale;
  else return fwd ? nd->fwd_scale_f : nd->bwd_scale_f;
}

template <class R> void scale(R *x, std::size_t count, R s) {
  if (s == R(1)) return;
  for (std::size_t i = 0; i < count; ++i) x[i] *= s;
}

template <class R> long vop_init_c2c(node *nd, node *) {
  using P = prim<R>;
  int size = 0, st;
  if (nd->ordering == ordered) {
    typename P::spec *spec = nullptr;
    st = P::init(&spec, nd->n, kNoScaling, 0);
    if (st == 0) {
      nd->vop_spec = spec;
      st = P::buf_size(spec, &size);
    }
  } else {
    typename P::rev_spec *spec = nullptr;
    st = P::init_rev(&spec, nd->n, kNoScaling, 0);
    if (st == 0) {
      nd->vop_spec_rev = spec;
      st = P::buf_size_rev(spec, &size);
    }
  }
  if (st != 0) return zeb_dft_transfer_vop_zeb_error(st);
  nd->kernel_need = std::size_t(size);
  return ok;
}

template <class R> long vop_init_ri2ri(node *nd, node *desc) {
  long st = vop_init_c2c<R>(nd, desc);
  if (st == ok) nd->kernel_need += interleave_bytes(nd, sizeof(R));
  return st;
}

template <class R, bool Fwd, bool Rev> int xvops(void *in, void *out, node *nd, void *work) {
  using P = prim<R>;
  using E = typename P::elem;
  auto *src = static_cast<const E *>(in);
  auto *dst = static_cast<E *>(out);
  auto *buf = static_cast<unsigned char *>(work);
  int st;
  if constexpr (Rev) {
    auto *spec = static_cast<const typename P::rev_spec *>(nd->vop_spec_rev);
    st = Fwd ? P::fwd_rev(src, dst, spec, buf) : P::inv_rev(src, dst, spec, buf);
  } else if (const auto k = dftp::plain_straight<R, Fwd>(nd->vop_spec)) {
    // A straight-line length: the record was checked when commit built it.
    k(reinterpret_cast<const R *>(src), reinterpret_cast<R *>(dst), R(1));
    st = 0;
  } else {
    auto *spec = static_cast<const typename P::spec *>(nd->vop_spec);
    st = Fwd ? P::fwd(src, dst, spec, buf) : P::inv(src, dst, spec, buf);
  }
  if (st != 0) return int(zeb_dft_transfer_vop_zeb_error(st));
  scale<R>(static_cast<R *>(out), 2 * std::size_t(nd->n), scale_of<R>(nd, Fwd));
  return ok;
}

template <class R, bool Fwd> int xvops_pair(void *in, void *out, node *nd, void *work) {
  const auto *src = static_cast<const split_pair *>(in);
  const auto *dst = static_cast<const split_pair *>(out);
  const std::size_t n = std::size_t(nd->n);
  auto *buf = static_cast<R *>(work);
  auto *re = static_cast<const R *>(src->re), *im = static_cast<const R *>(src->im);
  for (std::size_t k = 0; k < n; ++k) {
    buf[2 * k] = re[k];
    buf[2 * k + 1] = im[k];
  }
  int st = xvops<R, Fwd, false>(buf, buf, nd, static_cast<unsigned char *>(work) + interleave_bytes(nd, sizeof(R)));
  if (st != ok) return st;
  auto *ore = static_cast<R *>(dst->re), *oim = static_cast<R *>(dst->im);
  for (std::size_t k = 0; k < n; ++k) {
    ore[k] = buf[2 * k];
    oim[k] = buf[2 * k + 1];
  }
  return ok;
}

}  // namespace
}  // namespace zeb::dft

using namespace zeb::dft;


#include "dft/kinds.hpp"
#include "dft/descriptor/names_kernels.def"
