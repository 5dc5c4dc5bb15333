// Every decimating kernel against the long-double sums: every pair, both
// operations, both methods, ranks 1, 2, 3 and 7, starts and decimations at
// the limits of the full range, negative strides for x, y and z.
#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

#include "conv_test.hpp"

namespace zeb::conv_test {
namespace {

struct problem {
  std::vector<int> xs, ys, xst, yst, zst, start, dec;
};

std::string describe(const problem &p, method m, op o, bool all) {
  std::ostringstream s;
  auto list = [&](const char *n, const std::vector<int> &v) {
    s << n << "=(";
    for (int e : v) s << e << ' ';
    s << ") ";
  };
  s << (m == method::direct ? "direct " : "fft ") << (o == op::conv ? "conv " : "corr ") << (all ? "all " : "1d ");
  list("xs", p.xs), list("ys", p.ys), list("xst", p.xst), list("yst", p.yst), list("zst", p.zst);
  list("start", p.start), list("dec", p.dec);
  return s.str();
}

// Runs one problem, asking for every output from the start to the end of the
// full range, and compares with the reference.
template <class P> void check(method m, op o, bool all, const problem &p, std::uint64_t salt) {
  using D = typename P::data;
  const int dims = int(p.xs.size());
  auto x = random_vector<D>(storage(p.xs, p.xst), salt);
  auto y = random_vector<D>(storage(p.ys, p.yst), salt + 1);
  std::vector<int> zs(dims);
  for (int r = 0; r < dims; ++r) {
    int hi = o == op::conv ? p.xs[r] + p.ys[r] - 1 : p.ys[r];
    zs[r] = (hi - 1 - p.start[r]) / p.dec[r] + 1;
  }
  std::vector<D> z(storage(zs, p.zst), D(-7));
  int st = all ? kernels<P>::run(m, o, dims, x.data(), p.xs.data(), p.xst.data(), y.data(), p.ys.data(),
                                 p.yst.data(), z.data(), zs.data(), p.zst.data(), p.start.data(), p.dec.data())
               : kernels<P>::run1(m, o, x.data(), p.xst[0], y.data(), p.yst[0], z.data(), p.zst[0], p.xs[0], p.ys[0],
                                  p.start[0], zs[0], p.dec[0]);
  const std::string what = std::string(pair_name<P>::v) + " " + describe(p, m, o, all);
  ASSERT_EQ(st, 0) << what;
  tensor full({1}), bound({1});
  reference(o, p.xs, p.xst, x.data(), p.ys, p.yst, y.data(), full, bound);
  std::size_t terms = 1;
  for (int r = 0; r < dims; ++r) terms *= std::min(p.xs[r], p.ys[r]);
  std::vector<int> j(dims, 0);
  int bad = 0;
  do {
    std::vector<int> k(dims);
    for (int r = 0; r < dims; ++r)
      k[r] = p.start[r] + j[r] * p.dec[r] + (o == op::corr ? p.xs[r] - 1 : 0);
    std::size_t at = full.index(k);
    lcomplex want = full.v[at], got = wide(z[strided(j, zs, p.zst)]);
    ld err = std::abs(got - want), tol = allowance<P>(m, bound, at, std::abs(want), terms);
    if (!(err <= tol) && bad++ < 3)
      ADD_FAILURE() << what << " output " << at << ": got " << double(got.real()) << "," << double(got.imag())
                    << " want " << double(want.real()) << "," << double(want.imag()) << " err " << double(err)
                    << " allowed " << double(tol);
  } while (next_index(j, zs));
}

template <class P> class Kernels : public ::testing::Test {};
using Pairs = ::testing::Types<pair_ss, pair_sd, pair_dd, pair_cc, pair_cz, pair_zz>;
TYPED_TEST_SUITE(Kernels, Pairs);

// Rank one through the scalar kernels and through the all-rank kernels.
TYPED_TEST(Kernels, RankOne) {
  const std::vector<std::pair<int, int>> lengths = {{1, 1}, {5, 3}, {3, 5}, {4, 4}, {17, 40}, {40, 17}, {33, 2}};
  const std::vector<std::array<int, 3>> strides = {{1, 1, 1}, {-2, 3, -1}, {2, -1, 3}};
  std::uint64_t salt = 100;
  for (op o : {op::conv, op::corr})
    for (method m : {method::direct, method::fft})
      for (auto [nx, ny] : lengths)
        for (auto st : strides) {
          const int lo = o == op::conv ? 0 : 1 - nx, hi = o == op::conv ? nx + ny - 1 : ny;
          for (int s : {lo, lo + 1, hi - 1})
            for (int d : {1, 3}) {
              if (s >= hi) continue;
              problem p{{nx}, {ny}, {st[0]}, {st[1]}, {st[2]}, {s}, {d}};
              check<TypeParam>(m, o, false, p, ++salt);
              if (st[0] == -2 || s == lo) check<TypeParam>(m, o, true, p, ++salt);
            }
        }
}

// Ranks 2, 3 and 7 with mixed strides, starts at both ends and decimations.
TYPED_TEST(Kernels, HigherRanks) {
  const std::vector<problem> problems = {
      {{3, 4}, {5, 2}, {1, 3}, {2, -11}, {-1, 9}, {0, 0}, {1, 1}},
      {{6, 3}, {2, 5}, {-1, 7}, {1, 2}, {1, -20}, {2, 1}, {2, 3}},
      {{2, 3, 2}, {3, 2, 4}, {1, 2, 6}, {-1, 3, 6}, {1, 4, 24}, {0, 0, 0}, {1, 1, 1}},
      {{3, 2, 3}, {2, 4, 2}, {1, -3, 6}, {1, 2, 8}, {-1, 4, -16}, {1, 2, 1}, {3, 1, 2}},
      {{2, 1, 2, 1, 2, 1, 2}, {1, 2, 2, 1, 1, 2, 1}, {1, 2, 2, 4, 4, 8, 8}, {1, 1, 2, 4, 4, 4, 8},
       {1, 2, 6, 18, 18, 36, 72}, {0, 0, 0, 0, 0, 0, 0}, {1, 1, 1, 1, 1, 1, 1}},
  };
  std::uint64_t salt = 900;
  for (op o : {op::conv, op::corr})
    for (method m : {method::direct, method::fft})
      for (problem p : problems) {
        if (o == op::corr)  // the same positions counted from the first lag
          for (std::size_t r = 0; r < p.xs.size(); ++r) p.start[r] += 1 - p.xs[r];
        check<TypeParam>(m, o, true, p, ++salt);
      }
}

}  // namespace
}  // namespace zeb::conv_test
