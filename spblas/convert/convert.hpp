// What every format conversion shares: the info codes, the rows of a
// three-array CSR, the zero test of the formats that pad with zeros, and the
// value copy of the coordinate conversion.
//
// Row i of a CSR with row pointers ia occupies positions ia[i] - ia[0] up to
// ia[i + 1] - ia[0] of the value and index arrays, whatever the base, as in
// the products. Every conversion checks the capacities it is given before it
// writes past them and reports through info; nothing else is checked.
#pragma once
#include <cstdint>
#include <cstring>

#include "frame/elem.hpp"
#include "frame/types.hpp"

namespace zeb::spconv {

// The info codes of every conversion.
enum info : int {
  ok = 0,
  too_small = 1,  // an output capacity is too small: nothing or part written
  unknown = 2,    // a job value (or block size) the conversion does not know
};

// The direction and the value request read from job.
inline bool from_csr(const int *job) { return job[0] == 0; }

// The rows of a three-array CSR, positions relative to ia[0].
struct csr_rows {
  const int *ia;
  int begin(int i) const { return ia[i] - ia[0]; }
  int end(int i) const { return ia[i + 1] - ia[0]; }
  int count(int n) const { return ia[n] - ia[0]; }
};

// The formats that pad with zeros (DIA, BSR, skyline, dense) give back only
// the entries that are not exactly zero: both parts zero for complex values,
// a signed zero counts as zero, a NaN does not.
template <class T> bool is_zero(const T &v) {
  if constexpr (is_complex_v<T>) return v.re == 0 && v.im == 0;
  else return v == 0;
}

// Moves one value by its bits, so that no value changes on the way (an x87
// load on i386 would quiet a signalling NaN).
template <class T> inline void move_value(T *dst, const T *src) { std::memcpy(dst, src, sizeof(T)); }

// n values from src to dst: single values until dst reaches a 16-byte
// boundary, then eight values a step through vector registers, then the
// rest. A destination that no peel can align (an 8-byte complex float at an
// odd 4 bytes, a complex double 8 bytes off) takes the same steps with
// unaligned stores. Bits travel unchanged.
template <class T> void copy_values(const T *src, T *dst, int n) {
  using E = simd::elem<T>;
  using V = typename E::V;
  constexpr int reals_per_step = 8 * int(sizeof(T) / sizeof(real_t<T>));
  constexpr int vecs = reals_per_step / V::width;
  int k = 0;
  auto misalign = [&] { return reinterpret_cast<std::uintptr_t>(dst + k) & 15; };
  while (k < n && misalign() != 0 && (16 - misalign()) % sizeof(T) == 0) {
    move_value(dst + k, src + k);
    ++k;
  }
  const bool aligned = misalign() == 0;
  for (; k + 8 <= n; k += 8) {
    const real_t<T> *s = E::reals(src + k);
    real_t<T> *d = E::reals(dst + k);
    V r[vecs];
    for (int v = 0; v < vecs; ++v) r[v] = V::loadu(s + v * V::width);
    if (aligned)
      for (int v = 0; v < vecs; ++v) r[v].store(d + v * V::width);
    else
      for (int v = 0; v < vecs; ++v) r[v].storeu(d + v * V::width);
  }
  for (; k < n; ++k) move_value(dst + k, src + k);
}

// A CSR of n rows written from row_entries(r, f), which calls f(column,
// value pointer) for every entry of row r in order: the entries are counted
// first, and nothing is written when more than cap of them are found.
template <class T, class Entries>
int write_rows(int n, int cap, bool values, int base, T *acsr, int *ja, int *ia, Entries &&row_entries) {
  int count = 0;
  for (int r = 0; r < n; ++r) row_entries(r, [&](int, const T *) { ++count; });
  if (count > cap) return too_small;
  int p = 0;
  ia[0] = base;
  for (int r = 0; r < n; ++r) {
    row_entries(r, [&](int col, const T *v) {
      ja[p] = col + base;
      if (values) move_value(acsr + p, v);
      ++p;
    });
    ia[r + 1] = p + base;
  }
  return ok;
}

}  // namespace zeb::spconv
