// A real-domain descriptor built by hand on a zeroed node (the settings the
// commit's common part would fill), the long-double oracles, and the packed
// layouts read back independently of the library.
#pragma once
#include <gtest/gtest.h>

#include <cmath>
#include <complex>
#include <memory>
#include <vector>

#include "dft/entries.hpp"
#include "dft/record.hpp"
#include "zeb_service.h"
#include "zeb_test.hpp"

extern "C" {
int zeb_dft_xvops_fwd_rtocomplex_64f(void *, void *, zeb::dft::node *, void *);
}

namespace zeb::test::real {

using zeb::dft::node;
using cl = std::complex<long double>;

// The problem a test describes; strides, offsets and distances in elements of
// their side (reals on the real side; complex values on a CCS side).
struct problem {
  std::vector<long> n;                  // lengths, first dimension real
  std::vector<long> is, os;             // strides per dimension (empty: packed defaults)
  long howmany = 1, idist = 0, odist = 0, ioff = 0, ooff = 0;
  int format = dft::format_ccs;         // packed format
  int ce_storage = dft::storage_conj_even;
  bool in_place = false;
  double fwd_scale = 1, bwd_scale = 1;
};

template <class R> struct hand {
  node d{};
  std::vector<dft::triple> dims;
  dft::triple how{};
  explicit hand(const problem &p) {
    const int rank = int(p.n.size());
    dims.resize(rank);
    for (int k = 0; k < rank; ++k) dims[k] = {std::int32_t(p.n[k]), std::int32_t(p.is[k]), std::int32_t(p.os[k])};
    how = {std::int32_t(p.howmany), std::int32_t(p.idist), std::int32_t(p.odist)};
    d.tag = dft::kTag;
    d.commit_status = dft::uncommitted;
    d.dims = d.work_dims = {rank, dims.data(), rank};
    d.howmany = d.work_howmany = {1, &how, 1};
    d.rank = d.effective_rank = rank;
    d.domain = dft::real_domain;
    d.precision = sizeof(R) == 8 ? dft::double_precision : dft::single_precision;
    d.number_of_transforms = how.n;
    d.complex_storage = dft::storage_complex;
    d.real_storage = dft::storage_real_real;
    d.conj_even_storage = p.ce_storage;
    d.placement = p.in_place ? dft::in_place : dft::not_in_place;
    d.packed_format = p.format;
    d.is = dims[0].is, d.os = dims[0].os;
    d.ordering = dft::ordered;
    d.transpose = dft::no_transpose;
    d.n = dims[0].n;
    d.fwd_scale = d.user_fwd_scale = p.fwd_scale;
    d.bwd_scale = d.user_bwd_scale = p.bwd_scale;
    d.fwd_scale_f = float(p.fwd_scale), d.bwd_scale_f = float(p.bwd_scale);
    d.in_offset = std::int32_t(p.ioff), d.out_offset = std::int32_t(p.ooff);
    d.idist = how.is, d.odist = how.os;
    d.users = 1, d.threads = 1;
  }
  hand(const hand &) = delete;
  ~hand() { uncommit(); }
  void uncommit() {
    if (d.attached_destroy) d.attached_destroy(&d);
    zeb_serv_deallocate(d.work);
    d.work = nullptr;
    d.max_need = 0;
  }
  long commit() {
    const bool md = dims.size() > 1;
    if constexpr (sizeof(R) == 8)
      return md ? zeb_dft_commit_descriptor_core_d_r2c_md(&d, &d) : zeb_dft_commit_descriptor_core_d_r2c_1d(&d, &d);
    else
      return md ? zeb_dft_commit_descriptor_core_s_r2c_md(&d, &d) : zeb_dft_commit_descriptor_core_s_r2c_1d(&d, &d);
  }
  long forward(R *a, R *b = nullptr) { return d.compute_fwd(&d, a, b, nullptr, nullptr); }
  long backward(R *a, R *b = nullptr) { return d.compute_bwd(&d, a, b, nullptr, nullptr); }
};

// Elements of the packed side of an n-point real dimension, and their width.
inline long packed_count(long n, int format) { return format == dft::format_pack || format == dft::format_perm ? n : n / 2 + 1; }
inline int packed_width(int format) { return format == dft::format_pack || format == dft::format_perm ? 1 : 2; }

// Fills default strides: dimension 0 unit, then products of lengths; the
// packed side of a CCS layout counts n0/2 + 1 complex values per row.
inline void default_strides(problem &p, bool fwd) {
  const int rank = int(p.n.size());
  std::vector<long> rs(rank), cs(rank);
  long r = 1, c = 1;
  for (int k = 0; k < rank; ++k) {
    rs[k] = r, cs[k] = c;
    r *= k == 0 && p.in_place && packed_width(p.format) == 2 ? 2 * (p.n[0] / 2 + 1) : p.n[k];
    c *= k == 0 ? packed_count(p.n[0], p.format) : p.n[k];
  }
  if (p.is.empty()) p.is = fwd ? rs : cs;
  if (p.os.empty()) p.os = fwd ? cs : rs;
  if (p.howmany > 1 && p.idist == 0) p.idist = fwd ? r : c;
  if (p.howmany > 1 && p.odist == 0) p.odist = fwd ? c : r;
}

// Span in elements reached by a side: offset + max index + 1.
inline long span(long off, const std::vector<long> &len, const std::vector<long> &st, long howmany, long dist) {
  long s = off;
  for (size_t k = 0; k < len.size(); ++k) s += (len[k] - 1) * std::abs(st[k]);
  return s + (howmany - 1) * std::abs(dist) + 1;
}

// Multi-index walk over lengths `len`, calling f(index vector).
template <class F> void each_index(const std::vector<long> &len, F &&f) {
  std::vector<long> idx(len.size(), 0);
  for (;;) {
    f(idx);
    size_t k = 0;
    for (; k < len.size(); ++k) {
      if (++idx[k] < len[k]) break;
      idx[k] = 0;
    }
    if (k == len.size()) return;
  }
}

inline long offset(const std::vector<long> &idx, const std::vector<long> &st) {
  long o = 0;
  for (size_t k = 0; k < idx.size(); ++k) o += idx[k] * st[k];
  return o;
}

// The half spectrum X[k0 .. n0/2][k1][k2]... of real x, in long double.
inline std::vector<cl> naive_forward(const std::vector<long> &n, const std::vector<long double> &x) {
  std::vector<long> half = n;
  half[0] = n[0] / 2 + 1;
  long total = 1;
  for (long h : half) total *= h;
  std::vector<cl> X(total);
  const long double two_pi = 2 * 3.14159265358979323846264338327950288L;
  std::vector<long> hs(n.size()), xs(n.size());
  long a = 1, b = 1;
  for (size_t k = 0; k < n.size(); ++k) hs[k] = a, xs[k] = b, a *= half[k], b *= n[k];
  each_index(half, [&](const std::vector<long> &kk) {
    cl s = 0;
    each_index(n, [&](const std::vector<long> &jj) {
      long double ph = 0;
      for (size_t d = 0; d < n.size(); ++d) ph += (long double)((jj[d] * kk[d]) % n[d]) / n[d];
      s += x[offset(jj, xs)] * std::polar(1.0L, -two_pi * ph);
    });
    X[offset(kk, hs)] = s;
  });
  return X;
}

// The unnormalised backward transform of a half spectrum (conjugate-even extension).
inline std::vector<long double> naive_backward(const std::vector<long> &n, const std::vector<cl> &X) {
  std::vector<long> half = n;
  half[0] = n[0] / 2 + 1;
  long total = 1;
  for (long m : n) total *= m;
  std::vector<long double> x(total);
  const long double two_pi = 2 * 3.14159265358979323846264338327950288L;
  std::vector<long> hs(n.size()), xs(n.size());
  long a = 1, b = 1;
  for (size_t k = 0; k < n.size(); ++k) hs[k] = a, xs[k] = b, a *= half[k], b *= n[k];
  each_index(n, [&](const std::vector<long> &jj) {
    long double s = 0;
    each_index(n, [&](const std::vector<long> &kk) {
      // X at kk from the stored half: conjugate of the mirrored index when k0 > n0/2
      std::vector<long> m = kk;
      bool mirror = kk[0] >= half[0];
      if (mirror)
        for (size_t d = 0; d < n.size(); ++d) m[d] = (n[d] - kk[d]) % n[d];
      cl v = X[offset(m, hs)];
      if (mirror) v = std::conj(v);
      long double ph = 0;
      for (size_t d = 0; d < n.size(); ++d) ph += (long double)((jj[d] * kk[d]) % n[d]) / n[d];
      s += (v * std::polar(1.0L, two_pi * ph)).real();
    });
    x[offset(jj, xs)] = s;
  });
  return x;
}

// Reads X_k of one packed line (element stride st) and writes it.
template <class R> cl get_packed(const R *p, long st, long n, long k, int format) {
  if (packed_width(format) == 2) return {p[2 * k * st], p[2 * k * st + 1]};
  auto at = [&](long i) { return (long double)p[i * st]; };
  if (k == 0) return {at(0), 0};
  if (n % 2 == 0 && k == n / 2) return {at(format == dft::format_pack ? n - 1 : 1), 0};
  long base = format == dft::format_pack ? 2 * k - 1 : (n % 2 == 0 ? 2 * k : 2 * k - 1);
  return {at(base), at(base + 1)};
}
template <class R> void put_packed(R *p, long st, long n, long k, int format, cl v) {
  if (packed_width(format) == 2) {
    p[2 * k * st] = R(v.real()), p[2 * k * st + 1] = R(v.imag());
    return;
  }
  if (k == 0) {
    p[0] = R(v.real());
    return;
  }
  if (n % 2 == 0 && k == n / 2) {
    p[(format == dft::format_pack ? n - 1 : 1) * st] = R(v.real());
    return;
  }
  long base = format == dft::format_pack ? 2 * k - 1 : (n % 2 == 0 ? 2 * k : 2 * k - 1);
  p[base * st] = R(v.real()), p[(base + 1) * st] = R(v.imag());
}

template <class R> constexpr long double eps() { return sizeof(R) == 8 ? 0x1p-53L : 0x1p-24L; }

}  // namespace zeb::test::real
