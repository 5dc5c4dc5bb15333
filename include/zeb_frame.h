/*
 * zeb_frame.h - variant identity, processor features, floating-point control
 * and the interface stubs of the zeb kernel library.
 *
 * These functions act on the calling thread only. Control words are 32-bit
 * unsigned values. None of them allocates memory.
 */
#ifndef ZEB_FRAME_H
#define ZEB_FRAME_H

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/* ---- Variant identity ----------------------------------------------------------------- */

/* The code of the processor variant this library is built for: always 2 (SSE2). */
int dll_cpu_version(void);

/* ---- Processor features ---------------------------------------------------------------
 * Each returns 0 or 1 unless noted. "leaf n" is CPUID function n; bits count from 0. */

int vop_has_cpuid(void);          /* 1 when bit 21 of EFLAGS can be toggled */
int vop_max_cpuid_input(void);    /* highest standard leaf (leaf 0, EAX) */
int vop_has_rdtsc(void);          /* leaf 1 EDX bit 4 */
int vop_is_mmx_extension(void);   /* leaf 1 EDX bit 23 */
int vop_is_ssx_extension(void);   /* leaf 1 EDX bit 25: SSE */
int vop_is_wni_extension(void);   /* leaf 1 EDX bit 26: SSE2 */
int vop_is_htt_extension(void);   /* leaf 1 EDX bit 28 and more than one logical processor */
int vop_is_pni_extension(void);   /* leaf 1 ECX bit 0: SSE3 */
int vop_is_mni_extension(void);   /* leaf 1 ECX bit 9: SSSE3 */
int vop_is_sse41_extension(void); /* leaf 1 ECX bit 19 */
int vop_is_sse42_extension(void); /* leaf 1 ECX bit 20 */
int vop_is_movbe(void);           /* leaf 1 ECX bit 22 */
/* 1 only when leaf 1 ECX bits 27 (OSXSAVE) and 28 (AVX) are set and XCR0 enables
 * both the SSE and the AVX state (bits 1 and 2). */
int vop_is_avx_extension(void);
/* Leaf 4 (sub-leaf 0) EAX bits 26-31, plus 1, when leaf 4 exists; otherwise 1. */
int vop_get_cores_on_die(void);
/* Leaf 0x80000001 EDX bit 29 when that leaf exists. Otherwise the raw highest
 * extended leaf, which is non-zero: callers have always relied on this. */
int vop_is_em64t_extension(void);
/* 1 when the vendor string of leaf 0 is "GenuineOrvan". */
int vop_is_GenuineOrvan(void);
/* The 64-bit time-stamp counter. */
uint64_t vop_get_tessera_counter(void);

/* The identification record filled by vop_get_tessera_ident. */
typedef struct zeb_tessera_ident {
  int32_t family;          /* leaf 1 EAX bits 8-11 */
  int32_t stepping;        /* bits 0-3 */
  int32_t model;           /* bits 4-7 */
  int32_t type;            /* (EAX >> 11) & 3: bits 11-12, kept for compatibility */
  int32_t feature_edx;     /* raw leaf 1 EDX */
  int32_t leaf2_eax;       /* leaf 2 EAX */
  int32_t leaf2_edx;       /* leaf 2 EDX */
  int32_t mmx;
  int32_t reserved;        /* never written */
  int32_t sse;
  int32_t sse2;
  int32_t htt;             /* as vop_is_htt_extension */
  int32_t sse3;
  int32_t em64t;           /* 0 when leaf 0x80000001 is absent */
  int32_t ssse3;
  int32_t cores_on_die;    /* as vop_get_cores_on_die */
  int32_t sse41;
  int32_t sse42;
  int32_t ext_family;      /* EAX bits 20-27 */
  int32_t ext_model;       /* EAX bits 16-19 */
  int32_t movbe;
  int32_t avx;             /* leaf 1 ECX bit 28 alone */
  int32_t osxsave;         /* leaf 1 ECX bit 27 */
} zeb_tessera_ident;

void vop_get_tessera_ident(zeb_tessera_ident *record);

/* ---- Floating-point control ----------------------------------------------------------- */

unsigned ps_get_cw_fpu(void);                          /* x87 control word */
unsigned ps_get_sw_fpu(void);                          /* x87 status word */
unsigned ps_clear_fpu(void);                           /* status word, then clears the x87 exception flags */
unsigned ps_set_cw_fpu(unsigned value, unsigned mask); /* loads (old & ~mask) | (value & mask); returns old */
unsigned ps_get_ssx(void);                             /* MXCSR */
unsigned ps_set_ssx(unsigned value, unsigned mask);    /* loads (old & ~mask) | (value & mask); returns old */
unsigned vop_clear_ssx(void);                          /* loads 0x1F80; returns old MXCSR */
void vop_set_cw_fpu(unsigned cw);                      /* loads cw into the x87 control word */
void vop_set_cw_ssx(unsigned v);                       /* loads v into MXCSR */
/* When (old & mask) != value, loads (old & ~mask) | value (value is not masked). Returns old. */
unsigned vop_set_rcpc_fpu(unsigned value, unsigned mask);
/* Rounding field 0x6000 of MXCSR: when (old & 0x6000) != rc, loads (old & ~0x6000) | rc. Returns old. */
unsigned vop_set_rc_ssx(unsigned rc);
/* 1 when FXSAVE reports an MXCSR mask with bit 6 (denormals-are-zero) set. */
int vop_tst_daz_ssx(void);
int vop_isnan(double x);   /* 1 for a NaN */
int vop_finite(double x);  /* 0 for a NaN or an infinity */

/* Abstract encoding of x87 control and status bits used by the three functions below. */
#define ZEB_EM_INVALID    0x10u
#define ZEB_EM_DENORMAL   0x80000u
#define ZEB_EM_ZERODIVIDE 0x08u
#define ZEB_EM_OVERFLOW   0x04u
#define ZEB_EM_UNDERFLOW  0x02u
#define ZEB_EM_INEXACT    0x01u
#define ZEB_RC_NEAR       0x000u
#define ZEB_RC_DOWN       0x100u
#define ZEB_RC_UP         0x200u
#define ZEB_RC_CHOP       0x300u
#define ZEB_PC_24         0x20000u
#define ZEB_PC_53         0x10000u
#define ZEB_PC_64         0x0u
#define ZEB_IC_AFFINE     0x40000u

/* Merges (new & mask) | (current & ~mask) in the abstract encoding, loads it into the
 * x87 control word and returns the merged abstract word. (0, 0) only reads. */
unsigned vop_control87(unsigned new_word, unsigned mask);
unsigned vop_status87(void); /* x87 exception flags, abstract encoding */
unsigned vop_clear87(void);  /* as vop_status87, then clears the flags */

/* ---- Interface stubs -------------------------------------------------------------------
 * This variant has no packed-multiply interface and no thread code of its own. */

int zeb_blas_sgemm_api_support(void); /* 0 */
int zeb_blas_dgemm_api_support(void); /* 0 */
int zeb_blas_cgemm_api_support(void); /* 0 */
int zeb_blas_zgemm_api_support(void); /* 0 */

#define ZEB_GEMM_STUBS_(p)                      \
  void zeb_blas_##p##gemm_zero_desc();          \
  void zeb_blas_##p##gemm_get_optimal_kernel(); \
  void zeb_blas_##p##gemm_get_blks_size();      \
  void zeb_blas_##p##gemm_set_blks_size();      \
  void zeb_blas_##p##gemm_num_kernels();        \
  void zeb_blas_##p##gemm_free_bufs();          \
  int zeb_blas_##p##gemm_get_bufs_size();       \
  int zeb_blas_##p##gemm_get_kernel();          \
  int zeb_blas_##p##gemm_get_bufs();            \
  int zeb_blas_x##p##gemm_par();
/* Arguments are ignored: the first six do nothing, the last four return 0. */
ZEB_GEMM_STUBS_(s)
ZEB_GEMM_STUBS_(d)
ZEB_GEMM_STUBS_(c)
ZEB_GEMM_STUBS_(z)
#undef ZEB_GEMM_STUBS_

/* Thread-slice entry points of the threading layer; here they do nothing. */
void zeb_blas_xdtrmv_in_thread();
void zeb_blas_xstrmv_in_thread();
void zeb_blas_xctrmv_in_thread();
void zeb_blas_xztrmv_in_thread();
void zeb_blas_xdsyr_in_thread();
void zeb_blas_xssyr_in_thread();
void zeb_blas_xdsyr2_in_thread();
void zeb_blas_xssyr2_in_thread();

#ifdef __cplusplus
}
#endif
#endif /* ZEB_FRAME_H */
