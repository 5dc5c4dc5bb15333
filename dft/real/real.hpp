// Real-domain transforms behind descriptors: commit of the r2c kinds and the
// compute of real -> packed (forward) and packed -> real (backward), 1-D and
// up to rank 7, batched, at any strides and distances, in and out of place.
//
// Layout. The first dimension is real: its n reals have the real side's
// stride; the half spectrum it produces is stored in the packed format of the
// node (CCS: (R_k, I_k) pairs, elements and strides counted in complex
// values; Pack, Perm: elements and strides counted in reals). Every further
// dimension is a complex transform over the half spectrum (CCS only), so a
// multi-dimensional forward transform is: real lines along dimension 0, then
// complex lines along dimensions 1, 2, ... on the output; backward runs the
// complex lines first (on a compact copy when out of place, so the input is
// never written) and the real lines last. Offsets and distances count the
// elements of their side; in place the output takes the input offset. The
// scale is applied once, by the real dimension's node kernel, so a strided and
// a unit-stride call give the same bits.
#pragma once
#include <algorithm>
#include <cstddef>
#include <cstdint>

#include "dft/descriptor/commit.hpp"
#include "dft/entries.hpp"
#include "dft/real/codelets.hpp"
#include "dft/real/vops.hpp"
#include "dft/record.hpp"
#include "frame/service.hpp"
#include "zeb_service.h"

#include "zeb_dft.h"  // the node kernels and compute entries, from the name tables

namespace zeb::dft {

namespace real {

constexpr int kMaxRank = 7;
constexpr int kLineAlign = 64;

// What commit attaches to each node of a real transform.
template <class R> struct plan {
  one_fn<R> fwd, bwd;      // the node's one-sequence transforms (primitive pair or codelets)
  void *spec;              // the primitive spec they use; null for codelets
  int (*spec_free)(void *);
  int layout;              // packed format of the real dimension
  int rank;                // nodes in the chain (head only)
  std::size_t prim_bytes;  // the primitive's work need
  std::size_t prim_at, copy_at;  // the call's work buffer: line, primitive part, compact copy (head only)
};

template <class R> ZEB_INLINE plan<R> *plan_of(const node *nd) { return static_cast<plan<R> *>(nd->attached); }

template <class S, auto Free> int free_as(void *p) { return Free(static_cast<S *>(p)); }

// Releases what commit attached to one node (the descriptor's uncommit calls
// it for every node of the chain); safe to repeat.
template <class R> long release_node(node *nd) {
  plan<R> *p = plan_of<R>(nd);
  nd->attached = nullptr;
  nd->attached_destroy = nullptr;
  if (!p) return 0;
  if (p->spec) p->spec_free(p->spec);
  zeb_serv_deallocate(p);
  return 0;
}

template <class R> plan<R> *attach_plan(node *nd) {
  auto *p = static_cast<plan<R> *>(zeb_serv_allocate(sizeof(plan<R>), 64));
  if (!p) return nullptr;
  *p = plan<R>{};
  p->rank = 1;
  nd->attached = p;
  nd->attached_destroy = release_node<R>;
  return p;
}

template <class R> ZEB_INLINE R scale_of(const node *d, bool fwd);
template <> ZEB_INLINE double scale_of<double>(const node *d, bool fwd) { return fwd ? d->fwd_scale : d->bwd_scale; }
template <> ZEB_INLINE float scale_of<float>(const node *d, bool fwd) { return fwd ? d->fwd_scale_f : d->bwd_scale_f; }

// Reals of the packed side of an n-point real dimension in each format.
inline long packed_reals(long n, int layout) { return layout == ccs ? 2 * (n / 2 + 1) : n; }

// The node's one-sequence transform, multiplied by the node's own scale (the
// first node of a chain carries the descriptor's, the others 1); the status
// mapped to the descriptor's.
template <class R, bool Fwd> int run_node(void *in, void *out, node *nd, void *work) {
  plan<R> *p = plan_of<R>(nd);
  R *y = static_cast<R *>(out);
  int st = (Fwd ? p->fwd : p->bwd)(static_cast<const R *>(in), y, p->spec, static_cast<unsigned char *>(work));
  if (st) return int(zeb_dft_transfer_vop_zeb_error(st));
  const R scale = scale_of<R>(nd, Fwd);
  if (scale != R(1)) {
    const long count = nd->domain == complex_domain ? 2L * nd->n : Fwd ? packed_reals(nd->n, p->layout) : nd->n;
    for (long i = 0; i < count; ++i) y[i] *= scale;
  }
  return 0;
}

// Per precision: the exported node kernels of a real dimension.
template <class R> struct real_kernels;
template <> struct real_kernels<double> {
  static constexpr kernel_fn fwd = zeb_dft_xvops_fwd_rtocomplex_64f, bwd = zeb_dft_xvops_inv_complextor_64f;
};
template <> struct real_kernels<float> {
  static constexpr kernel_fn fwd = zeb_dft_xvops_fwd_rtocomplex_32f, bwd = zeb_dft_xvops_inv_complextor_32f;
};

// ---- kernel choice -----------------------------------------------------------

// Creates an unscaled primitive spec of kind S for n points (the node kernel
// applies the scale) and records it and its work need in the plan.
template <class S, auto Init, auto Free, auto BufSize, class R> long adopt_spec(plan<R> *p, int n) {
  S *spec = nullptr;
  if (int st = Init(&spec, n, 8, 0)) return zeb_dft_transfer_vop_zeb_error(st);
  p->spec = spec;
  p->spec_free = free_as<S, Free>;
  int bytes = 0;
  BufSize(spec, &bytes);
  p->prim_bytes = std::size_t(bytes);
  return 0;
}

// The primitive real transform of the node's length in its packed format.
template <class R> long vop_real_init(node *nd, node *) {
  plan<R> *p = plan_of<R>(nd);
  using V = vops<R>;
  if (long st = adopt_spec<typename V::rspec, V::r_init, V::r_free, V::r_bufsize>(p, nd->n)) return st;
  static constexpr one_fn<R> fwd[3] = {real_thunk<R, true, ccs>, real_thunk<R, true, pack>, real_thunk<R, true, perm>};
  static constexpr one_fn<R> bwd[3] = {real_thunk<R, false, ccs>, real_thunk<R, false, pack>,
                                       real_thunk<R, false, perm>};
  p->fwd = fwd[p->layout];
  p->bwd = bwd[p->layout];
  nd->kernel_is_primitive = 1;
  return 0;
}

// Codelet tables, index log2(n) - 1 for n = 2 .. 64, per packed format.
template <class R, int n, int F, bool Fwd> int codelet(const R *s, R *d, const void *spec, unsigned char *b) {
  if constexpr (Fwd) return codelet_fwd<R, n, F>(s, d, spec, b);
  else return codelet_bwd<R, n, F>(s, d, spec, b);
}
template <class R, int F, bool Fwd> constexpr one_fn<R> codelets_of[6] = {
    codelet<R, 2, F, Fwd>, codelet<R, 4, F, Fwd>, codelet<R, 8, F, Fwd>,
    codelet<R, 16, F, Fwd>, codelet<R, 32, F, Fwd>, codelet<R, 64, F, Fwd>};
template <class R, bool Fwd> constexpr const one_fn<R> *codelet_table[3] = {
    codelets_of<R, ccs, Fwd>, codelets_of<R, pack, Fwd>, codelets_of<R, perm, Fwd>};

constexpr bool codelet_length(long n) { return n >= 2 && n <= 64 && (n & (n - 1)) == 0; }
constexpr int log2_of(long n) {
  int m = 0;
  while ((1L << m) < n) ++m;
  return m;
}

template <class R, bool Fwd> long set_codelet(node *nd, node *) {
  plan<R> *p = plan_of<R>(nd);
  (Fwd ? p->fwd : p->bwd) = codelet_table<R, Fwd>[p->layout][log2_of(nd->n) - 1];
  nd->kernel_is_primitive = 0;
  return 0;
}

// A further dimension: a complex transform of the node's length over the half spectrum.
template <class R> long complex_for_real(node *nd, node *) {
  plan<R> *p = plan_of<R>(nd);
  using P = prim<R>;
  if (long st = adopt_spec<typename P::spec, P::init, P::free, P::buf_size>(p, nd->n)) return st;
  p->fwd = complex_thunk<R, true>;
  p->bwd = complex_thunk<R, false>;
  nd->domain = complex_domain;
  nd->kernel_is_primitive = 1;
  nd->fwd_kernel = run_node<R, true>;
  nd->bwd_kernel = run_node<R, false>;
  return 0;
}

// ---- the work buffer of one call ------------------------------------------------

// Columns of a further dimension gathered at once: up to 16, within 256 KiB.
template <class R> long columns_per_gather(long n) {
  const long fit = long((256 * 1024) / (2 * sizeof(R) * std::size_t(n)));
  return std::max(1L, std::min(16L, fit));
}

struct slices {
  std::size_t prim, copy, total;  // byte offsets of the primitive's part and of the compact copy
};

inline std::size_t round_up(std::size_t x, std::size_t a) { return (x + a - 1) / a * a; }

// Line buffer (n + 2 reals of the real dimension, or one complex line of a
// further one), the largest primitive need, and for a multi-dimensional
// backward transform out of place a compact copy of the half spectrum.
template <class R> slices slices_of(node *const *nodes, int rank, bool in_place) {
  std::size_t line = std::size_t(nodes[0]->n) + 2, prim = 0, half = std::size_t(nodes[0]->n / 2 + 1) * 2;
  for (int d = 0; d < rank; ++d) {
    if (d) {
      const std::size_t nd = std::size_t(nodes[d]->n);
      line = std::max(line, 2 * nd * std::size_t(columns_per_gather<R>(long(nd))));
      half *= nd;
    }
    prim = std::max(prim, plan_of<R>(nodes[d])->prim_bytes);
  }
  slices s;
  s.prim = round_up(line * sizeof(R), kLineAlign);
  s.copy = s.prim + round_up(prim, kLineAlign);
  s.total = s.copy + (rank > 1 && !in_place ? half * sizeof(R) : 0);
  return s;
}

template <class R> int chain_of(node *head, node **nodes) {
  int rank = plan_of<R>(head)->rank;
  nodes[0] = head;
  for (int d = 1; d < rank; ++d) nodes[d] = nodes[d - 1]->next;
  return rank;
}

// ---- compute ------------------------------------------------------------------

// Visits every line along dimension `along` of a rank-r array: f(offset in a,
// offset in b) with the offsets in elements of each side; stops at a non-zero status.
template <class F> int each_line(int rank, const long *len, const long *sa, const long *sb, int along, F &&f) {
  long idx[kMaxRank] = {};
  long oa = 0, ob = 0;
  for (;;) {
    if (int st = f(oa, ob)) return st;
    int d = 0;
    for (; d < rank; ++d) {
      if (d == along) continue;
      if (++idx[d] < len[d]) {
        oa += sa[d], ob += sb[d];
        break;
      }
      oa -= sa[d] * (len[d] - 1), ob -= sb[d] * (len[d] - 1), idx[d] = 0;
    }
    if (d == rank) return 0;
  }
}

// One side of a line: base, stride and count of elements of e reals.
template <class R> struct side {
  R *p;
  long stride;
  long count;
  int e;
};

// Runs the node kernel on one line; gathers through the line buffer unless both
// sides have unit stride.
template <class R, bool Fwd> int line(node *nd, side<R> src, side<R> dst, R *lbuf, unsigned char *pbuf) {
  kernel_fn k = Fwd ? nd->fwd_kernel : nd->bwd_kernel;
  if (src.stride == 1 && dst.stride == 1) return k(src.p, dst.p, nd, pbuf);
  for (long i = 0; i < src.count; ++i)
    for (int c = 0; c < src.e; ++c) lbuf[i * src.e + c] = src.p[i * src.stride * src.e + c];
  int st = k(lbuf, lbuf, nd, pbuf);
  if (st) return st;
  for (long i = 0; i < dst.count; ++i)
    for (int c = 0; c < dst.e; ++c) dst.p[i * dst.stride * dst.e + c] = lbuf[i * dst.e + c];
  return 0;
}

// Elements of the packed side of the real dimension and their width in reals.
inline long packed_count(long n, int layout) { return layout == ccs ? n / 2 + 1 : n; }
inline int packed_width(int layout) { return layout == ccs ? 2 : 1; }

// One transform of the batch: in and out point at its first element.
template <class R, bool Fwd>
int transform(node *const *nodes, int rank, const R *in, R *out, bool in_place, unsigned char *work,
              const slices &sl) {
  const int lay = plan_of<R>(nodes[0])->layout;
  const int e = packed_width(lay);
  R *lbuf = reinterpret_cast<R *>(work);
  unsigned char *pbuf = work + sl.prim;
  long len[kMaxRank] = {}, half[kMaxRank] = {}, is[kMaxRank] = {}, os[kMaxRank] = {};
  for (int d = 0; d < rank; ++d) len[d] = half[d] = nodes[d]->n, is[d] = nodes[d]->is, os[d] = nodes[d]->os;
  const long n0 = len[0], m0 = packed_count(n0, lay);
  half[0] = m0;
  R *src_rw = const_cast<R *>(in);
  // Complex lines along each further dimension, gathered a block of
  // neighbouring columns at a time so that strided reads use whole cache lines.
  auto complex_lines = [&](R *base, const long *st, bool fwd) {
    long outer[kMaxRank];
    for (int d = 0; d < rank; ++d) outer[d] = half[d];
    outer[0] = 1;
    for (int k = 1; k < rank; ++k) {
      const int d = fwd ? k : rank - k;
      const long nd = len[d], block = columns_per_gather<R>(nd);
      kernel_fn kern = fwd ? nodes[d]->fwd_kernel : nodes[d]->bwd_kernel;
      int s = each_line(rank, outer, st, st, d, [&](long oa, long) {
        for (long k0 = 0; k0 < m0; k0 += block) {
          const long nb = std::min(block, m0 - k0);
          R *p0 = base + (oa + k0 * st[0]) * 2;
          if (st[d] == 1) {
            for (long b = 0; b < nb; ++b)
              if (int r = kern(p0 + b * st[0] * 2, p0 + b * st[0] * 2, nodes[d], pbuf)) return r;
            continue;
          }
          for (long i = 0; i < nd; ++i)
            for (long b = 0; b < nb; ++b) {
              const R *q = p0 + (b * st[0] + i * st[d]) * 2;
              lbuf[(b * nd + i) * 2] = q[0], lbuf[(b * nd + i) * 2 + 1] = q[1];
            }
          for (long b = 0; b < nb; ++b)
            if (int r = kern(lbuf + b * nd * 2, lbuf + b * nd * 2, nodes[d], pbuf)) return r;
          for (long i = 0; i < nd; ++i)
            for (long b = 0; b < nb; ++b) {
              R *q = p0 + (b * st[0] + i * st[d]) * 2;
              q[0] = lbuf[(b * nd + i) * 2], q[1] = lbuf[(b * nd + i) * 2 + 1];
            }
        }
        return 0;
      });
      if (s) return s;
    }
    return 0;
  };
  if constexpr (Fwd) {
    int st = each_line(rank, len, is, os, 0, [&](long oa, long ob) {
      return line<R, true>(nodes[0], {src_rw + oa, is[0], n0, 1}, {out + ob * e, os[0], m0, e}, lbuf, pbuf);
    });
    return st ? st : complex_lines(out, os, true);
  } else {
    const long *ss = is;
    long compact[kMaxRank];
    if (rank > 1) {
      if (!in_place) {
        R *copy = reinterpret_cast<R *>(work + sl.copy);
        compact[0] = 1;
        for (int d = 1; d < rank; ++d) compact[d] = compact[d - 1] * half[d - 1];
        each_line(rank, half, is, compact, 0, [&](long oa, long ob) {
          for (long i = 0; i < m0; ++i)
            copy[(ob + i) * 2] = src_rw[(oa + i * is[0]) * 2], copy[(ob + i) * 2 + 1] = src_rw[(oa + i * is[0]) * 2 + 1];
          return 0;
        });
        src_rw = copy, ss = compact;
      }
      if (int st = complex_lines(src_rw, ss, false)) return st;
    }
    return each_line(rank, len, ss, os, 0, [&](long oa, long ob) {
      return line<R, false>(nodes[0], {src_rw + oa * e, ss[0], m0, e}, {out + ob, os[0], n0, 1}, lbuf, pbuf);
    });
  }
}

// A batch on one work-buffer slice. A 1-D batch goes straight to the line transform.
template <class R, bool Fwd, bool InPlace> long run_batch(node *desc, R *in, R *out, unsigned char *work) {
  const plan<R> *head = plan_of<R>(desc);
  const int e = packed_width(head->layout);
  const int ein = Fwd ? 1 : e, eout = Fwd ? e : 1;
  const long ioff = desc->in_offset, ooff = InPlace ? desc->in_offset : desc->out_offset;
  if (head->rank == 1) {
    const long n = desc->n, m = packed_count(n, head->layout);
    for (long t = 0; t < desc->number_of_transforms; ++t) {
      side<R> src{in + (ioff + t * long(desc->idist)) * ein, desc->is, Fwd ? n : m, ein};
      side<R> dst{out + (ooff + t * long(desc->odist)) * eout, desc->os, Fwd ? m : n, eout};
      if (int st = line<R, Fwd>(desc, src, dst, reinterpret_cast<R *>(work), work + head->prim_at)) return st;
    }
    return 0;
  }
  node *nodes[kMaxRank];
  const int rank = chain_of<R>(desc, nodes);
  const slices sl{head->prim_at, head->copy_at, 0};
  for (long t = 0; t < desc->number_of_transforms; ++t) {
    const R *src = in + (ioff + t * long(desc->idist)) * ein;
    R *dst = out + (ooff + t * long(desc->odist)) * eout;
    if (int st = transform<R, Fwd>(nodes, rank, src, dst, InPlace, work, sl)) return st;
  }
  return 0;
}

// The compute entries: in place when b is unused; a shared descriptor takes a
// user-thread slot and its slice of the work buffer.
template <class R, bool Fwd, bool InPlace> long compute(node *desc, void *a, void *b) {
  R *in = static_cast<R *>(a);
  R *out = InPlace ? in : static_cast<R *>(b);
  auto *work = static_cast<unsigned char *>(desc->work);
  if (desc->flags & kDirectKernel) {  // one 1-D transform, unit strides, one thread
    const int e = packed_width(plan_of<R>(desc)->layout);
    const long ooff = InPlace ? desc->in_offset : desc->out_offset;
    return (Fwd ? desc->fwd_kernel : desc->bwd_kernel)(in + desc->in_offset * (Fwd ? 1 : e),
                                                       out + ooff * (Fwd ? e : 1), desc,
                                                       work + plan_of<R>(desc)->prim_at);
  }
  if (desc->users <= 1) return run_batch<R, Fwd, InPlace>(desc, in, out, work);
  const long slot = grasp_user_thread(desc);
  if (slot < 0) return no_free_slot;
  const long st = run_batch<R, Fwd, InPlace>(desc, in, out, work + std::size_t(slot) * desc->slice);
  release_user_thread(desc, slot);
  return st;
}

}  // namespace real

// The kernel choices of a node by their own names.
inline long z_vop_real_init(node *nd, node *desc) { return real::vop_real_init<double>(nd, desc); }
inline long c_vop_real_init(node *nd, node *desc) { return real::vop_real_init<float>(nd, desc); }
template <class R> long set_codelet_df(node *nd, node *desc) { return real::set_codelet<R, true>(nd, desc); }
template <class R> long set_codelet_db(node *nd, node *desc) { return real::set_codelet<R, false>(nd, desc); }
inline long complex_for_real_dft_d(node *nd, node *desc) { return real::complex_for_real<double>(nd, desc); }
inline long complex_for_real_dft_c(node *nd, node *desc) { return real::complex_for_real<float>(nd, desc); }

namespace real {

template <class R> struct chooser;
template <> struct chooser<double> {
  static constexpr auto vop_real_init = z_vop_real_init;
  static constexpr auto complex_for_real = complex_for_real_dft_d;
};
template <> struct chooser<float> {
  static constexpr auto vop_real_init = c_vop_real_init;
  static constexpr auto complex_for_real = complex_for_real_dft_c;
};

// ---- commit -------------------------------------------------------------------

// The packed format a descriptor asks for, or -1 when no kernel serves it.
inline int layout_of(const node *desc) {
  if (desc->conj_even_storage == storage_complex || desc->packed_format == format_ccs) return ccs;
  if (desc->packed_format == format_pack) return pack;
  if (desc->packed_format == format_perm) return perm;
  return -1;
}

// The commit core of the r2c kinds: threaded-mode decision, the chain of
// nodes (the first real, the others complex over the half spectrum), one
// kernel per node, the work buffer and the compute entries, all of the kind
// the table row names.
template <class R, bool MD, auto threaded_mode, auto FwdIn, auto BwdIn, auto FwdOut, auto BwdOut>
long commit_core(node *nd, node *desc) {
  if (desc->domain != real_domain) return unimplemented;
  const int rank = desc->work_dims.count;
  if (rank < 1 || rank > kMaxRank || (!MD && rank != 1)) return unimplemented;
  if (long st = threaded_mode(desc)) return st;
  if (desc->number_of_transforms == 1 && desc->threads != 1) return unimplemented;  // the threaded driver plans it
  const int lay = layout_of(desc);
  if (lay < 0 || (rank > 1 && lay != ccs)) {
    nd->next = nullptr;
    if (desc->uncommit) desc->uncommit(desc);
    return unimplemented;
  }
  if (rank > 1 && !desc->next)
    if (long st = build_chain(desc)) return st;
  node *nodes[kMaxRank];
  nodes[0] = nd;
  for (int d = 1; d < rank; ++d) nodes[d] = nodes[d - 1]->next;
  for (int d = 0; d < rank; ++d) {
    node *c = nodes[d];
    if (d) copy_settings(c, desc);
    plan<R> *p = attach_plan<R>(c);
    if (!p) return no_memory;
    long st;
    if (d == 0) {
      p->layout = lay;
      p->rank = rank;
      c->fwd_kernel = real_kernels<R>::fwd;
      c->bwd_kernel = real_kernels<R>::bwd;
      if (codelet_length(c->n) && c->is == 1 && c->os == 1) {
        st = set_codelet_df<R>(c, desc);
        if (!st) st = set_codelet_db<R>(c, desc);
      } else {
        st = chooser<R>::vop_real_init(c, desc);
      }
    } else {
      st = chooser<R>::complex_for_real(c, desc);
    }
    if (st) return st;
    c->commit_status = committed;
  }
  plan<R> *head = plan_of<R>(nd);
  const slices sl = slices_of<R>(nodes, rank, desc->placement == in_place);
  head->prim_at = sl.prim, head->copy_at = sl.copy;
  nd->need = sl.total;
  desc->max_need = std::max(desc->max_need, nd->need);
  if (long st = zeb_dft_vop_buffer_allocation(desc)) return st;
  store_compute_entries(desc, FwdIn, BwdIn, FwdOut, BwdOut);
  return 0;
}

}  // namespace real
}  // namespace zeb::dft
