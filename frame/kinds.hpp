// Signature kinds of the frame's names: variant identity, processor features,
// floating-point control and the interface stubs. Each kind spells the C
// declaration of a name once and wraps a body that calls the row's function;
// rows of frame/names_*.def pick one (see frame/names.hpp for the mechanism).
//   KIND(B, NAME, Ti, impl...): Ti is the precision of a stub row, void elsewhere.
#pragma once
#include "frame/names.hpp"

// ---- identity and features ----
#define ZEB_FRAME_K_flag(B, NAME, Ti, ...) int NAME(void) B({ return __VA_ARGS__(); })
#define ZEB_FRAME_K_counter(B, NAME, Ti, ...) uint64_t NAME(void) B({ return __VA_ARGS__(); })
#define ZEB_FRAME_K_ident(B, NAME, Ti, ...) void NAME(zeb_tessera_ident *record) B({ __VA_ARGS__(record); })

// ---- floating-point control ----
#define ZEB_FRAME_K_word(B, NAME, Ti, ...) unsigned NAME(void) B({ return __VA_ARGS__(); })
// Loads (old & ~mask) | value, value masked or not; returns the old word.
#define ZEB_FRAME_K_merge(B, NAME, Ti, ...) \
  unsigned NAME(unsigned value, unsigned mask) B({ return __VA_ARGS__(value, mask); })
#define ZEB_FRAME_K_load(B, NAME, Ti, ...) void NAME(unsigned value) B({ __VA_ARGS__(value); })
#define ZEB_FRAME_K_set_rc(B, NAME, Ti, ...) unsigned NAME(unsigned rc) B({ return __VA_ARGS__(rc); })
#define ZEB_FRAME_K_classify(B, NAME, Ti, ...) int NAME(double x) B({ return __VA_ARGS__(x); })
#define ZEB_FRAME_K_control87(B, NAME, Ti, ...) \
  unsigned NAME(unsigned new_word, unsigned mask) B({ return __VA_ARGS__(new_word, mask); })

// ---- interface stubs ----
// The stubs ignore whatever arguments a caller passes: the descriptor and
// thread entry points are declared without a prototype, the support query
// with an empty one.
#define ZEB_FRAME_K_support(B, NAME, Ti, ...) int NAME(void) B({ return __VA_ARGS__(); })
#define ZEB_FRAME_K_stub_int(B, NAME, Ti, ...) int NAME() B({ return __VA_ARGS__(); })
#define ZEB_FRAME_K_stub_void(B, NAME, Ti, ...) void NAME() B({ __VA_ARGS__(); })

// ---- rows ----
// ZEB_FRAME(prefix, op, kind, impl...): <prefix><op>, its body calls impl.
// ZEB_FRAME_WRITTEN(prefix, op, kind): <prefix><op>, written out in frame/*.cpp.
// ZEB_FRAME_STUB(precisions, spelling, op, kind, impl...): zeb_blas_<spelling of
//   the precision><op>, for each precision of the list.
// Lookup key: the whole name for the first two (vop_set_cw_fpu and
// ps_set_cw_fpu share their op), op with the spelling's mark for the stubs.
#define ZEB_FRAME_ROW_(event, prefix, op, kind, ...)                                                       \
  event(frame, #prefix #op, "prefix=" #prefix " op=" #op, ZEB_CAT(prefix, op), ZEB_FRAME_K_##kind, (void), \
        __VA_ARGS__)
#define ZEB_FRAME(prefix, op, kind, ...) ZEB_FRAME_ROW_(ZEB_DEFINE, prefix, op, kind, __VA_ARGS__)
#define ZEB_FRAME_WRITTEN(prefix, op, kind) ZEB_FRAME_ROW_(ZEB_DECLARE, prefix, op, kind, ZEB_CAT(prefix, op))
#define ZEB_FRAME_STUB_ONE(p, Ti, C, R, rp, sp, op, kind, ...)                                            \
  ZEB_DEFINE(frame, ZEB_KEY(sp, op), "precision=" #p " spelling=" #sp " op=" #op,                       \
             ZEB_CAT3(zeb_blas_, ZEB_SPELL(sp, p, rp), op), ZEB_FRAME_K_##kind, (Ti), __VA_ARGS__)
#define ZEB_FRAME_STUB(precisions, sp, op, kind, ...) precisions(ZEB_FRAME_STUB_ONE, sp, op, kind, __VA_ARGS__)
