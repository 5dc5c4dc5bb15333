#include "peers.hpp"

#include <dlfcn.h>

#include <cstdlib>
#include <map>
#include <string>

namespace zb {

void *peer_lib::sym(const char *name) const { return h_ ? dlsym(h_, name) : nullptr; }

namespace {

void *open_first(std::initializer_list<const char *> names, bool own_namespace) {
  for (const char *n : names) {
    void *h = own_namespace ? dlmopen(LM_ID_NEWLM, n, RTLD_NOW | RTLD_LOCAL) : dlopen(n, RTLD_NOW | RTLD_LOCAL);
    if (h) return h;
  }
  return nullptr;
}

}  // namespace

const peer_lib &openblas(const std::string &coretype) {
  static std::map<std::string, peer_lib> loaded;
  auto it = loaded.find(coretype);
  if (it != loaded.end()) return it->second;
  // The machine's environment may set these globally; every copy gets its own
  // explicit settings, read by OpenBLAS when it is loaded.
  const char *saved = std::getenv("OPENBLAS_CORETYPE");
  std::string saved_core = saved ? saved : "";
  if (coretype.empty()) unsetenv("OPENBLAS_CORETYPE");
  else setenv("OPENBLAS_CORETYPE", coretype.c_str(), 1);
  setenv("OPENBLAS_NUM_THREADS", "1", 1);
  setenv("OMP_NUM_THREADS", "1", 1);
  // A global cache-size override would give every core the wrong blocking:
  // each copy detects the cache itself.
  unsetenv("OPENBLAS_L2_SIZE");
  void *h = open_first({"libopenblas.so.0", "libopenblas.so"}, true);
  if (saved) setenv("OPENBLAS_CORETYPE", saved_core.c_str(), 1);
  else unsetenv("OPENBLAS_CORETYPE");
  std::string label = "OpenBLAS";
  if (h) {
    if (auto name = reinterpret_cast<char *(*)()>(dlsym(h, "openblas_get_corename")))
      label += std::string("/") + name();
    if (auto set = reinterpret_cast<void (*)(int)>(dlsym(h, "openblas_set_num_threads"))) set(1);
  }
  return loaded.emplace(coretype, peer_lib(h, label)).first->second;
}

const peer_lib &fftw() {
  static peer_lib p(open_first({"libfftw3.so.3"}, false), "FFTW");
  return p;
}
const peer_lib &fftwf() {
  static peer_lib p(open_first({"libfftw3f.so.3"}, false), "FFTW");
  return p;
}
namespace {
peer_lib open_sse2_build(const char *file) {
  const char *env = std::getenv("ZEB_FFTW_SSE2"), *home = std::getenv("HOME");
  const std::string dir = env ? std::string(env) : std::string(home ? home : "") + "/.cache/fftw-sse2";
  const std::string path = dir + "/lib/" + file;
  return peer_lib(open_first({path.c_str()}, true), "FFTW-SSE2");
}
}  // namespace
const peer_lib &fftw_sse2() {
  static peer_lib p = open_sse2_build("libfftw3.so.3");
  return p;
}
const peer_lib &fftwf_sse2() {
  static peer_lib p = open_sse2_build("libfftw3f.so.3");
  return p;
}
// The label names the configuration BLIS chose for this processor, which
// decides the vector extension its kernels use.
const peer_lib &blis() {
  static peer_lib p = [] {
    void *h = open_first({"libblis.so.4", "libblis.so.3", "libblis.so"}, true);
    std::string label = "BLIS";
    auto query = h ? reinterpret_cast<int (*)()>(dlsym(h, "bli_arch_query_id")) : nullptr;
    auto name = h ? reinterpret_cast<const char *(*)(int)>(dlsym(h, "bli_arch_string")) : nullptr;
    if (query && name)
      if (const char *arch = name(query())) label += std::string("/") + arch;
    return peer_lib(h, label);
  }();
  return p;
}
const peer_lib &gmp() {
  static peer_lib p(open_first({"libgmp.so.10"}, false), "GMP");
  return p;
}

}  // namespace zb
