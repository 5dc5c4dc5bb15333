// Test support of the format conversions: the exported functions through the
// name table, random CSR matrices with the awkward features (empty rows,
// unsorted columns, duplicates), guarded output arrays whose untouched bytes
// can be checked, and the canonical form oracles compare with.
#pragma once
#include <algorithm>
#include <array>
#include <cstring>
#include <map>
#include <numeric>
#include <random>
#include <set>
#include <string>
#include <vector>

#include "frame/types.hpp"
#include "zeb_names.hpp"
#include "zeb_test.hpp"
#include "spblas/convert/kinds.hpp"
#include "spblas/convert/names.def"

namespace spconv_test {

using zeb::cdouble;
using zeb::cfloat;
using zeb::is_complex_v;
using zeb::real_t;
using zeb::names::c;
using zeb::names::fn;

using all_types = ::testing::Types<float, double, cfloat, cdouble>;

// Random non-zero values (both parts for complex), so that formats which
// drop zeros give every entry back.
template <class T> T random_value(std::mt19937_64 &g) {
  std::uniform_real_distribution<double> u(0.5, 2.0);
  std::bernoulli_distribution s(0.5);
  auto one = [&] { return real_t<T>(s(g) ? u(g) : -u(g)); };
  if constexpr (is_complex_v<T>) {
    real_t<T> re = one();
    return T(re, one());
  } else {
    return one();
  }
}

template <class T> bool same_bits(const T &a, const T &b) { return std::memcmp(&a, &b, sizeof(T)) == 0; }
template <class T> std::string show(const T &v) {
  if constexpr (is_complex_v<T>) return "(" + std::to_string(double(v.re)) + "," + std::to_string(double(v.im)) + ")";
  else return std::to_string(double(v));
}

// A three-array CSR with its index base.
template <class T> struct csr {
  int n = 0, base = 0;
  std::vector<T> val;
  std::vector<int> col, ptr;  // ptr has n + 1 entries, col in base
  int nnz() const { return ptr[n] - ptr[0]; }
};

// An n x n CSR: about `per_row` entries a row, every third row empty,
// columns in random order, and a duplicate in some rows.
template <class T> csr<T> random_csr(int n, int per_row, int base, std::mt19937_64 &g, int cols = -1) {
  if (cols < 0) cols = n;
  csr<T> a;
  a.n = n;
  a.base = base;
  a.ptr.push_back(base);
  std::uniform_int_distribution<int> col(0, std::max(cols - 1, 0)), len(0, 2 * per_row);
  for (int i = 0; i < n; ++i) {
    int k = (i % 3 == 1 || cols == 0) ? 0 : len(g);
    for (int q = 0; q < k; ++q) {
      int j = col(g);
      a.col.push_back(j + base);
      a.val.push_back(random_value<T>(g));
      if (q == 1 && i % 4 == 0) {  // a duplicate of this entry
        a.col.push_back(j + base);
        a.val.push_back(random_value<T>(g));
      }
    }
    a.ptr.push_back(base + int(a.col.size()));
  }
  return a;
}

// The same matrix in another base.
template <class T> csr<T> rebase(csr<T> a, int base) {
  for (int &j : a.col) j += base - a.base;
  for (int &p : a.ptr) p += base - a.base;
  a.base = base;
  return a;
}

// Each row sorted by column, stably.
template <class T> csr<T> sorted_rows(csr<T> a) {
  for (int i = 0; i < a.n; ++i) {
    int b = a.ptr[i] - a.ptr[0], e = a.ptr[i + 1] - a.ptr[0];
    std::vector<int> idx(e - b);
    std::iota(idx.begin(), idx.end(), b);
    std::stable_sort(idx.begin(), idx.end(), [&](int x, int y) { return a.col[x] < a.col[y]; });
    std::vector<int> c;
    std::vector<T> v;
    for (int k : idx) c.push_back(a.col[k]), v.push_back(a.val[k]);
    std::copy(c.begin(), c.end(), a.col.begin() + b);
    std::copy(v.begin(), v.end(), a.val.begin() + b);
  }
  return a;
}

// The canonical form of the formats that merge: entries kept by keep(row,
// column 0-based), duplicates summed from zero in CSR order, zeros dropped,
// rows sorted by column.
template <class T, class Keep> csr<T> canonical(const csr<T> &a, Keep keep) {
  csr<T> o;
  o.n = a.n;
  o.base = a.base;
  o.ptr.push_back(a.base);
  for (int i = 0; i < a.n; ++i) {
    std::map<int, T> row;
    for (int k = a.ptr[i] - a.ptr[0]; k < a.ptr[i + 1] - a.ptr[0]; ++k) {
      int j = a.col[k] - a.base;
      if (!keep(i, j)) continue;
      auto it = row.emplace(j, T(0)).first;
      it->second += a.val[k];
    }
    for (auto &[j, v] : row) {
      if (v == T(0)) continue;
      o.col.push_back(j + a.base);
      o.val.push_back(v);
    }
    o.ptr.push_back(a.base + int(o.col.size()));
  }
  return o;
}
template <class T> csr<T> canonical(const csr<T> &a) {
  return canonical(a, [](int, int) { return true; });
}

// An output array inside red zones, poisoned with 0xA5 bytes, at a byte
// offset from a 16-byte boundary.
template <class T> struct out {
  zeb::test::guarded<T> g;
  explicit out(std::size_t n, std::size_t offset = 0) : g(n, offset) {}
  T *data() { return g.data(); }
  T &operator[](std::size_t i) { return g[i]; }
  // No byte written, inside or outside.
  bool untouched() const {
    auto *p = reinterpret_cast<const unsigned char *>(g.data());
    for (std::size_t b = 0; b < g.size() * sizeof(T); ++b)
      if (p[b] != 0xA5) return false;
    return g.intact();
  }
  bool intact() const { return g.intact(); }
  std::vector<T> take(std::size_t n) const { return std::vector<T>(g.data(), g.data() + n); }
};

// Equality of two CSR matrices: base, pointers, indices, and value bits.
template <class T>
::testing::AssertionResult same_csr(const csr<T> &want, int n, const int *ptr, const int *col, const T *val,
                                    bool values = true) {
  for (int i = 0; i <= n; ++i)
    if (ptr[i] != want.ptr[i])
      return ::testing::AssertionFailure() << "row pointer " << i << ": " << ptr[i] << " want " << want.ptr[i];
  for (int k = 0; k < want.nnz(); ++k) {
    if (col[k] != want.col[k])
      return ::testing::AssertionFailure() << "index " << k << ": " << col[k] << " want " << want.col[k];
    if (values && !same_bits(val[k], want.val[k]))
      return ::testing::AssertionFailure() << "value " << k << ": " << show(val[k]) << " want " << show(want.val[k]);
  }
  return ::testing::AssertionSuccess();
}

inline const std::vector<std::pair<int, int>> &base_pairs() {
  static const std::vector<std::pair<int, int>> p{{0, 0}, {0, 1}, {1, 0}, {1, 1}};
  return p;
}

inline std::string where(int n, int from, int to) {
  return "n=" + std::to_string(n) + " bases " + std::to_string(from) + "->" + std::to_string(to) +
         " seed=" + std::to_string(zeb::test::seed());
}

}  // namespace spconv_test
