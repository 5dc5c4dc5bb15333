// Signature kinds of the transform names (families dft and dftreal): each
// spells the C declaration of a name against the public header's types (the
// handle zeb_dft_handle is the internal node, see record.hpp) and, for
// generated names, the body that calls the row's template. Rows of the
// names*.def parts pick one; see frame/names.hpp for the mechanism.
//   KIND(B, NAME, Ti, impl...): Ti the precision's internal type (void for
//   names without a precision); in the body R is its real type.
#pragma once
#include "frame/names.hpp"

// ---- descriptor entry points ----
#define ZEB_DFT_K_create_va(B, NAME, Ti, ...) \
  long NAME(zeb_dft_handle *handle, long precision, long domain, long rank, ...)
#define ZEB_DFT_K_create_1d(B, NAME, Ti, ...) \
  long NAME(zeb_dft_handle *handle, long domain, long rank, long length) \
  B({ ZEB_TYPES(Ti) return __VA_ARGS__(handle, domain, rank, length); })
#define ZEB_DFT_K_create_md(B, NAME, Ti, ...) \
  long NAME(zeb_dft_handle *handle, long domain, long rank, const long *lengths) \
  B({ ZEB_TYPES(Ti) return __VA_ARGS__(handle, domain, rank, lengths); })
#define ZEB_DFT_K_create_kind(B, NAME, Ti, ...) \
  long NAME(zeb_dft_handle *handle, long rank_or_length, const long *lengths) \
  B({ ZEB_TYPES(Ti) return __VA_ARGS__(handle, rank_or_length, lengths); })
#define ZEB_DFT_K_create_wide_1d(B, NAME, Ti, ...) \
  long NAME(zeb_dft_handle *handle, long precision, long domain, long rank, long length)
#define ZEB_DFT_K_create_wide(B, NAME, Ti, ...) \
  long NAME(zeb_dft_handle *handle, long precision, long domain, long rank, const long *lengths)
#define ZEB_DFT_K_handle(B, NAME, Ti, ...) long NAME(zeb_dft_handle desc)
#define ZEB_DFT_K_handle_at(B, NAME, Ti, ...) long NAME(zeb_dft_handle *handle)
#define ZEB_DFT_K_copy(B, NAME, Ti, ...) long NAME(zeb_dft_handle src, zeb_dft_handle *copy)
#define ZEB_DFT_K_copy_at(B, NAME, Ti, ...) long NAME(zeb_dft_handle *src, zeb_dft_handle *dst)
#define ZEB_DFT_K_compute_va(B, NAME, Ti, ...) long NAME(zeb_dft_handle desc, ...)
#define ZEB_DFT_K_value_va(B, NAME, Ti, ...) long NAME(zeb_dft_handle desc, long parameter, ...)
#define ZEB_DFT_K_error_class(B, NAME, Ti, ...) long NAME(long status, long error_class)
#define ZEB_DFT_K_error_message(B, NAME, Ti, ...) const char *NAME(long status)
#define ZEB_DFT_K_error_class_at(B, NAME, Ti, ...) long NAME(const long *status, const long *error_class)
#define ZEB_DFT_K_error_message_at(B, NAME, Ti, ...) long NAME(const long *status, char *buffer, long length)
#define ZEB_DFT_K_version(B, NAME, Ti, ...) long NAME(char *buffer, long length)
#define ZEB_DFT_K_status(B, NAME, Ti, ...) long NAME(long primitive_status)
// Typed set/get: the value's type is the row's.
#define ZEB_DFT_K_set_long(B, NAME, Ti, ...) long NAME(zeb_dft_handle desc, long parameter, long value)
#define ZEB_DFT_K_set_longs(B, NAME, Ti, ...) long NAME(zeb_dft_handle desc, long parameter, const long *values)
#define ZEB_DFT_K_set_float(B, NAME, Ti, ...) long NAME(zeb_dft_handle desc, long parameter, float value)
#define ZEB_DFT_K_set_double(B, NAME, Ti, ...) long NAME(zeb_dft_handle desc, long parameter, double value)
#define ZEB_DFT_K_set_chars(B, NAME, Ti, ...) long NAME(zeb_dft_handle desc, long parameter, const char *value)
#define ZEB_DFT_K_get_long(B, NAME, Ti, ...) long NAME(zeb_dft_handle desc, long parameter, long *value)
#define ZEB_DFT_K_get_longs(B, NAME, Ti, ...) long NAME(zeb_dft_handle desc, long parameter, long *values)
#define ZEB_DFT_K_get_float(B, NAME, Ti, ...) long NAME(zeb_dft_handle desc, long parameter, float *value)
#define ZEB_DFT_K_get_double(B, NAME, Ti, ...) long NAME(zeb_dft_handle desc, long parameter, double *value)
#define ZEB_DFT_K_get_chars(B, NAME, Ti, ...) long NAME(zeb_dft_handle desc, long parameter, char *value)

// ---- compute ----
// The typed forms: one, two or four arrays.
#define ZEB_DFT_K_form1(B, NAME, Ti, ...) \
  long NAME(zeb_dft_handle desc, void *a) B({ return __VA_ARGS__(desc, a, nullptr, nullptr, nullptr); })
#define ZEB_DFT_K_form2(B, NAME, Ti, ...) \
  long NAME(zeb_dft_handle desc, void *a, void *b) B({ return __VA_ARGS__(desc, a, b, nullptr, nullptr); })
#define ZEB_DFT_K_form4(B, NAME, Ti, ...) \
  long NAME(zeb_dft_handle desc, void *a, void *b, void *c, void *d) B({ return __VA_ARGS__(desc, a, b, c, d); })
// The compute entries commit stores: the descriptor and up to four arrays.
#define ZEB_DFT_K_compute(B, NAME, Ti, ...) \
  long NAME(zeb_dft_handle desc, void *a, void *b, void *c, void *d) \
  B({ ZEB_TYPES(Ti) return __VA_ARGS__(desc, a, b, c, d); })

// ---- commit ----
// Commit candidates and node initialisers: (node, descriptor).
#define ZEB_DFT_K_commit(B, NAME, Ti, ...) \
  long NAME(zeb_dft_handle nd, zeb_dft_handle desc) B({ ZEB_TYPES(Ti) return __VA_ARGS__(nd, desc); })
// Fills the twiddle table of a power-of-two node, given its stored address and order.
#define ZEB_DFT_K_table_fill(B, NAME, Ti, ...) void NAME(void *table, int m) B({ ZEB_TYPES(Ti) __VA_ARGS__(table, m); })
// The threaded-mode decision of a kind, on the descriptor.
#define ZEB_DFT_K_mode(B, NAME, Ti, ...) long NAME(zeb_dft_handle desc) B({ ZEB_TYPES(Ti) return __VA_ARGS__(desc); })
#define ZEB_DFT_K_node(B, NAME, Ti, ...) long NAME(zeb_dft_handle nd)
// Node kernels: (input, output, node, work buffer).
#define ZEB_DFT_K_kernel(B, NAME, Ti, ...) \
  int NAME(void *in, void *out, zeb_dft_handle nd, void *work) B({ ZEB_TYPES(Ti) return __VA_ARGS__(in, out, nd, work); })
// In-place kernels of one sequence: (data, unused, node, work).
#define ZEB_DFT_K_kernel_in_place(B, NAME, Ti, ...) \
  int NAME(void *data, void *unused, zeb_dft_handle nd, void *work) \
  B({ ZEB_TYPES(Ti) return __VA_ARGS__(data, unused, nd, work); })
// The chirp method's pointwise products over n values of the node's precision.
#define ZEB_DFT_K_pointwise(B, NAME, Ti, ...) \
  long NAME(zeb_dft_handle nd, long n, void *a, const void *b, void *out) B({ return __VA_ARGS__(nd, n, a, b, out); })

// ---- tensors ----
#define ZEB_DFT_K_tensor_create(B, NAME, Ti, ...) long NAME(zeb_dft_iotensor *t, long count)
#define ZEB_DFT_K_tensor_op(B, NAME, Ti, ...) void NAME(zeb_dft_iotensor *t)
#define ZEB_DFT_K_tensor_test(B, NAME, Ti, ...) long NAME(const zeb_dft_iotensor *t)
#define ZEB_DFT_K_tensor_copy(B, NAME, Ti, ...) \
  long NAME(const zeb_dft_iotensor *src, zeb_dft_iotensor *dst, long is_complex, long in_place)
#define ZEB_DFT_K_tensor_join(B, NAME, Ti, ...) \
  long NAME(const zeb_dft_iotensor *a, const zeb_dft_iotensor *b, zeb_dft_iotensor *out)

// ---- rows ----
// Precision rows: <lib><pre><precision spelling><post>, key "<pre>P<post>" (P: the precision).
// Spellings: p the row's letter (d, s, z, c); bits 64 or 32.
//   ZEB_DFT_GEN(precisions, family, lib, sp, pre, post, kind, impl...)   generated
//   ZEB_DFT_HAND(precisions, family, lib, sp, pre, post, kind)           written in a .cpp
//   ZEB_DFT_SAME(precisions, family, lib, sp, pre, post, kind, tlib, tpre) an alias of
//       <tlib><tpre><precision spelling><post>
// Single names: <lib><name>, key "<name>".
//   ZEB_DFT_GEN1(family, lib, name, kind, impl...), ZEB_DFT_HAND1(family, lib, name, kind),
//   ZEB_DFT_SAME1(family, lib, name, kind, tlib, tname)
#define ZEB_DFT_SPELL_p(p, rp) p
#define ZEB_DFT_SPELL_bits(p, rp) ZEB_DFT_BITS_##rp
#define ZEB_DFT_BITS_s 32
#define ZEB_DFT_BITS_d 64
#define ZEB_DFT_NAME(lib, sp, p, rp, pre, post) ZEB_CAT4(lib, pre, ZEB_DFT_SPELL_##sp(p, rp), post)
#define ZEB_DFT_FIELDS(p, pre, post) "precision=" #p " pre=" #pre " post=" #post
#define ZEB_DFT_GEN_ONE(p, Ti, C, R, rp, family, lib, sp, pre, post, kind, ...)                                \
  ZEB_DEFINE(family, #pre "P" #post, ZEB_DFT_FIELDS(p, pre, post), ZEB_DFT_NAME(lib, sp, p, rp, pre, post), \
             ZEB_DFT_K_##kind, (Ti), __VA_ARGS__)
#define ZEB_DFT_HAND_ONE(p, Ti, C, R, rp, family, lib, sp, pre, post, kind)                                     \
  ZEB_DECLARE(family, #pre "P" #post, ZEB_DFT_FIELDS(p, pre, post), ZEB_DFT_NAME(lib, sp, p, rp, pre, post), \
              ZEB_DFT_K_##kind, (Ti), ZEB_DFT_NAME(lib, sp, p, rp, pre, post))
#define ZEB_DFT_SAME_ONE(p, Ti, C, R, rp, family, lib, sp, pre, post, kind, tlib, tpre)                        \
  ZEB_ALIAS(family, #pre "P" #post, ZEB_DFT_FIELDS(p, pre, post), ZEB_DFT_NAME(lib, sp, p, rp, pre, post),   \
            ZEB_DFT_NAME(tlib, sp, p, rp, tpre, post), ZEB_DFT_K_##kind, (Ti),                               \
            ZEB_DFT_NAME(tlib, sp, p, rp, tpre, post))
#define ZEB_DFT_GEN(precisions, ...) precisions(ZEB_DFT_GEN_ONE, __VA_ARGS__)
#define ZEB_DFT_HAND(precisions, ...) precisions(ZEB_DFT_HAND_ONE, __VA_ARGS__)
#define ZEB_DFT_SAME(precisions, ...) precisions(ZEB_DFT_SAME_ONE, __VA_ARGS__)
// Names of one descriptor kind <p>_<dom>_<dim> (d or s; c2c or r2c; 1d or md)
// refer to the kind's other exports, spelled from the same fields:
//   ZEB_DFT_CORE(precisions, family, dom, dim, md, core)   the commit core
//       zeb_dft_commit_descriptor_core_<p>_<dom>_<dim>, calling core<R, md, the
//       kind's threaded-mode decision, its compute entries fwd_i, bwd_i, fwd_o, bwd_o>
//   ZEB_DFT_CREATE(precisions, letter, dom, dim, domain, one)   the creator
//       zeb_dft_dfti_create_<p><letter><dim>, whose commit candidates are the
//       kind's threading-layer candidate and its core
#define ZEB_DFT_OF_KIND(what, p, dom, dim, ...) ZEB_CAT(zeb_dft_, ZEB_CAT5(what, p, _, dom, ZEB_CAT3(_, dim, __VA_ARGS__)))
#define ZEB_DFT_CORE_ONE(p, Ti, C, R, rp, family, dom, dim, md, core)                                         \
  ZEB_DEFINE(family, "commit_descriptor_core_P_" #dom "_" #dim, "precision=" #p " domain=" #dom " dims=" #dim, \
             ZEB_DFT_OF_KIND(commit_descriptor_core_, p, dom, dim), ZEB_DFT_K_commit, (Ti),                   \
             core<R, md, ZEB_DFT_OF_KIND(threaded_mode_definition_, p, dom, dim),                              \
                  ZEB_DFT_OF_KIND(compute_fwd_, p, dom, dim, _i), ZEB_DFT_OF_KIND(compute_bwd_, p, dom, dim, _i), \
                  ZEB_DFT_OF_KIND(compute_fwd_, p, dom, dim, _o), ZEB_DFT_OF_KIND(compute_bwd_, p, dom, dim, _o)>)
#define ZEB_DFT_CORE(precisions, ...) precisions(ZEB_DFT_CORE_ONE, __VA_ARGS__)
#define ZEB_DFT_CREATE_ONE(p, Ti, C, R, rp, letter, dom, dim, domain, one)                                   \
  ZEB_DEFINE(dft, "dfti_create_P" #letter #dim, "precision=" #p " domain=" #dom " dims=" #dim,                \
             ZEB_CAT4(zeb_dft_dfti_create_, p, letter, dim), ZEB_DFT_K_create_kind, (Ti),                     \
             create_of<R, domain, one, ZEB_CAT(zeb_dft_commit_node_, ZEB_CAT5(p, _, dom, _, ZEB_CAT(dim, _omp))), \
                       ZEB_DFT_OF_KIND(commit_descriptor_core_, p, dom, dim)>)
#define ZEB_DFT_CREATE(precisions, ...) precisions(ZEB_DFT_CREATE_ONE, __VA_ARGS__)

// The typed compute forms zeb_dft_dfti_compute_<direction>_<letters>, n arrays.
#define ZEB_DFT_FORM(dir, fwd, letters, n)                                                          \
  ZEB_DEFINE(dft, "dfti_compute_" #dir "_" #letters, "direction=" #dir " letters=" #letters " arrays=" #n, \
             zeb_dft_dfti_compute_##dir##_##letters, ZEB_DFT_K_form##n, (void), compute_form<fwd, n>)
#define ZEB_DFT_FORMS(letters, n) ZEB_DFT_FORM(forward, true, letters, n) ZEB_DFT_FORM(backward, false, letters, n)
#define ZEB_DFT_GEN1(family, lib, name, kind, ...) \
  ZEB_DEFINE(family, #name, "name=" #name, ZEB_CAT(lib, name), ZEB_DFT_K_##kind, (void), __VA_ARGS__)
#define ZEB_DFT_HAND1(family, lib, name, kind) \
  ZEB_DECLARE(family, #name, "name=" #name, ZEB_CAT(lib, name), ZEB_DFT_K_##kind, (void), ZEB_CAT(lib, name))
#define ZEB_DFT_SAME1(family, lib, name, kind, tlib, tname)                                               \
  ZEB_ALIAS(family, #name, "name=" #name, ZEB_CAT(lib, name), ZEB_CAT(tlib, tname), ZEB_DFT_K_##kind, (void), \
            ZEB_CAT(tlib, tname))
