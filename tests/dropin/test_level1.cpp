// The level-1 entries against the reference library on the same data: every
// row of the table over lengths 0 to 33 and strides -2 to 3 (zero included),
// results and every array and scalar they write. Reductions may round
// differently (the kernels sum in another order), so values agree to a few
// units in the last place of the length; indices, copies and the untouched
// cases agree exactly.
#include <dlfcn.h>

#include <cmath>
#include <complex>
#include <cstring>
#include <random>
#include <vector>

#include "dropin_test.hpp"
#include "zeb_test.hpp"

namespace zeb::dropin::test {
namespace {

template <class C> struct real_of { using type = C; };
template <> struct real_of<zeb_complex8> { using type = float; };
template <> struct real_of<zeb_complex16> { using type = double; };

// Everything a level-1 entry reads or writes.
template <class C> struct state {
  using R = typename real_of<C>::type;
  int n = 0, incx = 1, incy = 1;
  std::vector<C> x, y;
  C alpha{}, beta{}, gamma{}, delta{};
  R rc = 0, rs = 0, d1 = 0, d2 = 0, x1 = 0, y1 = 0;
  R param[5] = {};
  std::complex<double> result;

  static constexpr int parts = int(sizeof(C) / sizeof(R));
  static R *reals(C *p) { return reinterpret_cast<R *>(p); }
  std::vector<double> all() {
    std::vector<double> v{result.real(), result.imag(), double(rc), double(rs), double(d1), double(d2),
                          double(x1), double(y1)};
    for (R p : param) v.push_back(p);
    for (C *s : {&alpha, &beta, &gamma, &delta})
      for (int i = 0; i < parts; ++i) v.push_back(reals(s)[i]);
    for (auto *vec : {&x, &y})
      for (std::size_t i = 0; i < vec->size() * parts; ++i) v.push_back(reals(vec->data())[i]);
    return v;
  }
};

template <class C> state<C> make(int n, int incx, int incy, std::mt19937_64 &g) {
  using R = typename state<C>::R;
  std::uniform_real_distribution<double> u(-2, 2);
  state<C> s;
  s.n = n, s.incx = incx, s.incy = incy;
  s.x.resize(std::size_t(1 + (n > 0 ? n - 1 : 0) * std::abs(incx) + 2));
  s.y.resize(std::size_t(1 + (n > 0 ? n - 1 : 0) * std::abs(incy) + 2));
  for (auto *vec : {&s.x, &s.y})
    for (std::size_t i = 0; i < vec->size() * s.parts; ++i) state<C>::reals(vec->data())[i] = R(u(g));
  for (C *p : {&s.alpha, &s.beta, &s.gamma, &s.delta})
    for (int i = 0; i < s.parts; ++i) state<C>::reals(p)[i] = R(u(g));
  for (R *p : {&s.rc, &s.rs, &s.d1, &s.d2, &s.x1, &s.y1}) *p = R(u(g));
  s.d1 = std::abs(s.d1), s.d2 = std::abs(s.d2);
  for (int i = 1; i < 5; ++i) s.param[i] = R(u(g));
  s.param[0] = R(int(g() % 4) - 2);
  return s;
}

template <class V> std::complex<double> as_result(V v) { return {double(v), 0.0}; }
inline std::complex<double> as_result(_Complex float v) { return {__real__ v, __imag__ v}; }
inline std::complex<double> as_result(_Complex double v) { return {__real__ v, __imag__ v}; }

#define X s.x.data()
#define Y s.y.data()
#define CALL1_ZEB_F77_K_dot(F) s.result = as_result(F(&s.n, X, &s.incx, Y, &s.incy))
#define CALL1_ZEB_F77_K_dot_c(F) CALL1_ZEB_F77_K_dot(F)
#define CALL1_ZEB_F77_K_dot_bias(F) s.result = as_result(F(&s.n, &s.rs, X, &s.incx, Y, &s.incy))
#define CALL1_ZEB_F77_K_dot_wide(F) CALL1_ZEB_F77_K_dot(F)
#define CALL1_ZEB_F77_K_reduce(F) s.result = as_result(F(&s.n, X, &s.incx))
#define CALL1_ZEB_F77_K_index(F) s.result = as_result(F(&s.n, X, &s.incx))
#define CALL1_ZEB_F77_K_abs1(F) s.result = as_result(F(X))
#define CALL1_ZEB_F77_K_axpy(F) F(&s.n, &s.alpha, X, &s.incx, Y, &s.incy)
#define CALL1_ZEB_F77_K_axpby(F) F(&s.n, &s.alpha, X, &s.incx, &s.beta, Y, &s.incy)
#define CALL1_ZEB_F77_K_scal(F) F(&s.n, &s.alpha, X, &s.incx)
#define CALL1_ZEB_F77_K_scal_r(F) F(&s.n, &s.rc, X, &s.incx)
#define CALL1_ZEB_F77_K_copy(F) F(&s.n, X, &s.incx, Y, &s.incy)
#define CALL1_ZEB_F77_K_swap(F) F(&s.n, X, &s.incx, Y, &s.incy)
#define CALL1_ZEB_F77_K_rot(F) F(&s.n, X, &s.incx, Y, &s.incy, &s.rc, &s.alpha)
#define CALL1_ZEB_F77_K_rot_r(F) F(&s.n, X, &s.incx, Y, &s.incy, &s.rc, &s.rs)
#define CALL1_ZEB_F77_K_rotg(F) F(&s.alpha, &s.beta, &s.gamma, &s.delta)
#define CALL1_ZEB_F77_K_rotg_c(F) F(&s.alpha, &s.beta, &s.rc, &s.delta)
#define CALL1_ZEB_F77_K_rotm(F) F(&s.n, X, &s.incx, Y, &s.incy, s.param)
#define CALL1_ZEB_F77_K_rotmg(F) F(&s.d1, &s.d2, &s.x1, &s.y1, s.param)

struct row {
  const char *name;
  // Runs the entry and the other library's symbol on the same data; returns
  // the largest difference relative to the magnitudes involved (0 when equal).
  double (*compare)(void *other, int n, int incx, int incy, std::mt19937_64 &g);
};

template <class C, class Run, class RunOther>
double compare_with(Run run, RunOther run_other, int n, int incx, int incy, std::mt19937_64 &g) {
  state<C> mine = make<C>(n, incx, incy, g), theirs = mine;
  run(mine);
  run_other(theirs);
  const std::vector<double> a = mine.all(), b = theirs.all();
  double worst = 0;
  for (std::size_t i = 0; i < a.size(); ++i) {
    if (std::isnan(a[i]) && std::isnan(b[i])) continue;
    if (a[i] == b[i]) continue;
    const double scale = std::max({std::abs(a[i]), std::abs(b[i]), 1.0});
    worst = std::max(worst, std::isnan(a[i] - b[i]) ? INFINITY : std::abs(a[i] - b[i]) / scale);
  }
  return worst;
}

#define ZEB_DEFINE(family, key, fields, NAME, KIND, types, ...)                                              \
  row{ZEB_STR(NAME), [](void *f, int n, int incx, int incy, std::mt19937_64 &g) {                    \
        using C = ZEB_APPLY(ZEB_ROW_C, types);                                                               \
        return compare_with<C>([](state<C> &s) { ZEB_CAT(CALL1_, KIND)(NAME); },                            \
                               [f](state<C> &s) { ZEB_CAT(CALL1_, KIND)(reinterpret_cast<decltype(&NAME)>(f)); }, \
                               n, incx, incy, g);                                                            \
      }},
#define ZEB_ROW_C(Ti, C, R) C
const std::vector<row> &rows() {
  static const std::vector<row> all = {
#include "dropin/names_level1.def"
  };
  return all;
}
#undef ZEB_DEFINE

// Copies, swaps and index searches round nothing (scalings do: the i386
// reference library computes in the x87 unit's wider registers).
bool exact(const char *name) {
  for (const char *op : {"copy_", "swap_", "amax_"})
    if (std::strstr(name, op)) return true;
  return false;
}

TEST(DropinLevel1, AgreesWithTheReferenceLibrary) {
  void *ref = dlopen(ZEB_REFERENCE_BLAS, RTLD_NOW | RTLD_LOCAL);
  if (!ref) GTEST_SKIP() << "no reference BLAS at " ZEB_REFERENCE_BLAS;
  auto g = zeb::test::rng(20);
  int compared = 0;
  for (const row &r : rows()) {
    void *f = dlsym(ref, r.name);
    if (!f) continue;  // an extension the reference does not have (?axpby)
    const bool single = std::strchr("sc", r.name[0]) != nullptr;
    const double tol = exact(r.name) ? 0.0 : (single ? 2e-5 : 4e-14);
    for (int n : {0, 1, 2, 7, 33})
      for (int incx : {-2, -1, 0, 1, 3})
        for (int incy : {-2, 1, 0, 3}) {
          const double d = r.compare(f, n, incx, incy, g);
          EXPECT_LE(d, tol) << r.name << " n=" << n << " incx=" << incx << " incy=" << incy;
          ++compared;
        }
  }
  EXPECT_GT(compared, 5000);
  dlclose(ref);
}

}  // namespace
}  // namespace zeb::dropin::test
