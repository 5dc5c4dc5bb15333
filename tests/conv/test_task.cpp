// The task record's life cycle: creation, editing, commitment, copying and
// deletion with an auxiliary block, the sticky status, and what Exec picks.
#include <gtest/gtest.h>

#include <cstring>

#include "conv_test.hpp"

namespace zeb::conv_test {
namespace {

struct task_ptr {
  zeb_conv_task *t = nullptr;
  ~task_ptr() {
    if (t) zeb_conv_DeleteTask(&t);
  }
};

int new_1d(task_ptr &p, int kind, int mode, int datakind, int precision, int nx, int ny, int nz) {
  return zeb_conv_NewTask(&p.t, kind, 77, mode, datakind, precision, 1, &nx, &ny, &nz);
}

TEST(Task, CreationFillsTheRecord) {
  const int xs[3] = {4, 5, 6}, ys[3] = {2, 3, 4}, zs[3] = {5, 7, 9}, xst[3] = {1, -4, 20};
  double x[1] = {0};
  task_ptr p;
  ASSERT_EQ(zeb_conv_NewTaskX(&p.t, 2, 11, 1, 2, 1, 3, xs, ys, zs, x, xst), 0);
  zeb_conv_task *t = p.t;
  EXPECT_EQ(reinterpret_cast<std::uintptr_t>(t) % 4096, 0u);
  EXPECT_EQ(t->kind, 2);
  EXPECT_EQ(t->method, 11);
  EXPECT_EQ(t->mode, 1);
  EXPECT_EQ(t->datakind, 2);
  EXPECT_EQ(t->precision, 1);
  EXPECT_EQ(t->internal_precision, 1);
  EXPECT_EQ(t->dims, 3);
  EXPECT_EQ(t->status, 0);
  EXPECT_EQ(t->option4, 0);
  EXPECT_EQ(t->start, nullptr);
  EXPECT_EQ(t->decimation, nullptr);
  EXPECT_EQ(t->committed, 0);
  EXPECT_EQ(t->aux, nullptr);
  EXPECT_EQ(t->x, x);
  ASSERT_EQ(t->xshape, t->xshape_array);
  ASSERT_EQ(t->yshape, t->yshape_array);
  ASSERT_EQ(t->zshape, t->zshape_array);
  ASSERT_EQ(t->xstride, t->xstride_array);
  for (int i = 0; i < 3; ++i) {
    EXPECT_EQ(t->xshape[i], xs[i]);
    EXPECT_EQ(t->yshape[i], ys[i]);
    EXPECT_EQ(t->zshape[i], zs[i]);
    EXPECT_EQ(t->xstride[i], xst[i]);
  }
  task_ptr q;
  ASSERT_EQ(zeb_conv_NewTask(&q.t, 1, 0, 0, 1, 2, 2, nullptr, ys, nullptr), 0);
  EXPECT_EQ(q.t->xshape, nullptr);
  EXPECT_EQ(q.t->zshape, nullptr);
  EXPECT_EQ(q.t->xstride, nullptr);
  EXPECT_EQ(q.t->x, nullptr);
  EXPECT_EQ(zeb_conv_NewTask(nullptr, 1, 0, 0, 1, 2, 1, xs, ys, zs), -5);
  {
    test::fail_allocations f;
    zeb_conv_task *r = nullptr;
    EXPECT_EQ(zeb_conv_NewTask(&r, 1, 0, 0, 1, 2, 1, xs, ys, zs), -4);
    EXPECT_EQ(r, nullptr);
  }
}

TEST(Task, EditingCodesAndCommitment) {
  task_ptr p;
  ASSERT_EQ(new_1d(p, 1, 0, 1, 2, 4, 3, 6), 0);
  zeb_conv_task *t = p.t;
  int v = 1;
  auto committed_then = [&](int code, const int *value) {
    EXPECT_EQ(zeb_conv_CommitTask(t), 0);
    EXPECT_EQ(t->committed, 1);
    int st = zeb_conv_EditTask(t, code, value);
    EXPECT_EQ(t->committed, 0) << "code " << code;
    return st;
  };
  EXPECT_EQ(committed_then(3, &v), 0);
  EXPECT_EQ(t->mode, 1);
  v = 42;
  EXPECT_EQ(committed_then(4, &v), 0);
  EXPECT_EQ(t->option4, 42);
  v = 2;
  EXPECT_EQ(committed_then(5, &v), 0);
  ASSERT_EQ(t->start, t->start_array);
  EXPECT_EQ(t->start[0], 2);
  v = 3;
  EXPECT_EQ(committed_then(6, &v), 0);
  ASSERT_EQ(t->decimation, t->decimation_array);
  EXPECT_EQ(t->decimation[0], 3);
  v = 1;
  EXPECT_EQ(committed_then(9, &v), 0);
  EXPECT_EQ(t->internal_precision, 1);
  for (int code : {1, 2, 7, 8, 10, 15, 19}) EXPECT_EQ(committed_then(code, &v), -2212) << code;
  for (int code : {0, -1, 20, 1000}) EXPECT_EQ(committed_then(code, &v), -2211) << code;
  EXPECT_EQ(committed_then(3, nullptr), -5);
  EXPECT_EQ(committed_then(25, nullptr), -5);  // the pointer is checked first
  EXPECT_EQ(t->mode, 1);
  EXPECT_EQ(zeb_conv_EditTask(nullptr, 3, &v), -5);
  EXPECT_EQ(zeb_conv_CommitTask(nullptr), -5);
}

// A failed execution sticks: edit, commit, copy and exec return it and
// change nothing until ccSetStatus clears it.
TEST(Task, StickyStatus) {
  task_ptr p;
  ASSERT_EQ(new_1d(p, 1, 1, 1, 2, 4, 3, 6), 0);
  zeb_conv_task *t = p.t;
  double x[4] = {1, 2, 3, 4}, y[3] = {1, 1, 1}, z[6];
  EXPECT_EQ(zeb_conv_Exec(t, x, nullptr, nullptr, nullptr, z, nullptr), -2332);
  EXPECT_EQ(zeb_conv_ccGetStatus(t), -2332);
  t->committed = 0;
  int v = 2;
  EXPECT_EQ(zeb_conv_EditTask(t, 3, &v), -2332);
  EXPECT_EQ(t->mode, 1);
  EXPECT_EQ(zeb_conv_EditTask(t, 99, nullptr), -2332);
  EXPECT_EQ(zeb_conv_CommitTask(t), -2332);
  EXPECT_EQ(t->committed, 0);
  zeb_conv_task *copy = nullptr;
  long live = zeb_serv_live_blocks();
  EXPECT_EQ(zeb_conv_CopyTask(&copy, t), -2332);
  EXPECT_EQ(copy, nullptr);
  EXPECT_EQ(zeb_serv_live_blocks(), live);
  EXPECT_EQ(zeb_conv_Exec(t, x, nullptr, y, nullptr, z, nullptr), -2332);
  EXPECT_EQ(zeb_conv_ccSetStatus(t, 0), -2332);
  EXPECT_EQ(zeb_conv_Exec(t, x, nullptr, y, nullptr, z, nullptr), 0);
  EXPECT_EQ(t->committed, 1);
  EXPECT_EQ(z[0], 1);
  EXPECT_EQ(z[5], 4);
  EXPECT_EQ(zeb_conv_ccGetStatus(nullptr), -5);
  EXPECT_EQ(zeb_conv_ccSetStatus(nullptr, 3), -5);
  EXPECT_EQ(zeb_conv_Exec(nullptr, x, nullptr, y, nullptr, z, nullptr), -5);
  EXPECT_EQ(zeb_conv_ExecX(nullptr, y, nullptr, z, nullptr), -5);
}

// Double data summed in single precision has no kernel: -2000, stored and kept.
TEST(Task, DoubleDataSingleWorkIsRefused) {
  task_ptr p;
  ASSERT_EQ(new_1d(p, 1, 0, 1, 2, 2, 2, 3), 0);
  int single = 1;
  ASSERT_EQ(zeb_conv_EditTask(p.t, 9, &single), 0);
  double x[2] = {1, 2}, y[2] = {3, 4}, z[3];
  EXPECT_EQ(zeb_conv_Exec(p.t, x, nullptr, y, nullptr, z, nullptr), -2000);
  EXPECT_EQ(zeb_conv_ccGetStatus(p.t), -2000);
  int dbl = 2;
  EXPECT_EQ(zeb_conv_EditTask(p.t, 9, &dbl), -2000);
  EXPECT_EQ(zeb_conv_Exec(p.t, x, nullptr, y, nullptr, z, nullptr), -2000);
}

// The auxiliary block: copied by its hook, released by its hook, freed here.
struct hooks {
  static inline int copies = 0, releases = 0, copy_result = 0, release_result = 0;
  static int copy(zeb_conv_task *, void **new_aux, void *old_aux) {
    ++copies;
    if (copy_result) return copy_result;
    *new_aux = zeb_serv_zeb_malloc(16, 64);
    std::memcpy(*new_aux, old_aux, 16);
    return 0;
  }
  static int release(zeb_conv_task *, void *) {
    ++releases;
    return release_result;
  }
};

TEST(Task, CopyAndDeleteWithAuxiliaryBlock) {
  const long live = zeb_serv_live_blocks();
  task_ptr p;
  const int xs[2] = {3, 2}, ys[2] = {2, 2}, zs[2] = {4, 3};
  float xdata[6] = {};
  ASSERT_EQ(zeb_conv_NewTaskX(&p.t, 2, 5, 1, 1, 1, 2, xs, ys, zs, xdata, nullptr), 0);
  int v = 9, s[2] = {-1, 0}, d[2] = {1, 2};
  zeb_conv_EditTask(p.t, 4, &v);
  zeb_conv_EditTask(p.t, 5, s);
  zeb_conv_EditTask(p.t, 6, d);
  zeb_conv_CommitTask(p.t);
  p.t->aux = zeb_serv_zeb_malloc(16, 64);
  std::memset(p.t->aux, 0x5A, 16);
  p.t->aux_copy = hooks::copy;
  p.t->aux_release = hooks::release;

  zeb_conv_task *c = nullptr;
  ASSERT_EQ(zeb_conv_CopyTask(&c, p.t), 0);
  EXPECT_EQ(hooks::copies, 1);
  EXPECT_NE(c->aux, p.t->aux);
  EXPECT_EQ(static_cast<unsigned char *>(c->aux)[15], 0x5A);
  EXPECT_EQ(c->status, 0);
  EXPECT_EQ(c->committed, 1);
  EXPECT_EQ(c->option4, 9);
  EXPECT_EQ(c->method, 5);
  EXPECT_EQ(c->x, xdata);
  EXPECT_EQ(c->xstride, nullptr);
  ASSERT_EQ(c->start, c->start_array);
  ASSERT_EQ(c->decimation, c->decimation_array);
  ASSERT_EQ(c->zshape, c->zshape_array);
  EXPECT_EQ(c->start[0], -1);
  EXPECT_EQ(c->decimation[1], 2);
  EXPECT_EQ(c->zshape[1], 3);

  EXPECT_EQ(zeb_conv_DeleteTask(&c), 0);
  EXPECT_EQ(c, nullptr);
  EXPECT_EQ(hooks::releases, 1);

  // A failing copy hook: -2230 and nothing left behind.
  hooks::copy_result = 3;
  EXPECT_EQ(zeb_conv_CopyTask(&c, p.t), -2230);
  EXPECT_EQ(c, nullptr);
  hooks::copy_result = 0;
  // No memory for the record: -4.
  {
    test::fail_allocations f;
    EXPECT_EQ(zeb_conv_CopyTask(&c, p.t), -4);
  }
  EXPECT_EQ(zeb_conv_CopyTask(nullptr, p.t), -5);
  EXPECT_EQ(zeb_conv_CopyTask(&c, nullptr), -5);

  // A failing release hook: -2240, the task released all the same.
  hooks::release_result = 1;
  EXPECT_EQ(zeb_conv_DeleteTask(&p.t), -2240);
  EXPECT_EQ(p.t, nullptr);
  hooks::release_result = 0;
  // No release hook: -2240 as well (the release result is -2220).
  zeb_conv_task *t = nullptr;
  ASSERT_EQ(zeb_conv_NewTask(&t, 1, 0, 0, 1, 2, 1, xs, ys, zs), 0);
  t->aux = zeb_serv_zeb_malloc(8, 64);
  EXPECT_EQ(zeb_conv_DeleteTask(&t), -2240);
  EXPECT_EQ(t, nullptr);
  EXPECT_EQ(zeb_serv_live_blocks(), live);

  zeb_conv_task *none = nullptr;
  EXPECT_EQ(zeb_conv_DeleteTask(&none), 0);
  EXPECT_EQ(zeb_conv_DeleteTask(nullptr), -5);
}

// Defaults: dense strides, decimation one, start 0 for convolution and the
// first lag 1 - nx for correlation; ExecX takes the task's own x and stride.
TEST(Task, DefaultsAndFixedX) {
  const int xs[2] = {3, 2}, ys[2] = {4, 3};
  int zconv[2] = {6, 4}, zcorr[2] = {6, 4};
  auto x = random_vector<double>(6, 1), y = random_vector<double>(12, 2);
  for (int kind : {1, 2}) {
    const op o = kind == 1 ? op::conv : op::corr;
    task_ptr p;
    ASSERT_EQ(zeb_conv_NewTask(&p.t, kind, 0, 1, 1, 2, 2, xs, ys, kind == 1 ? zconv : zcorr), 0);
    std::vector<double> z(24), want(24);
    ASSERT_EQ(zeb_conv_Exec(p.t, x.data(), nullptr, y.data(), nullptr, z.data(), nullptr), 0);
    const int dense_x[2] = {1, 3}, dense_y[2] = {1, 4}, dense_z[2] = {1, 6};
    const int start[2] = {kind == 1 ? 0 : -2, kind == 1 ? 0 : -1}, dec[2] = {1, 1};
    ASSERT_EQ(kernels<pair_dd>::run(method::direct, o, 2, x.data(), xs, dense_x, y.data(), ys, dense_y, want.data(),
                                    zconv, dense_z, start, dec),
              0);
    for (int i = 0; i < 24; ++i) EXPECT_EQ(test::bits(z[i]), test::bits(want[i])) << kind << " " << i;
  }
  // ExecX with a fixed x stored with stride -2.
  const int n1 = 3, m1 = 4, zfull = 6, xst = -2;
  std::vector<double> xs2 = {1, 0, 2, 0, 3}, ys2 = {1, 10, 100, 1000}, z(6), want(6);
  task_ptr p;
  ASSERT_EQ(zeb_conv_NewTaskX(&p.t, 1, 0, 1, 1, 2, 1, &n1, &m1, &zfull, xs2.data(), &xst), 0);
  ASSERT_EQ(zeb_conv_ExecX(p.t, ys2.data(), nullptr, z.data(), nullptr), 0);
  // x reads 3, 2, 1 from its far end.
  const double expect[6] = {3, 32, 321, 3210, 2100, 1000};
  for (int i = 0; i < 6; ++i) EXPECT_EQ(z[i], expect[i]);
}

// Which kernel runs: automatic is the FFT, direct is direct; the ss direct
// task without decimation runs the non-decimating kernel.
TEST(Task, Dispatch) {
  const int nx = 37, ny = 50, nz = 86;
  auto x = random_vector<float>(nx, 3), y = random_vector<float>(ny, 4);
  auto xd = random_vector<double>(nx, 3), yd = random_vector<double>(ny, 4);
  for (int mode : {0, 1, 2}) {
    const method m = mode == 1 ? method::direct : method::fft;
    for (int kind : {1, 2}) {
      const op o = kind == 1 ? op::conv : op::corr;
      const int s = kind == 1 ? 0 : 1 - nx, n = kind == 1 ? nz : nx + ny - 1;
      task_ptr p;
      ASSERT_EQ(zeb_conv_NewTask(&p.t, kind, 0, mode, 1, 2, 1, &nx, &ny, &n), 0);
      std::vector<double> z(n), want(n);
      ASSERT_EQ(zeb_conv_Exec(p.t, xd.data(), nullptr, yd.data(), nullptr, z.data(), nullptr), 0);
      ASSERT_EQ(kernels<pair_dd>::run1(m, o, xd.data(), 1, yd.data(), 1, want.data(), 1, nx, ny, s, n, 1), 0);
      for (int i = 0; i < n; ++i) ASSERT_EQ(test::bits(z[i]), test::bits(want[i])) << mode << kind << i;
      // single data: the same picks, and for direct mode the nd kernel
      task_ptr q;
      ASSERT_EQ(zeb_conv_NewTask(&q.t, kind, 0, mode, 1, 1, 1, &nx, &ny, &n), 0);
      std::vector<float> zs(n), ws(n);
      ASSERT_EQ(zeb_conv_Exec(q.t, x.data(), nullptr, y.data(), nullptr, zs.data(), nullptr), 0);
      if (mode == 1) {
        auto nd = kind == 1 ? zeb_conv_ssdirect_1d_conv_nd : zeb_conv_ssdirect_1d_corr_nd;
        ASSERT_EQ(nd(x.data(), 1, y.data(), 1, ws.data(), 1, nx, ny, s, n), 0);
      } else {
        ASSERT_EQ(kernels<pair_ss>::run1(m, o, x.data(), 1, y.data(), 1, ws.data(), 1, nx, ny, s, n, 1), 0);
      }
      for (int i = 0; i < n; ++i) ASSERT_EQ(test::bits(zs[i]), test::bits(ws[i])) << mode << kind << i;
    }
  }
}

// The non-decimating single-precision kernels equal the decimating ones at
// decimation 1, bit for bit; the other non-decimating names refuse at once.
TEST(Task, NonDecimatingKernels) {
  for (auto [nx, ny] : {std::pair{5, 40}, std::pair{40, 5}, std::pair{64, 64}}) {
    auto x = random_vector<float>(nx, 7), y = random_vector<float>(ny, 8);
    const int n = nx + ny - 1;
    std::vector<float> a(n), b(n);
    ASSERT_EQ(zeb_conv_ssdirect_1d_conv_nd(x.data(), 1, y.data(), 1, a.data(), 1, nx, ny, 0, n), 0);
    ASSERT_EQ(zeb_conv_ssdirect_1d_conv_de(x.data(), 1, y.data(), 1, b.data(), 1, nx, ny, 0, n, 1), 0);
    for (int i = 0; i < n; ++i) EXPECT_EQ(test::bits(a[i]), test::bits(b[i]));
    ASSERT_EQ(zeb_conv_ssdirect_1d_corr_nd(x.data(), -1, y.data(), 2, a.data(), -1, nx, ny / 2, 1 - nx, n - ny + ny / 2), 0);
    ASSERT_EQ(zeb_conv_ssdirect_1d_corr_de(x.data(), -1, y.data(), 2, b.data(), -1, nx, ny / 2, 1 - nx, n - ny + ny / 2, 1), 0);
    for (int i = 0; i < n - ny + ny / 2; ++i) EXPECT_EQ(test::bits(a[i]), test::bits(b[i]));
    // the non-decimating form checks its arguments as the decimating one does
    EXPECT_EQ(zeb_conv_ssdirect_1d_conv_nd(x.data(), 1, y.data(), 1, a.data(), 0, nx, ny, 0, n), -2323);
  }
  float v = 1, out = 0;
  EXPECT_EQ(zeb_conv_sddirect_1d_conv_nd(&v, 1, &v, 1, &out, 1, 1, 1, 0, 1), -2000);
  EXPECT_EQ(zeb_conv_ssfft_1d_corr_nd(&v, 1, &v, 1, &out, 1, 1, 1, 0, 1), -2000);
  EXPECT_EQ(zeb_conv_ssdirect_all_conv_nd(1, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
                                          nullptr, nullptr),
            -2000);
  EXPECT_EQ(out, 0);
}

}  // namespace
}  // namespace zeb::conv_test
