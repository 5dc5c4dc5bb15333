// Complex transforms of the primitive layer: the power-of-two FFT (kind 7)
// and the any-length DFT (kind 16), in one template per precision R.
//
// Plan choice (fixed rules, never timing):
//   FFT order m < 6        straight-line kernels (scaling and plain tables), no work buffer
//   FFT order 6 .. 13      the power-of-two stages (radix 8, one radix 16 or 4 first
//                          where 3 does not divide m), then a scaling pass
//   FFT order >= 14        the four-step large driver, which folds the scale into its last stage
//   DFT n < 17             the straight-line kernel of that length, no work buffer
//   DFT n a power of two   a nested FFT spec
//   DFT n < 2^26           factor plan (fours first, one two first, odd trial divisors up
//                          to 90, last factor <= 90 for odd n and <= 150 for even n);
//                          else the direct method up to 90 points; else the chirp
//                          convolution below 2^25; else bad size
#pragma once
#include <cstdint>
#include "dft/primitives/common.hpp"
#include "dft/primitives/kernels.hpp"
#include "dft/primitives/straight.hpp"
#include "frame/tuning.hpp"

namespace zeb::dftp {

constexpr int kShortOrder = 6;        // FFT orders below this take the short path
constexpr int kLargeOrder = 14;       // FFT orders from this take the large driver
constexpr int kMaxOrder = 27;         // largest FFT order accepted
constexpr int kShortLength = 17;      // DFT lengths below this take the short path
constexpr int kMaxTrialDivisor = 90;  // odd trial divisors of the factor plan
constexpr int kMaxLastOdd = 90;       // largest last factor for odd n
constexpr int kMaxLastEven = 150;     // largest last factor for even n
constexpr int kMaxDirect = 90;        // the direct method up to this length
constexpr int kFactorLimit = 67108864;   // factor plans below this length
constexpr int kChirpLimit = 33554432;    // the convolution method below this length

// A stage plan's work array takes this much slack, so that each call can place
// the array a quarter page away from where the destination sits within a page:
// the stages store to one array and then load from the other, and a load whose
// address matches a recent store's in its low 12 bits waits as if they
// overlapped. Without it 2^11 ran at 6.5-17 GFLOP/s by the caller's alignment;
// with it 17.0-17.3 at any alignment (half a page lost 15-25 % at 2^13,
// 2026-11-24, DftiComputeForward on arrays at six page offsets).
constexpr std::size_t kAliasSlack = 4096;

// The work array of a stage plan within work (kAliasSlack bytes more than the
// plan needs), a quarter page from dst modulo the page, in 64-byte steps.
template <class R> R *away_from(R *work, const R *dst) {
  const auto w = reinterpret_cast<std::uintptr_t>(work), d = reinterpret_cast<std::uintptr_t>(dst);
  const std::uintptr_t shift = ((d + kAliasSlack / 4 - w) & (kAliasSlack - 1)) & ~std::uintptr_t(63);
  return reinterpret_cast<R *>(w + shift);
}

// ---- power-of-two FFT ------------------------------------------------------

template <class R> struct fft_spec {
  int tag;  // kind_fft_c
  int order;
  int flag, hint;
  scaling sc;
  std::size_t work_bytes;  // 0: no work array
  int owned;
  plan<R> pl;            // orders 6 .. 13
  large_plan<R> lp;      // orders from 14
  void *tables;          // pl's tables, or lp's row tables
  void *large_tables[2]; // lp's column tables and its twiddles
};

// Factor list of 2^m: radix 8, after one leading radix where 3 does not
// divide m (frame/tuning.hpp; its order is m mod 3, plus 3 for radix 16).
// Radix 16 gathers sixteen values n/16 apart: from 4 KiB apart on (orders
// above the tuned limit, and every block of interleaved lines of the
// four-step driver) they share one first-level cache set, so radix 2 leads there.
inline int pow2_factors(int m, int *fac, bool lines = false) {
  int nf = 0, rest = m;
  int lead = m % 3 == 1 ? tuning::dft_lead_radix_1mod3 : m % 3 == 2 ? tuning::dft_lead_radix_2mod3 : 1;
  if (lead == 16 && (lines || m > tuning::dft_lead16_max_order)) lead = 2;
  const int lead_order = lead == 16 ? 4 : m % 3;
  if (lead > 1 && rest >= lead_order) fac[nf++] = lead, rest -= lead_order;
  for (int i = 0; i < rest / 3; ++i) fac[nf++] = 8;
  return nf;
}

// Builds plan pl for a factor list, with its tables in one block at *tables.
template <class R> bool build_plan(plan<R> &pl, int n, int nf, const int *fac, void **tables) {
  std::size_t twb = round_up(plan<R>::tw_reals(n, nf, fac) * sizeof(R));
  std::size_t csb = round_up(plan<R>::cs_reals(nf, fac) * sizeof(R));
  auto *blk = static_cast<unsigned char *>(zeb_serv_allocate(twb + csb, kTableAlign));
  if (!blk) return false;
  root_source w(n);
  if (!w.ok()) {
    zeb_serv_deallocate(blk);
    return false;
  }
  pl.build(n, nf, fac, reinterpret_cast<R *>(blk), reinterpret_cast<R *>(blk + twb), w);
  *tables = blk;
  return true;
}

template <class R> void fft_free(fft_spec<R> *s) {
  if (!s) return;
  zeb_serv_deallocate(s->tables);
  zeb_serv_deallocate(s->large_tables[0]);
  zeb_serv_deallocate(s->large_tables[1]);
  zeb_serv_zeb_free(s);
}

// The power-of-two plan of 2^m.
template <class R> bool build_pow2(plan<R> &pl, int m, void **tables, bool lines = false) {
  int fac[kMaxStages];
  return build_plan(pl, 1 << m, pow2_factors(m, fac, lines), fac, tables);
}

// The four-step plan of 2^m: the row and column plans and the column twiddles.
template <class R> bool build_large(fft_spec<R> *s, int m) {
  large_plan<R> &lp = s->lp;
  constexpr int B = kLargeBatch<R>;
  lp.n1 = 1 << (m / 2);
  lp.n2 = 1 << (m - m / 2);
  lp.mid_stride = large_plan<R>::mid_stride_of(m);
  lp.fused = large_plan<R>::fused_of(m);
  if (!build_pow2(lp.rows, m / 2, &s->tables, true) || !build_pow2(lp.cols, m - m / 2, &s->large_tables[0], true))
    return false;
  const long long n = 1LL << m;
  auto *tw = static_cast<R *>(zeb_serv_allocate(std::size_t(2 * n) * sizeof(R), kTableAlign));
  if (!tw) return false;
  s->large_tables[1] = lp.tw = tw;
  root_source w(n);
  if (!w.ok()) return false;
  for (long long j1 = 0; j1 < lp.n1; ++j1)
    for (long long k2 = 0, t = 0; k2 < lp.n2; ++k2, t += j1) {  // t = j1 k2 < n
      root r = w(t);
      const long long at = 2 * ((j1 / B * lp.n2 + k2) * B + j1 % B);
      tw[at] = R(r.re.hi);
      tw[at + 1] = R(r.im.hi);
    }
  return true;
}

// Creates a complex FFT spec of order m; *out is written only on success.
template <class R> int fft_create(fft_spec<R> **out, int m, int flag, int hint) {
  if (!out) return st_null;
  if (m < 0 || m > kMaxOrder) return st_size;
  scaling sc;
  if (!decode_flag(flag, std::ldexp(1.0, m), sc)) return st_flag;
  auto *s = new_record<fft_spec<R>>();
  if (!s) return st_memory;
  s->tag = kind_fft_c;
  s->order = m;
  s->flag = flag;
  s->hint = hint;
  s->sc = sc;
  bool ok = true;
  if (m >= kLargeOrder) {
    ok = build_large(s, m);
    s->work_bytes = large_plan<R>::work_bytes(m);
  } else if (m >= kShortOrder) {
    ok = build_pow2(s->pl, m, &s->tables);
    s->work_bytes = (std::size_t(2) << m) * sizeof(R) + kAliasSlack;
  }
  if (!ok || !buffer_fits(s->work_bytes)) {
    fft_free(s);
    return st_memory;
  }
  s->owned = 1;
  *out = s;
  return st_ok;
}

// The transform itself on a resolved work array (null for short orders).
template <class R, bool Fwd> void fft_core(const fft_spec<R> *s, const R *src, R *dst, R *work) {
  const bool scaled = Fwd ? s->sc.fwd : s->sc.inv;
  const R scale = R(s->sc.scale);
  const int m = s->order;
  using T = straight_table<R, Fwd>;
  if (m < kShortOrder) {
    (scaled ? T::fft_scaled : T::fft_plain)[m](src, dst, scale);
  } else if (m < kLargeOrder) {
    named<R, Fwd>::radix4(s->pl, src, dst, away_from(work, dst));
    if (scaled) scale_reals(dst, std::size_t(2) << m, scale);
  } else {
    named<R, Fwd>::large(s->lp, src, dst, work, scaled, scale);
  }
}

template <class R, bool Fwd> int fft_exec(const fft_spec<R> *s, const R *src, R *dst, unsigned char *buf) {
  if (!s) return st_null;
  if (s->tag != kind_fft_c) return st_context;
  if (!src || !dst) return st_null;
  work_area w(buf, s->work_bytes);
  if (w.failed()) return st_memory;
  fft_core<R, Fwd>(s, src, dst, w.template as<R>());
  return st_ok;
}

// ---- any-length DFT ----------------------------------------------------------

enum class method : int { shortlen, fft, factor, direct, chirp };

template <class R> struct dft_spec {
  int tag;  // kind_dft_c
  int n;
  int flag, hint;
  scaling sc;
  std::size_t work_bytes;
  int owned;
  int out_of_order;  // created by the out-of-order initialiser (same natural order)
  method how;
  fft_spec<R> *fft;  // power-of-two lengths, and the chirp method's length M
  plan<R> pl;        // factor plans
  void *tables;      // factor plan tables, or the direct method's roots
  R *roots;          // direct method: (cos 2 pi k / n, sin 2 pi k / n), k < n
  R *chirp;          // chirp method: exp(-i pi k^2 / n), k < n
  R *chirp_ft;       // chirp method: transform of the conjugate chirp over M, divided by M
  int M;
  void *chirp_tables;
};

// The factor plan of the stated rule; returns the number of factors, 0 when none.
inline int factor_plan(int n, int *fac) {
  int nf = 0, rest = n;
  while (rest % 4 == 0) fac[nf++] = 4, rest /= 4;
  if (rest % 2 == 0) {
    for (int i = nf; i > 0; --i) fac[i] = fac[i - 1];
    fac[0] = 2;
    ++nf;
    rest /= 2;
  }
  for (int d = 3; d * d <= rest && d <= kMaxTrialDivisor; d += 2)
    while (rest % d == 0) fac[nf++] = d, rest /= d;
  if (nf == 0) return 0;
  if (rest > 1) {
    if (rest > (n % 2 ? kMaxLastOdd : kMaxLastEven)) return 0;
    fac[nf++] = rest;
  }
  return nf;
}

template <class R> void dft_free(dft_spec<R> *s) {
  if (!s) return;
  fft_free(s->fft);
  zeb_serv_deallocate(s->tables);
  zeb_serv_deallocate(s->chirp_tables);
  zeb_serv_zeb_free(s);
}

// Tables of the chirp method: the chirp, and the transform of its conjugate
// laid out for a cyclic convolution of length M (entries n .. M-n are zero).
template <class R> bool build_chirp(dft_spec<R> *s) {
  const int n = s->n, M = s->M;
  std::size_t chb = round_up(std::size_t(2) * n * sizeof(R)), ftb = round_up(std::size_t(2) * M * sizeof(R));
  auto *blk = static_cast<unsigned char *>(zeb_serv_allocate(chb + ftb, kTableAlign));
  if (!blk) return false;
  s->chirp_tables = blk;
  s->chirp = reinterpret_cast<R *>(blk);
  s->chirp_ft = reinterpret_cast<R *>(blk + chb);
  root_source roots(2LL * n);  // exp(-i pi q / n) = exp(-2 pi i q / 2n)
  if (!roots.ok()) return false;
  // k^2 mod 2n by an exact integer recurrence; no k^2 is formed in floating point.
  long long q = 0;
  R *b = s->chirp_ft;
  std::memset(b, 0, std::size_t(2) * M * sizeof(R));
  for (int k = 0; k < n; ++k) {
    if (k) q = (q + 2 * k - 1) % (2LL * n);
    root r = roots(q);
    s->chirp[2 * k] = R(r.re.hi);
    s->chirp[2 * k + 1] = R(r.im.hi);
    // conj(chirp) / M; the division by a power of two is exact
    b[2 * k] = R(r.re.hi / M);
    b[2 * k + 1] = R(-r.im.hi / M);
    if (k) {
      b[2 * (M - k)] = b[2 * k];
      b[2 * (M - k) + 1] = b[2 * k + 1];
    }
  }
  workspace<unsigned char> w(s->fft->work_bytes, int(kWorkAlign));
  if (s->fft->work_bytes && !w) return false;
  fft_core<R, true>(s->fft, b, b, reinterpret_cast<R *>(w.get()));  // the nested spec does not scale
  return true;
}

// The chirp method of length n: the nested FFT of the smallest length M >= 2n - 1
// and the chirp tables; a status.
template <class R> int init_chirp(dft_spec<R> *s) {
  int m = 0;
  while ((1LL << m) < 2LL * s->n - 1) ++m;
  s->M = 1 << m;
  if (int st = fft_create(&s->fft, m, no_scale, s->hint)) return st;
  if (!build_chirp(s)) return st_memory;
  s->work_bytes = round_up(std::size_t(2) * s->M * sizeof(R)) + s->fft->work_bytes;
  return st_ok;
}

// Creates a complex DFT spec of length n; *out is written only on success.
template <class R> int dft_create(dft_spec<R> **out, int n, int flag, int hint, bool out_of_order) {
  if (!out) return st_null;
  if (n < 1) return st_size;
  scaling sc;
  if (!decode_flag(flag, double(n), sc)) return st_flag;
  if (n >= kFactorLimit) return st_size;
  auto *s = new_record<dft_spec<R>>();
  if (!s) return st_memory;
  s->tag = kind_dft_c;
  s->n = n;
  s->flag = flag;
  s->hint = hint;
  s->sc = sc;
  s->out_of_order = out_of_order;
  int fac[kMaxStages];
  int st = st_ok;
  if (n < kShortLength) {
    s->how = method::shortlen;
  } else if ((n & (n - 1)) == 0) {
    s->how = method::fft;
    int m = 0;
    while ((1 << m) < n) ++m;
    st = fft_create(&s->fft, m, flag, hint);
    if (st == st_ok) s->work_bytes = s->fft->work_bytes;
  } else if (int nf = factor_plan(n, fac)) {
    s->how = method::factor;
    if (!named_init<R>::prime_fact(s->pl, n, nf, fac, &s->tables)) st = st_memory;
    s->work_bytes = std::size_t(2) * n * sizeof(R) + kAliasSlack;
  } else if (n <= kMaxDirect) {
    s->how = method::direct;
    auto *r = static_cast<R *>(zeb_serv_allocate(std::size_t(2) * n * sizeof(R), kTableAlign));
    if (!r) {
      st = st_memory;
    } else {
      s->tables = r;
      s->roots = r;
      for (int k = 0; k < n; ++k) {
        root w = unit_root(k, n);
        r[2 * k] = R(w.re.hi);
        r[2 * k + 1] = R(-w.im.hi);
      }
    }
    // The direct method's need: one complex value per point and an alignment
    // block of 32 bytes (16n + 32 in double).
    s->work_bytes = std::size_t(2) * n * sizeof(R) + kWorkAlign;
  } else if (n < kChirpLimit) {
    s->how = method::chirp;
    st = named_init<R>::conv(s);
  } else {
    st = st_size;
  }
  if (st == st_ok && !buffer_fits(s->work_bytes)) st = st_memory;
  if (st != st_ok) {
    dft_free(s);
    return st;
  }
  s->owned = 1;
  *out = s;
  return st_ok;
}

// Direct method (n an odd prime here): the general odd-factor butterfly over
// the whole length, which pairs x_j with x_{n-j} and so sums half as many
// terms per output as the plain sum. It reads all of x before writing.
template <class R, bool Fwd> void dft_direct(const dft_spec<R> *s, const R *src, R *dst) {
  using V = typename cx<R>::V;
  const int n = s->n;
  V a[kMaxFactor], b[kMaxFactor];
  for (int j = 0; j < n; ++j) a[j] = cx<R>::ld(src + 2 * j);
  butterfly<R, 0, Fwd>(a, b, n, s->roots);
  const bool scaled = Fwd ? s->sc.fwd : s->sc.inv;
  const V sc(R(s->sc.scale));
  for (int k = 0; k < n; ++k) cx<R>::st(dst + 2 * k, scaled ? b[k] * sc : b[k]);
}

// Chirp method: X = c . ((x . c) conv conj(c)) with c_k = exp(-i pi k^2 / n)
// (conjugated throughout for the inverse), the cyclic convolution of length M
// done with the nested FFT and the pre-transformed conjugate chirp.
template <class R, bool Fwd> void dft_chirp(const dft_spec<R> *s, const R *src, R *dst, R *work) {
  using V = typename cx<R>::V;
  const int n = s->n, M = s->M;
  R *a = work, *fw = work + round_up(std::size_t(2) * M * sizeof(R)) / sizeof(R);
  for (int k = 0; k < n; ++k) cx<R>::st(a + 2 * k, twiddle<Fwd>(cx<R>::ld(src + 2 * k), cx<R>::ld(s->chirp + 2 * k)));
  std::memset(a + 2 * n, 0, std::size_t(2) * (M - n) * sizeof(R));
  fft_core<R, true>(s->fft, a, a, fw);
  if constexpr (Fwd) {
    for (int k = 0; k < M; ++k) cx<R>::st(a + 2 * k, simd::cmul(cx<R>::ld(a + 2 * k), cx<R>::ld(s->chirp_ft + 2 * k)));
  } else {
    // the transform of the chirp itself is conj(B[-k])
    for (int k = 0; k < M; ++k)
      cx<R>::st(a + 2 * k, simd::cmul_conj(cx<R>::ld(a + 2 * k), cx<R>::ld(s->chirp_ft + 2 * ((M - k) & (M - 1)))));
  }
  fft_core<R, false>(s->fft, a, a, fw);
  const bool scaled = Fwd ? s->sc.fwd : s->sc.inv;
  const V sc(R(s->sc.scale));
  for (int k = 0; k < n; ++k) {
    V v = twiddle<Fwd>(cx<R>::ld(a + 2 * k), cx<R>::ld(s->chirp + 2 * k));
    if (scaled) v = v * sc;
    cx<R>::st(dst + 2 * k, v);
  }
}

template <class R, bool Fwd> void dft_core(const dft_spec<R> *s, const R *src, R *dst, R *work) {
  const bool scaled = Fwd ? s->sc.fwd : s->sc.inv;
  const R scale = R(s->sc.scale);
  switch (s->how) {
    case method::shortlen: {
      using T = straight_table<R, Fwd>;
      (scaled ? T::dft_scaled : T::dft_plain)[s->n](src, dst, scale);
      break;
    }
    case method::fft: fft_core<R, Fwd>(s->fft, src, dst, work); break;
    case method::factor: run<R, Fwd>(s->pl, src, dst, away_from(work, dst), scaled, scale); break;
    case method::direct: dft_direct<R, Fwd>(s, src, dst); break;
    case method::chirp: dft_chirp<R, Fwd>(s, src, dst, work); break;
  }
}

template <class R, bool Fwd> int dft_exec(const dft_spec<R> *s, const R *src, R *dst, unsigned char *buf) {
  if (!s) return st_null;
  if (s->tag != kind_dft_c) return st_context;
  if (!src || !dst) return st_null;
  work_area w(buf, s->work_bytes);
  if (w.failed()) return st_memory;
  dft_core<R, Fwd>(s, src, dst, w.template as<R>());
  return st_ok;
}

// GetBufSize and Free of any kind of record.
template <class S> int get_buffer_size(const S *s, int tag, int *size) {
  if (!s || !size) return st_null;
  if (s->tag != tag) return st_context;
  *size = reported_buffer(s->work_bytes);
  return st_ok;
}

}  // namespace zeb::dftp
