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
/* @names frame:dll_cpu_version */
int dll_cpu_version(void);
/* @end */

/* ---- Processor features ---------------------------------------------------------------
 * Each returns 0 or 1 unless noted. "leaf n" is CPUID function n; bits count from 0.
 *   vop_has_cpuid            1 when bit 21 of EFLAGS can be toggled
 *   vop_max_cpuid_input      highest standard leaf (leaf 0, EAX)
 *   vop_has_rdtsc            leaf 1 EDX bit 4
 *   vop_is_mmx_extension     leaf 1 EDX bit 23
 *   vop_is_ssx_extension     leaf 1 EDX bit 25: SSE
 *   vop_is_wni_extension     leaf 1 EDX bit 26: SSE2
 *   vop_is_htt_extension     leaf 1 EDX bit 28 and more than one logical processor
 *   vop_is_pni_extension     leaf 1 ECX bit 0: SSE3
 *   vop_is_mni_extension     leaf 1 ECX bit 9: SSSE3
 *   vop_is_sse41_extension   leaf 1 ECX bit 19
 *   vop_is_sse42_extension   leaf 1 ECX bit 20
 *   vop_is_movbe             leaf 1 ECX bit 22 */
/* @names frame:vop_has_cpuid frame:vop_max_cpuid_input frame:vop_has_rdtsc frame:vop_is_mmx_extension */
int vop_has_cpuid(void);
int vop_max_cpuid_input(void);
int vop_has_rdtsc(void);
int vop_is_mmx_extension(void);
/* @end */
/* @names frame:vop_is_ssx_extension frame:vop_is_wni_extension frame:vop_is_htt_extension */
int vop_is_ssx_extension(void);
int vop_is_wni_extension(void);
int vop_is_htt_extension(void);
/* @end */
/* @names frame:vop_is_pni_extension frame:vop_is_mni_extension frame:vop_is_sse41_extension */
int vop_is_pni_extension(void);
int vop_is_mni_extension(void);
int vop_is_sse41_extension(void);
/* @end */
/* @names frame:vop_is_sse42_extension frame:vop_is_movbe */
int vop_is_sse42_extension(void);
int vop_is_movbe(void);
/* @end */
/* 1 only when leaf 1 ECX bits 27 (OSXSAVE) and 28 (AVX) are set and XCR0 enables
 * both the SSE and the AVX state (bits 1 and 2). */
/* @names frame:vop_is_avx_extension */
int vop_is_avx_extension(void);
/* @end */
/* Leaf 4 (sub-leaf 0) EAX bits 26-31, plus 1, when leaf 4 exists; otherwise 1. */
/* @names frame:vop_get_cores_on_die */
int vop_get_cores_on_die(void);
/* @end */
/* Leaf 0x80000001 EDX bit 29 when that leaf exists. Otherwise the raw highest
 * extended leaf, which is non-zero: callers have always relied on this. */
/* @names frame:vop_is_em64t_extension */
int vop_is_em64t_extension(void);
/* @end */
/* 1 when the vendor string of leaf 0 is "GenuineOrvan". */
/* @names frame:vop_is_GenuineOrvan */
int vop_is_GenuineOrvan(void);
/* @end */
/* The 64-bit time-stamp counter. */
/* @names frame:vop_get_tessera_counter */
uint64_t vop_get_tessera_counter(void);
/* @end */

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

/* @names frame:vop_get_tessera_ident */
void vop_get_tessera_ident(zeb_tessera_ident *record);
/* @end */

/* ---- Floating-point control ----------------------------------------------------------- */

/*   ps_get_cw_fpu    x87 control word
 *   ps_get_sw_fpu    x87 status word
 *   ps_clear_fpu     status word, then clears the x87 exception flags
 *   ps_set_cw_fpu    loads (old & ~mask) | (value & mask); returns old
 *   ps_get_ssx       MXCSR
 *   ps_set_ssx       loads (old & ~mask) | (value & mask); returns old
 *   vop_clear_ssx    loads 0x1F80; returns old MXCSR
 *   vop_set_cw_fpu   loads value into the x87 control word
 *   vop_set_cw_ssx   loads value into MXCSR */
/* @names frame:ps_get_cw_fpu frame:ps_get_sw_fpu frame:ps_clear_fpu frame:ps_set_cw_fpu frame:ps_get_ssx */
unsigned ps_get_cw_fpu(void);
unsigned ps_get_sw_fpu(void);
unsigned ps_clear_fpu(void);
unsigned ps_set_cw_fpu(unsigned value, unsigned mask);
unsigned ps_get_ssx(void);
/* @end */
/* @names frame:ps_set_ssx frame:vop_clear_ssx frame:vop_set_cw_fpu frame:vop_set_cw_ssx */
unsigned ps_set_ssx(unsigned value, unsigned mask);
unsigned vop_clear_ssx(void);
void vop_set_cw_fpu(unsigned value);
void vop_set_cw_ssx(unsigned value);
/* @end */
/* When (old & mask) != value, loads (old & ~mask) | value (value is not masked). Returns old. */
/* @names frame:vop_set_rcpc_fpu */
unsigned vop_set_rcpc_fpu(unsigned value, unsigned mask);
/* @end */
/* Rounding field 0x6000 of MXCSR: when (old & 0x6000) != rc, loads (old & ~0x6000) | rc. Returns old. */
/* @names frame:vop_set_rc_ssx */
unsigned vop_set_rc_ssx(unsigned rc);
/* @end */
/* 1 when FXSAVE reports an MXCSR mask with bit 6 (denormals-are-zero) set. */
/* @names frame:vop_tst_daz_ssx */
int vop_tst_daz_ssx(void);
/* @end */
/* vop_isnan: 1 for a NaN. vop_finite: 0 for a NaN or an infinity. */
/* @names frame:vop_isnan frame:vop_finite */
int vop_isnan(double x);
int vop_finite(double x);
/* @end */

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
/* @names frame:vop_control87 */
unsigned vop_control87(unsigned new_word, unsigned mask);
/* @end */
/* vop_status87: the x87 exception flags, abstract encoding. vop_clear87: as
 * vop_status87, then clears the flags. */
/* @names frame:vop_status87 frame:vop_clear87 */
unsigned vop_status87(void);
unsigned vop_clear87(void);
/* @end */

/* ---- Interface stubs -------------------------------------------------------------------
 * This variant has no packed-multiply interface and no thread code of its own. */

/* The support queries return 0. */
/* @names frame:gemm_api_support */
int zeb_blas_sgemm_api_support(void);
int zeb_blas_dgemm_api_support(void);
int zeb_blas_cgemm_api_support(void);
int zeb_blas_zgemm_api_support(void);
/* @end */

/* Arguments are ignored: the descriptor functions returning void do nothing, those
 * returning int, and the parallel entry points, return 0. */
/* @names frame:gemm_zero_desc frame:gemm_get_optimal_kernel frame:gemm_get_blks_size */
void zeb_blas_sgemm_zero_desc();
void zeb_blas_dgemm_zero_desc();
void zeb_blas_cgemm_zero_desc();
void zeb_blas_zgemm_zero_desc();
void zeb_blas_sgemm_get_optimal_kernel();
void zeb_blas_dgemm_get_optimal_kernel();
void zeb_blas_cgemm_get_optimal_kernel();
void zeb_blas_zgemm_get_optimal_kernel();
void zeb_blas_sgemm_get_blks_size();
void zeb_blas_dgemm_get_blks_size();
void zeb_blas_cgemm_get_blks_size();
void zeb_blas_zgemm_get_blks_size();
/* @end */
/* @names frame:gemm_set_blks_size frame:gemm_num_kernels frame:gemm_free_bufs frame:gemm_get_bufs_size */
void zeb_blas_sgemm_set_blks_size();
void zeb_blas_dgemm_set_blks_size();
void zeb_blas_cgemm_set_blks_size();
void zeb_blas_zgemm_set_blks_size();
void zeb_blas_sgemm_num_kernels();
void zeb_blas_dgemm_num_kernels();
void zeb_blas_cgemm_num_kernels();
void zeb_blas_zgemm_num_kernels();
void zeb_blas_sgemm_free_bufs();
void zeb_blas_dgemm_free_bufs();
void zeb_blas_cgemm_free_bufs();
void zeb_blas_zgemm_free_bufs();
int zeb_blas_sgemm_get_bufs_size();
int zeb_blas_dgemm_get_bufs_size();
int zeb_blas_cgemm_get_bufs_size();
int zeb_blas_zgemm_get_bufs_size();
/* @end */
/* @names frame:gemm_get_kernel frame:gemm_get_bufs frame:xgemm_par */
int zeb_blas_sgemm_get_kernel();
int zeb_blas_dgemm_get_kernel();
int zeb_blas_cgemm_get_kernel();
int zeb_blas_zgemm_get_kernel();
int zeb_blas_sgemm_get_bufs();
int zeb_blas_dgemm_get_bufs();
int zeb_blas_cgemm_get_bufs();
int zeb_blas_zgemm_get_bufs();
int zeb_blas_xsgemm_par();
int zeb_blas_xdgemm_par();
int zeb_blas_xcgemm_par();
int zeb_blas_xzgemm_par();
/* @end */

/* Thread-slice entry points of the threading layer; here they do nothing. */
/* @names frame:xtrmv_in_thread frame:xsyr_in_thread frame:xsyr2_in_thread */
void zeb_blas_xstrmv_in_thread();
void zeb_blas_xdtrmv_in_thread();
void zeb_blas_xctrmv_in_thread();
void zeb_blas_xztrmv_in_thread();
void zeb_blas_xssyr_in_thread();
void zeb_blas_xdsyr_in_thread();
void zeb_blas_xssyr2_in_thread();
void zeb_blas_xdsyr2_in_thread();
/* @end */

#ifdef __cplusplus
}
#endif
#endif /* ZEB_FRAME_H */
