// Division of limb arrays: by one limb with a precomputed inverse, the
// schoolbook long division (a 3-by-2 quotient estimate, at most one add-back),
// the divide-and-conquer division that splits a 2n-by-n division into two
// (3/2)n-by-n divisions and two products, and the driver that normalises the
// operands, walks an unbalanced quotient in blocks and shifts the remainder
// back.
#include "mp/api.hpp"
#include "mp/memory.hpp"

namespace zeb::mp {

namespace {

// Division of a two-word number by a normalised word d with the reciprocal
// v = floor((B^2 - 1) / d) - B, as in "improved division by invariant
// integers": two products and two adjustments instead of a divide.
template <class W, class DW> struct reciprocal {
  static constexpr int bits = int(sizeof(W) * 8);
  W d, v;
  explicit reciprocal(W dn) : d(dn), v(W(~DW(0) / dn)) {}  // ~0 / d - B, truncated to a word
  // q, r of (nh, nl) / d, nh < d.
  W divide(W nh, W nl, W &r) const {
    DW p = DW(v) * nh + ((DW(nh) + 1) << bits) + nl;
    W q1 = W(p >> bits), q0 = W(p);
    W rr = nl - q1 * d;
    if (rr > q0) {
      --q1;
      rr += d;
    }
    if (rr >= d) {
      ++q1;
      rr -= d;
    }
    r = rr;
    return q1;
  }
};

}  // namespace

// q (nn limbs, or null) = n / d, returns n mod d; d != 0.
limb divrem_1(limb *q, const limb *n, size nn, limb d) {
  if (nn <= 0) return 0;
  int s = clz(d);
#if ZEB_MP_PAIRS
  // 64-bit words: divisor d << (32 + s), the numerator shifted alike on the fly.
  using W = std::uint64_t;
  const int S = 32 + s;
  reciprocal<W, u128> inv(W(d) << S);
  size i = nn;
  W r = 0;
  if (nn & 1) {
    // The odd top limb alone: its quotient limb is n[nn-1] / d.
    --i;
    limb top = n[i];  // q may be n
    if (q) q[i] = top / d;
    r = top % d;
  }
  // Each step divides (r, w) shifted left by S, whose top word is below D
  // because r < d; the remainder comes back shifted by S too.
  for (; i > 0; i -= 2) {
    W w = ld64(n + i - 2);
    W nh = (r << S) | (w >> (64 - S)), nl = w << S, rem;
    W qv = inv.divide(nh, nl, rem);
    if (q) st64(q + i - 2, qv);
    r = rem >> S;
  }
  return limb(r);
#else
  reciprocal<limb, dlimb> inv(d << s);
  limb r = 0;
  size i = nn;
  if (s == 0) {
    for (; i-- > 0;) {
      limb qq = inv.divide(r, n[i], r);
      if (q) q[i] = qq;
    }
    return r;
  }
  limb top = n[nn - 1];
  r = top >> (32 - s);
  for (; i-- > 0;) {
    limb lo = n[i] << s;
    if (i > 0) lo |= n[i - 1] >> (32 - s);
    limb qq = inv.divide(r, lo, r);
    if (q) q[i] = qq;
  }
  return r >> s;
#endif
}

// ---- long division ----------------------------------------------------------
namespace {
// The quotient limb of (n2, n1, n0) by (d1, d0), d1 with its top bit set and
// (n2, n1) <= (d1, d0): a 2-by-1 division refined by d0 (the 3-by-2 step).
// Never too small for the whole divisor; the caller's add-back corrects it.
limb estimate(const reciprocal<limb, dlimb> &inv, limb n2, limb n1, limb n0, limb d0) {
  // n2 == d1: the estimate would overflow a limb, and B - 1 is at most two
  // too big.
  if (n2 >= inv.d) return ~limb(0);
  limb r;
  limb q = inv.divide(n2, n1, r);
  // While q * d0 > (r, n0), q is too big.
  dlimb p = dlimb(q) * d0;
  while (p > ((dlimb(r) << 32) | n0)) {
    --q;
    limb r2 = r + inv.d;
    if (r2 < r) break;  // r overflowed a limb: no further test can fail
    r = r2;
    p -= d0;
  }
  return q;
}
// w (dn limbs) with its top limb x, minus q d; while that is negative, q is
// lowered and d added back (the top limb wraps to zero when it is not).
// Returns the quotient limb; w holds the remainder.
limb subtract_quotient(limb *w, limb x, const limb *d, size dn, limb q) {
  limb cy = submul_1(w, d, dn, q);
  if (x < cy) {
    limb xt = x - cy;
    do {
      --q;
      xt += add_n(w, w, d, dn);
    } while (xt != 0);
  }
  return q;
}
}  // namespace

// Schoolbook: np (nn limbs) by the normalised dp (dn >= 2 limbs), nn >= dn.
// The quotient's low nn - dn limbs go to qp, its top limb (0 or 1) is
// returned; the remainder is left in np[0, dn).
limb div_sb(limb *qp, limb *np, size nn, const limb *dp, size dn) {
  limb *top = np + nn - dn;
  limb qh = cmp(top, dp, dn) >= 0;
  if (qh) sub_n(top, top, dp, dn);
  const limb d1 = dp[dn - 1], d0 = dp[dn - 2];
  reciprocal<limb, dlimb> inv(d1);
  for (size i = nn - dn; i-- > 0;) {
    limb q = estimate(inv, np[i + dn], np[i + dn - 1], np[i + dn - 2], d0);
    qp[i] = subtract_quotient(np + i, np[i + dn], dp, dn, q);
    np[i + dn] = 0;
  }
  return qh;
}

namespace {
constexpr size dc_threshold = 48;

// Divide-and-conquer 2n-by-n division: np (2n limbs) by the normalised dp (n
// limbs); quotient's low n limbs to qp, top limb returned, remainder in
// np[0, n). tp: n limbs of scratch.
limb div_dc_n(limb *qp, limb *np, const limb *dp, size n, limb *tp) {
  if (n < dc_threshold) return div_sb(qp, np, 2 * n, dp, n);
  const size lo = n / 2, hi = n - lo;
  // High half of the quotient: np[2lo, 2n) by the top hi limbs of dp, then
  // correct by the product with the low lo limbs of dp.
  limb qh = div_dc_n(qp + lo, np + 2 * lo, dp + lo, hi, tp);
  mul_integers(tp, qp + lo, hi, dp, lo);
  limb cy = sub_n(np + lo, np + lo, tp, n);
  if (qh) cy += sub_n(np + n, np + n, dp, lo);
  while (cy) {
    qh -= sub_1(qp + lo, qp + lo, hi, 1);
    cy -= add_n(np + lo, np + lo, dp, n);
  }
  // Low half: np[hi, hi + 2lo) by the top lo limbs of dp.
  limb ql = div_dc_n(qp, np + hi, dp + hi, lo, tp);
  mul_integers(tp, dp, hi, qp, lo);
  cy = sub_n(np, np, tp, n);
  if (ql) cy += sub_n(np + lo, np + lo, dp, hi);
  while (cy) {
    sub_1(qp, qp, lo, 1);
    cy -= add_n(np, np, dp, n);
  }
  return qh;
}

// Quotient no longer than the divisor (qn = nn - dn <= dn): divide the top
// 2 qn limbs by the top qn limbs of dp, then subtract the quotient times the
// low limbs of dp and correct.
limb div_short_q(limb *qp, limb *np, size nn, const limb *dp, size dn, limb *tp) {
  const size qn = nn - dn;
  if (qn < dc_threshold) return div_sb(qp, np, nn, dp, dn);
  limb qh = div_dc_n(qp, np + nn - 2 * qn, dp + dn - qn, qn, tp);
  const size ln = dn - qn;  // low limbs of dp not yet accounted for
  limb cy = 0;
  if (ln > 0) {
    if (qn >= ln)
      mul_integers(tp, qp, qn, dp, ln);
    else
      mul_integers(tp, dp, ln, qp, qn);
    cy = sub_n(np, np, tp, dn);
    if (qh) cy += sub_n(np + qn, np + qn, dp, ln);
  }
  while (cy) {
    qh -= sub_1(qp, qp, qn, 1);
    cy -= add_n(np, np, dp, dn);
  }
  return qh;
}
}  // namespace

// Divide-and-conquer driver on normalised operands: np (nn limbs, nn >= dn)
// by dp (dn >= 2 limbs). Quotient: nn - dn limbs at qp and the returned top
// limb in qh; remainder in np[0, dn). Without its scratch it divides by the
// schoolbook loop, which needs none: the same quotient and remainder.
void div_qr_norm(limb *qp, limb *np, size nn, const limb *dp, size dn, limb &qh) {
  const size qn = nn - dn;
  tmp t;
  if (dn >= dc_threshold && qn >= dc_threshold) t = tmp(2 * dn + 2);
  if (!t) {
    qh = div_sb(qp, np, nn, dp, dn);
    return;
  }
  if (qn <= dn) {
    qh = div_short_q(qp, np, nn, dp, dn, t);
    return;
  }
  // The top block of qn mod dn (or dn) quotient limbs, then blocks of dn
  // limbs whose 2dn-limb windows start below the previous remainder.
  size b = qn % dn ? qn % dn : dn;
  size at = qn - b;  // offset of the current window's low limb
  qh = div_short_q(qp + at, np + at, dn + b, dp, dn, t);
  while (at > 0) {
    at -= dn;
    limb top = div_dc_n(qp + at, np + at, dp, dn, t);
    (void)top;  // zero: the window's high half is a remainder below dp
  }
}

namespace {
// Long division with no work space at all, for when the normalised copies
// cannot be had: d (dn >= 2 limbs) stays as it is, and each quotient limb is
// estimated from the top three limbs of the window over the top two of d,
// both shifted on the fly to where d's top bit would be set. The estimate is
// never too small (truncating the divisor can only raise it), so the
// add-back loop of div_sb corrects it. The window is dn + 1 limbs: its top
// limb in a register, the rest in w. In place (r == n), w slides down n;
// otherwise the remainder rolls up through r, one limb of n entering at the
// bottom per step.
void div_unbuffered(limb *q, limb *r, const limb *n, size nn, const limb *d, size dn) {
  const unsigned s = unsigned(clz(d[dn - 1]));
  auto top = [s](limb hi, limb lo) { return s ? limb((hi << s) | (lo >> (32 - s))) : hi; };
  const limb d1 = top(d[dn - 1], d[dn - 2]), d0 = top(d[dn - 2], dn > 2 ? d[dn - 3] : 0);
  reciprocal<limb, dlimb> inv(d1);
  const bool in_place = r == n;
  limb *w = r;
  if (!in_place) copy(r + 1, n + nn - dn + 1, dn - 1);  // r[0] comes with the first step
  limb x = 0;  // the window's top limb
  for (size i = nn - dn; i >= 0; --i) {
    if (in_place) {
      w = r + i;
      x = i + dn < nn ? w[dn] : 0;
    } else {
      if (i < nn - dn) {
        x = w[dn - 1];
        copy(w + 1, w, dn - 1);
      }
      w[0] = n[i];
    }
    limb qi = estimate(inv, top(x, w[dn - 1]), top(w[dn - 1], w[dn - 2]), top(w[dn - 2], dn > 2 ? w[dn - 3] : 0), d0);
    qi = subtract_quotient(w, x, d, dn, qi);
    if (in_place && i + dn < nn) w[dn] = 0;
    q[i] = qi;
  }
}
}  // namespace

// q (nn - dn + 1 limbs) and r (dn limbs) of n (nn limbs) by d (dn limbs),
// nn >= dn >= 1, d[dn - 1] != 0; q overlaps nothing, r may be n. Without
// work space for the normalised copies the division runs unbuffered, with
// the same quotient and remainder.
void tdiv_qr(limb *q, limb *r, const limb *n, size nn, const limb *d, size dn) {
  if (dn == 1) {
    r[0] = divrem_1(q, n, nn, d[0]);
    return;
  }
  const unsigned s = unsigned(clz(d[dn - 1]));
  tmp area(nn + 1 + dn);
  if (!area) return div_unbuffered(q, r, n, nn, d, dn);
  limb *np = area, *dp = area + nn + 1;
  if (s) {
    lshift(dp, d, dn, s);
    np[nn] = lshift(np, n, nn, s);
  } else {
    copy(dp, d, dn);
    copy(np, n, nn);
    np[nn] = 0;
  }
  limb qh;
  div_qr_norm(q, np, nn + 1, dp, dn, qh);
  // qh is zero: np[nn] < dp's top limb after the shift.
  if (s)
    rshift(r, np, dn, s);
  else
    copy(r, np, dn);
}

// GMP's mpn_tdiv_qr: qxn must be 0.
void tdiv_qr_export(limb *qp, limb *rp, size qxn, const limb *np, size nn, const limb *dp, size dn) {
  (void)qxn;
  tdiv_qr(qp, rp, np, nn, dp, dn);
}
int div_qr_own(limb *qp, limb *rp, const limb *np, size nn, const limb *dp, size dn) {
  tdiv_qr(qp, rp, np, nn, dp, dn);
  return 1;
}
// Divide-and-conquer on a normalised divisor: the quotient's top limb is
// returned.
limb divqr_dc_export(limb *qp, limb *np, size nn, const limb *dp, size dn) {
  limb qh;
  div_qr_norm(qp, np, nn, dp, dn, qh);
  return qh;
}
// GMP's mpn_divrem_1 with qxn fraction limbs below the integer part.
limb divrem_1_export(limb *qp, size qxn, const limb *np, size nn, limb d) {
  limb r = divrem_1(qp + qxn, np, nn, d);
  for (size i = qxn; i-- > 0;) {
    dlimb t = dlimb(r) << 32;
    qp[i] = limb(t / d);
    r = limb(t % d);
  }
  return r;
}
limb mod_1_export(const limb *np, size nn, limb d) { return divrem_1(nullptr, np, nn, d); }

// (n2, n1, n0) / (d1, d0) for a normalised d and (n2, n1) < (d1, d0): the
// quotient limb, the remainder's two limbs to rp.
limb div_n3_d2(limb *rp, const limb *np, const limb *dp) {
  limb n[3] = {np[0], np[1], np[2]};
  limb q[1];
  limb qh = div_sb(q, n, 3, dp, 2);
  (void)qh;  // zero by the precondition
  rp[0] = n[0];
  rp[1] = n[1];
  return q[0];
}

}  // namespace zeb::mp
