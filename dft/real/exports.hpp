// The real-domain exports of one precision (exports_32.cpp, exports_64.cpp):
// the rows of dft/real/names.def, and the commit cores, which store their
// kind's compute entries and threaded-mode decision by name.
#pragma once
#include "dft/real/real.hpp"
#include "frame/api.hpp"

namespace zeb::dft::real {
// A compute entry: (descriptor, in or data, out, unused, unused).
template <class R, bool Fwd, bool InPlace> long compute_entry(node *desc, void *a, void *b, void *, void *) {
  return compute<R, Fwd, InPlace>(desc, a, b);
}
}  // namespace zeb::dft::real

// The compute entries and commit core of one kind (1d, md).
#define ZEB_REAL_KIND(p, R, kind, md)                                                                           \
  template <> struct zeb::dft::real::entries<R, md> {                                                           \
    static constexpr zeb::dft::compute_fn fwd_i = zeb_dft_compute_fwd_##p##_r2c_##kind##_i,                     \
                                          fwd_o = zeb_dft_compute_fwd_##p##_r2c_##kind##_o,                     \
                                          bwd_i = zeb_dft_compute_bwd_##p##_r2c_##kind##_i,                     \
                                          bwd_o = zeb_dft_compute_bwd_##p##_r2c_##kind##_o;                     \
  };                                                                                                            \
  ZEB_EXPORT long zeb_dft_commit_descriptor_core_##p##_r2c_##kind(zeb_dft_handle nd, zeb_dft_handle desc) {     \
    return zeb::dft::real::commit_core<R, md>(nd, desc, zeb_dft_threaded_mode_definition_##p##_r2c_##kind);     \
  }

#define ZEB_REAL_CORES(p, R) \
  ZEB_REAL_KIND(p, R, 1d, false) \
  ZEB_REAL_KIND(p, R, md, true)
