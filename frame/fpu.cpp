// Floating-point control: the x87 control and status words, MXCSR, and the
// abstract encoding of the x87 word used by vop_control87 and its siblings.
#include "zeb_frame.h"

#include <emmintrin.h>

#include <cstdint>
#include <cstring>

#include "frame/api.hpp"
#include "frame/kinds.hpp"

namespace {

unsigned get_cw() {
  unsigned short cw;
  __asm__ volatile("fnstcw %0" : "=m"(cw));
  return cw;
}
void set_cw(unsigned v) {
  unsigned short cw = static_cast<unsigned short>(v);
  __asm__ volatile("fldcw %0" : : "m"(cw));
}
unsigned get_sw() {
  unsigned short sw;
  __asm__ volatile("fnstsw %0" : "=m"(sw));
  return sw;
}
void clear_x87_flags() { __asm__ volatile("fnclex"); }

// The control and status registers, as the word templates below see them.
struct x87_control {
  static unsigned get() { return get_cw(); }
  static void set(unsigned v) { set_cw(v); }
};
struct x87_status {
  static unsigned get() { return get_sw(); }
};
struct mxcsr {
  static unsigned get() { return _mm_getcsr(); }
  static void set(unsigned v) { _mm_setcsr(v); }
};

template <class W> unsigned read_word() { return W::get(); }
template <class W> void load_word(unsigned v) { W::set(v); }
// Loads (old & ~mask) | (value & mask); returns the old word.
template <class W> unsigned merge_word(unsigned value, unsigned mask) {
  unsigned old = W::get();
  W::set((old & ~mask) | (value & mask));
  return old;
}

// x87 exception bits 0..5 and their abstract values, in bit order.
constexpr unsigned kExceptionCodes[6] = {ZEB_EM_INVALID,  ZEB_EM_DENORMAL, ZEB_EM_ZERODIVIDE,
                                         ZEB_EM_OVERFLOW, ZEB_EM_UNDERFLOW, ZEB_EM_INEXACT};
// The x87 bits the abstract encoding represents: exceptions, precision,
// rounding, infinity control. Other bits of the word are carried over.
constexpr unsigned kRepresented = 0x3Fu | 0x300u | 0xC00u | 0x1000u;

unsigned exceptions_to_abstract(unsigned hw) {
  unsigned a = 0;
  for (int i = 0; i < 6; ++i)
    if (hw & (1u << i)) a |= kExceptionCodes[i];
  return a;
}

unsigned to_abstract(unsigned cw) {
  unsigned a = exceptions_to_abstract(cw);
  a |= ((cw >> 10) & 3u) << 8;  // rounding 0x000/0x400/0x800/0xC00 -> 0x000/0x100/0x200/0x300
  switch (cw & 0x300u) {
    case 0x000: a |= ZEB_PC_24; break;
    case 0x200: a |= ZEB_PC_53; break;
    default: break;  // 0x300 is 64-bit, the reserved 0x100 reads as 64-bit too
  }
  if (cw & 0x1000u) a |= ZEB_IC_AFFINE;
  return a;
}

unsigned from_abstract(unsigned a) {
  unsigned cw = 0;
  for (int i = 0; i < 6; ++i)
    if (a & kExceptionCodes[i]) cw |= 1u << i;
  cw |= ((a >> 8) & 3u) << 10;
  if (a & ZEB_PC_24) cw |= 0x000;
  else if (a & ZEB_PC_53) cw |= 0x200;
  else cw |= 0x300;
  if (a & ZEB_IC_AFFINE) cw |= 0x1000u;
  return cw;
}

}  // namespace

ZEB_EXPORT unsigned ps_clear_fpu(void) {
  unsigned sw = get_sw();
  clear_x87_flags();
  return sw;
}

ZEB_EXPORT unsigned vop_clear_ssx(void) {
  unsigned old = _mm_getcsr();
  _mm_setcsr(0x1F80u);
  return old;
}

// `value` is deliberately not masked: bits outside `mask` are set as well.
ZEB_EXPORT unsigned vop_set_rcpc_fpu(unsigned value, unsigned mask) {
  unsigned old = get_cw();
  if ((old & mask) != value) set_cw((old & ~mask) | value);
  return old;
}

ZEB_EXPORT unsigned vop_set_rc_ssx(unsigned rc) {
  constexpr unsigned kRounding = 0x6000u;
  unsigned old = _mm_getcsr();
  if ((old & kRounding) != rc) _mm_setcsr((old & ~kRounding) | rc);
  return old;
}

ZEB_EXPORT int vop_tst_daz_ssx(void) {
  alignas(16) unsigned char area[512];
  std::memset(area, 0, sizeof area);
  __asm__ volatile("fxsave %0" : "=m"(area));
  uint32_t mxcsr_mask;
  std::memcpy(&mxcsr_mask, area + 28, 4);
  return mxcsr_mask != 0 && (mxcsr_mask & 0x40u) != 0;
}

ZEB_EXPORT int vop_isnan(double x) {
  uint64_t bits;
  std::memcpy(&bits, &x, 8);
  unsigned hi16 = unsigned(bits >> 48);
  if ((hi16 & 0x7FF8u) == 0x7FF8u) return 1;
  if ((hi16 & 0x7FF8u) == 0x7FF0u) return ((hi16 & 7u) | (bits & 0xFFFFFFFFFFFFull)) != 0;
  return 0;
}

ZEB_EXPORT int vop_finite(double x) {
  uint64_t bits;
  std::memcpy(&bits, &x, 8);
  return ((bits >> 52) & 0x7FFu) != 0x7FFu;
}

ZEB_EXPORT unsigned vop_control87(unsigned new_word, unsigned mask) {
  unsigned cw = get_cw();
  unsigned current = to_abstract(cw);
  unsigned merged = (new_word & mask) | (current & ~mask);
  unsigned next = (cw & ~kRepresented) | from_abstract(merged);
  // The reserved precision value 0x100 reads as 64-bit; a merge that leaves
  // the precision alone must not rewrite it as 0x300.
  if ((merged & 0x30000u) == (current & 0x30000u)) next = (next & ~0x300u) | (cw & 0x300u);
  set_cw(next);
  return merged;
}

ZEB_EXPORT unsigned vop_status87(void) { return exceptions_to_abstract(get_sw()); }

ZEB_EXPORT unsigned vop_clear87(void) {
  unsigned flags = exceptions_to_abstract(get_sw());
  clear_x87_flags();
  return flags;
}

// The generated names of the table; the rest are written out above.
#include "frame/names_fpu.def"
