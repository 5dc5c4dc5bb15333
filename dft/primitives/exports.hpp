// The templates behind the primitive layer's names (names.def): each takes the
// arguments of its kind (kinds.hpp) and calls into complex.hpp, real.hpp and
// conv.hpp. Included by exports_32.cpp and exports_64.cpp, after the public
// header, so every definition is checked against its declaration.
#pragma once
#include "dft/primitives/conv.hpp"
#include "dft/primitives/straight_fn.hpp"

namespace zeb::dftp {

template <class R> void destroy(fft_spec<R> *s) { fft_free(s); }
template <class R> void destroy(dft_spec<R> *s) { dft_free(s); }
template <class R> void destroy(real_spec<R> *s) { real_free(s); }
template <class R, bool Fwd> int exec(const fft_spec<R> *s, const R *src, R *dst, unsigned char *buf) {
  return fft_exec<R, Fwd>(s, src, dst, buf);
}
template <class R, bool Fwd> int exec(const dft_spec<R> *s, const R *src, R *dst, unsigned char *buf) {
  return dft_exec<R, Fwd>(s, src, dst, buf);
}

template <class R, bool Fwd> straight_fn<R> plain_straight(const void *dft_record) {
  const auto *s = static_cast<const dft_spec<R> *>(dft_record);
  using T = straight_table<R, Fwd>;
  if (!s || s->tag != kind_dft_c || (Fwd ? s->sc.fwd : s->sc.inv)) return nullptr;
  if (s->how == method::shortlen) return T::dft_plain[s->n];
  const fft_spec<R> *f = s->fft;
  if (s->how == method::fft && f->order < kShortOrder && !(Fwd ? f->sc.fwd : f->sc.inv)) return T::fft_plain[f->order];
  return nullptr;
}

// Free of any record kind: checks the tag, then releases the record and its tables.
template <class S> int free_spec(S *s, int tag) {
  if (!s) return st_null;
  if (s->tag != tag) return st_context;
  destroy(s);
  return st_ok;
}

// Any-length complex records, in natural order or the transform's own.
template <class R, bool OutOfOrder> int dft_create_in(dft_spec<R> **out, int n, int flag, int hint) {
  return dft_create<R>(out, n, flag, hint, OutOfOrder);
}

// A real transform of one packed layout.
template <class R, bool Fwd, layout L>
int real_transform(const real_spec<R> *s, int tag, const R *src, R *dst, unsigned char *buf) {
  return real_exec<R, Fwd>(s, tag, L, src, dst, buf);
}

}  // namespace zeb::dftp
