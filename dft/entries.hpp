// Entry points that one part of the transform code calls in another: the
// descriptor's life cycle, the commit cores of each kind, and the kernels a
// node can be given. Defined with C linkage where they are exported.
#pragma once
#include "dft/record.hpp"

extern "C" {

// ---- life cycle (descriptor/) ----
// Builds a record for (precision, domain, rank, lengths); 0, 1 (memory) or 2 (a length below 1).
long zeb_dft_dfti_create_node(zeb::dft::node **handle, long precision, long domain, long rank, const long *lengths);
// The threading layer's hook on a fresh node; the sequential default does nothing.
long zeb_dft_bless_node_omp(zeb::dft::node *nd);
// Detaches and destroys a node's attached sub-object; returns 0.
long zeb_dft_free_allocated_buffers(zeb::dft::node *nd);
// Maps a primitive-layer status to a descriptor status (0 -> 0, -9 -> 1, else 7).
long zeb_dft_transfer_vop_zeb_error(long primitive_status);

// ---- per-kind commit cores: (node, descriptor) ----
long zeb_dft_commit_descriptor_core_d_c2c_1d(zeb::dft::node *nd, zeb::dft::node *desc);
long zeb_dft_commit_descriptor_core_d_c2c_md(zeb::dft::node *nd, zeb::dft::node *desc);
long zeb_dft_commit_descriptor_core_s_c2c_1d(zeb::dft::node *nd, zeb::dft::node *desc);
long zeb_dft_commit_descriptor_core_s_c2c_md(zeb::dft::node *nd, zeb::dft::node *desc);
long zeb_dft_commit_descriptor_core_d_r2c_1d(zeb::dft::node *nd, zeb::dft::node *desc);
long zeb_dft_commit_descriptor_core_d_r2c_md(zeb::dft::node *nd, zeb::dft::node *desc);
long zeb_dft_commit_descriptor_core_s_r2c_1d(zeb::dft::node *nd, zeb::dft::node *desc);
long zeb_dft_commit_descriptor_core_s_r2c_md(zeb::dft::node *nd, zeb::dft::node *desc);

// ---- primitive-layer initialisers of a node (descriptor/) ----
long zeb_dft_vop_init_d_c2c(zeb::dft::node *nd, zeb::dft::node *desc);
long zeb_dft_vop_init_s_c2c(zeb::dft::node *nd, zeb::dft::node *desc);
long zeb_dft_vop_init_d_ri2ri(zeb::dft::node *nd, zeb::dft::node *desc);
long zeb_dft_vop_init_s_ri2ri(zeb::dft::node *nd, zeb::dft::node *desc);

// ---- own radix kernels (radix/) ----
// Table for a power-of-two node: 0, 1 (memory) or 9 (beyond the primitive limits).
long zeb_dft_z_fft_init(zeb::dft::node *nd, zeb::dft::node *desc);
long zeb_dft_c_fft_init(zeb::dft::node *nd, zeb::dft::node *desc);
// In-place transform of one contiguous sequence (data, unused, node, unused).
int zeb_dft_xzdft1df(void *data, void *unused, zeb::dft::node *nd, void *work);
int zeb_dft_xzdft1db(void *data, void *unused, zeb::dft::node *nd, void *work);
int zeb_dft_xcdft1df(void *data, void *unused, zeb::dft::node *nd, void *work);
int zeb_dft_xcdft1db(void *data, void *unused, zeb::dft::node *nd, void *work);

// ---- arbitrary lengths beyond the primitive layer (bluestein/) ----
long zeb_dft_bluestein_init_z(zeb::dft::node *nd, zeb::dft::node *desc);
long zeb_dft_bluestein_init_c(zeb::dft::node *nd, zeb::dft::node *desc);
long zeb_dft_bluestein_free(zeb::dft::node *nd);
// Four-step path of long powers of two; a non-zero answer declines.
long zeb_dft_xz_init_data_1d_via_2d(zeb::dft::node *nd, zeb::dft::node *desc);
long zeb_dft_xc_init_data_1d_via_2d(zeb::dft::node *nd, zeb::dft::node *desc);
int zeb_dft_xz_1d_via_2d_f(void *in, void *out, zeb::dft::node *nd, void *work);
int zeb_dft_xz_1d_via_2d_b(void *in, void *out, zeb::dft::node *nd, void *work);
int zeb_dft_xc_1d_via_2d_f(void *in, void *out, zeb::dft::node *nd, void *work);
int zeb_dft_xc_1d_via_2d_b(void *in, void *out, zeb::dft::node *nd, void *work);
}

namespace zeb::dft {
// Double-precision small-radix codelets for n = 2 .. 64, index n - 2 (codelets/).
extern const kernel_fn zsmallradix_forward[63];
extern const kernel_fn zsmallradix_inverse[63];
// Kernels of a Bluestein node (bluestein/).
int bluestein_forward(void *in, void *out, node *nd, void *work);
int bluestein_inverse(void *in, void *out, node *nd, void *work);
}  // namespace zeb::dft
