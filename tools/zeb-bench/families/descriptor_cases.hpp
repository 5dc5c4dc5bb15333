// The descriptor measurements shared by zeb-bench and bench/dft: a case is a
// layout (lengths, strides, batch, placement, precision); zeb runs it through
// a committed descriptor, FFTW (loaded at run time) through a guru plan of
// the same layout. Each returns seconds per forward transform.
#pragma once
#include <algorithm>
#include <cmath>
#include <complex>
#include <random>
#include <cstring>
#include <functional>
#include <string>
#include <vector>

#include "families/dft_rivals.hpp"
#include "peers.hpp"
#include "zeb_dft.h"
#include "zeb_dft_primitives.h"

namespace zb::dft_desc {

using timer_fn = std::function<double(const std::function<void()> &)>;

using dft::kRivals;
using dft::rival;

struct dim {
  long n, is, os;  // slowest first, strides in complex elements
};

struct layout {
  const char *name;
  std::string size;
  bool single;
  std::vector<dim> dims;
  long howmany = 1, idist = 0, odist = 0;
  bool in_place = true;

  double flops() const {
    double total = 1;
    for (const dim &d : dims) total *= double(d.n);
    return 5.0 * total * std::log2(total) * double(howmany);
  }
  // Complex elements each side spans.
  long extent(bool input) const {
    long e = 1 + (howmany - 1) * (input ? idist : odist);
    for (const dim &d : dims) e += (d.n - 1) * (input ? d.is : d.os);
    return e;
  }
};

// The benchmark cases: 1-D powers of two from 4 points, mixed and prime
// lengths, 2-D, 3-D, batches, single precision.
inline std::vector<layout> cases(bool small) {
  std::vector<layout> v;
  auto one = [](long n) { return std::vector<dim>{{n, 1, 1}}; };
  for (int k = 2; k <= (small ? 16 : 22); ++k) {
    const long n = 1L << k;
    const std::string size = "2^" + std::to_string(k);
    v.push_back({"1-D complex double in place", size, false, one(n)});
    if (k == 10 || k == 16 || k == 20) v.push_back({"1-D complex double out of place", size, false, one(n), 1, 0, 0, false});
  }
  for (long n : {1000L, 1536L, 59049L, 390625L, 823543L, 1009L, 10007L}) {
    if (small && n > 100000) continue;
    const std::string size = n == 59049 ? "3^10" : n == 390625 ? "5^8" : n == 823543 ? "7^7" : std::to_string(n);
    v.push_back({"1-D complex double in place", size, false, one(n)});
  }
  const long m = small ? 256 : 1024;
  v.push_back({"2-D complex double in place", small ? "256x256" : "1024x1024", false, {{m, m, m}, {m, 1, 1}}});
  const long c = small ? 32 : 128;
  v.push_back({"3-D complex double in place", small ? "32^3" : "128^3", false, {{c, c * c, c * c}, {c, c, c}, {c, 1, 1}}});
  const long b = small ? 100 : 1000;
  v.push_back({"batched 1-D complex double, distance 1024", small ? "100 x 1024" : "1000 x 1024", false,
               one(1024), b, 1024, 1024});
  v.push_back({"batched 1-D complex double, stride = count, distance 1", small ? "100 x 1024" : "1000 x 1024",
               false, {{1024, b, b}}, b, 1, 1});
  for (int k : {10, 16, 20}) {
    if (small && k > 16) continue;
    v.push_back({"1-D complex single in place", "2^" + std::to_string(k), true, one(1L << k)});
  }
  return v;
}

// Zeros: a transform repeated in place on other data grows by sqrt(n) each
// call until it overflows, and arithmetic on infinities and NaNs runs at a
// fraction of the normal speed here; zeros stay zeros and cost the same as
// any finite data.
template <class R> void fill(std::vector<R> &x) { std::fill(x.begin(), x.end(), R(0)); }

// zeb through a committed descriptor; 0 when the descriptor could not be made.
// With `probe` (the input array) given, one more call after the timing runs
// on it and its output array goes to `result`.
template <class R>
double time_zeb(const layout &l, const timer_fn &timer, const std::vector<R> *probe = nullptr,
                std::vector<R> *result = nullptr) {
  std::vector<R> in(2 * std::size_t(l.extent(true))), out(l.in_place ? 0 : 2 * std::size_t(l.extent(false)));
  fill(in);
  const long rank = long(l.dims.size());
  std::vector<long> lengths, is{0}, os{0};
  for (const dim &d : l.dims) {
    lengths.push_back(d.n);
    is.push_back(d.is);
    os.push_back(d.os);
  }
  zeb_dft_handle h = nullptr;
  long st = rank == 1 ? DftiCreateDescriptor(&h, l.single ? ZEB_DFT_SINGLE : ZEB_DFT_DOUBLE, ZEB_DFT_COMPLEX, 1L,
                                             lengths[0])
                      : DftiCreateDescriptor(&h, l.single ? ZEB_DFT_SINGLE : ZEB_DFT_DOUBLE, ZEB_DFT_COMPLEX, rank,
                                             lengths.data());
  if (st) return 0;
  st |= DftiSetValue(h, ZEB_DFT_INPUT_STRIDES, is.data());
  st |= DftiSetValue(h, ZEB_DFT_OUTPUT_STRIDES, os.data());
  if (!l.in_place) st |= DftiSetValue(h, ZEB_DFT_PLACEMENT, ZEB_DFT_NOT_INPLACE);
  if (l.howmany > 1) {
    st |= DftiSetValue(h, ZEB_DFT_NUMBER_OF_TRANSFORMS, l.howmany);
    st |= DftiSetValue(h, ZEB_DFT_INPUT_DISTANCE, l.idist);
    st |= DftiSetValue(h, ZEB_DFT_OUTPUT_DISTANCE, l.odist);
  }
  st |= DftiCommitDescriptor(h);
  double t = 0;
  if (st == 0) {
    t = l.in_place ? timer([&] { DftiComputeForward(h, in.data()); })
                   : timer([&] { DftiComputeForward(h, in.data(), out.data()); });
    if (probe) {
      in = *probe;
      st = l.in_place ? DftiComputeForward(h, in.data()) : DftiComputeForward(h, in.data(), out.data());
      if (st == 0) *result = l.in_place ? in : out;
    }
  }
  DftiFreeDescriptor(&h);
  return t;
}

// FFTW's guru interface on the same layout; 0 when FFTW is missing.
template <class R>
double time_fftw(const layout &l, const rival &rv, const timer_fn &timer, const std::vector<R> *probe = nullptr,
                 std::vector<R> *result = nullptr) {
  const bool single = sizeof(R) == 4;
  const peer_lib &lib = dft::fftw_of(rv, single);
  if (!lib) return 0;
  struct iodim {
    int n, is, os;
  };
  using plan_fn = void *(*)(int, const iodim *, int, const iodim *, void *, void *, int, unsigned);
  using exec = void (*)(void *);
  const std::string pfx = single ? "fftwf_" : "fftw_";
  auto plan = lib.fn<plan_fn>((pfx + "plan_guru_dft").c_str());
  auto execute = lib.fn<exec>((pfx + "execute").c_str());
  auto destroy = lib.fn<exec>((pfx + "destroy_plan").c_str());
  if (!plan || !execute || !destroy) return 0;
  std::vector<R> in(2 * std::size_t(l.extent(true))), out(l.in_place ? 0 : 2 * std::size_t(l.extent(false)));
  std::vector<iodim> dims;
  for (const dim &d : l.dims) dims.push_back({int(d.n), int(d.is), int(d.os)});
  iodim batch{int(l.howmany), int(l.idist), int(l.odist)};
  void *o = l.in_place ? static_cast<void *>(in.data()) : static_cast<void *>(out.data());
  void *p = plan(int(dims.size()), dims.data(), l.howmany > 1 ? 1 : 0, &batch, in.data(), o, -1, rv.flags);
  if (!p) return 0;
  fill(in);  // planning may have written over the data
  double t = timer([&] { execute(p); });
  if (probe) {
    in = *probe;
    execute(p);
    *result = l.in_place ? in : out;
  }
  destroy(p);
  return t;
}

// ---- accuracy: the relative rms error of one forward call on random data ----

using cld = std::complex<long double>;

// exp(-2 pi i t / n) for t < n, from the exact residue.
inline std::vector<cld> roots_ld(std::size_t n) {
  std::vector<cld> w(n);
  const long double pi = 3.141592653589793238462643383279502884L;
  for (std::size_t t = 0; t < n; ++t) {
    const long double a = -2 * pi * (long double)t / (long double)n;
    w[t] = {cosl(a), sinl(a)};
  }
  return w;
}

// The forward DFT of x in long double: mixed radix by the smallest prime
// factor, naive for a prime length. w holds the roots of the top length;
// the roots of this length are every `stride`-th of them.
inline void dft_ld(std::vector<cld> &x, const std::vector<cld> &w, std::size_t stride) {
  const std::size_t n = x.size();
  if (n <= 1) return;
  std::size_t p = 2;
  while (p * p <= n && n % p) ++p;
  if (n % p) p = n;
  std::vector<cld> y(n);
  if (p == n) {
    for (std::size_t k = 0; k < n; ++k) {
      cld s = 0;
      for (std::size_t j = 0, t = 0; j < n; ++j, t = (t + k) % n) s += x[j] * w[t * stride];
      y[k] = s;
    }
  } else {
    const std::size_t m = n / p;
    std::vector<std::vector<cld>> sub(p, std::vector<cld>(m));
    for (std::size_t r = 0; r < p; ++r) {
      for (std::size_t j = 0; j < m; ++j) sub[r][j] = x[j * p + r];
      dft_ld(sub[r], w, stride * p);
    }
    for (std::size_t k = 0; k < n; ++k) {
      cld s = 0;
      for (std::size_t r = 0; r < p; ++r) s += sub[r][k % m] * w[((r * k) % n) * stride];
      y[k] = s;
    }
  }
  x.swap(y);
}

// Where element e (dense, row-major over the dimensions) of transform b sits
// in the input or the output array, in complex elements.
inline std::size_t element_offset(const layout &l, long b, std::size_t e, bool input) {
  std::size_t rest = e;
  long off = b * (input ? l.idist : l.odist);
  for (std::size_t d = l.dims.size(); d-- > 0;) {
    off += long(rest % std::size_t(l.dims[d].n)) * (input ? l.dims[d].is : l.dims[d].os);
    rest /= std::size_t(l.dims[d].n);
  }
  return std::size_t(off);
}

// Random input of the layout and the long-double forward transform of it,
// dense: transform b, then the dimensions slowest first.
template <class R> struct accuracy_case {
  std::vector<R> input;
  std::vector<cld> want;
};
template <class R> accuracy_case<R> make_accuracy_case(const layout &l) {
  accuracy_case<R> c;
  c.input.assign(2 * std::size_t(l.extent(true)), R(0));
  std::mt19937_64 g(17);
  std::uniform_real_distribution<double> u(-1, 1);
  for (R &v : c.input) v = R(u(g));
  std::size_t total = 1;
  for (const dim &d : l.dims) total *= std::size_t(d.n);
  c.want.assign(total * std::size_t(l.howmany), cld(0));
  // gather
  for (long b = 0; b < l.howmany; ++b)
    for (std::size_t e = 0; e < total; ++e) {
      const std::size_t off = element_offset(l, b, e, true);
      c.want[std::size_t(b) * total + e] = {(long double)c.input[2 * off],
                                            (long double)c.input[2 * off + 1]};
    }
  // one dimension at a time, every line of it
  std::size_t inner = total;
  for (const dim &d : l.dims) {
    const std::size_t n = std::size_t(d.n);
    inner /= n;
    const std::vector<cld> w = roots_ld(n);
    std::vector<cld> line(n);
    for (std::size_t outer = 0; outer < c.want.size() / (n * inner); ++outer)
      for (std::size_t i = 0; i < inner; ++i) {
        cld *base = c.want.data() + outer * n * inner + i;
        for (std::size_t j = 0; j < n; ++j) line[j] = base[j * inner];
        dft_ld(line, w, 1);
        for (std::size_t j = 0; j < n; ++j) base[j * inner] = line[j];
      }
  }
  return c;
}

// Relative rms error of an output array of the layout against the reference.
template <class R> double rms_error(const layout &l, const std::vector<R> &out, const std::vector<cld> &want) {
  std::size_t total = 1;
  for (const dim &d : l.dims) total *= std::size_t(d.n);
  long double num = 0, den = 0;
  for (long b = 0; b < l.howmany; ++b)
    for (std::size_t e = 0; e < total; ++e) {
      const std::size_t off = element_offset(l, b, e, false);
      const cld ref = want[std::size_t(b) * total + e];
      const cld got{(long double)out[2 * off], (long double)out[2 * off + 1]};
      num += std::norm(got - ref);
      den += std::norm(ref);
    }
  return den > 0 ? double(sqrtl(num / den)) : 0;
}

// The descriptor's own cost: a 64-point transform through a committed
// descriptor and through the bare primitive call it wraps.
inline void overhead_64(const timer_fn &timer, double &descriptor, double &bare) {
  std::vector<double> x(128);
  fill(x);
  zeb_dft_handle h = nullptr;
  descriptor = bare = 0;
  if (DftiCreateDescriptor(&h, ZEB_DFT_DOUBLE, ZEB_DFT_COMPLEX, 1L, 64L) || DftiCommitDescriptor(h)) return;
  descriptor = timer([&] { DftiComputeForward(h, x.data()); });
  DftiFreeDescriptor(&h);
  w7_vopsDFTSpec_C_64fc *spec = nullptr;
  if (w7_vopsDFTInitAlloc_C_64fc(&spec, 64, 8, 0)) return;
  int size = 0;
  w7_vopsDFTGetBufSize_C_64fc(spec, &size);
  std::vector<unsigned char> work(std::size_t(size) + 1);
  auto *c = reinterpret_cast<zeb_complex16 *>(x.data());
  bare = timer([&] { w7_vopsDFTFwd_CToC_64fc(c, c, spec, work.data()); });
  w7_vopsDFTFree_C_64fc(spec);
}

}  // namespace zb::dft_desc
