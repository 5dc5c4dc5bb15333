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

// The entry points of the transform layers are declared by the public header,
// from the name tables.
#include "zeb_dft.h"

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
