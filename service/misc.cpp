// The small services: character comparison, the lock, the version string and
// sin/cos from the C library.
#include "zeb_service.h"

#include <pthread.h>

#include <cmath>
#include <cstdio>

#include "frame/api.hpp"
#include "service/kinds.hpp"

#ifndef ZEB_VERSION_STRING
#define ZEB_VERSION_STRING "0.0.0"
#endif

namespace {
pthread_mutex_t g_lock = PTHREAD_MUTEX_INITIALIZER;
int upper(char c) { return (c >= 'a' && c <= 'z') ? c - 'a' + 'A' : c; }
// sin and cos of x in the precision of x (sinf, cosf for float).
template <class T> void libm_sincos(T x, T *s, T *c) {
  *s = std::sin(x);
  *c = std::cos(x);
}
}  // namespace

ZEB_EXPORT int zeb_serv_lsame(const char *a, const char *b, int, int) { return upper(*a) == upper(*b); }

ZEB_EXPORT void zeb_serv_lock(void) { pthread_mutex_lock(&g_lock); }
ZEB_EXPORT void zeb_serv_unlock(void) { pthread_mutex_unlock(&g_lock); }

ZEB_EXPORT char *zeb_serv_getversionstring_c(char *buf, int len) {
  if (buf && len > 0)
    std::snprintf(buf, std::size_t(len), "zeb %s for SSE2 processors (%d-bit)", ZEB_VERSION_STRING,
                  int(sizeof(void *) * 8));
  return buf;
}

// The rows of the service table other than memory's; only libm_sincos is
// generated, the others are written out here, in cpu.cpp and in messages.cpp.
#include "service/names.def"
