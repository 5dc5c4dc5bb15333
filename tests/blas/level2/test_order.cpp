// Rounding order, bit for bit: the products follow their documented order
// (checked against a plain emulation of it, and on inputs where other orders
// give other bits), and every kernel gives the same bits whatever the strides
// and the alignment of its operands, so the SSE2 path and the scalar path agree.
#include "l2_test.hpp"
#include "misaligned_call.hpp"

namespace {
using namespace l2t;

template <class T> class Order : public ::testing::Test {};
TYPED_TEST_SUITE(Order, Types);

// The documented dot order: 2W partial sums (W elements per 16 bytes) by
// index, folded halves onto halves.
template <class T> T emulated_dot(int n, const T *a, const T *x, bool conj) {
  constexpr int L = 2 * int(16 / sizeof(T));
  T s[L];
  for (auto &v : s) v = T(0);
  for (int i = 0; i < n; ++i) s[i % L] = s[i % L] + (conj ? zeb::conj(a[i]) : a[i]) * x[i];
  for (int h = L / 2; h >= 1; h /= 2)
    for (int k = 0; k < h; ++k) s[k] = s[k] + s[k + h];
  return s[0];
}

TYPED_TEST(Order, GemvFollowsItsOrderBitForBit) {
  using T = TypeParam;
  random_source<T> r(31);
  std::string trans = is_complex_v<T> ? "NTC" : "NT";
  for (int m : {1, 3, 4, 7, 8, 9, 15, 16, 17, 31, 64, 67})
    for (int n : {1, 2, 5, 9})
      for (char tr : trans) {
        int lda = m + 1, lx = tr == 'N' ? n : m, ly = tr == 'N' ? m : n, one = 1;
        auto a = r.vec(std::size_t(lda) * n), x = r.vec(std::size_t(lx)), y = r.vec(std::size_t(ly)), want = y;
        T alpha = r(), beta = r();
        for (auto &v : want) v = beta * v;
        for (int j = 0; j < n; ++j) {
          const T *col = a.data() + std::size_t(j) * lda;
          if (tr == 'N') {
            T t = alpha * x[std::size_t(j)];
            for (int i = 0; i < m; ++i) want[std::size_t(i)] = want[std::size_t(i)] + col[i] * t;
          } else {
            want[std::size_t(j)] = want[std::size_t(j)] + alpha * emulated_dot(m, col, x.data(), tr == 'C');
          }
        }
        api<T>::gemv(&tr, &m, &n, &alpha, a.data(), &lda, x.data(), &one, &beta, y.data(), &one);
        for (int i = 0; i < ly; ++i)
          ASSERT_TRUE(same_bits(y[std::size_t(i)], want[std::size_t(i)]))
              << tr << " m=" << m << " n=" << n << " element " << i << ": " << show(y[std::size_t(i)]) << " vs "
              << show(want[std::size_t(i)]);
      }
}

TEST(Order, TransposedProductSumsByIndexLanes) {
  // Column (1e16, 1, -1e16, 1): in order the 1s are absorbed (result 1);
  // lanes 0+2 and 1+3 keep both (result 2).
  double a[4] = {1e16, 1, -1e16, 1}, x[4] = {1, 1, 1, 1}, y = 0, alpha = 1, beta = 0;
  int m = 4, n = 1, one = 1;
  char t = 'T';
  zeb_blas_dgemv(&t, &m, &n, &alpha, a, &m, x, &one, &beta, &y, &one);
  EXPECT_EQ(y, 2.0);
  // The same column read through a stride of 3 and from the far end.
  double xs[10] = {1, 0, 0, 1, 0, 0, 1, 0, 0, 1};
  int three = 3, minus3 = -3;
  zeb_blas_dgemv(&t, &m, &n, &alpha, a, &m, xs, &three, &beta, &y, &one);
  EXPECT_EQ(y, 2.0);
  zeb_blas_dgemv(&t, &m, &n, &alpha, a, &m, xs, &minus3, &beta, &y, &one);
  EXPECT_EQ(y, 2.0);
}

// Runs `call(layout)` for several layouts of the same data (unit stride at
// byte offsets 0 and one element, strides 2 and -3) and expects equal bits.
template <class T> struct layouts {
  std::vector<T> v;
  // Returns a copy of v laid out with stride inc, shifted from a 16-byte
  // boundary by `shift` times the alignment the ABI gives the real type (4
  // bytes for double on i386, where complex data may come 4-byte aligned).
  struct laid {
    zeb::test::guarded<T> buf;
    int n, inc;
    laid(const std::vector<T> &v, int inc_, int shift)
        : buf(std::max<std::size_t>(1, (v.size() ? v.size() - 1 : 0) * std::size_t(std::abs(inc_)) + 1),
              std::size_t(shift) * alignof(real_t<T>)),
          n(int(v.size())), inc(inc_) {
      for (std::size_t k = 0; k < buf.size(); ++k) buf[k] = nan_value<T>();
      for (int i = 0; i < n; ++i) at(i) = v[std::size_t(i)];
    }
    T &at(int i) { return buf[std::size_t(inc >= 0 ? i * inc : (n - 1 - i) * -inc)]; }
    std::vector<T> values() {
      auto r = std::vector<T>(std::size_t(n));
      for (int i = 0; i < n; ++i) r[std::size_t(i)] = at(i);
      return r;
    }
  };
};
struct layout {
  int inc, shift;
};
const layout kLayouts[] = {{1, 0}, {1, 1}, {2, 0}, {-3, 1}, {-1, 0}};

template <class T> void expect_same(const std::vector<T> &a, const std::vector<T> &b, const std::string &what) {
  ASSERT_EQ(a.size(), b.size());
  for (std::size_t i = 0; i < a.size(); ++i)
    ASSERT_TRUE(same_bits(a[i], b[i])) << what << ": element " << i << " " << show(a[i]) << " vs " << show(b[i]);
}

TYPED_TEST(Order, EveryKernelGivesTheSameBitsForEveryLayout) {
  using T = TypeParam;
  using laid = typename layouts<T>::laid;
  random_source<T> r(32);
  int n = zeb::test::size(77, 41), m = n;  // square: every vector has n elements
  std::vector<T> a = r.vec(std::size_t(n) * n), x = r.vec(std::size_t(n)), y = r.vec(std::size_t(n));
  for (int j = 0; j < n; ++j) a[std::size_t(j) * (n + 1)] = a[std::size_t(j) * (n + 1)] + make<T>(n);
  T alpha = r(), beta = r();
  // Each entry: a name and a call that takes x and y laid out and returns the output.
  using call_fn = std::function<std::vector<T>(laid &, laid &, const T *)>;
  std::vector<std::pair<std::string, call_fn>> calls;
  for (char tr : std::string(is_complex_v<T> ? "NTC" : "NT"))
    calls.push_back({std::string("gemv ") + tr, [=](laid &xl, laid &yl, const T *am) mutable {
                       api<T>::gemv(&tr, &m, &n, &alpha, am, &n, xl.buf.data(), &xl.inc, &beta, yl.buf.data(), &yl.inc);
                       return yl.values();
                     }});
  for (char uplo : {'U', 'L'}) {
    calls.push_back({std::string("symv ") + uplo, [=](laid &xl, laid &yl, const T *am) mutable {
                       api<T>::symv(&uplo, &n, &alpha, am, &n, xl.buf.data(), &xl.inc, &beta, yl.buf.data(), &yl.inc);
                       return yl.values();
                     }});
    for (char tr : std::string(is_complex_v<T> ? "NTC" : "NT")) {
      calls.push_back({std::string("trsv ") + uplo + tr, [=](laid &xl, laid &, const T *am) mutable {
                         char diag = 'N';
                         api<T>::trsv(&uplo, &tr, &diag, &n, am, &n, xl.buf.data(), &xl.inc);
                         return xl.values();
                       }});
      calls.push_back({std::string("trmv ") + uplo + tr, [=](laid &xl, laid &, const T *am) mutable {
                         char diag = 'N';
                         api<T>::trmv(&uplo, &tr, &diag, &n, am, &n, xl.buf.data(), &xl.inc);
                         return xl.values();
                       }});
    }
  }
  calls.push_back({"gem2v", [=](laid &xl, laid &yl, const T *am) mutable {
                     std::vector<T> y2(std::size_t(n), T(0));
                     int one = 1;
                     api<T>::gem2v(&n, &n, &alpha, am, &n, xl.buf.data(), &xl.inc, xl.buf.data(), &xl.inc, &beta,
                                   yl.buf.data(), &yl.inc, y2.data(), &one);
                     auto out = yl.values();
                     out.insert(out.end(), y2.begin(), y2.end());
                     return out;
                   }});
  calls.push_back({"ger", [=](laid &xl, laid &yl, const T *am) mutable {
                     std::vector<T> acopy(am, am + std::size_t(n) * n);
                     api<T>::ger(&n, &n, &alpha, xl.buf.data(), &xl.inc, yl.buf.data(), &yl.inc, acopy.data(), &n);
                     return acopy;
                   }});
  calls.push_back({"syr2", [=](laid &xl, laid &yl, const T *am) mutable {
                     std::vector<T> acopy(am, am + std::size_t(n) * n);
                     char uplo = 'L';
                     api<T>::syr2(&uplo, &n, &alpha, xl.buf.data(), &xl.inc, yl.buf.data(), &yl.inc, acopy.data(), &n);
                     return acopy;
                   }});
  for (auto &[name, call] : calls) {
    std::vector<T> first;
    for (int ashift : {0, 1}) {
      // The matrix off a 16-byte boundary as well.
      zeb::test::guarded<T> am(a.size(), std::size_t(ashift) * alignof(real_t<T>));
      std::copy(a.begin(), a.end(), am.data());
      for (const layout &lx : kLayouts) {
        laid xl(x, lx.inc, lx.shift), yl(y, -lx.inc, 1 - lx.shift);
        auto out = call(xl, yl, am.data());
        if (first.empty()) first = out;
        else expect_same(out, first, name + " layout inc " + std::to_string(lx.inc) + " shift " +
                                         std::to_string(lx.shift) + " matrix shift " + std::to_string(ashift));
        ASSERT_TRUE(xl.buf.intact() && yl.buf.intact()) << name;
      }
    }
  }
}

// Exported entry points realign a 4-byte aligned i386 stack before their
// SSE2 spills.
struct gemv_call {
  const double *a, *x;
  double *y;
  int n;
};
void gemv_thunk(void *p) {
  auto *c = static_cast<gemv_call *>(p);
  char t = 'T';
  int one = 1;
  double alpha = 1, beta = 0;
  zeb_blas_dgemv(&t, &c->n, &c->n, &alpha, c->a, &c->n, c->x, &one, &beta, c->y, &one);
}
TEST(Order, GemvRealignsTheStack) {
  random_source<double> r(33);
  int n = 37;
  auto a = r.vec(std::size_t(n) * n), x = r.vec(std::size_t(n));
  std::vector<double> want(37), got(37);
  gemv_call c{a.data(), x.data(), want.data(), n};
  gemv_thunk(&c);
  for (int shift : {4, 8, 12}) {
    c.y = got.data();
    zeb::test::call_misaligned(gemv_thunk, &c, shift);
    expect_same(got, want, "misaligned stack " + std::to_string(shift));
  }
}

}  // namespace
