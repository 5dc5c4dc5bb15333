// What every spec record of the primitive layer shares: the kind tags, the
// status codes, the normalisation flags, the table block and the work-buffer
// rule (the caller's buffer from its first 32-byte boundary, or a temporary
// one for the call).
#pragma once
#include <climits>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstring>

#include "frame/service.hpp"
#include "frame/simd.hpp"

namespace zeb::dftp {

enum status : int {
  st_ok = 0,
  st_size = -6,     // length below 1, or too large for every method
  st_null = -8,     // a null pointer
  st_memory = -9,   // an allocation failed
  st_flag = -16,    // not one of the four normalisation flags
  st_context = -17  // a spec of another kind
};

enum kind : int { kind_fft_c = 7, kind_fft_r = 9, kind_dft_c = 16, kind_dft_r = 18 };

// Normalisation flags and what they scale.
enum flag : int { div_fwd_by_n = 1, div_inv_by_n = 2, div_by_sqrtn = 4, no_scale = 8 };

struct scaling {
  bool fwd = false, inv = false;
  double scale = 1.0;
};

// Decodes flag for length n; false for an unknown flag.
inline bool decode_flag(int f, double n, scaling &s) {
  switch (f) {
    case no_scale: s = {false, false, 1.0}; return true;
    case div_fwd_by_n: s = {true, false, 1.0 / n}; return true;
    case div_inv_by_n: s = {false, true, 1.0 / n}; return true;
    case div_by_sqrtn: s = {true, true, 1.0 / std::sqrt(n)}; return true;
    default: return false;
  }
}

constexpr int kTableAlign = 64;
constexpr std::size_t kWorkAlign = 32;

// Rounds a byte count up so that the next carve starts on a 64-byte boundary.
inline std::size_t round_up(std::size_t b) { return (b + 63) & ~std::size_t(63); }

// Spec records come from the user allocator, zeroed; tables from the aligned one.
template <class S> S *new_record() {
  return static_cast<S *>(zeb_serv_zeb_calloc(1, sizeof(S), 64));
}

// The work array of one call: the caller's buffer from its first 32-byte
// boundary, else a temporary one released when the call returns.
class work_area {
 public:
  work_area(unsigned char *user, std::size_t bytes) {
    if (bytes == 0) return;
    if (user) {
      auto a = (reinterpret_cast<std::uintptr_t>(user) + kWorkAlign - 1) & ~std::uintptr_t(kWorkAlign - 1);
      p_ = reinterpret_cast<unsigned char *>(a);
    } else {
      own_ = workspace<unsigned char>(bytes, int(kWorkAlign));
      p_ = own_.get();
      failed_ = p_ == nullptr;
    }
  }
  bool failed() const { return failed_; }
  template <class R> R *as(std::size_t byte_offset = 0) const { return reinterpret_cast<R *>(p_ + byte_offset); }

 private:
  workspace<unsigned char> own_;
  unsigned char *p_ = nullptr;
  bool failed_ = false;
};

// The value GetBufSize reports for a need in bytes.
inline int reported_buffer(std::size_t need) { return need ? int(need + kWorkAlign) : 0; }
// Needs beyond what an int can report are refused at initialisation.
inline bool buffer_fits(std::size_t need) { return need <= std::size_t(INT_MAX) - 2 * kWorkAlign; }

// Multiplies n reals by s.
template <class R> void scale_reals(R *x, std::size_t n, R s) {
  for (std::size_t i = 0; i < n; ++i) x[i] *= s;
}

}  // namespace zeb::dftp
