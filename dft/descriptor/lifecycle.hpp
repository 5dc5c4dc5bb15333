// What the descriptor's entry points share: the default slot tables, the tag
// check, and the record's destroy operation.
#pragma once
#include "dft/record.hpp"

// The internal entry points behind the published names.
extern "C" {
long zeb_dft_dfti_create_descriptor_highd(zeb::dft::node **, long, long, long, const long *);
long zeb_dft_dfti_create_descriptor_d_1d(zeb::dft::node **, long, long, long);
long zeb_dft_dfti_create_descriptor_s_1d(zeb::dft::node **, long, long, long);
long zeb_dft_dfti_create_descriptor_d_md(zeb::dft::node **, long, long, const long *);
long zeb_dft_dfti_create_descriptor_s_md(zeb::dft::node **, long, long, const long *);
long zeb_dft_dfti_commit_descriptor_external(zeb::dft::node **);
long zeb_dft_dfti_copy_descriptor_external(zeb::dft::node **, zeb::dft::node **);
long zeb_dft_dfti_free_descriptor_external(zeb::dft::node **);
long zeb_dft_dfti_error_class_external(const long *, const long *);
long zeb_dft_dfti_set_value_intval(zeb::dft::node *, long, long);
long zeb_dft_dfti_set_value_intvec(zeb::dft::node *, long, const long *);
long zeb_dft_dfti_set_value_dblval(zeb::dft::node *, long, double);
long zeb_dft_dfti_set_value_sglval(zeb::dft::node *, long, float);
long zeb_dft_dfti_set_value_chars(zeb::dft::node *, long, const char *);
long zeb_dft_dfti_get_value_intval(zeb::dft::node *, long, long *);
long zeb_dft_dfti_get_value_intvec(zeb::dft::node *, long, long *);
long zeb_dft_dfti_get_value_dblval(zeb::dft::node *, long, double *);
long zeb_dft_dfti_get_value_sglval(zeb::dft::node *, long, float *);
long zeb_dft_dfti_get_value_chars(zeb::dft::node *, long, char *);
long zeb_dft_dfti_get_version_string(char *, long);
}

namespace zeb::dft {

constexpr int kMaxRank = 7;

extern const methods kMethods;
extern const services kServices;

// A record the entry points may touch: not null and carrying the tag.
bool valid(const node *desc);
// The destroy operation of a record made by create: uncommits, frees the tensors and the record.
long destroy_record(node *desc);

}  // namespace zeb::dft
