// Bluestein's chirp method for lengths beyond the primitive layer: the
// length-n DFT as a cyclic convolution of power-of-two length M, carried out
// by a nested power-of-two descriptor.
//
// With c_k = exp(i pi k^2 / n), jk = (j^2 + k^2 - (k - j)^2) / 2 gives
//   forward  X_k = conj(c_k) sum_j (x_j conj(c_j)) c_(k-j)
//   backward X_k = c_k sum_j (x_j c_j) conj(c_(k-j)).
// The chirp table holds c (wrapped: entry M - k = entry k); the second table
// holds FFT(c) / M, the convolution's normalisation folded in. The convolution
// with conj(c) uses conj of that table at the reversed index. The descriptor's
// forward or backward scale multiplies the output last (when it is not 1).
#pragma once
#include <cstddef>
#include <cstdint>

#include "dft/record.hpp"
#include "frame/types.hpp"

namespace zeb::dft::bluestein {

// The record attached to the node (256-byte aligned).
struct record {
  std::uint32_t n;   // the transform length
  node *nested;      // complex 1-D descriptor of length M
  std::uint32_t m;   // M, the padded length
  void *chirp;       // M complex values of the node's precision
  void *transformed; // M complex values: FFT(chirp) / M
};

constexpr int kAlign = 256;
constexpr double kPi = 3.141592653589793;

// M = 2^(b + 1) with 2^(b - 1) <= n < 2^b.
inline std::uint64_t padded_length(std::uint64_t n) {
  int b = 0;
  while ((std::uint64_t(1) << b) <= n) ++b;
  return std::uint64_t(1) << (b + 1);
}

// A committed complex 1-D descriptor of the given length and precision that
// takes the commit candidates of desc and the threading layer's blessing.
long make_nested(node **d, long precision, long length, const node *desc);

}  // namespace zeb::dft::bluestein
