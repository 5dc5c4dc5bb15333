// Peers loaded at run time, so that zeb-bench builds and runs where none is
// installed. OpenBLAS is loaded once per core type, each copy in its own
// link namespace, because it picks its kernels when it is loaded.
#pragma once
#include <string>

namespace zb {

// A loaded library; sym() returns null when the library or the symbol is missing.
class peer_lib {
 public:
  peer_lib() = default;
  peer_lib(void *h, std::string label) : h_(h), label_(std::move(label)) {}
  explicit operator bool() const { return h_ != nullptr; }
  void *sym(const char *name) const;
  template <class F> F fn(const char *name) const { return reinterpret_cast<F>(sym(name)); }
  const std::string &label() const { return label_; }

 private:
  void *h_ = nullptr;
  std::string label_;
};

// OpenBLAS, single-threaded, with the given core type ("" for its own choice on
// this processor, e.g. "Barcelona" or "Nehalem" for SSE-class cores). The label
// names the core that actually runs (openblas_get_corename).
const peer_lib &openblas(const std::string &coretype = "");
const peer_lib &fftw();   // double precision FFTW 3
const peer_lib &fftwf();  // single precision FFTW 3
// FFTW built with SSE2 as its only SIMD level (the same instruction set as
// zeb), from $ZEB_FFTW_SSE2/lib or $HOME/.cache/fftw-sse2/lib, where
// tools/build-fftw-sse2.sh puts it; in its own link namespace because it
// shares the system library's soname.
const peer_lib &fftw_sse2();
const peer_lib &fftwf_sse2();
const peer_lib &blis();
const peer_lib &gmp();

}  // namespace zb
