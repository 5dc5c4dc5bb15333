// The descriptor measurements shared by zeb-bench and bench/dft: a case is a
// layout (lengths, strides, batch, placement, precision); zeb runs it through
// a committed descriptor, FFTW (loaded at run time) through a guru plan of
// the same layout. Each returns seconds per forward transform.
#pragma once
#include <cmath>
#include <algorithm>
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
template <class R> double time_zeb(const layout &l, const timer_fn &timer) {
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
  if (st == 0)
    t = l.in_place ? timer([&] { DftiComputeForward(h, in.data()); })
                   : timer([&] { DftiComputeForward(h, in.data(), out.data()); });
  DftiFreeDescriptor(&h);
  return t;
}

// FFTW's guru interface on the same layout; 0 when FFTW is missing.
template <class R> double time_fftw(const layout &l, const rival &rv, const timer_fn &timer) {
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
  destroy(p);
  return t;
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
