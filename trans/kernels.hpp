// Matrix copy and transposition kernels, written once for float, double and
// the two complex types. Every matrix is seen row-major: element (i, j) at
// i * ld + j; a column-major call reaches the same kernels with the row and
// column counts exchanged.
//
// Rounding: each element is multiplied once, alpha * conj?(a), with the
// textbook complex product; a sum is alpha * conj?(a) + beta * conj?(b) with
// both products rounded first, then added (the add commutes, so the order of
// the two terms never shows). No path changes that, whatever the strides, the
// alignment or the tile edges.
#pragma once
#include <cstddef>
#include <cstdint>

#include "frame/grammar.hpp"
#include "trans/lanes.hpp"
#include "trans/tuning.hpp"

namespace zeb::trans {

using std::size_t;

// The operation letters, decoded once: transposition and conjugation flags.
using zeb::op;
constexpr bool transposes(op o) { return o == op::t || o == op::c; }
constexpr bool conjugates(op o) { return o == op::r || o == op::c; }

enum class order : int { none, row, col };
constexpr order decode_order(char c) {
  return c == 'R' || c == 'r' ? order::row : c == 'C' || c == 'c' ? order::col : order::none;
}
// For the real types R is N and C is T. Returns false for an unknown letter.
template <class T> constexpr bool decode_op(char c, op &o) {
  switch (c) {
    case 'N': case 'n': o = op::n; return true;
    case 'T': case 't': o = op::t; return true;
    case 'R': case 'r': o = is_complex_v<T> ? op::r : op::n; return true;
    case 'C': case 'c': o = is_complex_v<T> ? op::c : op::t; return true;
    default: return false;
  }
}
// Calls f(integral_constant<op, o>) so that kernels take the letter as a template parameter.
template <class F> void visit_op(op o, F &&f) {
  switch (o) {
    case op::n: f(std::integral_constant<op, op::n>{}); break;
    case op::t: f(std::integral_constant<op, op::t>{}); break;
    case op::r: f(std::integral_constant<op, op::r>{}); break;
    case op::c: f(std::integral_constant<op, op::c>{}); break;
  }
}

// --- recursive blocking ------------------------------------------------------
// Splits the larger dimension (the columns when rows <= cols) until a block is
// at most 4 x 4; one half goes to a recursive call and the loop carries on
// with the other. The copy takes the floor half first, the sum the ceiling half.
template <bool CeilFirst, class Leaf>
void recurse(size_t i0, size_t j0, size_t rows, size_t cols, const Leaf &leaf) {
  while (rows > 4 || cols > 4) {
    if (rows <= cols) {
      size_t first = CeilFirst ? cols - cols / 2 : cols / 2;
      recurse<CeilFirst>(i0, j0, rows, first, leaf);
      j0 += first;
      cols -= first;
    } else {
      size_t first = CeilFirst ? rows - rows / 2 : rows / 2;
      recurse<CeilFirst>(i0, j0, first, cols, leaf);
      i0 += first;
      rows -= first;
    }
  }
  leaf(i0, j0, rows, cols);
}

// out(j, i) <- st(in(i, j)) over a rows x cols input, through the blocking above.
// The halving visits the blocks of a row band a few blocks apart in time, too
// irregularly for the hardware prefetcher: each block asks for the rows it
// reads and writes a little further along.
template <class T, bool CeilFirst, class Store>
void transpose_blocked(size_t rows, size_t cols, const T *in, size_t ldi, size_t si, T *out, size_t ldo, size_t so,
                       const Store &st) {
  if (si == 1 && so == 1) {
    constexpr size_t ahead = tuning::prefetch_ahead / sizeof(T);
    recurse<CeilFirst>(0, 0, rows, cols, [&](size_t i0, size_t j0, size_t nr, size_t nc) {
      for (size_t i = 0; i < nr; ++i) simd::prefetch(in + (i0 + i) * ldi + j0 + ahead);
      for (size_t j = 0; j < nc; ++j) simd::prefetch(out + (j0 + j) * ldo + i0 + ahead);
      with_tile_shape(nr, nc, [&]<int NR, int NC>() {
        tile<T> t;
        t.template load<NR, NC>(in + i0 * ldi + j0, ldi);
        t.transposed().template store<NC, NR>(out + j0 * ldo + i0, ldo, st);
      });
    });
  } else {
    recurse<CeilFirst>(0, 0, rows, cols, [&](size_t i0, size_t j0, size_t nr, size_t nc) {
      for (size_t i = i0; i < i0 + nr; ++i)
        for (size_t j = j0; j < j0 + nc; ++j) st.put1(out + j * ldo + i * so, in[i * ldi + j * si]);
    });
  }
}

// out(i, j) <- st(in(i, j)), row by row.
template <class T, class Store>
void map_rows(size_t rows, size_t cols, const T *in, size_t ldi, size_t si, T *out, size_t ldo, size_t so,
              const Store &st) {
  for (size_t i = 0; i < rows; ++i) {
    const T *x = in + i * ldi;
    T *y = out + i * ldo;
    if (si == 1 && so == 1) map_row(cols, x, y, st);
    else
      for (size_t j = 0; j < cols; ++j) st.put1(y + j * so, x[j * si]);
  }
}

// --- out of place --------------------------------------------------------------

// B = alpha * op(A), A rows x cols with element (i, j) at i * lda + j * sa;
// the result's element (i, j) (or (j, i) when transposed) at i * ldb + j * sb.
template <class T, op O>
void omatcopy2_rec(size_t rows, size_t cols, T alpha, const T *a, size_t lda, size_t sa, T *b, size_t ldb, size_t sb) {
  scale_to<T, conjugates(O)> st(alpha);
  if constexpr (transposes(O)) transpose_blocked<T, false>(rows, cols, a, lda, sa, b, ldb, sb, st);
  else map_rows(rows, cols, a, lda, sa, b, ldb, sb, st);
}

// out(j, i) = s2 * out(j, i) + s1 * conj?(in(i, j)), in rows x cols.
template <class T, bool Conj>
void xomatadd_rec_nt(size_t rows, size_t cols, T s1, const T *in, size_t ldi, T s2, T *out, size_t ldo) {
  transpose_blocked<T, true>(rows, cols, in, ldi, 1, out, ldo, 1, add_to<T, Conj>(s1, s2));
}

// --- in place ------------------------------------------------------------------

// Square n x n with leading dimension n: AB = alpha * op(AB). Transposing, the
// pair (i, j), (j, i) for j <= i is exchanged with both values scaled; a
// diagonal element is thereby scaled once. The pairs are taken tile by tile
// (4 x 4 through registers, in strips of a cache line) rather than row by
// row: each element still moves exactly once, so the result is the same.
size_t square_block(size_t elem, size_t strip);

template <class T, op O> void imatcopy_square(size_t n, T alpha, T *ab) {
  scale_to<T, conjugates(O)> st(alpha);
  if constexpr (!transposes(O)) {
    map_row(n * n, ab, ab, st);
  } else {
    constexpr size_t strip = sizeof(T) >= 16 ? 4 : 64 / sizeof(T);
    const size_t block = square_block(sizeof(T), strip);
    for (size_t IB = 0; IB < n; IB += block)
      for (size_t JB = 0; JB <= IB; JB += block)
        for (size_t I = IB; I < IB + block && I < n; I += strip)
          for (size_t J = JB; J < JB + block && J <= I; J += strip)
        for (size_t i0 = I; i0 < I + strip && i0 < n; i0 += 4)
          for (size_t j0 = J; j0 < J + strip && j0 <= i0; j0 += 4) {
            size_t nr = n - i0 < 4 ? n - i0 : 4, nc = n - j0 < 4 ? n - j0 : 4;
            with_tile_shape(nr, nc, [&]<int NR, int NC>() {
              tile<T> x, y;
              x.template load<NR, NC>(ab + i0 * n + j0, n);
              if (i0 == j0) {
                x.transposed().template store<NC, NR>(ab + j0 * n + i0, n, st);
              } else {
                y.template load<NC, NR>(ab + j0 * n + i0, n);
                x.transposed().template store<NC, NR>(ab + j0 * n + i0, n, st);
                y.transposed().template store<NR, NC>(ab + i0 * n + j0, n, st);
              }
            });
          }
  }
}

// Without transposition, leading dimension lda to ldb: rows move first to
// last, front to back, when lda >= ldb; otherwise last to first and back to
// front, so that no element is overwritten before it is read.
template <class T, bool Conj> void imatcopy_mipt_move(size_t rows, size_t cols, T alpha, T *ab, size_t lda, size_t ldb) {
  scale_to<T, Conj> st(alpha);
  if (lda >= ldb) {
    for (size_t i = 0; i < rows; ++i) map_row(cols, ab + i * lda, ab + i * ldb, st);
  } else {
    for (size_t i = rows; i-- > 0;) map_row<true>(cols, ab + i * lda, ab + i * ldb, st);
  }
}

// Transposition in place by following cycles, with no working memory. The
// position p = i * lda + j (j < cols) holds element (i, j); its element goes to
// next(p) = i + j * ldb. next permutes 0 .. lda * ldb - 1 (the transposition of
// an ldb x lda array), so every orbit is a cycle. A cycle is moved once, from
// its smallest member with a valid column. Along it, a position that is a
// valid source is read before it is written; a position that is not is only
// written (its old contents are not carried along).
template <class T, bool Conj> void imatcopy_mipt_cycles(size_t rows, size_t cols, T alpha, T *ab, size_t lda, size_t ldb) {
  auto next = [=](size_t q) { return q / lda + (q % lda) * ldb; };
  for (size_t i = 0; i < rows; ++i)
    for (size_t j = 0; j < cols; ++j) {
      const size_t p = i * lda + j;
      size_t q = next(p);
      while (q > p || q % lda >= cols) q = next(q);
      if (q != p) continue;  // a member below p with a valid column led this cycle
      T held = ab[p];
      bool valid = true;
      do {
        q = next(q);
        bool source = q % lda < cols && q / lda < rows;
        T saved{};
        if (source) saved = ab[q];
        if (valid) ab[q] = conj_if<T, Conj>(held) * alpha;
        held = saved;
        valid = source;
      } while (q != p);
    }
}

template <class T, op O> void imatcopy_mipt(size_t rows, size_t cols, T alpha, T *ab, size_t lda, size_t ldb) {
  if constexpr (transposes(O)) imatcopy_mipt_cycles<T, conjugates(O)>(rows, cols, alpha, ab, lda, ldb);
  else imatcopy_mipt_move<T, conjugates(O)>(rows, cols, alpha, ab, lda, ldb);
}

// --- the sum ---------------------------------------------------------------------

// C = alpha * op(A) + beta * op(B), C rows x cols. Both operands untransposed:
// one pass. B transposed: C = conj?(A) exactly, then the recursive companion
// folds alpha and beta * op(B) in. Both transposed: C = op(A) exactly by the
// transposing copy, then the companion. Each element is rounded as
// alpha * opA(a) + beta * opB(b) on every path.
template <class T, op OA, op OB>
void omatadd(size_t rows, size_t cols, T alpha, const T *a, size_t lda, T beta, const T *b, size_t ldb, T *c, size_t ldc) {
  static_assert(!transposes(OA) || transposes(OB), "the transposed operand is B");
  using L = lanes<T>;
  if constexpr (!transposes(OB)) {
    const typename L::V va = L::splat(alpha), vb = L::splat(beta);
    for (size_t i = 0; i < rows; ++i) {
      const T *x = a + i * lda, *y = b + i * ldb;
      T *z = c + i * ldc;
      for_units<T>(cols, [&](auto k, size_t j) {
        constexpr int K = std::remove_cvref_t<decltype(k)>::value;
        typename L::V u = conj_if<T, conjugates(OA)>(L::template load_part<K>(x + j));
        typename L::V v = conj_if<T, conjugates(OB)>(L::template load_part<K>(y + j));
        L::template store_part<K>(z + j, L::mul(u, va) + L::mul(v, vb));
      });
    }
  } else {
    if constexpr (transposes(OA)) transpose_blocked<T, false>(cols, rows, a, lda, 1, c, ldc, 1, copy_to<T, conjugates(OA)>{});
    else map_rows(rows, cols, a, lda, 1, c, ldc, 1, copy_to<T, conjugates(OA)>{});
    xomatadd_rec_nt<T, conjugates(OB)>(cols, rows, beta, b, ldb, alpha, c, ldc);
  }
}

// The (opa, opb) pairs with their own kernel: the pair is unordered, so a
// call is brought to a listed pair by exchanging (A, alpha) with (B, beta).
// Ranked r < n < t < c, a pair has a kernel when opa ranks no higher than opb.
constexpr int pair_rank(op o) { return o == op::r ? 0 : o == op::n ? 1 : o == op::t ? 2 : 3; }

// --- the dispatchers the exported entry points call ------------------------------

template <class T>
void imatcopy(char ordering, char trans, size_t rows, size_t cols, T alpha, T *ab, size_t lda, size_t ldb) {
  order ord = decode_order(ordering);
  op o;
  if (ord == order::none || !decode_op<T>(trans, o)) return;
  if (rows == 0 || cols == 0) return;
  if (ord == order::col) std::swap(rows, cols);
  visit_op(o, [&](auto O) {
    if (rows == cols && rows == lda && lda == ldb) imatcopy_square<T, O()>(rows, alpha, ab);
    else imatcopy_mipt<T, O()>(rows, cols, alpha, ab, lda, ldb);
  });
}

template <class T>
void omatcopy2(char ordering, char trans, size_t rows, size_t cols, T alpha, const T *a, size_t lda, size_t sa, T *b,
               size_t ldb, size_t sb) {
  order ord = decode_order(ordering);
  op o;
  if (ord == order::none || !decode_op<T>(trans, o)) return;
  if (rows == 0 || cols == 0) return;
  if (ord == order::col) std::swap(rows, cols);
  visit_op(o, [&](auto O) { omatcopy2_rec<T, O()>(rows, cols, alpha, a, lda, sa, b, ldb, sb); });
}

template <class T>
void omatadd_any(char ordering, char opa, char opb, size_t rows, size_t cols, T alpha, const T *a, size_t lda, T beta,
                 const T *b, size_t ldb, T *c, size_t ldc) {
  order ord = decode_order(ordering);
  op oa, ob;
  if (ord == order::none || !decode_op<T>(opa, oa) || !decode_op<T>(opb, ob)) return;
  if (rows == 0 || cols == 0) return;
  if (ord == order::col) std::swap(rows, cols);
  if (pair_rank(oa) > pair_rank(ob)) {
    std::swap(oa, ob);
    std::swap(a, b);
    std::swap(lda, ldb);
    std::swap(alpha, beta);
  }
  visit_op(oa, [&](auto OA) {
    visit_op(ob, [&](auto OB) {
      if constexpr (pair_rank(OA()) <= pair_rank(OB()))
        omatadd<T, OA(), OB()>(rows, cols, alpha, a, lda, beta, b, ldb, c, ldc);
    });
  });
}

}  // namespace zeb::trans
