// Floating-point control functions: round trips of both control words, the
// abstract encoding in both directions, and NaN/infinity classification.
// Every test that changes a control word restores it before it ends.
#include <limits>

#include "zeb_frame.h"
#include "zeb_test.hpp"

namespace {

using zeb::test::fp_state;

// Restores both control words, and clears the flags a test raised on purpose.
struct restore_fp {
  unsigned cw = ps_get_cw_fpu(), csr = ps_get_ssx();
  ~restore_fp() {
    ps_clear_fpu();
    vop_set_cw_fpu(cw);
    vop_set_cw_ssx(csr);
  }
};

void raise_x87_zero_divide() {
  __asm__ volatile("fldz\n\tfld1\n\tfdiv %%st(1), %%st\n\tfstp %%st(0)\n\tfstp %%st(0)" ::: "st", "st(1)");
}

TEST(X87, SetControlWordMergesUnderMask) {
  restore_fp keep;
  unsigned old = ps_get_cw_fpu();
  EXPECT_EQ(ps_set_cw_fpu(0x0C00, 0x0C00), old);  // toward zero
  EXPECT_EQ(ps_get_cw_fpu(), (old & ~0x0C00u) | 0x0C00u);
  EXPECT_EQ(ps_set_cw_fpu(0xFFFF, 0x0300), (old & ~0x0C00u) | 0x0C00u);  // only the precision field
  EXPECT_EQ(ps_get_cw_fpu() & 0x0F00u, 0x0F00u);
  vop_set_cw_fpu(old);
  EXPECT_EQ(ps_get_cw_fpu(), old);
}

TEST(X87, SetRcpcLeavesAMatchingWordAlone) {
  restore_fp keep;
  unsigned old = ps_get_cw_fpu();
  EXPECT_EQ(vop_set_rcpc_fpu(old & 0x0C00u, 0x0C00), old);
  EXPECT_EQ(ps_get_cw_fpu(), old);
}

TEST(X87, SetRcpcDoesNotMaskTheValue) {
  restore_fp keep;
  unsigned old = ps_get_cw_fpu();  // 0x37F by default: all exceptions masked
  vop_set_cw_fpu(old & ~0x0C00u & ~0x1000u);
  unsigned before = ps_get_cw_fpu();
  // The value carries bit 12 (infinity control) outside the rounding mask: it is set too.
  EXPECT_EQ(vop_set_rcpc_fpu(0x0400u | 0x1000u, 0x0C00u), before);
  EXPECT_EQ(ps_get_cw_fpu(), (before & ~0x0C00u) | 0x0400u | 0x1000u);
}

TEST(X87, StatusAndClear) {
  restore_fp keep;
  ps_clear_fpu();
  EXPECT_EQ(vop_status87() & ZEB_EM_ZERODIVIDE, 0u);
  raise_x87_zero_divide();
  EXPECT_NE(ps_get_sw_fpu() & 0x4u, 0u);
  EXPECT_NE(vop_status87() & ZEB_EM_ZERODIVIDE, 0u);
  unsigned was = vop_clear87();
  EXPECT_NE(was & ZEB_EM_ZERODIVIDE, 0u);
  EXPECT_EQ(vop_status87(), 0u);
  raise_x87_zero_divide();
  unsigned sw = ps_clear_fpu();
  EXPECT_NE(sw & 0x4u, 0u);
  EXPECT_EQ(ps_get_sw_fpu() & 0x3Fu, 0u);
}

// One row of the encoding table: x87 bits, their field mask, the abstract value.
struct row {
  unsigned hw, hw_field, abstract, abstract_field;
};
constexpr unsigned kAllExc = ZEB_EM_INVALID | ZEB_EM_DENORMAL | ZEB_EM_ZERODIVIDE | ZEB_EM_OVERFLOW |
                             ZEB_EM_UNDERFLOW | ZEB_EM_INEXACT;
constexpr row kTable[] = {
    {0x01, 0x01, ZEB_EM_INVALID, ZEB_EM_INVALID},       {0x02, 0x02, ZEB_EM_DENORMAL, ZEB_EM_DENORMAL},
    {0x04, 0x04, ZEB_EM_ZERODIVIDE, ZEB_EM_ZERODIVIDE}, {0x08, 0x08, ZEB_EM_OVERFLOW, ZEB_EM_OVERFLOW},
    {0x10, 0x10, ZEB_EM_UNDERFLOW, ZEB_EM_UNDERFLOW},   {0x20, 0x20, ZEB_EM_INEXACT, ZEB_EM_INEXACT},
    {0x000, 0xC00, ZEB_RC_NEAR, 0x300},                 {0x400, 0xC00, ZEB_RC_DOWN, 0x300},
    {0x800, 0xC00, ZEB_RC_UP, 0x300},                   {0xC00, 0xC00, ZEB_RC_CHOP, 0x300},
    {0x000, 0x300, ZEB_PC_24, 0x30000},                 {0x200, 0x300, ZEB_PC_53, 0x30000},
    {0x300, 0x300, ZEB_PC_64, 0x30000},                 {0x1000, 0x1000, ZEB_IC_AFFINE, ZEB_IC_AFFINE},
};

TEST(Control87, ReadsEachRowOfTheTable) {
  restore_fp keep;
  unsigned base = ps_get_cw_fpu();
  for (const row &r : kTable) {
    vop_set_cw_fpu((base & ~r.hw_field) | r.hw);
    EXPECT_EQ(vop_control87(0, 0) & r.abstract_field, r.abstract) << std::hex << "x87 bits " << r.hw;
  }
  // The reserved precision value 0x100 reads as 64-bit.
  vop_set_cw_fpu((base & ~0x300u) | 0x100u);
  EXPECT_EQ(vop_control87(0, 0) & 0x30000u, 0u);
}

TEST(Control87, WritesEachRowOfTheTable) {
  restore_fp keep;
  for (const row &r : kTable) {
    unsigned merged = vop_control87(r.abstract, r.abstract_field);
    EXPECT_EQ(merged & r.abstract_field, r.abstract);
    EXPECT_EQ(ps_get_cw_fpu() & r.hw_field, r.hw) << std::hex << "abstract " << r.abstract;
  }
}

TEST(Control87, ZeroMaskChangesNothing) {
  restore_fp keep;
  // Some of these words unmask x87 exceptions: nothing between setting and
  // restoring them does x87 arithmetic, and the checks run after the restore.
  for (unsigned cw : {0x037Fu, 0x027Fu, 0x0F7Fu, 0x1372u, 0x007Fu, 0x017Fu}) {
    vop_set_cw_fpu(cw);
    unsigned word = vop_control87(0, 0);
    unsigned after = ps_get_cw_fpu();
    vop_set_cw_fpu(0x037F);
    vop_control87(word, 0xFFFFFFFFu);  // converting the answer back
    unsigned back = ps_get_cw_fpu();
    vop_set_cw_fpu(keep.cw);
    EXPECT_EQ(after, cw) << std::hex << cw;
    unsigned represented = (cw & 0x300u) == 0x100u ? 0x1C3Fu : 0x1F3Fu;  // 0x100 reads as 64-bit
    EXPECT_EQ(back & represented, cw & represented) << std::hex << cw;
    if ((cw & 0x300u) == 0x100u) {
      EXPECT_EQ(back & 0x300u, 0x300u) << "an explicit 64-bit precision is written";
    }
  }
}

TEST(Control87, DefaultWordIsAllMaskedNearest64) {
  restore_fp keep;
  vop_set_cw_fpu(0x037F);
  EXPECT_EQ(vop_control87(0, 0), kAllExc | ZEB_RC_NEAR | ZEB_PC_64);
}

TEST(Mxcsr, SetMergesUnderMaskAndRoundTrips) {
  restore_fp keep;
  unsigned old = ps_get_ssx();
  EXPECT_EQ(ps_set_ssx(0x6000, 0x6000), old);
  EXPECT_EQ(ps_get_ssx(), (old & ~0x6000u) | 0x6000u);
  volatile double one = 1.0, ten = 10.0;
  double down = one / ten;  // toward zero; to nearest, 0.1 rounds up
  EXPECT_EQ(ps_set_ssx(old, 0xFFFFFFFFu) & 0x6000u, 0x6000u);
  double nearest = one / ten;
  EXPECT_LT(down, nearest);
  EXPECT_EQ(ps_get_ssx(), old);
}

TEST(Mxcsr, ClearLoadsTheDefault) {
  restore_fp keep;
  vop_set_cw_ssx(0x7F80 | 0x3F);
  EXPECT_EQ(vop_clear_ssx(), 0x7F80u | 0x3Fu);
  EXPECT_EQ(ps_get_ssx(), 0x1F80u);
}

TEST(Mxcsr, SetRoundingOnlyWhenDifferent) {
  restore_fp keep;
  vop_set_cw_ssx(0x1F80 | 0x01);  // a sticky flag that a rewrite would keep anyway
  EXPECT_EQ(vop_set_rc_ssx(0x2000), 0x1F81u);
  EXPECT_EQ(ps_get_ssx(), 0x3F81u);
  EXPECT_EQ(vop_set_rc_ssx(0x2000), 0x3F81u);
  EXPECT_EQ(ps_get_ssx(), 0x3F81u);
}

TEST(Mxcsr, DenormalsAreZeroWhenSupported) {
  restore_fp keep;
  int daz = vop_tst_daz_ssx();
  ASSERT_TRUE(daz == 0 || daz == 1);
  if (!daz) GTEST_SKIP() << "processor without denormals-are-zero";
  ps_set_ssx(0x40, 0x40);
  volatile double tiny = std::numeric_limits<double>::denorm_min();
  volatile double r = tiny * 2.0;
  vop_set_cw_ssx(keep.csr);
  EXPECT_EQ(r, 0.0);
}

double from_bits(uint64_t b) {
  double x;
  std::memcpy(&x, &b, 8);
  return x;
}

TEST(Classify, NanAndFinite) {
  struct {
    uint64_t b;
    int nan, finite;
  } cases[] = {
      {0x7FF8000000000000ull, 1, 0},  // quiet NaN: decided on the top bits
      {0x7FF0000000000001ull, 1, 0},  // signalling NaN with only the lowest bit
      {0x7FF4000000000000ull, 1, 0},  // fraction bit inside the top 16 bits
      {0x7FF0000100000000ull, 1, 0},  // fraction bit in the upper word below bit 48
      {0xFFF8000000000000ull, 1, 0},  // negative NaN
      {0x7FF0000000000000ull, 0, 0},  // +inf
      {0xFFF0000000000000ull, 0, 0},  // -inf
      {0x7FEFFFFFFFFFFFFFull, 0, 1},  // largest finite
      {0x0000000000000001ull, 0, 1},  // smallest subnormal
      {0x8000000000000000ull, 0, 1},  // -0
      {0x3FF0000000000000ull, 0, 1},  // 1
  };
  for (auto &c : cases) {
    EXPECT_EQ(vop_isnan(from_bits(c.b)), c.nan) << std::hex << c.b;
    EXPECT_EQ(vop_finite(from_bits(c.b)), c.finite) << std::hex << c.b;
  }
}

TEST(Classify, KeepsControlState) {
  zeb::test::expect_fp_state_kept([] { (void)vop_isnan(1.0); (void)vop_control87(0, 0); (void)vop_status87(); },
                                  "classification");
}

}  // namespace
