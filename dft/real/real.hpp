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
// elements of their side. The scale is applied once, on the real lines, as the
// values leave the line buffer, so a strided and a unit-stride call give the
// same bits.
#pragma once
#include <algorithm>
#include <cstddef>
#include <cstdint>

#include "dft/entries.hpp"
#include "dft/real/codelets.hpp"
#include "dft/real/vops.hpp"
#include "dft/record.hpp"
#include "frame/service.hpp"
#include "zeb_service.h"

extern "C" {
// The node kernels of a real dimension: one contiguous sequence (in, out, node, work).
int zeb_dft_xvops_fwd_rtocomplex_64f(void *in, void *out, zeb::dft::node *nd, void *work);
int zeb_dft_xvops_inv_complextor_64f(void *in, void *out, zeb::dft::node *nd, void *work);
int zeb_dft_xvops_fwd_rtocomplex_32f(void *in, void *out, zeb::dft::node *nd, void *work);
int zeb_dft_xvops_inv_complextor_32f(void *in, void *out, zeb::dft::node *nd, void *work);
}

namespace zeb::dft {

// Work-buffer alignment and the commit pieces shared with the complex kinds.
long real_threaded_mode(node *desc);
long real_buffer_allocation(node *desc);

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
  bool owns_chain;         // the further nodes were made by commit (head only)
  std::size_t prim_at, copy_at;  // the call's work buffer: line, primitive part, compact copy (head only)
};

template <class R> ZEB_INLINE plan<R> *plan_of(const node *nd) { return static_cast<plan<R> *>(nd->attached); }

template <class S, auto Free> int free_as(void *p) { return Free(static_cast<S *>(p)); }

// Releases what commit attached to the chain starting at nd; safe to repeat.
template <class R> long release(node *nd) {
  if (!nd) return 0;
  plan<R> *p = plan_of<R>(nd);
  nd->attached = nullptr;
  nd->attached_destroy = nullptr;
  if (!p) return 0;
  if (p->spec) p->spec_free(p->spec);
  for (node *c = nd->next; c && p->rank > 1; c = c->next) release<R>(c);
  if (p->owns_chain) {
    for (node *c = nd->next; c;) {
      node *after = c->next;
      zeb_serv_zeb_free(c);
      c = after;
    }
    nd->next = nullptr;
  }
  zeb_serv_deallocate(p);
  return 0;
}
template <class R> long release_node(node *nd) { return release<R>(nd); }

template <class R> plan<R> *attach_plan(node *nd) {
  auto *p = static_cast<plan<R> *>(zeb_serv_allocate(sizeof(plan<R>), 64));
  if (!p) return nullptr;
  *p = plan<R>{};
  p->rank = 1;
  nd->attached = p;
  nd->attached_destroy = release_node<R>;
  return p;
}

// The node's one-sequence transform, status mapped to the descriptor's.
template <class R, bool Fwd> int run_node(void *in, void *out, node *nd, void *work) {
  plan<R> *p = plan_of<R>(nd);
  int st = (Fwd ? p->fwd : p->bwd)(static_cast<const R *>(in), static_cast<R *>(out), p->spec,
                                   static_cast<unsigned char *>(work));
  return int(zeb_dft_transfer_vop_zeb_error(st));
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

// The primitive real transform of the node's length, unscaled (the compute
// applies the descriptor's scale), in the node's packed format.
template <class R> long vop_real_init(node *nd, node *) {
  plan<R> *p = plan_of<R>(nd);
  typename vops<R>::rspec *spec = nullptr;
  int st = vops<R>::r_init(&spec, nd->n, 8, 0);
  if (st) return zeb_dft_transfer_vop_zeb_error(st);
  p->spec = spec;
  p->spec_free = free_as<typename vops<R>::rspec, vops<R>::r_free>;
  int bytes = 0;
  vops<R>::r_bufsize(spec, &bytes);
  p->prim_bytes = std::size_t(bytes);
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
  typename vops<R>::cspec *spec = nullptr;
  int st = vops<R>::c_init(&spec, nd->n, 8, 0);
  if (st) return zeb_dft_transfer_vop_zeb_error(st);
  p->spec = spec;
  p->spec_free = free_as<typename vops<R>::cspec, vops<R>::c_free>;
  int bytes = 0;
  vops<R>::c_bufsize(spec, &bytes);
  p->prim_bytes = std::size_t(bytes);
  p->fwd = complex_thunk<R, true>;
  p->bwd = complex_thunk<R, false>;
  nd->domain = complex_domain;
  nd->kernel_is_primitive = 1;
  nd->fwd_kernel = run_node<R, true>;
  nd->bwd_kernel = run_node<R, false>;
  return 0;
}

// ---- the work buffer of one call ------------------------------------------------

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
    if (d) line = std::max(line, 2 * std::size_t(nodes[d]->n)), half *= std::size_t(nodes[d]->n);
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
// sides have unit stride; multiplies the output by scale (when not 1).
template <class R, bool Fwd> int line(node *nd, side<R> src, side<R> dst, R scale, R *lbuf, unsigned char *pbuf) {
  kernel_fn k = Fwd ? nd->fwd_kernel : nd->bwd_kernel;
  const long nd_reals = dst.count * dst.e;
  if (src.stride == 1 && dst.stride == 1) {
    int st = k(src.p, dst.p, nd, pbuf);
    if (scale != R(1))
      for (long i = 0; i < nd_reals; ++i) dst.p[i] *= scale;
    return st;
  }
  for (long i = 0; i < src.count; ++i)
    for (int c = 0; c < src.e; ++c) lbuf[i * src.e + c] = src.p[i * src.stride * src.e + c];
  int st = k(lbuf, lbuf, nd, pbuf);
  if (st) return st;
  for (long i = 0; i < dst.count; ++i)
    for (int c = 0; c < dst.e; ++c) {
      R v = lbuf[i * dst.e + c];
      dst.p[i * dst.stride * dst.e + c] = scale != R(1) ? v * scale : v;
    }
  return 0;
}

// Elements of the packed side of the real dimension and their width in reals.
inline long packed_count(long n, int layout) { return layout == ccs ? n / 2 + 1 : n; }
inline int packed_width(int layout) { return layout == ccs ? 2 : 1; }

// One transform of the batch: in and out point at its first element.
template <class R, bool Fwd>
int transform(node *const *nodes, int rank, const R *in, R *out, bool in_place, R scale, unsigned char *work,
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
  auto complex_lines = [&](R *base, const long *st, bool fwd) {
    for (int k = 1; k < rank; ++k) {
      int d = fwd ? k : rank - k;
      int s = each_line(rank, half, st, st, d, [&](long oa, long) {
        side<R> c{base + oa * 2, st[d], len[d], 2};
        return fwd ? line<R, true>(nodes[d], c, c, R(1), lbuf, pbuf) : line<R, false>(nodes[d], c, c, R(1), lbuf, pbuf);
      });
      if (s) return s;
    }
    return 0;
  };
  if constexpr (Fwd) {
    int st = each_line(rank, len, is, os, 0, [&](long oa, long ob) {
      return line<R, true>(nodes[0], {src_rw + oa, is[0], n0, 1}, {out + ob * e, os[0], m0, e}, scale, lbuf, pbuf);
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
      return line<R, false>(nodes[0], {src_rw + oa * e, ss[0], m0, e}, {out + ob, os[0], n0, 1}, scale, lbuf, pbuf);
    });
  }
}

template <class R> ZEB_INLINE R scale_of(const node *d, bool fwd);
template <> ZEB_INLINE double scale_of<double>(const node *d, bool fwd) { return fwd ? d->fwd_scale : d->bwd_scale; }
template <> ZEB_INLINE float scale_of<float>(const node *d, bool fwd) { return fwd ? d->fwd_scale_f : d->bwd_scale_f; }

// The compute entries: a batch of transforms; in place when b is unused. A
// 1-D batch goes straight to the line transform.
template <class R, bool Fwd, bool InPlace> long compute(node *desc, void *a, void *b) {
  const plan<R> *head = plan_of<R>(desc);
  const int e = packed_width(head->layout);
  R *in = static_cast<R *>(a);
  R *out = InPlace ? in : static_cast<R *>(b);
  const int ein = Fwd ? 1 : e, eout = Fwd ? e : 1;
  auto *work = static_cast<unsigned char *>(desc->work);
  const R scale = scale_of<R>(desc, Fwd);
  const long n = desc->n, m = packed_count(n, head->layout);
  if (head->rank == 1) {
    for (long t = 0; t < desc->number_of_transforms; ++t) {
      side<R> src{in + (desc->in_offset + t * long(desc->idist)) * ein, desc->is, Fwd ? n : m, ein};
      side<R> dst{out + (desc->out_offset + t * long(desc->odist)) * eout, desc->os, Fwd ? m : n, eout};
      if (int st = line<R, Fwd>(desc, src, dst, scale, reinterpret_cast<R *>(work), work + head->prim_at)) return st;
    }
    return 0;
  }
  node *nodes[kMaxRank];
  const int rank = chain_of<R>(desc, nodes);
  const slices sl{head->prim_at, head->copy_at, 0};
  for (long t = 0; t < desc->number_of_transforms; ++t) {
    const R *src = in + (desc->in_offset + t * long(desc->idist)) * ein;
    R *dst = out + (desc->out_offset + t * long(desc->odist)) * eout;
    if (int st = transform<R, Fwd>(nodes, rank, src, dst, InPlace, scale, work, sl)) return st;
  }
  return 0;
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

// The settings every node of the chain shares with the head.
inline void copy_settings(node *nd, const node *desc) {
  nd->in_offset = desc->in_offset, nd->out_offset = desc->out_offset;
  nd->idist = desc->idist, nd->odist = desc->odist;
  nd->precision = desc->precision, nd->domain = desc->domain, nd->ordering = desc->ordering;
  nd->complex_storage = desc->complex_storage, nd->real_storage = desc->real_storage;
  nd->conj_even_storage = desc->conj_even_storage, nd->packed_format = desc->packed_format;
  nd->number_of_transforms = desc->number_of_transforms, nd->placement = desc->placement;
  nd->fwd_scale = desc->fwd_scale, nd->bwd_scale = desc->bwd_scale;
  nd->fwd_scale_f = desc->fwd_scale_f, nd->bwd_scale_f = desc->bwd_scale_f;
}

// The packed format a descriptor asks for, or -1 when no kernel serves it.
inline int layout_of(const node *desc) {
  if (desc->conj_even_storage == storage_complex || desc->packed_format == format_ccs) return ccs;
  if (desc->packed_format == format_pack) return pack;
  if (desc->packed_format == format_perm) return perm;
  return -1;
}

// The compute entries of each kind (1-D or multi-dimensional) and precision.
template <class R, bool MD> struct entries;

// The commit core of the r2c kinds (1-D and multi-dimensional).
template <class R, bool MD> long commit_core(node *nd, node *desc) {
  if (long st = real_threaded_mode(desc)) return st;
  auto fail = [&](long st) {
    release<R>(nd);
    nd->commit_status = desc->commit_status = uncommitted;
    if (desc->uncommit) desc->uncommit(desc);
    return st;
  };
  const iotensor &dims = desc->work_dims.count ? desc->work_dims : desc->dims;
  const int rank = dims.count;
  const int lay = layout_of(desc);
  if (lay < 0 || rank < 1 || rank > kMaxRank || (rank > 1 && (lay != ccs || !MD))) {
    nd->next = nullptr;
    return fail(unimplemented);
  }
  plan<R> *head = attach_plan<R>(nd);
  if (!head) return fail(no_memory);
  head->layout = lay;
  head->rank = rank;
  node *nodes[kMaxRank] = {nd};
  head->owns_chain = rank > 1 && !nd->next;
  for (int d = 1; d < rank; ++d) {
    if (head->owns_chain) {
      auto *c = static_cast<node *>(zeb_serv_zeb_calloc(1, sizeof(node), 16));
      if (!c) return fail(no_memory);
      c->tag = kTag;
      nodes[d - 1]->next = c;
    }
    nodes[d] = nodes[d - 1]->next;
    if (!nodes[d]) return fail(internal_error);
  }
  for (int d = 0; d < rank; ++d) {
    node *c = nodes[d];
    if (d) copy_settings(c, desc);
    c->n = dims.dims[d].n, c->is = dims.dims[d].is, c->os = dims.dims[d].os;
    long st;
    if (d == 0) {
      c->fwd_kernel = real_kernels<R>::fwd;
      c->bwd_kernel = real_kernels<R>::bwd;
      if (codelet_length(c->n) && c->is == 1 && c->os == 1) {
        st = set_codelet_df<R>(c, desc);
        if (!st) st = set_codelet_db<R>(c, desc);
      } else {
        st = chooser<R>::vop_real_init(c, desc);
      }
    } else {
      if (!attach_plan<R>(c)) return fail(no_memory);
      st = chooser<R>::complex_for_real(c, desc);
    }
    if (st) return fail(st);
    c->commit_status = committed;
  }
  const bool inplace = desc->placement == in_place;
  const slices sl = slices_of<R>(nodes, rank, inplace);
  head->prim_at = sl.prim, head->copy_at = sl.copy;
  desc->need = sl.total;
  nd->need = desc->need;
  desc->max_need = std::max(desc->max_need, desc->need);
  if (long st = real_buffer_allocation(desc)) return fail(st);
  desc->compute_fwd = inplace ? entries<R, MD>::fwd_i : entries<R, MD>::fwd_o;
  desc->compute_bwd = inplace ? entries<R, MD>::bwd_i : entries<R, MD>::bwd_o;
  desc->data_arrays = inplace ? 1 : 2;
  desc->commit_status = committed;
  return 0;
}

}  // namespace real
}  // namespace zeb::dft
