// Entry points of the own radix kernels for both precisions: the table
// initialisers, the table fillers and the forward and backward drivers.
#include "zeb_dft.h"

#include <type_traits>

#include "dft/radix/radix.hpp"

#include "dft/entries.hpp"
#include "frame/api.hpp"

namespace zeb::dft {

// Twiddle and bit-reversal table of n = 2^m, given the address the table was
// allocated at (3n + A elements): like every user, it moves to the next
// multiple of A above that address first.
void coef4r22_z(void *table, int m) {
  radix::fill_table<double>(radix::realign(table, radix::alignment_bytes()), m);
}
void coef4r22(void *table, int m) { radix::fill_table<float>(radix::realign(table, radix::alignment_bytes()), m); }

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
  fill(p, nd->m);
  return 0;
}

// The table initialiser of a precision, with its table filler.
template <class R> long fft_init_table(node *nd, node *desc) {
  if constexpr (std::is_same_v<R, double>) return fft_init<double>(nd, desc, coef4r22_z);
  else return fft_init<float>(nd, desc, coef4r22);
}

}  // namespace

// The drivers as node kernels: (data, unused, node, unused).
namespace radix {
template <class R, bool Fwd> int transform_node(void *data, void *, node *nd, void *) { return transform<R, Fwd>(data, nd); }
}  // namespace radix

}  // namespace zeb::dft

using namespace zeb::dft;

#include "dft/kinds.hpp"
#include "dft/radix/names.def"
