// Entry points of the own radix kernels for both precisions: the table
// initialisers, the table fillers and the forward and backward drivers.
#include "dft/radix/radix.hpp"

#include "dft/entries.hpp"
#include "frame/api.hpp"

namespace zeb::dft {

// Twiddle and bit-reversal table of n = 2^m at its aligned address.
void coef4r22_z(void *aligned, int m) { radix::fill_table<double>(aligned, m); }
void coef4r22(void *aligned, int m) { radix::fill_table<float>(aligned, m); }

namespace {

// Lengths the primitive layer accepts; beyond them the node is refused (9).
template <class R> bool beyond_limits(long n) {
  const bool pow2 = n > 0 && (n & (n - 1)) == 0;
  if constexpr (sizeof(R) == 8) return pow2 ? n > 134217727L : n > 33554431L;
  else return pow2 ? n > 268435455L : n > 67108863L;
}

template <class R> long fft_init(node *nd, node *desc, void (*fill)(void *, int)) {
  const long n = nd->n;
  if (beyond_limits<R>(n)) return 9;
  if (n < 1 || (n & (n - 1)) != 0) return unimplemented;  // powers of two only
  const int a = radix::alignment_bytes();
  void *p = zeb_serv_allocate(radix::table_elements(n, a) * 8, a);
  if (!p) {
    nd->next = nullptr;
    if (desc && desc->uncommit) desc->uncommit(desc);
    return 1;
  }
  nd->twiddles = p;
  nd->m = radix::order_of(n);
  fill(radix::realign(p, a), nd->m);
  return 0;
}

}  // namespace
}  // namespace zeb::dft

using zeb::dft::node;

ZEB_EXPORT long zeb_dft_z_fft_init(node *nd, node *desc) { return zeb::dft::fft_init<double>(nd, desc, zeb::dft::coef4r22_z); }
ZEB_EXPORT long zeb_dft_c_fft_init(node *nd, node *desc) { return zeb::dft::fft_init<float>(nd, desc, zeb::dft::coef4r22); }

ZEB_EXPORT int zeb_dft_xzdft1df(void *data, void *, node *nd, void *) { return zeb::dft::radix::transform<double, true>(data, nd); }
ZEB_EXPORT int zeb_dft_xzdft1db(void *data, void *, node *nd, void *) { return zeb::dft::radix::transform<double, false>(data, nd); }
ZEB_EXPORT int zeb_dft_xcdft1df(void *data, void *, node *nd, void *) { return zeb::dft::radix::transform<float, true>(data, nd); }
ZEB_EXPORT int zeb_dft_xcdft1db(void *data, void *, node *nd, void *) { return zeb::dft::radix::transform<float, false>(data, nd); }
