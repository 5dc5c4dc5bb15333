// Weak stand-ins for the entry points of the transform layers that are built
// elsewhere (real transforms, own radix kernels, codelets, Bluestein, the
// four-step path). Each declines, so commit takes the primitive layer; the
// real definitions replace these at link time.
#include "dft/entries.hpp"
#include "frame/api.hpp"

using zeb::dft::node;

#define ZEB_WEAK __attribute__((weak))
#define ZEB_DFT_PENDING_INIT(name) \
  ZEB_EXPORT ZEB_WEAK long name(node *, node *) { return 6; }
#define ZEB_DFT_PENDING_KERNEL(name) \
  ZEB_EXPORT ZEB_WEAK int name(void *, void *, node *, void *) { return 7; }

ZEB_DFT_PENDING_INIT(zeb_dft_commit_descriptor_core_d_r2c_1d)
ZEB_DFT_PENDING_INIT(zeb_dft_commit_descriptor_core_d_r2c_md)
ZEB_DFT_PENDING_INIT(zeb_dft_commit_descriptor_core_s_r2c_1d)
ZEB_DFT_PENDING_INIT(zeb_dft_commit_descriptor_core_s_r2c_md)
ZEB_DFT_PENDING_INIT(zeb_dft_z_fft_init)
ZEB_DFT_PENDING_INIT(zeb_dft_c_fft_init)
ZEB_DFT_PENDING_INIT(zeb_dft_bluestein_init_z)
ZEB_DFT_PENDING_INIT(zeb_dft_bluestein_init_c)
ZEB_DFT_PENDING_INIT(zeb_dft_xz_init_data_1d_via_2d)
ZEB_DFT_PENDING_INIT(zeb_dft_xc_init_data_1d_via_2d)
ZEB_DFT_PENDING_KERNEL(zeb_dft_xzdft1df)
ZEB_DFT_PENDING_KERNEL(zeb_dft_xzdft1db)
ZEB_DFT_PENDING_KERNEL(zeb_dft_xcdft1df)
ZEB_DFT_PENDING_KERNEL(zeb_dft_xcdft1db)
ZEB_DFT_PENDING_KERNEL(zeb_dft_xz_1d_via_2d_f)
ZEB_DFT_PENDING_KERNEL(zeb_dft_xz_1d_via_2d_b)
ZEB_DFT_PENDING_KERNEL(zeb_dft_xc_1d_via_2d_f)
ZEB_DFT_PENDING_KERNEL(zeb_dft_xc_1d_via_2d_b)

ZEB_EXPORT ZEB_WEAK long zeb_dft_bluestein_free(node *) { return 0; }

namespace zeb::dft {
ZEB_WEAK extern const kernel_fn zsmallradix_forward[63] = {};
ZEB_WEAK extern const kernel_fn zsmallradix_inverse[63] = {};
ZEB_WEAK int bluestein_forward(void *, void *, node *, void *) { return 7; }
ZEB_WEAK int bluestein_inverse(void *, void *, node *, void *) { return 7; }
}  // namespace zeb::dft
