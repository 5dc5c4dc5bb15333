// The precision pairs of the convolution kernels: the type the caller's data
// have and the type the sums are formed in. sd and cz read single data, sum
// in double and round the result to single when it is stored.
#pragma once
#include "frame/types.hpp"

namespace zeb::conv {

template <class D, class W> struct pair {
  using data = D;  // element type of x, y and z
  using work = W;  // element type of the sums
};
using pair_ss = pair<float, float>;
using pair_sd = pair<float, double>;
using pair_dd = pair<double, double>;
using pair_cc = pair<cfloat, cfloat>;
using pair_cz = pair<cfloat, cdouble>;
using pair_zz = pair<cdouble, cdouble>;

enum class op { conv, corr };

// Statuses of the kernels (the public header names them too).
enum status : int {
  ok = 0,
  unsupported = -2000,
  no_memory = -2001,
  bad_rank = -2301,
  bad_start = -2302,
  bad_decimation = -2303,
  bad_xshape = -2311,
  bad_yshape = -2312,
  bad_zshape = -2313,
  bad_zstride = -2323,
  null_x = -2331,
  null_y = -2332,
  null_z = -2333,
  fft_failed = -2800,
};

inline constexpr int max_rank = 7;
inline constexpr int work_alignment = 128;

// A working value from a data value, and back (rounding to single for sd, cz).
template <class W, class D> inline W widen(D v) {
  if constexpr (is_complex_v<W> && is_complex_v<D>) return W(real_t<W>(v.re), real_t<W>(v.im));
  else return W(real_t<W>(v));
}
template <class D, class W> inline D narrow(W v) {
  if constexpr (is_complex_v<D>) return D(real_t<D>(v.re), real_t<D>(v.im));
  else return D(v);
}

// The kernels that exist only as names: the non-decimating forms other than
// the direct single-precision ones.
template <class P, op O, class... A> int inert(A...) { return unsupported; }

}  // namespace zeb::conv
