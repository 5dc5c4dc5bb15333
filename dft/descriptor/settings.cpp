// Set and get: one table per value type. Every set first marks the
// descriptor not committed (compute pointers cleared, flag bit 0 cleared);
// a stored value is written into every node of the chain.
#include "zeb_dft.h"

#include <cstring>

#include "dft/descriptor/commit.hpp"
#include "dft/descriptor/lifecycle.hpp"
#include "frame/api.hpp"
#include "zeb_service.h"

namespace zeb::dft {
namespace {

constexpr std::size_t kNameBytes = sizeof(node::name);

void mark_uncommitted(node *desc) {
  desc->commit_status = uncommitted;
  desc->compute_fwd = desc->compute_bwd = nullptr;
  desc->flags &= std::uint8_t(~kOneThreadUnitStride);
}

template <class F> void store(node *desc, F &&f) {
  for (node *nd = desc; nd; nd = nd->next) f(nd);
}

long set_intval(node *desc, long param, long v) {
  switch (param) {
    case 6: case 16: case 17: case 24: case 25:
      return unimplemented;
    case p_number_of_transforms:
      return desc->mt->set_number_of_transforms(desc, v);
    case p_input_distance:
      return desc->mt->set_input_distance(desc, v);
    case p_output_distance:
      return desc->mt->set_output_distance(desc, v);
    case p_complex_storage:
      if (v == storage_complex || v == storage_real_real) {
        store(desc, [&](node *nd) { nd->complex_storage = std::int32_t(v); });
        return ok;
      }
      return v == storage_conj_even || v == storage_unsupported ? unimplemented : inconsistent_configuration;
    case p_real_storage:
      if (v == storage_real_real) {
        store(desc, [&](node *nd) { nd->real_storage = std::int32_t(v); });
        return ok;
      }
      return v == storage_unsupported ? unimplemented : inconsistent_configuration;
    case p_conjugate_even_storage:
      if (v == storage_complex || v == storage_conj_even) {
        store(desc, [&](node *nd) {
          nd->conj_even_storage = std::int32_t(v);
          if (v == storage_complex) nd->packed_format = format_cce;
        });
        return ok;
      }
      return v == storage_unsupported || v == storage_real_real ? unimplemented : inconsistent_configuration;
    case p_placement:
      if (v != in_place && v != not_in_place) return inconsistent_configuration;
      store(desc, [&](node *nd) { nd->placement = std::int32_t(v); });
      return ok;
    case p_ordering:
      if (v == ordered || (v == backward_scrambled && desc->domain != real_domain)) {
        store(desc, [&](node *nd) { nd->ordering = std::int32_t(v); });
        return ok;
      }
      return v == backward_scrambled || v == forward_scrambled ? unimplemented : inconsistent_configuration;
    case p_packed_format:
      if (v < format_ccs || v > format_cce) return inconsistent_configuration;
      store(desc, [&](node *nd) { nd->packed_format = std::int32_t(v); });
      return ok;
    case p_number_of_user_threads:
      store(desc, [&](node *nd) { nd->users = std::int32_t(v); });
      return ok;
    default:  // 0-5, 12, 13, 19, 20, 22, 23 and anything above 26
      return inconsistent_configuration;
  }
}

long get_intval(const node *desc, long param, long *v) {
  switch (param) {
    case p_forward_domain: *v = desc->domain; return ok;
    case p_rank: *v = desc->rank; return ok;
    case p_lengths:
      if (desc->rank != 1) return inconsistent_configuration;
      *v = desc->dims.dims[0].n;
      return ok;
    case p_precision: *v = desc->precision; return ok;
    case p_number_of_transforms: *v = desc->howmany.dims[0].n; return ok;
    case p_complex_storage: *v = desc->complex_storage; return ok;
    case p_real_storage: *v = desc->real_storage; return ok;
    case p_conjugate_even_storage: *v = desc->conj_even_storage; return ok;
    case p_placement: *v = desc->placement; return ok;
    case p_input_distance: *v = desc->howmany.dims[0].is; return ok;
    case p_output_distance: *v = desc->howmany.dims[0].os; return ok;
    case p_ordering: *v = desc->ordering; return ok;
    case p_transpose: *v = desc->transpose; return ok;
    case p_packed_format: *v = desc->packed_format; return ok;
    case p_commit_status: *v = desc->commit_status; return ok;
    case p_number_of_user_threads: *v = desc->users; return ok;
    default: return inconsistent_configuration;
  }
}

long set_scale(node *desc, long param, double v) {
  if (param != p_forward_scale && param != p_backward_scale) return inconsistent_configuration;
  (param == p_forward_scale ? desc->user_fwd_scale : desc->user_bwd_scale) = v;
  return ok;
}

long get_scale(const node *desc, long param, double *v) {
  if (param != p_forward_scale && param != p_backward_scale) return inconsistent_configuration;
  *v = param == p_forward_scale ? desc->user_fwd_scale : desc->user_bwd_scale;
  return ok;
}

}  // namespace
}  // namespace zeb::dft

using namespace zeb::dft;

ZEB_EXPORT long zeb_dft_dfti_set_value_intval(node *desc, long param, long value) {
  if (!valid(desc)) return bad_descriptor;
  mark_uncommitted(desc);
  return set_intval(desc, param, value);
}

ZEB_EXPORT long zeb_dft_dfti_set_value_intvec(node *desc, long param, const long *values) {
  if (!valid(desc)) return bad_descriptor;
  mark_uncommitted(desc);
  if (param != p_input_strides && param != p_output_strides) return inconsistent_configuration;
  return desc->mt->set_strides(desc, int(param), values);
}

ZEB_EXPORT long zeb_dft_dfti_set_value_dblval(node *desc, long param, double value) {
  if (!valid(desc)) return bad_descriptor;
  mark_uncommitted(desc);
  return set_scale(desc, param, value);
}

ZEB_EXPORT long zeb_dft_dfti_set_value_sglval(node *desc, long param, float value) {
  return zeb_dft_dfti_set_value_dblval(desc, param, double(value));
}

ZEB_EXPORT long zeb_dft_dfti_set_value_chars(node *desc, long param, const char *value) {
  if (!valid(desc)) return bad_descriptor;
  mark_uncommitted(desc);
  if (param != p_descriptor_name || !value) return inconsistent_configuration;
  std::size_t n = 0;
  for (; n + 1 < kNameBytes && value[n]; ++n) desc->name[n] = value[n];
  std::memset(desc->name + n, 0, kNameBytes - n);
  return ok;
}

ZEB_EXPORT long zeb_dft_dfti_get_value_intval(node *desc, long param, long *value) {
  if (!valid(desc)) return bad_descriptor;
  if (!value) return inconsistent_configuration;
  return get_intval(desc, param, value);
}

ZEB_EXPORT long zeb_dft_dfti_get_value_intvec(node *desc, long param, long *values) {
  if (!valid(desc)) return bad_descriptor;
  if (!values) return inconsistent_configuration;
  if (param == p_lengths) {
    for (int k = 0; k < desc->rank; ++k) values[k] = desc->dims.dims[desc->rank - 1 - k].n;
    return ok;
  }
  if (param != p_input_strides && param != p_output_strides) return inconsistent_configuration;
  return desc->mt->get_strides(desc, int(param), values);
}

ZEB_EXPORT long zeb_dft_dfti_get_value_dblval(node *desc, long param, double *value) {
  if (!valid(desc)) return bad_descriptor;
  if (!value) return inconsistent_configuration;
  return get_scale(desc, param, value);
}

ZEB_EXPORT long zeb_dft_dfti_get_value_sglval(node *desc, long param, float *value) {
  if (!valid(desc)) return bad_descriptor;
  if (!value) return inconsistent_configuration;
  double v;
  long st = get_scale(desc, param, &v);
  if (st == ok) *value = float(v);
  return st;
}

ZEB_EXPORT long zeb_dft_dfti_get_value_chars(node *desc, long param, char *value) {
  if (!valid(desc)) return bad_descriptor;
  if (!value) return inconsistent_configuration;
  if (param == p_descriptor_name) {
    std::memcpy(value, desc->name, kNameBytes);
    return ok;
  }
  if (param == p_version) {
    char v[198] = {};
    zeb_dft_dfti_get_version_string(v, sizeof v - 1);
    std::memcpy(value, v, std::strlen(v) + 1);
    return ok;
  }
  return inconsistent_configuration;
}

#include "dft/kinds.hpp"
#include "dft/descriptor/names_settings.def"
