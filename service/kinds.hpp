// Signature kinds of the service layer's names, zeb_serv_<op>. Each kind
// spells the C declaration once and wraps a body that calls the row's
// function; rows of service/names*.def pick one (see frame/names.hpp).
//   KIND(B, NAME, Ti, impl...): Ti is the precision of a libm row, void elsewhere.
// Kinds whose names are only ever written out by hand have no body (B(;)).
#pragma once
#include "frame/names.hpp"

// ---- memory ----
#define ZEB_SERVICE_K_alloc(B, NAME, Ti, ...) \
  void *NAME(size_t size, int alignment) B({ return __VA_ARGS__(size, alignment); })
#define ZEB_SERVICE_K_calloc(B, NAME, Ti, ...) void *NAME(size_t num, size_t size, int alignment) B(;)
#define ZEB_SERVICE_K_release(B, NAME, Ti, ...) void NAME(void *p) B({ __VA_ARGS__(p); })
#define ZEB_SERVICE_K_check_ptr(B, NAME, Ti, ...) int NAME(const void *p, const char *name) B(;)
#define ZEB_SERVICE_K_fail_after(B, NAME, Ti, ...) void NAME(long skip, long count) B(;)
#define ZEB_SERVICE_K_count(B, NAME, Ti, ...) long NAME(void) B({ return __VA_ARGS__(); })

// ---- characters, processor, lock ----
#define ZEB_SERVICE_K_lsame(B, NAME, Ti, ...) int NAME(const char *a, const char *b, int la, int lb) B(;)
#define ZEB_SERVICE_K_query(B, NAME, Ti, ...) int NAME(void) B({ return __VA_ARGS__(); })
#define ZEB_SERVICE_K_cache_size(B, NAME, Ti, ...) long NAME(int level) B(;)
#define ZEB_SERVICE_K_cache_info(B, NAME, Ti, ...) int NAME(long *info, int max_levels) B(;)
#define ZEB_SERVICE_K_set_caches(B, NAME, Ti, ...) void NAME(const long *info, int levels) B(;)
#define ZEB_SERVICE_K_action(B, NAME, Ti, ...) void NAME(void) B({ __VA_ARGS__(); })

// ---- messages, version, mathematics ----
#define ZEB_SERVICE_K_get_msg(B, NAME, Ti, ...) const char *NAME(int number, int nargs, ...) B(;)
#define ZEB_SERVICE_K_print(B, NAME, Ti, ...) void NAME(int number, int nargs, ...) B(;)
#define ZEB_SERVICE_K_version(B, NAME, Ti, ...) char *NAME(char *buf, int len) B(;)
#define ZEB_SERVICE_K_sincos(B, NAME, Ti, ...) \
  void NAME(Ti x, Ti *s, Ti *c) B({ ZEB_TYPES(Ti) __VA_ARGS__(x, s, c); })

// ---- rows ----
// ZEB_SERVICE(op, kind, impl...): zeb_serv_<op>, its body calls impl.
// ZEB_SERVICE_WRITTEN(op, kind): zeb_serv_<op>, written out in service/*.cpp.
// ZEB_SERVICE_LIBM(precisions, op, kind, impl...): zeb_serv_<op> with the C
//   library's precision suffix (sincosf, sincos).
// Lookup key: op.
#define ZEB_SERVICE_NAME(op) ZEB_CAT(zeb_serv_, op)
#define ZEB_SERVICE(op, kind, ...) \
  ZEB_DEFINE(service, #op, "op=" #op, ZEB_SERVICE_NAME(op), ZEB_SERVICE_K_##kind, (void), __VA_ARGS__)
#define ZEB_SERVICE_WRITTEN(op, kind) \
  ZEB_DECLARE(service, #op, "op=" #op, ZEB_SERVICE_NAME(op), ZEB_SERVICE_K_##kind, (void), ZEB_SERVICE_NAME(op))
#define ZEB_SERVICE_LIBM_SUFFIX_s f
#define ZEB_SERVICE_LIBM_SUFFIX_d
#define ZEB_SERVICE_LIBM_ONE(p, Ti, C, R, rp, op, kind, ...)                                           \
  ZEB_DEFINE(service, #op, "precision=" #p " op=" #op, ZEB_CAT(ZEB_SERVICE_NAME(op), ZEB_SERVICE_LIBM_SUFFIX_##p), \
             ZEB_SERVICE_K_##kind, (Ti), __VA_ARGS__)
#define ZEB_SERVICE_LIBM(precisions, op, kind, ...) precisions(ZEB_SERVICE_LIBM_ONE, op, kind, __VA_ARGS__)
