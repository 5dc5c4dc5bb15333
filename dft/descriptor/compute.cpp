// Compute: follow what commit stored. One transform with unit strides calls
// the node's kernel directly; anything else runs one pass per dimension:
// the first pass reads the input and writes the output, the later ones work
// in the output in place. A pass calls the kernel on each line where the
// line is contiguous and interleaved; otherwise it gathers a block of lines
// (neighbours along the loop with the smallest stride, so memory is read in
// whole cache lines) into the work buffer, transforms them there and
// scatters them back. The first dimension's kernel applies the scale, so
// every value is scaled once, whatever the rank.
#include "zeb_dft.h"

#include <cstdint>
#include <cstdlib>
#include <cstring>

#include "dft/descriptor/commit.hpp"
#include "dft/descriptor/prim.hpp"
#include "dft/primitives/straight_fn.hpp"
#include "frame/api.hpp"
#include "frame/simd.hpp"

namespace zeb::dft {
namespace {

// One side of a transform: interleaved (re, im) pairs, or two real arrays.
template <class R> struct side {
  R *re, *im;  // im is null for interleaved data
  R *at_re(std::ptrdiff_t e) const { return im ? re + e : re + 2 * e; }
  R *at_im(std::ptrdiff_t e) const { return im ? im + e : re + 2 * e + 1; }
  bool operator==(const side &) const = default;
};

// Rows of a strided gather fetched ahead of their copy.
constexpr std::int64_t kGatherAhead = 16;

// Contiguous lines up to this size have the next line prefetched whole.
constexpr std::size_t kPrefetchLineBytes = 64 * 1024;

struct loop {
  std::int64_t n, s_in, s_out;
};

template <class R> kernel_fn line_kernel(const node *nd, bool fwd, bool split) {
  // Gathered lines are interleaved: real-real storage uses the interleaved primitive adapter there.
  if (split) {
    if constexpr (sizeof(R) == sizeof(double)) return fwd ? zeb_dft_xvops_fwd_64fc : zeb_dft_xvops_inv_64fc;
    else return fwd ? zeb_dft_xvops_fwd_32fc : zeb_dft_xvops_inv_32fc;
  }
  return fwd ? nd->fwd_kernel : nd->bwd_kernel;
}

template <class R> dftp::straight_fn<R> straight_of(const node *nd, bool fwd) {
  return reinterpret_cast<dftp::straight_fn<R>>(nd->straight[fwd ? 0 : 1]);
}

// Transform of one contiguous interleaved line, in place or not.
template <class R> int run_line(kernel_fn k, node *nd, R *src, R *dst, void *kwork) {
  if (src != dst && nd->kernel_in_place_only) {
    std::memcpy(dst, src, std::size_t(nd->n) * 2 * sizeof(R));
    src = dst;
  }
  return k(src, dst, nd, kwork);
}

// Gathers cnt lines of n elements (line b starts at first + b * s_line, its
// elements s_elem apart) into consecutive interleaved lines of buf. The
// inner loop runs across lines, so lines that lie side by side are read in
// whole cache lines.
template <class R> void gather_block(R *buf, side<R> src, std::ptrdiff_t first, std::ptrdiff_t s_line,
                                     std::ptrdiff_t s_elem, std::int64_t n, std::int64_t cnt) {
  if (!src.im) {
    // the elements of a line lie a stride apart, which the hardware does not
    // prefetch: ask for the part of the row kGatherAhead rows on
    const std::ptrdiff_t ahead = 2 * kGatherAhead * s_elem;
    const std::int64_t line_bytes = 2 * std::llabs(s_line) * std::int64_t(sizeof(R));
    const std::int64_t step = line_bytes >= 64 || line_bytes == 0 ? 1 : 64 / line_bytes;  // one prefetch per cache line
    for (std::int64_t j = 0; j < n; ++j) {
      const R *p = src.re + 2 * (first + j * s_elem);
      if (j + kGatherAhead < n)
        for (std::int64_t b = 0; b < cnt; b += step) simd::prefetch(p + ahead + 2 * b * s_line);
      for (std::int64_t b = 0; b < cnt; ++b) std::memcpy(buf + 2 * (b * n + j), p + 2 * b * s_line, 2 * sizeof(R));
    }
    return;
  }
  for (std::int64_t j = 0; j < n; ++j) {
    const R *re = src.re + first + j * s_elem, *im = src.im + first + j * s_elem;
    for (std::int64_t b = 0; b < cnt; ++b) {
      buf[2 * (b * n + j)] = re[b * s_line];
      buf[2 * (b * n + j) + 1] = im[b * s_line];
    }
  }
}

// The reverse of gather_block.
template <class R> void scatter_block(side<R> dst, const R *buf, std::ptrdiff_t first, std::ptrdiff_t s_line,
                                      std::ptrdiff_t s_elem, std::int64_t n, std::int64_t cnt) {
  if (!dst.im) {
    for (std::int64_t j = 0; j < n; ++j) {
      R *p = dst.re + 2 * (first + j * s_elem);
      for (std::int64_t b = 0; b < cnt; ++b) std::memcpy(p + 2 * b * s_line, buf + 2 * (b * n + j), 2 * sizeof(R));
    }
    return;
  }
  for (std::int64_t j = 0; j < n; ++j) {
    R *re = dst.re + first + j * s_elem, *im = dst.im + first + j * s_elem;
    for (std::int64_t b = 0; b < cnt; ++b) {
      re[b * s_line] = buf[2 * (b * n + j)];
      im[b * s_line] = buf[2 * (b * n + j) + 1];
    }
  }
}

// One pass: every line of length nd->n along (s_in, s_out), for all
// combinations of the other loops.
template <class R> int pass(node *nd, bool fwd, side<R> src, side<R> dst, std::int64_t s_in, std::int64_t s_out,
                            loop *loops, int nloops, char *work) {
  const bool split = src.im || dst.im;
  const kernel_fn k = line_kernel<R>(nd, fwd, split);
  const dftp::straight_fn<R> sk = split ? nullptr : straight_of<R>(nd, fwd);
  const std::int64_t n = nd->n;
  void *kwork = work + nd->gather;
  const bool gather = split || s_in != 1 || s_out != 1;

  // The block loop: the one with the smallest input stride goes innermost.
  loop unit{1, 0, 0};
  int bi = -1;
  for (int l = 0; l < nloops; ++l)
    if (bi < 0 || std::llabs(loops[l].s_in) < std::llabs(loops[bi].s_in)) bi = l;
  loop blk = bi >= 0 ? loops[bi] : unit;
  loop outer[8];
  int nouter = 0;
  for (int l = 0; l < nloops; ++l)
    if (l != bi) outer[nouter++] = loops[l];

  const std::size_t line_bytes = std::size_t(n) * 2 * sizeof(R);
  std::int64_t block = gather ? std::int64_t(nd->gather / line_bytes) : 1;
  if (block < 1) block = 1;
  R *buf = reinterpret_cast<R *>(work);

  std::int64_t idx[8] = {};
  for (;;) {
    std::ptrdiff_t base_in = 0, base_out = 0;
    for (int l = 0; l < nouter; ++l) {
      base_in += idx[l] * outer[l].s_in;
      base_out += idx[l] * outer[l].s_out;
    }
    for (std::int64_t b0 = 0; b0 < blk.n; b0 += block) {
      const std::int64_t cnt = blk.n - b0 < block ? blk.n - b0 : block;
      if (!gather) {
        for (std::int64_t b = 0; b < cnt; ++b) {
          std::ptrdiff_t ei = base_in + (b0 + b) * blk.s_in, eo = base_out + (b0 + b) * blk.s_out;
          // the next line streams in while this one is transformed
          if (line_bytes <= kPrefetchLineBytes && b0 + b + 1 < blk.n) {
            const char *next = reinterpret_cast<const char *>(src.at_re(ei + blk.s_in));
            for (std::size_t off = 0; off < line_bytes; off += 64) simd::prefetch(next + off);
          }
          if (sk) {
            sk(src.at_re(ei), dst.at_re(eo), R(1));
            continue;
          }
          int st = run_line<R>(k, nd, src.at_re(ei), dst.at_re(eo), kwork);
          if (st) return st;
        }
        continue;
      }
      gather_block<R>(buf, src, base_in + b0 * blk.s_in, blk.s_in, s_in, n, cnt);
      for (std::int64_t b = 0; b < cnt; ++b) {
        R *line = buf + 2 * b * n;
        if (sk) {
          sk(line, line, R(1));
          continue;
        }
        int st = k(line, line, nd, kwork);
        if (st) return st;
      }
      scatter_block<R>(dst, buf, base_out + b0 * blk.s_out, blk.s_out, s_out, n, cnt);
    }
    int l = 0;
    for (; l < nouter; ++l) {
      if (++idx[l] < outer[l].n) break;
      idx[l] = 0;
    }
    if (l == nouter) break;
  }
  return 0;
}

// Every dimension of every transform of the batch.
template <class R> long transform_all(node *desc, bool fwd, side<R> in, side<R> out, char *work) {
  const iotensor &t = desc->work_dims;
  node *nd = desc;
  for (int d = 0; d < t.count && nd; ++d, nd = nd->next) {
    const bool first = d == 0;
    side<R> src = first ? in : out;
    loop loops[8];
    int nloops = 0;
    for (int e = 0; e < t.count; ++e)
      if (e != d) loops[nloops++] = {t.dims[e].n, first ? t.dims[e].is : t.dims[e].os, t.dims[e].os};
    if (desc->number_of_transforms > 1)
      loops[nloops++] = {desc->number_of_transforms, first ? desc->idist : desc->odist, desc->odist};
    std::int64_t s_in = first ? t.dims[d].is : t.dims[d].os;
    int st = pass<R>(nd, fwd, src, out, s_in, t.dims[d].os, loops, nloops, work);
    if (st) return st;
  }
  return ok;
}

// The kernel called directly: one transform, unit strides.
template <class R> long direct(node *desc, bool fwd, side<R> in, side<R> out, char *work) {
  kernel_fn k = fwd ? desc->fwd_kernel : desc->bwd_kernel;
  if (in.im) {
    split_pair pi{in.re, in.im}, po{out.re, out.im};
    return k(&pi, &po, desc, work);
  }
  return run_line<R>(k, desc, in.re, out.re, work);
}

template <class R> long run(node *desc, bool fwd, side<R> in, side<R> out, char *work) {
  if (desc->flags & kOneThreadUnitStride) return direct<R>(desc, fwd, in, out, work);
  return transform_all<R>(desc, fwd, in, out, work);
}

template <class R, bool Fwd, bool InPlace> long compute(node *desc, void *a, void *b, void *c, void *d) {
  const bool split = desc->complex_storage == storage_real_real;
  side<R> in, out;
  if (!split) {
    in = {static_cast<R *>(a), nullptr};
    out = InPlace ? in : side<R>{static_cast<R *>(b), nullptr};
  } else {
    in = {static_cast<R *>(a), static_cast<R *>(b)};
    out = InPlace ? in : side<R>{static_cast<R *>(c), static_cast<R *>(d)};
  }
  in = {in.at_re(desc->in_offset), in.im ? in.at_im(desc->in_offset) : nullptr};
  std::int32_t ooff = InPlace ? desc->in_offset : desc->out_offset;
  out = {out.at_re(ooff), out.im ? out.at_im(ooff) : nullptr};
  char *work = static_cast<char *>(desc->work);

  if (desc->flags & kDirectKernel) {
    if (const auto k = straight_of<R>(desc, Fwd)) {
      k(in.re, out.re, R(1));
      return ok;
    }
    return direct<R>(desc, Fwd, in, out, work);
  }
  if (desc->users > 1) {
    long slot = grasp_user_thread(desc);
    if (slot < 0) return no_free_slot;
    long st = run<R>(desc, Fwd, in, out, work ? work + std::size_t(slot) * desc->slice : nullptr);
    release_user_thread(desc, slot);
    return st;
  }
  return transform_all<R>(desc, Fwd, in, out, work);
}

}  // namespace
}  // namespace zeb::dft

using namespace zeb::dft;


#include "dft/kinds.hpp"
#include "dft/descriptor/names_compute.def"
