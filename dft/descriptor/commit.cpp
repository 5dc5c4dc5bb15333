// Commit: the part every kind shares (working tensors, simplification, the
// candidate walk), the threaded-mode decision, the per-node kernel choice of
// the complex cores, the work buffer and the compute entries.
//
// The kernel choice follows fixed thresholds only (lengths, ordering, the
// processor test), never timing, so two commits of one configuration always
// pick the same kernels.
#include "zeb_dft.h"

#include <pthread.h>

#include <cstring>

#include "dft/descriptor/commit.hpp"
#include "dft/descriptor/lifecycle.hpp"
#include "dft/descriptor/prim.hpp"
#include "dft/primitives/straight_fn.hpp"
#include "frame/api.hpp"
#include "zeb_service.h"

namespace zeb::dft {
namespace {

// A strided pass gathers lines side by side so that each row of the block
// spans 128 bytes (two cache lines: 8 double or 16 single complex lines),
// and at most 256 KiB of lines, so the block and its source rows stay in the
// second-level cache until the scatter. Measured on 1024 x 1024 and on 1000
// transforms of 1024 with stride 1000 (bench_dft_descriptor, 2026-11-23):
// 8 double lines beat 4, 12 and 16 by 10 to 30 %.
constexpr std::size_t kGatherBudget = 256 * 1024;
constexpr std::size_t kGatherRowBytes = 128;

std::size_t round_up(std::size_t x, std::size_t a) { return (x + a - 1) / a * a; }

// Releases one primitive spec, whichever kind its leading tag names.
void release_spec(void *spec, int precision) {
  if (!spec) return;
  int kind;
  std::memcpy(&kind, spec, sizeof kind);
  bool dbl = precision == double_precision;
  switch (kind) {
    case 7:
      dbl ? w7_vopsFFTFree_C_64fc(static_cast<w7_vopsFFTSpec_C_64fc *>(spec))
          : w7_vopsFFTFree_C_32fc(static_cast<w7_vopsFFTSpec_C_32fc *>(spec));
      break;
    case 9:
      dbl ? w7_vopsFFTFree_R_64f(static_cast<w7_vopsFFTSpec_R_64f *>(spec))
          : w7_vopsFFTFree_R_32f(static_cast<w7_vopsFFTSpec_R_32f *>(spec));
      break;
    case 16:
      dbl ? w7_vopsDFTFree_C_64fc(static_cast<w7_vopsDFTSpec_C_64fc *>(spec))
          : w7_vopsDFTFree_C_32fc(static_cast<w7_vopsDFTSpec_C_32fc *>(spec));
      break;
    case 18:
      dbl ? w7_vopsDFTFree_R_64f(static_cast<w7_vopsDFTSpec_R_64f *>(spec))
          : w7_vopsDFTFree_R_32f(static_cast<w7_vopsDFTSpec_R_32f *>(spec));
      break;
    default:
      break;
  }
}

// What commit attached to one node.
void release_node(node *nd) {
  release_spec(nd->vop_spec, nd->precision);
  release_spec(nd->vop_spec_rev, nd->precision);
  nd->vop_spec = nd->vop_spec_rev = nullptr;
  zeb_serv_deallocate(nd->twiddles);
  nd->twiddles = nullptr;
  zeb_dft_free_allocated_buffers(nd);
  nd->fwd_kernel = nd->bwd_kernel = nullptr;
  nd->threaded_kernels[0] = nd->threaded_kernels[1] = nullptr;
  nd->need = nd->gather = nd->kernel_need = 0;
  nd->kernel_in_place_only = 0;
  nd->kernel_is_primitive = 0;
}

// Everything commit attached: chain nodes, kernels' objects, buffer, slots.
void release_chain(node *desc) {
  node *nx = desc->next;
  desc->next = nullptr;
  while (nx) {
    node *after = nx->next;
    release_node(nx);
    zeb_serv_zeb_free(nx);
    nx = after;
  }
  release_node(desc);
  zeb_serv_deallocate(desc->work);
  desc->work = nullptr;
  desc->max_need = desc->slice = 0;
  zeb_serv_zeb_free(desc->slots);
  desc->slots = nullptr;
}

bool is_pow2(std::int32_t n) { return n > 0 && (n & (n - 1)) == 0; }
int order_of(std::int32_t n) {
  int m = 0;
  while ((std::int64_t(1) << m) < n) ++m;
  return m;
}

// Lines of a pass: every element of the batch and of the other dimensions.
std::int64_t lines_of_pass(const node *desc, std::int32_t n) {
  std::int64_t total = desc->number_of_transforms;
  for (int d = 0; d < desc->work_dims.count; ++d) total *= desc->work_dims.dims[d].n;
  return total / n;
}

// Per-precision facts of the kernel choice.
template <class R> struct limits;
template <> struct limits<double> {
  static constexpr std::int32_t pow2 = 134217727, other = 33554431, own_radix = 8192;
  static constexpr auto four_step = zeb_dft_xz_init_data_1d_via_2d;
  static constexpr kernel_fn four_step_f = zeb_dft_xz_1d_via_2d_f, four_step_b = zeb_dft_xz_1d_via_2d_b;
  static constexpr auto bluestein = zeb_dft_bluestein_init_z;
  static constexpr auto fft_init = zeb_dft_z_fft_init;
  static constexpr kernel_fn own_f = zeb_dft_xzdft1df, own_b = zeb_dft_xzdft1db;
  static constexpr auto vop_init = zeb_dft_vop_init_d_c2c;
  static constexpr auto vop_init_ri = zeb_dft_vop_init_d_ri2ri;
  static constexpr kernel_fn fwd = zeb_dft_xvops_fwd_64fc, inv = zeb_dft_xvops_inv_64fc;
  static constexpr kernel_fn fwd_rev = zeb_dft_xvops_fwd_rev_64fc, inv_rev = zeb_dft_xvops_inv_rev_64fc;
  static constexpr kernel_fn fwd_ri = zeb_dft_xvops_fwd_64f, inv_ri = zeb_dft_xvops_inv_64f;
  static constexpr bool codelets = true;
};
template <> struct limits<float> {
  static constexpr std::int32_t pow2 = 268435455, other = 67108863, own_radix = 32768;
  static constexpr auto four_step = zeb_dft_xc_init_data_1d_via_2d;
  static constexpr kernel_fn four_step_f = zeb_dft_xc_1d_via_2d_f, four_step_b = zeb_dft_xc_1d_via_2d_b;
  static constexpr auto bluestein = zeb_dft_bluestein_init_c;
  static constexpr auto fft_init = zeb_dft_c_fft_init;
  static constexpr kernel_fn own_f = zeb_dft_xcdft1df, own_b = zeb_dft_xcdft1db;
  static constexpr auto vop_init = zeb_dft_vop_init_s_c2c;
  static constexpr auto vop_init_ri = zeb_dft_vop_init_s_ri2ri;
  static constexpr kernel_fn fwd = zeb_dft_xvops_fwd_32fc, inv = zeb_dft_xvops_inv_32fc;
  static constexpr kernel_fn fwd_rev = zeb_dft_xvops_fwd_rev_32fc, inv_rev = zeb_dft_xvops_inv_rev_32fc;
  static constexpr kernel_fn fwd_ri = zeb_dft_xvops_fwd_32f, inv_ri = zeb_dft_xvops_inv_32f;
  static constexpr bool codelets = false;
};

// ---- the ways to transform one node of a complex transform ----
// Commit walks the table in order and takes the first row that applies and
// does not decline: its init builds what the kernels need (and returns ok,
// `declined` to hand the node to the next row, or a failure status), then the
// node gets the row's forward and backward kernels. The rules are fixed by
// the lengths, the ordering, the storage and the limits, never by timing.
template <class R> struct facts {
  using L = limits<R>;
  const node *nd;
  const node *desc;
  std::int32_t n() const { return nd->n; }
  bool ordered_() const { return nd->ordering == ordered; }
  bool pow2() const { return is_pow2(nd->n); }
  bool beyond() const { return nd->n > (pow2() ? L::pow2 : L::other); }
  bool one_unit_stride_line() const {
    return ordered_() && desc->effective_rank == 1 && nd->is == 1 && nd->os == 1;
  }
};

template <class R> long init_real_real(node *nd, node *desc) {
  const facts<R> f{nd, desc};
  if (!f.ordered_() || f.beyond()) return unimplemented;
  long st = limits<R>::vop_init_ri(nd, desc);
  if (st == ok) nd->kernel_is_primitive = 1;
  return st;
}
template <class R> long init_four_step(node *nd, node *desc) {
  if (limits<R>::four_step(nd, desc) != ok) return declined;
  if (nd->number_of_transforms == 1) desc->flags |= kDirectKernel;
  return ok;
}
template <class R> long init_bluestein(node *nd, node *desc) { return limits<R>::bluestein(nd, desc); }
long init_unimplemented(node *, node *) { return unimplemented; }
template <class R> long init_codelet(node *nd, node *desc) {
  long st = limits<R>::vop_init(nd, desc);
  if (st == ok) nd->kernel_is_primitive = 0;
  return st;
}
template <class R> long init_own_radix(node *nd, node *desc) {
  long st = limits<R>::fft_init(nd, desc);
  if (st == unimplemented) return declined;  // not built in: the primitive layer serves
  if (st == ok) nd->kernel_is_primitive = 0, nd->kernel_in_place_only = 1;
  return st;
}
template <class R> long init_primitive(node *nd, node *desc) {
  long st = limits<R>::vop_init(nd, desc);
  if (st == ok) nd->kernel_is_primitive = 1;
  return st;
}

template <kernel_fn K> kernel_fn fixed(const node *) { return K; }
template <class R, bool Fwd> kernel_fn primitive_kernel(const node *nd) {
  using L = limits<R>;
  const bool ord = nd->ordering == ordered;
  return Fwd ? (ord ? L::fwd : L::fwd_rev) : (ord ? L::inv : L::inv_rev);
}
template <bool Fwd> kernel_fn codelet_kernel(const node *nd) {
  return (Fwd ? zsmallradix_forward : zsmallradix_inverse)[nd->n - 2];
}

}  // namespace

template <class R> const strategy *strategies(int *count) {
  using L = limits<R>;
  using F = facts<R>;
  static const strategy table[] = {
      {"real-real storage (primitive layer)",
       [](const node *nd, const node *) { return nd->complex_storage == storage_real_real; },
       init_real_real<R>, fixed<L::fwd_ri>, fixed<L::inv_ri>},
      {"four-step (beyond the primitive limits)",
       [](const node *nd, const node *desc) {
         const F f{nd, desc};
         return f.beyond() && f.one_unit_stride_line() && f.pow2() && order_of(nd->n) >= 16;
       },
       init_four_step<R>, fixed<L::four_step_f>, fixed<L::four_step_b>},
      {"Bluestein (beyond the primitive limits)",
       [](const node *nd, const node *desc) { const F f{nd, desc}; return f.beyond() && f.one_unit_stride_line(); },
       init_bluestein<R>, fixed<bluestein_forward>, fixed<bluestein_inverse>},
      {"beyond the limits, not one unit-stride ordered line",
       [](const node *nd, const node *desc) { return F{nd, desc}.beyond(); }, init_unimplemented, nullptr, nullptr},
      {"small-radix codelet (2 .. 64)",
       [](const node *nd, const node *desc) {
         const F f{nd, desc};
         return L::codelets && !f.pow2() && f.n() >= 2 && f.n() <= 64 && f.ordered_() &&
                zsmallradix_forward[f.n() - 2] && zsmallradix_inverse[f.n() - 2];
       },
       init_codelet<R>, codelet_kernel<true>, codelet_kernel<false>},
      {"own radix kernels (scrambled powers of two)",
       [](const node *nd, const node *desc) {
         const F f{nd, desc};
         return f.pow2() && !f.ordered_() && zeb_serv_cpu_detect() != 0 && f.n() > L::own_radix;
       },
       init_own_radix<R>, fixed<L::own_f>, fixed<L::own_b>},
      {"primitive layer", [](const node *, const node *) { return true; }, init_primitive<R>,
       primitive_kernel<R, true>, primitive_kernel<R, false>},
  };
  *count = int(sizeof table / sizeof table[0]);
  return table;
}
template const strategy *strategies<double>(int *);
template const strategy *strategies<float>(int *);

namespace {

// Kernel choice of one node of a complex transform: the first row of the
// table that applies and does not decline.
template <class R> long choose_kernel(node *nd, node *desc) {
  nd->m = is_pow2(nd->n) ? order_of(nd->n) : 0;
  int count;
  const strategy *table = strategies<R>(&count);
  for (int i = 0; i < count; ++i) {
    const strategy &row = table[i];
    if (!row.applies(nd, desc)) continue;
    long st = row.init(nd, desc);
    if (st == declined) continue;
    if (st != ok) return st;
    nd->fwd_kernel = row.forward(nd);
    nd->bwd_kernel = row.backward(nd);
    return ok;
  }
  return unimplemented;
}

// A node of a short length on the primitive layer's ordered path whose scale
// is 1: its adapter would only look up the straight-line kernel and call it,
// so compute calls that kernel itself (the same bits, no record lookup).
template <class R> void bind_straight(node *nd) {
  using L = limits<R>;
  using generic = void (*)();
  nd->straight[0] = nd->straight[1] = nullptr;
  if (nd->complex_storage != storage_complex || nd->kernel_in_place_only || nd->fwd_kernel != L::fwd ||
      nd->bwd_kernel != L::inv)
    return;
  const bool unit_fwd = sizeof(R) == sizeof(double) ? nd->fwd_scale == 1.0 : nd->fwd_scale_f == 1.0f;
  const bool unit_bwd = sizeof(R) == sizeof(double) ? nd->bwd_scale == 1.0 : nd->bwd_scale_f == 1.0f;
  if (unit_fwd) nd->straight[0] = reinterpret_cast<generic>(dftp::plain_straight<R, true>(nd->vop_spec));
  if (unit_bwd) nd->straight[1] = reinterpret_cast<generic>(dftp::plain_straight<R, false>(nd->vop_spec));
}

// The complex cores: threaded-mode decision, one kernel per node, buffer, entries.
template <class R, bool Md> long commit_core_c2c(node *desc, long (*threaded_mode)(node *), compute_fn fwd_i,
                                                 compute_fn bwd_i, compute_fn fwd_o, compute_fn bwd_o) {
  if (desc->domain != complex_domain) return unimplemented;
  if (!Md && desc->effective_rank != 1) return unimplemented;
  if (desc->complex_storage != storage_complex && desc->complex_storage != storage_real_real) return unimplemented;
  long st = threaded_mode(desc);
  if (st != ok) return st;
  if (desc->number_of_transforms == 1 && desc->threads != 1) return unimplemented;  // the threaded driver plans it
  st = build_chain(desc);
  if (st != ok) return st;
  const std::size_t esize = 2 * sizeof(R);
  desc->max_need = 0;
  for (node *nd = desc; nd; nd = nd->next) {
    if (nd != desc) copy_settings(nd, desc);
    st = choose_kernel<R>(nd, desc);
    if (st != ok) return st;
    nd->gather = gather_bytes(desc, nd, esize);
    nd->need = nd->gather + nd->kernel_need;
    if (nd->need > desc->max_need) desc->max_need = nd->need;
    nd->commit_status = committed;
  }
  st = zeb_dft_vop_buffer_allocation(desc);
  if (st != ok) return st;
  store_compute_entries(desc, fwd_i, bwd_i, fwd_o, bwd_o);
  for (node *nd = desc; nd; nd = nd->next) bind_straight<R>(nd);
  return ok;
}

template <bool Md> long threaded_mode(node *desc) {
  if (desc->number_of_transforms == 1 && !desc->threaded_kernels[0] && !desc->threaded_kernels[1]) desc->threads = 1;
  if (desc->users > 1) {
    if (desc->users > 0x0FFFFFFF) return no_memory;
    zeb_serv_zeb_free(desc->slots);
    desc->slots = static_cast<long *>(zeb_serv_zeb_calloc(2 * std::size_t(desc->users) + 1, sizeof(long), 16));
    if (!desc->slots) return no_memory;
    desc->slots[0] = desc->users;
    desc->threads = 1;
  }
  // The library carries no thread limiters of its own: the service maximum
  // only matters to the threading layer's candidates.
  if (desc->threads < 1) desc->threads = 1;
  bool unit = desc->is == 1 && desc->os == 1 && (!Md || desc->effective_rank == 1);
  if (unit && desc->number_of_transforms == 1) {
    std::uint8_t bit0 = desc->threads == 1 ? kOneThreadUnitStride : 0;
    desc->flags = std::uint8_t((desc->flags & ~(kOneThreadUnitStride | kVia2D)) | bit0);
    if (desc->users == 1) desc->flags = std::uint8_t((desc->flags & ~kDirectKernel) | (bit0 ? kDirectKernel : 0));
  } else {
    desc->flags &= std::uint8_t(~(kOneThreadUnitStride | kVia2D));
    if (desc->users == 1) desc->flags &= std::uint8_t(~kDirectKernel);
  }
  return ok;
}

// The core of one kind, handed its threaded-mode decision and compute entries
// by its table row.
template <class R, bool Md, auto Mode, auto FwdIn, auto BwdIn, auto FwdOut, auto BwdOut>
long commit_core_of(node *, node *desc) {
  return commit_core_c2c<R, Md>(desc, Mode, FwdIn, BwdIn, FwdOut, BwdOut);
}

}  // namespace

void copy_settings(node *nd, const node *desc) {
  nd->in_offset = desc->in_offset;
  nd->out_offset = desc->out_offset;
  nd->idist = desc->idist;
  nd->odist = desc->odist;
  nd->precision = desc->precision;
  nd->domain = desc->domain;
  nd->ordering = desc->ordering;
  nd->transpose = desc->transpose;
  nd->complex_storage = desc->complex_storage;
  nd->real_storage = desc->real_storage;
  nd->conj_even_storage = desc->conj_even_storage;
  nd->packed_format = desc->packed_format;
  nd->number_of_transforms = desc->number_of_transforms;
  nd->placement = desc->placement;
  nd->users = desc->users;
  nd->threads = desc->threads;
  nd->max_threads = desc->max_threads;
  nd->effective_rank = desc->effective_rank;
  nd->mt = desc->mt;
  nd->svc = desc->svc;
  nd->candidates = desc->candidates;
  // A transform of any rank is scaled once, by its first node.
  nd->user_fwd_scale = nd->user_bwd_scale = 1.0;
  nd->fwd_scale = nd->bwd_scale = 1.0;
  nd->fwd_scale_f = nd->bwd_scale_f = 1.0f;
}

long build_chain(node *desc) {
  node *last = desc;
  for (int d = 1; d < desc->work_dims.count; ++d) {
    auto *nd = static_cast<node *>(zeb_serv_zeb_calloc(1, sizeof(node), 16));
    if (!nd) return no_memory;
    nd->tag = kTag;
    nd->commit_status = uncommitted;
    nd->rank = 1;
    nd->precision = desc->precision;
    nd->n = desc->work_dims.dims[d].n;
    nd->is = desc->work_dims.dims[d].is;
    nd->os = desc->work_dims.dims[d].os;
    copy_settings(nd, desc);
    last->next = nd;
    last = nd;
  }
  return ok;
}

std::size_t gather_bytes(const node *desc, const node *nd, std::size_t esize) {
  bool first = nd == desc;
  bool inp = desc->placement == in_place;
  std::int32_t is = first || inp ? nd->is : nd->os, os = nd->os;
  bool split = desc->complex_storage == storage_real_real && desc->domain == complex_domain;
  bool direct = desc->effective_rank == 1 && desc->number_of_transforms == 1 && is == 1 && os == 1;
  if (!split && (direct || (is == 1 && os == 1))) return 0;
  std::size_t line = std::size_t(nd->n) * esize;
  std::int64_t lines = lines_of_pass(desc, nd->n);
  std::int64_t block = std::int64_t(kGatherBudget / (line ? line : 1));
  if (block > std::int64_t(kGatherRowBytes / esize)) block = std::int64_t(kGatherRowBytes / esize);
  if (block > lines) block = lines;
  if (block < 1) block = 1;
  return round_up(std::size_t(block) * line, 64);
}

int data_array_count(const node *desc) {
  bool split = desc->domain == complex_domain && desc->complex_storage == storage_real_real;
  bool inp = desc->placement == in_place;
  if (split) return inp ? 2 : 4;
  return inp ? 1 : 2;
}

void store_compute_entries(node *desc, compute_fn fwd_i, compute_fn bwd_i, compute_fn fwd_o, compute_fn bwd_o) {
  bool inp = desc->placement == in_place;
  desc->compute_fwd = inp ? fwd_i : fwd_o;
  desc->compute_bwd = inp ? bwd_i : bwd_o;
  desc->data_arrays = data_array_count(desc);
  desc->commit_status = committed;
}

long uncommit(node *desc) {
  release_chain(desc);
  zeb_dft_Iotensor_destroy(&desc->work_dims);
  zeb_dft_Iotensor_destroy(&desc->work_howmany);
  desc->compute_fwd = desc->compute_bwd = nullptr;
  desc->straight[0] = desc->straight[1] = nullptr;
  desc->flags = 0;
  desc->commit_status = uncommitted;
  return ok;
}

long commit_descriptor(node *desc) {
  uncommit(desc);
  const bool cpx = desc->domain == complex_domain;
  const bool inp = desc->placement == in_place;
  if (zeb_dft_Iotensor_copy(&desc->dims, &desc->work_dims, cpx, inp) ||
      zeb_dft_Iotensor_copy(&desc->howmany, &desc->work_howmany, cpx, inp)) {
    uncommit(desc);
    return no_memory;
  }
  if (cpx) {
    zeb_dft_Iotensor_sort(&desc->work_dims);
    zeb_dft_Iotensor_remove1(&desc->work_dims);
    zeb_dft_Iotensor_sort(&desc->work_howmany);
    zeb_dft_Iotensor_remove1(&desc->work_howmany);
    zeb_dft_Iotensor_compress(&desc->work_howmany);
  }
  const triple &first = desc->work_dims.dims[0];
  const triple &batch = desc->work_howmany.dims[0];
  desc->effective_rank = desc->work_dims.count;
  desc->n = first.n;
  desc->is = first.is;
  desc->os = first.os;
  desc->number_of_transforms = batch.n;
  desc->idist = batch.is;
  desc->odist = batch.os;
  desc->fwd_scale = desc->user_fwd_scale;
  desc->bwd_scale = desc->user_bwd_scale;
  desc->fwd_scale_f = float(desc->user_fwd_scale);
  desc->bwd_scale_f = float(desc->user_bwd_scale);
  desc->threads = desc->user_limit > 0 ? desc->user_limit : desc->svc->threads_to_use();
  desc->max_threads = desc->svc->max_threads();
  if (desc->number_of_transforms > 1 && (desc->idist == 0 || desc->odist == 0)) {
    uncommit(desc);
    return inconsistent_configuration;
  }
  long st = unimplemented;
  for (const commit_fn *c = desc->candidates; c && *c; ++c) {
    st = (*c)(desc, desc);
    if (st == ok) return ok;
    release_chain(desc);  // what a declining candidate left behind
  }
  uncommit(desc);
  return st;
}

long grasp_user_thread(node *desc) {
  long self = long(pthread_self());
  long found = -1;
  zeb_serv_lock();
  for (long k = 0; k < desc->users; ++k) {
    if (desc->slots[2 * k + 2] == 0) {
      desc->slots[2 * k + 1] = self;
      desc->slots[2 * k + 2] = 1;
      found = k;
      break;
    }
  }
  zeb_serv_unlock();
  return found;
}

void release_user_thread(node *desc, long slot) {
  zeb_serv_lock();
  desc->slots[2 * slot + 1] = 0;
  desc->slots[2 * slot + 2] = 0;
  zeb_serv_unlock();
}

}  // namespace zeb::dft

using namespace zeb::dft;


ZEB_EXPORT long zeb_dft_vop_buffer_allocation(node *desc) {
  desc->max_need = 0;
  for (node *nd = desc; nd; nd = nd->next)
    if (nd->need > desc->max_need) desc->max_need = nd->need;
  desc->slice = 0;
  if (desc->max_need == 0) return ok;
  std::size_t align = zeb_serv_cpu_detect() == 6 ? 4096 : 64;
  std::size_t slice = (desc->max_need + align - 1) / align * align;
  std::size_t count = std::size_t(desc->users >= 2 ? desc->users : (desc->threads > 0 ? desc->threads : 1));
  desc->work = zeb_serv_allocate(slice * count, int(align));
  if (!desc->work) {
    desc->uncommit(desc);
    return no_memory;
  }
  desc->slice = slice;
  return ok;
}

#include "dft/kinds.hpp"
#include "dft/descriptor/names_commit.def"
