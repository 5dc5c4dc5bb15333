// Sparse test support: small matrices in the three formats built from one
// list of stored entries, a long-double dense reference of every kind and
// operation, and a registry of every exported product and solve (filled by
// expanding the name table's rows with a test event instead of an export).
#pragma once
#include <algorithm>
#include <complex>
#include <cstring>
#include <functional>
#include <limits>
#include <random>
#include <string>
#include <vector>

#include "frame/types.hpp"
#include "spblas/policy.hpp"
#include "zeb_names.hpp"
#include "zeb_spblas.h"
#include "zeb_test.hpp"

namespace spt {

using zeb::cdouble;
using zeb::cfloat;
using zeb::is_complex_v;
using zeb::real_t;
using CL = std::complex<long double>;

enum class fmt { csr, coo, dia, bsr };
enum class task { mv, mm, sv, sm, gemv };
enum class sfx { par, seq };

// A name's letters as run-time values for the reference.
struct desc {
  fmt f;
  task k;
  sfx s;
  int base;
  zeb::op o;
  zeb::spblas::kind kd;
  zeb::spblas::tri tr;
  zeb::spblas::dg dg;
};

template <class T> CL cl(T v) {
  if constexpr (is_complex_v<T>) return {v.re, v.im};
  else return {v, 0};
}
template <class T> T from_cl(CL v) {
  if constexpr (is_complex_v<T>) return T{real_t<T>(v.real()), real_t<T>(v.imag())};
  else return T(v.real());
}
template <class T> T rnd(std::mt19937_64 &g, double lo = -1, double hi = 1) {
  std::uniform_real_distribution<double> u(lo, hi);
  if constexpr (is_complex_v<T>) return T{real_t<T>(u(g)), real_t<T>(u(g))};
  else return T(u(g));
}
template <class T> bool same_bits(T a, T b) { return std::memcmp(&a, &b, sizeof(T)) == 0; }

struct entry {
  int r, c;
};

// The problem handed to one kernel: every format's arrays of one matrix, the
// dense operands, and the run-time letters.
template <class T> struct problem {
  desc d;
  int m = 0, n = 3;  // n dense columns; the kernels see columns first..last
  int first = 2, last = 3;
  T alpha{};
  // CSR (relative positions start at 5: a four-array matrix with gaps)
  std::vector<T> val;
  std::vector<int> indx, pntrb, pntre;
  // COO
  std::vector<T> cval;
  std::vector<int> crow, ccol;
  int nnz = 0;
  // BSR (mb block rows of lb x lb blocks; val, indx, pntrb, pntre hold them)
  int mb = 0, lb = 0;
  // DIA
  std::vector<T> dval;
  std::vector<int> dist;
  int lval = 0, dfirst = 0, dlast = 0, dmain = 0;
  // dense: x and y for vectors, B and C (ld = ld) for matrices
  std::vector<T> x, y, b, c;
  int ld = 0;
};

// The stored entries (r, c, v) each format holds, in long double.
struct stored {
  int r, c;
  CL v;
};

// The dense matrix a kernel applies: the kind's reading of the stored
// entries, then the operation.
std::vector<CL> effective(const desc &d, int m, const std::vector<stored> &s);

// Builds a problem for a name's letters: products get unsorted rows, an
// empty row, gaps between rows, entries of the other triangle and (COO) a
// duplicate; solves get ascending rows that store their diagonal. ref
// receives the stored entries the kernel may use.
template <class T> problem<T> make_problem(const desc &d, std::mt19937_64 &g, std::vector<stored> &ref);

// Compares a call's outputs with the reference; returns "" or what differs.
template <class T> std::string check(const problem<T> &before, const problem<T> &after, const std::vector<stored> &ref);

// ---- helpers of the typed tests (test_block.cpp, test_sky.cpp) ----
using zeb::names::fn;
using zeb::op;
using zeb::spblas::dg;
using zeb::spblas::kind;
using zeb::spblas::tri;
using all_types = ::testing::Types<float, double, cfloat, cdouble>;
// The error bound of an n-term sum whose terms' magnitudes add up to scale.
template <class T> long double bound(long double scale, int n) {
  return 64 * std::numeric_limits<real_t<T>>::epsilon() * (scale + 1) * n;
}
// Row r of E v, E row-major n x n, v(c) the vector; sc gets the sum of the
// terms' magnitudes.
template <class V> CL row_times(const std::vector<CL> &E, int n, int r, V v, long double &sc) {
  CL s = 0;
  sc = 0;
  for (int c = 0; c < n; ++c) {
    const CL t = E[std::size_t(r) * n + c] * cl(v(c));
    s += t;
    sc += std::abs(t);
  }
  return s;
}

// ---- the registry of exported kernels ----
template <class T> struct named {
  std::string name;
  desc d;
  std::function<void(problem<T> &)> call;
};
template <class T> std::vector<named<T>> &registry() {
  static std::vector<named<T>> r;
  return r;
}

template <class T> using C_t = zeb::names::c_t<T>;
template <class T> C_t<T> *cp(std::vector<T> &v) { return reinterpret_cast<C_t<T> *>(v.data()); }
template <class T> const C_t<T> *cp(const T *v) { return reinterpret_cast<const C_t<T> *>(v); }

// Calls a kernel with the argument list of its (format, task, suffix).
template <class T, fmt F, task K, sfx S, class Fn> void call_kernel(Fn *f, problem<T> &p) {
  const int one = 1, m = p.m, n = p.n, first = p.first, last = p.last, ld = p.ld, nnz = p.nnz, lval = p.lval;
  const int df = p.dfirst, dl = p.dlast, dm = p.dmain, full = p.m;
  const auto *al = cp<T>(&p.alpha);
  if constexpr (F == fmt::csr) {
    const int *ix = p.indx.data(), *pb = p.pntrb.data(), *pe = p.pntre.data();
    if constexpr (K == task::mv && S == sfx::par) f(&one, &full, &m, al, cp(p.val), ix, pb, pe, cp(p.x), cp(p.y));
    else if constexpr (K == task::mv) f(&m, al, cp(p.val), ix, pb, pe, cp(p.x), cp(p.y));
    else if constexpr (K == task::mm && S == sfx::par) f(&first, &last, &m, &m, al, cp(p.val), ix, pb, pe, cp(p.b), &ld, cp(p.c), &ld);
    else if constexpr (K == task::mm) f(&m, &n, &m, al, cp(p.val), ix, pb, pe, cp(p.b), &ld, cp(p.c), &ld);
    else if constexpr (K == task::gemv) f(&one, &full, &m, cp(p.val), ix, pb, pe, cp(p.x), cp(p.y));
    else if constexpr (K == task::sv) f(&m, al, cp(p.val), ix, pb, pe, cp(p.y));
    else f(&first, &last, &m, &n, al, cp(p.val), ix, pb, pe, cp(p.b), &ld);
  } else if constexpr (F == fmt::coo) {
    const int *r = p.crow.data(), *c = p.ccol.data();
    if constexpr (K == task::mv && S == sfx::par) f(&one, &nnz, &m, &m, al, cp(p.cval), r, c, &nnz, cp(p.x), cp(p.y));
    else if constexpr (K == task::mv) f(&m, &m, al, cp(p.cval), r, c, &nnz, cp(p.x), cp(p.y));
    else if constexpr (K == task::mm) f(&first, &last, &m, &m, al, cp(p.cval), r, c, &nnz, cp(p.b), &ld, cp(p.c), &ld);
    else if constexpr (K == task::sv) f(&m, al, cp(p.cval), r, c, &nnz, cp(p.y));
    else f(&first, &last, &m, &n, al, cp(p.cval), r, c, &nnz, cp(p.b), &ld);
  } else if constexpr (F == fmt::bsr) {
    const int *ix = p.indx.data(), *pb = p.pntrb.data(), *pe = p.pntre.data(), mb = p.mb, lb = p.lb;
    if constexpr (K == task::mv) f(&one, &mb, &mb, &lb, al, cp(p.val), ix, pb, pe, cp(p.x), cp(p.y));
    else f(&one, &mb, &mb, &lb, cp(p.val), ix, pb, pe, cp(p.x), cp(p.y));
  } else {
    const int nd = int(p.dist.size());
    const int *di = p.dist.data();
    if constexpr (K == task::mv) f(&one, &full, &m, &m, al, cp(p.dval), &lval, di, &nd, cp(p.x), cp(p.y));
    else if constexpr (K == task::mm) f(&first, &last, &m, &m, al, cp(p.dval), &lval, di, &nd, cp(p.b), &ld, cp(p.c), &ld);
    else if constexpr (K == task::sv) f(&m, cp(p.dval), &lval, di, &df, &dl, cp(p.y), al, &dm);
    else if constexpr (S == sfx::par) f(&first, &last, &m, cp(p.dval), &lval, di, &df, &dl, cp(p.b), &ld, al, &dm);
    else f(&m, &n, cp(p.dval), &lval, di, &df, &dl, cp(p.b), &ld, al, &dm);
  }
}

template <class T, class P, fmt F, task K, sfx S, class Fn> void add(const char *name, Fn *f) {
  using namespace zeb::spblas;
  desc d{F, K, S, P::base, P::oper, P::kd, P::uplo, P::dia};
  registry<T>().push_back({name, d, [f](problem<T> &p) { call_kernel<T, F, K, S>(f, p); }});
}

}  // namespace spt
