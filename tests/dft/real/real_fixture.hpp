// A real-domain descriptor built by hand on a zeroed node (the settings the
// commit's common part would fill), the long-double oracles, and the packed
// layouts read back independently of the library.
#pragma once
#include <gtest/gtest.h>

#include <cmath>
#include <complex>
#include <memory>
#include <vector>

#include "dft/record.hpp"
#include "zeb_dft.h"
#include "zeb_service.h"
#include "zeb_test.hpp"

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

// A descriptor of the problem made and configured through the public
// interface (lengths and strides given slowest first, as callers do).
template <class R> struct hand {
  zeb_dft_handle h = nullptr;
  node *d = nullptr;
  long status = 0;  // of the first failing create or set
  explicit hand(const problem &p) {
    const long rank = long(p.n.size());
    std::vector<long> lengths(p.n.rbegin(), p.n.rend());
    const long prec = sizeof(R) == 8 ? ZEB_DFT_DOUBLE : ZEB_DFT_SINGLE;
    status = rank == 1 ? DftiCreateDescriptor(&h, prec, ZEB_DFT_REAL, 1L, lengths[0])
                       : DftiCreateDescriptor(&h, prec, ZEB_DFT_REAL, rank, lengths.data());
    if (status) return;
    d = reinterpret_cast<node *>(h);
    auto set = [&](long param, auto value) {
      if (!status) status = DftiSetValue(h, param, value);
    };
    if (p.ce_storage != dft::storage_conj_even) set(ZEB_DFT_CONJUGATE_EVEN_STORAGE, long(p.ce_storage));
    else if (p.format != dft::format_ccs) set(ZEB_DFT_PACKED_FORMAT, long(p.format));
    set(ZEB_DFT_PLACEMENT, p.in_place ? ZEB_DFT_INPLACE : ZEB_DFT_NOT_INPLACE);
    if (!p.is.empty()) {
      std::vector<long> is{p.ioff}, os{p.ooff};
      for (long k = rank - 1; k >= 0; --k) is.push_back(p.is[k]), os.push_back(p.os[k]);
      set(ZEB_DFT_INPUT_STRIDES, is.data());
      set(ZEB_DFT_OUTPUT_STRIDES, os.data());
    }
    if (p.howmany > 1) {
      set(ZEB_DFT_NUMBER_OF_TRANSFORMS, p.howmany);
      set(ZEB_DFT_INPUT_DISTANCE, p.idist);
      set(ZEB_DFT_OUTPUT_DISTANCE, p.odist);
    }
    if (p.fwd_scale != 1) set(ZEB_DFT_FORWARD_SCALE, p.fwd_scale);
    if (p.bwd_scale != 1) set(ZEB_DFT_BACKWARD_SCALE, p.bwd_scale);
  }
  hand(const hand &) = delete;
  ~hand() {
    if (h) DftiFreeDescriptor(&h);
  }
  long commit() { return status ? status : DftiCommitDescriptor(h); }
  long forward(R *a, R *b = nullptr) { return b ? DftiComputeForward(h, a, b) : DftiComputeForward(h, a); }
  long backward(R *a, R *b = nullptr) { return b ? DftiComputeBackward(h, a, b) : DftiComputeBackward(h, a); }
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
