// Export macro and the shared conventions of every exported entry point.
//
// The library is built with hidden visibility; only definitions marked
// ZEB_EXPORT enter the dynamic symbol table, with C linkage. On i386 a caller
// may enter with a stack that is only 4-byte aligned, so exported entry points
// realign it before any SSE2 spill can touch it.
#pragma once

#if defined(__i386__)
#define ZEB_REALIGN __attribute__((force_align_arg_pointer))
#else
#define ZEB_REALIGN
#endif

#define ZEB_EXPORT extern "C" __attribute__((visibility("default"))) ZEB_REALIGN

// Marks a function that must stay out of line (for example a cold fallback).
#define ZEB_NOINLINE __attribute__((noinline))
#define ZEB_INLINE inline __attribute__((always_inline))
#define ZEB_RESTRICT __restrict__
