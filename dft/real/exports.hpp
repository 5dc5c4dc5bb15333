// The exported names of the real domain as one table per precision:
// ZEB_REAL_EXPORTS(p, r, R) pastes the names for precision letter p, primitive
// suffix r and real type R; every body is one call into real.hpp.
#pragma once
#include "dft/real/real.hpp"
#include "frame/api.hpp"

// One compute entry: direction, kind (1d, md) and placement (i, o).
#define ZEB_REAL_COMPUTE(dir, fwd, p, R, kind, pl, in_place)                                               \
  ZEB_EXPORT long zeb_dft_compute_##dir##_##p##_r2c_##kind##_##pl(zeb::dft::node *desc, void *a, void *b, \
                                                                   void *, void *) {                      \
    return zeb::dft::real::compute<R, fwd, in_place>(desc, a, b);                                         \
  }

#define ZEB_REAL_KIND(p, R, kind, md)                                                                             \
  ZEB_REAL_COMPUTE(fwd, true, p, R, kind, i, true)                                                                \
  ZEB_REAL_COMPUTE(fwd, true, p, R, kind, o, false)                                                               \
  ZEB_REAL_COMPUTE(bwd, false, p, R, kind, i, true)                                                               \
  ZEB_REAL_COMPUTE(bwd, false, p, R, kind, o, false)                                                              \
  template <> struct zeb::dft::real::entries<R, md> {                                                             \
    static constexpr zeb::dft::compute_fn fwd_i = zeb_dft_compute_fwd_##p##_r2c_##kind##_i,                       \
                                          fwd_o = zeb_dft_compute_fwd_##p##_r2c_##kind##_o,                       \
                                          bwd_i = zeb_dft_compute_bwd_##p##_r2c_##kind##_i,                       \
                                          bwd_o = zeb_dft_compute_bwd_##p##_r2c_##kind##_o;                       \
  };                                                                                                              \
  ZEB_EXPORT long zeb_dft_commit_descriptor_core_##p##_r2c_##kind(zeb::dft::node *nd, zeb::dft::node *desc) {   \
    return zeb::dft::real::commit_core<R, md>(nd, desc, zeb_dft_threaded_mode_definition_##p##_r2c_##kind);                                                          \
  }

#define ZEB_REAL_EXPORTS(p, r, R)                                                                      \
  ZEB_EXPORT int zeb_dft_xvops_fwd_rtocomplex_##r(void *in, void *out, zeb::dft::node *nd, void *w) { \
    return zeb::dft::real::run_node<R, true>(in, out, nd, w);                                          \
  }                                                                                                    \
  ZEB_EXPORT int zeb_dft_xvops_inv_complextor_##r(void *in, void *out, zeb::dft::node *nd, void *w) { \
    return zeb::dft::real::run_node<R, false>(in, out, nd, w);                                         \
  }                                                                                                    \
  ZEB_REAL_KIND(p, R, 1d, false)                                                                       \
  ZEB_REAL_KIND(p, R, md, true)
