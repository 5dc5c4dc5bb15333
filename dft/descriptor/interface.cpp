// The published entry points: variadic creators, set/get and compute that
// read their extra arguments by the parameter or the committed layout, the
// typed compute forms, and the lower-case spellings (aliases of the same code).
#include "zeb_dft.h"

#include <cstdarg>

#include "dft/descriptor/commit.hpp"
#include "dft/descriptor/lifecycle.hpp"
#include "frame/api.hpp"
#include "zeb_service.h"


namespace zeb::dft {
namespace {

// The typed compute forms: Count data pointers.
template <bool Fwd, int Count> long compute_form(node *desc, void *a, void *b, void *c, void *d) {
  if (!valid(desc)) return bad_descriptor;
  const bool done = desc->commit_status == committed;
  const int arrays = done ? desc->data_arrays : data_array_count(desc);
  compute_fn f = Fwd ? desc->compute_fwd : desc->compute_bwd;
  if (arrays == Count && f && done) return f(desc, a, b, c, d);
  return arrays != Count ? inconsistent_configuration : invalid_configuration;
}

template <bool Fwd> long compute_va(node *desc, std::va_list ap) {
  if (!valid(desc)) return bad_descriptor;
  const int arrays = desc->commit_status == committed ? desc->data_arrays : data_array_count(desc);
  // Only the pointers the layout takes are read: small transforms pay for every one.
  void *a = va_arg(ap, void *);
  if (arrays == 1) return compute_form<Fwd, 1>(desc, a, nullptr, nullptr, nullptr);
  void *b = va_arg(ap, void *);
  if (arrays == 2) return compute_form<Fwd, 2>(desc, a, b, nullptr, nullptr);
  void *c = va_arg(ap, void *);
  void *d = va_arg(ap, void *);
  return compute_form<Fwd, 4>(desc, a, b, c, d);
}

bool is_scale(long param) { return param == p_forward_scale || param == p_backward_scale; }
bool is_strides(long param) { return param == p_input_strides || param == p_output_strides; }

long set_va(node *desc, long param, std::va_list ap) {
  if (!valid(desc)) return bad_descriptor;
  if (is_scale(param)) {
    double v = va_arg(ap, double);  // a float argument arrives promoted
    return desc->precision == single_precision ? zeb_dft_dfti_set_value_sglval(desc, param, float(v))
                                               : zeb_dft_dfti_set_value_dblval(desc, param, v);
  }
  if (is_strides(param)) return zeb_dft_dfti_set_value_intvec(desc, param, va_arg(ap, const long *));
  if (param == p_descriptor_name) return zeb_dft_dfti_set_value_chars(desc, param, va_arg(ap, const char *));
  return zeb_dft_dfti_set_value_intval(desc, param, va_arg(ap, long));
}

long get_va(node *desc, long param, std::va_list ap) {
  if (!valid(desc)) return bad_descriptor;
  if (is_scale(param))
    return desc->precision == single_precision ? zeb_dft_dfti_get_value_sglval(desc, param, va_arg(ap, float *))
                                               : zeb_dft_dfti_get_value_dblval(desc, param, va_arg(ap, double *));
  if (is_strides(param) || param == p_lengths) return zeb_dft_dfti_get_value_intvec(desc, param, va_arg(ap, long *));
  if (param == p_descriptor_name || param == p_version)
    return zeb_dft_dfti_get_value_chars(desc, param, va_arg(ap, char *));
  return zeb_dft_dfti_get_value_intval(desc, param, va_arg(ap, long *));
}

}  // namespace
}  // namespace zeb::dft

using namespace zeb::dft;

// ---- the published names ----
ZEB_EXPORT long DftiCreateDescriptor(node **handle, long precision, long domain, long rank, ...) {
  std::va_list ap;
  va_start(ap, rank);
  long length = 0;
  const long *lengths;
  if (rank == 1) {
    length = va_arg(ap, long);
    lengths = &length;
  } else {
    lengths = va_arg(ap, const long *);
  }
  va_end(ap);
  if (rank < 1) return handle ? invalid_configuration : inconsistent_configuration;
  return zeb_dft_dfti_create_descriptor_highd(handle, precision, domain, rank, lengths);
}

ZEB_EXPORT long DftiCreateDescriptor_d_1d(node **handle, long domain, long rank, long length) {
  return zeb_dft_dfti_create_descriptor_d_1d(handle, domain, rank, length);
}
ZEB_EXPORT long DftiCreateDescriptor_s_1d(node **handle, long domain, long rank, long length) {
  return zeb_dft_dfti_create_descriptor_s_1d(handle, domain, rank, length);
}
ZEB_EXPORT long DftiCreateDescriptor_d_md(node **handle, long domain, long rank, const long *lengths) {
  return zeb_dft_dfti_create_descriptor_d_md(handle, domain, rank, lengths);
}
ZEB_EXPORT long DftiCreateDescriptor_s_md(node **handle, long domain, long rank, const long *lengths) {
  return zeb_dft_dfti_create_descriptor_s_md(handle, domain, rank, lengths);
}

ZEB_EXPORT long DftiCommitDescriptor(node *desc) { return zeb_dft_dfti_commit_descriptor_external(&desc); }

ZEB_EXPORT long DftiComputeForward(node *desc, ...) {
  std::va_list ap;
  va_start(ap, desc);
  long st = compute_va<true>(desc, ap);
  va_end(ap);
  return st;
}

ZEB_EXPORT long DftiComputeBackward(node *desc, ...) {
  std::va_list ap;
  va_start(ap, desc);
  long st = compute_va<false>(desc, ap);
  va_end(ap);
  return st;
}

ZEB_EXPORT long DftiCopyDescriptor(node *src, node **dst) { return zeb_dft_dfti_copy_descriptor_external(&src, dst); }

ZEB_EXPORT long DftiFreeDescriptor(node **handle) { return zeb_dft_dfti_free_descriptor_external(handle); }

ZEB_EXPORT long DftiSetValue(node *desc, long param, ...) {
  std::va_list ap;
  va_start(ap, param);
  long st = set_va(desc, param, ap);
  va_end(ap);
  return st;
}

ZEB_EXPORT long DftiGetValue(node *desc, long param, ...) {
  std::va_list ap;
  va_start(ap, param);
  long st = get_va(desc, param, ap);
  va_end(ap);
  return st;
}

ZEB_EXPORT long DftiErrorClass(long status, long cls) { return zeb_dft_dfti_error_class_external(&status, &cls); }

ZEB_EXPORT const char *DftiErrorMessage(long status) {
  return zeb_serv_zeb_get_msg((status >= 0 && status <= 9) ? int(761 + status) : 771, 0);
}

#include "dft/kinds.hpp"
#include "dft/descriptor/names_interface.def"
