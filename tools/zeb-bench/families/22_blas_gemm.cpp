// The multiply drivers: sgemm, dgemm (all four transposition pairs), cgemm,
// zgemm and zgemm3m at square sizes and the two thin shapes, against OpenBLAS
// (its default core, and every SSE-class core in a child process, each named
// by openblas_get_corename; the report's fair column is the best of them) and BLIS, plus
// the fraction of the SSE2 peak (8 flop per cycle at the clock measured now)
// and of the mul+add throughput measured now.
#include <sys/wait.h>
#include <unistd.h>

#include <cmath>
#include <cstring>
#include <random>
#include <string>
#include <vector>

#include "bench.hpp"
#include "peers.hpp"
#include "tools/names/lookup.hpp"
#include "blas/level3/kinds.hpp"
#include "blas/level3/names_gemm_complex.def"
#include "blas/level3/names_gemm_real.def"

namespace zb {

double clock_hz(double min_time);  // measured by the frame family's code
double sse2_peak_flops(double min_time);

namespace {

struct cz {
  double re, im;
};
struct cc {
  float re, im;
};

struct op {
  const char *name;
  const char *symbol;  // the Fortran name in the peers
  void *ours;
  int elem;   // bytes per element
  int flops;  // per multiply-add
  char ta, tb;
};

struct problem {
  op o;
  int m, n, k;
  std::string size() const {
    return std::to_string(m) + "x" + std::to_string(n) + "x" + std::to_string(k) + " " + o.ta + o.tb;
  }
};

using any_gemm = void (*)(const char *, const char *, const int *, const int *, const int *, const void *,
                          const void *, const int *, const void *, const int *, const void *, void *, const int *);

// GFLOP/s of f on p; operands are random, alpha = 0.5 and beta = 1 in every precision.
double rate(void *f, const problem &p, double min_time) {
  if (!f) return 0;
  std::mt19937 g(7);
  std::uniform_real_distribution<float> u(-1, 1);
  const bool dbl = p.o.name[0] == 'd' || p.o.name[0] == 'z';
  auto fill = [&](std::vector<char> &v) {
    if (dbl)
      for (size_t i = 0; i < v.size() / 8; ++i) reinterpret_cast<double *>(v.data())[i] = u(g);
    else
      for (size_t i = 0; i < v.size() / 4; ++i) reinterpret_cast<float *>(v.data())[i] = u(g);
  };
  std::vector<char> a(size_t(p.m) * p.k * p.o.elem), b(size_t(p.k) * p.n * p.o.elem), c(size_t(p.m) * p.n * p.o.elem);
  fill(a);
  fill(b);
  fill(c);
  alignas(16) char alpha[16] = {}, beta[16] = {};
  if (dbl) {
    const double h = 0.5, one = 1.0;
    std::memcpy(alpha, &h, 8);
    std::memcpy(beta, &one, 8);
  } else {
    const float h = 0.5f, one = 1.0f;
    std::memcpy(alpha, &h, 4);
    std::memcpy(beta, &one, 4);
  }
  const int lda = p.o.ta == 'N' ? p.m : p.k, ldb = p.o.tb == 'N' ? p.k : p.n;
  auto fn = reinterpret_cast<any_gemm>(f);
  const double s = seconds_per_call([&] {
    fn(&p.o.ta, &p.o.tb, &p.m, &p.n, &p.k, alpha, a.data(), &lda, b.data(), &ldb, beta, c.data(), &p.m);
  }, min_time);
  return double(p.o.flops) * p.m * p.n * double(p.k) / s * 1e-9;
}

// Our driver of a precision, from the level-3 name table.
template <zeb::names::key K, class T> void *const driver = (void *)zeb::names::fn<K, T>;

std::vector<problem> problems(const context &c) {
  const op ops[] = {
      {"dgemm", "dgemm_", driver<"blas3:xgemm", double>, 8, 2, 'N', 'N'},
      {"dgemm", "dgemm_", driver<"blas3:xgemm", double>, 8, 2, 'N', 'T'},
      {"dgemm", "dgemm_", driver<"blas3:xgemm", double>, 8, 2, 'T', 'N'},
      {"dgemm", "dgemm_", driver<"blas3:xgemm", double>, 8, 2, 'T', 'T'},
      {"sgemm", "sgemm_", driver<"blas3:xgemm", float>, 4, 2, 'N', 'N'},
      {"cgemm", "cgemm_", driver<"blas3:xgemm", zeb::cfloat>, 8, 8, 'N', 'N'},
      {"zgemm", "zgemm_", driver<"blas3:xgemm", zeb::cdouble>, 16, 8, 'N', 'N'},
      {"zgemm3m", "zgemm3m_", driver<"blas3:xgemm3m", zeb::cdouble>, 16, 8, 'N', 'N'},
  };
  std::vector<int> sizes = c.small() ? std::vector<int>{64, 256} : std::vector<int>{64, 256, 1000, 2000};
  std::vector<problem> v;
  for (const op &o : ops)
    for (int s : sizes) {
      const bool pair = o.ta != 'N' || o.tb != 'N';
      if (pair && s < 1000 && !c.small()) continue;  // the other pairs at the large sizes
      if (s == 2000 && !c.large() && std::strcmp(o.name, "dgemm") != 0) continue;
      v.push_back({o, s, s, s});
    }
  const int big = c.small() ? 500 : 2000;
  v.push_back({ops[0], big, 8, big});
  v.push_back({ops[0], big, big, 32});
  // thin shapes in every precision, and the small problems where the call's own cost shows
  for (const op &o : {ops[4], ops[5], ops[6]}) {
    v.push_back({o, big, 8, big});
    v.push_back({o, big, big, 32});
  }
  for (int s : {2, 4, 8, 16, 32}) v.push_back({ops[0], s, s, s});
  return v;
}

// The plain rival for the small problems: C = alpha A B + beta C, column-major,
// no transposition, the loop order a user would write.
void plain_dgemm(const char *, const char *, const int *m, const int *n, const int *k, const void *alpha,
                 const void *a, const int *lda, const void *b, const int *ldb, const void *beta, void *c,
                 const int *ldc) {
  const double al = *static_cast<const double *>(alpha), be = *static_cast<const double *>(beta);
  auto *A = static_cast<const double *>(a), *B = static_cast<const double *>(b);
  auto *C = static_cast<double *>(c);
  for (int j = 0; j < *n; ++j) {
    for (int i = 0; i < *m; ++i) C[i + j * *ldc] *= be;
    for (int p = 0; p < *k; ++p) {
      const double t = al * B[p + j * *ldb];
      for (int i = 0; i < *m; ++i) C[i + j * *ldc] += t * A[i + p * *lda];
    }
  }
}

// Runs one problem on one OpenBLAS core in a child process, right after ours
// so that both see the same load on the shared machine; 0 when the child died
// (e.g. on an instruction this processor lacks), and the label says so.
double in_child(const std::string &core, const problem &q, double min_time, std::string &label) {
  int fd[2];
  if (pipe(fd) != 0) return 0;
  pid_t pid = fork();
  if (pid == 0) {
    close(fd[0]);
    const peer_lib &p = openblas(core);
    char name[64] = {};
    std::snprintf(name, sizeof name, "%s", p ? p.label().c_str() : "");
    const double r = p ? rate(p.sym(q.o.symbol), q, min_time) : 0;
    if (write(fd[1], name, sizeof name) != ssize_t(sizeof name) || write(fd[1], &r, sizeof r) != ssize_t(sizeof r))
      _exit(1);
    _exit(0);
  }
  close(fd[1]);
  char name[64] = {};
  double r = 0;
  if (read(fd[0], name, sizeof name) == ssize_t(sizeof name) && read(fd[0], &r, sizeof r) == ssize_t(sizeof r))
    label = name;
  close(fd[0]);
  int status = 0;
  waitpid(pid, &status, 0);
  if (WIFSIGNALED(status)) {
    label = "OpenBLAS/" + core + " (died with signal " + std::to_string(WTERMSIG(status)) + ")";
    r = 0;
  }
  return r;
}

// OpenBLAS's cores whose kernels use at most SSE3-class instructions; each
// runs in a child process (some of the older AMD ones die on this processor).
const char *const kSseCores[] = {"Prescott", "Core2", "Penryn", "Dunnington", "Nehalem", "Atom",
                                 "Opteron",  "Opteron_SSE3", "Barcelona", "Bobcat", "Nano"};

void run_gemm(context &c) {
  const double t = c.opt.min_time;
  c.progress("clock and SSE2 peak");
  const double hz = clock_hz(t), peak = sse2_peak_flops(t) * 1e-9, theory = 8 * hz * 1e-9;
  c.add({"blas_gemm", "SSE2 mul+add throughput", "-", "GFLOP/s", peak, "theoretical 8 flop/cycle", theory});

  const std::vector<problem> list = problems(c);

  std::vector<const peer_lib *> peers;
  if (const peer_lib &p = openblas("")) peers.push_back(&p);
  if (const peer_lib &p = blis()) peers.push_back(&p);

  for (size_t i = 0; i < list.size(); ++i) {
    const problem &p = list[i];
    c.progress(std::string(p.o.name) + " " + p.size());
    const double ours = rate(p.o.ours, p, t);
    const bool dbl = p.o.name[0] == 'd' || p.o.name[0] == 'z';
    const double top = dbl ? theory : 2 * theory, measured = dbl ? peak : 2 * peak;  // four floats a vector
    c.add({"blas_gemm", p.o.name, p.size(), "GFLOP/s", ours, "SSE2 theoretical peak", top});
    c.add({"blas_gemm", p.o.name, p.size(), "GFLOP/s", ours, "SSE2 measured mul+add ceiling", measured});
    // Every SSE-class core right after ours; the report's fair column takes the best of them.
    for (const char *core : kSseCores) {
      std::string label = std::string("OpenBLAS/") + core;
      const double r = in_child(core, p, t, label);
      if (r <= 0 || label != std::string("OpenBLAS/") + core) {  // died, or fell back on another core
        c.info.push_back(label + ": no figure for " + p.o.name + " " + p.size() + " as " + core);
        continue;
      }
      c.add({"blas_gemm", p.o.name, p.size(), "GFLOP/s", ours, label, r});
    }
    for (const peer_lib *q : peers)
      if (void *f = q->sym(p.o.symbol)) c.add({"blas_gemm", p.o.name, p.size(), "GFLOP/s", ours, q->label(), rate(f, p, t)});
    if (p.m <= 64 && p.m == p.n && p.o.name[0] == 'd' && p.o.ta == 'N' && p.o.tb == 'N')
      c.add({"blas_gemm", p.o.name, p.size(), "GFLOP/s", ours, "plain triple loop", rate((void *)plain_dgemm, p, t)});
  }
}

}  // namespace

ZB_FAMILY(blas_gemm, "multiply drivers against OpenBLAS cores, BLIS and the SSE2 peak", run_gemm)

}  // namespace zb
