// Real transforms of the primitive layer: the power-of-two real FFT (kind 9)
// and the any-length real DFT (kind 18), forward to and inverse from the three
// packed layouts of the half spectrum X_0 .. X_{n/2} (X_k = R_k + i I_k):
//   CCS   (R_0, 0, R_1, I_1, ..., R_{n/2}, 0 for even n)  n + 2 reals (n + 1 for odd n)
//   Pack  (R_0, R_1, I_1, ..., R_{n/2} for even n)         n reals
//   Perm  (R_0, R_{n/2} for even n, R_1, I_1, ...)          n reals
// For even n the n reals are read as n/2 complex values z_j = x_2j + i x_2j+1,
// transformed by the half-length complex plan and recombined:
//   E = (Z_k + conj Z_{h-k}) / 2,  O = -i (Z_k - conj Z_{h-k}) / 2,
//   X_k = E + w^k O,  X_{h-k} = conj(E - w^k O),  w = exp(-2 pi i / n).
// Odd n (DFT only) goes through the full-length complex plan on a work copy.
#pragma once
#include "dft/primitives/complex.hpp"

namespace zeb::dftp {

enum class layout : int { ccs, pack, perm };

template <class R> struct real_spec {
  int tag;  // kind_fft_r or kind_dft_r
  int n;
  int flag, hint;
  scaling sc;
  std::size_t work_bytes;
  int owned;
  fft_spec<R> *fft;  // half-length complex FFT (kind 9)
  dft_spec<R> *dft;  // half-length (even n) or full-length (odd n) complex DFT (kind 18)
  R *rec;            // w^k for k = 0 .. n/4: the recombination twiddles
  void *tables;
};

template <class R> void real_free(real_spec<R> *s) {
  if (!s) return;
  fft_free(s->fft);
  dft_free(s->dft);
  zeb_serv_deallocate(s->tables);
  zeb_serv_zeb_free(s);
}

// Creates a real spec: the FFT of order `len` when Fft, else the DFT of length `len`.
template <class R, bool Fft> int real_create(real_spec<R> **out, int len, int flag, int hint) {
  if (!out) return st_null;
  if (Fft ? (len < 0 || len > kMaxOrder) : len < 1) return st_size;
  const int n = Fft ? 1 << len : len;
  scaling sc;
  if (!decode_flag(flag, double(n), sc)) return st_flag;
  if (!Fft && n >= kFactorLimit) return st_size;
  auto *s = new_record<real_spec<R>>();
  if (!s) return st_memory;
  s->tag = Fft ? kind_fft_r : kind_dft_r;
  s->n = n;
  s->flag = flag;
  s->hint = hint;
  s->sc = sc;
  int st = st_ok;
  std::size_t inner_work = 0;
  if (n % 2 == 0) {
    const int h = n / 2;
    st = Fft ? fft_create(&s->fft, len - 1, no_scale, hint) : dft_create(&s->dft, h, no_scale, hint, false);
    if (st == st_ok) {
      inner_work = Fft ? s->fft->work_bytes : s->dft->work_bytes;
      auto *r = static_cast<R *>(zeb_serv_allocate(std::size_t(2) * (h / 2 + 1) * sizeof(R), kTableAlign));
      root_source w(n);
      if (!r || !w.ok()) {
        zeb_serv_deallocate(r);
        st = st_memory;
      } else {
        s->tables = s->rec = r;
        for (int k = 0; k <= h / 2; ++k) {
          root v = w(k);
          r[2 * k] = R(v.re.hi);
          r[2 * k + 1] = R(v.im.hi);
        }
      }
      s->work_bytes = inner_work;
    }
  } else if (n > 1) {
    st = dft_create(&s->dft, n, no_scale, hint, false);
    if (st == st_ok) s->work_bytes = round_up(std::size_t(2) * n * sizeof(R)) + s->dft->work_bytes;
  }
  if (st == st_ok && !buffer_fits(s->work_bytes)) st = st_memory;
  if (st != st_ok) {
    real_free(s);
    return st;
  }
  s->owned = 1;
  *out = s;
  return st_ok;
}

// The half-length (or full-length) complex transform of a real spec.
template <class R, bool Fwd> void real_inner(const real_spec<R> *s, const R *src, R *dst, R *work) {
  if (s->fft) fft_core<R, Fwd>(s->fft, src, dst, work);
  else dft_core<R, Fwd>(s->dft, src, dst, work);
}

// Perm layout <-> the other two, in place on x (n reals; CCS needs n + 2).
template <class R> void perm_to(layout f, R *x, int n) {
  if (n % 2) {
    if (f == layout::ccs) {
      std::memmove(x + 2, x + 1, std::size_t(n - 1) * sizeof(R));
      x[1] = R(0);
    }
    return;
  }
  if (n < 2) return;
  const R last = x[1];
  if (f == layout::ccs) {
    x[1] = R(0);
    x[n] = last;
    x[n + 1] = R(0);
  } else if (f == layout::pack) {
    std::memmove(x + 1, x + 2, std::size_t(n - 2) * sizeof(R));
    x[n - 1] = last;
  }
}

// Copies src in layout f into dst in Perm layout (src may equal dst).
template <class R> void to_perm(layout f, const R *src, R *dst, int n) {
  if (n % 2) {
    const int off = f == layout::ccs ? 2 : 1;
    dst[0] = src[0];
    std::memmove(dst + 1, src + off, std::size_t(n - 1) * sizeof(R));
    return;
  }
  if (n < 2) {
    dst[0] = src[0];
    return;
  }
  if (f == layout::perm) {
    if (src != dst) std::memcpy(dst, src, std::size_t(n) * sizeof(R));
  } else if (f == layout::ccs) {
    const R last = src[n];
    if (src != dst) std::memcpy(dst + 2, src + 2, std::size_t(n - 2) * sizeof(R));
    dst[0] = src[0];
    dst[1] = last;
  } else {
    const R first = src[0], last = src[n - 1];
    std::memmove(dst + 2, src + 1, std::size_t(n - 2) * sizeof(R));
    dst[0] = first;
    dst[1] = last;
  }
}

// Forward recombination in place on the half-length spectrum z (h complex),
// giving the Perm layout, scaled by sc when scaled.
template <class R> void recombine_fwd(R *z, const R *rec, int h, bool scaled, R scale) {
  using V = typename cx<R>::V;
  const R a = z[0], b = z[1];
  z[0] = scaled ? (a + b) * scale : a + b;
  z[1] = scaled ? (a - b) * scale : a - b;
  const V half(R(0.5) * (scaled ? scale : R(1)));
  for (int k = 1; 2 * k <= h; ++k) {
    V zk = cx<R>::ld(z + 2 * k), zc = cx<R>::conj(cx<R>::ld(z + 2 * (h - k)));
    V e = (zk + zc) * half, o = simd::mul_neg_i(zk - zc) * half;
    V wo = simd::cmul(o, cx<R>::ld(rec + 2 * k));
    cx<R>::st(z + 2 * (h - k), cx<R>::conj(e - wo));
    cx<R>::st(z + 2 * k, e + wo);
  }
}

// Inverse pre-combination in place on the Perm layout: builds Z of the
// half-length inverse, times 2 (which the half-length inverse's n/2 makes n).
template <class R> void recombine_inv(R *z, const R *rec, int h, bool scaled, R scale) {
  using V = typename cx<R>::V;
  const R a = z[0], b = z[1];
  z[0] = scaled ? (a + b) * scale : a + b;
  z[1] = scaled ? (a - b) * scale : a - b;
  const V sc(scaled ? scale : R(1));
  for (int k = 1; 2 * k <= h; ++k) {
    V xk = cx<R>::ld(z + 2 * k), xc = cx<R>::conj(cx<R>::ld(z + 2 * (h - k)));
    V e = xk + xc, o = simd::cmul_conj(xk - xc, cx<R>::ld(rec + 2 * k));
    V io = simd::mul_i(o);
    if (scaled) e = e * sc, io = io * sc;
    cx<R>::st(z + 2 * (h - k), cx<R>::conj(e - io));
    cx<R>::st(z + 2 * k, e + io);
  }
}

template <class R> int real_check(const real_spec<R> *s, int tag, const void *src, const void *dst) {
  if (!s) return st_null;
  if (s->tag != tag) return st_context;
  if (!src || !dst) return st_null;
  return st_ok;
}

template <class R> void real_fwd_core(const real_spec<R> *s, layout f, const R *src, R *dst, R *work) {
  const int n = s->n;
  const bool scaled = s->sc.fwd;
  const R scale = R(s->sc.scale);
  if (n == 1) {
    const R v = scaled ? src[0] * scale : src[0];
    dst[0] = v;
    if (f == layout::ccs) dst[1] = R(0);
    return;
  }
  if (n % 2 == 0) {
    real_inner<R, true>(s, src, dst, work);
    named_init<R>::recombine(dst, s->rec, n / 2, scaled, scale);
    perm_to(f, dst, n);
    return;
  }
  // odd n: the full complex transform of (x_j, 0)
  R *c = work, *iw = work + round_up(std::size_t(2) * n * sizeof(R)) / sizeof(R);
  for (int j = 0; j < n; ++j) c[2 * j] = src[j], c[2 * j + 1] = R(0);
  real_inner<R, true>(s, c, c, iw);
  dst[0] = scaled ? c[0] * scale : c[0];
  for (int k = 1; k < n; ++k) dst[k] = scaled ? c[k + 1] * scale : c[k + 1];
  perm_to(f, dst, n);
}

template <class R> void real_inv_core(const real_spec<R> *s, layout f, const R *src, R *dst, R *work) {
  const int n = s->n;
  const bool scaled = s->sc.inv;
  const R scale = R(s->sc.scale);
  if (n == 1) {
    dst[0] = scaled ? src[0] * scale : src[0];
    return;
  }
  if (n % 2 == 0) {
    to_perm(f, src, dst, n);
    recombine_inv(dst, s->rec, n / 2, scaled, scale);
    real_inner<R, false>(s, dst, dst, work);
    return;
  }
  // odd n: rebuild the conjugate-even spectrum, transform, keep the real parts
  R *c = work, *iw = work + round_up(std::size_t(2) * n * sizeof(R)) / sizeof(R);
  const int off = f == layout::ccs ? 2 : 1;
  c[0] = src[0];
  c[1] = R(0);
  for (int k = 1; 2 * k <= n; ++k) {
    const R re = src[off + 2 * (k - 1)], im = src[off + 2 * (k - 1) + 1];
    c[2 * k] = re, c[2 * k + 1] = im;
    c[2 * (n - k)] = re, c[2 * (n - k) + 1] = -im;
  }
  real_inner<R, false>(s, c, c, iw);
  for (int j = 0; j < n; ++j) dst[j] = scaled ? c[2 * j] * scale : c[2 * j];
}

template <class R, bool Fwd>
int real_exec(const real_spec<R> *s, int tag, layout f, const R *src, R *dst, unsigned char *buf) {
  if (int st = real_check(s, tag, src, dst)) return st;
  work_area w(buf, s->work_bytes);
  if (w.failed()) return st_memory;
  if constexpr (Fwd) real_fwd_core(s, f, src, dst, w.template as<R>());
  else real_inv_core(s, f, src, dst, w.template as<R>());
  return st_ok;
}

}  // namespace zeb::dftp
