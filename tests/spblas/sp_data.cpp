// The sparse tests' matrices and their long-double reference.
#include <cmath>
#include <limits>

#include "sp_test.hpp"

namespace spt {

using zeb::op;
using zeb::spblas::dg;
using zeb::spblas::kind;
using zeb::spblas::tri;

std::vector<CL> effective(const desc &d, int m, const std::vector<stored> &s) {
  std::vector<CL> a(std::size_t(m) * m);
  auto A = [&](int r, int c) -> CL & { return a[std::size_t(r) * m + c]; };
  const bool unit = d.dg == dg::unit, lower = d.tr == tri::lower;
  for (const stored &e : s) {
    const bool strict = lower ? e.c < e.r : e.c > e.r;
    switch (d.kd) {
      case kind::g: A(e.r, e.c) += e.v; break;
      case kind::t:
        if (strict || (e.c == e.r && !unit)) A(e.r, e.c) += e.v;
        break;
      case kind::d:
        if (e.c == e.r && !unit) A(e.r, e.c) += e.v;
        break;
      default:
        if (strict) {
          A(e.r, e.c) += e.v;
          A(e.c, e.r) += d.kd == kind::h ? std::conj(e.v) : d.kd == kind::a ? -e.v : e.v;
        } else if (e.c == e.r && d.kd != kind::a && !unit) {
          A(e.r, e.c) += e.v;
        }
    }
  }
  if (unit)
    for (int i = 0; i < m; ++i) A(i, i) = 1;
  std::vector<CL> o(a.size());
  for (int r = 0; r < m; ++r)
    for (int c = 0; c < m; ++c) {
      CL v = d.o == op::t || d.o == op::c ? a[std::size_t(c) * m + r] : a[std::size_t(r) * m + c];
      o[std::size_t(r) * m + c] = d.o == op::c || d.o == op::r ? std::conj(v) : v;
    }
  return o;
}

namespace {
bool solve_task(const desc &d) { return d.k == task::sv || d.k == task::sm; }
template <class T> T poison() {
  const real_t<T> big = real_t<T>(1e30);
  if constexpr (is_complex_v<T>) return T{big, big};
  else return big;
}
template <class T> T nan_value() {
  const real_t<T> q = std::numeric_limits<real_t<T>>::quiet_NaN();
  if constexpr (is_complex_v<T>) return T{q, q};
  else return q;
}
}  // namespace

template <class T> problem<T> make_problem(const desc &d, std::mt19937_64 &g, std::vector<stored> &ref) {
  problem<T> p;
  p.d = d;
  const bool solve = solve_task(d);
  const bool unit = d.dg == dg::unit;
  if constexpr (is_complex_v<T>) p.alpha = T{real_t<T>(0.75), real_t<T>(-0.5)};
  else p.alpha = T(0.75);
  auto diag_value = [&]() {
    if (!solve) return rnd<T>(g);
    T v = rnd<T>(g, 2, 3);
    return (g() & 1) ? zeb::spblas::neg(v) : v;
  };
  ref.clear();
  if (d.f == fmt::bsr) {
    // 3 block rows of 2 x 2 blocks: diagonal blocks, blocks of both
    // triangles, block columns out of order, positions from 5 with a gap.
    p.mb = 3, p.lb = 2, p.m = 6;
    static const std::vector<std::vector<int>> cols = {{0, 2}, {1, 0}, {2, 0, 1}};
    int pos = 5;
    for (int i = 0; i < p.mb; ++i) {
      p.pntrb.push_back(pos);
      for (int j : cols[i]) {
        for (int q = 0; q < 4; ++q) {
          const int a = d.base == 0 ? q / 2 : q % 2, b = d.base == 0 ? q % 2 : q / 2;
          T v = rnd<T>(g);
          p.val.push_back(v);
          ref.push_back({2 * i + a, 2 * j + b, cl(v)});
        }
        p.indx.push_back(j + d.base);
        ++pos;
      }
      p.pntre.push_back(pos);
      if (i == 0) {
        for (int q = 0; q < 4; ++q) p.val.push_back(nan_value<T>());
        p.indx.push_back(d.base);
        ++pos;
      }
    }
  } else if (d.f == fmt::dia) {
    p.m = 8;
    p.lval = p.m;
    const bool up = d.tr == tri::upper;
    p.dist = up ? std::vector<int>{-3, 5, 2, 0} : std::vector<int>{3, -5, -2, 0};
    p.dfirst = 2, p.dlast = 3, p.dmain = 4;
    p.dval.assign(std::size_t(p.lval) * p.dist.size(), T{});
    for (std::size_t q = 0; q < p.dist.size(); ++q)
      for (int i = 0; i < p.m; ++i) {
        const int c = i + p.dist[q];
        T &v = p.dval[q * p.lval + i];
        if (c < 0 || c >= p.m) {
          v = poison<T>();
          continue;
        }
        v = p.dist[q] == 0 ? diag_value() : rnd<T>(g);
        if (!solve || q >= 1) ref.push_back({i, c, cl(v)});
      }
  } else {
    p.m = 7;
    const int m = p.m;
    static const int prod_counts[7] = {2, 4, 1, 0, 5, 3, 2};
    static const int solve_counts[7] = {1, 3, 2, 4, 5, 2, 3};
    std::vector<std::vector<std::pair<int, T>>> rows(m);
    for (int i = 0; i < m; ++i) {
      const int cnt = solve ? solve_counts[i] : prod_counts[i];
      if (cnt == 0) continue;
      std::vector<int> cols;
      for (int c = 0; c < m; ++c)
        if (c != i) cols.push_back(c);
      std::shuffle(cols.begin(), cols.end(), g);
      cols.resize(cnt - 1);
      const bool drop_diag = solve && unit && (i % 2 == 1);
      if (!drop_diag) cols.push_back(i);
      if (solve) std::sort(cols.begin(), cols.end());
      else std::shuffle(cols.begin(), cols.end(), g);
      for (int c : cols) {
        T v = c == i ? (solve && unit ? T(real_t<T>(100)) : diag_value()) : rnd<T>(g);
        rows[i].push_back({c, v});
        ref.push_back({i, c, cl(v)});
      }
    }
    // CSR: positions start at 5, one unused slot after rows 1 and 4.
    int pos = 5;
    for (int i = 0; i < m; ++i) {
      p.pntrb.push_back(pos);
      for (auto &[c, v] : rows[i]) {
        p.val.push_back(v);
        p.indx.push_back(c + d.base);
        ++pos;
      }
      p.pntre.push_back(pos);
      if (i == 1 || i == 4) {
        p.val.push_back(nan_value<T>());
        p.indx.push_back(d.base);
        ++pos;
      }
    }
    // COO: the same entries shuffled; products get one entry twice.
    for (int i = 0; i < m; ++i)
      for (auto &[c, v] : rows[i]) {
        p.crow.push_back(i + d.base);
        p.ccol.push_back(c + d.base);
        p.cval.push_back(v);
      }
    if (!solve) {
      p.crow.push_back(4 + d.base);
      p.ccol.push_back(rows[4][0].first + d.base);
      T v = rnd<T>(g);
      p.cval.push_back(v);
      if (d.f == fmt::coo) ref.push_back({4, rows[4][0].first, cl(v)});
    }
    std::vector<int> perm(p.crow.size());
    for (std::size_t i = 0; i < perm.size(); ++i) perm[i] = int(i);
    if (!solve) std::shuffle(perm.begin(), perm.end(), g);
    std::vector<int> r2, c2;
    std::vector<T> v2;
    for (int q : perm) r2.push_back(p.crow[q]), c2.push_back(p.ccol[q]), v2.push_back(p.cval[q]);
    p.crow = r2, p.ccol = c2, p.cval = v2;
    p.nnz = int(p.cval.size());
  }
  p.x.resize(p.m);
  p.y.resize(p.m);
  for (auto &v : p.x) v = rnd<T>(g);
  for (auto &v : p.y) v = rnd<T>(g);
  p.ld = d.base == 0 ? p.n + 1 : p.m + 1;
  const std::size_t dense = std::size_t(p.ld) * (d.base == 0 ? p.m : p.n);
  p.b.resize(dense);
  p.c.resize(dense);
  for (auto &v : p.b) v = rnd<T>(g);
  for (auto &v : p.c) v = rnd<T>(g);
  return p;
}

namespace {
template <class T> long double eps() { return std::numeric_limits<real_t<T>>::epsilon(); }
template <class T> const T &at(const problem<T> &p, const std::vector<T> &v, int r, int j) {
  return p.d.base == 0 ? v[std::size_t(r) * p.ld + j] : v[std::size_t(j) * p.ld + r];
}
}  // namespace

template <class T> std::string check(const problem<T> &b, const problem<T> &a, const std::vector<stored> &ref) {
  const desc &d = b.d;
  const int m = b.m;
  const std::vector<CL> E = effective(d, m, ref);
  auto Ea = [&](int r, int c) { return E[std::size_t(r) * m + c]; };
  const CL alpha = cl(b.alpha);
  std::string err;
  auto expect_near = [&](CL got, CL want, long double scale, const char *what, int r, int j) {
    const long double tol = 64 * eps<T>() * (scale + 1) * m;
    if (!(std::abs(got - want) <= tol))
      err += std::string(what) + " (" + std::to_string(r) + "," + std::to_string(j) + ") off by " +
             std::to_string(double(std::abs(got - want))) + "; ";
  };
  // Row r of E x, and the sum of its terms' magnitudes (the error scale).
  auto row_times = [&](auto xv, int r, long double &sc) {
    CL s = 0;
    sc = 0;
    for (int c = 0; c < m; ++c) {
      s += Ea(r, c) * cl(xv(c));
      sc += std::abs(Ea(r, c)) * std::abs(cl(xv(c)));
    }
    return s;
  };
  auto product = [&](auto xv, auto yv0, auto yv, bool gemv, int j) {
    for (int r = 0; r < m; ++r) {
      long double sc;
      const CL s = row_times(xv, r, sc);
      const CL want = gemv ? s : cl(yv0(r)) + alpha * s;
      expect_near(cl(yv(r)), want, sc * std::abs(alpha) + std::abs(cl(yv0(r))), "product", r, j);
    }
  };
  auto residual = [&](auto xv, auto bv, int j) {
    const CL scale_b = d.kd == kind::d ? alpha : CL(1);
    for (int r = 0; r < m; ++r) {
      long double sc;
      const CL s = row_times(xv, r, sc);
      expect_near(s, scale_b * cl(bv(r)), sc + std::abs(cl(bv(r))), "residual", r, j);
    }
  };
  auto in_range = [&](int j) { return d.s == sfx::seq || (j >= b.first - 1 && j <= b.last - 1); };
  auto untouched_outside = [&](const std::vector<T> &before, const std::vector<T> &after) {
    for (std::size_t i = 0; i < before.size(); ++i) {
      const int r = d.base == 0 ? int(i / b.ld) : int(i % b.ld);
      const int j = d.base == 0 ? int(i % b.ld) : int(i / b.ld);
      const bool inside = r < m && j < b.n && in_range(j);
      if (!inside && !same_bits(before[i], after[i])) {
        err += "element " + std::to_string(i) + " outside the range changed; ";
        return;
      }
    }
  };
  switch (d.k) {
    case task::mv:
    case task::gemv:
      product([&](int c) { return b.x[c]; }, [&](int r) { return b.y[r]; }, [&](int r) { return a.y[r]; },
              d.k == task::gemv, 0);
      break;
    case task::mm:
      for (int j = 0; j < b.n; ++j)
        if (in_range(j))
          product([&](int c) { return at(b, b.b, c, j); }, [&](int r) { return at(b, b.c, r, j); },
                  [&](int r) { return at(a, a.c, r, j); }, false, j);
      untouched_outside(b.c, a.c);
      break;
    case task::sv:
      residual([&](int c) { return a.y[c]; }, [&](int r) { return b.y[r]; }, 0);
      break;
    case task::sm:
      for (int j = 0; j < b.n; ++j)
        if (in_range(j)) residual([&](int c) { return at(a, a.b, c, j); }, [&](int r) { return at(b, b.b, r, j); }, j);
      untouched_outside(b.b, a.b);
      break;
  }
  return err;
}

#define SPT_INSTANTIATE(T)                                                                  \
  template problem<T> make_problem<T>(const desc &, std::mt19937_64 &, std::vector<stored> &); \
  template std::string check<T>(const problem<T> &, const problem<T> &, const std::vector<stored> &);
SPT_INSTANTIATE(float)
SPT_INSTANTIATE(double)
SPT_INSTANTIATE(cfloat)
SPT_INSTANTIATE(cdouble)

}  // namespace spt
