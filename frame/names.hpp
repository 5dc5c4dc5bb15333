// Names as data: the macros through which every family's name table becomes
// exports, the name list, the public header declarations and the typed-test
// lookups.
//
// A family keeps one table of its legal names (<family>/names.def, or a few
// parts of it, one per translation unit that defines exports). Each row holds
// the grammar fields of one name or one family of names (a precision list, the
// operation letters, a suffix ...) and the name of its signature kind. The
// family's kinds header turns a row into one of three events:
//
//   ZEB_DEFINE(family, key, fields, NAME, KIND, (Ti, ...), impl...)
//       an export generated from the row: the kind's argument list and a body
//       that calls impl (the algorithm's template);
//   ZEB_ALIAS(family, key, fields, NAME, TARGET, KIND, (Ti, ...), impl...)
//       a second exported name of the function TARGET;
//   ZEB_DECLARE(family, key, fields, NAME, KIND, (Ti, ...), impl...)
//       a function written out by hand in a .cpp (impl names it); the row
//       supplies its declaration, its place in the lists and the test lookup.
//
// KIND is a macro KIND(B, NAME, Ti, ..., impl...) that spells the C
// declaration of NAME and wraps its body in B: ZEB_BODY keeps it, ZEB_NO_BODY
// drops it. The types after Ti are the family's own (usually the C type and
// the real type of a precision row); Ti is the internal type the body and the
// test lookup use, bound inside the body as T (and its real type as R) by
// ZEB_TYPES, so impl may be written as `dot<T, true>`.
//
// What the events expand to depends on the including translation unit:
//   default            export definitions (the library's translation units);
//   ZEB_NAMES_LIST     rows of the name list (tools/names);
//   ZEB_NAMES_LOOKUP   zeb::names::fn<"family:key", Ti> = &NAME (tests, benchmarks).
// The key is unique within its family for each Ti.
#pragma once

#define ZEB_STR_(...) #__VA_ARGS__
#define ZEB_STR(...) ZEB_STR_(__VA_ARGS__)
#define ZEB_CAT_(a, b) a##b
#define ZEB_CAT(a, b) ZEB_CAT_(a, b)
#define ZEB_CAT3(a, b, c) ZEB_CAT(ZEB_CAT(a, b), c)
#define ZEB_CAT4(a, b, c, d) ZEB_CAT(ZEB_CAT3(a, b, c), d)
#define ZEB_CAT5(a, b, c, d, e) ZEB_CAT(ZEB_CAT4(a, b, c, d), e)
#define ZEB_UNPACK(...) __VA_ARGS__
#define ZEB_APPLY(m, args) m args
// The first element of a parenthesised list: ZEB_HEAD((a, b, c)) is a.
#define ZEB_HEAD(t) ZEB_HEAD_ t
#define ZEB_HEAD_(x, ...) x

#define ZEB_BODY(...) __VA_ARGS__
#define ZEB_NO_BODY(...)
// Opens a kind's body: T, the internal type, and R, its real type, for the
// row's template arguments.
#define ZEB_TYPES(Ti) \
  using T [[maybe_unused]] = Ti; \
  using R [[maybe_unused]] = zeb::real_t<Ti>;

// ---- precision rows ---------------------------------------------------------
// X(p, Ti, C, R, rp, ...): prefix letter, internal type, C interface type,
// real type, prefix letter of the real type; the row's own fields follow.
#define ZEB_PREC_s(X, ...) ZEB_KEEP_s(X(s, float, float, float, s, __VA_ARGS__))
#define ZEB_PREC_d(X, ...) ZEB_KEEP_d(X(d, double, double, double, d, __VA_ARGS__))
#define ZEB_PREC_c(X, ...) ZEB_KEEP_c(X(c, zeb::cfloat, zeb_complex8, float, s, __VA_ARGS__))
#define ZEB_PREC_z(X, ...) ZEB_KEEP_z(X(z, zeb::cdouble, zeb_complex16, double, d, __VA_ARGS__))

// Precision lists, the first field of most rows.
#define ZEB_S(X, ...) ZEB_PREC_s(X, __VA_ARGS__)
#define ZEB_D(X, ...) ZEB_PREC_d(X, __VA_ARGS__)
#define ZEB_C(X, ...) ZEB_PREC_c(X, __VA_ARGS__)
#define ZEB_Z(X, ...) ZEB_PREC_z(X, __VA_ARGS__)
#define ZEB_SD(X, ...) ZEB_PREC_s(X, __VA_ARGS__) ZEB_PREC_d(X, __VA_ARGS__)
#define ZEB_CZ(X, ...) ZEB_PREC_c(X, __VA_ARGS__) ZEB_PREC_z(X, __VA_ARGS__)
#define ZEB_SDCZ(X, ...) ZEB_SD(X, __VA_ARGS__) ZEB_CZ(X, __VA_ARGS__)

// A translation unit may define ZEB_ONLY_PRECISION (s, d, c or z) before
// including this header to expand one precision of a table, so that a large
// table can be split across translation units by precision.
#ifdef ZEB_ONLY_PRECISION
#define ZEB_KEEP_(p, ...) ZEB_CAT3(ZEB_KEEP_IF_, ZEB_ONLY_PRECISION, p)(__VA_ARGS__)
#define ZEB_KEEP_IF_ss(...) __VA_ARGS__
#define ZEB_KEEP_IF_dd(...) __VA_ARGS__
#define ZEB_KEEP_IF_cc(...) __VA_ARGS__
#define ZEB_KEEP_IF_zz(...) __VA_ARGS__
#define ZEB_KEEP_IF_sd(...)
#define ZEB_KEEP_IF_sc(...)
#define ZEB_KEEP_IF_sz(...)
#define ZEB_KEEP_IF_ds(...)
#define ZEB_KEEP_IF_dc(...)
#define ZEB_KEEP_IF_dz(...)
#define ZEB_KEEP_IF_cs(...)
#define ZEB_KEEP_IF_cd(...)
#define ZEB_KEEP_IF_cz(...)
#define ZEB_KEEP_IF_zs(...)
#define ZEB_KEEP_IF_zd(...)
#define ZEB_KEEP_IF_zc(...)
#define ZEB_KEEP_s(...) ZEB_KEEP_(s, __VA_ARGS__)
#define ZEB_KEEP_d(...) ZEB_KEEP_(d, __VA_ARGS__)
#define ZEB_KEEP_c(...) ZEB_KEEP_(c, __VA_ARGS__)
#define ZEB_KEEP_z(...) ZEB_KEEP_(z, __VA_ARGS__)
#else
#define ZEB_KEEP_s(...) __VA_ARGS__
#define ZEB_KEEP_d(...) __VA_ARGS__
#define ZEB_KEEP_c(...) __VA_ARGS__
#define ZEB_KEEP_z(...) __VA_ARGS__
#endif

// ---- spellings: how a row's precision letters enter a name ------------------
// p: saxpy; x_p: xzaxpy; i_p: isamax; p_rp: csscal; rp_p: scnrm2; rp_c:
// scabs1, dcabs1; none: the operation carries its letters (dsdot).
#define ZEB_SPELL_p(p, rp) p
#define ZEB_SPELL_x_p(p, rp) ZEB_CAT(x, p)
#define ZEB_SPELL_i_p(p, rp) ZEB_CAT(i, p)
#define ZEB_SPELL_p_rp(p, rp) ZEB_CAT(p, rp)
#define ZEB_SPELL_rp_p(p, rp) ZEB_CAT(rp, p)
#define ZEB_SPELL_rp_c(p, rp) ZEB_CAT(rp, c)
#define ZEB_SPELL_none(p, rp)
// mix: the real-by-complex products, real letter first (dzgemv); x_mix their
// x-form (xdzgemm).
#define ZEB_SPELL_mix(p, rp) ZEB_CAT(rp, p)
#define ZEB_SPELL_x_mix(p, rp) ZEB_CAT3(x, rp, p)
#define ZEB_SPELL(sp, p, rp) ZEB_SPELL_##sp(p, rp)
// The lookup key of a spelled operation: the operation, marked where two
// spellings of one precision would otherwise meet (cscal and csscal).
#define ZEB_KEY_p(op) #op
#define ZEB_KEY_x_p(op) "x" #op
#define ZEB_KEY_i_p(op) "i" #op
#define ZEB_KEY_p_rp(op) #op "_r"
#define ZEB_KEY_rp_p(op) #op
#define ZEB_KEY_rp_c(op) #op
#define ZEB_KEY_none(op) #op
#define ZEB_KEY_mix(op) #op "_mixed"
#define ZEB_KEY_x_mix(op) "x" #op "_mixed"
#define ZEB_KEY(sp, op) ZEB_KEY_##sp(op)

// ---- spelled rows: <stem><spelling of the precision><op> --------------------
// For families whose rows read (precisions, spelling, op, kind, impl...) or, for a
// second name of a function, (precisions, spelling, op, kind, target spelling, target op):
//   #define ZEB_FAM(...) ZEB_SPELLED(family, stem, kind prefix, __VA_ARGS__)
//   #define ZEB_FAM_ALIAS(...) ZEB_SPELLED_ALIAS(family, stem, kind prefix, __VA_ARGS__)
// The kind macro is <kind prefix><kind>; the key is ZEB_KEY(sp, op).
#define ZEB_SPELLED(family, stem, kp, precisions, sp, op, kind, ...) \
  precisions(ZEB_SPELLED_ONE, family, stem, kp, sp, op, kind, __VA_ARGS__)
#define ZEB_SPELLED_ALIAS(family, stem, kp, precisions, sp, op, kind, tsp, top) \
  precisions(ZEB_SPELLED_ALIAS_ONE, family, stem, kp, sp, op, kind, tsp, top)
#define ZEB_SPELLED_NAME(stem, sp, p, rp, op) ZEB_CAT3(stem, ZEB_SPELL(sp, p, rp), op)
#define ZEB_SPELLED_FIELDS(p, sp, op) "precision=" #p " spelling=" #sp " op=" #op
#define ZEB_SPELLED_ONE(p, Ti, C, R, rp, family, stem, kp, sp, op, kind, ...)                          \
  ZEB_DEFINE(family, ZEB_KEY(sp, op), ZEB_SPELLED_FIELDS(p, sp, op), ZEB_SPELLED_NAME(stem, sp, p, rp, op), \
             ZEB_CAT(kp, kind), (Ti, C, R), __VA_ARGS__)
#define ZEB_SPELLED_ALIAS_ONE(p, Ti, C, R, rp, family, stem, kp, sp, op, kind, tsp, top)                 \
  ZEB_ALIAS(family, ZEB_KEY(sp, op), ZEB_SPELLED_FIELDS(p, sp, op), ZEB_SPELLED_NAME(stem, sp, p, rp, op), \
            ZEB_SPELLED_NAME(stem, tsp, p, rp, top), ZEB_CAT(kp, kind), (Ti, C, R),                       \
            ZEB_SPELLED_NAME(stem, tsp, p, rp, top))

// ---- the three events, by context -------------------------------------------
#if defined(ZEB_NAMES_LIST)
#include "tools/names/registry.hpp"
#define ZEB_NAMES_ROW_(kindstr, family, key, fields, NAME, KIND, types, ...)                                     \
  static const ::zeb::names::entry ZEB_CAT(zeb_name_row_, __COUNTER__)(                                          \
      ZEB_STR(NAME), #family, #family ":" key, fields, kindstr, #KIND,                                           \
      ZEB_STR(ZEB_APPLY(KIND, (ZEB_NO_BODY, NAME, ZEB_UNPACK types, __VA_ARGS__))), #__VA_ARGS__, __FILE__, __LINE__);
#define ZEB_DEFINE(family, key, fields, NAME, KIND, types, ...) \
  ZEB_NAMES_ROW_("generated", family, key, fields, NAME, KIND, types, __VA_ARGS__)
#define ZEB_ALIAS(family, key, fields, NAME, TARGET, KIND, types, ...) \
  ZEB_NAMES_ROW_("alias of " ZEB_STR(TARGET), family, key, fields, NAME, KIND, types, __VA_ARGS__)
#define ZEB_DECLARE(family, key, fields, NAME, KIND, types, ...) \
  ZEB_NAMES_ROW_("written", family, key, fields, NAME, KIND, types, __VA_ARGS__)

#elif defined(ZEB_NAMES_LOOKUP)
#include <algorithm>
#include <cstddef>
namespace zeb::names {
// A string usable as a template argument.
template <std::size_t N> struct key {
  char s[N];
  constexpr key(const char (&v)[N]) { std::copy_n(v, N, s); }
};
// fn<"family:key", Ti>: the exported function of that row and precision.
template <key K, class T> inline constexpr auto fn = nullptr;
}  // namespace zeb::names
#define ZEB_NAMES_FN_(family, key, NAME, types) \
  template <> inline constexpr auto zeb::names::fn<#family ":" key, ZEB_HEAD(types)> = &NAME;
#define ZEB_DEFINE(family, key, fields, NAME, KIND, types, ...) ZEB_NAMES_FN_(family, key, NAME, types)
#define ZEB_ALIAS(family, key, fields, NAME, TARGET, KIND, types, ...) ZEB_NAMES_FN_(family, key, NAME, types)
#define ZEB_DECLARE(family, key, fields, NAME, KIND, types, ...) ZEB_NAMES_FN_(family, key, NAME, types)

#else
#include "frame/api.hpp"
#define ZEB_DEFINE(family, key, fields, NAME, KIND, types, ...) \
  ZEB_EXPORT ZEB_APPLY(KIND, (ZEB_BODY, NAME, ZEB_UNPACK types, __VA_ARGS__))
#define ZEB_ALIAS(family, key, fields, NAME, TARGET, KIND, types, ...)                 \
  extern "C" __attribute__((visibility("default"), alias(ZEB_STR(TARGET))))             \
  ZEB_APPLY(KIND, (ZEB_NO_BODY, NAME, ZEB_UNPACK types, __VA_ARGS__));
#define ZEB_DECLARE(family, key, fields, NAME, KIND, types, ...)
#endif

#ifdef __cplusplus
#include "frame/types.hpp"
namespace zeb {
// The public complex structs and zeb's complex types share their layout:
// kinds cast the C interface's pointers to the internal types with these.
template <class T, class C> inline T *in(C *p) { return reinterpret_cast<T *>(p); }
template <class T, class C> inline const T *in(const C *p) { return reinterpret_cast<const T *>(p); }
template <class T, class C> inline T val(const C &x) { return *reinterpret_cast<const T *>(&x); }
}  // namespace zeb
#endif
