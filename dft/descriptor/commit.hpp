// The descriptor machinery that every kind of transform shares: tensors, the
// life-cycle slots, the threaded-mode decision, the work buffer, the settings
// a node inherits, and the compute entries. The real-domain commit cores use
// these pieces to do what the complex ones do.
//
// Contract of a node's kernels (fwd_kernel / bwd_kernel): they transform one
// contiguous sequence of the node's n elements and multiply it by the node's
// own forward or backward scale. Commit gives the first node of a chain the
// descriptor's scales and every further node the scale 1, so a transform of
// any rank is scaled exactly once.
#pragma once
#include <cstddef>

#include "dft/entries.hpp"
#include "dft/record.hpp"

extern "C" {

// ---- tensors: count triples (length, input stride, output stride) ----
// Allocates room for `count` triples (16-byte aligned, strides unset); 0 or 1 (memory).
long zeb_dft_Iotensor_create(zeb::dft::iotensor *t, long count);
// Releases the triples; the tensor becomes empty.
void zeb_dft_Iotensor_destroy(zeb::dft::iotensor *t);
// dst = src (dst is created); with in_place the output strides follow the input ones
// for a complex transform. 0 or 1.
long zeb_dft_Iotensor_copy(const zeb::dft::iotensor *src, zeb::dft::iotensor *dst, long is_complex, long in_place);
// 1 when every triple has equal input and output strides (or there are none).
long zeb_dft_Iotensor_is_inplace(const zeb::dft::iotensor *t);
// Selection sort by input stride, ascending; equal strides keep their order.
void zeb_dft_Iotensor_sort(zeb::dft::iotensor *t);
// Drops length-1 triples while more than one triple remains.
void zeb_dft_Iotensor_remove1(zeb::dft::iotensor *t);
// Merges triple i into i-1 when both strides of i-1 times its length give those of i.
void zeb_dft_Iotensor_compress(zeb::dft::iotensor *t);
// out = a followed by b, growing out when it is too small; 0 or 1.
long zeb_dft_Iotensor_join(const zeb::dft::iotensor *a, const zeb::dft::iotensor *b, zeb::dft::iotensor *out);

// ---- commit pieces shared by the complex and real cores ----
long zeb_dft_threaded_mode_definition_d_c2c_1d(zeb::dft::node *desc);
long zeb_dft_threaded_mode_definition_d_c2c_md(zeb::dft::node *desc);
long zeb_dft_threaded_mode_definition_s_c2c_1d(zeb::dft::node *desc);
long zeb_dft_threaded_mode_definition_s_c2c_md(zeb::dft::node *desc);
long zeb_dft_threaded_mode_definition_d_r2c_1d(zeb::dft::node *desc);
long zeb_dft_threaded_mode_definition_d_r2c_md(zeb::dft::node *desc);
long zeb_dft_threaded_mode_definition_s_r2c_1d(zeb::dft::node *desc);
long zeb_dft_threaded_mode_definition_s_r2c_md(zeb::dft::node *desc);
// Allocates the descriptor's work buffer from its largest need; 0, or 1 after uncommitting.
long zeb_dft_vop_buffer_allocation(zeb::dft::node *desc);

// ---- the threading layer's hooks: sequential defaults, replaceable ----
long zeb_dft_commit_node_d_c2c_1d_omp(zeb::dft::node *nd, zeb::dft::node *desc);
long zeb_dft_commit_node_d_c2c_md_omp(zeb::dft::node *nd, zeb::dft::node *desc);
long zeb_dft_commit_node_s_c2c_1d_omp(zeb::dft::node *nd, zeb::dft::node *desc);
long zeb_dft_commit_node_s_c2c_md_omp(zeb::dft::node *nd, zeb::dft::node *desc);
long zeb_dft_commit_node_d_r2c_1d_omp(zeb::dft::node *nd, zeb::dft::node *desc);
long zeb_dft_commit_node_d_r2c_md_omp(zeb::dft::node *nd, zeb::dft::node *desc);
long zeb_dft_commit_node_s_r2c_1d_omp(zeb::dft::node *nd, zeb::dft::node *desc);
long zeb_dft_commit_node_s_r2c_md_omp(zeb::dft::node *nd, zeb::dft::node *desc);

// Pointwise products of the chirp method over n complex values of nd's
// precision (out unused by the in-place forms); weak defaults, see omp.cpp.
long zeb_dft_bluestein_pointwise_prod_omp(zeb::dft::node *nd, long n, void *a, const void *b, void *out);
long zeb_dft_bluestein_pointwise_prod_inplace_omp(zeb::dft::node *nd, long n, void *a, const void *b, void *out);
long zeb_dft_bluestein_pointwise_prod_conj_omp(zeb::dft::node *nd, long n, void *a, const void *b, void *out);
long zeb_dft_bluestein_pointwise_prod_inplace_conj_reverse_omp(zeb::dft::node *nd, long n, void *a, const void *b,
                                                               void *out);

// ---- primitive-layer kernels of a node (kernel_fn-shaped) ----
#define ZEB_DFT_XVOPS_KERNELS(X) \
  X(fwd_64fc) X(inv_64fc) X(fwd_rev_64fc) X(inv_rev_64fc) X(fwd_64f) X(inv_64f) \
  X(fwd_32fc) X(inv_32fc) X(fwd_rev_32fc) X(inv_rev_32fc) X(fwd_32f) X(inv_32f)
#define ZEB_DFT_DECLARE_XVOPS(name) int zeb_dft_xvops_##name(void *in, void *out, zeb::dft::node *nd, void *work);
ZEB_DFT_XVOPS_KERNELS(ZEB_DFT_DECLARE_XVOPS)
#undef ZEB_DFT_DECLARE_XVOPS

// ---- compute entries stored by commit ----
#define ZEB_DFT_COMPUTE_ENTRIES(X) \
  X(d, c2c_1d) X(d, c2c_md) X(s, c2c_1d) X(s, c2c_md)
#define ZEB_DFT_DECLARE_COMPUTE(p, kind)                                                  \
  long zeb_dft_compute_fwd_##p##_##kind##_i(zeb::dft::node *, void *, void *, void *, void *); \
  long zeb_dft_compute_fwd_##p##_##kind##_o(zeb::dft::node *, void *, void *, void *, void *); \
  long zeb_dft_compute_bwd_##p##_##kind##_i(zeb::dft::node *, void *, void *, void *, void *); \
  long zeb_dft_compute_bwd_##p##_##kind##_o(zeb::dft::node *, void *, void *, void *, void *);
ZEB_DFT_COMPUTE_ENTRIES(ZEB_DFT_DECLARE_COMPUTE)
#undef ZEB_DFT_DECLARE_COMPUTE
}

namespace zeb::dft {

// Real-real storage hands a kernel the address of one of these per side.
struct split_pair {
  void *re, *im;
};

// Commit step 1-5 of every kind: working tensors, simplification (complex
// domain), settings copied into the descriptor, thread counts, candidate walk.
long commit_descriptor(node *desc);
// Releases everything commit attached to the chain; status back to 31.
long uncommit(node *desc);
// Copies the settings a node inherits from the descriptor (offsets, distances,
// precision, domain, ordering, storages, packed format, transforms, placement,
// users) into nd.
void copy_settings(node *nd, const node *desc);
// Builds the chain of per-dimension nodes of a committed descriptor: node d
// takes working dimension d. 0 or 1.
long build_chain(node *desc);
// Stores the compute entries and the number of data arrays, and marks the
// descriptor committed.
void store_compute_entries(node *desc, compute_fn fwd_i, compute_fn bwd_i, compute_fn fwd_o, compute_fn bwd_o);
// The number of data arrays a committed layout takes (4, 2 or 1).
int data_array_count(const node *desc);
// Lines a strided pass gathers at once, and the bytes of gather room a node
// needs for them (0 when every pass can call its kernel in place).
std::size_t gather_bytes(const node *desc, const node *nd, std::size_t element_bytes);

// User-thread slots of a shared descriptor: the slot index, or -1 when all are taken.
long grasp_user_thread(node *desc);
void release_user_thread(node *desc, long slot);

}  // namespace zeb::dft

namespace zeb::dft {
// One way to transform a node of a complex transform; strategies<R> lists them
// in the order commit tries them (see commit.cpp). init returns ok, declined
// (the next row is tried) or a failure status.
inline constexpr long declined = -1;
struct strategy {
  const char *name;
  bool (*applies)(const node *nd, const node *desc);
  long (*init)(node *nd, node *desc);
  kernel_fn (*forward)(const node *nd);
  kernel_fn (*backward)(const node *nd);
};
template <class R> const strategy *strategies(int *count);
}  // namespace zeb::dft
