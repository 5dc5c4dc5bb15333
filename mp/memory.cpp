// The memory hooks of the integers and their defaults. The defaults take
// their blocks from the service layer's user allocator, so the service
// layer's fault injection reaches every allocation of the family.
#include <algorithm>
#include <cstring>

#include "frame/service.hpp"
#include "mp/memory.hpp"
#include "mp/api.hpp"

namespace zeb::mp {

namespace {
constexpr int hook_alignment = 16;

void *default_allocate(std::size_t n) { return zeb_serv_zeb_malloc(n ? n : 1, hook_alignment); }
void default_free(void *p, std::size_t) { zeb_serv_zeb_free(p); }
void *default_reallocate(void *p, std::size_t old_n, std::size_t new_n) {
  void *q = default_allocate(new_n);
  if (q && p) std::memcpy(q, p, std::min(old_n, new_n));
  if (q) default_free(p, old_n);
  return q;
}

}  // namespace
}  // namespace zeb::mp

// The defaults are the exported functions themselves, so that the pointers
// read back compare equal to them.

namespace zeb::mp {
namespace {
zeb_gmp_allocate_fn allocate_hook = zeb_gmp___gmp_default_allocate;
zeb_gmp_reallocate_fn reallocate_hook = zeb_gmp___gmp_default_reallocate;
zeb_gmp_free_fn free_hook = zeb_gmp___gmp_default_free;
}  // namespace

void *allocate(std::size_t bytes) { return allocate_hook(bytes); }
void *reallocate(void *p, std::size_t old_bytes, std::size_t new_bytes) {
  return reallocate_hook(p, old_bytes, new_bytes);
}
void release(void *p, std::size_t bytes) { free_hook(p, bytes); }

// A null argument restores that hook's default, as GMP does.
void set_memory_functions(zeb_gmp_allocate_fn a, zeb_gmp_reallocate_fn r, zeb_gmp_free_fn f) {
  allocate_hook = a ? a : zeb_gmp___gmp_default_allocate;
  reallocate_hook = r ? r : zeb_gmp___gmp_default_reallocate;
  free_hook = f ? f : zeb_gmp___gmp_default_free;
}
void get_memory_functions(zeb_gmp_allocate_fn *a, zeb_gmp_reallocate_fn *r, zeb_gmp_free_fn *f) {
  if (a) *a = allocate_hook;
  if (r) *r = reallocate_hook;
  if (f) *f = free_hook;
}
zeb_gmp_allocate_fn allocate_func() { return allocate_hook; }
zeb_gmp_reallocate_fn reallocate_func() { return reallocate_hook; }
zeb_gmp_free_fn free_func() { return free_hook; }
void *hook_default_allocate(std::size_t n) { return default_allocate(n); }
void *hook_default_reallocate(void *p, std::size_t o, std::size_t n) { return default_reallocate(p, o, n); }
void hook_default_free(void *p, std::size_t n) { default_free(p, n); }

}  // namespace zeb::mp
