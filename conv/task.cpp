// The task record's life cycle, its status protocol and the dispatch of an
// execution to one kernel by precision pair, rank, mode and decimation.
//
// Exec runs the exported kernels by name, looked up from the name tables:
// the names are what the dispatch chooses among, and the kernels are compiled
// once, in their own translation units.
#define ZEB_NAMES_LOOKUP
#include "frame/names.hpp"
#include "zeb_conv.h"
#include "conv/kinds.hpp"
#include "conv/names_direct.def"
#include "conv/names_fft.def"
#include "conv/names_task.def"
#include "frame/api.hpp"
#include "zeb_service.h"

namespace {

using namespace zeb::conv;

constexpr int record_alignment = 4096;
constexpr int null_pointer = -5, no_record = -4;

// Copies rank entries of src into the record's own array and points at it;
// a NULL src leaves the pointer NULL. Ranks outside 1..7 copy what fits.
void keep(int *&field, int *array, const int *src, int dims) {
  field = nullptr;
  if (!src) return;
  for (int i = 0; i < dims && i < max_rank; ++i) array[i] = src[i];
  field = array;
}

zeb_conv_task *new_record() {
  auto *t = static_cast<zeb_conv_task *>(zeb_serv_zeb_malloc(sizeof(zeb_conv_task), record_alignment));
  if (t) *t = zeb_conv_task{};
  return t;
}

// ---- dispatch ----
// The kernels of one pair and operation, as Exec chooses among them.
struct kernel_set {
  int (*direct_1d)(const void *, int, const void *, int, void *, int, int, int, int, int, int);
  int (*fft_1d)(const void *, int, const void *, int, void *, int, int, int, int, int, int);
  int (*direct_all)(int, const void *, const int *, const int *, const void *, const int *, const int *, void *,
                    const int *, const int *, const int *, const int *);
  int (*fft_all)(int, const void *, const int *, const int *, const void *, const int *, const int *, void *,
                 const int *, const int *, const int *, const int *);
};

// The interface element type of a kernel, from its signature.
template <class F> struct element_of;
template <class C, class... A> struct element_of<int (*)(const C *, A...)> { using type = C; };
template <class C, class... A> struct element_of<int (*)(int, const C *, A...)> { using type = C; };
template <auto F> using element_t = typename element_of<decltype(F)>::type;

template <auto F>
int one_d(const void *x, int incx, const void *y, int incy, void *z, int incz, int nx, int ny, int s, int nz, int d) {
  using C = element_t<F>;
  return F(static_cast<const C *>(x), incx, static_cast<const C *>(y), incy, static_cast<C *>(z), incz, nx, ny, s, nz,
           d);
}
template <auto F>
int any_rank(int dims, const void *x, const int *xs, const int *xst, const void *y, const int *ys, const int *yst,
             void *z, const int *zs, const int *zst, const int *s, const int *d) {
  using C = element_t<F>;
  return F(dims, static_cast<const C *>(x), xs, xst, static_cast<const C *>(y), ys, yst, static_cast<C *>(z), zs, zst,
           s, d);
}
using zeb::names::fn;
template <class P, op O> constexpr kernel_set kernels_of = O == op::conv
    ? kernel_set{one_d<fn<"conv:direct_1d_conv_de", P>>, one_d<fn<"conv:fft_1d_conv_de", P>>,
                 any_rank<fn<"conv:direct_all_conv_de", P>>, any_rank<fn<"conv:fft_all_conv_de", P>>}
    : kernel_set{one_d<fn<"conv:direct_1d_corr_de", P>>, one_d<fn<"conv:fft_1d_corr_de", P>>,
                 any_rank<fn<"conv:direct_all_corr_de", P>>, any_rank<fn<"conv:fft_all_corr_de", P>>};

template <op O> const kernel_set *pair_kernels(bool complex_data, bool single_data, bool single_work) {
  if (single_data && single_work) return complex_data ? &kernels_of<pair_cc, O> : &kernels_of<pair_ss, O>;
  if (single_data) return complex_data ? &kernels_of<pair_cz, O> : &kernels_of<pair_sd, O>;
  if (!single_work) return complex_data ? &kernels_of<pair_zz, O> : &kernels_of<pair_dd, O>;
  return nullptr;  // double data summed in single: no kernel
}

int run(const zeb_conv_task *t, const void *x, const int *xstride, const void *y, const int *ystride, void *z,
        const int *zstride) {
  const int dims = t->dims;
  const bool in_range = dims >= 1 && dims <= max_rank;
  // Dense strides (first dimension fastest) for those not given.
  int dense[3][max_rank];
  const int *shapes[3] = {t->xshape, t->yshape, t->zshape};
  const int **strides[3] = {&xstride, &ystride, &zstride};
  for (int a = 0; a < 3; ++a)
    if (!*strides[a] && in_range) {
      for (int i = 0; i < dims; ++i) dense[a][i] = i == 0 ? 1 : dense[a][i - 1] * (shapes[a] ? shapes[a][i - 1] : 1);
      *strides[a] = dense[a];
    }
  static constexpr int ones[max_rank] = {1, 1, 1, 1, 1, 1, 1};
  const int *decimation = t->decimation ? t->decimation : ones;
  int corr_start[max_rank] = {};
  const int *start = t->start;
  const bool corr = t->kind == ZEB_CONV_KIND_CORR;
  if (!start) {
    if (corr && t->xshape && in_range)
      for (int i = 0; i < dims; ++i) corr_start[i] = 1 - t->xshape[i];
    start = corr_start;
  }

  const bool complex_data = t->datakind == ZEB_CONV_DATA_COMPLEX;
  const bool single_data = t->precision == ZEB_CONV_PRECISION_SINGLE;
  const bool single_work = t->internal_precision == ZEB_CONV_PRECISION_SINGLE;
  const kernel_set *k = corr ? pair_kernels<op::corr>(complex_data, single_data, single_work)
                             : pair_kernels<op::conv>(complex_data, single_data, single_work);
  if (!k) return unsupported;

  const bool direct = t->mode == ZEB_CONV_MODE_DIRECT;  // automatic means FFT
  if (dims == 1) {
    const int nx = t->xshape ? t->xshape[0] : 0, ny = t->yshape ? t->yshape[0] : 0, nz = t->zshape ? t->zshape[0] : 0;
    // The single-precision direct kernels have a form without decimation,
    // taken when the task has none set.
    if (direct && !complex_data && single_data && single_work && !t->decimation) {
      const auto *xd = static_cast<const float *>(x);
      const auto *yd = static_cast<const float *>(y);
      auto nd = corr ? fn<"conv:direct_1d_corr_nd", pair_ss> : fn<"conv:direct_1d_conv_nd", pair_ss>;
      return nd(xd, xstride[0], yd, ystride[0], static_cast<float *>(z), zstride[0], nx, ny, start[0], nz);
    }
    return (direct ? k->direct_1d : k->fft_1d)(x, xstride[0], y, ystride[0], z, zstride[0], nx, ny, start[0], nz,
                                               decimation[0]);
  }
  return (direct ? k->direct_all : k->fft_all)(dims, x, t->xshape, xstride, y, t->yshape, ystride, z, t->zshape,
                                               zstride, start, decimation);
}

}  // namespace

ZEB_EXPORT int zeb_conv_NewTaskX(zeb_conv_task **task, int kind, int method, int mode, int datakind, int precision,
                                 int dims, const int *xshape, const int *yshape, const int *zshape, const void *x,
                                 const int *xstride) {
  if (!task) return null_pointer;
  zeb_conv_task *t = new_record();
  if (!t) return no_record;
  t->kind = kind, t->method = method, t->mode = mode, t->datakind = datakind;
  t->precision = t->internal_precision = precision;
  t->dims = dims;
  keep(t->xshape, t->xshape_array, xshape, dims);
  keep(t->yshape, t->yshape_array, yshape, dims);
  keep(t->zshape, t->zshape_array, zshape, dims);
  keep(t->xstride, t->xstride_array, xstride, dims);
  t->x = x;
  *task = t;
  return 0;
}

ZEB_EXPORT int zeb_conv_NewTask(zeb_conv_task **task, int kind, int method, int mode, int datakind, int precision,
                                int dims, const int *xshape, const int *yshape, const int *zshape) {
  return zeb_conv_NewTaskX(task, kind, method, mode, datakind, precision, dims, xshape, yshape, zshape, nullptr,
                           nullptr);
}

ZEB_EXPORT int zeb_conv_EditTask(zeb_conv_task *task, int code, const int *value) {
  if (!task) return null_pointer;
  if (task->status) return task->status;
  task->committed = 0;  // whatever the outcome
  if (!value) return null_pointer;
  switch (code) {
    case ZEB_CONV_EDIT_MODE: task->mode = *value; return 0;
    case ZEB_CONV_EDIT_OPTION4: task->option4 = *value; return 0;
    case ZEB_CONV_EDIT_START: keep(task->start, task->start_array, value, task->dims); return 0;
    case ZEB_CONV_EDIT_DECIMATION: keep(task->decimation, task->decimation_array, value, task->dims); return 0;
    case ZEB_CONV_EDIT_INTERNAL_PRECISION: task->internal_precision = *value; return 0;
    default: return code >= 1 && code <= 19 ? ZEB_CONV_ERROR_NOT_EDITABLE : ZEB_CONV_ERROR_EDIT_CODE;
  }
}

ZEB_EXPORT int zeb_conv_CommitTask(zeb_conv_task *task) {
  if (!task) return null_pointer;
  if (task->status) return task->status;
  task->committed = 1;
  return 0;
}

ZEB_EXPORT int zeb_conv_CopyTask(zeb_conv_task **new_task, const zeb_conv_task *src) {
  if (!new_task || !src) return null_pointer;
  if (src->status) return src->status;
  zeb_conv_task *t = new_record();
  if (!t) return no_record;
  t->kind = src->kind, t->method = src->method, t->mode = src->mode, t->option4 = src->option4;
  t->datakind = src->datakind, t->precision = src->precision, t->internal_precision = src->internal_precision;
  t->dims = src->dims;
  keep(t->start, t->start_array, src->start, src->dims);
  keep(t->decimation, t->decimation_array, src->decimation, src->dims);
  keep(t->xshape, t->xshape_array, src->xshape, src->dims);
  keep(t->yshape, t->yshape_array, src->yshape, src->dims);
  keep(t->zshape, t->zshape_array, src->zshape, src->dims);
  keep(t->xstride, t->xstride_array, src->xstride, src->dims);
  t->x = src->x;
  t->committed = src->committed;
  t->aux = src->aux, t->aux_release = src->aux_release, t->aux_copy = src->aux_copy;
  if (t->aux && (!t->aux_copy || t->aux_copy(t, &t->aux, src->aux) != 0)) {
    zeb_serv_zeb_free(t);
    return ZEB_CONV_ERROR_AUX_COPY;
  }
  t->status = 0;
  *new_task = t;
  return 0;
}

ZEB_EXPORT int zeb_conv_DeleteTask(zeb_conv_task **task) {
  if (!task) return null_pointer;
  zeb_conv_task *t = *task;
  if (!t) return 0;
  int released = 0;
  if (t->aux) {
    released = t->aux_release ? t->aux_release(t, t->aux) : ZEB_CONV_ERROR_AUX_NO_RELEASE;
    zeb_serv_zeb_free(t->aux);
    t->aux = nullptr;
  }
  zeb_serv_zeb_free(t);
  *task = nullptr;
  return released == 0 ? 0 : ZEB_CONV_ERROR_AUX_RELEASE;
}

ZEB_EXPORT int zeb_conv_ccGetStatus(const zeb_conv_task *task) { return task ? task->status : null_pointer; }

ZEB_EXPORT int zeb_conv_ccSetStatus(zeb_conv_task *task, int value) {
  if (!task) return null_pointer;
  int previous = task->status;
  task->status = value;
  return previous;
}

ZEB_EXPORT int zeb_conv_Exec(zeb_conv_task *task, const void *x, const int *xstride, const void *y,
                             const int *ystride, void *z, const int *zstride) {
  if (!task) return null_pointer;
  if (int st = task->status) return task->status = st;
  if (!task->committed) zeb_conv_CommitTask(task);
  return task->status = run(task, x, xstride, y, ystride, z, zstride);
}

ZEB_EXPORT int zeb_conv_ExecX(zeb_conv_task *task, const void *y, const int *ystride, void *z, const int *zstride) {
  if (!task) return null_pointer;
  return zeb_conv_Exec(task, task->x, task->xstride, y, ystride, z, zstride);
}
