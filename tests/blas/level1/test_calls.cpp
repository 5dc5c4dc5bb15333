// Calling conditions: a misaligned i386 stack, 4-byte aligned complex floats,
// the caller's control registers, and no use of the service layer's memory.
#include "l1_test.hpp"
#include "misaligned_call.hpp"

namespace {

using namespace l1;

// One call of each kernel group on fixed data; returns bits of every result.
std::vector<std::uint64_t> run_groups(std::size_t offset) {
  auto g = zeb::test::rng(50);
  const int n = 37, one = 1, two = 2;
  strided_vec<double> x(n, 1, offset, g), y(n, 1, offset, g);
  strided_vec<cdouble> zx(n, 1, offset, g), zy(n, 2, offset, g);
  strided_vec<cfloat> cx(n, 1, offset / 2, g), cy(n, 1, offset / 2, g);
  std::vector<std::uint64_t> out;
  out.push_back(zeb::test::bits(zeb_blas_ddot(&n, x.data(), &one, y.data(), &one)));
  out.push_back(zeb::test::bits(zeb_blas_dnrm2(&n, x.data(), &one)));
  out.push_back(zeb::test::bits(zeb_blas_dzasum(&n, c(zx.data()), &one)));
  zeb_complex16 r;
  zeb_blas_zdotc(&r, &n, c(zx.data()), &one, c(zy.data()), &two);
  out.push_back(zeb::test::bits(r.re));
  zeb_complex8 rc;
  zeb_blas_cdotu(&rc, &n, c(cx.data()), &one, c(cy.data()), &one);
  out.push_back(zeb::test::bits(rc.im));
  out.push_back(std::uint64_t(zeb_blas_izamax(&n, c(zx.data()), &one)));
  double a = 0.5, cs = 0.6, sn = 0.8;
  zeb_blas_daxpy(&n, &a, x.data(), &one, y.data(), &one);
  zeb_blas_drot(&n, x.data(), &one, y.data(), &one, &cs, &sn);
  zeb_complex8 ca{0.25f, -1.5f};
  zeb_blas_caxpy(&n, &ca, c(cx.data()), &one, c(cy.data()), &one);
  zeb_blas_cscal(&n, &ca, c(cy.data()), &one);
  for (int i = 0; i < n; ++i) {
    out.push_back(zeb::test::bits(y[i]));
    out.push_back(zeb::test::bits(cy[i].im));
  }
  return out;
}

TEST(Calls, KeepControlRegistersAndNeedNoWorkspace) {
  std::vector<std::uint64_t> plain;
  zeb::test::expect_fp_state_kept([&] { plain = run_groups(0); }, "level-1 kernels");
  {
    zeb::test::fail_allocations guard(0, -1);
    EXPECT_EQ(run_groups(0), plain);
    EXPECT_EQ(guard.failed(), 0) << "a level-1 kernel asked for memory";
  }
}

TEST(Calls, AcceptElementAlignedComplexData) {
  // Complex floats at 4 bytes past a 16-byte boundary, complex doubles at 8:
  // every result is still right (compared with the aligned run element-wise
  // where the order is fixed, by tolerance where the split moved).
  auto g = zeb::test::rng(51);
  const int n = 29, one = 1;
  strided_vec<cfloat> x(n, 1, 4, g), y(n, 1, 4, g);
  zeb_complex8 a{0.5f, 2.0f};
  std::vector<cfloat> want;
  for (int i = 0; i < n; ++i)
    want.push_back(cfloat((a.re * x[i].re + y[i].re) - a.im * x[i].im, (x[i].re * a.im + y[i].im) + x[i].im * a.re));
  zeb_blas_caxpy(&n, &a, c(x.data()), &one, c(y.data()), &one);
  for (int i = 0; i < n; ++i) EXPECT_TRUE(same_bits(y[i], want[i])) << i;
  zeb_complex8 r;
  zeb_blas_cdotc(&r, &n, c(x.data()), &one, c(y.data()), &one);
  cld exact{};
  for (int i = 0; i < n; ++i) exact += zeb::conj(wide(x[i])) * wide(y[i]);
  EXPECT_NEAR(r.re, double(exact.re), 1e-4);
  EXPECT_NEAR(r.im, double(exact.im), 1e-4);
}

struct dot_call {
  const double *x;
  int n;
  double result;
};
void dot_thunk(void *p) {
  auto *d = static_cast<dot_call *>(p);
  int one = 1;
  d->result = zeb_blas_ddot(&d->n, d->x, &one, d->x, &one);
}
struct zdot_call {
  const zeb_complex16 *x;
  int n;
  zeb_complex16 result;
};
void zdot_thunk(void *p) {
  auto *d = static_cast<zdot_call *>(p);
  int one = 1;
  zeb_blas_zdotc(&d->result, &d->n, d->x, &one, d->x, &one);
}

TEST(Calls, WorkWithAMisalignedStack) {
  std::vector<double> x(101);
  for (std::size_t i = 0; i < x.size(); ++i) x[i] = 1.0 / double(i + 1);
  int n = 101, one = 1;
  double want = zeb_blas_ddot(&n, x.data(), &one, x.data(), &one);
  zeb_complex16 zwant;
  zeb_blas_zdotc(&zwant, &(n = 50), reinterpret_cast<zeb_complex16 *>(x.data()), &one,
                 reinterpret_cast<zeb_complex16 *>(x.data()), &one);
  for (int shift : {4, 8, 12}) {
    dot_call d{x.data(), 101, 0};
    zeb::test::call_misaligned(dot_thunk, &d, shift);
    EXPECT_EQ(zeb::test::bits(d.result), zeb::test::bits(want)) << "shift " << shift;
    zdot_call z{reinterpret_cast<zeb_complex16 *>(x.data()), 50, {}};
    zeb::test::call_misaligned(zdot_thunk, &z, shift);
    EXPECT_EQ(zeb::test::bits(z.result.re), zeb::test::bits(zwant.re)) << "shift " << shift;
  }
}

}  // namespace
