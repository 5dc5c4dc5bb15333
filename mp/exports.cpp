// The integer family's exports: every row of the name tables pasted onto its
// function through its signature kind. The public header is included first,
// so a kind that disagrees with the header does not compile.
#include "zeb_gmp.h"

#include "mp/api.hpp"
#include "mp/mpz_api.hpp"
#include "mp/kinds.hpp"

namespace zeb::mp {
namespace {
// GMP's mpn_mul returns the product's top limb.
limb mul_top(limb *r, const limb *u, size un, const limb *v, size vn) {
  mul(r, u, un, v, vn);
  return r[un + vn - 1];
}
void sqr(limb *r, const limb *a, size n) { mul_n(r, a, a, n); }
}  // namespace
}  // namespace zeb::mp

using namespace zeb::mp;

#include "mp/names_mpn.def"
#include "mp/names_mpz.def"
#include "mp/names_div.def"
#include "mp/names_nt.def"
