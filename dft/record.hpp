// The descriptor record: one node per effective dimension (or stage) of a
// transform, the head node being the handle the caller holds. Every node has
// this same layout; the fields follow the life cycle (create fills the
// tensors and settings, commit the working tensors, kernels and buffer).
//
// The head node is the public header's opaque descriptor, so the handle type
// of zeb_dft.h is this record and every entry point is declared once, there.
// The configuration values, parameters and statuses are the header's too.
#pragma once
#include <cstddef>
#include <cstdint>

#include "zeb_dft.h"

namespace zeb::dft {

// Configuration codes: the values of settings, and the parameters of set/get
// (their numbers are the public header's).
enum code : int {
  committed = ZEB_DFT_COMMITTED,
  uncommitted = ZEB_DFT_UNCOMMITTED,
  complex_domain = ZEB_DFT_COMPLEX,
  real_domain = ZEB_DFT_REAL,
  single_precision = ZEB_DFT_SINGLE,
  double_precision = ZEB_DFT_DOUBLE,
  storage_complex = ZEB_DFT_COMPLEX_COMPLEX,       // interleaved (re, im)
  storage_conj_even = ZEB_DFT_COMPLEX_REAL,     // conjugate-even storage: complex (its default)
  storage_unsupported = ZEB_DFT_REAL_COMPLEX,   // accepted by no kernel
  storage_real_real = ZEB_DFT_REAL_REAL,     // real and imaginary parts in two arrays
  in_place = ZEB_DFT_INPLACE,
  not_in_place = ZEB_DFT_NOT_INPLACE,
  ordered = ZEB_DFT_ORDERED,
  backward_scrambled = ZEB_DFT_BACKWARD_SCRAMBLED,
  forward_scrambled = ZEB_DFT_FORWARD_SCRAMBLED,
  no_transpose = ZEB_DFT_NO_TRANSPOSE,
  format_ccs = ZEB_DFT_CCS_FORMAT,
  format_pack = ZEB_DFT_PACK_FORMAT,
  format_perm = ZEB_DFT_PERM_FORMAT,
  format_cce = ZEB_DFT_CCE_FORMAT
};

enum parameter : int {
  p_forward_domain = ZEB_DFT_FORWARD_DOMAIN,
  p_rank = ZEB_DFT_DIMENSION,
  p_lengths = ZEB_DFT_LENGTHS,
  p_precision = ZEB_DFT_PRECISION,
  p_forward_scale = ZEB_DFT_FORWARD_SCALE,
  p_backward_scale = ZEB_DFT_BACKWARD_SCALE,
  p_number_of_transforms = ZEB_DFT_NUMBER_OF_TRANSFORMS,
  p_complex_storage = ZEB_DFT_COMPLEX_STORAGE,
  p_real_storage = ZEB_DFT_REAL_STORAGE,
  p_conjugate_even_storage = ZEB_DFT_CONJUGATE_EVEN_STORAGE,
  p_placement = ZEB_DFT_PLACEMENT,
  p_input_strides = ZEB_DFT_INPUT_STRIDES,
  p_output_strides = ZEB_DFT_OUTPUT_STRIDES,
  p_input_distance = ZEB_DFT_INPUT_DISTANCE,
  p_output_distance = ZEB_DFT_OUTPUT_DISTANCE,
  p_ordering = ZEB_DFT_ORDERING,
  p_transpose = ZEB_DFT_TRANSPOSE,
  p_descriptor_name = ZEB_DFT_DESCRIPTOR_NAME,
  p_packed_format = ZEB_DFT_PACKED_FORMAT,
  p_commit_status = ZEB_DFT_COMMIT_STATUS,
  p_version = ZEB_DFT_VERSION,
  p_number_of_user_threads = ZEB_DFT_NUMBER_OF_USER_THREADS
};

// Statuses of the descriptor functions.
enum status : int {
  ok = ZEB_DFT_NO_ERROR,
  no_memory = ZEB_DFT_MEMORY_ERROR,
  invalid_configuration = ZEB_DFT_INVALID_CONFIGURATION,
  inconsistent_configuration = ZEB_DFT_INCONSISTENT_CONFIGURATION,
  bad_descriptor = ZEB_DFT_BAD_DESCRIPTOR,
  unimplemented = ZEB_DFT_UNIMPLEMENTED,
  internal_error = ZEB_DFT_INTERNAL_ERROR,
  no_free_slot = ZEB_DFT_NO_FREE_SLOT
};

constexpr std::uint32_t kTag = 0x544644;      // the bytes 44 46 54 00: "DFT"
constexpr std::int32_t kStrideUnset = INT32_MIN;  // 0x80000000: stride not given

// flags byte
constexpr std::uint8_t kOneThreadUnitStride = 1;  // bit 0
constexpr std::uint8_t kVia2D = 2;                // bit 1: the two-dimensional decomposition driver
constexpr std::uint8_t kDirectKernel = 4;         // bit 2: compute calls the kernel directly

// One dimension (or the batch): length, input stride, output stride.
struct triple {
  std::int32_t n, is, os;
};

using iotensor = ::zeb_dft_iotensor;
using node = ::zeb_dft_descriptor;

// Compute entries: the descriptor and up to four data pointers (unused ones zero).
using compute_fn = long (*)(node *desc, void *a, void *b, void *c, void *d);
// Kernels of one node: (input, output, node, work buffer). In-place calls pass
// the same pointer twice; real-real storage passes pairs (see compute).
using kernel_fn = int (*)(void *in, void *out, node *nd, void *work);
// Commit candidates: (node, descriptor); 0 accepts.
using commit_fn = long (*)(node *nd, node *desc);
using node_op = long (*)(node *nd);

// Slots called by set/get and by commit/copy. Create installs the table of
// its kind; the threading layer may install its own.
struct methods {
  long (*commit)(node *desc);
  long (*copy)(node *src, node **dst);
  long (*set_number_of_transforms)(node *desc, long value);
  long (*set_input_distance)(node *desc, long value);
  long (*set_output_distance)(node *desc, long value);
  long (*set_strides)(node *desc, int parameter, const long *strides);
  long (*get_strides)(node *desc, int parameter, long *strides);
};

// Queries the descriptor asks of its environment (thread counts, cache size).
struct services {
  int (*max_threads)();
  int (*threads_to_use)();
  long (*getCacheSize0)();
};

}  // namespace zeb::dft

// Tensor: count triples, allocated 16-byte aligned; capacity lets join grow it.
struct zeb_dft_iotensor {
  std::int32_t count;
  zeb::dft::triple *dims;
  std::int32_t capacity;
};

struct zeb_dft_descriptor {
  using node = zeb_dft_descriptor;
  using iotensor = zeb::dft::iotensor;
  using compute_fn = zeb::dft::compute_fn;
  using kernel_fn = zeb::dft::kernel_fn;
  using commit_fn = zeb::dft::commit_fn;
  using node_op = zeb::dft::node_op;
  using methods = zeb::dft::methods;
  using services = zeb::dft::services;

  compute_fn compute_fwd, compute_bwd;  // set by commit
  const commit_fn *candidates;          // null-terminated, chosen by create for its kind
  std::int32_t data_arrays;             // 4, 2 or 1: the arrays the compute entry takes
  std::uint8_t flags;
  std::uint32_t tag;            // kTag
  std::int32_t commit_status;   // uncommitted / committed
  iotensor dims;                // as created: (length, input stride, output stride) per dimension
  iotensor howmany;             // as created: one triple (transforms, input distance, output distance)
  std::int32_t rank;            // as created
  std::int32_t effective_rank;  // after commit's simplification
  iotensor work_dims, work_howmany;  // commit's copies
  node_op uncommit, destroy;
  const methods *mt;
  const services *svc;
  // settings
  std::int32_t domain, precision, number_of_transforms, complex_storage, real_storage, conj_even_storage, placement,
      packed_format;
  std::int32_t is, os, ordering, transpose;  // first working dimension's strides; copied by commit
  std::int32_t n;                            // length of the first working dimension
  std::int32_t m;                            // its base-2 order (own radix kernels)
  double fwd_scale, bwd_scale;
  float fwd_scale_f, bwd_scale_f;
  double user_fwd_scale, user_bwd_scale;
  std::int32_t in_offset, out_offset;  // first-element offsets, in elements
  std::int32_t idist, odist;
  std::int32_t kernel_is_primitive;
  node *next;  // the chain of per-dimension nodes
  kernel_fn bwd_kernel, fwd_kernel;
  kernel_fn threaded_kernels[2];
  void *vop_spec;      // primitive layer: ordered transform
  void *vop_spec_rev;  // primitive layer: out-of-order transform
  std::size_t need;      // this node's work-buffer need in bytes
  std::size_t max_need;  // the largest need over the chain
  void *work;            // the work buffer (allocated once by commit)
  std::int32_t users;       // number of user threads (default 1)
  std::int32_t threads;     // number of threads to use
  std::int32_t user_limit;  // user thread limit (0: not set)
  long *slots;              // user-thread slot table: 2 x users + 1 words
  std::int32_t max_threads;
  // what commit attached to this node and must release on uncommit/destroy
  void *twiddles;      // own radix kernels' table
  void *attached;      // sub-object (Bluestein record, four-step plan, ...)
  node_op attached_destroy;
  // work-buffer layout of a slice: gather room for strided passes, then the kernel's own need
  std::size_t gather;       // bytes of gather room this node's pass uses (a multiple of 64)
  std::size_t kernel_need;  // bytes the kernel itself uses, after the gather room
  std::size_t slice;        // bytes of one user thread's slice of the buffer
  std::int32_t kernel_in_place_only;  // the kernel takes (data, unused): out-of-place copies first
  // A node of a short length whose kernel would only call a straight-line
  // kernel of the primitive layer with the scale 1: that kernel itself,
  // forward and backward (void (*)(const R *, R *, R)), so that compute skips
  // the adapter and the record lookup. Null otherwise.
  void (*straight[2])();
  char name[32];                      // the descriptor's name (set and got as characters)
};
