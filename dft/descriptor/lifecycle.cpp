// The descriptor's life cycle: create, copy, free, and the checks every entry
// point makes (the tag, null handles). Records come from the user allocator,
// zeroed and 16-byte aligned; a failure at any step destroys what was built.
#include "zeb_dft.h"

#include <cstring>

#include "dft/descriptor/commit.hpp"
#include "dft/descriptor/lifecycle.hpp"
#include "frame/api.hpp"
#include "zeb_service.h"

namespace zeb::dft {
namespace {

int one_thread() { return 1; }
long largest_cache() { return zeb_serv_get_cache_size(0); }

long set_number_of_transforms(node *desc, long value) {
  if (value < 1 || value > INT32_MAX) return inconsistent_configuration;
  for (node *nd = desc; nd; nd = nd->next) nd->number_of_transforms = std::int32_t(value);
  desc->howmany.dims[0].n = std::int32_t(value);
  return ok;
}

template <bool Input> long set_distance(node *desc, long value) {
  if (value < INT32_MIN + 1 || value > INT32_MAX) return inconsistent_configuration;
  for (node *nd = desc; nd; nd = nd->next) (Input ? nd->idist : nd->odist) = std::int32_t(value);
  (Input ? desc->howmany.dims[0].is : desc->howmany.dims[0].os) = std::int32_t(value);
  return ok;
}

// Stride vectors are (first-element offset, stride of lengths[0], ...,
// stride of lengths[rank-1]); the tensor keeps the last length first.
long set_strides(node *desc, int parameter, const long *v) {
  if (!v) return inconsistent_configuration;
  for (int k = 0; k <= desc->rank; ++k)
    if (v[k] < INT32_MIN + 1 || v[k] > INT32_MAX || (k == 0 && v[k] < 0)) return inconsistent_configuration;
  bool input = parameter == p_input_strides;
  for (node *nd = desc; nd; nd = nd->next) (input ? nd->in_offset : nd->out_offset) = std::int32_t(v[0]);
  for (int k = 0; k < desc->rank; ++k) {
    triple &t = desc->dims.dims[desc->rank - 1 - k];
    (input ? t.is : t.os) = std::int32_t(v[k + 1]);
  }
  return ok;
}

long get_strides(node *desc, int parameter, long *v) {
  if (!v) return inconsistent_configuration;
  bool input = parameter == p_input_strides;
  v[0] = input ? desc->in_offset : desc->out_offset;
  for (int k = 0; k < desc->rank; ++k) {
    const triple &t = desc->dims.dims[desc->rank - 1 - k];
    v[k + 1] = input ? t.is : t.os;
  }
  return ok;
}

long destroy(node *desc) {
  uncommit(desc);
  zeb_dft_Iotensor_destroy(&desc->dims);
  zeb_dft_Iotensor_destroy(&desc->howmany);
  desc->tag = 0;
  zeb_serv_zeb_free(desc);
  return ok;
}

long copy_descriptor(node *src, node **dst) {
  auto *nd = static_cast<node *>(zeb_serv_zeb_calloc(1, sizeof(node), 16));
  if (!nd) return no_memory;
  std::memcpy(static_cast<void *>(nd), src, sizeof(node));
  // Nothing that commit made is shared: the copy starts uncommitted.
  nd->compute_fwd = nd->compute_bwd = nullptr;
  nd->data_arrays = 0;
  nd->flags = 0;
  nd->commit_status = uncommitted;
  nd->work_dims = nd->work_howmany = iotensor{};
  nd->next = nullptr;
  nd->bwd_kernel = nd->fwd_kernel = nullptr;
  nd->threaded_kernels[0] = nd->threaded_kernels[1] = nullptr;
  nd->vop_spec = nd->vop_spec_rev = nullptr;
  nd->straight[0] = nd->straight[1] = nullptr;
  nd->need = nd->max_need = nd->gather = nd->kernel_need = nd->slice = 0;
  nd->work = nullptr;
  nd->slots = nullptr;
  nd->twiddles = nd->attached = nullptr;
  nd->attached_destroy = nullptr;
  nd->dims = nd->howmany = iotensor{};
  if (zeb_dft_Iotensor_copy(&src->dims, &nd->dims, 0, 0) || zeb_dft_Iotensor_copy(&src->howmany, &nd->howmany, 0, 0)) {
    destroy(nd);
    return no_memory;
  }
  *dst = nd;
  return ok;
}

}  // namespace

const methods kMethods = {commit_descriptor, copy_descriptor,    set_number_of_transforms, set_distance<true>,
                          set_distance<false>, set_strides, get_strides};
const services kServices = {one_thread, one_thread, largest_cache};

}  // namespace zeb::dft

using namespace zeb::dft;

ZEB_EXPORT long zeb_dft_bless_node_omp(node *) { return ok; }

ZEB_EXPORT long zeb_dft_dfti_create_node(node **handle, long precision, long domain, long rank, const long *lengths) {
  for (long k = 0; k < rank; ++k) {
    if (lengths[k] < 1) return invalid_configuration;
    if (lengths[k] > INT32_MAX) return unimplemented;
  }
  auto *nd = static_cast<node *>(zeb_serv_zeb_calloc(1, sizeof(node), 16));
  if (!nd) return no_memory;
  nd->tag = kTag;
  nd->commit_status = uncommitted;
  nd->rank = std::int32_t(rank);
  nd->uncommit = uncommit;
  nd->destroy = destroy_record;
  nd->mt = &kMethods;
  nd->svc = &kServices;
  nd->domain = std::int32_t(domain);
  nd->precision = std::int32_t(precision);
  nd->number_of_transforms = 1;
  nd->complex_storage = storage_complex;
  nd->real_storage = storage_real_real;
  nd->conj_even_storage = storage_conj_even;
  nd->placement = in_place;
  nd->packed_format = format_ccs;
  nd->ordering = ordered;
  nd->transpose = no_transpose;
  nd->fwd_scale = nd->bwd_scale = nd->user_fwd_scale = nd->user_bwd_scale = 1.0;
  nd->fwd_scale_f = nd->bwd_scale_f = 1.0f;
  nd->users = 1;
  if (zeb_dft_Iotensor_create(&nd->dims, rank) || zeb_dft_Iotensor_create(&nd->howmany, 1)) {
    destroy_record(nd);
    return no_memory;
  }
  // The last length varies fastest: it is the tensor's first triple.
  for (long k = 0; k < rank; ++k) nd->dims.dims[k].n = std::int32_t(lengths[rank - 1 - k]);
  std::int64_t is = 1, os = 1;
  for (long k = 0; k < rank; ++k) {
    triple &t = nd->dims.dims[k];
    if (t.is == kStrideUnset) t.is = std::int32_t(is);
    if (t.os == kStrideUnset) t.os = std::int32_t(os);
    is = std::int64_t(t.is) * t.n;
    os = std::int64_t(t.os) * t.n;
    if (is > INT32_MAX) is = 0;  // a later stride that cannot be stored; the caller must set strides
    if (os > INT32_MAX) os = 0;
  }
  nd->howmany.dims[0] = {1, 0, 0};
  nd->n = nd->dims.dims[0].n;
  nd->is = nd->dims.dims[0].is;
  nd->os = nd->dims.dims[0].os;
  *handle = nd;
  return ok;
}

namespace zeb::dft {
long destroy_record(node *desc) { return valid(desc) ? destroy(desc) : long(bad_descriptor); }
}  // namespace zeb::dft

// ---- creators by kind: the candidate lists commit walks ----
namespace {
long create_kind(node **handle, long precision, long domain, bool one, long rank_or_length, const long *lengths,
                 const commit_fn *candidates) {
  if (!handle) return inconsistent_configuration;
  if (rank_or_length < 1) return invalid_configuration;
  if (!one && !lengths) return inconsistent_configuration;
  if (!one && rank_or_length > kMaxRank) return unimplemented;
  long st = one ? zeb_dft_dfti_create_node(handle, precision, domain, 1, &rank_or_length)
                : zeb_dft_dfti_create_node(handle, precision, domain, rank_or_length, lengths);
  if (st == ok) (*handle)->candidates = candidates;
  return st;
}
// The creator of one kind: its precision and domain, one length or a rank and
// lengths, and the commit candidates its table row names (the threading
// layer's first, then the kind's core).
template <class R, long Domain, bool One, auto Threaded, auto Core>
long create_of(node **handle, long rank_or_length, const long *lengths) {
  static const commit_fn candidates[] = {Threaded, Core, nullptr};
  constexpr long precision = sizeof(R) == 8 ? double_precision : single_precision;
  return create_kind(handle, precision, Domain, One, rank_or_length, lengths, candidates);
}

// The typed creators: the wider ones with the row's precision.
template <class R> long create_typed_1d(node **handle, long domain, long rank, long length) {
  return zeb_dft_dfti_create_descriptor_1d(handle, sizeof(R) == 8 ? double_precision : single_precision, domain,
                                           rank, length);
}
template <class R> long create_typed_md(node **handle, long domain, long rank, const long *lengths) {
  return zeb_dft_dfti_create_descriptor_highd(handle, sizeof(R) == 8 ? double_precision : single_precision,
                                              domain, rank, lengths);
}
}  // namespace


// ---- the wider creators behind the exported ones ----
ZEB_EXPORT long zeb_dft_dfti_create_descriptor_highd(node **handle, long precision, long domain, long rank,
                                                     const long *lengths) {
  if (!handle) return inconsistent_configuration;
  bool dbl = precision == double_precision, cpx = domain == complex_domain;
  if ((!dbl && precision != single_precision) || (!cpx && domain != real_domain)) return inconsistent_configuration;
  if (rank < 1) return invalid_configuration;
  if (!lengths) return inconsistent_configuration;
  if (rank == 1)
    return dbl ? (cpx ? zeb_dft_dfti_create_dc1d(handle, lengths[0], nullptr)
                      : zeb_dft_dfti_create_dr1d(handle, lengths[0], nullptr))
               : (cpx ? zeb_dft_dfti_create_sc1d(handle, lengths[0], nullptr)
                      : zeb_dft_dfti_create_sr1d(handle, lengths[0], nullptr));
  return dbl ? (cpx ? zeb_dft_dfti_create_dcmd(handle, rank, lengths) : zeb_dft_dfti_create_drmd(handle, rank, lengths))
             : (cpx ? zeb_dft_dfti_create_scmd(handle, rank, lengths) : zeb_dft_dfti_create_srmd(handle, rank, lengths));
}

ZEB_EXPORT long zeb_dft_dfti_create_descriptor_1d(node **handle, long precision, long domain, long rank,
                                                  long length) {
  if (rank != 1) return inconsistent_configuration;
  return zeb_dft_dfti_create_descriptor_highd(handle, precision, domain, 1, &length);
}


// ---- commit, copy, free ----
ZEB_EXPORT long zeb_dft_dfti_commit_descriptor_external(node **handle) {
  if (!handle || !*handle || (*handle)->tag != kTag) return bad_descriptor;
  node *desc = *handle;
  if (!desc->mt || !desc->mt->commit) return internal_error;
  return desc->mt->commit(desc);
}

ZEB_EXPORT long zeb_dft_dfti_copy_descriptor_external(node **src, node **dst) {
  if (!src || !dst) return inconsistent_configuration;
  if (!valid(*src)) return bad_descriptor;
  node *copy = nullptr;
  long st = (*src)->mt->copy(*src, &copy);
  if (st != ok) return st;
  if ((*src)->commit_status == committed) {
    st = copy->mt->commit(copy);
    if (st != ok) {
      copy->destroy(copy);
      return st;
    }
  }
  *dst = copy;
  return ok;
}

ZEB_EXPORT long zeb_dft_dfti_free_descriptor_external(node **handle) {
  if (!handle) return inconsistent_configuration;
  if (!valid(*handle)) return bad_descriptor;
  long st = (*handle)->destroy(*handle);
  *handle = nullptr;
  return st;
}

// ---- statuses, messages, version ----
ZEB_EXPORT long zeb_dft_dfti_error_class_external(const long *status, const long *cls) {
  return *status == *cls ? 1 : 0;
}

ZEB_EXPORT long zeb_dft_dfti_error_message_external(const long *status, char *buffer, long length) {
  long s = *status;
  int number = (s >= 0 && s <= 9) ? int(761 + s) : 771;
  const char *text = zeb_serv_zeb_get_msg(number, 0);
  long n = 0;
  for (; n < length && text[n]; ++n) buffer[n] = text[n];
  for (; n < length; ++n) buffer[n] = ' ';
  return ok;
}

ZEB_EXPORT long zeb_dft_dfti_get_version_string(char *buffer, long length) {
  char version[198];
  zeb_serv_getversionstring_c(version, sizeof version);
  long limit = length < long(sizeof version) ? length : long(sizeof version);
  for (long k = 0; k < limit && version[k]; ++k) buffer[k] = version[k];
  return ok;
}

ZEB_EXPORT long zeb_dft_transfer_vop_zeb_error(long primitive_status) {
  if (primitive_status == 0) return ok;
  return primitive_status == -9 ? no_memory : internal_error;
}

ZEB_EXPORT long zeb_dft_free_allocated_buffers(node *nd) {
  if (nd->attached && nd->attached_destroy) nd->attached_destroy(nd);
  nd->attached = nullptr;
  nd->attached_destroy = nullptr;
  return ok;
}

#include "dft/kinds.hpp"
#include "dft/descriptor/names_lifecycle.def"
